#include "elements2d/CElementProfileNonUniform2D.h"

#include "elements2d/ProfileSamples.h"

#include <vtkPlotPoints.h>

CElementProfileNonUniform2D::CElementProfileNonUniform2D() : CElementProfile2D(Type) {}

void CElementProfileNonUniform2D::Begin(const ChartSite& site, const char* name, int markerStyle)
{
    CElementProfile2D::Begin(site, MakeColumnName(name, "Non-uniform spaced profile", site.Id));
    MarkerStyle = markerStyle;
}

int32_t CElementProfileNonUniform2D::Initialize(const ChartSite& site, const double* x,
                                                const double* y, const uint8_t* valid,
                                                int32_t count, const char* name)
{
    Begin(site, name, vtkPlotPoints::CROSS);
    return ReplaceGeneral(x, y, valid, count, 1);
}

int32_t CElementProfileNonUniform2D::Initialize(const ChartSite& site, const int16_t* x,
                                                const int16_t* z, int32_t count, double xScale,
                                                double zScale, double xOffset, double zOffset,
                                                const char* name)
{
    Begin(site, name, vtkPlotPoints::NONE);
    return SetValue_KorData(count, x, z, xScale, zScale, xOffset, zOffset);
}

int32_t CElementProfileNonUniform2D::SetValue_GeneralData(int32_t count, const double* x,
                                                          const double* y, const uint8_t* valid)
{
    return ReplaceGeneral(x, y, valid, count, 2);
}

int32_t CElementProfileNonUniform2D::SetValue_KorData(int32_t count, const int16_t* x,
                                                      const int16_t* z, double xScale,
                                                      double zScale, double xOffset, double zOffset)
{
    return Replace(KorSamples{{z, {zScale, zOffset}}, x, {xScale, xOffset}}, count);
}

int32_t CElementProfileNonUniform2D::AttachValues_GeneralData(int32_t count, const double* x,
                                                              const double* y, const uint8_t* valid)
{
    return Attach(GeneralSamples{x, y, valid}, count);
}

int32_t CElementProfileNonUniform2D::AttachValues_KorData(int32_t count, const int16_t* x,
                                                          const int16_t* z, double xScale,
                                                          double zScale, double xOffset,
                                                          double zOffset)
{
    return Attach(KorSamples{{z, {zScale, zOffset}}, x, {xScale, xOffset}}, count);
}

int32_t CElementProfileNonUniform2D::ReplaceGeneral(const double* x, const double* y,
                                                    const uint8_t* valid, int32_t count,
                                                    int32_t leastCount)
{
    const int32_t status = Replace(GeneralSamples{x, y, valid}, count, leastCount);
    if (status == STATUS_OK)
    {
        DropFirstXIfInvalid();
    }
    return status;
}

int32_t CElementProfileNonUniform2D::SetMarkerSize(double size)
{
    constexpr double leastSize = 0.001;
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    if (size < leastSize)
    {
        return STATUS_TOO_SMALL;
    }
    MarkerSize = size;
    for (vtkPlotPoints* plot : Plots)
    {
        plot->SetMarkerSize(NarrowToFloat(MarkerSize));
    }
    return STATUS_OK;
}

void CElementProfileNonUniform2D::ApplyMarkers(vtkPlotPoints* plot, int32_t rows) const
{
    plot->SetMarkerStyle(rows < 2 ? vtkPlotPoints::CROSS : MarkerStyle);
    plot->SetMarkerSize(NarrowToFloat(MarkerSize));
}
