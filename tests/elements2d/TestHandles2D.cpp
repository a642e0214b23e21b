// Which element of a chart is active, where its handles are, and what dragging them does.
#include "elements2d/CElement_Draggable2D.h"
#include "frame/CWindowManager.h"
#include "support/ViewFixture.h"

#include <vtkPlotPoints.h>

namespace
{
class Handles2D : public ChartFixture
{
protected:
    template <class Action>
    void WithView(Action&& action) const
    {
        CWindowManager::Instance->Call<CWindow2D>(Id,
                                                  [&](CWindow2D& view) -> int32_t
                                                  {
                                                      action(view);
                                                      return STATUS_OK;
                                                  });
    }
    int32_t Find(double x, double y) const
    {
        int32_t found = -2;
        WithView([&](const CWindow2D& view)
                 { found = view.GetDragTarget()->FindHandle(x, y, view.HandleTolerance); });
        return found;
    }
    int32_t Drag(int32_t element, double handle, double x, double y) const
    {
        int32_t status = 0;
        WithView(
            [&](const CWindow2D& view)
            {
                auto* target = static_cast<CElement_Draggable2D*>(view.FindElement(element));
                status = target->DragHandle(static_cast<int32_t>(handle), x, y);
            });
        return status;
    }
    int32_t AddActive(const Export& add, const Numbers& given) const
    {
        const int32_t element = Add(add, given);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_OK);
        return element;
    }
    Numbers Active() const { return Read(Tarvex_Window2D_GetActiveElement); }
};

TEST_F(Handles2D, ReshapeTheirElement)
{
    const Export circle = Tarvex_Element2D_Add_Circle;
    const Export rectangle = Tarvex_Element2D_Add_Rectangle;
    const Export polygon = Tarvex_Element2D_Add_Polygon;
    const Export readCircle = Tarvex_Element2D_Circle_GetValue;
    const Export readRectangle = Tarvex_Element2D_Rectangle_GetValue;
    const Numbers square = {4, 0, 4, 4, 0, 0, 0, 4, 4, 1};
    const double s = std::sqrt(0.5);
    const struct
    {
        Export Add;
        Numbers Given;
        Numbers Steps; // handle, x, y
        Export Get;
        Numbers Values;
    } cases[] = {
        {circle, {1, 2, 5}, {2, 8, 2}, readCircle, {1, 2, 7}},
        {circle, {1, 2, 5}, {0, 8, 3, 4, 8, 3}, readCircle, {8, 3, 0}},
        {rectangle, {0, 0, 10, 4, 30}, {0, 3, 4}, readRectangle, {3, 4, 10, 4, 30}},
        {rectangle, {0, 0, 10, 4, 0}, {5, 7, 4}, readRectangle, {1, 1, 12, 6, 0}},
        {rectangle, {0, 0, 10, 4, 0}, {4, 9, 100}, readRectangle, {2, 0, 14, 4, 0}},
        {rectangle, {0, 0, 10, 4, 0}, {2, 99, -6}, readRectangle, {0, -2, 10, 8, 0}},
        // An edge at right angles to the axes.
        {rectangle, {0, 0, 10, 4, 90}, {4, 99, 9}, readRectangle, {0, 2, 14, 4, 90}},
        {rectangle, {0, 0, 10, 4, -90}, {6, 9, 33}, readRectangle, {3.5, 0, 10, 11, -90}},
        // 45 degrees: the edge moves along the diagonal.
        {rectangle,
         {0, 0, 10, 4, 45},
         {8, -9, -1},
         readRectangle,
         {2.5 * s - 2.5, 2.5 * s - 2.5, 5 + 10 * s, 4, 45}},
        // Across what is opposite, and on: it stays put all the time.
        {rectangle,
         {0, 0, 10, 4, 0},
         {5, -6, -3, 5, -7, -6, 5, -9, -4},
         readRectangle,
         {-7, -3, 4, 2, 0}},
        {rectangle,
         {0, 0, 10, 4, 0},
         {4, -5, 0, 4, -8, 0, 4, -9, 0},
         readRectangle,
         {-7, 0, 4, 4, 0}},
        {rectangle, {0, 0, -10, 4, 0}, {1, 9, -2, 1, 8, -4}, readRectangle, {1.5, -1, 13, 6, 0}},
        {polygon, square, {4, 12, 22}, Tarvex_Element2D_Polygon_GetValue, {10, 20, 1}},
        {polygon, square, {0, -1, -2}, Tarvex_Element2D_Polygon_GetValue, {-1, -2, 1}}};
    for (const auto& [add, given, steps, get, values] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(given) + testing::PrintToString(steps));
        const int32_t element = AddActive(add, given);
        for (size_t at = 0; at < steps.size(); at += 3)
        {
            EXPECT_EQ(Drag(element, steps[at], steps[at + 1], steps[at + 2]), STATUS_OK);
        }
        EXPECT_THAT(Read(get, element), testing::Pointwise(testing::DoubleNear(1e-12), values));
        for (const double handle : {-1.0, 9.0})
        {
            EXPECT_EQ(Drag(element, handle, 1, 1), STATUS_BAD_POINT);
        }
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, -5), STATUS_OK);
        EXPECT_EQ(Drag(element, 0, 1, 1), STATUS_BAD_POINT);
    }
}

