// Fewer points for a line that has more of them than the screen has pixel columns.
#pragma once

#include <span>
#include <vector>

struct PlotPlace
{
    float X;
    float Y;
};

// From places of a plot to pixels; both scales are positive.
struct PixelScale
{
    double ToPixel(float x) const { return x * X + Left; }
    double FromPixel(double column) const { return (column - Left) / X; }

    double X;
    double Y;
    double Left;
};

// A line one pixel wide through the thinned places covers the same pixels. X must not decrease.
void ThinLine(std::span<const PlotPlace> places, const PixelScale& scale,
              std::vector<PlotPlace>& thinned);
