// What the mouse may do in a 3D view, and which element it may drag.
#include "elements3d/CElement_Draggable.h"
#include "frame/Forwarders.h"
#include "frame/HostCallback.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "interaction3d/MyDrawMouseInteractorStyle.h"
#include "view3d/CWindow.h"

#include <vtkTextActor.h>
#include <vtkTextWidget.h>

int32_t CWindow::EnableInteraction(bool enable)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (DrawMode != 0)
            {
                return STATUS_DRAW_MODE_ACTIVE;
            }
            EndMouseMotion();
            if (!enable && PickTextWidget)
            {
                // Off for good: they do not come back with the interaction.
                HidePickText();
                RenderWindow->Render();
            }
            Interactor->SetInteractorStyle(enable ? DefaultStyle.Get() : nullptr);
            return STATUS_OK;
        });
}

int32_t CWindow::EnableMouseInteraction(bool left, bool middle, bool right)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (DrawMode != 0)
            {
                return STATUS_DRAW_MODE_ACTIVE;
            }
            MouseEnabled[0] = left;
            MouseEnabled[1] = middle;
            MouseEnabled[2] = right;
            EndMouseMotion();
            DefaultStyle->SetMouseFlags(left, middle, right);
            // Also after interaction was switched off as a whole.
            Interactor->SetInteractorStyle(DefaultStyle);
            return STATUS_OK;
        });
}

int32_t CWindow::SetActiveElement(int32_t elementId)
{
    constexpr double handleRadius = 0.05; // scene units
    return WhenReady(
        [&]() -> int32_t
        {
            if (CElement_Draggable* former = FindDraggable(ActiveElementId))
            {
                former->ShowHandles(false, handleRadius);
            }
            ClearActiveElement();
            if (elementId >= 0 && !Elements.Find(elementId))
            {
                return STATUS_BAD_INDEX;
            }
            CElement_Draggable* element = FindDraggable(elementId);
            if (!element)
            {
                return STATUS_OK;
            }
            // An element that refuses its handles, or raises, leaves none active; no error either.
            const int32_t shown = Guarded(
                LastError, [&]() -> int32_t { return element->ShowHandles(true, handleRadius); });
            if (shown != STATUS_OK)
            {
                element->ShowHandles(false, handleRadius);
                return STATUS_OK;
            }
            ActiveElementId = elementId;
            OfferDragTarget(*element);
            return STATUS_OK;
        });
}

CElement_Draggable* CWindow::FindDraggable(int32_t elementId) const
{
    return dynamic_cast<CElement_Draggable*>(Elements.Find(elementId));
}

void CWindow::ClearActiveElement()
{
    ActiveElementId = -1;
    ClearDragTarget();
}

void CWindow::OfferDragTarget(const CElement_Draggable& element)
{
    const MyDragInteractorStyle::DragTarget target = {element.GetHandleActors(),
                                                      element.GetHandleX(), element.GetHandleY(),
                                                      element.GetHandleZ(), ForwardDrag};
    DefaultStyle->SetDragTarget(target);
    DrawStyle->SetDragTarget(target);
}

void CWindow::ClearDragTarget()
{
    DefaultStyle->SetDragTarget({});
    DrawStyle->SetDragTarget({});
}

void CWindow::EndMouseMotion()
{
    DefaultStyle->EndMotion();
    DrawStyle->EndMotion();
    if (CElement_Draggable* element = FindDraggable(ActiveElementId))
    {
        element->EndDrag();
    }
}

void CWindow::DragActiveElement(int32_t handle, double x, double y, double z, bool finished)
{
    CElement_Draggable* element = FindDraggable(ActiveElementId);
    if (!element)
    {
        return;
    }
    int32_t status = STATUS_OK;
    if (handle != MyDragInteractorStyle::NoHandle)
    {
        status = Guarded(LastError,
                         [&]() -> int32_t
                         {
                             const int32_t moved = element->MoveHandle(handle, x, y, z);
                             if (moved == STATUS_OK)
                             {
                                 RenderWindow->Render();
                             }
                             return moved;
                         });
    }
    if (!finished)
    {
        return;
    }
    element->EndDrag();
    if (status == STATUS_OK)
    {
        // Last: the view may be gone when the host returns.
        CallHost(ElementDraggedCallback, Id, ActiveElementId);
    }
}

MyDefaultInteractorStyle* CWindow::GetDefaultStyle() const
{
    return DefaultStyle;
}
