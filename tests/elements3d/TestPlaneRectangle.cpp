// Where planes and rectangles are drawn.
#include "elements3d/ShapeView.h"

#include <vtkActor.h>
#include <vtkProperty.h>

#include <cmath>

TEST_F(ShapeView, PlaneSolvesTheCoordinateThatItsNormalAllows)
{
    // The quad's corners in the order of its cell: the common corner, then around.
    struct Case
    {
        HostPoint Normal;
        double Distance;
        std::vector<HostPoint> Corners;
    };
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, -1, 2, -3, 4, -5, 6), STATUS_OK);
    const double third = std::sqrt(3.0); // n . p for the point (1, 1, 1) and the normal (1, 1, 1)
    const double slope = std::sqrt(0.91) / 0.3;
    const double steep = std::sqrt(1 - 0.29 * 0.29);
    const Case cases[] = {
        {{0, 0, 2}, 3, {{-1, 4, 3}, {2, 4, 3}, {2, -3, 3}, {-1, -3, 3}}},
        {{1, 0, 0}, 1, {{1, 4, -5}, {1, -3, -5}, {1, -3, 6}, {1, 4, 6}}},
        {{0, -1, 0}, 2, {{-1, -2, -5}, {2, -2, -5}, {2, -2, 6}, {-1, -2, 6}}},
        // A tie of x and y goes to y; z comes first from a magnitude of 0.3 on, whatever the
        // others.
        {{1, 1, 0}, 0, {{-1, 1, -5}, {2, -2, -5}, {2, -2, 6}, {-1, 1, 6}}},
        {{1, 1, 1}, third, {{-1, 4, 0}, {2, 4, -3}, {2, -3, 4}, {-1, -3, 7}}},
        {{-std::sqrt(0.91), 0, -0.3},
         0,
         {{-1, 4, slope}, {2, 4, -2 * slope}, {2, -3, -2 * slope}, {-1, -3, slope}}},
        {{steep, 0, 0.29},
         0,
         {{5 * 0.29 / steep, 4, -5},
          {5 * 0.29 / steep, -3, -5},
          {-6 * 0.29 / steep, -3, 6},
          {-6 * 0.29 / steep, 4, 6}}}};
    for (const auto& [normal, distance, corners] : cases)
    {
        SCOPED_TRACE(testing::Message() << normal[0] << ", " << normal[1] << ", " << normal[2]);
        ASSERT_EQ(Tarvex_Element_Add_Plane(Id, distance, normal[0], normal[1], normal[2], &Element),
                  STATUS_OK);
        ExpectOutline(corners);
        // The same plane by another of its points.
        const HostPoint point = {(corners[0][0] + corners[2][0]) / 2,
                                 (corners[0][1] + corners[2][1]) / 2,
                                 (corners[0][2] + corners[2][2]) / 2};
        ASSERT_EQ(Tarvex_Element_Plane_SetValue2(Id, Element, 77, 0, 0.5, 0.5), STATUS_OK);
        ASSERT_EQ(Tarvex_Element_Plane_SetValue(Id, Element, point[0], point[1], point[2],
                                                normal[0], normal[1], normal[2]),
                  STATUS_OK);
        ExpectOutline(corners);
    }
}

TEST_F(ShapeView, PlaneFollowsItsBoxesAndKeepsThemWhileInvalid)
{
    const double infinity = std::numeric_limits<double>::infinity();
    const std::vector<HostPoint> small = {{0, 1, 3}, {1, 1, 3}, {1, 0, 3}, {0, 0, 3}};
    const std::vector<HostPoint> byDefault = {
        {-10, 10, 3}, {10, 10, 3}, {10, -10, 3}, {-10, -10, 3}};
    // Too thin to be taken by a new plane; each plane that is there takes it.
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 0.1, 0, 1, 0, 1), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Add_Plane(Id, 3, 0, 0, 1, &Element), STATUS_OK);
    ExpectOutline(byDefault);
    EXPECT_EQ(NewestActor()->GetProperty()->GetOpacity(), 1.0 - 0.8);
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 1, 0, 1, 0, 1), STATUS_OK);
    ExpectOutline(small);
    ASSERT_EQ(Tarvex_Element_Plane_SetValue2(Id, Element, NaN, 0, 0, 1), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_SetDrawSize_Plane(Id, Element, -10, 10, -10, 10, 0, 1), STATUS_OK);
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Element_Plane_SetValue2(Id, Element, 3, 0, 0, 1), STATUS_OK);
    ExpectOutline(byDefault);
    // A box without end cannot be drawn, but the next one can.
    ASSERT_EQ(Tarvex_Element_SetDrawSize_Plane(Id, Element, -infinity, 1, 0, 1, 0, 1), STATUS_OK);
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 1, 0, 1, 0, 1), STATUS_OK);
    ExpectOutline(small);
}

TEST_F(ShapeView, RectangleTurnsAboutItsCentreFromXToZ)
{
    struct Case
    {
        uint8_t Centered;
        double Width;
        double Height;
        double Angle;
        std::vector<HostPoint> Corners;
    };
    const double half = std::sqrt(0.5);
    const Case cases[] = {{1, 4, 2, 0, {{-1, 5, 1}, {3, 5, 1}, {3, 5, 3}, {-1, 5, 3}}},
                          {0, 4, 2, 0, {{1, 5, 2}, {5, 5, 2}, {5, 5, 4}, {1, 5, 4}}},
                          {1, 4, 2, 90, {{2, 5, 0}, {2, 5, 4}, {0, 5, 4}, {0, 5, 0}}},
                          {0, 4, 2, 90, {{4, 5, 1}, {4, 5, 5}, {2, 5, 5}, {2, 5, 1}}},
                          {1, -4, 2, 0, {{3, 5, 1}, {-1, 5, 1}, {-1, 5, 3}, {3, 5, 3}}},
                          {1,
                           2,
                           0,
                           45,
                           {{1 - half, 5, 2 - half},
                            {1 + half, 5, 2 + half},
                            {1 + half, 5, 2 + half},
                            {1 - half, 5, 2 - half}}}};
    for (Case each : cases)
    {
        SCOPED_TRACE(testing::Message() << each.Width << " at " << each.Angle);
        each.Corners.push_back(each.Corners.front());
        ASSERT_EQ(Tarvex_Element_Add_Rectangle(Id, each.Centered, 1, 5, 2, each.Width, each.Height,
                                               each.Angle, &Element),
                  STATUS_OK);
        ExpectOutline(each.Corners);
        double x = 0.0;
        double y = 0.0;
        double z = 0.0;
        double size[2] = {};
        double angle = 0.0;
        ASSERT_EQ(
            Tarvex_Element_Rectangle_GetValue(Id, Element, &x, &y, &z, size, size + 1, &angle),
            STATUS_OK);
        ASSERT_EQ(Tarvex_Element_Rectangle_SetValue(Id, Element, 0, 0, 0, 1, 1, 0), STATUS_OK);
        ASSERT_EQ(
            Tarvex_Element_Rectangle_SetValue(Id, Element, x, y, z, size[0], size[1], angle + 360),
            STATUS_OK);
        ExpectOutline(each.Corners);
    }
}
