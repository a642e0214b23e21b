#include "HostWindow.h"

#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <poll.h>

#include <array>
#include <cerrno>
#include <chrono>
#include <cstdint>
#include <system_error>

HostWindow::HostWindow(const std::string& title, int width, int height)
    : Connection(XOpenDisplay(nullptr)), CurrentWidth(width), CurrentHeight(height)
{
    if (!Connection)
    {
        throw NoDisplayError("no X server can be reached (is DISPLAY set?)");
    }
    Display* display = Connection.get();
    XSetWindowAttributes attributes{};
    attributes.event_mask = StructureNotifyMask | KeyPressMask;
    // No background: the server would clear the window before the view repaints it, which flickers.
    attributes.background_pixmap = None;
    NativeWindow =
        XCreateWindow(display, DefaultRootWindow(display), 0, 0, static_cast<unsigned>(width),
                      static_cast<unsigned>(height), 0, CopyFromParent, InputOutput, CopyFromParent,
                      CWEventMask | CWBackPixmap, &attributes);
    DeleteMessage = XInternAtom(display, "WM_DELETE_WINDOW", False);
    XSetWMProtocols(display, NativeWindow, &DeleteMessage, 1);
    SetTitle(title);
    XMapWindow(display, NativeWindow);
    WaitUntilMapped();
}

HostWindow::~HostWindow()
{
    if (NativeWindow != None)
    {
        XDestroyWindow(Connection.get(), NativeWindow);
    }
}

void HostWindow::CloseDisplay::operator()(Display* display) const
{
    XCloseDisplay(display);
}

void* HostWindow::Handle() const
{
    return reinterpret_cast<void*>(static_cast<uintptr_t>(NativeWindow));
}

void HostWindow::SetTitle(const std::string& title)
{
    XStoreName(Connection.get(), NativeWindow, title.c_str());
    XFlush(Connection.get());
}

void HostWindow::WaitUntilMapped()
{
    // A window manager decides when the window appears; without one it appears at once. Two seconds
    // are enough for both, and a view also works in a window that is not mapped yet.
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(2);
    XEvent event;
    while (!XCheckTypedWindowEvent(Connection.get(), NativeWindow, MapNotify, &event) &&
           std::chrono::steady_clock::now() < end)
    {
        pollfd descriptor{ConnectionNumber(Connection.get()), POLLIN, 0};
        poll(&descriptor, 1, 50);
    }
}

std::optional<HostEvent> HostWindow::NextEvent()
{
    while (XPending(Connection.get()) > 0)
    {
        XEvent event;
        XNextEvent(Connection.get(), &event);
        if (const auto translated = Translate(event))
        {
            return translated;
        }
    }
    return std::nullopt;
}

std::optional<HostEvent> HostWindow::Translate(XEvent& event)
{
    switch (event.type)
    {
    case KeyPress:
        return HostEvent{HostEvent::Kind::Key, XLookupKeysym(&event.xkey, 0)};
    case ConfigureNotify:
        // While the user drags an edge they arrive faster than a large surface can be drawn.
        while (XCheckTypedWindowEvent(Connection.get(), NativeWindow, ConfigureNotify, &event))
        {
        }
        if (event.xconfigure.width == CurrentWidth && event.xconfigure.height == CurrentHeight)
        {
            return std::nullopt; // the window was moved, not resized
        }
        CurrentWidth = event.xconfigure.width;
        CurrentHeight = event.xconfigure.height;
        return HostEvent{HostEvent::Kind::Resize, NoSymbol, CurrentWidth, CurrentHeight};
    case ClientMessage:
        if (static_cast<Atom>(event.xclient.data.l[0]) == DeleteMessage)
        {
            return HostEvent{HostEvent::Kind::Close};
        }
        return std::nullopt;
    case DestroyNotify:
        NativeWindow = None; // somebody else destroyed it
        return HostEvent{HostEvent::Kind::Close};
    default:
        return std::nullopt;
    }
}

void HostWindow::Wait(int otherDescriptor)
{
    // Events that Xlib has read already make no descriptor readable.
    if (XPending(Connection.get()) > 0)
    {
        return;
    }
    // poll skips a negative descriptor.
    std::array<pollfd, 2> descriptors = {pollfd{ConnectionNumber(Connection.get()), POLLIN, 0},
                                         pollfd{otherDescriptor, POLLIN, 0}};
    if (poll(descriptors.data(), descriptors.size(), -1) < 0 && errno != EINTR)
    {
        throw std::system_error(errno, std::generic_category(), "poll");
    }
}
