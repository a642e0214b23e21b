#pragma once

#include <memory>
#include <optional>
#include <stdexcept>
#include <string>

// Xlib's header stays out of this one: its macros (Success, None, Bool) break other headers.
struct _XDisplay;
union _XEvent;

// There is no X server to open a window on.
class NoDisplayError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// What the user did to the host's window.
struct HostEvent
{
    enum class Kind
    {
        Key,
        Resize,
        Close
    };
    Kind What;
    unsigned long Key = 0; // X key symbol of a Key event
    int Width = 0;         // of a Resize event
    int Height = 0;
};

// The host's own top-level window on its own connection to the X server. Views are placed in it by
// its handle; they draw themselves and take the mouse. Keys pass through them to this window.
class HostWindow
{
public:
    // Opens and maps the window. Throws NoDisplayError when there is no X server.
    HostWindow(const std::string& title, int width, int height);
    ~HostWindow();
    HostWindow(const HostWindow&) = delete;
    HostWindow& operator=(const HostWindow&) = delete;

    // The handle in the form in which the library takes a parent window.
    void* Handle() const;
    int Width() const { return CurrentWidth; }
    int Height() const { return CurrentHeight; }
    void SetTitle(const std::string& title);

    // The next event that waits, if any. Several resizes in a row come as one.
    std::optional<HostEvent> NextEvent();

    // Sleeps until the host's connection or the given descriptor has something to read.
    void Wait(int otherDescriptor);

private:
    std::optional<HostEvent> Translate(_XEvent& event);
    void WaitUntilMapped();

    struct CloseDisplay
    {
        void operator()(_XDisplay* display) const;
    };
    std::unique_ptr<_XDisplay, CloseDisplay> Connection;
    unsigned long NativeWindow = 0;  // X id of the window
    unsigned long DeleteMessage = 0; // X atom of the window manager's wish to close the window
    int CurrentWidth;
    int CurrentHeight;
};
