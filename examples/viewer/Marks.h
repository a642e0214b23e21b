#pragma once

#include "HeightMap.h"

#include <cstdint>

// Adds points at the lowest and the highest sample of a surface and a line along X through its
// middle. Throws LibraryError.
void AddMarks(int32_t view, const HeightMap& map, const HeightStatistics& statistics,
              double exaggeration);
