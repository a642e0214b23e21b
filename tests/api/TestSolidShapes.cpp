// Cubes, cylinders and polyhedra as a host sees them: what they take, refuse and hide, and the
// handles of the active one.
#include "support/ViewFixture.h"

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <functional>

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();
constexpr double marker = std::numeric_limits<double>::max();

class SolidShapes : public ViewFixture
{
protected:
    int CountLit() const { return TakePicture(Id).Count(IsLit); }

    using CubeValues = std::array<double, 7>; // centre, lengths, angle
    int32_t SetCube(int32_t element, const CubeValues& v) const
    {
        return Tarvex_Element_Cube_SetValue(Id, element, v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
    }
    using Ends = std::array<double, 7>; // two points, radius
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
    int32_t AddPolyhedron(int32_t count, double axisZ, double height, int32_t* element) const
    {
        return Tarvex_Element_Add_Polyhedron(Id, count, X, Y, Z, 0, 0, axisZ, height, element);
    }
    int32_t SetPolyhedron(int32_t element, int32_t count, double axisZ, double height) const
    {
        return Tarvex_Element_Polyhedron_SetValue(Id, element, count, X, Y, Z, 0, 0, axisZ, height);
    }

    const double X[4] = {0, 8, 0, 4};
    const double Y[4] = {0, 0, 8, 6};
    const double Z[4] = {0, 0, 0, 0};
};

TEST_F(SolidShapes, ACubeKeepsItsValuesAndFoldsTheAngleOnlyWhenAdded)
{
    struct Case
    {
        CubeValues Values;
        bool Valid;
        double FoldedAngle;
    };
    const Case cases[] = {{{1, 2, 3, 4, 5, 6, 30}, true, 30},
                          {{0, 0, 0, 0, 0, 0, 0}, false, 0},
                          {{0, 0, 0, 1e-7, -1e-7, 9e-7, 200}, false, 200},
                          {{0, 0, 0, 0, 0, -1e-6, 0}, true, 0},
                          {{0, 0, 0, 1, 1, 1, 200}, true, -160},
                          {{0, 0, 0, 1, 1, 1, -540}, true, -180},
                          {{0, marker, 0, 1, 1, 1, 200}, false, 200},
                          {{1e300, 0, 0, 1, infinity, 1, infinity}, true, infinity}};
    for (const Case& cube : cases)
    {
        SCOPED_TRACE(&cube - cases);
        const CubeValues& v = cube.Values;
        int32_t element = TARVEX_NONE;
        ASSERT_EQ(
            Tarvex_Element_Add_Cube(Id, v[0], v[1], v[2], v[3], v[4], v[5], v[6], 1, &element),
            STATUS_OK);
        const auto expectValues = [&](double angle)
        {
            EXPECT_EQ(IsValid(element), cube.Valid);
            CubeValues expected = v;
            expected[6] = angle;
            CubeValues got = {};
            Tarvex_Element_Cube_GetValue(Id, element, &got[0], &got[1], &got[2], &got[3], &got[4],
                                         &got[5], &got[6]);
            EXPECT_EQ(got, expected);
        };
        expectValues(cube.FoldedAngle);
        EXPECT_EQ(SetCube(element, {0, 0, 0, 1, 1, 1, 0}), STATUS_OK);
        EXPECT_TRUE(IsValid(element));
        EXPECT_EQ(SetCube(element, v), STATUS_OK);
        expectValues(v[6]);
    }
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, 0), STATUS_OK);
    EXPECT_EQ(SetCube(0, {0, 0, 0, NaN, 1, 1, 0}), STATUS_INVALID_VALUES);
    EXPECT_EQ(SetCube(0, {0, 0, 0, 1, 1, 1, 0}), STATUS_OK);
}

