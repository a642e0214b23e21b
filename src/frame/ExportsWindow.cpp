// Exports of 3D views: registry, interaction, camera, axes and overlays.
#include "Tarvex.h"

#include "frame/CallFrame.h"
#include "view3d/CWindow.h"

int32_t Tarvex_Window_Create(void* parentWindow, uint8_t noBorders, int32_t x, int32_t y,
                             int32_t width, int32_t height, int32_t* windowId)
{
    ClearToNone(windowId);
    return OnManager(&CWindowManager::Create<CWindow>, parentWindow, noBorders != 0, x, y, width,
                     height, windowId);
}

int32_t Tarvex_Window_Delete(int32_t windowId)
{
    return OnManager(&CWindowManager::Delete<CWindow>, windowId);
}

int32_t Tarvex_Window_DeleteAll()
{
    return OnManager(&CWindowManager::DeleteAll);
}

int32_t Tarvex_Window_GetCount(int32_t* count)
{
    ClearToZero(count);
    return OnManager(&CWindowManager::GetCount<CWindow>, count);
}

int32_t Tarvex_Window_GetIDFromIndex(int32_t index, int32_t* windowId)
{
    ClearToNone(windowId);
    return OnManager(&CWindowManager::GetIDFromIndex<CWindow>, index, windowId);
}

int32_t Tarvex_Window_UpdateSize(int32_t windowId, int32_t x, int32_t y, int32_t width,
                                 int32_t height)
{
    return OnView<CWindow>(windowId, &CWindow::UpdateSize, x, y, width, height);
}

int32_t Tarvex_Window_SetBackgroundColor(int32_t windowId, uint8_t red, uint8_t green, uint8_t blue)
{
    return OnView<CWindow>(windowId, &CWindow::SetBackgroundColor, red, green, blue);
}

int32_t Tarvex_Window_EnableInteraction(int32_t windowId, uint8_t enable)
{
    return OnView<CWindow>(windowId, &CWindow::EnableInteraction, enable != 0);
}

int32_t Tarvex_Window_EnableMouseInteraction(int32_t windowId, uint8_t left, uint8_t middle,
                                             uint8_t right)
{
    return OnView<CWindow>(windowId, &CWindow::EnableMouseInteraction, left != 0, middle != 0,
                           right != 0);
}

int32_t Tarvex_Window_GetDrawSpace(int32_t windowId, double* xmin, double* xmax, double* ymin,
                                   double* ymax, double* zmin, double* zmax)
{
    ClearToZero(xmin, xmax, ymin, ymax, zmin, zmax);
    return OnView<CWindow>(windowId, &CWindow::GetDrawSpace, xmin, xmax, ymin, ymax, zmin, zmax);
}

int32_t Tarvex_Window_SetDrawSpace(int32_t windowId, double xmin, double xmax, double ymin,
                                   double ymax, double zmin, double zmax)
{
    return OnView<CWindow>(windowId, &CWindow::SetDrawSpace, xmin, xmax, ymin, ymax, zmin, zmax);
}

int32_t Tarvex_Window_RegisterCallback_ElementAdded(int32_t windowId,
                                                    Tarvex_ElementAddedCallback callback)
{
    return OnView<CWindow>(windowId, &CWindow::RegisterCallback_ElementAdded, callback);
}

int32_t Tarvex_Window_RegisterCallback_ElementDragged(int32_t windowId,
                                                      Tarvex_ElementDraggedCallback callback)
{
    return OnView<CWindow>(windowId, &CWindow::RegisterCallback_ElementDragged, callback);
}

int32_t Tarvex_Window_GetActiveElement(int32_t windowId, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnView<CWindow>(windowId, &CWindow::GetActiveElement, elementId);
}

int32_t Tarvex_Window_SetActiveElement(int32_t windowId, int32_t elementId)
{
    return OnView<CWindow>(windowId, &CWindow::SetActiveElement, elementId);
}

int32_t Tarvex_Window_GetDrawMode(int32_t windowId, int32_t* mode)
{
    ClearToNone(mode);
    return OnView<CWindow>(windowId, &CWindow::GetDrawMode, mode);
}

