// Where shapes lie as a host reads it back, by whichever of their functions they were set.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
using Lines = ViewFixture;

TEST_F(Lines, TellTheirEndsAfterEachCallAndAreCutByTheirBox)
{
    const Numbers alongX = {-50, 0, 0, 50, 0, 0}; // through the initial box
    constexpr double at = 50.0 + 1e-11;           // within the tolerance of a face, and beyond it
    constexpr double away = 50.0 + 1e-9;
    const double r = 10 / std::sqrt(2.0); // of a line of 10 to either side
    const double t = 10 / std::sqrt(6.0);
    // A call for a new line, then some for that one; its ends in the world, and its length where
    // that is new.
    const struct
    {
        std::string Function;
        Numbers Given;
        Numbers Ends;
        Numbers Length = {};
    } steps[] = {
        {"Add_Line", {0, 20, 100, 1, 0, 0}, {-10, -20, 100, 10, -20, 100}},
        {"Add_Line", {0, 0, 0, 5, 0, 0}, alongX},
        {"Line_SetValue", {1, 2, 3, 2, 2, 3}, {-50, -2, 3, 50, -2, 3}},
        {"Line_SetValue", {60, 1, 2, 60, 4, 6}, {60, -1, 2, 60, -4, 6}}, // beside the box
        {"Line_SetValue", {0, 0, 0, 1, 0, 0}, alongX},
        // Invalid it keeps its last ends and takes a limit.
        {"Line_SetValue", {0, 0, 0, 0, 0, 0}, alongX},
        {"SetDrawLimit_Line", {-2, 7, -1, 1, -1, 1}, alongX},
        {"Line_SetValue", {0, 0, 0, 1, 0, 0}, {-2, 0, 0, 7, 0, 0}, {0, 1}},
        {"Add_Line", {0, 0, 0, 0, 0, 0}, {0, 0, 0, 10, -10, 10}},
        {"Add_Line", {1, 0, 0, 0, 2, 0}, {1, 50, 0, 1, -50, 0}},
        {"SetLength_Line", {100, -5}, {1, 5, 0, 1, -100, 0}},
        // A limit that misses the line.
        {"Add_Line", {0, 0, 0, 1, 0, 0}, alongX},
        {"SetDrawLimit_Line", {-2, 7, 5, 6, -1, 1}, alongX, {-10, 10}},
        {"SetDrawLimit_Line", {-2, 2, 0, 0.1, -1, 1}, {-2, 0, 0, 2, 0, 0}, {-2, 2}},
        {"Add_Line", {0, 0, 0, -1, 0, 0}, alongX},
        {"SetDrawLimit_Line", {-2, 7, -1, 3, -1, 1}, {7, 0, 0, -2, 0, 0}, {-7, 2}},
        {"Add_Line", {0, 0, 0, 1e-6, 1, 0}, {-5e-5, 50, 0, 5e-5, -50, 0}},
        {"SetDrawLimit_Line", {-2, 7, -1, 3, -1, 1}, {-1e-6, 1, 0, 3e-6, -3, 0}, {-1, 3}},
        // Cut by the initial box if they cross it.
        {"Add_Line", {1, 2, 3, 0, 0, 1}, {1, -2, -50, 1, -2, 50}},
        {"Add_Line", {0, 0, 0, 1, 1, 1}, {-50, 50, -50, 50, -50, 50}},
        {"Add_Line", {200, 10, 0, 1, 0, 0}, {-50, -10, 0, 50, -10, 0}},
        {"Add_Line", {0, 0, 0, 1, 2, 0}, {-25, 50, 0, 25, -50, 0}},
        {"Add_Line", {50, 40, 0, -1, 1, 0}, {50, -40, 0, 40, -50, 0}}, // across an edge
        {"Add_Line", {0, 0, 0, 1, 1e-16, 0}, {-50, 0, 0, 50, 0, 0}},
        {"Add_Line", {0, at, 0, 1, 0, 0}, {-50, -at, 0, 50, -at, 0}},    // in a face
        {"Add_Line", {50, 50, 0, 0, 0, 1}, {50, -50, -50, 50, -50, 50}}, // along an edge
        {"Add_Line", {0, away, 0, 1, 0, 0}, {-10, -away, 0, 10, -away, 0}},
        {"Add_Line", {50, 51, 0, 1, -1, 0}, {50 - r, -51 - r, 0, 50 + r, -51 + r, 0}},
        {"Add_Line", {50, 50, 0, 1, -1, 0}, {50 - r, -50 - r, 0, 50 + r, -50 + r, 0}}, // an edge
        {"Add_Line",
         {50, 50, 50, 1, 1, -2}, // touches a corner
         {50 - t, -50 + t, 50 + 2 * t, 50 + t, -50 - t, 50 - 2 * t}}};
    int32_t line = TARVEX_NONE;
    for (const auto& [function, given, ends, length] : steps)
    {
        SCOPED_TRACE(function + testing::PrintToString(given));
        const std::string name = "Element_" + function;
        const bool adds = function.starts_with("Add");
        line += adds ? 1 : 0;
        EXPECT_EQ(adds ? Do(name, given) : Do(name, line, given), STATUS_OK);
        EXPECT_THAT(Read("Element_Line_GetValue", line), Near(ends, 1e-9));
        if (!length.empty())
        {
            EXPECT_THAT(Read("Element_GetLength_Line", line), Near(length, 1e-9));
        }
    }
}

