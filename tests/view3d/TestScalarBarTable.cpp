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
        CWindowManager::Instance->Call<CWindow>(Id,
                                                [&](const CWindow& view)
                                                {
                                                    table = view.GetScalarBar()->GetLookupTable();
                                                    return STATUS_OK;
                                                });
        return table;
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
        int32_t Status;
        std::function<int32_t()> Make;
    } cases[] = {
        {"palette", true, STATUS_OK,
         [&] { return Tarvex_Element_SetPalette_SurfaceUniform(Id, Surface, 2); }},
        {"transparency", false, STATUS_OK,
         [&] { return Tarvex_Element_SetTransparency(Id, Surface, 0.5); }},
        {"get palette", false, STATUS_OK,
         [&] { return Tarvex_Element_GetPalette_SurfaceUniform(Id, Surface, &palette); }},
        {"get colour", true, STATUS_OK,
         [&] { return Tarvex_Element_GetColor(Id, Surface, &color[0], &color[1], &color[2]); }},
        {"mode", false, STATUS_OK,
         [&] { return Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(Id, Surface, 0); }},
        {"refused palette", false, STATUS_OUT_OF_RANGE,
         [&] { return Tarvex_Element_SetPalette_SurfaceUniform(Id, Surface, 9); }},
        {"range", true, STATUS_OK,
         [&] { return Tarvex_Element_ZScalingPalette_SurfaceUniform(Id, Surface, 0, 0, 1, 2); }},
        {"background", false, STATUS_OK,
         [&] { return Tarvex_Window_SetBackgroundColor(Id, 1, 2, 3); }},
        {"set", true, STATUS_OK,
         [&]
         {
             return Tarvex_Element_SurfaceUniform_SetValue(Id, Surface, Raw, Bytes, 2, 2, 1, 1, 1,
                                                           0, 0, 0);
         }},
        {"intensity", true, STATUS_OK,
         [&] { return Tarvex_Element_ShowIntensity_SurfaceUniform(Id, Surface, 1); }},
        {"own palette", true, STATUS_OK,
         [&] { return Tarvex_Element_SetPalette_SurfaceUniform(Id, Surface, 6); }},
        {"colour", true, STATUS_OK, [&] { return Tarvex_Element_SetColor(Id, Surface, 1, 2, 3); }},
        {"another surface's palette", false, STATUS_OK,
         [&] { return Tarvex_Element_SetPalette_SurfaceNonUniform(Id, Cloud, 1); }},
        {"moved", true, STATUS_OK, [&] { return Tarvex_Window_ScalarBar_Add(Id, Cloud); }},
        // The one getter of a palette that connects the bar.
        {"transparency, non-uniform", false, STATUS_OK,
         [&] { return Tarvex_Element_SetTransparency(Id, Cloud, 0.5); }},
        {"get palette, non-uniform", true, STATUS_OK,
         [&] { return Tarvex_Element_GetPalette_SurfaceNonUniform(Id, Cloud, &palette); }},
    };
    // Held, so that no later table gets the address of an earlier one.
    std::vector<vtkSmartPointer<vtkScalarsToColors>> former;
    for (const auto& [name, follows, status, make] : cases)
    {
        former.emplace_back(BarTable());
        EXPECT_EQ(make(), status) << name;
        EXPECT_EQ(BarTable() != former.back(), follows) << name;
    }
}
