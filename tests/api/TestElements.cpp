// Elements of a view by their ids and positions, shown, hidden and removed.
#include "support/ViewFixture.h"

#include <gmock/gmock.h>

#include <array>
#include <vector>

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class Elements : public ViewFixture
{
protected:
    std::vector<int32_t> List() const
    {
        int32_t count = -1;
        EXPECT_EQ(Tarvex_Element_GetCount(Id, &count), STATUS_OK);
        std::vector<int32_t> elements(static_cast<size_t>(count));
        for (int32_t index = 0; index < count; ++index)
        {
            EXPECT_EQ(
                Tarvex_Element_GetIDFromIndex(Id, index, &elements[static_cast<size_t>(index)]),
                STATUS_OK);
        }
        return elements;
    }
};

TEST_F(Elements, CountFromZeroInEachView)
{
    EXPECT_THAT(List(), IsEmpty());
    EXPECT_EQ(AddPoint(0, 0, 0), 0);
    EXPECT_EQ(AddLine(0, 0, 0, 1, 0, 0), 1);
    int32_t other = TARVEX_NONE;
    int32_t element = TARVEX_NONE;
    EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 0, 0, 50, 50, &other), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Add_Point(other, 0, 0, 0, &element), STATUS_OK);
    EXPECT_EQ(element, 0);
    EXPECT_EQ(Tarvex_Window_Delete(other), STATUS_OK);
    EXPECT_THAT(List(), ElementsAre(0, 1));
    EXPECT_EQ(Tarvex_Element_GetIDFromIndex(Id, 2, &element), STATUS_BAD_INDEX);
    EXPECT_EQ(Tarvex_Element_GetIDFromIndex(Id, -1, &element), STATUS_BAD_INDEX);
}

TEST_F(Elements, CloseTheGapOfARemovedOneWhoseIdIsNeverGivenAgain)
{
    AddPoint(0, 0, 0);
    AddPoint(1, 0, 0);
    AddPoint(2, 0, 0);
    EXPECT_EQ(Tarvex_Element_Remove(Id, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Remove(Id, 1), STATUS_BAD_INDEX);
    EXPECT_THAT(List(), ElementsAre(0, 2));
    EXPECT_EQ(AddPoint(3, 0, 0), 3);
}

TEST_F(Elements, AllLeaveThePictureAndGoOnCountingAfterRemoveAll)
{
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK) << "of none";
    AddPoint(0, 0, 0);
    AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_GT(TakePicture(Id).Count(IsLit), 0);
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK);
    EXPECT_THAT(List(), IsEmpty());
    EXPECT_EQ(TakePicture(Id).Count(IsLit), 0);
    EXPECT_EQ(AddPoint(0, 0, 0), 2);
}

TEST_F(Elements, UseUpNoIdWhenAnAddFails)
{
    AddPoint(0, 0, 0);
    const std::array<int16_t, 5> heights = {};
    int32_t element = 77;
    EXPECT_EQ(Tarvex_Element_Add_SurfaceUniform(Id, heights.data(), nullptr, 5, 1, 1, 1, 1, 0, 0, 0,
                                                1, &element),
              STATUS_TOO_SMALL);
    EXPECT_EQ(element, TARVEX_NONE);
    EXPECT_THAT(List(), ElementsAre(0));
    EXPECT_EQ(AddPoint(0, 0, 0), 1);
}

TEST_F(Elements, StayListedAndAnswerAndLeaveTheOthersWhileHidden)
{
    LookDown();
    AddPoint(-10, 0, 0);
    const Picture alone = TakePicture(Id);
    const int32_t point = AddPoint(10, 0, 0);
    const Picture both = TakePicture(Id);
    EXPECT_GT(both.CountDifferences(alone), 0);
    for (const uint8_t show : {0, 0, 255, 1, 0}) // again and again
    {
        EXPECT_EQ(Tarvex_Element_Show(Id, point, show), STATUS_OK);
        EXPECT_EQ(TakePicture(Id).CountDifferences(show ? both : alone), 0);
    }
    EXPECT_THAT(List(), ElementsAre(0, point));
    EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, point, 10, 0, 0, 0.3), STATUS_OK);
    EXPECT_TRUE(IsValid(point));
    EXPECT_EQ(TakePicture(Id).CountDifferences(alone), 0) << "new values do not show it";
    EXPECT_EQ(Tarvex_Element_Show(Id, point, 1), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Remove(Id, point), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(alone), 0);
}
} // namespace
