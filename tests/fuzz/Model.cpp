#include "fuzz/Model.h"

#include <algorithm>
#include <cfloat>
#include <cmath>

namespace
{
// Empty for none.
Rule FindRule(std::string name)
{
    static const Rules all = []
    {
        Rules rules;
        TellViewRules(rules);
        TellCommonRules(rules);
        TellShapeRules(rules);
        TellMeasurementRules(rules);
        return rules;
    }();
    for (const std::string leaveOut : {"Tarvex_", "TarvexExt_", "2D", "3D", "Non"})
    {
        const size_t at = name.find(leaveOut);
        name.erase(at == std::string::npos ? name.size() : at, leaveOut.size());
        if (const auto rule = all.find(name); rule != all.end())
        {
            return rule->second;
        }
    }
    return {};
}

} // namespace

ModelElement* ModelView::Find(double id)
{
    const auto found = std::ranges::find(Elements, id, &ModelElement::Id);
    return found == Elements.end() ? nullptr : &*found;
}

void ModelView::Forget(int32_t id)
{
    Active = Active == id ? -1 : Active;
    BarShown = BarShown && BarElement != id;
    BarElement = BarElement == id ? -1 : BarElement;
}

ModelView* Model::Find(bool onChart, double id)
{
    const auto found = std::ranges::find(Views[onChart], id, &ModelView::Id);
    return found == Views[onChart].end() ? nullptr : &*found;
}

ModelView* Model::ViewOf(const Call& call)
{
    return call.Called->Has(Role::View) ? Find(call.Called->OnChart, call.Scalars.at(0)) : nullptr;
}

ModelElement* Model::ElementOf(const Call& call)
{
    ModelView* const view = ViewOf(call);
    return view && call.Called->Has(Role::Element) ? view->Find(call.Scalars.at(1)) : nullptr;
}

int32_t Model::Follow(const Call& call, Expectation& expected)
{
    const Function& function = *call.Called;
    if (function.Adds && function.NameHas("Surface") && LacksArray(call))
    {
        return STATUS_NULL_ARGUMENT; // ahead of the view
    }
    ModelView* const view = ViewOf(call);
    const bool onView = function.Has(Role::View);
    if (onView && !view)
    {
        return STATUS_WINDOW_NOT_FOUND;
    }
    const bool needsNoWindow =
        function.NameHas("RegisterCallback") ||
        function.EndsWith("_Delete", "_GetCount", "_GetIDFromIndex", "_GetType", "Default");
    if (view && !view->Usable && !needsNoWindow)
    {
        // No view without a window has a scale frame or a scalar bar, which these ask for first.
        const bool isOfFrame = function.NameHas("Window_Cube_") && !function.EndsWith("_Resize");
        const bool isOfBar = function.NameHas("Window_ScalarBar_") && !function.EndsWith("_Add");
        return (isOfFrame || isOfBar) && !function.EndsWith("_Remove") ? STATUS_NOT_READY
                                                                       : STATUS_NO_NATIVE_WINDOW;
    }
    ModelElement* const element = ElementOf(call);
    const bool onElement = function.Has(Role::Element);
    if (onElement && function.Name.starts_with("Tarvex_Element"))
    {
        const bool isForAny = function.ElementType < 0;
        if (!element || (!isForAny && function.ElementType != element->Type))
        {
            return element ? STATUS_WRONG_TYPE : STATUS_BAD_INDEX;
        }
    }
    const auto given = call.Scalars.begin() + (onView ? 1 : 0) + (onElement ? 1 : 0);
    Situation now = {*this,           call,           view, element, {given, call.Scalars.end()},
                     expected.Arrays, expected.Values};
    const Rule rule = FindRule(function.Name);
    return rule ? rule(now) : int32_t{STATUS_OK};
}

void Model::ReadDefaults()
{
    // Any view answers.
    const double view = Views[0].at(0).Id;
    for (const int32_t type : {0, 1, 2, 3, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19})
    {
        Call call = MakeCall("Tarvex_Element_GetDefault", {view, static_cast<double>(type)});
        call.Perform();
        Defaults[type].clear();
        for (const Numbers& output : call.Outputs)
        {
            Defaults[type].push_back(output[0]);
        }
    }
}

bool IsUsable(double value)
{
    return !std::isnan(value) && value != DBL_MIN && value != DBL_MAX && value != -DBL_MAX &&
           !(value > -9223372036855.0 && value < -9223372036854.0);
}

bool AreUsable(const Numbers& values, ptrdiff_t from, ptrdiff_t count)
{
    const auto first = values.begin() + from;
    return std::all_of(first, first + std::min(count, values.end() - first), IsUsable);
}

bool IsOutside(double value, double lowest, double highest)
{
    return value < lowest || value > highest;
}

bool IsFlat(const Numbers& values, size_t from, double least)
{
    return values[from + 1] - values[from] < least || values[from + 3] - values[from + 2] < least ||
           values[from + 5] - values[from + 4] < least;
}

Rule Gives(std::function<Answer(Situation& now)> values)
{
    return [values](Situation& now) -> int32_t
    {
        now.Expected = values(now);
        return STATUS_OK;
    };
}

Rule Unless(int32_t status, std::function<bool(const Situation& now)> isRefused,
            std::function<void(Situation& now)> deed)
{
    return [=](Situation& now) -> int32_t
    {
        const bool refused = isRefused(now);
        if (!refused && deed)
        {
            deed(now);
        }
        return refused ? status : int32_t{STATUS_OK};
    };
}

Rule Does(std::function<void(Situation& now)> deed)
{
    return Unless(
        STATUS_OK, [](const Situation&) { return false; }, std::move(deed));
}

double FoldAngle(double degrees, bool halfTurns)
{
    const double rest = std::fmod(degrees, 360.0);
    return !std::isfinite(degrees) ? degrees
           : !halfTurns            ? rest + (degrees < 0 ? 360 : 0)
           : std::abs(rest) > 180  ? rest - std::copysign(360, rest)
                                   : rest;
}

bool IsTooMuch(double count, size_t bytes)
{
    return count * static_cast<double>(bytes) > INT32_MAX;
}

bool LacksArray(const Call& call)
{
    // The last array may be left out where it holds bytes beside samples.
    const bool optional = call.Inputs.size() > 1 && call.Called->Has(Role::Bytes) &&
                          call.NullArray + 1 == call.Inputs.size();
    return call.NullArray != SIZE_MAX && !optional;
}

int32_t AddElement(Situation& now, ModelElement element)
{
    element.Id = now.View->NextElement++;
    element.Type = now.Made.Called->ElementType;
    if (!now.View->OnChart)
    {
        const Numbers& look = now.All.Defaults.at(element.Type);
        element.Transparency = look[0];
        element.Colour = {look[1], look[2], look[3]};
        element.Size = look[4];
        element.Lighting = {look[5], look[6], look[7], look[8]};
        element.FirstLighting = element.Lighting;
        element.Palettes[0] = look[9]; // of surfaces
        element.Scaling = {look[10], look[11], -10, 10};
        if (element.Type == TARVEX_ELEMENT_LINE)
        {
            element.Values = {look[14], look[15]};
        }
    }
    now.Expected = {static_cast<double>(element.Id)};
    now.Element = &now.View->Elements.emplace_back(std::move(element));
    return STATUS_OK;
}
