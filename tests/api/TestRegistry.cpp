// Views by their ids and positions.
#include "support/TestHost.h"

#include "Tarvex.h"

#include <gmock/gmock.h>

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
    // The ids by position, up to the first position that is refused.
    static std::vector<int32_t> List()
    {
        std::vector<int32_t> ids;
        int32_t id = 77;
        for (int32_t at = 0; Tarvex_Window_GetIDFromIndex(at, &id) == STATUS_OK; ++at)
        {
            ids.push_back(id);
        }
        EXPECT_EQ(id, TARVEX_NONE);
        EXPECT_EQ(Tarvex_Window_GetIDFromIndex(-1, &id), STATUS_BAD_INDEX);
        int32_t count = -1;
        EXPECT_EQ(Tarvex_Window_GetCount(&count), STATUS_OK);
        EXPECT_EQ(ids.size(), count);
        return ids;
    }

    TestHost Host;
};

TEST_F(Registry, ListsViewsByAgeAndNeverGivesAnIdAgain)
{
    const int32_t first = Create();
    EXPECT_EQ(Create(), first + 1);
    EXPECT_EQ(Create(), first + 2);
    EXPECT_EQ(Tarvex_Window_Delete(first), STATUS_OK);
    EXPECT_EQ(Tarvex_Window_Delete(first), STATUS_WINDOW_NOT_FOUND);
    EXPECT_THAT(List(), testing::ElementsAre(first + 1, first + 2));
    EXPECT_EQ(Host.Children().size(), 2U) << "its native window is gone as well";
    EXPECT_EQ(Tarvex_Window_Delete(first + 2), STATUS_OK);
    EXPECT_EQ(Create(), first + 3);
    EXPECT_EQ(Tarvex_Window_DeleteAll(), STATUS_OK);
    EXPECT_THAT(List(), testing::IsEmpty());
    EXPECT_TRUE(Host.Children().empty());
    EXPECT_EQ(Create(), first + 4);
}
} // namespace
