// Views by their ids and positions.
#include "support/ViewFixture.h"

#include <gmock/gmock.h>

#include <vector>

namespace
{
class Registry : public testing::Test
{
protected:
    // Other tests may have used ids before: only differences count.
    Registry() { EXPECT_EQ(Tarvex_Window_DeleteAll(), STATUS_OK); }
    ~Registry() override { Tarvex_Window_DeleteAll(); }

    int32_t Create()
    {
        int32_t id = TARVEX_NONE;
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 0, 0, 0, 50, 50, &id), STATUS_OK);
        return id;
    }
    static std::vector<int32_t> List()
    {
        int32_t count = -1;
        EXPECT_EQ(Tarvex_Window_GetCount(&count), STATUS_OK);
        std::vector<int32_t> ids(static_cast<size_t>(count));
        for (int32_t index = 0; index < count; ++index)
        {
            EXPECT_EQ(Tarvex_Window_GetIDFromIndex(index, &ids[static_cast<size_t>(index)]),
                      STATUS_OK);
        }
        return ids;
    }

    TestHost Host;
};

TEST_F(Registry, ListsViewsInTheOrderOfTheirCreation)
{
    const int32_t first = Create();
    EXPECT_EQ(Create(), first + 1);
    EXPECT_EQ(Create(), first + 2);
    EXPECT_THAT(List(), testing::ElementsAre(first, first + 1, first + 2));
}

TEST_F(Registry, ClosesTheGapOfADeletedViewAndNeverGivesItsIdAgain)
{
    const int32_t first = Create();
    Create();
    Create();
    EXPECT_EQ(Tarvex_Window_Delete(first), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Delete(first), STATUS_WINDOW_NOT_FOUND);
    EXPECT_THAT(List(), testing::ElementsAre(first + 1, first + 2));
    EXPECT_EQ(Host.Children().size(), 2U) << "its native window is gone as well";
    EXPECT_EQ(Create(), first + 3);
}

TEST_F(Registry, RefusesPositionsOutsideTheList)
{
    Create();
    for (const int32_t index : {-1, 1, std::numeric_limits<int32_t>::max()})
    {
        int32_t id = 77;
        EXPECT_EQ(Tarvex_Window_GetIDFromIndex(index, &id), STATUS_BAD_INDEX) << index;
        EXPECT_EQ(id, TARVEX_NONE) << index;
    }
}

TEST_F(Registry, DeletesAllViewsAndGoesOnCounting)
{
    Create();
    const int32_t last = Create();
    EXPECT_EQ(Tarvex_Window_DeleteAll(), STATUS_OK);
    EXPECT_TRUE(List().empty());
    EXPECT_TRUE(Host.Children().empty());
    EXPECT_EQ(Tarvex_Window_DeleteAll(), STATUS_OK);
    EXPECT_EQ(Create(), last + 1);
}

TEST_F(Registry, KeepsViewsAndChartViewsApart)
{
    const int32_t id = Create();
    int32_t charts = -1;
    EXPECT_EQ(Tarvex_Window2D_GetCount(&charts), STATUS_OK);
    EXPECT_EQ(charts, 0);
    EXPECT_EQ(Tarvex_Window2D_Delete(id), STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(Tarvex_Window2D_RegisterCallback_ElementAdded(id, nullptr), STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(Tarvex_Window_RegisterCallback_ElementAdded(id, nullptr), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_RegisterCallback_ElementAdded(id + 1, nullptr),
              STATUS_WINDOW_NOT_FOUND);
    EXPECT_EQ(Tarvex_Window2D_GetIDFromIndex(0, &charts), STATUS_BAD_INDEX);
    EXPECT_EQ(charts, TARVEX_NONE);
    EXPECT_THAT(List(), testing::ElementsAre(id));
}

} // namespace
