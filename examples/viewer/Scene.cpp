#include "Scene.h"

#include "Intensity.h"
#include "Options.h"
#include "StopWatch.h"

#include <array>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <stdexcept>

namespace
{
void Print(const Scene& scene)
{
    const HeightMap& map = scene.Map;
    const HeightStatistics& statistics = scene.Statistics;
    const size_t samples = map.Samples.size();
    const char* unit = map.Unit.c_str();
    std::printf("  columns %d, rows %d%s\n", map.Columns, map.Rows,
                map.HasFreePositions() ? ", free positions" : "");
    std::printf("  missing %zu (%.2f %%)\n", statistics.MissingSamples,
                100.0 * static_cast<double>(statistics.MissingSamples) /
                    static_cast<double>(samples));
    std::printf("  lowest %g %s (count %d), highest %g %s (count %d)\n",
                map.Height(statistics.Lowest), unit, statistics.Lowest,
                map.Height(statistics.Highest), unit, statistics.Highest);
    const Extent extent = DescribeExtent(map);
    std::printf("  x %g to %g %s, y %g to %g %s, heights shown %g times\n", extent.XMin,
                extent.XMax, unit, extent.YMin, extent.YMax, unit, scene.Look.Surface.Exaggeration);
}

// What the scales of the view can't say: the unit, and that heights are drawn larger.
std::string MakeTitle(const std::string& file, const HeightMap& map, double exaggeration)
{
    std::string title = std::filesystem::path(file).filename().string() + " - " + map.Unit;
    if (exaggeration != 1.0)
    {
        std::array<char, 32> factor{};
        std::snprintf(factor.data(), factor.size(), "%g", exaggeration);
        title += std::string(", heights times ") + factor.data();
    }
    return title;
}

void RequireFit(const HeightMap& map, double exaggeration, const Options& options)
{
    const ColorRange& range = options.Look.Surface.Range;
    // The least that the library tells apart.
    if (range.Fixed && (range.Max - range.Min) * exaggeration <= 0.001)
    {
        throw std::runtime_error("--range: MIN and MAX are too near to each other");
    }
    if (map.IsProfile() && (options.Live || options.Scene == SceneKind::Charts))
    {
        throw std::runtime_error(options.Live ? "--live: a surface is wanted, no single profile"
                                              : "--scene: a chart scene needs a surface");
    }
    if (options.Line && *options.Line >= map.Rows)
    {
        throw std::runtime_error("--line: the file has rows 0 to " + std::to_string(map.Rows - 1));
    }
}
} // namespace

Scene LoadScene(const std::string& file, const Options& options)
{
    const StopWatch watch;
    Scene scene;
    scene.Map = LoadHeightMap(file, options.Load);
    if (!options.Intensity.empty())
    {
        LoadIntensity(options.Intensity, scene.Map);
    }
    ChooseUnit(scene.Map);
    scene.Statistics = DescribeHeights(scene.Map);
    scene.Look = options.Look;
    scene.Look.Surface.Exaggeration =
        options.Exaggeration.value_or(ChooseExaggeration(scene.Map, scene.Statistics));
    RequireFit(scene.Map, scene.Look.Surface.Exaggeration, options);
    // A chart draws heights as they are.
    scene.Title =
        MakeTitle(file, scene.Map,
                  options.Scene == SceneKind::Charts ? 1.0 : scene.Look.Surface.Exaggeration);
    if (options.Print)
    {
        std::printf("%s\n", file.c_str());
        Print(scene);
        std::printf("  read in %.0f ms\n", 1000.0 * watch.Seconds());
    }
    return scene;
}
