#include "elements2d/CElement_Plotted2D.h"

#include "Tarvex.h"

#include <vtkPlotPoints.h>

#include <algorithm>

CElement_Plotted2D::CElement_Plotted2D(int32_t elementType, double size, int32_t invalidStatus)
    : CElement_2D(elementType, size, 255, 255, 0), InvalidStatus(invalidStatus)
{
}

int32_t CElement_Plotted2D::BuildPipeline()
{
    Outline = std::make_unique<CPlotTable>(MakeName());
    Outline->Reserve(CountRows());
    FillTables();
    Plots.reserve(1);
    const PlotForm form = GetForm();
    Plots.push_back(MakePlot(form.Kind, *Outline, form.MarkerStyle));
    Plots.front()->SetLegendVisibility(form.InLegend);
    return STATUS_OK;
}

void CElement_Plotted2D::FillTables()
{
    if (Valid)
    {
        Fill(Outline->Resize(CountRows()));
    }
    else
    {
        // VTK looks at the tables of hidden plots too.
        Outline->Resize(1).Write(0, 0.0, 0.0);
    }
    Outline->Filled();
}

void CElement_Plotted2D::Redraw()
{
    FillTables();
    ApplyLook();
    RaisePlots();
}

void CElement_Plotted2D::FitBounds(std::span<const ChartPoint> points)
{
    const auto [left, right] = std::minmax_element(
        points.begin(), points.end(),
        [](const ChartPoint& one, const ChartPoint& other) { return one.X < other.X; });
    const auto [bottom, top] = std::minmax_element(
        points.begin(), points.end(),
        [](const ChartPoint& one, const ChartPoint& other) { return one.Y < other.Y; });
    Bounds[0] = left->X;
    Bounds[1] = right->X;
    Bounds[2] = bottom->Y;
    Bounds[3] = top->Y;
}

int32_t CElement_Plotted2D::GetBounds(double* xmin, double* xmax, double* ymin, double* ymax)
{
    *xmin = *xmax = *ymin = *ymax = 0.0;
    if (!Valid)
    {
        return InvalidStatus;
    }
    *xmin = Bounds[0];
    *xmax = Bounds[1];
    *ymin = Bounds[2];
    *ymax = Bounds[3];
    return STATUS_OK;
}
