// Normals, axes and directions, which hosts give in any length.
#pragma once

#include <array>
#include <cmath>

#include <vtkMath.h>

using Vector3 = std::array<double, 3>;

// False for a vector that is too short to tell where it points.
inline bool GivesDirection(const Vector3& vector)
{
    constexpr double leastSquaredLength = 1e-12;
    return !(vtkMath::Dot(vector.data(), vector.data()) < leastSquaredLength);
}

// Also for components whose squares no double can hold.
inline void MakeUnit(Vector3& vector)
{
    double length = vtkMath::Norm(vector.data());
    // Not where it is NaN, which hypot takes for 0.
    if (std::isinf(length))
    {
        // Of a quarter, whose length surely fits. Not for all vectors: hypot would take some of
        // length 1 for a little longer.
        for (double& component : vector)
        {
            component *= 0.25;
        }
        length = std::hypot(vector[0], vector[1], vector[2]);
    }
    for (double& component : vector)
    {
        component /= length;
    }
}
