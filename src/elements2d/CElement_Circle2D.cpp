#include "elements2d/CElement_Circle2D.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

CElement_Circle2D::CElement_Circle2D() : CElement_Draggable2D(Type, STATUS_INVALID_VALUES) {}

void CElement_Circle2D::Store(double x, double y, double radius)
{
    constexpr double leastRadius = 1e-9;
    X = x;
    Y = y;
    Radius = radius;
    Valid = AreValidNumbers({x, y, radius}) && !(radius < leastRadius);
    PlaceHandles();
}

void CElement_Circle2D::PlaceHandles()
{
    Places = {{{X, Y}, {X, Y - Radius}, {X + Radius, Y}, {X, Y + Radius}, {X - Radius, Y}}};
}

int32_t CElement_Circle2D::Initialize(const ChartSite& site, double x, double y, double radius)
{
    Store(x, y, radius);
    TakeSite(site);
    return STATUS_OK;
}

int32_t CElement_Circle2D::GetValue(double* x, double* y, double* radius)
{
    *x = X;
    *y = Y;
    *radius = Radius;
    return STATUS_OK;
}

int32_t CElement_Circle2D::SetValue(double x, double y, double radius)
{
    Store(x, y, radius);
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Circle2D::GetBounds(double* xmin, double* xmax, double* ymin, double* ymax)
{
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    *xmin = X - Radius;
    *xmax = X + Radius;
    *ymin = Y - Radius;
    *ymax = Y + Radius;
    return STATUS_OK;
}

int32_t CElement_Circle2D::CountRows() const
{
    return static_cast<int32_t>(GetUnitCircle().size());
}

void CElement_Circle2D::Fill(const CPlotTable::Columns& columns)
{
    int32_t row = 0;
    for (const ChartPoint& point : GetUnitCircle())
    {
        columns.Write(row++, point.X * Radius + X, point.Y * Radius + Y);
    }
}

std::string CElement_Circle2D::MakeName() const
{
    return MakeColumnName(nullptr, "Circle", Id);
}

int32_t CElement_Circle2D::MoveHandle(int32_t handle, double x, double y)
{
    if (handle == 0)
    {
        X = x;
        Y = y;
    }
    else
    {
        // Not judged: with the mouse on the centre the circle is a dot.
        Radius = std::hypot(x - X, y - Y);
    }
    PlaceHandles();
    return handle;
}

int32_t CElement_Circle2D::CheckComplete() const
{
    return Valid ? CElement_Draggable2D::CheckComplete() : int32_t{STATUS_INVALID_VALUES};
}
