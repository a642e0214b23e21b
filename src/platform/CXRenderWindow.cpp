#include "platform/CXRenderWindow.h"

#include "platform/CXInteractor.h"
#include "platform/XState.h"

#include <vtkCallbackCommand.h>
#include <vtkNew.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLFramebufferObject.h>
#include <vtkOpenGLState.h>

#include <X11/Xutil.h>

#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

vtkStandardNewMacro(CXRenderWindow);

namespace
{
// Above the size of any wall of screens, below what the X server and OpenGL take.
constexpr int longestSide = 16384;
// The next picture costs some fifty bytes for each pixel.
constexpr int mostPixels = 36'000'000;
constexpr int alwaysAllowedPixels = 1920 * 1200;

constexpr long eventMask = ButtonPressMask | ButtonReleaseMask | PointerMotionMask |
                           EnterWindowMask | LeaveWindowMask | ExposureMask | StructureNotifyMask;

// Drains the drawing connection: nothing but news of our windows arrives there.
void ReadNotices(XConnection& connection)
{
    XErrorTrap trap;
    while (!connection.IsBroken() && XEventsQueued(connection.Drawing, QueuedAfterReading) > 0)
    {
        XEvent event;
        XNextEvent(connection.Drawing, &event);
        if (event.type != DestroyNotify)
        {
            continue;
        }
        const auto view = X11->Views.find(event.xdestroywindow.window);
        if (view != X11->Views.end())
        {
            view->second->MarkLost();
        }
    }
}
} // namespace

CXRenderWindow::CXRenderWindow()
{
    // The stock way copies each picture once more before it is shown.
    SetFrameBlitModeToBlitToCurrent();
    // Without an observer VTK aborts the process when it cannot have its context.
    AddObserver(vtkCommand::ExitEvent, vtkNew<vtkCallbackCommand>());
}

CXRenderWindow::~CXRenderWindow()
{
    XErrorTrap trap;
    Finalize();
    Unregister();
    if (IsConnected())
    {
        for (const Window window : {Lost ? 0 : Native, Hidden})
        {
            if (window)
            {
                XDestroyWindow(DisplayId, window);
            }
        }
        if (ColorMap)
        {
            XFreeColormap(DisplayId, ColorMap);
        }
        // The host's window is without ours when the call that deletes a view returns.
        XSync(DisplayId, False);
    }
    WindowId = 0;
    DisplayId = nullptr;
}

void CXRenderWindow::SetConnection(std::shared_ptr<XConnection> connection)
{
    Connection = std::move(connection);
    SetDisplayId(Connection ? Connection->Drawing : nullptr);
}

bool CXRenderWindow::CreateWindows()
{
    auto* visual = reinterpret_cast<XVisualInfo*>(GetDesiredVisualInfo());
    if (!visual)
    {
        return false;
    }
    XErrorTrap trap;
    const Window root = RootWindow(DisplayId, visual->screen);
    if (!ColorMap)
    {
        ColorMap = XCreateColormap(DisplayId, root, visual->visual, AllocNone);
    }
    XSetWindowAttributes attributes = {};
    attributes.background_pixel = 0;
    attributes.border_pixel = 0;
    attributes.colormap = ColorMap;
    attributes.event_mask = eventMask;
    attributes.override_redirect = GetBorders() == 0 ? True : False;
    Hidden = XCreateWindow(DisplayId, root, 0, 0, 1, 1, 0, visual->depth, InputOutput,
                           visual->visual, CWBorderPixel | CWColormap, &attributes);
    XSync(DisplayId, False); // the other connection names the colour map
    // By the connection that the event pump reads: a window manager tells a window's creator that
    // it shall close. A child of the root until the context stands: only we can destroy it so far.
    Native = XCreateWindow(
        Connection->Input, root, Position[0], Position[1],
        static_cast<unsigned>(std::max(Size[0], 1)), static_cast<unsigned>(std::max(Size[1], 1)), 0,
        visual->depth, InputOutput, visual->visual,
        CWBackPixel | CWBorderPixel | CWColormap | CWEventMask | CWOverrideRedirect, &attributes);
    WindowVisual = visual->visual;
    WindowDepth = visual->depth;
    CanPutPictures = XPicture::Suits(DisplayId, *visual);
    XFree(visual);
    // This takes waiting events out of the descriptor's sight; those of the window's placing, which
    // come now, make it readable again.
    XSync(Connection->Input, False);
    if (trap.Failed() || !IsConnected())
    {
        Native = 0;
        return false;
    }
    WindowId = Hidden;
    X11->Views[Native] = this;
    XSelectInput(DisplayId, Native, StructureNotifyMask);
    return true;
}

