// Drawing with a real mouse: what becomes of a gesture, and what a host may do meanwhile.
#include "support/MouseFixture.h"

namespace
{
// The middle of the view is at 100, 99.
constexpr Pixel nowhere = {5, 4}; // beyond the drawing plane

constexpr double unit = 2 * 100 * 0.26794919243 / 200; // a pixel, 100 units from the camera

struct DrawCase
{
    uint32_t Mode;
    std::vector<Pixel> Points;
    Export GetValue;
    Numbers Expected;
};

// The draw space is 40 units wide, its middle at (0, 5, 2).
const DrawCase drawCases[] = {
    {TARVEX_DRAW_RECTANGLE,
     {{60, 69}, {120, 149}},
     Tarvex_Element_Rectangle_GetValue,
     {-10 * unit, 5, -10 * unit, 60 * unit, 80 * unit, 0}},
    {TARVEX_DRAW_CUBE,
     {{60, 69}, {120, 149}},
     Tarvex_Element_Cube_GetValue,
     {-10 * unit, 10 * unit, 2, 60 * unit, 80 * unit, 40, 0}},
    {TARVEX_DRAW_CIRCLE,
     {{80, 89}, {110, 49}},
     Tarvex_Element_Circle_GetValue,
     {-20 * unit, 5, 10 * unit, 50 * unit, 0, 1, 0}},
    {TARVEX_DRAW_CYLINDER,
     {{80, 89}, {110, 49}},
     Tarvex_Element_Cylinder_GetValue,
     {-20 * unit, -10 * unit, -18, -20 * unit, -10 * unit, 22, 50 * unit}},
    // Of these the first vertex, and what follows all of them.
    {TARVEX_DRAW_POLYGON,
     {{60, 119}, {150, 129}, {110, 59}},
     Tarvex_Element_Polygon_GetValue,
     {-40 * unit, 5, -20 * unit, 1}},
    {TARVEX_DRAW_POLYHEDRON,
     {{60, 119}, {150, 129}, {110, 59}},
     Tarvex_Element_Polyhedron_GetValue,
     {-40 * unit, 20 * unit, 2, 0, 0, 1, 40}}};

class DrawModes : public MouseFixture<SceneKind>
{
protected:
    DrawModes() { SetSpace(); }

    void SetSpace() const
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -20, 20, -15, 25, -18, 22), STATUS_OK);
    }
    void Enter(const DrawCase& one) const
    {
        ASSERT_EQ(Tarvex_Window_SetDrawMode(Id, one.Mode), STATUS_OK);
        const bool front = one.Mode % 2 == 1; // those that stand upright
        Tarvex_Window_Camera_SetPredefinedView(Id, front ? TARVEX_VIEW_FRONT : TARVEX_VIEW_TOP);
        Tarvex_Window_Camera_SetPosition(Id, 0, front ? -105 : 0, front ? 0 : 102);
    }
};
} // namespace

TEST_F(DrawModes, MakeTheElementThatWasDrawn)
{
    for (const DrawCase& one : drawCases)
    {
        SCOPED_TRACE(one.Mode);
        heard.clear();
        Tarvex_Element_RemoveAll(Id);
        Enter(one);
        EXPECT_EQ(Read(Tarvex_Window_GetDrawMode), Numbers{static_cast<double>(one.Mode)});
        EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, 1), STATUS_DRAW_MODE_ACTIVE);
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1), STATUS_DRAW_MODE_ACTIVE);

        std::vector<Pixel> points = one.Points;
        Begin(points);
        EXPECT_GT(CountYellow(), 50) << "the rubber band";
        Click(3);
        Release(1);
        EXPECT_EQ(CountYellow(), 0) << "cancelled";

        points.back() = nowhere;
        Draw(points);
        EXPECT_EQ(CountYellow() + CountElements(), 0) << "an end beyond the plane";
        std::swap(points.front(), points.back());
        Draw(points);
        Click(3);
        EXPECT_EQ(CountYellow() + CountElements(), 0) << "a start beyond the plane";
        Draw(std::vector<Pixel>(points.size(), points.back()));
        points.assign(points.size(), nowhere);
        Draw(points);
        // On one spot: the add decides, but there is no circle without a radius.
        const bool disc = one.Mode == TARVEX_DRAW_CIRCLE || one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(CountElements(), disc ? 0 : 1);
        EXPECT_EQ(heard, disc ? "" : Told('a'));
        heard.clear();

        Draw(one.Points);
        EXPECT_EQ(heard, Told('a'));
        EXPECT_THAT(Read(one.GetValue, lastElement),
                    testing::Pointwise(testing::DoubleNear(0.51 * unit), one.Expected));
        const Export count = one.Mode == TARVEX_DRAW_POLYGON
                                 ? Tarvex_Element_Polygon_GetPointCount
                                 : Tarvex_Element_Polyhedron_GetPointCount;
        EXPECT_EQ(Read(count, lastElement, points.size() > 2 ? STATUS_OK : STATUS_WRONG_TYPE),
                  Numbers{points.size() > 2 ? 3.0 : 0.0});
        const bool cylinder = one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(Read(Tarvex_Element_GetTransparency, lastElement), Numbers{cylinder ? 0.6 : 0.0});
        EXPECT_EQ(Read(Tarvex_Element_GetSize, lastElement), Numbers{1});
        EXPECT_EQ(Read(Tarvex_Element_GetColor, lastElement), (Numbers{255, 255, 0}));
        EXPECT_EQ(Read(Tarvex_Element_GetLighting, lastElement), (Numbers{1, 1, 0, 1}));
    }
}

