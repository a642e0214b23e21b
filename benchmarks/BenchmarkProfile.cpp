// Building a profile of a million samples in the scene, without drawing it: this library's way, the
// plain way with VTK's classes, and a copy of as many bytes as the picture takes.
#include "measurement/CElementProfileNonUniform.h"
#include "measurement/CElementProfileUniform.h"

#include <benchmark/benchmark.h>

#include <cmath>
#include <cstring>
#include <memory>
#include <vector>

#include <vtkCellArray.h>
#include <vtkLine.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>

namespace
{
constexpr int32_t sampleCount = 1'000'000;

// A wave with a missing sample in each hundred.
const std::vector<int16_t>& Heights()
{
    static const std::vector<int16_t> heights = []
    {
        std::vector<int16_t> values;
        for (int32_t i = 0; i < sampleCount; ++i)
        {
            const double height = 9000.0 * std::sin(i * 1e-4);
            values.push_back(i % 100 == 57 ? int16_t{-32768} : static_cast<int16_t>(height));
        }
        return values;
    }();
    return heights;
}

struct Scene
{
    vtkNew<vtkRenderer> Renderer;
    vtkNew<vtkRenderWindow> Window;

    ElementSite Site() const
    {
        ElementSite site;
        site.Renderer = Renderer;
        site.RenderWindow = Window;
        return site;
    }
};

void ReportSamples(benchmark::State& state)
{
    state.SetItemsProcessed(state.iterations() * sampleCount);
}

void UniformProfile(benchmark::State& state)
{
    const Scene scene;
    for (auto _ : state)
    {
        CElementProfileUniform profile;
        profile.Initialize(scene.Site(), Heights().data(), sampleCount, 0.01, 0.001, 0.0, 0.0, 5.0);
        profile.BuildPipeline();
        benchmark::DoNotOptimize(profile.GetPolyData());
    }
    ReportSamples(state);
}

void NonUniformProfile(benchmark::State& state)
{
    const Scene scene;
    for (auto _ : state)
    {
        CElementProfileNonUniform profile;
        profile.Initialize(scene.Site(), Heights().data(), Heights().data(), sampleCount, 0.01,
                           0.001, 0.0, 0.0, 5.0);
        profile.BuildPipeline();
        benchmark::DoNotOptimize(profile.GetPolyData());
    }
    ReportSamples(state);
}

// One call for each point and each cell, into 64-bit cells as a new vtkCellArray has them.
void PlainProfile(benchmark::State& state)
{
    for (auto _ : state)
    {
        const std::vector<int16_t> z = Heights();
        vtkNew<vtkPoints> points;
        points->SetNumberOfPoints(sampleCount);
        vtkNew<vtkCellArray> lines;
        for (vtkIdType i = 0; i < sampleCount; ++i)
        {
            const int16_t height = z[static_cast<size_t>(i)];
            points->SetPoint(i, static_cast<double>(i) * 0.01, 5.0, height * 0.001);
            if (i > 0 && height != -32768 && z[static_cast<size_t>(i) - 1] != -32768)
            {
                vtkNew<vtkLine> line;
                line->GetPointIds()->SetId(0, i - 1);
                line->GetPointIds()->SetId(1, i);
                lines->InsertNextCell(line);
            }
        }
        vtkNew<vtkPolyData> polyData;
        polyData->SetPoints(points);
        polyData->SetLines(lines);
        benchmark::DoNotOptimize(polyData.Get());
    }
    ReportSamples(state);
}

// A sample of a built profile: its raw value, three floats, two indices and an offset.
void CopyOfAsManyBytes(benchmark::State& state)
{
    constexpr size_t bytes = sampleCount * (sizeof(int16_t) + 6 * sizeof(int32_t));
    const std::vector<char> source(bytes, 1);
    for (auto _ : state)
    {
        const auto target = std::make_unique_for_overwrite<char[]>(bytes);
        std::memcpy(target.get(), source.data(), bytes);
        benchmark::DoNotOptimize(target.get());
        benchmark::ClobberMemory();
    }
    ReportSamples(state);
}
} // namespace

BENCHMARK(UniformProfile)->Unit(benchmark::kMillisecond);
BENCHMARK(NonUniformProfile)->Unit(benchmark::kMillisecond);
BENCHMARK(PlainProfile)->Unit(benchmark::kMillisecond);
BENCHMARK(CopyOfAsManyBytes)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
