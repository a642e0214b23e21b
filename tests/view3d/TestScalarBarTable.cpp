// Which calls give the scalar bar the new colour table of its surface.
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <vtkScalarBarActor.h>
#include <vtkScalarsToColors.h>

namespace
{
class ScalarBarTable : public ViewFixture
{
protected:
    ScalarBarTable()
    {
        Surface = Add(Tarvex_Element_Add_SurfaceUniform,
                      {0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
        Cloud =
            Add(Tarvex_Element_Add_SurfaceNonUniform,
                {0, 1, 2, 3, 0, 1, 2, 3, 0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0, 1});
        EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, Surface), STATUS_OK);
    }

    vtkScalarsToColors* BarTable() const
    {
        vtkScalarsToColors* table = nullptr;
        Inside(Id, [&](const CWindow& view) { table = view.GetScalarBar()->GetLookupTable(); });
        return table;
    }

    int IsShown() const
    {
        uint8_t shown = 7;
        const int32_t status = Tarvex_Window_ScalarBar_IsShown(Id, &shown);
        return status == STATUS_OK ? shown : status;
    }

    int32_t Surface = TARVEX_NONE;
    int32_t Cloud = TARVEX_NONE;
};
} // namespace

// Some calls make a new table without telling the bar, which hosts rely on.
TEST_F(ScalarBarTable, IsTheNewOneAfterSomeCallsOnly)
{
    const std::tuple<bool, Export, Numbers> cases[] = {
        {true, Tarvex_Element_SetPalette_SurfaceUniform, {0, 2}},
        {false, Tarvex_Element_SetTransparency, {0, 0.5}},
        {true, Tarvex_Element_GetColor, {0}},
        {false, Tarvex_Element3D_SurfaceUniform_SetRepresentationMode, {0, 0}},
        {true, Tarvex_Element_ZScalingPalette_SurfaceUniform, {0, 0, 0, 1, 2}},
        {true,
         Tarvex_Element_SurfaceUniform_SetValue,
         {0, 0, 1, 2, 3, 0, 50, 100, 255, 2, 2, 1, 1, 1, 0, 0, 0}},
        {true, Tarvex_Element_ShowIntensity_SurfaceUniform, {0, 1}},
        {true, Tarvex_Element_SetPalette_SurfaceUniform, {0, 6}},
        {true, Tarvex_Element_SetColor, {0, 1, 2, 3}},
        // Another surface's, until the bar moves to that one.
        {false, Tarvex_Element_SetPalette_SurfaceNonUniform, {1, 1}},
        {true, Tarvex_Window_ScalarBar_Add, {1}},
        {false, Tarvex_Element_SetTransparency, {1, 0.5}},
        // The one getter of a palette that connects the bar.
        {true, Tarvex_Element_GetPalette_SurfaceNonUniform, {1}}};
    // Held, so that no later table gets the address of an earlier one.
    std::vector<vtkSmartPointer<vtkScalarsToColors>> former;
    for (const auto& step : cases)
    {
        SCOPED_TRACE(&step - cases);
        const auto& [follows, function, given] = step;
        former.emplace_back(BarTable());
        EXPECT_EQ(Call(function, given), STATUS_OK);
        EXPECT_EQ(BarTable() != former.back(), follows);
    }
}

TEST_F(ScalarBarTable, ShowsTheRangeOfASurfaceThatWasNeverInSight)
{
    const int32_t far = Add(Tarvex_Element_Add_SurfaceUniform,
                            {4, 5, 6, 7, 0, 0, 0, 0, 2, 2, 1, 1, 1, 1e6, 0, 0, 1});
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, far), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[0], 4.0);
    EXPECT_EQ(Tarvex_Element_SetPalette_SurfaceUniform(Id, far, 2), STATUS_OK);
    EXPECT_EQ(BarTable()->GetRange()[1], 7.0);
}

TEST_F(ScalarBarTable, GoesWithOneSurfaceUntilItIsRemoved)
{
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, AddPoint(0, 0, 0)), STATUS_WRONG_TYPE);
    EXPECT_EQ(IsShown(), 1);
    ASSERT_EQ(Tarvex_Window_ScalarBar_ShowHide(Id, 0), STATUS_OK);
    // Moved while hidden it stays hidden, and no longer goes with the first surface.
    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, Cloud), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Remove(Id, Surface), STATUS_OK);
    EXPECT_EQ(IsShown(), 0);
    EXPECT_EQ(Tarvex_Element_Remove(Id, Cloud), STATUS_OK);
    EXPECT_EQ(IsShown(), STATUS_NOT_READY);
}
