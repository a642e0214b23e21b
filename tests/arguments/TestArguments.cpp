// Every export with every kind of bad argument: the model knows the status, what the host's
// variables hold and what the views hold afterwards. Here stands how often a call draws.
#include "fuzz/Engine.h"
#include "platform/Inside.h"
#include "support/Effort.h"
#include "support/Process.h"

#include <gtest/gtest.h>

#include <cfloat>
#include <cmath>

#include <vtkRendererCollection.h>

namespace
{
enum class Draws
{
    Never,
    AfterSuccess,
    Always // but where an id is at fault
};

Draws HowItDraws(const Function& function)
{
    using enum Draws;
    // The first that its name has.
    static const std::pair<const char*, Draws> known[] = {
        {"Length_Line", Always},
        {"GetPalette_SurfaceNonUniform", Always},
        {"Element_GetColor", AfterSuccess},
        {"Element_GetTransparency", AfterSuccess},
        {"Element_GetLighting", AfterSuccess},
        {"Element_GetSize", AfterSuccess},
        {"Surface_SetValue", AfterSuccess},
        {"Element_SurfaceUniform_SetValue", AfterSuccess},
        {"Element_SurfaceNonUniform_SetValue", AfterSuccess}};
    for (const auto& [part, draws] : known)
    {
        if (function.NameHas(part))
        {
            return draws;
        }
    }
    const auto hasOneOf = [&](const std::vector<const char*>& parts) {
        return std::ranges::any_of(parts, [&](const char* part) { return function.NameHas(part); });
    };
    return hasOneOf({"_Get", "_HasValid", "_IsShown", "_RemoveAll", "_AddIntensity", "Default",
                     "Image", "_Create", "_Delete", "RegisterCallback", "Interaction",
                     "SetActiveElement", "SetDrawSpace", "UpdateSize", "2D_SetDrawMode",
                     "SetChartLayout", "2D_Show", "TarvexExt_"})
               ? Never
           : hasOneOf({"_SetValue", "_AttachValues", "_SetMarkerSize", "_ChangePoint",
                       "_InsertPoint", "_RemovePoint", "Polyhedron_Set", "_SetDrawLimit",
                       "_SetDrawSize", "_SetPalette", "_ShowIntensity", "_ZScalingPalette"})
               ? Always
               : AfterSuccess;
}

constexpr double unknown = 999'999;
constexpr double most = INT32_MAX;
const Numbers limits = {1e-12, 1e-10, 1e-9, 1e-6, 1e-5, 1e-3, 0.1, 1, 8, 45, 100, 255};
const std::map<Role, Numbers> faults = {
    {Role::Real,
     {NAN, INFINITY, -INFINITY, DBL_MAX, -DBL_MAX, DBL_MIN, -9223372036854.5, 1e300, -1e300,
      DBL_TRUE_MIN, 0, -1}},
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
        Player.Begin(20);
        for (const bool onChart : {false, true})
        {
            const double id = View(onChart);
            CViewBase& view = onChart ? static_cast<CViewBase&>(ViewOf<CWindow2D>(int32_t(id)))
                                      : static_cast<CViewBase&>(ViewOf(int32_t(id)));
            // Nothing has to be seen.
            view.GetRenderWindow()->GetRenderers()->GetFirstRenderer()->DrawOff();
            Pictures.push_back(std::make_unique<RenderCounter>(view));
            for (int32_t type = 0; type <= TARVEX_ELEMENT_IMAGE; ++type)
            {
                if (const Function* add = FindAdd(onChart, type))
                {
                    Types[onChart].push_back(type);
                    Make(MakeGood(*add, {id}));
                }
            }
        }
    }
    double View(bool onChart) { return Player.GetModel().Views[onChart].at(0).Id; }
    Call Make(Call call)
    {
        Player.Perform(call);
        return call;
    }

    void Check(Call call, bool idIsAtFault = false)
    {
        const bool onChart = call.Called->OnChart;
        Pictures[0]->Count = Pictures[1]->Count = 0;
        Player.Perform(call);
        const Draws draws = idIsAtFault ? Draws::Never : HowItDraws(*call.Called);
        const bool isDrawn =
            draws == Draws::Always || (draws == Draws::AfterSuccess && call.Status == STATUS_OK);
        EXPECT_EQ(Pictures[onChart]->Count, isDrawn ? 1 : 0) << call.Describe();
        EXPECT_EQ(Pictures[!onChart]->Count, 0) << call.Describe();
        Player.LookAfter(call);
        EXPECT_EQ(Player.GetComplaint(), "") << call.Describe();
        Player.ForgetComplaint();
        ++Calls;
    }

