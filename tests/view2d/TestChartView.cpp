// Range, look and size of a chart view.
#include "TarvexExt.h"
#include "view2d/InsideChart.h"

#include <vtkContextMouseEvent.h>

namespace
{
class ChartViews : public InsideChart
{
protected:
    Numbers Fit(bool keepAspect) const
    {
        EXPECT_EQ(Tarvex_Window2D_ChartAutoScale(Id, keepAspect), STATUS_OK);
        return Ranges();
    }
};

TEST_F(ChartViews, FitTheirAxesToTheElements)
{
    EXPECT_EQ(Fit(true), (Numbers{-50, 50, -50, 50}));
    Add("Element2D_Add_Point", {3, 4});
    EXPECT_THAT(Fit(false), Near({2, 4, 3, 5}));
    // Those that cannot be drawn do not count; a hidden one does.
    Add("Element2D_Add_Point", {NaN, 4});
    Add("Element2D_Add_Point", {Infinity, 4});
    const int32_t hidden = Add("Element2D_Add_Point", {103, 14});
    EXPECT_EQ(Tarvex_Element2D_Show(Id, hidden, 0), STATUS_OK);
    EXPECT_THAT(Fit(false), Near({-2, 108, 3.5, 14.5}));

    const double width = Chart()->GetPoint2()[0] - Chart()->GetPoint1()[0];
    const double height = Chart()->GetPoint2()[1] - Chart()->GetPoint1()[1];
    const double half = 55 * height / width;
    EXPECT_THAT(Fit(true), Near({-2, 108, 9 - half, 9 + half}));
    // Values whose margins are lost leave their axis.
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    Add("Element2D_Add_Point", {1e300, 5});
    EXPECT_THAT(Fit(true), Near({-2, 108, 4, 6}));
    // Without room for a plot in X, for when there is some again.
    EXPECT_EQ(Tarvex_Window2D_UpdateSize(Id, 0, 0, 30, Pixels), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0), STATUS_OK);
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    Add("Element2D_Add_Point", {3, 4});
    EXPECT_THAT(Fit(true), Near({2, 4, 3, 5}));
}

// There labels could not be told apart, nor would the wheel find back.
TEST_F(ChartViews, StopZoomingWhereNumbersEnd)
{
    Add("Element2D_Add_Point", {100.3, -77.7});
    const vtkContextMouseEvent wheel = {};
    for (const int direction : {1, -1})
    {
        Fit(false);
        Numbers last;
        for (int turns = 0; last != Ranges() && turns < 5000; ++turns)
        {
            last = Ranges();
            Chart()->MouseWheelEvent(wheel, direction);
        }
        EXPECT_EQ(Ranges(), last);
        EXPECT_GT(last[1] - last[0], 1e-11);
        EXPECT_LT(last[1] - last[0], 1e301);
        Chart()->MouseWheelEvent(wheel, -direction);
        EXPECT_NE(Ranges(), last);
        Render();
    }
}

TEST_F(ChartViews, HaveTwoLayoutsAndHoldTheirPictureBackUntilAnUpdateEnds)
{
    const auto count = [this](uint8_t grey)
    {
        const Picture::Color wanted = {grey, grey, grey};
        return Look().Count([=](const Picture::Color& color) { return color == wanted; });
    };
    Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0);
    EXPECT_GT(count(50), 200) << "the grid";
    EXPECT_EQ(TarvexExt_Window2D_BeginUpdate(Id), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_SetChartLayout(Id, TARVEX_CHART_LIGHT), STATUS_OK);
    Add("Element2D_Add_Circle", {0, 0, 30});
    EXPECT_LT(count(210), 9);
    EXPECT_EQ(TarvexExt_Window2D_EndUpdate(Id), STATUS_OK);
    EXPECT_GT(count(210), 200);
    EXPECT_GT(count(255), 20000);
    Tarvex_Window2D_SetBackgroundColor(Id, 255, 0, 1);
    EXPECT_EQ(Look().At(0, 0), (Picture::Color{255, 0, 1}));
}
} // namespace
