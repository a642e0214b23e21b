#include "elements3d/CElement_Plane.h"

#include "Tarvex.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"

#include <algorithm>

CElement_Plane::CElement_Plane() : CElement_Shape(Type)
{
    Transparency = 0.8;
}

void CElement_Plane::StoreNormal(bool rest, double nx, double ny, double nz)
{
    Normal = {nx, ny, nz};
    Valid = rest && AreValidNumbers(Normal) && GivesDirection(Normal);
    if (Valid)
    {
        MakeUnit(Normal);
    }
}

void CElement_Plane::Store(double distance, double nx, double ny, double nz)
{
    StoreNormal(IsValidNumber(distance), nx, ny, nz);
    Distance = distance;
    if (Valid)
    {
        Point = {Normal[0] * distance, Normal[1] * distance, Normal[2] * distance};
    }
}

int32_t CElement_Plane::Initialize(const ElementSite& site, double distance, double nx, double ny,
                                   double nz)
{
    Store(distance, nx, ny, nz);
    if (const ElementDefaults* defaults = site.Defaults)
    {
        std::copy(std::begin(defaults->DrawSize), std::end(defaults->DrawSize), DrawSize.begin());
    }
    site.TakeDrawSpace(DrawSize);
    return TakeSiteAndSize(site);
}

int32_t CElement_Plane::BuildPipeline()
{
    Source = vtkSmartPointer<vtkPlaneSource>::New();
    BuildActor(Source->GetOutputPort());
    Draw();
    return STATUS_OK;
}

Vector3 CElement_Plane::Solve(size_t axis, Vector3 point) const
{
    point[axis] = 0.0;
    point[axis] =
        (vtkMath::Dot(Normal.data(), Point.data()) - vtkMath::Dot(Normal.data(), point.data())) /
        Normal[axis];
    return point;
}

std::array<Vector3, 3> CElement_Plane::GetCorners() const
{
    constexpr double steep = 0.3;
    const auto [xmin, xmax, ymin, ymax, zmin, zmax] = DrawSize;
    if (!(std::abs(Normal[2]) < steep))
    {
        return {Solve(2, {xmin, ymax, 0.0}), Solve(2, {xmax, ymax, 0.0}),
                Solve(2, {xmin, ymin, 0.0})};
    }
    if (std::abs(Normal[0]) > std::abs(Normal[1]))
    {
        return {Solve(0, {0.0, ymax, zmin}), Solve(0, {0.0, ymin, zmin}),
                Solve(0, {0.0, ymax, zmax})};
    }
    return {Solve(1, {xmin, 0.0, zmin}), Solve(1, {xmax, 0.0, zmin}), Solve(1, {xmin, 0.0, zmax})};
}

void CElement_Plane::Draw()
{
    using Corners = std::array<Vector3, 3>;
    // Not for an invalid normal, which may be all 0.
    const Corners corners = Valid ? GetCorners() : Corners{};
    const bool drawable = std::all_of(corners.begin(), corners.end(),
                                      [](const Vector3& corner) { return AreDrawable(corner); });
    if (ApplyVisibility(drawable))
    {
        const auto& [origin, first, second] = corners;
        Source->SetOrigin(origin[0], MirrorY(origin[1]), origin[2]);
        Source->SetPoint1(first[0], MirrorY(first[1]), first[2]);
        Source->SetPoint2(second[0], MirrorY(second[1]), second[2]);
    }
}

int32_t CElement_Plane::GetValue(double* x, double* y, double* z, double* nx, double* ny,
                                 double* nz)
{
    *x = Point[0];
    *y = Point[1];
    *z = Point[2];
    *nx = Normal[0];
    *ny = Normal[1];
    *nz = Normal[2];
    return STATUS_OK;
}

int32_t CElement_Plane::SetValue(double x, double y, double z, double nx, double ny, double nz)
{
    StoreNormal(AreValidNumbers({x, y, z}), nx, ny, nz);
    Point = {x, y, z};
    if (Valid)
    {
        // The other sign than everywhere else; hosts know it so.
        Distance = -vtkMath::Dot(Normal.data(), Point.data());
    }
    Draw();
    return STATUS_OK;
}

int32_t CElement_Plane::GetValue2(double* distance, double* nx, double* ny, double* nz)
{
    *distance = Distance;
    *nx = Normal[0];
    *ny = Normal[1];
    *nz = Normal[2];
    return STATUS_OK;
}

int32_t CElement_Plane::SetValue2(double distance, double nx, double ny, double nz)
{
    Store(distance, nx, ny, nz);
    Draw();
    return STATUS_OK;
}

int32_t CElement_Plane::GetDrawSize(double* xmin, double* xmax, double* ymin, double* ymax,
                                    double* zmin, double* zmax)
{
    double* const box[] = {xmin, xmax, ymin, ymax, zmin, zmax};
    for (size_t side = 0; side < DrawSize.size(); ++side)
    {
        *box[side] = DrawSize[side];
    }
    return STATUS_OK;
}

int32_t CElement_Plane::SetDrawSize(double xmin, double xmax, double ymin, double ymax, double zmin,
                                    double zmax)
{
    // Finer than the box of a line, and another status.
    constexpr double least = 0.001;
    if (xmax - xmin < least || ymax - ymin < least || zmax - zmin < least)
    {
        return STATUS_TOO_SMALL;
    }
    DrawSize = {xmin, xmax, ymin, ymax, zmin, zmax};
    Draw();
    return STATUS_OK;
}

void CElement_Plane::FitToDrawSpace(const double drawSpace[6])
{
    SetDrawSize(drawSpace[0], drawSpace[1], drawSpace[2], drawSpace[3], drawSpace[4], drawSpace[5]);
}
