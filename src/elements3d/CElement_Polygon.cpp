#include "elements3d/CElement_Polygon.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

CElement_Polygon::CElement_Polygon() : CElement_Shape(Type) {}

int32_t CElement_Polygon::Read(int32_t count, const double* x, const double* y, const double* z,
                               bool closed, Coordinates& points)
{
    if (!x || !y || !z)
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
    points.reserve(3 * static_cast<size_t>(count));
    for (int32_t point = 0; point < count; ++point)
    {
        points.insert(points.end(), {x[point], y[point], z[point]});
    }
    return STATUS_OK;
}

int32_t CElement_Polygon::Refresh(Coordinates points, bool closed)
{
    const bool valid = AreValidNumbers(points);
    const bool drawable = AreDrawable(points);
    if (valid && drawable)
    {
        // First of all: this needs memory, and without it the old values stay.
        Outline.Set(points, closed);
    }
    Points.swap(points);
    Closed = closed;
    Valid = valid;
    ApplyVisibility(drawable);
    return STATUS_OK;
}

int32_t CElement_Polygon::Initialize(const ElementSite& site, int32_t count, const double* x,
                                     const double* y, const double* z, bool closed)
{
    const int32_t status = Read(count, x, y, z, closed, Points);
    if (status != STATUS_OK)
    {
        return status;
    }
    Closed = closed;
    return TakeSiteAndSize(site);
}

int32_t CElement_Polygon::BuildPipeline()
{
    BuildActor(Outline.GetOutputPort());
    MirrorByUserMatrix(Actor);
    return Refresh(Points, Closed);
}

int32_t CElement_Polygon::GetPointCount(int32_t* count)
{
    *count = Count();
    return STATUS_OK;
}

int32_t CElement_Polygon::GetValue(double* x, double* y, double* z, uint8_t* closed)
{
    if (!x || !y || !z)
    {
        return STATUS_NULL_ARGUMENT;
    }
    *closed = Closed ? 1 : 0;
    for (size_t at = 0; at < Points.size(); at += 3)
    {
        *x++ = Points[at];
        *y++ = Points[at + 1];
        *z++ = Points[at + 2];
    }
    return STATUS_OK;
}

int32_t CElement_Polygon::SetValue(int32_t count, const double* x, const double* y, const double* z,
                                   bool closed)
{
    Coordinates points;
    const int32_t status = Read(count, x, y, z, closed, points);
    if (status != STATUS_OK)
    {
        return status;
    }
    return Refresh(std::move(points), closed);
}

int32_t CElement_Polygon::ChangePoint(int32_t index, double x, double y, double z)
{
    if (!HasPoint(index))
    {
        return STATUS_BAD_INDEX;
    }
    Coordinates points = Points;
    const size_t at = 3 * static_cast<size_t>(index);
    points[at] = x;
    points[at + 1] = y;
    points[at + 2] = z;
    return Refresh(std::move(points), Closed);
}

int32_t CElement_Polygon::InsertPoint(int32_t index, double x, double y, double z)
{
    const bool appends = index == Count();
    if (!HasPoint(index) && !appends)
    {
        return STATUS_BAD_INDEX;
    }
    Coordinates points;
    points.reserve(Points.size() + 3);
    points = Points;
    points.insert(points.begin() + 3 * std::ptrdiff_t{index}, {x, y, z});
    return Refresh(std::move(points), Closed);
}

int32_t CElement_Polygon::RemovePoint(int32_t index)
{
    if (!HasPoint(index))
    {
        return STATUS_BAD_INDEX;
    }
    if (Count() <= LeastCount(Closed))
    {
        return STATUS_TOO_SMALL;
    }
    Coordinates points = Points;
    const auto first = points.begin() + 3 * std::ptrdiff_t{index};
    points.erase(first, first + 3);
    return Refresh(std::move(points), Closed);
}
