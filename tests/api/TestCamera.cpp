// The camera of a 3D view, in the world's frame.
#include "support/ViewFixture.h"

#include <array>
#include <cmath>

namespace
{
using Vector = std::array<double, 3>;

class Camera : public ViewFixture
{
protected:
    struct State
    {
        Vector Position = {77, 77, 77};
        Vector Direction = {77, 77, 77};
        Vector Up = {77, 77, 77};
        bool operator==(const State&) const = default;
    };

    State Get() const
    {
        State got;
        auto& [position, direction, up] = got;
        EXPECT_EQ(Tarvex_Window_Camera_GetPosition(Id, &position[0], &position[1], &position[2]),
                  STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_GetViewDirection(Id, &direction[0], &direction[1],
                                                        &direction[2], &up[0], &up[1], &up[2]),
                  STATUS_OK);
        return got;
    }
    int32_t SetDirection(const Vector& direction, const Vector& up) const
    {
        return Tarvex_Window_Camera_SetViewDirection(Id, direction[0], direction[1], direction[2],
                                                     up[0], up[1], up[2]);
    }
    int CountLit() const { return TakePicture(Id).Count(IsLit); }
};

void ExpectNear(const Vector& got, const Vector& expected, double tolerance = 1e-9)
{
    for (size_t axis = 0; axis < 3; ++axis)
    {
        EXPECT_NEAR(got[axis], expected[axis], tolerance) << "axis " << axis;
    }
}

TEST_F(Camera, LooksAtTheOriginFromAnAxisInEachPredefinedView)
{
    struct Case
    {
        int32_t View;
        Vector Position;
        Vector Up;
    };
    for (const Case& test : {Case{TARVEX_VIEW_TOP, {0, 0, 100}, {0, 1, 0}},
                             {TARVEX_VIEW_FRONT, {0, -100, 0}, {0, 0, 1}},
                             {TARVEX_VIEW_LEFT, {-100, 0, 0}, {0, 0, 1}},
                             {TARVEX_VIEW_BOTTOM, {0, 0, -100}, {0, 1, 0}},
                             {TARVEX_VIEW_BACK, {0, 100, 0}, {0, 0, 1}},
                             {TARVEX_VIEW_RIGHT, {100, 0, 0}, {0, 0, 1}}})
    {
        SCOPED_TRACE(test.View);
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, test.View), STATUS_OK);
        const State got = Get();
        ExpectNear(got.Position, test.Position);
        ExpectNear(got.Up, test.Up);
        ExpectNear(got.Direction, {-test.Position[0] / 100.0, -test.Position[1] / 100.0,
                                   -test.Position[2] / 100.0});
    }
}

TEST_F(Camera, FramesTheSceneInAPredefinedViewAndWithAutoSize)
{
    const int32_t point = AddPoint(30, 40, 0);
    EXPECT_EQ(Tarvex_Element_SetSize(Id, point, 10.0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    const auto center = TakePicture(Id).Centre(IsLit);
    EXPECT_NEAR(center[0], Pixels / 2.0, 2.0);
    EXPECT_NEAR(center[1], Pixels / 2.0, 2.0);
    const State framed = Get();
    ExpectNear(framed.Position, {30, -40, framed.Position[2]}, 0.1);

    EXPECT_EQ(SetDirection({0.6, 0, -0.8}, {0, 1, 0}), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 500, 500, 500), STATUS_OK);
    EXPECT_EQ(CountLit(), 0) << "out of sight";
    EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
    EXPECT_GT(CountLit(), Pixels * Pixels / 10);
    ExpectNear(Get().Direction, {0.6, 0, -0.8});
}

TEST_F(Camera, MovesWithoutTurning)
{
    EXPECT_EQ(SetDirection({1, 2, -2}, {0, 0, 1}), STATUS_OK);
    const State before = Get();
    EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 10, -20, 30), STATUS_OK);
    const State after = Get();
    ExpectNear(after.Position, {10, -20, 30});
    ExpectNear(after.Direction, before.Direction);
    ExpectNear(after.Up, before.Up);
}

TEST_F(Camera, TurnsAroundItsFocalPoint)
{
    LookDown();
    EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 5, 6, 100), STATUS_OK); // looks at (5, 6, 0)
    EXPECT_EQ(SetDirection({3, 0, 0}, {0, 0, 7}), STATUS_OK);
    const State got = Get();
    ExpectNear(got.Position, {-95, 6, 0});
    ExpectNear(got.Direction, {1, 0, 0});
    ExpectNear(got.Up, {0, 0, 1});
}

