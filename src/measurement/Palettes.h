// The palettes that surfaces and images share, known to hosts by their numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>

constexpr int32_t PaletteCount = 7;
constexpr int32_t GreyPalette = 5;
constexpr int32_t SingleColorPalette = 6; // the element's own colour everywhere
constexpr int32_t PaletteEntries = 256;

constexpr bool IsPalette(int32_t palette)
{
    return palette >= 0 && palette < PaletteCount;
}

using PaletteColor = std::array<uint8_t, 3>; // red, green, blue
using PaletteTable = std::array<PaletteColor, PaletteEntries>;

// The colours of a palette from the lowest to the highest value. `ownColor` is the element's, for
// the palette that has none. IsPalette(palette) must hold.
PaletteTable GetPaletteTable(int32_t palette, const PaletteColor& ownColor);