TEST_F(SolidShapes, ACylinderIsTheSameByEndPointsAndByAxis)
{
    int32_t element = TARVEX_NONE;
    ASSERT_EQ(Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 0, 0, 10, 2, &element), STATUS_OK);
    const auto ends = [&]
    {
        Ends v = {};
        Tarvex_Element_Cylinder_GetValue(Id, 0, &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6]);
        return v;
    };
    const auto axisForm = [&]
    {
        AxisForm v = {};
        Tarvex_Element_Cylinder_GetValue2(Id, 0, &v[0], &v[1], &v[2], &v[3], &v[4], &v[5], &v[6],
                                          &v[7]);
        return v;
    };
    EXPECT_EQ(axisForm(), (AxisForm{0, 0, 5, 0, 0, 1, 2, 10}));

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
        {{0, 0, 0, 0, 2, 0, 1, 0}, STATUS_OK, true, {0, 0, 0, 0, 0, 0, 1}},
        {{0, 0, 0, 0, 0, 1, 1, -8}, STATUS_OK, true, {0, 0, 4, 0, 0, -4, 1}},
        {{0, 0, 0, 0, 2, 0, 1, -9}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1}},
        {{0, 0, 0, 0, 0, 0, 1, 5}, STATUS_TOO_SMALL, true, before},
        {{0, 0, 0, 0, 0, 0, 1e-10, 5}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1e-10}},
        {{0, 0, 0, 0, 0, marker, 1, 5}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1}},
    };
    for (const Case& cylinder : cases)
    {
        SCOPED_TRACE(&cylinder - cases);
        ASSERT_EQ(SetCylinder(before), STATUS_OK);
        EXPECT_EQ(SetCylinder(cylinder.Values), cylinder.Status);
        EXPECT_EQ(IsValid(0), cylinder.Valid);
        EXPECT_EQ(ends(), cylinder.Expected);
        EXPECT_EQ(axisForm()[7], cylinder.Status == STATUS_OK ? cylinder.Values[7] : 10.0);
    }
    const Ends invalid[] = {{0, 0, 0, 0, 0, 9e-7, 2}, {0, 0, 0, 1, 1, 1, 9e-10}, {1, marker}};
    for (const Ends& v : invalid)
    {
        EXPECT_EQ(SetCylinder(Ends{0, 0, 0, 0, 4, 0, 1}), STATUS_OK);
        EXPECT_TRUE(IsValid(0));
        EXPECT_EQ(SetCylinder(v), STATUS_OK);
        EXPECT_FALSE(IsValid(0));
        EXPECT_EQ(ends(), v);
        EXPECT_EQ(axisForm()[4], 1.0); // axis and length stay
        EXPECT_EQ(axisForm()[7], 4.0);
        EXPECT_EQ(
            Tarvex_Element_Add_Cylinder(Id, v[0], v[1], v[2], v[3], v[4], v[5], v[6], &element),
            STATUS_OK);
        EXPECT_FALSE(IsValid(element));
    }
}

