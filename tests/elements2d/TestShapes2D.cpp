// The six shapes of a chart: which values they take, what of them is seen, which one is active, and
// what dragging its handles does.
#include "elements2d/CElement_Draggable2D.h"
#include "frame/FailingAllocations.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

#include <vtkPlotPoints.h>

namespace
{
struct Kind
{
    Kind(const Export& add, const Export& set, const Export& get, const Numbers& given)
        : Add(add), SetValue(set), GetValue(get), Given(given)
    {
    }
    Export Add;
    Export SetValue;
    Export GetValue;
    Numbers Given; // for the first two
};
const Kind point(Tarvex_Element2D_Add_Point, Tarvex_Element2D_Point_SetValue,
                 Tarvex_Element2D_Point_GetValue, {3, 4});
const Kind line(Tarvex_Element2D_Add_Line, Tarvex_Element2D_Line_SetValue,
                Tarvex_Element2D_Line_GetValue, {1, 2, 3, 4, 0});
const Kind twoPoints(Tarvex_Element2D_Add_Line_2Points, Tarvex_Element2D_Line_SetValue,
                     Tarvex_Element2D_Line_GetValue, {1, 2, 3, 4, 1});
const Kind circle(Tarvex_Element2D_Add_Circle, Tarvex_Element2D_Circle_SetValue,
                  Tarvex_Element2D_Circle_GetValue, {1, 2, 5});
const Kind ellipse(Tarvex_Element2D_Add_Ellipse, Tarvex_Element2D_Ellipse_SetValue,
                   Tarvex_Element2D_Ellipse_GetValue, {1, 2, 20, 5, 90});
const Kind rectangle(Tarvex_Element2D_Add_Rectangle, Tarvex_Element2D_Rectangle_SetValue,
                     Tarvex_Element2D_Rectangle_GetValue, {0, 0, 10, 4, 0});
// Read back by its first point and whether it is closed.
const Kind polygon(Tarvex_Element2D_Add_Polygon, Tarvex_Element2D_Polygon_SetValue,
                   Tarvex_Element2D_Polygon_GetValue, {4, 0, 4, 4, 0, 0, 0, 4, 4, 1});

class Shapes2D : public InsideChart
{
protected:
    int32_t AddShape(const Kind& kind) const { return Add(kind.Add, kind.Given); }
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
    static auto Near(const Numbers& expected)
    {
        return testing::Pointwise(testing::NanSensitiveDoubleNear(1e-5), expected);
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
    void ExpectActive(int32_t element) const
    {
        EXPECT_EQ(Read(Tarvex_Window2D_GetActiveElement)[0], element);
        EXPECT_EQ(View().GetDragTarget() != nullptr, element != TARVEX_NONE);
    }
};

TEST_F(Shapes2D, KeepOrHideTheirValues)
{
    constexpr bool add = false;
    constexpr bool set = true; // after an add with good values
    const struct
    {
        const Kind& Shape;
        bool IsSet;
        Numbers Given;
        int32_t Status;
        bool Valid;
        Numbers Values;
    } cases[] = {
        {point, add, {NaN, 4}, STATUS_OK, false, {NaN, 4}},
        {line, add, {1, 2, 0, 5}, STATUS_OK, true, {1, -8, 1, 12}},
        {line, add, {1, 2, 0, 0.9e-6}, STATUS_OK, false, {1, 2, 1, 2}},
        {twoPoints, add, {1, 2, 4, 6, 1}, STATUS_OK, true, {1, 2, 4, 6}},
        {twoPoints, add, {1, 2, 4, 6, 0}, STATUS_OK, true, {-5, -6, 7, 10}},
        {twoPoints, add, {1, 2, 1, 2, 0}, STATUS_OK, false, {1, 2, 1, 2}},
        {twoPoints, set, {5, 5, 5, 5, 0}, STATUS_TOO_SMALL, true, {1, 2, 3, 4}},
        {twoPoints, set, {1, 2, 1, 2, 1}, STATUS_OK, true, {1, 2, 1, 2}}, // a dot
        {circle, add, {1, 2, Infinity}, STATUS_OK, true, {1, 2, Infinity}},
        {circle, set, {1, 2, -1}, STATUS_OK, false, {1, 2, -1}},
        {ellipse, set, {1, 2, 20, 5, NaN}, STATUS_OK, false, {1, 2, 20, 5, NaN}},
        {ellipse, set, {1, 2, 3, 5, -10}, STATUS_OK, true, {1, 2, 3, 5, 350}},
        {rectangle, add, {0, 0, -1, 2, 190}, STATUS_OK, true, {0, 0, -1, 2, -170}},
        {rectangle, add, {0, 0, 1, 2, 360e15 - 90}, STATUS_OK, true, {0, 0, 1, 2, -64}}, // rounded
        {rectangle, set, {0, 0, 0, 5, 0}, STATUS_OK, false, {0, 0, 0, 5, 0}},
        {rectangle, set, {0, 0, 1, 5, 190}, STATUS_OK, true, {0, 0, 1, 5, 190}},
        {polygon, add, {2, 5, 6, 0, 0, 7, 8, 0, 0, 0}, STATUS_OK, true, {5, 7, 0}},
        {polygon, add, {3, 5, 6, 1, 0, 7, 8, NaN, 0, 1}, STATUS_OK, false, {5, 7, 1}}};
    int32_t next = 0;
    for (const auto& [shape, isSet, given, status, valid, values] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        if (isSet)
        {
            EXPECT_EQ(AddShape(shape), next++);
            EXPECT_EQ(Call(shape.SetValue, next - 1, given), status);
        }
        else
        {
            EXPECT_EQ(Add(shape.Add, given), next++);
        }
        EXPECT_EQ(IsValid(next - 1), valid);
        EXPECT_EQ(TopPlot()->GetVisible(), valid);
        EXPECT_THAT(Read(shape.GetValue, next - 1), Near(values));
        EXPECT_EQ(Call(shape.SetValue, next - 1, shape.Given), STATUS_OK);
        EXPECT_TRUE(IsValid(next - 1) && TopPlot()->GetVisible()) << "again";
    }
}

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
        EXPECT_THAT(Drawn(Add(line.Add, each.Given)), Near(each.Drawn));
    }
    const int32_t segment = Add(twoPoints.Add, {-80, 0, 80, 0, 1});
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 0, 0.2, 5, 5), STATUS_OK) << "not for the lines";
    EXPECT_EQ(Read(Tarvex_Window2D_GetDrawSpace), (Numbers{0, 0.2, 5, 5}));
    EXPECT_THAT(Drawn(0), Near(cases[0].Drawn));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, -90, 90, -60, 60), STATUS_OK);
    for (int32_t element = 0; element < segment; ++element)
    {
        EXPECT_THAT(Drawn(element), Near(cases[element].Wider));
    }
    EXPECT_THAT(Drawn(segment), Near({-80, 0, 80, 0}));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 1e7, 1e7 + 90, 1e7, 1e7 + 90), STATUS_OK);
    EXPECT_THAT(Drawn(2), Near({1e7, 1e7, 1e7 + 90, 1e7 + 90}));
}

