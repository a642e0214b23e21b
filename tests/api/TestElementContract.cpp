// What every kind of 3D element does alike: one line per kind, one test per behaviour.
#include "support/ViewFixture.h"

#include <algorithm>

namespace
{
constexpr double Y = 1000; // in a list, the y of the element; Y - 4 is 4 less

struct Kind
{
    const char* Name;
    int32_t Type;
    Export Add;
    Export SetValue;
    Numbers Given; // for both, around (0, y, 0); an unusable y makes the element invalid

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
    bool IsMeasured() const { return Type < TARVEX_ELEMENT_POINT; }
    // They have no size and are coloured by height.
    bool IsSurface() const { return Type <= TARVEX_ELEMENT_SURFACE_NON_UNIFORM; }
    // Its rims are brighter than its tube and stay solid.
    bool IsCylinder() const { return Type == TARVEX_ELEMENT_CYLINDER; }
};

Kind Make(const char* name, int32_t type, const Export& add,
          const Export& set = Tarvex_Element_Show, const Numbers& given = {Y})
{
    return {name, type, add, set, given};
}

const int16_t zeros[4] = {};
const int16_t acrossX[] = {-5, 5, -5, 5};
const int16_t acrossY[] = {-1, -1, 1, 1};

int32_t AddSurface(int32_t view, double y, int32_t* id)
{
    return Tarvex_Element_Add_SurfaceUniform(view, zeros, nullptr, 2, 2, 10, 2, 1, -5, y - 1, 0, 1,
                                             id);
}
int32_t AddFreeSurface(int32_t view, double y, int32_t* id)
{
    return Tarvex_Element_Add_SurfaceNonUniform(view, acrossX, acrossY, zeros, nullptr, 2, 2, 1, 1,
                                                1, 0, y, 0, 1, id);
}
int32_t AddProfile(int32_t view, double y, int32_t* id)
{
    return Tarvex_Element_Add_ProfileUniform(view, zeros, 2, 10, 1, -5, 0, y, id);
}
int32_t AddFreeProfile(int32_t view, double y, int32_t* id)
{
    return Tarvex_Element_Add_ProfileNonUniform(view, acrossX, zeros, 2, 1, 1, 0, 0, y, id);
}

const Kind kinds[] = {
    Make("Point", TARVEX_ELEMENT_POINT, Tarvex_Element_Add_Point, Tarvex_Element_Point_SetValue,
         {0, Y, 0, 3}),
    Make("Line", TARVEX_ELEMENT_LINE, Tarvex_Element_Add_Line, Tarvex_Element_Line_SetValue,
         {0, Y, 0, 1, 0, 0}),
    Make("Circle", TARVEX_ELEMENT_CIRCLE, Tarvex_Element_Add_Circle, Tarvex_Element_Circle_SetValue,
         {0, Y, 0, 4, 0, 0, 1}),
    // Upright, and leaning back enough to be seen from above.
    Make("Plane", TARVEX_ELEMENT_PLANE, Tarvex_Element_Add_Plane, Tarvex_Element_Plane_SetValue2,
         {Y, 0, 1, 0.2}),
    Make("Ellipse", TARVEX_ELEMENT_ELLIPSE, Tarvex_Element_Add_Ellipse,
         Tarvex_Element_Ellipse_SetValue, {0, Y, 0, 5, 3, 0}),
    Make("Rectangle", TARVEX_ELEMENT_RECTANGLE, AddCentered, Tarvex_Element_Rectangle_SetValue,
         {0, Y, 0, 8, 4, 0}),
    Make("Polygon", TARVEX_ELEMENT_POLYGON, Tarvex_Element_Add_Polygon,
         Tarvex_Element_Polygon_SetValue, {4, -4, 0, 4, 0, Y, Y - 4, Y, Y + 4, 0, 0, 0, 0, 1}),
    Make("Cylinder", TARVEX_ELEMENT_CYLINDER, Tarvex_Element_Add_Cylinder,
         Tarvex_Element_Cylinder_SetValue, {0, Y, 0, 0, Y, 1, 5}),
    Make("Cube", TARVEX_ELEMENT_CUBE, Tarvex_Element_Add_Cube, Tarvex_Element_Cube_SetValue,
         {0, Y, 0, 8, 8, 0.01, 0, 1}),
    Make("Polyhedron", TARVEX_ELEMENT_POLYHEDRON, Tarvex_Element_Add_Polyhedron,
         Tarvex_Element_Polyhedron_SetValue,
         {4, -4, 0, 4, 0, Y, Y - 4, Y, Y + 4, 0, 0, 0, 0, 0, 0, 1, 1}),
    Make("SurfaceUniform", TARVEX_ELEMENT_SURFACE_UNIFORM, AddSurface),
    Make("SurfaceNonUniform", TARVEX_ELEMENT_SURFACE_NON_UNIFORM, AddFreeSurface),
    Make("ProfileUniform", TARVEX_ELEMENT_PROFILE_UNIFORM, AddProfile),
    Make("ProfileNonUniform", TARVEX_ELEMENT_PROFILE_NON_UNIFORM, AddFreeProfile)};

class EachKind : public ViewFixture, public testing::WithParamInterface<Kind>
{
protected:
    EachKind() { Tarvex_Window_SetDrawSpace(Id, -5, 5, -5, 5, -5, 5); }

