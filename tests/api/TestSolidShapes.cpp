// Cubes, cylinders and polyhedra as a host sees them: what they take, refuse and hide, and the
// handles of the active one.
#include "support/ViewFixture.h"

#include <array>

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double marker = std::numeric_limits<double>::max();

class SolidShapes : public ViewFixture
{
protected:
    using CubeValues = std::array<double, 7>; // centre, lengths, angle
    using Ends = std::array<double, 7>;       // two points, radius
    int32_t SetCylinder(const Ends& v) const
    {
        return Tarvex_Element_Cylinder_SetValue(Id, 0, v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
    }
    using AxisForm = std::array<double, 8>; // centre, axis, radius, height
    int32_t SetCylinder(const AxisForm& v) const
    {
        return Tarvex_Element_Cylinder_SetValue2(Id, 0, v[0], v[1], v[2], v[3], v[4], v[5], v[6],
                                                 v[7]);
    }
};

TEST_F(SolidShapes, ACubeKeepsItsValuesAndFoldsAValidAngle)
{
    struct Case
    {
        CubeValues Values;
        bool Valid;
        double FoldedAngle;
    };
    const Case cases[] = {{{1, 2, 3, 4, 5, 6, 30}, true, 30},
                          {{0, 0, 0, 1e-7, -1e-7, 9e-7, 200}, false, 200},
                          {{0, 0, 0, 0, 0, -1e-6, 0}, true, 0},
                          {{0, 0, 0, 1, 1, 1, 200}, true, -160},
                          {{0, marker, 0, 1, 1, 1, 200}, false, 200},
                          {{1e300, 0, 0, 1, infinity, 1, infinity}, true, infinity}};
    for (const Case& cube : cases)
    {
        SCOPED_TRACE(&cube - cases);
        CubeValues v = cube.Values;
        int32_t element = TARVEX_NONE;
        Tarvex_Element_Add_Cube(Id, v[0], v[1], v[2], v[3], v[4], v[5], v[6], 1, &element);
        EXPECT_EQ(IsValid(element), cube.Valid);
        CubeValues got = {};
        Tarvex_Element_Cube_GetValue(Id, element, &got[0], &got[1], &got[2], &got[3], &got[4],
                                     &got[5], &got[6]);
        v[6] = cube.FoldedAngle;
        EXPECT_EQ(got, v);
    }
}

TEST_F(SolidShapes, APolyhedronRefusesWhatHasNoShape)
{
    const double x[] = {0, 8, 0};
    const double y[] = {0, 0, 8};
    int32_t element = TARVEX_NONE;
    EXPECT_EQ(Tarvex_Element_Add_Polyhedron(Id, 2, x, y, x, 0, 0, 1, 1, &element),
              STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Add_Polyhedron(Id, 251, x, y, x, 0, 0, 1, 1, &element),
              STATUS_OUT_OF_RANGE);
    ASSERT_EQ(Tarvex_Element_Add_Polyhedron(Id, 3, x, y, x, 0, 0, 1, 1, &element), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Polyhedron_RemovePoint(Id, 0, 0), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, 0, 4, 0, 0, 0), STATUS_BAD_INDEX);
    // Once spoilt, only SetValue makes it valid again.
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetHeight(Id, 0, NaN), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetHeight(Id, 0, 1), STATUS_OK);
    EXPECT_FALSE(IsValid(0));
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetValue(Id, 0, 3, x, y, x, 0, 0, 1, 1), STATUS_OK);
    EXPECT_TRUE(IsValid(0));
}

TEST_F(SolidShapes, ACylinderIsTheSameByEndPointsAndByAxis)
{
    int32_t element = TARVEX_NONE;
    ASSERT_EQ(Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 0, 0, 10, 2, &element), STATUS_OK);
    struct Case
    {
        AxisForm Values;
        int32_t Status;
        bool Valid;
        Ends Expected; // those from before stay if it is invalid, but not the radius
    };
    const Ends before = {0, 0, 0, 0, 0, 10, 2};
    const Case cases[] = {
        {{1, 2, 3, 4, 0, 0, 5, 6}, STATUS_OK, true, {-2, 2, 3, 4, 2, 3, 5}},
        {{0, 0, 0, 0, 2, 0, 1, -7}, STATUS_OK, true, {0, 3.5, 0, 0, -3.5, 0, 1}},
        {{0, 0, 0, 0, 0, 1, 1, -8}, STATUS_OK, true, {0, 0, 4, 0, 0, -4, 1}},
        {{0, 0, 0, 0, 2, 0, 1, -9}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1}},
        {{0, 0, 0, 0, 0, 0, 1, 5}, STATUS_TOO_SMALL, true, before},
        {{0, 0, 0, 0, 0, 0, 1e-10, 5}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1e-10}},
    };
    for (const Case& cylinder : cases)
    {
        SCOPED_TRACE(&cylinder - cases);
        ASSERT_EQ(SetCylinder(before), STATUS_OK);
        EXPECT_EQ(SetCylinder(cylinder.Values), cylinder.Status);
        EXPECT_EQ(IsValid(0), cylinder.Valid);
        Ends v = {};
        Tarvex_Element_Cylinder_GetValue(Id, 0, &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
        EXPECT_EQ(v, cylinder.Expected);
    }
}

} // namespace
