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
#include <array>
#include <cmath>
#include <limits>

vtkStandardNewMacro(CProfilePlot);

namespace
{
// From places of a plot to pixels; both scales are positive.
struct PixelScale
{
    explicit PixelScale(vtkContext2D* painter)
    {
        vtkMatrix3x3* matrix = painter->GetTransform()->GetMatrix();
        X = matrix->GetElement(0, 0);
        Y = matrix->GetElement(1, 1);
        Left = matrix->GetElement(0, 2);
    }
    double ToPixel(float x) const { return x * X + Left; }
    double FromPixel(double column) const { return (column - Left) / X; }

    double X;
    double Y;
    double Left;
};

// The samples within one pixel column. A pixel belongs to a line when the line touches the diamond
// between the middles of its sides. Inside a column these pixels follow from few samples: the ends,
// the lowest and highest, those that reach farthest down and up into the diamonds, and the pair
// about the middle of the column. A line through them covers the same pixels.
class Column
{
public:
    template <class Place>
    void Start(const Place& place, vtkIdType index, double middle, double steepness)
    {
        Middle = middle;
        Steepness = steepness;
        First = Last = Lowest = Highest = Deepest = Tallest = index;
        BeforeMiddle = AfterMiddle = index;
        LowestY = HighestY = place.Y;
        const double away = std::abs(place.X - Middle) * Steepness;
        Depth = place.Y + away;
        Height = place.Y - away;
        Passed = place.X > Middle;
    }
    template <class Place>
    void Add(const Place& place, vtkIdType index)
    {
        Last = index;
        if (place.Y < LowestY)
        {
            LowestY = place.Y;
            Lowest = index;
        }
        if (place.Y > HighestY)
        {
            HighestY = place.Y;
            Highest = index;
        }
        const double away = std::abs(place.X - Middle) * Steepness;
        if (place.Y + away < Depth)
        {
            Depth = place.Y + away;
            Deepest = index;
        }
        if (place.Y - away > Height)
        {
            Height = place.Y - away;
            Tallest = index;
        }
        if (!Passed)
        {
            Passed = place.X > Middle;
            AfterMiddle = index;
            BeforeMiddle = Passed ? index - 1 : index;
        }
    }
    // In the order of the samples, each once.
    template <class Action>
    void ForEach(Action&& action)
    {
        std::array<vtkIdType, 8> kept = {First,   Last,    Lowest,       Highest,
                                         Deepest, Tallest, BeforeMiddle, AfterMiddle};
        std::sort(kept.begin(), kept.end());
        std::for_each(kept.begin(), std::unique(kept.begin(), kept.end()), action);
    }

private:
    double Middle = 0.0;    // X of the column, in the units of the plot
    double Steepness = 0.0; // height of a rise by one pixel a pixel, for one unit of X
    vtkIdType First = 0;
    vtkIdType Last = 0;
    vtkIdType Lowest = 0;
    vtkIdType Highest = 0;
    vtkIdType Deepest = 0;
    vtkIdType Tallest = 0;
    vtkIdType BeforeMiddle = 0;
    vtkIdType AfterMiddle = 0;
    float LowestY = 0.0F;
    float HighestY = 0.0F;
    double Depth = 0.0;
    double Height = 0.0;
    bool Passed = false;
};
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
    if (!Points)
    {
        Points = vtkPoints2D::New();
    }
    Points->SetNumberOfPoints(count);
    auto* places = static_cast<Place*>(Points->GetVoidPointer(0));
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
    if (BadPoints)
    {
        BadPoints->Delete();
        BadPoints = nullptr;
    }
    if (!finite)
    {
        BadPoints = vtkIdTypeArray::New();
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
    auto* places = static_cast<Place*>(Points->GetVoidPointer(0));
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
    // The markers.
    return vtkPlotPoints::Paint(painter);
}

void CProfilePlot::PaintLine(vtkContext2D* painter, Place* places, vtkIdType count)
{
    const auto draw = [painter](Place* line, vtkIdType length)
    { painter->DrawPoly(&line->X, static_cast<int>(length)); };
    // Wide lines are rectangles, one for each pair of samples: their corners depend on each.
    constexpr float thin = 1.0F;
    constexpr vtkIdType few = 1000;
    if (!Thinning || !Ordered || count < few || Pen->GetWidth() > thin)
    {
        draw(places, count);
        return;
    }
    const PixelScale scale(painter);
    // What is in sight, and one more sample on both sides.
    const int width = painter->GetDevice()->GetWidth();
    const auto isLeftOf = [](const Place& place, double x) { return place.X < x; };
    const Place* begin = std::lower_bound(places, places + count, scale.FromPixel(-1.0), isLeftOf);
    const Place* end = std::lower_bound(begin, static_cast<const Place*>(places + count),
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
    constexpr vtkIdType worthwhile = 8;
    if (seen < worthwhile * columns)
    {
        draw(places + first, seen);
        return;
    }
    Thinned.clear();
    const auto keep = [this, places](vtkIdType index) { Thinned.push_back(places[index]); };
    const double steepness = scale.X / scale.Y;
    for (vtkIdType index = first; index <= last;)
    {
        const double left = std::floor(scale.ToPixel(places[index].X));
        const double right = scale.FromPixel(left + 1.0);
        Column column;
        column.Start(places[index], index, scale.FromPixel(left + 0.5), steepness);
        for (++index; index <= last && places[index].X < right; ++index)
        {
            column.Add(places[index], index);
        }
        column.ForEach(keep);
    }
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
    const auto* places = static_cast<const Place*>(Points->GetVoidPointer(0));
    const Place* end = places + Points->GetNumberOfPoints();
    const float right = point.GetX() + tolerance.GetX();
    const float left = point.GetX() - tolerance.GetX();
    const Place* place = places;
    if (Ordered)
    {
        place =
            std::lower_bound(places, end, left, [](const Place& at, float x) { return at.X < x; });
        end =
            std::lower_bound(place, end, right, [](const Place& at, float x) { return at.X < x; });
    }
    place = std::find_if(place, end,
                         [&](const Place& at)
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
