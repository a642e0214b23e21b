#include "support/TestHost.h"

#include <gtest/gtest.h>

// After GoogleTest, which its macros would break.
#include <X11/Xlib.h>
#include <X11/Xutil.h>
#include <X11/extensions/XTest.h>

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
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    if (!XQueryTree(Connection, Native, &root, &parent, &children, &count))
    {
        return {};
    }
    std::vector<NativeWindow> result(children, children + count);
    if (children)
    {
        XFree(children);
    }
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
    XWindowAttributes attributes = {};
    XGetWindowAttributes(Connection, window, &attributes);
    XImage* image = XGetImage(Connection, window, 0, 0, static_cast<unsigned>(attributes.width),
                              static_cast<unsigned>(attributes.height), AllPlanes, ZPixmap);
    Picture picture;
    if (!image)
    {
        ADD_FAILURE() << "the window is not on the screen";
        return picture;
    }
    picture.Width = image->width;
    picture.Height = image->height;
    for (int y = 0; y < image->height; ++y)
    {
        for (int x = 0; x < image->width; ++x)
        {
            const unsigned long pixel = XGetPixel(image, x, y);
            for (const int shift : {16, 8, 0})
            {
                picture.Pixels.push_back(static_cast<uint8_t>(pixel >> shift & 255));
            }
        }
    }
    XDestroyImage(image);
    return picture;
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

namespace
{
void SendKey(Display* connection, const char* name, Bool down)
{
    const KeyCode code = XKeysymToKeycode(connection, XStringToKeysym(name));
    XTestFakeKeyEvent(connection, code, down, CurrentTime);
    XSync(connection, False);
}
} // namespace

void TestHost::PressKey(const char* name)
{
    SendKey(Connection, name, True);
}

void TestHost::ReleaseKey(const char* name)
{
    SendKey(Connection, name, False);
}
