// Where circles and ellipses are drawn.
#include "elements3d/Angles.h"
#include "elements3d/Directions.h"
#include "elements3d/ShapeView.h"

TEST_F(ShapeView, CircleIsARingAroundItsCentreAcrossItsNormal)
{
    struct Case
    {
        HostPoint Centre;
        double Radius;
        Vector3 Normal;
    };
    const Case cases[] = {{{1, 2, 3}, 4, {0, 0, 5}},
                          {{0, -7, 0}, 0.5, {0, -2, 0}},
                          {{3, 5, -2}, 2, {1, 2, -2}},
                          {{0, 0, 0}, 1, {1.5e308, 0, 1.5e308}}};
    ASSERT_EQ(Tarvex_Element_Add_Circle(Id, 0, 0, 0, 0, 0, 0, 1, &Element), STATUS_OK);
    for (auto [c, radius, n] : cases)
    {
        ASSERT_EQ(
            Tarvex_Element_Circle_SetValue(Id, Element, c[0], c[1], c[2], radius, n[0], n[1], n[2]),
            STATUS_OK);
        EXPECT_FALSE(IsHidden());
        const std::vector<HostPoint> outline = Outline();
        ASSERT_EQ(outline.size(), 101U);
        EXPECT_EQ(outline.front(), outline.back());
        MakeUnit(n);
        for (size_t point = 0; point < 100; ++point)
        {
            Vector3 spoke = {};
            Vector3 side = {};
            vtkMath::Subtract(outline[point].data(), c.data(), spoke.data());
            vtkMath::Subtract(outline[point + 1].data(), outline[point].data(), side.data());
            EXPECT_NEAR(vtkMath::Norm(spoke.data()), radius, 1e-5);
            EXPECT_NEAR(vtkMath::Dot(spoke.data(), n.data()), 0.0, 1e-5);
            EXPECT_NEAR(vtkMath::Norm(side.data()), radius * 2.0 * std::sin(vtkMath::Pi() / 100),
                        1e-5);
        }
    }
}

TEST_F(ShapeView, EllipseHasAPointADegreeAndTurnsFromXToY)
{
    struct Case
    {
        double Angle;
        HostPoint OnA; // where its half axes end
        HostPoint OnB;
    };
    const double half = std::sqrt(0.5);
    const Case cases[] = {
        {0, {5, 2, 3}, {1, 4, 3}},
        {90, {1, 6, 3}, {-1, 2, 3}},
        {-90, {1, -2, 3}, {3, 2, 3}},
        {45 + 720, {1 + 4 * half, 2 + 4 * half, 3}, {1 - 2 * half, 2 + 2 * half, 3}}};
    for (const auto& [angle, onA, onB] : cases)
    {
        SCOPED_TRACE(angle);
        ASSERT_EQ(Tarvex_Element_Add_Ellipse(Id, 1, 2, 3, 4, 2, angle, &Element), STATUS_OK);
        std::vector<HostPoint> expected = Outline();
        ASSERT_EQ(expected.size(), 361U);
        expected[0] = expected[360] = onA;
        expected[90] = onB;
        ExpectOutline(expected);
        ASSERT_EQ(Tarvex_Element_Ellipse_SetValue(Id, Element, 0, 0, 0, 1, 1, 0), STATUS_OK);
        ASSERT_EQ(Tarvex_Element_Ellipse_SetValue(Id, Element, 1, 2, 3, 4, 2, angle), STATUS_OK);
        ExpectOutline(expected);
    }
}

TEST(Angles, FoldLikeRepeatedSteps)
{
    struct Case
    {
        double Angle;
        double FullTurn;
        double HalfTurns;
    };
    constexpr double infinity = std::numeric_limits<double>::infinity();
    // 360 only from a negative multiple; both ends of -180 .. 180 stay, and so does their side.
    const Case cases[] = {{0, 0, 0},
                          {180, 180, 180},
                          {-180, 180, -180},
                          {190, 190, -170},
                          {-190, 170, 170},
                          {360, 0, 0},
                          {-360, 360, 0},
                          {-720, 360, 0},
                          {540, 180, 180},
                          {370, 10, 10},
                          {-90, 270, -90},
                          {-540, 180, -180},
                          {-infinity, -infinity, -infinity}};
    for (const auto& [angle, fullTurn, halfTurns] : cases)
    {
        EXPECT_EQ(FoldIntoFullTurn(angle), fullTurn) << angle;
        EXPECT_EQ(FoldIntoHalfTurns(angle), halfTurns) << angle;
    }
    EXPECT_LE(std::abs(FoldIntoFullTurn(-1e300) - 180.0), 180.0);
    EXPECT_LE(std::abs(FoldIntoHalfTurns(1e300)), 180.0);
}
