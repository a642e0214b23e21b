// What calls that fail leave in the host's variables: each export writes its outputs before it
// tests anything, with a few exceptions. Every export that names an element or belongs to a
// feature that is not built yet has its line here.
#include "support/ViewFixture.h"

#include <dlfcn.h>

#include <span>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace
{
constexpr int kept = 77; // what the host's variables hold before a call

// One argument of a call: some value, an array to read from, or a variable of the host.
template <class T>
struct Argument
{
    T Give() { return static_cast<T>(7); }
    void Tell(std::vector<double>&) const {}
};

template <class T>
struct Argument<const T*>
{
    const T* Give() { return Values; }
    void Tell(std::vector<double>&) const {}
    T Values[64] = {};
};

template <class T>
struct Argument<T*>
{
    T* Give() { return &Value; }
    void Tell(std::vector<double>& outputs) const
    {
        // A palette is unsigned, and -1 all the same.
        outputs.push_back(std::is_same_v<T, uint32_t> ? static_cast<int32_t>(Value)
                                                      : static_cast<double>(Value));
    }
    T Value = kept;
};

class Export
{
public:
    template <class... Rest>
    Export(int32_t (*function)(int32_t, Rest...))
    {
        Dl_info info = {};
        dladdr(reinterpret_cast<void*>(function), &info);
        Name = info.dli_sname ? info.dli_sname : "?";
        Call = [function](int32_t windowId, std::vector<double>& outputs)
        {
            std::tuple<Argument<Rest>...> arguments;
            return std::apply(
                [&](auto&... argument)
                {
                    const int32_t status = function(windowId, argument.Give()...);
                    (argument.Tell(outputs), ...);
                    return status;
                },
                arguments);
        };
    }

    void ExpectFailure(int32_t windowId, int32_t status) const
    {
        std::vector<double> outputs;
        EXPECT_EQ(Call(windowId, outputs), status) << Name;
        const std::vector<double> expected =
            Cleared.size() == 1 ? std::vector<double>(outputs.size(), Cleared[0]) : Cleared;
        EXPECT_EQ(outputs, expected) << Name;
    }

    // The outputs after a failure; a single value stands for all of them.
    std::vector<double> Cleared;

private:
    std::string Name;
    std::function<int32_t(int32_t, std::vector<double>&)> Call;
};

std::vector<Export> Cleared(const std::vector<double>& to, std::vector<Export> exports)
{
    for (Export& cleared : exports)
    {
        cleared.Cleared = to;
    }
    return exports;
}

const std::vector<Export> viewCalls[] = {
    Cleared({0}, {Tarvex_Window_GetDrawSpace, Tarvex_Window_Camera_GetPosition,
                  Tarvex_Window_Camera_GetViewDirection, Tarvex_Element_GetCount}),
    Cleared({-1}, {Tarvex_Window_GetActiveElement, Tarvex_Element_Add_Point,
                   Tarvex_Element_Add_Line, Tarvex_Element_Add_SurfaceUniform,
                   Tarvex_Element_Add_Cube, Tarvex_Element_Add_Polyhedron}),
    Cleared({-1},
            {Tarvex_Element_Add_Ellipse, Tarvex_Element_Add_Plane, Tarvex_Element_Add_Polygon}),
    Cleared({kept},
            {Tarvex_Element_Add_Cylinder, Tarvex_Element_Add_Circle, Tarvex_Element_Add_Rectangle}),
    Cleared({0}, {Tarvex_Window_ScalarBar_IsShown}),
    Cleared({-1}, {Tarvex_Element_Add_SurfaceNonUniform, Tarvex_Element_Add_ProfileUniform,
                   Tarvex_Element_Add_ProfileNonUniform}),
    Cleared({}, {Tarvex_Window_CoordinateAxes_Show, Tarvex_Window_Orientation_Show,
                 Tarvex_Window_Cube_AxisColoring, Tarvex_Window_Cube_FlyMode,
                 Tarvex_Window_Cube_GridLineLocation, Tarvex_Window_Cube_Remove,
                 Tarvex_Window_Cube_ShowHide, Tarvex_Window_Cube_Visibility,
                 Tarvex_Window_ScalarBar_Remove, Tarvex_Window_ScalarBar_ShowHide,
                 Tarvex_Window_PickCoordinates_Show}),
};

const std::vector<Export> elementCalls[] = {
    Cleared({0}, {Tarvex_Element_HasValidValues, Tarvex_Element_GetColor, Tarvex_Element_GetSize,
                  Tarvex_Element_GetTransparency, Tarvex_Element_GetLighting,
                  Tarvex_Element_Point_GetValue, Tarvex_Element_Line_GetValue,
                  Tarvex_Element_GetLength_Line}),
    Cleared({-1}, {Tarvex_Element_GetIDFromIndex, Tarvex_Element_GetType}),
    Cleared({}, {Tarvex_Element_Show, Tarvex_Element_Remove, Tarvex_Element_SetColor,
                 Tarvex_Element_SetSize, Tarvex_Element_SetTransparency, Tarvex_Element_SetLighting,
                 Tarvex_Element_Point_SetValue, Tarvex_Element_Line_SetValue,
                 Tarvex_Element_SetLength_Line, Tarvex_Element_SetDrawLimit_Line,
                 Tarvex_Element_SurfaceUniform_SetValue, Tarvex_Element_SurfaceUniform_AddIntensity,
                 Tarvex_Element_ShowIntensity_SurfaceUniform,
                 Tarvex_Element3D_SurfaceUniform_SetRepresentationMode}),
    Cleared({1}, {Tarvex_Element3D_SurfaceUniform_GetRepresentationMode}),
    Cleared({0}, {Tarvex_Element_Circle_GetValue, Tarvex_Element_Ellipse_GetValue,
                  Tarvex_Element_Plane_GetValue, Tarvex_Element_Plane_GetValue2,
                  Tarvex_Element_GetDrawSize_Plane, Tarvex_Element_Rectangle_GetValue,
                  Tarvex_Element_Polygon_GetPointCount}),
    Cleared({kept}, {Tarvex_Element_Polygon_GetValue}),
    Cleared({}, {Tarvex_Element_Circle_SetValue, Tarvex_Element_Ellipse_SetValue,
                 Tarvex_Element_Plane_SetValue, Tarvex_Element_Plane_SetValue2,
                 Tarvex_Element_SetDrawSize_Plane, Tarvex_Element_Rectangle_SetValue,
                 Tarvex_Element_Polygon_SetValue, Tarvex_Element_Polygon_ChangePoint,
                 Tarvex_Element_Polygon_InsertPoint, Tarvex_Element_Polygon_RemovePoint}),
    Cleared({0}, {Tarvex_Element_Cube_GetValue, Tarvex_Element_Cylinder_GetValue,
                  Tarvex_Element_Cylinder_GetValue2, Tarvex_Element_Polyhedron_GetPointCount}),
    Cleared({kept, kept, kept, 0, 0, 0, 0}, {Tarvex_Element_Polyhedron_GetValue}),
    Cleared({}, {Tarvex_Element_Cube_SetValue, Tarvex_Element_Cylinder_SetValue,
                 Tarvex_Element_Cylinder_SetValue2, Tarvex_Element_Polyhedron_SetValue,
                 Tarvex_Element_Polyhedron_ChangePoint, Tarvex_Element_Polyhedron_InsertPoint,
                 Tarvex_Element_Polyhedron_RemovePoint, Tarvex_Element_Polyhedron_SetAxisDirection,
                 Tarvex_Element_Polyhedron_SetHeight}),
    Cleared({-1}, {Tarvex_Element_GetPalette_SurfaceUniform,
                   Tarvex_Element_GetPalette_SurfaceNonUniform}),
    Cleared({0, -1, 0, 0}, {Tarvex_Element_GetZScalingPalette_SurfaceUniform,
                            Tarvex_Element_GetZScalingPalette_SurfaceNonUniform}),
    Cleared({1}, {Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode}),
    Cleared({}, {Tarvex_Element_SetPalette_SurfaceUniform,
                 Tarvex_Element_ZScalingPalette_SurfaceUniform,
                 Tarvex_Element_SurfaceNonUniform_SetValue,
                 Tarvex_Element_SurfaceNonUniform_AddIntensity,
                 Tarvex_Element_ShowIntensity_SurfaceNonUniform,
                 Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode,
                 Tarvex_Element_SetPalette_SurfaceNonUniform,
                 Tarvex_Element_ZScalingPalette_SurfaceNonUniform, Tarvex_Window_ScalarBar_Add,
                 Tarvex_Window_Cube_Add_Resize}),
};

const std::vector<Export> notBuilt[] = {
    Cleared({-1}, {Tarvex_Window_GetDrawMode}),
    Cleared({}, {Tarvex_Window_SetDrawMode}),
};

const std::vector<Export> charts[] = {
    Cleared({0},
            {Tarvex_Window2D_GetDrawSpace, Tarvex_Element2D_GetCount,
             Tarvex_Element2D_HasValidValues, Tarvex_Element2D_GetColor, Tarvex_Element2D_GetSize,
             Tarvex_Element2D_ProfileNonUniform_GetPointCount,
             Tarvex_Element2D_ProfileUniform_GetPointCount, Tarvex_Element2D_Image_GetImageSize,
             Tarvex_Element2D_Point_GetValue, Tarvex_Element2D_Line_GetValue,
             Tarvex_Element2D_Circle_GetValue, Tarvex_Element2D_Ellipse_GetValue,
             Tarvex_Element2D_Rectangle_GetValue, Tarvex_Element2D_Polygon_GetPointCount}),
    Cleared({-1},
            {Tarvex_Window2D_GetActiveElement, Tarvex_Window2D_GetDrawMode,
             Tarvex_Element2D_GetIDFromIndex, Tarvex_Element2D_GetType,
             Tarvex_Element2D_Add_ProfileNonUniform_GeneralData,
             Tarvex_Element2D_Add_ProfileNonUniform_KorData, Tarvex_Element2D_Add_ProfileUniform,
             Tarvex_Element2D_Add_ImageByte, Tarvex_Element2D_Add_ImageShort,
             Tarvex_Element2D_GetPalette_Image, Tarvex_Element2D_Add_Point,
             Tarvex_Element2D_Add_Line, Tarvex_Element2D_Add_Line_2Points,
             Tarvex_Element2D_Add_Ellipse, Tarvex_Element2D_Add_Polygon}),
    Cleared({}, {Tarvex_Window2D_UpdateSize}),
    Cleared({kept}, {Tarvex_Element2D_ProfileNonUniform_GetValue,
                     Tarvex_Element2D_ProfileUniform_GetValue, Tarvex_Element2D_Add_Circle,
                     Tarvex_Element2D_Add_Rectangle, Tarvex_Element2D_Polygon_GetValue}),
    Cleared({kept, 0, 0, 0, 0, 0, 0}, {Tarvex_Element2D_Image_GetValue}),
};

class Outputs : public ViewFixture
{
protected:
    static void ExpectFailure(std::span<const std::vector<Export>> groups, int32_t windowId,
                              int32_t status)
    {
        for (const std::vector<Export>& group : groups)
        {
            for (const Export& tested : group)
            {
                tested.ExpectFailure(windowId, status);
            }
        }
    }
};

TEST_F(Outputs, AreClearedWhenNoViewHasTheId)
{
    for (const int32_t unknown : {Id + 1, TARVEX_NONE})
    {
        ExpectFailure(viewCalls, unknown, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(elementCalls, unknown, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(notBuilt, unknown, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(charts, unknown, STATUS_WINDOW_NOT_FOUND);
    }
}

TEST_F(Outputs, AreClearedWhenNoElementHasTheId)
{
    AddPoint(0, 0, 0);
    ExpectFailure(elementCalls, Id, STATUS_BAD_INDEX);
}

TEST_F(Outputs, AreClearedWhenTheFeatureIsNotBuilt)
{
    // A feature that gets built moves its exports into the other lists.
    ExpectFailure(notBuilt, Id, STATUS_NOT_SUPPORTED);
    int32_t chart = kept;
    EXPECT_EQ(Tarvex_Window2D_Create(Host.Handle(), 0, 0, 0, 50, 50, &chart), STATUS_NOT_SUPPORTED);
    EXPECT_EQ(chart, TARVEX_NONE);
}
} // namespace
