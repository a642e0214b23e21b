// Angles in degrees, as hosts give them.
#pragma once

#include <array>
#include <cmath>

#include <vtkMath.h>

// Into 0 .. 360. 360 itself comes only from a negative multiple of it. An infinite angle stays.
inline double FoldIntoFullTurn(double degrees)
{
    if (!std::isfinite(degrees))
    {
        return degrees;
    }
    const double rest = std::fmod(degrees, 360.0);
    return degrees < 0.0 ? rest + 360.0 : rest;
}

// Into -180 .. 180, both of which stay. An infinite angle stays.
inline double FoldIntoHalfTurns(double degrees)
{
    if (!std::isfinite(degrees))
    {
        return degrees;
    }
    const double rest = std::fmod(degrees, 360.0);
    if (rest > 180.0)
    {
        return rest - 360.0;
    }
    return rest < -180.0 ? rest + 360.0 : rest;
}

// A turn in a plane, from its first axis towards its second.
class PlaneRotation
{
public:
    explicit PlaneRotation(double degrees)
        : Cosine(std::cos(vtkMath::RadiansFromDegrees(degrees))),
          Sine(std::sin(vtkMath::RadiansFromDegrees(degrees)))
    {
    }

    std::array<double, 2> Turn(double first, double second) const
    {
        return {first * Cosine - second * Sine, first * Sine + second * Cosine};
    }

private:
    double Cosine;
    double Sine;
};
