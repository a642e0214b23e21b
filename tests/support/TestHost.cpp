#include "support/TestHost.h"

#include "TarvexExt.h"

#include <X11/extensions/XTest.h>
#include <gtest/gtest.h>
#include <poll.h>

#include <chrono>

TestHost::TestHost(int width, int height)
{
    Connection = XOpenDisplay(nullptr);
    if (!Connection)
    {
        ADD_FAILURE() << "the tests need an X server";
        return;
    }
    Native = XCreateSimpleWindow(Connection, DefaultRootWindow(Connection), 10, 10,
                                 static_cast<unsigned>(width), static_cast<unsigned>(height), 0, 0,
                                 0x404040);
    XMapWindow(Connection, Native);
    XSync(Connection, False);
}

TestHost::~TestHost()
{
    if (Connection)
    {
        Destroy();
        XCloseDisplay(Connection);
    }
}

std::vector<Window> TestHost::Children() const
{
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(Connection, Native, &root, &parent, &children, &count))
    {
        return {};
    }
    std::vector<Window> result(children, children + count);
    if (children)
    {
        XFree(children);
    }
    return result;
}

void TestHost::Destroy()
{
    if (Native)
    {
        XDestroyWindow(Connection, Native);
        XSync(Connection, False);
        Native = 0;
    }
}

void TestHost::CloseConnection()
{
    XCloseDisplay(Connection);
    Connection = nullptr;
    Native = 0;
}

void TestHost::MoveMouse(Window window, int x, int y)
{
    int rootX = 0;
    int rootY = 0;
    Window child = 0;
    XTranslateCoordinates(Connection, window, DefaultRootWindow(Connection), x, y, &rootX, &rootY,
                          &child);
    XTestFakeMotionEvent(Connection, DefaultScreen(Connection), rootX, rootY, CurrentTime);
    XSync(Connection, False);
}

void TestHost::Press(unsigned button)
{
    XTestFakeButtonEvent(Connection, button, True, CurrentTime);
    XSync(Connection, False);
}

void TestHost::Release(unsigned button)
{
    XTestFakeButtonEvent(Connection, button, False, CurrentTime);
    XSync(Connection, False);
}

void TestHost::Drag(Window window, unsigned button, int x0, int y0, int x1, int y1, int steps)
{
    MoveMouse(window, x0, y0);
    Settle();
    Press(button);
    for (int step = 1; step <= steps; ++step)
    {
        MoveMouse(window, x0 + (x1 - x0) * step / steps, y0 + (y1 - y0) * step / steps);
        Settle();
    }
    Release(button);
    Settle();
}

namespace
{
// False when nothing came within the time.
bool HandleNext(int milliseconds)
{
    int descriptor = -1;
    TarvexExt_GetEventDescriptor(&descriptor);
    pollfd waiting = {descriptor, POLLIN, 0};
    if (poll(&waiting, 1, milliseconds) <= 0)
    {
        return false;
    }
    TarvexExt_ProcessEvents();
    return true;
}
} // namespace

void Settle()
{
    while (HandleNext(30))
    {
    }
}

bool SettleUntil(const std::function<bool()>& done)
{
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(5);
    while (!done() && std::chrono::steady_clock::now() < end)
    {
        HandleNext(20);
    }
    return done();
}
