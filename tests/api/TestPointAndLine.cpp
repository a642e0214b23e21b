// The numbers of points and lines.
#include "support/ViewFixture.h"

#include <array>
#include <cmath>

namespace
{
class Points : public ViewFixture
{
protected:
    using Values = std::array<double, 4>; // x, y, z, size

    Values Get(int32_t point) const
    {
        Values got = {77, 77, 77, 77};
        EXPECT_EQ(Tarvex_Element_Point_GetValue(Id, point, &got[0], &got[1], &got[2], &got[3]),
                  STATUS_OK);
        return got;
    }
    int32_t Set(int32_t point, const Values& values) const
    {
        return Tarvex_Element_Point_SetValue(Id, point, values[0], values[1], values[2], values[3]);
    }
};

TEST_F(Points, GiveBackWhatTheyWereGiven)
{
    const int32_t point = AddPoint(1, 2, -3);
    EXPECT_EQ(Get(point), (Values{1, 2, -3, 0.3}));
    EXPECT_EQ(Set(point, {4, -5, 6, 5}), STATUS_OK);
    EXPECT_EQ(Get(point), (Values{4, -5, 6, 5}));
}

TEST_F(Points, KeepTheirSizeWhenTheNewOneIsTooSmall)
{
    const int32_t point = AddPoint(0, 0, 0);
    EXPECT_EQ(Set(point, {1, 2, 3, 0.0005}), STATUS_OK);
    EXPECT_EQ(Get(point), (Values{1, 2, 3, 0.3}));
    EXPECT_TRUE(IsValid(point));
    EXPECT_EQ(Set(point, {1, 2, 3, 0.001}), STATUS_OK);
    EXPECT_EQ(Get(point), (Values{1, 2, 3, 0.001}));
}

TEST_F(Points, GiveBackUnusableNumbersToo)
{
    EXPECT_TRUE(std::isnan(Get(AddPoint(NaN, 0, 0))[0]));
    const int32_t point = AddPoint(0, 0, 0);
    constexpr double marker = std::numeric_limits<double>::max();
    for (size_t unusable = 0; unusable < 4; ++unusable)
    {
        Values values = {1, 2, 3, 4};
        values[unusable] = marker;
        EXPECT_EQ(Set(point, values), STATUS_OK);
        EXPECT_FALSE(IsValid(point)) << unusable;
        EXPECT_EQ(Get(point), values);
        EXPECT_EQ(Set(point, {1, 2, 3, 4}), STATUS_OK);
        EXPECT_TRUE(IsValid(point));
    }
}

class Lines : public ViewFixture
{
protected:
    using Ends = std::array<double, 6>;   // x1, y1, z1, x2, y2, z2, in the world
    using Length = std::array<double, 2>; // start, end

    Ends Get(int32_t line) const
    {
        Ends got = {77, 77, 77, 77, 77, 77};
        EXPECT_EQ(Tarvex_Element_Line_GetValue(Id, line, &got[0], &got[1], &got[2], &got[3],
                                               &got[4], &got[5]),
                  STATUS_OK);
        return got;
    }
    int32_t Set(int32_t line, const Ends& points) const
    {
        return Tarvex_Element_Line_SetValue(Id, line, points[0], points[1], points[2], points[3],
                                            points[4], points[5]);
    }
    int32_t SetDrawLimit(int32_t line, const std::array<double, 6>& box) const
    {
        return Tarvex_Element_SetDrawLimit_Line(Id, line, box[0], box[1], box[2], box[3], box[4],
                                                box[5]);
    }
    Length GetLength(int32_t line, int32_t status = STATUS_OK) const
    {
        Length got = {77, 77};
        EXPECT_EQ(Tarvex_Element_GetLength_Line(Id, line, &got[0], &got[1]), status);
        return got;
    }
};

TEST_F(Lines, SpanTheBoxWhileTheirLengthIsStillTheDefault)
{
    const int32_t line = AddLine(0, 0, 0, 5, 0, 0);
    EXPECT_EQ(Get(line), (Ends{-50, 0, 0, 50, 0, 0}));
    EXPECT_EQ(GetLength(line), (Length{-10, 10}));
}

TEST_F(Lines, OutsideTheBoxAreDrawnByTheirLength)
{
    EXPECT_EQ(Get(AddLine(0, 20, 100, 1, 0, 0)), (Ends{-10, -20, 100, 10, -20, 100}));
}

TEST_F(Lines, UseTheInitialBoxWhileTheViewsIsTooThin)
{
    // A line takes a box thicker than 0.1 only, a view also thinner ones.
    for (const double extent : {0.1, 0.11})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 1, 0, extent, -1, 1), STATUS_OK);
        const double reach = extent > 0.1 ? 1 : 50;
        EXPECT_EQ(Get(AddLine(0, 0.05, 0, 1, 0, 0)), (Ends{-reach, -0.05, 0, reach, -0.05, 0}));
    }
}

