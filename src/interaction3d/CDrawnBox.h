// A box that is drawn by two opposite corners, with sides along the axes: rectangle and cube.
#pragma once

#include "elements3d/CPolyLine.h"
#include "interaction3d/CDrawGesture.h"

class CDrawnBox : public CDrawGesture
{
public:
    CDrawnBox(vtkRenderer* renderer, vtkTransform* sceneTransform);

    // Of the finished box, in host coordinates.
    Vector3 GetCenter() const;
    // None is negative; 0 across the plane.
    Vector3 GetExtent() const;

protected:
    void Begin(const Vector3& point) override;
    bool Stretch(const Vector3& point) override;

private:
    Vector3 FirstPoint = {};
    Vector3 LastPoint = {};
    CPolyLine BoxLine;
};
