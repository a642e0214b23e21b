// A measured line whose samples have an X of their own.
#pragma once

#include "measurement/CElementProfile.h"

class CElementProfileNonUniform : public CElementProfile
{
public:
    static constexpr int32_t Type = 3;

    CElementProfileNonUniform();

    int32_t Initialize(const ElementSite& site, const int16_t* x, const int16_t* z, int32_t count,
                       double xScale, double zScale, double xOffset, double zOffset, double y);

private:
    void WriteX(float* x) const override;
    void GetXRange(double* xmin, double* xmax) const override;

    std::unique_ptr<int16_t[]> XValues;
    HeightRange RawX; // of the samples with a valid Z
};
