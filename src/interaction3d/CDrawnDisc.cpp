#include "interaction3d/CDrawnDisc.h"

#include <cmath>

CDrawnDisc::CDrawnDisc(vtkRenderer* renderer, vtkTransform* sceneTransform)
    : CDrawGesture(renderer, sceneTransform)
{
    DiscSource->GeneratePolygonOff();
    DiscSource->SetNumberOfSides(100);
    SetBand(DiscSource->GetOutputPort());
}

void CDrawnDisc::Start(DrawPlane plane)
{
    CDrawGesture::Start(plane);
    Normal = {};
    Normal[static_cast<size_t>(plane)] = 1.0;
    DiscSource->SetNormal(Normal.data());
}

void CDrawnDisc::Begin(const Vector3& point)
{
    Center = point;
    DiscSource->SetCenter(Center.data());
}

bool CDrawnDisc::Stretch(const Vector3& point)
{
    constexpr double leastSquare = 1e-12;
    const double dx = point[0] - Center[0];
    const double dy = point[Along()] - Center[Along()];
    const double square = dx * dx + dy * dy;
    Radius = square > leastSquare ? std::sqrt(square) : 0.0;
    if (Radius == 0.0)
    {
        return false;
    }
    DiscSource->SetRadius(Radius);
    return true;
}