    // The model's elements but the first of each type.
    void RemoveOthers(bool onChart)
    {
        const std::vector<ModelElement> elements = Player.GetModel().Views[onChart].at(0).Elements;
        for (size_t at = Types[onChart].size(); at < elements.size(); ++at)
        {
            Player.Do(onChart ? "Tarvex_Element2D_Remove" : "Tarvex_Element_Remove",
                      {View(onChart), static_cast<double>(elements[at].Id)});
        }
    }
    void LookAfterAll(bool onChart)
    {
        for (const ModelElement& element : Player.GetModel().Views[onChart].at(0).Elements)
        {
            Player.LookAfter(
                MakeCall(onChart ? "Tarvex_Element2D_GetType" : "Tarvex_Element_GetType",
                         {View(onChart), static_cast<double>(element.Id)}));
        }
        EXPECT_EQ(Player.GetComplaint(), "");
        Player.ForgetComplaint();
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
        for (const double element : {unknown, -2.0, double{INT32_MIN}})
        {
            // Below zero there is none that a view could mean.
            const bool isNone = element < 0 && !function.Name.starts_with("Tarvex_Element");
            if (onElement && !isNone)
            {
                worst.Scalars[1] = element;
                Check(worst, true);
            }
        }
        for (const ModelElement& other : Player.GetModel().Views[function.OnChart].at(0).Elements)
        {
            if (onElement && function.ElementType >= 0 && function.ElementType != other.Type)
            {
                worst.Scalars[1] = other.Id;
                Check(worst, true);
            }
        }
    }

    // Each argument at fault alone, on both sides of each limit, and some together.
    static std::vector<Call> MakeProbes(const Call& good)
    {
        std::vector<Call> probes = {good};
        const std::vector<Role> roles = good.Called->GetScalarRoles();
        const auto probe = [&](size_t at, const Numbers& given)
        {
            Call& call = probes.emplace_back(good);
            const Role role = roles[at];
            for (size_t next = 0; next < given.size() && at < roles.size() && roles[at] == role;)
            {
                call.Scalars[at++] = given[next++];
            }
        };
        size_t at = 0;
        size_t array = 0;
        for (const Role role : good.Called->Roles)
        {
            const auto values = faults.find(role);
            for (const double value : values == faults.end() ? Numbers() : values->second)
            {
                probe(at, {value});
                probe(at, {value, value});
            }
            for (const double limit : role == Role::Real ? limits : Numbers())
            {
                for (const double side : {0.9 * limit, 1.1 * limit, -0.9 * limit, -1.1 * limit})
                {
                    probe(at, {side});
                    probe(at, {0, side});
                    probe(at, {0, 0, side});
                    probe(at, {1, 1, 1, 1, 1, 1 + side});
                }
            }
            if (IsInput(role))
            {
                // Without one number, or without any sample.
                Numbers& spoilt = probes.emplace_back(good).Inputs[array++];
                spoilt[0] = role == Role::Reals ? NAN : 0;
                spoilt.assign(spoilt.size(),
                              role == Role::Samples ? TARVEX_INVALID_VALUE : spoilt[0]);
            }
            at += IsInput(role) || role == Role::Output ? 0 : 1;
        }
        for (array = 0; array < good.Inputs.size() + good.Called->OutputArrays; ++array)
        {
            probes.emplace_back(good).NullArray = array;
        }
        return probes;
    }

    void CheckValues(const Function& function)
    {
        const bool onElement = function.Has(Role::Element);
        const bool onChart = function.OnChart;
        const std::vector<int32_t> all = Types[onChart];
        const bool isForOne = function.ElementType >= 0 || !onElement;
        for (const int32_t type : isForOne ? std::vector{function.ElementType} : all)
        {
            Numbers ids = {View(onChart), 0};
            ids.resize(function.Has(Role::View) ? onElement ? 2 : 1 : 0);
            const std::vector<Call> probes = MakeProbes(MakeGood(function, ids));
            const size_t step = Effort(7, 1);
            for (size_t at = 0; at < probes.size(); at += at == 0 ? 1 : step)
            {
                Call call = probes[at];
                if (onElement)
                {
                    Call add = MakeGood(*FindAdd(onChart, type), {View(onChart)});
                    Player.Perform(add);
                    call.Scalars[1] = add.Outputs[0][0];
                }
                call.FitInputs();
                Check(call);
                RemoveOthers(onChart);
            }
            if (!onElement)
            {
                Make(probes[0]); // back to what is good
                RemoveOthers(onChart);
            }
        }
        LookAfterAll(onChart);
    }

    Engine Player{true, false};
    std::vector<int32_t> Types[2];
    std::vector<std::unique_ptr<RenderCounter>> Pictures;
    int Calls = 0;
};

TEST_F(ArgumentsProcess, DISABLED_AreJudgedInTheirOrderAndFailuresChangeNothing)
{
    for (const Function& function : AllFunctions())
    {
        Player.Do("Tarvex_Window_Cube_Add_Resize", {View(false), -1, 0, 1, 0, 1, 0, 1});
        Player.Do("Tarvex_Window_ScalarBar_Add", {View(false), 0});
        if (function.Has(Role::View))
        {
            CheckIds(function);
        }
        // Their success is the end of too much.
        const bool isEnd = function.NameHas("Create") || function.NameHas("Delete") ||
                           function.NameHas("RemoveAll") || function.NameHas("TarvexExt_");
        if (!isEnd)
        {
            CheckValues(function);
        }
    }
    ReportFigure("arguments", std::to_string(Calls) + " calls of " +
                                  std::to_string(AllFunctions().size()) + " functions");
}

// Defaults are the process's, as is the driver.
TEST(Arguments, OfEachExportAreJudged)
{
    RunInProcesses("ArgumentsProcess");
}
} // namespace
