#include "frame/Forwarders.h"

#include "frame/CWindowManager.h"

void ForwardPick(int32_t windowId, double x, double y, double z)
{
    CWindowManager::Forward<CWindow>(windowId,
                                     [&](CWindow& view) { view.UpdatePickText(x, y, z); });
}

void ForwardDrag(int32_t windowId, int32_t handle, double x, double y, double z, bool finished)
{
    CWindowManager::Forward<CWindow>(windowId, [&](CWindow& view)
                                     { view.DragActiveElement(handle, x, y, z, finished); });
}

void ForwardDrawDown(int32_t windowId, double x, double y, double z)
{
    CWindowManager::Forward<CWindow>(windowId, [&](CWindow& view) { view.DrawDown(x, y, z); });
}

void ForwardDrawMove(int32_t windowId, double x, double y, double z)
{
    CWindowManager::Forward<CWindow>(windowId, [&](CWindow& view) { view.DrawMove(x, y, z); });
}

void ForwardDrawUp(int32_t windowId, double x, double y, double z)
{
    CWindowManager::Forward<CWindow>(windowId, [&](CWindow& view) { view.DrawUp(x, y, z); });
}

void ForwardDrawEnd(int32_t windowId)
{
    CWindowManager::Forward<CWindow>(windowId, [&](CWindow& view) { view.DrawEnd(); });
}

int32_t ForwardFindHandle2D(int32_t windowId, double x, double y)
{
    int32_t handle = -1;
    CWindowManager::Forward<CWindow2D>(windowId,
                                       [&](CWindow2D& view) { handle = view.FindHandle(x, y); });
    return handle;
}

void ForwardDrag2D(int32_t windowId, int32_t handle, double x, double y, bool finished)
{
    CWindowManager::Forward<CWindow2D>(windowId, [&](CWindow2D& view)
                                       { view.DragActiveElement(handle, x, y, finished); });
}

void ForwardDrawDown2D(int32_t windowId, double x, double y)
{
    CWindowManager::Forward<CWindow2D>(windowId, [&](CWindow2D& view) { view.DrawDown(x, y); });
}

void ForwardDrawMove2D(int32_t windowId, double x, double y)
{
    CWindowManager::Forward<CWindow2D>(windowId, [&](CWindow2D& view) { view.DrawMove(x, y); });
}

void ForwardDrawUp2D(int32_t windowId, double x, double y)
{
    CWindowManager::Forward<CWindow2D>(windowId, [&](CWindow2D& view) { view.DrawUp(x, y); });
}

void ForwardDrawEnd2D(int32_t windowId)
{
    CWindowManager::Forward<CWindow2D>(windowId, [&](CWindow2D& view) { view.DrawEnd(); });
}
