/* The public header in plain C: it compiles on its own, each function of the interface is declared
 * and linked under its name, and calls work across the language border.
 *
 * Usage: TestHeaderC EXPORTS, the file that lists the names of the interface. */
#include "Tarvex.h"

#include <stdio.h>
#include <string.h>

typedef void (*Function)(void);

typedef struct
{
    const char* Name;
    Function Address;
} Export;

/* Name and function cannot differ. */
#define EXPORT(function) #function, (Function)function

static const Export Exports[] = {
    {EXPORT(Tarvex_Element2D_Add_Circle)},
    {EXPORT(Tarvex_Element2D_Add_Ellipse)},
    {EXPORT(Tarvex_Element2D_Add_ImageByte)},
    {EXPORT(Tarvex_Element2D_Add_ImageShort)},
    {EXPORT(Tarvex_Element2D_Add_Line)},
    {EXPORT(Tarvex_Element2D_Add_Line_2Points)},
    {EXPORT(Tarvex_Element2D_Add_Point)},
    {EXPORT(Tarvex_Element2D_Add_Polygon)},
    {EXPORT(Tarvex_Element2D_Add_ProfileNonUniform_GeneralData)},
    {EXPORT(Tarvex_Element2D_Add_ProfileNonUniform_KorData)},
    {EXPORT(Tarvex_Element2D_Add_ProfileUniform)},
    {EXPORT(Tarvex_Element2D_Add_Rectangle)},
    {EXPORT(Tarvex_Element2D_Circle_GetValue)},
    {EXPORT(Tarvex_Element2D_Circle_SetValue)},
    {EXPORT(Tarvex_Element2D_Ellipse_GetValue)},
    {EXPORT(Tarvex_Element2D_Ellipse_SetValue)},
    {EXPORT(Tarvex_Element2D_GetColor)},
    {EXPORT(Tarvex_Element2D_GetCount)},
    {EXPORT(Tarvex_Element2D_GetIDFromIndex)},
    {EXPORT(Tarvex_Element2D_GetPalette_Image)},
    {EXPORT(Tarvex_Element2D_GetSize)},
    {EXPORT(Tarvex_Element2D_GetType)},
    {EXPORT(Tarvex_Element2D_HasValidValues)},
    {EXPORT(Tarvex_Element2D_Image_GetImageSize)},
    {EXPORT(Tarvex_Element2D_Image_GetValue)},
    {EXPORT(Tarvex_Element2D_Image_SetValueByte)},
    {EXPORT(Tarvex_Element2D_Image_SetValueShort)},
    {EXPORT(Tarvex_Element2D_Line_GetValue)},
    {EXPORT(Tarvex_Element2D_Line_SetValue)},
    {EXPORT(Tarvex_Element2D_Point_GetValue)},
    {EXPORT(Tarvex_Element2D_Point_SetValue)},
    {EXPORT(Tarvex_Element2D_Polygon_ChangePoint)},
    {EXPORT(Tarvex_Element2D_Polygon_GetPointCount)},
    {EXPORT(Tarvex_Element2D_Polygon_GetValue)},
    {EXPORT(Tarvex_Element2D_Polygon_InsertPoint)},
    {EXPORT(Tarvex_Element2D_Polygon_RemovePoint)},
    {EXPORT(Tarvex_Element2D_Polygon_SetValue)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_AttachValues_GeneralData)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_GetPointCount)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_GetValue)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_SetMarkerSize)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_SetValue_GeneralData)},
    {EXPORT(Tarvex_Element2D_ProfileNonUniform_SetValue_KorData)},
    {EXPORT(Tarvex_Element2D_ProfileUniform_GetPointCount)},
    {EXPORT(Tarvex_Element2D_ProfileUniform_GetValue)},
    {EXPORT(Tarvex_Element2D_ProfileUniform_SetValue)},
    {EXPORT(Tarvex_Element2D_Rectangle_GetValue)},
    {EXPORT(Tarvex_Element2D_Rectangle_SetValue)},
    {EXPORT(Tarvex_Element2D_Remove)},
    {EXPORT(Tarvex_Element2D_RemoveAll)},
    {EXPORT(Tarvex_Element2D_SetColor)},
    {EXPORT(Tarvex_Element2D_SetPalette_Image)},
    {EXPORT(Tarvex_Element2D_SetSize)},
    {EXPORT(Tarvex_Element2D_Show)},
    {EXPORT(Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode)},
    {EXPORT(Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode)},
    {EXPORT(Tarvex_Element3D_SurfaceUniform_GetRepresentationMode)},
    {EXPORT(Tarvex_Element3D_SurfaceUniform_SetRepresentationMode)},
    {EXPORT(Tarvex_Element_Add_Circle)},
    {EXPORT(Tarvex_Element_Add_Cube)},
    {EXPORT(Tarvex_Element_Add_Cylinder)},
    {EXPORT(Tarvex_Element_Add_Ellipse)},
    {EXPORT(Tarvex_Element_Add_Line)},
    {EXPORT(Tarvex_Element_Add_Plane)},
    {EXPORT(Tarvex_Element_Add_Point)},
    {EXPORT(Tarvex_Element_Add_Polygon)},
    {EXPORT(Tarvex_Element_Add_Polyhedron)},
    {EXPORT(Tarvex_Element_Add_ProfileNonUniform)},
    {EXPORT(Tarvex_Element_Add_ProfileUniform)},
    {EXPORT(Tarvex_Element_Add_Rectangle)},
    {EXPORT(Tarvex_Element_Add_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_Add_SurfaceUniform)},
    {EXPORT(Tarvex_Element_Circle_GetValue)},
    {EXPORT(Tarvex_Element_Circle_SetValue)},
    {EXPORT(Tarvex_Element_Cube_GetValue)},
    {EXPORT(Tarvex_Element_Cube_SetValue)},
    {EXPORT(Tarvex_Element_Cylinder_GetValue)},
    {EXPORT(Tarvex_Element_Cylinder_GetValue2)},
    {EXPORT(Tarvex_Element_Cylinder_SetValue)},
    {EXPORT(Tarvex_Element_Cylinder_SetValue2)},
    {EXPORT(Tarvex_Element_Ellipse_GetValue)},
    {EXPORT(Tarvex_Element_Ellipse_SetValue)},
    {EXPORT(Tarvex_Element_GetColor)},
    {EXPORT(Tarvex_Element_GetCount)},
    {EXPORT(Tarvex_Element_GetDefault)},
    {EXPORT(Tarvex_Element_GetDrawSize_Plane)},
    {EXPORT(Tarvex_Element_GetIDFromIndex)},
    {EXPORT(Tarvex_Element_GetLength_Line)},
    {EXPORT(Tarvex_Element_GetLighting)},
    {EXPORT(Tarvex_Element_GetPalette_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_GetPalette_SurfaceUniform)},
    {EXPORT(Tarvex_Element_GetSize)},
    {EXPORT(Tarvex_Element_GetTransparency)},
    {EXPORT(Tarvex_Element_GetType)},
    {EXPORT(Tarvex_Element_GetZScalingPalette_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_GetZScalingPalette_SurfaceUniform)},
    {EXPORT(Tarvex_Element_HasValidValues)},
    {EXPORT(Tarvex_Element_Line_GetValue)},
    {EXPORT(Tarvex_Element_Line_SetValue)},
    {EXPORT(Tarvex_Element_Plane_GetValue)},
    {EXPORT(Tarvex_Element_Plane_GetValue2)},
    {EXPORT(Tarvex_Element_Plane_SetValue)},
    {EXPORT(Tarvex_Element_Plane_SetValue2)},
    {EXPORT(Tarvex_Element_Point_GetValue)},
    {EXPORT(Tarvex_Element_Point_SetValue)},
    {EXPORT(Tarvex_Element_Polygon_ChangePoint)},
    {EXPORT(Tarvex_Element_Polygon_GetPointCount)},
    {EXPORT(Tarvex_Element_Polygon_GetValue)},
    {EXPORT(Tarvex_Element_Polygon_InsertPoint)},
    {EXPORT(Tarvex_Element_Polygon_RemovePoint)},
    {EXPORT(Tarvex_Element_Polygon_SetValue)},
    {EXPORT(Tarvex_Element_Polyhedron_ChangePoint)},
    {EXPORT(Tarvex_Element_Polyhedron_GetPointCount)},
    {EXPORT(Tarvex_Element_Polyhedron_GetValue)},
    {EXPORT(Tarvex_Element_Polyhedron_InsertPoint)},
    {EXPORT(Tarvex_Element_Polyhedron_RemovePoint)},
    {EXPORT(Tarvex_Element_Polyhedron_SetAxisDirection)},
    {EXPORT(Tarvex_Element_Polyhedron_SetHeight)},
    {EXPORT(Tarvex_Element_Polyhedron_SetValue)},
    {EXPORT(Tarvex_Element_Rectangle_GetValue)},
    {EXPORT(Tarvex_Element_Rectangle_SetValue)},
    {EXPORT(Tarvex_Element_Remove)},
    {EXPORT(Tarvex_Element_RemoveAll)},
    {EXPORT(Tarvex_Element_SetColor)},
    {EXPORT(Tarvex_Element_SetDefault)},
    {EXPORT(Tarvex_Element_SetDrawLimit_Line)},
    {EXPORT(Tarvex_Element_SetDrawSize_Plane)},
    {EXPORT(Tarvex_Element_SetLength_Line)},
    {EXPORT(Tarvex_Element_SetLighting)},
    {EXPORT(Tarvex_Element_SetPalette_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_SetPalette_SurfaceUniform)},
    {EXPORT(Tarvex_Element_SetSize)},
    {EXPORT(Tarvex_Element_SetTransparency)},
    {EXPORT(Tarvex_Element_Show)},
    {EXPORT(Tarvex_Element_ShowIntensity_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_ShowIntensity_SurfaceUniform)},
    {EXPORT(Tarvex_Element_SurfaceNonUniform_AddIntensity)},
    {EXPORT(Tarvex_Element_SurfaceNonUniform_SetValue)},
    {EXPORT(Tarvex_Element_SurfaceUniform_AddIntensity)},
    {EXPORT(Tarvex_Element_SurfaceUniform_SetValue)},
    {EXPORT(Tarvex_Element_ZScalingPalette_SurfaceNonUniform)},
    {EXPORT(Tarvex_Element_ZScalingPalette_SurfaceUniform)},
    {EXPORT(Tarvex_Window2D_ChartAutoScale)},
    {EXPORT(Tarvex_Window2D_Create)},
    {EXPORT(Tarvex_Window2D_Delete)},
    {EXPORT(Tarvex_Window2D_GetActiveElement)},
    {EXPORT(Tarvex_Window2D_GetCount)},
    {EXPORT(Tarvex_Window2D_GetDrawMode)},
    {EXPORT(Tarvex_Window2D_GetDrawSpace)},
    {EXPORT(Tarvex_Window2D_GetIDFromIndex)},
    {EXPORT(Tarvex_Window2D_RegisterCallback_ElementAdded)},
    {EXPORT(Tarvex_Window2D_RegisterCallback_ElementDragged)},
    {EXPORT(Tarvex_Window2D_SetActiveElement)},
    {EXPORT(Tarvex_Window2D_SetBackgroundColor)},
    {EXPORT(Tarvex_Window2D_SetChartLayout)},
    {EXPORT(Tarvex_Window2D_SetDrawMode)},
    {EXPORT(Tarvex_Window2D_SetDrawSpace)},
    {EXPORT(Tarvex_Window2D_UpdateSize)},
    {EXPORT(Tarvex_Window_Camera_AutoSize)},
    {EXPORT(Tarvex_Window_Camera_EnableParallelProjection)},
    {EXPORT(Tarvex_Window_Camera_GetPosition)},
    {EXPORT(Tarvex_Window_Camera_GetViewDirection)},
    {EXPORT(Tarvex_Window_Camera_SetPosition)},
    {EXPORT(Tarvex_Window_Camera_SetPredefinedView)},
    {EXPORT(Tarvex_Window_Camera_SetViewDirection)},
    {EXPORT(Tarvex_Window_Camera_SetZoom)},
    {EXPORT(Tarvex_Window_CoordinateAxes_Show)},
    {EXPORT(Tarvex_Window_Create)},
    {EXPORT(Tarvex_Window_Cube_Add_Resize)},
    {EXPORT(Tarvex_Window_Cube_AxisColoring)},
    {EXPORT(Tarvex_Window_Cube_FlyMode)},
    {EXPORT(Tarvex_Window_Cube_GridLineLocation)},
    {EXPORT(Tarvex_Window_Cube_Remove)},
    {EXPORT(Tarvex_Window_Cube_ShowHide)},
    {EXPORT(Tarvex_Window_Cube_Visibility)},
    {EXPORT(Tarvex_Window_Delete)},
    {EXPORT(Tarvex_Window_DeleteAll)},
    {EXPORT(Tarvex_Window_EnableInteraction)},
    {EXPORT(Tarvex_Window_EnableMouseInteraction)},
    {EXPORT(Tarvex_Window_GetActiveElement)},
    {EXPORT(Tarvex_Window_GetCount)},
    {EXPORT(Tarvex_Window_GetDrawMode)},
    {EXPORT(Tarvex_Window_GetDrawSpace)},
    {EXPORT(Tarvex_Window_GetIDFromIndex)},
    {EXPORT(Tarvex_Window_Orientation_Show)},
    {EXPORT(Tarvex_Window_PickCoordinates_Show)},
    {EXPORT(Tarvex_Window_RegisterCallback_ElementAdded)},
    {EXPORT(Tarvex_Window_RegisterCallback_ElementDragged)},
    {EXPORT(Tarvex_Window_ScalarBar_Add)},
    {EXPORT(Tarvex_Window_ScalarBar_IsShown)},
    {EXPORT(Tarvex_Window_ScalarBar_Remove)},
    {EXPORT(Tarvex_Window_ScalarBar_ShowHide)},
    {EXPORT(Tarvex_Window_SetActiveElement)},
    {EXPORT(Tarvex_Window_SetBackgroundColor)},
    {EXPORT(Tarvex_Window_SetDrawMode)},
    {EXPORT(Tarvex_Window_SetDrawSpace)},
    {EXPORT(Tarvex_Window_UpdateSize)},
};

