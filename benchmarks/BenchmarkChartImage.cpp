// An image in a chart view: this library's way and VTK's own chart, an image of 2048 x 1536 in a
// view of 800 x 600. Run with --benchmark_enable_random_interleaving=true and some repetitions;
// what counts is the ratio of the medians.
#include "LiteralImage.h"
#include "TarvexExt.h"
#include "frame/CWindowManager.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <type_traits>
#include <vector>

#include <vtkAxis.h>

namespace
{
constexpr int32_t width = 2048;
constexpr int32_t height = 1536;

// Two images in turns, so that no way can keep the former one. 16-bit values have gaps.
template <class Sample>
const Sample* GetImage(int64_t turn)
{
    static const auto images = []
    {
        std::vector<Sample> both[2];
        for (int which = 0; which < 2; ++which)
        {
            for (int i = 0; i < width * height; ++i)
            {
                const double wave = std::sin((i % width) * 0.01) * std::cos((i / width) * 0.013);
                const double level = 127.0 * (which == 0 ? wave : -wave);
                const bool isGap = i % 97 == 0;
                both[which].push_back(std::is_same_v<Sample, uint8_t>
                                          ? static_cast<Sample>(128.0 + level)
                                      : isGap ? static_cast<Sample>(-32768)
                                              : static_cast<Sample>(250.0 * level));
            }
        }
        return std::vector<std::vector<Sample>>{both[0], both[1]};
    }();
    return images[turn % 2].data();
}

struct View
{
    View()
    {
        Tarvex_Window2D_Create(nullptr, 1, 0, 0, 800, 600, &Id);
        CWindowManager::Instance->Call<CWindow2D>(Id,
                                                  [this](CWindow2D& window) -> int32_t
                                                  {
                                                      Window = &window;
                                                      return STATUS_OK;
                                                  });
        SetRange(0.0);
    }
    ~View() { Tarvex_Window2D_Delete(Id); }
    void SetRange(double shift) const
    {
        Window->GetChart()->GetAxis(vtkAxis::BOTTOM)->SetUnscaledRange(shift - 100, shift + 2148);
        Window->GetChart()->GetAxis(vtkAxis::LEFT)->SetUnscaledRange(shift - 75, shift + 1611);
    }
    void Render() const { Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0); }

    int32_t Id = -1;
    CWindow2D* Window = nullptr;
};

struct Library : View
{
    void Set(const uint8_t* pixels)
    {
        Tarvex_Element2D_Add_ImageByte(Id, pixels, width, height, 1, 1, 1, 0, 0, 0, 0, &Image);
    }
    void Set(const int16_t* pixels)
    {
        Tarvex_Element2D_Add_ImageShort(Id, pixels, width, height, 1, 1, 1, 0, 0, 0, 0, &Image);
    }
    int32_t Image = -1;
};

struct Literal : View
{
    void Set(const auto* pixels) { Image.SetValue(pixels, width, height, 0); }
    void SetRange(double shift)
    {
        Image.SetRange(shift - 100, shift + 2148, shift - 75, shift + 1611);
    }
    void Render() { Image.Refresh(); }

    LiteralImage Image{*Window};
};

// The chart without an image, for what a picture costs at least.
struct Empty : View
{
    void Set(const auto* /*pixels*/) {}
};

template <class Way, class Sample>
void Replace(benchmark::State& state)
{
    Way way;
    int64_t turn = 0;
    way.Set(GetImage<Sample>(turn));
    for (auto _ : state)
    {
        way.Set(GetImage<Sample>(++turn));
    }
}

template <class Way, class Sample>
void ReplaceAndDraw(benchmark::State& state)
{
    Way way;
    int64_t turn = 0;
    way.Set(GetImage<Sample>(turn));
    for (auto _ : state)
    {
        way.Set(GetImage<Sample>(++turn));
        way.Render();
    }
}

template <class Way, class Sample>
void Pan(benchmark::State& state)
{
    Way way;
    way.Set(GetImage<Sample>(0));
    way.Render();
    int64_t turn = 0;
    for (auto _ : state)
    {
        way.SetRange(static_cast<double>(++turn % 50));
        way.Render();
    }
}

void Look(benchmark::internal::Benchmark* benchmark)
{
    // The processor time of all threads is the steadier figure where a processor draws.
    benchmark->UseRealTime()->MeasureProcessCPUTime()->Unit(benchmark::kMillisecond);
}
} // namespace

BENCHMARK_TEMPLATE(Replace, Library, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(Replace, Literal, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(Replace, Library, int16_t)->Apply(Look);
BENCHMARK_TEMPLATE(Replace, Literal, int16_t)->Apply(Look);
BENCHMARK_TEMPLATE(ReplaceAndDraw, Library, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(ReplaceAndDraw, Literal, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(ReplaceAndDraw, Library, int16_t)->Apply(Look);
BENCHMARK_TEMPLATE(ReplaceAndDraw, Literal, int16_t)->Apply(Look);
BENCHMARK_TEMPLATE(Pan, Library, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(Pan, Literal, uint8_t)->Apply(Look);
BENCHMARK_TEMPLATE(Pan, Empty, uint8_t)->Apply(Look);

BENCHMARK_MAIN();
