// The exports beyond the 198.
#include "TarvexExt.h"
#include "frame/CallFrame.h"

int32_t TarvexExt_ProcessEvents(void)
{
    return OnManager(&CWindowManager::ProcessEvents);
}

int32_t TarvexExt_GetEventDescriptor(int32_t* descriptor)
{
    ClearToNone(descriptor);
    return OnManager(&CWindowManager::GetEventDescriptor, descriptor);
}

int32_t TarvexExt_Window_CopyImage(int32_t windowId, uint8_t* rgb, int32_t capacity, int32_t* width,
                                   int32_t* height)
{
    ClearToZero(width, height);
    return OnView<CWindow>(windowId, &CWindow::CopyImage, rgb, capacity, width, height);
}

int32_t TarvexExt_Window2D_CopyImage(int32_t windowId, uint8_t* rgb, int32_t capacity,
                                     int32_t* width, int32_t* height)
{
    ClearToZero(width, height);
    return OnView<CWindow2D>(windowId, &CWindow2D::CopyImage, rgb, capacity, width, height);
}

int32_t TarvexExt_Window_BeginUpdate(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::BeginUpdate);
}

int32_t TarvexExt_Window_EndUpdate(int32_t windowId)
{
    return OnView<CWindow>(windowId, &CWindow::EndUpdate);
}

int32_t TarvexExt_Window2D_BeginUpdate(int32_t windowId)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::BeginUpdate);
}

int32_t TarvexExt_Window2D_EndUpdate(int32_t windowId)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::EndUpdate);
}

const char* TarvexExt_GetVersion(void)
{
    return TARVEX_VERSION;
}

int32_t TarvexExt_GetLastError(char* text, int32_t capacity)
{
    if (!text)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (capacity < 1)
    {
        return STATUS_TOO_SMALL;
    }
    LastErrorText::Copy(text, capacity);
    return STATUS_OK;
}
