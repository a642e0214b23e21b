// Turns the X events of one view into VTK's mouse events.
#pragma once

#include <X11/Xlib.h>

#include <vtkRenderWindowInteractor.h>

#include <array>

class CXRenderWindow;

// Keys are not asked for: they go on to the host's window, and none of VTK's hot keys can end or
// change a view.
class CXInteractor : public vtkRenderWindowInteractor
{
public:
    static CXInteractor* New();
    vtkTypeMacro(CXInteractor, vtkRenderWindowInteractor);

    // Creates the native window; does not render.
    void Initialize() override;
    // While events are dispatched, a render is done once at the end of their batch.
    void Render() override;

    void HandleEvent(const XEvent& event);
    void RequestRender() { RenderRequested = true; }
    bool WantsRender() const { return RenderRequested; }
    void RenderIfWanted();

protected:
    CXInteractor() = default;
    ~CXInteractor() override = default;

private:
    CXRenderWindow* GetXWindow() const;
    void HandleButton(const XButtonEvent& event, bool press);
    void HandleConfigure(const XConfigureEvent& event);
    void Point(int x, int y, unsigned int modifiers, int repeatCount = 0);
    int CountPress(const XButtonEvent& event);

    bool RenderRequested = false;
    std::array<Time, 4> LastPress = {}; // by button
};
