// Axes, orientation marker, scale frame and picked coordinates as a host sees them.
#include "TarvexExt.h"
#include "support/Picture.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <cmath>
#include <limits>

namespace
{
class Furniture : public testing::Test
{
protected:
    Furniture()
    {
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 0, 0, 0, 400, 300, &Id), STATUS_OK);
    }
    ~Furniture() override { Tarvex_Window_Delete(Id); }

    TestHost Host;
    int32_t Id = -1;
};

bool IsRed(const Picture::Color& color)
{
    return color[0] > 120 && color[1] < 60 && color[2] < 60;
}
bool IsYellow(const Picture::Color& color)
{
    return color[0] > 120 && color[1] > 120 && color[2] < 60;
}
bool IsGreen(const Picture::Color& color)
{
    return color[0] < 60 && color[1] > 120 && color[2] < 60;
}
bool IsLit(const Picture::Color& color)
{
    return color[0] + color[1] + color[2] > 60;
}
} // namespace

TEST_F(Furniture, AxesPointAlongPositiveHostDirections)
{
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
    ASSERT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    // From above, host X to the right: world Y is up, so positive host Y is down.
    ASSERT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    const Picture picture = TakePicture(Id);
    EXPECT_GT(picture.Centre(IsRed)[0], 200.0);
    EXPECT_GT(picture.Centre(IsYellow)[1], 150.0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(picture), 0);
    EXPECT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
}

TEST_F(Furniture, OrientationMarkerTakesTheCornerAndAgreesWithTheAxes)
{
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Orientation_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Orientation_Show(Id, 1), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Camera_SetViewDirection(Id, -0.5, 0.7, -0.5, 0, 0, 1), STATUS_OK);
    const Picture marker = TakePicture(Id);
    ASSERT_GT(marker.Count(IsLit), 30);
    for (int y = 0; y < marker.Height; ++y)
    {
        for (int x = 0; x < marker.Width; ++x)
        {
            EXPECT_TRUE((x <= 60 && y >= 254) || !IsLit(marker.At(x, y))) << x << ", " << y;
        }
    }
    ASSERT_EQ(Tarvex_Window_Orientation_Show(Id, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
    ASSERT_EQ(Tarvex_Window_CoordinateAxes_Show(Id, 1), STATUS_OK);
    const Picture axes = TakePicture(Id);
    // The same directions from green (up) to yellow in the small picture and in the large one.
    const auto slope = [](const Picture& picture)
    {
        const auto yellow = picture.Centre(IsYellow);
        const auto red = picture.Centre(IsRed);
        return std::atan2(yellow[1] - red[1], yellow[0] - red[0]);
    };
    EXPECT_GT(std::cos(slope(marker) - slope(axes)), 0.8);
    EXPECT_GT(marker.Count(IsGreen), 0);
}

TEST_F(Furniture, CubeAnswersItsStatuses)
{
    EXPECT_EQ(Tarvex_Window_Cube_Remove(Id), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_NOT_READY);
    EXPECT_EQ(Tarvex_Window_Cube_FlyMode(Id, 0), STATUS_NOT_READY);
    int32_t point = -1;
    ASSERT_EQ(Tarvex_Element_Add_Point(Id, 0, 0, 0, &point), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 1, 0, 0, 1, 0, 1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, point, 0, 1, 0, 1, 0, 1), STATUS_WRONG_TYPE);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, 99, 0, 1, 0, 1, 0, 1), STATUS_BAD_INDEX);
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double edge : {infinity, 1e31, std::numeric_limits<double>::quiet_NaN()})
    {
        EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, 0, edge, 0, 1, 0, 1), STATUS_OUT_OF_RANGE);
    }
    EXPECT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_NOT_READY);
    EXPECT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -7, 3, 3, 0, 1, 0, 1), STATUS_OK);

    struct Case
    {
        int32_t Status;
        int32_t Expected;
    };
    const Case cases[] = {
        {Tarvex_Window_Cube_FlyMode(Id, 5), STATUS_OK},
        {Tarvex_Window_Cube_FlyMode(Id, 6), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_FlyMode(Id, -1), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_GridLineLocation(Id, 3), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_GridLineLocation(Id, -1), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_AxisColoring(Id, 4, 0, 0, 0, 0), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_AxisColoring(Id, 0, -1, 0, 0, 0), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_AxisColoring(Id, 0, 6, 0, 0, 0), STATUS_OK},
        {Tarvex_Window_Cube_Visibility(Id, -1, 0, 0), STATUS_OUT_OF_RANGE},
        {Tarvex_Window_Cube_Visibility(Id, 0, 7, 0), STATUS_OK},
    };
    for (const Case& check : cases)
    {
        EXPECT_EQ(check.Status, check.Expected) << "case " << (&check - cases);
    }
}

TEST_F(Furniture, CubeKeepsTheViewAndItsSettingsOverAChangeOfBounds)
{
    ASSERT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
    double before[6] = {};
    double after[6] = {};
    const auto read = [this](double* view)
    {
        Tarvex_Window_Camera_GetViewDirection(Id, &view[0], &view[1], &view[2], &view[3], &view[4],
                                              &view[5]);
    };
    read(before);
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -10, 10, -10, 10, 0, 5), STATUS_OK);
    read(after);
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_NEAR(after[i], before[i], 1e-12);
    }
    Tarvex_Window_Camera_AutoSize(Id);
    EXPECT_GT(TakePicture(Id).Count(IsLit), 200);
    ASSERT_EQ(Tarvex_Window_Cube_ShowHide(Id, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Cube_Add_Resize(Id, -1, -20, 10, -10, 10, 0, 5), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
    ASSERT_EQ(Tarvex_Window_Cube_ShowHide(Id, 1), STATUS_OK);
    EXPECT_GT(TakePicture(Id).Count(IsLit), 200);
    ASSERT_EQ(Tarvex_Window_Cube_Remove(Id), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
}

TEST_F(Furniture, PickedCoordinatesShowInTheUpperLeftUntilInteractionEnds)
{
    EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_PickCoordinates_Show(Id, 1), STATUS_OK);
    const Picture shown = TakePicture(Id);
    EXPECT_GT(shown.Count(IsLit), 10);
    EXPECT_LT(shown.Centre(IsLit)[0], 60.0);
    EXPECT_LT(shown.Centre(IsLit)[1], 60.0);
    ASSERT_EQ(Tarvex_Window_EnableInteraction(Id, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
    ASSERT_EQ(Tarvex_Window_EnableInteraction(Id, 1), STATUS_OK);
    Tarvex_Window_Camera_AutoSize(Id);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
}
