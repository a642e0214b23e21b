// A measured line whose samples have a fixed pitch in X.
#pragma once

#include "measurement/CElementProfile.h"

class CElementProfileUniform : public CElementProfile
{
public:
    static constexpr int32_t Type = 2;

    CElementProfileUniform();

    int32_t Initialize(const ElementSite& site, const int16_t* z, int32_t count, double xScale,
                       double zScale, double xOffset, double zOffset, double y);

private:
    void WriteX(float* x) const override;
    void GetXRange(double* xmin, double* xmax) const override;
};
