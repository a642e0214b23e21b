#include "measurement/CElement_SurfaceUniform.h"

#include "measurement/CElement_Surface.hxx"

template class CElement_Surface<UniformSamples>;

int32_t CElement_SurfaceUniform::Initialize(const ElementSite& site, const int16_t* heights,
                                            const uint8_t* intensities, int32_t columns,
                                            int32_t rows, double xScale, double yScale,
                                            double zScale, double xOffset, double yOffset,
                                            double zOffset, bool fullCellsOnly)
{
    return InitializeFrom(site, {heights}, intensities,
                          {columns, rows, {xScale, yScale, zScale}, {xOffset, yOffset, zOffset}},
                          fullCellsOnly);
}

int32_t CElement_SurfaceUniform::SetValue(const int16_t* heights, const uint8_t* intensities,
                                          int32_t columns, int32_t rows, double xScale,
                                          double yScale, double zScale, double xOffset,
                                          double yOffset, double zOffset)
{
    return SetValueFrom({heights}, intensities,
                        {columns, rows, {xScale, yScale, zScale}, {xOffset, yOffset, zOffset}});
}
