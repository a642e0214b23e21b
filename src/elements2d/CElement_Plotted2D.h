// A shape in a chart: one table of points, one plot.
#pragma once

#include "elements2d/CElement_2D.h"
#include "elements2d/CPlotTable.h"
#include "elements2d/ChartPoint.h"

#include <memory>
#include <span>

class CElement_Plotted2D : public CElement_2D
{
public:
    // Shapes are yellow. `invalidStatus` is what an invalid element of the class answers.
    CElement_Plotted2D(int32_t elementType, double size, int32_t invalidStatus);

    virtual int32_t BuildPipeline();
    const CPlotTable* GetOutline() const { return Outline.get(); }
    int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) override;
    using CElement_2D::GetBounds;

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
    // The points of valid values; an invalid shape is hidden.
    virtual void Fill(const CPlotTable::Columns& columns) = 0;
    virtual std::string MakeName() const = 0;
    virtual void FillTables();

    // Room for an outline of so many points.
    void ReserveOutline(int32_t rows) { Outline->Reserve(rows); }
    // The values have changed: new points, drawn on top of all other plots. Needs no memory unless
    // there are more rows than have been reserved.
    void Redraw();
    // The box of the values, from their points.
    void FitBounds(std::span<const ChartPoint> points);

    const int32_t InvalidStatus;

private:
    double Bounds[4] = {0.0, 0.0, 0.0, 0.0}; // xmin, xmax, ymin, ymax
    std::unique_ptr<CPlotTable> Outline;
};
