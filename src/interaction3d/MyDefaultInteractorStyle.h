// The mouse style of a 3D view while nothing is drawn: camera motion, each button behind a switch.
#pragma once

#include <vtkInteractorStyleTrackballCamera.h>

#include <cstdint>

class vtkActorCollection;

class MyDefaultInteractorStyle : public vtkInteractorStyleTrackballCamera
{
public:
    static MyDefaultInteractorStyle* New();
    vtkTypeMacro(MyDefaultInteractorStyle, vtkInteractorStyleTrackballCamera);

    // Takes a position under the mouse, in VTK's world, to the view of that id.
    using PickForwarder = void (*)(int32_t windowId, double x, double y, double z);

    // Takes a dragged handle, in host coordinates, to the view of that id; `finished` with the last
    // position of a drag.
    using DragForwarder = void (*)(int32_t windowId, int32_t handle, double x, double y, double z,
                                   bool finished);
    // The handles of the active element and their positions in host coordinates, all borrowed. All
    // null without an active element.
    struct DragTarget
    {
        vtkActorCollection* Actors = nullptr;
        const double* X = nullptr;
        const double* Y = nullptr;
        const double* Z = nullptr;
        DragForwarder Forward = nullptr;
    };

    void SetWindowId(int32_t windowId) { WindowId = windowId; }
    // Null ends the reporting of positions.
    void SetPickForwarder(PickForwarder forwarder) { ForwardPick = forwarder; }
    void SetDragTarget(const DragTarget& target) { Target = target; }
    const DragTarget& GetDragTarget() const { return Target; }
    // `right` also switches the wheel: both zoom.
    void SetMouseFlags(bool left, bool middle, bool right);
    // Ends a camera motion whose button is still held, before the style is taken out or its
    // switches change: nothing may go on moving without a button. Does not render.
    void EndMotion();

    // A release always reaches the base class: a motion begun before a switch was turned must end.
    void OnLeftButtonDown() override;
    void OnMiddleButtonDown() override;
    void OnRightButtonDown() override;
    void OnMouseWheelForward() override;
    void OnMouseWheelBackward() override;

protected:
    MyDefaultInteractorStyle() = default;
    ~MyDefaultInteractorStyle() override = default;

private:
    int32_t WindowId = -1;
    PickForwarder ForwardPick = nullptr;
    DragTarget Target;
    bool LeftEnabled = true;
    bool MiddleEnabled = true;
    bool RightEnabled = true;
};
