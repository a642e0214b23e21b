// The segment that a box cuts out of a line.
#include "elements3d/CElement_Line.h"

#include <Tarvex.h>
#include <gtest/gtest.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>

#include <cmath>
#include <limits>

namespace
{
using Position = CElement_Line::Position;

constexpr double away = 50.0 + 1e-9; // from a face of the cube, beyond the tolerance
constexpr double at = 50.0 + 1e-11;  // within it

struct Case
{
    const char* Name;
    Position Point;
    Position Direction;
    bool Crosses;
    // As found, face by face: from lower to upper along the first axis that is crossed.
    Position First = {};
    Position Second = {};
};

void PrintTo(const Case& test, std::ostream* out)
{
    *out << test.Name;
}

class Clipping : public testing::TestWithParam<Case>
{
protected:
    int32_t Initialize(const Position& point, const Position& direction)
    {
        ElementSite site;
        site.Renderer = Renderer;
        site.RenderWindow = RenderWindow;
        return Line.Initialize(site, point[0], point[1], point[2], direction[0], direction[1],
                               direction[2]);
    }

    vtkNew<vtkRenderer> Renderer;
    vtkNew<vtkRenderWindow> RenderWindow;
    CElement_Line Line; // clipped to the cube from -50 to 50
};

TEST_P(Clipping, CutsACubeAsItShould)
{
    const Case& test = GetParam();
    ASSERT_EQ(Initialize(test.Point, test.Direction), STATUS_OK);
    Position first = {};
    Position second = {};
    EXPECT_EQ(Line.ClipToDrawLimit(first, second), test.Crosses);
    for (size_t axis = 0; test.Crosses && axis < 3; ++axis)
    {
        EXPECT_NEAR(first[axis], test.First[axis], 1e-9) << axis;
        EXPECT_NEAR(second[axis], test.Second[axis], 1e-9) << axis;
    }
}

INSTANTIATE_TEST_SUITE_P(
    Lines, Clipping,
    testing::Values(Case{"AlongX", {0, 0, 0}, {1, 0, 0}, true, {-50, 0, 0}, {50, 0, 0}},
                    Case{"AgainstX", {0, 0, 0}, {-3, 0, 0}, true, {-50, 0, 0}, {50, 0, 0}},
                    Case{"AlongZ", {1, 2, 3}, {0, 0, 1}, true, {1, 2, -50}, {1, 2, 50}},
                    Case{"Diagonal", {0, 0, 0}, {1, 1, 1}, true, {-50, -50, -50}, {50, 50, 50}},
                    Case{"FromOutside", {200, 10, 0}, {1, 0, 0}, true, {-50, 10, 0}, {50, 10, 0}},
                    Case{"Slanted", {0, 0, 0}, {1, 2, 0}, true, {-25, -50, 0}, {25, 50, 0}},
                    Case{"AcrossAnEdge", {50, 40, 0}, {1, -1, 0}, true, {50, 40, 0}, {40, 50, 0}},
                    Case{"NearlyParallel", {0, 0, 0}, {1, 1e-16, 0}, true, {-50, 0, 0}, {50, 0, 0}},
                    Case{"InAFace", {0, 50, 0}, {1, 0, 0}, true, {-50, 50, 0}, {50, 50, 0}},
                    Case{"AtAFace", {0, at, 0}, {1, 0, 0}, true, {-50, at, 0}, {50, at, 0}},
                    Case{"BesideAFace", {0, away, 0}, {1, 0, 0}, false},
                    Case{"AlongAnEdge", {50, 50, 0}, {0, 0, 1}, true, {50, 50, -50}, {50, 50, 50}},
                    Case{"PastTheCube", {0, 0, 100}, {1, 0, 0}, false},
                    Case{"PastAnEdge", {50, 51, 0}, {1, -1, 0}, false},
                    Case{"TouchingAnEdge", {50, 50, 0}, {1, -1, 0}, false},
                    Case{"TouchingACorner", {50, 50, 50}, {1, 1, -2}, false}),
    [](const auto& line) { return std::string(line.param.Name); });

TEST_F(Clipping, FindsNothingForALineWithoutDirection)
{
    for (const double unusable : {0.0, std::numeric_limits<double>::quiet_NaN()})
    {
        ASSERT_EQ(Initialize({0, 0, 0}, {unusable, 0, 0}), STATUS_OK);
        Position first = {7, 7, 7};
        Position second = {7, 7, 7};
        EXPECT_FALSE(Line.ClipToDrawLimit(first, second));
        EXPECT_EQ(first, (Position{0, 0, 0}));
        EXPECT_EQ(second, (Position{1, 1, 1}));
    }
}
} // namespace
