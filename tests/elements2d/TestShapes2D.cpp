// The six shapes of a chart: which values they take, and what of them is seen.
#include "elements2d/CElement_Line2D.h"
#include "frame/CWindowManager.h"
#include "frame/FailingAllocations.h"
#include "support/ViewFixture.h"

#include <vtkChartHistogram2D.h>
#include <vtkPlot.h>

namespace
{
constexpr double nan = std::numeric_limits<double>::quiet_NaN();
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Kind
{
    Export Add;
    Export SetValue;
    Export GetValue;
    Numbers Given; // for the first two
};
const Kind point = {Tarvex_Element2D_Add_Point,
                    Tarvex_Element2D_Point_SetValue,
                    Tarvex_Element2D_Point_GetValue,
                    {3, 4}};
const Kind line = {Tarvex_Element2D_Add_Line,
                   Tarvex_Element2D_Line_SetValue,
                   Tarvex_Element2D_Line_GetValue,
                   {1, 2, 3, 4, 0}};
const Kind twoPoints = {Tarvex_Element2D_Add_Line_2Points,
                        Tarvex_Element2D_Line_SetValue,
                        Tarvex_Element2D_Line_GetValue,
                        {1, 2, 3, 4, 1}};
const Kind circle = {Tarvex_Element2D_Add_Circle,
                     Tarvex_Element2D_Circle_SetValue,
                     Tarvex_Element2D_Circle_GetValue,
                     {1, 2, 5}};
const Kind ellipse = {Tarvex_Element2D_Add_Ellipse,
                      Tarvex_Element2D_Ellipse_SetValue,
                      Tarvex_Element2D_Ellipse_GetValue,
                      {1, 2, 20, 5, 90}};
const Kind rectangle = {Tarvex_Element2D_Add_Rectangle,
                        Tarvex_Element2D_Rectangle_SetValue,
                        Tarvex_Element2D_Rectangle_GetValue,
                        {0, 0, 10, 4, 0}};
// Read back by its first point and whether it is closed.
const Kind polygon = {Tarvex_Element2D_Add_Polygon,
                      Tarvex_Element2D_Polygon_SetValue,
                      Tarvex_Element2D_Polygon_GetValue,
                      {4, 0, 8, 8, 0, 0, 0, 6, 6, 1}};

class Shapes2D : public ChartFixture
{
protected:
    CWindow2D& View() const
    {
        CWindow2D* found = nullptr;
        CWindowManager::Instance->Call<CWindow2D>(Id,
                                                  [&](CWindow2D& view) -> int32_t
                                                  {
                                                      found = &view;
                                                      return STATUS_OK;
                                                  });
        return *found;
    }
    vtkPlot* TopPlot(int below = 0) const
    {
        vtkChart* chart = View().GetChart();
        return chart->GetPlot(chart->GetNumberOfPlots() - 1 - below);
    }
    int32_t AddShape(const Kind& kind) const { return Add(kind.Add, kind.Given); }
    // The corners of the outline as they are drawn.
    Numbers Drawn(int32_t element) const
    {
        auto* shape = static_cast<CElement_Plotted2D*>(View().FindElement(element));
        vtkTable* table = shape->GetOutline()->GetTable();
        Numbers drawn;
        for (vtkIdType row = 0; row < table->GetNumberOfRows(); ++row)
        {
            drawn.push_back(table->GetValue(row, 0).ToDouble());
            drawn.push_back(table->GetValue(row, 1).ToDouble());
        }
        return drawn;
    }
    static auto Near(const Numbers& expected)
    {
        return testing::Pointwise(testing::NanSensitiveDoubleNear(1e-4), expected);
    }
};

TEST_F(Shapes2D, AddOrRefuseAndReadBackTheirValues)
{
    const struct
    {
        const Kind& Shape;
        Numbers Given;
        int32_t Status;
        bool Valid = true;
        Numbers Values = {};
    } cases[] = {
        {point, {3, 4}, STATUS_OK, true, {3, 4}},
        {point, {nan, 4}, STATUS_OK, false, {nan, 4}},
        {line, {1, 2, 0, 5}, STATUS_OK, true, {1, -8, 1, 12}},
        {line, {1, 2, 0, 0.9e-6}, STATUS_OK, false, {1, 2, 1, 2}},
        {line, {1, 2, 0, 1.1e-6}, STATUS_OK, true, {1, -8, 1, 12}},
        {twoPoints, {1, 2, 4, 6, 1}, STATUS_OK, true, {1, 2, 4, 6}},
        {twoPoints, {1, 2, 4, 6, 0}, STATUS_OK, true, {-5, -6, 7, 10}},
        {twoPoints, {1, 2, 1, 2, 0}, STATUS_OK, false, {1, 2, 1, 2}},
        {circle, {1, 2, 1e-9}, STATUS_OK, true, {1, 2, 1e-9}},
        {circle, {1, 2, 0.9e-9}, STATUS_INVALID_VALUES},
        {circle, {1, nan, 5}, STATUS_INVALID_VALUES},
        {circle, {1, 2, infinity}, STATUS_OK, true, {1, 2, infinity}},
        {ellipse, {1, 2, 5, 0.9e-9, 0}, STATUS_OK, false, {1, 2, 5, 0, 0}},
        {ellipse, {1, 2, 20, 5, 370}, STATUS_OK, true, {1, 2, 20, 5, 10}},
        {ellipse, {1, 2, 20, 5, nan}, STATUS_OK, false, {1, 2, 20, 5, nan}},
        {ellipse, {1, 2, 20, 5, infinity}, STATUS_OK, true, {1, 2, 20, 5, infinity}},
        {rectangle, {0, 0, 0, 5, 0}, STATUS_TOO_SMALL},
        {rectangle, {0, 0, 0, 0, 0}, STATUS_NOT_FINITE},
        {rectangle, {0, 0, 1, nan, 0}, STATUS_NOT_FINITE},
        {rectangle, {0, 0, -1, 2, 190}, STATUS_OK, true, {0, 0, -1, 2, -170}},
        {rectangle, {0, 0, 1, 2, 360e15 - 90}, STATUS_OK, true, {0, 0, 1, 2, -64}}, // rounded
        {polygon, {2, 5, 6, 0, 0, 7, 8, 0, 0, 1}, STATUS_TOO_SMALL},
        {polygon, {2, 5, 6, 0, 0, 7, 8, 0, 0, 0}, STATUS_OK, true, {5, 7, 0}},
        {polygon, {1, 5, 6, 0, 0, 7, 8, 0, 0, 0}, STATUS_TOO_SMALL},
        {polygon, {3, 5, 6, 1, 0, 7, 8, nan, 0, 1}, STATUS_OK, false, {5, 7, 1}}};
    int32_t next = 0;
    for (const auto& [shape, given, status, valid, values] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        Numbers id;
        EXPECT_EQ(shape.Add.Perform(Id, given, id), status);
        if (status != STATUS_OK)
        {
            const bool cleared = shape.Add.Address != circle.Add.Address &&
                                 shape.Add.Address != rectangle.Add.Address;
            EXPECT_EQ(id, Numbers{cleared ? -1.0 : 77.0});
            EXPECT_EQ(Read(Tarvex_Element2D_GetCount), Numbers{static_cast<double>(next)});
            continue;
        }
        EXPECT_EQ(id[0], next++);
        EXPECT_EQ(IsValid(next - 1), valid);
        EXPECT_EQ(TopPlot()->GetVisible(), valid);
        EXPECT_THAT(Read(shape.GetValue, next - 1), Near(values));
    }
}

TEST_F(Shapes2D, HideWithUnusableValuesAndComeBackWithGoodOnes)
{
    const struct
    {
        const Kind& Shape;
        Numbers Given;
        bool Valid;
        Numbers Values;
    } cases[] = {{point, {nan, 1}, false, {nan, 1}},
                 {line, {1, 2, nan, 4, 0}, false, {1, 2, nan, nan}},
                 {twoPoints, {1, 2, 1, 2, 1}, true, {1, 2, 1, 2}}, // a dot
                 {twoPoints, {1, 2, 1, 2 + 1e-8, 0}, true, {1, 2, 1, 2}},
                 {circle, {1, 2, -1}, false, {1, 2, -1}},
                 {ellipse, {1, 2, 0, 5, 9}, false, {1, 2, 0, 5, 9}},
                 {ellipse, {1, 2, 3, 5, -10}, true, {1, 2, 3, 5, 350}},
                 {rectangle, {0, 0, 0, 5, 0}, false, {0, 0, 0, 5, 0}},
                 {rectangle, {0, 0, 1, 5, 190}, true, {0, 0, 1, 5, 190}},
                 {polygon, {3, 0, 1, 2, 3, 0, 0, nan, 0, 0}, false, {0, 0, 0}}};
    for (const auto& [shape, given, valid, values] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        const int32_t element = AddShape(shape);
        EXPECT_EQ(Call(shape.SetValue, element, given), STATUS_OK);
        EXPECT_EQ(IsValid(element), valid);
        EXPECT_EQ(TopPlot()->GetVisible(), valid);
        if (shape.GetValue.Address != line.GetValue.Address || valid)
        {
            EXPECT_THAT(Read(shape.GetValue, element), Near(values));
        }
        EXPECT_EQ(Call(shape.SetValue, element, shape.Given), STATUS_OK);
        EXPECT_TRUE(IsValid(element));
        EXPECT_TRUE(TopPlot()->GetVisible());
    }
    const int32_t kept = AddShape(line);
    const Numbers values = Read(line.GetValue, kept);
    EXPECT_EQ(Call(line.SetValue, kept, {5, 5, 5, 5, 0}), STATUS_TOO_SMALL);
    EXPECT_EQ(Read(line.GetValue, kept), values);
}

TEST_F(Shapes2D, CutLinesWithoutEndsToTheDrawSpace)
{
    const struct
    {
        Numbers Given;
        Numbers Drawn;
        Numbers DrawnInWiderSpace = {};
    } cases[] = {{{3, 0, 0, 1}, {3, -50, 3, 50}, {3, -60, 3, 60}},
                 {{0, 2, 1, 0}, {-50, 2, 50, 2}, {-90, 2, 90, 2}},
                 {{0, 0, -1, -1}, {-50, -50, 50, 50}, {-60, -60, 60, 60}},
                 {{0, 0, 1, -2}, {-25, 50, 25, -50}, {-30, 60, 30, -60}},
                 {{100, 0, 0, 1}, {100, -10, 100, 10}, {100, -10, 100, 10}},
                 {{0, 60, 1, 1}, {-50, 10, -10, 50}, {-90, -30, 0, 60}}};
    std::vector<int32_t> lines;
    for (const auto& each : cases)
    {
        lines.push_back(Add(line.Add, each.Given));
        EXPECT_THAT(Drawn(lines.back()), Near(each.Drawn));
    }
    const int32_t segment = Add(twoPoints.Add, {-80, 0, 80, 0, 1});
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 0, 0.2, 5, 5), STATUS_OK) << "not for the lines";
    EXPECT_THAT(Drawn(lines[0]), Near(cases[0].Drawn));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, -90, 90, -60, 60), STATUS_OK);
    for (size_t at = 0; at < lines.size(); ++at)
    {
        EXPECT_THAT(Drawn(lines[at]), Near(cases[at].DrawnInWiderSpace));
    }
    EXPECT_THAT(Drawn(segment), Near({-80, 0, 80, 0}));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 1e7, 1e7 + 90, 1e7, 1e7 + 90), STATUS_OK);
    EXPECT_THAT(Drawn(lines[2]), Near({1e7, 1e7, 1e7 + 90, 1e7 + 90}));
}

