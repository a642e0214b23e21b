#include "interaction3d/CCatcherPlane.h"

#include "interaction3d/CScenePicker.h"

#include <vtkMath.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLActor.h>
#include <vtkPlaneSource.h>
#include <vtkPolyDataMapper.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>

namespace
{
// Drawn for a picker only. In a picture nothing would be seen of it, but a single translucent actor
// makes VTK blend the whole picture from two buffers, 25 ms more for each on a processor.
class PickOnlyActor : public vtkOpenGLActor
{
public:
    static PickOnlyActor* New();
    vtkTypeMacro(PickOnlyActor, vtkOpenGLActor);

    vtkTypeBool HasTranslucentPolygonalGeometry() override { return 0; }

protected:
    PickOnlyActor() = default;
    ~PickOnlyActor() override = default;
};
vtkStandardNewMacro(PickOnlyActor);
} // namespace

CCatcherPlane::CCatcherPlane() : Actor(vtkSmartPointer<PickOnlyActor>::New())
{
    const vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputConnection(Source->GetOutputPort());
    Actor->SetMapper(mapper);
    Actor->UseBoundsOff();
    vtkProperty* look = Actor->GetProperty();
    look->SetColor(1.0, 1.0, 1.0);
    // Below what a byte of colour can tell; at 0 it could not be picked.
    look->SetOpacity(0.001);
    look->SetLineWidth(1.0F);
    look->SetAmbient(1.0);
    look->SetDiffuse(1.0);
    look->SetSpecular(0.0);
    look->SetSpecularPower(1.0);
}

CCatcherPlane::~CCatcherPlane()
{
    Remove();
}

void CCatcherPlane::Place(vtkRenderer* renderer, const Vector3& origin, const Vector3& point1,
                          const Vector3& point2)
{
    Source->SetOrigin(origin[0], origin[1], origin[2]);
    Source->SetPoint1(point1[0], point1[1], point1[2]);
    Source->SetPoint2(point2[0], point2[1], point2[2]);
    Source->Update();
    if (Renderer != renderer)
    {
        Remove();
        renderer->AddActor(Actor);
        Renderer = renderer;
    }
}

void CCatcherPlane::PlaceHorizontal(vtkRenderer* renderer, double height)
{
    constexpr double side = 10000.0;
    Place(renderer, {-side, -side, height}, {side, -side, height}, {-side, side, height});
}

void CCatcherPlane::Remove()
{
    if (Renderer)
    {
        Renderer->RemoveActor(Actor);
        Renderer = nullptr;
    }
}

bool CCatcherPlane::Meet(int x, int y, Vector3& position) const
{
    if (!Renderer || !IsInView(Renderer, x, y))
    {
        return false;
    }
    const Vector3 near = ToWorld(Renderer, x, y, 0.0);
    const Vector3 far = ToWorld(Renderer, x, y, 1.0);
    double* origin = Source->GetOrigin();
    Vector3 side1;
    Vector3 side2;
    Vector3 normal;
    Vector3 sight;
    Vector3 toOrigin;
    vtkMath::Subtract(Source->GetPoint1(), origin, side1.data());
    vtkMath::Subtract(Source->GetPoint2(), origin, side2.data());
    vtkMath::Cross(side1.data(), side2.data(), normal.data());
    vtkMath::Subtract(far, near, sight);
    vtkMath::Subtract(origin, near.data(), toOrigin.data());
    const double along = vtkMath::Dot(toOrigin, normal) / vtkMath::Dot(sight, normal);
    // Not a number when the plane is seen edge-on.
    if (!(along >= 0.0 && along <= 1.0))
    {
        return false;
    }
    Vector3 fromOrigin;
    for (size_t axis = 0; axis < 3; ++axis)
    {
        position[axis] = near[axis] + along * sight[axis];
        fromOrigin[axis] = position[axis] - origin[axis];
    }
    // A rectangle: its sides are at a right angle.
    const double part1 = vtkMath::Dot(fromOrigin, side1) / vtkMath::Dot(side1, side1);
    const double part2 = vtkMath::Dot(fromOrigin, side2) / vtkMath::Dot(side2, side2);
    return part1 >= 0.0 && part1 <= 1.0 && part2 >= 0.0 && part2 <= 1.0;
}
