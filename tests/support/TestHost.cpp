#include "support/TestHost.h"

#include <gtest/gtest.h>

// After GoogleTest, which its macros would break.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>
#include <X11/extensions/Xfixes.h>

#include <dlfcn.h>
#include <stdexcept>

#ifdef __SANITIZE_ADDRESS__
// Mesa's software driver leaks a little each time that it is unloaded with the last display; it
// stays, or leak reports could not name it.
const void* const driver =
    dlopen("/usr/lib/x86_64-linux-gnu/dri/swrast_dri.so", RTLD_LAZY | RTLD_NODELETE);
#endif

TestHost::TestHost(int width, int height)
{
    Connection = XOpenDisplay(nullptr);
    if (!Connection)
    {
        throw std::runtime_error("the tests need an X server");
    }
    Native = XCreateSimpleWindow(Connection, DefaultRootWindow(Connection), 10, 10,
                                 static_cast<unsigned>(width), static_cast<unsigned>(height), 0, 0,
                                 0x404040);
    XMapWindow(Connection, Native);
    // An earlier test that broke off may have left a button pressed.
    for (const unsigned button : {1U, 2U, 3U})
    {
        Release(button);
    }
}

TestHost::~TestHost()
{
    if (Connection)
    {
        Destroy();
        XCloseDisplay(Connection);
    }
}

std::vector<NativeWindow> TestHost::Children() const
{
    Window others[2];
    Window* children = nullptr;
    unsigned count = 0;
    XQueryTree(Connection, Native, &others[0], &others[1], &children, &count);
    std::vector<NativeWindow> result(children, children + count);
    XFree(children);
    return result;
}

std::array<int, 4> TestHost::Placement(NativeWindow window) const
{
    XWindowAttributes attributes = {};
    EXPECT_TRUE(XGetWindowAttributes(Connection, window, &attributes));
    return {attributes.x, attributes.y, attributes.width, attributes.height};
}

Picture TestHost::TakeScreen(NativeWindow window) const
{
    Picture picture;
    picture.Width = Placement(window)[2];
    picture.Height = Placement(window)[3];
    XImage* image = XGetImage(Connection, window, 0, 0, static_cast<unsigned>(picture.Width),
                              static_cast<unsigned>(picture.Height), AllPlanes, ZPixmap);
    if (!image)
    {
        throw std::runtime_error("the window is not on the screen");
    }
    for (int at = 0; at < picture.Width * picture.Height; ++at)
    {
        const unsigned long pixel = XGetPixel(image, at % picture.Width, at / picture.Width);
        for (const int shift : {16, 8, 0})
        {
            picture.Pixels.push_back(static_cast<uint8_t>(pixel >> shift & 255));
        }
    }
    XDestroyImage(image);
    return picture;
}

std::vector<unsigned long> TestHost::TakeCursor() const
{
    XFixesCursorImage* image = XFixesGetCursorImage(Connection);
    std::vector<unsigned long> pixels(image->pixels, image->pixels + image->width * image->height);
    XFree(image);
    return pixels;
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

void TestHost::MoveMouse(NativeWindow window, int x, int y)
{
    XWarpPointer(Connection, None, window, 0, 0, 0, 0, x, y);
    XSync(Connection, False);
}

void TestHost::Press(unsigned button, bool down)
{
    XTestFakeButtonEvent(Connection, button, down, CurrentTime);
    XSync(Connection, False);
}

void TestHost::Send(NativeWindow window, int x, int y, unsigned button, bool press)
{
    XEvent event = {};
    event.xbutton.type = !button ? MotionNotify : press ? ButtonPress : ButtonRelease;
    event.xbutton.window = window;
    event.xbutton.x = x;
    event.xbutton.y = y;
    event.xbutton.button = button; // where a motion has a flag that nobody reads
    const long mask = !button ? PointerMotionMask : press ? ButtonPressMask : ButtonReleaseMask;
    XSendEvent(Connection, window, False, mask, &event);
    XSync(Connection, False);
}

void TestHost::TypeKey(const char* name)
{
    const KeyCode code = XKeysymToKeycode(Connection, XStringToKeysym(name));
    XTestFakeKeyEvent(Connection, code, True, CurrentTime);
    XTestFakeKeyEvent(Connection, code, False, CurrentTime);
    XSync(Connection, False);
}
