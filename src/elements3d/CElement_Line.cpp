#include "elements3d/CElement_Line.h"

#include "Tarvex.h"
#include "elements3d/Directions.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"

#include <vtkMath.h>

#include <algorithm>
#include <cmath>

CElement_Line::CElement_Line() : CElement_Shape(Type) {}

int32_t CElement_Line::Initialize(const ElementSite& site, double x, double y, double z, double dx,
                                  double dy, double dz)
{
    Point = {x, y, z};
    Direction = {dx, dy, dz};
    Valid = AreValidNumbers({x, y, z, dx, dy, dz}) && GivesDirection(Direction);
    if (Valid)
    {
        MakeUnit(Direction);
    }
    if (site.Defaults)
    {
        Start = site.Defaults->LineStart;
        End = site.Defaults->LineEnd;
    }
    site.TakeDrawSpace(DrawLimit);
    return TakeSiteAndSize(site);
}

int32_t CElement_Line::BuildPipeline()
{
    Source = vtkSmartPointer<vtkLineSource>::New();
    BuildActor(Source->GetOutputPort());
    MirrorByUserMatrix(Actor);
    if (Valid)
    {
        DrawClipped(PositionAt(Start), PositionAt(End));
    }
    else
    {
        DrawBetween({0.0, 0.0, 0.0}, {10.0, 10.0, 10.0});
    }
    return STATUS_OK;
}

CElement_Line::Position CElement_Line::PositionAt(double parameter) const
{
    Position position = {};
    for (size_t axis = 0; axis < 3; ++axis)
    {
        position[axis] = Point[axis] + parameter * Direction[axis];
    }
    return position;
}

void CElement_Line::DrawBetween(const Position& first, const Position& second)
{
    Source->SetPoint1(first[0], first[1], first[2]);
    Source->SetPoint2(second[0], second[1], second[2]);
    Source->Update();
    ApplyVisibility(AreDrawable({first[0], first[1], first[2], second[0], second[1], second[2]}));
}

void CElement_Line::DrawClipped(const Position& first, const Position& second)
{
    Position entry = {};
    Position exit = {};
    if (ClipToDrawLimit(entry, exit))
    {
        DrawBetween(entry, exit);
    }
    else
    {
        DrawBetween(first, second);
    }
}

bool CElement_Line::ClipToDrawLimit(Position& first, Position& second) const
{
    first = {0.0, 0.0, 0.0};
    second = {1.0, 1.0, 1.0};
    if (!Valid)
    {
        return false;
    }
    const auto isInside = [this](const Position& position)
    {
        constexpr double tolerance = 1e-10;
        for (size_t axis = 0; axis < 3; ++axis)
        {
            const bool between = position[axis] >= DrawLimit[2 * axis] - tolerance &&
                                 position[axis] <= DrawLimit[2 * axis + 1] + tolerance;
            if (!between)
            {
                return false;
            }
        }
        return true;
    };
    const auto differs = [](const Position& one, const Position& other)
    {
        constexpr double tolerance = 1e-15;
        return std::abs(one[0] - other[0]) > tolerance || std::abs(one[1] - other[1]) > tolerance ||
               std::abs(one[2] - other[2]) > tolerance;
    };

    bool found = false;
    for (size_t face = 0; face < DrawLimit.size(); ++face)
    {
        const size_t axis = face / 2;
        const bool parallel = !(std::abs(Direction[axis]) > 1e-15);
        if (parallel)
        {
            continue;
        }
        const Position crossing = PositionAt((DrawLimit[face] - Point[axis]) / Direction[axis]);
        if (!isInside(crossing))
        {
            continue;
        }
        if (!found)
        {
            first = crossing;
            found = true;
        }
        else if (differs(first, crossing))
        {
            second = crossing;
            return true;
        }
    }
    return false;
}

int32_t CElement_Line::GetValue(double* x1, double* y1, double* z1, double* x2, double* y2,
                                double* z2)
{
    const double* first = Source->GetPoint1();
    *x1 = first[0];
    *y1 = MirrorY(first[1]);
    *z1 = first[2];
    const double* second = Source->GetPoint2();
    *x2 = second[0];
    *y2 = MirrorY(second[1]);
    *z2 = second[2];
    return STATUS_OK;
}

int32_t CElement_Line::SetValue(double x1, double y1, double z1, double x2, double y2, double z2)
{
    const Position first = {x1, y1, z1};
    const Position second = {x2, y2, z2};
    // Tighter than the direction of a new line: these are two measured points.
    Valid = AreValidNumbers({x1, y1, z1, x2, y2, z2}) &&
            !(vtkMath::Distance2BetweenPoints(first.data(), second.data()) < 1e-18);
    Point = first;
    Start = 0.0;
    if (!Valid)
    {
        End = 0.0;
        ApplyVisibility(false);
        return STATUS_OK;
    }
    End = std::sqrt(vtkMath::Distance2BetweenPoints(first.data(), second.data()));
    for (size_t axis = 0; axis < 3; ++axis)
    {
        Direction[axis] = (second[axis] - first[axis]) / End;
    }
    DrawClipped(first, second);
    return STATUS_OK;
}

int32_t CElement_Line::GetLength(double* start, double* end)
{
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    *start = Start;
    *end = End;
    return STATUS_OK;
}

int32_t CElement_Line::SetLength(double start, double end)
{
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    if (std::abs(end - start) < 1e-9)
    {
        return STATUS_TOO_SMALL;
    }
    Start = std::min(start, end);
    End = std::max(start, end);
    // Not clipped: this is how a segment gets longer than the box.
    DrawBetween(PositionAt(Start), PositionAt(End));
    return STATUS_OK;
}

int32_t CElement_Line::SetDrawLimit(double xmin, double xmax, double ymin, double ymax, double zmin,
                                    double zmax)
{
    constexpr double least = 0.1;
    if (xmax - xmin < least || ymax - ymin < least || zmax - zmin < least)
    {
        return STATUS_OUT_OF_RANGE;
    }
    DrawLimit = {xmin, xmax, ymin, ymax, zmin, zmax};
    Position entry = {};
    Position exit = {};
    if (!ClipToDrawLimit(entry, exit))
    {
        return STATUS_OK;
    }
    constexpr double usable = 1e-5;
    size_t axis = 2;
    if (std::abs(Direction[0]) > usable)
    {
        axis = 0;
    }
    else if (std::abs(Direction[1]) > usable)
    {
        axis = 1;
    }
    const double one = (entry[axis] - Point[axis]) / Direction[axis];
    const double other = (exit[axis] - Point[axis]) / Direction[axis];
    Start = std::min(one, other);
    End = std::max(one, other);
    DrawBetween(PositionAt(Start), PositionAt(End));
    return STATUS_OK;
}

void CElement_Line::FitToDrawSpace(const double drawSpace[6])
{
    SetDrawLimit(drawSpace[0], drawSpace[1], drawSpace[2], drawSpace[3], drawSpace[4],
                 drawSpace[5]);
}

int32_t CElement_Line::GetBounds(bool, double* xmin, double* xmax, double* ymin, double* ymax,
                                 double* zmin, double* zmax)
{
    *xmin = *xmax = *ymin = *ymax = *zmin = *zmax = 0.0;
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    const Position start = PositionAt(Start);
    const Position end = PositionAt(End);
    double* const lower[] = {xmin, ymin, zmin};
    double* const upper[] = {xmax, ymax, zmax};
    for (size_t axis = 0; axis < 3; ++axis)
    {
        *lower[axis] = std::min(start[axis], end[axis]);
        *upper[axis] = std::max(start[axis], end[axis]);
    }
    return STATUS_OK;
}
