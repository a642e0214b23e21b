// What the rest of the library needs from the window system. Everything here is called with the
// global lock held, unless its comment says otherwise. The X11 implementation lies beside this
// file; a second platform is a second group of files behind this header.
#pragma once

#include <cstdint>
#include <functional>

#include <vtkSmartPointer.h>

class vtkRenderWindow;
class vtkRenderWindowInteractor;

namespace Platform
{
// Lives through every call into the library that may touch a window: window system errors on our
// connections stay here, the host's OpenGL context and handlers are put back at the end, and what
// the call asked of the window system has been sent when it returns. Scopes nest.
class CallScope
{
public:
    CallScope();
    ~CallScope();
    CallScope(const CallScope&) = delete;
    CallScope& operator=(const CallScope&) = delete;
};

// A render window whose GetGenericWindowId is null once its native window is gone, or never came
// to be: no window system, no OpenGL, an unusable parent. All its operations are then harmless.
vtkSmartPointer<vtkRenderWindow> NewRenderWindow();
// Initialize creates the native window and does not render.
vtkSmartPointer<vtkRenderWindowInteractor> NewInteractor();
// The native window goes now, and not when whoever handles an event lets go of its objects.
void CloseWindow(vtkRenderWindow* window);

// The size of the last rendered picture; of the window, before the first one.
void GetPictureSize(vtkRenderWindow* window, int32_t* width, int32_t* height);
// The last rendered picture as RGB bytes, top row first; black before the first one. `rgb` has room
// for 3 * width * height bytes of GetPictureSize. False: the pixels could not be read.
bool CopyPicture(vtkRenderWindow* window, uint8_t* rgb);

// Holds back the renders of a window until each hold was released; the last release renders once if
// a render was asked for in between. False: there was nothing to release.
void HoldRenders(vtkRenderWindow* window);
bool ReleaseRenders(vtkRenderWindow* window);

// Renders once at the end of the batch of events that is being handled, or of the next one.
void RequestRender(vtkRenderWindow* window);

// Lives while a function of the host runs in the middle of a call of ours: the thread looks to the
// host as if no call were under way. Neither our OpenGL context is current nor our error handlers
// are set, and calls into the library out of the function are calls like any other.
class HostScope
{
public:
    HostScope();
    ~HostScope();
    HostScope(const HostScope&) = delete;
    HostScope& operator=(const HostScope&) = delete;

private:
    int CallDepth;
};

// Runs the handling of one event; the caller catches what it raises, so that the next one comes to
// its turn.
using EventGuard = std::function<void(const std::function<void()>& action)>;
// Handles the events that wait at this moment, without waiting for more, then renders each view
// that asked for it once. False: the window system was lost.
bool PumpEvents(const EventGuard& guard);
// Readable exactly when events wait. -1: no window system.
int GetEventDescriptor();
} // namespace Platform
