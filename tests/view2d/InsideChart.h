// A chart view from the inside: its chart, axes and plots.
#pragma once

#include "elements2d/ChartPoint.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <vtkAxis.h>
#include <vtkChartHistogram2D.h>
#include <vtkPlotPoints.h>

class InsideChart : public ChartFixture
{
protected:
    using ChartFixture::ChartFixture;

    CWindow2D& View() const { return ViewOf<CWindow2D>(Id); }
    vtkChartHistogram2D* Chart() const { return View().GetChart(); }
    vtkAxis* Axis(int side) const { return Chart()->GetAxis(side); }
    // Both ends of the X axis, then of the Y axis.
    Numbers Ranges() const
    {
        Numbers ranges;
        for (vtkAxis* axis : {Axis(vtkAxis::BOTTOM), Axis(vtkAxis::LEFT)})
        {
            ranges.push_back(axis->GetUnscaledMinimum());
            ranges.push_back(axis->GetUnscaledMaximum());
        }
        return ranges;
    }
    // Chart units in a pixel, on each axis.
    ChartPoint Unit() const
    {
        const Numbers range = Ranges();
        const int* first = Chart()->GetPoint1();
        const int* last = Chart()->GetPoint2();
        return {(range[1] - range[0]) / (last[0] - first[0]),
                (range[3] - range[2]) / (last[1] - first[1])};
    }
    // The pixel, from the upper left corner, where a place lies.
    ChartPoint Locate(const ChartPoint& place) const
    {
        const int* first = Chart()->GetPoint1();
        const int height = View().GetRenderWindow()->GetSize()[1];
        return {first[0] + (place.X - Ranges()[0]) / Unit().X,
                height - 1 - first[1] - (place.Y - Ranges()[2]) / Unit().Y};
    }
    // Of all but the image.
    vtkPlotPoints* TopPlot(int below = 0) const
    {
        return vtkPlotPoints::SafeDownCast(
            Chart()->GetPlot(Chart()->GetNumberOfPlots() - 1 - below));
    }
    // What an element says of its extent, both ends of X, then of Y.
    Numbers Bounds(int32_t element) const
    {
        Numbers box(4);
        View().FindElement(element)->GetBounds(&box[0], &box[1], &box[2], &box[3]);
        return box;
    }
    void Render() const { View().GetRenderWindow()->Render(); }
    Picture Look() const { return TakeChartPicture(Id); }
};
