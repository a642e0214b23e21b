#include "elements2d/CElement_Point2D.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

#include <vtkPlotPoints.h>

CElement_Point2D::CElement_Point2D() : CElement_Plotted2D(Type, 0.3, STATUS_INVALID_VALUES) {}

void CElement_Point2D::Store(double x, double y)
{
    X = x;
    Y = y;
    Valid = AreValidNumbers({x, y});
}

int32_t CElement_Point2D::Initialize(const ChartSite& site, double x, double y)
{
    Store(x, y);
    TakeSite(site);
    return STATUS_OK;
}

int32_t CElement_Point2D::GetValue(double* x, double* y)
{
    *x = X;
    *y = Y;
    return STATUS_OK;
}

int32_t CElement_Point2D::SetValue(double x, double y)
{
    Store(x, y);
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Point2D::GetBounds(double* xmin, double* xmax, double* ymin, double* ymax)
{
    *xmin = *xmax = X;
    *ymin = *ymax = Y;
    return STATUS_OK;
}

CElement_Plotted2D::PlotForm CElement_Point2D::GetForm() const
{
    return {PlotKind::Points, vtkPlotPoints::CIRCLE, true};
}

void CElement_Point2D::Fill(const CPlotTable::Columns& columns)
{
    columns.Write(0, X, Y);
}

std::string CElement_Point2D::MakeName() const
{
    return MakeColumnName(nullptr, "Point", Id);
}
