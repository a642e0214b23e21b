// Surfaces, profiles, palettes and colour ranges as a host sees them.
#include "support/ViewFixture.h"

#include <array>
#include <cmath>
#include <functional>
#include <limits>
#include <ostream>
#include <vector>

namespace
{
constexpr int16_t missing = -32768;
const double infinity = std::numeric_limits<double>::infinity();

// What a host gives for a surface: a flat one of 8 by 6 unless changed.
struct Values
{
    int32_t Columns = 8;
    int32_t Rows = 6;
    std::vector<int16_t> X;
    std::vector<int16_t> Y;
    std::vector<int16_t> Z = std::vector<int16_t>(48, 0);
    std::vector<uint8_t> Intensities = std::vector<uint8_t>(48, 100);
    double Scale[3] = {1.0, 1.0, 0.01};
    double Offset[3] = {0.0, 0.0, 0.0};

    Values()
    {
        for (int16_t i = 0; i < 48; ++i)
        {
            X.push_back(static_cast<int16_t>(i % 8));
            Y.push_back(static_cast<int16_t>(i / 8));
        }
    }
    Values With(const std::function<void(Values&)>& change) const
    {
        Values changed = *this;
        change(changed);
        return changed;
    }
};

const int16_t* DataOf(const std::vector<int16_t>& values)
{
    return values.empty() ? nullptr : values.data();
}
const uint8_t* DataOf(const std::vector<uint8_t>& values)
{
    return values.empty() ? nullptr : values.data();
}

int32_t AddUniform(int32_t window, const Values& v, int32_t* id)
{
    return Tarvex_Element_Add_SurfaceUniform(window, DataOf(v.Z), DataOf(v.Intensities), v.Columns,
                                             v.Rows, v.Scale[0], v.Scale[1], v.Scale[2],
                                             v.Offset[0], v.Offset[1], v.Offset[2], 1, id);
}
int32_t AddNonUniform(int32_t window, const Values& v, int32_t* id)
{
    return Tarvex_Element_Add_SurfaceNonUniform(
        window, DataOf(v.X), DataOf(v.Y), DataOf(v.Z), DataOf(v.Intensities), v.Columns, v.Rows,
        v.Scale[0], v.Scale[1], v.Scale[2], v.Offset[0], v.Offset[1], v.Offset[2], 1, id);
}
int32_t SetUniform(int32_t window, int32_t id, const Values& v)
{
    return Tarvex_Element_SurfaceUniform_SetValue(
        window, id, DataOf(v.Z), DataOf(v.Intensities), v.Columns, v.Rows, v.Scale[0], v.Scale[1],
        v.Scale[2], v.Offset[0], v.Offset[1], v.Offset[2]);
}
int32_t SetNonUniform(int32_t window, int32_t id, const Values& v)
{
    return Tarvex_Element_SurfaceNonUniform_SetValue(
        window, id, DataOf(v.X), DataOf(v.Y), DataOf(v.Z), DataOf(v.Intensities), v.Columns, v.Rows,
        v.Scale[0], v.Scale[1], v.Scale[2], v.Offset[0], v.Offset[1], v.Offset[2]);
}

// The two kinds of surfaces, which differ in the names of their functions.
struct Kind
{
    const char* Name;
    decltype(&AddUniform) Add;
    decltype(&SetUniform) Set;
    decltype(&Tarvex_Element_SurfaceUniform_AddIntensity) AddIntensity;
    decltype(&Tarvex_Element_ShowIntensity_SurfaceUniform) ShowIntensity;
    decltype(&Tarvex_Element3D_SurfaceUniform_SetRepresentationMode) SetMode;
    decltype(&Tarvex_Element3D_SurfaceUniform_GetRepresentationMode) GetMode;
    decltype(&Tarvex_Element_SetPalette_SurfaceUniform) SetPalette;
    decltype(&Tarvex_Element_GetPalette_SurfaceUniform) GetPalette;
    decltype(&Tarvex_Element_ZScalingPalette_SurfaceUniform) SetRange;
    decltype(&Tarvex_Element_GetZScalingPalette_SurfaceUniform) GetRange;
};

const Kind uniformKind = {"Uniform",
                          AddUniform,
                          SetUniform,
                          Tarvex_Element_SurfaceUniform_AddIntensity,
                          Tarvex_Element_ShowIntensity_SurfaceUniform,
                          Tarvex_Element3D_SurfaceUniform_SetRepresentationMode,
                          Tarvex_Element3D_SurfaceUniform_GetRepresentationMode,
                          Tarvex_Element_SetPalette_SurfaceUniform,
                          Tarvex_Element_GetPalette_SurfaceUniform,
                          Tarvex_Element_ZScalingPalette_SurfaceUniform,
                          Tarvex_Element_GetZScalingPalette_SurfaceUniform};
const Kind nonUniformKind = {"NonUniform",
                             AddNonUniform,
                             SetNonUniform,
                             Tarvex_Element_SurfaceNonUniform_AddIntensity,
                             Tarvex_Element_ShowIntensity_SurfaceNonUniform,
                             Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode,
                             Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode,
                             Tarvex_Element_SetPalette_SurfaceNonUniform,
                             Tarvex_Element_GetPalette_SurfaceNonUniform,
                             Tarvex_Element_ZScalingPalette_SurfaceNonUniform,
                             Tarvex_Element_GetZScalingPalette_SurfaceNonUniform};

void PrintTo(const Kind& kind, std::ostream* stream)
{
    *stream << kind.Name;
}

class BothSurfaces : public ViewFixture
{
protected:
    BothSurfaces() { EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 20, 40, 60), STATUS_OK); }

    int32_t Count() const
    {
        int32_t count = -1;
        Tarvex_Element_GetCount(Id, &count);
        return count;
    }
    // A surface in pure palette colours, seen from above.
    int32_t Add(const Kind& kind, const Values& values) const
    {
        int32_t element = -1;
        EXPECT_EQ(kind.Add(Id, values, &element), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, element, 1.0, 0.0, 0.0, 1.0), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        return element;
    }
    Picture::Color Centre() const { return TakePicture(Id).At(Pixels / 2, Pixels / 2); }

    const Picture::Color Background = {20, 40, 60};
};

