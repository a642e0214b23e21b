#include "measurement/HeightRange.h"

#include "Tarvex.h"

#include <gtest/gtest.h>

#include <limits>
#include <random>
#include <vector>

namespace
{
std::pair<int, int> Range(const std::vector<int16_t>& heights, double clipPercent)
{
    HeightRange range;
    EXPECT_EQ(FindHeightRange(heights.data(), heights.size(), clipPercent, range), STATUS_OK);
    return {range.Minimum, range.Maximum};
}

// The clipped range as it is defined, without a thought for speed.
std::pair<int, int> Defined(const std::vector<int16_t>& heights, double clipPercent)
{
    std::vector<int> valid;
    for (const int16_t height : heights)
    {
        if (height != -32768)
        {
            valid.push_back(height);
        }
    }
    const int base = *std::min_element(valid.begin(), valid.end());
    const int top = *std::max_element(valid.begin(), valid.end());
    const auto bound = [&](double most)
    {
        int greatest = base;
        for (int height = base; height <= top; ++height)
        {
            const auto sum = std::count_if(valid.begin(), valid.end(),
                                           [&](int other) { return other <= height; });
            greatest = static_cast<double>(sum) <= std::trunc(most) ? height : greatest;
        }
        return greatest;
    };
    const double count = static_cast<double>(valid.size());
    return {bound(count * (clipPercent / 100.0)), bound((1.0 - clipPercent / 100.0) * count)};
}
} // namespace

TEST(HeightRange, IgnoresMissingSamples)
{
    EXPECT_EQ(Range({-32768, 5, -32768, -7, 3}, 0.0), std::pair(-7, 5));
    EXPECT_EQ(Range({-32767, 32767}, 0.0), std::pair(-32767, 32767));
    // More missing samples than fit into 16 bits, at every place of a block.
    std::vector<int16_t> mostlyMissing(200001, -32768);
    mostlyMissing[131072] = 42;
    EXPECT_EQ(Range(mostlyMissing, 0.0), std::pair(42, 42));
}

TEST(HeightRange, IsBadWithoutAValidSample)
{
    const std::vector<int16_t> heights(65536, -32768);
    HeightRange range{1, 2};
    EXPECT_EQ(FindHeightRange(heights.data(), heights.size(), 10.0, range), STATUS_BAD_COUNT);
    EXPECT_EQ(range.Minimum, 32767);
    EXPECT_EQ(range.Maximum, -32768);
}

TEST(HeightRange, IsClippedAtBothEnds)
{
    std::vector<int16_t> heights;
    for (int16_t height = 1; height <= 100; ++height)
    {
        heights.push_back(height);
    }
    EXPECT_EQ(Range(heights, 10.0), std::pair(10, 90));
    EXPECT_EQ(Range(heights, 45.0), std::pair(45, 55));
    // Too few samples for the percentage: the lower bound stays.
    EXPECT_EQ(Range({-5, 0, 9}, 1.0), std::pair(-5, 8));
    EXPECT_EQ(Range({3, 3, 3}, 20.0), std::pair(3, 3));
    EXPECT_EQ(Range(heights, std::numeric_limits<double>::quiet_NaN()), std::pair(1, 100));

    std::mt19937 random(3);
    for (int round = 0; round < 20; ++round)
    {
        std::vector<int16_t> some(50 + random() % 50);
        for (int16_t& height : some)
        {
            height = random() % 5 == 0 ? int16_t{-32768}
                                       : static_cast<int16_t>(static_cast<int>(random() % 40) - 20);
        }
        const double percent = static_cast<double>(random() % 46);
        EXPECT_EQ(Range(some, percent), Defined(some, percent == 0.0 ? 0.0 : percent)) << percent;
    }
}
