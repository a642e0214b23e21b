// The picture of a view and the last error.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

namespace
{
using PictureOfAView = ViewFixture;

TEST_F(PictureOfAView, IsBlackBeforeTheFirstRenderAndThenTheLastOne)
{
    EXPECT_EQ(TakePicture(Id).Width, Pixels);
    EXPECT_EQ(TakePicture(Id).Height, Pixels);
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 9, 8, 7), STATUS_OK);
    AddPoint(0, 0, 0);
    const Picture last = TakePicture(Id);
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 0, 0, 60, 50), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(last), 0);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 3, 3, 3), STATUS_OK);
    EXPECT_EQ(CountLit(), 60 * 50);
}

TEST_F(PictureOfAView, IsNotWrittenIntoTooFewBytes)
{
    constexpr int32_t needed = 3 * Pixels * Pixels;
    std::vector<uint8_t> rgb(needed, 77);
    for (const int32_t capacity : {-1, 0, needed - 1})
    {
        int32_t width = 0;
        int32_t height = 0;
        EXPECT_EQ(TarvexExt_Window_CopyImage(Id, rgb.data(), capacity, &width, &height),
                  STATUS_TOO_SMALL);
        EXPECT_EQ(std::pair(width, height), std::pair(Pixels, Pixels));
        EXPECT_THAT(rgb, testing::Each(77));
    }
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
