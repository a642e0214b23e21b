// The samples of a surface whose positions are free, but keep the neighbourhood of a grid.
#pragma once

#include "measurement/HeightRange.h"
#include "measurement/SurfaceGrid.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <limits>
#include <memory>

// As UniformSamples, see there. Z alone decides which samples are missing.
struct NonUniformSamples
{
    static constexpr int32_t Type = 1;
    static constexpr float MissingZ = -std::numeric_limits<float>::quiet_NaN();

    // Borrowed from the host for the time of a call.
    struct Source
    {
        const int16_t* X = nullptr;
        const int16_t* Y = nullptr;
        const int16_t* Z = nullptr;

        bool IsComplete() const { return X && Y && Z; }
    };

    std::shared_ptr<const int16_t[]> X;
    std::shared_ptr<const int16_t[]> Y;
    std::shared_ptr<const int16_t[]> Heights;
    // Of the valid samples, raw.
    HeightRange XRange = {};
    HeightRange YRange = {};

    // Throws std::bad_alloc.
    static NonUniformSamples CopyOf(const Source& source, const SurfaceGrid& grid)
    {
        const auto count = static_cast<size_t>(grid.GetCount());
        const auto copy = [count](const int16_t* values)
        {
            auto held = std::make_shared_for_overwrite<int16_t[]>(count);
            std::copy_n(values, count, held.get());
            return held;
        };
        return {copy(source.X), copy(source.Y), copy(source.Z),
                FindRangeWhereValid(source.X, source.Z, count),
                FindRangeWhereValid(source.Y, source.Z, count)};
    }

    // The extent in the plane: xmin, xmax, ymin, ymax.
    std::array<double, 4> GetExtent(const SurfaceGrid& grid) const
    {
        return {grid.Place(0, XRange.Minimum), grid.Place(0, XRange.Maximum),
                grid.Place(1, YRange.Minimum), grid.Place(1, YRange.Maximum)};
    }

    // Writes the points of one row after another.
    class RowWriter
    {
    public:
        RowWriter(const NonUniformSamples& samples, const SurfaceGrid& grid)
            : Samples(samples), Grid(grid)
        {
        }
        void operator()(int32_t row, float* point) const
        {
            const auto columns = static_cast<size_t>(Grid.Columns);
            const size_t begin = static_cast<size_t>(row) * columns;
            const int16_t* x = Samples.X.get() + begin;
            const int16_t* y = Samples.Y.get() + begin;
            const int16_t* z = Samples.Heights.get() + begin;
            const SurfaceGrid grid = Grid;
            for (size_t column = 0; column < columns; ++column)
            {
                const auto height = static_cast<float>(grid.Place(2, z[column]));
                const uint32_t missing = 0U - static_cast<uint32_t>(z[column] == InvalidHeight);
                point[3 * column] = static_cast<float>(grid.Place(0, x[column]));
                point[3 * column + 1] = static_cast<float>(grid.Place(1, y[column]));
                point[3 * column + 2] =
                    std::bit_cast<float>((std::bit_cast<uint32_t>(height) & ~missing) |
                                         (std::bit_cast<uint32_t>(MissingZ) & missing));
            }
        }

    private:
        const NonUniformSamples& Samples;
        const SurfaceGrid& Grid;
    };

    // Extends the box by the samples `first` to `last` of a row, all valid.
    void Extend(RawBox& box, const SurfaceGrid& grid, int32_t row, int32_t first,
                int32_t last) const
    {
        const size_t begin = static_cast<size_t>(row) * static_cast<size_t>(grid.Columns) +
                             static_cast<size_t>(first);
        const auto count = static_cast<size_t>(int64_t{last} - first + 1);
        const int16_t* const axes[] = {&X[begin], &Y[begin], &Heights[begin]};
        for (size_t axis = 0; axis < 3; ++axis)
        {
            const HeightRange range = FindRangeOfValid(axes[axis], count);
            box.Include(axis, range.Minimum, range.Maximum);
        }
    }

    // Isolated samples are drawn as quads of the mean size of a cell; without a cell, ten raw units
    // wide. The mean is of signed distances, so a grid that folds back gives thin quads.
    std::array<double, 2> GetQuadHalfSize(const SurfaceGrid& grid) const
    {
        double sumX = 0.0;
        double sumY = 0.0;
        int64_t cells = 0;
        const auto columns = static_cast<size_t>(grid.Columns);
        for (size_t row = 0; row + 1 < static_cast<size_t>(grid.Rows); ++row)
        {
            for (size_t i = row * columns; i + 1 < (row + 1) * columns; ++i)
            {
                const bool full = Heights[i] != InvalidHeight && Heights[i + 1] != InvalidHeight &&
                                  Heights[i + columns] != InvalidHeight &&
                                  Heights[i + columns + 1] != InvalidHeight;
                if (full)
                {
                    sumX += X[i + 1] - X[i];
                    sumY += Y[i + columns] - Y[i];
                    ++cells;
                }
            }
        }
        const double width = cells > 0 ? std::abs(sumX) / static_cast<double>(cells) : 10.0;
        const double height = cells > 0 ? std::abs(sumY) / static_cast<double>(cells) : 10.0;
        return {width * grid.Scale[0] * 0.5, height * grid.Scale[1] * 0.5};
    }
    // In single precision, unlike the uniform surface.
    static float Shift(float position, double distance)
    {
        return position + static_cast<float>(distance);
    }
};
