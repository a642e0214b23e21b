#include "ChartView.h"

#include "ElementReports.h"
#include "Library.h"

#include <Tarvex.h>
#include <TarvexExt.h>

namespace
{
// Until the host places the chart.
constexpr Box FirstPlace = {0, 0, 16, 16};

const ActiveElementCalls ChartCalls = {
    Tarvex_Element2D_GetCount,
    Tarvex_Element2D_GetIDFromIndex,
    Tarvex_Element2D_GetType,
    Tarvex_Window2D_GetActiveElement,
    Tarvex_Window2D_SetActiveElement,
    {TARVEX_ELEMENT_CIRCLE, TARVEX_ELEMENT_RECTANGLE, TARVEX_ELEMENT_POLYGON}};
} // namespace

ChartView::ChartView(void* parentWindow, uint32_t layout, bool equalAspect)
    : Placed(FirstPlace), Layout(layout), EqualAspect(equalAspect)
{
    Check(Tarvex_Window2D_Create(parentWindow, 1, Placed.Left, Placed.Top, Placed.Width,
                                 Placed.Height, &Chart),
          "Tarvex_Window2D_Create");
    try
    {
        // The first call that needs the native window; it fails where the chart can't be shown.
        Check(Tarvex_Window2D_SetChartLayout(Chart, Layout), "Tarvex_Window2D_SetChartLayout");
        ReportChartElements(Chart);
    }
    catch (...)
    {
        Tarvex_Window2D_Delete(Chart);
        throw;
    }
}

ChartView::~ChartView()
{
    Tarvex_Window2D_Delete(Chart);
}

void ChartView::Place(const Box& box)
{
    Placed = box;
    Check(Tarvex_Window2D_UpdateSize(Chart, box.Left, box.Top, box.Width, box.Height),
          "Tarvex_Window2D_UpdateSize");
    // The new size shows with the next render.
    Redraw();
    if (EqualAspect)
    {
        Frame();
    }
}

void ChartView::Redraw()
{
    // The layout's own background: of the calls that render, this changes nothing.
    const uint8_t grey = Layout == TARVEX_CHART_LIGHT ? 255 : 0;
    Check(Tarvex_Window2D_SetBackgroundColor(Chart, grey, grey, grey),
          "Tarvex_Window2D_SetBackgroundColor");
}

void ChartView::Frame()
{
    const uint8_t equalAspect = EqualAspect ? 1 : 0;
    Check(Tarvex_Window2D_ChartAutoScale(Chart, equalAspect), "Tarvex_Window2D_ChartAutoScale");
    if (EqualAspect)
    {
        // The new labels can change the size of the plot area, from which the aspect is taken.
        Check(Tarvex_Window2D_ChartAutoScale(Chart, equalAspect), "Tarvex_Window2D_ChartAutoScale");
    }
}

void ChartView::ActivateNextElement()
{
    ActivateNext(Chart, ChartCalls);
    Redraw();
}

void ChartView::ChooseDrawMode(uint32_t mode)
{
    switch (mode)
    {
    case TARVEX_DRAW_NONE:
    case TARVEX_DRAW_RECTANGLE:
    case TARVEX_DRAW_CIRCLE:
    case TARVEX_DRAW_POLYGON:
        Check(Tarvex_Window2D_SetDrawMode(Chart, mode), "Tarvex_Window2D_SetDrawMode");
        break;
    default:
        break; // bodies can't be drawn in a chart
    }
}

RgbPicture ChartView::Picture() const
{
    return CopyPicture(Chart, TarvexExt_Window2D_CopyImage);
}
