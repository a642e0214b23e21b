// What the library or VTK last complained of, and the capture of VTK's own messages, which would
// otherwise appear on the host's standard error.
#pragma once

#include <cstdint>

#include <vtkOutputWindow.h>
#include <vtkSmartPointer.h>

// Usable at any time and from any thread.
namespace LastErrorText
{
void Set(const char* text);
// Copies with a closing zero, cut to `capacity` bytes.
void Copy(char* text, int32_t capacity);
} // namespace LastErrorText

// While one lives, VTK's messages go to LastErrorText; the host's output window and its verbosity
// come back at the end. Both are process-wide in VTK, hence only for the time of a call. Nests;
// used with the global lock held.
class MessageCapture
{
public:
    // The window that captures; its owner keeps it from load to unload.
    static vtkSmartPointer<vtkOutputWindow> CreateWindow();

    MessageCapture();
    ~MessageCapture();
    MessageCapture(const MessageCapture&) = delete;
    MessageCapture& operator=(const MessageCapture&) = delete;
};

// Within a capture: while one lives, VTK's messages are the host's again.
class MessageHandback
{
public:
    MessageHandback();
    ~MessageHandback();
    MessageHandback(const MessageHandback&) = delete;
    MessageHandback& operator=(const MessageHandback&) = delete;

private:
    int Depth;
};
