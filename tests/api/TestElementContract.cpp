// What every kind of 3D element does alike: one line per kind, one test per behaviour.
#include "support/ViewFixture.h"

#include <algorithm>
#include <array>
#include <functional>
#include <ostream>
#include <string>

namespace
{
struct Kind
{
    const char* Name;
    int32_t Type;
    // In both, the element lies around (0, y, 0); an unusable y makes it invalid.
    std::function<int32_t(int32_t view, double y, int32_t* element)> Add;
    std::function<int32_t(int32_t view, int32_t element, double y)> SetValue;
    // Measured elements refuse unusable values instead, surfaces are coloured by height, and the
    // rims of a cylinder are brighter than its tube.
    bool CanBeInvalid = true;
    bool HasSize = true;
    bool HasOneColor = true;
    bool FadesAsAWhole = true; // a cylinder's rims stay solid
    bool SizeIsSeen = true;    // a plane has no line that could be wide
};

void PrintTo(const Kind& kind, std::ostream* out)
{
    *out << kind.Name;
}

const Kind kinds[] = {
    {"Point", TARVEX_ELEMENT_POINT,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Point(view, 0, y, 0, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Point_SetValue(view, element, 0, y, 0, 3); }},
    {"Line", TARVEX_ELEMENT_LINE,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Line(view, 0, y, 0, 1, 0, 0, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Line_SetValue(view, element, 0, y, 0, 1, y, 0); }},
    {"Circle", TARVEX_ELEMENT_CIRCLE,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Circle(view, 0, y, 0, 4, 0, 0, 1, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Circle_SetValue(view, element, 0, y, 0, 4, 0, 0, 1); }},
    {"Plane", TARVEX_ELEMENT_PLANE, // upright, and leaning back enough to be seen from above
     [](int32_t view, double y, int32_t* element)
     {
         Tarvex_Window_SetDrawSpace(view, -5, 5, -5, 5, -5, 5);
         return Tarvex_Element_Add_Plane(view, y, 0, 1, 0.2, element);
     },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Plane_SetValue(view, element, 0, y, 0, 0, 1, 0.2); },
     true, true, true, true, false},
    {"Ellipse", TARVEX_ELEMENT_ELLIPSE,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Ellipse(view, 0, y, 0, 5, 3, 0, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Ellipse_SetValue(view, element, 0, y, 0, 5, 3, 0); }},
    {"Rectangle", TARVEX_ELEMENT_RECTANGLE,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Rectangle(view, 1, 0, y, 0, 8, 4, 0, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Rectangle_SetValue(view, element, 0, y, 0, 8, 4, 0); }},
    {"Polygon", TARVEX_ELEMENT_POLYGON,
     [](int32_t view, double y, int32_t* element)
     {
         const double x[] = {-4, 0, 4};
         const double ys[] = {y - 2, y + 2, y - 2};
         const double z[] = {0, 0, 0};
         return Tarvex_Element_Add_Polygon(view, 3, x, ys, z, 0, element);
     },
     [](int32_t view, int32_t element, double y)
     {
         const double x[] = {-4, 0, 4};
         const double ys[] = {y, y, y};
         return Tarvex_Element_Polygon_SetValue(view, element, 3, x, ys, x, 0);
     }},
    {"Cylinder", TARVEX_ELEMENT_CYLINDER,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Cylinder(view, 0, y, 0, 0, y, 1, 5, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Cylinder_SetValue(view, element, 0, y, 0, 0, y, 1, 5); },
     true, true, false, false},
    {"Cube", TARVEX_ELEMENT_CUBE,
     [](int32_t view, double y, int32_t* element)
     { return Tarvex_Element_Add_Cube(view, 0, y, 0, 8, 8, 0.01, 0, 1, element); },
     [](int32_t view, int32_t element, double y)
     { return Tarvex_Element_Cube_SetValue(view, element, 0, y, 0, 8, 8, 0.01, 0); }},
    {"Polyhedron", TARVEX_ELEMENT_POLYHEDRON,
     [](int32_t view, double y, int32_t* element)
     {
         const double x[] = {-4, 0, 4, 0};
         const double ring[] = {y, y - 4, y, y + 4};
         const double z[] = {0, 0, 0, 0};
         return Tarvex_Element_Add_Polyhedron(view, 4, x, ring, z, 0, 0, 1, 1, element);
     },
     [](int32_t view, int32_t element, double y)
     {
         const double x[] = {-4, 0, 4, 0};
         const double ring[] = {y, y - 4, y, y + 4};
         const double z[] = {0, 0, 0, 0};
         return Tarvex_Element_Polyhedron_SetValue(view, element, 4, x, ring, z, 0, 0, 1, 1);
     }},
    {"SurfaceUniform", TARVEX_ELEMENT_SURFACE_UNIFORM,
     [](int32_t view, double y, int32_t* element)
     {
         const int16_t heights[] = {0, 0, 0, 0};
         return Tarvex_Element_Add_SurfaceUniform(view, heights, nullptr, 2, 2, 10, 2, 1, -5, y - 1,
                                                  0, 1, element);
     },
     nullptr, false, false, false},
    {"SurfaceNonUniform", TARVEX_ELEMENT_SURFACE_NON_UNIFORM,
     [](int32_t view, double y, int32_t* element)
     {
         const int16_t x[] = {-5, 5, -5, 5};
         const int16_t ys[] = {-1, -1, 1, 1};
         const int16_t z[] = {0, 0, 0, 0};
         return Tarvex_Element_Add_SurfaceNonUniform(view, x, ys, z, nullptr, 2, 2, 1, 1, 1, 0, y,
                                                     0, 1, element);
     },
     nullptr, false, false, false},
    {"ProfileUniform", TARVEX_ELEMENT_PROFILE_UNIFORM,
     [](int32_t view, double y, int32_t* element)
     {
         const int16_t z[] = {0, 0};
         return Tarvex_Element_Add_ProfileUniform(view, z, 2, 10, 1, -5, 0, y, element);
     },
     nullptr, false},
    {"ProfileNonUniform", TARVEX_ELEMENT_PROFILE_NON_UNIFORM,
     [](int32_t view, double y, int32_t* element)
     {
         const int16_t x[] = {-5, 5};
         const int16_t z[] = {0, 0};
         return Tarvex_Element_Add_ProfileNonUniform(view, x, z, 2, 1, 1, 0, 0, y, element);
     },
     nullptr, false},
};

