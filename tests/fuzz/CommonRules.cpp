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
    const bool stores = status == STATUS_OK || status == STATUS_WRONG_TYPE;
    if (status == STATUS_OK && now.Given[0] < 0.001)
    {
        return STATUS_TOO_SMALL;
    }
    now.Element->Size = stores ? now.Given[0] : now.Element->Size;
    return status;
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
    const ModelElement& element = *now.Element;
    const bool isCircle = element.Type == TARVEX_ELEMENT_CIRCLE && now.View->OnChart;
    return isCircle && !element.Valid ? STATUS_INVALID_VALUES
           : element.Empty            ? STATUS_NOT_READY
                                      : STATUS_OK;
}

// In the order in which the defaults are handed out, from the transparency on.
bool AreDefaultsGood(const Numbers& look, int32_t type)
{
    const bool isSurface = type <= TARVEX_ELEMENT_SURFACE_NON_UNIFORM;
    if (IsOutside(look[0], 0, 1) || IsBadLighting(look, 5))
    {
        return false;
    }
    return isSurface ? !IsOutside(look[9], 0, 6) && !IsOutside(look[11], 0, 45) &&
                           !(look[13] - look[12] < 0.001)
                     : !(look[4] < 0.001) &&
                           !(type == TARVEX_ELEMENT_LINE && std::abs(look[15] - look[14]) < 1e-9) &&
                           !(type == TARVEX_ELEMENT_PLANE && IsFlat(look, 16, 0.001));
}

int32_t SetDefault(Situation& now)
{
    const auto type = static_cast<int32_t>(now.Given[0]);
    const Numbers given(now.Given.begin() + 1, now.Given.end());
    if (!now.All.Defaults.contains(type) || !AreDefaultsGood(given, type))
    {
        return now.All.Defaults.contains(type) ? STATUS_OUT_OF_RANGE : STATUS_BAD_ELEMENT_TYPE;
    }
    const bool isSurface = type <= TARVEX_ELEMENT_SURFACE_NON_UNIFORM;
    for (auto& [other, look] : now.All.Defaults)
    {
        // The two surfaces share one, as do the two profiles.
        const bool shares = other == type || (type < 4 && other / 2 == type / 2);
        for (size_t at = 0; shares && at < given.size(); ++at)
        {
            const bool isUsed = at == 4   ? !isSurface
                                : at < 9  ? true
                                : at < 14 ? isSurface
                                : at < 16 ? type == TARVEX_ELEMENT_LINE
                                          : type == TARVEX_ELEMENT_PLANE;
            look[at] = !isUsed ? look[at] : at == 10 ? given[at] != 0 : given[at];
        }
    }
    return STATUS_OK;
}
} // namespace

void TellCommonRules(Rules& rules)
{
    for (const std::string kind : {"", "2D"})
    {
        const std::string element = "Tarvex_Element" + kind + "_";
        rules[element + "GetCount"] =
            Gives([](const Situation& now) { return Numbers{double(now.View->Elements.size())}; });
        rules[element + "GetIDFromIndex"] = [](Situation& now)
        { return GetIdAt(now.View->Elements, now); };
        rules[element + "GetType"] =
            Gives([](const Situation& now) { return Numbers{double(now.Element->Type)}; });
        rules[element + "HasValidValues"] =
            Gives([](const Situation& now) { return Numbers{double(now.Element->Valid)}; });
        rules[element + "Show"] = Show;
        rules[element + "Remove"] = Remove;
        rules[element + "RemoveAll"] = RemoveAll;
        rules[element + "SetColor"] = SetColor;
        rules[element + "GetColor"] = GetColor;
        rules[element + "SetSize"] = SetSize;
        rules[element + "GetSize"] = GetSize;
    }
    rules["Tarvex_Element_GetTransparency"] =
        Gives([](const Situation& now) { return Numbers{now.Element->Transparency}; });
    rules["Tarvex_Element_SetTransparency"] = Unless(
        STATUS_OUT_OF_RANGE, [](const Situation& now) { return IsOutside(now.Given[0], 0, 1); },
        [](Situation& now) { now.Element->Transparency = now.Given[0]; });
    rules["Tarvex_Element_GetLighting"] =
        Gives([](const Situation& now) { return now.Element->Lighting; });
    rules["Tarvex_Element_SetLighting"] = Unless(
        STATUS_OUT_OF_RANGE, [](const Situation& now) { return IsBadLighting(now.Given, 0); },
        [](Situation& now) { now.Element->Lighting = now.Given; });
    rules["Tarvex_Element_SetDefault"] = SetDefault;
    rules["Tarvex_Element_GetDefault"] = [](Situation& now)
    {
        const auto record = now.All.Defaults.find(static_cast<int32_t>(now.Given[0]));
        const bool known = record != now.All.Defaults.end();
        now.Expected = known ? record->second : Numbers();
        return known ? STATUS_OK : STATUS_BAD_ELEMENT_TYPE;
    };
}
