#include "measurement/Palettes.h"

namespace
{
constexpr uint8_t Byte(double value)
{
    return static_cast<uint8_t>(value);
}
constexpr uint8_t Byte(int value)
{
    return static_cast<uint8_t>(value);
}

// Six ramps between seven corner colours, of 42 or 43 entries each.
constexpr PaletteColor Rainbow(int i)
{
    constexpr double shortRamp = 6.071428571428571; // 255 / 42
    constexpr double longRamp = 5.930232558139535;  // 255 / 43
    if (i <= 42)
    {
        return {0, Byte(i * shortRamp), 255};
    }
    if (i <= 85)
    {
        return {0, 255, Byte(255.0 - (i - 42) * longRamp)};
    }
    if (i <= 127)
    {
        return {Byte((i - 85) * shortRamp), 255, 0};
    }
    if (i <= 170)
    {
        return {255, Byte(255.0 - (i - 127) * longRamp), 0};
    }
    if (i <= 213)
    {
        return {255, 0, Byte((i - 170) * longRamp)};
    }
    return {255, Byte((i - 213) * shortRamp), 255};
}

// Hosts know this palette with its jumps from green to red and from red to yellow.
constexpr PaletteColor Spectrum(int i)
{
    if (i < 52)
    {
        return {0, 0, Byte(4 * (i + 10))};
    }
    if (i < 104)
    {
        return {0, Byte(3 * (i - 52)), Byte(448 - 4 * i)};
    }
    if (i < 156)
    {
        return {Byte(4 * i - 376), Byte(472 - 3 * i), 0};
    }
    if (i < 208)
    {
        return {255, Byte(4 * i - 584), 0};
    }
    return {255, 255, Byte(4 * (i - 208))};
}

// Black to the full primary colour in the lower half, from there to white in the upper one.
constexpr PaletteColor OneHue(int i, size_t primary)
{
    const bool upper = i >= 128;
    const uint8_t ramp = Byte(2 * (upper ? i - 128 : i) + 1);
    PaletteColor color{};
    color.fill(upper ? ramp : Byte(0));
    color[primary] = upper ? Byte(255) : ramp;
    return color;
}

constexpr PaletteColor Color(int palette, int i)
{
    switch (palette)
    {
    case 0:
        return Rainbow(i);
    case 1:
        return Spectrum(i);
    case 2:
    case 3:
    case 4:
        return OneHue(i, static_cast<size_t>(palette - 2));
    default:
        return {Byte(i), Byte(i), Byte(i)};
    }
}

consteval std::array<PaletteTable, SingleColorPalette> MakeTables()
{
    std::array<PaletteTable, SingleColorPalette> tables{};
    for (int palette = 0; palette < SingleColorPalette; ++palette)
    {
        for (int i = 0; i < PaletteEntries; ++i)
        {
            tables[static_cast<size_t>(palette)][static_cast<size_t>(i)] = Color(palette, i);
        }
    }
    return tables;
}

constexpr std::array<PaletteTable, SingleColorPalette> Tables = MakeTables();

constexpr PaletteNode RainbowNodes[] = {
    {0.0, {0, 0, 1}},     {42.585, {0, 1, 1}},  {84.915, {0, 1, 0}}, {127.5, {1, 1, 0}},
    {170.085, {1, 0, 0}}, {212.415, {1, 0, 1}}, {255.0, {1, 1, 1}}};
constexpr PaletteNode SpectrumNodes[] = {{0.0, {0, 0, 0.157}},      {51.0, {0, 0, 0.957}},
                                         {103.02, {0, 0.6, 0.141}}, {155.04, {0.957, 0.027, 0}},
                                         {207.06, {1, 0.957, 0}},   {255.0, {1, 1, 0.737}}};
constexpr PaletteNode RedNodes[] = {{0.0, {0, 0, 0}}, {127.5, {1, 0, 0}}, {255.0, {1, 1, 1}}};
constexpr PaletteNode GreenNodes[] = {{0.0, {0, 0, 0}}, {127.5, {0, 1, 0}}, {255.0, {1, 1, 1}}};
constexpr PaletteNode BlueNodes[] = {{0.0, {0, 0, 0}}, {127.5, {0, 0, 1}}, {255.0, {1, 1, 1}}};
constexpr PaletteNode GreyNodes[] = {{0.0, {0, 0, 0}}, {255.0, {1, 1, 1}}};
constexpr std::span<const PaletteNode> Nodes[] = {RainbowNodes, SpectrumNodes, RedNodes,
                                                  GreenNodes,   BlueNodes,     GreyNodes};

uint8_t Interpolate(const PaletteNode& low, const PaletteNode& high, size_t channel, double value)
{
    const double share = (value - low.Value) / (high.Value - low.Value);
    const double level = (1 - share) * low.Color[channel] + share * high.Color[channel];
    return Byte(255.0 * level + 0.5);
}
} // namespace

std::span<const PaletteNode> GetPaletteNodes(int32_t palette)
{
    return palette == SingleColorPalette ? std::span<const PaletteNode>()
                                         : Nodes[static_cast<size_t>(palette)];
}

PaletteTable GetImageTable(int32_t palette, const PaletteColor& ownColor)
{
    PaletteTable table;
    if (palette == SingleColorPalette)
    {
        table.fill(ownColor);
        return table;
    }
    // A discretised transfer function over 0..256 has its first entry at 0 and its last at 256, and
    // a byte takes the entry of its number: byte 254 the colour at 254.996. The brightest byte is
    // drawn just below 255, with the entry before its own.
    const std::span<const PaletteNode> nodes = GetPaletteNodes(palette);
    size_t high = 1;
    for (size_t byte = 0; byte + 1 < table.size(); ++byte)
    {
        const double value = static_cast<double>(byte) / 255.0 * 256.0;
        while (value > nodes[high].Value)
        {
            ++high;
        }
        for (size_t channel = 0; channel < 3; ++channel)
        {
            table[byte][channel] = Interpolate(nodes[high - 1], nodes[high], channel, value);
        }
    }
    table[255] = table[254];
    return table;
}

PaletteTable GetPaletteTable(int32_t palette, const PaletteColor& ownColor)
{
    if (palette == SingleColorPalette)
    {
        PaletteTable table;
        table.fill(ownColor);
        return table;
    }
    return Tables[static_cast<size_t>(palette)];
}
