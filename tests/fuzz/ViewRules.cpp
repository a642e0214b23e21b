// Views: registry, draw space, active element and draw mode, camera, scale frame, scalar bar.
#include "fuzz/Model.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{
int32_t Resize(Situation& now)
{
    now.View->Width = static_cast<int>(std::max(now.Given.end()[-2], 4.0));
    now.View->Height = static_cast<int>(std::max(now.Given.end()[-1], 4.0));
    return STATUS_OK;
}

int32_t Create(Situation& now)
{
    const bool onChart = now.Made.Called->OnChart;
    now.View = &now.All.Views[onChart].emplace_back();
    now.View->Id = now.All.NextView[onChart]++;
    now.View->OnChart = onChart;
    now.View->Usable = now.Given[0] < 3;
    now.View->DrawSpace.resize(onChart ? 4 : 6);
    now.Expected = {static_cast<double>(now.View->Id)};
    return Resize(now);
}

int32_t Delete(Situation& now)
{
    std::vector<ModelView>& views = now.All.Views[now.Made.Called->OnChart];
    views.erase(views.begin() + (now.View - views.data()));
    return STATUS_OK;
}

int32_t SetDrawSpace(Situation& now)
{
    const bool flat =
        now.View->OnChart ? now.Given[1] - now.Given[0] <= 0.1 : IsFlat(now.Given, 0, 1e-6);
    now.View->DrawSpace = flat ? now.View->DrawSpace : now.Given;
    for (ModelElement& element : now.View->Elements)
    {
        if (element.Type == TARVEX_ELEMENT_LINE && !now.View->OnChart && !flat)
        {
            element.Values.assign(2, anyNumber); // where it leaves the box
        }
    }
    return flat ? STATUS_TOO_SMALL : STATUS_OK;
}

int32_t SetActive(Situation& now)
{
    static const std::vector<int32_t> fitting[] = {
        {TARVEX_ELEMENT_CYLINDER, TARVEX_ELEMENT_CUBE, TARVEX_ELEMENT_POLYHEDRON},
        {TARVEX_ELEMENT_CIRCLE, TARVEX_ELEMENT_RECTANGLE, TARVEX_ELEMENT_POLYGON}};
    const double id = now.Made.Scalars[1];
    ModelView& view = *now.View;
    if (view.OnChart && view.Active == id)
    {
        return STATUS_OK;
    }
    view.Active = -1;
    if (id < 0 || !now.Element)
    {
        return id < 0 ? STATUS_OK : STATUS_BAD_INDEX;
    }
    const int32_t type = now.Element->Type;
    const bool fits = std::ranges::count(fitting[view.OnChart], type) > 0;
    view.Active = fits && now.Element->Valid ? now.Element->Id : -1;
    return !view.OnChart || view.Active >= 0  ? STATUS_OK
           : type < TARVEX_ELEMENT_POINT      ? STATUS_BAD_ELEMENT_TYPE
           : !fits                            ? STATUS_WRONG_TYPE
           : type == TARVEX_ELEMENT_RECTANGLE ? STATUS_NOT_FINITE
                                              : STATUS_INVALID_VALUES;
}

int32_t SetDrawMode(Situation& now)
{
    const double mode = now.Given[0];
    if (mode > double{TARVEX_DRAW_NO_SHAPE})
    {
        return STATUS_OUT_OF_RANGE;
    }
    const bool unknown = now.View->OnChart && mode != 1 && mode != 3 && mode != 5 && mode != 0;
    now.View->DrawMode = unknown ? 0 : static_cast<int32_t>(mode);
    return unknown ? STATUS_WRONG_TYPE : STATUS_OK;
}

int32_t SetViewDirection(Situation& now)
{
    const Numbers& v = now.Given;
    // GCC's hypot of three takes a NaN for 0.
    const double nothing = 0 * std::accumulate(v.begin(), v.end(), 0.0);
    const double direction = std::hypot(v[0], v[1], v[2]);
    const double up = std::hypot(v[3], v[4], v[5]);
    const double cross =
        std::hypot(v[1] * v[5] - v[2] * v[4], v[2] * v[3] - v[0] * v[5], v[0] * v[4] - v[1] * v[3]);
    return !(direction + nothing < 1e6 && up < 1e6) ? anyStatus // rounding decides
           : direction < 1e-5 || up < 1e-5          ? STATUS_ZERO_VECTOR
           : cross < 1e-6 * direction * up          ? STATUS_PARALLEL_VECTORS
                                                    : STATUS_OK;
}

int32_t SetFrame(Situation& now)
{
    const bool inside =
        std::ranges::all_of(now.Given, [](double side) { return std::abs(side) <= 1e30; });
    const bool named = now.Made.Scalars[1] >= 0;
    const bool reversed =
        now.Given[0] > now.Given[1] || now.Given[2] > now.Given[3] || now.Given[4] > now.Given[5];
    if (reversed || (named && (!now.Element || now.Element->Type >= TARVEX_ELEMENT_POINT)))
    {
        return reversed ? STATUS_OUT_OF_RANGE : !now.Element ? STATUS_BAD_INDEX : STATUS_WRONG_TYPE;
    }
    // Of an element, the bounds of what is drawn decide.
    now.View->HasFrame = now.View->HasFrame || (named ? now.Made.Status == STATUS_OK : inside);
    return named ? anyStatus : inside ? STATUS_OK : STATUS_OUT_OF_RANGE;
}

