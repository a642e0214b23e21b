// Exports of the shapes in charts.
#include "Tarvex.h"

#include "frame/CallFrame.h"
#include "view2d/CWindow2D.h"

int32_t Tarvex_Element2D_Add_Point(int32_t windowId, double /*x*/, double /*y*/, int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Point_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                        double* y)
{
    ClearToZero(x, y);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Point_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                        double /*y*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Line(int32_t windowId, double /*x*/, double /*y*/, double /*dirX*/,
                                  double /*dirY*/, int32_t* elementId, const char* /*name*/)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Line_2Points(int32_t windowId, double /*x1*/, double /*y1*/,
                                          double /*x2*/, double /*y2*/, uint8_t /*isSegment*/,
                                          int32_t* elementId, const char* /*name*/)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Line_GetValue(int32_t windowId, int32_t /*elementId*/, double* x1,
                                       double* y1, double* x2, double* y2)
{
    ClearToZero(x1, y1, x2, y2);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Line_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x1*/,
                                       double /*y1*/, double /*x2*/, double /*y2*/,
                                       uint8_t /*isSegment*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Circle(int32_t windowId, double /*x*/, double /*y*/, double /*radius*/,
                                    int32_t* /*elementId*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Circle_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                         double* y, double* radius)
{
    ClearToZero(x, y, radius);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Circle_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                         double /*y*/, double /*radius*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Ellipse(int32_t windowId, double /*x*/, double /*y*/,
                                     double /*radiusA*/, double /*radiusB*/, double /*angle*/,
                                     int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Ellipse_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                          double* y, double* radiusA, double* radiusB,
                                          double* angle)
{
    ClearToZero(x, y, radiusA, radiusB, angle);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Ellipse_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                          double /*y*/, double /*radiusA*/, double /*radiusB*/,
                                          double /*angle*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Rectangle(int32_t windowId, double /*x*/, double /*y*/,
                                       double /*width*/, double /*height*/, double /*angle*/,
                                       int32_t* /*elementId*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Rectangle_GetValue(int32_t windowId, int32_t /*elementId*/, double* x,
                                            double* y, double* width, double* height, double* angle)
{
    ClearToZero(x, y, width, height, angle);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Rectangle_SetValue(int32_t windowId, int32_t /*elementId*/, double /*x*/,
                                            double /*y*/, double /*width*/, double /*height*/,
                                            double /*angle*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Add_Polygon(int32_t windowId, int32_t /*count*/, const double* /*x*/,
                                     const double* /*y*/, uint8_t /*closed*/, int32_t* elementId)
{
    ClearToNone(elementId);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_GetPointCount(int32_t windowId, int32_t /*elementId*/,
                                               int32_t* count)
{
    ClearToZero(count);
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_GetValue(int32_t windowId, int32_t /*elementId*/, double* /*x*/,
                                          double* /*y*/, uint8_t* /*closed*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_SetValue(int32_t windowId, int32_t /*elementId*/,
                                          int32_t /*count*/, const double* /*x*/,
                                          const double* /*y*/, uint8_t /*closed*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_ChangePoint(int32_t windowId, int32_t /*elementId*/,
                                             int32_t /*index*/, double /*x*/, double /*y*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_InsertPoint(int32_t windowId, int32_t /*elementId*/,
                                             int32_t /*index*/, double /*x*/, double /*y*/)
{
    return NotBuilt<CWindow2D>(windowId);
}

int32_t Tarvex_Element2D_Polygon_RemovePoint(int32_t windowId, int32_t /*elementId*/,
                                             int32_t /*index*/)
{
    return NotBuilt<CWindow2D>(windowId);
}
