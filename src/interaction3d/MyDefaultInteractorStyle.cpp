#include "interaction3d/MyDefaultInteractorStyle.h"

#include <vtkObjectFactory.h>
#include <vtkRenderWindowInteractor.h>

vtkStandardNewMacro(MyDefaultInteractorStyle);

void MyDefaultInteractorStyle::SetMouseFlags(bool left, bool middle, bool right)
{
    LeftEnabled = left;
    MiddleEnabled = middle;
    RightEnabled = right;
}

void MyDefaultInteractorStyle::EndMotion()
{
    State = VTKIS_NONE;
    if (Interactor)
    {
        ReleaseFocus();
    }
}

void MyDefaultInteractorStyle::OnLeftButtonDown()
{
    if (LeftEnabled)
    {
        Superclass::OnLeftButtonDown();
    }
}

void MyDefaultInteractorStyle::OnMiddleButtonDown()
{
    if (MiddleEnabled)
    {
        Superclass::OnMiddleButtonDown();
    }
}

void MyDefaultInteractorStyle::OnRightButtonDown()
{
    if (RightEnabled)
    {
        // With Shift the base class would turn the environment, which nobody sees here: zoom.
        Interactor->SetShiftKey(0);
        Superclass::OnRightButtonDown();
    }
}

void MyDefaultInteractorStyle::OnMouseWheelForward()
{
    if (RightEnabled)
    {
        Superclass::OnMouseWheelForward();
    }
}

void MyDefaultInteractorStyle::OnMouseWheelBackward()
{
    if (RightEnabled)
    {
        Superclass::OnMouseWheelBackward();
    }
}
