// The six shapes of a chart: what of them is seen, and what dragging their handles does.
#include "elements2d/CElement_Draggable2D.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

#include <vtkPlotPoints.h>

namespace
{
struct Kind
{
    std::string Type;
    Numbers Given;
    std::string Add = "Element2D_Add_" + Type;
    std::string SetValue = "Element2D_" + Type + "_SetValue";
};
const Kind line = {"Line", {1, 2, 3, 4, 0}};
const Kind circle = {"Circle", {1, 2, 5}};
const Kind rectangle = {"Rectangle", {0, 0, 10, 4, 0}};
const Kind polygon = {"Polygon", {4, 0, 4, 4, 0, 0, 0, 4, 4, 1}};

class Shapes2D : public InsideChart
{
protected:
    // The points of the outline as they are drawn.
    Numbers Drawn(int32_t element) const
    {
        auto* shape = static_cast<CElement_Plotted2D*>(View().FindElement(element));
        vtkTable* table = shape->GetOutline()->GetTable();
        Numbers drawn;
        for (vtkIdType at = 0; at < 2 * table->GetNumberOfRows(); ++at)
        {
            drawn.push_back(table->GetValue(at / 2, at % 2).ToDouble());
        }
        return drawn;
    }
    int32_t AddActive(const Kind& kind, const Numbers& given) const
    {
        const int32_t element = Add(kind.Add, given);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_OK);
        return element;
    }
    int32_t Drag(int32_t element, double handle, double x, double y) const
    {
        auto* target = static_cast<CElement_Draggable2D*>(View().FindElement(element));
        return target->DragHandle(static_cast<int32_t>(handle), x, y);
    }
    int32_t Find(double x, double y) const
    {
        return View().GetDragTarget()->FindHandle(x, y, CWindow2D::HandleTolerance);
    }
};

TEST_F(Shapes2D, CutLinesWithoutEndsToTheDrawSpace)
{
    const struct
    {
        Numbers Given;
        Numbers Drawn;
        Numbers Wider;
    } cases[] = {{{3, 0, 0, 1}, {3, -50, 3, 50}, {3, -60, 3, 60}},
                 {{0, 2, 1, 0}, {-50, 2, 50, 2}, {-90, 2, 90, 2}},
                 {{0, 0, -1, -1}, {-50, -50, 50, 50}, {-60, -60, 60, 60}},
                 {{0, 0, 1, -2}, {-25, 50, 25, -50}, {-30, 60, 30, -60}},
                 {{100, 0, 0, 1}, {100, -10, 100, 10}, {100, -10, 100, 10}},
                 {{0, 60, 1, 1}, {-50, 10, -10, 50}, {-90, -30, 0, 60}}};
    for (const auto& each : cases)
    {
        EXPECT_THAT(Drawn(Add(line.Add, each.Given)), Near(each.Drawn, 1e-5));
    }
    const int32_t segment = Add("Element2D_Add_Line_2Points", {-80, 0, 80, 0, 1});
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 0, 0.2, 5, 5), STATUS_OK) << "not for the lines";
    EXPECT_THAT(Drawn(0), Near(cases[0].Drawn, 1e-5));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, -90, 90, -60, 60), STATUS_OK);
    for (int32_t element = 0; element < segment; ++element)
    {
        EXPECT_THAT(Drawn(element), Near(cases[element].Wider, 1e-5));
    }
    EXPECT_THAT(Drawn(segment), Near({-80, 0, 80, 0}));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 1e7, 1e7 + 90, 1e7, 1e7 + 90), STATUS_OK);
    EXPECT_THAT(Drawn(2), Near({1e7, 1e7, 1e7 + 90, 1e7 + 90}));
}

TEST_F(Shapes2D, AreDrawnOnTopAfterAChange)
{
    for (const Kind& kind : {Kind{"Point", {3, 4}}, line, circle,
                             Kind{"Ellipse", {1, 2, 20, 5, 90}}, rectangle, polygon})
    {
        const int32_t element = Add(kind.Add, kind.Given);
        vtkPlot* plot = TopPlot();
        const int32_t above = AddActive(polygon, polygon.Given);
        Tarvex_Element2D_SetColor(Id, element, 255, 0, 0);
        Numbers bad = kind.Given;
        bad[1] = NaN;
        EXPECT_EQ(Do(kind.SetValue, element, bad), STATUS_OK);
        EXPECT_EQ(Look().Count(IsRed), 0) << "invalid";
        EXPECT_EQ(Do(kind.SetValue, element, kind.Given), STATUS_OK);
        EXPECT_EQ(TopPlot(), plot);
        EXPECT_GT(Look().Count(IsRed), 0) << "in the picture, not just in the list";
        Tarvex_Element2D_SetColor(Id, element, 255, 255, 0);
        Tarvex_Element2D_Polygon_RemovePoint(Id, above, 3);
        EXPECT_EQ(TopPlot(2), plot) << "below the outline and the handles";
    }
}

