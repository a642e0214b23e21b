#include "interaction2d/MyDragInteractorStyle2D.h"

#include "frame/EventScope.h"

#include <vtkAxis.h>
#include <vtkChartHistogram2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkTooltipItem.h>

#include <utility>

namespace
{
// From a pixel between the two ends of an axis. False if the window leaves it no room.
bool ToAxis(int pixel, int first, int last, vtkAxis* axis, double* value)
{
    const int length = last - first;
    if (length <= 0)
    {
        return false;
    }
    const double minimum = axis->GetUnscaledMinimum();
    *value = (pixel - first) * (axis->GetUnscaledMaximum() - minimum) / length + minimum;
    return true;
}
} // namespace

void MyDragInteractorStyle2D::SetWindowContext(int32_t windowId, vtkChartHistogram2D* chart)
{
    WindowId = windowId;
    Chart = chart;
}

void MyDragInteractorStyle2D::SetDragTarget(const DragTarget& target)
{
    if (!target.Forward)
    {
        EndChartMotion();
    }
    Target = target;
}

void MyDragInteractorStyle2D::EndMotion()
{
    DraggedHandle = -1;
    EndChartMotion();
}

void MyDragInteractorStyle2D::EndChartMotion()
{
    if (!IsInstalled())
    {
        return;
    }
    // To the chart, whatever it was ends as a pan does: a box for a zoom goes without a zoom.
    if (Chart->GetActionToButton(vtkChart::PAN) == vtkContextMouseEvent::LEFT_BUTTON)
    {
        Superclass::OnLeftButtonUp();
    }
    else
    {
        Superclass::OnMiddleButtonUp();
    }
    SetCursor(false);
}

bool MyDragInteractorStyle2D::IsInstalled() const
{
    return Interactor && Interactor->GetInteractorStyle() == this;
}

void MyDragInteractorStyle2D::Render()
{
    if (IsInstalled())
    {
        Platform::RequestRender(Interactor->GetRenderWindow());
    }
}

void MyDragInteractorStyle2D::SetCursor(bool overHandle)
{
    Interactor->GetRenderWindow()->SetCurrentCursor(overHandle ? VTK_CURSOR_SIZEALL
                                                               : VTK_CURSOR_ARROW);
}

bool MyDragInteractorStyle2D::ToChart(double* x, double* y) const
{
    const int* pixel = Interactor->GetEventPosition();
    const int* first = Chart->GetPoint1();
    const int* last = Chart->GetPoint2();
    return ToAxis(pixel[0], first[0], last[0], Chart->GetAxis(vtkAxis::BOTTOM), x) &&
           ToAxis(pixel[1], first[1], last[1], Chart->GetAxis(vtkAxis::LEFT), y);
}

int32_t MyDragInteractorStyle2D::FindHandle() const
{
    double x = 0.0;
    double y = 0.0;
    return ToChart(&x, &y) ? Target.Find(WindowId, x, y) : -1;
}

void MyDragInteractorStyle2D::OnMouseMove()
{
    const EventScope scope(this);
    double x = 0.0;
    double y = 0.0;
    if (IsDragging() && Target.Forward && ToChart(&x, &y))
    {
        Target.Forward(WindowId, DraggedHandle, x, y, false);
        Render();
        return;
    }
    if (!IsDragging() && Target.Find && CanGrab())
    {
        SetCursor(FindHandle() >= 0);
    }
    Move();
    Render();
}

void MyDragInteractorStyle2D::OnLeftButtonDown()
{
    const EventScope scope(this);
    DraggedHandle = Target.Find && CanGrab() ? FindHandle() : -1;
    if (IsDragging())
    {
        // The chart does not hear of the press, and would leave it where the handle was.
        Chart->GetTooltip()->SetVisible(false);
        return;
    }
    PressLeft();
}

// The drag is over for this style before the host hears of it.
void MyDragInteractorStyle2D::OnLeftButtonUp()
{
    const EventScope scope(this);
    const int32_t handle = std::exchange(DraggedHandle, -1);
    double x = 0.0;
    double y = 0.0;
    if (handle >= 0 && Target.Forward && ToChart(&x, &y))
    {
        Target.Forward(WindowId, handle, x, y, true);
    }
    else
    {
        ReleaseLeft();
    }
    Render();
}

void MyDragInteractorStyle2D::OnMiddleButtonUp()
{
    const EventScope scope(this);
    Superclass::OnMiddleButtonUp();
    Render();
}

void MyDragInteractorStyle2D::OnRightButtonUp()
{
    const EventScope scope(this);
    Superclass::OnRightButtonUp();
    Render();
}

void MyDragInteractorStyle2D::OnMouseWheelForward()
{
    const EventScope scope(this);
    Superclass::OnMouseWheelForward();
    Render();
}

void MyDragInteractorStyle2D::OnMouseWheelBackward()
{
    const EventScope scope(this);
    Superclass::OnMouseWheelBackward();
    Render();
}

void MyDragInteractorStyle2D::Move()
{
    Superclass::OnMouseMove();
}

void MyDragInteractorStyle2D::PressLeft()
{
    Superclass::OnLeftButtonDown();
}

void MyDragInteractorStyle2D::ReleaseLeft()
{
    Superclass::OnLeftButtonUp();
}
