// What the mouse may do in a 3D view, and which element it may drag.
#include "interaction3d/MyDefaultInteractorStyle.h"
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
            DefaultStyle->EndMotion();
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
            DefaultStyle->EndMotion();
            DefaultStyle->SetMouseFlags(left, middle, right);
            // Also after interaction was switched off as a whole.
            Interactor->SetInteractorStyle(DefaultStyle);
            return STATUS_OK;
        });
}

int32_t CWindow::GetActiveElement(int32_t* elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (ActiveElementId >= 0 && !Elements.Find(ActiveElementId))
            {
                return STATUS_BAD_INDEX;
            }
            *elementId = ActiveElementId;
            return STATUS_OK;
        });
}

int32_t CWindow::SetActiveElement(int32_t elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            ClearActiveElement();
            if (elementId >= 0 && !Elements.Find(elementId))
            {
                return STATUS_BAD_INDEX;
            }
            // Only elements with handles become active, and no class has any yet. Asking for
            // another one is no error.
            return STATUS_OK;
        });
}

void CWindow::ClearActiveElement()
{
    ActiveElementId = -1;
}
