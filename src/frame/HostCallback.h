// How a function of the host is called out of one of our calls.
#pragma once

#include "frame/LastErrorText.h"
#include "platform/Platform.h"

#include <cstdint>
#include <exception>

// Tells the host of an element. With the global lock held: the function may call anything, and what
// it calls may end every object that the caller knows, also its view. So the caller touches nothing
// afterwards that it has not found again. An exception of the function ends here.
inline void CallHost(void (*callback)(int32_t windowId, int32_t elementId), int32_t windowId,
                     int32_t elementId)
{
    if (!callback)
    {
        return;
    }
    try
    {
        const MessageHandback messages;
        const Platform::HostScope scope;
        callback(windowId, elementId);
    }
    catch (const std::exception& error)
    {
        LastErrorText::Set(error.what());
    }
}
