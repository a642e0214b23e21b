// Geometric shapes: what they store, and when they are valid.
#include "fuzz/Model.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace
{
// Stores what was given; false: the element becomes invalid.
using Store = std::function<bool(ModelElement& element, const Numbers& given, bool adding)>;

double SquareSum(const Numbers& values, ptrdiff_t from, ptrdiff_t count = 3)
{
    const auto first = values.begin() + from;
    return std::inner_product(first, first + count, first, 0.0);
}

// What the library works out from the numbers given: unknown where rounding or overflow decides.
Numbers IfNear(const Numbers& values, bool known = true)
{
    return known && SquareSum(values, 0, std::ssize(values)) < 1e12
               ? values
               : Numbers(values.size(), anyNumber);
}

// The numbers from `from` on as a unit vector; unknown where rounding or overflow decides.
void MakeUnit(Numbers& values, ptrdiff_t from, ptrdiff_t count = 3)
{
    const double length = std::sqrt(SquareSum(values, from, count));
    std::transform(values.begin() + from, values.begin() + from + count, values.begin() + from,
                   [&](double value)
                   { return length > 0 && length < 1e100 ? value / length : anyNumber; });
}

// Added by a direction, changed by a second point.
bool StoreLine(ModelElement& element, const Numbers& given, bool adding)
{
    Numbers along(given.begin() + 3, given.end());
    for (size_t axis = 0; !adding && axis < 3; ++axis)
    {
        along[axis] -= given[axis];
    }
    const double square = SquareSum(along, 0);
    const bool valid = AreUsable(given) && !(square < (adding ? 1e-12 : 1e-18));
    if (valid)
    {
        element.Values = {0, square < 1e200 ? std::sqrt(square) : anyNumber};
    }
    return valid;
}

// A shape that hands out what it was given.
struct Form
{
    ptrdiff_t Count;             // of its numbers
    std::vector<size_t> Lengths; // each at least 1e-9
    std::vector<size_t> Sides;   // not all below 1e-6 in magnitude; in a chart none
    ptrdiff_t Normal = 0;        // where a vector begins that gets unit length
    size_t Angle = 0;            // brought into its range when a valid element is added
    bool HalfTurns = false;
};

Store Keep(const Form& form)
{
    return [form](ModelElement& element, const Numbers& given, bool adding)
    {
        Numbers& values = element.Values;
        values = {given.begin(), given.begin() + form.Count};
        const bool isRectangle2D = form.Count == 5 && form.HalfTurns;
        const bool isEllipse2D = form.Count == 5 && !form.HalfTurns; // where changes fold as well
        const auto flat = std::ranges::count_if(form.Sides, [&](size_t at)
                                                { return std::abs(values[at]) < 1e-6; });
        const bool isFlat = flat > 0 && (isRectangle2D || flat == std::ssize(form.Sides));
        const bool valid =
            AreUsable(values) && !isFlat &&
            !(form.Normal && SquareSum(values, form.Normal) < 1e-12) &&
            std::ranges::none_of(form.Lengths, [&](size_t at) { return values[at] < 1e-9; });
        if (valid && form.Normal)
        {
            MakeUnit(values, form.Normal);
        }
        if (valid && form.Angle && (adding || isEllipse2D))
        {
            values[form.Angle] = FoldAngle(values[form.Angle], form.HalfTurns);
        }
        return valid;
    };
}

bool StorePoint(ModelElement& element, const Numbers& given, bool adding)
{
    element.Size = !adding && given[3] >= 0.001 ? given[3] : element.Size;
    return Keep({3, {}, {}})(element, given, adding) && AreUsable(given);
}

// Kept as point, normal and distance. An invalid plane keeps what the call did not give.
bool StorePlane(ModelElement& element, const Numbers& given, bool)
{
    const bool byPoint = given.size() == 6;
    const bool valid = AreUsable(given) && !(SquareSum(given, byPoint ? 3 : 1) < 1e-12);
    const bool near = SquareSum(given, 0, std::ssize(given)) < 1e12;
    Numbers& plane = element.Values;
    plane.resize(7);
    std::copy(given.end() - 3, given.end(), plane.begin() + 3);
    if (valid)
    {
        MakeUnit(plane, 3);
    }
    for (size_t axis = 0; axis < 3; ++axis)
    {
        plane[axis] = byPoint  ? given[axis]
                      : !valid ? plane[axis]
                      : near   ? given[0] * plane[axis + 3]
                               : anyNumber;
    }
    const double along = std::inner_product(plane.begin(), plane.begin() + 3, &plane[3], 0.0);
    plane[6] = !byPoint ? given[0] : !valid ? plane[6] : near ? -along : anyNumber;
    return valid;
}

bool StoreRectangle(ModelElement& element, const Numbers& given, bool adding)
{
    const Numbers values(given.begin() + (adding ? 1 : 0), given.end());
    const bool valid = Keep({6, {}, {3, 4}, 0, 5, true})(element, values, adding);
    if (adding && given[0] == 0)
    {
        element.Values[0] = valid ? values[0] + values[3] / 2 : 0;
        element.Values[2] = valid ? values[2] + values[4] / 2 : 0;
    }
    return valid;
}

// Kept as two ends, radius, axis and height. An invalid cylinder keeps what the call did not give.
bool StoreCylinder(ModelElement& element, const Numbers& given, bool adding)
{
    Numbers along = {given[3] - given[0], given[4] - given[1], given[5] - given[2]};
    const double square = SquareSum(along, 0);
    const bool valid = AreUsable(given) && !(given[6] < 1e-9) && !(square < 1e-12);
    Numbers& values = element.Values;
    values = adding ? Numbers{0, 0, 0, 0, 0, 0, 0, 0, 0, 0, 10} : values;
    std::ranges::copy(given, values.begin());
    if (valid)
    {
        MakeUnit(along, 0);
        std::ranges::copy(along, values.begin() + 7);
        values[10] = square < 1e200 ? std::sqrt(square) : anyNumber;
    }
    return valid;
}

// With the former points of a line without ends, 10 units to either side.
bool StoreRay2D(ModelElement& element, const Numbers& given, bool)
{
    Numbers along = {given[2], given[3]};
    MakeUnit(along, 0, 2);
    const bool valid = AreUsable(given) && !(SquareSum(given, 2, 2) < 1e-12);
    element.Values = valid && SquareSum(given, 0, 4) < 1e12
                         ? Numbers{given[0] - 10 * along[0], given[1] - 10 * along[1],
                                   given[0] + 10 * along[0], given[1] + 10 * along[1]}
                         : Numbers(4, anyNumber);
    return valid;
}

bool StoreLine2D(ModelElement& element, const Numbers& given, bool)
{
    const Numbers points(given.begin(), given.begin() + 4);
    const Numbers along = {points[0], points[1], points[2] - points[0], points[3] - points[1]};
    StoreRay2D(element, along, true);
    // The difference of two infinities is no direction, and not looked at.
    const bool valid = AreUsable(points) && !(SquareSum(along, 2, 2) < 1e-12);
    element.Values = given[4] != 0 || !valid ? IfNear(points, valid) : element.Values;
    return valid;
}

// Chart circles and rectangles that are invalid are refused, all others hidden.
int32_t AddShape(Situation& now, const Store& store)
{
    ModelElement element;
    element.Valid = store(element, now.Given, true);
    const bool isCircle = now.Made.Called->ElementType == TARVEX_ELEMENT_CIRCLE;
    const bool refuses = isCircle || now.Made.Called->ElementType == TARVEX_ELEMENT_RECTANGLE;
    if (element.Valid || !now.View->OnChart || !refuses)
    {
        return AddElement(now, std::move(element));
    }
    const bool flat = !isCircle && std::abs(now.Given[2]) < 1e-6 && std::abs(now.Given[3]) < 1e-6;
    return isCircle                        ? STATUS_INVALID_VALUES
           : AreUsable(now.Given) && !flat ? STATUS_TOO_SMALL
                                           : STATUS_NOT_FINITE;
}

int32_t ChangeShape(Situation& now, const Store& store)
{
    ModelElement& element = *now.Element;
    const bool isCube = element.Type == TARVEX_ELEMENT_CUBE;
    element.Valid = store(element, now.Given, false);
    element.Lighting = isCube || element.Type == TARVEX_ELEMENT_CYLINDER ? element.FirstLighting
                                                                         : element.Lighting;
    const bool shows = isCube && now.View->Active == element.Id;
    return shows && !element.Valid ? STATUS_INVALID_VALUES : STATUS_OK;
}

int32_t SetCylinderByAxis(Situation& now)
{
    Numbers given = now.Given; // centre, axis, radius, height
    Numbers& values = now.Element->Values;
    const bool near = SquareSum(given, 0, 8) < 1e12;
    const bool valid = AreUsable(given) && !(given[6] < 1e-9) && !(given[7] < -8);
    now.Element->Valid = valid;
    if (valid && SquareSum(given, 3) < 1e-12)
    {
        return STATUS_TOO_SMALL;
    }
    if (valid)
    {
        MakeUnit(given, 3);
    }
    for (size_t axis = 0; axis < 3; ++axis)
    {
        const double half = given[7] / 2 * given[axis + 3];
        values[axis] = !valid ? values[axis] : near ? given[axis] - half : anyNumber;
        values[axis + 3] = !valid ? values[axis + 3] : near ? given[axis] + half : anyNumber;
        values[axis + 7] = given[axis + 3];
    }
    values[6] = given[6];
    values[10] = given[7];
    now.Element->Lighting = now.Element->FirstLighting;
    return STATUS_OK;
}

int32_t SetLine2D(Situation& now)
{
    const Numbers points(now.Given.begin(), now.Given.begin() + 4);
    const bool usable = AreUsable(points);
    const Numbers along = {points[2] - points[0], points[3] - points[1]};
    const bool refused = usable && SquareSum(along, 0, 2) < 1e-18 && now.Given[4] == 0;
    now.Element->Valid = usable;
    now.Element->Values = refused ? now.Element->Values : IfNear(points, usable);
    return refused ? STATUS_TOO_SMALL : STATUS_OK;
}

int32_t SetLength(Situation& now)
{
    // Which of the two is the smaller one when one is a NaN, nobody says.
    const double extent = std::abs(now.Given[1] - now.Given[0]);
    const auto [least, most] = std::minmax(now.Given[0], now.Given[1]);
    const bool good = now.Element->Valid && !(extent < 1e-9);
    now.Element->Values = !good                ? now.Element->Values
                          : std::isnan(extent) ? Numbers(2, anyNumber)
                                               : Numbers{least, most};
    return good ? STATUS_OK : now.Element->Valid ? STATUS_TOO_SMALL : STATUS_INVALID_VALUES;
}

bool IsPolyhedron(const ModelElement& element)
{
    return element.Type == TARVEX_ELEMENT_POLYHEDRON;
}

size_t LeastPoints(const ModelElement& element)
{
    return IsPolyhedron(element) || element.Mode != 0 ? 3 : 2;
}

bool ArePointsUsable(const ModelElement& element)
{
    return std::ranges::all_of(element.Points, [](const Numbers& axis) { return AreUsable(axis); });
}

// The numbers of a polyhedron: axis and height. STATUS_TOO_SMALL where they are refused.
int32_t StoreBody(ModelElement& element, const Numbers& given, bool adding)
{
    element.Values = given;
    element.Valid = element.Valid && AreUsable(given);
    const bool flat = given[3] < 1e-9; // refused in a change only
    if (element.Valid && (flat ? !adding : SquareSum(given, 0) < 1e-12))
    {
        return STATUS_TOO_SMALL;
    }
    element.Valid = element.Valid && !flat;
    if (element.Valid)
    {
        MakeUnit(element.Values, 0);
    }
    return STATUS_OK;
}

// From a call that adds or changes all points.
int32_t StorePoints(const Situation& now, ModelElement& element, bool adding)
{
    const double count = now.Given[0];
    ModelElement changed = element;
    changed.Type = now.Made.Called->ElementType;
    changed.Mode = now.Given.back(); // closed; of a polyhedron: the height
    changed.Points = now.Made.Inputs;
    changed.Valid = ArePointsUsable(changed);
    const bool isBody = IsPolyhedron(changed);
    const int32_t status = LacksArray(now.Made) ? STATUS_NULL_ARGUMENT
                           : count < static_cast<double>(LeastPoints(changed)) ? STATUS_TOO_SMALL
                           : isBody && count > 250                             ? STATUS_OUT_OF_RANGE
                           : IsTooMuch(count, sizeof(double)) ? STATUS_OUT_OF_MEMORY
                                                              : STATUS_OK;
    const Numbers body(now.Given.begin() + 1, now.Given.end());
    if (status == STATUS_OK && isBody && StoreBody(changed, body, adding) != STATUS_OK)
    {
        element.Valid = true;
        return STATUS_TOO_SMALL;
    }
    changed.Lighting = isBody ? changed.FirstLighting : changed.Lighting;
    element = status == STATUS_OK ? changed : element;
    return status;
}

int32_t EditPoint(Situation& now)
{
    const bool inserts = now.Made.Called->NameHas("_Insert");
    const bool removes = now.Made.Called->NameHas("_Remove");
    ModelElement& element = *now.Element;
    const size_t count = element.CountPoints();
    const double index = now.Given[0];
    const bool outside = IsOutside(index, 0, static_cast<double>(count) - (inserts ? 0 : 1));
    const bool tooFew = removes && count <= LeastPoints(element);
    if (outside || tooFew || (inserts && IsPolyhedron(element) && count >= 250))
    {
        return outside ? STATUS_BAD_INDEX : tooFew ? STATUS_TOO_SMALL : STATUS_OUT_OF_RANGE;
    }
    for (size_t axis = 0; axis < element.Points.size(); ++axis)
    {
        Numbers& points = element.Points[axis];
        const auto at = points.begin() + static_cast<ptrdiff_t>(index);
        const auto next = inserts ? at : points.erase(at);
        if (!removes)
        {
            points.insert(next, now.Given[1 + axis]);
        }
    }
    const bool decidesAnew = !now.View->OnChart && !IsPolyhedron(element) && !inserts;
    const bool good = removes || AreUsable(now.Given, 1);
    element.Valid = decidesAnew ? ArePointsUsable(element) : element.Valid && good;
    element.Lighting = IsPolyhedron(element) ? element.FirstLighting : element.Lighting;
    return STATUS_OK;
}

// Of profiles and images as well.
int32_t GetPoints(Situation& now)
{
    const ModelElement& element = *now.Element;
    now.Arrays = element.Points;
    now.Expected = element.Type == TARVEX_ELEMENT_POLYGON ? Numbers{element.Mode != 0 ? 1.0 : 0.0}
                                                          : element.Values;
    return element.Empty                    ? STATUS_NOT_READY
           : now.Made.NullArray != SIZE_MAX ? STATUS_NULL_ARGUMENT
                                            : STATUS_OK;
}

// Axis or height of a polyhedron alone; what is not given stays, and an invalid one takes all.
int32_t ChangeBody(Situation& now)
{
    ModelElement& element = *now.Element;
    const bool axis = now.Given.size() == 3;
    element.Valid = element.Valid && AreUsable(now.Given);
    if (element.Valid && (axis ? SquareSum(now.Given, 0) < 1e-12 : now.Given[0] < 1e-9))
    {
        return STATUS_TOO_SMALL;
    }
    if (element.Valid && axis)
    {
        MakeUnit(now.Given, 0);
    }
    std::ranges::copy(now.Given, element.Values.begin() + (axis ? 0 : 3));
    element.Lighting = element.FirstLighting;
    return STATUS_OK;
}

void TellPolygons(Rules& rules, const std::string& type)
{
    rules["Element_Add_" + type] = [](auto& now)
    {
        ModelElement element;
        const int32_t status = StorePoints(now, element, true);
        return status == STATUS_OK ? AddElement(now, std::move(element)) : status;
    };
    rules["Element_" + type + "_SetValue"] = [](auto& now)
    { return StorePoints(now, *now.Element, false); };
    rules["Element_" + type + "_GetPointCount"] =
        Gives([](auto& now) { return now.Element->CountPoints(); });
    for (const char* edit : {"_ChangePoint", "_InsertPoint", "_RemovePoint"})
    {
        rules["Element_" + type + edit] = EditPoint;
    }
}
} // namespace

