#include "elements2d/CElement_Rectangle2D.h"

#include "Tarvex.h"
#include "elements3d/Angles.h"
#include "frame/NumberTest.h"

#include <algorithm>

namespace
{
// On which side of the centre a handle lies, along the width and along the height.
struct Side
{
    int X;
    int Y;
    bool operator==(const Side&) const = default;
};
constexpr std::array<Side, 9> sides = {
    {{0, 0}, {-1, -1}, {0, -1}, {1, -1}, {1, 0}, {1, 1}, {0, 1}, {-1, 1}, {-1, 0}}};

int32_t FindHandleAt(Side side)
{
    return static_cast<int32_t>(std::find(sides.begin(), sides.end(), side) - sides.begin());
}

constexpr double leastExtent = 1e-6;
} // namespace

CElement_Rectangle2D::CElement_Rectangle2D() : CElement_Draggable2D(Type, STATUS_NOT_FINITE) {}

bool CElement_Rectangle2D::IsFlat() const
{
    return std::abs(Width) < leastExtent || std::abs(Height) < leastExtent;
}

void CElement_Rectangle2D::Store(double x, double y, double width, double height, double angle)
{
    X = x;
    Y = y;
    Width = width;
    Height = height;
    Angle = angle;
    Valid = AreValidNumbers({x, y, width, height, angle});
}

int32_t CElement_Rectangle2D::Initialize(const ChartSite& site, double x, double y, double width,
                                         double height, double angle)
{
    Store(x, y, width, height, angle);
    // One side alone without length is refused later, with another status.
    Valid = Valid && !(std::abs(width) < leastExtent && std::abs(height) < leastExtent);
    Angle = FoldIntoHalfTurns(angle);
    TakeSite(site);
    return STATUS_OK;
}

int32_t CElement_Rectangle2D::BuildPipeline()
{
    if (!Valid)
    {
        return InvalidStatus;
    }
    if (IsFlat())
    {
        return STATUS_TOO_SMALL;
    }
    PlaceHandles();
    return CElement_Draggable2D::BuildPipeline();
}

int32_t CElement_Rectangle2D::GetValue(double* x, double* y, double* width, double* height,
                                       double* angle)
{
    *x = X;
    *y = Y;
    *width = Width;
    *height = Height;
    *angle = Angle;
    return STATUS_OK;
}

int32_t CElement_Rectangle2D::SetValue(double x, double y, double width, double height,
                                       double angle)
{
    Store(x, y, width, height, angle);
    Valid = Valid && !IsFlat();
    PlaceHandles();
    Redraw();
    return STATUS_OK;
}

void CElement_Rectangle2D::PlaceHandles()
{
    const PlaneRotation rotation(Angle);
    std::transform(sides.begin(), sides.end(), Places.begin(),
                   [&](const Side& side)
                   {
                       const auto [dx, dy] =
                           rotation.Turn(side.X * Width / 2.0, side.Y * Height / 2.0);
                       return ChartPoint{X + dx, Y + dy};
                   });
    FitBounds(Places);
}

void CElement_Rectangle2D::Fill(const CPlotTable::Columns& columns)
{
    int32_t row = 0;
    for (const size_t corner : {1, 3, 5, 7, 1})
    {
        columns.Write(row++, Places[corner].X, Places[corner].Y);
    }
}

std::string CElement_Rectangle2D::MakeName() const
{
    return MakeColumnName(nullptr, "Rectangle", Id);
}

int32_t CElement_Rectangle2D::MoveHandle(int32_t handle, double x, double y)
{
    Side side = sides[static_cast<size_t>(handle)];
    if (handle == 0)
    {
        X = x;
        Y = y;
    }
    else
    {
        const ChartPoint fixed = Places[static_cast<size_t>(FindHandleAt({-side.X, -side.Y}))];
        // From there to the mouse along the sides; an edge moves along one of them only.
        auto [along, across] = PlaneRotation(-Angle).Turn(x - fixed.X, y - fixed.Y);
        const auto take = [](double& distance, double& extent, int& towards)
        {
            if (towards == 0)
            {
                distance = 0.0;
                return;
            }
            extent = std::abs(distance);
            if (distance != 0.0)
            {
                towards = distance < 0.0 ? -1 : 1;
            }
        };
        take(along, Width, side.X);
        take(across, Height, side.Y);
        const auto [dx, dy] = PlaneRotation(Angle).Turn(along, across);
        X = fixed.X + dx / 2.0;
        Y = fixed.Y + dy / 2.0;
    }
    // Not judged: with the mouse on what stays the rectangle is a line or a dot.
    PlaceHandles();
    return FindHandleAt(side);
}