class EachKind : public ViewFixture, public testing::WithParamInterface<Kind>
{
protected:
    // Flat colour, so that pixels can be compared, and large enough to be found.
    int32_t Add(double y) const
    {
        int32_t element = TARVEX_NONE;
        EXPECT_EQ(GetParam().Add(Id, y, &element), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, element, 1, 0, 0, 1), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 0), STATUS_OK);
        if (GetParam().HasSize)
        {
            EXPECT_EQ(Tarvex_Element_SetSize(Id, element, 3), STATUS_OK);
        }
        LookDown();
        return element;
    }
    int CountLit() const { return TakePicture(Id).Count(IsLit); }
};

INSTANTIATE_TEST_SUITE_P(Elements, EachKind, testing::ValuesIn(kinds),
                         [](const auto& kind) { return std::string(kind.param.Name); });

TEST_P(EachKind, TellsItsType)
{
    int32_t type = 77;
    EXPECT_EQ(Tarvex_Element_GetType(Id, Add(0), &type), STATUS_OK);
    EXPECT_EQ(type, GetParam().Type);
}

TEST_P(EachKind, KeepsAndShowsItsColor)
{
    const int32_t element = Add(0);
    for (const Picture::Color& color : {Picture::Color{200, 100, 50}, {0, 255, 1}})
    {
        EXPECT_EQ(Tarvex_Element_SetColor(Id, element, color[0], color[1], color[2]), STATUS_OK);
        Picture::Color got = {};
        EXPECT_EQ(Tarvex_Element_GetColor(Id, element, &got[0], &got[1], &got[2]), STATUS_OK);
        EXPECT_EQ(got, color);
        EXPECT_GT(CountLit(), 0);
        if (GetParam().HasOneColor)
        {
            EXPECT_EQ(
                TakePicture(Id).Count([&](const Picture::Color& pixel) { return pixel == color; }),
                CountLit());
        }
    }
}

TEST_P(EachKind, MirrorsYInThePicture)
{
    Add(10);
    // World y is -10, so below the middle: 10 of the 53.6 units that the picture is high.
    EXPECT_NEAR(TakePicture(Id).Centre(IsLit)[1], Pixels / 2.0 + Pixels * 10 / 53.6, 2.0);
}

TEST_P(EachKind, DisappearsWhileHidden)
{
    const int32_t element = Add(0);
    const Picture shown = TakePicture(Id);
    EXPECT_GT(CountLit(), 0);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 0), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Tarvex_Element_Show(Id, element, 1), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(shown), 0);
}

TEST_P(EachKind, IsHiddenOrRefusedWithUnusableValues)
{
    if (!GetParam().CanBeInvalid)
    {
        int32_t refused = 77;
        EXPECT_EQ(GetParam().Add(Id, NaN, &refused), STATUS_NOT_FINITE);
        EXPECT_EQ(refused, TARVEX_NONE);
        return;
    }
    const int32_t element = Add(NaN);
    for (const double unusable : {NaN, std::numeric_limits<double>::max()})
    {
        EXPECT_FALSE(IsValid(element));
        EXPECT_EQ(Tarvex_Element_Show(Id, element, 1), STATUS_OK);
        EXPECT_EQ(CountLit(), 0);
        EXPECT_EQ(GetParam().SetValue(Id, element, 0), STATUS_OK);
        EXPECT_TRUE(IsValid(element));
        EXPECT_GT(CountLit(), 0);
        EXPECT_EQ(GetParam().SetValue(Id, element, unusable), STATUS_OK);
    }
    EXPECT_FALSE(IsValid(element));
}

