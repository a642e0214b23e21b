// Lives as long as a mouse style handles an event. The lock is held by whoever dispatches events;
// taken again here, handlers are safe however they are called. And a callback of the host may
// delete the view: its style lives until the event is over.
#pragma once

#include "frame/CWindowManager.h"

#include <vtkObjectBase.h>

class EventScope
{
public:
    explicit EventScope(vtkObjectBase* style) : Lock(&CWindowManager::GlobalLock), Style(style) {}

private:
    CCriticalSection Lock;
    vtkSmartPointer<vtkObjectBase> Style;
};
