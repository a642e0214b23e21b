// Places in a chart, and the curve that circles and ellipses are made of.
#pragma once

#include <array>
#include <cmath>

struct ChartPoint
{
    double X = 0.0;
    double Y = 0.0;
};

// A unit circle in steps of a degree; the last point closes it.
inline const std::array<ChartPoint, 361>& GetUnitCircle()
{
    static const std::array<ChartPoint, 361> circle = []
    {
        constexpr double degree = 0.017453292519943295;
        std::array<ChartPoint, 361> points;
        double angle = 0.0;
        for (ChartPoint& point : points)
        {
            point = {std::cos(angle), std::sin(angle)};
            angle += degree;
        }
        return points;
    }();
    return circle;
}
