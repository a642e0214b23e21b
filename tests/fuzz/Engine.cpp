#include "fuzz/Engine.h"

#include "TarvexExt.h"

#include <algorithm>
#include <cmath>
#include <iostream>
#include <poll.h>

namespace
{
Engine* running = nullptr; // of the callbacks

bool IsSame(double wanted, double held)
{
    constexpr double tolerance = 1e-9; // of sums and unit vectors
    return wanted == anyNumber || held == wanted || (std::isnan(held) && std::isnan(wanted)) ||
           std::abs(held - wanted) <=
               tolerance * std::max(1.0, std::min(std::abs(held), std::abs(wanted)));
}

// The name is that of 3D views.
std::string NameFor(bool onChart, std::string name)
{
    return name.insert(name.find('_', name.find('_') + 1), onChart ? "2D" : "");
}

Numbers WithId(const ModelView& view, Numbers given)
{
    given.insert(given.begin(), view.Id);
    return given;
}

// What the library answers, and the model does not know.
double Ask(const ModelView& view, const std::string& name, const Numbers& given = {})
{
    Call call = MakeCall(NameFor(view.OnChart, name), WithId(view, given));
    call.Perform();
    return call.Outputs.at(0).at(0);
}

// What outputs hold after a failure.
Numbers GetCleared(const Call& call, const ModelElement* element)
{
    constexpr double none = Untouched;
    const Function& function = *call.Called;
    // Ids, types, palettes and draw modes.
    const bool isMinusOne = function.TellsIntegers && !function.NameHas("Count", "Size");
    Numbers cleared = function.NameHas("Element_GetDefault", "_Add_Circle", "_Add_Cylinder",
                                       "_Add_Rectangle", "_Polygon_GetValue", "Uniform_GetValue")
                          ? Numbers{none}
                      : function.NameHas("_Polyhedron_GetValue") ? Numbers{none, none, none, 0}
                      : function.NameHas("_Image_GetValue")      ? Numbers{none, 0}
                      : function.NameHas("_GetZScalingPalette_") ? Numbers{0, -1, 0}
                      : function.NameHas("_GetRepresentationMode")
                          ? Numbers{1}
                          : Numbers{isMinusOne ? -1.0 : 0.0};
    cleared.resize(call.Outputs.size(), cleared.back());
    if (call.NullArray - call.Inputs.size() < cleared.size())
    {
        cleared[call.NullArray - call.Inputs.size()] = anyNumber;
    }
    // An image tells what it has no use for; a view that has no window any more has no draw mode.
    const bool isOddImage =
        element && element->Type == TARVEX_ELEMENT_IMAGE && function.ElementType < 0;
    const bool isMode = call.Status == STATUS_NO_NATIVE_WINDOW && function.NameHas("DrawMode");
    const bool isKnown = !isOddImage && !isMode && !function.NameHas("TarvexExt_");
    return isKnown ? cleared : Numbers();
}
} // namespace

template <bool onChart, int... before>
void Engine::FillCallbacks(std::integer_sequence<int, before...>)
{
    ((Hosted::Callbacks[onChart][before + 1] = [](int32_t view, int32_t element)
      { running->CallBack(onChart, before + 1, view, element); }),
     ...);
}

Engine::Engine(bool renders, bool tells) : Renders(renders), Tells(tells)
{
    running = this;
    // Without a compiler of shaders: views come and go in no time.
    setenv("GALLIUM_DRIVER", "softpipe", 0);
    Hosted::Parents[0] = Hosted::Parents[1] = Host.Handle();
    Hosted::Parents[3] = reinterpret_cast<void*>(0x7eadbeef);
    constexpr std::make_integer_sequence<int, Hosted::scripts - 1> scripts;
    FillCallbacks<false>(scripts);
    FillCallbacks<true>(scripts);
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
        side = onChart ? std::max(side, 96.0) : side; // less has no room for a plot
        std::vector<ModelView> former = Expected.Views[onChart];
        if (reusesViews && !former.empty() && former[0].Usable)
        {
            Empty(former[0]);
            Do(former[0], "Tarvex_Window_UpdateSize", {0, 0, side, side});
            former.erase(former.begin());
        }
        else
        {
            Do(NameFor(onChart, "Tarvex_Window_Create"), {0, 1, 0, 0, side, side});
        }
        // Only now: with the last view the connection would go, and the driver with it.
        for (const ModelView& view : former)
        {
            Do(view, "Tarvex_Window_Delete");
        }
    }
    if (FirstDefaults.empty())
    {
        Expected.ReadDefaults();
        FirstDefaults = Expected.Defaults;
    }
    for (const auto& [type, look] : FirstDefaults)
    {
        Numbers all = look;
        all.insert(all.begin(), type);
        Do(Expected.Views[0].at(0), "Tarvex_Element_SetDefault", all);
    }
}

