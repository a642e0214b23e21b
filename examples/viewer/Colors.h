#pragma once

#include "Library.h"

// Colours that tell elements apart on surfaces, images and both backgrounds.
constexpr Color Red = {255, 70, 60};
constexpr Color Orange = {255, 160, 40};
constexpr Color Yellow = {255, 235, 70};
constexpr Color Green = {70, 230, 90};
constexpr Color Cyan = {60, 220, 235};
constexpr Color Blue = {70, 130, 255};
constexpr Color Violet = {180, 110, 255};
constexpr Color Pink = {255, 120, 210};
constexpr Color White = {255, 255, 255};
constexpr Color Lime = {190, 255, 60};

// The marked row and its profile look alike in all views.
constexpr Color MarkedRowColor = {255, 0, 160};
constexpr double MarkedRowWidth = 2.0; // pixels
