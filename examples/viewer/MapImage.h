#pragma once

#include "HeightMap.h"

#include <cstdint>

// Shows the heights of a surface as the image of a chart, one pixel per sample, or its intensities.
// A chart has one image: another call replaces it, which shows with the next render. The palette is
// one of TARVEX_PALETTE_... Throws LibraryError.
void ShowHeightImage(int32_t chart, const HeightMap& map, uint32_t palette);
void ShowIntensityImage(int32_t chart, const HeightMap& map, uint32_t palette);