TEST_F(Lines, ThroughTwoPointsGiveBackTheirEndsInTheWorld)
{
    const int32_t line = AddLine(0, 0, 0, 0, 0, 1);
    EXPECT_EQ(Set(line, {1, 2, 3, 2, 2, 3}), STATUS_OK);
    EXPECT_EQ(Get(line), (Ends{-50, -2, 3, 50, -2, 3}));
    EXPECT_EQ(GetLength(line), (Length{0, 1}));
    EXPECT_EQ(Set(line, {60, 1, 2, 60, 4, 6}), STATUS_OK) << "outside the box: as given";
    EXPECT_EQ(Get(line), (Ends{60, -1, 2, 60, -4, 6}));
    EXPECT_EQ(GetLength(line), (Length{0, 5}));
}

TEST_F(Lines, AreInvalidWithoutADirection)
{
    struct Case
    {
        double Direction;
        bool Valid;
    };
    for (const Case& test : {Case{0, false}, {0.9e-6, false}, {1.1e-6, true}, {-1e300, true}})
    {
        const int32_t line = AddLine(1, 2, 3, 0, test.Direction, 0);
        EXPECT_EQ(IsValid(line), test.Valid) << test.Direction;
    }
    // Two points may be closer than a direction may be short.
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    for (const Case& test : {Case{0, false}, {1e-10, false}, {1.1e-9, true}})
    {
        EXPECT_EQ(Set(line, {0, 0, 0, 0, 0, test.Direction}), STATUS_OK);
        EXPECT_EQ(IsValid(line), test.Valid) << test.Direction;
    }
}

TEST_F(Lines, HaveNoLengthWhileInvalidButKeepTheirLastEnds)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(Set(line, {0, 0, 0, 0, 0, 0}), STATUS_OK);
    EXPECT_EQ(GetLength(line, STATUS_INVALID_VALUES), (Length{0, 0}));
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 1, 2), STATUS_INVALID_VALUES);
    EXPECT_EQ(Get(line), (Ends{-50, 0, 0, 50, 0, 0}));
    EXPECT_EQ(Get(AddLine(0, 0, 0, 0, 0, 0)), (Ends{0, 0, 0, 10, -10, 10})) << "never valid";
}

TEST_F(Lines, TakeALengthInEitherOrderAndUnclipped)
{
    const int32_t line = AddLine(1, 0, 0, 0, 2, 0);
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 100, -5), STATUS_OK);
    EXPECT_EQ(GetLength(line), (Length{-5, 100}));
    EXPECT_EQ(Get(line), (Ends{1, 5, 0, 1, -100, 0}));
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, line, 3, 3 + 0.9e-9), STATUS_TOO_SMALL);
    EXPECT_EQ(GetLength(line), (Length{-5, 100}));
}

TEST_F(Lines, AreCutByADrawLimitOfTheirOwn)
{
    for (const double direction : {1.0, -1.0})
    {
        const int32_t line = AddLine(0, 0, 0, direction, 0, 0);
        EXPECT_EQ(SetDrawLimit(line, {-2, 7, -1, 1, -1, 1}), STATUS_OK);
        const Length expected = direction > 0 ? Length{-2, 7} : Length{-7, 2};
        EXPECT_EQ(GetLength(line), expected);
        EXPECT_EQ(Get(line), direction > 0 ? (Ends{-2, 0, 0, 7, 0, 0}) : (Ends{7, 0, 0, -2, 0, 0}));
    }
    // A steep line is measured along another axis.
    const int32_t steep = AddLine(0, 0, 0, 1e-6, 1, 0);
    EXPECT_EQ(SetDrawLimit(steep, {-1, 1, -2, 3, -1, 1}), STATUS_OK);
    EXPECT_NEAR(GetLength(steep)[0], -2, 1e-9);
    EXPECT_NEAR(GetLength(steep)[1], 3, 1e-9);
}

TEST_F(Lines, StayAsTheyAreWhenADrawLimitMissesThem)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(SetDrawLimit(line, {-2, 7, 5, 6, -1, 1}), STATUS_OK);
    EXPECT_EQ(Get(line), (Ends{-50, 0, 0, 50, 0, 0}));
    EXPECT_EQ(GetLength(line), (Length{-10, 10}));
}

TEST_F(Lines, RefuseADrawLimitThatIsTooThin)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(SetDrawLimit(line, {-2, -2.05, -1, 1, -1, 1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, 0, 0.09, -1, 1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, -1, 1, 1, -1}), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Get(line), (Ends{-50, 0, 0, 50, 0, 0}));
    EXPECT_EQ(SetDrawLimit(line, {-2, 2, 0, 0.1, -1, 1}), STATUS_OK);
    EXPECT_EQ(Get(line), (Ends{-2, 0, 0, 2, 0, 0}));
}

TEST_F(Lines, KeepADrawLimitThatTheyGotWhileInvalid)
{
    const int32_t line = AddLine(0, 0, 0, 0, 0, 0);
    EXPECT_EQ(SetDrawLimit(line, {-2, 7, -1, 1, -1, 1}), STATUS_OK);
    EXPECT_EQ(Set(line, {0, 0, 0, 1, 0, 0}), STATUS_OK);
    EXPECT_EQ(Get(line), (Ends{-2, 0, 0, 7, 0, 0}));
}
} // namespace
