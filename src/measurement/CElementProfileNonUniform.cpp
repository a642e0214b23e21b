#include "measurement/CElementProfileNonUniform.h"

#include "Tarvex.h"

#include <algorithm>

CElementProfileNonUniform::CElementProfileNonUniform() : CElementProfile(Type) {}

int32_t CElementProfileNonUniform::Initialize(const ElementSite& site, const int16_t* x,
                                              const int16_t* z, int32_t count, double xScale,
                                              double zScale, double xOffset, double zOffset,
                                              double y)
{
    if (!x)
    {
        return STATUS_NULL_ARGUMENT;
    }
    const int32_t status = Store(site, z, count, {xScale, xOffset}, {zScale, zOffset}, y);
    if (status != STATUS_OK)
    {
        return status;
    }
    XValues = std::make_unique_for_overwrite<int16_t[]>(static_cast<size_t>(count));
    std::copy_n(x, count, XValues.get());
    RawX = FindRangeWhereValid(XValues.get(), ZValues.get(), static_cast<size_t>(count));
    return STATUS_OK;
}

void CElementProfileNonUniform::WriteX(float* x) const
{
    for (int32_t sample = 0; sample < PointCount; ++sample, x += 3)
    {
        *x = static_cast<float>(X.Place(XValues[sample]));
    }
}

void CElementProfileNonUniform::GetXRange(double* xmin, double* xmax) const
{
    *xmin = X.Place(RawX.Minimum);
    *xmax = X.Place(RawX.Maximum);
}
