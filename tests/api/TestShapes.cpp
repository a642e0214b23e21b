// What distinguishes the shapes, as a host sees them: which numbers they take, refuse, fold and
// hide.
#include "support/ViewFixture.h"

namespace
{
struct Kind
{
    Numbers Good; // around y = 20
    Export Add;
    Export Set;
    Export Get;
};

// A plane is always added by distance.
int32_t AddByPoint(int32_t view, double x, double y, double z, double nx, double ny, double nz,
                   int32_t* id)
{
    const int32_t status = Tarvex_Element_Add_Plane(view, 0, 0, 0, 1, id);
    return status == STATUS_OK ? Tarvex_Element_Plane_SetValue(view, *id, x, y, z, nx, ny, nz)
                               : status;
}

Kind Make(const Numbers& good, const Export& add, const Export& set, const Export& get)
{
    return {good, add, set, get};
}

const Kind ellipse = Make({0, 20, 0, 5, 3, 30}, Tarvex_Element_Add_Ellipse,
                          Tarvex_Element_Ellipse_SetValue, Tarvex_Element_Ellipse_GetValue);
const Kind plane = Make({-1, 0, 0, 1}, Tarvex_Element_Add_Plane, Tarvex_Element_Plane_SetValue2,
                        Tarvex_Element_Plane_GetValue2);
const Kind planeByPoint = Make({0, 20, -1, 0, 0, 1}, AddByPoint, Tarvex_Element_Plane_SetValue,
                               Tarvex_Element_Plane_GetValue);
const Kind rectangle = Make({0, 20, 0, 6, 4, 30}, AddCentered, Tarvex_Element_Rectangle_SetValue,
                            Tarvex_Element_Rectangle_GetValue);
const Kind cube = Make({0, 20, 0, 6, 4, 2, 30}, Tarvex_Element_Add_Cube,
                       Tarvex_Element_Cube_SetValue, Tarvex_Element_Cube_GetValue);

class Shapes : public ViewFixture
{
protected:
    void Set(const Kind& kind, int32_t element, const Numbers& values) const
    {
        EXPECT_EQ(Call(kind.Set, element, values), STATUS_OK);
    }
};

TEST_F(Shapes, FoldTheirAngleOnlyInTheAddOfValidValues)
{
    using Row = std::array<double, 3>;
    // 360 only from a negative multiple; both ends of -180 .. 180 stay, and so does their side.
    for (const auto& [angle, ofEllipse, ofOthers] : {Row{190 - 720, 190, -170},
                                                     {180, 180, 180},
                                                     {-180, 180, -180},
                                                     {360, 0, 0},
                                                     {-360, 360, 0},
                                                     {540, 180, 180},
                                                     {-540, 180, -180},
                                                     {-Infinity, -Infinity, -Infinity}})
    {
        for (const auto& [kind, folded] :
             {std::pair(&ellipse, ofEllipse), {&rectangle, ofOthers}, {&cube, ofOthers}})
        {
            Numbers values = kind->Good;
            values.back() = angle;
            const int32_t element = Add(kind->Add, values);
            EXPECT_EQ(Read(kind->Get, element).back(), folded);
            Set(*kind, element, values);
            EXPECT_EQ(Read(kind->Get, element), values);
            values.front() = Marker;
            EXPECT_EQ(Read(kind->Get, Add(kind->Add, values)), values);
        }
    }
}

TEST_F(Shapes, PlaneTellsItsDistanceWithTheSignOfTheCallThatSetIt)
{
    // A call, and what the plane tells afterwards by distance and by point.
    const std::tuple<const Kind&, Numbers, Numbers, Numbers> steps[] = {
        {plane, {3, 0, 0, 2}, {3, 0, 0, 1}, {0, 0, 3, 0, 0, 1}},
        {planeByPoint, {1, 2, 3, 0, 0, 5}, {-3, 0, 0, 1}, {1, 2, 3, 0, 0, 1}},
        // An invalid plane keeps what the call did not give, and raw what it gave.
        {planeByPoint, {4, 5, 6, 0, 0, 0}, {-3, 0, 0, 0}, {4, 5, 6, 0, 0, 0}},
        {plane, {7, 0, 0, 1e-7}, {7, 0, 0, 1e-7}, {4, 5, 6, 0, 0, 1e-7}},
        {plane, {-2, 0, 4, 0}, {-2, 0, 1, 0}, {0, -2, 0, 0, 1, 0}}};
    const int32_t element = Add(plane.Add, plane.Good);
    for (const auto& [call, given, byDistance, byPoint] : steps)
    {
        Set(call, element, given);
        EXPECT_EQ(Read(plane.Get, element), byDistance) << testing::PrintToString(given);
        EXPECT_EQ(Read(planeByPoint.Get, element), byPoint) << testing::PrintToString(given);
    }
}

TEST_F(Shapes, CylinderIsTheSameByEndPointsAndByAxis)
{
    const Numbers before = {0, 0, 0, 0, 0, 10, 2};
    const int32_t element = Add(Tarvex_Element_Add_Cylinder, before);
    // By axis; the ends afterwards, which stay if it is invalid, but not the radius.
    const std::tuple<Numbers, int32_t, bool, Numbers> cases[] = {
        {{1, 2, 3, 4, 0, 0, 5, 6}, STATUS_OK, true, {-2, 2, 3, 4, 2, 3, 5}},
        {{0, 0, 0, 0, 2, 0, 1, -7}, STATUS_OK, true, {0, 3.5, 0, 0, -3.5, 0, 1}},
        {{0, 0, 0, 0, 0, 1, 1, -8}, STATUS_OK, true, {0, 0, 4, 0, 0, -4, 1}},
        {{0, 0, 0, 0, 2, 0, 1, -9}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1}},
        {{0, 0, 0, 0, 0, 0, 1, 5}, STATUS_TOO_SMALL, true, before},
        {{0, 0, 0, 0, 0, 0, 1e-10, 5}, STATUS_OK, false, {0, 0, 0, 0, 0, 10, 1e-10}}};
    for (const auto& [given, status, valid, ends] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        EXPECT_EQ(Call(Tarvex_Element_Cylinder_SetValue, element, before), STATUS_OK);
        EXPECT_EQ(Call(Tarvex_Element_Cylinder_SetValue2, element, given), status);
        EXPECT_EQ(IsValid(element), valid);
        EXPECT_EQ(Read(Tarvex_Element_Cylinder_GetValue, element), ends);
    }
}

