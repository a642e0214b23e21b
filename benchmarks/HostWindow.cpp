#include "HostWindow.h"

#include <stdexcept>

#include <X11/Xlib.h>

HostWindow::HostWindow(int width, int height) : Connection(XOpenDisplay(nullptr))
{
    if (!Connection)
    {
        throw std::runtime_error("no X server: set DISPLAY");
    }
    Native =
        XCreateSimpleWindow(Connection, DefaultRootWindow(Connection), 0, 0,
                            static_cast<unsigned>(width), static_cast<unsigned>(height), 0, 0, 0);
    XSelectInput(Connection, Native, StructureNotifyMask);
    XMapWindow(Connection, Native);
    XEvent event;
    do
    {
        XNextEvent(Connection, &event);
    } while (event.type != MapNotify);
}

HostWindow::~HostWindow()
{
    XCloseDisplay(Connection);
}
