#include "frame/NumberTest.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double nan = std::numeric_limits<double>::quiet_NaN();

TEST(IsValidNumber, RefusesTheMarkersAndNothingBesideThem)
{
    for (const double marker : {DBL_MIN, DBL_MAX, -DBL_MAX})
    {
        EXPECT_FALSE(IsValidNumber(marker)) << marker;
        EXPECT_TRUE(IsValidNumber(std::nextafter(marker, -infinity))) << marker;
        EXPECT_TRUE(IsValidNumber(std::nextafter(marker, infinity))) << marker;
    }
    EXPECT_FALSE(IsValidNumber(nan));
    EXPECT_FALSE(IsValidNumber(-nan));
    for (const double usable : {0.0, -0.0, -DBL_MIN, infinity, -infinity, 9223372036854.5})
    {
        EXPECT_TRUE(IsValidNumber(usable)) << usable;
    }
}

TEST(IsValidNumber, RefusesTheBandBetweenItsTwoGoodEnds)
{
    constexpr double start = -9223372036855.0;
    constexpr double end = -9223372036854.0;
    EXPECT_TRUE(IsValidNumber(start));
    EXPECT_FALSE(IsValidNumber(std::nextafter(start, end)));
    EXPECT_FALSE(IsValidNumber(-9223372036854.5));
    EXPECT_FALSE(IsValidNumber(std::nextafter(end, start)));
    EXPECT_TRUE(IsValidNumber(end));
}

TEST(AreDrawable, StopsShortOfWhatAFloatCannotHold)
{
    EXPECT_TRUE(AreDrawable({0.0, 1e30, -1e30}));
    for (const double value : {1.1e30, -1e39, infinity, -infinity, nan})
    {
        EXPECT_FALSE(AreDrawable({value, 0.0})) << value;
        EXPECT_FALSE(AreDrawable({0.0, value})) << value;
    }
}
} // namespace
