#include "fuzz/Engine.h"

#include "TarvexExt.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <poll.h>

namespace
{
Engine* running = nullptr; // of the callbacks

bool IsSame(double held, double expected)
{
    if (expected == anyNumber || held == expected || (std::isnan(held) && std::isnan(expected)))
    {
        return true;
    }
    constexpr double tolerance = 1e-9; // of sums and unit vectors
    return std::abs(held - expected) <=
           tolerance * std::max({1.0, std::abs(held), std::abs(expected)});
}

const std::string& NameGetter(bool onChart, int32_t type)
{
    static const auto getters = []
    {
        std::map<std::pair<bool, int32_t>, std::string> found;
        for (const Function& function : AllFunctions())
        {
            if (function.Name.ends_with("_GetValue"))
            {
                found[{function.OnChart, function.ElementType}] = function.Name;
            }
        }
        return found;
    }();
    static const std::string none;
    const auto getter = getters.find({onChart, type});
    return getter == getters.end() ? none : getter->second;
}

// What outputs hold after a failure: a value for each, or one for all.
Numbers GetCleared(const Function& function)
{
    constexpr double none = Untouched;
    static const std::pair<const char*, Numbers> unusual[] = {
        {"Element_GetDefault", {none}},
        {"_Add_Circle", {none}},
        {"_Add_Cylinder", {none}},
        {"_Add_Rectangle", {none}},
        {"_Polygon_GetValue", {none}},
        {"_Polyhedron_GetValue", {none, none, none, 0, 0, 0, 0}},
        {"_GetZScalingPalette_", {0, -1, 0, 0}},
        {"_GetRepresentationMode", {1}},
        {"2D_ProfileUniform_GetValue", {none}},
        {"2D_ProfileNonUniform_GetValue", {none}},
        {"_Image_GetValue", {none, 0, 0, 0, 0, 0, 0}}};
    for (const auto& [part, values] : unusual)
    {
        if (function.NameHas(part))
        {
            return values;
        }
    }
    // Ids, types, palettes and draw modes.
    const bool isCount = function.NameHas("Count") || function.NameHas("Size");
    return {function.TellsIntegers && !isCount ? -1.0 : 0.0};
}

} // namespace

template <bool onChart, int script>
void Engine::CallBackStatic(int32_t view, int32_t element)
{
    running->CallBack(onChart, script, view, element);
}

template <bool onChart, int... script>
void Engine::FillCallbacks(std::integer_sequence<int, script...>)
{
    ((Hosted::Callbacks[onChart][script] = script ? CallBackStatic<onChart, script> : nullptr),
     ...);
}

Engine::Engine(bool renders, bool tells) : Renders(renders), Tells(tells)
{
    running = this;
    // Without a compiler of shaders: views come and go in no time.
    setenv("GALLIUM_DRIVER", "softpipe", 0);
    Hosted::Parents[0] = Hosted::Parents[1] = Host.Handle();
    Hosted::Parents[3] = reinterpret_cast<void*>(0x7eadbeef);
    FillCallbacks<false>(std::make_integer_sequence<int, Hosted::scripts>());
    FillCallbacks<true>(std::make_integer_sequence<int, Hosted::scripts>());
}

Engine::~Engine()
{
    Tarvex_Window_DeleteAll();
}

bool Engine::Run(std::span<const uint8_t> bytes, bool reusesViews)
{
    Begin(4, reusesViews);
    ByteStream stream(bytes);
    while (!stream.IsAtEnd() && Complaint.empty())
    {
        Call call;
        MouseMove move;
        if (DecodeStep(stream, Expected, call, move))
        {
            Perform(call);
            LookAfter(call);
        }
        else
        {
            MoveMouse(move);
        }
        ++Calls;
    }
    return Complaint.empty();
}

