// What distinguishes circles, ellipses, planes, rectangles and polygons, as a host sees them.
#include "TarvexExt.h"
#include "support/ViewFixture.h"

#include <cmath>
#include <functional>
#include <utility>
#include <vector>

namespace
{
using Values = std::vector<double>;

constexpr double infinity = std::numeric_limits<double>::infinity();
// As good as no value, too, but equal to itself.
constexpr double marker = std::numeric_limits<double>::max();

// A way of giving an element of a type its values.
struct Kind
{
    int32_t Type;
    Values Good; // around y = 20
    std::function<int32_t(int32_t, const Values&, int32_t*)> Add;
    std::function<int32_t(int32_t, int32_t, const Values&)> Set;
    std::function<int32_t(int32_t, int32_t, Values&)> Get;
};

// From exports that take the values one by one.
template <class Adder, class Setter, class Getter, size_t... At>
Kind MakeKind(int32_t type, const Values& good, Adder add, Setter set, Getter get,
              std::index_sequence<At...>)
{
    return {type, good,
            [add](int32_t view, const Values& v, int32_t* id) { return add(view, v[At]..., id); },
            [set](int32_t view, int32_t id, const Values& v) { return set(view, id, v[At]...); },
            [get](int32_t view, int32_t id, Values& v) { return get(view, id, &v[At]...); }};
}

int32_t AddCentered(int32_t view, double x, double y, double z, double width, double height,
                    double angle, int32_t* id)
{
    return Tarvex_Element_Add_Rectangle(view, 1, x, y, z, width, height, angle, id);
}

// A plane is always added by distance.
int32_t AddByPoint(int32_t view, double x, double y, double z, double nx, double ny, double nz,
                   int32_t* id)
{
    const int32_t status = Tarvex_Element_Add_Plane(view, 0, 0, 0, 1, id);
    return status == STATUS_OK ? Tarvex_Element_Plane_SetValue(view, *id, x, y, z, nx, ny, nz)
                               : status;
}

const Kind circle = MakeKind(TARVEX_ELEMENT_CIRCLE, {0, 20, 0, 5, 0, 0, 1},
                             Tarvex_Element_Add_Circle, Tarvex_Element_Circle_SetValue,
                             Tarvex_Element_Circle_GetValue, std::make_index_sequence<7>());
const Kind ellipse = MakeKind(TARVEX_ELEMENT_ELLIPSE, {0, 20, 0, 5, 3, 30},
                              Tarvex_Element_Add_Ellipse, Tarvex_Element_Ellipse_SetValue,
                              Tarvex_Element_Ellipse_GetValue, std::make_index_sequence<6>());
const Kind plane = MakeKind(TARVEX_ELEMENT_PLANE, {-1, 0, 0, 1}, Tarvex_Element_Add_Plane,
                            Tarvex_Element_Plane_SetValue2, Tarvex_Element_Plane_GetValue2,
                            std::make_index_sequence<4>());
const Kind planeByPoint =
    MakeKind(TARVEX_ELEMENT_PLANE, {0, 20, -1, 0, 0, 1}, AddByPoint, Tarvex_Element_Plane_SetValue,
             Tarvex_Element_Plane_GetValue, std::make_index_sequence<6>());
const Kind rectangle = MakeKind(TARVEX_ELEMENT_RECTANGLE, {0, 20, 0, 6, 4, 30}, AddCentered,
                                Tarvex_Element_Rectangle_SetValue,
                                Tarvex_Element_Rectangle_GetValue, std::make_index_sequence<6>());
// x of three points, then y and z.
const Kind polygon = {
    TARVEX_ELEMENT_POLYGON,
    {-4, 4, 0, 20, 22, 24, 0, 1, 2},
    [](int32_t view, const Values& v, int32_t* id)
    { return Tarvex_Element_Add_Polygon(view, 3, &v[0], &v[3], &v[6], 1, id); },
    [](int32_t view, int32_t id, const Values& v)
    { return Tarvex_Element_Polygon_SetValue(view, id, 3, &v[0], &v[3], &v[6], 1); },
    [](int32_t view, int32_t id, Values& v)
    {
        uint8_t closed = 0;
        return Tarvex_Element_Polygon_GetValue(view, id, &v[0], &v[3], &v[6], &closed);
    }};
const Kind* const kinds[] = {&circle, &ellipse, &plane, &planeByPoint, &rectangle, &polygon};

class FlatShapes : public ViewFixture
{
protected:
    int32_t Add(const Kind& kind, const Values& values) const
    {
        int32_t element = -1;
        EXPECT_EQ(kind.Add(Id, values, &element), STATUS_OK);
        return element;
    }
    Values Read(const Kind& kind, int32_t element) const
    {
        Values values(kind.Good.size(), -77.0);
        EXPECT_EQ(kind.Get(Id, element, values), STATUS_OK);
        return values;
    }
};

TEST_F(FlatShapes, KeepAndTellWhatTheyWereGiven)
{
    const int32_t point = AddPoint(0, 0, 0);
    for (const Kind* kind : kinds)
    {
        SCOPED_TRACE(kind->Type);
        const int32_t element = Add(*kind, kind->Good);
        EXPECT_EQ(Read(*kind, element), kind->Good);
        Values bad = kind->Good;
        bad.back() = marker;
        EXPECT_EQ(kind->Set(Id, element, bad), STATUS_OK);
        EXPECT_FALSE(IsValid(element));
        EXPECT_EQ(Read(*kind, element), bad);
        double size = 0.0;
        EXPECT_EQ(Tarvex_Element_GetSize(Id, element, &size), STATUS_OK);
        EXPECT_EQ(size, 0.5);
        uint8_t color[3] = {};
        EXPECT_EQ(Tarvex_Element_GetColor(Id, element, color, color + 1, color + 2),
                  kind == &circle ? STATUS_INVALID_VALUES : STATUS_OK);
        EXPECT_EQ(kind->Set(Id, point, kind->Good), STATUS_WRONG_TYPE);
        EXPECT_EQ(kind->Get(Id, point, bad), STATUS_WRONG_TYPE);
    }
}

TEST_F(FlatShapes, NumbersWithoutUseHideThemAndLeaveTheCameraAlone)
{
    const double numbers[] = {NaN,   marker, -marker,  std::numeric_limits<double>::min(),
                              1e300, -1e31,  infinity, -infinity};
    constexpr size_t markers = 4;
    Tarvex_Element_SetSize(Id, AddPoint(0, 0, 0), 5);
    TarvexExt_Window_BeginUpdate(Id);
    for (const Kind* kind : kinds)
    {
        for (size_t at = 0; at < kind->Good.size(); ++at)
        {
            const bool mustBePositive =
                (kind == &circle && at == 3) || (kind == &ellipse && (at == 3 || at == 4));
            for (size_t number = 0; number < std::size(numbers); ++number)
            {
                SCOPED_TRACE(testing::Message()
                             << "type " << kind->Type << ", " << numbers[number] << " at " << at);
                Values values = kind->Good;
                values[at] = numbers[number];
                const bool valid = number >= markers && !(mustBePositive && numbers[number] < 0.0);
                const int32_t added = Add(*kind, values);
                const int32_t changed = Add(*kind, kind->Good);
                EXPECT_EQ(kind->Set(Id, changed, values), STATUS_OK);
                EXPECT_EQ(IsValid(added), valid);
                EXPECT_EQ(IsValid(changed), valid);
                Tarvex_Window_Camera_AutoSize(Id);
                double x = NaN;
                double y = NaN;
                double z = NaN;
                Tarvex_Window_Camera_GetPosition(Id, &x, &y, &z);
                EXPECT_LT(std::hypot(x, y, z), 300.0);
                Tarvex_Element_Remove(Id, added);
                Tarvex_Element_Remove(Id, changed);
            }
        }
    }
    TarvexExt_Window_EndUpdate(Id);
    EXPECT_GT(TakePicture(Id).Count(IsLit), 100);
}

TEST_F(FlatShapes, LeastExtents)
{
    struct Case
    {
        const Kind& Of;
        Values Given;
        bool Valid;
    };
    const Case cases[] = {{circle, {0, 0, 0, 1e-9, 0, 0, 1}, true},
                          {circle, {0, 0, 0, 9e-10, 0, 0, 5}, false},
                          {circle, {0, 0, 0, 1, 0, 2e-6, 0}, true},
                          {circle, {0, 0, 0, 1, 0, 9e-7, 0}, false},
                          {ellipse, {0, 0, 0, 1e-9, 1e-9, 0}, true},
                          {ellipse, {0, 0, 0, 9e-10, 1, 0}, false},
                          {ellipse, {0, 0, 0, 1, 9e-10, 0}, false},
                          {plane, {0, 2e-6, 0, 0}, true},
                          {plane, {0, 9e-7, 0, 0}, false},
                          {planeByPoint, {0, 0, 0, 0, 0, 2e-6}, true},
                          {planeByPoint, {0, 0, 0, 0, 0, 9e-7}, false},
                          {rectangle, {0, 0, 0, 0, -5, 0}, true},
                          {rectangle, {0, 0, 0, 1e-6, 0, 0}, true},
                          {rectangle, {0, 0, 0, 9e-7, -9e-7, 0}, false},
                          {polygon, {0, 0, 0, 0, 0, 0, 0, 0, 0}, true}};
    for (const auto& [kind, given, valid] : cases)
    {
        SCOPED_TRACE(testing::Message() << kind.Type << ": " << testing::PrintToString(given));
        const int32_t element = Add(kind, kind.Good);
        EXPECT_EQ(kind.Set(Id, element, given), STATUS_OK);
        for (const int32_t each : {element, Add(kind, given)})
        {
            EXPECT_EQ(IsValid(each), valid);
            // The raw normal among them.
            EXPECT_TRUE(valid || Read(kind, each) == given);
        }
    }
}

TEST_F(FlatShapes, AnglesAreFoldedByTheAddOfValidValuesOnly)
{
    for (const auto& [kind, folded] : {std::pair(&ellipse, 190.0), std::pair(&rectangle, -170.0)})
    {
        Values values = kind->Good;
        values.back() = 190.0 - 720.0;
        const int32_t element = Add(*kind, values);
        EXPECT_EQ(Read(*kind, element).back(), folded);
        EXPECT_EQ(kind->Set(Id, element, values), STATUS_OK);
        EXPECT_EQ(Read(*kind, element), values);
        values.front() = marker;
        EXPECT_EQ(Read(*kind, Add(*kind, values)), values);
    }
}

TEST_F(FlatShapes, PlaneTellsItsDistanceWithTheSignOfTheCallThatSetIt)
{
    struct Step
    {
        const Kind& Call;
        Values Given;
        Values ByDistance; // afterwards
        Values ByPoint;
    };
    const Step steps[] = {
        {planeByPoint, {1, 2, 3, 0, 0, 5}, {-3, 0, 0, 1}, {1, 2, 3, 0, 0, 1}},
        // An invalid plane keeps what the call did not give, and raw what it gave.
        {planeByPoint, {4, 5, 6, 0, 0, 0}, {-3, 0, 0, 0}, {4, 5, 6, 0, 0, 0}},
        {plane, {7, 0, 0, 1e-7}, {7, 0, 0, 1e-7}, {4, 5, 6, 0, 0, 1e-7}},
        {plane, {-2, 0, 4, 0}, {-2, 0, 1, 0}, {0, -2, 0, 0, 1, 0}}};
    const int32_t element = Add(plane, {3, 0, 0, 2});
    EXPECT_EQ(Read(plane, element), (Values{3, 0, 0, 1}));
    EXPECT_EQ(Read(planeByPoint, element), (Values{0, 0, 3, 0, 0, 1}));
    for (const auto& [call, given, byDistance, byPoint] : steps)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        EXPECT_EQ(call.Set(Id, element, given), STATUS_OK);
        EXPECT_EQ(Read(plane, element), byDistance);
        EXPECT_EQ(Read(planeByPoint, element), byPoint);
    }
}

