// The numbers of points and lines.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
class Points : public ViewFixture
{
protected:
    // x, y, z, size
    Numbers Get(int32_t point) const { return Read(Tarvex_Element_Point_GetValue, point); }
};

TEST_F(Points, KeepWhatTheyWereGivenExceptTooSmallASize)
{
    const int32_t point = AddPoint(1, 2, -3);
    EXPECT_EQ(Get(point), (Numbers{1, 2, -3, 0.3}));
    for (const double size : {5.0, 0.001, 0.0005})
    {
        EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, point, 4, -5, size, size), STATUS_OK);
        EXPECT_EQ(Get(point), (Numbers{4, -5, size, std::max(size, 0.001)}));
        EXPECT_TRUE(IsValid(point));
    }
}

TEST_F(Points, AreInvalidWithTheMarkersAndABandAndNothingBesideThem)
{
    constexpr double least = std::numeric_limits<double>::min();
    constexpr double start = -9223372036855.0; // of the band
    constexpr double end = -9223372036854.0;
    for (const double n : {NaN, least, Marker, -Marker, std::nextafter(start, 0), end - 0.5,
                           std::nextafter(end, start)})
    {
        EXPECT_FALSE(IsValid(AddPoint(n, 0, 0))) << n;
    }
    for (const double n :
         {0.0, -least, Infinity, -Infinity, start, end, -end - 0.5, std::nextafter(least, 0),
          std::nextafter(least, 1), std::nextafter(Marker, 0)})
    {
        EXPECT_TRUE(IsValid(AddPoint(n, 0, 0))) << n;
    }
}

TEST_F(Points, GiveBackUnusableNumbersToo)
{
    const int32_t point = AddPoint(0, 0, 0);
    for (size_t unusable = 0; unusable < 4; ++unusable)
    {
        Numbers values = {1, 2, 3, 4};
        EXPECT_EQ(Call(Tarvex_Element_Point_SetValue, point, values), STATUS_OK);
        EXPECT_TRUE(IsValid(point));
        values[unusable] = Marker;
        EXPECT_EQ(Call(Tarvex_Element_Point_SetValue, point, values), STATUS_OK);
        EXPECT_FALSE(IsValid(point)) << unusable;
        EXPECT_EQ(Get(point), values);
    }
}

class Lines : public ViewFixture
{
protected:
    // Two points in the world.
    Numbers Get(int32_t line) const { return Read(Tarvex_Element_Line_GetValue, line); }
    // Start and end.
    Numbers GetLength(int32_t line, int32_t status = STATUS_OK) const
    {
        return Read(Tarvex_Element_GetLength_Line, line, status);
    }
    int32_t Set(int32_t line, const Numbers& points) const
    {
        return Call(Tarvex_Element_Line_SetValue, line, points);
    }
    int32_t SetDrawLimit(int32_t line, const Numbers& box) const
    {
        return Call(Tarvex_Element_SetDrawLimit_Line, line, box);
    }

    const Numbers AlongX = {-50, 0, 0, 50, 0, 0}; // through the initial box
};

TEST_F(Lines, SpanTheBoxOrBesideItTheirDefaultLength)
{
    const int32_t line = AddLine(0, 0, 0, 5, 0, 0);
    EXPECT_EQ(Get(line), AlongX);
    EXPECT_EQ(GetLength(line), (Numbers{-10, 10}));
    EXPECT_EQ(Get(AddLine(0, 20, 100, 1, 0, 0)), (Numbers{-10, -20, 100, 10, -20, 100}));
    // A line takes a box thicker than 0.1 only, a view also thinner ones.
    for (const double extent : {0.1, 0.11})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 1, 0, extent, -1, 1), STATUS_OK);
        const double reach = extent > 0.1 ? 1 : 50;
        EXPECT_EQ(Get(AddLine(0, 0.05, 0, 1, 0, 0)), (Numbers{-reach, -0.05, 0, reach, -0.05, 0}));
    }
    EXPECT_EQ(GetLength(line), (Numbers{-1, 1})) << "follows the box of the view";
}

TEST_F(Lines, ThroughTwoPointsGiveBackTheirEndsInTheWorld)
{
    const int32_t line = AddLine(0, 0, 0, 0, 0, 1);
    EXPECT_EQ(Set(line, {1, 2, 3, 2, 2, 3}), STATUS_OK);
    EXPECT_EQ(Get(line), (Numbers{-50, -2, 3, 50, -2, 3}));
    EXPECT_EQ(GetLength(line), (Numbers{0, 1}));
    EXPECT_EQ(Set(line, {60, 1, 2, 60, 4, 6}), STATUS_OK) << "outside the box: as given";
    EXPECT_EQ(Get(line), (Numbers{60, -1, 2, 60, -4, 6}));
    EXPECT_EQ(GetLength(line), (Numbers{0, 5}));
}

TEST_F(Lines, AreInvalidWithoutADirection)
{
    for (const auto& [direction, valid] :
         {std::pair(0.0, false), {0.9e-6, false}, {1.1e-6, true}, {-1e300, true}})
    {
        EXPECT_EQ(IsValid(AddLine(1, 2, 3, 0, direction, 0)), valid) << direction;
    }
    // Two points may be closer than a direction may be short.
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    for (const auto& [distance, valid] : {std::pair(1e-10, false), {1.1e-9, true}})
    {
        EXPECT_EQ(Set(line, {0, 0, 0, 0, 0, distance}), STATUS_OK);
        EXPECT_EQ(IsValid(line), valid) << distance;
    }
}

