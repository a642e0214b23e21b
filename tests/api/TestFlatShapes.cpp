// What distinguishes circles, ellipses, planes, rectangles and polygons, as a host sees them.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

#include <cmath>

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

const Kind circle = Make({0, 20, 0, 5, 0, 0, 1}, Tarvex_Element_Add_Circle,
                         Tarvex_Element_Circle_SetValue, Tarvex_Element_Circle_GetValue);
const Kind ellipse = Make({0, 20, 0, 5, 3, 30}, Tarvex_Element_Add_Ellipse,
                          Tarvex_Element_Ellipse_SetValue, Tarvex_Element_Ellipse_GetValue);
const Kind plane = Make({-1, 0, 0, 1}, Tarvex_Element_Add_Plane, Tarvex_Element_Plane_SetValue2,
                        Tarvex_Element_Plane_GetValue2);
const Kind planeByPoint = Make({0, 20, -1, 0, 0, 1}, AddByPoint, Tarvex_Element_Plane_SetValue,
                               Tarvex_Element_Plane_GetValue);
const Kind rectangle = Make({0, 20, 0, 6, 4, 30}, AddCentered, Tarvex_Element_Rectangle_SetValue,
                            Tarvex_Element_Rectangle_GetValue);

class FlatShapes : public ViewFixture
{
protected:
    void Set(const Kind& kind, int32_t element, const Numbers& values) const
    {
        EXPECT_EQ(Call(kind.Set, element, values), STATUS_OK);
    }
    // Added, and set after good values; the camera stays near whatever it is.
    void ExpectValidity(const Kind& kind, const Numbers& values, bool valid) const
    {
        SCOPED_TRACE(testing::PrintToString(values));
        const int32_t added = Add(kind.Add, values);
        const int32_t changed = Add(kind.Add, kind.Good);
        EXPECT_EQ(Read(kind.Get, changed), kind.Good);
        Set(kind, changed, values);
        EXPECT_EQ(IsValid(added), valid);
        EXPECT_EQ(IsValid(changed), valid);
        EXPECT_TRUE(valid || Read(kind.Get, changed) == values) << "the raw normal among them";
        Tarvex_Window_Camera_AutoSize(Id);
        const Numbers camera = Read(Tarvex_Window_Camera_GetPosition);
        EXPECT_LT(std::hypot(camera[0], camera[1], camera[2]), 300.0);
        Tarvex_Element_Remove(Id, added);
        Tarvex_Element_Remove(Id, changed);
    }
};

TEST_F(FlatShapes, AreInvalidWithUnusableNumbersAndNeverSpoilTheCamera)
{
    Tarvex_Element_SetSize(Id, AddPoint(0, 0, 0), 5);
    TarvexExt_Window_BeginUpdate(Id);
    for (const Kind* kind : {&circle, &ellipse, &plane, &planeByPoint, &rectangle})
    {
        for (size_t at = 0; at < kind->Good.size(); ++at)
        {
            Numbers values = kind->Good;
            const bool isRadius =
                (kind == &circle || kind == &ellipse) && values[at] > 0 && at >= 3 && at <= 4;
            for (const double number : {Marker, -Marker, std::numeric_limits<double>::min(), 1e300,
                                        -1e31, Infinity, -Infinity})
            {
                values[at] = number;
                const bool isMarker = std::abs(number) == Marker || std::abs(number) < 1;
                ExpectValidity(*kind, values, !isMarker && !(isRadius && number < 0));
            }
        }
    }
    TarvexExt_Window_EndUpdate(Id);
    EXPECT_GT(CountLit(), 100);
}

TEST_F(FlatShapes, AreInvalidBelowTheirLeastExtents)
{
    ExpectValidity(circle, {0, 0, 0, 1e-9, 0, 0, 1}, true);
    ExpectValidity(circle, {0, 0, 0, 9e-10, 0, 0, 5}, false);
    ExpectValidity(circle, {0, 0, 0, 1, 0, 2e-6, 0}, true);
    ExpectValidity(circle, {0, 0, 0, 1, 0, 9e-7, 0}, false);
    ExpectValidity(ellipse, {0, 0, 0, 1e-9, 1e-9, 0}, true);
    ExpectValidity(ellipse, {0, 0, 0, 9e-10, 1, 0}, false);
    ExpectValidity(ellipse, {0, 0, 0, 1, 9e-10, 0}, false);
    ExpectValidity(plane, {0, 2e-6, 0, 0}, true);
    ExpectValidity(plane, {0, 9e-7, 0, 0}, false);
    ExpectValidity(planeByPoint, {0, 0, 0, 0, 0, 2e-6}, true);
    ExpectValidity(planeByPoint, {0, 0, 0, 0, 0, 9e-7}, false);
    ExpectValidity(rectangle, {0, 0, 0, 0, -5, 0}, true);
    ExpectValidity(rectangle, {0, 0, 0, 1e-6, 0, 0}, true);
    ExpectValidity(rectangle, {0, 0, 0, 9e-7, -9e-7, 0}, false);
    Read(Tarvex_Element_GetColor, Add(circle.Add, {NaN}), STATUS_INVALID_VALUES);
    Read(Tarvex_Element_GetColor, Add(ellipse.Add, {NaN}));
}