TEST_F(FlatShapes, PlaneRefusesOnlyBoxesThinnerThanAThousandth)
{
    const auto set = [&](int32_t id, const Values& b)
    { return Tarvex_Element_SetDrawSize_Plane(Id, id, b[0], b[1], b[2], b[3], b[4], b[5]); };
    const auto box = [&](int32_t id)
    {
        Values b(6, -77);
        Tarvex_Element_GetDrawSize_Plane(Id, id, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]);
        return b;
    };
    const Values small = {0, 0.001, 0, 0.001, 0, 0.001};
    const int32_t first = Add(plane, plane.Good);
    EXPECT_EQ(box(first), (Values{-50, 50, -50, 50, -50, 50}));
    EXPECT_EQ(set(first, small), STATUS_OK);
    EXPECT_EQ(set(first, {0, 0.0009, 0, 5, 0, 5}), STATUS_TOO_SMALL);
    EXPECT_EQ(set(first, {0, 5, 0, 0.0009, 0, 5}), STATUS_TOO_SMALL);
    EXPECT_EQ(set(first, {0, 5, 0, 5, 0, 0.0009}), STATUS_TOO_SMALL);
    EXPECT_EQ(box(first), small);
    EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 0.1, 0, 5, 0, 5), STATUS_OK);
    EXPECT_EQ(box(first), (Values{0, 0.1, 0, 5, 0, 5}));
    // The box of a view may be thinner than that of a plane, which then keeps what it has.
    EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, 0, 1e-5, 0, 5, 0, 5), STATUS_OK);
    EXPECT_EQ(box(first), (Values{0, 0.1, 0, 5, 0, 5}));
}

