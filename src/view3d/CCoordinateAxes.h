// The axes of the scene as real geometry at its origin: three tubes from -50 to 50, with cones and
// letters at their positive host ends.
#pragma once

#include <vtkActor.h>
#include <vtkCaptionActor2D.h>
#include <vtkSmartPointer.h>

#include <array>

class vtkRenderer;

class CCoordinateAxes
{
public:
    CCoordinateAxes();

    void SetInScene(vtkRenderer* renderer, bool inScene);

private:
    vtkSmartPointer<vtkActor> Tubes;
    std::array<vtkSmartPointer<vtkActor>, 3> Cones;
    std::array<vtkSmartPointer<vtkCaptionActor2D>, 3> Captions;
};

// The colours of the axes, here and in the orientation marker.
struct AxisColors
{
    static constexpr double X[] = {1.0, 0.0, 0.0};
    static constexpr double Y[] = {1.0, 1.0, 0.0};
    static constexpr double Z[] = {0.0, 1.0, 0.0};
};
