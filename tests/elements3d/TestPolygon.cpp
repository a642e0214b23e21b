// What a polygon shows after each edit, and what it keeps when memory runs out.
#include "elements3d/ShapeView.h"

#include <sys/resource.h>

TEST_F(ShapeView, PolygonAnswersAndShowsEachEditAlsoAfterItWasInvalid)
{
    const HostPoint a = {0, 0, 0};
    const HostPoint b = {4, 1, 0};
    const HostPoint c = {4, 2, 5};
    const HostPoint d = {0, 3, 5};
    const HostPoint e = {7, 7, 7};
    const auto all = [](double count, double isClosed)
    { return Numbers{count, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, isClosed}; };
    const Export set = Tarvex_Element_Polygon_SetValue;
    const Export change = Tarvex_Element_Polygon_ChangePoint;
    const Export insert = Tarvex_Element_Polygon_InsertPoint;
    const Export remove = Tarvex_Element_Polygon_RemovePoint;
    // What is drawn afterwards; nothing while it is invalid.
    const std::tuple<const Export&, Numbers, int32_t, std::vector<HostPoint>> steps[] = {
        {set, all(3, 0), STATUS_OK, {a, b, c}},
        {set, all(1, 0), STATUS_TOO_SMALL, {a, b, c}},
        {remove, {2}, STATUS_OK, {a, b}},
        {remove, {0}, STATUS_TOO_SMALL, {a, b}},
        {set, all(3, 1), STATUS_OK, {a, b, c, a}},
        {remove, {0}, STATUS_TOO_SMALL, {a, b, c, a}},
        {set, all(2, 1), STATUS_TOO_SMALL, {a, b, c, a}},
        {set, all(4, 1), STATUS_OK, {a, b, c, d, a}},
        {change, {4}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {change, {-1}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {insert, {5}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {insert, {-1}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {remove, {4}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {remove, {-1}, STATUS_BAD_INDEX, {a, b, c, d, a}},
        {insert, {4, 7, 7, 7}, STATUS_OK, {a, b, c, d, e, a}},
        {remove, {0}, STATUS_OK, {b, c, d, e, b}},
        {insert, {0, 0, 0, 0}, STATUS_OK, {a, b, c, d, e, a}},
        {change, {4, 0, 3, 5}, STATUS_OK, {a, b, c, d, d, a}},
        // Good points that come while it is invalid are all there when it is valid again.
        {insert, {1, NaN, 0, 0}, STATUS_OK, {}},
        {insert, {6, 7, 7, 7}, STATUS_OK, {}},
        {change, {0, 7, 7, 7}, STATUS_OK, {}},
        {remove, {1}, STATUS_OK, {e, b, c, d, d, e, e}},
        {change, {1, NaN}, STATUS_OK, {}}};
    AddNew(Tarvex_Element_Add_Polygon, all(3, 0));
    for (const auto& step : steps)
    {
        SCOPED_TRACE(&step - steps);
        const auto& [edit, given, status, outline] = step;
        EXPECT_EQ(Call(edit, Element, given), status);
        EXPECT_EQ(IsHidden(), outline.empty());
        if (!IsHidden())
        {
            ExpectOutline(outline);
            const double isClosed = outline.size() > 3;
            EXPECT_EQ(Read(Tarvex_Element_Polygon_GetPointCount, Element),
                      Numbers{outline.size() - isClosed});
            EXPECT_EQ(Read(Tarvex_Element_Polygon_GetValue, Element),
                      (Numbers{outline[0][0], outline[0][1], outline[0][2], isClosed}));
        }
    }
    // Also if it was invalid from the start.
    AddNew(Tarvex_Element_Add_Polygon, {4, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, NaN, 5, 1});
    EXPECT_TRUE(IsHidden());
    Set(Tarvex_Element_Polygon_ChangePoint, {2, 7, 7, 7});
    ExpectOutline({a, b, e, d, a});
    const double some[] = {0, 1, 2, 3};
    EXPECT_EQ(Tarvex_Element_Polygon_SetValue(Id, Element, 1, some, nullptr, some, 0),
              STATUS_NULL_ARGUMENT);
}

TEST_F(ShapeView, PolygonKeepsItsPointsWhenMemoryRunsOut)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends the program instead";
#endif
    AddNew(Tarvex_Element_Add_Polygon, {4, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, 1});
    const std::vector<HostPoint> before = Outline();
    constexpr double most = std::numeric_limits<int32_t>::max(); // 48 GiB of coordinates
    rlimit usual = {};
    getrlimit(RLIMIT_AS, &usual);
    rlimit tight = usual;
    tight.rlim_cur = rlim_t{24} << 30U;
    setrlimit(RLIMIT_AS, &tight);
    EXPECT_EQ(Call(Tarvex_Element_Polygon_SetValue, Element, {most}), STATUS_OUT_OF_MEMORY);
    EXPECT_EQ(Call(Tarvex_Element_Add_Polygon, {most}), STATUS_OUT_OF_MEMORY);
    setrlimit(RLIMIT_AS, &usual);
    EXPECT_EQ(Read(Tarvex_Element_GetCount), Numbers{1});
    ExpectOutline(before);
}
