// What all elements have in common: lists, look, removal.
#include "fuzz/Model.h"

#include <algorithm>
#include <cmath>

namespace
{
int32_t Remove(Situation& now)
{
    std::vector<ModelElement>& elements = now.View->Elements;
    now.View->Forget(now.Element->Id);
    elements.erase(elements.begin() + (now.Element - elements.data()));
    return STATUS_OK;
}

int32_t RemoveAll(Situation& now)
{
    now.View->Elements.clear();
    now.View->Forget(now.View->Active);
    now.View->Forget(now.View->BarElement);
    return STATUS_OK;
}

// What an element answers to calls on its look.
int32_t LookStatus(const Situation& now)
{
    return !now.View->OnChart                          ? STATUS_OK
           : now.Element->Type == TARVEX_ELEMENT_IMAGE ? STATUS_WRONG_TYPE
           : now.Element->Empty                        ? STATUS_NOT_READY
                                                       : STATUS_OK;
}

int32_t SizeStatus(const Situation& now)
{
    return !now.View->OnChart && now.Element->IsSurface() ? STATUS_NOT_SUPPORTED : LookStatus(now);
}

int32_t SetColor(Situation& now)
{
    const int32_t status = LookStatus(now);
    now.Element->Colour = status == STATUS_NOT_READY ? now.Element->Colour : now.Given;
    return status;
}

int32_t GetColor(Situation& now)
{
    const bool isCircle = now.Element->Type == TARVEX_ELEMENT_CIRCLE && !now.View->OnChart;
    now.Expected = now.Element->Colour;
    return isCircle && !now.Element->Valid ? STATUS_INVALID_VALUES : LookStatus(now);
}

int32_t SetSize(Situation& now)
{
    const int32_t status = SizeStatus(now);
    const bool isTooSmall = status == STATUS_OK && now.Given[0] < 0.001;
    const bool stores = status == STATUS_WRONG_TYPE || (status == STATUS_OK && !isTooSmall);
    now.Element->Size = stores ? now.Given[0] : now.Element->Size;
    return isTooSmall ? int32_t{STATUS_TOO_SMALL} : status;
}

int32_t GetSize(Situation& now)
{
    now.Expected = {now.Element->Size};
    return SizeStatus(now);
}

bool IsBadLighting(const Numbers& values, size_t from)
{
    return IsOutside(values[from], 0, 1) || IsOutside(values[from + 1], 0, 1) ||
           IsOutside(values[from + 2], 0, 1) || IsOutside(values[from + 3], 0, 100);
}

int32_t Show(Situation& now)
{
    const bool isCircle = now.Element->Type == TARVEX_ELEMENT_CIRCLE && now.View->OnChart;
    return isCircle && !now.Element->Valid ? STATUS_INVALID_VALUES
           : now.Element->Empty            ? STATUS_NOT_READY
                                           : STATUS_OK;
}

int32_t SetDefault(Situation& now)
{
    const auto type = static_cast<int32_t>(now.Given[0]);
    const bool isSurface = type <= TARVEX_ELEMENT_SURFACE_NON_UNIFORM;
    const bool isLine = type == TARVEX_ELEMENT_LINE;
    const bool isPlane = type == TARVEX_ELEMENT_PLANE;
    // In the order in which they are handed out, from the transparency on.
    const Numbers look(now.Given.begin() + 1, now.Given.end());
    const bool isBad = IsOutside(look[0], 0, 1) || IsBadLighting(look, 5) ||
                       (isSurface ? IsOutside(look[9], 0, 6) || IsOutside(look[11], 0, 45) ||
                                        look[13] - look[12] < 0.001
                                  : look[4] < 0.001 || (isPlane && IsFlat(look, 16, 0.001)) ||
                                        (isLine && std::abs(look[15] - look[14]) < 1e-9));
    if (isBad || !now.All.Defaults.contains(type))
    {
        return now.All.Defaults.contains(type) ? STATUS_OUT_OF_RANGE : STATUS_BAD_ELEMENT_TYPE;
    }
    for (auto& [other, held] : now.All.Defaults)
    {
        // The two surfaces share one, as do the two profiles.
        const bool shares = other == type || (type < 4 && other / 2 == type / 2);
        for (size_t at = 0; shares && at < look.size(); ++at)
        {
            const bool isUsed = at == 4   ? !isSurface
                                : at < 9  ? true
                                : at < 14 ? isSurface
                                : at < 16 ? isLine
                                          : isPlane;
            held[at] = !isUsed ? held[at] : at == 10 ? look[at] != 0 : look[at];
        }
    }
    return STATUS_OK;
}
} // namespace

void TellCommonRules(Rules& rules)
{
    rules["Element_GetCount"] = Gives([](auto& now) { return now.View->Elements.size(); });
    rules["Element_GetIDFromIndex"] = [](auto& now) { return GetIdAt(now.View->Elements, now); };
    rules["Element_GetType"] = Gives([](auto& now) { return now.Element->Type; });
    rules["Element_HasValidValues"] = Gives([](auto& now) { return now.Element->Valid; });
    rules["Element_Show"] = Show;
    rules["Element_Remove"] = Remove;
    rules["Element_RemoveAll"] = RemoveAll;
    rules["Element_SetColor"] = SetColor;
    rules["Element_GetColor"] = GetColor;
    rules["Element_SetSize"] = SetSize;
    rules["Element_GetSize"] = GetSize;
    rules["Element_GetTransparency"] = Gives([](auto& now) { return now.Element->Transparency; });
    rules["Element_SetTransparency"] = Unless(
        STATUS_OUT_OF_RANGE, [](auto& now) { return IsOutside(now.Given[0], 0, 1); },
        [](auto& now) { now.Element->Transparency = now.Given[0]; });
    rules["Element_GetLighting"] = Gives([](auto& now) { return now.Element->Lighting; });
    rules["Element_SetLighting"] = Unless(
        STATUS_OUT_OF_RANGE, [](auto& now) { return IsBadLighting(now.Given, 0); },
        [](auto& now) { now.Element->Lighting = now.Given; });
    rules["Element_SetDefault"] = SetDefault;
    rules["Element_GetDefault"] = Unless(
        STATUS_BAD_ELEMENT_TYPE,
        [](auto& now) { return !now.All.Defaults.contains(static_cast<int>(now.Given[0])); },
        [](auto& now) { now.Expected = now.All.Defaults.at(static_cast<int>(now.Given[0])); });
}
