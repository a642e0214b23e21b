// What calls that fail leave in the host's variables: each export writes its outputs before it
// tests anything, with a few exceptions.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

#include <map>

namespace
{
constexpr double kept = 77; // what the host's variables hold before a call

// A single value stands for all outputs.
const std::map<std::string, Numbers> exceptions = {
    {"a picture of a view", {kept, 0, 0}},
    {"a picture of a chart", {kept, 0, 0}},
    {"Tarvex_Element_GetDefault", {kept}},
    {"Tarvex_Element_Add_Circle", {kept}},
    {"Tarvex_Element_Add_Cylinder", {kept}},
    {"Tarvex_Element_Add_Rectangle", {kept}},
    {"Tarvex_Element_Polygon_GetValue", {kept}},
    {"Tarvex_Element_Polyhedron_GetValue", {kept, kept, kept, 0, 0, 0, 0}},
    {"Tarvex_Element_GetZScalingPalette_SurfaceUniform", {0, -1, 0, 0}},
    {"Tarvex_Element_GetZScalingPalette_SurfaceNonUniform", {0, -1, 0, 0}},
    {"Tarvex_Element3D_SurfaceUniform_GetRepresentationMode", {1}},
    {"Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode", {1}},
    {"Tarvex_Element2D_Add_Circle", {kept}},
    {"Tarvex_Element2D_Add_Rectangle", {kept}},
    {"Tarvex_Element2D_Polygon_GetValue", {kept}},
    {"Tarvex_Element2D_ProfileUniform_GetValue", {kept}},
    {"Tarvex_Element2D_ProfileNonUniform_GetValue", {kept}},
    {"Tarvex_Element2D_Image_GetValue", {kept, 0, 0, 0, 0, 0, 0}}};

struct Named
{
    std::string Name;
    Export Function;
};

template <class T>
constexpr bool isOutput = std::is_pointer_v<T> && !std::is_const_v<std::remove_pointer_t<T>> &&
                          std::is_arithmetic_v<std::remove_pointer_t<T>>;

// Those that begin with the id of a view and have outputs.
template <class... Rest>
void Collect(std::vector<Named>& calls, const char* name, int32_t (*function)(int32_t, Rest...))
{
    if constexpr ((isOutput<Rest> || ...))
    {
        calls.push_back({name, function});
    }
}
template <class Function>
void Collect(std::vector<Named>&, const char*, Function*)
{
}

std::vector<Named> FindCalls()
{
    std::vector<Named> calls;
#define EXPORT(function) Collect(calls, #function, function);
#include "ExportTable.inc"
#undef EXPORT
    // These begin with a position.
    std::erase_if(calls,
                  [](const Named& call)
                  {
                      return call.Name.find("Window") != std::string::npos &&
                             call.Name.ends_with("_GetIDFromIndex");
                  });
    return calls;
}

// Those that begin with the ids of a 3D view and of an element.
bool IsOnElement(const Named& call)
{
    return call.Name.starts_with("Tarvex_Element") && !call.Name.starts_with("Tarvex_Element2D") &&
           call.Name.find("_Add_") == std::string::npos && !call.Name.ends_with("_GetCount") &&
           !call.Name.ends_with("_GetDefault");
}

class Outputs : public ViewFixture
{
protected:
    // Only `status`, if there is one given.
    static void ExpectFailure(const Named& call, int32_t view, int32_t status = 0)
    {
        Numbers outputs;
        const int32_t answer = call.Function.Perform(view, {}, outputs);
        EXPECT_TRUE(answer == status || status == 0) << call.Name << " answers " << answer;
        // Ids, types, palettes and draw modes become -1.
        const bool counts = call.Name.find("Count") != std::string::npos ||
                            call.Name.find("Size") != std::string::npos;
        Numbers expected = {call.Function.HasIntegers && !counts ? -1.0 : 0.0};
        if (const auto exception = exceptions.find(call.Name); exception != exceptions.end())
        {
            expected = exception->second;
        }
        expected.resize(expected.size() == 1 ? outputs.size() : expected.size(), expected[0]);
        EXPECT_TRUE(answer == STATUS_OK || outputs == expected)
            << call.Name << ": " << testing::PrintToString(outputs);
    }
};

TEST_F(Outputs, AreClearedByWhateverFails)
{
    const std::vector<Named> calls = FindCalls();
    EXPECT_GT(calls.size(), 80U);
    for (const Named& call : calls)
    {
        ExpectFailure(call, Id + 1, STATUS_WINDOW_NOT_FOUND);
        ExpectFailure(call, TARVEX_NONE, STATUS_WINDOW_NOT_FOUND);
        // Charts are views of another kind, no element has the id, or the arguments are bad.
        const bool isOnChart = call.Name.find("2D") != std::string::npos;
        const int32_t status = IsOnElement(call) ? STATUS_BAD_INDEX : 0; // any
        ExpectFailure(call, Id, isOnChart ? STATUS_WINDOW_NOT_FOUND : status);
        Tarvex_Element_RemoveAll(Id);
    }
    ExpectFailure({"a picture of a view", TarvexExt_Window_CopyImage}, TARVEX_NONE);
    ExpectFailure({"a picture of a chart", TarvexExt_Window2D_CopyImage}, TARVEX_NONE);
}
} // namespace
