#include "ChartScene.h"

#include "Colors.h"
#include "Features.h"
#include "LaserScan.h"
#include "Library.h"
#include "MapLines.h"

#include <Tarvex.h>

#include <algorithm>
#include <cstddef>
#include <vector>

namespace
{
constexpr double LineWidth = 2.0; // pixels
constexpr double PointSize = 9.0;
constexpr double MarkerSize = 2.0; // at each sample of a profile with positions of its own

// Places on the image, in the coordinates of the chart.
class ImagePlaces
{
public:
    explicit ImagePlaces(const HeightMap& map)
        : Map(map), Grid(map), YSum(2.0 * Grid.Bottom + Grid.Rows * Grid.PixelHeight)
    {
    }

    double X(const Spot& spot) const { return Grid.X(Column(spot)); }
    double Y(const Spot& spot) const { return Grid.Y(Row(spot)); }
    // The map's y counts downwards, the chart's upwards, over the same range.
    double TurnedY(double y) const { return YSum - y; }
    int32_t Column(const Spot& spot) const
    {
        return static_cast<int32_t>(IndexAt(Map, spot) % static_cast<size_t>(Grid.Columns));
    }
    int32_t Row(const Spot& spot) const
    {
        return static_cast<int32_t>(IndexAt(Map, spot) / static_cast<size_t>(Grid.Columns));
    }
    double Width() const { return Grid.Columns * Grid.PixelWidth; }
    double Height() const { return Grid.Rows * Grid.PixelHeight; }
    const PixelGrid& Pixels() const { return Grid; }

private:
    const HeightMap& Map;
    PixelGrid Grid;
    double YSum;
};

void AddRoundShapes(int32_t chart, const HeightMap& map, const ImagePlaces& places)
{
    // A plateau without a valid sample has no size, which circles do not accept.
    const double least = places.Pixels().PixelWidth;
    const Plateau cylinder = MeasurePlateau(map, CylinderTop);
    const double radius = std::max(least, (cylinder.HalfWidth + cylinder.HalfDepth) / 2.0);
    const double cylinderY = places.TurnedY(cylinder.Y);
    int32_t element = TARVEX_NONE;
    Check(Tarvex_Element2D_Add_Circle(chart, cylinder.X, cylinderY, radius, &element),
          "Tarvex_Element2D_Add_Circle");
    PaintInChart(chart, element, Red, LineWidth);

    const Plateau screw = MeasurePlateau(map, ScrewHead);
    const double screwY = places.TurnedY(screw.Y);
    Check(Tarvex_Element2D_Add_Ellipse(chart, screw.X, screwY, std::max(least, screw.HalfWidth),
                                       std::max(least, screw.HalfDepth), 0.0, &element),
          "Tarvex_Element2D_Add_Ellipse");
    PaintInChart(chart, element, Violet, LineWidth);

    // Their distance.
    Check(Tarvex_Element2D_Add_Line_2Points(chart, cylinder.X, cylinderY, screw.X, screwY, 1,
                                            &element, "cylinder to screw"),
          "Tarvex_Element2D_Add_Line_2Points");
    PaintInChart(chart, element, Orange, LineWidth);
}

void AddHoles(int32_t chart, const ImagePlaces& places)
{
    int32_t element = TARVEX_NONE;
    for (const Spot& hole : Holes)
    {
        Check(Tarvex_Element2D_Add_Point(chart, places.X(hole), places.Y(hole), &element),
              "Tarvex_Element2D_Add_Point");
        PaintInChart(chart, element, Pink, PointSize);
    }
    const double x = places.X(Holes.front());
    const double y = places.Y(Holes.front());
    Check(Tarvex_Element2D_Add_Line(chart, x, y, places.X(Holes.back()) - x,
                                    places.Y(Holes.back()) - y, &element, "axis of the holes"),
          "Tarvex_Element2D_Add_Line");
    PaintInChart(chart, element, White, 1.0);
}

void AddRegions(int32_t chart, const ImagePlaces& places)
{
    int32_t element = TARVEX_NONE;
    Check(Tarvex_Element2D_Add_Rectangle(chart, places.X(RegionMiddle), places.Y(RegionMiddle),
                                         0.2 * places.Width(), 0.18 * places.Height(), 15.0,
                                         &element),
          "Tarvex_Element2D_Add_Rectangle");
    PaintInChart(chart, element, Lime, LineWidth);

    std::vector<double> x;
    std::vector<double> y;
    const auto append = [&](const Spot& spot)
    {
        x.push_back(places.X(spot));
        y.push_back(places.Y(spot));
    };
    std::for_each(PlateOutline.begin(), PlateOutline.end(), append);
    append(PlateCorner);
    Check(Tarvex_Element2D_Add_Polygon(chart, static_cast<int32_t>(x.size()), x.data(), y.data(), 1,
                                       &element),
          "Tarvex_Element2D_Add_Polygon");
    PaintInChart(chart, element, Yellow, LineWidth);
}

// Heights drawn over the image: each profile stands on the line that it was measured along.
void AddProfiles(int32_t chart, const HeightMap& map, const ImagePlaces& places)
{
    const HeightStatistics statistics = DescribeHeights(map);
    const double lowest = map.Height(statistics.Lowest);
    const double relief = std::max(map.ZScale, map.Height(statistics.Highest) - lowest);
    const double factor = 0.15 * places.Height() / relief;

    const int32_t row = places.Row(Cut);
    const MapRow described = DescribeRow(map, row);
    int32_t element = TARVEX_NONE;
    if (described.Valid > 0)
    {
        const PixelGrid& pixels = places.Pixels();
        Check(Tarvex_Element2D_Add_ProfileUniform(
                  chart, map.Samples.data() + described.First, map.Columns, pixels.PixelWidth,
                  map.ZScale * factor, pixels.X(0), (map.ZOffset - lowest) * factor + pixels.Y(row),
                  &element),
              "Tarvex_Element2D_Add_ProfileUniform");
        PaintInChart(chart, element, Cyan, 1.0);
    }

    // Upright: only positions of its own let a profile run along y.
    const LineSamples column = SamplesOfColumn(map, places.Column(Cut));
    std::vector<double> x;
    std::vector<double> y;
    for (size_t i = 0; i < column.Heights.size(); ++i)
    {
        x.push_back(places.X(Cut) + (column.Heights[i] - lowest) * factor);
        y.push_back(places.TurnedY(column.Positions[i]));
    }
    Check(Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(
              chart, x.data(), y.data(), column.Valid.data(), static_cast<int32_t>(x.size()),
              &element, "column"),
          "Tarvex_Element2D_Add_ProfileNonUniform_GeneralData");
    Check(Tarvex_Element2D_ProfileNonUniform_SetMarkerSize(chart, element, MarkerSize),
          "Tarvex_Element2D_ProfileNonUniform_SetMarkerSize");
    PaintInChart(chart, element, Green, 1.0);
}
} // namespace

void AddChartScene(int32_t chart, const HeightMap& map)
{
    const ImagePlaces places(map);
    // Lines without ends end at the edges of the image.
    const PixelGrid& pixels = places.Pixels();
    Check(Tarvex_Window2D_SetDrawSpace(chart, pixels.Left, pixels.Left + places.Width(),
                                       pixels.Bottom, pixels.Bottom + places.Height()),
          "Tarvex_Window2D_SetDrawSpace");
    AddRegions(chart, places);
    AddHoles(chart, places);
    AddRoundShapes(chart, map, places);
    AddProfiles(chart, map, places);
}
