#include "elements3d/CElement_Point.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

CElement_Point::CElement_Point() : CElement_Shape(Type)
{
    Size = 0.3;
}

int32_t CElement_Point::Initialize(const ElementSite& site, double x, double y, double z)
{
    X = x;
    Y = y;
    Z = z;
    Valid = AreValidNumbers({x, y, z});
    return TakeSiteAndSize(site);
}

int32_t CElement_Point::BuildPipeline()
{
    Source = vtkSmartPointer<vtkSphereSource>::New();
    Source->SetThetaResolution(100);
    Source->SetPhiResolution(50);
    BuildActor(Source->GetOutputPort());
    PlaceSphere();
    return STATUS_OK;
}

void CElement_Point::PlaceSphere()
{
    if (ApplyVisibility(AreDrawable({X, Y, Z, Size})))
    {
        Source->SetCenter(X, MirrorY(Y), Z);
        Source->SetRadius(Size);
    }
}

int32_t CElement_Point::GetValue(double* x, double* y, double* z, double* size)
{
    *x = X;
    *y = Y;
    *z = Z;
    *size = Size;
    return STATUS_OK;
}

int32_t CElement_Point::SetValue(double x, double y, double z, double size)
{
    Valid = AreValidNumbers({x, y, z, size});
    X = x;
    Y = y;
    Z = z;
    if (size >= leastSize)
    {
        Size = size;
    }
    PlaceSphere();
    return STATUS_OK;
}

int32_t CElement_Point::GetBounds(bool, double* xmin, double* xmax, double* ymin, double* ymax,
                                  double* zmin, double* zmax)
{
    *xmin = *xmax = *ymin = *ymax = *zmin = *zmax = 0.0;
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    *xmin = *xmax = X;
    *ymin = *ymax = Y;
    *zmin = *zmax = Z;
    return STATUS_OK;
}

int32_t CElement_Point::SetSize(double size)
{
    if (size < leastSize)
    {
        return STATUS_TOO_SMALL;
    }
    Size = size;
    PlaceSphere();
    return STATUS_OK;
}
