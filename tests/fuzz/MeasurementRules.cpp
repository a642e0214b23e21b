// Measured data: surfaces, profiles and images.
#include "fuzz/Model.h"

#include <algorithm>
#include <cmath>

namespace
{
constexpr double missing = TARVEX_INVALID_VALUE;
constexpr double lastPalette = TARVEX_PALETTE_SINGLE_COLOR;

size_t CountOf(const Situation& now, size_t at)
{
    return static_cast<size_t>(std::max(now.Given[at], 0.0));
}

// What adds and changes of surfaces and of 3D profiles test: counts, then scales, then offsets.
int32_t JudgeSamples(const Situation& now, size_t counts, size_t scales)
{
    const Function& called = *now.Made.Called;
    const Numbers& heights = now.Made.Inputs[called.NameHas("NonUniform") ? counts : 0];
    const bool isEmpty = std::ranges::count(heights, missing) == std::ssize(heights);
    const bool hasMode = called.Adds && counts == 2;
    const bool usable = AreUsable(now.Given, counts, now.Given.size() - counts - (hasMode ? 1 : 0));
    const auto size = now.Given.begin();
    const auto scale = size + static_cast<ptrdiff_t>(counts);
    const double samples = counts == 2 ? size[0] * size[1] : size[0];
    // A change of a surface looks at the numbers first.
    return !usable && !called.Adds              ? STATUS_NOT_FINITE
           : LacksArray(now.Made)               ? STATUS_NULL_ARGUMENT
           : !usable                            ? STATUS_NOT_FINITE
           : *std::min_element(size, scale) < 2 ? STATUS_TOO_SMALL
           : *std::min_element(scale, scale + static_cast<ptrdiff_t>(scales)) < 1e-12
               ? STATUS_OUT_OF_RANGE
           : IsTooMuch(samples, counts == 2 ? 2 : 8) ? STATUS_OUT_OF_MEMORY
           : isEmpty                                 ? STATUS_BAD_COUNT
                                                     : STATUS_OK;
}

int32_t StoreSurface(Situation& now)
{
    const int32_t status = JudgeSamples(now, 2, 3);
    if (status == STATUS_OK && !now.Element)
    {
        AddElement(now);
        now.Element->Mode = now.Given.back() != 0;
    }
    if (now.Element && (status == STATUS_OK || status == STATUS_BAD_COUNT))
    {
        ModelElement& element = *now.Element;
        element.Columns = CountOf(now, 0);
        element.Rows = CountOf(now, 1);
        element.HasIntensity = now.Made.NullArray == SIZE_MAX;
        element.ShowsIntensity = element.ShowsIntensity && element.HasIntensity;
        element.Unbuilt = status != STATUS_OK;
        element.Lighting = element.Unbuilt ? element.Lighting : element.FirstLighting;
    }
    return status;
}

int32_t AddIntensity(Situation& now)
{
    const bool fits = now.Given[0] == static_cast<double>(now.Element->Columns) &&
                      now.Given[1] >= static_cast<double>(now.Element->Rows);
    const bool good = fits && !LacksArray(now.Made);
    now.Element->HasIntensity = now.Element->HasIntensity || good;
    return LacksArray(now.Made) ? STATUS_NULL_ARGUMENT : good ? STATUS_OK : STATUS_TOO_SMALL;
}

int32_t SetPalette(Situation& now)
{
    double& palette = now.Element->Palette();
    const bool known = now.Given[0] <= lastPalette;
    palette = known ? now.Given[0] : palette;
    return known ? STATUS_OK : STATUS_OUT_OF_RANGE;
}

int32_t SetScaling(Situation& now)
{
    Numbers& held = now.Element->Scaling;
    const Numbers& given = now.Given;
    const bool automatic = given[0] != 0;
    if (automatic ? IsOutside(given[1], 0, 45) : given[2] >= given[3] - 0.001)
    {
        return STATUS_OUT_OF_RANGE;
    }
    if (now.Element->ShowsIntensity)
    {
        const bool isOutside = given[2] < 0 || given[3] > 255 || given[3] - given[2] < 1;
        held[0] = automatic ? held[0] : 0;
        return automatic ? STATUS_BAD_POINT : isOutside ? STATUS_OUT_OF_RANGE : STATUS_OK;
    }
    held = automatic ? Numbers{1, given[1], held[2], held[3]}
                     : Numbers{0, held[1], given[2], given[3]};
    return automatic && now.Element->Unbuilt ? STATUS_BAD_COUNT : STATUS_OK;
}

// The samples of a chart profile, in chart coordinates: x, y, valid.
std::vector<Numbers> ReadSamples(const Situation& now)
{
    const Call& call = now.Made;
    const size_t count = CountOf(now, 0);
    const bool general = call.Called->NameHas("General");
    const bool hasX = call.Inputs.size() > 1;
    std::vector<Numbers> samples(3, Numbers(count));
    for (size_t at = 0; at < count; ++at)
    {
        const double z = call.Inputs[hasX ? 1 : 0][at];
        const bool valid = general ? call.NullArray == 2 || call.Inputs[2][at] != 0 : z != missing;
        const double x = hasX ? call.Inputs[0][at] : static_cast<double>(at);
        samples[0][at] = general ? x : x * now.Given[1] + now.Given[3];
        samples[1][at] = !valid ? 0 : general ? z : z * now.Given[2] + now.Given[4];
        samples[2][at] = valid;
    }
    if (general && !call.Called->NameHas("Attach") && count > 0 && samples[2][0] == 0)
    {
        samples[0][0] = 0;
    }
    return samples;
}

int32_t JudgeChartSamples(const Situation& now, double least)
{
    return LacksArray(now.Made)   ? STATUS_NULL_ARGUMENT
           : now.Given[0] < least ? STATUS_TOO_SMALL
           : !AreUsable(now.Given, 1, 4) && !now.Made.Called->NameHas("General") ? STATUS_NOT_FINITE
           : IsTooMuch(now.Given[0], 8) ? STATUS_OUT_OF_MEMORY
                                        : STATUS_OK;
}

Rule SetSamples(double least, bool attaches = false)
{
    return [=](Situation& now) -> int32_t
    {
        const bool uniform = now.Made.Called->ElementType == TARVEX_ELEMENT_PROFILE_UNIFORM;
        const int32_t status = now.Element && now.Element->Empty ? int32_t{STATUS_NOT_READY}
                                                                 : JudgeChartSamples(now, least);
        if (status != STATUS_OK)
        {
            return status;
        }
        const std::vector<Numbers> samples = ReadSamples(now);
        const bool empty = uniform && std::ranges::count(samples[2], 0) == std::ssize(samples[2]);
        if (!now.Element && empty)
        {
            return STATUS_NOT_READY;
        }
        if (!now.Element)
        {
            AddElement(now);
        }
        now.Element->Points.resize(3);
        for (size_t axis = 0; axis < 3; ++axis)
        {
            Numbers& held = now.Element->Points[axis];
            held.erase(attaches ? held.end() : held.begin(), held.end());
            held.insert(held.end(), samples[axis].begin(), samples[axis].end());
        }
        now.Element->Empty = empty;
        return STATUS_OK;
    };
}

// Bytes as they are; 16-bit values that are reduced are not known.
int32_t SetImage(Situation& now)
{
    const bool tooFine = now.Given[2] < 1e-10 || now.Given[3] < 1e-10 || now.Given[4] < 1e-10;
    const int32_t status = LacksArray(now.Made)                        ? STATUS_NULL_ARGUMENT
                           : std::min(now.Given[0], now.Given[1]) < 2  ? STATUS_TOO_SMALL
                           : tooFine || now.Given[8] > lastPalette     ? STATUS_OUT_OF_RANGE
                           : IsTooMuch(now.Given[0] * now.Given[1], 1) ? STATUS_OUT_OF_MEMORY
                                                                       : STATUS_OK;
    if (status != STATUS_OK)
    {
        return status;
    }
    const auto image =
        std::ranges::find(now.View->Elements, TARVEX_ELEMENT_IMAGE, &ModelElement::Type);
    now.Element = image == now.View->Elements.end() ? nullptr : &*image;
    if (!now.Element)
    {
        AddElement(now);
    }
    ModelElement& element = *now.Element;
    now.Expected = now.Made.Called->Adds ? Numbers{static_cast<double>(element.Id)} : Numbers{};
    element.Columns = CountOf(now, 0);
    element.Rows = CountOf(now, 1);
    const Numbers& pixels = now.Made.Inputs[0];
    const bool fits =
        std::ranges::all_of(pixels, [](double value) { return value >= 0 && value <= 255; });
    element.Points = {fits ? pixels : Numbers(pixels.size(), anyNumber)};
    element.Values = {now.Given.begin() + 2, now.Given.begin() + 8};
    if (!now.Made.Called->Has(Role::Bytes) && !fits)
    {
        element.Values[2] = element.Values[5] = anyNumber;
    }
    element.Palettes[0] = now.Given[8];
    return STATUS_OK;
}
} // namespace