// A view takes thinner ones.
TEST_F(Lines, TakeABoxThickerThanATenthOnly)
{
    for (const double extent : {0.1, 0.11})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 1, 0, extent, -1, 1), STATUS_OK);
        const double reach = extent > 0.1 ? 1 : 50;
        const int32_t line = AddLine(0, 0.05, 0, 1, 0, 0);
        EXPECT_EQ(Read("Element_Line_GetValue", line),
                  (Numbers{-reach, -0.05, 0, reach, -0.05, 0}));
    }
    EXPECT_EQ(Read("Element_GetLength_Line", 0), (Numbers{-1, 1})) << "follows the view's box";
}

using Shapes = ViewFixture;

TEST_F(Shapes, PlaneTellsItsDistanceWithTheSignOfTheCallThatSetIt)
{
    // What the plane tells afterwards by distance and by point.
    const std::tuple<std::string, Numbers, Numbers, Numbers> steps[] = {
        {"2", {3, 0, 0, 2}, {3, 0, 0, 1}, {0, 0, 3, 0, 0, 1}},
        {"", {1, 2, 3, 0, 0, 5}, {-3, 0, 0, 1}, {1, 2, 3, 0, 0, 1}},
        // An invalid plane keeps what the call did not give, and raw what it gave.
        {"", {4, 5, 6, 0, 0, 0}, {-3, 0, 0, 0}, {4, 5, 6, 0, 0, 0}},
        {"2", {7, 0, 0, 1e-7}, {7, 0, 0, 1e-7}, {4, 5, 6, 0, 0, 1e-7}},
        {"2", {-2, 0, 4, 0}, {-2, 0, 1, 0}, {0, -2, 0, 0, 1, 0}}};
    const int32_t element = Add("Element_Add_Plane", {-1, 0, 0, 1});
    for (const auto& [form, given, byDistance, byPoint] : steps)
    {
        EXPECT_EQ(Do("Element_Plane_SetValue" + form, element, given), STATUS_OK);
        EXPECT_EQ(Read("Element_Plane_GetValue2", element), byDistance);
        EXPECT_EQ(Read("Element_Plane_GetValue", element), byPoint);
    }
}

TEST_F(Shapes, CylinderIsTheSameByEndPointsAndByAxis)
{
    const Numbers before = {0, 0, 0, 0, 0, 10, 2};
    const int32_t element = Add("Element_Add_Cylinder", before);
    // By axis; the ends afterwards, which stay if it is invalid, but not the radius.
    const std::tuple<Numbers, int32_t, Numbers> cases[] = {
        {{1, 2, 3, 4, 0, 0, 5, 6}, STATUS_OK, {-2, 2, 3, 4, 2, 3, 5}},
        {{0, 0, 0, 0, 2, 0, 1, -7}, STATUS_OK, {0, 3.5, 0, 0, -3.5, 0, 1}},
        {{0, 0, 0, 0, 0, 1, 1, -8}, STATUS_OK, {0, 0, 4, 0, 0, -4, 1}},
        {{0, 0, 0, 0, 2, 0, 1, -9}, STATUS_OK, {0, 0, 0, 0, 0, 10, 1}},
        {{0, 0, 0, 0, 0, 0, 1, 5}, STATUS_TOO_SMALL, before},
        {{0, 0, 0, 0, 0, 0, 1e-10, 5}, STATUS_OK, {0, 0, 0, 0, 0, 10, 1e-10}}};
    for (const auto& [given, status, ends] : cases)
    {
        EXPECT_EQ(Do("Element_Cylinder_SetValue", element, before), STATUS_OK);
        EXPECT_EQ(Do("Element_Cylinder_SetValue2", element, given), status);
        EXPECT_EQ(Read("Element_Cylinder_GetValue", element), ends);
    }
}
} // namespace
