#include "elements3d/CElement_Cylinder.h"

#include "Tarvex.h"
#include "elements3d/ShapeMapper.h"
#include "frame/NumberTest.h"

#include <vtkCylinderSource.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>
#include <vtkProperty.h>
#include <vtkRegularPolygonSource.h>
#include <vtkRenderer.h>

#include <cmath>
#include <numeric>

namespace
{
constexpr int32_t firstOnRim = 2; // handles 0 and 1 are the end points
constexpr int32_t perRim = 4;
constexpr int32_t handleCount = firstOnRim + 2 * perRim;
constexpr double leastRadius = 1e-9;
constexpr int facets = 100;

Vector3 Along(const Vector3& from, const Vector3& direction, double distance)
{
    return {from[0] + distance * direction[0], from[1] + distance * direction[1],
            from[2] + distance * direction[2]};
}
} // namespace

CElement_Cylinder::CElement_Cylinder() : CElement_Draggable(Type, handleCount)
{
    Handles.SetCount(handleCount);
    Ambient = 0.4;
    Diffuse = 0.7;
    Specular = 0.5;
    SpecularPower = 0.0;
}

void CElement_Cylinder::Store(const Vector3& first, const Vector3& second, double radius)
{
    Ends[0] = first;
    Ends[1] = second;
    Radius = radius;
    const Vector3 axis = Along(second, first, -1.0);
    Valid = AreValidNumbers(first) && AreValidNumbers(second) && IsValidNumber(radius) &&
            !(radius < leastRadius) && GivesDirection(axis);
    if (Valid)
    {
        Length = std::hypot(axis[0], axis[1], axis[2]);
        Axis = axis;
        MakeUnit(Axis);
    }
}

int32_t CElement_Cylinder::Initialize(const ElementSite& site, double x1, double y1, double z1,
                                      double x2, double y2, double z2, double radius)
{
    Store({x1, y1, z1}, {x2, y2, z2}, radius);
    return TakeSiteAndSize(site);
}

int32_t CElement_Cylinder::BuildPipeline()
{
    Source = vtkSmartPointer<vtkCylinderSource>::New();
    Source->SetResolution(facets);
    Source->CappingOff();
    BuildActor(Source->GetOutputPort());
    TubeMatrix = vtkSmartPointer<vtkMatrix4x4>::New();
    Actor->SetUserMatrix(TubeMatrix);
    for (Rim& rim : Rims)
    {
        BuildRim(rim);
    }
    Refresh();
    return STATUS_OK;
}

void CElement_Cylinder::BuildRim(Rim& rim)
{
    rim.Source = vtkSmartPointer<vtkRegularPolygonSource>::New();
    rim.Source->GeneratePolygonOff();
    rim.Source->SetNumberOfSides(facets);
    const vtkNew<ShapeMapper> mapper;
    mapper->SetInputConnection(rim.Source->GetOutputPort());
    rim.Actor = vtkSmartPointer<vtkActor>::New();
    rim.Actor->SetMapper(mapper);
    vtkProperty* property = rim.Actor->GetProperty();
    property->SetColor(Color[0] / 255.0, Color[1] / 255.0, Color[2] / 255.0);
    property->SetLineWidth(NarrowToFloat(Size));
    property->SetAmbient(1.0);
    property->SetDiffuse(1.0);
    property->SetSpecular(0.0);
    property->SetSpecularPower(SpecularPower);
    MirrorByUserMatrix(rim.Actor);
}

Vector3 CElement_Cylinder::AcrossAxis() const
{
    const auto [a, b, c] = Axis;
    constexpr double usable = 0.3; // no unit vector has all three components below
    Vector3 across = {};
    if (std::abs(c) > usable)
    {
        across = {1.0, 0.0, -a / c};
    }
    else if (std::abs(b) > usable)
    {
        across = {0.0, -c / b, 1.0};
    }
    else
    {
        across = {-b / a, 1.0, 0.0};
    }
    MakeUnit(across);
    return across;
}

void CElement_Cylinder::PlaceHandles()
{
    const Vector3 across = AcrossAxis();
    Vector3 other = {};
    vtkMath::Cross(Axis.data(), across.data(), other.data());
    MakeUnit(other);
    for (int32_t end = 0; end < 2; ++end)
    {
        const Vector3& centre = Ends[end];
        const int32_t first = firstOnRim + perRim * end;
        Handles.SetPosition(end, centre);
        Handles.SetPosition(first, Along(centre, across, Radius));
        Handles.SetPosition(first + 1, Along(centre, other, Radius));
        Handles.SetPosition(first + 2, Along(centre, across, -Radius));
        Handles.SetPosition(first + 3, Along(centre, other, -Radius));
    }
}

