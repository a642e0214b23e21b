// The look of new elements.
#include "support/ViewFixture.h"

#include <cmath>
#include <functional>

namespace
{
// Everything that the two functions carry, with the answers for what a type does not have.
struct Look
{
    double Transparency = 0.0;
    uint8_t Red = 255;
    uint8_t Green = 255;
    uint8_t Blue = 255;
    double Size = 0.5;
    double Ambient = 1.0;
    double Diffuse = 1.0;
    double Specular = 0.0;
    double SpecularPower = 1.0;
    int32_t Palette = -1;
    uint8_t AutoScale = 0;
    double ClipPercent = -1.0;
    double FixedMin = 0.0;
    double FixedMax = 0.0;
    double LineStart = 0.0;
    double LineEnd = 0.0;
    double Box[6] = {};

    bool operator==(const Look&) const = default;
};

Look Lit(double ambient, double diffuse, double specular, double power, Look look = {})
{
    look.Ambient = ambient;
    look.Diffuse = diffuse;
    look.Specular = specular;
    look.SpecularPower = power;
    return look;
}

constexpr int32_t types[] = {0, 1, 2, 3, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19};

Look LookAfterLoad(int32_t type)
{
    switch (type)
    {
    case TARVEX_ELEMENT_SURFACE_UNIFORM:
    case TARVEX_ELEMENT_SURFACE_NON_UNIFORM:
        return Lit(0.3, 0.8, 0.0, 1.0,
                   {.Size = -1.0,
                    .Palette = 0,
                    .AutoScale = 1,
                    .ClipPercent = 0.0,
                    .FixedMin = -10.0,
                    .FixedMax = 10.0});
    case TARVEX_ELEMENT_POINT:
        return Lit(1.0, 0.0, 0.0, 1.0, {.Size = 0.3});
    case TARVEX_ELEMENT_LINE:
        return {.Size = 2.0, .LineStart = -10.0, .LineEnd = 10.0};
    case TARVEX_ELEMENT_PLANE:
        return {.Transparency = 0.8, .Box = {-10.0, 10.0, -10.0, 10.0, -10.0, 10.0}};
    case TARVEX_ELEMENT_CYLINDER:
        return Lit(0.3, 0.7, 0.5, 10.0);
    case TARVEX_ELEMENT_CUBE:
        return Lit(0.3, 0.7, 0.5, 10.0, {.Transparency = 0.5});
    default:
        return {};
    }
}

class Defaults : public ViewFixture
{
protected:
    // The records are the process's, not the view's.
    ~Defaults() override
    {
        for (const int32_t type : types)
        {
            EXPECT_EQ(Set(type, LookAfterLoad(type)), STATUS_OK);
        }
    }

