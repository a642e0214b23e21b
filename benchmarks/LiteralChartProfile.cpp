#include "LiteralChartProfile.h"

#include <vtkChartXY.h>
#include <vtkFloatArray.h>
#include <vtkPlotPoints.h>
#include <vtkTable.h>
#include <vtkVariant.h>

void LiteralChartProfile::Replace(const std::vector<int16_t>& x, const std::vector<int16_t>& z,
                                  double xScale, double zScale, double xOffset)
{
    X.clear();
    Y.clear();
    Valid.clear();
    Append(x.data(), z.data(), x.size(), xScale, zScale, xOffset);
}

void LiteralChartProfile::Append(const int16_t* x, const int16_t* z, size_t count, double xScale,
                                 double zScale, double xOffset)
{
    for (size_t sample = 0; sample < count; ++sample)
    {
        const bool valid = z[sample] != -32768;
        X.push_back(x[sample] * xScale + xOffset);
        Y.push_back(valid ? z[sample] * zScale : 0.0);
        Valid.push_back(valid);
    }
    Remove();
    Build();
}

void LiteralChartProfile::SetWidth(float width)
{
    Width = width;
    Remove();
    Build();
}

void LiteralChartProfile::Remove()
{
    for (vtkPlot* plot : Plots)
    {
        Chart->RemovePlot(Chart->GetPlotIndex(plot));
    }
    Plots.clear();
    Tables.clear();
}

void LiteralChartProfile::Build()
{
    for (size_t start = 0; start < Valid.size();)
    {
        size_t end = start;
        while (end < Valid.size() && Valid[end])
        {
            ++end;
        }
        if (end > start)
        {
            AddRun(start, end);
        }
        start = end + 1;
    }
}

void LiteralChartProfile::AddRun(size_t start, size_t end)
{
    const auto rows = static_cast<vtkIdType>(end - start);
    const auto table = vtkSmartPointer<vtkTable>::New();
    vtkNew<vtkFloatArray> x;
    vtkNew<vtkFloatArray> y;
    x->SetName("X Axis");
    y->SetName("Profile");
    table->AddColumn(x);
    table->AddColumn(y);
    table->SetNumberOfRows(rows);
    for (vtkIdType row = 0; row < rows; ++row)
    {
        const size_t sample = start + static_cast<size_t>(row);
        table->SetValue(row, 0, vtkVariant(X[sample]));
        table->SetValue(row, 1, vtkVariant(Y[sample]));
    }
    const bool alone = rows < 2;
    vtkPlot* plot = Chart->AddPlot(alone ? vtkChart::POINTS : vtkChart::LINE);
    plot->SetInputData(table, 0, 1);
    plot->SetColor(255, 0, 0, 255);
    plot->SetWidth(Width);
    plot->SetSelectable(true);
    plot->SetLegendVisibility(Plots.empty());
    auto* points = vtkPlotPoints::SafeDownCast(plot);
    points->SetMarkerStyle(alone || Crosses ? vtkPlotPoints::CROSS : vtkPlotPoints::NONE);
    points->SetMarkerSize(5.0F);
    Tables.push_back(table);
    Plots.push_back(plot);
}