int32_t Tarvex_Window_SetDrawMode(int32_t windowId, uint32_t mode)
{
    return OnView<CWindow>(windowId, &CWindow::SetDrawMode, mode);
}

int32_t Tarvex_Window_Camera_AutoSize(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_AutoSize);
}

int32_t Tarvex_Window_Camera_EnableParallelProjection(int32_t windowId, uint8_t enable)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_EnableParallelProjection, enable != 0);
}

int32_t Tarvex_Window_Camera_GetPosition(int32_t windowId, double* x, double* y, double* z)
{
    ClearToZero(x, y, z);
    return OnView<CWindow>(windowId, &CWindow::Camera_GetPosition, x, y, z);
}

int32_t Tarvex_Window_Camera_GetViewDirection(int32_t windowId, double* dirX, double* dirY,
                                              double* dirZ, double* upX, double* upY, double* upZ)
{
    ClearToZero(dirX, dirY, dirZ, upX, upY, upZ);
    return OnView<CWindow>(windowId, &CWindow::Camera_GetViewDirection, dirX, dirY, dirZ, upX, upY,
                           upZ);
}

int32_t Tarvex_Window_Camera_SetPosition(int32_t windowId, double x, double y, double z)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_SetPosition, x, y, z);
}

int32_t Tarvex_Window_Camera_SetPredefinedView(int32_t windowId, int32_t view)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_SetPredefinedView, view);
}

int32_t Tarvex_Window_Camera_SetViewDirection(int32_t windowId, double dirX, double dirY,
                                              double dirZ, double upX, double upY, double upZ)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_SetViewDirection, dirX, dirY, dirZ, upX, upY,
                           upZ);
}

int32_t Tarvex_Window_Camera_SetZoom(int32_t windowId, double factor)
{
    return OnView<CWindow>(windowId, &CWindow::Camera_SetZoom, factor);
}

int32_t Tarvex_Window_CoordinateAxes_Show(int32_t windowId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::CoordinateAxes_Show, show != 0);
}

int32_t Tarvex_Window_Orientation_Show(int32_t windowId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::Orientation_Show, show != 0);
}

int32_t Tarvex_Window_Cube_Add_Resize(int32_t windowId, int32_t elementId, double xmin, double xmax,
                                      double ymin, double ymax, double zmin, double zmax)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_Add_Resize, elementId, xmin, xmax, ymin, ymax,
                           zmin, zmax);
}

int32_t Tarvex_Window_Cube_AxisColoring(int32_t windowId, int32_t axis, int32_t part, uint8_t red,
                                        uint8_t green, uint8_t blue)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_AxisColoring, axis, part, red, green, blue);
}

int32_t Tarvex_Window_Cube_FlyMode(int32_t windowId, int32_t mode)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_FlyMode, mode);
}

int32_t Tarvex_Window_Cube_GridLineLocation(int32_t windowId, int32_t location)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_GridLineLocation, location);
}

int32_t Tarvex_Window_Cube_Remove(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_Remove);
}

int32_t Tarvex_Window_Cube_ShowHide(int32_t windowId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_ShowHide, show != 0);
}

int32_t Tarvex_Window_Cube_Visibility(int32_t windowId, int32_t axis, int32_t part, uint8_t visible)
{
    return OnView<CWindow>(windowId, &CWindow::Cube_Visibility, axis, part, visible != 0);
}

int32_t Tarvex_Window_ScalarBar_Add(int32_t windowId, int32_t elementId)
{
    return OnView<CWindow>(windowId, &CWindow::ScalarBar_Add, elementId);
}

int32_t Tarvex_Window_ScalarBar_IsShown(int32_t windowId, uint8_t* shown)
{
    ClearToZero(shown);
    return OnView<CWindow>(windowId, &CWindow::ScalarBar_IsShown, shown);
}

int32_t Tarvex_Window_ScalarBar_Remove(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::ScalarBar_Remove);
}

int32_t Tarvex_Window_ScalarBar_ShowHide(int32_t windowId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::ScalarBar_ShowHide, show != 0);
}

int32_t Tarvex_Window_PickCoordinates_Show(int32_t windowId, uint8_t show)
{
    return OnView<CWindow>(windowId, &CWindow::PickCoordinates_Show, show != 0);
}
