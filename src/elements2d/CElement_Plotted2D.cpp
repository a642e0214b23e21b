#include "elements2d/CElement_Plotted2D.h"

#include "Tarvex.h"

#include <vtkPlotPoints.h>

CElement_Plotted2D::CElement_Plotted2D(int32_t elementType, double size)
    : CElement_2D(elementType, size, 255, 255, 0)
{
}

int32_t CElement_Plotted2D::BuildPipeline()
{
    Outline = std::make_unique<CPlotTable>(MakeName());
    RebuildOutline();
    return STATUS_OK;
}

void CElement_Plotted2D::RebuildOutline()
{
    Fill(Outline->Resize(CountRows()));
    Outline->Filled();
    if (!Plots.empty() && AreOnTop(Plots))
    {
        ApplyLook();
        return;
    }
    Plots.reserve(1);
    RemovePlots();
    const PlotForm form = GetForm();
    Plots.push_back(MakePlot(form.Kind, *Outline, form.MarkerStyle));
    Plots.front()->SetLegendVisibility(form.InLegend);
}
