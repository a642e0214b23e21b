// One chart view: a chart in a child of the host's window, its mouse style and its elements. The
// one chart carries the curves and shapes as plots and, below them, the one image of the view.
// Always used with the global lock held.
#pragma once

#include "elements2d/CElement_2D.h"
#include "frame/CElementView.h"

class CElement2D_Drawn;
class CElement_Draggable2D;
class MyDefaultInteractorStyle2D;
class MyDragInteractorStyle2D;
class MyDrawInteractorStyle2D;
class vtkChartHistogram2D;
class vtkContextScene;

// What follows when an element was added.
enum class ChartFit
{
    Keep,       // the axes stay
    Fill,       // all elements are in sight
    KeepAspect, // and a unit is as long in X as in Y
};

class CWindow2D : public CElementView<CElement_2D>
{
public:
    explicit CWindow2D(int32_t id);
    ~CWindow2D() override;

    int32_t Create(bool noBorders, void* parentWindow, int32_t x, int32_t y, int32_t width,
                   int32_t height);

    // Range and look (CWindow2DChart.cpp)
    int32_t ChartAutoScale(bool keepAspect);
    int32_t SetChartLayout(uint32_t layout);
    int32_t SetBackgroundColor(uint8_t red, uint8_t green, uint8_t blue);
    int32_t GetDrawSpace(double* xmin, double* xmax, double* ymin, double* ymax);
    int32_t SetDrawSpace(double xmin, double xmax, double ymin, double ymax);

    // Elements (CWindow2DElements.cpp)
    template <class Class, class... Geometry>
    int32_t AddElement(ChartFit fit, int32_t* elementId, Geometry... geometry);
    // For a class of which a view has one element at most: adds it, or changes the one that is
    // there and gives its id, without a render.
    template <class Class, class... Geometry>
    int32_t AddOnly(int32_t* elementId, Geometry... geometry);
    // Another geometry for an element: ends what is being drawn, if its class says so, and renders
    // whatever the element answers.
    template <class Class, class Action>
    int32_t ChangeElement(int32_t elementId, Action&& action);
    int32_t Remove(int32_t elementId);
    int32_t RemoveAll();
    int32_t SetActiveElement(int32_t elementId);

    // The mouse (CWindow2DInteraction.cpp), in chart coordinates
    // The handle of the active element that a press takes; -1: none.
    int32_t FindHandle(double x, double y);
    void DragActiveElement(int32_t handle, double x, double y, bool finished);

    // Draw modes (CWindow2DDraw.cpp)
    int32_t SetDrawMode(uint32_t mode);
    void DrawDown(double x, double y);
    void DrawMove(double x, double y);
    void DrawUp(double x, double y);
    void DrawEnd();

    vtkChartHistogram2D* GetChart() const;
    // The active element; null if there is none.
    CElement_Draggable2D* GetDragTarget() const { return DragTarget; }

    // How near to a handle, in X and in Y, the mouse takes it; in chart coordinates.
    static constexpr double HandleTolerance = 1.0;

protected:
    // What the user is drawing stays on top of what was added meanwhile.
    void Refresh() override;

private:
    ChartSite MakeSite() const;
    // The box of all elements that have one; false if none has.
    bool CollectBounds(double bounds[4]) const;
    void FitAxes(const double bounds[4], bool keepAspect);
    void MakeStyles();
    // Gives the mouse to a style of this view, or to none, and ends what it was doing.
    void TakeStyle(MyDragInteractorStyle2D* style);
    int32_t EnterDrawMode(int32_t mode);
    void FinishDrawing();
    // Drops what the user is drawing.
    void CancelDrawing();
    // What the mouse may drag from now on. The one place to tell the styles: called when an element
    // becomes active, and when the active one has changed.
    void OfferDragTarget(CElement_Draggable2D* element);
    // Every way out of "active" comes here.
    void ClearDragTarget();

    vtkSmartPointer<vtkChartHistogram2D> Chart;
    vtkSmartPointer<vtkContextScene> Scene;
    vtkSmartPointer<MyDefaultInteractorStyle2D> DefaultStyle;
    vtkSmartPointer<MyDrawInteractorStyle2D> DrawStyle;
    std::unique_ptr<CElement2D_Drawn> DrawnElement; // only in a draw mode

    CElement_Draggable2D* DragTarget = nullptr; // borrowed from Elements

    int32_t ChartLayout = -1;                              // before the first SetChartLayout
    double DrawSpace[4] = {-50.0, 50.0, -50.0, 50.0};      // xmin, xmax, ymin, ymax
    static constexpr double StartRange[2] = {-50.0, 50.0}; // of both axes
};

template <class Class, class... Geometry>
int32_t CWindow2D::AddElement(ChartFit fit, int32_t* elementId, Geometry... geometry)
{
    const auto finish = [&]
    {
        if (fit == ChartFit::Keep)
        {
            Refresh();
        }
        else
        {
            ChartAutoScale(fit == ChartFit::KeepAspect);
        }
    };
    return WhenReady([&] { return Append<Class>(MakeSite(), elementId, finish, geometry...); });
}

template <class Class, class... Geometry>
int32_t CWindow2D::AddOnly(int32_t* elementId, Geometry... geometry)
{
    return WhenReady(
        [&]() -> int32_t
        {
            for (const std::unique_ptr<CElement_2D>& element : Elements)
            {
                if (element->ElementType == Class::Type)
                {
                    const int32_t status = static_cast<Class&>(*element).SetValue(geometry...);
                    if (status == STATUS_OK)
                    {
                        *elementId = element->Id;
                    }
                    return status;
                }
            }
            return AddElement<Class>(ChartFit::Keep, elementId, geometry...);
        });
}

template <class Class, class Action>
int32_t CWindow2D::ChangeElement(int32_t elementId, Action&& action)
{
    if (Class::EndsDrawing && Guard() == STATUS_OK && Elements.Find(elementId))
    {
        // Before the type test: also by a call that then finds an element of another type.
        CancelDrawing();
    }
    return OnElement<Class>(elementId, Render::Always,
                            [&](Class& element)
                            {
                                const int32_t status =
                                    Guarded(LastError, [&] { return action(element); });
                                if (elementId == ActiveElementId)
                                {
                                    OfferDragTarget(DragTarget);
                                }
                                return status;
                            });
}