TEST_F(SolidShapes, APolyhedronRefusesWhatHasNoShape)
{
    int32_t element = TARVEX_NONE;
    const int32_t huge = std::numeric_limits<int32_t>::max();
    EXPECT_EQ(Tarvex_Element_Add_Polyhedron(Id, 3, X, nullptr, Z, 0, 0, 1, 1, &element),
              STATUS_NULL_ARGUMENT);
    EXPECT_EQ(AddPolyhedron(2, 1, 1, &element), STATUS_TOO_SMALL);
    EXPECT_EQ(AddPolyhedron(251, 1, 1, &element), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(AddPolyhedron(huge, 1, 1, &element), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(AddPolyhedron(3, 1e-7, 1, &element), STATUS_TOO_SMALL);
    EXPECT_EQ(element, TARVEX_NONE);
    // A new one takes a bad height unseen, and then does not look at the axis.
    EXPECT_EQ(AddPolyhedron(3, 0, 0, &element), STATUS_OK);
    EXPECT_FALSE(IsValid(element));

    ASSERT_EQ(AddPolyhedron(3, 2, 4, &element), STATUS_OK);
    EXPECT_EQ(element, 1);
    EXPECT_EQ(SetPolyhedron(1, 2, 1, 1), STATUS_TOO_SMALL);
    EXPECT_EQ(SetPolyhedron(1, huge, 1, 1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(SetPolyhedron(1, 4, 0, 1), STATUS_TOO_SMALL);
    EXPECT_EQ(SetPolyhedron(1, 4, 1, 9e-10), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetHeight(Id, 1, 0), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetAxisDirection(Id, 1, 0, 1e-7, 0), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Polyhedron_RemovePoint(Id, 1, 0), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Polyhedron_RemovePoint(Id, 1, 3), STATUS_BAD_INDEX);
    EXPECT_EQ(Tarvex_Element_Polyhedron_ChangePoint(Id, 1, -1, 0, 0, 0), STATUS_BAD_INDEX);
    EXPECT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, 1, 4, 0, 0, 0), STATUS_BAD_INDEX);
    EXPECT_TRUE(IsValid(1));

    ASSERT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, 1, 3, 1, 2, 3), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Polyhedron_InsertPoint(Id, 1, 0, 5, 6, 7), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Polyhedron_RemovePoint(Id, 1, 1), STATUS_OK);
    double x[4] = {};
    double y[4] = {};
    double axis[4] = {};
    const auto read = [&](double* z)
    {
        return Tarvex_Element_Polyhedron_GetValue(Id, 1, x, y, z, &axis[0], &axis[1], &axis[2],
                                                  &axis[3]);
    };
    EXPECT_EQ(read(nullptr), STATUS_NULL_ARGUMENT);
    double z[4] = {};
    EXPECT_EQ(read(z), STATUS_OK);
    EXPECT_THAT(x, testing::ElementsAre(5, 8, 0, 1));
    EXPECT_THAT(z, testing::ElementsAre(7, 0, 0, 3));
    EXPECT_THAT(axis, testing::ElementsAre(0, 0, 1, 4));
}

TEST_F(SolidShapes, OnlySetValueMakesAPolyhedronValidAgain)
{
    int32_t element = TARVEX_NONE;
    ASSERT_EQ(AddPolyhedron(3, 1, 1, &element), STATUS_OK);
    const std::function<int32_t()> spoil[] = {
        [&] { return Tarvex_Element_Polyhedron_ChangePoint(Id, 0, 0, NaN, 0, 0); },
        [&] { return Tarvex_Element_Polyhedron_InsertPoint(Id, 0, 0, 0, 0, marker); },
        [&] { return Tarvex_Element_Polyhedron_SetAxisDirection(Id, 0, 0, NaN, 1); },
        [&] { return Tarvex_Element_Polyhedron_SetHeight(Id, 0, NaN); },
        [&] { return SetPolyhedron(0, 3, NaN, 1); },
    };
    LookDown();
    for (const auto& way : spoil)
    {
        SCOPED_TRACE(&way - spoil);
        // A change of the geometry also brings back what was hidden.
        ASSERT_EQ(Tarvex_Element_Show(Id, 0, 0), STATUS_OK);
        EXPECT_EQ(CountLit(), 0);
        ASSERT_EQ(SetPolyhedron(0, 3, 1, 1), STATUS_OK);
        EXPECT_TRUE(IsValid(0));
        EXPECT_GT(CountLit(), 30);
        EXPECT_EQ(way(), STATUS_OK);
        for (int32_t point = 0; point < 3; ++point)
        {
            Tarvex_Element_Polyhedron_ChangePoint(Id, 0, point, X[point], Y[point], 0);
        }
        Tarvex_Element_Polyhedron_SetAxisDirection(Id, 0, 0, 0, 1);
        Tarvex_Element_Polyhedron_SetHeight(Id, 0, 1);
        EXPECT_FALSE(IsValid(0));
        EXPECT_EQ(CountLit(), 0);
    }
}

