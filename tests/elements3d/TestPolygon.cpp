// What a polygon shows after each edit, and what it keeps when memory runs out.
#include "elements3d/ShapeView.h"

#include <sys/resource.h>

namespace
{
const double xs[] = {0, 4, 4, 0};
const double ys[] = {0, 1, 2, 3};
const double zs[] = {0, 0, 5, 5};
} // namespace

TEST_F(ShapeView, PolygonShowsEachEditAlsoAfterItWasInvalid)
{
    const HostPoint a = {0, 0, 0};
    const HostPoint b = {4, 1, 0};
    const HostPoint c = {4, 2, 5};
    const HostPoint d = {0, 3, 5};
    const HostPoint e = {7, 7, 7};
    ASSERT_EQ(Tarvex_Element_Add_Polygon(Id, 3, xs, ys, zs, 0, &Element), STATUS_OK);
    ExpectOutline({a, b, c});
    ASSERT_EQ(Tarvex_Element_Polygon_SetValue(Id, Element, 4, xs, ys, zs, 1), STATUS_OK);
    ExpectOutline({a, b, c, d, a});
    ASSERT_EQ(Tarvex_Element_Polygon_InsertPoint(Id, Element, 4, 7, 7, 7), STATUS_OK);
    ExpectOutline({a, b, c, d, e, a});
    ASSERT_EQ(Tarvex_Element_Polygon_RemovePoint(Id, Element, 0), STATUS_OK);
    ExpectOutline({b, c, d, e, b});
    ASSERT_EQ(Tarvex_Element_Polygon_InsertPoint(Id, Element, 0, 0, 0, 0), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Polygon_ChangePoint(Id, Element, 4, 0, 3, 5), STATUS_OK);
    ExpectOutline({a, b, c, d, d, a});

    // Good points that came while it was invalid are all there when it is valid again.
    ASSERT_EQ(Tarvex_Element_Polygon_InsertPoint(Id, Element, 1, NaN, 0, 0), STATUS_OK);
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Element_Polygon_InsertPoint(Id, Element, 6, 7, 7, 7), STATUS_OK);
    ASSERT_EQ(Tarvex_Element_Polygon_ChangePoint(Id, Element, 0, 7, 7, 7), STATUS_OK);
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Element_Polygon_RemovePoint(Id, Element, 1), STATUS_OK);
    ExpectOutline({e, b, c, d, d, e, e});

    const double bad[] = {0, 0, NaN, 0};
    ASSERT_EQ(Tarvex_Element_Add_Polygon(Id, 4, xs, ys, bad, 1, &Element), STATUS_OK);
    EXPECT_TRUE(IsHidden());
    ASSERT_EQ(Tarvex_Element_Polygon_ChangePoint(Id, Element, 2, 7, 7, 7), STATUS_OK);
    ExpectOutline({a, b, e, {0, 3, 0}, a});
}

TEST_F(ShapeView, PolygonKeepsItsPointsWhenMemoryRunsOut)
{
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the sanitizer ends the program instead";
#endif
    ASSERT_EQ(Tarvex_Element_Add_Polygon(Id, 4, xs, ys, zs, 1, &Element), STATUS_OK);
    const std::vector<HostPoint> before = Outline();
    constexpr int32_t most = std::numeric_limits<int32_t>::max(); // 48 GiB of coordinates
    rlimit usual = {};
    getrlimit(RLIMIT_AS, &usual);
    rlimit tight = usual;
    tight.rlim_cur = rlim_t{24} << 30U;
    setrlimit(RLIMIT_AS, &tight);
    int32_t other = -1;
    EXPECT_EQ(Tarvex_Element_Polygon_SetValue(Id, Element, most, xs, ys, zs, 1),
              STATUS_OUT_OF_MEMORY);
    EXPECT_EQ(Tarvex_Element_Add_Polygon(Id, most, xs, ys, zs, 1, &other), STATUS_OUT_OF_MEMORY);
    setrlimit(RLIMIT_AS, &usual);
    EXPECT_EQ(other, -1);
    int32_t count = 0;
    EXPECT_EQ(Tarvex_Element_GetCount(Id, &count), STATUS_OK);
    EXPECT_EQ(count, 1);
    ExpectOutline(before);
}
