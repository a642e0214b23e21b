// A window on the X server, as a host would have it.
#pragma once

struct _XDisplay;

class HostWindow
{
public:
    HostWindow(int width, int height);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    _XDisplay* const Connection;
    unsigned long Native = 0;
};