TEST_F(Shapes2D, AreDrawnOnTopAfterAChange)
{
    for (const Kind* kind : {&point, &line, &circle, &ellipse, &rectangle, &polygon})
    {
        const int32_t element = AddShape(*kind);
        vtkPlot* plot = TopPlot();
        const int32_t above = AddShape(polygon);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, above), STATUS_OK);
        EXPECT_NE(TopPlot(), plot);
        EXPECT_EQ(Call(kind->SetValue, element, kind->Given), STATUS_OK);
        EXPECT_EQ(TopPlot(), plot);
        EXPECT_EQ(Tarvex_Element2D_Polygon_RemovePoint(Id, above, 3), STATUS_OK);
        EXPECT_EQ(TopPlot(2), plot) << "below the outline and the handles";
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element) == STATUS_OK,
                  View().GetDragTarget() != nullptr);
    }
    const int plots = static_cast<int>(View().GetChart()->GetNumberOfPlots());
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    EXPECT_EQ(plots - View().GetChart()->GetNumberOfPlots(), 13) << "12 shapes, one with handles";
}

TEST_F(Shapes2D, EditPolygonsPointByPoint)
{
    const int32_t element = AddShape(polygon);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_InsertPoint, element, {4, 1, 2}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_InsertPoint, element, {6, 1, 2}), STATUS_BAD_INDEX);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {5, 1, 2}), STATUS_BAD_INDEX);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, -1, -2}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {1}), STATUS_OK);
    EXPECT_THAT(Drawn(element), Near({-1, -2, 8, 6, 0, 6, 1, 2, -1, -2}));
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {0}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_RemovePoint, element, {0}), STATUS_TOO_SMALL);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, nan, 0}), STATUS_OK);
    EXPECT_EQ(Call(Tarvex_Element2D_Polygon_ChangePoint, element, {0, 0, 0}), STATUS_OK);
    EXPECT_FALSE(IsValid(element)) << "only new values make it valid again";
    EXPECT_EQ(Read(Tarvex_Element2D_Polygon_GetPointCount, element), Numbers{3});
}

TEST_F(Shapes2D, StayAsTheyWereWhenMemoryRunsOut)
{
    const int32_t element = AddShape(polygon);
    const Numbers drawn = Drawn(element);
    const vtkIdType plots = View().GetChart()->GetNumberOfPlots();
    const Numbers many(100, 1.0);
    int failures = 0;
    for (bool through = false; !through; ++failures)
    {
        FailAllocation(failures + 1);
        const int32_t active = Tarvex_Window2D_SetActiveElement(Id, element);
        const int32_t changed =
            Tarvex_Element2D_Polygon_SetValue(Id, element, 100, many.data(), many.data(), 1);
        through = !StopFailing();
        const bool activeFailed = active == STATUS_OUT_OF_MEMORY;
        EXPECT_NE(activeFailed || changed == STATUS_OUT_OF_MEMORY, through);
        EXPECT_EQ(View().GetChart()->GetNumberOfPlots(), plots + (activeFailed ? 0 : 1));
        if (changed != STATUS_OK)
        {
            EXPECT_EQ(Drawn(element), drawn);
        }
        Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE);
        EXPECT_EQ(Call(polygon.SetValue, element, polygon.Given), STATUS_OK);
    }
    EXPECT_GT(failures, 2);
}
} // namespace