void Engine::Begin(double side, bool reusesViews)
{
    Complaint.clear();
    for (const bool onChart : {false, true})
    {
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        side = onChart ? std::max(side, 96.0) : side; // less has no room for a plot
        std::vector<ModelView> former = Expected.Views[onChart];
        const bool reuses = reusesViews && !former.empty() && former[0].Usable;
        if (reuses)
        {
            Empty(former[0]);
            Do(window + "UpdateSize", {static_cast<double>(former[0].Id), 0, 0, side, side});
            former.erase(former.begin());
        }
        else
        {
            Do(window + "Create", {0, 1, 0, 0, side, side});
        }
        // Only now: with the last view the connection would go, and the driver with it.
        for (const ModelView& view : former)
        {
            Do(window + "Delete", {static_cast<double>(view.Id)});
        }
    }
    if (FirstDefaults.empty())
    {
        Expected.ReadDefaults();
        FirstDefaults = Expected.Defaults;
    }
    for (const auto& [type, look] : FirstDefaults)
    {
        Numbers all = {static_cast<double>(Expected.Views[0].at(0).Id), static_cast<double>(type)};
        all.insert(all.end(), look.begin(), look.end());
        Do("Tarvex_Element_SetDefault", all);
    }
}

void Engine::Empty(const ModelView& view)
{
    const double id = view.Id;
    const std::string digits = view.OnChart ? "2D_" : "_";
    const std::string window = "Tarvex_Window" + digits;
    Do("Tarvex_Element" + digits + "RemoveAll", {id});
    Do(window + "SetDrawMode", {id, 0});
    Do(window + "RegisterCallback_ElementAdded", {id, 0});
    Do(window + "RegisterCallback_ElementDragged", {id, 0});
    for (int holds = view.Holds; holds > 0; --holds)
    {
        Do("TarvexExt_Window" + digits + "EndUpdate", {id});
    }
    if (view.OnChart)
    {
        Do(window + "SetDrawSpace", {id, -50, 50, -50, 50});
        return;
    }
    Do(window + "SetDrawSpace", {id, -50, 50, -50, 50, -50, 50});
    Do(window + "Cube_Remove", {id});
    Do(window + "EnableMouseInteraction", {id, 1, 1, 1});
}

void Engine::Complain(const Call& call, const std::string& what)
{
    if (Complaint.empty())
    {
        char text[512] = {};
        TarvexExt_GetLastError(text, sizeof text);
        Complaint = call.Describe() + ": " + what + " (last error: " + text + ")";
    }
}

Call Engine::Do(const std::string& name, const Numbers& scalars)
{
    Call call = MakeCall(name, scalars);
    Perform(call);
    return call;
}

void Engine::Perform(Call& call)
{
    const bool creates = call.Called->Name.ends_with("_Create");
    ModelView* const view = Expected.ViewOf(call);
    // The hold that keeps the view from rendering stays.
    if (!Renders && call.Called->Name.ends_with("_EndUpdate") && view && view->Holds == 0)
    {
        return;
    }
    if (call.Called->OutputArrays > 0 && call.Called->Has(Role::Element))
    {
        const ModelElement* element = Expected.ElementOf(call);
        call.OutputLength = element ? element->CountPoints() : 0;
    }
    const std::vector<NativeWindow> before =
        creates ? Host.Children() : std::vector<NativeWindow>();
    if (Tells)
    {
        std::cout << call.Describe() << std::endl;
    }
    call.Perform();
    if (Tells)
    {
        std::cout << "  = " << call.Status << std::endl;
    }
    Expectation expected;
    Compare(call, Expected.Follow(call, expected), expected);
    if (!creates || call.Status != STATUS_OK)
    {
        return;
    }
    const bool onChart = call.Called->OnChart;
    const auto id = static_cast<int32_t>(call.Outputs[0][0]);
    for (const NativeWindow window : Host.Children())
    {
        if (std::ranges::find(before, window) == before.end())
        {
            Windows[{onChart, id}] = window;
        }
    }
    if (!Renders)
    {
        onChart ? TarvexExt_Window2D_BeginUpdate(id) : TarvexExt_Window_BeginUpdate(id);
    }
}

