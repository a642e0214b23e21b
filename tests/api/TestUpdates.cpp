// Updates: changes without a picture for each.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

namespace
{
class Updates : public ViewFixture
{
protected:
    int32_t Begin() const { return TarvexExt_Window_BeginUpdate(Id); }
    int32_t End() const { return TarvexExt_Window_EndUpdate(Id); }
};

TEST_F(Updates, HoldThePictureBackUntilTheLastOneEnds)
{
    LookDown();
    ASSERT_EQ(Begin(), STATUS_OK);
    ASSERT_EQ(Begin(), STATUS_OK);
    EXPECT_EQ(AddPoint(0, 0, 0), 0);
    EXPECT_EQ(Tarvex_Element_SetSize(Id, 0, 5), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_SetSize(Id, 1, 5), STATUS_BAD_INDEX);
    EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, 0, 0, 0), STATUS_OK);
    Settle(); // nor do the events of the window draw
    EXPECT_EQ(CountLit(), 0);
    ASSERT_EQ(End(), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
    ASSERT_EQ(End(), STATUS_OK);
    EXPECT_GT(CountLit(), 100);
    EXPECT_EQ(End(), STATUS_NOT_READY);
    // Every change draws again.
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}
} // namespace
