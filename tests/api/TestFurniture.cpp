// Axes, orientation marker, scale frame and picked coordinates as a host sees them.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
using Furniture = ViewFixture;

const auto isRed = [](const Picture::Color& c) { return c[0] > 120 && c[1] < 60 && c[2] < 60; };
const auto isYellow = [](const Picture::Color& c) { return c[0] > 120 && c[1] > 120 && c[2] < 60; };
const auto isGreen = [](const Picture::Color& c) { return c[0] < 60 && c[1] > 120 && c[2] < 60; };

TEST_F(Furniture, AxesPointAlongPositiveHostDirections)
{
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    // From above, host X to the right: world Y is up, so positive host Y is down.
    EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    const Picture picture = TakePicture(Id);
    EXPECT_GT(picture.Centre(isRed)[0], Pixels / 2.0);
    EXPECT_GT(picture.Centre(isYellow)[1], Pixels / 2.0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(picture), 0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}

TEST_F(Furniture, OrientationMarkerTakesTheCornerAndAgreesWithTheAxes)
{
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Camera_SetViewDirection(Id, -0.5, 0.7, -0.5, 0, 0, 1), STATUS_OK);
    const Picture marker = TakePicture(Id);
    EXPECT_GT(marker.Count(IsLit), 30);
    EXPECT_GT(marker.Count(isGreen), 0);
    for (int pixel = 0; pixel < Pixels * Pixels; ++pixel)
    {
        const int x = pixel % Pixels;
        const int y = pixel / Pixels;
        EXPECT_TRUE((x <= 46 && y >= Pixels - 46) || !IsLit(marker.At(x, y))) << x << ", " << y;
    }
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    // The same directions from red to yellow in the small picture and in the large one.
    const auto slope = [](const Picture& picture)
    {
        const auto yellow = picture.Centre(isYellow);
        const auto red = picture.Centre(isRed);
        return std::atan2(yellow[1] - red[1], yellow[0] - red[0]);
    };
    EXPECT_GT(std::cos(slope(marker) - slope(TakePicture(Id))), 0.8);
}

TEST_F(Furniture, CubeAnswersItsStatuses)
{
    EXPECT_EQ(Tarvex_Window_Cube_Remove(Id), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_FlyMode(Id, 0), STATUS_NOT_READY);
    const int32_t point = AddPoint(0, 0, 0);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 1, 0, 0, 1, 0, 1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, point, 0, 1, 0, 1, 0, 1), STATUS_WRONG_TYPE);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, 99, 0, 1, 0, 1, 0, 1), STATUS_BAD_INDEX);
    for (const double edge : {Infinity, 1e31, NaN})
    {
        EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 0, edge, 0, 1, 0, 1), STATUS_OUT_OF_RANGE);
    }
    EXPECT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_NOT_READY);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -7, 3, 3, 0, 1, 0, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_FlyMode(Id, 5), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_FlyMode(Id, 6), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_FlyMode(Id, -1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_GridLineLocation(Id, 3), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_GridLineLocation(Id, -1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_AxisColoring(Id, 4, 0, 0, 0, 0), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_AxisColoring(Id, 0, -1, 0, 0, 0), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_AxisColoring(Id, 0, 6, 0, 0, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_Visibility(Id, -1, 0, 0), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_Visibility(Id, 0, 7, 0), STATUS_OK);
}

TEST_F(Furniture, CubeKeepsTheViewAndItsSettingsOverAChangeOfBounds)
{
    EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    const Numbers before = Read(Tarvex_Window_Camera_GetViewDirection);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -10, 10, -10, 10, 0, 5), STATUS_OK);
    EXPECT_THAT(Read(Tarvex_Window_Camera_GetViewDirection),
                testing::Pointwise(testing::DoubleNear(1e-12), before));
    Tarvex_Window_Camera_AutoSize(Id);
    EXPECT_GT(CountLit(), 200);
    EXPECT_EQ(Tarvex_Window_Cube_ShowHide(Id, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -20, 10, -10, 10, 0, 5), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_OK);
    EXPECT_GT(CountLit(), 200);
    EXPECT_EQ(Tarvex_Window_Cube_Remove(Id), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}

TEST_F(Furniture, PickedCoordinatesShowInTheUpperLeftUntilInteractionEnds)
{
    EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    const Picture shown = TakePicture(Id);
    EXPECT_GT(shown.Count(IsLit), 10);
    EXPECT_THAT(shown.Centre(IsLit), testing::Each(testing::Lt(60.0)));
    for (const uint8_t enable : {0, 1})
    {
        EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, enable), STATUS_OK);
        Tarvex_Window_Camera_AutoSize(Id);
        EXPECT_EQ(CountLit(), 0);
    }
}
} // namespace
