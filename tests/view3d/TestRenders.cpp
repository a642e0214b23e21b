// How often each call draws the view: a host that adds a thousand elements pays for each picture,
// and one that reads values back must know which reads draw.
#include "TarvexExt.h"
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <vtkCallbackCommand.h>
#include <vtkNew.h>

#include <source_location>

namespace
{
class Renders : public ViewFixture
{
protected:
    Renders()
    {
        Counter->SetClientData(&Count);
        Counter->SetCallback([](vtkObject*, unsigned long, void* count, void*)
                             { ++*static_cast<int*>(count); });
        CWindowManager::Instance->Call<CWindow>(Id,
                                                [this](CWindow& view) -> int32_t
                                                {
                                                    view.GetRenderWindow()->AddObserver(
                                                        vtkCommand::EndEvent, Counter);
                                                    return STATUS_OK;
                                                });
    }

    // What the call since the last check has drawn and answered.
    void Expect(int renders, int32_t status, int32_t answer,
                const std::source_location& place = std::source_location::current())
    {
        EXPECT_EQ(answer, status) << "line " << place.line();
        EXPECT_EQ(Count, renders) << "line " << place.line();
        Count = 0;
    }

    int Count = 0;
    vtkNew<vtkCallbackCommand> Counter;
    // Where the calls write; nobody looks at it.
    double x, y, z, u, v, w;
    int32_t number;
    uint32_t palette;
    uint8_t red, green, blue;
};

TEST_F(Renders, OfCallsOnTheView)
{
    Expect(0, STATUS_OK, Tarvex_Window_UpdateSize(Id, 0, 0, 99, 98));
    Expect(1, STATUS_OK, Tarvex_Window_SetBackgroundColor(Id, 1, 2, 3));
    Expect(0, STATUS_OK, TarvexExt_Window_CopyImage(Id, nullptr, 0, &number, &number));
    Expect(0, STATUS_OK, Tarvex_Window_EnableInteraction(Id, 0));
    Expect(0, STATUS_OK, Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1));
    Expect(0, STATUS_OK, Tarvex_Window_GetDrawSpace(Id, &x, &y, &z, &u, &v, &w));
    Expect(0, STATUS_OK, Tarvex_Window_SetDrawSpace(Id, 0, 1, 0, 1, 0, 1));
    Expect(0, STATUS_OK, Tarvex_Window_GetActiveElement(Id, &number));
    Expect(0, STATUS_OK, Tarvex_Window_SetActiveElement(Id, -1));
    Expect(0, STATUS_OK, Tarvex_Window_RegisterCallback_ElementAdded(Id, nullptr));
    Expect(1, STATUS_OK, Tarvex_Element_RemoveAll(Id));
}

TEST_F(Renders, OfCallsOnTheCamera)
{
    Expect(1, STATUS_OK, Tarvex_Window_Camera_AutoSize(Id));
    Expect(1, STATUS_OK, Tarvex_Window_Camera_EnableParallelProjection(Id, 1));
    Expect(0, STATUS_OK, Tarvex_Window_Camera_GetPosition(Id, &x, &y, &z));
    Expect(0, STATUS_OK, Tarvex_Window_Camera_GetViewDirection(Id, &x, &y, &z, &u, &v, &w));
    Expect(1, STATUS_OK, Tarvex_Window_Camera_SetPosition(Id, 1, 2, 3));
    Expect(1, STATUS_OK, Tarvex_Window_Camera_SetPredefinedView(Id, 1));
    Expect(0, STATUS_OUT_OF_RANGE, Tarvex_Window_Camera_SetPredefinedView(Id, 6));
    Expect(1, STATUS_OK, Tarvex_Window_Camera_SetViewDirection(Id, 1, 0, 0, 0, 0, 1));
    Expect(0, STATUS_ZERO_VECTOR, Tarvex_Window_Camera_SetViewDirection(Id, 0, 0, 0, 0, 0, 1));
    Expect(1, STATUS_OK, Tarvex_Window_Camera_SetZoom(Id, 2));
    Expect(0, STATUS_OUT_OF_RANGE, Tarvex_Window_Camera_SetZoom(Id, 0));
}

