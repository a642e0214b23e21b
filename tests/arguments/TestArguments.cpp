// Every export with every kind of odd argument: the model knows the status, what the host's
// variables hold and what the views hold afterwards. Here stands how often a call draws, and that
// no number makes a call, a picture or the pump take long or much memory, however large or small:
// elements out there are accepted, and it is the drawing that protects itself.
#include "fuzz/Engine.h"
#include "platform/Inside.h"
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

#include <vtkRendererCollection.h>

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

// Has numbers that nobody measures.
bool IsExtreme(const Call& call)
{
    // At the very last number a camera is lost, as after an infinite one.
    constexpr double last = DBL_MAX / 2;
    const auto isIt = [](double number)
    {
        const double size = std::abs(number);
        return (size >= INT16_MAX && size <= last && number != TARVEX_INVALID_VALUE) ||
               std::isinf(size) || (size > 0 && size < 1e-30);
    };
    const std::vector<Role> roles = call.Called->GetScalarRoles();
    for (size_t at = 0; at < roles.size(); ++at)
    {
        if (roles[at] != Role::Count && isIt(call.Scalars[at]))
        {
            return true;
        }
    }
    return std::ranges::any_of(call.Inputs, [&](const Numbers& input)
                               { return std::ranges::any_of(input, isIt); });
}

std::string callAtWork; // one that never ends says at least which it is

enum class Draws
{
    Never,
    AfterSuccess,
    Always // but where an id is at fault
};

Draws HowItDraws(const Function& function)
{
    using enum Draws;
    // The first that has a part of its name.
    static const std::pair<Draws, std::vector<const char*>> known[] = {
        {Always, {"Length_Line", "GetPalette_SurfaceNonUniform"}},
        {AfterSuccess,
         {"Element_GetColor", "Element_GetTransparency", "Element_GetLighting", "Element_GetSize",
          "Surface_SetValue", "Element_SurfaceUniform_SetValue",
          "Element_SurfaceNonUniform_SetValue"}},
        {Never,
         {"_Get", "_HasValid", "_IsShown", "_RemoveAll", "_AddIntensity", "Default", "Image",
          "_Create", "_Delete", "RegisterCallback", "Interaction", "SetActiveElement",
          "SetDrawSpace", "UpdateSize", "2D_SetDrawMode", "SetChartLayout", "2D_Show",
          "TarvexExt_"}},
        {Always,
         {"_SetValue", "_AttachValues", "_SetMarkerSize", "_ChangePoint", "_InsertPoint",
          "_RemovePoint", "Polyhedron_Set", "_SetDrawLimit", "_SetDrawSize", "_SetPalette",
          "_ShowIntensity", "_ZScalingPalette"}}};
    for (const auto& [draws, parts] : known)
    {
        if (std::ranges::any_of(parts, [&](const char* part) { return function.NameHas(part); }))
        {
            return draws;
        }
    }
    return AfterSuccess;
}

constexpr double unknown = 999'999;
constexpr double most = INT32_MAX;
const Numbers limits = {1e-12, 1e-10, 1e-9, 1e-6, 1e-5, 1e-3, 0.1, 1, 8, 45, 100, 255};
const std::map<Role, Numbers> faults = {
    {Role::Real,
     {NAN, INFINITY, -INFINITY, DBL_MAX, -DBL_MAX, DBL_MIN, -9223372036854.5, 1e300, -1e300,
      DBL_TRUE_MIN, 0, -1, 1e38, -1e38, DBL_MAX / 2, 1e-300, 1e15}},
    {Role::Count, {-1, 0, 1, 2, 3, 46341, 65536, most}},
    {Role::Integer, {-1, 0, 1, 2, 3, 4, 6, 8, 16, 17, most, -most - 1}},
    {Role::Unsigned, {0, 1, 2, 6, 7, 8, most, UINT32_MAX}},
    {Role::Byte, {0}},
    {Role::Name, {0}}};

