// The elements of a chart view: removal, and which of them is active.
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
            if (elementId == ActiveElementId || elementId < 0)
            {
                return STATUS_OK;
            }
            const CElement_2D* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            switch (element->ElementType)
            {
            case TARVEX_ELEMENT_POINT:
            case TARVEX_ELEMENT_LINE:
            case TARVEX_ELEMENT_ELLIPSE:
            case TARVEX_ELEMENT_IMAGE:
                return STATUS_WRONG_TYPE;
            default:
                return STATUS_BAD_ELEMENT_TYPE;
            }
        });
}
