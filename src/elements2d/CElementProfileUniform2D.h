// Samples on a regular X grid, as a sensor delivers them.
#pragma once

#include "elements2d/CElementProfile2D.h"

class CElementProfileUniform2D : public CElementProfile2D
{
public:
    static constexpr int32_t Type = TARVEX_ELEMENT_PROFILE_UNIFORM;

    CElementProfileUniform2D();

    int32_t Initialize(const ChartSite& site, const int16_t* z, int32_t count, double xSpacing,
                       double zScale, double xStart, double zOffset);
    int32_t SetValue(int32_t count, const int16_t* z, double xSpacing, double zScale, double xStart,
                     double zOffset);

protected:
    // A single sample is not seen.
    void ApplyMarkers(vtkPlotPoints* plot, int32_t rows) const override;
    // Never again once no sample was valid.
    bool IsReady() const override { return CElementProfile2D::IsReady() && HasRuns(); }
};
