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
        for (const HostPoint& point : outline)
        {
            double spoke[3];
            vtkMath::Subtract(point.data(), v.data(), spoke);
            EXPECT_NEAR(vtkMath::Norm(spoke), v[3], 1e-5);
            EXPECT_NEAR(vtkMath::Dot(spoke, normal.data()), 0.0, 1e-5);
        }
    }
}

TEST_F(ShapeView, EllipseHasAPointADegreeAndTurnsFromXToY)
{
    const double half = std::sqrt(0.5);
    // With the ends of its half axes.
    const std::tuple<double, HostPoint, HostPoint> cases[] = {
        {-90, {1, -2, 3}, {3, 2, 3}},
        {45 + 720, {1 + 4 * half, 2 + 4 * half, 3}, {1 - 2 * half, 2 + 2 * half, 3}}};
    AddNew("Element_Add_Ellipse", {0, 0, 0, 1, 1, 0});
    for (const auto& [angle, onA, onB] : cases)
    {
        SCOPED_TRACE(angle);
        Set("Element_Ellipse_SetValue", {1, 2, 3, 4, 2, angle});
        std::vector<HostPoint> expected = Outline();
        ASSERT_EQ(expected.size(), 361U);
        expected[0] = expected[360] = onA;
        expected[90] = onB;
        ExpectOutline(expected);
        AddNew("Element_Add_Ellipse", {1, 2, 3, 4, 2, angle});
        ExpectOutline(expected);
    }
}
