// The samples of a height map on a regular grid.
#pragma once

#include "measurement/HeightRange.h"
#include "measurement/SurfaceGrid.h"

#include <algorithm>
#include <memory>
#include <vector>

// What distinguishes one kind of surface from another: which arrays it holds and where a sample of
// them lies. Everything else is written once, for any such struct. The arrays are never written
// again after they were filled, so that the picture can share them.
struct UniformSamples
{
    static constexpr int32_t Type = 0;
    // Where missing samples lie; nothing refers to them.
    static constexpr float MissingZ = -10000.0F;

    // Borrowed from the host for the time of a call.
    struct Source
    {
        const int16_t* Heights = nullptr;

        bool IsComplete() const { return Heights != nullptr; }
    };

    // The heights decide which samples are missing, and colour the surface.
    std::shared_ptr<const int16_t[]> Heights;

    // Throws std::bad_alloc.
    static UniformSamples CopyOf(const Source& source, const SurfaceGrid& grid)
    {
        const auto count = static_cast<size_t>(grid.GetCount());
        auto heights = std::make_shared_for_overwrite<int16_t[]>(count);
        std::copy_n(source.Heights, count, heights.get());
        return {std::move(heights)};
    }

    // The extent in the plane: xmin, xmax, ymin, ymax. The last column and row are as wide as the
    // others, so this reaches one pitch beyond the last sample.
    static std::array<double, 4> GetExtent(const SurfaceGrid& grid)
    {
        return {grid.Offset[0], grid.Place(0, grid.Columns), grid.Offset[1],
                grid.Place(1, grid.Rows)};
    }

    // Writes the points of one row after another.
    class RowWriter
    {
    public:
        RowWriter(const UniformSamples& samples, const SurfaceGrid& grid)
            : Heights(samples.Heights.get()), Grid(grid), X(static_cast<size_t>(grid.Columns))
        {
            for (int32_t column = 0; column < grid.Columns; ++column)
            {
                X[static_cast<size_t>(column)] = static_cast<float>(grid.Place(0, column));
            }
        }
        void operator()(int32_t row, float* point) const
        {
            const auto y = static_cast<float>(Grid.Place(1, row));
            const int16_t* height = Heights + static_cast<size_t>(row) * X.size();
            for (const float x : X)
            {
                point[0] = x;
                point[1] = y;
                point[2] = *height == InvalidHeight ? MissingZ
                                                    : static_cast<float>(Grid.Place(2, *height));
                point += 3;
                ++height;
            }
        }

    private:
        const int16_t* Heights;
        const SurfaceGrid& Grid;
        std::vector<float> X;
    };

    // Extends the box by the samples `first` to `last` of a row, all valid.
    void Extend(RawBox& box, const SurfaceGrid& grid, int32_t row, int32_t first,
                int32_t last) const
    {
        const HeightRange range =
            FindRangeOfValid(&Heights[static_cast<size_t>(row) * static_cast<size_t>(grid.Columns) +
                                      static_cast<size_t>(first)],
                             static_cast<size_t>(int64_t{last} - first + 1));
        box.Include(0, first, last);
        box.Include(1, row, row);
        box.Include(2, range.Minimum, range.Maximum);
    }

    // Isolated samples are drawn as quads as large as a cell.
    std::array<double, 2> GetQuadHalfSize(const SurfaceGrid& grid) const
    {
        return {grid.Scale[0] * 0.5, grid.Scale[1] * 0.5};
    }
    static float Shift(float position, double distance)
    {
        return static_cast<float>(position + distance);
    }
};
