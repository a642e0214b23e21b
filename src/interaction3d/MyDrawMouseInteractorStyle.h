// The mouse style of a 3D view while a draw mode is on: presses, moves and releases of the left
// button become points of a drawing gesture, the right button ends it. Handles of the active
// element can be dragged between two gestures.
//
//   Ready       left down, something hit          ForwardDown          -> Pressed
//   Pressed     move                              ForwardMove
//               left up                           ForwardUp            -> Ready, or Collecting
//   Collecting  (gestures of several clicks)      ForwardMove on moves
//               left down                         ForwardDown if hit   -> Pressed
//   any         right down                        ForwardEnd           -> Ready
#pragma once

#include "interaction3d/MyDragInteractorStyle.h"

class MyDrawMouseInteractorStyle : public MyDragInteractorStyle
{
public:
    static MyDrawMouseInteractorStyle* New();
    vtkTypeMacro(MyDrawMouseInteractorStyle, MyDragInteractorStyle);

    // Take a point, in VTK's world, to the view of that id. All zeros: nothing is there.
    using DrawForwarder = void (*)(int32_t windowId, double x, double y, double z);
    using EndForwarder = void (*)(int32_t windowId);

    // A gesture goes on through several clicks, until the right button ends it.
    void SetMultiClick(bool multiClick) { MultiClick = multiClick; }
    void SetDownForwarder(DrawForwarder forwarder) { ForwardDown = forwarder; }
    void SetMoveForwarder(DrawForwarder forwarder) { ForwardMove = forwarder; }
    void SetUpForwarder(DrawForwarder forwarder) { ForwardUp = forwarder; }
    void SetEndForwarder(EndForwarder forwarder) { ForwardEnd = forwarder; }
    // Forgets the gesture under way, also a button that is still held: nothing of it is forwarded
    // any more. For changes of the mode, beside EndMotion.
    void DropGesture();

protected:
    MyDrawMouseInteractorStyle() = default;
    ~MyDrawMouseInteractorStyle() override = default;

    bool CanGrab() const override { return !GestureOn; }
    // Zooms in any gesture.
    bool IsWheelOn() const override { return true; }
    void FollowMouse() override;
    void PressLeft() override;
    void ReleaseLeft() override;
    void PressRight() override;

private:
    void ForwardHere(DrawForwarder forwarder);

    bool MultiClick = false;
    DrawForwarder ForwardDown = nullptr;
    DrawForwarder ForwardMove = nullptr;
    DrawForwarder ForwardUp = nullptr;
    EndForwarder ForwardEnd = nullptr;
    bool LeftHeld = false;
    bool GestureOn = false; // a first point was hit
};
