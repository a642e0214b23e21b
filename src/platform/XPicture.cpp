#include "platform/XPicture.h"

#include <vtkOpenGLState.h>
#include <vtk_glew.h>

#include <algorithm>

namespace
{
constexpr int bytesPerPixel = 4;
}

void FlipRows(uint8_t* pixels, size_t rowBytes, size_t rows)
{
    for (size_t row = 0; row < rows / 2; ++row)
    {
        uint8_t* upper = pixels + rowBytes * row;
        std::swap_ranges(upper, upper + rowBytes, pixels + rowBytes * (rows - 1 - row));
    }
}

void BeginUnseenPicture(vtkOpenGLState& state)
{
    state.PushDrawFramebufferBinding();
    state.vtkglBindFramebuffer(GL_DRAW_FRAMEBUFFER, 0);
    state.vtkglClear(GL_COLOR_BUFFER_BIT);
    state.PopDrawFramebufferBinding();
}

bool XPicture::Suits(Display* display, const XVisualInfo& visual)
{
    return ImageByteOrder(display) == LSBFirst && visual.red_mask == 0xff0000 &&
           visual.green_mask == 0xff00 && visual.blue_mask == 0xff &&
           (visual.depth == 24 || visual.depth == 32);
}

uint8_t* XPicture::Prepare(int width, int height)
{
    Width = width;
    Height = height;
    Pixels.resize(size_t{bytesPerPixel} * static_cast<size_t>(width) * static_cast<size_t>(height));
    return Pixels.data();
}

void XPicture::Put(Display* display, Window window, Visual* visual, int depth)
{
    const int rowBytes = bytesPerPixel * Width;
    FlipRows(Pixels.data(), static_cast<size_t>(rowBytes), static_cast<size_t>(Height));
    XImage* image =
        XCreateImage(display, visual, static_cast<unsigned>(depth), ZPixmap, 0,
                     reinterpret_cast<char*>(Pixels.data()), static_cast<unsigned>(Width),
                     static_cast<unsigned>(Height), 8 * bytesPerPixel, rowBytes);
    if (!image)
    {
        return;
    }
    GC context = XCreateGC(display, window, 0, nullptr);
    XPutImage(display, window, context, image, 0, 0, 0, 0, static_cast<unsigned>(Width),
              static_cast<unsigned>(Height));
    XFreeGC(display, context);
    image->data = nullptr; // ours
    XDestroyImage(image);
}