TEST_P(EachKind, FadesWithTransparency)
{
    const int32_t element = Add(0);
    const auto isBrighter = [this](uint8_t level)
    {
        return TakePicture(Id).Count([&](const Picture::Color& color)
                                     { return *std::ranges::max_element(color) > level; }) > 0;
    };
    EXPECT_TRUE(isBrighter(250));
    EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 0.9), STATUS_OK);
    EXPECT_NE(isBrighter(200), GetParam().FadesAsAWhole);
    EXPECT_TRUE(isBrighter(10));
    EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 1.0), STATUS_OK);
    EXPECT_NE(isBrighter(0), GetParam().FadesAsAWhole);
}

TEST_P(EachKind, KeepsItsTransparencyWithinItsLimits)
{
    const int32_t element = Add(0);
    double expected = 0.0;
    for (const double value : {0.25, 1.0000001, 1.0, -1e-9, 0.0})
    {
        const bool good = value >= 0.0 && value <= 1.0;
        EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, value),
                  good ? STATUS_OK : STATUS_OUT_OF_RANGE)
            << value;
        expected = good ? value : expected;
        double got = 77.0;
        EXPECT_EQ(Tarvex_Element_GetTransparency(Id, element, &got), STATUS_OK);
        EXPECT_EQ(got, expected);
    }
}

TEST_P(EachKind, KeepsItsLightingWithinItsLimits)
{
    const int32_t element = Add(0);
    using Lighting = std::array<double, 4>;
    const auto set = [&](const Lighting& to)
    { return Tarvex_Element_SetLighting(Id, element, to[0], to[1], to[2], to[3]); };
    for (const Lighting& good :
         {Lighting{0, 0, 0, 0}, Lighting{1, 1, 1, 100}, Lighting{0.1, 0.2, 0.3, 40}})
    {
        EXPECT_EQ(set(good), STATUS_OK);
        for (size_t which = 0; which < good.size(); ++which)
        {
            for (const double outside : {-0.1, which < 3 ? 1.1 : 100.5})
            {
                Lighting bad = good;
                bad[which] = outside;
                EXPECT_EQ(set(bad), STATUS_OUT_OF_RANGE) << testing::PrintToString(bad);
            }
        }
        Lighting got = {77, 77, 77, 77};
        EXPECT_EQ(Tarvex_Element_GetLighting(Id, element, &got[0], &got[1], &got[2], &got[3]),
                  STATUS_OK);
        EXPECT_EQ(got, good);
    }
}

TEST_P(EachKind, KeepsAndShowsItsSizeIfItHasOne)
{
    const int32_t element = Add(0);
    const int before = CountLit();
    const int32_t supported = GetParam().HasSize ? STATUS_OK : STATUS_NOT_SUPPORTED;
    double expected = GetParam().HasSize ? 3.0 : 0.0;
    for (const double value : {5.0, 0.0009, 0.001, -1.0})
    {
        const bool tooSmall = GetParam().HasSize && value < 0.001;
        EXPECT_EQ(Tarvex_Element_SetSize(Id, element, value),
                  tooSmall ? STATUS_TOO_SMALL : supported)
            << value;
        expected = GetParam().HasSize && !tooSmall ? value : expected;
        double got = 77.0;
        EXPECT_EQ(Tarvex_Element_GetSize(Id, element, &got), supported);
        EXPECT_EQ(got, expected);
    }
    Tarvex_Element_SetSize(Id, element, 6.0);
    EXPECT_EQ(CountLit() > before * 3 / 2, GetParam().HasSize && GetParam().SizeIsSeen);
}

TEST_P(EachKind, RefusesCallsForAnotherType)
{
    const int32_t element = Add(0);
    const auto onlyFor = [](int32_t type)
    { return GetParam().Type == type ? STATUS_OK : STATUS_WRONG_TYPE; };
    const int32_t point = onlyFor(TARVEX_ELEMENT_POINT);
    const int32_t line = onlyFor(TARVEX_ELEMENT_LINE);
    double a[6] = {};
    EXPECT_EQ(Tarvex_Element_Point_GetValue(Id, element, &a[0], &a[1], &a[2], &a[3]), point);
    EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, element, 0, 0, 0, 1), point);
    EXPECT_EQ(Tarvex_Element_Line_GetValue(Id, element, &a[0], &a[1], &a[2], &a[3], &a[4], &a[5]),
              line);
    EXPECT_EQ(Tarvex_Element_Line_SetValue(Id, element, 0, 0, 0, 1, 0, 0), line);
    EXPECT_EQ(Tarvex_Element_GetLength_Line(Id, element, &a[0], &a[1]), line);
    EXPECT_EQ(Tarvex_Element_SetLength_Line(Id, element, 0, 1), line);
    EXPECT_EQ(Tarvex_Element_SetDrawLimit_Line(Id, element, 0, 1, 0, 1, 0, 1), line);
    uint8_t mode = 0;
    EXPECT_EQ(Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(Id, element, &mode),
              onlyFor(TARVEX_ELEMENT_SURFACE_UNIFORM));
}
} // namespace
