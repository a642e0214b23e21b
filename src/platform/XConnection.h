// Our connections to the X server, and the traps for its errors.
#pragma once

#include <X11/Xlib.h>

#include <memory>

// All views share two connections: VTK draws through one, and only the event pump reads the other,
// so that its descriptor is readable exactly when events wait. A connection whose server is gone
// stays broken; its views keep it until they are deleted, and a new view opens a fresh one.
class XConnection
{
public:
    // The one for new views, opened at the first use and anew after a loss. Null without a server,
    // GLX or OpenGL 3.2.
    static std::shared_ptr<XConnection> Acquire();

    XConnection();
    ~XConnection();
    XConnection(const XConnection&) = delete;
    XConnection& operator=(const XConnection&) = delete;

    bool IsBroken() const { return Broken; }
    // Asks the server.
    bool IsAlive();
    void MarkBroken() { Broken = true; }
    bool Owns(Display* display) const { return display == Drawing || display == Input; }

    Display* Drawing = nullptr;
    Display* Input = nullptr;
    Atom DeleteWindow = 0; // WM_DELETE_WINDOW

private:
    bool Open();

    bool Broken = false;
};

// While one lives, X errors on our connections are counted instead of ending the process, and a
// lost server marks its connection as broken. All other connections keep the handlers of the host.
// The thread gets no SIGPIPE: XCB writes so that a server that dies meanwhile raises one.
class XErrorTrap
{
public:
    XErrorTrap();
    ~XErrorTrap();
    XErrorTrap(const XErrorTrap&) = delete;
    XErrorTrap& operator=(const XErrorTrap&) = delete;

    // True when a request since construction failed. Errors arrive with the next reply only.
    bool Failed() const;

private:
    unsigned long Before;
};
