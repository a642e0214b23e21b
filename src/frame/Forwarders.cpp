#include "frame/Forwarders.h"

#include "frame/CWindowManager.h"

void ForwardPick(int32_t windowId, double x, double y, double z)
{
    CWindowManager::Forward<CWindow>(windowId,
                                     [&](CWindow& view) { view.UpdatePickText(x, y, z); });
}
