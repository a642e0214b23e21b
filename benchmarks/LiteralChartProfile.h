// A profile in a chart as plain VTK would have it: a stock plot for each run of valid samples,
// cells set one by one, and everything made anew after each change.
#pragma once

#include <cstdint>
#include <vector>

#include <vtkNew.h>
#include <vtkSmartPointer.h>

class vtkChartXY;
class vtkPlot;
class vtkTable;

class LiteralChartProfile
{
public:
    // Crosses at the samples, or only at those that stand alone.
    explicit LiteralChartProfile(vtkChartXY* chart, bool crosses = false)
        : Chart(chart), Crosses(crosses)
    {
    }
    ~LiteralChartProfile() { Remove(); }
    LiteralChartProfile(const LiteralChartProfile&) = delete;
    LiteralChartProfile& operator=(const LiteralChartProfile&) = delete;

    void Replace(const std::vector<int16_t>& x, const std::vector<int16_t>& z, double xScale,
                 double zScale, double xOffset = 0.0);
    void Append(const int16_t* x, const int16_t* z, size_t count, double xScale, double zScale,
                double xOffset = 0.0);
    void SetWidth(float width);

private:
    void Remove();
    void Build();
    void AddRun(size_t start, size_t end);

    vtkChartXY* Chart;
    bool Crosses;
    float Width = 1.0F;
    std::vector<double> X;
    std::vector<double> Y;
    std::vector<bool> Valid;
    std::vector<vtkSmartPointer<vtkTable>> Tables;
    std::vector<vtkPlot*> Plots;
};
