#include "measurement/CElementProfileUniform.h"

CElementProfileUniform::CElementProfileUniform() : CElementProfile(Type) {}

int32_t CElementProfileUniform::Initialize(const ElementSite& site, const int16_t* z, int32_t count,
                                           double xScale, double zScale, double xOffset,
                                           double zOffset, double y)
{
    return Store(site, z, count, {xScale, xOffset}, {zScale, zOffset}, y);
}

void CElementProfileUniform::WriteX(float* x) const
{
    for (int32_t sample = 0; sample < PointCount; ++sample, x += 3)
    {
        *x = static_cast<float>(X.Place(sample));
    }
}

void CElementProfileUniform::GetXRange(double* xmin, double* xmax) const
{
    // The last sample is as wide as the others.
    *xmin = X.Offset;
    *xmax = X.Place(PointCount);
}
