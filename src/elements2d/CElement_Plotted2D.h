// A shape in a chart: one table of points, one plot.
#pragma once

#include "elements2d/CElement_2D.h"
#include "elements2d/CPlotTable.h"

#include <memory>

class CElement_Plotted2D : public CElement_2D
{
public:
    // Shapes start white and turn yellow when they have a chart.
    CElement_Plotted2D(int32_t elementType, double size = 1.0);

    int32_t BuildPipeline();
    const CPlotTable* GetOutline() const { return Outline.get(); }

protected:
    // What a class draws: kind of plot, marker, number of points and their places.
    struct PlotForm
    {
        PlotKind Kind = PlotKind::Line;
        int MarkerStyle = 0; // none
        bool InLegend = true;
    };
    virtual PlotForm GetForm() const { return {}; }
    virtual int32_t CountRows() const = 0;
    virtual void Fill(const CPlotTable::Columns& columns) = 0;
    virtual std::string MakeName() const = 0;

    // The values have changed: new points, drawn on top of all other plots. The element is as it
    // was when memory runs out.
    void RebuildOutline();

private:
    std::unique_ptr<CPlotTable> Outline;
};
