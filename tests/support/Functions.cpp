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

// One argument, made from the next number or array of a call. Arrays are exactly as long as they
// have to be, so that a sanitizer sees the first step beyond.
template <class T>
struct Slot
{
    using Plain = std::remove_const_t<std::remove_pointer_t<T>>;
    static constexpr bool IsArray = std::is_pointer_v<T> && std::is_arithmetic_v<Plain>;
    static constexpr bool IsName = std::is_same_v<T, const char*>;
    static constexpr bool IsInput = IsArray && !IsName && std::is_const_v<std::remove_pointer_t<T>>;
    static constexpr bool IsOutput = IsArray && !IsName && !IsInput;

    Slot(Call& call, Cursor& at)
    {
        if constexpr (IsInput)
        {
            const Numbers& given = call.Inputs.at(at.Input++);
            Held.assign(std::max<size_t>(given.size(), 1), Plain{});
            std::ranges::transform(given, Held.begin(),
                                   [](double value) { return static_cast<Plain>(value); });
        }
        else if constexpr (IsOutput)
        {
            Held.assign(std::max<size_t>(call.OutputLength, 1), Plain{Untouched});
        }
        else
        {
            Number = call.Scalars.at(at.Scalar++);
        }
        if constexpr (IsInput || IsOutput)
        {
            IsNull = at.Array++ == call.NullArray;
        }
        OnChart = call.Called->OnChart;
    }
    T Give()
    {
        if constexpr (IsInput || IsOutput)
        {
            return IsNull ? nullptr : Held.data();
        }
        else if constexpr (IsName)
        {
            return Hosted::Names[static_cast<size_t>(Number)];
        }
        else if constexpr (std::is_same_v<T, void*>)
        {
            return Hosted::Parents[static_cast<size_t>(Number)];
        }
        else if constexpr (std::is_pointer_v<T>)
        {
            return Hosted::Callbacks[OnChart][static_cast<size_t>(Number)];
        }
        else
        {
            return static_cast<T>(Number);
        }
    }
    void Tell(Call& call) const
    {
        if constexpr (IsOutput)
        {
            // A palette is unsigned, and -1 all the same.
            using Told = std::conditional_t<std::is_same_v<Plain, uint32_t>, int32_t, Plain>;
            Numbers& told = call.Outputs.emplace_back();
            std::ranges::transform(Held, std::back_inserter(told),
                                   [](Plain value) { return static_cast<Told>(value); });
        }
    }

    std::vector<std::conditional_t<IsArray, Plain, char>> Held;
    double Number = 0;
    bool IsNull = false;
    bool OnChart = false;
};

template <class T>
Role RoleOf()
{
    if constexpr (std::is_pointer_v<T>)
    {
        return Slot<T>::IsName                     ? Role::Name
               : Slot<T>::IsOutput                 ? Role::Output
               : std::is_same_v<T, const double*>  ? Role::Reals
               : std::is_same_v<T, const int16_t*> ? Role::Samples
               : std::is_same_v<T, const uint8_t*> ? Role::Bytes
               : std::is_same_v<T, void*>          ? Role::Parent
                                                   : Role::Callback;
    }
    else
    {
        return std::is_same_v<T, double>     ? Role::Real
               : std::is_same_v<T, uint8_t>  ? Role::Byte
               : std::is_same_v<T, uint32_t> ? Role::Unsigned
                                             : Role::Integer;
    }
}

const std::map<std::string, int32_t> types = {
    {"SurfaceUniform", TARVEX_ELEMENT_SURFACE_UNIFORM},
    {"SurfaceNonUniform", TARVEX_ELEMENT_SURFACE_NON_UNIFORM},
    {"ProfileUniform", TARVEX_ELEMENT_PROFILE_UNIFORM},
    {"ProfileNonUniform", TARVEX_ELEMENT_PROFILE_NON_UNIFORM},
    {"Point", TARVEX_ELEMENT_POINT},
    {"Line", TARVEX_ELEMENT_LINE},
    {"Circle", TARVEX_ELEMENT_CIRCLE},
    {"Plane", TARVEX_ELEMENT_PLANE},
    {"Ellipse", TARVEX_ELEMENT_ELLIPSE},
    {"Cylinder", TARVEX_ELEMENT_CYLINDER},
    {"Cube", TARVEX_ELEMENT_CUBE},
    {"Rectangle", TARVEX_ELEMENT_RECTANGLE},
    {"Polygon", TARVEX_ELEMENT_POLYGON},
    {"Polyhedron", TARVEX_ELEMENT_POLYHEDRON},
    {"Image", TARVEX_ELEMENT_IMAGE},
    {"ImageByte", TARVEX_ELEMENT_IMAGE},
    {"ImageShort", TARVEX_ELEMENT_IMAGE}};

