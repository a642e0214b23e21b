// All exports as a table, and calls of them as data: what a call is made of, and how it is made
// from numbers.
#pragma once

#include "Tarvex.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

using Numbers = std::vector<double>;

// What a parameter is for.
enum class Role
{
    View,
    Element,
    Count, // how long arrays are: alone, or columns and rows
    Integer,
    Unsigned,
    Byte,
    Real,
    Reals, // arrays
    Samples,
    Bytes,
    Output,
    Name,
    Parent,
    Callback
};

constexpr bool IsInput(Role role)
{
    return role == Role::Reals || role == Role::Samples || role == Role::Bytes;
}

struct Call;

struct Function
{
    bool Has(Role role) const { return std::ranges::count(Roles, role) > 0; }
    bool TakesArrays() const { return std::ranges::any_of(Roles, IsInput); }
    std::vector<Role> GetScalarRoles() const; // of all that is no array
    bool IsFor(bool onChart, int32_t type) const
    {
        return OnChart == onChart && ElementType == type;
    }
    // One of the parts.
    template <class... Parts>
    bool NameHas(const Parts&... parts) const
    {
        return ((Name.find(parts) != std::string::npos) || ...);
    }
    template <class... Parts>
    bool EndsWith(const Parts&... parts) const
    {
        return (Name.ends_with(parts) || ...);
    }

    std::string Name;
    bool OnChart = false;       // of charts, not of 3D views
    bool Adds = false;          // an element
    bool TellsIntegers = false; // among its outputs
    int32_t ElementType = -1;   // that it is for, or adds; -1 for any
    size_t OutputArrays = 0;    // those first outputs that are as long as the element
    std::vector<Role> Roles;    // of the parameters
    std::function<int32_t(Call&)> Invoke;
};

// Numbers stand for all arguments: a Name, a Parent and a Callback are an entry of their tables.
struct Call
{
    // Makes it, and returns its status.
    int32_t Perform();
    std::string Describe() const;
    // Makes arrays as long as the counts say, unless no memory holds that: then nothing may be
    // read.
    void FitInputs();

    const Function* Called = nullptr;
    Numbers Scalars;             // all that is no array, in order
    std::vector<Numbers> Inputs; // each as long as the counts say
    size_t NullArray = SIZE_MAX; // the array that is null, counted over inputs and outputs
    size_t OutputLength = 1;     // what the host has room for, in each output
    std::vector<Numbers> Outputs;
    int32_t Status = 0;
};

// All exports, in an order that does not change: kept sequences name them by position.
const std::vector<Function>& AllFunctions();
const Function& FindFunction(const std::string& name);
std::vector<const Function*> FindAll(const std::function<bool(const Function&)>& isIt);
// The first that adds an element of the type, or changes all of its values; null for none.
const Function* FindAdd(bool onChart, int32_t type);
const Function* FindChange(bool onChart, int32_t type);
// Of a function without arrays.
Call MakeCall(const std::string& name, const Numbers& scalars);
// Values that work, behind the ids of the view and of the element where there are any: numbers grow
// by an eighth, so boxes have an extent, vectors a length, and shares lie between 0 and 1. Grids
// have `side` columns and rows, lists as many points as grids. Outputs have room for all of them.
Call MakeGood(const Function& function, const Numbers& ids = {}, int side = 4);

// What the host's variables hold before a call.
constexpr int Untouched = 77;

// What the entries of the tables stand for.
namespace Hosted
{
constexpr int scripts = 8; // entries for a callback; 0: none
using Callback = void (*)(int32_t view, int32_t element);
extern void* Parents[4];               // 0: the host's window, 2: null, 3: no window at all
extern Callback Callbacks[2][scripts]; // of 3D views, of charts
extern const char* const Names[6];
} // namespace Hosted