TEST_F(SolidShapes, TheLightingOfTheCreationComesBackWithNewValues)
{
    int32_t element = TARVEX_NONE;
    Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 1, 1, 1, 1, &element);
    Tarvex_Element_Add_Cube(Id, 0, 0, 0, 1, 1, 1, 0, 0, &element);
    AddPolyhedron(3, 1, 1, &element);
    const std::function<int32_t()> change[] = {
        [&] {
            return SetCylinder(AxisForm{0, 0, 0, 1, 0, 0, 1, 1});
        },
        [&] {
            return SetCube(1, {NaN, 0, 0, 1, 1, 1, 0});
        },
        [&] { return Tarvex_Element_Polyhedron_SetHeight(Id, 2, 3); }};
    for (int32_t kind = 0; kind < 3; ++kind)
    {
        const auto lighting = [&]
        {
            std::array<double, 4> v = {};
            Tarvex_Element_GetLighting(Id, kind, &v[0], &v[1], &v[2], &v[3]);
            return v;
        };
        const auto before = lighting();
        ASSERT_EQ(Tarvex_Element_SetLighting(Id, kind, 0.2, 0.3, 0.4, 50), STATUS_OK);
        EXPECT_NE(lighting(), before);
        EXPECT_EQ(change[kind](), STATUS_OK);
        EXPECT_EQ(lighting(), before);
    }
}

TEST_F(SolidShapes, TheActiveElementShowsItsHandlesFromTheNextPictureOn)
{
    int32_t element = TARVEX_NONE;
    Tarvex_Element_Add_Cube(Id, 0, 10, 0, 1, 1, 1, 0, 1, &element);
    Tarvex_Window_Camera_SetPredefinedView(Id, TARVEX_VIEW_TOP);
    const Picture without = TakePicture(Id);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, element), STATUS_OK);
    EXPECT_EQ(TakePicture(Id).CountDifferences(without), 0);
    Tarvex_Window_Camera_SetZoom(Id, 1);
    EXPECT_GT(CountLit(), without.Count(IsLit) + 300);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, TARVEX_NONE), STATUS_OK);
    Tarvex_Window_Camera_SetZoom(Id, 1);
    EXPECT_EQ(TakePicture(Id).CountDifferences(without), 0);
    ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, element), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Remove(Id, element), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}

TEST_F(SolidShapes, NumbersThatNothingCanDrawNeitherCrashNorSpoilTheCamera)
{
    int32_t element = TARVEX_NONE;
    Tarvex_Element_Add_Cylinder(Id, 0, 0, 0, 1, 1, 1, 1, &element);
    Tarvex_Element_Add_Cube(Id, 0, 0, 0, 1, 1, 1, 0, 0, &element);
    AddPolyhedron(3, 1, 1, &element);
    int32_t active = 0;
    for (const double bad : {1e31, 1e300, -1e300, infinity, -marker, NaN})
    {
        ASSERT_EQ(Tarvex_Window_SetActiveElement(Id, active++ % 3), STATUS_OK);
        for (int place = 0; place < 8; ++place)
        {
            SCOPED_TRACE(testing::Message() << bad << " at " << place);
            const auto at = [&](int which, double usual) { return which == place ? bad : usual; };
            SetCylinder(Ends{at(0, 0), at(1, 0), at(2, 0), at(3, 1), at(4, 1), at(5, 1), at(6, 1)});
            SetCylinder(AxisForm{at(0, 0), at(1, 0), at(2, 0), at(3, 1), at(4, 1), at(5, 1),
                                 at(6, 1), at(7, 1)});
            SetCube(1, {at(0, 0), at(1, 0), at(2, 0), at(3, 1), at(4, 1), at(5, 1), at(6, 0)});
            SetPolyhedron(2, 3, at(3, 1), at(4, 1));
            Tarvex_Element_Polyhedron_ChangePoint(Id, 2, 1, at(0, 1), at(1, 1), at(2, 1));
            Tarvex_Window_Camera_AutoSize(Id);
            double position[3] = {NaN, NaN, NaN};
            Tarvex_Window_Camera_GetPosition(Id, &position[0], &position[1], &position[2]);
            EXPECT_LT(std::hypot(position[0], position[1], position[2]), 1e3);
        }
    }
    SetCube(1, {0, 0, 0, 1, 1, 1, 0});
    EXPECT_GT(CountLit(), 0);
}
} // namespace
