// One 3D view: a renderer in a child of the host's window, its mouse styles, its elements and the
// box in which unbounded elements are drawn. Always used with the global lock held.
#pragma once

#include "Tarvex.h"
#include "elements3d/CElement_Scene.h"
#include "frame/CElementView.h"

#include <functional>
#include <memory>
#include <string>
#include <type_traits>
#include <utility>

#include <vtkRenderWindow.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>
#include <vtkSmartPointer.h>

class CCoordinateAxes;
class CCubeAxesActor;
class CElement_Draggable;
class CElement_Drawn;
class MyDefaultInteractorStyle;
class MyDrawMouseInteractorStyle;
class vtkOrientationMarkerWidget;
class vtkScalarBarActor;
class vtkTextActor;
class vtkTextWidget;

class vtkTransform;

class CWindow : public CElementView<CElement_Scene>
{
public:
    explicit CWindow(int32_t id);
    ~CWindow() override;

    int32_t Create(bool noBorders, void* parentWindow, int32_t x, int32_t y, int32_t width,
                   int32_t height);

    int32_t SetBackgroundColor(uint8_t red, uint8_t green, uint8_t blue);

    // Elements (CWindowElements.cpp)
    template <class Class, class... Geometry>
    int32_t AddElement(const ElementDefaults* defaults, int32_t* elementId, Geometry... geometry);
    // As OnElement, for calls that may replace an element's colour table: on success the scalar bar
    // of the element takes the new one.
    template <class Class, class Action>
    int32_t OnColoring(int32_t elementId, Render render, Action&& action);
    int32_t ShowElement(int32_t elementId, bool show);
    int32_t Remove(int32_t elementId);
    int32_t RemoveAll();
    int32_t SetColor(int32_t elementId, uint8_t red, uint8_t green, uint8_t blue);
    int32_t GetColor(int32_t elementId, uint8_t* red, uint8_t* green, uint8_t* blue);
    int32_t GetDrawSpace(double* xmin, double* xmax, double* ymin, double* ymax, double* zmin,
                         double* zmax);
    int32_t SetDrawSpace(double xmin, double xmax, double ymin, double ymax, double zmin,
                         double zmax);

    // Interaction (CWindowInteraction.cpp)
    int32_t EnableInteraction(bool enable);
    int32_t EnableMouseInteraction(bool left, bool middle, bool right);
    int32_t SetActiveElement(int32_t elementId);
    // A handle of the active element under the mouse, in host coordinates. With `finished` the host
    // hears of it, and may have deleted this view when the call returns.
    void DragActiveElement(int32_t handle, double x, double y, double z, bool finished);

    // Draw modes (CWindowDraw.cpp)
    int32_t SetDrawMode(uint32_t mode);
    // The mouse at a position in VTK's world, (0, 0, 0) for none; nothing happens in the modes that
    // draw nothing. The last two may finish an element: the host hears of it, and may have deleted
    // this view when the call returns.
    void DrawDown(double x, double y, double z);
    void DrawMove(double x, double y, double z);
    void DrawUp(double x, double y, double z);
    void DrawEnd();

    // Camera, in VTK's world frame (CWindowCamera.cpp)
    int32_t Camera_AutoSize();
    int32_t Camera_EnableParallelProjection(bool enable);
    int32_t Camera_GetPosition(double* x, double* y, double* z);
    int32_t Camera_GetViewDirection(double* dirX, double* dirY, double* dirZ, double* upX,
                                    double* upY, double* upZ);
    int32_t Camera_SetPosition(double x, double y, double z);
    int32_t Camera_SetPredefinedView(int32_t view);
    int32_t Camera_SetViewDirection(double dirX, double dirY, double dirZ, double upX, double upY,
                                    double upZ);
    int32_t Camera_SetZoom(double factor);

    // Axes and orientation marker (CWindowAxes.cpp)
    int32_t CoordinateAxes_Show(bool show);
    int32_t Orientation_Show(bool show);