    // Flat colour, so that pixels can be compared, and large enough to be found.
    int32_t AddAt(double y) const
    {
        const int32_t element = Add(GetParam().Add, GetParam().At(y));
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, element, 1, 0, 0, 1), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 0), STATUS_OK);
        Tarvex_Element_SetSize(Id, element, 3);
        LookDown();
        return element;
    }
};

INSTANTIATE_TEST_SUITE_P(Elements, EachKind, testing::ValuesIn(kinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(EachKind, KeepsAndShowsItsColor)
{
    const int32_t element = AddAt(0);
    for (const Picture::Color& color : {Picture::Color{200, 100, 50}, {0, 255, 1}})
    {
        EXPECT_EQ(Tarvex_Element_SetColor(Id, element, color[0], color[1], color[2]), STATUS_OK);
        EXPECT_THAT(Read(Tarvex_Element_GetColor, element), testing::ElementsAreArray(color));
        EXPECT_GT(CountLit(), 0);
        const auto isIt = [&](const Picture::Color& pixel) { return pixel == color; };
        EXPECT_TRUE(GetParam().IsSurface() || GetParam().IsCylinder() ||
                    TakePicture(Id).Count(isIt) == CountLit());
    }
}

TEST_P(EachKind, MirrorsYInThePicture)
{
    AddAt(10);
    // World y is -10, so below the middle: 10 of the 53.6 units that the picture is high.
    EXPECT_NEAR(TakePicture(Id).Centre(IsLit)[1], Pixels / 2.0 + Pixels * 10 / 53.6, 2.0);
}

TEST_P(EachKind, DisappearsWhileHidden)
{
    const int32_t element = AddAt(0);
    const Picture shown = TakePicture(Id);
    EXPECT_GT(CountLit(), 0);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Call(GetParam().SetValue, element, GetParam().At(0)), STATUS_OK);
    // Only a polyhedron comes back with new values.
    EXPECT_EQ(CountLit() > 0, GetParam().Type == TARVEX_ELEMENT_POLYHEDRON);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 255), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(shown), 0);
}

TEST_P(EachKind, IsOutOfSightWithUnusableValues)
{
    const int32_t element = AddAt(GetParam().IsMeasured() ? 0 : NaN);
    for (const double y : {0.0, GetParam().IsMeasured() ? 0.0 : Marker, 0.0})
    {
        EXPECT_EQ(CountLit() > 0, GetParam().IsMeasured() || IsValid(element));
        EXPECT_EQ(Call(GetParam().SetValue, element, GetParam().At(y)), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Show(Id, element, 1), STATUS_OK);
    }
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

TEST_P(EachKind, KeepsAndShowsItsSizeIfItHasOne)
{
    const int32_t element = AddAt(0);
    const int before = CountLit();
    const bool hasSize = !GetParam().IsSurface();
    const int32_t supported = hasSize ? STATUS_OK : STATUS_NOT_SUPPORTED;
    EXPECT_EQ(Tarvex_Element_SetSize(Id, element, 6), supported);
    EXPECT_EQ(Read(Tarvex_Element_GetSize, element, supported), Numbers{hasSize ? 6.0 : 0.0});
    EXPECT_EQ(CountLit() > before * 3 / 2, hasSize && GetParam().Type != TARVEX_ELEMENT_PLANE);
}

} // namespace