void TellMeasurementRules(Rules& rules)
{
    const std::string surface = "_SurfaceUniform";
    rules["Element_Add" + surface] = rules["Element" + surface + "_SetValue"] = StoreSurface;
    rules["Element" + surface + "_AddIntensity"] = AddIntensity;
    rules["Element_ShowIntensity" + surface] = Unless(
        STATUS_NOT_READY, [](auto& now) { return now.Given[0] != 0 && !now.Element->HasIntensity; },
        [](auto& now) { now.Element->ShowsIntensity = now.Given[0] != 0; });
    rules["Element" + surface + "_GetRepresentationMode"] =
        Gives([](auto& now) { return now.Element->Mode; });
    rules["Element" + surface + "_SetRepresentationMode"] = Does(
        [](auto& now)
        {
            now.Element->Mode = now.Given[0] != 0;
            now.Element->Lighting = now.Element->FirstLighting;
        });
    rules["Element_GetPalette" + surface] = rules["Element_GetPalette_Image"] =
        Gives([](auto& now) { return now.Element->Palette(); });
    rules["Element_SetPalette" + surface] = rules["Element_SetPalette_Image"] = SetPalette;
    rules["Element_GetZScalingPalette" + surface] =
        Gives([](auto& now) { return now.Element->Scaling; });
    rules["Element_ZScalingPalette" + surface] = SetScaling;
    rules["Element_Add_ProfileUniform"] = [](auto& now)
    {
        const int32_t status = JudgeSamples(now, 1, 2);
        return status == STATUS_OK ? AddElement(now) : status;
    };
    const std::string chart = "Element2D_";
    for (const std::string data : {"_GeneralData", "_KorData"})
    {
        rules[chart + "Add_ProfileNonUniform" + data] = SetSamples(data[1] == 'G' ? 1 : 2);
        rules[chart + "ProfileNonUniform_SetValue" + data] = SetSamples(2);
        rules[chart + "ProfileNonUniform_AttachValues" + data] = SetSamples(1, true);
    }
    rules[chart + "Add_ProfileUniform"] = rules[chart + "ProfileUniform_SetValue"] = SetSamples(2);
    rules[chart + "ProfileNonUniform_SetMarkerSize"] =
        Unless(STATUS_TOO_SMALL, [](auto& now) { return now.Given[0] < 0.001; });
    rules["Element_ProfileUniform_GetPointCount"] = Unless(
        STATUS_NOT_READY, [](auto& now) { return now.Element->Empty; },
        [](auto& now) { now.Expected = Answer(now.Element->CountPoints()); });
    for (const char* form : {"Byte", "Short"})
    {
        rules[std::string("Element_Add_Image") + form] = SetImage;
        rules[std::string("Element_Image_SetValue") + form] = SetImage;
    }
    rules["Element_Image_GetImageSize"] = Gives(
        [](auto& now) {
            return Numbers{double(now.Element->Columns), double(now.Element->Rows)};
        });
}
