// A point in a chart, drawn as a circular marker.
#pragma once

#include "elements2d/CElement_Plotted2D.h"

class CElement_Point2D : public CElement_Plotted2D
{
public:
    static constexpr int32_t Type = 10;

    CElement_Point2D();

    int32_t Initialize(const ChartSite& site, double x, double y);
    int32_t GetValue(double* x, double* y);
    int32_t SetValue(double x, double y);

    // Also of an invalid point.
    int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) override;
    using CElement_Plotted2D::GetBounds;

protected:
    PlotForm GetForm() const override;
    int32_t CountRows() const override { return 1; }
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override;

private:
    void Store(double x, double y);

    double X = 0.0;
    double Y = 0.0;
};
