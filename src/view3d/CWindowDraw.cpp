// Draw modes: the mouse makes elements.
#include "elements3d/CElement_Circle.h"
#include "elements3d/CElement_Cube.h"
#include "elements3d/CElement_Cylinder.h"
#include "elements3d/CElement_Polygon.h"
#include "elements3d/CElement_Polyhedron.h"
#include "elements3d/CElement_Rectangle.h"
#include "frame/Forwarders.h"
#include "frame/HostCallback.h"
#include "interaction3d/CElement_Drawn.h"
#include "interaction3d/MyDefaultInteractorStyle.h"
#include "interaction3d/MyDrawMouseInteractorStyle.h"
#include "platform/Platform.h"
#include "view3d/CWindow.h"

#include <vtkTransform.h>

namespace
{
int32_t AddRectangle(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y, z] = drawn.GetBox().GetCenter();
    const auto [width, depth, height] = drawn.GetBox().GetExtent();
    return view.AddElement<CElement_Rectangle>(nullptr, elementId, true, x, y, z, width, height,
                                               0.0);
}

int32_t AddCube(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y, z] = drawn.GetBox().GetCenter();
    const auto [lengthX, lengthY, lengthZ] = drawn.GetBox().GetExtent();
    const bool wireframe = true;
    return view.AddElement<CElement_Cube>(nullptr, elementId, x, y, drawn.GetMiddle()[2], lengthX,
                                          lengthY, drawn.GetHeight(), 0.0, wireframe);
}

int32_t AddCircle(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y, z] = drawn.GetDisc().GetCenter();
    const auto [nx, ny, nz] = drawn.GetDisc().GetNormal();
    return view.AddElement<CElement_Circle>(nullptr, elementId, x, y, z,
                                            drawn.GetDisc().GetRadius(), nx, ny, nz);
}

int32_t AddCylinder(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y, z] = drawn.GetDisc().GetCenter();
    const double middle = drawn.GetMiddle()[2];
    const double half = drawn.GetHeight() * 0.5;
    return view.AddElement<CElement_Cylinder>(nullptr, elementId, x, y, middle - half, x, y,
                                              middle + half, drawn.GetDisc().GetRadius());
}

int32_t AddPolygon(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const std::vector<double> x = drawn.GetVertices().GetCoordinates(0);
    const std::vector<double> y = drawn.GetVertices().GetCoordinates(1);
    const std::vector<double> z = drawn.GetVertices().GetCoordinates(2);
    const bool closed = true;
    return view.AddElement<CElement_Polygon>(nullptr, elementId, static_cast<int32_t>(x.size()),
                                             x.data(), y.data(), z.data(), closed);
}

int32_t AddPolyhedron(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId)
{
    const std::vector<double> x = drawn.GetVertices().GetCoordinates(0);
    const std::vector<double> y = drawn.GetVertices().GetCoordinates(1);
    const std::vector<double> z(x.size(), drawn.GetMiddle()[2]);
    return view.AddElement<CElement_Polyhedron>(nullptr, elementId, static_cast<int32_t>(x.size()),
                                                x.data(), y.data(), z.data(), 0.0, 0.0, 1.0,
                                                drawn.GetHeight());
}

struct DrawnShape
{
    int32_t Mode;
    DrawGesture Gesture;
    DrawPlane Plane;
    // Of the element that it becomes.
    int32_t (*Add)(CWindow& view, const CElement_Drawn& drawn, int32_t* elementId);
    double Transparency = DrawnLook::Transparency;
};

constexpr double cylinderTransparency = 0.6; // one looks into it

constexpr DrawnShape shapes[] = {
    {TARVEX_DRAW_RECTANGLE, DrawGesture::Box, DrawPlane::Vertical, AddRectangle},
    {TARVEX_DRAW_CUBE, DrawGesture::Box, DrawPlane::Horizontal, AddCube},
    {TARVEX_DRAW_CIRCLE, DrawGesture::Disc, DrawPlane::Vertical, AddCircle},
    {TARVEX_DRAW_CYLINDER, DrawGesture::Disc, DrawPlane::Horizontal, AddCylinder,
     cylinderTransparency},
    {TARVEX_DRAW_POLYGON, DrawGesture::Vertices, DrawPlane::Vertical, AddPolygon},
    {TARVEX_DRAW_POLYHEDRON, DrawGesture::Vertices, DrawPlane::Horizontal, AddPolyhedron}};

// Null for the modes that draw nothing.
const DrawnShape* FindShape(int32_t mode)
{
    for (const DrawnShape& shape : shapes)
    {
        if (shape.Mode == mode)
        {
            return &shape;
        }
    }
    return nullptr;
}

