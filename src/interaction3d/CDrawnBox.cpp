#include "interaction3d/CDrawnBox.h"

#include <algorithm>

CDrawnBox::CDrawnBox(vtkRenderer* renderer, vtkTransform* sceneTransform)
    : CDrawGesture(renderer, sceneTransform)
{
    SetBand(BoxLine.GetOutputPort());
}

void CDrawnBox::Begin(const Vector3& point)
{
    FirstPoint = point;
    LastPoint = point;
}

bool CDrawnBox::Stretch(const Vector3& point)
{
    LastPoint = point;
    Vector3 second = FirstPoint;
    second[0] = LastPoint[0];
    Vector3 fourth = FirstPoint;
    fourth[Along()] = LastPoint[Along()];
    std::array<double, 12> corners = {};
    double* next = corners.data();
    for (const Vector3& corner : {FirstPoint, second, LastPoint, fourth})
    {
        next = std::copy(corner.begin(), corner.end(), next);
    }
    BoxLine.Set(corners, true);
    return true;
}

Vector3 CDrawnBox::GetCenter() const
{
    return {(FirstPoint[0] + LastPoint[0]) * 0.5, (FirstPoint[1] + LastPoint[1]) * 0.5,
            (FirstPoint[2] + LastPoint[2]) * 0.5};
}

Vector3 CDrawnBox::GetExtent() const
{
    return {std::abs(LastPoint[0] - FirstPoint[0]), std::abs(LastPoint[1] - FirstPoint[1]),
            std::abs(LastPoint[2] - FirstPoint[2])};
}