static const size_t ExportCount = sizeof(Exports) / sizeof(Exports[0]);

static int Failures = 0;

static void Expect(int condition, const char* what)
{
    if (!condition)
    {
        fprintf(stderr, "TestHeaderC: failed: %s\n", what);
        ++Failures;
    }
}

/* The table above holds the listed names in the listed order, and each has an address. */
static void TestTheListedFunctionsAreDeclaredAndLinked(const char* path)
{
    char line[128];
    size_t row = 0;
    FILE* list = fopen(path, "r");
    if (list == NULL)
    {
        fprintf(stderr, "TestHeaderC: cannot read %s\n", path);
        ++Failures;
        return;
    }

    while (fgets(line, sizeof(line), list) != NULL)
    {
        line[strcspn(line, "\r\n")] = '\0';
        if (row < ExportCount && strcmp(line, Exports[row].Name) == 0)
        {
            Expect(Exports[row].Address != NULL, line);
        }
        else
        {
            Expect(0, line);
        }
        ++row;
    }
    fclose(list);
    Expect(row == ExportCount, "as many functions as names");
}

static void TestTheRegistriesStartEmpty(void)
{
    int32_t count = 7;
    int32_t id = 7;
    Expect(Tarvex_Window_GetCount(&count) == STATUS_OK && count == 0, "no 3D view");
    Expect(Tarvex_Window_GetIDFromIndex(0, &id) == STATUS_BAD_INDEX && id == TARVEX_NONE,
           "no id at index 0");
}

