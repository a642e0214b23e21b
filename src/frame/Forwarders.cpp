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
