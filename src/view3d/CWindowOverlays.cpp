// The overlays of a 3D view: the colour scale of one surface, and the position under the mouse.
#include "frame/Forwarders.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "platform/Platform.h"
#include "view3d/CWindow.h"

#include <vtkActor2DCollection.h>
#include <vtkScalarBarActor.h>
#include <vtkTextActor.h>
#include <vtkTextProperty.h>
#include <vtkTextRepresentation.h>
#include <vtkTextWidget.h>

#include <cstdio>

namespace
{
constexpr const char* nothingPicked = "X:\nY:\nZ:";

void Configure(vtkScalarBarActor* bar)
{
    bar->SetTitle("");
    bar->SetNumberOfLabels(6);
    bar->SetBarRatio(0.2);
    bar->SetDrawFrame(0);
    bar->SetDrawColorBar(1);
    bar->SetDrawTickLabels(1);
    bar->SetDrawBackground(0);
    bar->SetDrawAnnotations(0);
    bar->SetDrawNanAnnotation(0);
    bar->SetDrawBelowRangeSwatch(false);
    bar->SetDrawAboveRangeSwatch(false);
    bar->SetUnconstrainedFontSize(true);
    bar->GetLabelTextProperty()->SetFontSize(24);
    bar->GetAnnotationTextProperty()->SetFontSize(24);
    bar->SetAnnotationTextScaling(0);
    bar->SetOrientationToVertical();
}

// Eight wide with three decimals; a number of more than 19 characters is cut.
std::string FormatCoordinate(double value)
{
    char text[20];
    std::snprintf(text, sizeof(text), "%8.3f", value);
    return text;
}
} // namespace

int32_t CWindow::RefreshScalarBar()
{
    CElement_Scene* element = Elements.Find(ScalarBarElementId);
    return element ? element->ConnectScalarBar(ScalarBar) : int32_t{STATUS_BAD_INDEX};
}

int32_t CWindow::ScalarBar_Add(int32_t elementId)
{
    return OnElement<CElement_Scene>(
        elementId, Render::AfterSuccess,
        [&](CElement_Scene& element) -> int32_t
        {
            const bool fresh = !ScalarBar;
            const auto bar = fresh ? vtkSmartPointer<vtkScalarBarActor>::New() : ScalarBar;
            // Refuses everything but surfaces, before anything has changed.
            const int32_t status = element.ConnectScalarBar(bar);
            if (status != STATUS_OK)
            {
                return status;
            }
            if (fresh)
            {
                Configure(bar);
                Renderer->AddActor2D(bar);
                ScalarBar = bar;
            }
            ScalarBarElementId = elementId;
            return STATUS_OK;
        });
}

int32_t CWindow::ScalarBar_ShowHide(bool show)
{
    if (!ScalarBar)
    {
        return STATUS_NOT_READY;
    }
    return WhenReady(
        [&]() -> int32_t
        {
            if (show)
            {
                Renderer->AddActor2D(ScalarBar);
            }
            else
            {
                Renderer->RemoveActor2D(ScalarBar);
            }
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::ScalarBar_IsShown(uint8_t* shown)
{
    if (!ScalarBar)
    {
        return STATUS_NOT_READY;
    }
    return WhenReady(
        [&]() -> int32_t
        {
            *shown = Renderer->GetActors2D()->IsItemPresent(ScalarBar) != 0 ? 1 : 0;
            return STATUS_OK;
        });
}

int32_t CWindow::ScalarBar_Remove()
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (ScalarBar)
            {
                RemoveScalarBar();
                RenderWindow->Render();
            }
            return STATUS_OK;
        });
}

void CWindow::RemoveScalarBar()
{
    if (ScalarBar)
    {
        Renderer->RemoveActor2D(ScalarBar);
        ScalarBar = nullptr;
        ScalarBarElementId = -1;
    }
}

int32_t CWindow::PickCoordinates_Show(bool show)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (show == (PickTextWidget != nullptr))
            {
                return STATUS_OK;
            }
            if (show)
            {
                ShowPickText();
            }
            else
            {
                HidePickText();
            }
            RenderWindow->Render();
            return STATUS_OK;
        });
}

void CWindow::ShowPickText()
{
    const auto actor = vtkSmartPointer<vtkTextActor>::New();
    actor->PickableOff();
    actor->SetInput(nothingPicked);
    actor->GetTextProperty()->SetColor(1.0, 1.0, 1.0);
    actor->GetTextProperty()->SetLineOffset(3.0);

    // The upper left tenth of the view.
    const vtkNew<vtkTextRepresentation> box;
    box->PickableOff();
    box->GetPositionCoordinate()->SetValue(0.0, 0.9);
    box->GetPosition2Coordinate()->SetValue(0.1, 0.1);

    const auto widget = vtkSmartPointer<vtkTextWidget>::New();
    widget->SetRepresentation(box);
    widget->SetInteractor(Interactor);
    widget->SetTextActor(actor);
    // The widget centres the text that it is given.
    actor->GetTextProperty()->SetJustificationToLeft();
    widget->SelectableOff();
    widget->On();

    PickTextActor = actor;
    PickTextWidget = widget;
    DefaultStyle->SetPickForwarder(&ForwardPick);
}

void CWindow::HidePickText()
{
    if (PickTextWidget)
    {
        DefaultStyle->SetPickForwarder(nullptr);
        PickTextWidget->Off();
        PickTextWidget = nullptr;
        PickTextActor = nullptr;
    }
}

void CWindow::UpdatePickText(double x, double y, double z)
{
    if (!PickTextWidget || Guard() != STATUS_OK)
    {
        return;
    }
    std::string text = nothingPicked;
    // The picker reports zeros for nothing.
    if (x != 0.0 || y != 0.0 || z != 0.0)
    {
        const double hostY = 0.0 - y; // never a negative zero
        text = "X: " + FormatCoordinate(x) + "\nY: " + FormatCoordinate(hostY) +
               "\nZ: " + FormatCoordinate(z);
    }
    if (text != PickTextActor->GetInput())
    {
        PickTextActor->SetInput(text.c_str());
        Platform::RequestRender(RenderWindow);
    }
}
