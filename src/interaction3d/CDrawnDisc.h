// A circle that is drawn from its centre: circle and cylinder.
#pragma once

#include "interaction3d/CDrawGesture.h"

#include <vtkRegularPolygonSource.h>

class CDrawnDisc : public CDrawGesture
{
public:
    CDrawnDisc(vtkRenderer* renderer, vtkTransform* sceneTransform);

    void Start(DrawPlane plane) override;

    // Of the finished circle, in host coordinates.
    const Vector3& GetCenter() const { return Center; }
    const Vector3& GetNormal() const { return Normal; }
    double GetRadius() const { return Radius; }

protected:
    void Begin(const Vector3& point) override;
    bool Stretch(const Vector3& point) override;

private:
    Vector3 Center = {};
    Vector3 Normal = {};
    double Radius = 0.0; // 0: no circle
    vtkNew<vtkRegularPolygonSource> DiscSource;
};
