#include "elements2d/CElement_Line2D.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

#include <algorithm>
#include <utility>

namespace
{
// Of the squared length of a new line's direction.
constexpr double leastDirection = 1e-12;
} // namespace

CElement_Line2D::CElement_Line2D() : CElement_Plotted2D(Type, 1.0, STATUS_INVALID_VALUES) {}

double CElement_Line2D::StoreDirection(double dx, double dy, double least)
{
    DirX = dx;
    DirY = dy;
    Valid = Valid && !(dx * dx + dy * dy < least);
    const double length = std::hypot(dx, dy);
    if (Valid)
    {
        DirX /= length;
        DirY /= length;
    }
    return length;
}

void CElement_Line2D::TakeSite(const ChartSite& site, const char* name)
{
    CElement_2D::TakeSite(site);
    Name = MakeColumnName(name, "Line", Id);
    TakeDrawLimit(site.DrawSpace);
    FitBounds();
}

int32_t CElement_Line2D::Initialize(const ChartSite& site, double x, double y, double dirX,
                                    double dirY, const char* name)
{
    X = x;
    Y = y;
    Valid = AreValidNumbers({x, y, dirX, dirY});
    StoreDirection(dirX, dirY, leastDirection);
    TakeSite(site, name);
    return STATUS_OK;
}

int32_t CElement_Line2D::Initialize(const ChartSite& site, double x1, double y1, double x2,
                                    double y2, bool isSegment, const char* name)
{
    X = x1;
    Y = y1;
    IsSegment = isSegment;
    Valid = AreValidNumbers({x1, y1, x2, y2});
    const double length = StoreDirection(x2 - x1, y2 - y1, leastDirection);
    if (isSegment)
    {
        Start = 0.0;
        End = Valid ? length : 0.0;
    }
    TakeSite(site, name);
    return STATUS_OK;
}

int32_t CElement_Line2D::GetValue(double* x1, double* y1, double* x2, double* y2)
{
    const ChartPoint start = PositionAt(Start);
    const ChartPoint end = PositionAt(End);
    *x1 = start.X;
    *y1 = start.Y;
    *x2 = end.X;
    *y2 = end.Y;
    return STATUS_OK;
}

int32_t CElement_Line2D::SetValue(double x1, double y1, double x2, double y2, bool isSegment)
{
    // Tighter than for a new line: these are two measured points.
    constexpr double least = 1e-18;
    const double dx = x2 - x1;
    const double dy = y2 - y1;
    const bool isDot = dx * dx + dy * dy < least;
    Valid = AreValidNumbers({x1, y1, x2, y2});
    if (Valid && isDot && !isSegment)
    {
        return STATUS_TOO_SMALL; // and still valid, with the former values
    }
    X = x1;
    Y = y1;
    IsSegment = isSegment;
    Start = 0.0;
    if (Valid && isDot)
    {
        DirX = DirY = End = 0.0;
    }
    else if (Valid)
    {
        End = StoreDirection(dx, dy, least);
    }
    else
    {
        End = 0.0;
    }
    FitBounds();
    Redraw();
    return STATUS_OK;
}

bool CElement_Line2D::TakeDrawLimit(const double* drawSpace)
{
    constexpr double leastExtent = 0.1;
    if (!(drawSpace[1] - drawSpace[0] > leastExtent) ||
        !(drawSpace[3] - drawSpace[2] > leastExtent))
    {
        return false;
    }
    std::copy_n(drawSpace, 4, DrawLimit);
    return true;
}

void CElement_Line2D::FitToDrawSpace(const double* drawSpace)
{
    ChartPoint first;
    ChartPoint second;
    if (TakeDrawLimit(drawSpace) && Valid && !IsSegment && ClipToDrawLimit(first, second))
    {
        Redraw();
    }
}

bool CElement_Line2D::ClipToDrawLimit(ChartPoint& first, ChartPoint& second) const
{
    constexpr double tolerance = 1e-10;
    constexpr double steepest = 1e10;
    if (DirX == 0.0 && DirY == 0.0)
    {
        return false;
    }
    const auto [xmin, xmax, ymin, ymax] = DrawLimit;
    const bool vertical = std::abs(DirX) < tolerance;
    const double slope = vertical ? 10.0 * steepest : DirY / DirX;
    const double atZero = Y - X * slope;
    const auto findX = [&](double y, double ifHorizontal)
    {
        if (std::abs(slope) > steepest)
        {
            return X;
        }
        return std::abs(slope) < tolerance ? ifHorizontal : (y - atZero) / slope;
    };
    // A horizontal line crosses the upper and lower edge outside of the box.
    const ChartPoint crossings[] = {{xmin, xmin * slope + atZero},
                                    {xmax, xmax * slope + atZero},
                                    {findX(ymin, xmin - 1.0), ymin},
                                    {findX(ymax, xmax + 1.0), ymax}};
    int found = 0;
    for (const ChartPoint& crossing : crossings)
    {
        // Not below and not above: far from 0 the tolerance is lost in rounding.
        const bool inside = crossing.X >= xmin - tolerance && crossing.X <= xmax + tolerance &&
                            crossing.Y >= ymin - tolerance && crossing.Y <= ymax + tolerance;
        if (inside && found < 2)
        {
            (found++ == 0 ? first : second) = crossing;
        }
    }
    if (found < 2)
    {
        return false;
    }
    if (first.X > second.X)
    {
        std::swap(first, second);
    }
    return true;
}

CElement_Plotted2D::PlotForm CElement_Line2D::GetForm() const
{
    PlotForm form;
    form.InLegend = false;
    return form;
}

void CElement_Line2D::Fill(const CPlotTable::Columns& columns)
{
    ChartPoint first;
    ChartPoint second;
    if (IsSegment || !ClipToDrawLimit(first, second))
    {
        first = PositionAt(Start);
        second = PositionAt(End);
    }
    columns.Write(0, first.X, first.Y);
    columns.Write(1, second.X, second.Y);
}

ChartPoint CElement_Line2D::PositionAt(double parameter) const
{
    return {X + parameter * DirX, Y + parameter * DirY};
}

void CElement_Line2D::FitBounds()
{
    const ChartPoint ends[] = {PositionAt(Start), PositionAt(End)};
    CElement_Plotted2D::FitBounds(ends);
}
