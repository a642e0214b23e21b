// One 3D view: a renderer in a child of the host's window, its mouse styles, its elements and the
// box in which unbounded elements are drawn. Always used with the global lock held.
#pragma once

#include "Tarvex.h"
#include "elements3d/CElement_Scene.h"
#include "frame/CIdList.h"
#include "frame/Guarded.h"

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

// When a call on an element draws the view again.
enum class Render
{
    Always,       // whatever the element answered
    AfterSuccess, // when it answered STATUS_OK
    Never         // not at all, or the element has drawn by itself
};

class CWindow
{
public:
    explicit CWindow(int32_t id);
    ~CWindow();
    CWindow(const CWindow&) = delete;
    CWindow& operator=(const CWindow&) = delete;

    int32_t Create(bool noBorders, void* parentWindow, int32_t x, int32_t y, int32_t width,
                   int32_t height);

    // The first test of nearly every operation: created, and its native window still there.
    int32_t Guard() const;

    int32_t UpdateSize(int32_t x, int32_t y, int32_t width, int32_t height);
    int32_t SetBackgroundColor(uint8_t red, uint8_t green, uint8_t blue);
    // Between them nothing of this view renders; they nest. The last EndUpdate renders once if
    // anything asked for it. STATUS_NOT_READY for an end without a beginning.
    int32_t BeginUpdate();
    int32_t EndUpdate();
    int32_t RegisterCallback_ElementAdded(Tarvex_ElementAddedCallback callback);
    int32_t RegisterCallback_ElementDragged(Tarvex_ElementDraggedCallback callback);
    int32_t CopyImage(uint8_t* rgb, int32_t capacity, int32_t* width, int32_t* height);

    // Elements (CWindowElements.cpp)
    template <class Class, class... Geometry>
    int32_t AddElement(const ElementDefaults* defaults, int32_t* elementId, Geometry... geometry);
    template <class Class, class Action>
    int32_t OnElement(int32_t elementId, Render render, Action&& action);
    // As OnElement, for calls that may replace an element's colour table: on success the scalar bar
    // of the element takes the new one.
    template <class Class, class Action>
    int32_t OnColoring(int32_t elementId, Render render, Action&& action);
    int32_t GetElementCount(int32_t* count);
    int32_t GetElementIDFromIndex(int32_t index, int32_t* elementId);
    int32_t GetElementType(int32_t elementId, int32_t* type);
    int32_t HasValidValues(int32_t elementId, uint8_t* valid);
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
    int32_t GetActiveElement(int32_t* elementId);
    int32_t SetActiveElement(int32_t elementId);
    // A handle of the active element under the mouse, in host coordinates. With `finished` the host
    // hears of it, and may have deleted this view when the call returns.
    void DragActiveElement(int32_t handle, double x, double y, double z, bool finished);

    // Draw modes (CWindowDraw.cpp)
    int32_t SetDrawMode(uint32_t mode);
    int32_t GetDrawMode(int32_t* mode);
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

    const int32_t Id;

    // For tests and for those who draw into the view.
    vtkRenderer* GetRenderer() const { return Renderer; }
    vtkRenderWindow* GetRenderWindow() const { return RenderWindow; }
    vtkRenderWindowInteractor* GetInteractor() const { return Interactor; }
    CCubeAxesActor* GetCubeAxes() const;
    vtkScalarBarActor* GetScalarBar() const;
    vtkTextActor* GetPickTextActor() const;
    MyDefaultInteractorStyle* GetDefaultStyle() const;
    MyDrawMouseInteractorStyle* GetDrawStyle() const;
    CElement_Scene* FindElement(int32_t elementId) const { return Elements.Find(elementId); }

private:
    // Guard, then the action inside the exception guard.
    template <class Action>
    int32_t WhenReady(Action&& action);
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

    std::string LastError;
    vtkSmartPointer<vtkRenderer> Renderer;
    vtkSmartPointer<vtkRenderWindow> RenderWindow; // null: not created
    vtkSmartPointer<vtkRenderWindowInteractor> Interactor;
    vtkSmartPointer<MyDefaultInteractorStyle> DefaultStyle;
    vtkSmartPointer<MyDrawMouseInteractorStyle> DrawStyle; // while a draw mode is on
    // Host coordinates to VTK's world: a host point (x, y, z) lies at (x, -y, z).
    vtkSmartPointer<vtkTransform> SceneTransform;

    int32_t DrawMode = TARVEX_DRAW_NONE;
    std::unique_ptr<CElement_Drawn> DrawnElement; // there in every draw mode
    double DrawSpace[6] = {-50.0, 50.0, -50.0, 50.0, -50.0, 50.0};
    bool MouseEnabled[3] = {true, true, true}; // left, middle, right with wheel
    int32_t ActiveElementId = -1;
    Tarvex_ElementAddedCallback ElementAddedCallback = nullptr;
    Tarvex_ElementDraggedCallback ElementDraggedCallback = nullptr;

    std::unique_ptr<CCoordinateAxes> CoordinateAxes; // made at the first use, then kept
    vtkSmartPointer<vtkOrientationMarkerWidget> OrientationWidget;
    vtkSmartPointer<CCubeAxesActor> CubeAxes;
    vtkSmartPointer<vtkScalarBarActor> ScalarBar;
    int32_t ScalarBarElementId = -1; // -1 only without a bar
    vtkSmartPointer<vtkTextActor> PickTextActor;
    vtkSmartPointer<vtkTextWidget> PickTextWidget;

    int32_t NextElementId = 0; // only goes up
    CIdList<CElement_Scene> Elements;
};

template <class Action>
int32_t CWindow::WhenReady(Action&& action)
{
    const int32_t status = Guard();
    return status == STATUS_OK ? Guarded(LastError, std::forward<Action>(action)) : status;
}

template <class Class, class... Geometry>
int32_t CWindow::AddElement(const ElementDefaults* defaults, int32_t* elementId,
                            Geometry... geometry)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Elements.Reserve();
            auto element = std::make_unique<Class>();
            // Out of the scene again, unless it reaches the list: also when a step throws.
            struct Undo
            {
                ~Undo()
                {
                    if (Added)
                    {
                        Added->SetInScene(false);
                    }
                }
                Class* Added;
            } undo{element.get()};

            int32_t status = element->Initialize(MakeSite(defaults), geometry...);
            if (status == STATUS_OK)
            {
                status = element->BuildPipeline();
            }
            if (status == STATUS_OK)
            {
                status = element->Show(true);
            }
            if (status == STATUS_OK)
            {
                undo.Added = nullptr;
                Elements.Append(std::move(element));
                *elementId = NextElementId++;
            }
            return status;
        });
}

template <class Class, class Action>
int32_t CWindow::OnElement(int32_t elementId, Render render, Action&& action)
{
    return WhenReady(
        [&]() -> int32_t
        {
            CElement_Scene* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            if constexpr (!std::is_base_of_v<Class, CElement_Scene>)
            {
                if (element->ElementType != Class::Type)
                {
                    return STATUS_WRONG_TYPE;
                }
            }
            const int32_t status = action(static_cast<Class&>(*element));
            if (render == Render::Always || (render == Render::AfterSuccess && status == STATUS_OK))
            {
                RenderWindow->Render();
            }
            return status;
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
