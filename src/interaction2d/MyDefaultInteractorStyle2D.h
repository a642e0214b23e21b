// The mouse style of a chart view while nothing is drawn: the chart's own pan and zoom, and a
// picture after each event.
#pragma once

#include <vtkContextInteractorStyle.h>

#include <cstdint>

class vtkChartHistogram2D;
class vtkRenderWindow;

class MyDefaultInteractorStyle2D : public vtkContextInteractorStyle
{
public:
    static MyDefaultInteractorStyle2D* New();
    vtkTypeMacro(MyDefaultInteractorStyle2D, vtkContextInteractorStyle);

    // Both borrowed; the view outlives its style's events.
    void SetWindowContext(int32_t windowId, vtkChartHistogram2D* chart, vtkRenderWindow* window);

    void OnMouseMove() override;
    void OnLeftButtonUp() override;
    void OnMiddleButtonUp() override;
    void OnRightButtonUp() override;
    void OnMouseWheelForward() override;
    void OnMouseWheelBackward() override;

protected:
    MyDefaultInteractorStyle2D() = default;
    ~MyDefaultInteractorStyle2D() override = default;

private:
    void Render();

    int32_t WindowId = -1;
    vtkChartHistogram2D* Chart = nullptr;
    vtkRenderWindow* Window = nullptr;
};