TEST_F(Handles2D, AreHitNearerThanOneUnitWhateverTheRange)
{
    const double far = 1e6; // a float is good for 0.06 there
    const int32_t element = AddActive(Tarvex_Element2D_Add_Circle, {far, 0, 0.5});
    EXPECT_EQ(Find(far, 0), 0) << "of all five the nearest";
    EXPECT_EQ(Find(far + 0.26, 0), 2);
    EXPECT_EQ(Find(far + 1.499, 0.9), 2);
    EXPECT_EQ(Find(far + 1.5, 0), -1);
    EXPECT_EQ(Find(far, 1.5), -1);
    EXPECT_EQ(Tarvex_Element2D_Show(Id, element, 0), STATUS_OK);
    EXPECT_EQ(Find(far, 0), -1);
    EXPECT_EQ(Tarvex_Element2D_Show(Id, element, 1), STATUS_OK);
    EXPECT_EQ(Find(far, 0), 0);
    EXPECT_EQ(Tarvex_Element2D_Circle_SetValue(Id, element, far, 0, -1), STATUS_OK);
    EXPECT_EQ(Find(far, 0), -1);
    EXPECT_EQ(Drag(element, 0, 0, 0), STATUS_INVALID_VALUES);
    EXPECT_EQ(Active(), Numbers{static_cast<double>(element)});
    EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, TARVEX_NONE), STATUS_OK);
    EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_INVALID_VALUES);
    EXPECT_EQ(Tarvex_Element2D_Circle_SetValue(Id, element, far, 0, 1), STATUS_OK);
    WithView(
        [&](const CWindow2D& view)
        {
            const auto* circle = static_cast<CElement_Draggable2D*>(view.FindElement(element));
            EXPECT_EQ(circle->GetHandlePlot(), nullptr) << "does not come back with the values";
        });
}

TEST_F(Handles2D, BelongToOneElementAtMost)
{
    const int32_t circle = AddActive(Tarvex_Element2D_Add_Circle, {0, 0, 5});
    const int32_t rectangle = Add(Tarvex_Element2D_Add_Rectangle, {0, 0, 5, 5, 0});
    const int32_t point = Add(Tarvex_Element2D_Add_Point, {0, 0});
    const int32_t line = Add(Tarvex_Element2D_Add_Line, {0, 0, 1, 0});
    const int32_t ellipse = Add(Tarvex_Element2D_Add_Ellipse, {0, 0, 1, 1, 0});
    EXPECT_EQ(Tarvex_Element2D_Rectangle_SetValue(Id, rectangle, 0, 0, 0, 1, 0), STATUS_OK);
    const struct
    {
        int32_t Element;
        int32_t Status;
    } failures[] = {{point, STATUS_WRONG_TYPE},
                    {line, STATUS_WRONG_TYPE},
                    {ellipse, STATUS_WRONG_TYPE},
                    {rectangle, STATUS_NOT_FINITE},
                    {99, STATUS_BAD_INDEX}};
    for (const auto& [element, status] : failures)
    {
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, circle), STATUS_OK);
        EXPECT_EQ(Active(), Numbers{static_cast<double>(circle)});
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), status);
        EXPECT_EQ(Active(), Numbers{TARVEX_NONE});
        WithView([](const CWindow2D& view) { EXPECT_EQ(view.GetDragTarget(), nullptr); });
    }
    const int32_t last = AddActive(Tarvex_Element2D_Add_Circle, {0, 0, 5});
    EXPECT_EQ(Tarvex_Element2D_Remove(Id, last), STATUS_OK);
    EXPECT_EQ(Active(), Numbers{TARVEX_NONE});
    AddActive(Tarvex_Element2D_Add_Circle, {0, 0, 5});
    EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    EXPECT_EQ(Active(), Numbers{TARVEX_NONE});
}
} // namespace
