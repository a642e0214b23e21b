// What stands between an export and the work: exceptions, the lock, VTK's messages.
#include "TarvexExt.h"
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <future>

namespace
{
std::string GetLastError()
{
    char text[4096] = {};
    EXPECT_EQ(TarvexExt_GetLastError(text, sizeof(text)), STATUS_OK);
    return text;
}

bool IsLockFree()
{
    // On another thread: its owner could always enter it again.
    const auto tryLock = []
    { return std::unique_lock(CWindowManager::GlobalLock, std::try_to_lock).owns_lock(); };
    return std::async(std::launch::async, tryLock).get();
}

TEST(Guarded, TurnsExceptionsIntoStatusesAndKeepsTheirTexts)
{
    std::string text;
    EXPECT_EQ(Guarded(text, []() -> int32_t { throw std::runtime_error("out of cheese"); }),
              STATUS_EXCEPTION);
    EXPECT_EQ(Guarded(text, []() -> int32_t { throw std::bad_alloc(); }), STATUS_OUT_OF_MEMORY);
    EXPECT_EQ(text, "out of cheese") << "nothing new is kept";
    EXPECT_EQ(GetLastError(), "out of cheese");
    EXPECT_THROW(Guarded(text, []() -> int32_t { throw 5; }), int) << "no standard exception";
}

TEST(LastErrorText, CutsWhatIsTooLong)
{
    LastErrorText::Set(std::string(10000, 'x').c_str());
    const std::string kept = GetLastError();
    EXPECT_GT(kept.size(), 1000U);
    EXPECT_EQ(kept, std::string(kept.size(), 'x'));
    LastErrorText::Set("");
    EXPECT_EQ(GetLastError(), "");
}

using CallFrame = ViewFixture;

TEST_F(CallFrame, LeavesTheLockWhenACallRaises)
{
    const auto raise = [](CWindow&) -> int32_t
    {
        EXPECT_FALSE(IsLockFree());
        throw std::runtime_error("in a call");
    };
    EXPECT_EQ(CWindowManager::Instance->Call<CWindow>(Id, raise), STATUS_EXCEPTION);
    EXPECT_TRUE(IsLockFree());
    EXPECT_EQ(GetLastError(), "in a call");
}

TEST_F(CallFrame, ForwardsEventsUnderTheLockAndSwallowsWhatTheyRaise)
{
    int reached = 0;
    const auto raise = [&](CWindow& view)
    {
        ++reached;
        EXPECT_EQ(view.Id, Id);
        EXPECT_FALSE(IsLockFree());
        EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK) << "an export out of an event";
        throw std::runtime_error("in an event");
    };
    CWindowManager::Forward<CWindow>(Id, raise);
    EXPECT_TRUE(IsLockFree());
    EXPECT_EQ(Tarvex_Window_Delete(Id), STATUS_OK);
    CWindowManager::Forward<CWindow>(Id, raise);
    CWindowManager::Forward<CWindow>(TARVEX_NONE, raise);
    EXPECT_EQ(reached, 1) << "not while the view is gone";
}

TEST_F(CallFrame, KeepsItsMessagesOffStandardErrorAndThoseOfTheHostsOwnVtkOnIt)
{
    const auto complain = [](CWindow& view) -> int32_t
    {
        vtkErrorWithObjectMacro(view.GetRenderer(), "a dim lamp");
        return STATUS_OK;
    };
    testing::internal::CaptureStderr();
    EXPECT_EQ(CWindowManager::Instance->Call<CWindow>(Id, complain), STATUS_OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_THAT(GetLastError(), testing::HasSubstr("a dim lamp"));
    testing::internal::CaptureStderr();
    vtkGenericWarningMacro("the host's own");
    EXPECT_THAT(testing::internal::GetCapturedStderr(), testing::HasSubstr("the host's own"));
    EXPECT_THAT(GetLastError(), testing::Not(testing::HasSubstr("the host's own")));
}
} // namespace