void Engine::Empty(const ModelView& view)
{
    Do(view, "Tarvex_Element_RemoveAll");
    Do(view, "Tarvex_Window_SetDrawMode", {0});
    Do(view, "Tarvex_Window_RegisterCallback_ElementAdded", {0});
    Do(view, "Tarvex_Window_RegisterCallback_ElementDragged", {0});
    for (int holds = view.Holds; holds > 0; --holds)
    {
        Do(view, "TarvexExt_Window_EndUpdate");
    }
    const Numbers space = {-50, 50, -50, 50, -50, 50};
    Do(view, "Tarvex_Window_SetDrawSpace", {space.begin(), space.end() - 2 * view.OnChart});
    if (!view.OnChart)
    {
        Do(view, "Tarvex_Window_Cube_Remove");
        Do(view, "Tarvex_Window_EnableMouseInteraction", {1, 1, 1});
    }
}

void Engine::Tell(const std::string& what) const
{
    if (Tells)
    {
        std::cout << what << std::endl;
    }
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

Call Engine::Do(const ModelView& view, const std::string& name, const Numbers& given)
{
    return Do(NameFor(view.OnChart, name), WithId(view, given));
}

void Engine::Perform(Call& call)
{
    const ModelView* const view = Expected.ViewOf(call);
    // The hold that keeps the view from rendering stays.
    if (!Renders && call.Called->EndsWith("_EndUpdate") && view && view->Holds == 0)
    {
        return;
    }
    if (call.Called->OutputArrays > 0 && call.Called->Has(Role::Element))
    {
        const ModelElement* element = Expected.ElementOf(call);
        call.OutputLength = element ? element->CountPoints() : 0;
    }
    const bool creates = call.Called->EndsWith("_Create");
    const size_t windows = creates ? Host.Children().size() : 0;
    Tell(call.Describe());
    call.Perform();
    Tell("  = " + std::to_string(call.Status));
    Expectation expected;
    const int32_t status = Expected.Follow(call, expected);
    Compare(call, status, std::move(expected));
    if (creates && call.Status == STATUS_OK)
    {
        ModelView& created = Expected.Views[call.Called->OnChart].back();
        const std::vector<NativeWindow> all = Host.Children(); // the newest is on top
        created.Window = all.size() > windows ? all.back() : 0;
        if (!Renders)
        {
            (created.OnChart ? TarvexExt_Window2D_BeginUpdate
                             : TarvexExt_Window_BeginUpdate)(created.Id);
        }
    }
}

void Engine::Compare(const Call& call, int32_t status, Expectation expected)
{
    if (call.Status == STATUS_EXCEPTION || call.Status == 0 ||
        (status != anyStatus && call.Status != status))
    {
        Complain(call, "status " + std::to_string(status) + " expected");
        return;
    }
    if (call.Status != STATUS_OK)
    {
        expected = {{}, GetCleared(call, Expected.ElementOf(call))};
    }
    const size_t arrays = expected.Arrays.size();
    for (size_t at = 0; at < call.Outputs.size() && at < arrays + expected.Values.size(); ++at)
    {
        const Numbers& held = call.Outputs[at];
        const Numbers wanted =
            at < arrays ? expected.Arrays[at] : Numbers{expected.Values[at - arrays]};
        const auto differs =
            held.size() < wanted.size()
                ? wanted.begin()
                : std::mismatch(wanted.begin(), wanted.end(), held.begin(), IsSame).first;
        if (differs != wanted.end())
        {
            Complain(call, "output " + std::to_string(at) + " should be " +
                               std::to_string(*differs) + " at " +
                               std::to_string(differs - wanted.begin()));
        }
    }
}

void Engine::LookAfter(const Call& call)
{
    for (const bool onChart : {false, true})
    {
        Do(NameFor(onChart, "Tarvex_Window_GetCount"), {});
        Do(NameFor(onChart, "Tarvex_Window_GetIDFromIndex"),
           {static_cast<double>(Expected.Views[onChart].size()) - 1});
    }
    const ModelView* const view = Expected.ViewOf(call);
    if (!view || !Complaint.empty())
    {
        return;
    }
    Do(*view, "Tarvex_Element_GetCount");
    Do(*view, "Tarvex_Element_GetIDFromIndex", {static_cast<double>(view->Elements.size()) - 1});
    Do(*view, "Tarvex_Window_GetActiveElement");
    Do(*view, "Tarvex_Window_GetDrawMode");
    const bool adds = call.Called->Adds && !view->Elements.empty();
    const ModelElement* const element = adds ? &view->Elements.back() : Expected.ElementOf(call);
    for (const Function& function : AllFunctions())
    {
        const bool isForAny = function.ElementType < 0 && function.OnChart == view->OnChart;
        // Of the others, some draw.
        const bool isRead = function.NameHas("_GetValue", "_GetType", "_HasValid") ||
                            (!Renders && function.NameHas("_Get"));
        if (element && isRead && function.Has(Role::Element) &&
            (isForAny || function.IsFor(view->OnChart, element->Type)))
        {
            Do(function.Name, {static_cast<double>(view->Id), static_cast<double>(element->Id)});
        }
    }
}

void Engine::MoveMouse(const MouseMove& move)
{
    const std::vector<ModelView>& views = Expected.Views[move.OnChart];
    const ModelView target = views.empty() ? ModelView() : views[move.View % views.size()];
    if (target.Window == 0)
    {
        return;
    }
    const int x = move.X * target.Width / 256;
    const int y = move.Y * target.Height / 256;
    Tell("mouse: chart " + std::to_string(move.OnChart) + " view " + std::to_string(target.Id) +
         " at " + std::to_string(x) + ' ' + std::to_string(y) + " button " +
         std::to_string(move.Button) + (move.Press ? " down" : " up") +
         (move.Drags ? " and on" : ""));
    Host.Send(target.Window, x, y, move.Button, move.Press || move.Drags);
    if (move.Drags)
    {
        Host.Send(target.Window, y * target.Width / target.Height, x, 0, false);
        Host.Send(target.Window, y * target.Width / target.Height, x, move.Button, false);
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
    const double count = view.Usable ? Ask(view, "Tarvex_Element_GetCount") : 0;
    for (auto at = static_cast<double>(view.Elements.size()); at < count; ++at)
    {
        ModelElement& element = view.Elements.emplace_back();
        const double id = Ask(view, "Tarvex_Element_GetIDFromIndex", {at});
        element.Id = static_cast<int32_t>(id);
        element.Type = static_cast<int32_t>(Ask(view, "Tarvex_Element_GetType", {id}));
        // What is drawn on one spot is no shape.
        element.Valid = Ask(view, "Tarvex_Element_HasValidValues", {id}) != 0;
        element.FirstLighting = element.Lighting;
        element.Values.assign(11, anyNumber); // no shape has more
        element.Mode = 1;                     // closed
        if (element.Id != view.NextElement++)
        {
            Complaint = "a drawn element has the id " + std::to_string(element.Id);
        }
        const std::string type =
            element.Type == TARVEX_ELEMENT_POLYHEDRON ? "Polyhedron" : "Polygon";
        const double points = element.Type < TARVEX_ELEMENT_POLYGON
                                  ? 0
                                  : Ask(view, "Tarvex_Element_" + type + "_GetPointCount", {id});
        element.Points.assign(view.OnChart ? 2 : 3,
                              Numbers(static_cast<size_t>(points), anyNumber));
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
    const std::string what = "callback " + std::to_string(script) + " of view " +
                             std::to_string(viewId) + ", element " + std::to_string(elementId);
    Tell(what);
    ModelView* const view = Expected.Find(onChart, viewId);
    if (view)
    {
        TakeOverDrawn(*view);
    }
    if (!view || !view->Find(elementId))
    {
        Complaint = what + ", which there is not";
        return;
    }
    const std::pair<std::string, Numbers> deeds[Hosted::scripts] = {
        {},
        {"Tarvex_Element_Remove", {static_cast<double>(elementId)}},
        {"Tarvex_Window_Delete", {}},
        {"Tarvex_Window_SetDrawMode", {0}},
        {"Tarvex_Element_RemoveAll", {}},
        {"Tarvex_Window_SetActiveElement", {-1}},
        {"Tarvex_Window_DeleteAll", {}},
        {"Tarvex_Window_SetDrawMode", {5}}};
    const auto& [name, given] = deeds[script];
    name.ends_with("DeleteAll") ? Do(name, {}) : Do(*view, name, given);
    Do("TarvexExt_ProcessEvents", {});
}
