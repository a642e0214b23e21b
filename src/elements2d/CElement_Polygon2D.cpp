#include "elements2d/CElement_Polygon2D.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

#include <algorithm>

CElement_Polygon2D::CElement_Polygon2D() : CElement_Draggable2D(Type, STATUS_INVALID_VALUES) {}

int32_t CElement_Polygon2D::Read(int32_t count, const double* x, const double* y, bool closed,
                                 std::vector<ChartPoint>& places)
{
    if (!x || !y)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (count < LeastCount(closed))
    {
        return STATUS_TOO_SMALL;
    }
    if (!FitsAnArray<double>(count))
    {
        return STATUS_OUT_OF_MEMORY;
    }
    places.resize(static_cast<size_t>(count) + 1);
    for (size_t point = 0; point + 1 < places.size(); ++point)
    {
        places[point] = {x[point], y[point]};
    }
    return STATUS_OK;
}

void CElement_Polygon2D::Store(std::vector<ChartPoint> places, bool closed)
{
    Places.swap(places);
    Closed = closed;
    const std::span<const ChartPoint> points = GetPoints();
    Valid = std::all_of(points.begin(), points.end(),
                        [](const ChartPoint& point)
                        { return IsValidNumber(point.X) && IsValidNumber(point.Y); });
    Settle();
}

std::span<const ChartPoint> CElement_Polygon2D::GetPoints() const
{
    return {Places.data(), Places.size() - 1};
}

void CElement_Polygon2D::Reserve(int32_t count, bool closed)
{
    ReserveOutline(count + (closed ? 1 : 0));
    ReserveHandles(count + 1);
}

void CElement_Polygon2D::Settle()
{
    if (!Valid)
    {
        return;
    }
    ChartPoint sum;
    for (const ChartPoint& point : GetPoints())
    {
        sum.X += point.X;
        sum.Y += point.Y;
    }
    Places.back() = {sum.X / Count(), sum.Y / Count()};
    FitBounds(GetPoints());
}

int32_t CElement_Polygon2D::Initialize(const ChartSite& site, int32_t count, const double* x,
                                       const double* y, bool closed)
{
    std::vector<ChartPoint> places;
    const int32_t status = Read(count, x, y, closed, places);
    if (status != STATUS_OK)
    {
        return status;
    }
    Store(std::move(places), closed);
    TakeSite(site);
    return STATUS_OK;
}

int32_t CElement_Polygon2D::GetPointCount(int32_t* count)
{
    *count = Count();
    return STATUS_OK;
}

int32_t CElement_Polygon2D::GetValue(double* x, double* y, uint8_t* closed)
{
    if (!x || !y)
    {
        return STATUS_NULL_ARGUMENT;
    }
    for (const ChartPoint& point : GetPoints())
    {
        *x++ = point.X;
        *y++ = point.Y;
    }
    *closed = Closed ? 1 : 0;
    return STATUS_OK;
}

int32_t CElement_Polygon2D::SetValue(int32_t count, const double* x, const double* y, bool closed)
{
    std::vector<ChartPoint> places;
    const int32_t status = Read(count, x, y, closed, places);
    if (status != STATUS_OK)
    {
        return status;
    }
    Reserve(count, closed);
    Store(std::move(places), closed);
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Polygon2D::ChangePoint(int32_t index, double x, double y)
{
    if (index < 0 || index >= Count())
    {
        return STATUS_BAD_INDEX;
    }
    Places[static_cast<size_t>(index)] = {x, y};
    Valid = Valid && AreValidNumbers({x, y});
    Settle();
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Polygon2D::InsertPoint(int32_t index, double x, double y)
{
    if (index < 0 || index > Count())
    {
        return STATUS_BAD_INDEX;
    }
    Reserve(Count() + 1, Closed);
    Places.insert(Places.begin() + index, {x, y});
    Valid = Valid && AreValidNumbers({x, y});
    Settle();
    Redraw();
    return STATUS_OK;
}

int32_t CElement_Polygon2D::RemovePoint(int32_t index)
{
    if (index < 0 || index >= Count())
    {
        return STATUS_BAD_INDEX;
    }
    if (Count() <= LeastCount(Closed))
    {
        return STATUS_TOO_SMALL;
    }
    Places.erase(Places.begin() + index);
    Settle();
    Redraw();
    return STATUS_OK;
}

void CElement_Polygon2D::Fill(const CPlotTable::Columns& columns)
{
    int32_t row = 0;
    for (const ChartPoint& point : GetPoints())
    {
        columns.Write(row++, point.X, point.Y);
    }
    if (Closed)
    {
        columns.Write(row, Places.front().X, Places.front().Y);
    }
}

std::string CElement_Polygon2D::MakeName() const
{
    return MakeColumnName(nullptr, "Polygon", Id);
}

int32_t CElement_Polygon2D::MoveHandle(int32_t handle, double x, double y)
{
    if (handle < Count())
    {
        Places[static_cast<size_t>(handle)] = {x, y};
    }
    else
    {
        const double dx = x - Places.back().X;
        const double dy = y - Places.back().Y;
        for (ChartPoint& place : Places)
        {
            place.X += dx;
            place.Y += dy;
        }
    }
    Settle();
    return handle;
}
