#include "GeometryScene.h"

#include "Colors.h"
#include "Features.h"
#include "LaserScan.h"
#include "Library.h"

#include <Tarvex.h>

#include <cmath>
#include <numbers>
#include <vector>

namespace
{
constexpr double LineWidth = 3.0;

class SceneBuilder
{
public:
    SceneBuilder(int32_t view, const HeightMap& map, double exaggeration)
        : View(view), Map(map), Exaggeration(exaggeration), Size(DescribeExtent(map))
    {
    }

    // The cylinder on the block, its rim and its axis.
    void AddRoundPart()
    {
        const Plateau top = MeasurePlateau(Map, CylinderTop);
        const double high = top.Height * Exaggeration;
        const double low = top.Surrounding * Exaggeration;
        const double radius = (top.HalfWidth + top.HalfDepth) / 2.0;
        int32_t element = -1;
        Check(Tarvex_Element_Add_Circle(View, top.X, top.Y, high, radius, 0.0, 0.0, 1.0, &element),
              "Tarvex_Element_Add_Circle");
        Paint(element, Red);

        // A little wider than the part, or the two would share their wall.
        Check(Tarvex_Element_Add_Cylinder(View, top.X, top.Y, low, top.X, top.Y, high,
                                          1.15 * radius, &element),
              "Tarvex_Element_Add_Cylinder");
        SetColor(View, element, Orange);
        Check(Tarvex_Element_SetTransparency(View, element, 0.6), "Tarvex_Element_SetTransparency");

        Check(Tarvex_Element_Add_Line(View, top.X, top.Y, low, 0.0, 0.0, 1.0, &element),
              "Tarvex_Element_Add_Line");
        Paint(element, White);
        const double beyond = 0.8 * radius;
        Check(Tarvex_Element_SetLength_Line(View, element, -beyond, high - low + beyond),
              "Tarvex_Element_SetLength_Line");

        // A section through the axis: across all of the block, and as high as the part.
        const double left = X({Block.Left, 0.5});
        const double right = X({Block.Right, 0.5});
        Check(Tarvex_Element_Add_Rectangle(View, 1, (left + right) / 2.0, top.Y, (low + high) / 2.0,
                                           right - left, 1.5 * (high - low), 0.0, &element),
              "Tarvex_Element_Add_Rectangle");
        Paint(element, Lime);
    }

    // The block: its top as a plane, its body as a box that stands on the lowest sample.
    void AddBlock(double ground)
    {
        const FittedPlane top = FitPlane(Map, Block);
        const double left = X({Block.Left, 0.5});
        const double right = X({Block.Right, 0.5});
        const double front = Y({0.5, Block.Top});
        const double back = Y({0.5, Block.Bottom});
        const double high = top.At((left + right) / 2.0, (front + back) / 2.0) * Exaggeration;
        const double low = ground * Exaggeration;

        // z = slopeX * x + slopeY * y + c, written as a distance from the origin along the normal.
        const double normal[] = {-top.SlopeX * Exaggeration, -top.SlopeY * Exaggeration, 1.0};
        const double length = std::hypot(normal[0], normal[1], normal[2]);
        int32_t element = -1;
        Check(Tarvex_Element_Add_Plane(View, top.Constant * Exaggeration / length, normal[0],
                                       normal[1], normal[2], &element),
              "Tarvex_Element_Add_Plane");
        SetFlatColor(View, element, Cyan);
        Check(Tarvex_Element_SetTransparency(View, element, 0.65),
              "Tarvex_Element_SetTransparency");
        const double margin = 0.06 * (right - left);
        Check(Tarvex_Element_SetDrawSize_Plane(View, element, left - margin, right + margin,
                                               front - margin, back + margin, low, high + margin),
              "Tarvex_Element_SetDrawSize_Plane");

        Check(Tarvex_Element_Add_Cube(View, (left + right) / 2.0, (front + back) / 2.0,
                                      (low + high) / 2.0, right - left, back - front, high - low,
                                      0.0, 1, &element),
              "Tarvex_Element_Add_Cube");
        Paint(element, Blue);
    }

