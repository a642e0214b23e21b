// How every kind of 3D element is seen: one line per kind, one test per behaviour.
#include "support/ViewFixture.h"

#include <algorithm>

namespace
{
constexpr double Y = 1000; // in a list, the y of the element; Y - 4 is 4 less

struct Kind
{
    std::string Name;
    Numbers Given; // around (0, y, 0); an unusable y makes the element invalid
    std::string Change = Name + "_SetValue";

    Numbers At(double y) const
    {
        Numbers values = Given;
        for (double& value : values)
        {
            value = value > Y / 2 ? y + (value - Y) : value;
        }
        return values;
    }
    // They refuse unusable values.
    bool IsMeasured() const { return IsSurface() || Name.starts_with("Profile"); }
    // They have no size and are coloured by height.
    bool IsSurface() const { return Name.starts_with("Surface"); }
    // Its rims are brighter than its tube and stay solid.
    bool IsCylinder() const { return Name == "Cylinder"; }
};

const Kind kinds[] = {{"Point", {0, Y, 0, 3}},
                      {"Line", {0, Y, 0, 1, 0, 0}},
                      {"Circle", {0, Y, 0, 4, 0, 0, 1}},
                      // Upright, and leaning back enough to be seen from above.
                      {"Plane", {Y, 0, 1, 0.2}, "Plane_SetValue2"},
                      {"Ellipse", {0, Y, 0, 5, 3, 0}},
                      {"Rectangle", {0, Y, 0, 8, 4, 0}},
                      {"Polygon", {4, -4, 0, 4, 0, Y, Y - 4, Y, Y + 4, 0, 0, 0, 0, 1}},
                      {"Cylinder", {0, Y, 0, 0, Y, 1, 5}},
                      {"Cube", {0, Y, 0, 8, 8, 0.01, 0, 1}},
                      {"Polyhedron", {4, -4, 0, 4, 0, Y, Y - 4, Y, Y + 4, 0, 0, 0, 0, 0, 0, 1, 1}},
                      {"SurfaceUniform", {0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 10, 2, 1, -5, Y - 1, 0, 1}},
                      {"SurfaceNonUniform", {-5, 5, -5, 5, -1, -1, 1, 1, 0, 0, 0, 0, 0,
                                             0,  0, 0,  2, 2,  1,  1, 1, 0, Y, 0, 1}},
                      {"ProfileUniform", {0, 0, 0, 0, 2, 10, 1, -5, 0, Y}},
                      {"ProfileNonUniform", {-5, 5, -5, 5, 0, 0, 0, 0, 2, 1, 1, 0, 0, Y}}};

class EachKind : public ViewFixture, public testing::WithParamInterface<Kind>
{
protected:
    EachKind() { Tarvex_Window_SetDrawSpace(Id, -5, 5, -5, 5, -5, 5); }

    // Flat colour, so that pixels can be compared, and large enough to be found.
    int32_t AddAt(double y) const
    {
        Numbers given = GetParam().At(y);
        given.insert(given.begin(), GetParam().Name == "Rectangle" ? 1 : 0, 1); // by its centre
        const int32_t element = Add("Element_Add_" + GetParam().Name, given);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, element, 1, 0, 0, 1), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 0), STATUS_OK);
        Tarvex_Element_SetSize(Id, element, 3);
        LookDown();
        return element;
    }
    // Measured elements stay as they are.
    void Change(int32_t element, double y) const
    {
        if (!GetParam().IsMeasured())
        {
            EXPECT_EQ(Do("Element_" + GetParam().Change, element, GetParam().At(y)), STATUS_OK);
        }
    }
};

INSTANTIATE_TEST_SUITE_P(Elements, EachKind, testing::ValuesIn(kinds),
                         [](const auto& kind) { return kind.param.Name; });

TEST_P(EachKind, ShowsItsColorPlaceAndSize)
{
    const int32_t element = AddAt(10);
    // World y is -10, so below the middle: 10 of the 53.6 units that the picture is high.
    EXPECT_NEAR(TakePicture(Id).Centre(IsLit)[1], Pixels / 2.0 + Pixels * 10 / 53.6, 2.0);
    for (const Picture::Color& color : {Picture::Color{200, 100, 50}, {0, 255, 1}})
    {
        EXPECT_EQ(Tarvex_Element_SetColor(Id, element, color[0], color[1], color[2]), STATUS_OK);
        EXPECT_GT(CountLit(), 0);
        const auto isIt = [&](const Picture::Color& pixel) { return pixel == color; };
        EXPECT_TRUE(GetParam().IsSurface() || GetParam().IsCylinder() ||
                    TakePicture(Id).Count(isIt) == CountLit());
    }
    Change(element, 0);
    const int before = CountLit();
    Tarvex_Element_SetSize(Id, element, 6);
    EXPECT_EQ(CountLit() > before * 3 / 2, !GetParam().IsSurface() && GetParam().Name != "Plane");
}

TEST_P(EachKind, IsOutOfSightWhileHiddenOrUnusable)
{
    const int32_t element = AddAt(0);
    const Picture shown = TakePicture(Id);
    EXPECT_GT(CountLit(), 0);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    Change(element, 0);
    // Only a polyhedron comes back with new values.
    EXPECT_EQ(CountLit() > 0, GetParam().Name == "Polyhedron");
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 255), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(shown), 0);

    Change(element, NaN);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 1), STATUS_OK);
    EXPECT_EQ(CountLit() > 0, GetParam().IsMeasured());
    Change(element, 0);
    EXPECT_EQ(TakePicture(Id).CountDifferences(shown), 0);
    Tarvex_Element_Remove(Id, element);
    EXPECT_EQ(CountLit(), 0);
    // Also from the start.
    const int32_t other = AddAt(GetParam().IsMeasured() ? 0 : NaN);
    EXPECT_EQ(CountLit() > 0, GetParam().IsMeasured());
    Change(other, 0);
    EXPECT_GT(CountLit(), 0);
}

TEST_P(EachKind, FadesWithTransparency)
{
    const int32_t element = AddAt(0);
    using Row = std::tuple<double, int, bool>;
    const bool solid = GetParam().IsCylinder();
    for (const auto& [transparency, level, seen] :
         {Row(0.0, 250, true), Row(0.9, 10, true), Row(0.9, 200, solid), Row(1.0, 0, solid)})
    {
        EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, transparency), STATUS_OK);
        const auto isBrighter = [above = level](const Picture::Color& color)
        { return *std::ranges::max_element(color) > above; };
        EXPECT_EQ(TakePicture(Id).Count(isBrighter) > 0, seen) << transparency;
    }
}
} // namespace