class ArgumentsProcess : public testing::Test
{
protected:
    ArgumentsProcess()
    {
        // The ids of the views are not the same.
        Player.Begin(20);
        Player.Do("Tarvex_Window2D_Create", {0, 1, 0, 0, 96, 96});
        Player.Do("Tarvex_Window2D_Create", {0, 1, 0, 0, 96, 96});
        Player.Begin(20);
        Watch(ViewOf(static_cast<int32_t>(View(false))));
        Watch(ViewOf<CWindow2D>(static_cast<int32_t>(View(true))));
        for (const bool onChart : {false, true})
        {
            for (int32_t type = 0; type <= TARVEX_ELEMENT_IMAGE; ++type)
            {
                const Function* add = FindAdd(onChart, type);
                Types[onChart] += add ? 1 : 0;
                add ? void(Add(*add, View(onChart))) : void();
            }
        }
        Player.Do("Tarvex_Window_Create", {0, 1, 0, 0, 100, 100});
        Player.Do("Tarvex_Window2D_Create", {0, 1, 0, 0, 100, 100});
        for (const char* show : {"PickCoordinates", "CoordinateAxes", "Orientation"})
        {
            Player.Do("Tarvex_Window_" + std::string(show) + "_Show", {View(false, 1), 1});
        }
        Player.Do("Tarvex_Window_Cube_Add_Resize", {View(false, 1), -1, 0, 1, 0, 1, 0, 1});
    }
    void Watch(CViewBase& view)
    {
        // Nothing has to be seen.
        view.GetRenderWindow()->GetRenderers()->GetFirstRenderer()->DrawOff();
        Pictures.push_back(std::make_unique<RenderCounter>(view));
    }
    // The first has an element of each type, the second is for what is drawn alone.
    double View(bool onChart, size_t at = 0) { return Player.GetModel().Views[onChart].at(at).Id; }
    const std::vector<ModelElement>& Elements(bool onChart, size_t view = 0)
    {
        return Player.GetModel().Views[onChart].at(view).Elements;
    }
    double Add(const Function& add, double view)
    {
        Call call = MakeGood(add, {view});
        Player.Perform(call);
        return call.Outputs[0][0];
    }
    void Target(Call& call, int32_t type, size_t view = 0)
    {
        const bool onChart = call.Called->OnChart;
        if (call.Called->Has(Role::View))
        {
            call.Scalars[0] = View(onChart, view);
        }
        if (type >= 0)
        {
            call.Scalars[1] = Add(*FindAdd(onChart, type), View(onChart, view));
        }
    }
    void ExpectNoComplaint(const std::string& what)
    {
        EXPECT_EQ(Player.GetComplaint(), "") << what;
        Player.ForgetComplaint();
    }

    void Check(Call call, bool idIsAtFault = false)
    {
        const bool onChart = call.Called->OnChart;
        Pictures[0]->Count = Pictures[1]->Count = 0;
        Player.Perform(call);
        const Draws draws = idIsAtFault ? Draws::Never : HowItDraws(*call.Called);
        const bool isDrawn =
            draws == Draws::Always || (draws == Draws::AfterSuccess && call.Status == STATUS_OK);
        // Hiding what is hidden draws nothing, nor does the mode without a shape.
        const bool rests = call.Called->NameHas("Orientation_Show", "PickCoordinates_Show")
                               ? call.Scalars[1] == 0
                               : call.Called->NameHas("SetDrawMode") &&
                                     call.Scalars[1] == double{TARVEX_DRAW_NO_SHAPE};
        EXPECT_LE(Pictures[onChart]->Count, isDrawn ? 1 : 0) << call.Describe();
        EXPECT_TRUE(rests || isDrawn == (Pictures[onChart]->Count == 1)) << call.Describe();
        EXPECT_EQ(Pictures[!onChart]->Count, 0) << call.Describe();
        Player.LookAfter(call);
        ExpectNoComplaint(call.Describe());
        ++Calls;
    }

    // Ids that are none, with all other arguments as bad as can be.
    void CheckIds(const Function& function)
    {
        const bool onElement = function.Has(Role::Element);
        Call worst = MakeGood(function, Numbers(onElement ? 2 : 1));
        const std::vector<Role> roles = function.GetScalarRoles();
        for (size_t at = onElement ? 2 : 1; at < roles.size(); ++at)
        {
            const bool isWhole = roles[at] == Role::Count || roles[at] == Role::Integer;
            worst.Scalars[at] = roles[at] == Role::Real ? NAN : isWhole ? -1 : 0;
        }
        worst.NullArray = function.TakesArrays() ? 0 : SIZE_MAX;
        for (const double view : {unknown, -1.0, View(!function.OnChart)})
        {
            worst.Scalars[0] = view;
            Check(worst, true);
        }
        worst.Scalars[0] = View(function.OnChart);
        // Below zero there is none that a view could mean.
        Numbers others = {unknown, -2.0, INT32_MIN};
        others.resize(!onElement ? 0 : function.Name.starts_with("Tarvex_Element") ? 3 : 1);
        for (const ModelElement& other : Elements(function.OnChart))
        {
            if (onElement && function.ElementType >= 0 && function.ElementType != other.Type)
            {
                others.push_back(other.Id);
            }
        }
        for (const double other : others)
        {
            worst.Scalars[1] = other;
            Check(worst, true);
        }
    }

