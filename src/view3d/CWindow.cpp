#include "view3d/CWindow.h"

#include "interaction3d/CElement_Drawn.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "interaction3d/MyDrawMouseInteractorStyle.h"
#include "view3d/CCoordinateAxes.h"
#include "view3d/CCubeAxesActor.h"
#include "view3d/CSceneRenderer.h"

#include <vtkOrientationMarkerWidget.h>
#include <vtkScalarBarActor.h>
#include <vtkTextActor.h>
#include <vtkTextWidget.h>
#include <vtkTransform.h>

CWindow::CWindow(int32_t id) : CElementView(id) {}

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
    CloseWindow();
    DrawnElement = nullptr; // still has a renderer to leave
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
    return Guarded(LastError,
                   [&]() -> int32_t
                   {
                       const bool multiSamples = true; // where they cost little
                       MakeWindow(vtkSmartPointer<CSceneRenderer>::New(), noBorders, parentWindow,
                                  x, y, width, height, multiSamples);
                       DefaultStyle = vtkSmartPointer<MyDefaultInteractorStyle>::New();
                       DefaultStyle->SetWindowId(Id);
                       DefaultStyle->SetMouseFlags(MouseEnabled[0], MouseEnabled[1],
                                                   MouseEnabled[2]);
                       DrawStyle = vtkSmartPointer<MyDrawMouseInteractorStyle>::New();
                       DrawStyle->SetWindowId(Id);
                       Interactor->SetInteractorStyle(DefaultStyle);

                       SceneTransform = vtkSmartPointer<vtkTransform>::New();
                       SceneTransform->Scale(1.0, -1.0, 1.0);
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
