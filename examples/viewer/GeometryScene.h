#pragma once

#include "HeightMap.h"

#include <cstdint>

// Measures a few features of a surface and lays one of each kind of geometric element on them. The
// places to look at are those of the laser scan; on other surfaces the elements lie at the same
// places, with less meaning. Throws LibraryError.
void AddGeometryScene(int32_t view, const HeightMap& map, double exaggeration);
