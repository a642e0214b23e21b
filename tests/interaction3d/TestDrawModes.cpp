// Drawing with a real mouse: what becomes of a gesture, and what a host may do meanwhile.
#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <stdexcept>

namespace
{
struct Pixel // from the middle of the view, to the right and up
{
    int X, Y;
};
constexpr Pixel nowhere = {-95, 95}; // beyond the drawing plane

constexpr double unit = 2 * 100 * 0.26794919243 / 200; // a pixel, 100 units from the camera

std::function<void(int32_t view, int32_t element)> onAdded;
std::vector<int32_t> added;
void ElementAdded(int32_t view, int32_t element)
{
    added.push_back(element);
    if (onAdded)
    {
        onAdded(view, element);
    }
}

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
     {{-40, 30}, {20, -50}},
     Tarvex_Element_Rectangle_GetValue,
     {-10 * unit, 5, -10 * unit, 60 * unit, 80 * unit, 0}},
    {TARVEX_DRAW_CUBE,
     {{-40, 30}, {20, -50}},
     Tarvex_Element_Cube_GetValue,
     {-10 * unit, 10 * unit, 2, 60 * unit, 80 * unit, 40, 0}},
    {TARVEX_DRAW_CIRCLE,
     {{-20, 10}, {10, 50}},
     Tarvex_Element_Circle_GetValue,
     {-20 * unit, 5, 10 * unit, 50 * unit, 0, 1, 0}},
    {TARVEX_DRAW_CYLINDER,
     {{-20, 10}, {10, 50}},
     Tarvex_Element_Cylinder_GetValue,
     {-20 * unit, -10 * unit, -18, -20 * unit, -10 * unit, 22, 50 * unit}},
    // Of these the first vertex, and what follows all of them.
    {TARVEX_DRAW_POLYGON,
     {{-40, -20}, {50, -30}, {10, 40}},
     Tarvex_Element_Polygon_GetValue,
     {-40 * unit, 5, -20 * unit, 1}},
    {TARVEX_DRAW_POLYHEDRON,
     {{-40, -20}, {50, -30}, {10, 40}},
     Tarvex_Element_Polyhedron_GetValue,
     {-40 * unit, 20 * unit, 2, 0, 0, 1, 40}}};

class DrawModes : public ViewFixture
{
protected:
    DrawModes() { Prepare(); }
    ~DrawModes() override { onAdded = nullptr; }

    void Prepare()
    {
        added.clear();
        onAdded = nullptr;
        Native = NativeOf(Id);
        Tarvex_Window_RegisterCallback_ElementAdded(Id, ElementAdded);
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -20, 20, -15, 25, -18, 22), STATUS_OK);
        Settle();
    }
    void Enter(const DrawCase& one) const
    {
        ASSERT_EQ(Tarvex_Window_SetDrawMode(Id, one.Mode), STATUS_OK);
        const bool front = one.Mode % 2 == 1; // those that stand upright
        Tarvex_Window_Camera_SetPredefinedView(Id, front ? TARVEX_VIEW_FRONT : TARVEX_VIEW_TOP);
        Tarvex_Window_Camera_SetPosition(Id, 0, front ? -105 : 0, front ? 0 : 102);
    }
    void Go(Pixel to) { Host.MoveMouse(Native, Pixels / 2 + to.X, Pixels / 2 - 1 - to.Y); }
    void Click(unsigned button)
    {
        Host.Press(button);
        Host.Release(button);
    }
    // Up to where the left button is held at the last point.
    void Begin(const std::vector<Pixel>& points)
    {
        for (const Pixel& point : points)
        {
            Go(point);
            if (&point == &points.front() || points.size() > 2)
            {
                Host.Press(1);
            }
            if (&point != &points.back() && points.size() > 2)
            {
                Host.Release(1);
            }
        }
        Settle();
    }
    void Finish(const std::vector<Pixel>& points)
    {
        Host.Release(1);
        if (points.size() > 2)
        {
            Click(3);
        }
        Settle();
    }
    void Draw(const std::vector<Pixel>& points)
    {
        Begin(points);
        Finish(points);
    }
    int CountYellow() const
    {
        return TakePicture(Id).Count([](const Picture::Color& color)
                                     { return color[0] > 99 && color[1] > 99 && color[2] < 60; });
    }
    size_t CountElements() const
    {
        return static_cast<size_t>(Read(Tarvex_Element_GetCount).at(0));
    }

    NativeWindow Native = 0;
};
} // namespace

