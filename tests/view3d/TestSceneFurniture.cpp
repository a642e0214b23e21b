// What stands beside the elements: the scale frame's Y labels against the places where they stand,
// the colour table of the scalar bar, the text of the picked coordinates.
#include "frame/Forwarders.h"
#include "view3d/CCubeAxesActor.h"
#include "view3d/InsideScene.h"

#include <vtkAxisFollower.h>
#include <vtkScalarBarActor.h>
#include <vtkScalarsToColors.h>
#include <vtkTextActor.h>

#include <cmath>
#include <cstdlib>

namespace
{
class SceneFurniture : public InsideScene
{
protected:
    vtkScalarsToColors* BarTable() const { return View().GetScalarBar()->GetLookupTable(); }
};
} // namespace

TEST_F(SceneFurniture, LabelsReadTheHostYOfTheirPlaceAfterEachChangeOfBoundsInEveryFlyMode)
{
    // Crossing zero, one-sided, large, small, and back again on the same actor.
    const double cases[][3] = {
        {-5, 25, 0.01}, {-3.5, -3, 0.001}, {-2.5e6, 1.5e6, 1e3}, {0, 1e-3, 1e-6}, {-5, 25, 0.01}};
    for (int32_t round = 0; round < 20; ++round)
    {
        const auto& [low, high, tolerance] = cases[round / 4];
        const double extent = high - low;
        Tarvex_Window_Cube_Add_Resize(Id, -1, 0, extent, low, high, 0, extent);
        // A later picture finds labels that are turned already.
        ASSERT_EQ(Tarvex_Window_Cube_FlyMode(Id, round % 5), STATUS_OK);
        Tarvex_Window_Camera_SetViewDirection(Id, -0.5, round % 3 - 0.7, -0.4, 0, 0, 1);
        ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        int count = 0;
        for (CInvertedAxisActor* axis : View().GetCubeAxes()->GetDrawnYAxes())
        {
            // Labels are in units of the exponent in the title.
            const std::string title = axis->GetTitle();
            const size_t power = title.find("x10^");
            const double unit =
                power == std::string::npos ? 1.0 : std::pow(10.0, std::atof(&title[power + 4]));
            for (int label = 0; label < axis->GetNumberOfLabelsBuilt(); ++label, ++count)
            {
                const double worldY = axis->GetLabelActors()[label]->GetPosition()[1];
                const std::string text = axis->GetLabelText(label);
                EXPECT_NEAR(std::atof(text.c_str()) * unit, -worldY, tolerance) << text << title;
                EXPECT_NE(text.substr(0, 2), "-0") << text;
            }
        }
        EXPECT_GE(count, 3) << "round " << round;
    }
}

// Some calls make a new table without telling the bar, which hosts rely on.
TEST_F(SceneFurniture, ScalarBarHasTheNewTableAfterSomeCallsOnly)
{
    Add("Element_Add_SurfaceUniform", {0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
    Add("Element_Add_SurfaceNonUniform",
        {0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, 0), STATUS_OK);
    const std::tuple<bool, std::string, Numbers> cases[] = {
        {true, "Element_SetPalette_SurfaceUniform", {0, 2}},
        {false, "Element_SetTransparency", {0, 0.5}},
        {true, "Element_GetColor", {0}},
        {false, "Element3D_SurfaceUniform_SetRepresentationMode", {0, 0}},
        {true, "Element_ZScalingPalette_SurfaceUniform", {0, 0, 0, 1, 2}},
        {true, "Element_SurfaceUniform_SetValue", {0, 0, 1, 2, 3, 9, 9, 9, 9, 2, 2, 1, 1, 1, 0, 0}},
        {true, "Element_ShowIntensity_SurfaceUniform", {0, 1}},
        {true, "Element_SetPalette_SurfaceUniform", {0, 6}},
        {true, "Element_SetColor", {0, 1, 2, 3}},
        // Another surface's, until the bar moves to that one.
        {false, "Element_SetPalette_SurfaceNonUniform", {1, 1}},
        {true, "Window_ScalarBar_Add", {1}},
        {false, "Element_SetTransparency", {1, 0.5}},
        // The one getter of a palette that connects the bar.
        {true, "Element_GetPalette_SurfaceNonUniform", {1}}};
    // Held, so that no later table gets the address of an earlier one.
    std::vector<vtkSmartPointer<vtkScalarsToColors>> former;
    for (const auto& step : cases)
    {
        SCOPED_TRACE(&step - cases);
        const auto& [follows, function, given] = step;
        former.emplace_back(BarTable());
        EXPECT_EQ(Do(function, given), STATUS_OK);
        EXPECT_EQ(BarTable() != former.back(), follows);
    }
}

TEST_F(SceneFurniture, ScalarBarShowsTheRangeOfASurfaceThatWasNeverInSight)
{
    const int32_t far =
        Add("Element_Add_SurfaceUniform", {4, 5, 6, 7, 0, 0, 0, 0, 2, 2, 1, 1, 1, 1e6, 0, 0, 1});
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, far), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[0], 4.0);
    EXPECT_EQ(Tarvex_Element_SetPalette_SurfaceUniform(Id, far, 2), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[1], 7.0);
}

TEST_F(SceneFurniture, PickTextShowsAWorldPositionInHostCoordinates)
{
    const char* nothing = "X:\nY:\nZ:";
    const std::pair<Numbers, const char*> cases[] = {
        {{1.5, -2.25, 0.0}, "X:    1.500\nY:    2.250\nZ:    0.000"},
        {{-1234.5678, 0.0, 99999.9996}, "X: -1234.568\nY:    0.000\nZ: 100000.000"},
        {{0.0, 0.0, 0.0}, nothing},
        {{0.0, 0.0, 1e-9}, "X:    0.000\nY:    0.000\nZ:    0.000"},
        // Cut after 19 characters.
        {{1e15, -1e16, -1e300},
         "X: 1000000000000000.00\nY: 10000000000000000.0\nZ: -100000000000000005"}};
    Tarvex_Window_PickCoordinates_Show(Id, 1);
    for (const auto& [world, expected] : cases)
    {
        ForwardPick(Id, world[0], world[1], world[2]);
        EXPECT_STREQ(View().GetPickTextActor()->GetInput(), expected);
    }
    // Gone after hiding, fresh after showing.
    Tarvex_Window_PickCoordinates_Show(Id, 0);
    EXPECT_EQ(View().GetPickTextActor(), nullptr);
    Tarvex_Window_PickCoordinates_Show(Id, 1);
    EXPECT_STREQ(View().GetPickTextActor()->GetInput(), nothing);
}
