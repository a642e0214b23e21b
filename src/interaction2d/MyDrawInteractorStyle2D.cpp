#include "interaction2d/MyDrawInteractorStyle2D.h"

#include "frame/EventScope.h"

#include <vtkObjectFactory.h>

#include <utility>

vtkStandardNewMacro(MyDrawInteractorStyle2D);

void MyDrawInteractorStyle2D::SetForwarders(bool multiClick, const DrawTarget& target)
{
    MultiClick = multiClick;
    Drawing = target;
    ResetGesture();
}

void MyDrawInteractorStyle2D::ResetGesture()
{
    LeftHeld = false;
    GestureOn = false;
}

bool MyDrawInteractorStyle2D::ForwardHere(DrawForwarder forwarder)
{
    double x = 0.0;
    double y = 0.0;
    const bool found = ToChart(&x, &y);
    if (found)
    {
        forwarder(WindowId, x, y);
    }
    return found;
}

void MyDrawInteractorStyle2D::Move()
{
    if (LeftHeld || GestureOn)
    {
        ForwardHere(Drawing.Move);
    }
    // Between two clicks the middle button pans.
    if (GestureOn || !LeftHeld)
    {
        Superclass::Move();
    }
}

void MyDrawInteractorStyle2D::PressLeft()
{
    LeftHeld = true;
    if (ForwardHere(Drawing.Down))
    {
        GestureOn = MultiClick;
    }
    Render();
}

// The button counts as released before the view hears of it: the host may do anything then.
void MyDrawInteractorStyle2D::ReleaseLeft()
{
    if (std::exchange(LeftHeld, false))
    {
        ForwardHere(Drawing.Up);
    }
}

void MyDrawInteractorStyle2D::OnRightButtonDown()
{
    const EventScope scope(this);
    GestureOn = false;
    Drawing.End(WindowId);
}

void MyDrawInteractorStyle2D::OnRightButtonUp()
{
    const EventScope scope(this);
    Render();
}
