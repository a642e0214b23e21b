#include "elements2d/CProfilePlot.h"

#include <vtkContext2D.h>
#include <vtkContextDevice2D.h>
#include <vtkContextMapper2D.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkMatrix3x3.h>
#include <vtkPen.h>
#include <vtkPoints2D.h>
#include <vtkTable.h>
#include <vtkTransform2D.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

vtkStandardNewMacro(CProfilePlot);

namespace
{
PixelScale GetPixelScale(vtkContext2D* painter)
{
    const vtkMatrix3x3* matrix = painter->GetTransform()->GetMatrix();
    return {matrix->GetElement(0, 0), matrix->GetElement(1, 1), matrix->GetElement(0, 2)};
}
} // namespace

bool CProfilePlot::IsStale() const
{
    vtkTable* table = Data->GetInput();
    return table->GetMTime() > BuildTime || MTime > BuildTime || Data->GetMTime() > BuildTime;
}

void CProfilePlot::Update()
{
    if (Visible && IsStale())
    {
        CopyPoints(*Data->GetInput());
        BuildTime.Modified();
    }
}

void CProfilePlot::CopyPoints(const vtkTable& table)
{
    auto& columns = const_cast<vtkTable&>(table);
    auto* x = vtkFloatArray::FastDownCast(columns.GetColumn(0));
    auto* y = vtkFloatArray::FastDownCast(columns.GetColumn(1));
    const vtkIdType count = x->GetNumberOfValues();
    // The base class holds Points and BadPoints by bare pointers, with a reference to each.
    if (!Points)
    {
        const vtkNew<vtkPoints2D> points;
        points->Register(nullptr);
        Points = points;
    }
    Points->SetNumberOfPoints(count);
    auto* places = static_cast<PlotPlace*>(Points->GetVoidPointer(0));
    const float* fromX = x->GetPointer(0);
    const float* fromY = y->GetPointer(0);
    const vtkRectd shift = GetShiftScale();
    bool finite = true;
    bool ordered = true;
    float before = -std::numeric_limits<float>::infinity();
    for (vtkIdType row = 0; row < count; ++row)
    {
        places[row] = {static_cast<float>((fromX[row] + shift[0]) * shift[2]),
                       static_cast<float>((fromY[row] + shift[1]) * shift[3])};
        ordered &= places[row].X >= before;
        finite &= std::isfinite(places[row].X) && std::isfinite(places[row].Y);
        before = places[row].X;
    }
    Ordered = ordered && finite;
    vtkSmartPointer<vtkIdTypeArray>::Take(std::exchange(BadPoints, nullptr));
    if (!finite)
    {
        const vtkNew<vtkIdTypeArray> gaps;
        gaps->Register(nullptr);
        BadPoints = gaps;
        for (vtkIdType row = 0; row < count; ++row)
        {
            if (!std::isfinite(places[row].X) || !std::isfinite(places[row].Y))
            {
                BadPoints->InsertNextValue(row);
            }
        }
    }
    Points->Modified();
}

bool CProfilePlot::Paint(vtkContext2D* painter)
{
    if (!Visible || !Points)
    {
        return false;
    }
    painter->ApplyPen(Pen);
    auto* places = static_cast<PlotPlace*>(Points->GetVoidPointer(0));
    const vtkIdType gaps = BadPoints ? BadPoints->GetNumberOfValues() : 0;
    vtkIdType start = 0;
    for (vtkIdType gap = 0; gap <= gaps; ++gap)
    {
        const vtkIdType end = gap < gaps ? BadPoints->GetValue(gap) : Points->GetNumberOfPoints();
        if (end - start > 1)
        {
            PaintLine(painter, places + start, end - start);
        }
        start = end + 1;
    }
    // NOLINTNEXTLINE(bugprone-parent-virtual-call): the markers alone
    return vtkPlotPoints::Paint(painter);
}

void CProfilePlot::PaintLine(vtkContext2D* painter, PlotPlace* places, vtkIdType count)
{
    const auto draw = [painter](PlotPlace* line, vtkIdType length)
    { painter->DrawPoly(&line->X, static_cast<int>(length)); };
    // Wide lines are rectangles, one for each pair of samples: their corners depend on each.
    constexpr float thin = 1.0F;
    constexpr vtkIdType few = 1000;
    if (!Ordered || count < few || Pen->GetWidth() > thin)
    {
        draw(places, count);
        return;
    }
    const PixelScale scale = GetPixelScale(painter);
    // What is in sight, and one more sample on both sides.
    const int width = painter->GetDevice()->GetViewportSize()[0];
    const auto isLeftOf = [](const PlotPlace& place, double x) { return place.X < x; };
    const PlotPlace* begin =
        std::lower_bound(places, places + count, scale.FromPixel(-1.0), isLeftOf);
    const PlotPlace* end = std::lower_bound(begin, static_cast<const PlotPlace*>(places + count),
                                            scale.FromPixel(width + 1.0), isLeftOf);
    const vtkIdType first = std::max<vtkIdType>(begin - places - 1, 0);
    const vtkIdType last = std::min<vtkIdType>(end - places, count - 1);
    const vtkIdType seen = last - first + 1;
    if (seen < 2)
    {
        return;
    }
    const double columns = std::min<double>(width, scale.ToPixel(places[last].X) -
                                                       scale.ToPixel(places[first].X) + 1.0);
    constexpr double worthwhile = 8.0;
    if (static_cast<double>(seen) < worthwhile * columns)
    {
        draw(places + first, seen);
        return;
    }
    ThinLine({places + first, places + last + 1}, scale, Thinned);
    draw(Thinned.data(), static_cast<vtkIdType>(Thinned.size()));
}

void CProfilePlot::GetBounds(double bounds[4])
{
    bounds[0] = bounds[2] = 1.0;
    bounds[1] = bounds[3] = -1.0;
}

vtkIdType CProfilePlot::GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                                        vtkVector2f* location, vtkIdType* /*segmentId*/)
{
    if (!Points)
    {
        return -1;
    }
    const auto* places = static_cast<const PlotPlace*>(Points->GetVoidPointer(0));
    const PlotPlace* end = places + Points->GetNumberOfPoints();
    const float right = point.GetX() + tolerance.GetX();
    const float left = point.GetX() - tolerance.GetX();
    const PlotPlace* place = places;
    if (Ordered)
    {
        place = std::lower_bound(places, end, left,
                                 [](const PlotPlace& at, float x) { return at.X < x; });
        end = std::lower_bound(place, end, right,
                               [](const PlotPlace& at, float x) { return at.X < x; });
    }
    place = std::find_if(place, end,
                         [&](const PlotPlace& at)
                         {
                             return at.X > left && at.X < right &&
                                    at.Y > point.GetY() - tolerance.GetY() &&
                                    at.Y < point.GetY() + tolerance.GetY();
                         });
    if (place == end)
    {
        return -1;
    }
    const vtkRectd shift = GetShiftScale();
    *location = vtkVector2f(static_cast<float>(place->X / shift[2] - shift[0]),
                            static_cast<float>(place->Y / shift[3] - shift[1]));
    return place - places;
}