    static int32_t Get(int32_t view, int32_t type, Look& look)
    {
        return Tarvex_Element_GetDefault(
            view, type, &look.Transparency, &look.Red, &look.Green, &look.Blue, &look.Size,
            &look.Ambient, &look.Diffuse, &look.Specular, &look.SpecularPower, &look.Palette,
            &look.AutoScale, &look.ClipPercent, &look.FixedMin, &look.FixedMax, &look.LineStart,
            &look.LineEnd, &look.Box[0], &look.Box[1], &look.Box[2], &look.Box[3], &look.Box[4],
            &look.Box[5]);
    }
    Look Get(int32_t type) const
    {
        Look look = {.Size = 77.0, .Palette = 77, .ClipPercent = 77.0, .LineEnd = 77.0};
        EXPECT_EQ(Get(Id, type, look), STATUS_OK) << type;
        return look;
    }
    static int32_t Set(int32_t view, int32_t type, const Look& look)
    {
        return Tarvex_Element_SetDefault(
            view, type, look.Transparency, look.Red, look.Green, look.Blue, look.Size, look.Ambient,
            look.Diffuse, look.Specular, look.SpecularPower, look.Palette, look.AutoScale,
            look.ClipPercent, look.FixedMin, look.FixedMax, look.LineStart, look.LineEnd,
            look.Box[0], look.Box[1], look.Box[2], look.Box[3], look.Box[4], look.Box[5]);
    }
    int32_t Set(int32_t type, const Look& look) const { return Set(Id, type, look); }
};

TEST_F(Defaults, AnswerForEveryTypeWithTheLookAfterLoad)
{
    for (const int32_t type : types)
    {
        EXPECT_EQ(Get(type), LookAfterLoad(type)) << type;
    }
}

TEST_F(Defaults, RefuseTypesThatNoElementHas)
{
    for (const int32_t type : {-1, 4, 9, 20})
    {
        Look look = {.Size = 77.0};
        EXPECT_EQ(Get(Id, type, look), STATUS_BAD_ELEMENT_TYPE) << type;
        EXPECT_EQ(look, Look{.Size = 77.0}) << "the outputs keep their values, type " << type;
        EXPECT_EQ(Set(type, Look{}), STATUS_BAD_ELEMENT_TYPE) << type;
    }
}

TEST_F(Defaults, NeedAnExistingView)
{
    Look look = {.Size = 77.0};
    EXPECT_EQ(Get(Id + 1, TARVEX_ELEMENT_POINT, look), STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(look, Look{.Size = 77.0}) << "the outputs keep their values";
    EXPECT_EQ(Set(Id + 1, TARVEX_ELEMENT_POINT, look), STATUS_WINDOW_NOT_FOUND);
}

TEST_F(Defaults, AreSharedByBothSurfacesAndByBothProfiles)
{
    for (const int32_t type : {1, 3})
    {
        Look look = LookAfterLoad(type);
        look.Transparency = 0.5;
        look.Green = 7;
        EXPECT_EQ(Set(type, look), STATUS_OK);
        EXPECT_EQ(Get(type - 1), look) << type;
    }
    EXPECT_EQ(Get(TARVEX_ELEMENT_POINT), LookAfterLoad(TARVEX_ELEMENT_POINT));
}

TEST_F(Defaults, RefuseAValueOutsideItsLimitsAndThenChangeNothing)
{
    struct Case
    {
        const char* Name;
        int32_t Type;
        std::function<void(Look&)> Change;
        bool Accepted = false;
    };
    const Case cases[] = {
        {"transparent beyond 1", 10, [](Look& look) { look.Transparency = 1.0000001; }},
        {"less than opaque", 0, [](Look& look) { look.Transparency = -0.1; }},
        {"fully transparent", 10, [](Look& look) { look.Transparency = 1.0; }, true},
        {"ambient above 1", 12, [](Look& look) { look.Ambient = 1.1; }},
        {"diffuse below 0", 2, [](Look& look) { look.Diffuse = -0.1; }},
        {"specular above 1", 1, [](Look& look) { look.Specular = 1.1; }},
        {"power above 100", 13, [](Look& look) { look.SpecularPower = 100.5; }},
        {"power of 100", 13, [](Look& look) { look.SpecularPower = 100.0; }, true},
        {"no size", 12, [](Look& look) { look.Size = 0.0; }},
        {"least size", 12, [](Look& look) { look.Size = 0.001; }, true},
        {"palette 7", 0, [](Look& look) { look.Palette = 7; }},
        {"palette -1", 0, [](Look& look) { look.Palette = -1; }},
        {"palette 6", 0, [](Look& look) { look.Palette = 6; }, true},
        {"clip above 45", 1, [](Look& look) { look.ClipPercent = 45.1; }},
        {"clip of 45", 1, [](Look& look) { look.ClipPercent = 45.0; }, true},
        {"flat fixed range", 0, [](Look& look) { look.FixedMax = look.FixedMin + 0.0009; }},
        {"inverted fixed range", 0, [](Look& look) { look.FixedMax = -11.0; }},
        {"empty line", 11, [](Look& look) { look.LineStart = look.LineEnd; }},
        {"inverted line", 11, [](Look& look) { look.LineEnd = -20.0; }, true},
        {"flat box in x", 13, [](Look& look) { look.Box[1] = look.Box[0]; }},
        {"inverted box in y", 13, [](Look& look) { look.Box[3] = -11.0; }},
        {"flat box in z", 13, [](Look& look) { look.Box[5] = look.Box[4] + 0.0009; }},
    };
    for (const Case& test : cases)
    {
        SCOPED_TRACE(test.Name);
        const Look before = Get(test.Type);
        Look look = before;
        look.Blue = static_cast<uint8_t>(look.Blue - 1);
        test.Change(look);
        EXPECT_EQ(Set(test.Type, look), test.Accepted ? STATUS_OK : STATUS_OUT_OF_RANGE);
        EXPECT_EQ(Get(test.Type), test.Accepted ? look : before);
    }
}

TEST_F(Defaults, IgnoreWhatATypeDoesNotHave)
{
    // Refused where they apply; the answers for them stay fixed.
    Look surface = LookAfterLoad(TARVEX_ELEMENT_SURFACE_UNIFORM);
    surface.Size = 0.0;
    EXPECT_EQ(Set(TARVEX_ELEMENT_SURFACE_UNIFORM, surface), STATUS_OK);
    EXPECT_EQ(Get(TARVEX_ELEMENT_SURFACE_UNIFORM), LookAfterLoad(TARVEX_ELEMENT_SURFACE_UNIFORM));

    Look circle = LookAfterLoad(TARVEX_ELEMENT_CIRCLE);
    circle.Palette = 7;
    circle.ClipPercent = 46.0;
    circle.FixedMin = 5.0;
    circle.LineStart = circle.LineEnd = 3.0;
    EXPECT_EQ(Set(TARVEX_ELEMENT_CIRCLE, circle), STATUS_OK);
    EXPECT_EQ(Get(TARVEX_ELEMENT_CIRCLE), LookAfterLoad(TARVEX_ELEMENT_CIRCLE));
}

TEST_F(Defaults, LetANaNPassWhereOnlyLimitsAreTested)
{
    Look look = LookAfterLoad(TARVEX_ELEMENT_CIRCLE);
    look.Transparency = NaN;
    EXPECT_EQ(Set(TARVEX_ELEMENT_CIRCLE, look), STATUS_OK);
    EXPECT_TRUE(std::isnan(Get(TARVEX_ELEMENT_CIRCLE).Transparency));
}

TEST_F(Defaults, ReachElementsAddedLaterAndNoOthers)
{
    const int32_t before = AddPoint(0, 0, 0);
    Look look = Lit(0.1, 0.2, 0.3, 40.0, {.Transparency = 0.25, .Red = 1, .Green = 2, .Blue = 3});
    look.Size = 4.0;
    look.LineStart = -3.0;
    look.LineEnd = 5.0;
    EXPECT_EQ(Set(TARVEX_ELEMENT_POINT, look), STATUS_OK);
    EXPECT_EQ(Set(TARVEX_ELEMENT_LINE, look), STATUS_OK);

    for (const int32_t element : {AddPoint(0, 0, 0), AddLine(0, 0, 0, 1, 0, 0)})
    {
        Look got = {.LineStart = -3.0, .LineEnd = 5.0};
        Tarvex_Element_GetTransparency(Id, element, &got.Transparency);
        Tarvex_Element_GetColor(Id, element, &got.Red, &got.Green, &got.Blue);
        Tarvex_Element_GetSize(Id, element, &got.Size);
        Tarvex_Element_GetLighting(Id, element, &got.Ambient, &got.Diffuse, &got.Specular,
                                   &got.SpecularPower);
        EXPECT_EQ(got, look) << element;
    }
    double start = 0.0;
    double end = 0.0;
    EXPECT_EQ(Tarvex_Element_GetLength_Line(Id, before + 2, &start, &end), STATUS_OK);
    EXPECT_EQ(start, -3.0);
    EXPECT_EQ(end, 5.0);
    double size = 0.0;
    EXPECT_EQ(Tarvex_Element_GetSize(Id, before, &size), STATUS_OK);
    EXPECT_EQ(size, 0.3) << "the element added before";
}
} // namespace
