// A surface with free positions beside one on a regular grid, as a host sees them: both show the
// same samples. Run with --benchmark_enable_random_interleaving=true and some repetitions; what
// counts is the ratio of the medians.
#include "TarvexExt.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <vector>

namespace
{
// Square; a grid of pitch 7 in raw units, some samples missing.
struct Samples
{
    explicit Samples(int64_t count) : Side(static_cast<int32_t>(std::sqrt(count)))
    {
        for (int32_t row = 0; row < Side; ++row)
        {
            for (int32_t column = 0; column < Side; ++column)
            {
                X.push_back(static_cast<int16_t>(7 * column));
                Y.push_back(static_cast<int16_t>(7 * row));
                const double height = 5000.0 * std::sin(0.01 * row) * std::cos(0.013 * column);
                const bool isMissing = row % 100 < 3 && column % 70 < 5;
                Z.push_back(isMissing ? int16_t{-32768} : static_cast<int16_t>(height));
            }
        }
    }

    int32_t Side;
    std::vector<int16_t> X;
    std::vector<int16_t> Y;
    std::vector<int16_t> Z;
};

struct Uniform
{
    static int32_t Add(int32_t view, const Samples& s, int32_t* id)
    {
        return Tarvex_Element_Add_SurfaceUniform(view, s.Z.data(), nullptr, s.Side, s.Side, 0.07,
                                                 0.07, 0.002, 0.0, 0.0, 0.0, 1, id);
    }
    static int32_t Set(int32_t view, int32_t id, const Samples& s)
    {
        return Tarvex_Element_SurfaceUniform_SetValue(view, id, s.Z.data(), nullptr, s.Side, s.Side,
                                                      0.07, 0.07, 0.002, 0.0, 0.0, 0.0);
    }
    static constexpr auto SetPalette = Tarvex_Element_SetPalette_SurfaceUniform;
};

struct NonUniform
{
    static int32_t Add(int32_t view, const Samples& s, int32_t* id)
    {
        return Tarvex_Element_Add_SurfaceNonUniform(view, s.X.data(), s.Y.data(), s.Z.data(),
                                                    nullptr, s.Side, s.Side, 0.01, 0.01, 0.002, 0.0,
                                                    0.0, 0.0, 1, id);
    }
    static int32_t Set(int32_t view, int32_t id, const Samples& s)
    {
        return Tarvex_Element_SurfaceNonUniform_SetValue(view, id, s.X.data(), s.Y.data(),
                                                         s.Z.data(), nullptr, s.Side, s.Side, 0.01,
                                                         0.01, 0.002, 0.0, 0.0, 0.0);
    }
    static constexpr auto SetPalette = Tarvex_Element_SetPalette_SurfaceNonUniform;
};

// A view with a surface that fills it.
template <class Kind>
struct Scene
{
    explicit Scene(benchmark::State& state) : Data(state.range(0))
    {
        int32_t status = Tarvex_Window_Create(nullptr, 1, 0, 0, 1280, 1024, &View);
        if (status == STATUS_OK)
        {
            status = Kind::Add(View, Data, &Surface);
        }
        if (status != STATUS_OK)
        {
            state.SkipWithError("no view, or no surface in it");
        }
        Tarvex_Window_Camera_SetPredefinedView(View, TARVEX_VIEW_TOP);
        Tarvex_Window_Camera_AutoSize(View);
    }
    ~Scene() { Tarvex_Window_Delete(View); }

    const Samples Data;
    int32_t View = -1;
    int32_t Surface = -1;
};

template <class Kind>
void AddToPicture(benchmark::State& state)
{
    Scene<Kind> scene(state);
    for (auto _ : state)
    {
        state.PauseTiming();
        Tarvex_Element_Remove(scene.View, scene.Surface);
        state.ResumeTiming();
        Kind::Add(scene.View, scene.Data, &scene.Surface);
    }
}

template <class Kind>
void SetValue(benchmark::State& state)
{
    const Scene<Kind> scene(state);
    for (auto _ : state)
    {
        Kind::Set(scene.View, scene.Surface, scene.Data);
    }
}

template <class Kind>
void ChangePalette(benchmark::State& state)
{
    const Scene<Kind> scene(state);
    uint32_t palette = 0;
    for (auto _ : state)
    {
        Kind::SetPalette(scene.View, scene.Surface, palette++ % 6);
    }
}

template <class Kind>
void MoveCamera(benchmark::State& state)
{
    const Scene<Kind> scene(state);
    double angle = 0.0;
    for (auto _ : state)
    {
        angle += 0.1;
        Tarvex_Window_Camera_SetViewDirection(scene.View, std::sin(angle), std::cos(angle), -1.0,
                                              0.0, 0.0, 1.0);
    }
}

void Sizes(benchmark::internal::Benchmark* benchmark)
{
    // The processor time of all threads is the steadier figure where a processor draws.
    benchmark->Arg(1'000'000)->Arg(4'000'000)->UseRealTime()->MeasureProcessCPUTime()->Unit(
        benchmark::kMillisecond);
}
} // namespace

BENCHMARK_TEMPLATE(AddToPicture, Uniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(AddToPicture, NonUniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(SetValue, Uniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(SetValue, NonUniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(ChangePalette, Uniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(ChangePalette, NonUniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(MoveCamera, Uniform)->Apply(Sizes);
BENCHMARK_TEMPLATE(MoveCamera, NonUniform)->Apply(Sizes);

BENCHMARK_MAIN();
