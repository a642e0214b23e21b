// Geometric shapes: what they store, and when they are valid.
#include "fuzz/Model.h"

#include <algorithm>
#include <cmath>

namespace
{
// Stores what was given; false: the element becomes invalid.
using Store = std::function<bool(ModelElement& element, const Numbers& given, bool adding)>;

double SquareSum(const Numbers& values, size_t from, size_t count = 3)
{
    double sum = 0;
    for (size_t at = from; at < from + count; ++at)
    {
        sum += values[at] * values[at];
    }
    return sum;
}

// What the library works out from the numbers given: unknown where rounding or overflow decides.
Numbers IfNear(const Numbers& values, bool known = true)
{
    return known && SquareSum(values, 0, values.size()) < 1e12 ? values
                                                               : Numbers(values.size(), anyNumber);
}

// The numbers from `from` on as a unit vector; unknown where rounding or overflow decides.
void MakeUnit(Numbers& values, size_t from, size_t count = 3)
{
    const double length = std::sqrt(SquareSum(values, from, count));
    for (size_t at = from; at < from + count; ++at)
    {
        values[at] = length > 0 && length < 1e100 ? values[at] / length : anyNumber;
    }
}

bool StoreLine(ModelElement& element, const Numbers& given, bool adding)
{
    if (adding)
    {
        return AreUsable(given) && !(SquareSum(given, 3) < 1e-12);
    }
    const Numbers along = {given[3] - given[0], given[4] - given[1], given[5] - given[2]};
    const double square = SquareSum(along, 0);
    const bool valid = AreUsable(given) && !(square < 1e-18);
    if (valid)
    {
        element.Values = {0, square < 1e200 ? std::sqrt(square) : anyNumber};
    }
    return valid;
}

// A shape that hands out what it was given.
struct Form
{
    size_t Count;                // of its numbers
    std::vector<size_t> Lengths; // each at least 1e-9
    std::vector<size_t> Sides;   // not all below 1e-6 in magnitude; in a chart none
    size_t Normal = 0;           // where a vector begins that gets unit length
    size_t Angle = 0;            // brought into its range when a valid element is added
    bool HalfTurns = false;
};

Store Keep(const Form& form)
{
    return [form](ModelElement& element, const Numbers& given, bool adding)
    {
        Numbers& values = element.Values;
        values = {given.begin(), given.begin() + static_cast<ptrdiff_t>(form.Count)};
        const bool isRectangle2D = form.Count == 5 && form.HalfTurns;
        const bool isEllipse2D = form.Count == 5 && !form.HalfTurns; // where changes fold as well
        const auto flat = std::ranges::count_if(form.Sides, [&](size_t at)
                                                { return std::abs(values[at]) < 1e-6; });
        const bool isFlat =
            flat > 0 && (isRectangle2D || flat == static_cast<ptrdiff_t>(form.Sides.size()));
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

const Form rectangle = {6, {}, {3, 4}, 0, 5, true};

bool StorePoint(ModelElement& element, const Numbers& given, bool adding)
{
    element.Size = !adding && given[3] >= 0.001 ? given[3] : element.Size;
    return Keep({3, {}, {}})(element, given, adding) && AreUsable(given);
}

// Distance and normal, in Values.
bool StorePlane(ModelElement& element, const Numbers& given, bool)
{
    const bool byPoint = given.size() == 6;
    const bool valid = AreUsable(given) && !(SquareSum(given, byPoint ? 3 : 1) < 1e-12);
    element.Values = {given[0], given.end()[-3], given.end()[-2], given.end()[-1]};
    if (valid)
    {
        MakeUnit(element.Values, 1);
    }
    if (byPoint)
    {
        const bool near = valid && SquareSum(given, 0, 6) < 1e12;
        element.Values[0] = near ? -(given[0] * element.Values[1] + given[1] * element.Values[2] +
                                     given[2] * element.Values[3])
                                 : anyNumber;
    }
    return valid;
}

bool StoreRectangle(ModelElement& element, const Numbers& given, bool adding)
{
    const Numbers values(given.begin() + (adding ? 1 : 0), given.end());
    const bool valid = Keep(rectangle)(element, values, adding);
    if (adding && given[0] == 0)
    {
        element.Values[0] = valid ? values[0] + values[3] / 2 : 0;
        element.Values[2] = valid ? values[2] + values[4] / 2 : 0;
    }
    return valid;
}

// Kept as two ends and radius.
bool StoreCylinder(ModelElement& element, const Numbers& given, bool)
{
    const Numbers along = {given[3] - given[0], given[4] - given[1], given[5] - given[2]};
    const bool valid = AreUsable(given) && !(given[6] < 1e-9) && !(SquareSum(along, 0) < 1e-12);
    element.Values = IfNear(given, valid);
    return valid;
}

// With the former points of a line without ends, 10 units to either side.
bool StoreRay2D(ModelElement& element, const Numbers& given, bool)
{
    const bool valid = AreUsable(given) && !(SquareSum(given, 2, 2) < 1e-12);
    Numbers along = {given[2], given[3]};
    MakeUnit(along, 0, 2);
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

// How the functions that add and change a shape are called. Chart circles and rectangles are
// refused, all others hidden.
void TellShape(Rules& rules, const std::string& prefix, const char* type, const Store& store,
               const char* change = "_SetValue", bool refuses = false)
{
    const std::string add = prefix + "Add_" + type;
    if (!rules.contains(add))
    {
        rules[add] = [=](Situation& now) -> int32_t
        {
            ModelElement element;
            element.Valid = store(element, now.Given, true);
            if (refuses && !element.Valid)
            {
                if (now.Made.Called->ElementType == TARVEX_ELEMENT_CIRCLE)
                {
                    return STATUS_INVALID_VALUES;
                }
                const bool flat = std::abs(now.Given[2]) < 1e-6 && std::abs(now.Given[3]) < 1e-6;
                return AreUsable(now.Given) && !flat ? STATUS_TOO_SMALL : STATUS_NOT_FINITE;
            }
            return AddElement(now, std::move(element));
        };
    }
    rules[prefix + type + change] = [=](Situation& now) -> int32_t
    {
        ModelElement& element = *now.Element;
        const bool isCube = element.Type == TARVEX_ELEMENT_CUBE;
        element.Valid = store(element, now.Given, false);
        element.Lighting = isCube || element.Type == TARVEX_ELEMENT_CYLINDER ? element.FirstLighting
                                                                             : element.Lighting;
        const bool shows = isCube && now.View->Active == element.Id;
        return shows && !now.Element->Valid ? STATUS_INVALID_VALUES : STATUS_OK;
    };
    rules[prefix + type + "_GetValue"] =
        Gives([](const Situation& now) { return now.Element->Values; });
}

int32_t SetCylinderByAxis(Situation& now)
{
    const Numbers& given = now.Given; // centre, axis, radius, height
    const bool valid = AreUsable(given) && !(given[6] < 1e-9) && !(given[7] < -8);
    const bool refused = valid && SquareSum(given, 3) < 1e-12;
    now.Element->Valid = valid;
    if (!refused)
    {
        now.Element->Lighting = now.Element->FirstLighting;
        now.Element->Values.assign(7, anyNumber);
    }
    return refused ? STATUS_TOO_SMALL : STATUS_OK;
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

void TellLines(Rules& rules)
{
    const auto isInvalid = [](const Situation& now) { return !now.Element->Valid; };
    rules["Tarvex_Element_Line_GetValue"] = Does([](Situation&) {});
    rules["Tarvex_Element_GetLength_Line"] =
        Unless(STATUS_INVALID_VALUES, isInvalid,
               [](Situation& now) { now.Expected = now.Element->Values; });
    rules["Tarvex_Element_SetLength_Line"] = [](Situation& now)
    {
        // Which of the two is the smaller one when one is a NaN, nobody says.
        const double extent = std::abs(now.Given[1] - now.Given[0]);
        const Numbers ends = std::isnan(extent) ? Numbers(2, anyNumber)
                                                : Numbers{std::min(now.Given[0], now.Given[1]),
                                                          std::max(now.Given[0], now.Given[1])};
        const bool good = now.Element->Valid && !(extent < 1e-9);
        now.Element->Values = good ? ends : now.Element->Values;
        return good ? STATUS_OK : now.Element->Valid ? STATUS_TOO_SMALL : STATUS_INVALID_VALUES;
    };
    rules["Tarvex_Element_SetDrawLimit_Line"] = Unless(
        STATUS_OUT_OF_RANGE, [](const Situation& now) { return IsFlat(now.Given, 0, 0.1); },
        [](Situation& now) { now.Element->Values.assign(2, anyNumber); });
    rules["Tarvex_Element_SetDrawSize_Plane"] =
        Unless(STATUS_TOO_SMALL, [](const Situation& now) { return IsFlat(now.Given, 0, 0.001); });
}

// Polygons of both kinds of view, and polyhedra.
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
    if (LacksArray(now.Made) || count < static_cast<double>(LeastPoints(changed)) ||
        (IsPolyhedron(changed) && count > 250))
    {
        return LacksArray(now.Made) ? STATUS_NULL_ARGUMENT
               : count > 250        ? STATUS_OUT_OF_RANGE
                                    : STATUS_TOO_SMALL;
    }
    if (IsTooMuch(count, sizeof(double)))
    {
        return STATUS_OUT_OF_MEMORY;
    }
    if (IsPolyhedron(changed))
    {
        const Numbers body(now.Given.begin() + 1, now.Given.end());
        const int32_t status = StoreBody(changed, body, adding);
        if (status != STATUS_OK)
        {
            element.Valid = true;
            return status;
        }
        changed.Lighting = changed.FirstLighting;
    }
    element = changed;
    return STATUS_OK;
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

int32_t GetPoints(Situation& now)
{
    if (now.Made.NullArray != SIZE_MAX)
    {
        return STATUS_NULL_ARGUMENT;
    }
    now.Arrays = now.Element->Points;
    now.Expected = IsPolyhedron(*now.Element) ? now.Element->Values
                                              : Numbers{now.Element->Mode != 0 ? 1.0 : 0.0};
    return STATUS_OK;
}

void TellPolygons(Rules& rules)
{
    for (const std::string name : {"Element_Polygon", "Element_Polyhedron", "Element2D_Polygon"})
    {
        const std::string type = "Tarvex_" + name + "_";
        const std::string add = "Tarvex_" + std::string(name).insert(name.find('_'), "_Add");
        rules[add] = [](Situation& now)
        {
            ModelElement element;
            const int32_t status = StorePoints(now, element, true);
            return status == STATUS_OK ? AddElement(now, std::move(element)) : status;
        };
        rules[type + "SetValue"] = [](Situation& now)
        { return StorePoints(now, *now.Element, false); };
        rules[type + "GetValue"] = GetPoints;
        rules[type + "GetPointCount"] =
            Gives([](const Situation& now) { return Numbers{double(now.Element->CountPoints())}; });
        for (const char* edit : {"ChangePoint", "InsertPoint", "RemovePoint"})
        {
            rules[type + edit] = EditPoint;
        }
    }
    // One of them alone; what is not given stays, and an invalid polyhedron takes all.
    const auto change = [](size_t from)
    {
        return [from](Situation& now)
        {
            ModelElement& element = *now.Element;
            const bool usable = element.Valid && AreUsable(now.Given);
            const bool axis = from == 0;
            if (usable && (axis ? SquareSum(now.Given, 0) < 1e-12 : now.Given[0] < 1e-9))
            {
                return STATUS_TOO_SMALL;
            }
            Numbers given = now.Given;
            if (usable && axis)
            {
                MakeUnit(given, 0);
            }
            std::ranges::copy(given, element.Values.begin() + static_cast<ptrdiff_t>(from));
            element.Valid = usable;
            element.Lighting = element.FirstLighting;
            return STATUS_OK;
        };
    };
    rules["Tarvex_Element_Polyhedron_SetHeight"] = change(3);
    rules["Tarvex_Element_Polyhedron_SetAxisDirection"] = change(0);
}
} // namespace

void TellShapeRules(Rules& rules)
{
    const std::string scene = "Tarvex_Element_";
    TellShape(rules, scene, "Point", StorePoint);
    TellShape(rules, scene, "Line", StoreLine);
    TellShape(rules, scene, "Circle", Keep({7, {3}, {}, 4}));
    TellShape(rules, scene, "Ellipse", Keep({6, {3, 4}, {}, 0, 5}));
    TellShape(rules, scene, "Rectangle", StoreRectangle);
    TellShape(rules, scene, "Cube", Keep({7, {}, {3, 4, 5}, 0, 6, true}));
    TellShape(rules, scene, "Cylinder", StoreCylinder);
    TellShape(rules, scene, "Plane", StorePlane);
    TellShape(rules, scene, "Plane", StorePlane, "_SetValue2");
    rules[scene + "Point_GetValue"] = Gives(
        [](const Situation& now)
        {
            const Numbers& place = now.Element->Values;
            return Numbers{place[0], place[1], place[2], now.Element->Size};
        });
    rules[scene + "Plane_GetValue2"] = rules[scene + "Plane_GetValue"];
    rules[scene + "Plane_GetValue"] = Gives(
        [](const Situation& now)
        {
            const Numbers& plane = now.Element->Values;
            return Numbers{anyNumber, anyNumber, anyNumber, plane[1], plane[2], plane[3]};
        });
    rules[scene + "Cylinder_SetValue2"] = SetCylinderByAxis;
    const std::string chart = "Tarvex_Element2D_";
    TellShape(rules, chart, "Point", Keep({2, {}, {}}));
    TellShape(rules, chart, "Circle", Keep({3, {2}, {}}), "_SetValue", true);
    TellShape(rules, chart, "Ellipse", Keep({5, {2, 3}, {}, 0, 4}));
    TellShape(rules, chart, "Rectangle", Keep({5, {}, {2, 3}, 0, 4, true}), "_SetValue", true);
    TellShape(rules, chart, "Line", StoreRay2D);
    TellShape(rules, chart, "Line_2Points", StoreLine2D);
    rules[chart + "Line_SetValue"] = SetLine2D;
    TellLines(rules);
    TellPolygons(rules);
}
