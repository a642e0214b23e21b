// Exports of the geometric elements of 3D views that have no handles.
#include "Tarvex.h"

#include "elements3d/CElement_Circle.h"
#include "elements3d/CElement_Ellipse.h"
#include "elements3d/CElement_Line.h"
#include "elements3d/CElement_Plane.h"
#include "elements3d/CElement_Point.h"
#include "elements3d/CElement_Polygon.h"
#include "elements3d/CElement_Rectangle.h"
#include "frame/CallFrame.h"
#include "view3d/CWindow.h"

int32_t Tarvex_Element_Add_Point(int32_t windowId, double x, double y, double z, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Point>(windowId, elementId, x, y, z);
}

int32_t Tarvex_Element_Point_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                      double* z, double* size)
{
    ClearToZero(x, y, z, size);
    return OnElement(windowId, elementId, Render::Never, &CElement_Point::GetValue, x, y, z, size);
}

int32_t Tarvex_Element_Point_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                      double z, double size)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Point::SetValue, x, y, z, size);
}

int32_t Tarvex_Element_Add_Line(int32_t windowId, double x, double y, double z, double dx,
                                double dy, double dz, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Line>(windowId, elementId, x, y, z, dx, dy, dz);
}

int32_t Tarvex_Element_Line_GetValue(int32_t windowId, int32_t elementId, double* x1, double* y1,
                                     double* z1, double* x2, double* y2, double* z2)
{
    ClearToZero(x1, y1, z1, x2, y2, z2);
    return OnElement(windowId, elementId, Render::Never, &CElement_Line::GetValue, x1, y1, z1, x2,
                     y2, z2);
}

int32_t Tarvex_Element_Line_SetValue(int32_t windowId, int32_t elementId, double x1, double y1,
                                     double z1, double x2, double y2, double z2)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Line::SetValue, x1, y1, z1, x2,
                     y2, z2);
}

int32_t Tarvex_Element_GetLength_Line(int32_t windowId, int32_t elementId, double* start,
                                      double* end)
{
    ClearToZero(start, end);
    return OnElement(windowId, elementId, Render::Always, &CElement_Line::GetLength, start, end);
}

int32_t Tarvex_Element_SetLength_Line(int32_t windowId, int32_t elementId, double start, double end)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Line::SetLength, start, end);
}

int32_t Tarvex_Element_SetDrawLimit_Line(int32_t windowId, int32_t elementId, double xmin,
                                         double xmax, double ymin, double ymax, double zmin,
                                         double zmax)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Line::SetDrawLimit, xmin, xmax,
                     ymin, ymax, zmin, zmax);
}

int32_t Tarvex_Element_Add_Circle(int32_t windowId, double x, double y, double z, double radius,
                                  double nx, double ny, double nz, int32_t* elementId)
{
    return OnAdd<CElement_Circle>(windowId, elementId, x, y, z, radius, nx, ny, nz);
}

int32_t Tarvex_Element_Circle_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                       double* z, double* radius, double* nx, double* ny,
                                       double* nz)
{
    ClearToZero(x, y, z, radius, nx, ny, nz);
    return OnElement(windowId, elementId, Render::Never, &CElement_Circle::GetValue, x, y, z,
                     radius, nx, ny, nz);
}

int32_t Tarvex_Element_Circle_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                       double z, double radius, double nx, double ny, double nz)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Circle::SetValue, x, y, z,
                     radius, nx, ny, nz);
}

int32_t Tarvex_Element_Add_Ellipse(int32_t windowId, double x, double y, double z, double a,
                                   double b, double angle, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Ellipse>(windowId, elementId, x, y, z, a, b, angle);
}

int32_t Tarvex_Element_Ellipse_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                        double* z, double* a, double* b, double* angle)
{
    ClearToZero(x, y, z, a, b, angle);
    return OnElement(windowId, elementId, Render::Never, &CElement_Ellipse::GetValue, x, y, z, a, b,
                     angle);
}

int32_t Tarvex_Element_Ellipse_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                        double z, double a, double b, double angle)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Ellipse::SetValue, x, y, z, a,
                     b, angle);
}

int32_t Tarvex_Element_Add_Plane(int32_t windowId, double distance, double nx, double ny, double nz,
                                 int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Plane>(windowId, elementId, distance, nx, ny, nz);
}

