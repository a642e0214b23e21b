#include "elements2d/CElement_2D.h"

#include "Tarvex.h"
#include "elements2d/CPlotTable.h"
#include "elements2d/ChartPlots.h"
#include "frame/NumberTest.h"

#include <vtkChartHistogram2D.h>
#include <vtkCommand.h>

#include <algorithm>
#include <cstring>

CElement_2D::CElement_2D(int32_t elementType, double size, uint8_t red, uint8_t green, uint8_t blue)
    : CElement_Base(elementType), Size(size), Color{red, green, blue}
{
}

CElement_2D::~CElement_2D() = default;

void CElement_2D::TakeSite(const ChartSite& site)
{
    Id = site.Id;
    Chart = site.Chart;
}

int32_t CElement_2D::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    Color[0] = red;
    Color[1] = green;
    Color[2] = blue;
    ApplyLook();
    return STATUS_OK;
}

int32_t CElement_2D::GetColor(uint8_t* red, uint8_t* green, uint8_t* blue)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    *red = Color[0];
    *green = Color[1];
    *blue = Color[2];
    return STATUS_OK;
}

int32_t CElement_2D::SetSize(double size)
{
    constexpr double leastSize = 0.001;
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    if (size < leastSize)
    {
        return STATUS_TOO_SMALL;
    }
    Size = size;
    ApplyLook();
    return STATUS_OK;
}

int32_t CElement_2D::GetSize(double* size)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    *size = Size;
    return STATUS_OK;
}

int32_t CElement_2D::CheckComplete() const
{
    return IsReady() ? STATUS_OK : STATUS_NOT_READY;
}

int32_t CElement_2D::Show(bool show)
{
    Shown = show;
    ApplyLook();
    return CheckComplete();
}

void CElement_2D::LeaveView()
{
    RemovePlots();
}

void CElement_2D::ApplyLook()
{
    for (vtkPlotPoints* plot : Plots)
    {
        ApplyLook(plot);
    }
}

void CElement_2D::ApplyLook(vtkPlot* plot) const
{
    constexpr uint8_t opaque = 255;
    plot->SetColor(Color[0], Color[1], Color[2], opaque);
    plot->SetWidth(NarrowToFloat(Size));
    plot->SetVisible(IsVisible());
}

vtkPlotPoints* CElement_2D::MakePlot(PlotKind kind, const CPlotTable& table, int markerStyle)
{
    vtkSmartPointer<vtkPlotPoints> plot;
    if (kind == PlotKind::Line)
    {
        plot = vtkSmartPointer<CLinePlot>::New();
    }
    else
    {
        plot = vtkSmartPointer<CPointsPlot>::New();
    }
    SetUpPlot(plot, table, markerStyle);
    Chart->AddPlot(plot);
    return plot;
}

void CElement_2D::SetUpPlot(vtkPlotPoints* plot, const CPlotTable& table, int markerStyle) const
{
    plot->SetInputData(table.GetTable(), 0, 1);
    ApplyLook(plot);
    plot->SetSelectable(true);
    plot->SetMarkerStyle(markerStyle);
}

void CElement_2D::RemovePlot(vtkPlot* plot)
{
    // From the end, where the plots of a recent element are.
    for (vtkIdType index = Chart ? Chart->GetNumberOfPlots() - 1 : -1; index >= 0; --index)
    {
        if (Chart->GetPlot(index) == plot)
        {
            Chart->RemovePlot(index);
            return;
        }
    }
}

void CElement_2D::RemovePlots()
{
    std::for_each(Plots.rbegin(), Plots.rend(), [this](vtkPlotPoints* plot) { RemovePlot(plot); });
    Plots.clear();
}

bool CElement_2D::AreOnTop(const std::vector<vtkPlotPoints*>& plots) const
{
    vtkIdType index = Chart->GetNumberOfPlots() - static_cast<vtkIdType>(plots.size());
    return index >= 0 &&
           std::all_of(plots.begin(), plots.end(),
                       [&](vtkPlotPoints* plot) { return Chart->GetPlot(index++) == plot; });
}

void CElement_2D::RaisePlots()
{
    if (AreOnTop(Plots))
    {
        return;
    }
    for (vtkPlotPoints* plot : Plots)
    {
        const vtkSmartPointer<vtkPlotPoints> kept = plot;
        RemovePlot(plot);
        // Each time that a chart takes a plot it begins to listen to it.
        plot->RemoveObservers(vtkCommand::ModifiedEvent);
        // A plot that has the chart's axes counts as drawn by it, and would not be drawn again.
        plot->SetXAxis(nullptr);
        plot->SetYAxis(nullptr);
        Chart->AddPlot(plot);
    }
}

std::string MakeColumnName(const char* name, const char* kind, int32_t id)
{
    constexpr size_t longestName = 255;
    const size_t length = name ? strnlen(name, longestName + 1) : 0;
    return length > 0 && length <= longestName ? std::string(name, length)
                                               : kind + (' ' + std::to_string(id));
}
