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
    std::string Type;
    std::vector<Pixel> Points;
    Numbers Expected;
};
const std::vector<Pixel> box = {{60, 69}, {120, 149}};
const std::vector<Pixel> disc = {{80, 89}, {110, 49}};
const std::vector<Pixel> corners = {{60, 119}, {150, 129}, {110, 59}};
constexpr double x = -20 * unit; // of the disc's middle
constexpr double y = -10 * unit;

// The draw space is 40 units wide, its middle at (0, 5, 2).
const DrawCase drawCases[] = {
    {TARVEX_DRAW_RECTANGLE, "Rectangle", box, {y, 5, y, 60 * unit, 80 * unit, 0}},
    {TARVEX_DRAW_CUBE, "Cube", box, {y, -y, 2, 60 * unit, 80 * unit, 40, 0}},
    {TARVEX_DRAW_CIRCLE, "Circle", disc, {x, 5, -y, 50 * unit, 0, 1, 0}},
    {TARVEX_DRAW_CYLINDER, "Cylinder", disc, {x, y, -18, x, y, 22, 50 * unit}},
    // Of these the first vertex, and what follows all of them.
    {TARVEX_DRAW_POLYGON, "Polygon", corners, {2 * x, 5, x, 1}},
    {TARVEX_DRAW_POLYHEDRON, "Polyhedron", corners, {2 * x, -x, 2, 0, 0, 1, 40}}};

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
        std::vector<Pixel> points = one.Points;
        const std::function<void()> ends[] = {
            [&] { Click(3); }, [&] { Tarvex_Window_SetDrawMode(Id, TARVEX_DRAW_NONE); },
            [&] { Tarvex_Window_SetDrawMode(Id, one.Mode); },
            [&] { Tarvex_Window_SetDrawMode(Id, one.Mode + 1); }};
        for (const auto& end : ends)
        {
            Begin(points);
            EXPECT_GT(CountYellow(), 50) << "the rubber band";
            end();
            MoveTo({100, 79});
            Release(1);
            Click(3);
            EXPECT_EQ(CountYellow() + CountElements(), 0) << "dropped by " << &end - ends;
            Enter(one);
        }

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
        const bool isDisc = one.Mode == TARVEX_DRAW_CIRCLE || one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(CountElements(), isDisc ? 0 : 1);
        EXPECT_EQ(heard, isDisc ? "" : Told('a'));
        heard.clear();

        Draw(one.Points);
        EXPECT_EQ(heard, Told('a'));
        const std::string function = "Element_" + one.Type;
        EXPECT_THAT(Read(function + "_GetValue", lastElement), Near(one.Expected, 0.51 * unit));
        EXPECT_TRUE(points.size() == 2 ||
                    Read(function + "_GetPointCount", lastElement) == Numbers{3});
        const bool cylinder = one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(Read("Element_GetTransparency", lastElement), Numbers{cylinder ? 0.6 : 0.0});
        EXPECT_EQ(Read("Element_GetSize", lastElement), Numbers{1});
        EXPECT_EQ(Read("Element_GetColor", lastElement), (Numbers{255, 255, 0}));
        EXPECT_EQ(Read("Element_GetLighting", lastElement), (Numbers{1, 1, 0, 1}));
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
                             Other = Add("Element_Add_Cube", {5, 5, 5, 1, 1, 1, 0, 1});
                             SetSpace();
                             Enter(one);
                             Draw(one.Points);
                         });
    }
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
    Draw(box);
    EXPECT_EQ(CountElements(), 1);
    Id = second;
    EXPECT_EQ(CountElements(), 0);
    MoveTo(left[0]);
    Click(3);
    EXPECT_EQ(CountElements(), 1);
    Begin(left);
    Tarvex_Window_Delete(Id);
    Release(1);
    Id = first;
    EXPECT_EQ(CountElements(), 1);
}

TEST_F(DrawModes, DrawNothingInAnUnusableSpace)
{
    for (const double limit : {1e300, Infinity, NaN})
    {
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -limit, limit, -20, 20, -20, limit), STATUS_OK);
        Enter(drawCases[0]);
        Draw(box);
        EXPECT_EQ(CountElements(), 0) << limit;
    }
}