TEST_F(Renders, OfCallsOnAnyElement)
{
    Expect(1, STATUS_OK, Tarvex_Element_Add_Point(Id, 0, 0, 0, &number));
    Expect(1, STATUS_OK, Tarvex_Element_Add_Point(Id, NaN, 0, 0, &number));
    Expect(0, STATUS_OK, Tarvex_Element_GetCount(Id, &number));
    Expect(0, STATUS_OK, Tarvex_Element_GetIDFromIndex(Id, 0, &number));
    Expect(0, STATUS_OK, Tarvex_Element_GetType(Id, 0, &number));
    Expect(0, STATUS_OK, Tarvex_Element_HasValidValues(Id, 0, &red));
    Expect(1, STATUS_OK, Tarvex_Element_SetColor(Id, 0, 1, 2, 3));
    Expect(1, STATUS_OK, Tarvex_Element_GetColor(Id, 0, &red, &green, &blue));
    Expect(1, STATUS_OK, Tarvex_Element_SetSize(Id, 0, 1));
    Expect(0, STATUS_TOO_SMALL, Tarvex_Element_SetSize(Id, 0, 0));
    Expect(1, STATUS_OK, Tarvex_Element_GetSize(Id, 0, &x));
    Expect(1, STATUS_OK, Tarvex_Element_SetTransparency(Id, 0, 0.5));
    Expect(0, STATUS_OUT_OF_RANGE, Tarvex_Element_SetTransparency(Id, 0, 2));
    Expect(1, STATUS_OK, Tarvex_Element_GetTransparency(Id, 0, &x));
    Expect(1, STATUS_OK, Tarvex_Element_SetLighting(Id, 0, 1, 0, 0, 1));
    Expect(0, STATUS_OUT_OF_RANGE, Tarvex_Element_SetLighting(Id, 0, 2, 0, 0, 1));
    Expect(1, STATUS_OK, Tarvex_Element_GetLighting(Id, 0, &x, &y, &z, &u));
    Expect(1, STATUS_OK, Tarvex_Element_Show(Id, 0, 0));
    Expect(0, STATUS_BAD_INDEX, Tarvex_Element_Show(Id, 9, 0));
    Expect(0, STATUS_BAD_INDEX, Tarvex_Element_SetColor(Id, 9, 1, 2, 3));
    Expect(1, STATUS_OK, Tarvex_Element_Remove(Id, 0));
    Expect(0, STATUS_BAD_INDEX, Tarvex_Element_Remove(Id, 0));
    Expect(1, STATUS_OK, Tarvex_Element_RemoveAll(Id));
}

TEST_F(Renders, OfCallsOnPointsAndLines)
{
    AddPoint(0, 0, 0);
    Count = 0;
    Expect(1, STATUS_OK, Tarvex_Element_Point_SetValue(Id, 0, 1, 2, 3, 4));
    Expect(1, STATUS_OK, Tarvex_Element_Point_SetValue(Id, 0, NaN, 2, 3, 4));
    Expect(0, STATUS_OK, Tarvex_Element_Point_GetValue(Id, 0, &x, &y, &z, &u));
    Expect(0, STATUS_WRONG_TYPE, Tarvex_Element_Line_SetValue(Id, 0, 0, 0, 0, 1, 0, 0));
    Expect(1, STATUS_OK, Tarvex_Element_Add_Line(Id, 0, 0, 0, 1, 0, 0, &number));
    Expect(1, STATUS_OK, Tarvex_Element_Line_SetValue(Id, 1, 0, 0, 0, 1, 1, 1));
    Expect(0, STATUS_OK, Tarvex_Element_Line_GetValue(Id, 1, &x, &y, &z, &u, &v, &w));
    Expect(1, STATUS_OK, Tarvex_Element_GetLength_Line(Id, 1, &x, &y));
    Expect(1, STATUS_OK, Tarvex_Element_SetLength_Line(Id, 1, 0, 5));
    Expect(1, STATUS_TOO_SMALL, Tarvex_Element_SetLength_Line(Id, 1, 5, 5));
    Expect(1, STATUS_OK, Tarvex_Element_SetDrawLimit_Line(Id, 1, -1, 1, -1, 1, -1, 1));
    Expect(1, STATUS_OUT_OF_RANGE, Tarvex_Element_SetDrawLimit_Line(Id, 1, 1, 1, -1, 1, -1, 1));
    Expect(1, STATUS_OK, Tarvex_Element_Line_SetValue(Id, 1, 0, 0, 0, 0, 0, 0));
    Expect(1, STATUS_INVALID_VALUES, Tarvex_Element_GetLength_Line(Id, 1, &x, &y));
    Expect(1, STATUS_INVALID_VALUES, Tarvex_Element_SetLength_Line(Id, 1, 0, 5));
    Expect(0, STATUS_BAD_INDEX, Tarvex_Element_GetLength_Line(Id, 9, &x, &y));
}

