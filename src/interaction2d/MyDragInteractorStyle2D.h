// What both mouse styles of a chart view share: the dragging of the active element's handles, a
// picture after each event, and else the pan and zoom of the chart.
//
// A style knows no elements. It turns pixels into chart coordinates, and plain functions take them
// to the view of its id. Such a function may call the host, and the host may do anything: remove
// the element, switch the mode, delete the view. So a handler holds its style, and after each of
// them it asks IsInstalled before it touches anything else.
#pragma once

#include <vtkContextInteractorStyle.h>

#include <cstdint>

class vtkChartHistogram2D;

class MyDragInteractorStyle2D : public vtkContextInteractorStyle
{
public:
    vtkTypeMacro(MyDragInteractorStyle2D, vtkContextInteractorStyle);

    // Which handle of the active element is at (x, y); -1: none.
    using HandleFinder = int32_t (*)(int32_t windowId, double x, double y);
    // Takes a dragged handle to the view; `finished` with the last position of a drag.
    using DragForwarder = void (*)(int32_t windowId, int32_t handle, double x, double y,
                                   bool finished);
    // Both null without an active element.
    struct DragTarget
    {
        HandleFinder Find = nullptr;
        DragForwarder Forward = nullptr;
    };

    // The chart is borrowed; the view outlives the events of its styles.
    void SetWindowContext(int32_t windowId, vtkChartHistogram2D* chart);
    // A drag under way goes on with another element, as long as the button is held. Without one
    // nothing is forwarded, and a pan or zoom ends.
    void SetDragTarget(const DragTarget& target);
    bool IsDragging() const { return DraggedHandle >= 0; }
    // Ends a drag, pan or zoom whose button is still held: nothing may go on moving without a
    // button. Does not render, and the drag is not reported.
    void EndMotion();

    void OnMouseMove() override;
    void OnLeftButtonDown() override;
    void OnLeftButtonUp() override;
    void OnMiddleButtonUp() override;
    void OnRightButtonUp() override;
    void OnMouseWheelForward() override;
    void OnMouseWheelBackward() override;

protected:
    MyDragInteractorStyle2D() = default;
    ~MyDragInteractorStyle2D() override = default;

    virtual bool CanGrab() const { return true; }
    // The mouse where it has no handle. As they stand, matters of the chart.
    virtual void Move();
    virtual void PressLeft();
    virtual void ReleaseLeft();

    // Where the mouse is, in chart coordinates, also beyond the axes. False: the chart has no area.
    bool ToChart(double* x, double* y) const;
    // Still the style of a view.
    bool IsInstalled() const;
    // With the others of the batch.
    void Render();

    int32_t WindowId = -1;

private:
    void EndChartMotion();
    int32_t FindHandle() const;
    void SetCursor(bool overHandle);

    vtkChartHistogram2D* Chart = nullptr;
    DragTarget Target;
    int32_t DraggedHandle = -1;
};
