#include "support/Functions.h"

#include "TarvexExt.h"

#include <algorithm>
#include <iterator>
#include <map>
#include <sstream>
#include <stdexcept>
#include <tuple>

namespace Hosted
{
void* Parents[4];
Callback Callbacks[2][scripts];
const std::string longest(255, 'n');
const std::string tooLong(256, 'n');
const char* const Names[6] = {nullptr, "", "name", "X Axis", longest.c_str(), tooLong.c_str()};
} // namespace Hosted

namespace
{
struct Cursor
{
    size_t Scalar = 0;
    size_t Input = 0;
    size_t Array = 0;
};

// Of a parameter; Classify tells more of integers.
template <class T>
constexpr Role RoleOf()
{
    using Plain = std::remove_pointer_t<T>;
    return std::is_same_v<T, double>           ? Role::Real
           : std::is_same_v<T, int32_t>        ? Role::Integer
           : std::is_same_v<T, uint32_t>       ? Role::Unsigned
           : std::is_same_v<T, uint8_t>        ? Role::Byte
           : std::is_same_v<T, void*>          ? Role::Parent
           : std::is_same_v<T, const char*>    ? Role::Name
           : std::is_function_v<Plain>         ? Role::Callback
           : !std::is_const_v<Plain>           ? Role::Output
           : std::is_same_v<T, const double*>  ? Role::Reals
           : std::is_same_v<T, const int16_t*> ? Role::Samples
                                               : Role::Bytes;
}

// One argument, made from the next number or array of a call. Arrays are exactly as long as they
// have to be, so that a sanitizer sees the first step beyond.
template <class T>
struct Slot
{
    static constexpr Role role = RoleOf<T>();
    static constexpr bool isArray = IsInput(role) || role == Role::Output;
    using Plain = std::conditional_t<isArray, std::remove_const_t<std::remove_pointer_t<T>>, char>;

    Slot(const Call& call, Cursor& at)
    {
        if constexpr (isArray)
        {
            const Numbers untouched(call.OutputLength, Untouched);
            const Numbers& given = IsInput(role) ? call.Inputs.at(at.Input++) : untouched;
            Held.assign(given.begin(), given.end());
            Held.resize(std::max<size_t>(Held.size(), 1), Untouched);
            Given = at.Array++ == call.NullArray ? nullptr : Held.data();
        }
        else if constexpr (std::is_pointer_v<T>)
        {
            const std::tuple<const char* const*, void* const*, const Hosted::Callback*> tables(
                Hosted::Names, Hosted::Parents, Hosted::Callbacks[call.Called->OnChart]);
            Given = std::get<const T*>(tables)[static_cast<size_t>(call.Scalars.at(at.Scalar++))];
        }
        else
        {
            Given = static_cast<T>(call.Scalars.at(at.Scalar++));
        }
    }
    void Tell(Call& call) const
    {
        if constexpr (role == Role::Output)
        {
            // A palette is unsigned, and -1 all the same.
            using Told = std::conditional_t<std::is_same_v<Plain, uint32_t>, int32_t, Plain>;
            const std::vector<Told> told(Held.begin(), Held.end());
            call.Outputs.emplace_back(told.begin(), told.end());
        }
    }

    T Given = {};
    std::vector<Plain> Held;
};

// In the order of their numbers, which have a gap before the shapes.
const std::string types[] = {"SurfaceUniform", "SurfaceNonUniform",
                             "ProfileUniform", "ProfileNonUniform",
                             "Point",          "Line",
                             "Circle",         "Plane",
                             "Ellipse",        "Cylinder",
                             "Cube",           "Rectangle",
                             "Polygon",        "Polyhedron",
                             "Image"};

// The parameters' types say most; the name says which integers are ids and which are counts.
void Classify(Function& function)
{
    const bool isOfElements = function.Name.starts_with("Tarvex_Element");
    function.OnChart = function.NameHas("2D_");
    function.Adds = isOfElements && function.NameHas("_Add_");
    for (int32_t type = 0; const std::string& name : types)
    {
        const bool isIt = isOfElements && function.NameHas("_" + name);
        function.ElementType = isIt ? type : function.ElementType;
        type = type == TARVEX_ELEMENT_PROFILE_NON_UNIFORM ? TARVEX_ELEMENT_POINT : type + 1;
    }
    const bool tellsPoints =
        function.EndsWith("_GetValue") && function.NameHas("Poly", "2D_Profile");
    const bool isText = function.EndsWith("_CopyImage", "LastError");
    function.OutputArrays = isText || function.EndsWith("_Image_GetValue") ? 1
                            : !tellsPoints                                 ? 0
                            : function.NameHas("2D_Polygon")               ? 2
                                                                           : 3;
    const bool lists = function.EndsWith("_GetCount", "_GetIDFromIndex");
    const bool isGlobal = function.EndsWith("_DeleteAll", "_Create", "LastError") ||
                          (lists && function.NameHas("Window"));
    const bool onElement =
        (isOfElements && !function.Adds && !lists && !function.EndsWith("Default", "_RemoveAll")) ||
        function.EndsWith("_SetActiveElement", "Bar_Add", "Cube_Add_Resize");
    const size_t ids = isGlobal ? 0 : onElement ? 2 : 1;
    const Role last = function.TakesArrays() || isText ? Role::Count : Role::Integer;
    for (size_t integers = 0; Role & role : function.Roles)
    {
        if (role == Role::Integer)
        {
            role = integers >= ids ? last : integers == 0 ? Role::View : Role::Element;
            ++integers;
        }
    }
}

template <class... Parameters>
void Collect(std::vector<Function>& functions, const char* name, int32_t (*function)(Parameters...))
{
    Function& added = functions.emplace_back();
    added.Name = name;
    added.Roles = {RoleOf<Parameters>()...};
    added.TellsIntegers =
        ((std::is_same_v<Parameters, int32_t*> || std::is_same_v<Parameters, uint32_t*>) || ...);
    added.Invoke = [function](Call& call)
    {
        [[maybe_unused]] Cursor at;
        std::tuple<Slot<Parameters>...> slots{Slot<Parameters>(call, at)...};
        call.Outputs.clear();
        return std::apply(
            [&](auto&... slot)
            {
                const int32_t status = function(slot.Given...);
                (slot.Tell(call), ...);
                return status;
            },
            slots);
    };
    Classify(added);
}
} // namespace