TEST_F(DrawModes, LetTheHostDoAnythingWhenAnElementWasAdded)
{
    for (const DrawCase& one : {drawCases[1], drawCases[5]})
    {
        SCOPED_TRACE(one.Mode);
        LetTheHostAnswer('a',
                         [&]
                         {
                             Other = Add(Tarvex_Element_Add_Cube, {5, 5, 5, 1, 1, 1, 0, 1});
                             SetSpace();
                             Enter(one);
                             Draw(one.Points);
                         });
    }
}

TEST_F(DrawModes, DropWhatWasBegunInAnotherMode)
{
    for (const uint32_t next : {TARVEX_DRAW_CUBE, TARVEX_DRAW_RECTANGLE, TARVEX_DRAW_CIRCLE,
                                TARVEX_DRAW_POLYGON, TARVEX_DRAW_NO_SHAPE, TARVEX_DRAW_NONE})
    {
        SCOPED_TRACE(next);
        Enter(drawCases[0]);
        Begin(drawCases[0].Points);
        EXPECT_EQ(Tarvex_Window_SetDrawMode(Id, next), STATUS_OK);
        MoveTo({100, 79});
        Release(1);
        Click(3);
        EXPECT_EQ(CountYellow() + CountElements(), 0);
    }
    EXPECT_EQ(Tarvex_Window_SetDrawMode(Id, 8), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Read(Tarvex_Window_GetDrawMode), Numbers{0});
}

TEST_F(DrawModes, ConcernOneViewEach)
{
    // On the right, over a quarter of the first one.
    const int32_t first = std::exchange(Id, TARVEX_NONE);
    Tarvex_Window_Create(Host.Handle(), 1, Pixels * 3 / 4, 0, Pixels, Pixels, &Id);
    SetSpace();
    Enter(drawCases[4]);
    const std::vector<Pixel> left = {{30, 99}, {45, 99}, {40, 79}};
    Begin(left);
    const int32_t second = std::exchange(Id, first);
    Release(1);
    Enter(drawCases[1]);
    Draw(drawCases[1].Points);
    EXPECT_EQ(CountElements(), 1);
    Id = second;
    EXPECT_EQ(CountElements(), 0);
    MoveTo(left[0]);
    Click(3);
    EXPECT_EQ(CountElements(), 1);
    Enter(drawCases[4]);
    Begin(left);
    Tarvex_Window_Delete(Id);
    Finish(left);
    Id = first;
    EXPECT_EQ(CountElements(), 1);
}

TEST_F(DrawModes, DrawNothingInAnUnusableSpace)
{
    for (const double limit : {1e300, Infinity, NaN})
    {
        SCOPED_TRACE(limit);
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -limit, limit, -20, 20, -20, limit), STATUS_OK);
        for (const DrawCase& one : drawCases)
        {
            Enter(one);
            Draw(one.Points);
            EXPECT_EQ(CountElements(), 0);
        }
    }
}
