// Samples with an X of their own, in plain doubles (General) or as a sensor delivers them (Kor).
// Can grow.
#pragma once

#include "elements2d/CElementProfile2D.h"

class CElementProfileNonUniform2D : public CElementProfile2D
{
public:
    static constexpr int32_t Type = TARVEX_ELEMENT_PROFILE_NON_UNIFORM;

    CElementProfileNonUniform2D();

    // General: one sample is enough here, and each sample has a marker.
    int32_t Initialize(const ChartSite& site, const double* x, const double* y,
                       const uint8_t* valid, int32_t count, const char* name);
    int32_t Initialize(const ChartSite& site, const int16_t* x, const int16_t* z, int32_t count,
                       double xScale, double zScale, double xOffset, double zOffset,
                       const char* name);
    int32_t SetValue_GeneralData(int32_t count, const double* x, const double* y,
                                 const uint8_t* valid);
    int32_t SetValue_KorData(int32_t count, const int16_t* x, const int16_t* z, double xScale,
                             double zScale, double xOffset, double zOffset);
    int32_t AttachValues_GeneralData(int32_t count, const double* x, const double* y,
                                     const uint8_t* valid);
    int32_t AttachValues_KorData(int32_t count, const int16_t* x, const int16_t* z, double xScale,
                                 double zScale, double xOffset, double zOffset);
    // In pixels.
    int32_t SetMarkerSize(double size);

protected:
    // A single sample is a cross, whatever the style.
    void ApplyMarkers(vtkPlotPoints* plot, int32_t rows) const override;

private:
    void Begin(const ChartSite& site, const char* name, int markerStyle);
    int32_t ReplaceGeneral(const double* x, const double* y, const uint8_t* valid, int32_t count,
                           int32_t leastCount);

    int MarkerStyle = 0; // of runs of two samples and more
    double MarkerSize = 5.0;
};
