#include "frame/LastErrorText.h"

#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtk_loguru.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <mutex>
#include <utility>

namespace
{
// A lock of its own, and a fixed buffer: complaints may come while memory has run out, and are
// asked for without the global lock.
std::mutex textLock;
std::array<char, 2048> lastText = {};

class CapturingOutputWindow : public vtkOutputWindow
{
public:
    static CapturingOutputWindow* New();
    vtkTypeMacro(CapturingOutputWindow, vtkOutputWindow);
    void DisplayText(const char* text) override { LastErrorText::Set(text); }
};
vtkStandardNewMacro(CapturingOutputWindow);

// Plain pointers and numbers: nothing here may need destruction at unload.
vtkOutputWindow* captureWindow = nullptr;
vtkOutputWindow* hostWindow = nullptr; // one reference is held in between
vtkloguru::Verbosity hostVerbosity = 0;
int captureDepth = 0;
} // namespace

void LastErrorText::Set(const char* text)
{
    const std::lock_guard lock(textLock);
    const size_t length = std::min(std::strlen(text), lastText.size() - 1);
    std::memcpy(lastText.data(), text, length);
    lastText[length] = '\0';
}

void LastErrorText::Copy(char* text, int32_t capacity)
{
    const std::lock_guard lock(textLock);
    const size_t length = std::min(std::strlen(lastText.data()), static_cast<size_t>(capacity) - 1);
    std::memcpy(text, lastText.data(), length);
    text[length] = '\0';
}

vtkSmartPointer<vtkOutputWindow> MessageCapture::CreateWindow()
{
    vtkNew<CapturingOutputWindow> window;
    captureWindow = window;
    return window;
}

namespace
{
void TakeMessages()
{
    hostWindow = vtkOutputWindow::GetInstance();
    hostWindow->Register(nullptr);
    vtkOutputWindow::SetInstance(captureWindow);
    // The logger prints each message as well, whatever the output window does with it.
    hostVerbosity = vtkloguru::g_stderr_verbosity;
    vtkloguru::g_stderr_verbosity = vtkloguru::Verbosity_OFF;
}

void GiveMessagesBack()
{
    vtkloguru::g_stderr_verbosity = hostVerbosity;
    vtkOutputWindow::SetInstance(hostWindow);
    hostWindow->UnRegister(nullptr);
}
} // namespace

MessageCapture::MessageCapture()
{
    if (captureDepth++ == 0)
    {
        TakeMessages();
    }
}

MessageCapture::~MessageCapture()
{
    if (--captureDepth == 0)
    {
        GiveMessagesBack();
    }
}

MessageHandback::MessageHandback() : Depth(std::exchange(captureDepth, 0))
{
    if (Depth > 0)
    {
        GiveMessagesBack();
    }
}

MessageHandback::~MessageHandback()
{
    captureDepth = Depth;
    if (Depth > 0)
    {
        TakeMessages();
    }
}
