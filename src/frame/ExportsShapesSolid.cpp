// Exports of the geometric elements of 3D views that show handles.
#include "Tarvex.h"

#include "elements3d/CElement_Cube.h"
#include "elements3d/CElement_Cylinder.h"
#include "elements3d/CElement_Polyhedron.h"
#include "frame/CallFrame.h"
#include "view3d/CWindow.h"

int32_t Tarvex_Element_Add_Cube(int32_t windowId, double x, double y, double z, double lengthX,
                                double lengthY, double lengthZ, double angle, uint8_t wireframe,
                                int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Cube>(windowId, elementId, x, y, z, lengthX, lengthY, lengthZ, angle,
                                wireframe != 0);
}

int32_t Tarvex_Element_Cube_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                     double* z, double* lengthX, double* lengthY, double* lengthZ,
                                     double* angle)
{
    ClearToZero(x, y, z, lengthX, lengthY, lengthZ, angle);
    return OnElement(windowId, elementId, Render::Never, &CElement_Cube::GetValue, x, y, z, lengthX,
                     lengthY, lengthZ, angle);
}

int32_t Tarvex_Element_Cube_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                     double z, double lengthX, double lengthY, double lengthZ,
                                     double angle)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Cube::SetValue, x, y, z,
                     lengthX, lengthY, lengthZ, angle);
}

int32_t Tarvex_Element_Add_Cylinder(int32_t windowId, double x1, double y1, double z1, double x2,
                                    double y2, double z2, double radius, int32_t* elementId)
{
    return OnAdd<CElement_Cylinder>(windowId, elementId, x1, y1, z1, x2, y2, z2, radius);
}

int32_t Tarvex_Element_Cylinder_GetValue(int32_t windowId, int32_t elementId, double* x1,
                                         double* y1, double* z1, double* x2, double* y2, double* z2,
                                         double* radius)
{
    ClearToZero(x1, y1, z1, x2, y2, z2, radius);
    return OnElement(windowId, elementId, Render::Never, &CElement_Cylinder::GetValue, x1, y1, z1,
                     x2, y2, z2, radius);
}

int32_t Tarvex_Element_Cylinder_GetValue2(int32_t windowId, int32_t elementId, double* cx,
                                          double* cy, double* cz, double* ax, double* ay,
                                          double* az, double* radius, double* height)
{
    ClearToZero(cx, cy, cz, ax, ay, az, radius, height);
    return OnElement(windowId, elementId, Render::Never, &CElement_Cylinder::GetValue2, cx, cy, cz,
                     ax, ay, az, radius, height);
}

int32_t Tarvex_Element_Cylinder_SetValue(int32_t windowId, int32_t elementId, double x1, double y1,
                                         double z1, double x2, double y2, double z2, double radius)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Cylinder::SetValue, x1, y1, z1,
                     x2, y2, z2, radius);
}

int32_t Tarvex_Element_Cylinder_SetValue2(int32_t windowId, int32_t elementId, double cx, double cy,
                                          double cz, double ax, double ay, double az, double radius,
                                          double height)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Cylinder::SetValue2, cx, cy, cz,
                     ax, ay, az, radius, height);
}

int32_t Tarvex_Element_Add_Polyhedron(int32_t windowId, int32_t count, const double* x,
                                      const double* y, const double* z, double axisX, double axisY,
                                      double axisZ, double height, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Polyhedron>(windowId, elementId, count, x, y, z, axisX, axisY, axisZ,
                                      height);
}

int32_t Tarvex_Element_Polyhedron_GetPointCount(int32_t windowId, int32_t elementId, int32_t* count)
{
    ClearToZero(count);
    return OnElement(windowId, elementId, Render::Never, &CElement_Polyhedron::GetPointCount,
                     count);
}

int32_t Tarvex_Element_Polyhedron_GetValue(int32_t windowId, int32_t elementId, double* x,
                                           double* y, double* z, double* axisX, double* axisY,
                                           double* axisZ, double* height)
{
    ClearToZero(axisX, axisY, axisZ, height);
    return OnElement(windowId, elementId, Render::Never, &CElement_Polyhedron::GetValue, x, y, z,
                     axisX, axisY, axisZ, height);
}

int32_t Tarvex_Element_Polyhedron_SetValue(int32_t windowId, int32_t elementId, int32_t count,
                                           const double* x, const double* y, const double* z,
                                           double axisX, double axisY, double axisZ, double height)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::SetValue, count, x,
                     y, z, axisX, axisY, axisZ, height);
}

int32_t Tarvex_Element_Polyhedron_ChangePoint(int32_t windowId, int32_t elementId, int32_t index,
                                              double x, double y, double z)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::ChangePoint, index,
                     x, y, z);
}

int32_t Tarvex_Element_Polyhedron_InsertPoint(int32_t windowId, int32_t elementId, int32_t index,
                                              double x, double y, double z)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::InsertPoint, index,
                     x, y, z);
}

int32_t Tarvex_Element_Polyhedron_RemovePoint(int32_t windowId, int32_t elementId, int32_t index)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::RemovePoint, index);
}

int32_t Tarvex_Element_Polyhedron_SetAxisDirection(int32_t windowId, int32_t elementId, double x,
                                                   double y, double z)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::SetAxisDirection, x,
                     y, z);
}

int32_t Tarvex_Element_Polyhedron_SetHeight(int32_t windowId, int32_t elementId, double height)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polyhedron::SetHeight, height);
}
