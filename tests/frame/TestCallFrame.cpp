// What stands between an export and the work: exceptions, the lock, VTK's messages.
#include "TarvexExt.h"
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <future>
#include <new>
#include <stdexcept>
#include <string>

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
    {
        const std::unique_lock lock(CWindowManager::GlobalLock, std::try_to_lock);
        return lock.owns_lock();
    };
    return std::async(std::launch::async, tryLock).get();
}

TEST(Guarded, TurnsExceptionsIntoStatusesAndKeepsTheirTexts)
{
    std::string text;
    EXPECT_EQ(Guarded(text, []() -> int32_t { throw std::runtime_error("out of cheese"); }),
              STATUS_EXCEPTION);
    EXPECT_EQ(text, "out of cheese");
    EXPECT_EQ(GetLastError(), "out of cheese");
    EXPECT_EQ(Guarded(text, []() -> int32_t { throw std::bad_alloc(); }), STATUS_OUT_OF_MEMORY);
    EXPECT_EQ(text, "out of cheese") << "nothing new is kept";
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

class CallFrame : public ViewFixture
{
protected:
    template <class Action>
    int32_t Call(Action&& action)
    {
        return CWindowManager::Instance->Call<CWindow>(Id, std::forward<Action>(action));
    }
};

TEST_F(CallFrame, LeavesTheLockWhenACallRaises)
{
    const auto raise = [](CWindow&) -> int32_t
    {
        EXPECT_FALSE(IsLockFree());
        throw std::runtime_error("in a call");
    };
    EXPECT_EQ(Call(raise), STATUS_EXCEPTION);
    EXPECT_TRUE(IsLockFree());
    EXPECT_EQ(GetLastError(), "in a call");
}

TEST_F(CallFrame, ForwardsEventsUnderTheLockAndSwallowsWhatTheyRaise)
{
    int32_t reached = TARVEX_NONE;
    const auto raise = [&](CWindow& view)
    {
        reached = view.Id;
        EXPECT_FALSE(IsLockFree());
        EXPECT_EQ(Tarvex_Element_RemoveAll(Id), STATUS_OK) << "an export out of an event";
        throw std::runtime_error("in an event");
    };
    CWindowManager::Forward<CWindow>(Id, raise);
    EXPECT_EQ(reached, Id);
    EXPECT_TRUE(IsLockFree());
}

TEST_F(CallFrame, DropsAnEventForAViewThatIsGone)
{
    EXPECT_EQ(Tarvex_Window_Delete(Id), STATUS_OK);
    for (const int32_t gone : {Id, Id + 1, TARVEX_NONE})
    {
        CWindowManager::Forward<CWindow>(gone, [](CWindow&) { ADD_FAILURE() << "reached a view"; });
    }
}

TEST_F(CallFrame, KeepsMessagesOfVtkOffStandardError)
{
    const auto complain = [](CWindow& view) -> int32_t
    {
        vtkErrorWithObjectMacro(view.GetRenderer(), "a dim lamp");
        return STATUS_OK;
    };
    testing::internal::CaptureStderr();
    EXPECT_EQ(Call(complain), STATUS_OK);
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_NE(GetLastError().find("a dim lamp"), std::string::npos) << GetLastError();
}

TEST_F(CallFrame, LeavesTheMessagesOfTheHostsOwnVtkAlone)
{
    LookDown();
    testing::internal::CaptureStderr();
    vtkGenericWarningMacro("the host's own");
    EXPECT_NE(testing::internal::GetCapturedStderr().find("the host's own"), std::string::npos);
    EXPECT_EQ(GetLastError().find("the host's own"), std::string::npos);
}
} // namespace
