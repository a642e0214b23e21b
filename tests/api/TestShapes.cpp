// Where lines end, by whichever of their functions they were set.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
using Lines = ViewFixture;

TEST_F(Lines, EndAtTheFacesOfTheirBoxIfTheyCrossIt)
{
    const Numbers alongX = {-50, 0, 0, 50, 0, 0}; // through the initial box
    constexpr double at = 50.0 + 1e-11;           // within the tolerance of a face, and beyond it
    constexpr double away = 50.0 + 1e-9;
    const double r = 10 / std::sqrt(2.0); // of a line of 10 to either side
    // A call for a new line, for the last one, or for the view; its ends in the world.
    const std::tuple<std::string, Numbers, Numbers> steps[] = {
        {"Element_Add_Line", {0, 20, 100, 1, 0, 0}, {-10, -20, 100, 10, -20, 100}},
        {"Element_Line_SetValue", {1, 2, 3, 2, 2, 3}, {-50, -2, 3, 50, -2, 3}},
        {"Element_Line_SetValue", {60, 1, 2, 60, 4, 6}, {60, -1, 2, 60, -4, 6}}, // beside the box
        // Invalid it keeps its last ends and takes a limit.
        {"Element_Line_SetValue", {0, 0, 0, 0, 0, 0}, {60, -1, 2, 60, -4, 6}},
        {"Element_SetDrawLimit_Line", {-2, 7, -1, 1, -1, 1}, {60, -1, 2, 60, -4, 6}},
        {"Element_Line_SetValue", {0, 0, 0, 1, 0, 0}, {-2, 0, 0, 7, 0, 0}},
        {"Element_Add_Line", {0, 0, 0, 0, 0, 0}, {0, 0, 0, 10, -10, 10}},
        {"Element_Add_Line", {1, 0, 0, 0, 2, 0}, {1, 50, 0, 1, -50, 0}},
        {"Element_SetLength_Line", {100, -5}, {1, 5, 0, 1, -100, 0}},
        // A limit that misses the line, then a thin one.
        {"Element_SetDrawLimit_Line", {-2, 0, 5, 6, -1, 1}, {1, 5, 0, 1, -100, 0}},
        {"Element_SetDrawLimit_Line", {1, 2, 0, 0.1, -1, 1}, {1, 0, 0, 1, -0.1, 0}},
        {"Element_Add_Line", {0, 0, 0, -1, 0, 0}, alongX},
        {"Element_SetDrawLimit_Line", {-2, 7, -1, 3, -1, 1}, {7, 0, 0, -2, 0, 0}},
        {"Element_Add_Line", {0, 0, 0, 1e-6, 1, 0}, {-5e-5, 50, 0, 5e-5, -50, 0}},
        {"Element_SetDrawLimit_Line", {-2, 7, -1, 3, -1, 1}, {-1e-6, 1, 0, 3e-6, -3, 0}},
        {"Element_Add_Line", {0, 0, 0, 1, 1, 1}, {-50, 50, -50, 50, -50, 50}},
        {"Element_Add_Line", {50, 40, 0, -1, 1, 0}, {50, -40, 0, 40, -50, 0}}, // across an edge
        {"Element_Add_Line", {0, at, 0, 1, 0, 0}, {-50, -at, 0, 50, -at, 0}},  // in a face
        {"Element_Add_Line", {0, away, 0, 1, 0, 0}, {-10, -away, 0, 10, -away, 0}},
        {"Element_Add_Line", {50, 50, 0, 1, -1, 0}, {50 - r, -50 - r, 0, 50 + r, -50 + r, 0}},
        // A new line takes a box thicker than a tenth only; lines that are there follow a thin one.
        {"Element_Add_Line", {1, 2, 3, 0, 0, 1}, {1, -2, -50, 1, -2, 50}},
        {"Window_SetDrawSpace", {0, 2, 2, 2.1, -1, 1}, {1, -2, -1, 1, -2, 1}},
        {"Window_SetDrawSpace", {-1, 1, 0, 0.1, -1, 1}, {1, -2, -1, 1, -2, 1}},
        {"Element_Add_Line", {0, 0.05, 0, 1, 0, 0}, {-50, -0.05, 0, 50, -0.05, 0}},
        {"Window_SetDrawSpace", {-1, 1, 0, 0.11, -1, 1}, {-1, -0.05, 0, 1, -0.05, 0}},
        {"Element_Add_Line", {0.5, 0.05, 0, -1, 0, 0}, {-1, -0.05, 0, 1, -0.05, 0}}};
    int32_t line = TARVEX_NONE;
    for (const auto& [function, given, ends] : steps)
    {
        SCOPED_TRACE(function + testing::PrintToString(given));
        if (function == "Element_Add_Line")
        {
            line = Add(function, given);
        }
        else
        {
            const bool forAll = function == "Window_SetDrawSpace";
            EXPECT_EQ(forAll ? Do(function, given) : Do(function, line, given), STATUS_OK);
        }
        EXPECT_THAT(Read("Element_Line_GetValue", line), Near(ends, 1e-9));
    }
    EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 1, 0, 1, -1, 1), STATUS_OK);
    EXPECT_THAT(Read("Element_GetLength_Line", line), Near({-0.5, 1.5}));
}
} // namespace