void Engine::Compare(const Call& call, int32_t status, const Expectation& expected)
{
    if (call.Status == STATUS_EXCEPTION || call.Status == 0 ||
        (status != anyStatus && call.Status != status))
    {
        Complain(call, "status " + std::to_string(status) + " expected");
        return;
    }
    if (call.Status != STATUS_OK)
    {
        CompareCleared(call);
        return;
    }
    for (size_t array = 0; array < expected.Arrays.size(); ++array)
    {
        if (call.Outputs.at(array).size() < expected.Arrays[array].size() ||
            !std::ranges::equal(expected.Arrays[array],
                                std::span(call.Outputs[array]).first(expected.Arrays[array].size()),
                                [](double wanted, double held) { return IsSame(held, wanted); }))
        {
            Complain(call, "array " + std::to_string(array) + " differs");
        }
    }
    for (size_t at = 0; at < expected.Values.size(); ++at)
    {
        const size_t output = at + expected.Arrays.size();
        if (output < call.Outputs.size() && !IsSame(call.Outputs[output][0], expected.Values[at]))
        {
            Complain(call, "output " + std::to_string(output) + " should be " +
                               std::to_string(expected.Values[at]));
        }
    }
}

void Engine::CompareCleared(const Call& call)
{
    const Function& function = *call.Called;
    const ModelElement* const element = Expected.ElementOf(call);
    // An image tells what it has no use for.
    const bool isOddImage =
        element && element->Type == TARVEX_ELEMENT_IMAGE && function.ElementType < 0;
    if (function.Name.starts_with("TarvexExt_") || isOddImage)
    {
        return;
    }
    const Numbers cleared = GetCleared(function);
    for (size_t at = 0; at < call.Outputs.size(); ++at)
    {
        const bool isNull = at + call.Inputs.size() == call.NullArray;
        const double wanted = cleared[std::min(at, cleared.size() - 1)];
        // A view that has no window any more has no draw mode.
        const bool isMode = call.Status == STATUS_NO_NATIVE_WINDOW && function.NameHas("DrawMode");
        if (!isNull && !isMode && call.Outputs[at][0] != wanted)
        {
            Complain(call, "output " + std::to_string(at) + " is not cleared to " +
                               std::to_string(wanted));
        }
    }
}

void Engine::LookAfter(const Call& call)
{
    for (const bool onChart : {false, true})
    {
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        Do(window + "GetCount", {});
        Do(window + "GetIDFromIndex", {double(Expected.Views[onChart].size()) - 1});
    }
    const ModelView* const view = Expected.ViewOf(call);
    if (!view || !Complaint.empty())
    {
        return;
    }
    const std::string digits = view->OnChart ? "2D_" : "_";
    const double id = view->Id;
    Do("Tarvex_Element" + digits + "GetCount", {id});
    Do("Tarvex_Element" + digits + "GetIDFromIndex",
       {id, static_cast<double>(view->Elements.size()) - 1});
    Do("Tarvex_Window" + digits + "GetActiveElement", {id});
    Do("Tarvex_Window" + digits + "GetDrawMode", {id});
    const ModelElement* element = Expected.ElementOf(call);
    if (call.Called->Adds && !view->Elements.empty())
    {
        element = &view->Elements.back();
    }
    if (!element)
    {
        return;
    }
    const Numbers ids = {id, static_cast<double>(element->Id)};
    const std::string& getter = NameGetter(view->OnChart, element->Type);
    Do("Tarvex_Element" + digits + "GetType", ids);
    Do("Tarvex_Element" + digits + "HasValidValues", ids);
    if (!getter.empty())
    {
        Do(getter, ids);
    }
}

void Engine::MoveMouse(const MouseMove& move)
{
    const std::vector<ModelView>& views = Expected.Views[move.OnChart];
    if (views.empty())
    {
        return;
    }
    const ModelView& target = views[move.View % views.size()];
    const auto window = Windows.find({move.OnChart, target.Id});
    if (window == Windows.end())
    {
        return;
    }
    const int x = move.X * target.Width / 256;
    const int y = move.Y * target.Height / 256;
    if (Tells)
    {
        std::cout << "mouse: chart " << move.OnChart << " view " << target.Id << " at " << x << ' '
                  << y << " button " << move.Button << (move.Press ? " down" : " up")
                  << (move.Drags ? " and on" : "") << std::endl;
    }
    Host.Send(window->second, x, y, move.Button, move.Press || move.Drags);
    if (move.Drags)
    {
        Host.Send(window->second, y * target.Width / target.Height, x, 0, false);
        Host.Send(window->second, y * target.Width / target.Height, x, move.Button, false);
    }
    int32_t descriptor = -1;
    TarvexExt_GetEventDescriptor(&descriptor);
    pollfd waiting = {descriptor, POLLIN, 0};
    poll(&waiting, 1, 20);
    Do("TarvexExt_ProcessEvents", {});
    for (std::vector<ModelView>& all : Expected.Views)
    {
        for (ModelView& view : all)
        {
            TakeOverDrawn(view);
        }
    }
}