TEST_F(FlatShapes, FoldTheirAngleOnlyInTheAddOfValidValues)
{
    using Row = std::array<double, 3>;
    // 360 only from a negative multiple; both ends of -180 .. 180 stay, and so does their side.
    for (const auto& [angle, ofEllipse, ofRectangle] : {Row{190 - 720, 190, -170},
                                                        {180, 180, 180},
                                                        {-180, 180, -180},
                                                        {360, 0, 0},
                                                        {-360, 360, 0},
                                                        {540, 180, 180},
                                                        {-540, 180, -180},
                                                        {-Infinity, -Infinity, -Infinity}})
    {
        for (const auto& [kind, folded] :
             {std::pair(&ellipse, ofEllipse), std::pair(&rectangle, ofRectangle)})
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

TEST_F(FlatShapes, PlaneTellsItsDistanceWithTheSignOfTheCallThatSetIt)
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

TEST_F(FlatShapes, PlaneRefusesOnlyBoxesThinnerThanAThousandth)
{
    const int32_t first = Add(plane.Add, plane.Good);
    const auto box = [&] { return Read(Tarvex_Element_GetDrawSize_Plane, first); };
    const auto set = [&](const Numbers& to)
    { return Call(Tarvex_Element_SetDrawSize_Plane, first, to); };
    const Numbers small = {0, 0.001, 0, 0.001, 0, 0.001};
    EXPECT_EQ(box(), (Numbers{-50, 50, -50, 50, -50, 50}));
    EXPECT_EQ(set(small), STATUS_OK);
    EXPECT_EQ(set({0, 0.0009, 0, 5, 0, 5}), STATUS_TOO_SMALL);
    EXPECT_EQ(set({0, 5, 0, 0.0009, 0, 5}), STATUS_TOO_SMALL);
    EXPECT_EQ(set({0, 5, 0, 5, 0, 0.0009}), STATUS_TOO_SMALL);
    EXPECT_EQ(box(), small);
    // The box of a view may be thinner than that of a plane, which then keeps what it has.
    for (const double width : {0.1, 1e-5})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, width, 0, 5, 0, 5), STATUS_OK);
        EXPECT_EQ(box(), (Numbers{0, 0.1, 0, 5, 0, 5}));
    }
}

TEST_F(FlatShapes, RectangleGivenByItsCornerTellsItsCentre)
{
    EXPECT_EQ(Read(rectangle.Get, Add(Tarvex_Element_Add_Rectangle, {0, 1, 5, 2, 4, 2, 30})),
              (Numbers{3, 5, 3, 4, 2, 30}));
    EXPECT_EQ(Read(rectangle.Get, Add(Tarvex_Element_Add_Rectangle, {0, 1, 5, 2, 0, 0, 30})),
              (Numbers{0, 5, 0, 0, 0, 30}));
}

TEST_F(FlatShapes, PolygonEditsAnswerAndCount)
{
    const double some[] = {0, 1, 2, 3};
    int32_t id = -1;
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 1, some, nullptr, some, 0, &id), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 2, some, some, some, 1, &id), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 1, some, some, some, 0, &id), STATUS_TOO_SMALL);
    ASSERT_EQ(Tarvex_Element_Add_Polygon(Id, 4, some, some, some, 7, &id), STATUS_OK);
    EXPECT_EQ(Tarvex_Element_Polygon_SetValue(Id, id, 4, some, nullptr, some, 0),
              STATUS_NULL_ARGUMENT);
    const Export set = Tarvex_Element_Polygon_SetValue;
    const Export change = Tarvex_Element_Polygon_ChangePoint;
    const Export insert = Tarvex_Element_Polygon_InsertPoint;
    const Export remove = Tarvex_Element_Polygon_RemovePoint;
    // An edit with its numbers and status; the X of the points afterwards.
    const std::tuple<const Export&, Numbers, int32_t, Numbers> steps[] = {
        {set, {2, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 9, 1}, STATUS_TOO_SMALL, {0, 1, 2, 3}},
        {change, {4, 9}, STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {change, {-1, 9}, STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert, {5, 9}, STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert, {-1, 9}, STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert, {4, 4}, STATUS_OK, {0, 1, 2, 3, 4}},
        {remove, {5}, STATUS_BAD_INDEX, {0, 1, 2, 3, 4}},
        {change, {1, Marker}, STATUS_OK, {0, Marker, 2, 3, 4}},
        {remove, {1}, STATUS_OK, {0, 2, 3, 4}},
        {change, {1, Infinity}, STATUS_OK, {0, Infinity, 3, 4}},
        {remove, {0}, STATUS_OK, {Infinity, 3, 4}},
        {remove, {0}, STATUS_TOO_SMALL, {Infinity, 3, 4}},
        {set, {3, 1, 2, 3, 9, 9, 9, 9, 9, 9, 9, 9, 9, 0}, STATUS_OK, {1, 2, 3}},
        {remove, {0}, STATUS_OK, {2, 3}},
        {remove, {0}, STATUS_TOO_SMALL, {2, 3}},
        {remove, {-1}, STATUS_BAD_INDEX, {2, 3}}};
    for (const auto& [edit, given, status, expected] : steps)
    {
        EXPECT_EQ(Call(edit, id, given), status);
        Numbers x(expected.size());
        Numbers y(expected.size());
        ASSERT_EQ(Read(Tarvex_Element_Polygon_GetPointCount, id)[0], expected.size());
        uint8_t closed = 9;
        EXPECT_EQ(Tarvex_Element_Polygon_GetValue(Id, id, &x[0], &y[0], nullptr, &closed),
                  STATUS_NULL_ARGUMENT);
        EXPECT_EQ(closed, 9);
        EXPECT_EQ(Tarvex_Element_Polygon_GetValue(Id, id, &x[0], &y[0], &y[0], &closed), STATUS_OK);
        EXPECT_EQ(x, expected);
        EXPECT_EQ(closed, x[0] < 1 || x[0] > 3);
        EXPECT_EQ(IsValid(id), x[1] != Marker);
    }
}
} // namespace
