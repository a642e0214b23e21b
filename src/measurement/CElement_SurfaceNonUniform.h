// A measured surface with free positions on the topology of a grid.
#pragma once

#include "measurement/CElement_Surface.h"
#include "measurement/NonUniformSamples.h"

class CElement_SurfaceNonUniform : public CElement_Surface<NonUniformSamples>
{
public:
    // X, y, z and, if given, intensities are rows * columns values, row by row.
    int32_t Initialize(const ElementSite& site, const int16_t* x, const int16_t* y,
                       const int16_t* z, const uint8_t* intensities, int32_t columns, int32_t rows,
                       double xScale, double yScale, double zScale, double xOffset, double yOffset,
                       double zOffset, bool fullCellsOnly);
    int32_t SetValue(const int16_t* x, const int16_t* y, const int16_t* z,
                     const uint8_t* intensities, int32_t columns, int32_t rows, double xScale,
                     double yScale, double zScale, double xOffset, double yOffset, double zOffset);
};