std::vector<Role> Function::GetScalarRoles() const
{
    std::vector<Role> roles;
    std::ranges::copy_if(Roles, std::back_inserter(roles),
                         [](Role role) { return !IsInput(role) && role != Role::Output; });
    return roles;
}

int32_t Call::Perform()
{
    return Status = Called->Invoke(*this);
}

void Call::FitInputs()
{
    constexpr double most = 1 << 28;
    const std::vector<Role> roles = Called->GetScalarRoles();
    double samples = 1;
    for (size_t at = 0; at < roles.size(); ++at)
    {
        samples *= roles[at] == Role::Count ? std::max(Scalars.at(at), 0.0) : 1;
    }
    for (Numbers& input : Inputs)
    {
        input.resize(samples > most ? 1 : static_cast<size_t>(samples), 1);
    }
}

std::string Call::Describe() const
{
    std::ostringstream text;
    text << Called->Name << '(';
    for (const double scalar : Scalars)
    {
        text << ' ' << scalar;
    }
    for (const Numbers& input : Inputs)
    {
        text << " [" << input.size() << ']';
        for (size_t at = 0; at < std::min<size_t>(input.size(), 6); ++at)
        {
            text << (at ? "," : "{") << input[at];
        }
        text << '}';
    }
    text << (NullArray == SIZE_MAX ? ")" : " null: " + std::to_string(NullArray) + ")")
         << (Status == 0 ? "" : " = " + std::to_string(Status));
    for (const Numbers& output : Outputs)
    {
        text << ' ' << output.at(0);
    }
    return text.str();
}

const std::vector<Function>& AllFunctions()
{
    static const std::vector<Function> all = []
    {
        std::vector<Function> functions;
#define EXPORT(function) Collect(functions, #function, function);
#include "ExportTable.inc"
        EXPORT(TarvexExt_ProcessEvents)
        EXPORT(TarvexExt_Window_CopyImage)
        EXPORT(TarvexExt_Window2D_CopyImage)
        EXPORT(TarvexExt_Window_BeginUpdate)
        EXPORT(TarvexExt_Window_EndUpdate)
        EXPORT(TarvexExt_Window2D_BeginUpdate)
        EXPORT(TarvexExt_Window2D_EndUpdate)
        EXPORT(TarvexExt_GetLastError)
#undef EXPORT
        return functions;
    }();
    return all;
}

std::vector<const Function*> FindAll(const std::function<bool(const Function&)>& isIt)
{
    std::vector<const Function*> found;
    for (const Function& function : AllFunctions())
    {
        if (isIt(function))
        {
            found.push_back(&function);
        }
    }
    return found;
}

const Function& FindFunction(const std::string& name)
{
    return *FindAll([&](const Function& function) { return function.Name == name; }).at(0);
}

const Function* FindAdd(bool onChart, int32_t type)
{
    const auto found = FindAll([=](const Function& function)
                               { return function.Adds && function.IsFor(onChart, type); });
    return found.empty() ? nullptr : found[0];
}

const Function* FindChange(bool onChart, int32_t type)
{
    const auto found =
        FindAll([=](const Function& function)
                { return function.NameHas("_SetValue") && function.IsFor(onChart, type); });
    return found.empty() ? nullptr : found[0];
}

Call MakeCall(const std::string& name, const Numbers& scalars)
{
    Call call;
    call.Called = &FindFunction(name);
    call.Scalars = scalars;
    return call;
}

Call MakeGood(const Function& function, const Numbers& ids, int side)
{
    Call call;
    call.Called = &function;
    call.Scalars = ids;
    // A polyhedron has no more points.
    const int points = std::min(side * side, function.NameHas("Polyhedron") ? 250 : INT32_MAX);
    const bool isGrid = std::ranges::count(function.Roles, Role::Count) == 2;
    double number = 0;
    for (const Role role : function.Roles)
    {
        if (IsInput(role))
        {
            const auto order = static_cast<int>(call.Inputs.size());
            Numbers& input = call.Inputs.emplace_back();
            for (int at = 0; at < points; ++at)
            {
                const bool isMissing = role == Role::Samples && at % 7 == 5;
                input.push_back(isMissing ? TARVEX_INVALID_VALUE : (at + order) % 4 + 1);
            }
        }
        else if (role != Role::Output && role != Role::View && role != Role::Element)
        {
            call.Scalars.push_back(role == Role::Count  ? isGrid ? side : points
                                   : role == Role::Real ? number += 0.125
                                   : role == Role::Name ? 2
                                   : role == Role::Parent || role == Role::Callback ? 0
                                                                                    : 1);
        }
    }
    call.OutputLength = static_cast<size_t>(std::max(64, side * side));
    return call;
}