TEST_F(Shapes, PolyhedronRefusesWhatHasNoShape)
{
    // Three points, and an axis of height 1.
    const Numbers good = {3, 0, 8, 0, 0, 0, 0, 8, 0, 0, 8, 0, 0, 0, 0, 1, 1};
    const int32_t element = Add(Tarvex_Element_Add_Polyhedron, good);
    EXPECT_EQ(Tarvex_Element_Polyhedron_RemovePoint(Id, element, 0), STATUS_TOO_SMALL);
    // Once spoilt, only SetValue makes it valid again.
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetHeight(Id, element, NaN), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Polyhedron_SetHeight(Id, element, 1), STATUS_OK);
    EXPECT_FALSE(IsValid(element));
    EXPECT_EQ(Call(Tarvex_Element_Polyhedron_SetValue, element, good), STATUS_OK);
    EXPECT_TRUE(IsValid(element));
    // Refused for its height alone, it counts as valid and stays unseen.
    EXPECT_EQ(Tarvex_Element_Polyhedron_ChangePoint(Id, element, 0, NaN, 0, 0), STATUS_OK);
    Numbers flat = good;
    flat.back() = 0;
    EXPECT_EQ(Call(Tarvex_Element_Polyhedron_SetValue, element, flat), STATUS_TOO_SMALL);
    EXPECT_TRUE(IsValid(element));
    EXPECT_EQ(Tarvex_Window_SetActiveElement(Id, element), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}
} // namespace
