#include "interaction3d/CDrawGesture.h"

#include "elements3d/ShapeMapper.h"
#include "frame/NumberTest.h"

#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkTransform.h>

CDrawGesture::CDrawGesture(vtkRenderer* renderer, vtkTransform* sceneTransform) : Renderer(renderer)
{
    sceneTransform->Update();
    Actor->SetUserMatrix(sceneTransform->GetMatrix());
    // The mouse draws on the plane, not on what it has drawn.
    Actor->PickableOff();
    vtkProperty* property = Actor->GetProperty();
    property->SetColor(DrawnLook::Color[0] / 255.0, DrawnLook::Color[1] / 255.0,
                       DrawnLook::Color[2] / 255.0);
    property->SetAmbient(1.0);
    property->SetDiffuse(1.0);
    property->SetSpecular(0.0);
    property->SetSpecularPower(1.0);
    property->SetLineWidth(static_cast<float>(DrawnLook::Size));
}

CDrawGesture::~CDrawGesture()
{
    Renderer->RemoveActor(Actor);
}

void CDrawGesture::SetBand(vtkAlgorithmOutput* geometry)
{
    const vtkNew<ShapeMapper> mapper;
    mapper->SetInputConnection(geometry);
    Actor->SetMapper(mapper);
}

void CDrawGesture::ShowBand(bool show)
{
    if (show && Drawable)
    {
        Renderer->AddActor(Actor);
    }
    else
    {
        Renderer->RemoveActor(Actor);
    }
    Renderer->ResetCameraClippingRange();
}

void CDrawGesture::Start(DrawPlane plane)
{
    Clear();
    Plane = plane;
}

void CDrawGesture::Down(const DrawPoint& point)
{
    if (point)
    {
        Begin(*point);
        Drawable = AreDrawable(*point);
        Started = true;
        Finished = false;
    }
}

bool CDrawGesture::Follow(const DrawPoint& point)
{
    if (!point || !Stretch(*point))
    {
        return false;
    }
    Drawable = Drawable && AreDrawable(*point);
    return true;
}

void CDrawGesture::Move(const DrawPoint& point)
{
    if (IsUnderWay())
    {
        ShowBand(Follow(point));
    }
}

void CDrawGesture::Up(const DrawPoint& point)
{
    if (IsUnderWay())
    {
        Finished = Follow(point);
        Started = Finished;
        ShowBand(Finished);
    }
}

void CDrawGesture::End()
{
    Clear();
}

void CDrawGesture::Clear()
{
    Started = false;
    Finished = false;
    ShowBand(false);
}