void CElement_Cylinder::Draw(bool visible)
{
    for (size_t end = 0; end < Rims.size(); ++end)
    {
        const Rim& rim = Rims[end];
        rim.Actor->SetVisibility(visible);
        rim.Actor->SetUseBounds(visible);
        if (visible)
        {
            rim.Source->SetRadius(Radius);
            rim.Source->SetCenter(Ends[end].data());
            rim.Source->SetNormal(Axis.data());
        }
    }
    if (!visible)
    {
        return;
    }
    // The source stands on the y axis around the origin; this frame, which is right-handed and
    // holds no scaling, lays it on the axis as VTK's world sees it.
    const Vector3 along = {Axis[0], MirrorY(Axis[1]), Axis[2]};
    Vector3 across = AcrossAxis();
    across[1] = MirrorY(across[1]);
    Vector3 other = {};
    vtkMath::Cross(across.data(), along.data(), other.data());
    Vector3 centre = {};
    for (size_t i = 0; i < 3; ++i)
    {
        centre[i] = std::midpoint(Ends[0][i], Ends[1][i]);
    }
    centre[1] = MirrorY(centre[1]);
    for (int row = 0; row < 3; ++row)
    {
        const auto at = static_cast<size_t>(row);
        TubeMatrix->SetElement(row, 0, across[at]);
        TubeMatrix->SetElement(row, 1, along[at]);
        TubeMatrix->SetElement(row, 2, other[at]);
        TubeMatrix->SetElement(row, 3, centre[at]);
    }
    Source->SetRadius(Radius);
    Source->SetHeight(std::abs(Length));
}

int32_t CElement_Cylinder::GetValue(double* x1, double* y1, double* z1, double* x2, double* y2,
                                    double* z2, double* radius)
{
    *x1 = Ends[0][0];
    *y1 = Ends[0][1];
    *z1 = Ends[0][2];
    *x2 = Ends[1][0];
    *y2 = Ends[1][1];
    *z2 = Ends[1][2];
    *radius = Radius;
    return STATUS_OK;
}

int32_t CElement_Cylinder::SetValue(double x1, double y1, double z1, double x2, double y2,
                                    double z2, double radius)
{
    Store({x1, y1, z1}, {x2, y2, z2}, radius);
    Refresh();
    return STATUS_OK;
}

int32_t CElement_Cylinder::GetValue2(double* cx, double* cy, double* cz, double* ax, double* ay,
                                     double* az, double* radius, double* height)
{
    *cx = std::midpoint(Ends[0][0], Ends[1][0]);
    *cy = std::midpoint(Ends[0][1], Ends[1][1]);
    *cz = std::midpoint(Ends[0][2], Ends[1][2]);
    *ax = Axis[0];
    *ay = Axis[1];
    *az = Axis[2];
    *radius = Radius;
    *height = Length;
    return STATUS_OK;
}

int32_t CElement_Cylinder::SetValue2(double cx, double cy, double cz, double ax, double ay,
                                     double az, double radius, double height)
{
    constexpr double leastHeight = -8.0; // not 0
    const Vector3 centre = {cx, cy, cz};
    Vector3 axis = {ax, ay, az};
    Valid = AreValidNumbers({cx, cy, cz, ax, ay, az, radius, height}) && !(radius < leastRadius) &&
            !(height < leastHeight);
    if (Valid)
    {
        if (!GivesDirection(axis))
        {
            // Nothing is stored, but a hidden cylinder counts as valid from here on.
            return STATUS_TOO_SMALL;
        }
        MakeUnit(axis);
        Ends[0] = Along(centre, axis, -height / 2.0);
        Ends[1] = Along(centre, axis, height / 2.0);
    }
    Axis = axis;
    Radius = radius;
    Length = height;
    Refresh();
    return STATUS_OK;
}

void CElement_Cylinder::DragHandle(int32_t handle, const Vector3& position)
{
    if (handle < firstOnRim)
    {
        Vector3& dragged = Ends[handle];
        Vector3& other = Ends[1 - handle];
        other = Along(other, Along(position, dragged, -1.0), 1.0);
        dragged = position;
    }
    else
    {
        const Vector3& centre = Ends[(handle - firstOnRim) / perRim];
        Radius = std::sqrt(vtkMath::Distance2BetweenPoints(position.data(), centre.data()));
    }
    Refresh();
}

int32_t CElement_Cylinder::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    const int32_t status = CElement_Draggable::SetColor(red, green, blue);
    for (const Rim& rim : Rims)
    {
        rim.Actor->GetProperty()->SetColor(red / 255.0, green / 255.0, blue / 255.0);
    }
    return status;
}

int32_t CElement_Cylinder::SetSize(double size)
{
    const int32_t status = CElement_Draggable::SetSize(size);
    if (status == STATUS_OK)
    {
        for (const Rim& rim : Rims)
        {
            rim.Actor->GetProperty()->SetLineWidth(NarrowToFloat(size));
        }
    }
    return status;
}

int32_t CElement_Cylinder::SetInScene(bool inScene)
{
    for (const Rim& rim : Rims)
    {
        // Not there yet when an add fails in its first step.
        if (rim.Actor && inScene)
        {
            Renderer->AddActor(rim.Actor);
        }
        else if (rim.Actor)
        {
            Renderer->RemoveActor(rim.Actor);
        }
    }
    return CElement_Draggable::SetInScene(inScene);
}
