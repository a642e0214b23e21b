// Platform.h on X11: factories, the scope of a call, and the event pump.
#include "platform/Platform.h"

#include "platform/CXInteractor.h"
#include "platform/CXRenderWindow.h"
#include "platform/XState.h"

#include <vtkNew.h>

#include <algorithm>
#include <vector>

XState* X11 = nullptr;

namespace
{
// Gives the thread's OpenGL context back to the host, or to nobody: one that stayed current here
// could not be used by a later call on another thread.
void RestoreContext()
{
    Display* ours = std::exchange(X11->ContextDisplay, nullptr);
    if (!ours)
    {
        return;
    }
    if (X11->HostContext)
    {
        glXMakeCurrent(X11->HostDisplay, X11->HostDrawable, X11->HostContext);
        return;
    }
    const bool open = std::any_of(X11->Connections.begin(), X11->Connections.end(),
                                  [ours](const XConnection* connection)
                                  { return connection->Owns(ours) && !connection->IsBroken(); });
    if (open)
    {
        glXMakeCurrent(ours, None, nullptr);
    }
}

// What waits now, each run of motions of one window reduced to its last.
std::vector<XEvent> TakeEvents(Display* input)
{
    std::vector<XEvent> events;
    int waiting = XEventsQueued(input, QueuedAfterReading);
    events.reserve(static_cast<size_t>(waiting));
    while (waiting-- > 0)
    {
        XEvent event;
        XNextEvent(input, &event);
        const bool followsMotion = !events.empty() && event.type == MotionNotify &&
                                   events.back().type == MotionNotify &&
                                   events.back().xany.window == event.xany.window;
        if (followsMotion)
        {
            events.back() = event;
        }
        else
        {
            events.push_back(event);
        }
    }
    return events;
}

vtkSmartPointer<CXInteractor> FindView(Window window)
{
    const auto found = X11->Views.find(window);
    return found == X11->Views.end() ? nullptr : found->second;
}

void Dispatch(const XEvent& event)
{
    // Held: a callback may delete the view while its event is being handled.
    vtkSmartPointer<CXInteractor> view = FindView(event.xany.window);
    if (!view)
    {
        return;
    }
    vtkSmartPointer<vtkRenderWindow> window = view->GetRenderWindow();
    struct Flag
    {
        Flag() { X11->Dispatching = true; }
        ~Flag() { X11->Dispatching = false; }
    } dispatching;
    view->HandleEvent(event);
}

void RenderView(Window window)
{
    vtkSmartPointer<CXInteractor> view = FindView(window);
    if (view && view->TakeRenderRequest())
    {
        view->GetRenderWindow()->Render();
    }
}
} // namespace

namespace Platform
{
CallScope::CallScope()
{
    if (X11->CallDepth++ == 0)
    {
        X11->CallTrap.emplace();
    }
}

CallScope::~CallScope()
{
    if (X11->CallDepth > 1)
    {
        --X11->CallDepth;
        return;
    }
    RestoreContext();
    if (X11->Connection && !X11->Connection->IsBroken())
    {
        XFlush(X11->Connection->Drawing);
    }
    X11->CallTrap.reset();
    --X11->CallDepth;
}

vtkSmartPointer<vtkRenderWindow> NewRenderWindow()
{
    vtkNew<CXRenderWindow> window;
    window->SetConnection(XConnection::Acquire());
    return window;
}

vtkSmartPointer<vtkRenderWindowInteractor> NewInteractor()
{
    return vtkNew<CXInteractor>();
}

void GetPictureSize(vtkRenderWindow* window, int32_t* width, int32_t* height)
{
    CXRenderWindow::SafeDownCast(window)->GetPictureSize(width, height);
}

bool CopyPicture(vtkRenderWindow* window, uint8_t* rgb)
{
    return CXRenderWindow::SafeDownCast(window)->CopyPicture(rgb);
}

void HoldRenders(vtkRenderWindow* window)
{
    CXRenderWindow::SafeDownCast(window)->HoldRenders();
}

bool ReleaseRenders(vtkRenderWindow* window)
{
    return CXRenderWindow::SafeDownCast(window)->ReleaseRenders();
}

int GetEventDescriptor()
{
    const std::shared_ptr<XConnection> connection = XConnection::Acquire();
    return connection ? ConnectionNumber(connection->Input) : -1;
}

bool PumpEvents(const EventStep& step)
{
    std::vector<XEvent> events;
    bool nested = false;
    bool connected = true;
    step(
        [&]
        {
            nested = X11->Dispatching;
            // Held: the events must not outlive a connection that a callback replaces.
            const std::shared_ptr<XConnection> connection = X11->Connection;
            if (nested || !connection)
            {
                return;
            }
            if (!connection->IsBroken())
            {
                events = TakeEvents(connection->Input);
            }
            connected = !connection->IsBroken();
            // First of all: no handler may touch a view whose window is gone.
            for (const XEvent& event : events)
            {
                if (vtkSmartPointer<CXInteractor> view = event.type == DestroyNotify
                                                             ? FindView(event.xdestroywindow.window)
                                                             : nullptr)
                {
                    view->MarkLost();
                }
            }
        });
    if (nested)
    {
        // Called by a callback out of an event: the outer pump goes on with the rest.
        return true;
    }
    for (const XEvent& event : events)
    {
        step([&event] { Dispatch(event); });
    }
    std::vector<Window> windows;
    for (const XEvent& event : events)
    {
        if (std::find(windows.begin(), windows.end(), event.xany.window) == windows.end())
        {
            windows.push_back(event.xany.window);
        }
    }
    for (const Window window : windows)
    {
        step([window] { RenderView(window); });
    }
    return connected;
}
} // namespace Platform