    // Each argument at fault alone, on both sides of each limit, and some together.
    static std::vector<Call> MakeProbes(const Call& good)
    {
        std::vector<Call> probes = {good};
        const std::vector<Role> roles = good.Called->GetScalarRoles();
        for (size_t at = 0; at < roles.size(); ++at)
        {
            // No further than the role goes.
            const auto probe = [&](const Numbers& given)
            {
                Call& call = probes.emplace_back(good);
                for (size_t i = at;
                     i - at < given.size() && i < roles.size() && roles[i] == roles[at]; ++i)
                {
                    call.Scalars[i] = given[i - at];
                }
            };
            const auto values = faults.find(roles[at]);
            for (const double value : values == faults.end() ? Numbers() : values->second)
            {
                probe({value});
                probe({value, value});
                probe(Numbers(roles.size(), value));
            }
            for (const double limit : roles[at] == Role::Real ? limits : Numbers())
            {
                for (const double side : {0.9 * limit, 1.1 * limit, -0.9 * limit, -1.1 * limit})
                {
                    probe({side});
                    probe({0, side});
                    probe({0, 0, side});
                    probe({1, 1, 1, 1, 1, 1 + side});
                }
            }
        }
        for (size_t array = 0; array < good.Inputs.size() + good.Called->OutputArrays; ++array)
        {
            probes.emplace_back(good).NullArray = array;
        }
        std::vector<Role> inputs;
        std::ranges::copy_if(good.Called->Roles, std::back_inserter(inputs), IsInput);
        for (size_t array = 0; array < inputs.size(); ++array)
        {
            // Without one number, or without any sample.
            Numbers& spoilt = probes.emplace_back(good).Inputs[array];
            spoilt[0] = inputs[array] == Role::Reals ? NAN : 0;
            spoilt.assign(spoilt.size(),
                          inputs[array] == Role::Samples ? TARVEX_INVALID_VALUE : spoilt[0]);
        }
        // Up and down.
        for (const double extreme : inputs.empty() ? Numbers() : faults.at(Role::Real))
        {
            Call& call = probes.emplace_back(good);
            for (size_t array = 0; array < inputs.size(); ++array)
            {
                const double size = inputs[array] == Role::Reals     ? extreme
                                    : inputs[array] == Role::Samples ? INT16_MAX
                                                                     : 0;
                for (double sign = 1; double& number : call.Inputs[array])
                {
                    number = (sign = -sign) * size;
                }
            }
        }
        return probes;
    }

    void CheckValues(const Function& function)
    {
        const bool onChart = function.OnChart;
        const bool onView = function.Has(Role::View);
        const bool onElement = function.Has(Role::Element);
        std::vector<int32_t> types = {-1}; // of the elements that it is for
        for (int32_t type = 0; onElement && type <= TARVEX_ELEMENT_IMAGE; ++type)
        {
            const bool isFor = function.ElementType < 0 || function.ElementType == type;
            isFor&& FindAdd(onChart, type) ? types.push_back(type) : void();
        }
        types.erase(types.begin(), types.begin() + (onElement ? 1 : 0));
        const std::vector<Call> probes =
            MakeProbes(MakeGood(function, Numbers(onView ? onElement ? 2 : 1 : 0)));
        const size_t step = Effort(11, 1);
        for (const int32_t type : types)
        {
            for (size_t at = 0; at < probes.size(); at += at == 0 ? 1 : step)
            {
                Call call = probes[at];
                call.FitInputs();
                const bool draws = onView && at / step % Effort(3, 1) == 0 && IsExtreme(call);
                draws ? Draw(call, type) : void();
                Target(call, type);
                Check(call);
                RemoveOthers(onChart);
            }
        }
        if (!onElement)
        {
            Call good = probes[0]; // back to what is usual
            Target(good, -1);
            Player.Perform(good);
            RemoveOthers(onChart);
        }
        // All that stayed is as it was.
        for (const ModelElement& element : Elements(onChart))
        {
            Player.LookAfter(
                MakeCall(onChart ? "Tarvex_Element2D_GetType" : "Tarvex_Element_GetType",
                         {View(onChart), static_cast<double>(element.Id)}));
        }
        ExpectNoComplaint(function.Name);
    }
    // The elements but the first of each type.
    void RemoveOthers(bool onChart)
    {
        while (Elements(onChart).size() > Types[onChart])
        {
            Player.Do(onChart ? "Tarvex_Element2D_Remove" : "Tarvex_Element_Remove",
                      {View(onChart), static_cast<double>(Elements(onChart).back().Id)});
        }
    }

