// Where circles and ellipses are drawn.
#include "elements3d/Directions.h"
#include "elements3d/ShapeView.h"

TEST_F(ShapeView, CircleIsARingAroundItsCentreAcrossItsNormal)
{
    AddNew("Element_Add_Circle", {0, 0, 0, 0, 0, 0, 1});
    for (const Numbers& v : {Numbers{1, 2, 3, 4, 0, 0, 5},
                             Numbers{0, -7, 0, 0.5, 0, -2, 0},
                             {3, 5, -2, 2, 1, 2, -2},
                             {0, 0, 0, 1, 1.5e308, 0, 1.5e308}})
    {
        Set("Element_Circle_SetValue", v);
        EXPECT_FALSE(IsHidden());
        const std::vector<HostPoint> outline = Outline();
        ASSERT_EQ(outline.size(), 101U);
        EXPECT_EQ(outline.front(), outline.back());
        Vector3 normal = {v[4], v[5], v[6]};
        MakeUnit(normal);
        for (size_t point = 0; point < 100; ++point)
        {
            const HostPoint& p = outline[point];
            const double spoke[] = {p[0] - v[0], p[1] - v[1], p[2] - v[2]};
            EXPECT_NEAR(vtkMath::Norm(spoke), v[3], 1e-5);
            EXPECT_NEAR(vtkMath::Dot(spoke, normal.data()), 0.0, 1e-5);
            const double side =
                std::sqrt(vtkMath::Distance2BetweenPoints(p.data(), outline[point + 1].data()));
            EXPECT_NEAR(side, v[3] * 2.0 * std::sin(vtkMath::Pi() / 100), 1e-5);
        }
    }
}

TEST_F(ShapeView, EllipseHasAPointADegreeAndTurnsFromXToY)
{
    const double half = std::sqrt(0.5);
    // With the ends of its half axes.
    const std::tuple<double, HostPoint, HostPoint> cases[] = {
        {0, {5, 2, 3}, {1, 4, 3}},
        {-90, {1, -2, 3}, {3, 2, 3}},
        {45 + 720, {1 + 4 * half, 2 + 4 * half, 3}, {1 - 2 * half, 2 + 2 * half, 3}}};
    for (const auto& [angle, onA, onB] : cases)
    {
        SCOPED_TRACE(angle);
        AddNew("Element_Add_Ellipse", {1, 2, 3, 4, 2, angle});
        std::vector<HostPoint> expected = Outline();
        ASSERT_EQ(expected.size(), 361U);
        expected[0] = expected[360] = onA;
        expected[90] = onB;
        ExpectOutline(expected);
        Set("Element_Ellipse_SetValue", {0, 0, 0, 1, 1, 0});
        Set("Element_Ellipse_SetValue", {1, 2, 3, 4, 2, angle});
        ExpectOutline(expected);
    }
}