int32_t SetDrawnLook(CElement_Base& element, double transparency)
{
    element.SetTransparency(transparency);
    element.SetSize(DrawnLook::Size);
    element.SetColor(DrawnLook::Color[0], DrawnLook::Color[1], DrawnLook::Color[2]);
    return element.SetLighting(1.0, 1.0, 0.0, 1.0);
}
} // namespace

int32_t CWindow::SetDrawMode(uint32_t mode)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (mode > TARVEX_DRAW_NO_SHAPE)
            {
                return STATUS_OUT_OF_RANGE;
            }
            DrawMode = static_cast<int32_t>(mode);
            int32_t status = STATUS_OK;
            if (DrawMode != TARVEX_DRAW_NONE)
            {
                status = Guarded(LastError, [&] { return EnterDrawMode(); });
            }
            if (DrawMode == TARVEX_DRAW_NONE || status != STATUS_OK)
            {
                LeaveDrawMode();
            }
            return status;
        });
}

int32_t CWindow::EnterDrawMode()
{
    TakeOutStyle();
    const DrawnShape* shape = FindShape(DrawMode);
    DrawStyle->SetMouseFlags(false, true, false);
    DrawStyle->SetDownForwarder(ForwardDrawDown);
    DrawStyle->SetMoveForwarder(ForwardDrawMove);
    DrawStyle->SetUpForwarder(ForwardDrawUp);
    DrawStyle->SetEndForwarder(ForwardDrawEnd);
    DrawStyle->SetMultiClick(shape && shape->Gesture == DrawGesture::Vertices);
    if (!DrawnElement)
    {
        DrawnElement = std::make_unique<CElement_Drawn>(Renderer, SceneTransform);
    }
    if (shape)
    {
        const int32_t status = DrawnElement->Start(shape->Gesture, shape->Plane, DrawSpace);
        if (status != STATUS_OK)
        {
            return status;
        }
        RenderWindow->Render();
    }
    else if (DrawnElement->IsUnderWay())
    {
        // The plane of the former mode stays, but not what was begun on it.
        DrawnElement->Clear();
        RenderWindow->Render();
    }
    Interactor->SetInteractorStyle(DrawStyle);
    return STATUS_OK;
}

void CWindow::LeaveDrawMode()
{
    DrawMode = TARVEX_DRAW_NONE;
    TakeOutStyle();
    DrawnElement = nullptr;
    DefaultStyle->SetMouseFlags(MouseEnabled[0], MouseEnabled[1], MouseEnabled[2]);
    Interactor->SetInteractorStyle(DefaultStyle);
    RenderWindow->Render();
}

void CWindow::TakeOutStyle()
{
    EndMouseMotion();
    DrawStyle->DropGesture();
    Interactor->SetInteractorStyle(nullptr);
}

void CWindow::DrawDown(double x, double y, double z)
{
    if (FindShape(DrawMode))
    {
        DrawnElement->Down(x, y, z);
    }
}

void CWindow::DrawMove(double x, double y, double z)
{
    if (FindShape(DrawMode) && DrawnElement->IsUnderWay())
    {
        DrawnElement->Move(x, y, z);
        Interactor->Render();
    }
}

void CWindow::DrawUp(double x, double y, double z)
{
    if (!FindShape(DrawMode))
    {
        return;
    }
    DrawnElement->Up(x, y, z);
    if (DrawnElement->IsUnderWay())
    {
        // A vertex, and more to come.
        Interactor->Render();
        return;
    }
    FinishDrawing();
}

void CWindow::DrawEnd()
{
    if (FindShape(DrawMode))
    {
        DrawnElement->End();
        FinishDrawing();
    }
}

void CWindow::FinishDrawing()
{
    const DrawnShape* shape = FindShape(DrawMode);
    int32_t elementId = TARVEX_NONE;
    // One picture, with the element as it stays and without the rubber band.
    Platform::HoldRenders(RenderWindow);
    if (DrawnElement->IsFinished() &&
        Guarded(LastError, [&] { return shape->Add(*this, *DrawnElement, &elementId); }) ==
            STATUS_OK)
    {
        OnElement<CElement_Base>(elementId, Render::Never,
                                 [&](CElement_Base& element)
                                 { return SetDrawnLook(element, shape->Transparency); });
    }
    DrawnElement->Clear();
    RenderWindow->Render();
    Guarded(LastError,
            [&]() -> int32_t
            { return Platform::ReleaseRenders(RenderWindow) ? STATUS_OK : STATUS_NOT_READY; });
    if (elementId != TARVEX_NONE)
    {
        // Last: the host may do anything now, also delete this view.
        CallHost(ElementAddedCallback, Id, elementId);
    }
}
