#pragma once

#include "GreyPicture.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// One measured surface on a regular grid. Row 0 is the row that lies at the top of a picture or at
// the northern edge of a map; column 0 is on the left or in the west.
struct HeightMap
{
    // The marker of a missing sample, whatever marker the file uses.
    static constexpr int16_t Missing = -32768;

    int32_t Columns = 0;
    int32_t Rows = 0;
    std::vector<int16_t> Samples;
    double XScale = 1.0; // distance of neighbouring columns, in Unit
    double YScale = 1.0; // distance of neighbouring rows, in Unit
    double ZScale = 1.0; // height of one count, in Unit
    double ZOffset = 0.0;
    std::string Unit;
    std::vector<uint8_t> Intensities; // empty, or one per sample

    double Height(int16_t raw) const { return raw * ZScale + ZOffset; }
};

// What a caller may say about a file beyond what the file itself tells.
struct LoadOptions
{
    std::optional<double> XScale;
    std::optional<double> YScale;
    std::optional<double> ZScale;
    std::optional<std::string> Unit;
    std::optional<int32_t> MissingCount = 0; // in pictures; empty: every count is a height
    double TrimPercent = 0.0; // share of the valid samples to drop at each end as outliers
};

// Positions and numbers that describe the valid samples.
struct HeightStatistics
{
    size_t MissingSamples = 0;
    int16_t Lowest = 0;
    int16_t Highest = 0;
    size_t LowestIndex = 0;
    size_t HighestIndex = 0;
};

// Reads .hgt elevation tiles, .i16 grids with their .txt sidecar, and grey PNG height pictures.
// Throws std::runtime_error with the file's name and what is wrong with it.
HeightMap LoadHeightMap(const std::filesystem::path& path, const LoadOptions& options);

// The same data in a length unit in which the longer side has a handy number of units.
void ChooseUnit(HeightMap& map);

// Needs at least one valid sample, which LoadHeightMap sees to.
HeightStatistics DescribeHeights(const HeightMap& map);

// A round factor (1, 2, 5, 10, 20 ...) that makes the relief of a flat surface visible.
double ChooseExaggeration(const HeightMap& map, const HeightStatistics& statistics);
