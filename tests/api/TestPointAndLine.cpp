// The numbers of points and lines.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
using testing::DoubleNear;
using testing::Pointwise;
using Points = ViewFixture;

TEST_F(Points, KeepWhatTheyWereGivenExceptTooSmallASize)
{
    const int32_t point = AddPoint(1, 2, -3);
    const auto get = [&] { return Read(Tarvex_Element_Point_GetValue, point); };
    EXPECT_EQ(get(), (Numbers{1, 2, -3, 0.3}));
    for (const double size : {5.0, 0.001, 0.0005})
    {
        EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, point, 4, -5, size, size), STATUS_OK);
        EXPECT_EQ(get(), (Numbers{4, -5, size, std::max(size, 0.001)}));
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

using Lines = ViewFixture;

TEST_F(Lines, TellTheirEndsAndLengthAfterEachCall)
{
    const Export add = Tarvex_Element_Add_Line;
    const Export set = Tarvex_Element_Line_SetValue;
    const Export stretch = Tarvex_Element_SetLength_Line;
    const Export limit = Tarvex_Element_SetDrawLimit_Line;
    const Numbers alongX = {-50, 0, 0, 50, 0, 0}; // through the initial box
    const Numbers usual = {-10, 10};
    const Numbers none = {0, 0}; // of an invalid line
    // A call for a new line, then some for that one; its ends in the world, and its length.
    const std::tuple<const Export&, Numbers, int32_t, Numbers, Numbers> steps[] = {
        {add, {0, 20, 100, 1, 0, 0}, STATUS_OK, {-10, -20, 100, 10, -20, 100}, usual},
        {add, {0, 0, 0, 5, 0, 0}, STATUS_OK, alongX, usual},
        {set, {1, 2, 3, 2, 2, 3}, STATUS_OK, {-50, -2, 3, 50, -2, 3}, {0, 1}},
        {set, {60, 1, 2, 60, 4, 6}, STATUS_OK, {60, -1, 2, 60, -4, 6}, {0, 5}}, // beside the box
        {set, {0, 0, 0, 1, 0, 0}, STATUS_OK, alongX, {0, 1}},
        // Invalid it keeps its last ends and takes a limit.
        {set, {0, 0, 0, 0, 0, 0}, STATUS_OK, alongX, none},
        {stretch, {1, 2}, STATUS_INVALID_VALUES, alongX, none},
        {limit, {-2, 7, -1, 1, -1, 1}, STATUS_OK, alongX, none},
        {set, {0, 0, 0, 1, 0, 0}, STATUS_OK, {-2, 0, 0, 7, 0, 0}, {0, 1}},
        {add, {0, 0, 0, 0, 0, 0}, STATUS_OK, {0, 0, 0, 10, -10, 10}, none},
        {add, {1, 0, 0, 0, 2, 0}, STATUS_OK, {1, 50, 0, 1, -50, 0}, usual},
        {stretch, {100, -5}, STATUS_OK, {1, 5, 0, 1, -100, 0}, {-5, 100}},
        {stretch, {3, 3 + 0.9e-9}, STATUS_TOO_SMALL, {1, 5, 0, 1, -100, 0}, {-5, 100}},
        // A limit that misses the line, and some that are too thin.
        {add, {0, 0, 0, 1, 0, 0}, STATUS_OK, alongX, usual},
        {limit, {-2, 7, 5, 6, -1, 1}, STATUS_OK, alongX, usual},
        {limit, {-2, -2.05, -1, 1, -1, 1}, STATUS_OUT_OF_RANGE, alongX, usual},
        {limit, {-2, 2, 0, 0.09, -1, 1}, STATUS_OUT_OF_RANGE, alongX, usual},
        {limit, {-2, 2, -1, 1, 1, -1}, STATUS_OUT_OF_RANGE, alongX, usual},
        {limit, {-2, 2, 0, 0.1, -1, 1}, STATUS_OK, {-2, 0, 0, 2, 0, 0}, {-2, 2}},
        {add, {0, 0, 0, -1, 0, 0}, STATUS_OK, alongX, usual},
        {limit, {-2, 7, -1, 3, -1, 1}, STATUS_OK, {7, 0, 0, -2, 0, 0}, {-7, 2}},
        {add, {0, 0, 0, 1e-6, 1, 0}, STATUS_OK, {-5e-5, 50, 0, 5e-5, -50, 0}, usual},
        {limit, {-2, 7, -1, 3, -1, 1}, STATUS_OK, {-1e-6, 1, 0, 3e-6, -3, 0}, {-1, 3}}};
    int32_t line = TARVEX_NONE;
    for (const auto& [function, given, status, ends, length] : steps)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        const bool isNew = &function == &add;
        line += isNew ? 1 : 0;
        EXPECT_EQ(isNew ? Call(add, given) : Call(function, line, given), status);
        const int32_t valid = length == none ? STATUS_INVALID_VALUES : STATUS_OK;
        EXPECT_THAT(Read(Tarvex_Element_GetLength_Line, line, valid),
                    Pointwise(DoubleNear(1e-9), length));
        EXPECT_THAT(Read(Tarvex_Element_Line_GetValue, line), Pointwise(DoubleNear(1e-9), ends));
    }
}

// A view takes thinner ones.
TEST_F(Lines, TakeABoxThickerThanATenthOnly)
{
    for (const double extent : {0.1, 0.11})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 1, 0, extent, -1, 1), STATUS_OK);
        const double reach = extent > 0.1 ? 1 : 50;
        const int32_t line = AddLine(0, 0.05, 0, 1, 0, 0);
        EXPECT_EQ(Read(Tarvex_Element_Line_GetValue, line),
                  (Numbers{-reach, -0.05, 0, reach, -0.05, 0}));
    }
    EXPECT_EQ(Read(Tarvex_Element_GetLength_Line, 0), (Numbers{-1, 1})) << "follows the view's box";
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
        EXPECT_EQ(Tarvex_Element_Line_SetValue(Id, line, 0, 0, 0, 0, 0, distance), STATUS_OK);
        EXPECT_EQ(IsValid(line), valid) << distance;
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
        const int32_t line = Add(Tarvex_Element_Add_Line, given);
        EXPECT_THAT(Read(Tarvex_Element_Line_GetValue, line),
                    Pointwise(DoubleNear(1e-9), expected));
    }
}
} // namespace
