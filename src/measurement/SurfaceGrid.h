// What is common to all measured surfaces: the grid of samples, where a sample lies, and boxes
// around what is drawn.
#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <limits>

// The height of a missing sample.
constexpr int16_t InvalidHeight = std::numeric_limits<int16_t>::min();

// Samples are stored row by row. A raw coordinate times the scale of its axis plus the offset is a
// position in scene units.
struct SurfaceGrid
{
    int32_t Columns = 0;
    int32_t Rows = 0;
    std::array<double, 3> Scale = {1.0, 1.0, 1.0};
    std::array<double, 3> Offset = {0.0, 0.0, 0.0};

    int64_t GetCount() const { return int64_t{Columns} * Rows; }
    double Place(size_t axis, double raw) const { return raw * Scale[axis] + Offset[axis]; }
};

// More points than this do not fit into one vertex buffer of VTK, which counts its bytes with 32
// bits at three floats a point. It also keeps every index of a mesh within 31 bits.
constexpr int64_t MaxSurfacePoints = std::numeric_limits<uint32_t>::max() / (3 * sizeof(float));

// A box in raw coordinates.
struct RawBox
{
    std::array<int32_t, 3> Lowest;
    std::array<int32_t, 3> Highest;

    RawBox()
    {
        Lowest.fill(std::numeric_limits<int32_t>::max());
        Highest.fill(std::numeric_limits<int32_t>::min());
    }
    bool IsEmpty() const { return Lowest[0] > Highest[0]; }
    void Include(size_t axis, int32_t lowest, int32_t highest)
    {
        Lowest[axis] = std::min(Lowest[axis], lowest);
        Highest[axis] = std::max(Highest[axis], highest);
    }
};

// A box in scene units, after the rounding of points to single precision: xmin, xmax, ymin, ...
struct SurfaceBox
{
    std::array<double, 6> Bounds = {1.0, -1.0, 1.0, -1.0, 1.0, -1.0};

    SurfaceBox() = default;
    SurfaceBox(const SurfaceGrid& grid, const RawBox& raw)
    {
        for (size_t axis = 0; axis < 3; ++axis)
        {
            Bounds[2 * axis] = static_cast<float>(grid.Place(axis, raw.Lowest[axis]));
            Bounds[2 * axis + 1] = static_cast<float>(grid.Place(axis, raw.Highest[axis]));
        }
    }

    bool IsEmpty() const { return Bounds[0] > Bounds[1]; }
    void Include(const SurfaceBox& other)
    {
        if (IsEmpty())
        {
            *this = other;
            return;
        }
        for (size_t axis = 0; axis < 3; ++axis)
        {
            double& lowest = Bounds[2 * axis];
            double& highest = Bounds[2 * axis + 1];
            // In this form a NaN on either side ends up in the box and stays there.
            lowest = std::isnan(lowest) || lowest <= other.Bounds[2 * axis]
                         ? lowest
                         : other.Bounds[2 * axis];
            highest = std::isnan(highest) || highest >= other.Bounds[2 * axis + 1]
                          ? highest
                          : other.Bounds[2 * axis + 1];
        }
    }
    // Anything further out, infinite or undefined would ruin the camera that has to frame it.
    bool IsUsable() const
    {
        return std::all_of(Bounds.begin(), Bounds.end(),
                           [](double bound) { return std::abs(bound) <= 1e30; });
    }
};
