#include "interaction3d/MyDefaultInteractorStyle.h"

#include "platform/Platform.h"

#include <vtkActor.h>
#include <vtkObjectFactory.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderWindowInteractor.h>
#include <vtkRenderer.h>
#include <vtkSphereSource.h>

#include <algorithm>

vtkStandardNewMacro(MyDefaultInteractorStyle);

MyDefaultInteractorStyle::MyDefaultInteractorStyle()
{
    constexpr double markerRadius = 0.04; // scene units
    const vtkNew<vtkSphereSource> sphere;
    const vtkNew<vtkPolyDataMapper> mapper;
    sphere->SetRadius(markerRadius);
    mapper->SetInputConnection(sphere->GetOutputPort());
    MarkerActor->SetMapper(mapper);
    MarkerActor->PickableOff();
}

void MyDefaultInteractorStyle::FollowMouse()
{
    if (!ForwardPick)
    {
        HideMarker();
        return;
    }
    const Vector3 position = PickHere();
    ForwardPick(WindowId, position[0], position[1], position[2]);
    if (!IsInstalled())
    {
        return;
    }
    // A coordinate of exactly 0 counts as nothing picked.
    if (std::find(position.begin(), position.end(), 0.0) == position.end())
    {
        ShowMarker(position);
    }
    else
    {
        HideMarker();
    }
}

void MyDefaultInteractorStyle::ShowMarker(const Vector3& position)
{
    const double* shown = MarkerActor->GetPosition();
    if (MarkerRenderer && std::equal(position.begin(), position.end(), shown))
    {
        return;
    }
    MarkerActor->SetPosition(position[0], position[1], position[2]);
    if (!MarkerRenderer)
    {
        MarkerRenderer = GetViewRenderer();
        MarkerRenderer->AddActor(MarkerActor);
    }
    Platform::RequestRender(Interactor->GetRenderWindow());
}

void MyDefaultInteractorStyle::HideMarker()
{
    if (MarkerRenderer)
    {
        MarkerRenderer->RemoveActor(MarkerActor);
        MarkerRenderer = nullptr;
        Platform::RequestRender(Interactor->GetRenderWindow());
    }
}
