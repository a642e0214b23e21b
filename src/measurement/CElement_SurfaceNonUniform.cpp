#include "measurement/CElement_SurfaceNonUniform.h"

#include "measurement/CElement_Surface.hxx"

template class CElement_Surface<NonUniformSamples>;

int32_t CElement_SurfaceNonUniform::Initialize(const ElementSite& site, const int16_t* x,
                                               const int16_t* y, const int16_t* z,
                                               const uint8_t* intensities, int32_t columns,
                                               int32_t rows, double xScale, double yScale,
                                               double zScale, double xOffset, double yOffset,
                                               double zOffset, bool fullCellsOnly)
{
    return InitializeFrom(site, {x, y, z}, intensities,
                          {columns, rows, {xScale, yScale, zScale}, {xOffset, yOffset, zOffset}},
                          fullCellsOnly);
}

int32_t CElement_SurfaceNonUniform::SetValue(const int16_t* x, const int16_t* y, const int16_t* z,
                                             const uint8_t* intensities, int32_t columns,
                                             int32_t rows, double xScale, double yScale,
                                             double zScale, double xOffset, double yOffset,
                                             double zOffset)
{
    return SetValueFrom({x, y, z}, intensities,
                        {columns, rows, {xScale, yScale, zScale}, {xOffset, yOffset, zOffset}});
}
