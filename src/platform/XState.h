// Everything that the X11 layer keeps for the process, in one object that lives from load to
// unload.
#pragma once

#include "platform/XConnection.h"

#include <GL/glx.h>

#include <atomic>
#include <map>
#include <optional>
#include <thread>
#include <vector>

class CXRenderWindow;

struct XState
{
    // For new views; older broken ones are kept by their views.
    std::shared_ptr<XConnection> Connection;
    // All that are open, to tell their errors from the host's.
    std::vector<XConnection*> Connections;

    unsigned long ErrorCount = 0;
    int TrapDepth = 0;
    // Our handlers hear of the errors on all threads of the host, without the global lock. Those of
    // our connections come on the thread whose trap it is.
    std::atomic<std::thread::id> TrapThread;
    std::atomic<XErrorHandler> HostErrorHandler = nullptr;
    std::atomic<XIOErrorHandler> HostIOErrorHandler = nullptr;
    bool HoldsPipeSignal = false;

    // The views by their native window: whom an event is for. Not those that are lost.
    std::map<Window, CXRenderWindow*> Views;
    bool Dispatching = false;

    // The call under way.
    int CallDepth = 0;
    std::optional<XErrorTrap> CallTrap;
    // Which OpenGL context the host had current when the call first needed one of ours.
    bool ContextNoted = false;
    Display* HostDisplay = nullptr;
    GLXDrawable HostDrawable = 0;
    GLXContext HostContext = nullptr;
};

// Null outside load and unload.
extern XState* X11;
