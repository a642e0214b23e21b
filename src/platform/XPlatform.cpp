// Platform.h on X11: factories, the scope of a call, and the event pump.
#include "platform/Platform.h"

#include "platform/CXInteractor.h"
#include "platform/CXRenderWindow.h"
#include "platform/XState.h"

#include <vtkInteractorObserver.h>
#include <vtkNew.h>

#include <utility>
#include <vector>

XState* X11 = nullptr;

namespace
{
// Gives the thread's OpenGL context back to the host, or to nobody: one that stayed current here
// could not be used by a later call on another thread.
void RestoreContext()
{
    if (X11->HostContext)
    {
        glXMakeCurrent(X11->HostDisplay, X11->HostDrawable, X11->HostContext);
    }
    else if (glXGetCurrentContext())
    {
        glXMakeCurrent(glXGetCurrentDisplay(), None, nullptr);
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

// Held while a view handles its event: a callback may delete it.
struct Target
{
    explicit Target(Window native)
    {
        const auto found = X11->Views.find(native);
        if (found != X11->Views.end())
        {
            RenderWindow = found->second;
            Interactor = CXInteractor::SafeDownCast(RenderWindow->GetInteractor());
            Style = Interactor ? Interactor->GetInteractorStyle() : nullptr;
        }
    }

    vtkSmartPointer<vtkInteractorObserver> Style;
    vtkSmartPointer<CXInteractor> Interactor;
    vtkSmartPointer<CXRenderWindow> RenderWindow;
};

void Dispatch(const XEvent& event)
{
    const Target target(event.xany.window);
    if (!target.Interactor)
    {
        return;
    }
    struct Flag
    {
        Flag() { X11->Dispatching = true; }
        ~Flag() { X11->Dispatching = false; }
    } dispatching;
    target.Interactor->HandleEvent(event);
}

void RenderView(Window native)
{
    const Target target(native);
    if (target.Interactor)
    {
        target.Interactor->RenderIfWanted();
    }
}

std::vector<Window> FindRenderRequests()
{
    std::vector<Window> windows;
    for (const auto& [native, window] : X11->Views)
    {
        const auto* interactor = CXInteractor::SafeDownCast(window->GetInteractor());
        if (interactor && interactor->WantsRender())
        {
            windows.push_back(native);
        }
    }
    return windows;
}
} // namespace

namespace Platform
{
namespace
{
void EndCall()
{
    // Only drawing leaves something behind; a call that does not draw shall cost next to nothing.
    if (std::exchange(X11->ContextNoted, false))
    {
        RestoreContext();
        if (X11->Connection && !X11->Connection->IsBroken())
        {
            XFlush(X11->Connection->Drawing);
        }
    }
    X11->CallTrap.reset();
}
} // namespace

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
    EndCall();
    --X11->CallDepth;
}

HostScope::HostScope() : CallDepth(std::exchange(X11->CallDepth, 0))
{
    if (CallDepth > 0)
    {
        EndCall();
    }
}

HostScope::~HostScope()
{
    X11->CallDepth = CallDepth;
    if (CallDepth > 0)
    {
        X11->CallTrap.emplace();
    }
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

void CloseWindow(vtkRenderWindow* window)
{
    // Frees what OpenGL holds while the window is there.
    window->Finalize();
    CXRenderWindow::SafeDownCast(window)->Close();
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

void RequestRender(vtkRenderWindow* window)
{
    CXInteractor::SafeDownCast(window->GetInteractor())->RequestRender();
}

int GetEventDescriptor()
{
    const std::shared_ptr<XConnection> connection = XConnection::Acquire();
    return connection ? ConnectionNumber(connection->Input) : -1;
}

bool PumpEvents(const EventGuard& guard)
{
    // Called by a callback out of an event: the outer pump goes on with the rest.
    if (X11->Dispatching || !X11->Connection)
    {
        return true;
    }
    if (X11->Connection->IsBroken())
    {
        return false;
    }
    const std::vector<XEvent> events = TakeEvents(X11->Connection->Input);
    // First of all: no handler may touch a view whose window is gone.
    for (const XEvent& event : events)
    {
        const auto view = X11->Views.find(event.xany.window);
        if (event.type == DestroyNotify && view != X11->Views.end())
        {
            view->second->MarkLost();
        }
    }
    for (const XEvent& event : events)
    {
        guard([&event] { Dispatch(event); });
    }
    for (const Window native : FindRenderRequests())
    {
        guard([native] { RenderView(native); });
    }
    return !X11->Connection->IsBroken();
}
} // namespace Platform