// By value: on another server, a window may have the same number.
void CXRenderWindow::Unregister()
{
    std::erase_if(X11->Views, [this](const auto& entry) { return entry.second == this; });
}

// Into the host's window and onto the screen; false when the parent is no usable window.
bool CXRenderWindow::PlaceInParent()
{
    XErrorTrap trap;
    if (ParentId && ParentId != DefaultRootWindow(DisplayId))
    {
        XReparentWindow(DisplayId, Native, ParentId, Position[0], Position[1]);
    }
    else
    {
        // On its own it is closed by its user: as a lost window, not as a killed connection.
        XSetWMProtocols(DisplayId, Native, &Connection->DeleteWindow, 1);
    }
    XSync(DisplayId, False);
    if (trap.Failed() || !IsConnected())
    {
        return false;
    }
    XMapWindow(DisplayId, Native);
    XSync(DisplayId, False);
    return !trap.Failed() && IsConnected();
}

void CXRenderWindow::ChooseWayToScreen()
{
    const char* renderer = reinterpret_cast<const char*>(glGetString(GL_RENDERER));
    const std::string_view name = renderer ? renderer : "";
    const bool software = name.find("llvmpipe") != name.npos ||
                          name.find("softpipe") != name.npos || name.find("SWR") != name.npos ||
                          name.find("SVGA3D") != name.npos;
    if (software)
    {
        // Nearly free on hardware, several times the frame here.
        SetMultiSamples(0);
    }
    PutsPictures = software && CanPutPictures;
    if (PutsPictures)
    {
        SetFrameBlitModeToNoBlit();
    }
    else
    {
        WindowId = Native;
        SetForceMakeCurrent();
        MakeCurrent();
    }
}

void CXRenderWindow::Initialize()
{
    if (Lost || !IsConnected())
    {
        return;
    }
    XErrorTrap trap;
    if (WindowId)
    {
        Superclass::Initialize();
        return;
    }
    if (!CreateWindows())
    {
        Lost = true;
        return;
    }
    Superclass::Initialize();
    if (!IsCurrent() || !PlaceInParent())
    {
        Close();
        return;
    }
    ChooseWayToScreen();
}

void* CXRenderWindow::GetGenericWindowId()
{
    if (Connection)
    {
        ReadNotices(*Connection);
    }
    return IsUsable() ? reinterpret_cast<void*>(Native) : nullptr;
}

bool CXRenderWindow::IsStillThere()
{
    if (!IsUsable())
    {
        return false;
    }
    XErrorTrap trap;
    XWindowAttributes attributes;
    if (!XGetWindowAttributes(DisplayId, Native, &attributes) || trap.Failed())
    {
        MarkLost();
    }
    return IsUsable();
}

void CXRenderWindow::MarkLost()
{
    if (Lost)
    {
        return;
    }
    Lost = true;
    Unregister();
    if (IsConnected() && WindowId)
    {
        WindowId = Hidden;
        SetForceMakeCurrent();
    }
}

void CXRenderWindow::Close()
{
    XErrorTrap trap;
    if (IsConnected() && Native && !Lost)
    {
        XDestroyWindow(DisplayId, Native);
        XSync(DisplayId, False);
    }
    MarkLost();
}

void CXRenderWindow::Start()
{
    Initialize();
    if (IsUsable())
    {
        Superclass::Start();
        ++Begun;
        // The frame buffers have this size from now on, also if the picture is never finished.
        PictureSize[0] = Size[0];
        PictureSize[1] = Size[1];
    }
}

void CXRenderWindow::End()
{
    if (IsUsable() && Begun > 0)
    {
        --Begun;
        Superclass::End();
    }
}

void CXRenderWindow::Frame()
{
    if (IsUsable() && PutsPictures)
    {
        MakeCurrent();
        vtkOpenGLRenderWindow::Frame(); // NOLINT(bugprone-parent-virtual-call): shows nothing yet
        PutPicture();
    }
    else if (IsUsable())
    {
        Superclass::Frame();
    }
}

void CXRenderWindow::PutPicture()
{
    const vtkRecti all(0, 0, Size[0], Size[1]);
    uint8_t* pixels = Screen.Prepare(Size[0], Size[1]);
    if (ReadPixels(all, 1, GL_BGRA, GL_UNSIGNED_BYTE, pixels, 0) == VTK_OK)
    {
        Screen.Put(DisplayId, Native, WindowVisual, WindowDepth);
    }
    BeginUnseenPicture(*GetState());
}

bool CXRenderWindow::ReleaseRenders()
{
    if (Holds == 0)
    {
        return false;
    }
    if (--Holds == 0 && std::exchange(RenderHeld, false))
    {
        Render();
    }
    return true;
}

