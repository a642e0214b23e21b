// A 3D view as a whole: its native window, its background, its picture and updates.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

namespace
{
using AView = ViewFixture;

TEST_F(AView, FillsItsPictureWithTheBackgroundExactlyAlsoWhileCovered)
{
    int32_t cover = TARVEX_NONE;
    Tarvex_Window_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &cover);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(cover, 200, 0, 0), STATUS_OK);
    for (const Picture::Color& color : {Picture::Color{255, 128, 0}, {127, 254, 253}, {0, 0, 0}})
    {
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, color[0], color[1], color[2]), STATUS_OK);
        const auto isIt = [&](const Picture::Color& other) { return other == color; };
        EXPECT_EQ(TakePicture(Id).Count(isIt), Pixels * Pixels) << testing::PrintToString(color);
    }
    EXPECT_EQ(Tarvex_Window_Delete(cover), STATUS_OK);
}

TEST_F(AView, IsCreatedAndResizedToFourPixelsAtLeast)
{
    const NativeWindow native = Host.Children().at(0);
    EXPECT_EQ(Host.Placement(native), (std::array{0, 0, Pixels, Pixels}));
    for (const auto& [given, least] :
         {std::pair(std::array{0, 3}, std::array{4, 4}), {{-5, 60}, {4, 60}}, {{60, 4}, {60, 4}}})
    {
        EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 0, 0, given[0], given[1]), STATUS_OK);
        EXPECT_EQ(Host.Placement(native), (std::array{0, 0, least[0], least[1]}));
        int32_t other = TARVEX_NONE;
        Tarvex_Window_Create(Host.Handle(), 1, 21, 22, given[0], given[1], &other);
        EXPECT_EQ(Host.Placement(Host.Children().at(1)), (std::array{21, 22, least[0], least[1]}));
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(other, 9, 9, 9), STATUS_OK);
        EXPECT_EQ(TakePicture(other).Count(IsLit), least[0] * least[1]);
        EXPECT_EQ(Tarvex_Window_Delete(other), STATUS_OK);
        EXPECT_EQ(Host.Children().size(), 1U);
    }
    // A negative coordinate: it stays where it is.
    for (const auto& [x, y] : {std::pair(11, 12), {-1, 10}, {10, -1}})
    {
        EXPECT_EQ(Tarvex_Window_UpdateSize(Id, x, y, 60 + x, 70), STATUS_OK);
        EXPECT_EQ(Host.Placement(native), (std::array{11, 12, 60 + x, 70}));
    }
}

TEST_F(AView, HasABlackPictureBeforeTheFirstRenderAndThenTheLastOne)
{
    EXPECT_EQ(TakePicture(Id).Pixels, std::vector<uint8_t>(3 * Pixels * Pixels));
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 9, 8, 7), STATUS_OK);
    AddPoint(0, 0, 0);
    const Picture last = TakePicture(Id);
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 0, 0, 60, 50), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(last), 0);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 3, 3, 3), STATUS_OK);
    EXPECT_EQ(CountLit(), 60 * 50);
    Picture small = TakePicture(Id);
    EXPECT_EQ(TarvexExt_Window_CopyImage(Id, small.Pixels.data(), 3 * 60 * 50 - 1, &small.Width,
                                         &small.Height),
              STATUS_TOO_SMALL);
}

TEST_F(AView, HoldsItsPictureBackUntilTheLastUpdateEnds)
{
    LookDown();
    ASSERT_EQ(TarvexExt_Window_BeginUpdate(Id), STATUS_OK);
    ASSERT_EQ(TarvexExt_Window_BeginUpdate(Id), STATUS_OK);
    AddPoint(0, 0, 0, 5);
    Settle(); // nor do the events of the window draw
    for (const bool isLast : {false, true})
    {
        EXPECT_EQ(CountLit(), 0);
        ASSERT_EQ(TarvexExt_Window_EndUpdate(Id), STATUS_OK) << isLast;
    }
    EXPECT_GT(CountLit(), 100);
}
} // namespace
