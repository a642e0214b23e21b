// The mouse in a chart view: which style has it, and what it may drag.
#include "elements2d/CElement_Draggable2D.h"
#include "frame/Forwarders.h"
#include "frame/HostCallback.h"
#include "interaction2d/MyDefaultInteractorStyle2D.h"
#include "interaction2d/MyDrawInteractorStyle2D.h"
#include "view2d/CWindow2D.h"

#include <vtkChartHistogram2D.h>
#include <vtkContextMouseEvent.h>
#include <vtkContextScene.h>

void CWindow2D::MakeStyles()
{
    DefaultStyle = vtkSmartPointer<MyDefaultInteractorStyle2D>::New();
    DefaultStyle->SetWindowContext(Id, Chart);
    DrawStyle = vtkSmartPointer<MyDrawInteractorStyle2D>::New();
    DrawStyle->SetWindowContext(Id, Chart);
    TakeStyle(DefaultStyle);
}

void CWindow2D::TakeStyle(MyDragInteractorStyle2D* style)
{
    DefaultStyle->EndMotion();
    DrawStyle->EndMotion();
    // A style that looks at a scene without being installed crashes when the chart changes.
    DefaultStyle->SetScene(nullptr);
    DrawStyle->SetScene(nullptr);
    Interactor->SetInteractorStyle(style);
    if (!style)
    {
        return;
    }
    style->SetScene(Scene);
    // The wheel zooms always.
    const bool draws = style == DrawStyle;
    constexpr int none = vtkContextMouseEvent::NO_BUTTON;
    constexpr int left = vtkContextMouseEvent::LEFT_BUTTON;
    constexpr int middle = vtkContextMouseEvent::MIDDLE_BUTTON;
    constexpr int right = vtkContextMouseEvent::RIGHT_BUTTON;
    // In this order: an action that comes later takes its button from an earlier one.
    Chart->SetActionToButton(vtkChart::ZOOM_AXIS, draws ? none : right);
    Chart->SetActionToButton(vtkChart::PAN, draws ? middle : left);
    Chart->SetActionToButton(vtkChart::ZOOM, draws ? none : middle);
}

void CWindow2D::OfferDragTarget(CElement_Draggable2D* element)
{
    DragTarget = element;
    ActiveElementId = element->Id;
    const MyDragInteractorStyle2D::DragTarget target = {ForwardFindHandle2D, ForwardDrag2D};
    DefaultStyle->SetDragTarget(target);
    DrawStyle->SetDragTarget(target);
}

void CWindow2D::ClearDragTarget()
{
    DragTarget = nullptr;
    ActiveElementId = -1;
    DefaultStyle->SetDragTarget({});
    DrawStyle->SetDragTarget({});
}

int32_t CWindow2D::FindHandle(double x, double y)
{
    if (Guard() != STATUS_OK || !DragTarget)
    {
        return -1;
    }
    // Asked only while none is held, however the last drag went.
    DragTarget->EndDrag();
    return DragTarget->FindHandle(x, y, HandleTolerance);
}

void CWindow2D::DragActiveElement(int32_t handle, double x, double y, bool finished)
{
    if (Guard() != STATUS_OK || !DragTarget)
    {
        return;
    }
    const int32_t status = Guarded(LastError, [&] { return DragTarget->DragHandle(handle, x, y); });
    if (status == STATUS_OK && finished)
    {
        // Last: the view may be gone when the host returns.
        CallHost(ElementDraggedCallback, Id, ActiveElementId);
    }
}
