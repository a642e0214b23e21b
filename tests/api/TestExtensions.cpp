// The picture of a view, the version and the last error.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <string>

namespace
{
class PictureOfAView : public ViewFixture
{
};

TEST_F(PictureOfAView, IsBlackAndOfTheWindowsSizeBeforeTheFirstRender)
{
    const Picture picture = TakePicture(Id);
    EXPECT_EQ(picture.Width, Pixels);
    EXPECT_EQ(picture.Height, Pixels);
    EXPECT_EQ(picture.Count(IsLit), 0);
}

TEST_F(PictureOfAView, IsNotWrittenIntoTooFewBytes)
{
    constexpr int32_t needed = 3 * Pixels * Pixels;
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 9, 9, 9), STATUS_OK);
    std::vector<uint8_t> rgb(needed, 77);
    for (const int32_t capacity : {-1, 0, needed - 1})
    {
        int32_t width = 0;
        int32_t height = 0;
        EXPECT_EQ(TarvexExt_Window_CopyImage(Id, rgb.data(), capacity, &width, &height),
                  STATUS_TOO_SMALL);
        EXPECT_EQ(width, Pixels);
        EXPECT_EQ(height, Pixels);
        EXPECT_EQ(std::count(rgb.begin(), rgb.end(), 77), needed);
    }
}

TEST_F(PictureOfAView, StaysTheLastOneUntilTheNextRender)
{
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 9, 8, 7), STATUS_OK);
    AddPoint(0, 0, 0);
    const Picture last = TakePicture(Id);
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 0, 0, 60, 50), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(last), 0);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 3, 3, 3), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 60 * 50);
}

TEST_F(PictureOfAView, HasItsTopRowFirst)
{
    AddPoint(5, -10, 0); // right of and above the middle
    LookDown();
    const auto center = TakePicture(Id).Centre(IsLit);
    EXPECT_GT(center[0], Pixels / 2.0 + 10);
    EXPECT_LT(center[1], Pixels / 2.0 - 10);
}

TEST_F(PictureOfAView, IsRightWhileTheWindowIsCovered)
{
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 9, 8, 7), STATUS_OK);
    int32_t cover = TARVEX_NONE;
    EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &cover), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(cover, 200, 0, 0), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).At(50, 50), (Picture::Color{9, 8, 7}));
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 7, 8, 9), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).Count(
                  [](const Picture::Color& color) {
                      return color == Picture::Color{7, 8, 9};
                  }),
              Pixels * Pixels);
    EXPECT_EQ(Tarvex_Window_Delete(cover), STATUS_OK);
}

TEST_F(PictureOfAView, HasNoSizeForAnUnknownView)
{
    for (const auto function : {TarvexExt_Window_CopyImage, TarvexExt_Window2D_CopyImage})
    {
        int32_t width = 77;
        int32_t height = 77;
        EXPECT_EQ(function(Id + 1, nullptr, 0, &width, &height), STATUS_WINDOW_NOT_FOUND);
        EXPECT_EQ(width, 0);
        EXPECT_EQ(height, 0);
    }
}

TEST(TheVersion, HasThreeNumbers)
{
    EXPECT_THAT(TarvexExt_GetVersion(), testing::MatchesRegex("[0-9]+\\.[0-9]+\\.[0-9]+"));
}

TEST(TheLastError, IsCutToTheRoomThatItIsGiven)
{
    char text[8] = "unused";
    EXPECT_EQ(TarvexExt_GetLastError(nullptr, 8), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(TarvexExt_GetLastError(text, 0), STATUS_TOO_SMALL);
    EXPECT_EQ(TarvexExt_GetLastError(text, -1), STATUS_TOO_SMALL);
    EXPECT_STREQ(text, "unused");
    EXPECT_EQ(TarvexExt_GetLastError(text, 1), STATUS_OK);
    EXPECT_STREQ(text, "");
}
} // namespace
