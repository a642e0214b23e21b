#include "fuzz/Decoder.h"

#include <algorithm>
#include <cfloat>
#include <cmath>
#include <iterator>

namespace
{
constexpr double infinity = HUGE_VAL;
constexpr double mild[] = {0,   1,    0.5, 2,  10,   -1, -10, 100, 0.25, 3,   -3.5, 45,  0.001,
                           360, -180, 0.1, 20, -0.5, 5,  400, 7,   -400, 180, -360, 540, -540};
constexpr double wild[] = {NAN,   infinity, -infinity, DBL_MIN, DBL_MAX, -DBL_MAX,
                           1e300, -1e300,   5e-324,    1e-310,  1e-7,    1e-13,
                           1e-10, 1e30,     1e39,      1e16,    -1e18,   -9223372036854.5,
                           4e9,   1e154,    -0.0,      1e-5,    3e-9,    9.3e18};
constexpr double counts[] = {2, 3, 4, 5, 2, 3, 6, 1, 0, -1, 7, 16, 4, 3, 251, 65536};
constexpr double integers[] = {0, 1, 2, 3, 4, 5, 6, 7, 0, 1, 2, 3, 8, -1, INT32_MAX, INT32_MIN};
constexpr double scaling[] = {0, 10, 10.5, 254.5, 255, 255.1, -0.1, 45.1};
constexpr double sizes[] = {4, 5, 96, 8, 0, -1, 24, 4};
constexpr double noIds[] = {-1, 1000, INT32_MAX, INT32_MIN};
constexpr double elementTypes[] = {0, 1, 2, 3, 10, 11, 12, 13, 14, 15, 16, 17, 18, 19, 20, -1};
constexpr size_t mostViews = 3;
constexpr size_t mostElements = 24;
constexpr size_t mostPoints = 2000;
constexpr double mostSamples = 1 << 20;

template <size_t count>
double Pick(const double (&from)[count], unsigned byte)
{
    return from[byte % count];
}

// How unusual the arguments of a call are.
struct Style
{
    explicit Style(uint8_t byte)
        : Wildness(byte & 3), HasNull((byte & 28) == 28), IsRare(byte >= 240)
    {
    }
    double Draw(unsigned byte) const
    {
        const bool isWild = Wildness == 3 ? byte % 2 == 0 : Wildness == 2 && byte % 8 == 0;
        return isWild          ? Pick(wild, byte / 2)
               : byte % 3 == 0 ? (static_cast<double>(byte) - 128) / 2
                               : Pick(mild, byte / 3);
    }
    int Wildness;
    bool HasNull;
    bool IsRare; // what ends whole views may happen
};

const Function& ChooseFunction(uint8_t choice, const Style& style, uint8_t other)
{
    static const auto adds = FindAll([](const Function& function) { return function.Adds; });
    // What a mouse needs to do something, and what matters once intensities are shown.
    static const auto settings = FindAll(
        [](const Function& function)
        {
            return function.Has(Role::Callback) ||
                   function.NameHas("_SetDrawMode", "_SetActiveElement", "_ShowIntensity",
                                    "_ZScaling");
        });
    const std::vector<Function>& all = AllFunctions();
    // Views and elements would not live long otherwise.
    if (choice < all.size() && (style.IsRare || !all[choice].EndsWith("All", "_Delete", "_Create")))
    {
        return all[choice];
    }
    const auto& chosen = choice % 4 == 1 ? settings : adds;
    return *chosen[other % chosen.size()];
}

double ChooseView(const Model& model, bool onChart, uint8_t byte)
{
    const std::vector<ModelView>& views = model.Views[onChart];
    const std::vector<ModelView>& others = model.Views[!onChart];
    if (byte < 4 || views.empty())
    {
        return Pick(noIds, byte);
    }
    return byte < 8 && !others.empty() ? others[byte % others.size()].Id
                                       : views[byte % views.size()].Id;
}

double ChooseElement(Model& model, const Call& call, uint8_t byte)
{
    ModelView* const view = model.ViewOf(call);
    const int32_t type = call.Called->ElementType;
    std::vector<int32_t> fitting;
    for (size_t at = 0; view && at < view->Elements.size(); ++at)
    {
        if (byte < 24 || type < 0 || view->Elements[at].Type == type)
        {
            fitting.push_back(view->Elements[at].Id);
        }
    }
    return byte < 6 || fitting.empty() ? byte < 2 && view ? view->NextElement : Pick(noIds, byte)
                                       : fitting[byte % fitting.size()];
}

// Values of one kind of array; `byte` chooses the pattern.
double DrawSample(Role role, const Style& style, unsigned byte, unsigned at)
{
    const unsigned mixed = (byte * 31 + at * 73 + at * at * byte) & 255;
    if (role == Role::Reals)
    {
        return style.Draw(mixed);
    }
    if (role == Role::Bytes)
    {
        return byte < 16 ? 0 : mixed;
    }
    constexpr double samples[] = {0,  5,   -5,     100, 32767,  -32767, 7,   20,
                                  -9, 250, -32768, 3,   -32768, 1,      255, 12};
    return byte < 16 ? TARVEX_INVALID_VALUE : byte < 48 ? mixed : Pick(samples, mixed);
}

double DrawScalar(Role role, Model& model, const Call& call, const Style& style, uint8_t byte)
{
    const Function& called = *call.Called;
    const bool scales =
        role == Role::Real && style.Wildness < 2 && called.NameHas("_ZScalingPalette");
    const bool sized = called.EndsWith("_Create", "_UpdateSize");
    return role == Role::View      ? ChooseView(model, called.OnChart, byte)
           : role == Role::Element ? ChooseElement(model, call, byte)
           // The two largest only where a call is meant to be odd.
           : role == Role::Count        ? counts[byte % (style.Wildness == 3 ? 16 : 14)]
           : role == Role::Unsigned     ? (byte < 240    ? byte % 8
                                           : byte == 255 ? UINT32_MAX
                                                         : byte)
           : role == Role::Byte         ? (byte % 4 == 0 ? 0 : byte)
           : role == Role::Name         ? byte % static_cast<int>(std::size(Hosted::Names))
           : role == Role::Parent       ? (byte < 8    ? 3
                                           : byte < 16 ? 2
                                                       : 0)
           : role == Role::Callback     ? byte % Hosted::scripts
           : scales                     ? Pick(scaling, byte)
           : role != Role::Integer      ? style.Draw(byte)
           : sized                      ? Pick(sizes, byte)
           : called.EndsWith("Default") ? Pick(elementTypes, byte)
                                        : Pick(integers, byte);
}

void DrawArguments(ByteStream& bytes, Model& model, Call& call, const Style& style)
{
    double samples = 1;
    for (const Role role : call.Called->GetScalarRoles())
    {
        double number = DrawScalar(role, model, call, style, bytes.Next());
        if (role == Role::Count)
        {
            const double product = samples * std::max(number, 0.0);
            number = product > mostSamples && product <= INT32_MAX ? 2 : number;
            samples *= std::max(number, 0.0);
        }
        call.Scalars.push_back(number);
    }
    const bool isText = call.Called->OutputArrays > 0 && !call.Called->Has(Role::Element);
    call.OutputLength = isText ? static_cast<size_t>(std::max(call.Scalars.back(), 1.0)) : 1;
    std::vector<Role> inputs;
    std::ranges::copy_if(call.Called->Roles, std::back_inserter(inputs), IsInput);
    call.Inputs.resize(inputs.size());
    call.FitInputs();
    for (size_t input = 0; input < inputs.size(); ++input)
    {
        const uint8_t byte = bytes.Next();
        for (unsigned at = 0; at < call.Inputs[input].size(); ++at)
        {
            call.Inputs[input][at] = DrawSample(inputs[input], style, byte, at);
        }
    }
    const size_t arrays = inputs.size() + call.Called->OutputArrays;
    const uint8_t which = bytes.Next();
    call.NullArray = style.HasNull && arrays > 0 ? which % arrays : SIZE_MAX;
}

// Instead of what would let the model grow without end, or finds nothing to act on.
void Moderate(Model& model, Call& call)
{
    const std::string kind = call.Called->OnChart ? "2D_" : "_";
    const std::vector<ModelView>& views = model.Views[call.Called->OnChart];
    const ModelView* const view = model.ViewOf(call);
    const int32_t type = call.Called->ElementType;
    const auto isLong = [](const ModelElement& each) { return each.CountPoints() > mostPoints; };
    if (call.Called->EndsWith("_Create") && views.size() >= mostViews)
    {
        call = MakeCall("Tarvex_Window" + kind + "Delete", {static_cast<double>(views[0].Id)});
    }
    else if (view &&
             (view->Elements.size() >= mostElements || std::ranges::any_of(view->Elements, isLong)))
    {
        call = MakeCall("Tarvex_Element" + kind + "RemoveAll", {static_cast<double>(view->Id)});
    }
    else if (call.Called->Has(Role::View) && views.empty())
    {
        call = MakeCall("Tarvex_Window" + kind + "Create", {0, 1, 0, 0, 4, 4});
    }
    else if (view && call.Called->Has(Role::Element) && type >= 0 &&
             std::ranges::count(view->Elements, type, &ModelElement::Type) == 0)
    {
        call = MakeGood(*FindAdd(view->OnChart, type), {static_cast<double>(view->Id)});
    }
}
} // namespace

bool DecodeStep(ByteStream& bytes, Model& model, Call& call, MouseMove& move)
{
    const uint8_t choice = bytes.Next();
    const Style style(bytes.Next());
    const uint8_t other = bytes.Next();
    if (choice >= AllFunctions().size() && choice % 2 == 0)
    {
        move.OnChart = (other & 1) != 0;
        move.View = other >> 2;
        move.Drags = (other & 2) != 0;
        move.X = bytes.Next();
        move.Y = bytes.Next();
        const uint8_t button = bytes.Next();
        move.Button = button < 96 ? (move.Drags ? 1 : 0) : button < 192 ? 1 : 1 + button % 5;
        move.Press = button % 2 == 0;
        return false;
    }
    call = {};
    call.Called = &ChooseFunction(choice, style, other);
    DrawArguments(bytes, model, call, style);
    Moderate(model, call);
    return true;
}