TEST_F(Shapes2D, EditPolygonsPointByPoint)
{
    const int32_t element = AddActive(polygon, polygon.Given);
    EXPECT_EQ(Do("Element2D_Polygon_InsertPoint", element, {4, 2, 2}), STATUS_OK);
    EXPECT_EQ(Do("Element2D_Polygon_ChangePoint", element, {0, -1, -2}), STATUS_OK);
    EXPECT_EQ(Do("Element2D_Polygon_RemovePoint", element, {1}), STATUS_OK);
    EXPECT_THAT(Drawn(element), Near({-1, -2, 4, 4, 0, 4, 2, 2, -1, -2}));
    EXPECT_EQ(Find(1.3, 2), 4) << "the mean";
}

TEST_F(Shapes2D, FollowADraggedHandle)
{
    const double s = std::sqrt(0.5);
    const struct
    {
        const Kind& Shape;
        Numbers Given;
        Numbers Steps; // handle, x, y
        Numbers Values;
    } cases[] = {
        {circle, {1, 2, 5}, {2, 8, 2}, {1, 2, 7}},
        {circle, {1, 2, 5}, {0, 8, 3, 4, 8, 3}, {8, 3, 0}},
        {rectangle, {0, 0, 10, 4, 30}, {0, 3, 4}, {3, 4, 10, 4, 30}},
        {rectangle, {0, 0, 10, 4, 0}, {5, 7, 4}, {1, 1, 12, 6, 0}},
        // An edge at right angles to the axes, and one that moves along the diagonal.
        {rectangle, {0, 0, 10, 4, 90}, {4, 99, 9}, {0, 2, 14, 4, 90}},
        {rectangle, {0, 0, 10, 4, -90}, {6, 9, 33}, {3.5, 0, 10, 11, -90}},
        {rectangle,
         {0, 0, 10, 4, 45},
         {8, -9, -1},
         {2.5 * s - 2.5, 2.5 * s - 2.5, 5 + 10 * s, 4, 45}},
        // Across what is opposite, and on: it stays put all the time.
        {rectangle, {0, 0, 10, 4, 0}, {5, -6, -3, 5, -7, -6, 5, -9, -4}, {-7, -3, 4, 2, 0}},
        {rectangle, {0, 0, -10, 4, 0}, {1, 9, -2, 1, 8, -4}, {1.5, -1, 13, 6, 0}},
        {polygon, polygon.Given, {4, 12, 22}, {10, 20, 1}}};
    for (const auto& [shape, given, steps, values] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given) + testing::PrintToString(steps));
        const int32_t element = AddActive(shape, given);
        for (size_t at = 0; at < steps.size(); at += 3)
        {
            EXPECT_EQ(Drag(element, steps[at], steps[at + 1], steps[at + 2]), STATUS_OK);
        }
        EXPECT_THAT(Read("Element2D_" + shape.Type + "_GetValue", element), Near(values, 1e-5));
        EXPECT_EQ(Drag(element, -1, 1, 1), STATUS_BAD_POINT);
        EXPECT_EQ(Drag(element, 9, 1, 1), STATUS_BAD_POINT);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, -5), STATUS_OK);
        EXPECT_EQ(Drag(element, 0, 1, 1), STATUS_BAD_POINT) << "without handles";
    }
}

TEST_F(Shapes2D, AreHitNearerThanOneUnitFromAHandleWhateverTheRange)
{
    const double far = 1e6; // a float is good for 0.06 there
    const int32_t element = AddActive(circle, {far, 0, 0.5});
    EXPECT_EQ(Find(far, 0), 0) << "of all five the nearest";
    EXPECT_EQ(Find(far + 1.499, 0.9), 2);
    EXPECT_EQ(Find(far + 1.5, 0), -1);
    EXPECT_EQ(Find(far, 1.5), -1);
    EXPECT_EQ(Tarvex_Element2D_Show(Id, element, 0), STATUS_OK);
    EXPECT_EQ(Find(far, 0), -1);
    EXPECT_FALSE(TopPlot()->GetVisible() || TopPlot(1)->GetVisible());
    EXPECT_EQ(Tarvex_Element2D_Show(Id, element, 1), STATUS_OK);
    EXPECT_EQ(Do(circle.SetValue, element, {far, 0, -1}), STATUS_OK);
    EXPECT_EQ(Find(far, 0), -1);
    EXPECT_EQ(Drag(element, 0, 0, 0), STATUS_INVALID_VALUES);
    Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE);
    Tarvex_Window2D_SetActiveElement(Id, element);
    EXPECT_EQ(Do(circle.SetValue, element, {far, 0, 1}), STATUS_OK);
    EXPECT_EQ(Drag(element, 0, 0, 0), STATUS_BAD_POINT) << "they do not come back by themselves";
}
} // namespace
