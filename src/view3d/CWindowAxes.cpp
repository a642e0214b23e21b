// Aids of orientation: the axes of the scene, and the marker in the corner of the view.
#include "platform/Platform.h"
#include "view3d/CCoordinateAxes.h"
#include "view3d/CWindow.h"

#include <vtkAxesActor.h>
#include <vtkCaptionActor2D.h>
#include <vtkOrientationMarkerWidget.h>
#include <vtkProperty.h>
#include <vtkTextProperty.h>
#include <vtkTransform.h>

namespace
{
// The property of a line, a solid or a text.
void Paint(auto* property, const double color[3])
{
    property->SetColor(color[0], color[1], color[2]);
}
} // namespace

int32_t CWindow::CoordinateAxes_Show(bool show)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (!CoordinateAxes)
            {
                CoordinateAxes = std::make_unique<CCoordinateAxes>();
            }
            CoordinateAxes->SetInScene(Renderer, show);
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::Orientation_Show(bool show)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (show == (OrientationWidget != nullptr))
            {
                return STATUS_OK;
            }
            if (show)
            {
                ShowOrientation();
                RenderWindow->Render();
                return STATUS_OK;
            }
            // The widget draws by itself as it goes: both make one picture.
            Platform::HoldRenders(RenderWindow);
            HideOrientation();
            RenderWindow->Render();
            Platform::ReleaseRenders(RenderWindow);
            return STATUS_OK;
        });
}

void CWindow::ShowOrientation()
{
    const auto axes = vtkSmartPointer<vtkAxesActor>::New();
    Paint(axes->GetXAxisTipProperty(), AxisColors::X);
    Paint(axes->GetYAxisTipProperty(), AxisColors::Y);
    Paint(axes->GetZAxisTipProperty(), AxisColors::Z);
    Paint(axes->GetXAxisShaftProperty(), AxisColors::X);
    Paint(axes->GetYAxisShaftProperty(), AxisColors::Y);
    Paint(axes->GetZAxisShaftProperty(), AxisColors::Z);
    Paint(axes->GetXAxisCaptionActor2D()->GetCaptionTextProperty(), AxisColors::X);
    Paint(axes->GetYAxisCaptionActor2D()->GetCaptionTextProperty(), AxisColors::Y);
    Paint(axes->GetZAxisCaptionActor2D()->GetCaptionTextProperty(), AxisColors::Z);
    // Mirrored like the scene, so that Y points where positive host Y is.
    axes->SetUserTransform(SceneTransform);

    const auto widget = vtkSmartPointer<vtkOrientationMarkerWidget>::New();
    widget->SetOutlineColor(1.0, 0.0, 0.0);
    widget->SetOrientationMarker(axes);
    widget->SetInteractor(Interactor);
    widget->SetViewport(0.0, 0.0, 0.15, 0.15);
    widget->SetEnabled(1);
    widget->InteractiveOn();
    OrientationWidget = widget;
}

void CWindow::HideOrientation()
{
    if (OrientationWidget)
    {
        OrientationWidget->InteractiveOff();
        OrientationWidget->SetEnabled(0);
        OrientationWidget = nullptr;
    }
}
