#pragma once

#include "GreyPicture.h"

#include <cstdint>
#include <filesystem>
#include <optional>
#include <string>
#include <vector>

// One measured surface, on a regular grid or with free positions; of one row: a measured profile.
// Row 0 is the row that lies at the top of a picture or at the northern edge of a map; column 0 is
// on the left or in the west.
struct HeightMap
{
    // The marker of a missing sample, whatever marker the file uses.
    static constexpr int16_t Missing = -32768;

    int32_t Columns = 0;
    int32_t Rows = 0;
    std::vector<int16_t> Samples;
    std::vector<int16_t> XSamples; // positions, one per sample; empty on a regular grid
    std::vector<int16_t> YSamples;
    double XScale = 1.0; // distance of neighbouring columns or, with free positions, of one count
    double YScale = 1.0; // distance of neighbouring rows or of one count; all scales are in Unit
    double ZScale = 1.0; // height of one count
    double XOffset = 0.0;
    double YOffset = 0.0;
    double ZOffset = 0.0;
    std::string Unit;
    std::vector<uint8_t> Intensities; // empty, or one per sample

    bool IsProfile() const { return Rows == 1; }
    bool HasFreePositions() const { return !XSamples.empty(); }

    double Height(int16_t raw) const { return raw * ZScale + ZOffset; }

    // Position of the sample at an index into Samples.
    double X(size_t index) const
    {
        const auto column = static_cast<double>(index % static_cast<size_t>(Columns));
        return (HasFreePositions() ? XSamples[index] : column) * XScale + XOffset;
    }
    double Y(size_t index) const
    {
        const auto row = static_cast<double>(index / static_cast<size_t>(Columns));
        return (HasFreePositions() ? YSamples[index] : row) * YScale + YOffset;
    }
};

// Where the samples of a map lie; with free positions: the valid ones.
struct Extent
{
    double XMin = 0.0;
    double XMax = 0.0;
    double YMin = 0.0;
    double YMax = 0.0;

    double Width() const { return XMax - XMin; }
    double Depth() const { return YMax - YMin; }
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

// Reads .hgt elevation tiles, .i16 grids with their .txt sidecar (free positions when the name ends
// in _x.i16), and grey PNG height pictures.
// Throws std::runtime_error with the file's name and what is wrong with it.
HeightMap LoadHeightMap(const std::filesystem::path& path, const LoadOptions& options);

// A length in the first unit times this is the length in the second; 1 for what is no length unit.
double LengthFactor(const std::string& from, const std::string& to);

// The same data in a length unit in which the longer side has a handy number of units.
void ChooseUnit(HeightMap& map);

Extent DescribeExtent(const HeightMap& map);

// Needs at least one valid sample, which LoadHeightMap sees to.
HeightStatistics DescribeHeights(const HeightMap& map);

// A round factor (1, 2, 5, 10, 20 ...) that makes the relief of a flat surface visible.
double ChooseExaggeration(const HeightMap& map, const HeightStatistics& statistics);