TEST_F(Renders, OfCallsOnShapesWithHandles)
{
    const double x3[] = {0, 1, 0};
    const double y3[] = {0, 0, 1};
    Expect(1, STATUS_OK, Tarvex_Element_Add_Cube(Id, 0, 0, 0, 1, 1, 1, 0, 0, &number));
    Expect(1, STATUS_OK, Tarvex_Element_Cube_SetValue(Id, 0, NaN, 0, 0, 1, 1, 1, 0));
    Expect(1, STATUS_OK, Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 1, 1, 1, 1, &number));
    Expect(0, STATUS_OK, Tarvex_Element_Cylinder_GetValue(Id, 1, &x, &y, &z, &u, &v, &w, &x));
    Expect(1, STATUS_OK, Tarvex_Element_Cylinder_SetValue(Id, 1, 0, 0, 0, 1, 1, 1, 1));
    Expect(1, STATUS_TOO_SMALL, Tarvex_Element_Cylinder_SetValue2(Id, 1, 0, 0, 0, 0, 0, 0, 1, 1));
    Expect(1, STATUS_OK, Tarvex_Element_Add_Polyhedron(Id, 3, x3, y3, y3, 0, 0, 1, 1, &number));
    Expect(0, STATUS_OK, Tarvex_Element_Polyhedron_GetPointCount(Id, 2, &number));
    Expect(1, STATUS_OK, Tarvex_Element_Polyhedron_SetHeight(Id, 2, 3));
    Expect(1, STATUS_TOO_SMALL, Tarvex_Element_Polyhedron_SetHeight(Id, 2, 0));
    Expect(1, STATUS_BAD_INDEX, Tarvex_Element_Polyhedron_ChangePoint(Id, 2, 3, 0, 0, 0));
    Expect(1, STATUS_OK, Tarvex_Element_Polyhedron_InsertPoint(Id, 2, 3, 0, 0, 0));
    Expect(1, STATUS_OK, Tarvex_Element_Polyhedron_RemovePoint(Id, 2, 3));
    Expect(1, STATUS_OK, Tarvex_Element_Polyhedron_SetAxisDirection(Id, 2, 0, 1, 0));
    Expect(1, STATUS_OK, Tarvex_Element_Polyhedron_SetValue(Id, 2, 3, x3, y3, y3, 0, 0, 1, 1));
    Expect(0, STATUS_OK, Tarvex_Window_SetActiveElement(Id, 2));
    Expect(0, STATUS_OK, Tarvex_Window_SetActiveElement(Id, -1));
}

TEST_F(Renders, OfCallsOnAUniformSurface)
{
    const int16_t heights[] = {1, 2, 3, 4};
    const uint8_t levels[] = {1, 2, 3, 4};
    Expect(1, STATUS_OK,
           Tarvex_Element_Add_SurfaceUniform(Id, heights, nullptr, 2, 2, 1, 1, 1, 0, 0, 0, 1,
                                             &number));
    Expect(0, STATUS_TOO_SMALL,
           Tarvex_Element_Add_SurfaceUniform(Id, heights, nullptr, 1, 2, 1, 1, 1, 0, 0, 0, 1,
                                             &number));
    Expect(1, STATUS_OK,
           Tarvex_Element_SurfaceUniform_SetValue(Id, 0, heights, nullptr, 2, 2, 1, 1, 1, 0, 0, 0));
    Expect(0, STATUS_TOO_SMALL,
           Tarvex_Element_SurfaceUniform_SetValue(Id, 0, heights, nullptr, 2, 1, 1, 1, 1, 0, 0, 0));
    Expect(1, STATUS_NOT_READY, Tarvex_Element_ShowIntensity_SurfaceUniform(Id, 0, 1));
    Expect(0, STATUS_OK, Tarvex_Element_SurfaceUniform_AddIntensity(Id, 0, levels, 2, 2));
    Expect(1, STATUS_OK, Tarvex_Element_ShowIntensity_SurfaceUniform(Id, 0, 1));
    Expect(0, STATUS_OK, Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(Id, 0, &red));
    Expect(1, STATUS_OK, Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(Id, 0, 0));
    Expect(0, STATUS_NOT_SUPPORTED, Tarvex_Element_SetSize(Id, 0, 1));
    Expect(0, STATUS_NOT_SUPPORTED, Tarvex_Element_GetSize(Id, 0, &x));
    Expect(1, STATUS_OK, Tarvex_Element_SetPalette_SurfaceUniform(Id, 0, 1));
    Expect(1, STATUS_OUT_OF_RANGE, Tarvex_Element_SetPalette_SurfaceUniform(Id, 0, 7));
    Expect(0, STATUS_OK, Tarvex_Element_GetPalette_SurfaceUniform(Id, 0, &palette));
    Expect(1, STATUS_BAD_POINT, Tarvex_Element_ZScalingPalette_SurfaceUniform(Id, 0, 1, 0, 0, 0));
    Expect(0, STATUS_OK, Tarvex_Element_GetZScalingPalette_SurfaceUniform(Id, 0, &red, &x, &y, &z));
}

