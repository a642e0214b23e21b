#include "ProfileElements.h"

#include "Library.h"

#include <Tarvex.h>

#include <algorithm>
#include <cmath>

namespace
{
// Apart from the low end of the dark palettes no surface is black.
constexpr Color LineOnSurface = {0, 0, 0};
constexpr Color LineAlone = {110, 220, 255};
constexpr double LineWidth = 2.5;

struct Row
{
    size_t First = 0; // index of the row's first sample
    size_t Valid = 0; // number of valid samples
    double Y = 0.0;   // a profile lies in a plane of constant y: the mean of the valid samples
};

Row DescribeRow(const HeightMap& map, int32_t number)
{
    const auto columns = static_cast<size_t>(map.Columns);
    Row row;
    row.First = static_cast<size_t>(number) * columns;
    double sum = 0.0;
    for (size_t i = row.First; i < row.First + columns; ++i)
    {
        if (map.Samples[i] != HeightMap::Missing)
        {
            sum += map.Y(i);
            ++row.Valid;
        }
    }
    row.Y = row.Valid > 0 ? sum / static_cast<double>(row.Valid) : 0.0;
    return row;
}

void AddRow(int32_t view, const HeightMap& map, const Row& row, double exaggeration, double lift,
            const Color& color)
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
}
} // namespace

void AddProfile(int32_t view, const HeightMap& profile, double exaggeration)
{
    AddRow(view, profile, DescribeRow(profile, 0), exaggeration, 0.0, LineAlone);
}

void AddProfiles(int32_t view, const HeightMap& surface, double exaggeration, int32_t count)
{
    const Extent extent = DescribeExtent(surface);
    const double lift = 0.01 * std::hypot(extent.Width(), extent.Depth());
    const int32_t lines = std::min(count, surface.Rows);
    for (int32_t i = 0; i < lines; ++i)
    {
        // The middles of equal strips.
        const auto number = static_cast<int32_t>((i + 0.5) * surface.Rows / lines);
        const Row row = DescribeRow(surface, number);
        if (row.Valid >= 2)
        {
            AddRow(view, surface, row, exaggeration, lift, LineOnSurface);
        }
    }
}
