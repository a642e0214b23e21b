// The elements of a chart view: removal, and which of them is active.
#include "elements2d/CElement_Draggable2D.h"
#include "view2d/CWindow2D.h"

#include <vtkChartHistogram2D.h>

ChartSite CWindow2D::MakeSite() const
{
    return {NextElementId, Chart, DrawSpace};
}

int32_t CWindow2D::Remove(int32_t elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            CElement_2D* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            CancelDrawing();
            if (elementId == ActiveElementId)
            {
                ClearDragTarget();
            }
            element->LeaveView();
            Elements.Remove(elementId);
            Refresh();
            return STATUS_OK;
        });
}

int32_t CWindow2D::RemoveAll()
{
    return WhenReady(
        [&]() -> int32_t
        {
            ClearDragTarget();
            for (const std::unique_ptr<CElement_2D>& element : Elements)
            {
                element->LeaveView();
            }
            Elements.Clear();
            Refresh();
            return STATUS_OK;
        });
}

int32_t CWindow2D::SetActiveElement(int32_t elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (elementId == ActiveElementId)
            {
                return STATUS_OK;
            }
            if (DragTarget)
            {
                DragTarget->SetActive(false);
            }
            ClearDragTarget();
            if (elementId < 0)
            {
                return STATUS_OK;
            }
            CElement_2D* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            switch (element->ElementType)
            {
            case TARVEX_ELEMENT_CIRCLE:
            case TARVEX_ELEMENT_RECTANGLE:
            case TARVEX_ELEMENT_POLYGON:
                break;
            case TARVEX_ELEMENT_POINT:
            case TARVEX_ELEMENT_LINE:
            case TARVEX_ELEMENT_ELLIPSE:
            case TARVEX_ELEMENT_IMAGE:
                return STATUS_WRONG_TYPE;
            default:
                return STATUS_BAD_ELEMENT_TYPE;
            }
            auto* target = static_cast<CElement_Draggable2D*>(element);
            const int32_t status = target->SetActive(true);
            if (status == STATUS_OK)
            {
                OfferDragTarget(target);
            }
            return status;
        });
}