/* One function for each kind of cleared output, and one of those that clear nothing. */
static void TestOutputsOfAFailingCall(void)
{
    int32_t id = 7;
    uint8_t red = 7, green = 7, blue = 7, mode = 7, autoScale = 7;
    uint32_t palette = 7;
    double percent = 7.0, low = 7.0, high = 7.0;

    Expect(Tarvex_Element_Add_Point(0, 1.0, 2.0, 3.0, &id) == STATUS_WINDOW_NOT_FOUND &&
               id == TARVEX_NONE,
           "an id is cleared to none");
    Expect(Tarvex_Element_GetColor(0, 0, &red, &green, &blue) == STATUS_WINDOW_NOT_FOUND &&
               red == 0 && green == 0 && blue == 0,
           "a colour is cleared to black");
    Expect(Tarvex_Element_GetPalette_SurfaceUniform(0, 0, &palette) == STATUS_WINDOW_NOT_FOUND &&
               palette == UINT32_MAX,
           "a palette is cleared to all bits set");
    Expect(Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(0, 0, &mode) ==
                   STATUS_WINDOW_NOT_FOUND &&
               mode == TARVEX_MESH_CELLS,
           "a representation mode is cleared to full cells");
    Expect(Tarvex_Element_GetZScalingPalette_SurfaceUniform(0, 0, &autoScale, &percent, &low,
                                                            &high) == STATUS_WINDOW_NOT_FOUND &&
               autoScale == 0 && percent == -1.0 && low == 0.0 && high == 0.0,
           "a scaling is cleared, its percentage to -1");

    id = 7;
    Expect(Tarvex_Element_Add_Circle(0, 0.0, 0.0, 0.0, 1.0, 0.0, 0.0, 1.0, &id) ==
                   STATUS_WINDOW_NOT_FOUND &&
               id == 7,
           "the id of a circle is left as it was");
}

int main(int argc, char** argv)
{
    if (argc != 2)
    {
        fprintf(stderr, "usage: TestHeaderC EXPORTS\n");
        return 2;
    }

    TestTheListedFunctionsAreDeclaredAndLinked(argv[1]);
    TestTheRegistriesStartEmpty();
    TestOutputsOfAFailingCall();
    return Failures == 0 ? 0 : 1;
}
