// Exports of the geometric elements of 3D views.
#include "Tarvex.h"

#include "elements3d/CElement_Line.h"
#include "elements3d/CElement_Point.h"
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

int32_t Tarvex_Element_Add_Circle(int32_t windowId, double /*x*/, double /*y*/, double /*z*/,
                                  double /*radius*/, double /*nx*/, double /*ny*/, double /*nz*/,
                                  int32_t* /*elementId*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Circle_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                       double* y, double* z, double* radius, double* nx, double* ny,
                                       double* nz)
{
    ClearToZero(x, y, z, radius, nx, ny, nz);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Circle_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                       double /*y*/, double /*z*/, double /*radius*/, double /*nx*/,
                                       double /*ny*/, double /*nz*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Ellipse(int32_t windowId, double /*x*/, double /*y*/, double /*z*/,
                                   double /*a*/, double /*b*/, double /*angle*/, int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Ellipse_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                        double* y, double* z, double* a, double* b, double* angle)
{
    ClearToZero(x, y, z, a, b, angle);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Ellipse_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                        double /*y*/, double /*z*/, double /*a*/, double /*b*/,
                                        double /*angle*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Plane(int32_t windowId, double /*distance*/, double /*nx*/,
                                 double /*ny*/, double /*nz*/, int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Plane_GetValue(int32_t windowId, int32_t /*elementId*/, double* x, double* y,
                                      double* z, double* nx, double* ny, double* nz)
{
    ClearToZero(x, y, z, nx, ny, nz);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Plane_GetValue2(int32_t windowId, int32_t /*elementId*/, double* distance,
                                       double* nx, double* ny, double* nz)
{
    ClearToZero(distance, nx, ny, nz);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Plane_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                      double /*y*/, double /*z*/, double /*nx*/, double /*ny*/,
                                      double /*nz*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Plane_SetValue2(int32_t windowId, int32_t /*elementId*/, double /*distance*/,
                                       double /*nx*/, double /*ny*/, double /*nz*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_GetDrawSize_Plane(int32_t windowId, int32_t /*elementId*/, double* xmin,
                                         double* xmax, double* ymin, double* ymax, double* zmin,
                                         double* zmax)
{
    ClearToZero(xmin, xmax, ymin, ymax, zmin, zmax);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_SetDrawSize_Plane(int32_t windowId, int32_t /*elementId*/, double /*xmin*/,
                                         double /*xmax*/, double /*ymin*/, double /*ymax*/,
                                         double /*zmin*/, double /*zmax*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Rectangle(int32_t windowId, uint8_t /*centered*/, double /*x*/,
                                     double /*y*/, double /*z*/, double /*width*/,
                                     double /*height*/, double /*angle*/, int32_t* /*elementId*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Rectangle_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                          double* y, double* z, double* width, double* height,
                                          double* angle)
{
    ClearToZero(x, y, z, width, height, angle);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Rectangle_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                          double /*y*/, double /*z*/, double /*width*/,
                                          double /*height*/, double /*angle*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Polygon(int32_t windowId, int32_t /*count*/, const double* /*x*/,
                                   const double* /*y*/, const double* /*z*/, uint8_t /*closed*/,
                                   int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_GetPointCount(int32_t windowId, int32_t /*elementId*/,
                                             int32_t* count)
{
    ClearToZero(count);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_GetValue(int32_t windowId, int32_t /*elementId*/, double* /*x*/,
                                        double* /*y*/, double* /*z*/, uint8_t* /*closed*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_SetValue(int32_t windowId, int32_t /*elementId*/, int32_t /*count*/,
                                        const double* /*x*/, const double* /*y*/,
                                        const double* /*z*/, uint8_t /*closed*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_ChangePoint(int32_t windowId, int32_t /*elementId*/,
                                           int32_t /*index*/, double /*x*/, double /*y*/,
                                           double /*z*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_InsertPoint(int32_t windowId, int32_t /*elementId*/,
                                           int32_t /*index*/, double /*x*/, double /*y*/,
                                           double /*z*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polygon_RemovePoint(int32_t windowId, int32_t /*elementId*/,
                                           int32_t /*index*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Cube(int32_t windowId, double /*x*/, double /*y*/, double /*z*/,
                                double /*lengthX*/, double /*lengthY*/, double /*lengthZ*/,
                                double /*angle*/, uint8_t /*wireframe*/, int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cube_GetValue(int32_t windowId, int32_t /*elementId*/, double* x, double* y,
                                     double* z, double* lengthX, double* lengthY, double* lengthZ,
                                     double* angle)
{
    ClearToZero(x, y, z, lengthX, lengthY, lengthZ, angle);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cube_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                     double /*y*/, double /*z*/, double /*lengthX*/,
                                     double /*lengthY*/, double /*lengthZ*/, double /*angle*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Cylinder(int32_t windowId, double /*x1*/, double /*y1*/, double /*z1*/,
                                    double /*x2*/, double /*y2*/, double /*z2*/, double /*radius*/,
                                    int32_t* /*elementId*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cylinder_GetValue(int32_t windowId, int32_t /*elementId*/, double* x1,
                                         double* y1, double* z1, double* x2, double* y2, double* z2,
                                         double* radius)
{
    ClearToZero(x1, y1, z1, x2, y2, z2, radius);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cylinder_GetValue2(int32_t windowId, int32_t /*elementId*/, double* cx,
                                          double* cy, double* cz, double* ax, double* ay,
                                          double* az, double* radius, double* height)
{
    ClearToZero(cx, cy, cz, ax, ay, az, radius, height);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cylinder_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x1*/,
                                         double /*y1*/, double /*z1*/, double /*x2*/, double /*y2*/,
                                         double /*z2*/, double /*radius*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Cylinder_SetValue2(int32_t windowId, int32_t /*elementId*/, double /*cx*/,
                                          double /*cy*/, double /*cz*/, double /*ax*/,
                                          double /*ay*/, double /*az*/, double /*radius*/,
                                          double /*height*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Add_Polyhedron(int32_t windowId, int32_t /*count*/, const double* /*x*/,
                                      const double* /*y*/, const double* /*z*/, double /*axisX*/,
                                      double /*axisY*/, double /*axisZ*/, double /*height*/,
                                      int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_GetPointCount(int32_t windowId, int32_t /*elementId*/,
                                                int32_t* count)
{
    ClearToZero(count);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_GetValue(int32_t windowId, int32_t /*elementId*/, double* /*x*/,
                                           double* /*y*/, double* /*z*/, double* axisX,
                                           double* axisY, double* axisZ, double* height)
{
    ClearToZero(axisX, axisY, axisZ, height);
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_SetValue(int32_t windowId, int32_t /*elementId*/,
                                           int32_t /*count*/, const double* /*x*/,
                                           const double* /*y*/, const double* /*z*/,
                                           double /*axisX*/, double /*axisY*/, double /*axisZ*/,
                                           double /*height*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_ChangePoint(int32_t windowId, int32_t /*elementId*/,
                                              int32_t /*index*/, double /*x*/, double /*y*/,
                                              double /*z*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_InsertPoint(int32_t windowId, int32_t /*elementId*/,
                                              int32_t /*index*/, double /*x*/, double /*y*/,
                                              double /*z*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_RemovePoint(int32_t windowId, int32_t /*elementId*/,
                                              int32_t /*index*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_SetAxisDirection(int32_t windowId, int32_t /*elementId*/,
                                                   double /*x*/, double /*y*/, double /*z*/)
{
    return NotBuilt<CWindow>(windowId);
}

int32_t Tarvex_Element_Polyhedron_SetHeight(int32_t windowId, int32_t /*elementId*/,
                                            double /*height*/)
{
    return NotBuilt<CWindow>(windowId);
}
