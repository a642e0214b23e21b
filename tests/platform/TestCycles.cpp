// Views that come and go, and views that change for long.
#include "TarvexExt.h"
#include "support/Effort.h"
#include "support/Functions.h"
#include "support/Process.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <gtest/gtest.h>

#include <chrono>
#include <random>

namespace
{
// By how many kilobytes the memory has grown; nothing else may.
long CheckGrowth(const Holdings& before, [[maybe_unused]] long most)
{
    const Holdings now;
    EXPECT_EQ(now.Descriptors, before.Descriptors);
    EXPECT_EQ(now.Threads, before.Threads);
    const long grown = now.Kilobytes - before.Kilobytes;
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory
    EXPECT_LT(grown, most);
#endif
    return grown;
}

// Of 3D views, and of charts.
using Cycles = testing::TestWithParam<bool>;
INSTANTIATE_TEST_SUITE_P(OfViews, Cycles, testing::Bool());
} // namespace

TEST_P(Cycles, LeaveNothingBehindHoweverTheParentEnds)
{
    const std::string view = GetParam() ? "Tarvex_Window2D_" : "Tarvex_Window_";
    const auto adds = FindAll([](const Function& function)
                              { return function.Adds && function.OnChart == GetParam(); });
    TestHost keeper;
    TestView kept(keeper.Handle());
    const Picture picture = TakePicture(kept.Id);
    const int count = Effort(45, 2000);
    const int first = Effort(15, 200);
    Holdings before;
    for (int cycle = 0; cycle < first + count; ++cycle)
    {
        if (cycle == first)
        {
            before = {};
        }
        TestHost host;
        Hosted::Parents[0] = host.Handle();
        Call create = MakeCall(view + "Create", {0, 1, 0, 0, 200, 150});
        ASSERT_EQ(create.Perform(), STATUS_OK);
        const double id = create.Outputs.at(0).at(0);
        const Function& add = *adds[static_cast<size_t>(cycle) % adds.size()];
        ASSERT_EQ(MakeGood(add, {id}).Perform(), STATUS_OK);
        ASSERT_EQ(MakeCall(view + "SetBackgroundColor", {id, 0, 0, 9}).Perform(), STATUS_OK);
        if (cycle % 3 == 1)
        {
            host.Destroy();
        }
        else if (cycle % 3 == 2)
        {
            host.CloseConnection();
        }
        ASSERT_EQ(MakeCall(view + "Delete", {id}).Perform(), STATUS_OK);
        // Events wait until somebody takes them.
        ASSERT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    }
    const long grown = CheckGrowth(before, Effort(2000, count));
    EXPECT_EQ(kept.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(kept.Id).CountDifferences(picture), 0);
    ReportFigure("cycles", std::to_string(count) + (GetParam() ? " charts: " : " 3D views: ") +
                               std::to_string(1024 * grown / count) + " bytes each");
}

TEST(Soak, LiveDataTakesNoMoreMemoryThanAfterAMinute)
{
    TestHost host;
    int32_t views[2] = {};
    ASSERT_EQ(Tarvex_Window_Create(host.Handle(), 1, 0, 0, 200, 150, &views[0]), STATUS_OK);
    ASSERT_EQ(Tarvex_Window2D_Create(host.Handle(), 1, 200, 0, 200, 150, &views[1]), STATUS_OK);
    const auto adds = FindAll(
        [](const Function& function)
        { return function.Adds && (function.Has(Role::Samples) || function.Has(Role::Bytes)); });
    std::vector<double> elements(adds.size());
    std::minstd_rand random(5); // NOLINT: the same data in each run
    int rounds = 0;
    // New samples on ever other grids, in the same element where that can be.
    const auto updateFor = [&](int seconds)
    {
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(seconds);
        for (; rounds == 0 || std::chrono::steady_clock::now() < end; ++rounds)
        {
            for (size_t at = 0; at < adds.size(); ++at)
            {
                const bool onChart = adds[at]->OnChart;
                const double view = views[onChart];
                const Function* change = FindChange(onChart, adds[at]->ElementType);
                const bool isNew = rounds == 0 || !change;
                if (isNew && rounds > 0)
                {
                    const Function& remove = FindFunction("Tarvex_Element_Remove");
                    ASSERT_EQ(MakeGood(remove, {view, elements[at]}).Perform(), STATUS_OK);
                }
                Call call = MakeGood(isNew ? *adds[at] : *change,
                                     isNew ? Numbers{view} : Numbers{view, elements[at]},
                                     40 + rounds % 7 * 5);
                for (Numbers& input : call.Inputs)
                {
                    for (double& number : input)
                    {
                        number = number < 0 ? number : random() % 200; // none stays none
                    }
                }
                ASSERT_EQ(call.Perform(), STATUS_OK) << call.Describe();
                elements[at] = isNew ? call.Outputs.back().at(0) : elements[at];
            }
            ASSERT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
        }
    };
    updateFor(Effort(1, 60));
    const Holdings before;
    updateFor(Effort(1, 240));
    const long grown = CheckGrowth(before, Effort(20000, 5000));
    EXPECT_EQ(Tarvex_Window_Delete(views[0]), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_Delete(views[1]), STATUS_OK);
    ReportFigure("soak", std::to_string(rounds) + " live updates: " + std::to_string(grown) +
                             " kB more than after the first ones");
}