TEST_F(Shapes2D, AreDrawnOnTopAfterAChange)
{
    for (const Kind* kind : {&point, &line, &circle, &ellipse, &rectangle, &polygon})
    {
        const int32_t element = AddShape(*kind);
        vtkPlot* plot = TopPlot();
        const int32_t above = AddActive(polygon, polygon.Given);
        EXPECT_EQ(Tarvex_Element2D_SetColor(Id, element, 255, 0, 0), STATUS_OK);
        EXPECT_EQ(Call(kind->SetValue, element, kind->Given), STATUS_OK);
        EXPECT_EQ(TopPlot(), plot);
        EXPECT_GT(Look().Count(IsRed), 0) << "in the picture, not just in the list";
        EXPECT_EQ(Tarvex_Element2D_SetColor(Id, element, 255, 255, 0), STATUS_OK);
        EXPECT_EQ(Tarvex_Element2D_Polygon_RemovePoint(Id, above, 3), STATUS_OK);
        EXPECT_EQ(TopPlot(2), plot) << "below the outline and the handles";
    }
}

TEST_F(Shapes2D, EditPolygonsPointByPoint)
{
    const int32_t element = AddActive(polygon, polygon.Given);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_InsertPoint, element, {4, 2, 2}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, -1, -2}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {1}), STATUS_OK);
    EXPECT_THAT(Drawn(element), Near({-1, -2, 4, 4, 0, 4, 2, 2, -1, -2}));
    EXPECT_EQ(Find(1.3, 2), 4) << "the mean";
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {0}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {0}), STATUS_TOO_SMALL);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, NaN, 0}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, 0, 0}), STATUS_OK);
    EXPECT_FALSE(IsValid(element)) << "only new values make it valid again";
}

