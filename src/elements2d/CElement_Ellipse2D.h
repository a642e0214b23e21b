// An ellipse in a chart.
#pragma once

#include "elements2d/CElement_Plotted2D.h"

class CElement_Ellipse2D : public CElement_Plotted2D
{
public:
    static constexpr int32_t Type = 14;

    CElement_Ellipse2D();

    // Half axes, and the angle in degrees from X towards Y, which is folded into a full turn.
    int32_t Initialize(const ChartSite& site, double x, double y, double radiusA, double radiusB,
                       double angle);
    int32_t GetValue(double* x, double* y, double* radiusA, double* radiusB, double* angle);
    int32_t SetValue(double x, double y, double radiusA, double radiusB, double angle);

protected:
    int32_t CountRows() const override;
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override;

private:
    void Store(double x, double y, double radiusA, double radiusB, double angle);

    double X = 0.0;
    double Y = 0.0;
    double RadiusA = 20.0;
    double RadiusB = 5.0;
    double Angle = 0.0;
};
