// What of a surface is seen after changes of its values, palettes and channels.
#include "support/ViewFixture.h"

namespace
{
class EachSurface : public ViewFixture, public testing::WithParamInterface<std::string>
{
protected:
    // Pure palette colours, seen from above.
    EachSurface()
    {
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 20, 40, 60), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_SetLighting(Id, Surface, 1, 0, 0, 1), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
    }
    // A flat one of 2 by 2.
    static Numbers Values(double height)
    {
        Numbers values = {height, height, height, height, 100, 100, 100, 100, 2,
                          2,      1,      1,      0.01,   0,   0,   0,   1};
        if (GetParam() == "SurfaceNonUniform")
        {
            values.insert(values.begin(), {0, 1, 0, 1, 0, 0, 1, 1});
        }
        return values;
    }
    int32_t Set(double height) const
    {
        return Do("Element_" + GetParam() + "_SetValue", Surface, Values(height));
    }
    void Call(const std::string& name, const Numbers& given) const
    {
        EXPECT_EQ(Do("Element_" + name + "_" + GetParam(), Surface, given), STATUS_OK);
    }
    Picture::Color Centre() const { return TakePicture(Id).At(Pixels / 2, Pixels / 2); }

    const Picture::Color Background = {20, 40, 60};
    const int32_t Surface = Add("Element_Add_" + GetParam(), Values(0));
};

INSTANTIATE_TEST_SUITE_P(, EachSurface, testing::Values("SurfaceUniform", "SurfaceNonUniform"),
                         [](const auto& tested) { return tested.param; });

TEST_P(EachSurface, KeepsItsPictureOverValuesWithoutASampleUntilItIsBuiltAnew)
{
    ASSERT_EQ(Set(TARVEX_INVALID_VALUE), STATUS_BAD_COUNT);
    // Palettes and fixed ranges still colour it.
    Call("ZScalingPalette", {0, 0, 5, 6});
    Call("SetPalette", {3});
    EXPECT_EQ(Centre(), (Picture::Color{0, 1, 0}));
    Call("ShowIntensity", {1});
    EXPECT_NE(Centre(), Background);
    EXPECT_EQ(Do("Element3D_" + GetParam() + "_SetRepresentationMode", Surface, {0}), STATUS_OK);
    EXPECT_EQ(Centre(), Background);
    EXPECT_EQ(Set(0), STATUS_OK);
    EXPECT_NE(Centre(), Background);
}

TEST_P(EachSurface, KeepsAPalettePerChannel)
{
    Call("SetPalette", {4});
    const Picture::Color byHeight = Centre();
    Call("ShowIntensity", {1});
    EXPECT_EQ(Centre(), (Picture::Color{100, 100, 100}));
    Call("SetPalette", {2});
    EXPECT_EQ(Centre(), (Picture::Color{201, 0, 0}));
    Call("ShowIntensity", {0});
    EXPECT_EQ(Centre(), byHeight);
}
} // namespace
