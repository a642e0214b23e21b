#pragma once

#include "HeightMap.h"

#include <cstddef>

// A place on a surface in fractions of its columns and rows: 0 is the first, 1 the last.
struct Spot
{
    double Column = 0.0;
    double Row = 0.0;
};

// A part of a surface in the same fractions.
struct Area
{
    double Left = 0.0;
    double Right = 1.0;
    double Top = 0.0;
    double Bottom = 1.0;
};

// z = SlopeX * x + SlopeY * y + Constant
struct FittedPlane
{
    double SlopeX = 0.0;
    double SlopeY = 0.0;
    double Constant = 0.0;

    double At(double x, double y) const { return SlopeX * x + SlopeY * y + Constant; }
};

// A part of a surface that stands out above what is around it.
struct Plateau
{
    double X = 0.0; // middle
    double Y = 0.0;
    double HalfWidth = 0.0;
    double HalfDepth = 0.0;
    double Height = 0.0;
    double Surrounding = 0.0; // height around it
};

// Index into the samples of a map.
size_t IndexAt(const HeightMap& map, const Spot& spot);

// 0 in an area without valid samples.
double MedianHeight(const HeightMap& map, const Area& area);

// Least squares over the samples near the median height, so that parts on the plane do not bend it.
FittedPlane FitPlane(const HeightMap& map, const Area& area);

// Everything in the area above the middle of its heights.
Plateau MeasurePlateau(const HeightMap& map, const Area& area);
