#include "interaction2d/MyDefaultInteractorStyle2D.h"

#include "platform/Platform.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(MyDefaultInteractorStyle2D);

void MyDefaultInteractorStyle2D::SetWindowContext(int32_t windowId, vtkChartHistogram2D* chart,
                                                  vtkRenderWindow* window)
{
    WindowId = windowId;
    Chart = chart;
    Window = window;
}

void MyDefaultInteractorStyle2D::Render()
{
    Platform::RequestRender(Window);
}

void MyDefaultInteractorStyle2D::OnMouseMove()
{
    Superclass::OnMouseMove();
    Render();
}

void MyDefaultInteractorStyle2D::OnLeftButtonUp()
{
    Superclass::OnLeftButtonUp();
    Render();
}

void MyDefaultInteractorStyle2D::OnMiddleButtonUp()
{
    Superclass::OnMiddleButtonUp();
    Render();
}

void MyDefaultInteractorStyle2D::OnRightButtonUp()
{
    Superclass::OnRightButtonUp();
    Render();
}

void MyDefaultInteractorStyle2D::OnMouseWheelForward()
{
    Superclass::OnMouseWheelForward();
    Render();
}

void MyDefaultInteractorStyle2D::OnMouseWheelBackward()
{
    Superclass::OnMouseWheelBackward();
    Render();
}
