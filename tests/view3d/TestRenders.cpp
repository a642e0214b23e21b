// How often each call draws the view: a host that adds a thousand elements pays for each picture,
// and one that reads values back must know which reads draw.
#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

namespace
{
struct Step
{
    int Renders;
    int32_t Status;
    Export Function;
    Numbers Given = {};
};

const int16_t heights[] = {1, 2, 3, -32768};
int32_t AddSurface(int32_t view, int32_t rows, int32_t* id)
{
    return Tarvex_Element_Add_SurfaceUniform(view, heights, nullptr, 2, rows, 1, 1, 1, 0, 0, 0, 1,
                                             id);
}
int32_t SetSurface(int32_t view, int32_t id, int32_t rows)
{
    return Tarvex_Element_SurfaceUniform_SetValue(view, id, heights, nullptr, 2, rows, 1, 1, 1, 0,
                                                  0, 0);
}
// Positions, heights and intensities of a surface of 2 by 2, its grid; without a valid sample.
const Numbers cloud = {1, 2, 3, 4, 1, 2, 3, 4, 1, 2, 3, 4, 0, 0, 0, 0, 2, 2, 1, 1, 1};
const Numbers emptyCloud = {1,      2, 3, 4, 1, 2, 3, 4, -32768, -32768, -32768,
                            -32768, 0, 0, 0, 0, 2, 2, 1, 1,      1};
Numbers With(double element, Numbers given)
{
    given.insert(given.begin(), element);
    return given;
}

using Renders = ViewFixture;

TEST_F(Renders, AreAsManyAsTheCallsPromise)
{
    RenderCounter renders(Id);
    // The elements: two points, a line, a cube, a cylinder, a polyhedron, two surfaces, two
    // profiles.
    const Step steps[] = {
        {0, STATUS_OK, Tarvex_Window_UpdateSize, {0, 0, 99, 98}},
        {1, STATUS_OK, Tarvex_Window_SetBackgroundColor},
        {0, STATUS_OK, Tarvex_Window_SetDrawSpace, {0, 1, 0, 1, 0, 1}},
        {0, STATUS_OK, Tarvex_Window_GetDrawSpace},
        {1, STATUS_OK, Tarvex_Window_Camera_AutoSize},
        {1, STATUS_OK, Tarvex_Window_Camera_EnableParallelProjection},
        {0, STATUS_OK, Tarvex_Window_Camera_GetPosition},
        {1, STATUS_OK, Tarvex_Window_Camera_SetPosition},
        {1, STATUS_OK, Tarvex_Window_Camera_SetPredefinedView, {1}},
        {1, STATUS_OK, Tarvex_Window_Camera_SetViewDirection, {1, 0, 0, 0, 0, 1}},
        {1, STATUS_OK, Tarvex_Window_Camera_SetZoom},
        {1, STATUS_OK, Tarvex_Element_Add_Point},
        {1, STATUS_OK, Tarvex_Element_Add_Point, {NaN}},
        {0, STATUS_OK, Tarvex_Element_GetType, {0}},
        {0, STATUS_OK, Tarvex_Element_HasValidValues, {0}},
        {1, STATUS_OK, Tarvex_Element_SetColor, {0}},
        {1, STATUS_OK, Tarvex_Element_GetColor, {0}},
        {1, STATUS_OK, Tarvex_Element_SetSize, {0}},
        {1, STATUS_OK, Tarvex_Element_GetSize, {0}},
        {1, STATUS_OK, Tarvex_Element_SetTransparency, {0, 0.5}},
        {1, STATUS_OK, Tarvex_Element_GetTransparency, {0}},
        {1, STATUS_OK, Tarvex_Element_SetLighting, {0, 1, 0, 0, 1}},
        {1, STATUS_OK, Tarvex_Element_GetLighting, {0}},
        {1, STATUS_OK, Tarvex_Element_Show, {0}},
        {1, STATUS_OK, Tarvex_Element_Point_SetValue, {0}},
        {0, STATUS_OK, Tarvex_Element_Point_GetValue, {0}},
        {1, STATUS_OK, Tarvex_Element_Add_Line, {0, 0, 0, 1, 0, 0}},
        {0, STATUS_OK, Tarvex_Element_Line_GetValue, {2}},
        {1, STATUS_OK, Tarvex_Element_GetLength_Line, {2}},
        {1, STATUS_OK, Tarvex_Element_SetLength_Line, {2, 0}},
        {1, STATUS_TOO_SMALL, Tarvex_Element_SetLength_Line, {2, 5, 5}},
        {1, STATUS_OK, Tarvex_Element_SetDrawLimit_Line, {2, -1, 1, -1, 1, -1, 1}},
        {1, STATUS_OUT_OF_RANGE, Tarvex_Element_SetDrawLimit_Line, {2}},
        {1, STATUS_OK, Tarvex_Element_Line_SetValue, {2, 0, 0, 0, 0, 0, 0}},
        {1, STATUS_INVALID_VALUES, Tarvex_Element_GetLength_Line, {2}},
        {1, STATUS_OK, Tarvex_Element_Add_Cube},
        {1, STATUS_OK, Tarvex_Element_Cube_SetValue, {3, 0, 0, 0, 0, 0, 0, 0}},
        {1, STATUS_OK, Tarvex_Element_Add_Cylinder, {0, 0, 0, 1, 1, 1, 1}},
        {1, STATUS_TOO_SMALL, Tarvex_Element_Cylinder_SetValue2, {4, 0, 0, 0, 0, 0, 0, 1, 1}},
        {1,
         STATUS_OK,
         Tarvex_Element_Add_Polyhedron,
         {3, 0, 3, 0, 0, 0, 0, 3, 0, 0, 0, 0, 0, 0, 0, 1, 1}},
        {0, STATUS_OK, Tarvex_Element_Polyhedron_GetPointCount, {5}},
        {1, STATUS_OK, Tarvex_Element_Polyhedron_SetHeight, {5, 3}},
        {1, STATUS_TOO_SMALL, Tarvex_Element_Polyhedron_SetHeight, {5, 0}},
        {1, STATUS_OK, Tarvex_Element_Polyhedron_SetAxisDirection, {5, 0, 1, 0}},
        {0, STATUS_OK, Tarvex_Window_SetActiveElement, {5}},
        {1, STATUS_OK, AddSurface, {2}},
        {0, STATUS_TOO_SMALL, AddSurface, {1}},
        {1, STATUS_OK, SetSurface, {6, 2}},
        {0, STATUS_TOO_SMALL, SetSurface, {6, 1}},
        {1, STATUS_NOT_READY, Tarvex_Element_ShowIntensity_SurfaceUniform, {6}},
        {0, STATUS_OK, Tarvex_Element_SurfaceUniform_AddIntensity, {6, 1, 2, 3, 4, 2, 2}},
        {1, STATUS_OK, Tarvex_Element_ShowIntensity_SurfaceUniform, {6}},
        {0, STATUS_OK, Tarvex_Element3D_SurfaceUniform_GetRepresentationMode, {6}},
        {1, STATUS_OK, Tarvex_Element3D_SurfaceUniform_SetRepresentationMode, {6, 0}},
        {1, STATUS_OK, Tarvex_Element_SetPalette_SurfaceUniform, {6, 1}},
        {1, STATUS_OUT_OF_RANGE, Tarvex_Element_SetPalette_SurfaceUniform, {6, 7}},
        {0, STATUS_OK, Tarvex_Element_GetPalette_SurfaceUniform, {6}},
        {1, STATUS_BAD_POINT, Tarvex_Element_ZScalingPalette_SurfaceUniform, {6, 1, 0, 0, 0}},
        {0, STATUS_OK, Tarvex_Element_GetZScalingPalette_SurfaceUniform, {6}},
        {1, STATUS_OK, Tarvex_Element_Add_SurfaceNonUniform, cloud},
        {1, STATUS_OK, Tarvex_Element_SurfaceNonUniform_SetValue, With(7, cloud)},
        {0, STATUS_BAD_COUNT, Tarvex_Element_SurfaceNonUniform_SetValue, With(7, emptyCloud)},
        {0, STATUS_OK, Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode, {7}},
        {1, STATUS_OK, Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode, {7, 0}},
        {1, STATUS_OK, Tarvex_Element_SetPalette_SurfaceNonUniform, {7, 1}},
        {1, STATUS_OK, Tarvex_Element_GetPalette_SurfaceNonUniform, {7}},
        {1, STATUS_OK, Tarvex_Element_ZScalingPalette_SurfaceNonUniform, {7, 0, 0, 1, 9}},
        {0, STATUS_OK, Tarvex_Element_GetZScalingPalette_SurfaceNonUniform, {7}},
        {1, STATUS_OK, Tarvex_Element_Add_ProfileUniform, {1, 2, 3, 4, 4, 1, 1, 0, 0, 0}},
        {1, STATUS_OK, Tarvex_Element_Add_ProfileNonUniform, {1, 2, 3, 4, 1, 2, 3, 4, 4}},
        {1, STATUS_OK, Tarvex_Window_SetDrawMode, {TARVEX_DRAW_CUBE}},
        {1, STATUS_OK, Tarvex_Window_SetDrawMode, {TARVEX_DRAW_POLYGON}},
        {0, STATUS_OK, Tarvex_Window_SetDrawMode, {TARVEX_DRAW_NO_SHAPE}},
        {0, STATUS_OK, Tarvex_Window_GetDrawMode},
        {1, STATUS_OK, Tarvex_Window_SetDrawMode, {TARVEX_DRAW_NONE}},
        {0, STATUS_OK, Tarvex_Window_ScalarBar_Remove},
        {1, STATUS_OK, Tarvex_Window_ScalarBar_Add, {6}},
        {1, STATUS_OK, Tarvex_Window_ScalarBar_Add, {6}},
        {1, STATUS_OK, Tarvex_Window_ScalarBar_ShowHide, {0}},
        {0, STATUS_OK, Tarvex_Window_ScalarBar_IsShown},
        {1, STATUS_OK, Tarvex_Window_ScalarBar_Remove},
        {0, STATUS_OK, Tarvex_Window_PickCoordinates_Show, {0}},
        {1, STATUS_OK, Tarvex_Window_PickCoordinates_Show},
        {0, STATUS_OK, Tarvex_Window_PickCoordinates_Show},
        {1, STATUS_OK, Tarvex_Window_PickCoordinates_Show, {0}},
        {1, STATUS_OK, Tarvex_Element_Remove, {0}},
        {1, STATUS_OK, Tarvex_Element_RemoveAll},
    };
    for (const Step& step : steps)
    {
        SCOPED_TRACE(testing::Message() << "step " << &step - steps);
        renders.Count = 0;
        EXPECT_EQ(Call(step.Function, step.Given), step.Status);
        EXPECT_EQ(renders.Count, step.Renders);
    }
}
} // namespace
