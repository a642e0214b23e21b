// Which calls give the scalar bar the new colour table of its surface.
#include "view3d/InsideScene.h"

#include <vtkScalarBarActor.h>
#include <vtkScalarsToColors.h>

namespace
{
class ScalarBarTable : public InsideScene
{
protected:
    ScalarBarTable()
    {
        Add("Element_Add_SurfaceUniform", {0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
        Add("Element_Add_SurfaceNonUniform",
            {0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
        EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, 0), STATUS_OK);
    }
    vtkScalarsToColors* BarTable() const { return View().GetScalarBar()->GetLookupTable(); }
};
} // namespace

// Some calls make a new table without telling the bar, which hosts rely on.
TEST_F(ScalarBarTable, IsTheNewOneAfterSomeCallsOnly)
{
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

TEST_F(ScalarBarTable, ShowsTheRangeOfASurfaceThatWasNeverInSight)
{
    const int32_t far =
        Add("Element_Add_SurfaceUniform", {4, 5, 6, 7, 0, 0, 0, 0, 2, 2, 1, 1, 1, 1e6, 0, 0, 1});
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, far), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[0], 4.0);
    EXPECT_EQ(Tarvex_Element_SetPalette_SurfaceUniform(Id, far, 2), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[1], 7.0);
}
