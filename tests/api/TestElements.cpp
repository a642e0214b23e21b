// Elements of a view by their ids and positions.
#include "support/ViewFixture.h"

namespace
{
using testing::ElementsAre;
using testing::IsEmpty;

class Elements : public ViewFixture
{
protected:
    Numbers List() const
    {
        Numbers ids;
        const double count = Read(Tarvex_Element_GetCount)[0];
        for (int32_t index = 0; index < count; ++index)
        {
            ids.push_back(Read(Tarvex_Element_GetIDFromIndex, index)[0]);
        }
        return ids;
    }
};

TEST_F(Elements, CountFromZeroInEachViewAndNeverReuseAnId)
{
    EXPECT_EQ(AddPoint(0, 0, 0), 0);
    EXPECT_EQ(AddLine(0, 0, 0, 1, 0, 0), 1);
    EXPECT_EQ(AddPoint(0, 0, 0), 2);
    int32_t other = TARVEX_NONE;
    int32_t element = TARVEX_NONE;
    EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 0, 0, 50, 50, &other), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Add_Point(other, 0, 0, 0, &element), STATUS_OK);
    EXPECT_EQ(element, 0);
    EXPECT_EQ(Tarvex_Window_Delete(other), STATUS_OK);

    EXPECT_EQ(Tarvex_Element_Remove(Id, 1), STATUS_OK);
    EXPECT_THAT(List(), ElementsAre(0, 2));
    EXPECT_EQ(Tarvex_Element_Remove(Id, 2), STATUS_OK);
    EXPECT_EQ(AddPoint(3, 0, 0), 3);

    EXPECT_GT(CountLit(), 0);
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK) << "of none";
    EXPECT_THAT(List(), IsEmpty());
    EXPECT_EQ(CountLit(), 0);
    EXPECT_EQ(AddPoint(0, 0, 0), 4);
}
} // namespace
