// The mouse style of a chart view while a draw mode is on: the left and the right button belong to
// the gesture, and the chart has only the middle button and the wheel. Handles of the active
// element can be dragged between two gestures.
//
//   Ready       left down                          Down             -> Held
//   Held        move                               Move
//               left up                            Up               -> Ready, or Collecting
//   Collecting  (gestures of several clicks)       Move on moves
//               left down                          Down             -> Held
//   any         right down                         End              -> Ready
#pragma once

#include "interaction2d/MyDragInteractorStyle2D.h"

class MyDrawInteractorStyle2D : public MyDragInteractorStyle2D
{
public:
    static MyDrawInteractorStyle2D* New();
    vtkTypeMacro(MyDrawInteractorStyle2D, MyDragInteractorStyle2D);

    // Take a point, in chart coordinates, to the view of that id.
    using DrawForwarder = void (*)(int32_t windowId, double x, double y);
    using EndForwarder = void (*)(int32_t windowId);
    struct DrawTarget
    {
        DrawForwarder Down = nullptr;
        DrawForwarder Move = nullptr;
        DrawForwarder Up = nullptr;
        EndForwarder End = nullptr;
    };

    // None may be null. `multiClick`: a gesture goes on through several clicks, until the right
    // button ends it.
    void SetForwarders(bool multiClick, const DrawTarget& target);
    // Forgets the gesture under way, also a button that is still held: nothing of it is forwarded
    // any more.
    void ResetGesture();

    void OnRightButtonDown() override;
    void OnRightButtonUp() override;

protected:
    MyDrawInteractorStyle2D() = default;
    ~MyDrawInteractorStyle2D() override = default;

    bool CanGrab() const override { return !LeftHeld && !GestureOn; }
    void Move() override;
    void PressLeft() override;
    void ReleaseLeft() override;

private:
    // False: nothing could be forwarded.
    bool ForwardHere(DrawForwarder forwarder);

    bool MultiClick = false;
    DrawTarget Drawing;
    bool LeftHeld = false;
    bool GestureOn = false; // of several clicks
};
