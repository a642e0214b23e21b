#pragma once

#include "HeightMap.h"

#include <cstdint>

// Lays one of each kind of chart element over the image of a surface: on the same features of the
// laser scan as in the 3D scene, and at the same places of other surfaces, with less meaning.
// Throws LibraryError.
void AddChartScene(int32_t chart, const HeightMap& map);
