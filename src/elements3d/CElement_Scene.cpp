#include "elements3d/CElement_Scene.h"

#include "Tarvex.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"

#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkTransform.h>

#include <algorithm>

void ElementSite::TakeDrawSpace(std::array<double, 6>& box) const
{
    // Stricter than the calls that give an element a box later: exactly 0.1 is not taken here.
    constexpr double least = 0.1;
    if (DrawSpace && DrawSpace[1] - DrawSpace[0] > least && DrawSpace[3] - DrawSpace[2] > least &&
        DrawSpace[5] - DrawSpace[4] > least)
    {
        std::copy(DrawSpace, DrawSpace + 6, box.begin());
    }
}

int32_t CElement_Scene::TakeSite(const ElementSite& site)
{
    if (!site.Renderer || !site.RenderWindow)
    {
        return STATUS_NULL_ARGUMENT;
    }
    Id = site.Id;
    Renderer = site.Renderer;
    RenderWindow = site.RenderWindow;
    Transform = site.Transform;
    std::copy(std::begin(site.BackgroundColor), std::end(site.BackgroundColor), BackgroundColor);
    if (const ElementDefaults* defaults = site.Defaults)
    {
        Transparency = defaults->Transparency;
        std::copy(std::begin(defaults->Color), std::end(defaults->Color), Color);
        Ambient = defaults->Ambient;
        Diffuse = defaults->Diffuse;
        Specular = defaults->Specular;
        SpecularPower = defaults->SpecularPower;
    }
    return STATUS_OK;
}

int32_t CElement_Scene::SetInScene(bool inScene)
{
    if (!Renderer || !RenderWindow)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    if (inScene)
    {
        Renderer->AddActor(Actor);
    }
    else
    {
        Renderer->RemoveActor(Actor);
    }
    Renderer->ResetCameraClippingRange();
    return STATUS_OK;
}

int32_t CElement_Scene::Show(bool show)
{
    const int32_t status = SetInScene(show);
    if (status == STATUS_OK)
    {
        RenderWindow->Render();
    }
    return status;
}

void CElement_Scene::FitToDrawSpace(const double*) {}

int32_t CElement_Scene::ConnectScalarBar(vtkScalarBarActor*)
{
    return STATUS_WRONG_TYPE;
}

int32_t CElement_Scene::SetBackgroundColor(double red, double green, double blue)
{
    BackgroundColor[0] = red;
    BackgroundColor[1] = green;
    BackgroundColor[2] = blue;
    return STATUS_OK;
}

int32_t CElement_Scene::GetTransparency(double* transparency)
{
    *transparency = Transparency;
    return STATUS_OK;
}

int32_t CElement_Scene::GetColor(uint8_t* red, uint8_t* green, uint8_t* blue)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    *red = Color[0];
    *green = Color[1];
    *blue = Color[2];
    return STATUS_OK;
}

int32_t CElement_Scene::SetLighting(double ambient, double diffuse, double specular,
                                    double specularPower)
{
    if (IsOutside(ambient, 0.0, 1.0) || IsOutside(diffuse, 0.0, 1.0) ||
        IsOutside(specular, 0.0, 1.0) || IsOutside(specularPower, 0.0, 100.0))
    {
        return STATUS_OUT_OF_RANGE;
    }
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    vtkProperty* property = Actor->GetProperty();
    property->SetAmbient(ambient);
    property->SetDiffuse(diffuse);
    property->SetSpecular(specular);
    property->SetSpecularPower(specularPower);
    return STATUS_OK;
}

int32_t CElement_Scene::GetLighting(double* ambient, double* diffuse, double* specular,
                                    double* specularPower)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    vtkProperty* property = Actor->GetProperty();
    *ambient = property->GetAmbient();
    *diffuse = property->GetDiffuse();
    *specular = property->GetSpecular();
    *specularPower = property->GetSpecularPower();
    return STATUS_OK;
}

void CElement_Scene::ApplyLighting(vtkActor* actor) const
{
    vtkProperty* property = actor->GetProperty();
    property->SetAmbient(Ambient);
    property->SetDiffuse(Diffuse);
    property->SetSpecular(Specular);
    property->SetSpecularPower(SpecularPower);
}

void CElement_Scene::MirrorByUserMatrix(vtkActor* actor) const
{
    if (Transform)
    {
        Transform->Update();
        actor->SetUserMatrix(Transform->GetMatrix());
    }
}
