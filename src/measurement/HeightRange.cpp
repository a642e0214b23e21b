#include "measurement/HeightRange.h"

#include "Tarvex.h"

#include <vector>

namespace
{
// Takes low and high end off. The ends are positions in the sorted heights; the range that is left
// begins and ends with the last height that still lies wholly below its end.
void Clip(const int16_t* heights, size_t count, double clipPercent, HeightRange& range)
{
    const int32_t base = range.Minimum;
    std::vector<uint32_t> sums(static_cast<size_t>(range.Maximum - base + 1));
    for (size_t i = 0; i < count; ++i)
    {
        if (heights[i] != InvalidHeight)
        {
            ++sums[static_cast<size_t>(heights[i] - base)];
        }
    }
    for (size_t i = 1; i < sums.size(); ++i)
    {
        sums[i] += sums[i - 1];
    }

    const double share = clipPercent / 100.0;
    const double valid = sums.back();
    const auto lastAtMost = [&](double end)
    {
        const auto past = std::upper_bound(sums.begin(), sums.end(), static_cast<uint32_t>(end));
        return past == sums.begin() ? 0 : static_cast<int32_t>(past - sums.begin()) - 1;
    };
    range.Minimum = static_cast<int16_t>(base + lastAtMost(valid * share));
    range.Maximum = static_cast<int16_t>(base + lastAtMost((1.0 - share) * valid));
}
} // namespace

int32_t FindHeightRange(const int16_t* heights, size_t count, double clipPercent,
                        HeightRange& range)
{
    // Without branches, so that the compiler can take many samples at a time. The marker of a
    // missing sample is the lowest number there is: it wins no maximum, and taken down by one it
    // becomes the highest and wins no minimum.
    int16_t lowestLessOne = std::numeric_limits<int16_t>::max();
    int16_t highest = InvalidHeight;
    for (size_t i = 0; i < count; ++i)
    {
        lowestLessOne = std::min(lowestLessOne, static_cast<int16_t>(heights[i] - 1));
        highest = std::max(highest, heights[i]);
    }

    range = HeightRange{};
    if (highest == InvalidHeight)
    {
        return STATUS_BAD_COUNT;
    }
    range = HeightRange{static_cast<int16_t>(lowestLessOne + 1), highest};
    if (clipPercent > 0.0)
    {
        Clip(heights, count, clipPercent, range);
    }
    return STATUS_OK;
}

HeightRange FindRangeWhereValid(const int16_t* values, const int16_t* heights, size_t count)
{
    // Without branches, as above.
    HeightRange range;
    int16_t lowest = range.Minimum;
    int16_t highest = range.Maximum;
    for (size_t i = 0; i < count; ++i)
    {
        // All bits set for a missing sample.
        const auto missing = static_cast<int16_t>(-static_cast<int>(heights[i] == InvalidHeight));
        const auto noMinimum = static_cast<int16_t>(missing & range.Minimum);
        const auto noMaximum = static_cast<int16_t>(missing & range.Maximum);
        const auto valid = static_cast<int16_t>(values[i] & ~missing);
        lowest = std::min(lowest, static_cast<int16_t>(valid | noMinimum));
        highest = std::max(highest, static_cast<int16_t>(valid | noMaximum));
    }
    return {lowest, highest};
}

void WidenFlatRange(double extent, double* lowest, double* highest)
{
    if (extent * 0.3 > *highest - *lowest)
    {
        // The second mean is that of the lowered minimum: hosts know the lopsided frame.
        *lowest = (*lowest + *highest) * 0.5 - extent * 0.15;
        *highest = (*lowest + *highest) * 0.5 + extent * 0.15;
    }
}
