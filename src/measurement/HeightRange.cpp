#include "measurement/HeightRange.h"

#include "Tarvex.h"

#include <vector>

namespace
{
// Takes low and high end off. The ends are positions in the sorted heights; the range that is left
// begins and ends with the last height that still lies wholly below its end.
void Clip(const int16_t* heights, size_t count, size_t validCount, double clipPercent,
          HeightRange& range)
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
    const auto valid = static_cast<double>(validCount);
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
    // missing sample is the lowest number there is, so the maximum needs no test.
    int16_t minimum = std::numeric_limits<int16_t>::max();
    int16_t maximum = InvalidHeight;
    size_t missing = 0;
    constexpr size_t blockSize = 32768; // as many as a 16-bit counter can count
    for (size_t begin = 0; begin < count; begin += blockSize)
    {
        const size_t end = std::min(count, begin + blockSize);
        uint16_t missingHere = 0;
        for (size_t i = begin; i < end; ++i)
        {
            const int16_t height = heights[i];
            const bool isMissing = height == InvalidHeight;
            missingHere = static_cast<uint16_t>(missingHere + isMissing);
            minimum = std::min(minimum, isMissing ? std::numeric_limits<int16_t>::max() : height);
            maximum = std::max(maximum, height);
        }
        missing += missingHere;
    }

    range = HeightRange{};
    if (missing == count)
    {
        return STATUS_BAD_COUNT;
    }
    range = HeightRange{minimum, maximum};
    if (clipPercent > 0.0)
    {
        Clip(heights, count, count - missing, clipPercent, range);
    }
    return STATUS_OK;
}

HeightRange FindRangeWhereValid(const int16_t* values, const int16_t* heights, size_t count)
{
    // Without branches, as above.
    constexpr HeightRange none;
    int16_t minimum = none.Minimum;
    int16_t maximum = none.Maximum;
    for (size_t i = 0; i < count; ++i)
    {
        const bool isMissing = heights[i] == InvalidHeight;
        minimum = std::min(minimum, isMissing ? none.Minimum : values[i]);
        maximum = std::max(maximum, isMissing ? none.Maximum : values[i]);
    }
    return {minimum, maximum};
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
