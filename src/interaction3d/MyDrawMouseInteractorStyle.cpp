#include "interaction3d/MyDrawMouseInteractorStyle.h"

#include <vtkObjectFactory.h>

#include <utility>

vtkStandardNewMacro(MyDrawMouseInteractorStyle);

void MyDrawMouseInteractorStyle::DropGesture()
{
    LeftHeld = false;
    GestureOn = false;
}

void MyDrawMouseInteractorStyle::ForwardHere(DrawForwarder forwarder)
{
    const Vector3 position = PickHere();
    forwarder(WindowId, position[0], position[1], position[2]);
}

void MyDrawMouseInteractorStyle::FollowMouse()
{
    if (ForwardMove && GestureOn && (LeftHeld || MultiClick))
    {
        ForwardHere(ForwardMove);
    }
}

// A gesture begins on something. Flags are set before the view hears of it, here and below: it may
// drop the gesture.
void MyDrawMouseInteractorStyle::PressLeft()
{
    LeftHeld = true;
    if (ForwardDown && PickHere() != CScenePicker::Nothing)
    {
        GestureOn = true;
        ForwardHere(ForwardDown);
    }
}

void MyDrawMouseInteractorStyle::ReleaseLeft()
{
    const bool wasHeld = std::exchange(LeftHeld, false);
    const bool wasOn = std::exchange(GestureOn, GestureOn && MultiClick);
    if (ForwardUp && wasHeld && wasOn)
    {
        ForwardHere(ForwardUp);
    }
}

void MyDrawMouseInteractorStyle::PressRight()
{
    GestureOn = false;
    if (ForwardEnd)
    {
        ForwardEnd(WindowId);
    }
}