// A setting of the scale frame; the first number has limits, a part is not negative.
Rule OnFrame(double highest)
{
    return [=](Situation& now) -> int32_t
    {
        const bool good = now.Given[0] >= 0 && now.Given[0] <= highest &&
                          (now.Given.size() < 2 || now.Given[1] >= 0);
        return !now.View->HasFrame ? STATUS_NOT_READY : good ? STATUS_OK : STATUS_OUT_OF_RANGE;
    };
}

int32_t AddBar(Situation& now)
{
    if (!now.Element || now.Element->Type > TARVEX_ELEMENT_SURFACE_NON_UNIFORM)
    {
        return now.Element ? STATUS_WRONG_TYPE : STATUS_BAD_INDEX;
    }
    now.View->BarShown = now.View->BarShown || now.View->BarElement < 0;
    now.View->BarElement = now.Element->Id;
    return STATUS_OK;
}

int32_t CopyImage(Situation& now)
{
    const double needed = 3 * now.Made.Outputs[1][0] * now.Made.Outputs[2][0];
    return now.Made.NullArray != 0 && now.Given[0] < needed ? STATUS_TOO_SMALL : STATUS_OK;
}
} // namespace

void TellViewRules(Rules& rules)
{
    const auto views = [](auto& now) -> auto&
    {
        return now.All.Views[now.Made.Called->OnChart];
    };
    rules["Window_Create"] = Create;
    rules["Window_Delete"] = Delete;
    rules["Window_UpdateSize"] = Resize;
    rules["Window_GetIDFromIndex"] = [=](auto& now) { return GetIdAt(views(now), now); };
    rules["Window_GetCount"] = Gives([=](auto& now) { return views(now).size(); });
    rules["Window_SetDrawSpace"] = SetDrawSpace;
    rules["Window_GetDrawSpace"] = Gives([](auto& now) { return now.View->DrawSpace; });
    rules["Window_SetActiveElement"] = SetActive;
    rules["Window_GetActiveElement"] = Gives([](auto& now) { return now.View->Active; });
    rules["Window_SetDrawMode"] = SetDrawMode;
    rules["Window_GetDrawMode"] = Gives([](auto& now) { return now.View->DrawMode; });
    rules["Window_CopyImage"] = CopyImage;
    rules["Window_BeginUpdate"] = Does([](auto& now) { ++now.View->Holds; });
    rules["Window_EndUpdate"] = Unless(
        STATUS_NOT_READY, [](auto& now) { return now.View->Holds == 0; },
        [](auto& now) { --now.View->Holds; });
    rules["Window_DeleteAll"] = Does([](auto& now) { now.All.Views[0] = now.All.Views[1] = {}; });
    rules["Window_SetChartLayout"] =
        Unless(STATUS_OUT_OF_RANGE, [](auto& now) { return now.Given[0] > 1; });
    rules["Window_EnableInteraction"] = rules["Window_EnableMouseInteraction"] =
        Unless(STATUS_DRAW_MODE_ACTIVE, [](auto& now) { return now.View->DrawMode != 0; });
    rules["Window_Camera_SetPredefinedView"] =
        Unless(STATUS_OUT_OF_RANGE, [](auto& now) { return IsOutside(now.Given[0], 0, 5); });
    rules["Window_Camera_SetZoom"] =
        Unless(STATUS_OUT_OF_RANGE, [](auto& now) { return now.Given[0] < 1e-6; });
    rules["Window_Camera_SetViewDirection"] = SetViewDirection;
    rules["Window_Cube_Add_Resize"] = SetFrame;
    rules["Window_Cube_AxisColoring"] = rules["Window_Cube_Visibility"] = OnFrame(3);
    rules["Window_Cube_FlyMode"] = OnFrame(5);
    rules["Window_Cube_GridLineLocation"] = OnFrame(2);
    rules["Window_Cube_ShowHide"] = OnFrame(255);
    rules["Window_Cube_Remove"] = Does([](auto& now) { now.View->HasFrame = false; });
    const auto lacksBar = [](auto& now) { return now.View->BarElement < 0; };
    rules["Window_ScalarBar_Add"] = AddBar;
    rules["Window_ScalarBar_IsShown"] =
        Unless(STATUS_NOT_READY, lacksBar,
               [](auto& now) { now.Expected = {now.View->BarShown ? 1.0 : 0.0}; });
    rules["Window_ScalarBar_ShowHide"] = Unless(
        STATUS_NOT_READY, lacksBar, [](auto& now) { now.View->BarShown = now.Given[0] != 0; });
    rules["Window_ScalarBar_Remove"] =
        Does([](auto& now) { now.View->Forget(now.View->BarElement); });
    rules["GetLastError"] = [](auto& now)
    {
        return now.Made.NullArray == 0 ? STATUS_NULL_ARGUMENT
               : now.Given[0] < 1      ? STATUS_TOO_SMALL
                                       : STATUS_OK;
    };
}
