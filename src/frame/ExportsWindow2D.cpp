// Exports of chart views.
#include "Tarvex.h"

#include "frame/CallFrame.h"
#include "view2d/CWindow2D.h"

int32_t Tarvex_Window2D_Create(void* parentWindow, uint8_t noBorders, int32_t x, int32_t y,
                               int32_t width, int32_t height, int32_t* windowId)
{
    ClearToNone(windowId);
    return OnManager(&CWindowManager::Create<CWindow2D>, parentWindow, noBorders != 0, x, y, width,
                     height, windowId);
}

int32_t Tarvex_Window2D_Delete(int32_t windowId)
{
    return OnManager(&CWindowManager::Delete<CWindow2D>, windowId);
}

int32_t Tarvex_Window2D_GetCount(int32_t* count)
{
    ClearToZero(count);
    return OnManager(&CWindowManager::GetCount<CWindow2D>, count);
}

int32_t Tarvex_Window2D_GetIDFromIndex(int32_t index, int32_t* windowId)
{
    ClearToNone(windowId);
    return OnManager(&CWindowManager::GetIDFromIndex<CWindow2D>, index, windowId);
}

int32_t Tarvex_Window2D_UpdateSize(int32_t windowId, int32_t x, int32_t y, int32_t width,
                                   int32_t height)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::UpdateSize, x, y, width, height);
}

int32_t Tarvex_Window2D_ChartAutoScale(int32_t windowId, uint8_t keepAspect)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::ChartAutoScale, keepAspect != 0);
}

int32_t Tarvex_Window2D_SetChartLayout(int32_t windowId, uint32_t layout)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::SetChartLayout, layout);
}

int32_t Tarvex_Window2D_SetBackgroundColor(int32_t windowId, uint8_t red, uint8_t green,
                                           uint8_t blue)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::SetBackgroundColor, red, green, blue);
}

int32_t Tarvex_Window2D_GetDrawSpace(int32_t windowId, double* xmin, double* xmax, double* ymin,
                                     double* ymax)
{
    ClearToZero(xmin, xmax, ymin, ymax);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetDrawSpace, xmin, xmax, ymin, ymax);
}

int32_t Tarvex_Window2D_SetDrawSpace(int32_t windowId, double xmin, double xmax, double ymin,
                                     double ymax)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::SetDrawSpace, xmin, xmax, ymin, ymax);
}

int32_t Tarvex_Window2D_RegisterCallback_ElementAdded(int32_t windowId,
                                                      Tarvex_Element2DAddedCallback callback)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::RegisterCallback_ElementAdded, callback);
}

int32_t Tarvex_Window2D_RegisterCallback_ElementDragged(int32_t windowId,
                                                        Tarvex_Element2DDraggedCallback callback)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::RegisterCallback_ElementDragged, callback);
}

int32_t Tarvex_Window2D_GetActiveElement(int32_t windowId, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetActiveElement, elementId);
}

int32_t Tarvex_Window2D_SetActiveElement(int32_t windowId, int32_t elementId)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::SetActiveElement, elementId);
}

int32_t Tarvex_Window2D_GetDrawMode(int32_t windowId, int32_t* mode)
{
    ClearToNone(mode);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetDrawMode, mode);
}

int32_t Tarvex_Window2D_SetDrawMode(int32_t windowId, uint32_t mode)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::SetDrawMode, mode);
}