class EachSurface : public BothSurfaces, public testing::WithParamInterface<Kind>
{
};

const std::function<void(Values&)> allMissing = [](Values& v) { v.Z.assign(48, missing); };
} // namespace

INSTANTIATE_TEST_SUITE_P(, EachSurface, testing::Values(uniformKind, nonUniformKind),
                         [](const auto& tested) { return tested.param.Name; });

TEST_P(EachSurface, AnswersBadValuesWithTheFirstFaultAndChangesNothing)
{
    const Kind& kind = GetParam();
    const Values good;
    int32_t element = -1;
    ASSERT_EQ(kind.Add(Id, good, &element), STATUS_OK);
    const Picture before = TakePicture(Id);
    const struct
    {
        const char* Name;
        std::function<void(Values&)> Change;
        int32_t Added;
        int32_t Set; // tests numbers before arrays
    } cases[] = {
        {"no samples, bad number",
         [](Values& v)
         {
             v.Z.clear();
             v.Offset[1] = NaN;
         },
         STATUS_NULL_ARGUMENT, STATUS_NOT_FINITE},
        {"no samples, too small",
         [](Values& v)
         {
             v.Z.clear();
             v.Rows = 1;
         },
         STATUS_NULL_ARGUMENT, STATUS_NULL_ARGUMENT},
        {"bad number, too small",
         [](Values& v)
         {
             v.Columns = 1;
             v.Scale[2] = NaN;
         },
         STATUS_NOT_FINITE, STATUS_NOT_FINITE},
        {"too small, scale out of range",
         [](Values& v)
         {
             v.Rows = 1;
             v.Scale[0] = 0.0;
         },
         STATUS_TOO_SMALL, STATUS_TOO_SMALL},
        {"scale out of range, too large",
         [](Values& v)
         {
             v.Scale[1] = 9e-13;
             v.Rows = v.Columns = 2147483647;
         },
         STATUS_OUT_OF_RANGE, STATUS_OUT_OF_RANGE},
        {"too large for 64 bits of bytes", [](Values& v) { v.Rows = v.Columns = 2147483647; },
         STATUS_OUT_OF_MEMORY, STATUS_OUT_OF_MEMORY},
        {"too many points", [](Values& v) { v.Rows = v.Columns = 40000; }, STATUS_OUT_OF_MEMORY,
         STATUS_OUT_OF_MEMORY},
    };
    for (const auto& test : cases)
    {
        int32_t none = 5;
        EXPECT_EQ(kind.Add(Id, good.With(test.Change), &none), test.Added) << test.Name;
        EXPECT_EQ(none, -1) << test.Name;
        EXPECT_EQ(kind.Set(Id, element, good.With(test.Change)), test.Set) << test.Name;
    }
    int32_t none = 5;
    EXPECT_EQ(kind.Add(Id, good.With(allMissing), &none), STATUS_BAD_COUNT);
    EXPECT_EQ(kind.Add(Id + 1, good, &none), STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(none, -1);
    EXPECT_EQ(Count(), 1);
    EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0);
    // The failed adds used no id.
    ASSERT_EQ(kind.Add(Id, good, &none), STATUS_OK);
    EXPECT_EQ(none, element + 1);
}

