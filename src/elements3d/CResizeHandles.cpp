#include "elements3d/CResizeHandles.h"

#include "frame/NumberTest.h"

#include <vtkActor.h>
#include <vtkActorCollection.h>
#include <vtkNew.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkSphereSource.h>

#include <algorithm>

CResizeHandles::CResizeHandles(int32_t capacity) : Capacity(capacity) {}

CResizeHandles::~CResizeHandles() = default;

void CResizeHandles::Reserve(int32_t count)
{
    const auto size = static_cast<size_t>(count);
    X.reserve(size);
    Y.reserve(size);
    Z.reserve(size);
    if (!Mapper)
    {
        return; // never shown: without spheres
    }
    Spheres.reserve(size);
    while (Spheres.size() < size)
    {
        const auto sphere = vtkSmartPointer<vtkActor>::New();
        sphere->SetMapper(Mapper);
        sphere->SetProperty(Look);
        Spheres.push_back(sphere);
    }
}

void CResizeHandles::SetCount(int32_t count)
{
    const auto size = static_cast<size_t>(count);
    X.resize(size);
    Y.resize(size);
    Z.resize(size);
}

void CResizeHandles::SetPosition(int32_t handle, const Vector3& position)
{
    const auto at = static_cast<size_t>(handle);
    X[at] = position[0];
    Y[at] = position[1];
    Z[at] = position[2];
}

Vector3 CResizeHandles::GetPosition(int32_t handle) const
{
    const auto at = static_cast<size_t>(handle);
    return {X[at], Y[at], Z[at]};
}

bool CResizeHandles::AreDrawable() const
{
    return ::AreDrawable(X) && ::AreDrawable(Y) && ::AreDrawable(Z);
}

void CResizeHandles::Build()
{
    if (!Mapper)
    {
        const vtkNew<vtkSphereSource> source;
        source->SetRadius(1.0);
        source->SetThetaResolution(100);
        source->SetPhiResolution(50);
        const auto look = vtkSmartPointer<vtkProperty>::New();
        look->SetAmbient(1.0);
        look->SetDiffuse(0.0);
        look->SetSpecular(0.0);
        look->SetSpecularPower(1.0);
        const auto actors = vtkSmartPointer<vtkActorCollection>::New();
        const auto mapper = vtkSmartPointer<vtkPolyDataMapper>::New();
        mapper->SetInputConnection(source->GetOutputPort());
        X.reserve(static_cast<size_t>(Capacity));
        Y.reserve(static_cast<size_t>(Capacity));
        Z.reserve(static_cast<size_t>(Capacity));
        Look = look;
        Actors = actors;
        Mapper = mapper;
    }
    Reserve(GetCount());
}

void CResizeHandles::SetColor(const uint8_t color[3])
{
    Look->SetColor(color[0] / 255.0, color[1] / 255.0, color[2] / 255.0);
}

void CResizeHandles::SetOpacity(double opacity)
{
    Look->SetOpacity(opacity);
    // The far side of an opaque sphere is never seen; without it a frame takes half the time.
    Look->SetBackfaceCulling(opacity >= 1.0);
}

void CResizeHandles::Place(vtkRenderer* renderer, double radius, bool visible)
{
    const int32_t count = GetCount();
    for (int32_t handle = count; handle < InScene; ++handle)
    {
        vtkActor* surplus = Spheres[static_cast<size_t>(handle)];
        renderer->RemoveActor(surplus);
        Actors->RemoveItem(surplus);
    }
    InScene = std::min(InScene, count);
    for (int32_t handle = 0; handle < count; ++handle)
    {
        const auto at = static_cast<size_t>(handle);
        vtkActor* sphere = Spheres[at];
        if (visible)
        {
            // No user matrix here: Y is mirrored by hand.
            sphere->SetPosition(X[at], -Y[at], Z[at]);
            sphere->SetScale(radius);
        }
        sphere->SetVisibility(visible);
        sphere->SetUseBounds(visible);
        if (handle >= InScene)
        {
            Actors->AddItem(sphere);
            renderer->AddActor(sphere);
            InScene = handle + 1;
        }
    }
}

void CResizeHandles::TakeOut(vtkRenderer* renderer)
{
    for (int32_t handle = 0; handle < InScene; ++handle)
    {
        renderer->RemoveActor(Spheres[static_cast<size_t>(handle)]);
    }
    if (Actors)
    {
        Actors->RemoveAllItems();
    }
    InScene = 0;
}
