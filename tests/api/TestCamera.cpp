// The camera of a 3D view, in the world's frame.
#include "support/ViewFixture.h"

namespace
{
class Camera : public ViewFixture
{
protected:
    // Position, direction and up.
    Numbers Get() const
    {
        Numbers got = Read("Window_Camera_GetPosition");
        const Numbers turn = Read("Window_Camera_GetViewDirection");
        got.insert(got.end(), turn.begin(), turn.end());
        return got;
    }
};

TEST_F(Camera, LooksAtTheOriginFromAnAxisInEachPredefinedView)
{
    const Numbers cases[] = {{0, 0, 100, 0, 0, -1, 0, 1, 0}, {0, -100, 0, 0, 1, 0, 0, 0, 1},
                             {-100, 0, 0, 1, 0, 0, 0, 0, 1}, {0, 0, -100, 0, 0, 1, 0, 1, 0},
                             {0, 100, 0, 0, -1, 0, 0, 0, 1}, {100, 0, 0, -1, 0, 0, 0, 0, 1}};
    for (int32_t view = TARVEX_VIEW_TOP; view <= TARVEX_VIEW_RIGHT; ++view)
    {
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, view), STATUS_OK);
        EXPECT_THAT(Get(), Near(cases[view])) << view;
    }
}

TEST_F(Camera, FramesTheSceneInAPredefinedViewAndWithAutoSize)
{
    AddPoint(30, 40, 0, 10);
    EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    EXPECT_THAT(TakePicture(Id).Centre(IsLit), testing::Each(testing::DoubleNear(100, 2)));
    EXPECT_NEAR(Get()[0], 30, 0.1);
    EXPECT_NEAR(Get()[1], -40, 0.1);
    Do("Window_Camera_SetViewDirection", {0.6, 0, -0.8, 0, 1, 0});
    Do("Window_Camera_SetPosition", {500, 500, 500});
    EXPECT_EQ(CountLit(), 0) << "out of sight";
    EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
    EXPECT_GT(CountLit(), Pixels * Pixels / 10);
    EXPECT_NEAR(Get()[3], 0.6, 1e-9) << "turned";
}

TEST_F(Camera, FindsBackFromWhereThereAreNoNumbers)
{
    AddPoint(30, 40, 0, 10);
    for (const double nowhere : {Infinity, NaN})
    {
        Do("Window_Camera_SetViewDirection", {nowhere, 0, 1, 0, 1, 0});
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        EXPECT_GT(CountLit(), Pixels * Pixels / 10);
        Do("Window_Camera_SetPosition", {nowhere, 0, 0});
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        EXPECT_GT(CountLit(), Pixels * Pixels / 10);
    }
}

TEST_F(Camera, TurnsAroundItsFocalPointAndStraightensALeaningUpVector)
{
    const Numbers along = {-95, 6, 0, 1, 0, 0, 0, 0, 1};
    const std::pair<Numbers, Numbers> cases[] = {
        {{3, 0, 0, 0, 0, 7}, along},
        {{1.1e-5, 0, 0, 0, 0, 1}, along},
        {{1, 0, 0, 1, 0, 2e-6}, along}, // nearly parallel
        {{0, 0, -5, 0, 3, -3}, {5, 6, 100, 0, 0, -1, 0, 1, 0}}};
    for (const auto& [given, expected] : cases)
    {
        LookDown();
        Do("Window_Camera_SetPosition", {5, 6, 100}); // looks at (5, 6, 0)
        Do("Window_Camera_SetViewDirection", given);
        EXPECT_THAT(Get(), Near(expected));
    }
}

TEST_F(Camera, ZoomsRelativelyAndDistanceMattersInPerspectiveOnly)
{
    AddPoint(0, 0, 0, 2);
    for (const uint8_t parallel : {0, 255, 0})
    {
        LookDown();
        Tarvex_Window_Camera_EnableParallelProjection(Id, parallel);
        Do("Window_Camera_SetZoom", {parallel ? 0.1 : 1.0}); // some ten pixels
        const int before = CountLit();
        EXPECT_GT(before, 50);
        const Numbers camera = Get();
        Do("Window_Camera_SetZoom", {1.5});
        Do("Window_Camera_SetZoom", {2.0});
        EXPECT_NEAR(CountLit(), 9 * before, before) << "factors multiply, " << int{parallel};
        EXPECT_EQ(Get(), camera) << "the camera itself stays";
        Do("Window_Camera_SetZoom", {1 / 3.0});
        Do("Window_Camera_SetPosition", {0, 0, 50});
        EXPECT_NEAR(CountLit(), (parallel ? 1 : 4) * before, before / 5.0) << int{parallel};
    }
}
} // namespace
