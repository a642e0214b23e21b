// What both mouse styles of a 3D view share: camera motion, each button behind a switch, and the
// dragging of the active element's handles.
//
// Every event finds the global lock held; the handlers take it again, so that they are safe however
// they are called. A style has no lock of its own.
//
// A forwarder may call the host, and the host may do anything: remove the element, switch the mode,
// delete the view. So a handler holds its style, and after each forwarder it asks IsInstalled
// before it touches anything else.
#pragma once

#include "interaction3d/CCatcherPlane.h"
#include "interaction3d/CScenePicker.h"

#include <vtkInteractorStyleTrackballCamera.h>

#include <cstdint>

class vtkActorCollection;

class MyDragInteractorStyle : public vtkInteractorStyleTrackballCamera
{
public:
    vtkTypeMacro(MyDragInteractorStyle, vtkInteractorStyleTrackballCamera);

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
    static constexpr int32_t NoHandle = 9999; // the drag ended without a position

    void SetWindowId(int32_t windowId) { WindowId = windowId; }
    // Which buttons move the camera.
    void SetMouseFlags(bool left, bool middle, bool right);
    // Ends the motion under way.
    void SetDragTarget(const DragTarget& target);
    const DragTarget& GetDragTarget() const { return Target; }
    bool IsDragging() const { return DraggedHandle >= 0; }
    // Ends a drag or a camera motion whose button is still held: nothing may go on moving without a
    // button. Does not render, and the drag is not reported.
    void EndMotion();

    void OnMouseMove() override;
    void OnLeftButtonDown() override;
    // Releases always reach the base class: a motion begun before a switch was turned must end.
    void OnLeftButtonUp() override;
    void OnMiddleButtonDown() override;
    void OnRightButtonDown() override;
    void OnMouseWheelForward() override;
    void OnMouseWheelBackward() override;

protected:
    MyDragInteractorStyle() = default;
    ~MyDragInteractorStyle() override = default;

    // What a leaf does with the mouse besides; each may call forwarders.
    virtual bool CanGrab() const { return true; }
    virtual bool IsWheelOn() const { return RightEnabled; }
    virtual void FollowMouse() {}
    virtual void PressLeft() {}
    virtual void ReleaseLeft() {}
    virtual void PressRight() {}

    // Still the style of a view.
    bool IsInstalled() const;
    vtkRenderer* GetViewRenderer() const;
    // What is under the mouse, in VTK's world; CScenePicker::Nothing for nothing.
    const Vector3& PickHere();

    int32_t WindowId = -1;

private:
    class Handler;

    int32_t FindHandle(const vtkProp* prop) const;
    bool Grab();
    void MoveHandle();
    void LetGo();
    void EndDrag();
    void SetCursor(bool overHandle);

    bool LeftEnabled = true;
    bool MiddleEnabled = true;
    bool RightEnabled = true;
    DragTarget Target;
    int32_t DraggedHandle = -1;
    CScenePicker Picker;
    CCatcherPlane Catcher;
};
