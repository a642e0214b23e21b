// A render window that survives everything a host can do to the native window under it.
#pragma once

#include "platform/XConnection.h"
#include "platform/XPicture.h"

#include <vtkXOpenGLRenderWindow.h>

// Stock VTK opens a connection for each window, waits for ever or aborts where a parent or an
// extension is missing, and ends the process when its window was destroyed by somebody else. Here
// the native window is made by hand before VTK sees it; once it is lost, GetGenericWindowId answers
// null and every operation is harmless.
class CXRenderWindow : public vtkXOpenGLRenderWindow
{
public:
    static CXRenderWindow* New();
    vtkTypeMacro(CXRenderWindow, vtkXOpenGLRenderWindow);

    void SetConnection(std::shared_ptr<XConnection> connection);
    const std::shared_ptr<XConnection>& GetConnection() const { return Connection; }

    // Somebody destroyed the native window.
    void MarkLost();
    // Destroys the native window: a view without one is lost.
    void Close();
    // The host or the window manager gave the native window another size.
    void TakeNativeSize(int width, int height);

    void HoldRenders() { ++Holds; }
    bool ReleaseRenders();

    void GetPictureSize(int32_t* width, int32_t* height);
    bool CopyPicture(uint8_t* rgb);

    // Null when the native window is gone. Costs no round trip to the server.
    void* GetGenericWindowId() override;
    void Initialize() override;
    void Start() override;
    void End() override;
    void Frame() override;
    void Render() override;
    void MakeCurrent() override;
    void SetSize(int width, int height) override;
    void SetSize(int size[2]) override { SetSize(size[0], size[1]); }
    void SetPosition(int x, int y) override;
    void SetPosition(int position[2]) override { SetPosition(position[0], position[1]); }
    void SetCurrentCursor(int shape) override;
    // A render is never cut short by waiting input.
    vtkTypeBool GetEventPending() override { return 0; }

protected:
    CXRenderWindow();
    ~CXRenderWindow() override;
    void DestroyWindow() override;

private:
    bool IsConnected() const { return Connection && !Connection->IsBroken(); }
    bool IsUsable() const { return !Lost && Native && IsConnected(); }
    // Asks the server, for the calls that are expensive anyway and fatal without a window.
    bool IsStillThere();
    void Unregister();
    bool CreateWindows();
    bool PlaceInParent();
    void ChooseWayToScreen();
    int GetMostPixels() const;
    void PutPicture();

    std::shared_ptr<XConnection> Connection;
    // What the host sees. Others can destroy it at any moment.
    Window Native = 0;
    // Never on screen, so that nobody but us destroys it: the context always has a window to be
    // current on, and its resources can be freed whatever became of the native one.
    Window Hidden = 0;
    Visual* WindowVisual = nullptr;
    int WindowDepth = 0;
    // With OpenGL on the processor, the context stays on the hidden window and finished pictures
    // are put into the native one: Mesa crashes when the window that it draws to is destroyed
    // between two of its requests.
    bool PutsPictures = false;
    bool CanPutPictures = false;
    XPicture Screen;
    bool Lost = false;
    int Begun = 0; // pictures not ended yet: VTK ends the process at an end too many
    int Holds = 0;
    bool RenderHeld = false;     // asked for while held
    int PictureSize[2] = {0, 0}; // 0, 0 before the first render
};
