// The colour scale of a surface as a host sees it.
#include "support/ViewFixture.h"

namespace
{
class ScalarBar : public ViewFixture
{
protected:
    ScalarBar() { AddBoth(); }

    void AddBoth()
    {
        const int16_t values[4] = {0, 1, 2, 3};
        EXPECT_EQ(Tarvex_Element_Add_SurfaceUniform(Id, values, nullptr, 2, 2, 1, 1, 1, 0, 0, 0, 1,
                                                    &Uniform),
                  STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Add_SurfaceNonUniform(Id, values, values, values, nullptr, 2, 2, 1,
                                                       1, 1, 0, 0, 0, 1, &NonUniform),
                  STATUS_OK);
    }
    int IsShown() const
    {
        uint8_t shown = 7;
        EXPECT_EQ(Tarvex_Window_ScalarBar_IsShown(Id, &shown), STATUS_OK);
        return shown;
    }
    void ExpectNone() const
    {
        uint8_t shown = 7;
        EXPECT_EQ(Tarvex_Window_ScalarBar_IsShown(Id, &shown), STATUS_NOT_READY);
        EXPECT_EQ(shown, 0);
        EXPECT_EQ(Tarvex_Window_ScalarBar_ShowHide(Id, 1), STATUS_NOT_READY);
    }

    int32_t Uniform = TARVEX_NONE;
    int32_t NonUniform = TARVEX_NONE;
};
} // namespace

TEST_F(ScalarBar, GoesWithOneSurfaceUntilItIsRemoved)
{
    ExpectNone();
    EXPECT_EQ(Tarvex_Window_ScalarBar_Remove(Id), STATUS_OK);
    const int32_t point = AddPoint(0, 0, 0);
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, -1), STATUS_BAD_INDEX);
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, point), STATUS_WRONG_TYPE);
    ExpectNone();

    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, Uniform), STATUS_OK);
    EXPECT_EQ(IsShown(), 1);
    EXPECT_EQ(Tarvex_Window_ScalarBar_Add(Id, point), STATUS_WRONG_TYPE);
    EXPECT_EQ(IsShown(), 1);
    for (const uint8_t show : {1, 1, 0, 0})
    {
        EXPECT_EQ(Tarvex_Window_ScalarBar_ShowHide(Id, show), STATUS_OK);
        EXPECT_EQ(IsShown(), show);
    }
    // Moved while hidden it stays hidden, and no longer goes with the first surface.
    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, NonUniform), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Remove(Id, Uniform), STATUS_OK);
    EXPECT_EQ(IsShown(), 0);
    EXPECT_EQ(Tarvex_Element_Remove(Id, NonUniform), STATUS_OK);
    ExpectNone();

    AddBoth();
    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, Uniform), STATUS_OK);
    EXPECT_EQ(IsShown(), 1);
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK);
    ExpectNone();
}

TEST_F(ScalarBar, ShowsTheColoursOfItsSurface)
{
    const auto isGreen = [](const Picture::Color& color)
    { return color[0] == 0 && color[1] > 100 && color[2] == 0; };
    const auto isBlue = [](const Picture::Color& color)
    { return color[0] == 0 && color[1] == 0 && color[2] > 100; };
    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, Uniform), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetPalette_SurfaceUniform(Id, Uniform, 3), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetPalette_SurfaceNonUniform(Id, NonUniform, 4), STATUS_OK);
    // Nothing but the bar.
    ASSERT_EQ(Tarvex_Element_Show(Id, Uniform, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Show(Id, NonUniform, 0), STATUS_OK);
    const Picture first = TakePicture(Id);
    EXPECT_GT(first.Count(isGreen), 100);
    EXPECT_EQ(first.Count(isBlue), 0);
    EXPECT_GT(first.Centre(isGreen)[0], Pixels / 2);

    ASSERT_EQ(Tarvex_Window_ScalarBar_Add(Id, NonUniform), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(isGreen), 0);
    EXPECT_GT(TakePicture(Id).Count(isBlue), 100);
    ASSERT_EQ(Tarvex_Element_SetPalette_SurfaceNonUniform(Id, NonUniform, 3), STATUS_OK);
    EXPECT_GT(TakePicture(Id).Count(isGreen), 100);
    ASSERT_EQ(Tarvex_Window_ScalarBar_ShowHide(Id, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(isGreen), 0);
}
