#include "elements3d/CElement_Draggable.h"

#include "Tarvex.h"

#include <vtkRenderer.h>

CElement_Draggable::CElement_Draggable(int32_t elementType, int32_t handleCapacity)
    : CElement_Shape(elementType), Handles(handleCapacity)
{
}

int32_t CElement_Draggable::ShowHandles(bool on, double radius)
{
    if (!Valid)
    {
        // Also when asked to: an element that stops being active must not show them when it
        // becomes valid again.
        HandlesOn = false;
        Handles.TakeOut(Renderer);
        return STATUS_INVALID_VALUES;
    }
    return SwitchHandles(on, radius);
}

int32_t CElement_Draggable::SwitchHandles(bool on, double radius)
{
    constexpr double leastRadius = 1e-10;
    if (radius < leastRadius)
    {
        return STATUS_TOO_SMALL;
    }
    EndDrag();
    HandlesOn = on && Valid;
    HandleRadius = radius;
    if (!HandlesOn)
    {
        Handles.TakeOut(Renderer);
        return on ? STATUS_INVALID_VALUES : STATUS_OK;
    }
    BuildHandles();
    return STATUS_OK;
}

void CElement_Draggable::BuildHandles()
{
    Handles.Build();
    Handles.SetColor(Color);
    Handles.SetOpacity(1.0 - Transparency);
    Handles.Place(Renderer, HandleRadius, IsVisible());
    // A handle, dragged or new, must not be cut off by a range that fitted the scene before.
    Renderer->ResetCameraClippingRange();
}

int32_t CElement_Draggable::MoveHandle(int32_t handle, double x, double y, double z)
{
    if (!Valid)
    {
        return STATUS_INVALID_VALUES;
    }
    if (handle < 0 || handle >= Handles.GetCount())
    {
        return STATUS_OUT_OF_RANGE;
    }
    DragHandle(handle, {x, y, z});
    return STATUS_OK;
}

void CElement_Draggable::EndDrag() {}

void CElement_Draggable::Refresh()
{
    ApplyLighting(Actor);
    if (Valid)
    {
        PlaceHandles();
    }
    Draw(ApplyVisibility(IsVisible()));
    if (HandlesOn)
    {
        BuildHandles();
    }
}

vtkActorCollection* CElement_Draggable::GetHandleActors() const
{
    return Valid && HandlesOn ? Handles.GetActors() : nullptr;
}

const double* CElement_Draggable::GetHandleX() const
{
    return Valid && HandlesOn ? Handles.GetX() : nullptr;
}

const double* CElement_Draggable::GetHandleY() const
{
    return Valid && HandlesOn ? Handles.GetY() : nullptr;
}

const double* CElement_Draggable::GetHandleZ() const
{
    return Valid && HandlesOn ? Handles.GetZ() : nullptr;
}

int32_t CElement_Draggable::SetInScene(bool inScene)
{
    if (!inScene)
    {
        Handles.TakeOut(Renderer);
    }
    else if (HandlesOn)
    {
        BuildHandles();
    }
    // Last: it fits the clipping range to all of them.
    return CElement_Shape::SetInScene(inScene);
}

int32_t CElement_Draggable::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    const int32_t status = CElement_Shape::SetColor(red, green, blue);
    if (status == STATUS_OK && HandlesOn)
    {
        Handles.SetColor(Color);
    }
    return status;
}
