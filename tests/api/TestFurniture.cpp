// Axes, orientation marker and scale frame as a host sees them.
#include "support/ViewFixture.h"

namespace
{
using Furniture = ViewFixture;

TEST_F(Furniture, AxesPointAlongPositiveHostDirections)
{
    ASSERT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    // From above, host X to the right: world Y is up, so positive host Y is down.
    ASSERT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    const Picture picture = TakePicture(Id);
    const auto isRed = [](const Picture::Color& color)
    { return color[0] > 120 && color[1] < 60 && color[2] < 60; };
    const auto isYellow = [](const Picture::Color& color)
    { return color[0] > 120 && color[1] > 120 && color[2] < 60; };
    EXPECT_GT(picture.Centre(isRed)[0], Pixels / 2.0);
    EXPECT_GT(picture.Centre(isYellow)[1], Pixels / 2.0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}

TEST_F(Furniture, OrientationMarkerTakesTheCorner)
{
    ASSERT_EQ(Tarvex_Window_Orientation_Show(Id, 1), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Camera_SetViewDirection(Id, -0.5, 0.7, -0.5, 0, 0, 1), STATUS_OK);
    EXPECT_GT(CountLit(), 30);
    EXPECT_LT(TakePicture(Id).Centre(IsLit)[0], 60);
    EXPECT_GT(TakePicture(Id).Centre(IsLit)[1], Pixels - 60);
    ASSERT_EQ(Tarvex_Window_Orientation_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}

TEST_F(Furniture, TheScaleFrameStaysHiddenOverAChangeOfBounds)
{
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -10, 10, -10, 10, 0, 5), STATUS_OK);
    Tarvex_Window_Camera_AutoSize(Id);
    EXPECT_GT(CountLit(), 200);
    ASSERT_EQ(Tarvex_Window_Cube_ShowHide(Id, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -20, 10, -10, 10, 0, 5), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    ASSERT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_OK);
    EXPECT_GT(CountLit(), 200);
    ASSERT_EQ(Tarvex_Window_Cube_Remove(Id), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}
} // namespace
