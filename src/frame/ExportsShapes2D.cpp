// Exports of the shapes in charts.
#include "Tarvex.h"

#include "elements2d/CElement_Circle2D.h"
#include "elements2d/CElement_Ellipse2D.h"
#include "elements2d/CElement_Line2D.h"
#include "elements2d/CElement_Point2D.h"
#include "elements2d/CElement_Polygon2D.h"
#include "elements2d/CElement_Rectangle2D.h"
#include "frame/CallFrame.h"

int32_t Tarvex_Element2D_Add_Point(int32_t windowId, double x, double y, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAddToChart<CElement_Point2D>(windowId, ChartFit::Keep, elementId, x, y);
}

int32_t Tarvex_Element2D_Point_GetValue(int32_t windowId, int32_t elementId, double* x, double* y)
{
    ClearToZero(x, y);
    return OnElement(windowId, elementId, Render::Never, &CElement_Point2D::GetValue, x, y);
}

int32_t Tarvex_Element2D_Point_SetValue(int32_t windowId, int32_t elementId, double x, double y)
{
    return OnChange(windowId, elementId, &CElement_Point2D::SetValue, x, y);
}

int32_t Tarvex_Element2D_Add_Line(int32_t windowId, double x, double y, double dirX, double dirY,
                                  int32_t* elementId, const char* name)
{
    ClearToNone(elementId);
    return OnAddToChart<CElement_Line2D>(windowId, ChartFit::Keep, elementId, x, y, dirX, dirY,
                                         name);
}

int32_t Tarvex_Element2D_Add_Line_2Points(int32_t windowId, double x1, double y1, double x2,
                                          double y2, uint8_t isSegment, int32_t* elementId,
                                          const char* name)
{
    ClearToNone(elementId);
    return OnAddToChart<CElement_Line2D>(windowId, ChartFit::Keep, elementId, x1, y1, x2, y2,
                                         isSegment != 0, name);
}

int32_t Tarvex_Element2D_Line_GetValue(int32_t windowId, int32_t elementId, double* x1, double* y1,
                                       double* x2, double* y2)
{
    ClearToZero(x1, y1, x2, y2);
    return OnElement(windowId, elementId, Render::Never, &CElement_Line2D::GetValue, x1, y1, x2,
                     y2);
}

int32_t Tarvex_Element2D_Line_SetValue(int32_t windowId, int32_t elementId, double x1, double y1,
                                       double x2, double y2, uint8_t isSegment)
{
    return OnChange(windowId, elementId, &CElement_Line2D::SetValue, x1, y1, x2, y2,
                    isSegment != 0);
}

int32_t Tarvex_Element2D_Add_Circle(int32_t windowId, double x, double y, double radius,
                                    int32_t* elementId)
{
    return OnAddToChart<CElement_Circle2D>(windowId, ChartFit::Keep, elementId, x, y, radius);
}

int32_t Tarvex_Element2D_Circle_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                         double* radius)
{
    ClearToZero(x, y, radius);
    return OnElement(windowId, elementId, Render::Never, &CElement_Circle2D::GetValue, x, y,
                     radius);
}

int32_t Tarvex_Element2D_Circle_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                         double radius)
{
    return OnChange(windowId, elementId, &CElement_Circle2D::SetValue, x, y, radius);
}

int32_t Tarvex_Element2D_Add_Ellipse(int32_t windowId, double x, double y, double radiusA,
                                     double radiusB, double angle, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAddToChart<CElement_Ellipse2D>(windowId, ChartFit::Keep, elementId, x, y, radiusA,
                                            radiusB, angle);
}

int32_t Tarvex_Element2D_Ellipse_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                          double* radiusA, double* radiusB, double* angle)
{
    ClearToZero(x, y, radiusA, radiusB, angle);
    return OnElement(windowId, elementId, Render::Never, &CElement_Ellipse2D::GetValue, x, y,
                     radiusA, radiusB, angle);
}

int32_t Tarvex_Element2D_Ellipse_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                          double radiusA, double radiusB, double angle)
{
    return OnChange(windowId, elementId, &CElement_Ellipse2D::SetValue, x, y, radiusA, radiusB,
                    angle);
}

int32_t Tarvex_Element2D_Add_Rectangle(int32_t windowId, double x, double y, double width,
                                       double height, double angle, int32_t* elementId)
{
    return OnAddToChart<CElement_Rectangle2D>(windowId, ChartFit::Keep, elementId, x, y, width,
                                              height, angle);
}

int32_t Tarvex_Element2D_Rectangle_GetValue(int32_t windowId, int32_t elementId, double* x,
                                            double* y, double* width, double* height, double* angle)
{
    ClearToZero(x, y, width, height, angle);
    return OnElement(windowId, elementId, Render::Never, &CElement_Rectangle2D::GetValue, x, y,
                     width, height, angle);
}

int32_t Tarvex_Element2D_Rectangle_SetValue(int32_t windowId, int32_t elementId, double x, double y,
                                            double width, double height, double angle)
{
    return OnChange(windowId, elementId, &CElement_Rectangle2D::SetValue, x, y, width, height,
                    angle);
}

int32_t Tarvex_Element2D_Add_Polygon(int32_t windowId, int32_t count, const double* x,
                                     const double* y, uint8_t closed, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAddToChart<CElement_Polygon2D>(windowId, ChartFit::Keep, elementId, count, x, y,
                                            closed != 0);
}

int32_t Tarvex_Element2D_Polygon_GetPointCount(int32_t windowId, int32_t elementId, int32_t* count)
{
    ClearToZero(count);
    return OnElement(windowId, elementId, Render::Never, &CElement_Polygon2D::GetPointCount, count);
}

int32_t Tarvex_Element2D_Polygon_GetValue(int32_t windowId, int32_t elementId, double* x, double* y,
                                          uint8_t* closed)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_Polygon2D::GetValue, x, y,
                     closed);
}

int32_t Tarvex_Element2D_Polygon_SetValue(int32_t windowId, int32_t elementId, int32_t count,
                                          const double* x, const double* y, uint8_t closed)
{
    return OnChange(windowId, elementId, &CElement_Polygon2D::SetValue, count, x, y, closed != 0);
}

int32_t Tarvex_Element2D_Polygon_ChangePoint(int32_t windowId, int32_t elementId, int32_t index,
                                             double x, double y)
{
    return OnChange(windowId, elementId, &CElement_Polygon2D::ChangePoint, index, x, y);
}

int32_t Tarvex_Element2D_Polygon_InsertPoint(int32_t windowId, int32_t elementId, int32_t index,
                                             double x, double y)
{
    return OnChange(windowId, elementId, &CElement_Polygon2D::InsertPoint, index, x, y);
}

int32_t Tarvex_Element2D_Polygon_RemovePoint(int32_t windowId, int32_t elementId, int32_t index)
{
    return OnChange(windowId, elementId, &CElement_Polygon2D::RemovePoint, index);
}
