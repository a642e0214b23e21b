// The palettes that surfaces and images share, known to hosts by their numbers.
#pragma once

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

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

// The same palettes as linear ramps between nodes on 0..255, which images of chart views are
// coloured with; colours from 0.0 to 1.0.
struct PaletteNode
{
    double Value;
    std::array<double, 3> Color;
};
// None for the palette of one colour.
std::span<const PaletteNode> GetPaletteNodes(int32_t palette);

// The colour of each byte of an image.
PaletteTable GetImageTable(int32_t palette, const PaletteColor& ownColor);