TEST_F(Camera, StraightensAnUpVectorThatLeans)
{
    EXPECT_EQ(SetDirection({0, 0, -5}, {0, 3, -3}), STATUS_OK);
    ExpectNear(Get().Direction, {0, 0, -1});
    ExpectNear(Get().Up, {0, 1, 0});
    // Nearly parallel, with a squared cross product of 4e-12.
    EXPECT_EQ(SetDirection({1, 0, 0}, {1, 0, 2e-6}), STATUS_OK);
    ExpectNear(Get().Up, {0, 0, 1}, 1e-6);
}

TEST_F(Camera, RefusesVectorsWithoutDirectionAndThenStays)
{
    struct Case
    {
        Vector Direction;
        Vector Up;
        int32_t Status;
    };
    EXPECT_EQ(SetDirection({1, 1, 1}, {0, 0, 1}), STATUS_OK);
    const State before = Get();
    for (const Case& test : {Case{{0, 0, 0}, {0, 0, 1}, STATUS_ZERO_VECTOR},
                             {{0.9e-5, 0, 0}, {0, 0, 1}, STATUS_ZERO_VECTOR},
                             {{1, 0, 0}, {0, 0, 0}, STATUS_ZERO_VECTOR},
                             {{1, 0, 0}, {2, 0, 0}, STATUS_PARALLEL_VECTORS},
                             {{1, 0, 0}, {-2, 0, 0}, STATUS_PARALLEL_VECTORS},
                             {{0, 1, 0}, {0, 1, 0.9e-6}, STATUS_PARALLEL_VECTORS}})
    {
        EXPECT_EQ(SetDirection(test.Direction, test.Up), test.Status);
        EXPECT_EQ(Get(), before);
    }
    EXPECT_EQ(SetDirection({1.1e-5, 0, 0}, {0, 0, 1}), STATUS_OK);
}

TEST_F(Camera, RefusesUnknownViewsAndZoomsAndThenStays)
{
    EXPECT_EQ(SetDirection({1, 1, 1}, {0, 0, 1}), STATUS_OK);
    const State before = Get();
    for (const int32_t view : {-1, 6, std::numeric_limits<int32_t>::min()})
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, view), STATUS_OUT_OF_RANGE) << view;
    }
    for (const double factor : {0.0, -2.0, 0.9e-6})
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, factor), STATUS_OUT_OF_RANGE) << factor;
    }
    EXPECT_EQ(Get(), before);
    EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, 1e-6), STATUS_OK);
}

TEST_F(Camera, ZoomsRelativelyInBothProjections)
{
    Tarvex_Element_SetSize(Id, AddPoint(0, 0, 0), 0.5);
    for (const uint8_t parallel : {0, 1})
    {
        SCOPED_TRACE(int{parallel});
        LookDown();
        EXPECT_EQ(Tarvex_Window_Camera_EnableParallelProjection(Id, parallel), STATUS_OK);
        const State before = Get();
        const double start = parallel ? 0.2 : 4.0; // for a sphere of some ten pixels
        EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, start), STATUS_OK);
        const int small = CountLit();
        EXPECT_GT(small, 100);
        EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, 1.5), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, 2.0), STATUS_OK);
        EXPECT_NEAR(CountLit(), 9 * small, small) << "factors multiply";
        EXPECT_EQ(Get(), before) << "the camera itself stays";
        EXPECT_EQ(Tarvex_Window_Camera_SetZoom(Id, 1.0 / (3.0 * start)), STATUS_OK);
    }
}

TEST_F(Camera, DrawsTheSameFromAnyDistanceInParallelProjectionOnly)
{
    Tarvex_Element_SetSize(Id, AddPoint(0, 0, 0), 3.0);
    for (const uint8_t parallel : {0, 255, 0})
    {
        LookDown();
        EXPECT_EQ(Tarvex_Window_Camera_EnableParallelProjection(Id, parallel), STATUS_OK);
        const int before = CountLit();
        EXPECT_EQ(Tarvex_Window_Camera_SetPosition(Id, 0, 0, 50), STATUS_OK);
        EXPECT_NEAR(CountLit(), (parallel ? 1 : 4) * before, before / 5.0) << int{parallel};
    }
}
} // namespace
