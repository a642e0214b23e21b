// Draw modes of a chart view: the mouse makes elements.
#include "elements2d/CElement_Circle2D.h"
#include "elements2d/CElement_Polygon2D.h"
#include "elements2d/CElement_Rectangle2D.h"
#include "frame/Forwarders.h"
#include "frame/HostCallback.h"
#include "interaction2d/CElement2D_Drawn.h"
#include "interaction2d/MyDefaultInteractorStyle2D.h"
#include "interaction2d/MyDrawInteractorStyle2D.h"
#include "platform/Platform.h"
#include "view2d/CWindow2D.h"

#include <vtkChartHistogram2D.h>
#include <vtkTooltipItem.h>

namespace
{
int32_t AddRectangle(CWindow2D& view, const CElement2D_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y] = drawn.GetCenter();
    const auto [width, height] = drawn.GetExtent();
    return view.AddElement<CElement_Rectangle2D>(ChartFit::Keep, elementId, x, y, width, height,
                                                 0.0);
}

int32_t AddCircle(CWindow2D& view, const CElement2D_Drawn& drawn, int32_t* elementId)
{
    const auto [x, y] = drawn.GetCenter();
    return view.AddElement<CElement_Circle2D>(ChartFit::Keep, elementId, x, y, drawn.GetRadius());
}

int32_t AddPolygon(CWindow2D& view, const CElement2D_Drawn& drawn, int32_t* elementId)
{
    std::vector<double> x;
    std::vector<double> y;
    for (const ChartPoint& vertex : drawn.GetVertices())
    {
        x.push_back(vertex.X);
        y.push_back(vertex.Y);
    }
    const bool closed = true;
    return view.AddElement<CElement_Polygon2D>(
        ChartFit::Keep, elementId, static_cast<int32_t>(x.size()), x.data(), y.data(), closed);
}

struct DrawnShape
{
    int32_t Mode;
    DrawGesture Gesture;
    const char* BandName;
    // Of the element that it becomes.
    int32_t (*Add)(CWindow2D& view, const CElement2D_Drawn& drawn, int32_t* elementId);
};

constexpr DrawnShape shapes[] = {
    {TARVEX_DRAW_RECTANGLE, DrawGesture::Box, "Drawn rectangle", AddRectangle},
    {TARVEX_DRAW_CIRCLE, DrawGesture::Disc, "Drawn circle", AddCircle},
    {TARVEX_DRAW_POLYGON, DrawGesture::Vertices, "Drawn polygon", AddPolygon}};

// Null for the modes that have no shape in a chart.
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
} // namespace

int32_t CWindow2D::SetDrawMode(uint32_t mode)
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (mode > TARVEX_DRAW_NO_SHAPE)
            {
                return STATUS_OUT_OF_RANGE;
            }
            CancelDrawing();
            DrawMode = TARVEX_DRAW_NONE;
            DrawnElement = nullptr;
            int32_t status = STATUS_OK;
            if (mode != TARVEX_DRAW_NONE)
            {
                status =
                    Guarded(LastError, [&] { return EnterDrawMode(static_cast<int32_t>(mode)); });
            }
            if (!DrawnElement)
            {
                TakeStyle(DefaultStyle);
            }
            // A rubber band may have gone.
            Platform::RequestRender(RenderWindow);
            return status;
        });
}

int32_t CWindow2D::EnterDrawMode(int32_t mode)
{
    const DrawnShape* shape = FindShape(mode);
    if (!shape)
    {
        return STATUS_WRONG_TYPE;
    }
    DrawnElement = std::make_unique<CElement2D_Drawn>(Chart, shape->Gesture, shape->BandName);
    DrawMode = mode;
    DrawStyle->SetForwarders(DrawnElement->IsMultiClick(), {ForwardDrawDown2D, ForwardDrawMove2D,
                                                            ForwardDrawUp2D, ForwardDrawEnd2D});
    TakeStyle(DrawStyle);
    // The chart does not search for one in a draw mode, nor would it hide this one.
    Chart->GetTooltip()->SetVisible(false);
    return STATUS_OK;
}

void CWindow2D::CancelDrawing()
{
    if (DrawnElement)
    {
        DrawnElement->Clear();
        DrawStyle->ResetGesture();
    }
}

void CWindow2D::DrawDown(double x, double y)
{
    if (Guard() == STATUS_OK && DrawnElement)
    {
        DrawnElement->Down(x, y);
    }
}

void CWindow2D::DrawMove(double x, double y)
{
    if (Guard() == STATUS_OK && DrawnElement)
    {
        DrawnElement->Move(x, y);
        DrawnElement->Raise();
    }
}

void CWindow2D::DrawUp(double x, double y)
{
    if (Guard() != STATUS_OK || !DrawnElement)
    {
        return;
    }
    DrawnElement->Up(x, y);
    if (!DrawnElement->IsMultiClick())
    {
        FinishDrawing();
    }
}

void CWindow2D::DrawEnd()
{
    if (Guard() == STATUS_OK && DrawnElement)
    {
        DrawnElement->End();
        FinishDrawing();
    }
}

void CWindow2D::FinishDrawing()
{
    int32_t elementId = TARVEX_NONE;
    // One picture, with the element as it stays and without the rubber band.
    Platform::HoldRenders(RenderWindow);
    if (DrawnElement->IsFinished() &&
        Guarded(LastError,
                [&] { return FindShape(DrawMode)->Add(*this, *DrawnElement, &elementId); }) ==
            STATUS_OK)
    {
        OnElement<CElement_2D>(elementId, Render::Always,
                               [](CElement_2D& element)
                               {
                                   element.SetSize(DrawnLook::Size);
                                   return element.SetColor(DrawnLook::Color[0], DrawnLook::Color[1],
                                                           DrawnLook::Color[2]);
                               });
    }
    DrawnElement->Clear();
    Guarded(LastError,
            [&]() -> int32_t
            { return Platform::ReleaseRenders(RenderWindow) ? STATUS_OK : STATUS_NOT_READY; });
    if (elementId != TARVEX_NONE)
    {
        // Last: the host may do anything now, also delete this view.
        CallHost(ElementAddedCallback, Id, elementId);
    }
}

void CWindow2D::Refresh()
{
    if (DrawnElement)
    {
        DrawnElement->Raise();
    }
    RenderWindow->Render();
}
