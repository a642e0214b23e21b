#include "ProfileElements.h"

#include "Colors.h"
#include "Library.h"
#include "MapLines.h"

#include <Tarvex.h>

#include <algorithm>
#include <cmath>

namespace
{
// Apart from the low end of the dark palettes no surface is black.
constexpr Color LineOnSurface = {0, 0, 0};
constexpr Color LineAlone = {110, 220, 255};
constexpr double LineWidth = 2.5;

int32_t AddRow(int32_t view, const HeightMap& map, const MapRow& row, double exaggeration,
               double lift, const Color& color)
{
    const int16_t* heights = map.Samples.data() + row.First;
    const double zScale = map.ZScale * exaggeration;
    const double zOffset = map.ZOffset * exaggeration + lift;
    int32_t element = -1;
    if (map.HasFreePositions())
    {
        Check(Tarvex_Element_Add_ProfileNonUniform(view, map.XSamples.data() + row.First, heights,
                                                   map.Columns, map.XScale, zScale, map.XOffset,
                                                   zOffset, row.Y, &element),
              "Tarvex_Element_Add_ProfileNonUniform");
    }
    else
    {
        Check(Tarvex_Element_Add_ProfileUniform(view, heights, map.Columns, map.XScale, zScale,
                                                map.XOffset, zOffset, row.Y, &element),
              "Tarvex_Element_Add_ProfileUniform");
    }
    SetFlatColor(view, element, color);
    SetSize(view, element, LineWidth);
    return element;
}

// Far enough above a surface for its cells not to hide parts of the line.
double LiftOver(const HeightMap& surface)
{
    const Extent extent = DescribeExtent(surface);
    return 0.01 * std::hypot(extent.Width(), extent.Depth());
}
} // namespace

void AddProfile(int32_t view, const HeightMap& profile, double exaggeration)
{
    AddRow(view, profile, DescribeRow(profile, 0), exaggeration, 0.0, LineAlone);
}

void AddProfiles(int32_t view, const HeightMap& surface, double exaggeration, int32_t count)
{
    const double lift = LiftOver(surface);
    const int32_t lines = std::min(count, surface.Rows);
    for (int32_t i = 0; i < lines; ++i)
    {
        // The middles of equal strips.
        const auto number = static_cast<int32_t>((i + 0.5) * surface.Rows / lines);
        const MapRow row = DescribeRow(surface, number);
        if (row.Valid >= 2)
        {
            AddRow(view, surface, row, exaggeration, lift, LineOnSurface);
        }
    }
}

std::optional<int32_t> AddMarkedProfile(int32_t view, const HeightMap& surface, double exaggeration,
                                        int32_t row)
{
    const MapRow described = DescribeRow(surface, row);
    if (described.Valid < 2)
    {
        return std::nullopt;
    }
    return AddRow(view, surface, described, exaggeration, LiftOver(surface), MarkedRowColor);
}