TEST_F(FlatShapes, RectangleGivenByItsCornerTellsItsCentre)
{
    int32_t element = -1;
    ASSERT_EQ(Tarvex_Element_Add_Rectangle(Id, 0, 1, 5, 2, 4, 2, 30, &element), STATUS_OK);
    EXPECT_EQ(Read(rectangle, element), (Values{3, 5, 3, 4, 2, 30}));
    ASSERT_EQ(Tarvex_Element_Add_Rectangle(Id, 0, 1, 5, 2, 0, 0, 30, &element), STATUS_OK);
    EXPECT_EQ(Read(rectangle, element), (Values{0, 5, 0, 0, 0, 30}));
}

TEST_F(FlatShapes, PolygonEditsAnswerAndCount)
{
    const double some[] = {0, 1, 2, 3};
    int32_t id = -1;
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 2, some, some, some, 1, &id), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 1, some, some, some, 0, &id), STATUS_TOO_SMALL);
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, 1, some, nullptr, some, 0, &id), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(id, -1);
    ASSERT_EQ(Tarvex_Element_Add_Polygon(Id, 4, some, some, some, 7, &id), STATUS_OK);

    const auto set = [&](int32_t count, const double* x, uint8_t closed)
    {
        return [=, this]
        { return Tarvex_Element_Polygon_SetValue(Id, id, count, x, some, some, closed); };
    };
    const auto change = [&](int32_t index, double x)
    { return [=, this] { return Tarvex_Element_Polygon_ChangePoint(Id, id, index, x, 0, 0); }; };
    const auto insert = [&](int32_t index, double x)
    { return [=, this] { return Tarvex_Element_Polygon_InsertPoint(Id, id, index, x, 0, 0); }; };
    const auto remove = [&](int32_t index)
    { return [=, this] { return Tarvex_Element_Polygon_RemovePoint(Id, id, index); }; };
    struct Step
    {
        std::function<int32_t()> Do;
        int32_t Status;
        Values X; // afterwards
        bool Valid = true;
        uint8_t Closed = 1;
    };
    const Step steps[] = {
        {set(4, nullptr, 0), STATUS_NULL_ARGUMENT, {0, 1, 2, 3}},
        {set(2, some, 1), STATUS_TOO_SMALL, {0, 1, 2, 3}},
        {set(-1, some, 0), STATUS_TOO_SMALL, {0, 1, 2, 3}},
        {change(4, 9), STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {change(-1, 9), STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert(5, 9), STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert(-1, 9), STATUS_BAD_INDEX, {0, 1, 2, 3}},
        {insert(4, 4), STATUS_OK, {0, 1, 2, 3, 4}},
        {change(1, marker), STATUS_OK, {0, marker, 2, 3, 4}, false},
        {insert(0, 8), STATUS_OK, {8, 0, marker, 2, 3, 4}, false},
        {change(0, 7), STATUS_OK, {7, 0, marker, 2, 3, 4}, false},
        {remove(0), STATUS_OK, {0, marker, 2, 3, 4}, false},
        {remove(5), STATUS_BAD_INDEX, {0, marker, 2, 3, 4}, false},
        {remove(1), STATUS_OK, {0, 2, 3, 4}},
        {insert(1, marker), STATUS_OK, {0, marker, 2, 3, 4}, false},
        {change(1, infinity), STATUS_OK, {0, infinity, 2, 3, 4}},
        {remove(1), STATUS_OK, {0, 2, 3, 4}},
        {remove(3), STATUS_OK, {0, 2, 3}},
        {remove(0), STATUS_TOO_SMALL, {0, 2, 3}},
        {set(3, some + 1, 0), STATUS_OK, {1, 2, 3}, true, 0},
        {remove(0), STATUS_OK, {2, 3}, true, 0},
        {remove(0), STATUS_TOO_SMALL, {2, 3}, true, 0},
        {remove(-1), STATUS_BAD_INDEX, {2, 3}, true, 0},
    };
    for (const Step& step : steps)
    {
        SCOPED_TRACE(testing::Message() << "step " << &step - steps);
        EXPECT_EQ(step.Do(), step.Status);
        int32_t count = -1;
        EXPECT_EQ(Tarvex_Element_Polygon_GetPointCount(Id, id, &count), STATUS_OK);
        ASSERT_EQ(static_cast<size_t>(count), step.X.size());
        Values x(step.X.size());
        Values y(step.X.size());
        uint8_t closed = 9;
        EXPECT_EQ(Tarvex_Element_Polygon_GetValue(Id, id, &x[0], &y[0], nullptr, &closed),
                  STATUS_NULL_ARGUMENT);
        EXPECT_EQ(closed, 9);
        EXPECT_EQ(Tarvex_Element_Polygon_GetValue(Id, id, &x[0], &y[0], &y[0], &closed), STATUS_OK);
        EXPECT_EQ(x, step.X);
        EXPECT_EQ(closed, step.Closed);
        EXPECT_EQ(IsValid(id), step.Valid);
    }
}
} // namespace
