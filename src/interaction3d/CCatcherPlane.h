// A plane in the scene that is as good as invisible and can be picked: what a dragged handle slides
// on, and what a drawing gesture lies on where it hits no element.
#pragma once

#include "elements3d/Directions.h"

#include <vtkActor.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkWeakPointer.h>

class vtkPlaneSource;
class vtkRenderer;

class CCatcherPlane
{
public:
    CCatcherPlane();
    ~CCatcherPlane();
    CCatcherPlane(const CCatcherPlane&) = delete;
    CCatcherPlane& operator=(const CCatcherPlane&) = delete;

    // Into the scene, or elsewhere in it. A corner and its two neighbours, in VTK's world.
    void Place(vtkRenderer* renderer, const Vector3& origin, const Vector3& point1,
               const Vector3& point2);
    // The horizontal square of 20,000 units a side around the vertical axis, for drags.
    void PlaceHorizontal(vtkRenderer* renderer, double height);
    // Out of the scene, at once and without a render.
    void Remove();

    // Where the pixel's line of sight, between the near and the far end of the view, meets the
    // plane; false: nowhere, or the pixel is outside the view. Meets what a picker would, without
    // the rounding of the depth buffer.
    bool Meet(int x, int y, Vector3& position) const;

    // Not counted in the bounds of the scene: the camera would step back from the whole of it, and
    // near things would be cut off. Whoever wants it counted says so here.
    vtkActor* GetActor() const { return Actor; }

private:
    vtkNew<vtkPlaneSource> Source;
    vtkSmartPointer<vtkActor> Actor;
    // Where the plane is now. Weak: a view may go before its styles.
    vtkWeakPointer<vtkRenderer> Renderer;
};
