// What 3D views and chart views have in common: a native window in the host's, the guard of every
// call, the host's callbacks, pictures. Always used with the global lock held.
#pragma once

#include "Tarvex.h"
#include "frame/Guarded.h"

#include <string>
#include <utility>

#include <vtkRenderWindow.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

class CViewBase
{
public:
    CViewBase(const CViewBase&) = delete;
    CViewBase& operator=(const CViewBase&) = delete;

    // The first test of nearly every operation: created, and its native window still there.
    int32_t Guard() const;

    int32_t UpdateSize(int32_t x, int32_t y, int32_t width, int32_t height);
    // Between them nothing of this view renders; they nest. The last EndUpdate renders once if
    // anything asked for it. STATUS_NOT_READY for an end without a beginning.
    int32_t BeginUpdate();
    int32_t EndUpdate();
    int32_t RegisterCallback_ElementAdded(Tarvex_ElementAddedCallback callback);
    int32_t RegisterCallback_ElementDragged(Tarvex_ElementDraggedCallback callback);
    // One of TARVEX_DRAW_...
    int32_t GetDrawMode(int32_t* mode);
    int32_t CopyImage(uint8_t* rgb, int32_t capacity, int32_t* width, int32_t* height);

    const int32_t Id;

    // For tests and for those who draw into the view.
    vtkRenderer* GetRenderer() const { return Renderer; }
    vtkRenderWindow* GetRenderWindow() const { return RenderWindow; }
    vtkRenderWindowInteractor* GetInteractor() const { return Interactor; }

protected:
    explicit CViewBase(int32_t id) : Id(id) {}
    virtual ~CViewBase() = default;

    // Renderer, render window and interactor, with their native window in the host's. Does not
    // render.
    void MakeWindow(const vtkSmartPointer<vtkRenderer>& renderer, bool noBorders,
                    void* parentWindow, int32_t x, int32_t y, int32_t width, int32_t height,
                    bool multiSamples);
    // The native window is gone when this returns, also while an event of it is being handled.
    void CloseWindow();
    // Guard, then the action inside the exception guard.
    template <class Action>
    int32_t WhenReady(Action&& action);
    // Shows what has changed.
    virtual void Refresh() { RenderWindow->Render(); }

    std::string LastError;
    vtkSmartPointer<vtkRenderer> Renderer;
    vtkSmartPointer<vtkRenderWindow> RenderWindow; // null: not created
    vtkSmartPointer<vtkRenderWindowInteractor> Interactor;

    int32_t DrawMode = TARVEX_DRAW_NONE;
    int32_t ActiveElementId = -1;
    Tarvex_ElementAddedCallback ElementAddedCallback = nullptr;
    Tarvex_ElementDraggedCallback ElementDraggedCallback = nullptr;

private:
    void Place(int32_t x, int32_t y, int32_t width, int32_t height);
};

template <class Action>
int32_t CViewBase::WhenReady(Action&& action)
{
    const int32_t status = Guard();
    return status == STATUS_OK ? Guarded(LastError, std::forward<Action>(action)) : status;
}
