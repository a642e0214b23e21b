#include "interaction3d/CElement_Drawn.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"

#include <algorithm>

#include <vtkRenderer.h>

CElement_Drawn::CElement_Drawn(vtkRenderer* renderer, vtkTransform* sceneTransform)
    : Renderer(renderer), Box(renderer, sceneTransform), Disc(renderer, sceneTransform),
      Vertices(renderer, sceneTransform)
{
}

CElement_Drawn::~CElement_Drawn() = default;

int32_t CElement_Drawn::Start(DrawGesture gesture, DrawPlane plane, const double drawSpace[6])
{
    constexpr double leastExtent = 1e-6;
    Clear();
    if (drawSpace[1] - drawSpace[0] < leastExtent || drawSpace[3] - drawSpace[2] < leastExtent ||
        drawSpace[5] - drawSpace[4] < leastExtent)
    {
        return STATUS_OUT_OF_RANGE;
    }
    std::copy(drawSpace, drawSpace + 6, DrawSpace.begin());
    Plane = plane;
    CDrawGesture* const gestures[] = {&Box, &Disc, &Vertices};
    Current = gestures[static_cast<size_t>(gesture)];
    Current->Start(plane);
    PlacePlane();
    return STATUS_OK;
}

Vector3 CElement_Drawn::GetMiddle() const
{
    return {(DrawSpace[0] + DrawSpace[1]) * 0.5, (DrawSpace[2] + DrawSpace[3]) * 0.5,
            (DrawSpace[4] + DrawSpace[5]) * 0.5};
}

void CElement_Drawn::PlacePlane()
{
    if (!AreDrawable(DrawSpace))
    {
        DrawingPlane.Remove();
        return;
    }
    const auto [xmin, xmax, ymin, ymax, zmin, zmax] = DrawSpace;
    const auto [xc, yc, zc] = GetMiddle();
    // In VTK's world, where Y is mirrored.
    if (Plane == DrawPlane::Vertical)
    {
        DrawingPlane.Place(Renderer, {xmin, -yc, zmin}, {xmax, -yc, zmin}, {xmin, -yc, zmax});
    }
    else
    {
        DrawingPlane.Place(Renderer, {xmin, -ymin, zc}, {xmax, -ymin, zc}, {xmin, -ymax, zc});
    }
    // The camera is to see it whole.
    DrawingPlane.GetActor()->UseBoundsOn();
    Renderer->ResetCameraClippingRange();
}

DrawPoint CElement_Drawn::ToPlane(double x, double y, double z) const
{
    // The picker's way of saying that it hit nothing.
    if (x == 0.0 && y == 0.0 && z == 0.0)
    {
        return {};
    }
    // On the horizontal plane things are drawn at the top of the box, where they hide least.
    return Plane == DrawPlane::Vertical ? Vector3{x, GetMiddle()[1], z}
                                        : Vector3{x, -y, DrawSpace[5]};
}

void CElement_Drawn::Down(double x, double y, double z)
{
    Current->Down(ToPlane(x, y, z));
}

void CElement_Drawn::Move(double x, double y, double z)
{
    Current->Move(ToPlane(x, y, z));
}

void CElement_Drawn::Up(double x, double y, double z)
{
    Current->Up(ToPlane(x, y, z));
}

void CElement_Drawn::End()
{
    Current->End();
}

void CElement_Drawn::Clear()
{
    Current->Clear();
}
