// A picture on its way from the processor's memory into an X window.
#pragma once

#include <X11/Xlib.h>
#include <X11/Xutil.h>

#include <cstddef>
#include <cstdint>
#include <vector>

class vtkOpenGLState;

// Turns a picture between bottom row first, as OpenGL has it, and top row first.
void FlipRows(uint8_t* pixels, size_t rowBytes, size_t rows);

// The software driver keeps what it sorted of a picture, up to 36 MB, until it begins the next one:
// this is one of the context's window, which must be none that anybody sees.
void BeginUnseenPicture(vtkOpenGLState& state);

class XPicture
{
public:
    // Whether windows of this kind hold pixels in the form of this class.
    static bool Suits(Display* display, const XVisualInfo& visual);

    // Room for a picture: blue, green, red and one unused byte a pixel, bottom row first.
    uint8_t* Prepare(int width, int height);
    // The prepared picture into the upper left corner of a window. Harmless if the window is gone.
    void Put(Display* display, Window window, Visual* visual, int depth);

private:
    std::vector<uint8_t> Pixels;
    int Width = 0;
    int Height = 0;
};