TEST_F(BothSurfaces, RefuseEachOthersCallsAndUnknownIds)
{
    const struct
    {
        const Kind& Called;
        int32_t Element;
        int32_t Expected;
    } cases[] = {
        {uniformKind, Add(nonUniformKind, {}), STATUS_WRONG_TYPE},
        {nonUniformKind, Add(uniformKind, {}), STATUS_WRONG_TYPE},
        {uniformKind, 77, STATUS_BAD_INDEX},
        {nonUniformKind, -1, STATUS_BAD_INDEX},
    };
    for (const auto& [kind, element, expected] : cases)
    {
        uint8_t byte = 9;
        uint32_t palette = 9;
        double numbers[3] = {9.0, 9.0, 9.0};
        EXPECT_EQ(kind.Set(Id, element, {}), expected);
        EXPECT_EQ(kind.AddIntensity(Id, element, nullptr, 8, 6), expected);
        EXPECT_EQ(kind.ShowIntensity(Id, element, 1), expected);
        EXPECT_EQ(kind.SetMode(Id, element, 0), expected);
        EXPECT_EQ(kind.GetMode(Id, element, &byte), expected);
        EXPECT_EQ(byte, 1);
        EXPECT_EQ(kind.SetPalette(Id, element, 99), expected);
        EXPECT_EQ(kind.GetPalette(Id, element, &palette), expected);
        EXPECT_EQ(palette, 0xFFFFFFFFU);
        EXPECT_EQ(kind.SetRange(Id, element, 1, 99.0, 0.0, 0.0), expected);
        EXPECT_EQ(kind.GetRange(Id, element, &byte, &numbers[0], &numbers[1], &numbers[2]),
                  expected);
        EXPECT_EQ(byte, 0);
        EXPECT_EQ(numbers[0], -1.0);
        EXPECT_EQ(numbers[1], 0.0);
        EXPECT_EQ(numbers[2], 0.0);
    }
    int32_t none = 3;
    const Values free;
    EXPECT_EQ(AddNonUniform(Id, free.With([](Values& v) { v.X.clear(); }), &none),
              STATUS_NULL_ARGUMENT);
    EXPECT_EQ(AddNonUniform(Id, free.With([](Values& v) { v.Y.clear(); }), &none),
              STATUS_NULL_ARGUMENT);
    EXPECT_EQ(none, -1);
}

