// The number tests that all elements share.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <limits>
#include <span>

// False for NaN and for the values that hosts use as "no value" markers; infinities pass.
bool IsValidNumber(double value);
bool AreValidNumbers(std::initializer_list<double> values);
bool AreValidNumbers(std::span<const double> values);
// True when every value can be drawn without harm: one prop at 1e39 would leave the camera without
// usable numbers for good.
bool AreDrawable(std::initializer_list<double> values);
bool AreDrawable(std::span<const double> values);
// Out of range in a float becomes the largest one.
float NarrowToFloat(double value);

// Whether so many values of a kind stay within the two gigabytes that a host's array may have: a
// count beyond is a mistake, and is refused before anything is read or allocated.
template <class Value>
constexpr bool FitsAnArray(int64_t count)
{
    return count <= static_cast<int64_t>(std::numeric_limits<int32_t>::max() / sizeof(Value));
}

// Range test in the form "below the lower or above the upper bound", so that a NaN counts as
// inside.
constexpr bool IsOutside(double value, double lower, double upper)
{
    return value < lower || value > upper;
}
