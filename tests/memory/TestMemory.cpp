// What each function does when memory runs out under it, at each place where it asks for some.
#include "TarvexExt.h"
#include "memory/FailingAllocations.h"
#include "support/Effort.h"
#include "support/Functions.h"
#include "support/Picture.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <memory>

namespace
{
using Parts = std::vector<std::string>;

bool HasOne(const Function& function, const Parts& parts)
{
    return std::ranges::any_of(parts, [&](const std::string& part)
                               { return function.NameHas(part.c_str()); });
}

bool IsRead(const Function& function)
{
    return function.Name.starts_with("Tarvex_") &&
           HasOne(function, {"_Get", "_HasValidValues", "_IsShown"});
}

// All that can be read of a view, and its picture, drawn anew.
struct State
{
    // Empty if it is the same.
    std::string Differs(const State& other) const
    {
        for (size_t read = 0; read < Reads.size(); ++read)
        {
            const Call& expected = other.Reads.at(read);
            if (Reads[read].Status != expected.Status || Reads[read].Outputs != expected.Outputs)
            {
                return Reads[read].Describe() + " instead of " + expected.Describe();
            }
        }
        const int pixels = Shown.CountDifferences(other.Shown);
        return pixels == 0 ? "" : std::to_string(pixels) + " pixels" + Cause;
    }

    std::vector<Call> Reads;
    Picture Shown;
    std::string Cause; // what failed before
};

constexpr int muchData = 340; // columns, and rows

// Where good numbers of any kind would not do, or would hide others.
const std::vector<std::pair<std::string, Numbers>> rows = {
    {"_Create", {0, 1, 0, 0, 180, 160}},
    {"_UpdateSize", {0, 0, 300, 120}},
    {"_GetIDFromIndex", {0}},
    {"_SetZoom", {1}},
    {"_SetChartLayout", {TARVEX_CHART_LIGHT}},
    {"_GridLineLocation", {1}}};

// A view with an element of each add, and calls on it.
class Scene
{
public:
    Scene(bool onChart, int side) : OnChart(onChart), Side(side)
    {
        Hosted::Parents[0] = Host.Handle();
        Open();
    }

    Call Make(const Function& function, double element) const
    {
        Numbers ids(function.Has(Role::View) ? 1 : 0, Id);
        if (function.Has(Role::Element))
        {
            ids.push_back(element);
        }
        // More points would take long to draw, and a picture has so many bytes.
        const int side = function.NameHas("Polygon")      ? std::min(Side, 71)
                         : function.NameHas("Polyhedron") ? 8
                         : function.NameHas("_CopyImage") ? muchData
                                                          : Side;
        // A change to as many values needs less memory.
        Call call = MakeGood(function, ids, side + (function.NameHas("_SetValue") ? 2 : 0));
        for (Numbers& input : call.Inputs)
        {
            // Each gap begins a plot, and a path that goes back takes long to draw.
            const bool goesBack = function.NameHas("2D_") && function.NameHas("Profile");
            std::ranges::replace_if(
                input, [&](double value) { return Side == muchData && (goesBack || value < 0); },
                1);
        }
        for (const auto& [part, numbers] : rows)
        {
            if (function.NameHas(part.c_str()))
            {
                ids.insert(ids.end(), numbers.begin(), numbers.end());
                call.Scalars = ids;
            }
        }
        return call;
    }
    void Do(const std::string& name, double element = TARVEX_NONE)
    {
        Last = Make(FindFunction(name), element);
        EXPECT_EQ(Last.Perform(), STATUS_OK) << Last.Describe();
    }
    void Draw()
    {
        Do(OnChart ? "Tarvex_Window2D_SetBackgroundColor" : "Tarvex_Window_Camera_SetZoom");
    }
    void Open()
    {
        Do("Tarvex_Window_DeleteAll");
        Do("Tarvex_" + View + "Create");
        Id = static_cast<int32_t>(Last.Outputs.at(0).at(0));
        Fill();
    }
    // Elements and all else once more.
    void Fill()
    {
        Do("TarvexExt_" + View + "BeginUpdate");
        Do(ElementPrefix + "RemoveAll");
        Elements.clear();
        for (const Function& function : AllFunctions())
        {
            // A second image would take the place of the first.
            if (function.Adds && function.OnChart == OnChart && !function.NameHas("ImageShort"))
            {
                Do(function.Name);
                Elements.emplace_back(function.ElementType, Last.Outputs.at(0).at(0));
            }
        }
        for (const char* name :
             OnChart ? std::vector{"ChartAutoScale"}
                     : std::vector{"Cube_Add_Resize", "ScalarBar_Add", "CoordinateAxes_Show",
                                   "Orientation_Show", "PickCoordinates_Show", "Camera_AutoSize"})
        {
            Do("Tarvex_" + View + name, Elements.back().second);
        }
        Do("TarvexExt_" + View + "EndUpdate");
    }
    // The ids that a function may be for.
    Numbers FindElements(const Function& function) const
    {
        if (!function.Has(Role::Element))
        {
            return {TARVEX_NONE};
        }
        Numbers ids;
        for (const auto& [type, id] : Elements)
        {
            if (function.ElementType < 0 || function.ElementType == type)
            {
                ids.push_back(id);
            }
        }
        return ids;
    }
    State Look()
    {
        State state;
        Do("TarvexExt_" + View + "BeginUpdate"); // some draw
        for (const Function& function : AllFunctions())
        {
            for (const double element : IsRead(function) && function.OnChart == OnChart
                                            ? FindElements(function)
                                            : Numbers{})
            {
                Call& read = state.Reads.emplace_back(Make(function, element));
                // Points may have been attached a few times.
                read.OutputLength = function.OutputArrays > 0 ? 8 * read.OutputLength : 1;
                read.Perform();
            }
        }
        Draw();
        Do("TarvexExt_" + View + "EndUpdate");
        state.Shown = OnChart ? TakeChartPicture(Id) : TakePicture(Id);
        return state;
    }

