// A host program as the tests play it: windows of its own on the X server, real mouse input, and a
// loop that lets the library handle its events.
#pragma once

#include "support/Picture.h"

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

// Xlib's macros and GoogleTest do not go together, so its types appear here under these names.
struct _XDisplay;
using NativeWindow = unsigned long;

class TestHost
{
public:
    explicit TestHost(int width = 640, int height = 480);
    ~TestHost();
    TestHost(const TestHost&) = delete;
    TestHost& operator=(const TestHost&) = delete;

    // What a host hands to Tarvex_Window_Create.
    void* Handle() const { return reinterpret_cast<void*>(Native); }
    // The windows that the library has placed in the host's.
    std::vector<NativeWindow> Children() const;
    // x and y in the parent, width and height, of a window.
    std::array<int, 4> Placement(NativeWindow window) const;
    // What the screen shows there.
    Picture TakeScreen(NativeWindow window) const;
    // The shape of the mouse pointer as the server draws it.
    std::vector<unsigned long> TakeCursor() const;
    void Destroy();
    // Closes the host's connection without another word, as a dying host does.
    void CloseConnection();

    // Mouse input as from a hand; x and y are pixels in `window`, from its upper left corner.
    void MoveMouse(NativeWindow window, int x, int y);
    void Press(unsigned button, bool down = true);
    void Release(unsigned button) { Press(button, false); }
    void Drag(NativeWindow window, unsigned button, int x0, int y0, int x1, int y1, int steps = 5);
    // A mouse event alone, by the server but not from a hand: button 0 for a motion.
    void Send(NativeWindow window, int x, int y, unsigned button, bool press);
    // A key by its name, "q" or "Escape", down and up.
    void TypeKey(const char* name);

    _XDisplay* Connection = nullptr;
    NativeWindow Native = 0;
};

// Handles events until none has come for a while.
void Settle();
// Handles events until `done`, at most some seconds; returns what `done` says last.
bool SettleUntil(const std::function<bool()>& done);
