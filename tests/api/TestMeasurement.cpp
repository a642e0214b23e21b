// Surfaces, profiles, palettes and colour ranges as a host sees them.
#include "support/ViewFixture.h"

#include <string>
#include <vector>

namespace
{
// What a host gives: a flat surface of 8 by 6.
struct Values
{
    int16_t Height = 0;
    bool HasIntensities = true;
};

struct Arrays
{
    explicit Arrays(const Values& v) : Heights(48, v.Height)
    {
        for (int16_t i = 0; i < 48; ++i)
        {
            XY[0][i] = static_cast<int16_t>(i % 8);
            XY[1][i] = static_cast<int16_t>(i / 8);
        }
        Intensities = v.HasIntensities ? Levels.data() : nullptr;
    }
    int16_t XY[2][48];
    std::vector<int16_t> Heights;
    std::vector<uint8_t> Levels = std::vector<uint8_t>(48, 100);
    const uint8_t* Intensities;
};

int32_t AddUniform(int32_t view, const Values& v, int32_t* id)
{
    const Arrays a(v);
    return Tarvex_Element_Add_SurfaceUniform(view, a.Heights.data(), a.Intensities, 8, 6, 1, 1,
                                             0.01, 0, 0, 0, 1, id);
}
int32_t AddNonUniform(int32_t view, const Values& v, int32_t* id)
{
    const Arrays a(v);
    return Tarvex_Element_Add_SurfaceNonUniform(view, a.XY[0], a.XY[1], a.Heights.data(),
                                                a.Intensities, 8, 6, 1, 1, 0.01, 0, 0, 0, 1, id);
}
int32_t SetUniform(int32_t view, int32_t id, const Values& v)
{
    const Arrays a(v);
    return Tarvex_Element_SurfaceUniform_SetValue(view, id, a.Heights.data(), a.Intensities, 8, 6,
                                                  1, 1, 0.01, 0, 0, 0);
}
int32_t SetNonUniform(int32_t view, int32_t id, const Values& v)
{
    const Arrays a(v);
    return Tarvex_Element_SurfaceNonUniform_SetValue(view, id, a.XY[0], a.XY[1], a.Heights.data(),
                                                     a.Intensities, 8, 6, 1, 1, 0.01, 0, 0, 0);
}

// The two kinds of surfaces, which differ in the names of their functions.
#define KIND(name)                                                                                 \
    {                                                                                              \
#name, Add##name, Set##name, Tarvex_Element_ShowIntensity_Surface##name,                   \
            Tarvex_Element3D_Surface##name##_SetRepresentationMode,                                \
            Tarvex_Element_SetPalette_Surface##name, Tarvex_Element_GetPalette_Surface##name,      \
            Tarvex_Element_ZScalingPalette_Surface##name                                           \
    }
const struct Kind
{
    std::string Name;
    decltype(&AddUniform) Add;
    decltype(&SetUniform) Set;
    decltype(&Tarvex_Element_ShowIntensity_SurfaceUniform) ShowIntensity;
    decltype(&Tarvex_Element3D_SurfaceUniform_SetRepresentationMode) SetMode;
    decltype(&Tarvex_Element_SetPalette_SurfaceUniform) SetPalette;
    decltype(&Tarvex_Element_GetPalette_SurfaceUniform) GetPalette;
    decltype(&Tarvex_Element_ZScalingPalette_SurfaceUniform) SetRange;
} kinds[] = {KIND(Uniform), KIND(NonUniform)};

class EachSurface : public ViewFixture, public testing::WithParamInterface<Kind>
{
protected:
    // A surface in pure palette colours, seen from above.
    int32_t Add() const
    {
        int32_t element = -1;
        EXPECT_EQ(Surface.Add(Id, {}, &element), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 20, 40, 60), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, element, 1.0, 0.0, 0.0, 1.0), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        return element;
    }
    Picture::Color Centre() const { return TakePicture(Id).At(Pixels / 2, Pixels / 2); }

    const Picture::Color Background = {20, 40, 60};
    const Kind& Surface = GetParam();
};
} // namespace

INSTANTIATE_TEST_SUITE_P(, EachSurface, testing::ValuesIn(kinds),
                         [](const auto& tested) { return tested.param.Name; });

TEST_P(EachSurface, KeepsItsPictureOverValuesWithoutASampleUntilItIsBuiltAnew)
{
    const int32_t element = Add();
    ASSERT_EQ(Surface.Set(Id, element, {.Height = -32768}), STATUS_BAD_COUNT);
    EXPECT_EQ(Surface.SetRange(Id, element, 1, 0.0, 0.0, 0.0), STATUS_BAD_COUNT);
    // Palettes and fixed ranges still colour it.
    EXPECT_EQ(Surface.SetRange(Id, element, 0, 0.0, 5.0, 6.0), STATUS_OK);
    EXPECT_EQ(Surface.SetPalette(Id, element, 3), STATUS_OK);
    EXPECT_EQ(Centre(), (Picture::Color{0, 1, 0}));
    EXPECT_EQ(Surface.ShowIntensity(Id, element, 1), STATUS_OK);
    EXPECT_NE(Centre(), Background);
    EXPECT_EQ(Surface.SetMode(Id, element, 0), STATUS_OK);
    EXPECT_EQ(Centre(), Background);
    EXPECT_EQ(Surface.Set(Id, element, {}), STATUS_OK);
    EXPECT_NE(Centre(), Background);
}

TEST_P(EachSurface, KeepsAPalettePerChannel)
{
    const int32_t element = Add();
    uint32_t palette = 99;
    ASSERT_EQ(Surface.SetPalette(Id, element, 4), STATUS_OK);
    ASSERT_EQ(Surface.ShowIntensity(Id, element, 1), STATUS_OK);
    EXPECT_EQ(Centre(), (Picture::Color{100, 100, 100}));
    ASSERT_EQ(Surface.SetPalette(Id, element, 2), STATUS_OK);
    EXPECT_EQ(Centre(), (Picture::Color{201, 0, 0}));
    // Without intensities the heights are shown again.
    ASSERT_EQ(Surface.Set(Id, element, {.HasIntensities = false}), STATUS_OK);
    EXPECT_EQ(Surface.GetPalette(Id, element, &palette), STATUS_OK);
    EXPECT_EQ(palette, 4U);
    EXPECT_EQ(Surface.ShowIntensity(Id, element, 1), STATUS_NOT_READY);
}

TEST_P(EachSurface, JudgesItsRangeOfIntensities)
{
    const int32_t element = Add();
    const struct
    {
        uint8_t Auto;
        double Percent, Min, Max;
        int32_t Expected;
    } cases[] = {
        // The percentage is judged before the channel.
        {1, 50.0, 0.0, 0.0, STATUS_OUT_OF_RANGE},  {1, 2.0, 0.0, 0.0, STATUS_BAD_POINT},
        {0, 0.0, 10.0, 10.5, STATUS_OUT_OF_RANGE}, {0, 0.0, 10.0, 255.1, STATUS_OUT_OF_RANGE},
        {0, 0.0, 0.0, 255.0, STATUS_OK},
    };
    ASSERT_EQ(Surface.ShowIntensity(Id, element, 1), STATUS_OK);
    for (const auto& [isAuto, percent, min, max, expected] : cases)
    {
        EXPECT_EQ(Surface.SetRange(Id, element, isAuto, percent, min, max), expected)
            << percent << ", " << max;
    }
}
