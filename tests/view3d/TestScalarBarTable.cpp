// Which calls give the scalar bar the new colour table of its surface.
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <functional>

#include <vtkScalarBarActor.h>
#include <vtkScalarsToColors.h>

namespace
{
class ScalarBarTable : public ViewFixture
{
protected:
    ScalarBarTable()
    {
        EXPECT_EQ(
            Tarvex_Element_Add_SurfaceUniform(Id, Raw, Bytes, 2, 2, 1, 1, 1, 0, 0, 0, 1, &Surface),
            STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Add_SurfaceNonUniform(Id, Raw, Raw, Raw, Bytes, 2, 2, 1, 1, 1, 0,
                                                       0, 0, 1, &Cloud),
                  STATUS_OK);
        EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, Surface), STATUS_OK);
    }

    vtkScalarsToColors* BarTable() const
    {
        vtkScalarsToColors* table = nullptr;
        const auto read = [&](const CWindow& view)
        {
            table = view.GetScalarBar()->GetLookupTable();
            return STATUS_OK;
        };
        EXPECT_EQ(CWindowManager::Instance->Call<CWindow>(Id, read), STATUS_OK);
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
    const int16_t Raw[4] = {0, 1, 2, 3};
    const uint8_t Bytes[4] = {0, 50, 100, 255};
};
} // namespace

// Some calls make a new table without telling the bar, which hosts rely on.
TEST_F(ScalarBarTable, IsTheNewOneAfterSomeCallsOnly)
{
    uint8_t color[3];
    uint32_t palette = 0;
    const struct
    {
        const char* Name;
        bool Follows;
        std::function<int32_t()> Make;
    } cases[] = {
        {"palette", true, [&] { return Tarvex_Element_SetPalette_SurfaceUniform(Id, Surface, 2); }},
        {"transparency", false, [&] { return Tarvex_Element_SetTransparency(Id, Surface, 0.5); }},
        {"get colour", true,
         [&] { return Tarvex_Element_GetColor(Id, Surface, &color[0], &color[1], &color[2]); }},
        {"mode", false,
         [&] { return Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(Id, Surface, 0); }},
        {"range", true,
         [&] { return Tarvex_Element_ZScalingPalette_SurfaceUniform(Id, Surface, 0, 0, 1, 2); }},
        {"set", true,
         [&]
         {
             return Tarvex_Element_SurfaceUniform_SetValue(Id, Surface, Raw, Bytes, 2, 2, 1, 1, 1,
                                                           0, 0, 0);
         }},
        {"intensity", true,
         [&] { return Tarvex_Element_ShowIntensity_SurfaceUniform(Id, Surface, 1); }},
        {"own palette", true,
         [&] { return Tarvex_Element_SetPalette_SurfaceUniform(Id, Surface, 6); }},
        {"colour", true, [&] { return Tarvex_Element_SetColor(Id, Surface, 1, 2, 3); }},
        {"another surface's palette", false,
         [&] { return Tarvex_Element_SetPalette_SurfaceNonUniform(Id, Cloud, 1); }},
        {"moved", true, [&] { return Tarvex_Window_ScalarBar_Add(Id, Cloud); }},
        // The one getter of a palette that connects the bar.
        {"transparency, non-uniform", false,
         [&] { return Tarvex_Element_SetTransparency(Id, Cloud, 0.5); }},
        {"get palette, non-uniform", true,
         [&] { return Tarvex_Element_GetPalette_SurfaceNonUniform(Id, Cloud, &palette); }},
    };
    // Held, so that no later table gets the address of an earlier one.
    std::vector<vtkSmartPointer<vtkScalarsToColors>> former;
    for (const auto& [name, follows, make] : cases)
    {
        former.emplace_back(BarTable());
        EXPECT_EQ(make(), STATUS_OK) << name;
        EXPECT_EQ(BarTable() != former.back(), follows) << name;
    }
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