TEST_F(Shapes2D, StayAsTheyWereWhenMemoryRunsOut)
{
    const int32_t element = AddShape(polygon);
    const Numbers drawn = Drawn(element);
    const vtkIdType plots = Chart()->GetNumberOfPlots();
    const Numbers many(100, 1.0);
    int failures = 0;
    for (bool through = false; !through; ++failures)
    {
        FailAllocation(failures + 1);
        const int32_t active = Tarvex_Window2D_SetActiveElement(Id, element);
        const int32_t changed =
            Tarvex_Element2D_Polygon_SetValue(Id, element, 100, many.data(), many.data(), 1);
        through = !StopFailing();
        EXPECT_EQ(through, active == STATUS_OK && changed == STATUS_OK);
        EXPECT_EQ(Chart()->GetNumberOfPlots(), plots + (active == STATUS_OK));
        EXPECT_EQ(Drawn(element) == drawn, changed != STATUS_OK);
        Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE);
        EXPECT_EQ(Call(polygon.SetValue, element, polygon.Given), STATUS_OK);
    }
    EXPECT_GT(failures, 2);
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
        EXPECT_THAT(Read(shape.GetValue, element), Near(values));
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
    EXPECT_EQ(Call(circle.SetValue, element, {far, 0, -1}), STATUS_OK);
    EXPECT_EQ(Find(far, 0), -1);
    EXPECT_EQ(Drag(element, 0, 0, 0), STATUS_INVALID_VALUES);
    ExpectActive(element);
    EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_INVALID_VALUES);
    EXPECT_EQ(Call(circle.SetValue, element, {far, 0, 1}), STATUS_OK);
    EXPECT_EQ(Drag(element, 0, 0, 0), STATUS_BAD_POINT) << "they do not come back by themselves";
}

TEST_F(Shapes2D, AreActiveOneAtATime)
{
    const int32_t first = AddActive(circle, circle.Given);
    const int32_t invalid = AddShape(rectangle);
    EXPECT_EQ(Call(rectangle.SetValue, invalid, {0, 0, 0, 1, 0}), STATUS_OK);
    const std::pair<int32_t, int32_t> failures[] = {{AddShape(point), STATUS_WRONG_TYPE},
                                                    {AddShape(line), STATUS_WRONG_TYPE},
                                                    {AddShape(ellipse), STATUS_WRONG_TYPE},
                                                    {invalid, STATUS_NOT_FINITE},
                                                    {99, STATUS_BAD_INDEX}};
    for (const auto& [element, status] : failures)
    {
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, first), STATUS_OK);
        ExpectActive(first);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), status);
        ExpectActive(TARVEX_NONE);
    }
    EXPECT_EQ(Tarvex_Element2D_Remove(Id, AddActive(polygon, polygon.Given)), STATUS_OK);
    ExpectActive(TARVEX_NONE);
    AddActive(circle, circle.Given);
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    ExpectActive(TARVEX_NONE);
    EXPECT_EQ(Chart()->GetNumberOfPlots(), 1) << "that of an image";
}
} // namespace
