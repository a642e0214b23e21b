// The camera of a 3D view. Its state is VTK's own; all values are in VTK's world frame.
#include "elements3d/Directions.h"
#include "view3d/CWindow.h"

#include <vtkCamera.h>
#include <vtkRenderer.h>

#include <algorithm>
#include <cmath>

namespace
{
// Divides by the length; false for a vector that gives no direction.
bool Normalize(Vector3& vector)
{
    if (vtkMath::Dot(vector.data(), vector.data()) < 1e-10)
    {
        return false;
    }
    MakeUnit(vector);
    return true;
}

struct PredefinedView
{
    Vector3 Position; // only the direction counts: the camera is then moved to frame the scene
    Vector3 Up;
};

constexpr PredefinedView predefinedViews[] = {
    {{0.0, 0.0, 100.0}, {0.0, 1.0, 0.0}},  {{0.0, -100.0, 0.0}, {0.0, 0.0, 1.0}},
    {{-100.0, 0.0, 0.0}, {0.0, 0.0, 1.0}}, {{0.0, 0.0, -100.0}, {0.0, 1.0, 0.0}},
    {{0.0, 100.0, 0.0}, {0.0, 0.0, 1.0}},  {{100.0, 0.0, 0.0}, {0.0, 0.0, 1.0}}};

void LookFrom(const PredefinedView& view, vtkRenderer* renderer)
{
    vtkCamera* camera = renderer->GetActiveCamera();
    camera->SetFocalPoint(0.0, 0.0, 0.0);
    camera->SetPosition(view.Position.data());
    camera->SetViewUp(view.Up.data());
    renderer->ResetCamera();
}

// Not after numbers so large that nothing can be worked out from them.
bool KnowsWhereItIs(vtkCamera* camera)
{
    const auto isFinite = [](const double* vector)
    { return std::all_of(vector, vector + 3, [](double part) { return std::isfinite(part); }); };
    return isFinite(camera->GetPosition()) && isFinite(camera->GetFocalPoint()) &&
           isFinite(camera->GetViewUp()) && isFinite(camera->GetDirectionOfProjection());
}
} // namespace

int32_t CWindow::ShowCamera()
{
    Renderer->ResetCameraClippingRange();
    RenderWindow->Render();
    return STATUS_OK;
}

int32_t CWindow::Camera_AutoSize()
{
    return WhenReady(
        [&]() -> int32_t
        {
            Renderer->ResetCamera();
            if (!KnowsWhereItIs(Renderer->GetActiveCamera()))
            {
                LookFrom(predefinedViews[TARVEX_VIEW_TOP], Renderer);
            }
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::Camera_EnableParallelProjection(bool enable)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Renderer->GetActiveCamera()->SetParallelProjection(enable);
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::Camera_GetPosition(double* x, double* y, double* z)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Renderer->GetActiveCamera()->GetPosition(*x, *y, *z);
            return STATUS_OK;
        });
}

int32_t CWindow::Camera_GetViewDirection(double* dirX, double* dirY, double* dirZ, double* upX,
                                         double* upY, double* upZ)
{
    return WhenReady(
        [&]() -> int32_t
        {
            vtkCamera* camera = Renderer->GetActiveCamera();
            camera->GetDirectionOfProjection(*dirX, *dirY, *dirZ);
            camera->GetViewUp(*upX, *upY, *upZ);
            return STATUS_OK;
        });
}

int32_t CWindow::Camera_SetPosition(double x, double y, double z)
{
    return WhenReady(
        [&]() -> int32_t
        {
            vtkCamera* camera = Renderer->GetActiveCamera();
            Vector3 focus = {};
            Vector3 before = {};
            camera->GetFocalPoint(focus.data());
            camera->GetPosition(before.data());
            camera->SetPosition(x, y, z);
            // The focal point goes along, so the camera moves without turning.
            camera->SetFocalPoint(focus[0] + (x - before[0]), focus[1] + (y - before[1]),
                                  focus[2] + (z - before[2]));
            return ShowCamera();
        });
}

int32_t CWindow::Camera_SetPredefinedView(int32_t view)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (view < 0 || view >= static_cast<int32_t>(std::size(predefinedViews)))
            {
                return STATUS_OUT_OF_RANGE;
            }
            LookFrom(predefinedViews[view], Renderer);
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::Camera_SetViewDirection(double dirX, double dirY, double dirZ, double upX,
                                         double upY, double upZ)
{
    return WhenReady(
        [&]() -> int32_t
        {
            Vector3 direction = {dirX, dirY, dirZ};
            Vector3 up = {upX, upY, upZ};
            if (!Normalize(direction) || !Normalize(up))
            {
                return STATUS_ZERO_VECTOR;
            }
            Vector3 cross = {};
            vtkMath::Cross(direction.data(), up.data(), cross.data());
            if (vtkMath::Dot(cross.data(), cross.data()) < 1e-12)
            {
                return STATUS_PARALLEL_VECTORS;
            }
            vtkCamera* camera = Renderer->GetActiveCamera();
            const double distance = camera->GetDistance();
            Vector3 focus = {};
            camera->GetFocalPoint(focus.data());
            camera->SetPosition(focus[0] - distance * direction[0],
                                focus[1] - distance * direction[1],
                                focus[2] - distance * direction[2]);
            camera->SetViewUp(up.data());
            camera->OrthogonalizeViewUp();
            return ShowCamera();
        });
}

int32_t CWindow::Camera_SetZoom(double factor)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (factor < 1e-6)
            {
                return STATUS_OUT_OF_RANGE;
            }
            Renderer->GetActiveCamera()->Zoom(factor);
            return ShowCamera();
        });
}