TEST_P(EachSurface, KeepsItsPictureOverValuesWithoutASample)
{
    const Kind& kind = GetParam();
    const Values values;
    const int32_t element = Add(kind, values);
    const Picture before = TakePicture(Id);
    ASSERT_EQ(kind.Set(Id, element, values.With(allMissing)), STATUS_BAD_COUNT);
    EXPECT_EQ(kind.SetRange(Id, element, 1, 0.0, 0.0, 0.0), STATUS_BAD_COUNT);
    EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0);

    // Palettes and fixed ranges still colour it.
    EXPECT_EQ(kind.SetRange(Id, element, 0, 0.0, 5.0, 6.0), STATUS_OK);
    EXPECT_EQ(kind.SetPalette(Id, element, 3), STATUS_OK);
    EXPECT_EQ(Centre(), (Picture::Color{0, 1, 0}));
    EXPECT_EQ(kind.ShowIntensity(Id, element, 1), STATUS_OK);
    EXPECT_EQ(kind.AddIntensity(Id, element, values.Intensities.data(), 8, 6), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_SetTransparency(Id, element, 0.5), STATUS_OK);
    EXPECT_NE(Centre(), Background);

    // Built anew it has nothing to show, until there are samples again.
    EXPECT_EQ(kind.SetMode(Id, element, 0), STATUS_OK);
    EXPECT_EQ(Centre(), Background);
    EXPECT_EQ(kind.SetRange(Id, element, 0, 0.0, 1.0, 2.0), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
    EXPECT_EQ(kind.Set(Id, element, values), STATUS_OK);
    EXPECT_NE(Centre(), Background);
}

TEST_P(EachSurface, KeepsAPalettePerChannel)
{
    const Kind& kind = GetParam();
    const int32_t element = Add(kind, {});
    const auto palette = [&]
    {
        uint32_t value = 99;
        EXPECT_EQ(kind.GetPalette(Id, element, &value), STATUS_OK);
        return value;
    };
    EXPECT_EQ(palette(), 0U);
    ASSERT_EQ(kind.SetPalette(Id, element, 4), STATUS_OK);
    ASSERT_EQ(kind.ShowIntensity(Id, element, 1), STATUS_OK);
    EXPECT_EQ(palette(), 5U);
    EXPECT_EQ(Centre(), (Picture::Color{100, 100, 100}));
    ASSERT_EQ(kind.SetPalette(Id, element, 2), STATUS_OK);
    for (const uint32_t bad : {7U, 0xFFFFFFFFU})
    {
        EXPECT_EQ(kind.SetPalette(Id, element, bad), STATUS_OUT_OF_RANGE);
    }
    EXPECT_EQ(palette(), 2U);
    EXPECT_EQ(Centre(), (Picture::Color{201, 0, 0}));
    // Without intensities the heights are shown again.
    ASSERT_EQ(kind.Set(Id, element, Values().With([](Values& v) { v.Intensities.clear(); })),
              STATUS_OK);
    EXPECT_EQ(palette(), 4U);
    EXPECT_EQ(kind.ShowIntensity(Id, element, 1), STATUS_NOT_READY);
}

TEST_P(EachSurface, ShowsBothEndsOfEveryPalette)
{
    const Kind& kind = GetParam();
    const int32_t element = Add(kind, {});
    ASSERT_EQ(Tarvex_Element_SetColor(Id, element, 12, 34, 56), STATUS_OK);
    const Picture::Color ends[][2] = {
        {{0, 0, 255}, {255, 255, 255}}, {{0, 0, 40}, {255, 255, 188}}, {{1, 0, 0}, {255, 255, 255}},
        {{0, 1, 0}, {255, 255, 255}},   {{0, 0, 1}, {255, 255, 255}},  {{0, 0, 0}, {255, 255, 255}},
        {{12, 34, 56}, {12, 34, 56}},
    };
    for (uint32_t palette = 0; palette < 7; ++palette)
    {
        ASSERT_EQ(kind.SetPalette(Id, element, palette), STATUS_OK);
        // The surface lies below the range, then above it.
        ASSERT_EQ(kind.SetRange(Id, element, 0, 0.0, 5.0, 6.0), STATUS_OK);
        EXPECT_EQ(Centre(), ends[palette][0]) << palette;
        ASSERT_EQ(kind.SetRange(Id, element, 0, 0.0, -6.0, -5.0), STATUS_OK);
        EXPECT_EQ(Centre(), ends[palette][1]) << palette;
    }
}

