// The part of TestHost that calls the library.
#include "support/TestHost.h"

#include "TarvexExt.h"

#include <poll.h>

#include <chrono>

void TestHost::Drag(NativeWindow window, unsigned button, int x0, int y0, int x1, int y1, int steps)
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