    // The call, pictures of the view by itself and with all that follows an element, and the pump.
    void Draw(Call call, int32_t type)
    {
        const bool onChart = call.Called->OnChart;
        const double view = View(onChart, 1);
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        Target(call, type, 1);
        const std::string what = call.Describe();
        const long before = PeakKilobytes();
        callAtWork = what + " does not end\n";
        std::signal(SIGALRM,
                    [](int)
                    {
                        std::fputs(callAtWork.c_str(), stderr);
                        _exit(2);
                    });
        alarm(30); // seconds
        const std::clock_t clock = std::clock();
        const auto begin = std::chrono::steady_clock::now();
        Player.Perform(call);
        const double element = Elements(onChart, 1).empty() ? -1 : Elements(onChart, 1).back().Id;
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
        ExpectNoComplaint(what);
        // One prop too far away would leave the camera without usable numbers for good.
        for (const Numbers& axis :
             Player.Do("Tarvex_Window_Camera_GetPosition", {View(false, 1)}).Outputs)
        {
            EXPECT_TRUE(std::isfinite(axis[0])) << what;
        }
        const long grown = PeakKilobytes() - before;
        EXPECT_LT(seconds, 2 * slowness) << what;
        EXPECT_LT(grown, 200'000 * slowness) << what;
        Slowest = std::max(Slowest, seconds);
        Largest = std::max(Largest, grown);
        ++Drawn;
        // Back to what is usual.
        Player.Do(onChart ? "Tarvex_Element2D_RemoveAll" : "Tarvex_Element_RemoveAll", {view});
        Player.Do(window + "UpdateSize", {view, 0, 0, 100, 100});
        Player.Do("Tarvex_Window_Camera_SetPredefinedView", {View(false, 1), 0});
    }

    // Every fourth function, from one of the first.
    void CheckQuarter(size_t first)
    {
        for (size_t at = first; at < AllFunctions().size(); at += 4)
        {
            const Function& function = AllFunctions()[at];
            Player.Do("Tarvex_Window_Cube_Add_Resize", {View(false), -1, 0, 1, 0, 1, 0, 1});
            Player.Do("Tarvex_Window_ScalarBar_Add", {View(false), 0});
            function.Has(Role::View) ? CheckIds(function) : void();
            // Their success is the end of too much.
            const bool isEnd = function.NameHas("Create") || function.NameHas("Delete") ||
                               function.NameHas("RemoveAll") || function.NameHas("TarvexExt_");
            isEnd ? void() : CheckValues(function);
        }
        ReportFigure("arguments", std::to_string(Calls) + " calls of every fourth function, " +
                                      std::to_string(Drawn) + " drawn in at most " +
                                      std::to_string(Slowest) + " s and " +
                                      std::to_string(Largest / 1000) + " MB");
    }

    Engine Player{true, false};
    size_t Types[2] = {};
    std::vector<std::unique_ptr<RenderCounter>> Pictures;
    int Calls = 0;
    int Drawn = 0;
    double Slowest = 0;
    long Largest = 0;
};

TEST_F(ArgumentsProcess, DISABLED_OfTheFirstQuarterAreJudgedInTheirOrder)
{
    CheckQuarter(0);
}
TEST_F(ArgumentsProcess, DISABLED_OfTheSecondQuarterAreJudgedInTheirOrder)
{
    CheckQuarter(1);
}
TEST_F(ArgumentsProcess, DISABLED_OfTheThirdQuarterAreJudgedInTheirOrder)
{
    CheckQuarter(2);
}
TEST_F(ArgumentsProcess, DISABLED_OfTheFourthQuarterAreJudgedInTheirOrder)
{
    CheckQuarter(3);
}
TEST_F(ArgumentsProcess, DISABLED_OfViewsAndFramesMayBeHuge)
{
    for (const std::string window : {"Tarvex_Window_", "Tarvex_Window2D_"})
    {
        const long before = PeakKilobytes();
        const Call made = Player.Do(window + "Create", {0, 1, 0, 0, INT32_MAX, INT32_MAX});
        Player.Do(window + "SetBackgroundColor", {made.Outputs[0][0], 1, 2, 3});
        EXPECT_LT(PeakKilobytes() - before, 200'000 * slowness) << window;
        Player.Do(window + "Delete", {made.Outputs[0][0]});
    }
    // Scale frames far away, with less extent than their numbers have digits.
    for (const double at : {1e7, -1e12, 1e15, 1e17, 1e29})
    {
        for (const double extent : {0.0, 3e-4, 0.375})
        {
            Draw(MakeCall("Tarvex_Window_Cube_Add_Resize",
                          {View(false, 1), -1, at, at + extent, 0, 1, at, at + extent}),
                 -1);
        }
    }
}

// Defaults are the process's, as is the driver.
TEST(Arguments, OfEachExportAreJudged)
{
    RunInProcesses("ArgumentsProcess");
}
} // namespace
