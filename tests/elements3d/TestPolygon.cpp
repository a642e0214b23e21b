// What polygons and polyhedra show after each edit.
#include "elements3d/ShapeView.h"

TEST_F(ShapeView, PolygonShowsEachEditAlsoAfterItWasInvalid)
{
    const HostPoint a = {0, 0, 0};
    const HostPoint b = {4, 1, 0};
    const HostPoint c = {4, 2, 5};
    const HostPoint d = {0, 3, 5};
    const HostPoint e = {7, 7, 7};
    const auto all = [](double count, double isClosed)
    { return Numbers{count, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, isClosed}; };
    // What is drawn afterwards; nothing while it is invalid.
    const std::tuple<std::string, Numbers, std::vector<HostPoint>> steps[] = {
        {"SetValue", all(3, 0), {a, b, c}},
        {"RemovePoint", {2}, {a, b}},
        {"SetValue", all(3, 1), {a, b, c, a}},
        {"SetValue", all(4, 1), {a, b, c, d, a}},
        {"InsertPoint", {4, 7, 7, 7}, {a, b, c, d, e, a}},
        {"RemovePoint", {0}, {b, c, d, e, b}},
        {"InsertPoint", {0, 0, 0, 0}, {a, b, c, d, e, a}},
        {"ChangePoint", {4, 0, 3, 5}, {a, b, c, d, d, a}},
        // Good points that come while it is invalid are all there when it is valid again.
        {"InsertPoint", {1, NaN, 0, 0}, {}},
        {"InsertPoint", {6, 7, 7, 7}, {}},
        {"ChangePoint", {0, 7, 7, 7}, {}},
        {"RemovePoint", {1}, {e, b, c, d, d, e, e}},
        {"ChangePoint", {1, NaN}, {}}};
    AddNew("Element_Add_Polygon", all(3, 0));
    for (const auto& step : steps)
    {
        SCOPED_TRACE(&step - steps);
        const auto& [edit, given, outline] = step;
        Set("Element_Polygon_" + edit, given);
        EXPECT_EQ(IsHidden(), outline.empty());
        if (!outline.empty())
        {
            ExpectOutline(outline);
        }
    }
    // Also if it was invalid from the start.
    AddNew("Element_Add_Polygon", {4, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, NaN, 5, 1});
    EXPECT_TRUE(IsHidden());
    Set("Element_Polygon_ChangePoint", {2, 7, 7, 7});
    ExpectOutline({a, b, e, d, a});
}

TEST_F(ShapeView, PolyhedronRefusedForItsHeightCountsAsValidAndStaysUnseen)
{
    Numbers values = {3, 0, 8, 0, 0, 0, 0, 8, 0, 0, 8, 0, 0, 0, 0, 1, 1};
    AddNew("Element_Add_Polyhedron", values);
    Set("Element_Polyhedron_ChangePoint", {0, NaN, 0, 0});
    values.back() = 0;
    EXPECT_EQ(Do("Element_Polyhedron_SetValue", Element, values), STATUS_TOO_SMALL);
    EXPECT_EQ(Read("Element_HasValidValues", Element), Numbers{1});
    EXPECT_EQ(Tarvex_Window_SetActiveElement(Id, Element), STATUS_OK);
    EXPECT_EQ(CountLit(), 0);
}
