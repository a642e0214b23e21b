// What polygons show after each edit.
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
        {"RemovePoint", {2}, {a, b}},
        {"SetValue", all(3, 1), {a, b, c, a}},
        {"SetValue", all(4, 1), {a, b, c, d, a}},
        {"InsertPoint", {4, 7, 7, 7}, {a, b, c, d, e, a}},
        {"InsertPoint", {0, 0, 3, 5}, {d, a, b, c, d, e, d}},
        {"ChangePoint", {4, 4, 1, 0}, {d, a, b, c, b, e, d}},
        // Good points that come while it is invalid are all there when it is valid again.
        {"InsertPoint", {1, NaN, 0, 0}, {}},
        {"InsertPoint", {7, 4, 2, 5}, {}},
        {"ChangePoint", {0, 7, 7, 7}, {}},
        {"RemovePoint", {1}, {e, a, b, c, b, e, c, e}},
        {"ChangePoint", {1, NaN}, {}},
        {"ChangePoint", {1, 0, 3, 5}, {e, d, b, c, b, e, c, e}}};
    // Also if it was invalid from the start.
    AddNew("Element_Add_Polygon", {3, 0, NaN, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, 0});
    EXPECT_TRUE(IsHidden());
    Set("Element_Polygon_ChangePoint", {1, 4, 1, 0});
    ExpectOutline({a, b, c});
    for (const auto& [edit, given, outline] : steps)
    {
        SCOPED_TRACE(edit + testing::PrintToString(given));
        Set("Element_Polygon_" + edit, given);
        EXPECT_EQ(IsHidden(), outline.empty());
        if (!outline.empty())
        {
            ExpectOutline(outline);
        }
    }
}
