// The forms in which hosts hand over the samples of a profile.
#pragma once

#include "frame/NumberTest.h"

#include <cstdint>

struct SampleScale
{
    double Step = 1.0;
    double Offset = 0.0;

    double Place(double value) const { return value * Step + Offset; }
    bool IsUsable() const { return AreValidNumbers({Step, Offset}); }
};

// Places in doubles; without `Valid` every sample is valid.
struct GeneralSamples
{
    const double* X;
    const double* Y;
    const uint8_t* Valid;

    bool HasArrays() const { return X && Y; }
    bool HasValidNumbers() const { return true; } // samples may be anything
    bool IsValid(int32_t sample) const { return !Valid || Valid[sample] != 0; }
    double GetX(int32_t sample) const { return X[sample]; }
    double GetY(int32_t sample) const { return Y[sample]; }
};

// Values of a sensor, which marks what it did not see in Z alone.
struct HeightSamples
{
    const int16_t* Z;
    SampleScale ZScale;

    bool IsValid(int32_t sample) const
    {
        constexpr int16_t missing = -32768;
        return Z[sample] != missing;
    }
    double GetY(int32_t sample) const { return ZScale.Place(Z[sample]); }
};

struct KorSamples : HeightSamples
{
    const int16_t* X;
    SampleScale XScale;

    bool HasArrays() const { return X && Z; }
    bool HasValidNumbers() const { return XScale.IsUsable() && ZScale.IsUsable(); }
    double GetX(int32_t sample) const { return XScale.Place(X[sample]); }
};

struct PitchedSamples : HeightSamples
{
    SampleScale XScale;

    bool HasArrays() const { return Z != nullptr; }
    bool HasValidNumbers() const { return XScale.IsUsable() && ZScale.IsUsable(); }
    double GetX(int32_t sample) const { return XScale.Place(sample); }
};