int32_t Tarvex_Element_Plane_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                      double* z, double* nx, double* ny, double* nz)
{
    ClearToZero(x, y, z, nx, ny, nz);
    return OnElement(windowId, elementId, Render::Never, &CElement_Plane::GetValue, x, y, z, nx, ny,
                     nz);
}

int32_t Tarvex_Element_Plane_GetValue2(int32_t windowId, int32_t elementId, double* distance,
                                       double* nx, double* ny, double* nz)
{
    ClearToZero(distance, nx, ny, nz);
    return OnElement(windowId, elementId, Render::Never, &CElement_Plane::GetValue2, distance, nx,
                     ny, nz);
}

int32_t Tarvex_Element_Plane_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                      double z, double nx, double ny, double nz)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Plane::SetValue, x, y, z, nx,
                     ny, nz);
}

int32_t Tarvex_Element_Plane_SetValue2(int32_t windowId, int32_t elementId, double distance,
                                       double nx, double ny, double nz)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Plane::SetValue2, distance, nx,
                     ny, nz);
}

int32_t Tarvex_Element_GetDrawSize_Plane(int32_t windowId, int32_t elementId, double* xmin,
                                         double* xmax, double* ymin, double* ymax, double* zmin,
                                         double* zmax)
{
    ClearToZero(xmin, xmax, ymin, ymax, zmin, zmax);
    return OnElement(windowId, elementId, Render::Never, &CElement_Plane::GetDrawSize, xmin, xmax,
                     ymin, ymax, zmin, zmax);
}

int32_t Tarvex_Element_SetDrawSize_Plane(int32_t windowId, int32_t elementId, double xmin,
                                         double xmax, double ymin, double ymax, double zmin,
                                         double zmax)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Plane::SetDrawSize, xmin, xmax,
                     ymin, ymax, zmin, zmax);
}

int32_t Tarvex_Element_Add_Rectangle(int32_t windowId, uint8_t centered, double x, double y,
                                     double z, double width, double height, double angle,
                                     int32_t* elementId)
{
    return OnAdd<CElement_Rectangle>(windowId, elementId, centered != 0, x, y, z, width, height,
                                     angle);
}

int32_t Tarvex_Element_Rectangle_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                          double* z, double* width, double* height, double* angle)
{
    ClearToZero(x, y, z, width, height, angle);
    return OnElement(windowId, elementId, Render::Never, &CElement_Rectangle::GetValue, x, y, z,
                     width, height, angle);
}

int32_t Tarvex_Element_Rectangle_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                          double z, double width, double height, double angle)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Rectangle::SetValue, x, y, z,
                     width, height, angle);
}

int32_t Tarvex_Element_Add_Polygon(int32_t windowId, int32_t count, const double* x,
                                   const double* y, const double* z, uint8_t closed,
                                   int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElement_Polygon>(windowId, elementId, count, x, y, z, closed != 0);
}

int32_t Tarvex_Element_Polygon_GetPointCount(int32_t windowId, int32_t elementId, int32_t* count)
{
    ClearToZero(count);
    return OnElement(windowId, elementId, Render::Never, &CElement_Polygon::GetPointCount, count);
}

int32_t Tarvex_Element_Polygon_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                        double* z, uint8_t* closed)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_Polygon::GetValue, x, y, z,
                     closed);
}

int32_t Tarvex_Element_Polygon_SetValue(int32_t windowId, int32_t elementId, int32_t count,
                                        const double* x, const double* y, const double* z,
                                        uint8_t closed)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polygon::SetValue, count, x, y,
                     z, closed != 0);
}

int32_t Tarvex_Element_Polygon_ChangePoint(int32_t windowId, int32_t elementId, int32_t index,
                                           double x, double y, double z)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polygon::ChangePoint, index, x,
                     y, z);
}

int32_t Tarvex_Element_Polygon_InsertPoint(int32_t windowId, int32_t elementId, int32_t index,
                                           double x, double y, double z)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polygon::InsertPoint, index, x,
                     y, z);
}

int32_t Tarvex_Element_Polygon_RemovePoint(int32_t windowId, int32_t elementId, int32_t index)
{
    return OnElement(windowId, elementId, Render::Always, &CElement_Polygon::RemovePoint, index);
}
