// No number makes a call, a picture or the pump take long or much memory, however large or small:
// elements out there are accepted, and it is the drawing that protects itself.
#include "fuzz/Engine.h"
#include "support/Effort.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <chrono>
#include <cmath>
#include <csignal>
#include <cstdio>
#include <ctime>
#include <sys/resource.h>
#include <unistd.h>

namespace
{
#ifdef __SANITIZE_ADDRESS__
constexpr double slowness = 5; // and hunger
#else
constexpr double slowness = 1;
#endif

long PeakKilobytes()
{
    rusage used = {};
    getrusage(RUSAGE_SELF, &used);
    return used.ru_maxrss;
}

const char* callAtWork = "";

class ExtremesProcess : public testing::Test
{
protected:
    ExtremesProcess()
    {
        Player.Begin(100);
        // A call that never ends says at least which it is.
        const auto giveUp = [](int)
        {
            std::fprintf(stderr, "no end of %s\n", callAtWork);
            _exit(2);
        };
        std::signal(SIGALRM, giveUp);
        for (const char* show : {"PickCoordinates", "CoordinateAxes", "Orientation"})
        {
            Player.Do("Tarvex_Window_" + std::string(show) + "_Show", {View(false), 1});
        }
        Player.Do("Tarvex_Window_Cube_Add_Resize", {View(false), -1, 0, 1, 0, 1, 0, 1});
    }

    double View(bool onChart) { return Player.GetModel().Views[onChart].at(0).Id; }