void CXRenderWindow::Render()
{
    if (Holds > 0)
    {
        RenderHeld = true;
        return;
    }
    XErrorTrap trap;
    if (!WindowId)
    {
        Initialize();
    }
    if (!IsStillThere())
    {
        return;
    }
    try
    {
        Superclass::Render();
    }
    catch (...)
    {
        // VTK would take every later render for a nested one.
        ClearInRenderStatus();
        End();
        throw;
    }
}

void CXRenderWindow::MakeCurrent()
{
    if (!std::exchange(X11->ContextNoted, true))
    {
        X11->HostContext = glXGetCurrentContext();
        X11->HostDisplay = glXGetCurrentDisplay();
        X11->HostDrawable = glXGetCurrentDrawable();
    }
    if (IsConnected())
    {
        Superclass::MakeCurrent();
    }
    if (!IsCurrent() && glXGetCurrentContext())
    {
        // What VTK now says to OpenGL must not reach the context of the host or of another view.
        glXMakeCurrent(glXGetCurrentDisplay(), None, nullptr);
    }
}

// As many as the server's screen has, on all monitors together.
int CXRenderWindow::GetMostPixels() const
{
    if (!IsConnected())
    {
        return alwaysAllowedPixels;
    }
    // As it is now: what Xlib keeps of the screen is from before the last monitor came or went.
    XErrorTrap trap;
    XWindowAttributes root = {};
    XGetWindowAttributes(DisplayId, DefaultRootWindow(DisplayId), &root);
    const int64_t seen = int64_t{root.width} * root.height;
    return static_cast<int>(std::clamp<int64_t>(seen, alwaysAllowedPixels, mostPixels));
}

void CXRenderWindow::SetSize(int width, int height)
{
    width = std::min(width, longestSide);
    height = std::min(height, longestSide);
    if (int64_t{width} * height > alwaysAllowedPixels)
    {
        height = std::min(height, GetMostPixels() / width);
    }
    if (Size[0] == width && Size[1] == height)
    {
        return;
    }
    if (WindowId && IsStillThere())
    {
        XErrorTrap trap;
        XResizeWindow(DisplayId, Native, static_cast<unsigned>(width),
                      static_cast<unsigned>(height));
        XSync(DisplayId, False);
    }
    TakeNativeSize(width, height);
}

void CXRenderWindow::TakeNativeSize(int width, int height)
{
    // Past the X11 class, which would wait for the window to follow.
    // NOLINTNEXTLINE(bugprone-parent-virtual-call)
    vtkOpenGLRenderWindow::SetSize(width, height);
    if (Interactor)
    {
        Interactor->SetSize(width, height);
    }
    Modified();
}

void CXRenderWindow::SetPosition(int x, int y)
{
    if (!WindowId)
    {
        Superclass::SetPosition(x, y);
    }
    else if (IsStillThere())
    {
        XErrorTrap trap;
        XMoveWindow(DisplayId, Native, x, y);
        XSync(DisplayId, False);
    }
}

void CXRenderWindow::SetCurrentCursor(int shape)
{
    if (IsUsable() && shape != GetCurrentCursor())
    {
        XErrorTrap trap;
        const Window drawnTo = std::exchange(WindowId, Native);
        Superclass::SetCurrentCursor(shape);
        WindowId = drawnTo;
        XFlush(DisplayId);
    }
}

void CXRenderWindow::GetPictureSize(int32_t* width, int32_t* height)
{
    const int* size = PictureSize[0] > 0 ? PictureSize : Size;
    *width = size[0];
    *height = size[1];
}

bool CXRenderWindow::CopyPicture(uint8_t* rgb)
{
    int32_t width = 0;
    int32_t height = 0;
    GetPictureSize(&width, &height);
    const size_t rowBytes = 3 * static_cast<size_t>(width);
    if (PictureSize[0] == 0)
    {
        std::memset(rgb, 0, rowBytes * static_cast<size_t>(height));
        return true;
    }
    // From the frame buffer of the last picture, not from the screen: right also when covered.
    const vtkRecti all(0, 0, width, height);
    if (ReadPixels(all, 1, GL_RGB, GL_UNSIGNED_BYTE, rgb, 0) != VTK_OK)
    {
        return false;
    }
    FlipRows(rgb, rowBytes, static_cast<size_t>(height));
    return true;
}

void CXRenderWindow::DestroyWindow()
{
    XErrorTrap trap;
    if (!IsConnected())
    {
        // Nothing can be said to the server; only the client side is let go.
        MakeCurrent();
        OwnContext = 0;
        DisplayId = nullptr;
        WindowId = 0;
    }
    else if (WindowId)
    {
        // From a window that is gone by now the context moves to the hidden one.
        IsStillThere();
    }
    Superclass::DestroyWindow();
}
