// Profiles in a chart view of 800 x 600 pixels, through the C interface ("Library") and as plain
// VTK would have them ("Literal"), in views of the same kind. "Work" holds the pictures back,
// "Drawn" draws each. The samples of a change differ from those before it.
#include "HostWindow.h"
#include "LiteralChartProfile.h"
#include "Tarvex.h"
#include "TarvexExt.h"
#include "frame/CWindowManager.h"

#include <cmath>
#include <stdexcept>
#include <string>

#include <benchmark/benchmark.h>

#include <vtkChartHistogram2D.h>

namespace
{
constexpr double xScale = 0.01;
constexpr double zScale = 0.001;

void Require(int32_t status)
{
    if (status != STATUS_OK)
    {
        throw std::runtime_error("status " + std::to_string(status));
    }
}

struct Samples
{
    // A wave with the noise of a sensor, and gaps of ten samples at even distances.
    Samples(size_t count, size_t gaps, unsigned seed) : X(count), Z(count)
    {
        unsigned random = seed;
        for (size_t sample = 0; sample < count; ++sample)
        {
            random = random * 1664525U + 1013904223U;
            const double part = static_cast<double>(sample) / static_cast<double>(count);
            X[sample] = static_cast<int16_t>(part * 60000.0 - 30000.0);
            const double noise = static_cast<double>(random >> 16U) / 65536.0 - 0.5;
            Z[sample] = static_cast<int16_t>(std::sin(part * 20.0 + seed) * 9000.0 + noise * 500.0);
        }
        for (size_t gap = 1; gap <= gaps; ++gap)
        {
            std::fill_n(Z.begin() + static_cast<ptrdiff_t>(gap * count / (gaps + 1)), 10,
                        TARVEX_INVALID_VALUE);
        }
    }
    int32_t Count() const { return static_cast<int32_t>(X.size()); }

    std::vector<int16_t> X;
    std::vector<int16_t> Z;
};

struct View
{
    View()
    {
        Require(
            Tarvex_Window2D_Create(reinterpret_cast<void*>(Host.Native), 1, 0, 0, 800, 600, &Id));
    }
    ~View() { Tarvex_Window2D_Delete(Id); }
    int32_t Add(const Samples& samples) const
    {
        int32_t element = TARVEX_NONE;
        Require(Tarvex_Element2D_Add_ProfileNonUniform_KorData(
            Id, samples.X.data(), samples.Z.data(), samples.Count(), xScale, zScale, 0.0, 0.0,
            &element, nullptr));
        return element;
    }
    template <class Action>
    void Do(Action&& action) const
    {
        Require(CWindowManager::Instance->Call<CWindow2D>(Id,
                                                          [&](CWindow2D& view) -> int32_t
                                                          {
                                                              action(view);
                                                              return STATUS_OK;
                                                          }));
    }
    vtkChartHistogram2D* Chart() const
    {
        vtkChartHistogram2D* chart = nullptr;
        Do([&](CWindow2D& view) { chart = view.GetChart(); });
        return chart;
    }
    void Render() const
    {
        Do([](CWindow2D& view) { view.GetRenderWindow()->Render(); });
    }

    HostWindow Host{800, 600};
    int32_t Id = TARVEX_NONE;
};

// Arguments: samples, gaps, drawn.
template <class Change>
void Run(benchmark::State& state, const View& view, const Change& change)
{
    const Samples both[] = {
        {static_cast<size_t>(state.range(0)), static_cast<size_t>(state.range(1)), 1},
        {static_cast<size_t>(state.range(0)), static_cast<size_t>(state.range(1)), 2}};
    const bool drawn = state.range(2) != 0;
    if (!drawn)
    {
        TarvexExt_Window2D_BeginUpdate(view.Id);
    }
    size_t turn = 0;
    for (auto _ : state)
    {
        change(both[++turn % 2]);
    }
}

void ReplaceLibrary(benchmark::State& state)
{
    const View view;
    const int32_t element = view.Add(Samples(1000, 0, 3));
    Run(state, view,
        [&](const Samples& samples)
        {
            Require(Tarvex_Element2D_ProfileNonUniform_SetValue_KorData(
                view.Id, element, samples.Count(), samples.X.data(), samples.Z.data(), xScale,
                zScale, 0.0, 0.0));
        });
}

void ReplaceLiteral(benchmark::State& state)
{
    const View view;
    // For the axes.
    Require(Tarvex_Element2D_Show(view.Id, view.Add(Samples(1000, 0, 3)), 0));
    LiteralChartProfile profile(view.Chart());
    Run(state, view,
        [&](const Samples& samples)
        {
            profile.Replace(samples.X, samples.Z, xScale, zScale);
            view.Render();
        });
}

// A profile is begun anew and grows. Arguments: blocks, samples of a block. Nothing is drawn.
void AppendLibrary(benchmark::State& state)
{
    const View view;
    const auto block = static_cast<int32_t>(state.range(1));
    const Samples samples(static_cast<size_t>(state.range(0) * state.range(1)), 10, 1);
    TarvexExt_Window2D_BeginUpdate(view.Id);
    const int32_t element = view.Add(samples);
    for (auto _ : state)
    {
        Require(Tarvex_Element2D_ProfileNonUniform_SetValue_KorData(
            view.Id, element, 2, samples.X.data(), samples.Z.data(), xScale, zScale, 0.0, 0.0));
        for (int32_t start = 0; start < samples.Count(); start += block)
        {
            Require(Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData(
                view.Id, element, block, samples.X.data() + start, samples.Z.data() + start, xScale,
                zScale, 0.0, 0.0));
        }
    }
}

void AppendLiteral(benchmark::State& state)
{
    const View view;
    const auto block = static_cast<size_t>(state.range(1));
    const Samples samples(static_cast<size_t>(state.range(0)) * block, 10, 1);
    for (auto _ : state)
    {
        LiteralChartProfile profile(view.Chart());
        for (size_t start = 0; start < samples.X.size(); start += block)
        {
            profile.Append(samples.X.data() + start, samples.Z.data() + start, block, xScale,
                           zScale);
        }
    }
}

void Replacements(benchmark::internal::Benchmark* run)
{
    for (const int drawn : {0, 1})
    {
        for (const int gaps : {0, 10, 100})
        {
            run->Args({2048, gaps, drawn});
        }
        run->Args({100000, 0, drawn});
        run->Args({100000, 10, drawn});
    }
    run->ArgNames({"samples", "gaps", "drawn"})->Unit(benchmark::kMicrosecond)->UseRealTime();
}

void Additions(benchmark::internal::Benchmark* run)
{
    run->Args({100, 1000})->Args({1, 100000});
    run->ArgNames({"blocks", "samples"})->Unit(benchmark::kMicrosecond)->UseRealTime();
}
} // namespace

BENCHMARK(ReplaceLibrary)->Apply(Replacements);
BENCHMARK(ReplaceLiteral)->Apply(Replacements);
BENCHMARK(AppendLibrary)->Apply(Additions);
BENCHMARK(AppendLiteral)->Apply(Additions);

BENCHMARK_MAIN();