    // The call, pictures of the view by itself and with all that follows an element, and the pump.
    void Try(Call call, int32_t type)
    {
        const bool onChart = call.Called->OnChart;
        const double view = View(onChart);
        call.Scalars[0] = view;
        if (call.Called->Has(Role::Element) && type >= 0)
        {
            Call add = MakeGood(*FindAdd(onChart, type), {view});
            Player.Perform(add);
            call.Scalars[1] = add.Outputs[0][0];
        }
        const std::string what = call.Describe();
        callAtWork = what.c_str();
        const long before = PeakKilobytes();
        alarm(30);
        const std::clock_t clock = std::clock();
        const auto begin = std::chrono::steady_clock::now();
        Player.Perform(call);
        const std::vector<ModelElement>& elements = Player.GetModel().Views[onChart].at(0).Elements;
        const double element = elements.empty() ? -1 : elements.back().Id;
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        Player.Do(window + "SetActiveElement", {view, element});
        if (onChart)
        {
            Player.Do(window + "ChartAutoScale", {view, 1});
        }
        else
        {
            Player.Do(window + "ScalarBar_Add", {view, element});
            Player.Do(window + "Cube_Add_Resize", {view, element, 0, 1, 0, 1, 0, 1});
            Player.Do(window + "Camera_AutoSize", {view});
        }
        Player.Do("TarvexExt_ProcessEvents", {});
        const std::chrono::duration<double> took = std::chrono::steady_clock::now() - begin;
        const double used = static_cast<double>(std::clock() - clock) / CLOCKS_PER_SEC;
        const double seconds = std::min(took.count(), used); // others may be at work
        alarm(0);
        EXPECT_EQ(Player.GetComplaint(), "") << what;
        Player.ForgetComplaint();
        // One prop too far away would leave the camera without usable numbers for good.
        const Call camera = Player.Do("Tarvex_Window_Camera_GetPosition", {View(false)});
        EXPECT_TRUE(
            std::isfinite(camera.Outputs[0][0] + camera.Outputs[1][0] + camera.Outputs[2][0]))
            << what;
        const long grown = PeakKilobytes() - before;
        EXPECT_LT(seconds, 2 * slowness) << what;
        EXPECT_LT(grown, 200'000 * slowness) << what;
        Slowest = std::max(Slowest, seconds);
        Largest = std::max(Largest, grown);
        ++Cases;
        // Back to what is usual.
        Player.Do(onChart ? "Tarvex_Element2D_RemoveAll" : "Tarvex_Element_RemoveAll", {view});
        Player.Do(window + "UpdateSize", {view, 0, 0, 100, 100});
        Player.Do("Tarvex_Window_Camera_SetPredefinedView", {View(false), 0});
    }

    // Each number alone, and all together.
    void TryWith(double extreme, const Call& good, int32_t type, bool eachAlone)
    {
        Call all = good;
        size_t at = 0;
        size_t array = 0;
        for (const Role role : good.Called->Roles)
        {
            const std::map<Role, double> values = {
                {Role::Real, extreme}, {Role::Integer, INT32_MAX}, {Role::Unsigned, INT32_MAX}};
            if (const auto value = values.find(role); value != values.end())
            {
                Call one = good;
                one.Scalars[at] = value->second;
                // Whole numbers that large are mostly refused.
                const bool isTaken = role == Role::Real || good.Called->NameHas("UpdateSize");
                all.Scalars[at] = isTaken ? value->second : all.Scalars[at];
                if (eachAlone)
                {
                    Try(one, type);
                }
            }
            if (IsInput(role))
            {
                const double most = role == Role::Reals     ? extreme
                                    : role == Role::Samples ? INT16_MAX
                                                            : 0;
                for (double sign = 1; double& sample : all.Inputs[array++])
                {
                    sample = (sign = -sign) * most;
                }
            }
            at += IsInput(role) || role == Role::Output ? 0 : 1;
        }
        Try(all, type);
    }

    void TryEach(const std::string& prefix)
    {
        Numbers extremes = {1e300,  1e38,  DBL_TRUE_MIN, -1e300,  DBL_MAX / 2,
                            1e-300, -1e38, 1e15,         INFINITY};
        extremes.resize(Effort<size_t>(3, extremes.size()));
        for (const Function& function : AllFunctions())
        {
            const bool hasNumbers = function.Has(Role::Real) || function.Has(Role::Integer) ||
                                    function.Has(Role::Unsigned) || function.TakesArrays();
            const bool isMeant =
                function.Name.starts_with(prefix) && function.Has(Role::View) && hasNumbers;
            for (int32_t type = 0; isMeant && type <= TARVEX_ELEMENT_IMAGE; ++type)
            {
                const bool onElement = function.Has(Role::Element);
                const bool isOne = onElement && function.ElementType < 0
                                       ? FindAdd(function.OnChart, type) != nullptr
                                       : type == std::max(function.ElementType, 0);
                const Call good = MakeGood(function, Numbers(onElement ? 2 : 1));
                for (size_t at = 0; isOne && at < extremes.size(); ++at)
                {
                    TryWith(extremes[at], good, type, at == 0 || Effort(false, true));
                }
            }
        }
        ReportFigure("extremes", std::to_string(Cases) + " cases, at most " +
                                     std::to_string(Slowest) + " s and " +
                                     std::to_string(Largest / 1000) + " MB");
    }

    Engine Player{true, false};
    int Cases = 0;
    double Slowest = 0;
    long Largest = 0;
};

TEST_F(ExtremesProcess, DISABLED_InChartElements)
{
    TryEach("Tarvex_Element2D_");
}
TEST_F(ExtremesProcess, DISABLED_InElements)
{
    TryEach("Tarvex_Element_");
}
TEST_F(ExtremesProcess, DISABLED_InViews)
{
    for (const bool onChart : {false, true})
    {
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        const long before = PeakKilobytes();
        const Call made = Player.Do(window + "Create", {0, 1, 0, 0, INT32_MAX, INT32_MAX});
        Player.Do(window + "SetBackgroundColor", {made.Outputs[0][0], 1, 2, 3});
        EXPECT_LT(PeakKilobytes() - before, 200'000 * slowness) << window;
        Player.Do(window + "Delete", {made.Outputs[0][0]});
    }
    TryEach("Tarvex_Window");
    // Scale frames far away, with less extent than their numbers have digits.
    for (const double at : {1e7, -1e12, 1e15, 1e17, 1e29})
    {
        for (const double extent : {0.0, 3e-4, 0.375})
        {
            Try(MakeCall("Tarvex_Window_Cube_Add_Resize",
                         {View(false), -1, at, at + extent, 0, 1, at, at + extent}),
                -1);
        }
    }
}

TEST(Extremes, TakeNeitherLongNorMuchMemory)
{
    RunInProcesses("ExtremesProcess");
}
} // namespace
