#include "platform/XConnection.h"

#include "platform/XState.h"

#include <algorithm>
#include <csignal>
#include <ctime>

// Last: its macros break other headers.
#include <X11/Xlibint.h>

namespace
{
// Null: a connection of the host's.
XConnection* FindOwner(Display* display)
{
    if (X11->TrapThread != std::this_thread::get_id())
    {
        return nullptr;
    }
    const auto found =
        std::find_if(X11->Connections.begin(), X11->Connections.end(),
                     [display](XConnection* connection) { return connection->Owns(display); });
    return found == X11->Connections.end() ? nullptr : *found;
}

template <class Handler>
void Keep(std::atomic<Handler>& kept, Handler handler)
{
    kept = handler;
    kept.notify_all();
}

// Ours is in place a moment before it is known whose place it took.
template <class Handler>
Handler WaitFor(const std::atomic<Handler>& kept)
{
    kept.wait(nullptr);
    return kept;
}

int OnError(Display* display, XErrorEvent* event)
{
    if (FindOwner(display))
    {
        ++X11->ErrorCount;
        return 0;
    }
    return WaitFor(X11->HostErrorHandler)(display, event);
}

int OnIOError(Display* display)
{
    if (XConnection* owner = FindOwner(display))
    {
        owner->MarkBroken();
        return 0;
    }
    return WaitFor(X11->HostIOErrorHandler)(display);
}

// Nothing is sent any more over a broken connection, and a request that finds no room in the buffer
// fails loudly or crashes. There is none at all if XCB was writing last.
void EmptyBuffer(Display* display)
{
    constexpr int leastSize = 2048; // of Xlib's buffers
    display->bufptr = display->buffer;
    display->bufmax = display->buffer + leastSize;
}

sigset_t PipeSignal()
{
    sigset_t set;
    sigemptyset(&set);
    sigaddset(&set, SIGPIPE);
    return set;
}

// False: the host has blocked it already.
bool HoldPipeSignal()
{
    const sigset_t pipe = PipeSignal();
    sigset_t before;
    pthread_sigmask(SIG_BLOCK, &pipe, &before);
    return sigismember(&before, SIGPIPE) == 0;
}

// The one that came meanwhile, if any, is ours.
void DropPipeSignal()
{
    const sigset_t pipe = PipeSignal();
    const timespec now = {};
    sigtimedwait(&pipe, nullptr, &now);
    pthread_sigmask(SIG_UNBLOCK, &pipe, nullptr);
}

// Xlib ends the process after an I/O error unless the display has an exit handler that returns.
void OnIOErrorExit(Display* display, void*)
{
    // Xlib has locked it for this thread: another one would wait for ever.
    XUnlockDisplay(display);
    EmptyBuffer(display);
}

Display* OpenDisplay()
{
    Display* display = XOpenDisplay(nullptr);
    if (display)
    {
        XSetIOErrorExitHandler(display, OnIOErrorExit, nullptr);
    }
    return display;
}

// VTK aborts the process where one of these is missing, so it is tested before VTK is asked.
bool HasUsableOpenGL(Display* display)
{
    if (!glXQueryExtension(display, nullptr, nullptr))
    {
        return false;
    }
    const int wanted[] = {GLX_DRAWABLE_TYPE,
                          GLX_WINDOW_BIT,
                          GLX_RENDER_TYPE,
                          GLX_RGBA_BIT,
                          GLX_RED_SIZE,
                          1,
                          GLX_GREEN_SIZE,
                          1,
                          GLX_BLUE_SIZE,
                          1,
                          GLX_DEPTH_SIZE,
                          1,
                          GLX_ALPHA_SIZE,
                          1,
                          None};
    int count = 0;
    GLXFBConfig* configs = glXChooseFBConfig(display, DefaultScreen(display), wanted, &count);
    if (!configs)
    {
        return false;
    }
    using CreateContext = GLXContext (*)(Display*, GLXFBConfig, GLXContext, Bool, const int*);
    const auto createContext = reinterpret_cast<CreateContext>(
        glXGetProcAddressARB(reinterpret_cast<const GLubyte*>("glXCreateContextAttribsARB")));
    const int version[] = {GLX_CONTEXT_MAJOR_VERSION_ARB, 3, GLX_CONTEXT_MINOR_VERSION_ARB, 2,
                           None};
    GLXContext context = createContext && count > 0
                             ? createContext(display, configs[0], nullptr, True, version)
                             : nullptr;
    XSync(display, False);
    XFree(configs);
    if (!context)
    {
        return false;
    }
    glXDestroyContext(display, context);
    return true;
}
} // namespace

std::shared_ptr<XConnection> XConnection::Acquire()
{
    if (X11->Connection && X11->Connection->IsAlive())
    {
        return X11->Connection;
    }
    auto connection = std::make_shared<XConnection>();
    if (!connection->Open())
    {
        return nullptr;
    }
    X11->Connection = connection;
    return connection;
}

XConnection::XConnection()
{
    X11->Connections.push_back(this);
}

bool XConnection::Open()
{
    XErrorTrap trap;
    Drawing = OpenDisplay();
    if (!Drawing || !HasUsableOpenGL(Drawing))
    {
        return false;
    }
    Input = OpenDisplay();
    DeleteWindow = XInternAtom(Drawing, "WM_DELETE_WINDOW", False);
    return Input && !Broken;
}

XConnection::~XConnection()
{
    XErrorTrap trap;
    if (Drawing && glXGetCurrentDisplay() == Drawing)
    {
        glXMakeCurrent(Drawing, None, nullptr);
    }
    for (Display* display : {Input, Drawing})
    {
        if (display)
        {
            if (Broken)
            {
                EmptyBuffer(display);
            }
            XCloseDisplay(display);
        }
    }
    std::erase(X11->Connections, this);
}

bool XConnection::IsAlive()
{
    XErrorTrap trap;
    if (!Broken)
    {
        XSync(Drawing, False);
    }
    return !Broken;
}

XErrorTrap::XErrorTrap() : Before(X11->ErrorCount)
{
    if (X11->TrapDepth++ == 0)
    {
        X11->TrapThread = std::this_thread::get_id();
        Keep(X11->HostErrorHandler, XSetErrorHandler(OnError));
        Keep(X11->HostIOErrorHandler, XSetIOErrorHandler(OnIOError));
        X11->HoldsPipeSignal = HoldPipeSignal();
    }
}

XErrorTrap::~XErrorTrap()
{
    if (--X11->TrapDepth == 0)
    {
        XSetErrorHandler(X11->HostErrorHandler);
        XSetIOErrorHandler(X11->HostIOErrorHandler);
        X11->TrapThread = std::thread::id();
        if (X11->HoldsPipeSignal)
        {
            DropPipeSignal();
        }
    }
}

bool XErrorTrap::Failed() const
{
    return X11->ErrorCount != Before;
}