    const bool OnChart;
    const int Side;
    const std::string View = OnChart ? "Window2D_" : "Window_";
    const std::string ElementPrefix = OnChart ? "Tarvex_Element2D_" : "Tarvex_Element_";
    TestHost Host{200, 200};
    int32_t Id = TARVEX_NONE;
    std::vector<std::pair<int32_t, double>> Elements; // types and ids
    Call Last;
};

int places = 0;
int functions = 0;

// Fails each allocation of a call in turn, until the call gets through. Returns its status then.
// What failed has left everything as it was or, where only the picture failed, as the call leaves
// it.
int32_t FailEach(Scene& scene, const Function& function, size_t element)
{
    const bool makes = function.Adds || function.NameHas("_Create");
    // Twice is not the same as once.
    const bool goesOn = HasOne(function, {"_AttachValues", "_InsertPoint", "_RemovePoint"});
    Call call;
    State before;
    const auto begin = [&]
    {
        scene.Fill();
        call = scene.Make(function, scene.FindElements(function).at(element));
        if (function.NameHas("_Add_Image"))
        {
            scene.Do(scene.ElementPrefix + "RemoveAll"); // it would take the old one's place
        }
        before = scene.Look();
    };
    begin();
    std::vector<State> changed;
    for (int place = 1;; ++place)
    {
        if (function.NameHas("_EndUpdate"))
        {
            scene.Do("TarvexExt_" + scene.View + "BeginUpdate");
            scene.Draw();
        }
        FailAllocation(place);
        const int32_t status = call.Perform();
        const bool failed = StopFailing();
        places += failed;
        SCOPED_TRACE("allocation " + std::to_string(place) + DescribeFailure());
        if (failed && status != STATUS_OK)
        {
            EXPECT_TRUE(status == STATUS_OUT_OF_MEMORY || status == STATUS_EXCEPTION) << status;
            State now = scene.Look();
            now.Cause = DescribeFailure();
            const std::string difference = now.Differs(before);
            EXPECT_TRUE(difference.empty() || !makes) << difference;
            if (!difference.empty())
            {
                changed.push_back(std::move(now));
            }
            continue;
        }
        // No failure has used an id.
        const double next = 1 + (function.Adds ? scene.Elements.back().second : scene.Id);
        EXPECT_TRUE(!makes || call.Outputs.at(0).at(0) == next) << call.Describe();
        if (!failed)
        {
            const bool ends = makes || goesOn || status != STATUS_OK || function.NameHas("_Delete");
            const State after = ends ? State{} : scene.Look();
            for (const State& state : ends ? std::vector<State>{} : changed)
            {
                EXPECT_EQ(state.Differs(after), "");
            }
            return status;
        }
        // Less memory was enough, or nothing has handles.
        EXPECT_TRUE(HasOne(function, {"Profile", "_SetActiveElement"}));
        begin();
    }
}

// The functions with one of the parts in their names.
void Try(const std::string& what, int side, const Parts& parts)
{
    places = functions = 0;
    std::unique_ptr<Scene> scene;
    for (const Function& function : AllFunctions())
    {
        if (!HasOne(function, parts))
        {
            continue;
        }
        if (!scene || scene->OnChart != function.OnChart)
        {
            scene = std::make_unique<Scene>(function.OnChart, side);
        }
        SCOPED_TRACE(function.Name);
        bool worked = false;
        const size_t count = scene->FindElements(function).size();
        for (size_t element = 0; element < count; ++element)
        {
            worked |= FailEach(*scene, function, element) == STATUS_OK;
            if (!function.Name.starts_with(scene->ElementPrefix))
            {
                scene->Open();
            }
        }
        EXPECT_TRUE(worked);
        ++functions;
    }
    ReportFigure("memory", std::to_string(places) + " places in " + std::to_string(functions) +
                               " functions" + what);
}
} // namespace

TEST(Memory, RunsOutAnywhereWithoutLoss)
{
    Try("", 8,
        Effort(Parts{"_Create", "_EndUpdate", "_Add_Point", "_Add_SurfaceUniform", "_Add_Profile",
                     "_SetTransparency", "_SetPalette_SurfaceU"},
               Parts{""}));
}

TEST(Memory, RunsOutUnderMuchDataWithoutLoss)
{
    Try(", arrays of 115600 samples", muchData,
        Effort(Parts{"_Add_Image"},
               Parts{"_Add", "_Create", "Update", "_SetValue", "_Attach", "_ShowIntensity",
                     "_SetRepresentation", "_SetPalette", "_InsertPoint", "_CopyImage"}));
}
