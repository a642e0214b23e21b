// What a polygon shows after each edit, and what it keeps when memory runs out.
#include "elements3d/ShapeView.h"

#include <sys/resource.h>

TEST_F(ShapeView, PolygonShowsEachEditAlsoAfterItWasInvalid)
{
    const HostPoint a = {0, 0, 0};
    const HostPoint b = {4, 1, 0};
    const HostPoint c = {4, 2, 5};
    const HostPoint d = {0, 3, 5};
    const HostPoint e = {7, 7, 7};
    AddNew(Tarvex_Element_Add_Polygon, {3, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, 0});
    ExpectOutline({a, b, c});
    Set(Tarvex_Element_Polygon_SetValue, {4, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, 5, 5, 1});
    ExpectOutline({a, b, c, d, a});
    Set(Tarvex_Element_Polygon_InsertPoint, {4, 7, 7, 7});
    ExpectOutline({a, b, c, d, e, a});
    Set(Tarvex_Element_Polygon_RemovePoint, {0});
    ExpectOutline({b, c, d, e, b});
    Set(Tarvex_Element_Polygon_InsertPoint, {0, 0, 0, 0});
    Set(Tarvex_Element_Polygon_ChangePoint, {4, 0, 3, 5});
    ExpectOutline({a, b, c, d, d, a});
    // Good points that came while it was invalid are all there when it is valid again.
    Set(Tarvex_Element_Polygon_InsertPoint, {1, NaN, 0, 0});
    Set(Tarvex_Element_Polygon_InsertPoint, {6, 7, 7, 7});
    Set(Tarvex_Element_Polygon_ChangePoint, {0, 7, 7, 7});
    EXPECT_TRUE(IsHidden());
    Set(Tarvex_Element_Polygon_RemovePoint, {1});
    ExpectOutline({e, b, c, d, d, e, e});
    // Also if it was invalid from the start.
    AddNew(Tarvex_Element_Add_Polygon, {4, 0, 4, 4, 0, 0, 1, 2, 3, 0, 0, NaN, 5, 1});
    EXPECT_TRUE(IsHidden());
    Set(Tarvex_Element_Polygon_ChangePoint, {2, 7, 7, 7});
    ExpectOutline({a, b, e, d, a});
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
