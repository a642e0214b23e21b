#include "Marks.h"

#include "Library.h"

#include <Tarvex.h>

#include <algorithm>
#include <cmath>

namespace
{
constexpr Color LowestColor = {255, 230, 60};
constexpr Color HighestColor = {40, 220, 90};
constexpr Color LineColor = {255, 255, 255};

void AddMark(int32_t view, double x, double y, double z, double radius, const Color& color)
{
    int32_t point = -1;
    Check(Tarvex_Element_Add_Point(view, x, y, z, &point), "Tarvex_Element_Add_Point");
    SetSize(view, point, radius);
    SetColor(view, point, color);
    Check(Tarvex_Element_SetLighting(view, point, 0.4, 0.6, 0.3, 20.0),
          "Tarvex_Element_SetLighting");
}
} // namespace

void AddMarks(int32_t view, const HeightMap& map, const HeightStatistics& statistics,
              double exaggeration)
{
    const Extent extent = DescribeExtent(map);
    const double radius = std::hypot(extent.Width(), extent.Depth()) * 0.008;
    const auto mark = [&](size_t index, int16_t raw, const Color& color)
    { AddMark(view, map.X(index), map.Y(index), map.Height(raw) * exaggeration, radius, color); };
    mark(statistics.LowestIndex, statistics.Lowest, LowestColor);
    mark(statistics.HighestIndex, statistics.Highest, HighestColor);

    // At the height of the middle row's highest sample: it touches the surface and stays visible.
    const auto row = map.Samples.begin() + static_cast<std::ptrdiff_t>(map.Rows / 2) * map.Columns;
    const auto top = std::max_element(row, row + map.Columns);
    const double height = map.Height(*top == HeightMap::Missing ? statistics.Highest : *top);
    const double y = map.Y(static_cast<size_t>(top - map.Samples.begin()));
    int32_t line = -1;
    Check(Tarvex_Element_Add_Line(view, (extent.XMin + extent.XMax) / 2.0, y, height * exaggeration,
                                  1.0, 0.0, 0.0, &line),
          "Tarvex_Element_Add_Line");
    SetColor(view, line, LineColor);
}
