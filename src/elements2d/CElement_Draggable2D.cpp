#include "elements2d/CElement_Draggable2D.h"

#include "Tarvex.h"

#include <vtkPlotPoints.h>

#include <cmath>
#include <limits>

CElement_Draggable2D::CElement_Draggable2D(int32_t elementType, int32_t invalidStatus)
    : CElement_Plotted2D(elementType, 1.0, invalidStatus)
{
}

int32_t CElement_Draggable2D::SetActive(bool active)
{
    EndDrag();
    if (!active || !Valid)
    {
        // Also of an invalid element: it must not show them when it becomes valid again.
        if (IsActive())
        {
            RemovePlot(Plots.back());
            Plots.pop_back();
            Handles = nullptr;
        }
        return Valid ? int32_t{STATUS_OK} : InvalidStatus;
    }
    if (!IsActive())
    {
        auto table = std::make_unique<CPlotTable>(MakeName());
        FillHandles(*table);
        Plots.reserve(2);
        Plots.push_back(MakePlot(PlotKind::Points, *table, vtkPlotPoints::CIRCLE));
        Handles = std::move(table);
    }
    return STATUS_OK;
}

int32_t CElement_Draggable2D::FindHandle(double x, double y, double tolerance) const
{
    if (!IsActive() || !IsVisible())
    {
        return -1;
    }
    int32_t nearest = -1;
    double leastDistance = std::numeric_limits<double>::infinity();
    int32_t handle = 0;
    for (const ChartPoint& place : GetHandles())
    {
        const double dx = std::abs(place.X - x);
        const double dy = std::abs(place.Y - y);
        if (dx < tolerance && dy < tolerance && dx * dx + dy * dy < leastDistance)
        {
            leastDistance = dx * dx + dy * dy;
            nearest = handle;
        }
        ++handle;
    }
    return nearest;
}

int32_t CElement_Draggable2D::DragHandle(int32_t handle, double x, double y)
{
    if (!Valid)
    {
        return InvalidStatus;
    }
    if (!IsActive() || handle < 0 || static_cast<size_t>(handle) >= GetHandles().size())
    {
        return STATUS_BAD_POINT;
    }
    if (handle != DraggedHandle)
    {
        DraggedHandle = handle;
        HandleAtMouse = handle;
    }
    HandleAtMouse = MoveHandle(HandleAtMouse, x, y);
    Redraw();
    return STATUS_OK;
}

void CElement_Draggable2D::EndDrag()
{
    DraggedHandle = -1;
}

void CElement_Draggable2D::FillTables()
{
    CElement_Plotted2D::FillTables();
    if (Valid && IsActive())
    {
        FillHandles(*Handles);
    }
}

void CElement_Draggable2D::FillHandles(CPlotTable& table) const
{
    const std::span<const ChartPoint> places = GetHandles();
    const CPlotTable::Columns columns = table.Resize(static_cast<int32_t>(places.size()));
    int32_t row = 0;
    for (const ChartPoint& place : places)
    {
        columns.Write(row++, place.X, place.Y);
    }
    table.Filled();
}

void CElement_Draggable2D::ReserveHandles(int32_t count)
{
    if (IsActive())
    {
        Handles->Reserve(count);
    }
}
