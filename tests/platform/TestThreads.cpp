// Calls on several threads at once. What they write without a lock is the thread sanitizer's
// matter; here they must come through, and each must come to its turn.
#include "support/Effort.h"
#include "support/Functions.h"
#include "support/MouseFixture.h"
#include "support/TestView.h"

#include <atomic>
#include <chrono>
#include <thread>
#include <unistd.h>

// After the others, whose names Xlib's macros would break.
#include <X11/Xlib.h>

namespace
{
// Runs each action again and again on a thread of its own, and `here` on this one, for the time of
// the test. Ends the process should they wait for each other.
class Together
{
public:
    Together(const std::vector<std::function<void()>>& actions, const std::function<void()>& here)
        : Rounds(actions.size())
    {
        alarm(300); // seconds
        std::vector<std::thread> threads;
        for (size_t at = 0; at < actions.size(); ++at)
        {
            threads.emplace_back(
                [this, at, action = actions[at]]
                {
                    for (; !Stop; ++Rounds[at])
                    {
                        action();
                    }
                });
        }
        const auto isSlow = [this]
        { return std::any_of(Rounds.begin(), Rounds.end(), [](int count) { return count < 2; }); };
        const auto end =
            std::chrono::steady_clock::now() + std::chrono::milliseconds(Effort(400, 60000));
        for (int round = 0; std::chrono::steady_clock::now() < end || round < 20 || isSlow();
             ++round)
        {
            here();
        }
        Stop = true;
        for (std::thread& thread : threads)
        {
            thread.join();
        }
        alarm(0);
    }

    // How often each of them came round.
    std::vector<std::atomic<int>> Rounds;

private:
    std::atomic<bool> Stop = false;
};

void ExpectFine(int32_t status)
{
    EXPECT_EQ(status, STATUS_OK);
}

template <class Kind>
class ThreadsOnAView : public MouseFixture<Kind>
{
};
using Kinds = testing::Types<SceneKind, ChartKind>;
TYPED_TEST_SUITE(ThreadsOnAView, Kinds);
} // namespace

// One thread changes it in all ways while the other draws into it with the mouse, and the host's
// callbacks call back.
TYPED_TEST(ThreadsOnAView, ChangeItWhileTheMouseDraws)
{
    const int32_t id = this->Id;
    constexpr bool isChart = std::is_same_v<TypeParam, ChartKind>;
    if constexpr (!isChart)
    {
        // Onto the drawing plane.
        ExpectFine(Tarvex_Window_SetDrawSpace(id, -20, 20, -20, 20, -20, 20));
        ExpectFine(Tarvex_Window_Camera_SetPredefinedView(id, TARVEX_VIEW_FRONT));
    }
    const auto adds = FindAll([](const Function& function)
                              { return function.Adds && function.OnChart == isChart; });
    size_t at = 0;
    const auto change = [&]
    {
        const Function& add = *adds[at++ % adds.size()];
        Call added = MakeGood(add, {static_cast<double>(id)});
        ExpectFine(added.Perform());
        const double element = added.Outputs.back().at(0);
        if (const Function* set = FindChange(isChart, add.ElementType))
        {
            ExpectFine(MakeGood(*set, {static_cast<double>(id), element}).Perform());
        }
        EXPECT_EQ(TypeParam::Look(id).Width, this->Pixels);
        ExpectFine(TypeParam::Remove(id, static_cast<int32_t>(element)));
    };
    int answers = 0;
    answer = [&]
    {
        ExpectFine(TypeParam::SetActiveElement(id, lastElement));
        ExpectFine(TypeParam::Remove(id, lastElement));
        ExpectFine(TarvexExt_ProcessEvents());
        ++answers;
    };
    // Without waiting for what the view makes of it.
    const auto draw = [&]
    {
        ExpectFine(TypeParam::SetDrawMode(id, TARVEX_DRAW_CIRCLE));
        this->Host.MoveMouse(this->Native(), 90, 90);
        this->Host.Press(1);
        this->Host.MoveMouse(this->Native(), 120, 60);
        this->Host.Release(1);
        ExpectFine(TarvexExt_ProcessEvents());
    };
    const Together together({change}, draw);
    EXPECT_GT(answers, 0);
    ReportFigure("threads", std::to_string(together.Rounds[0]) + " changes and " +
                                std::to_string(answers) + " drawn elements in a " +
                                (isChart ? "chart" : "3D view"));
}

TEST(Threads, CreateDeleteDrawCountAndFailWhileAnotherPumps)
{
    TestHost host;
    TestView view(host.Handle(), 0, 0, 60, 50);
    const Picture before = TakePicture(view.Id);
    const auto count = [&]
    {
        int32_t views = 0;
        int32_t first = TARVEX_NONE;
        ExpectFine(Tarvex_Window_GetCount(&views));
        EXPECT_TRUE(views == 1 || views == 2) << views;
        ExpectFine(Tarvex_Window_GetIDFromIndex(0, &first));
        EXPECT_EQ(first, view.Id);
        ExpectFine(Tarvex_Window2D_GetCount(&views));
        EXPECT_TRUE(views == 0 || views == 1) << views;
    };
    const auto chart = [&]
    {
        int32_t id = TARVEX_NONE;
        ExpectFine(Tarvex_Window2D_Create(host.Handle(), 1, 100, 0, 60, 50, &id));
        ExpectFine(Tarvex_Window2D_SetBackgroundColor(id, 0, 0, 9));
        ExpectFine(Tarvex_Window2D_Delete(id));
    };
    const auto fail = [&]
    {
        EXPECT_EQ(CWindowManager::Instance->Call<CWindow>(
                      view.Id,
                      [](CWindow&) -> int32_t
                      { throw std::runtime_error("longer than any text that needs no memory"); }),
                  STATUS_EXCEPTION);
    };
    int step = 0;
    const Together together({[&] { ExpectFine(view.Render()); }, count, chart, fail,
                             [&]
                             { ExpectFine(TestView(host.Handle(), 100, 100, 60, 50).Created); }},
                            [&]
                            {
                                host.MoveMouse(host.Native, step % 300, step % 200);
                                ExpectFine(TarvexExt_ProcessEvents());
                                fail();
                                ++step;
                            });
    view.Render();
    EXPECT_EQ(TakePicture(view.Id).CountDifferences(before), 0);
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
    ReportFigure("threads", std::to_string(together.Rounds[2] + together.Rounds[4]) +
                                " views came and went beside " +
                                std::to_string(together.Rounds[0]) + " pictures");
}

// An error handler is the whole process's, so the library hears of the errors of all threads.
TEST(Threads, LeaveTheHostTheErrorsOfItsConnection)
{
    static std::atomic<int> errors;
    errors = 0;
    const XErrorHandler count = [](Display*, XErrorEvent*) { return ++errors; };
    const XErrorHandler before = XSetErrorHandler(count);
    TestHost host;
    TestHost viewHost;
    const TestView view(viewHost.Handle(), 0, 0, 60, 50);
    EXPECT_EQ(TestView(reinterpret_cast<void*>(0xdeadbeefUL)).Created, STATUS_OK);
    EXPECT_EQ(errors, 0);
    int made = 0;
    const Together together({[&]
                             {
                                 XDestroyWindow(host.Connection, 0xdeadbeefUL);
                                 XSync(host.Connection, False);
                                 ++made;
                             }},
                            [&] { ExpectFine(view.Render()); });
    EXPECT_EQ(errors, made);
    EXPECT_EQ(XSetErrorHandler(before), count);
}
