#include "interaction3d/MyDragInteractorStyle.h"

#include "frame/EventScope.h"

#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkRenderWindow.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>

class MyDragInteractorStyle::Handler
{
public:
    explicit Handler(MyDragInteractorStyle* style) : Scope(style) { style->Picker.Forget(); }

private:
    EventScope Scope;
};

void MyDragInteractorStyle::SetMouseFlags(bool left, bool middle, bool right)
{
    LeftEnabled = left;
    MiddleEnabled = middle;
    RightEnabled = right;
}

void MyDragInteractorStyle::SetDragTarget(const DragTarget& target)
{
    EndMotion();
    Target = target;
}

void MyDragInteractorStyle::EndMotion()
{
    EndDrag();
    State = VTKIS_NONE;
    if (Interactor)
    {
        ReleaseFocus();
        SetCursor(false);
    }
}

bool MyDragInteractorStyle::IsInstalled() const
{
    return Interactor && Interactor->GetInteractorStyle() == this;
}

vtkRenderer* MyDragInteractorStyle::GetViewRenderer() const
{
    return Interactor->GetRenderWindow()->GetRenderers()->GetFirstRenderer();
}

const Vector3& MyDragInteractorStyle::PickHere()
{
    const int* pixel = Interactor->GetEventPosition();
    return Picker.Pick(GetViewRenderer(), pixel[0], pixel[1]);
}

// -1: none of them.
int32_t MyDragInteractorStyle::FindHandle(const vtkProp* prop) const
{
    if (!prop || !Target.Actors || !Target.Forward)
    {
        return -1;
    }
    vtkCollectionSimpleIterator at;
    Target.Actors->InitTraversal(at);
    int32_t handle = 0;
    while (const vtkActor* actor = Target.Actors->GetNextActor(at))
    {
        if (actor == prop)
        {
            return handle;
        }
        ++handle;
    }
    return -1;
}

void MyDragInteractorStyle::SetCursor(bool overHandle)
{
    Interactor->GetRenderWindow()->SetCurrentCursor(overHandle ? VTK_CURSOR_SIZEALL
                                                               : VTK_CURSOR_ARROW);
}

// A press acts on what the last move has found.
bool MyDragInteractorStyle::Grab()
{
    const int32_t handle = CanGrab() ? FindHandle(Picker.GetProp()) : -1;
    if (handle < 0)
    {
        return false;
    }
    DraggedHandle = handle;
    Catcher.PlaceHorizontal(GetViewRenderer(), Target.Z[handle]);
    return true;
}

void MyDragInteractorStyle::MoveHandle()
{
    const int* pixel = Interactor->GetEventPosition();
    Vector3 position;
    if (Catcher.Meet(pixel[0], pixel[1], position))
    {
        Target.Forward(WindowId, DraggedHandle, position[0], -position[1], position[2], false);
    }
}

// The drag is over for this style before the host hears of it.
void MyDragInteractorStyle::LetGo()
{
    const int* pixel = Interactor->GetEventPosition();
    const int32_t handle = DraggedHandle;
    Vector3 position;
    const bool met = Catcher.Meet(pixel[0], pixel[1], position);
    EndDrag();
    if (met)
    {
        Target.Forward(WindowId, handle, position[0], -position[1], position[2], true);
    }
    else
    {
        // The handle is not under the mouse: another press must not find it there.
        Picker.SetProp(nullptr);
        Target.Forward(WindowId, NoHandle, 0.0, 0.0, 0.0, true);
    }
}

void MyDragInteractorStyle::EndDrag()
{
    DraggedHandle = -1;
    Catcher.Remove();
}

void MyDragInteractorStyle::OnMouseMove()
{
    const Handler handler(this);
    bool overHandle = false;
    if (IsDragging())
    {
        MoveHandle();
        if (!IsInstalled())
        {
            return;
        }
    }
    else if (Target.Forward && State == VTKIS_NONE && CanGrab())
    {
        PickHere();
        overHandle = FindHandle(Picker.GetProp()) >= 0;
    }
    else
    {
        // What was there before the camera moved.
        Picker.SetProp(nullptr);
    }
    SetCursor(overHandle);
    FollowMouse();
    if (IsInstalled())
    {
        Superclass::OnMouseMove();
    }
}

void MyDragInteractorStyle::OnLeftButtonDown()
{
    const Handler handler(this);
    if (Grab())
    {
        return;
    }
    PressLeft();
    if (LeftEnabled && IsInstalled())
    {
        Superclass::OnLeftButtonDown();
    }
}

void MyDragInteractorStyle::OnLeftButtonUp()
{
    const Handler handler(this);
    if (IsDragging())
    {
        LetGo();
    }
    if (IsInstalled())
    {
        ReleaseLeft();
    }
    if (IsInstalled())
    {
        Superclass::OnLeftButtonUp();
    }
}

void MyDragInteractorStyle::OnMiddleButtonDown()
{
    const Handler handler(this);
    if (MiddleEnabled)
    {
        Superclass::OnMiddleButtonDown();
    }
}

void MyDragInteractorStyle::OnRightButtonDown()
{
    const Handler handler(this);
    PressRight();
    if (RightEnabled && IsInstalled())
    {
        // With Shift the base class would turn the environment, which nobody sees here: zoom.
        Interactor->SetShiftKey(0);
        Superclass::OnRightButtonDown();
    }
}

void MyDragInteractorStyle::OnMouseWheelForward()
{
    const Handler handler(this);
    if (IsWheelOn())
    {
        Superclass::OnMouseWheelForward();
    }
}

void MyDragInteractorStyle::OnMouseWheelBackward()
{
    const Handler handler(this);
    if (IsWheelOn())
    {
        Superclass::OnMouseWheelBackward();
    }
}