TEST_P(EachSurface, JudgesAndKeepsItsRange)
{
    const Kind& kind = GetParam();
    const int32_t element = Add(kind, {});
    const struct
    {
        bool ByIntensity;
        uint8_t Auto;
        double Percent;
        double Min;
        double Max;
        int32_t Expected;
        // Read back after it; NaN stands for itself.
        std::array<double, 4> Kept;
    } cases[] = {
        {false, 1, 45.0, 9.0, 1.0, STATUS_OK, {1, 45, -10, 10}},
        {false, 1, 45.1, 0.0, 1.0, STATUS_OUT_OF_RANGE, {1, 45, -10, 10}},
        {false, 1, -0.1, 0.0, 1.0, STATUS_OUT_OF_RANGE, {1, 45, -10, 10}},
        {false, 1, NaN, 0.0, 1.0, STATUS_OK, {1, NaN, -10, 10}},
        {false, 1, 0.0, 0.0, 1.0, STATUS_OK, {1, 0, -10, 10}},
        {false, 0, 99.0, 1.0, 1.0005, STATUS_OUT_OF_RANGE, {1, 0, -10, 10}},
        {false, 0, 99.0, 1.0, 1.002, STATUS_OK, {0, 0, 1, 1.002}},
        {false, 0, NaN, -1e300, 1e300, STATUS_OK, {0, 0, -1e300, 1e300}},
        {false, 0, 0.0, -infinity, infinity, STATUS_OK, {0, 0, -infinity, infinity}},
        {false, 0, 0.0, infinity, infinity, STATUS_OUT_OF_RANGE, {0, 0, -infinity, infinity}},
        {false, 0, 0.0, NaN, 5.0, STATUS_OK, {0, 0, NaN, 5}},
        {false, 1, 1.0, 0.0, 0.0, STATUS_OK, {1, 1, NaN, 5}},
        // The percentage is judged before the channel, both before anything changes.
        {true, 1, 50.0, 0.0, 0.0, STATUS_OUT_OF_RANGE, {1, 1, NaN, 5}},
        {true, 1, 2.0, 0.0, 0.0, STATUS_BAD_POINT, {1, 1, NaN, 5}},
        {true, 0, 0.0, 10.0, 10.5, STATUS_OUT_OF_RANGE, {0, 1, NaN, 5}},
        {true, 0, 0.0, -0.1, 10.0, STATUS_OUT_OF_RANGE, {0, 1, NaN, 5}},
        {true, 0, 0.0, 10.0, 255.1, STATUS_OUT_OF_RANGE, {0, 1, NaN, 5}},
        {true, 0, 0.0, 0.0, 255.0, STATUS_OK, {0, 1, NaN, 5}},
    };
    for (const auto& test : cases)
    {
        const auto at = &test - cases;
        ASSERT_EQ(kind.ShowIntensity(Id, element, test.ByIntensity), STATUS_OK);
        EXPECT_EQ(kind.SetRange(Id, element, test.Auto, test.Percent, test.Min, test.Max),
                  test.Expected)
            << at;
        uint8_t isAuto = 9;
        std::array<double, 4> kept{};
        EXPECT_EQ(kind.GetRange(Id, element, &isAuto, &kept[1], &kept[2], &kept[3]), STATUS_OK);
        kept[0] = isAuto;
        for (size_t i = 0; i < 4; ++i)
        {
            EXPECT_TRUE(kept[i] == test.Kept[i] ||
                        (std::isnan(kept[i]) && std::isnan(test.Kept[i])))
                << at << ": " << kept[i];
        }
    }
}

