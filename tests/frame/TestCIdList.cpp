#include "frame/CIdList.h"

#include <gmock/gmock.h>

namespace
{
std::vector<int32_t> destroyed;

struct Thing
{
    explicit Thing(int32_t id) : Id(id) {}
    ~Thing() { destroyed.push_back(Id); }
    const int32_t Id;
};

class IdList : public testing::Test
{
protected:
    IdList()
    {
        for (const int32_t id : {4, 2, 9})
        {
            List.Reserve();
            List.Append(std::make_unique<Thing>(id));
        }
        destroyed.clear();
    }

    CIdList<Thing> List;
};

TEST_F(IdList, HandsOutWhatItRemovesAndClosesTheGap)
{
    EXPECT_EQ(List.Remove(3), nullptr);
    EXPECT_EQ(List.Find(2), List.At(1));
    EXPECT_EQ(List.Remove(2)->Id, 2);
    EXPECT_EQ(List.Remove(2), nullptr);
    EXPECT_EQ(List.Find(2), nullptr);
    EXPECT_EQ(List.GetCount(), 2);
    EXPECT_EQ(List.At(1)->Id, 9);
    EXPECT_EQ(List.At(2), nullptr);
    EXPECT_EQ(List.At(-1), nullptr);
}

TEST_F(IdList, DestroysItsEntriesFromTheFront)
{
    List.Clear();
    EXPECT_EQ(List.GetCount(), 0);
    EXPECT_THAT(destroyed, testing::ElementsAre(4, 2, 9));
}
} // namespace