TEST_F(Lines, KeepTheirLastEndsAndADrawLimitWhileInvalidButHaveNoLength)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(Set(line, {0, 0, 0, 0, 0, 0}), STATUS_OK);
    EXPECT_EQ(GetLength(line, STATUS_INVALID_VALUES), (Numbers{0, 0}));
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 1, 2), STATUS_INVALID_VALUES);
    EXPECT_EQ(Get(line), AlongX);
    EXPECT_EQ(Get(AddLine(0, 0, 0, 0, 0, 0)), (Numbers{0, 0, 0, 10, -10, 10})) << "never valid";
    EXPECT_EQ(SetDrawLimit(line, {-2, 7, -1, 1, -1, 1}), STATUS_OK);
    EXPECT_EQ(Set(line, {0, 0, 0, 1, 0, 0}), STATUS_OK);
    EXPECT_EQ(Get(line), (Numbers{-2, 0, 0, 7, 0, 0}));
}

TEST_F(Lines, TakeALengthInEitherOrderAndUnclipped)
{
    const int32_t line = AddLine(1, 0, 0, 0, 2, 0);
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 100, -5), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 3, 3 + 0.9e-9), STATUS_TOO_SMALL);
    EXPECT_EQ(GetLength(line), (Numbers{-5, 100}));
    EXPECT_EQ(Get(line), (Numbers{1, 5, 0, 1, -100, 0}));
}

TEST_F(Lines, AreCutByADrawLimitOfTheirOwn)
{
    // By direction, which may be steep: length and ends.
    const std::tuple<double, double, Numbers, Numbers> cases[] = {
        {1, 0, {-2, 7}, {-2, 0, 0, 7, 0, 0}},
        {-1, 0, {-7, 2}, {7, 0, 0, -2, 0, 0}},
        {1e-6, 1, {-1, 3}, {-1e-6, 1, 0, 3e-6, -3, 0}}};
    for (const auto& [x, y, length, ends] : cases)
    {
        const int32_t line = AddLine(0, 0, 0, x, y, 0);
        EXPECT_EQ(SetDrawLimit(line, {-2, 7, -1, 3, -1, 1}), STATUS_OK);
        EXPECT_THAT(GetLength(line), testing::Pointwise(testing::DoubleNear(1e-9), length));
        EXPECT_THAT(Get(line), testing::Pointwise(testing::DoubleNear(1e-9), ends));
    }
}

TEST_F(Lines, AreCutByTheInitialBoxIfTheyCrossIt)
{
    constexpr double at = 50.0 + 1e-11; // within the tolerance of a face, and beyond it
    constexpr double away = 50.0 + 1e-9;
    // Point and direction; the ends that are cut, in host coordinates, if any.
    const std::pair<Numbers, Numbers> cases[] = {
        {{1, 2, 3, 0, 0, 1}, {1, 2, -50, 1, 2, 50}},
        {{0, 0, 0, 1, 1, 1}, {-50, -50, -50, 50, 50, 50}},
        {{200, 10, 0, 1, 0, 0}, {-50, 10, 0, 50, 10, 0}},
        {{0, 0, 0, 1, 2, 0}, {-25, -50, 0, 25, 50, 0}},
        {{50, 40, 0, -1, 1, 0}, {50, 40, 0, 40, 50, 0}}, // across an edge
        {{0, 0, 0, 1, 1e-16, 0}, {-50, 0, 0, 50, 0, 0}},
        {{0, at, 0, 1, 0, 0}, {-50, at, 0, 50, at, 0}},    // in a face
        {{50, 50, 0, 0, 0, 1}, {50, 50, -50, 50, 50, 50}}, // along an edge
        {{0, away, 0, 1, 0, 0}, {}},
        {{50, 51, 0, 1, -1, 0}, {}},
        {{50, 50, 0, 1, -1, 0}, {}},   // touches an edge
        {{50, 50, 50, 1, 1, -2}, {}}}; // touches a corner
    for (const auto& [given, cut] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        Numbers expected = cut;
        for (size_t number = expected.size(); number < 6; ++number)
        {
            const double reach = number < 3 ? -10 : 10;
            const double length = std::hypot(given[3], given[4], given[5]);
            expected.push_back(given[number % 3] + reach * given[3 + number % 3] / length);
        }
        expected[1] *= -1;
        expected[4] *= -1;
        EXPECT_THAT(Get(Add(Tarvex_Element_Add_Line, given)),
                    testing::Pointwise(testing::DoubleNear(1e-9), expected));
    }
}

TEST_F(Lines, StayAsTheyAreWhenADrawLimitMissesThemOrIsTooThin)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(SetDrawLimit(line, {-2, 7, 5, 6, -1, 1}), STATUS_OK);
    EXPECT_EQ(SetDrawLimit(line, {-2, -2.05, -1, 1, -1, 1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, 0, 0.09, -1, 1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, -1, 1, 1, -1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Get(line), AlongX);
    EXPECT_EQ(GetLength(line), (Numbers{-10, 10}));
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, 0, 0.1, -1, 1}), STATUS_OK);
    EXPECT_EQ(Get(line), (Numbers{-2, 0, 0, 2, 0, 0}));
}
} // namespace