TEST_P(EachSurface, FarOutsideLeavesTheViewUsable)
{
    const Kind& kind = GetParam();
    const int32_t near = Add(kind, {});
    const Picture before = TakePicture(Id);
    for (const double far : {1e300, -infinity})
    {
        int32_t element = -1;
        ASSERT_EQ(kind.Add(Id, Values().With([&](Values& v) { v.Offset[2] = far; }), &element),
                  STATUS_OK);
        EXPECT_EQ(kind.SetMode(Id, element, 0), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0);
        // And back with usable values.
        EXPECT_EQ(kind.Set(Id, near, Values().With([&](Values& v) { v.Scale[0] = infinity; })),
                  STATUS_OK);
        EXPECT_EQ(Centre(), Background);
        EXPECT_EQ(kind.Set(Id, near, {}), STATUS_OK);
        EXPECT_NE(Centre(), Background);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, near, 1.0, 0.0, 0.0, 1.0), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Remove(Id, element), STATUS_OK);
    }
}

TEST_F(BothSurfaces, ProfilesAnswerBadValuesWithTheFirstFault)
{
    const int16_t z[4] = {0, 10, 20, 30};
    const int16_t gone[4] = {missing, missing, missing, missing};
    const struct
    {
        const int16_t* Z;
        int32_t Count;
        double XScale;
        double ZScale;
        double Y;
        int32_t Expected;
    } cases[] = {
        {nullptr, 1, NaN, 1.0, 0.0, STATUS_NULL_ARGUMENT},
        {z, 1, 1.0, 0.0, NaN, STATUS_NOT_FINITE},
        {z, 1, 0.0, 1.0, 0.0, STATUS_TOO_SMALL},
        {z, -5, 1.0, 1.0, 0.0, STATUS_TOO_SMALL},
        {z, 2147483647, 1.0, 9e-13, 0.0, STATUS_OUT_OF_RANGE},
        {z, 2147483647, 1.0, 1.0, 0.0, STATUS_OUT_OF_MEMORY},
        {gone, 4, 1.0, 1.0, 0.0, STATUS_BAD_COUNT},
    };
    for (const auto& test : cases)
    {
        int32_t none = 7;
        EXPECT_EQ(Tarvex_Element_Add_ProfileUniform(Id, test.Z, test.Count, test.XScale,
                                                    test.ZScale, 0.0, 0.0, test.Y, &none),
                  test.Expected)
            << (&test - cases);
        EXPECT_EQ(none, -1);
        EXPECT_EQ(Tarvex_Element_Add_ProfileNonUniform(Id, z, test.Z, test.Count, test.XScale,
                                                       test.ZScale, 0.0, 0.0, test.Y, &none),
                  test.Expected)
            << (&test - cases);
        EXPECT_EQ(none, -1);
    }
    int32_t none = 7;
    EXPECT_EQ(Tarvex_Element_Add_ProfileNonUniform(Id, nullptr, z, 4, 1, 1, 0, 0, 0, &none),
              STATUS_NULL_ARGUMENT);
    // The view comes before the arrays.
    EXPECT_EQ(Tarvex_Element_Add_ProfileUniform(Id + 1, nullptr, 4, 1, 1, 0, 0, 0, &none),
              STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(Count(), 0);

    int32_t line = -1;
    ASSERT_EQ(Tarvex_Element_Add_ProfileUniform(Id, z, 4, 1, 0.1, 0, 0, 2, &line), STATUS_OK);
    EXPECT_EQ(line, 0);
    ASSERT_EQ(Tarvex_Element_SetSize(Id, line, 3.0), STATUS_OK);
    ASSERT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
    EXPECT_GT(TakePicture(Id).Count([](const Picture::Color& color) { return color[0] > 200; }),
              100);
}
