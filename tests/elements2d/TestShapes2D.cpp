// The six shapes of a chart: what of them is seen, and where their handles are.
#include "elements2d/CElement_Draggable2D.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

namespace
{
const Numbers square = {4, 0, 4, 4, 0, 0, 0, 4, 4, 1}; // a polygon

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
    int32_t AddActive(const std::string& type, const Numbers& given) const
    {
        const int32_t element = Add("Element2D_Add_" + type, given);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_OK);
        return element;
    }
};

TEST_F(Shapes2D, CutLinesWithoutEndsToTheDrawSpace)
{
    // As given, as drawn, and in a wider space.
    const std::tuple<Numbers, Numbers, Numbers> cases[] = {
        {{3, 0, 0, 1}, {3, -50, 3, 50}, {3, -60, 3, 60}},
        {{0, 2, 1, 0}, {-50, 2, 50, 2}, {-90, 2, 90, 2}},
        {{0, 0, -1, -1}, {-50, -50, 50, 50}, {-60, -60, 60, 60}},
        {{0, 0, 1, -2}, {-25, 50, 25, -50}, {-30, 60, 30, -60}},
        {{100, 0, 0, 1}, {100, -10, 100, 10}, {100, -10, 100, 10}},
        {{0, 60, 1, 1}, {-50, 10, -10, 50}, {-90, -30, 0, 60}}};
    for (const auto& [given, drawn, wider] : cases)
    {
        EXPECT_THAT(Drawn(Add("Element2D_Add_Line", given)), Near(drawn, 1e-5));
    }
    const int32_t segment = Add("Element2D_Add_Line_2Points", {-80, 0, 80, 0, 1});
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 0, 0.2, 5, 5), STATUS_OK) << "not for the lines";
    EXPECT_THAT(Drawn(0), Near({3, -50, 3, 50}, 1e-5));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, -90, 90, -60, 60), STATUS_OK);
    for (int32_t element = 0; element < segment; ++element)
    {
        EXPECT_THAT(Drawn(element), Near(std::get<2>(cases[element]), 1e-5));
    }
    EXPECT_THAT(Drawn(segment), Near({-80, 0, 80, 0}));
    EXPECT_EQ(Tarvex_Window2D_SetDrawSpace(Id, 1e7, 1e7 + 90, 1e7, 1e7 + 90), STATUS_OK);
    EXPECT_THAT(Drawn(2), Near({1e7, 1e7, 1e7 + 90, 1e7 + 90}));
}

TEST_F(Shapes2D, AreDrawnOnTopAfterAChange)
{
    for (const auto& [type, given] : {std::pair<std::string, Numbers>("Point", {3, 4}),
                                      {"Line", {1, 2, 3, 4, 0}},
                                      {"Circle", {1, 2, 5}},
                                      {"Ellipse", {1, 2, 20, 5, 90}},
                                      {"Rectangle", {0, 0, 10, 4, 0}},
                                      {"Polygon", square}})
    {
        const std::string setValue = "Element2D_" + type + "_SetValue";
        const int32_t element = Add("Element2D_Add_" + type, given);
        vtkPlot* plot = TopPlot();
        const int32_t above = AddActive("Polygon", square);
        Tarvex_Element2D_SetColor(Id, element, 255, 0, 0);
        Numbers bad = given;
        bad[1] = NaN;
        EXPECT_EQ(Do(setValue, element, bad), STATUS_OK);
        EXPECT_EQ(Look().Count(IsRed), 0) << "invalid";
        EXPECT_EQ(Do(setValue, element, given), STATUS_OK);
        EXPECT_EQ(TopPlot(), plot);
        EXPECT_GT(Look().Count(IsRed), 0) << "in the picture, not just in the list";
        Tarvex_Element2D_SetColor(Id, element, 255, 255, 0);
        Tarvex_Element2D_Polygon_RemovePoint(Id, above, 3);
        EXPECT_EQ(TopPlot(2), plot) << "below the outline and the handles";
    }
}

TEST_F(Shapes2D, EditPolygonsPointByPoint)
{
    const int32_t element = AddActive("Polygon", square);
    EXPECT_EQ(Do("Element2D_Polygon_InsertPoint", element, {4, 2, 2}), STATUS_OK);
    EXPECT_EQ(Do("Element2D_Polygon_ChangePoint", element, {0, -1, -2}), STATUS_OK);
    EXPECT_EQ(Do("Element2D_Polygon_RemovePoint", element, {1}), STATUS_OK);
    EXPECT_THAT(Drawn(element), Near({-1, -2, 4, 4, 0, 4, 2, 2, -1, -2}));
    EXPECT_EQ(View().FindHandle(1.3, 2), 4) << "the mean";
}

TEST_F(Shapes2D, AreHitNearerThanOneUnitFromAHandleWhateverTheRange)
{
    const double far = 1e6; // a float is good for 0.06 there
    const int32_t element = AddActive("Circle", {far, 0, 0.5});
    EXPECT_EQ(View().FindHandle(far, 0), 0) << "of all five the nearest";
    EXPECT_EQ(View().FindHandle(far + 1.499, 0.9), 2);
    EXPECT_EQ(View().FindHandle(far + 1.5, 0), -1);
    EXPECT_EQ(View().FindHandle(far, 1.5), -1);
    Tarvex_Element2D_Show(Id, element, 0);
    EXPECT_EQ(View().FindHandle(far, 0), -1);
    EXPECT_FALSE(TopPlot()->GetVisible() || TopPlot(1)->GetVisible());
    Tarvex_Element2D_Show(Id, element, 1);
    EXPECT_EQ(Do("Element2D_Circle_SetValue", element, {far, 0, -1}), STATUS_OK);
    EXPECT_EQ(View().FindHandle(far, 0), -1);
    Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE);
    Tarvex_Window2D_SetActiveElement(Id, element);
    EXPECT_EQ(Do("Element2D_Circle_SetValue", element, {far, 0, 1}), STATUS_OK);
    EXPECT_FALSE(TopPlot()->GetMarkerStyle()) << "they do not come back by themselves";
}
} // namespace
