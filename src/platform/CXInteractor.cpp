#include "platform/CXInteractor.h"

#include "platform/CXRenderWindow.h"
#include "platform/XState.h"

#include <vtkCommand.h>
#include <vtkObjectFactory.h>

#include <utility>

vtkStandardNewMacro(CXInteractor);

namespace
{
constexpr Time doubleClickTime = 400; // milliseconds
} // namespace

CXRenderWindow* CXInteractor::GetXWindow() const
{
    return CXRenderWindow::SafeDownCast(RenderWindow);
}

void CXInteractor::Initialize()
{
    CXRenderWindow* window = GetXWindow();
    if (Initialized || !window)
    {
        return;
    }
    Initialized = 1;
    window->Initialize();
    const int* size = window->GetSize();
    SetSize(size[0], size[1]);
    Enable();
}

void CXInteractor::Render()
{
    if (X11->Dispatching)
    {
        RequestRender();
    }
    else
    {
        Superclass::Render();
    }
}

void CXInteractor::RenderIfWanted()
{
    if (std::exchange(RenderRequested, false))
    {
        RenderWindow->Render();
    }
}

void CXInteractor::HandleEvent(const XEvent& event)
{
    CXRenderWindow* window = GetXWindow();
    if (!window || !window->GetGenericWindowId())
    {
        return;
    }
    switch (event.type)
    {
    case MotionNotify:
        Point(event.xmotion.x, event.xmotion.y, event.xmotion.state);
        InvokeEvent(vtkCommand::MouseMoveEvent);
        break;
    case ButtonPress:
        HandleButton(event.xbutton, true);
        break;
    case ButtonRelease:
        HandleButton(event.xbutton, false);
        break;
    case EnterNotify:
    case LeaveNotify:
        Point(event.xcrossing.x, event.xcrossing.y, event.xcrossing.state);
        InvokeEvent(event.type == EnterNotify ? vtkCommand::EnterEvent : vtkCommand::LeaveEvent);
        break;
    case Expose:
        if (event.xexpose.count == 0)
        {
            RequestRender();
        }
        break;
    case ConfigureNotify:
        HandleConfigure(event.xconfigure);
        break;
    case ClientMessage:
        if (static_cast<Atom>(event.xclient.data.l[0]) == window->GetConnection()->DeleteWindow)
        {
            window->Close();
        }
        break;
    default:
        break;
    }
}

void CXInteractor::Point(int x, int y, unsigned int modifiers, int repeatCount)
{
    SetEventInformationFlipY(x, y, (modifiers & ControlMask) != 0, (modifiers & ShiftMask) != 0, 0,
                             repeatCount);
    SetAltKey((modifiers & Mod1Mask) != 0);
}

int CXInteractor::CountPress(const XButtonEvent& event)
{
    if (event.button >= LastPress.size())
    {
        return 0;
    }
    Time& last = LastPress[event.button];
    const bool again = last != 0 && event.time - last < doubleClickTime;
    // A third press begins anew.
    last = again ? 0 : event.time;
    return again ? 1 : 0;
}

void CXInteractor::HandleButton(const XButtonEvent& event, bool press)
{
    static constexpr vtkCommand::EventIds events[][2] = {
        {vtkCommand::LeftButtonPressEvent, vtkCommand::LeftButtonReleaseEvent},
        {vtkCommand::MiddleButtonPressEvent, vtkCommand::MiddleButtonReleaseEvent},
        {vtkCommand::RightButtonPressEvent, vtkCommand::RightButtonReleaseEvent},
        {vtkCommand::MouseWheelForwardEvent, vtkCommand::NoEvent},
        {vtkCommand::MouseWheelBackwardEvent, vtkCommand::NoEvent}};
    if (event.button < Button1 || event.button > Button5)
    {
        return;
    }
    Point(event.x, event.y, event.state, press ? CountPress(event) : 0);
    if (const auto id = events[event.button - Button1][press ? 0 : 1])
    {
        InvokeEvent(id);
    }
}

void CXInteractor::HandleConfigure(const XConfigureEvent& event)
{
    const int* size = RenderWindow->GetSize();
    if (size[0] != event.width || size[1] != event.height)
    {
        GetXWindow()->TakeNativeSize(event.width, event.height);
        InvokeEvent(vtkCommand::ConfigureEvent);
        RequestRender();
    }
}
