#include "elements3d/CElement_Circle.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

CElement_Circle::CElement_Circle() : CElement_Shape(Type) {}

void CElement_Circle::Store(double x, double y, double z, double radius, double nx, double ny,
                            double nz)
{
    constexpr double leastRadius = 1e-9;
    X = x;
    Y = y;
    Z = z;
    Radius = radius;
    Normal = {nx, ny, nz};
    Valid = AreValidNumbers({x, y, z, radius, nx, ny, nz}) && !(radius < leastRadius) &&
            GivesDirection(Normal);
    if (Valid)
    {
        MakeUnit(Normal);
    }
}

int32_t CElement_Circle::Initialize(const ElementSite& site, double x, double y, double z,
                                    double radius, double nx, double ny, double nz)
{
    Store(x, y, z, radius, nx, ny, nz);
    return TakeSiteAndSize(site);
}

int32_t CElement_Circle::BuildPipeline()
{
    Source = vtkSmartPointer<vtkRegularPolygonSource>::New();
    Source->GeneratePolygonOff();
    Source->SetNumberOfSides(100);
    BuildActor(Source->GetOutputPort());
    MirrorByUserMatrix(Actor);
    Draw();
    return STATUS_OK;
}

void CElement_Circle::Draw()
{
    if (ApplyVisibility(AreDrawable({X, Y, Z, Radius, Normal[0], Normal[1], Normal[2]})))
    {
        Source->SetCenter(X, Y, Z);
        Source->SetRadius(Radius);
        Source->SetNormal(Normal.data());
    }
}

int32_t CElement_Circle::GetValue(double* x, double* y, double* z, double* radius, double* nx,
                                  double* ny, double* nz)
{
    *x = X;
    *y = Y;
    *z = Z;
    *radius = Radius;
    *nx = Normal[0];
    *ny = Normal[1];
    *nz = Normal[2];
    return STATUS_OK;
}

int32_t CElement_Circle::SetValue(double x, double y, double z, double radius, double nx, double ny,
                                  double nz)
{
    Store(x, y, z, radius, nx, ny, nz);
    Draw();
    return STATUS_OK;
}

int32_t CElement_Circle::GetColor(uint8_t* red, uint8_t* green, uint8_t* blue)
{
    return Valid ? CElement_Shape::GetColor(red, green, blue) : int32_t{STATUS_INVALID_VALUES};
}