TEST_F(DrawModes, MakeTheElementThatWasDrawn)
{
    for (const DrawCase& one : drawCases)
    {
        SCOPED_TRACE(one.Mode);
        added.clear();
        Tarvex_Element_RemoveAll(Id);
        Enter(one);
        EXPECT_EQ(Read(Tarvex_Window_GetDrawMode), Numbers{static_cast<double>(one.Mode)});
        EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, 1), STATUS_DRAW_MODE_ACTIVE);
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1), STATUS_DRAW_MODE_ACTIVE);

        std::vector<Pixel> points = one.Points;
        Begin(points);
        EXPECT_GT(CountYellow(), 50) << "the rubber band";
        Click(3);
        Host.Release(1);
        Settle();
        EXPECT_EQ(CountYellow(), 0) << "cancelled";

        points.back() = nowhere;
        Draw(points);
        EXPECT_EQ(CountYellow() + CountElements(), 0U) << "an end beyond the plane";
        std::swap(points.front(), points.back());
        Draw(points);
        Click(3);
        Settle();
        EXPECT_EQ(CountYellow() + CountElements(), 0U) << "a start beyond the plane";
        Draw(std::vector<Pixel>(points.size(), points.back()));
        points.assign(points.size(), nowhere);
        Draw(points);
        // On one spot: the add decides, but there is no circle without a radius.
        const bool disc = one.Mode == TARVEX_DRAW_CIRCLE || one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(CountElements(), disc ? 0U : 1U);
        EXPECT_EQ(added.size(), CountElements());
        added.clear();

        Draw(one.Points);
        ASSERT_EQ(added.size(), 1U);
        EXPECT_THAT(Read(one.GetValue, added[0]),
                    testing::Pointwise(testing::DoubleNear(0.51 * unit), one.Expected));
        const Export count = one.Mode == TARVEX_DRAW_POLYGON
                                 ? Tarvex_Element_Polygon_GetPointCount
                                 : Tarvex_Element_Polyhedron_GetPointCount;
        EXPECT_EQ(Read(count, added[0], points.size() > 2 ? STATUS_OK : STATUS_WRONG_TYPE),
                  Numbers{points.size() > 2 ? 3.0 : 0.0});
        const bool cylinder = one.Mode == TARVEX_DRAW_CYLINDER;
        EXPECT_EQ(Read(Tarvex_Element_GetTransparency, added[0]), Numbers{cylinder ? 0.6 : 0.0});
        EXPECT_EQ(Read(Tarvex_Element_GetSize, added[0]), Numbers{1});
        EXPECT_EQ(Read(Tarvex_Element_GetColor, added[0]), (Numbers{255, 255, 0}));
        EXPECT_EQ(Read(Tarvex_Element_GetLighting, added[0]), (Numbers{1, 1, 0, 1}));
    }
}

TEST_F(DrawModes, LetTheHostDoAnythingWhenAnElementWasAdded)
{
    using Action = std::function<void(int32_t view, int32_t element)>;
    const Action actions[] = {
        [](int32_t view, int32_t) { Tarvex_Window_SetDrawMode(view, TARVEX_DRAW_NONE); },
        [](int32_t view, int32_t) { Tarvex_Window_SetDrawMode(view, TARVEX_DRAW_CIRCLE); },
        [](int32_t view, int32_t element) { Tarvex_Element_Remove(view, element); },
        [](int32_t view, int32_t) { Tarvex_Element_RemoveAll(view); },
        [](int32_t view, int32_t element) { Tarvex_Window_SetActiveElement(view, element); },
        [](int32_t view, int32_t) { Tarvex_Window_Delete(view); },
        [](int32_t, int32_t) { throw std::runtime_error("from the host"); }};
    for (const DrawCase& one : {drawCases[1], drawCases[5]})
    {
        for (const Action& action : actions)
        {
            SCOPED_TRACE(testing::Message() << one.Mode << ", action " << &action - actions);
            onAdded = action;
            Enter(one);
            Draw(one.Points);
            EXPECT_EQ(added.size(), 1U);
            onAdded = nullptr;
            if (&action - actions != 5)
            {
                Enter(one);
                Draw(one.Points);
                EXPECT_EQ(added.size(), 2U) << "the next gesture";
                Tarvex_Window_Delete(Id);
            }
            Tarvex_Window_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &Id);
            Prepare();
        }
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
        Go({0, 20});
        Host.Release(1);
        Click(3);
        Settle();
        EXPECT_EQ(CountYellow() + CountElements(), 0U);
    }
    EXPECT_EQ(Tarvex_Window_SetDrawMode(Id, 8), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Read(Tarvex_Window_GetDrawMode), Numbers{0});
}

TEST_F(DrawModes, ConcernOneViewEach)
{
    // On the right, over a quarter of the first one.
    const int32_t first = std::exchange(Id, TARVEX_NONE);
    Tarvex_Window_Create(Host.Handle(), 1, Pixels * 3 / 4, 0, Pixels, Pixels, &Id);
    Prepare();
    Enter(drawCases[4]);
    const std::vector<Pixel> left = {{-70, 0}, {-55, 0}, {-60, 20}};
    Begin(left);
    const int32_t second = std::exchange(Id, first);
    Host.Release(1);
    Native = NativeOf(Id);
    Enter(drawCases[1]);
    Draw(drawCases[1].Points);
    EXPECT_EQ(CountElements(), 1U);
    Id = second;
    Native = NativeOf(Id);
    EXPECT_EQ(CountElements(), 0U);
    Go(left[0]);
    Click(3);
    Settle();
    EXPECT_EQ(CountElements(), 1U);
    Enter(drawCases[4]);
    Begin(left);
    Tarvex_Window_Delete(Id);
    Finish(left);
    Id = first;
    EXPECT_EQ(CountElements(), 1U);
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
            EXPECT_EQ(CountElements(), 0U);
        }
    }
}