// The parameters' types say most; the name says which integers are ids and which are counts.
void Classify(Function& function)
{
    const std::string& name = function.Name;
    function.OnChart = function.NameHas("2D_");
    function.Adds = name.starts_with("Tarvex_Element") && function.NameHas("_Add_");
    std::istringstream parts(name);
    for (std::string part; name.starts_with("Tarvex_Element") && std::getline(parts, part, '_');)
    {
        const auto type = types.find(part);
        function.ElementType = type == types.end() ? function.ElementType : type->second;
    }
    const bool tellsPoints =
        name.ends_with("_GetValue") && (function.NameHas("Poly") || function.NameHas("2D_Profile"));
    const bool isText = name.ends_with("_CopyImage") || name.ends_with("LastError");
    function.OutputArrays = isText || name.ends_with("_Image_GetValue")    ? 1
                            : !tellsPoints                                 ? 0
                            : name.ends_with("Element2D_Polygon_GetValue") ? 2
                                                                           : 3;
    const bool isGlobal = name.ends_with("_DeleteAll") || name.ends_with("_Create") ||
                          (function.NameHas("Window") &&
                           (name.ends_with("_GetCount") || name.ends_with("_GetIDFromIndex"))) ||
                          name == "TarvexExt_GetLastError";
    const bool onElement = (name.starts_with("Tarvex_Element") && !function.Adds &&
                            !name.ends_with("_GetCount") && !name.ends_with("_GetIDFromIndex") &&
                            !name.ends_with("Default") && !name.ends_with("_RemoveAll")) ||
                           name.ends_with("_SetActiveElement") || name.ends_with("ScalarBar_Add") ||
                           name.ends_with("Cube_Add_Resize");
    const bool counts = function.TakesArrays() || isText;
    const size_t ids = isGlobal ? 0 : onElement ? 2 : 1;
    size_t integers = 0;
    for (Role& role : function.Roles)
    {
        if (role == Role::Integer)
        {
            role = integers >= ids ? (counts ? Role::Count : Role::Integer)
                   : integers == 0 ? Role::View
                                   : Role::Element;
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
                const int32_t status = function(slot.Give()...);
                (slot.Tell(call), ...);
                return status;
            },
            slots);
    };
    Classify(added);
}

const Function* FindFirst(const std::function<bool(const Function&)>& isIt)
{
    const auto found = std::ranges::find_if(AllFunctions(), isIt);
    return found == AllFunctions().end() ? nullptr : &*found;
}

std::vector<Function> CollectAll()
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
}
} // namespace

bool Function::Has(Role role) const
{
    return std::ranges::find(Roles, role) != Roles.end();
}

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
    text << (NullArray == SIZE_MAX ? ")" : " null: " + std::to_string(NullArray) + ")");
    if (Status != 0)
    {
        text << " = " << Status;
    }
    for (const Numbers& output : Outputs)
    {
        text << ' ' << output.at(0);
    }
    return text.str();
}

const std::vector<Function>& AllFunctions()
{
    static const std::vector<Function> functions = CollectAll();
    return functions;
}

const Function& FindFunction(const std::string& name)
{
    static const auto index = []
    {
        std::map<std::string, const Function*> byName;
        for (const Function& function : AllFunctions())
        {
            byName[function.Name] = &function;
        }
        return byName;
    }();
    return *index.at(name);
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

const Function* FindAdd(bool onChart, int32_t type)
{
    return FindFirst([=](const Function& function)
                     { return function.Adds && function.IsFor(onChart, type); });
}

const Function* FindChange(bool onChart, int32_t type)
{
    return FindFirst([=](const Function& function)
                     { return function.NameHas("_SetValue") && function.IsFor(onChart, type); });
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
    const auto counts = std::ranges::count(function.Roles, Role::Count);
    // A polyhedron has no more points.
    constexpr double most = 250;
    const double all = side * side;
    const double points = function.NameHas("Polyhedron") ? std::min(all, most) : all;
    double number = 0;
    for (const Role role : function.Roles)
    {
        const bool isArray = role == Role::Reals || role == Role::Samples || role == Role::Bytes;
        if (isArray)
        {
            const auto order = static_cast<int>(call.Inputs.size());
            Numbers& input = call.Inputs.emplace_back(static_cast<size_t>(points));
            for (int at = 0; at < static_cast<int>(points); ++at)
            {
                const bool isMissing = role == Role::Samples && at % 7 == 5;
                input[static_cast<size_t>(at)] =
                    isMissing ? TARVEX_INVALID_VALUE : (at + order) % 4 + 1;
            }
        }
        else if (role != Role::Output && role != Role::View && role != Role::Element)
        {
            call.Scalars.push_back(role == Role::Count      ? (counts == 2 ? side : points)
                                   : role == Role::Real     ? number += 0.125
                                   : role == Role::Integer  ? 1
                                   : role == Role::Unsigned ? 1
                                   : role == Role::Byte     ? 1
                                   : role == Role::Name     ? 2
                                                            : 0);
        }
    }
    call.OutputLength = std::max<size_t>(64, static_cast<size_t>(all));
    return call;
}