void Engine::TakeOverDrawn(ModelView& view)
{
    if (!view.Usable)
    {
        return;
    }
    const bool onChart = view.OnChart;
    const auto ask = [&](auto* inScene, auto* inChart, auto... given)
    {
        int32_t answer = 0;
        onChart ? inChart(view.Id, given..., &answer) : inScene(view.Id, given..., &answer);
        return answer;
    };
    const int32_t count = ask(Tarvex_Element_GetCount, Tarvex_Element2D_GetCount);
    while (static_cast<int32_t>(view.Elements.size()) < count)
    {
        const auto index = static_cast<int32_t>(view.Elements.size());
        ModelElement element;
        element.Id = ask(Tarvex_Element_GetIDFromIndex, Tarvex_Element2D_GetIDFromIndex, index);
        element.Type = ask(Tarvex_Element_GetType, Tarvex_Element2D_GetType, element.Id);
        element.FirstLighting = element.Lighting;
        // What is drawn on one spot is no shape.
        uint8_t valid = 0;
        (onChart ? Tarvex_Element2D_HasValidValues
                 : Tarvex_Element_HasValidValues)(view.Id, element.Id, &valid);
        element.Valid = valid != 0;
        element.Values.assign(7, anyNumber);
        element.Mode = 1; // closed
        if (element.Id != view.NextElement++)
        {
            Complaint = "a drawn element has the id " + std::to_string(element.Id);
        }
        int32_t points = 0;
        if (element.Type == TARVEX_ELEMENT_POLYHEDRON)
        {
            Tarvex_Element_Polyhedron_GetPointCount(view.Id, element.Id, &points);
        }
        else if (element.Type == TARVEX_ELEMENT_POLYGON)
        {
            points = ask(Tarvex_Element_Polygon_GetPointCount,
                         Tarvex_Element2D_Polygon_GetPointCount, element.Id);
        }
        element.Points.assign(points > 0 ? onChart ? 2 : 3 : 0,
                              Numbers(static_cast<size_t>(points), anyNumber));
        view.Elements.push_back(std::move(element));
    }
    if (ModelElement* const active = view.Find(view.Active))
    {
        // It may have been dragged.
        std::ranges::fill(active->Values, anyNumber);
        std::ranges::fill(active->Lighting, anyNumber);
        for (Numbers& axis : active->Points)
        {
            std::ranges::fill(axis, anyNumber);
        }
    }
}

// A host that does something to the view in the middle of its event.
void Engine::CallBack(bool onChart, int script, int32_t viewId, int32_t elementId)
{
    ModelView* const view = Expected.Find(onChart, viewId);
    if (!view)
    {
        Complaint = "a callback names the view " + std::to_string(viewId);
        return;
    }
    if (Tells)
    {
        std::cout << "callback " << script << " of " << viewId << ' ' << elementId << std::endl;
    }
    TakeOverDrawn(*view);
    const double id = viewId;
    const std::string digits = onChart ? "2D_" : "_";
    if (!view->Find(elementId))
    {
        Complaint = "a callback names the element " + std::to_string(elementId);
        return;
    }
    const std::pair<std::string, Numbers> deeds[Hosted::scripts] = {
        {},
        {"Tarvex_Element" + digits + "Remove", {id, static_cast<double>(elementId)}},
        {"Tarvex_Window" + digits + "Delete", {id}},
        {"Tarvex_Window" + digits + "SetDrawMode", {id, 0}},
        {"Tarvex_Element" + digits + "RemoveAll", {id}},
        {"Tarvex_Window" + digits + "SetActiveElement", {id, -1}},
        {"Tarvex_Window_DeleteAll", {}},
        {"Tarvex_Window" + digits + "SetDrawMode", {id, 5}}};
    Do(deeds[script].first, deeds[script].second);
    Do("TarvexExt_ProcessEvents", {});
}