    // Scale frame (CWindowCubeAxes.cpp)
    int32_t Cube_Add_Resize(int32_t elementId, double xmin, double xmax, double ymin, double ymax,
                            double zmin, double zmax);
    int32_t Cube_AxisColoring(int32_t selection, int32_t part, uint8_t red, uint8_t green,
                              uint8_t blue);
    int32_t Cube_Visibility(int32_t selection, int32_t part, bool visible);
    int32_t Cube_FlyMode(int32_t mode);
    int32_t Cube_GridLineLocation(int32_t location);
    int32_t Cube_ShowHide(bool show);
    int32_t Cube_Remove();

    // Scalar bar and picked coordinates (CWindowOverlays.cpp)
    int32_t ScalarBar_Add(int32_t elementId);
    int32_t ScalarBar_ShowHide(bool show);
    int32_t ScalarBar_IsShown(uint8_t* shown);
    int32_t ScalarBar_Remove();
    int32_t PickCoordinates_Show(bool show);
    // A position under the mouse, in VTK's world. Shows with the next render.
    void UpdatePickText(double x, double y, double z);

    // For tests and for those who draw into the view.
    CCubeAxesActor* GetCubeAxes() const;
    vtkScalarBarActor* GetScalarBar() const;
    vtkTextActor* GetPickTextActor() const;
    MyDefaultInteractorStyle* GetDefaultStyle() const;

private:
    // The camera with everything in front of it visible, then a picture.
    int32_t ShowCamera();
    ElementSite MakeSite(const ElementDefaults* defaults) const;
    // Null for elements that have no handles.
    CElement_Draggable* FindDraggable(int32_t elementId) const;
    // No element is active. The handles of one that stays are switched off before.
    void ClearActiveElement();
    int32_t EnterDrawMode();
    void LeaveDrawMode();
    // No style hears the mouse, and none has anything left to end.
    void TakeOutStyle();
    // The element that was drawn, if one was, in place of the rubber band.
    void FinishDrawing();
    // Both styles know the handles of the active element, or none. Ends a drag under way.
    void OfferDragTarget(const CElement_Draggable& element);
    void ClearDragTarget();
    // Before the mouse means something else: drags and camera motions under way are over.
    void EndMouseMotion();
    void ShowOrientation();
    void HideOrientation();
    // For the calls that need a scale frame: the change, and a render if it succeeded.
    int32_t WhenCubeExists(const std::function<int32_t()>& change);
    int32_t RefreshScalarBar();
    void RemoveScalarBar();
    void ShowPickText();
    void HidePickText();

    vtkSmartPointer<MyDefaultInteractorStyle> DefaultStyle;
    vtkSmartPointer<MyDrawMouseInteractorStyle> DrawStyle; // while a draw mode is on
    // Host coordinates to VTK's world: a host point (x, y, z) lies at (x, -y, z).
    vtkSmartPointer<vtkTransform> SceneTransform;

    std::unique_ptr<CElement_Drawn> DrawnElement; // there in every draw mode
    double DrawSpace[6] = {-50.0, 50.0, -50.0, 50.0, -50.0, 50.0};
    bool MouseEnabled[3] = {true, true, true}; // left, middle, right with wheel

    std::unique_ptr<CCoordinateAxes> CoordinateAxes; // made at the first use, then kept
    vtkSmartPointer<vtkOrientationMarkerWidget> OrientationWidget;
    vtkSmartPointer<CCubeAxesActor> CubeAxes;
    vtkSmartPointer<vtkScalarBarActor> ScalarBar;
    int32_t ScalarBarElementId = -1; // -1 only without a bar
    vtkSmartPointer<vtkTextActor> PickTextActor;
    vtkSmartPointer<vtkTextWidget> PickTextWidget;
};

template <class Class, class... Geometry>
int32_t CWindow::AddElement(const ElementDefaults* defaults, int32_t* elementId,
                            Geometry... geometry)
{
    // An add of a 3D element renders by Show.
    return WhenReady(
        [&]
        {
            return Append<Class>(
                MakeSite(defaults), elementId, [] {}, geometry...);
        });
}

template <class Class, class Action>
int32_t CWindow::OnColoring(int32_t elementId, Render render, Action&& action)
{
    return OnElement<Class>(elementId, render,
                            [&](Class& element)
                            {
                                const int32_t status = action(element);
                                if (status == STATUS_OK && elementId == ScalarBarElementId)
                                {
                                    RefreshScalarBar();
                                }
                                return status;
                            });
}
