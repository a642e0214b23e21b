// The range of heights that a surface is coloured over.
#pragma once

#include "measurement/SurfaceGrid.h"

#include <cstddef>
#include <cstdint>

struct HeightRange
{
    // As they stand while no valid sample is known.
    int16_t Minimum = std::numeric_limits<int16_t>::max();
    int16_t Maximum = InvalidHeight;
};

// Lowest and highest valid height; with a clip percentage above 0, the range without that share of
// the valid samples at each end. STATUS_BAD_COUNT, and the range of the initialiser, without a
// valid sample. Throws std::bad_alloc.
int32_t FindHeightRange(const int16_t* heights, size_t count, double clipPercent,
                        HeightRange& range);

// Lowest and highest of the values whose heights are valid; the range of the initialiser if none
// is.
HeightRange FindRangeWhereValid(const int16_t* values, const int16_t* heights, size_t count);

// Makes room above and below a range that is flat beside the extent of the data in the plane, so
// that a scale frame around it can be read.
void WidenFlatRange(double extent, double* lowest, double* highest);

// Lowest and highest of a few neighbouring heights, all valid. At least one.
inline HeightRange FindRangeOfValid(const int16_t* heights, size_t count)
{
    HeightRange range{heights[0], heights[0]};
    for (size_t i = 1; i < count; ++i)
    {
        range.Minimum = std::min(range.Minimum, heights[i]);
        range.Maximum = std::max(range.Maximum, heights[i]);
    }
    return range;
}
