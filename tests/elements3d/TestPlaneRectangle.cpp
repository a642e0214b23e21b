// Where planes and rectangles are drawn.
#include "elements3d/ShapeView.h"

#include <vtkProperty.h>

#include <cmath>

TEST_F(ShapeView, PlaneSolvesTheCoordinateThatItsNormalAllows)
{
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 2, -3, 4, -5, 6), STATUS_OK);
    const double third = std::sqrt(3.0); // n . p for the point (1, 1, 1) and the normal (1, 1, 1)
    const double flat = std::sqrt(0.91);
    const double up = flat / 0.3; // and down twice as much
    const double steep = std::sqrt(1 - 0.29 * 0.29);
    const double low = 5 * 0.29 / steep;
    const double high = -6 * 0.29 / steep;
    // The quad's corners in the order of its cell: the common corner, then around.
    const std::tuple<HostPoint, double, std::vector<HostPoint>> cases[] = {
        {{0, 0, 2}, 3, {{-1, 4, 3}, {2, 4, 3}, {2, -3, 3}, {-1, -3, 3}}},
        {{1, 0, 0}, 1, {{1, 4, -5}, {1, -3, -5}, {1, -3, 6}, {1, 4, 6}}},
        {{0, -1, 0}, 2, {{-1, -2, -5}, {2, -2, -5}, {2, -2, 6}, {-1, -2, 6}}},
        // A tie of x and y goes to y; z comes first from a magnitude of 0.3 on.
        {{1, 1, 0}, 0, {{-1, 1, -5}, {2, -2, -5}, {2, -2, 6}, {-1, 1, 6}}},
        {{1, 1, 1}, third, {{-1, 4, 0}, {2, 4, -3}, {2, -3, 4}, {-1, -3, 7}}},
        {{-flat, 0, -0.3}, 0, {{-1, 4, up}, {2, 4, -2 * up}, {2, -3, -2 * up}, {-1, -3, up}}},
        {{steep, 0, 0.29}, 0, {{low, 4, -5}, {low, -3, -5}, {high, -3, 6}, {high, 4, 6}}}};
    for (const auto& [n, distance, c] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(n));
        AddNew("Element_Add_Plane", {distance, n[0], n[1], n[2]});
        ExpectOutline(c);
        // The same plane by another of its points.
        Set("Element_Plane_SetValue2", {77, 0, 0.5, 0.5});
        Set("Element_Plane_SetValue", {(c[0][0] + c[2][0]) / 2, (c[0][1] + c[2][1]) / 2,
                                       (c[0][2] + c[2][2]) / 2, n[0], n[1], n[2]});
        ExpectOutline(c);
    }
}

TEST_F(ShapeView, PlaneFollowsItsBoxesAndKeepsThemWhileInvalid)
{
    const std::vector<HostPoint> small = {{0, 1, 3}, {1, 1, 3}, {1, 0, 3}, {0, 0, 3}};
    const std::vector<HostPoint> byDefault = {
        {-10, 10, 3}, {10, 10, 3}, {10, -10, 3}, {-10, -10, 3}};
    // Too thin to be taken by a new plane; each plane that is there takes it.
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 0.1, 0, 1, 0, 1), STATUS_OK);
    AddNew("Element_Add_Plane", {3, 0, 0, 1});
    ExpectOutline(byDefault);
    EXPECT_EQ(Actor->GetProperty()->GetOpacity(), 1.0 - 0.8);
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 1, 0, 1, 0, 1), STATUS_OK);
    ExpectOutline(small);
    Set("Element_Plane_SetValue2", {NaN, 0, 0, 1});
    Set("Element_SetDrawSize_Plane", {-10, 10, -10, 10, 0, 1});
    EXPECT_TRUE(IsHidden());
    Set("Element_Plane_SetValue2", {3, 0, 0, 1});
    ExpectOutline(byDefault);
    // A box without end cannot be drawn, but the next one can.
    Set("Element_SetDrawSize_Plane", {-Infinity, 1, 0, 1, 0, 1});
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 1, 0, 1, 0, 1), STATUS_OK);
    ExpectOutline(small);
}

TEST_F(ShapeView, RectangleTurnsAboutItsCentreFromXToZ)
{
    const double half = std::sqrt(0.5);
    const std::pair<Numbers, std::vector<HostPoint>> cases[] = {
        {{1, 1, 5, 2, 4, 2, 0}, {{-1, 5, 1}, {3, 5, 1}, {3, 5, 3}, {-1, 5, 3}}},
        {{0, 1, 5, 2, 4, 2, 90}, {{4, 5, 1}, {4, 5, 5}, {2, 5, 5}, {2, 5, 1}}},
        {{1, 1, 5, 2, -4, 2, 0}, {{3, 5, 1}, {-1, 5, 1}, {-1, 5, 3}, {3, 5, 3}}},
        {{1, 1, 5, 2, 2 / half, 0, 45}, {{0, 5, 1}, {2, 5, 3}, {2, 5, 3}, {0, 5, 1}}}};
    for (const auto& [given, corners] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        std::vector<HostPoint> closed = corners;
        closed.push_back(corners[0]);
        AddNew("Element_Add_Rectangle", given);
        ExpectOutline(closed);
        Numbers again = Read("Element_Rectangle_GetValue", Element);
        again[5] += 360;
        Set("Element_Rectangle_SetValue", {0, 0, 0, 1, 1, 0});
        Set("Element_Rectangle_SetValue", again);
        ExpectOutline(closed);
    }
}
