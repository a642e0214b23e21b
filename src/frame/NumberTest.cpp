#include "frame/NumberTest.h"

#include <algorithm>
#include <cmath>
#include <limits>

bool IsValidNumber(double value)
{
    using Limits = std::numeric_limits<double>;
    // The smallest normal number is a marker here, not a limit: its neighbours are good values.
    if (value == Limits::min() || value == Limits::max() || value == Limits::lowest())
    {
        return false;
    }
    if (std::isnan(value))
    {
        return false;
    }
    // A narrow band that hosts use as a third marker; its two ends are good values.
    return !(value > -9223372036855.0 && value < -9223372036854.0);
}

bool AreValidNumbers(std::initializer_list<double> values)
{
    return AreValidNumbers(std::span(values.begin(), values.size()));
}

bool AreValidNumbers(std::span<const double> values)
{
    return std::all_of(values.begin(), values.end(), IsValidNumber);
}

bool AreDrawable(std::initializer_list<double> values)
{
    return AreDrawable(std::span(values.begin(), values.size()));
}

bool AreDrawable(std::span<const double> values)
{
    constexpr double largest = 1e30;
    return std::all_of(values.begin(), values.end(),
                       [](double value) { return std::abs(value) <= largest; });
}

float NarrowToFloat(double value)
{
    constexpr double largest = std::numeric_limits<float>::max();
    return static_cast<float>(std::clamp(value, -largest, largest));
}
