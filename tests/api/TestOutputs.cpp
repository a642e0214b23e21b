// What calls that fail leave in the host's variables: each export writes its outputs before it
// tests anything, with a few exceptions. Every export that has outputs is listed here.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

#include <dlfcn.h>

#include <map>

namespace
{
constexpr double kept = 77; // what the host's variables hold before a call

// A single value stands for all outputs.
const std::map<std::string, Numbers> exceptions = {
    {"TarvexExt_Window_CopyImage", {kept, 0, 0}},
    {"TarvexExt_Window2D_CopyImage", {kept, 0, 0}},
    {"Tarvex_Element_GetDefault", {kept}},
    {"Tarvex_Element_Add_Circle", {kept}},
    {"Tarvex_Element_Add_Cylinder", {kept}},
    {"Tarvex_Element_Add_Rectangle", {kept}},
    {"Tarvex_Element_Polygon_GetValue", {kept}},
    {"Tarvex_Element_Polyhedron_GetValue", {kept, kept, kept, 0, 0, 0, 0}},
    {"Tarvex_Element_GetZScalingPalette_SurfaceUniform", {0, -1, 0, 0}},
    {"Tarvex_Element_GetZScalingPalette_SurfaceNonUniform", {0, -1, 0, 0}},
    {"Tarvex_Element3D_SurfaceUniform_GetRepresentationMode", {1}},
    {"Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode", {1}},
    {"Tarvex_Element2D_Add_Circle", {kept}},
    {"Tarvex_Element2D_Add_Rectangle", {kept}},
    {"Tarvex_Element2D_Polygon_GetValue", {kept}},
    {"Tarvex_Element2D_ProfileUniform_GetValue", {kept}},
    {"Tarvex_Element2D_ProfileNonUniform_GetValue", {kept}},
    {"Tarvex_Element2D_Image_GetValue", {kept, 0, 0, 0, 0, 0, 0}}};

template <class... Functions>
std::vector<Export> Exports(Functions... functions)
{
    return {functions...};
}

const auto viewCalls =
    Exports(Tarvex_Element_Add_Circle, Tarvex_Element_Add_Cube, Tarvex_Element_Add_Cylinder,
            Tarvex_Element_Add_Ellipse, Tarvex_Element_Add_Line, Tarvex_Element_Add_Plane,
            Tarvex_Element_Add_Point, Tarvex_Element_Add_Polygon, Tarvex_Element_Add_Polyhedron,
            Tarvex_Element_Add_ProfileNonUniform, Tarvex_Element_Add_ProfileUniform,
            Tarvex_Element_Add_Rectangle, Tarvex_Element_Add_SurfaceNonUniform,
            Tarvex_Element_Add_SurfaceUniform, Tarvex_Element_GetCount, Tarvex_Element_GetDefault,
            Tarvex_Window_Camera_GetPosition, Tarvex_Window_Camera_GetViewDirection,
            Tarvex_Window_GetActiveElement, Tarvex_Window_GetDrawMode, Tarvex_Window_GetDrawSpace,
            Tarvex_Window_ScalarBar_IsShown);

const auto elementCalls = Exports(
    Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode,
    Tarvex_Element3D_SurfaceUniform_GetRepresentationMode, Tarvex_Element_Circle_GetValue,
    Tarvex_Element_Cube_GetValue, Tarvex_Element_Cylinder_GetValue,
    Tarvex_Element_Cylinder_GetValue2, Tarvex_Element_Ellipse_GetValue, Tarvex_Element_GetColor,
    Tarvex_Element_GetDrawSize_Plane, Tarvex_Element_GetIDFromIndex, Tarvex_Element_GetLength_Line,
    Tarvex_Element_GetLighting, Tarvex_Element_GetPalette_SurfaceNonUniform,
    Tarvex_Element_GetPalette_SurfaceUniform, Tarvex_Element_GetSize,
    Tarvex_Element_GetTransparency, Tarvex_Element_GetType,
    Tarvex_Element_GetZScalingPalette_SurfaceNonUniform,
    Tarvex_Element_GetZScalingPalette_SurfaceUniform, Tarvex_Element_HasValidValues,
    Tarvex_Element_Line_GetValue, Tarvex_Element_Plane_GetValue, Tarvex_Element_Plane_GetValue2,
    Tarvex_Element_Point_GetValue, Tarvex_Element_Polygon_GetPointCount,
    Tarvex_Element_Polygon_GetValue, Tarvex_Element_Polyhedron_GetPointCount,
    Tarvex_Element_Polyhedron_GetValue, Tarvex_Element_Rectangle_GetValue);

// Of a view, pictures tell their size.
const auto chartsAndPictures = Exports(
    TarvexExt_Window_CopyImage, TarvexExt_Window2D_CopyImage, Tarvex_Element2D_Add_Circle,
    Tarvex_Element2D_Add_Ellipse, Tarvex_Element2D_Add_ImageByte, Tarvex_Element2D_Add_ImageShort,
    Tarvex_Element2D_Add_Line, Tarvex_Element2D_Add_Line_2Points, Tarvex_Element2D_Add_Point,
    Tarvex_Element2D_Add_Polygon, Tarvex_Element2D_Add_ProfileNonUniform_GeneralData,
    Tarvex_Element2D_Add_ProfileNonUniform_KorData, Tarvex_Element2D_Add_ProfileUniform,
    Tarvex_Element2D_Add_Rectangle, Tarvex_Element2D_Circle_GetValue,
    Tarvex_Element2D_Ellipse_GetValue, Tarvex_Element2D_GetColor, Tarvex_Element2D_GetCount,
    Tarvex_Element2D_GetIDFromIndex, Tarvex_Element2D_GetPalette_Image, Tarvex_Element2D_GetSize,
    Tarvex_Element2D_GetType, Tarvex_Element2D_HasValidValues, Tarvex_Element2D_Image_GetImageSize,
    Tarvex_Element2D_Image_GetValue, Tarvex_Element2D_Line_GetValue,
    Tarvex_Element2D_Point_GetValue, Tarvex_Element2D_Polygon_GetPointCount,
    Tarvex_Element2D_Polygon_GetValue, Tarvex_Element2D_ProfileNonUniform_GetPointCount,
    Tarvex_Element2D_ProfileNonUniform_GetValue, Tarvex_Element2D_ProfileUniform_GetPointCount,
    Tarvex_Element2D_ProfileUniform_GetValue, Tarvex_Element2D_Rectangle_GetValue,
    Tarvex_Window2D_GetActiveElement, Tarvex_Window2D_GetDrawMode, Tarvex_Window2D_GetDrawSpace);

class Outputs : public ViewFixture
{
protected:
    // Only `status`, if there is one given.
    static void ExpectFailure(const std::vector<Export>& calls, int32_t view, int32_t status = 0)
    {
        for (const Export& call : calls)
        {
            Dl_info info = {};
            dladdr(call.Address, &info);
            const std::string name = info.dli_sname;
            Numbers outputs;
            const int32_t answer = call.Perform(view, {}, outputs);
            EXPECT_TRUE(answer == status || status == 0) << name << " answers " << answer;
            // Ids, types, palettes and draw modes become -1.
            const bool counts = name.find("Count") != name.npos || name.find("Size") != name.npos;
            Numbers expected = {call.HasIntegers && !counts ? -1.0 : 0.0};
            if (const auto exception = exceptions.find(name); exception != exceptions.end())
            {
                expected = exception->second;
            }
            expected.resize(expected.size() == 1 ? outputs.size() : expected.size(), expected[0]);
            EXPECT_TRUE(answer == STATUS_OK || outputs == expected)
                << name << ": " << testing::PrintToString(outputs);
        }
    }
};

TEST_F(Outputs, AreClearedWhenNoViewHasTheId)
{
    for (const int32_t unknown : {Id + 1, TARVEX_NONE})
    {
        ExpectFailure(viewCalls, unknown, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(elementCalls, unknown, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(chartsAndPictures, unknown, STATUS_WINDOW_NOT_FOUND);
    }
}

TEST_F(Outputs, AreClearedWhenNoElementHasTheId)
{
    ExpectFailure(elementCalls, Id, STATUS_BAD_INDEX);
}

TEST_F(Outputs, AreClearedByWhateverFailsInAView)
{
    // Be it for its arguments or because its feature is not built.
    ExpectFailure(viewCalls, Id);
    int32_t chart = 77;
    const int32_t status = Tarvex_Window2D_Create(Host.Handle(), 0, 0, 0, 50, 50, &chart);
    EXPECT_EQ(chart == TARVEX_NONE, status != STATUS_OK);
    Tarvex_Window2D_Delete(chart);
}
} // namespace
