#include "elements2d/CElementProfileUniform2D.h"

#include "elements2d/ProfileSamples.h"

#include <vtkPlotPoints.h>

CElementProfileUniform2D::CElementProfileUniform2D() : CElementProfile2D(Type) {}

int32_t CElementProfileUniform2D::Initialize(const ChartSite& site, const int16_t* z, int32_t count,
                                             double xSpacing, double zScale, double xStart,
                                             double zOffset)
{
    Begin(site, MakeColumnName(nullptr, "Uniform spaced profile", site.Id));
    return Replace(PitchedSamples{{z, {zScale, zOffset}}, {xSpacing, xStart}}, count);
}

int32_t CElementProfileUniform2D::SetValue(int32_t count, const int16_t* z, double xSpacing,
                                           double zScale, double xStart, double zOffset)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    return Replace(PitchedSamples{{z, {zScale, zOffset}}, {xSpacing, xStart}}, count);
}

void CElementProfileUniform2D::ApplyMarkers(vtkPlotPoints* plot, int32_t /*rows*/) const
{
    plot->SetMarkerStyle(vtkPlotPoints::NONE);
}
