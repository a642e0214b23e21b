// The mouse style of a 3D view while nothing is drawn. Besides what it shares with the other style
// it reports the position under the mouse, if somebody wants it, and marks it with a small sphere.
#pragma once

#include "interaction3d/MyDragInteractorStyle.h"

#include <vtkWeakPointer.h>

class MyDefaultInteractorStyle : public MyDragInteractorStyle
{
public:
    static MyDefaultInteractorStyle* New();
    vtkTypeMacro(MyDefaultInteractorStyle, MyDragInteractorStyle);

    // Takes a position under the mouse, in VTK's world, to the view of that id.
    using PickForwarder = void (*)(int32_t windowId, double x, double y, double z);
    // Null ends the reporting of positions.
    void SetPickForwarder(PickForwarder forwarder) { ForwardPick = forwarder; }

protected:
    MyDefaultInteractorStyle();
    ~MyDefaultInteractorStyle() override = default;
    void FollowMouse() override;

private:
    void ShowMarker(const Vector3& position);
    void HideMarker();

    PickForwarder ForwardPick = nullptr;
    vtkNew<vtkActor> MarkerActor;
    vtkWeakPointer<vtkRenderer> MarkerRenderer; // where the marker is now
};