    void AddScrewHead()
    {
        const Plateau head = MeasurePlateau(Map, ScrewHead);
        int32_t element = -1;
        Check(Tarvex_Element_Add_Ellipse(View, head.X, head.Y, Above(head.Height), head.HalfWidth,
                                         head.HalfDepth, 0.0, &element),
              "Tarvex_Element_Add_Ellipse");
        Paint(element, Violet);
    }

    // The plate: its outline, its slot as a prism, and the middles of its holes.
    void AddPlate()
    {
        const double height = Above(MedianHeight(Map, PlateMiddle));
        std::vector<double> x;
        std::vector<double> y;
        const auto append = [&](const Spot& spot)
        {
            x.push_back(X(spot));
            y.push_back(Y(spot));
        };
        for (const Spot& spot : PlateOutline)
        {
            append(spot);
        }
        append(PlateCorner);
        std::vector<double> z(x.size(), height);
        int32_t element = -1;
        Check(Tarvex_Element_Add_Polygon(View, static_cast<int32_t>(x.size()), x.data(), y.data(),
                                         z.data(), 1, &element),
              "Tarvex_Element_Add_Polygon");
        Paint(element, Yellow);

        // The slot is open at the edge of the scan and round at its other end.
        constexpr double Middle = 0.363;
        constexpr double Radius = 0.040;
        constexpr double RoundStart = 0.218;
        constexpr int32_t Steps = 4;
        x = {X({Middle + Radius, 0.0}), X({Middle - Radius, 0.0})};
        y = {Y({Middle, 0.0}), Y({Middle, 0.0})};
        for (int32_t i = 0; i <= Steps; ++i)
        {
            const double angle = std::numbers::pi * i / Steps;
            const double reach = X({Middle + Radius, 0.0}) - X({Middle, 0.0});
            x.push_back(X({Middle, RoundStart}) - std::cos(angle) * reach);
            y.push_back(Y({Middle, RoundStart}) + std::sin(angle) * reach);
        }
        const double thickness = 0.05 * Size.Width();
        z.assign(x.size(), height - thickness / 4.0);
        Check(Tarvex_Element_Add_Polyhedron(View, static_cast<int32_t>(x.size()), x.data(),
                                            y.data(), z.data(), 0.0, 0.0, 1.0, thickness, &element),
              "Tarvex_Element_Add_Polyhedron");
        Paint(element, Green);

        for (const Spot& hole : Holes)
        {
            Check(Tarvex_Element_Add_Point(View, X(hole), Y(hole), height, &element),
                  "Tarvex_Element_Add_Point");
            SetColor(View, element, Pink);
            SetSize(View, element, 0.012 * Size.Width());
            // A sphere of one flat colour would look like a disc.
            Check(Tarvex_Element_SetLighting(View, element, 0.4, 0.6, 0.3, 20.0),
                  "Tarvex_Element_SetLighting");
        }
    }

private:
    double X(const Spot& spot) const { return Map.X(IndexAt(Map, spot)); }
    double Y(const Spot& spot) const { return Map.Y(IndexAt(Map, spot)); }

    // Just over the surface, which would hide parts of an outline at its own height.
    double Above(double height) const { return height * Exaggeration + 0.004 * Size.Width(); }

    void Paint(int32_t element, const Color& color) const
    {
        SetFlatColor(View, element, color);
        SetSize(View, element, LineWidth);
    }

    int32_t View;
    const HeightMap& Map;
    double Exaggeration;
    Extent Size;
};

} // namespace

void AddGeometryScene(int32_t view, const HeightMap& map, double exaggeration)
{
    SceneBuilder builder(view, map, exaggeration);
    builder.AddBlock(map.Height(DescribeHeights(map).Lowest));
    builder.AddRoundPart();
    builder.AddScrewHead();
    builder.AddPlate();
}