TEST_F(Renders, OfCallsOnANonUniformSurface)
{
    const int16_t raw[] = {1, 2, 3, 4};
    const int16_t missing[] = {-32768, -32768, -32768, -32768};
    const uint8_t levels[] = {1, 2, 3, 4};
    Expect(1, STATUS_OK,
           Tarvex_Element_Add_SurfaceNonUniform(Id, raw, raw, raw, nullptr, 2, 2, 1, 1, 1, 0, 0, 0,
                                                1, &number));
    Expect(1, STATUS_OK,
           Tarvex_Element_SurfaceNonUniform_SetValue(Id, 0, raw, raw, raw, nullptr, 2, 2, 1, 1, 1,
                                                     0, 0, 0));
    Expect(0, STATUS_BAD_COUNT,
           Tarvex_Element_SurfaceNonUniform_SetValue(Id, 0, raw, raw, missing, nullptr, 2, 2, 1, 1,
                                                     1, 0, 0, 0));
    Expect(0, STATUS_OK, Tarvex_Element_SurfaceNonUniform_AddIntensity(Id, 0, levels, 2, 2));
    Expect(1, STATUS_OK, Tarvex_Element_ShowIntensity_SurfaceNonUniform(Id, 0, 1));
    Expect(0, STATUS_OK, Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode(Id, 0, &red));
    Expect(1, STATUS_OK, Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode(Id, 0, 0));
    Expect(1, STATUS_OK, Tarvex_Element_SetPalette_SurfaceNonUniform(Id, 0, 1));
    // Unlike that of the uniform surface.
    Expect(1, STATUS_OK, Tarvex_Element_GetPalette_SurfaceNonUniform(Id, 0, &palette));
    Expect(1, STATUS_OK, Tarvex_Element_ZScalingPalette_SurfaceNonUniform(Id, 0, 0, 0, 1, 9));
    Expect(0, STATUS_OK,
           Tarvex_Element_GetZScalingPalette_SurfaceNonUniform(Id, 0, &red, &x, &y, &z));
    Expect(0, STATUS_WRONG_TYPE, Tarvex_Element_SetPalette_SurfaceUniform(Id, 0, 1));
}

TEST_F(Renders, OfCallsOnProfiles)
{
    const int16_t raw[] = {1, 2, -32768};
    Expect(1, STATUS_OK, Tarvex_Element_Add_ProfileUniform(Id, raw, 3, 1, 1, 0, 0, 0, &number));
    Expect(1, STATUS_OK,
           Tarvex_Element_Add_ProfileNonUniform(Id, raw, raw, 3, 1, 1, 0, 0, 0, &number));
    Expect(0, STATUS_TOO_SMALL,
           Tarvex_Element_Add_ProfileUniform(Id, raw, 1, 1, 1, 0, 0, 0, &number));
}

TEST_F(Renders, OfCallsOnOverlays)
{
    const int16_t raw[] = {1, 2, 3, 4};
    Tarvex_Element_Add_SurfaceUniform(Id, raw, nullptr, 2, 2, 1, 1, 1, 0, 0, 0, 1, &number);
    AddPoint(0, 0, 0);
    Count = 0;
    Expect(0, STATUS_OK, Tarvex_Window_ScalarBar_Remove(Id));
    Expect(0, STATUS_NOT_READY, Tarvex_Window_ScalarBar_ShowHide(Id, 1));
    Expect(0, STATUS_WRONG_TYPE, Tarvex_Window_ScalarBar_Add(Id, 1));
    Expect(1, STATUS_OK, Tarvex_Window_ScalarBar_Add(Id, 0));
    Expect(1, STATUS_OK, Tarvex_Window_ScalarBar_Add(Id, 0));
    Expect(1, STATUS_OK, Tarvex_Window_ScalarBar_ShowHide(Id, 0));
    Expect(0, STATUS_OK, Tarvex_Window_ScalarBar_IsShown(Id, &red));
    Expect(1, STATUS_OK, Tarvex_Window_ScalarBar_Remove(Id));
    Expect(0, STATUS_OK, Tarvex_Window_PickCoordinates_Show(Id, 0));
    Expect(1, STATUS_OK, Tarvex_Window_PickCoordinates_Show(Id, 1));
    Expect(0, STATUS_OK, Tarvex_Window_PickCoordinates_Show(Id, 1));
    Expect(1, STATUS_OK, Tarvex_Window_PickCoordinates_Show(Id, 0));
}
} // namespace
