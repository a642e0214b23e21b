// Range, look and size of a chart view.
#include "TarvexExt.h"
#include "view2d/InsideChart.h"

#include <vtkPen.h>

namespace
{
class ChartViews : public InsideChart
{
protected:
    int32_t Scale(bool keepAspect) const { return Tarvex_Window2D_ChartAutoScale(Id, keepAspect); }
};

TEST_F(ChartViews, FitTheirAxesToTheElements)
{
    EXPECT_EQ(Scale(true), STATUS_OK);
    EXPECT_EQ(Ranges(), (Numbers{-50, 50, -50, 50}));
    Add("Element2D_Add_Point", {3, 4});
    EXPECT_EQ(Scale(false), STATUS_OK);
    EXPECT_THAT(Ranges(), Near({2, 4, 3, 5}));
    // Those that cannot be drawn do not count; a hidden one does.
    Add("Element2D_Add_Point", {NaN, 4});
    Add("Element2D_Add_Point", {Infinity, 4});
    const int32_t hidden = Add("Element2D_Add_Point", {103, 14});
    EXPECT_EQ(Tarvex_Element2D_Show(Id, hidden, 0), STATUS_OK);
    EXPECT_EQ(Scale(false), STATUS_OK);
    EXPECT_THAT(Ranges(), Near({-2, 108, 3.5, 14.5}));

    const double width = Chart()->GetPoint2()[0] - Chart()->GetPoint1()[0];
    const double height = Chart()->GetPoint2()[1] - Chart()->GetPoint1()[1];
    EXPECT_EQ(Scale(true), STATUS_OK);
    const double half = 55 * height / width;
    EXPECT_THAT(Ranges(), Near({-2, 108, 9 - half, 9 + half}));
    // Values whose margins are lost leave their axis.
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    Add("Element2D_Add_Point", {1e300, 5});
    EXPECT_EQ(Scale(true), STATUS_OK);
    EXPECT_THAT(Ranges(), Near({-2, 108, 4, 6}));
    // Without room for a plot in X, for when there is some again.
    EXPECT_EQ(Tarvex_Window2D_UpdateSize(Id, 0, 0, 30, Pixels), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    Add("Element2D_Add_Point", {3, 4});
    EXPECT_EQ(Scale(true), STATUS_OK);
    EXPECT_THAT(Ranges(), Near({2, 4, 3, 5}));
}

TEST_F(ChartViews, HaveTwoLayouts)
{
    const auto grid = [this]
    { return static_cast<int>(Axis(vtkAxis::LEFT)->GetGridPen()->GetColor()[0]); };
    EXPECT_EQ(grid(), 50);
    EXPECT_EQ(Tarvex_Window2D_SetBackgroundColor(Id, 255, 0, 0), STATUS_OK);
    EXPECT_EQ(View().GetRenderer()->GetBackground()[0], 1.0);
    EXPECT_EQ(View().GetRenderer()->GetBackground()[1], 0.0);
    EXPECT_EQ(Tarvex_Window2D_SetChartLayout(Id, TARVEX_CHART_LIGHT), STATUS_OK);
    EXPECT_EQ(View().GetRenderer()->GetBackground()[1], 1.0);
    EXPECT_EQ(grid(), 210);
}

TEST_F(ChartViews, HoldTheirPictureBackUntilAnUpdateEnds)
{
    Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0);
    const Picture before = Look();
    EXPECT_EQ(TarvexExt_Window2D_BeginUpdate(Id), STATUS_OK);
    Add("Element2D_Add_Circle", {0, 0, 30});
    EXPECT_EQ(Look().CountDifferences(before), 0);
    EXPECT_EQ(TarvexExt_Window2D_EndUpdate(Id), STATUS_OK);
    EXPECT_GT(Look().CountDifferences(before), 50);
}
} // namespace
