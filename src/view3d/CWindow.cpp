#include "view3d/CWindow.h"

#include "interaction3d/CElement_Drawn.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "interaction3d/MyDrawMouseInteractorStyle.h"
#include "platform/Platform.h"
#include "view3d/CCoordinateAxes.h"
#include "view3d/CCubeAxesActor.h"
#include "view3d/CSceneRenderer.h"

#include <vtkOrientationMarkerWidget.h>
#include <vtkScalarBarActor.h>
#include <vtkTextActor.h>
#include <vtkTextWidget.h>
#include <vtkTransform.h>

#include <algorithm>

namespace
{
constexpr int32_t leastSize = 4; // pixels
}

CWindow::CWindow(int32_t id) : Id(id) {}

CWindow::~CWindow()
{
    ElementAddedCallback = nullptr;
    ElementDraggedCallback = nullptr;
    // Widgets hold on to the interactor.
    HidePickText();
    HideOrientation();
    if (DrawStyle)
    {
        ClearDragTarget();
    }
    // The native window leaves first, then the elements, which touch neither it nor the renderer.
    if (Interactor)
    {
        Interactor->SetInteractorStyle(nullptr);
        // When a callback deletes the view, the event that it came from still holds the window.
        Platform::CloseWindow(RenderWindow);
    }
    DrawnElement = nullptr; // still has a renderer to leave
    RenderWindow = nullptr;
    Interactor = nullptr;
    DefaultStyle = nullptr;
    DrawStyle = nullptr;
    Renderer = nullptr;
    CoordinateAxes = nullptr;
    CubeAxes = nullptr;
    ScalarBar = nullptr;
    Elements.Clear();
}

int32_t CWindow::Create(bool noBorders, void* parentWindow, int32_t x, int32_t y, int32_t width,
                        int32_t height)
{
    if (RenderWindow)
    {
        return STATUS_ALREADY_CREATED;
    }
    return Guarded(
        LastError,
        [&]() -> int32_t
        {
            Renderer = vtkSmartPointer<CSceneRenderer>::New();
            Renderer->SetBackground(0.0, 0.0, 0.0);
            RenderWindow = Platform::NewRenderWindow();
            if (noBorders)
            {
                RenderWindow->BordersOff();
            }
            RenderWindow->AddRenderer(Renderer);
            RenderWindow->SetParentId(parentWindow);
            if (x >= 0 && y >= 0)
            {
                RenderWindow->SetPosition(x, y);
            }
            RenderWindow->SetSize(std::max(width, leastSize), std::max(height, leastSize));

            Interactor = Platform::NewInteractor();
            Interactor->SetRenderWindow(RenderWindow);
            Interactor->Initialize();
            DefaultStyle = vtkSmartPointer<MyDefaultInteractorStyle>::New();
            DefaultStyle->SetWindowId(Id);
            DefaultStyle->SetMouseFlags(MouseEnabled[0], MouseEnabled[1], MouseEnabled[2]);
            DrawStyle = vtkSmartPointer<MyDrawMouseInteractorStyle>::New();
            DrawStyle->SetWindowId(Id);
            Interactor->SetInteractorStyle(DefaultStyle);

            SceneTransform = vtkSmartPointer<vtkTransform>::New();
            SceneTransform->Scale(1.0, -1.0, 1.0);
            return STATUS_OK;
        });
}

int32_t CWindow::Guard() const
{
    if (!RenderWindow)
    {
        return STATUS_NOT_READY;
    }
    return RenderWindow->GetGenericWindowId() ? STATUS_OK : STATUS_NO_NATIVE_WINDOW;
}

int32_t CWindow::UpdateSize(int32_t x, int32_t y, int32_t width, int32_t height)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (x >= 0 && y >= 0)
            {
                RenderWindow->SetPosition(x, y);
            }
            RenderWindow->SetSize(std::max(width, leastSize), std::max(height, leastSize));
            return STATUS_OK;
        });
}

int32_t CWindow::SetBackgroundColor(uint8_t red, uint8_t green, uint8_t blue)
{
    return WhenReady(
        [&]() -> int32_t
        {
            const double color[] = {red / 255.0, green / 255.0, blue / 255.0};
            Renderer->SetBackground(color);
            int32_t status = STATUS_OK;
            for (const std::unique_ptr<CElement_Scene>& element : Elements)
            {
                // What an element answers does not matter, and one that raises stops no other.
                const int32_t raised =
                    Guarded(LastError,
                            [&]() -> int32_t
                            {
                                element->SetBackgroundColor(color[0], color[1], color[2]);
                                return STATUS_OK;
                            });
                status = raised == STATUS_OK ? status : int32_t{STATUS_EXCEPTION};
            }
            RenderWindow->Render();
            return status;
        });
}

int32_t CWindow::BeginUpdate()
{
    return WhenReady(
        [&]() -> int32_t
        {
            Platform::HoldRenders(RenderWindow);
            return STATUS_OK;
        });
}

int32_t CWindow::EndUpdate()
{
    return WhenReady(
        [&]() -> int32_t
        { return Platform::ReleaseRenders(RenderWindow) ? STATUS_OK : STATUS_NOT_READY; });
}

int32_t CWindow::RegisterCallback_ElementAdded(Tarvex_ElementAddedCallback callback)
{
    ElementAddedCallback = callback;
    return STATUS_OK;
}

int32_t CWindow::RegisterCallback_ElementDragged(Tarvex_ElementDraggedCallback callback)
{
    ElementDraggedCallback = callback;
    return STATUS_OK;
}

int32_t CWindow::CopyImage(uint8_t* rgb, int32_t capacity, int32_t* width, int32_t* height)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Platform::GetPictureSize(RenderWindow, width, height);
            if (!rgb)
            {
                return STATUS_OK;
            }
            if (capacity < int64_t{3} * *width * *height)
            {
                return STATUS_TOO_SMALL;
            }
            return Platform::CopyPicture(RenderWindow, rgb) ? STATUS_OK : STATUS_NOT_READY;
        });
}

CCubeAxesActor* CWindow::GetCubeAxes() const
{
    return CubeAxes;
}

vtkScalarBarActor* CWindow::GetScalarBar() const
{
    return ScalarBar;
}

vtkTextActor* CWindow::GetPickTextActor() const
{
    return PickTextActor;
}
