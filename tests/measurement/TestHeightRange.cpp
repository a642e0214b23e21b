#include "measurement/HeightRange.h"

#include "Tarvex.h"

#include <gtest/gtest.h>

#include <limits>
#include <numeric>
#include <vector>

namespace
{
std::pair<int, int> Range(const std::vector<int16_t>& heights, double clipPercent)
{
    HeightRange range;
    EXPECT_EQ(FindHeightRange(heights.data(), heights.size(), clipPercent, range), STATUS_OK);
    return {range.Minimum, range.Maximum};
}
} // namespace

TEST(HeightRange, IgnoresMissingSamplesAndIsClippedAtBothEnds)
{
    EXPECT_EQ(Range({-32768, 5, -32768, -7, 3}, 0.0), std::pair(-7, 5));
    EXPECT_EQ(Range({-32767, 32767}, 0.0), std::pair(-32767, 32767));
    // More missing samples than fit into 16 bits.
    std::vector<int16_t> mostlyMissing(200001, -32768);
    mostlyMissing[131072] = 42;
    EXPECT_EQ(Range(mostlyMissing, 0.0), std::pair(42, 42));

    std::vector<int16_t> heights(100);
    std::iota(heights.begin(), heights.end(), int16_t{1});
    EXPECT_EQ(Range(heights, 10.0), std::pair(10, 90));
    EXPECT_EQ(Range(heights, 45.0), std::pair(45, 55));
    EXPECT_EQ(Range(heights, std::numeric_limits<double>::quiet_NaN()), std::pair(1, 100));
    // Too few samples for the percentage: the lower bound stays.
    EXPECT_EQ(Range({-5, 0, 9}, 1.0), std::pair(-5, 8));
    EXPECT_EQ(Range({3, 3, 3}, 20.0), std::pair(3, 3));
    // Between two occupied heights the bound lies at the last one before the next.
    EXPECT_EQ(Range({-7, -7, -32768, 4, 4, 4, 4, 4, 4, 11, 20}, 20.0), std::pair(3, 10));
}