void TellShapeRules(Rules& rules)
{
    const std::pair<std::string, Store> shapes[] = {
        {"Element_Point", StorePoint},
        {"Element_Line", StoreLine},
        {"Element_Circle", Keep({7, {3}, {}, 4})},
        {"Element_Ellipse", Keep({6, {3, 4}, {}, 0, 5})},
        {"Element_Rectangle", StoreRectangle},
        {"Element_Cube", Keep({7, {}, {3, 4, 5}, 0, 6, true})},
        {"Element_Cylinder", StoreCylinder},
        {"Element_Plane", StorePlane},
        {"Element2D_Point", Keep({2, {}, {}})},
        {"Element2D_Circle", Keep({3, {2}, {}})},
        {"Element2D_Ellipse", Keep({5, {2, 3}, {}, 0, 4})},
        {"Element2D_Rectangle", Keep({5, {}, {2, 3}, 0, 4, true})},
        {"Element2D_Line", StoreRay2D},
        {"Element2D_Line_2Points", StoreLine2D}};
    for (const auto& [name, store] : shapes)
    {
        const std::string add = std::string(name).insert(name.find('_'), "_Add");
        rules[add] = [store = store](auto& now) { return AddShape(now, store); };
        rules[name + "_SetValue"] = [store = store](auto& now) { return ChangeShape(now, store); };
        rules[name + "_GetValue"] = Gives([](auto& now) { return now.Element->Values; });
    }
    rules["Element_Point_GetValue"] = Gives(
        [](auto& now)
        {
            const Numbers& place = now.Element->Values;
            return Numbers{place[0], place[1], place[2], now.Element->Size};
        });
    rules["Element_Plane_SetValue2"] = rules["Element_Plane_SetValue"];
    rules["Element_Plane_GetValue2"] = Gives(
        [](auto& now)
        {
            const Numbers& plane = now.Element->Values;
            return Numbers{plane[6], plane[3], plane[4], plane[5]};
        });
    rules["Element_Cylinder_SetValue2"] = SetCylinderByAxis;
    rules["Element_Cylinder_GetValue2"] = Gives(
        [](auto& now)
        {
            const Numbers& v = now.Element->Values;
            Numbers all = IfNear({(v[0] + v[3]) / 2, (v[1] + v[4]) / 2, (v[2] + v[5]) / 2});
            all.insert(all.end(), {v[7], v[8], v[9], v[6], v[10]});
            return all;
        });
    rules["Element2D_Line_SetValue"] = SetLine2D;
    rules.erase("Element_Line_GetValue");
    const auto isInvalid = [](auto& now) { return !now.Element->Valid; };
    rules["Element_GetLength_Line"] = Unless(STATUS_INVALID_VALUES, isInvalid,
                                             [](auto& now) { now.Expected = now.Element->Values; });
    rules["Element_SetLength_Line"] = SetLength;
    rules["Element_SetDrawLimit_Line"] = Unless(
        STATUS_OUT_OF_RANGE, [](auto& now) { return IsFlat(now.Given, 0, 0.1); },
        [](auto& now) { now.Element->Values.assign(2, anyNumber); });
    rules["Element_SetDrawSize_Plane"] =
        Unless(STATUS_TOO_SMALL, [](auto& now) { return IsFlat(now.Given, 0, 0.001); });
    rules["Element_Polyhedron_SetHeight"] = rules["Element_Polyhedron_SetAxisDirection"] =
        ChangeBody;
    rules["Element_Polygon_GetValue"] = rules["Element_Polyhedron_GetValue"] =
        rules["Element_ProfileUniform_GetValue"] = rules["Element_Image_GetValue"] = GetPoints;
    TellPolygons(rules, "Polygon");
    TellPolygons(rules, "Polyhedron");
}
