// A height map on a regular grid.
#pragma once

#include "measurement/CElement_Surface.h"
#include "measurement/UniformSamples.h"

class CElement_SurfaceUniform : public CElement_Surface<UniformSamples>
{
public:
    // Heights and, if given, intensities are rows * columns values, row by row.
    int32_t Initialize(const ElementSite& site, const int16_t* heights, const uint8_t* intensities,
                       int32_t columns, int32_t rows, double xScale, double yScale, double zScale,
                       double xOffset, double yOffset, double zOffset, bool fullCellsOnly);
    int32_t SetValue(const int16_t* heights, const uint8_t* intensities, int32_t columns,
                     int32_t rows, double xScale, double yScale, double zScale, double xOffset,
                     double yOffset, double zOffset);
};
