// What a real mouse does to a chart: handles, drawing gestures, pan and zoom, and hosts that do
// anything while they hear of it.
#include "TarvexExt.h"
#include "elements2d/CElement_Draggable2D.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <stdexcept>

#include <vtkAxis.h>
#include <vtkChartHistogram2D.h>

// After the others, whose names Xlib's macros would break.
#include <X11/Xlib.h>

namespace
{
using Place = ChartPoint;

// What the host heard, and what it does then.
std::string heard;
std::function<void()> answer;
int32_t lastElement;

template <char kind>
void Hear(int32_t view, int32_t element)
{
    heard += kind + std::to_string(view) + " ";
    lastElement = element;
    if (answer)
    {
        answer();
    }
}

// A mode, two opposite points or three vertices, and what comes of it.
const struct DrawCase
{
    uint32_t Mode;
    std::vector<Place> Points;
    Export GetValue;
    Numbers Expected; // of the polygon the first vertex
} drawCases[] = {
    {TARVEX_DRAW_RECTANGLE,
     {{30, 20}, {-10, -40}},
     Tarvex_Element2D_Rectangle_GetValue,
     {10, -10, 40, 60, 0}},
    {TARVEX_DRAW_CIRCLE, {{-5, 5}, {25, 5}}, Tarvex_Element2D_Circle_GetValue, {-5, 5, 30}},
    {TARVEX_DRAW_POLYGON,
     {{-30, -20}, {40, -20}, {0, 35}},
     Tarvex_Element2D_Polygon_GetValue,
     {-30, -20, 1}}};

class ChartMouse : public ChartFixture
{
protected:
    ChartMouse() { Prepare(); }
    ~ChartMouse() override { answer = nullptr; }

    void Prepare()
    {
        heard.clear();
        answer = nullptr;
        Tarvex_Window2D_RegisterCallback_ElementAdded(Id, Hear<'a'>);
        Tarvex_Window2D_RegisterCallback_ElementDragged(Id, Hear<'d'>);
        Settle();
    }
    std::string Told(char kind) const { return kind + std::to_string(Id) + " "; }
    CWindow2D& View() const
    {
        CWindow2D* found = nullptr;
        Inside<CWindow2D>(Id, [&](CWindow2D& view) { found = &view; });
        return *found;
    }
    vtkAxis* Axis(int side) const { return View().GetChart()->GetAxis(side); }
    // Of the axes, the lower ends first.
    Numbers Range() const
    {
        return {
            Axis(vtkAxis::BOTTOM)->GetUnscaledMinimum(), Axis(vtkAxis::LEFT)->GetUnscaledMinimum(),
            Axis(vtkAxis::BOTTOM)->GetUnscaledMaximum(), Axis(vtkAxis::LEFT)->GetUnscaledMaximum()};
    }
    // Chart units in a pixel, on each axis.
    Place Pixel() const
    {
        const Numbers range = Range();
        const int* first = View().GetChart()->GetPoint1();
        const int* last = View().GetChart()->GetPoint2();
        return {(range[2] - range[0]) / (last[0] - first[0]),
                (range[3] - range[1]) / (last[1] - first[1])};
    }
    // Up to half a pixel at either end of what the mouse does.
    auto IsNear(const Numbers& expected) const
    {
        const double pixel = std::max(Pixel().X, Pixel().Y);
        return testing::Pointwise(testing::DoubleNear(1.01 * pixel), expected);
    }
    // From the upper left corner of the view.
    std::array<int, 2> PixelOf(const Place& place) const
    {
        const int* first = View().GetChart()->GetPoint1();
        const double x = (place.X - Range()[0]) / Pixel().X;
        const double y = (place.Y - Range()[1]) / Pixel().Y;
        return {first[0] + static_cast<int>(std::lround(x)),
                Pixels - 1 - first[1] - static_cast<int>(std::lround(y))};
    }
    NativeWindow Native() const { return NativeOf<CWindow2D>(Id); }
    void Go(const Place& to)
    {
        const auto [x, y] = PixelOf(to);
        Host.MoveMouse(Native(), x, y);
        Settle();
    }
    void Drag(unsigned button, const Place& from, const Place& to)
    {
        const auto [x0, y0] = PixelOf(from);
        const auto [x1, y1] = PixelOf(to);
        Host.Drag(Native(), button, x0, y0, x1, y1, 2);
    }
    // Up to where the left button is held at the last point.
    void Begin(const DrawCase& one)
    {
        const bool clicks = one.Mode == TARVEX_DRAW_POLYGON;
        for (const Place& point : one.Points)
        {
            Go(point);
            if (&point == one.Points.data() || clicks)
            {
                Host.Press(1);
            }
            if (&point != &one.Points.back() && clicks)
            {
                Host.Release(1);
            }
        }
        Settle();
    }
    void Draw(const DrawCase& one)
    {
        Begin(one);
        Host.Release(1);
        if (one.Mode == TARVEX_DRAW_POLYGON)
        {
            Go({0, 0});
            Host.Press(3);
            Host.Release(3);
        }
        Settle();
    }
    int CountYellow() const
    {
        return TakeChartPicture(Id).Count([](const Picture::Color& color)
                                          { return color[0] > 99 && color[2] < 60; });
    }
    double CountElements() const { return Read(Tarvex_Element2D_GetCount).at(0); }
    int32_t AddActive(const Export& add, const Numbers& values) const
    {
        const int32_t element = Add(add, values);
        EXPECT_EQ(Tarvex_Window2D_SetActiveElement(Id, element), STATUS_OK);
        View().GetRenderWindow()->Render();
        return element;
    }
    int32_t AddActiveCircle() const { return AddActive(Tarvex_Element2D_Add_Circle, {5, 5, 20}); }
    double CircleX(int32_t element) const
    {
        return Read(Tarvex_Element2D_Circle_GetValue, element).at(0);
    }
};
} // namespace

TEST_F(ChartMouse, DrawsTheElementOfTheMode)
{
    for (const DrawCase& one : drawCases)
    {
        SCOPED_TRACE(one.Mode);
        const int32_t other = Add(Tarvex_Element2D_Add_Circle, {0, 0, 0.1});
        EXPECT_EQ(Tarvex_Window2D_SetDrawMode(Id, one.Mode), STATUS_OK);
        EXPECT_EQ(Tarvex_Window2D_SetDrawMode(Id, 8), STATUS_OUT_OF_RANGE);
        EXPECT_EQ(Read(Tarvex_Window2D_GetDrawMode), Numbers{static_cast<double>(one.Mode)});
        const std::function<void()> ends[] = {
            [&] {
                Drag(3, {0, 0}, {1, 1});
            },
            [&] { Tarvex_Element2D_Circle_SetValue(Id, other, 0, 0, 0.1); },
            [&] {
                Tarvex_Element2D_Remove(Id, Add(Tarvex_Element2D_Add_Point, {-40, 40}));
            },
            [&] { Tarvex_Window2D_SetDrawMode(Id, one.Mode); }};
        for (const auto& end : ends)
        {
            SCOPED_TRACE(&end - ends);
            Begin(one);
            const int band = CountYellow();
            EXPECT_GT(band, 50);
            // The rubber band stays on top of what comes meanwhile.
            const int32_t wide = Add(Tarvex_Element2D_Add_Point, {one.Points[1].X, -20});
            Tarvex_Element2D_SetColor(Id, wide, 0, 0, 255);
            Tarvex_Element2D_SetSize(Id, wide, 9);
            EXPECT_GT(CountYellow(), band - 9);
            end();
            Host.Release(1);
            Settle();
            EXPECT_LT(CountYellow(), 9) << "dropped";
            Tarvex_Element2D_Remove(Id, wide);
        }
        EXPECT_EQ(heard, "");
        int yellow = 0;
        answer = [&] { yellow = CountYellow(); };
        Draw(one);
        EXPECT_THAT(Read(one.GetValue, lastElement), IsNear(one.Expected));
        EXPECT_EQ(Read(Tarvex_Element2D_GetSize, lastElement), Numbers{1});
        EXPECT_EQ(Read(Tarvex_Element2D_GetColor, lastElement), (Numbers{255, 255, 0}));
        EXPECT_EQ(yellow, CountYellow()) << "seen by the host when it was told";
        Draw(one);
        EXPECT_EQ(heard, Told('a') + Told('a'));
        // A mode without a shape is none.
        Begin(one);
        EXPECT_EQ(Tarvex_Window2D_SetDrawMode(Id, one.Mode + 1), STATUS_WRONG_TYPE);
        EXPECT_EQ(Read(Tarvex_Window2D_GetDrawMode), Numbers{TARVEX_DRAW_NONE});
        Host.Release(1);
        Settle();
        EXPECT_EQ(CountElements(), 3);
        Tarvex_Element2D_RemoveAll(Id);
        Prepare();
    }
}

TEST_F(ChartMouse, DragsHandles)
{
    const auto addPolygon = [](int32_t view, int32_t* id)
    {
        const double x[] = {-20, 20, 0};
        const double y[] = {-15, -15, 30};
        return Tarvex_Element2D_Add_Polygon(view, 3, x, y, 1, id);
    };
    const Export circle = Tarvex_Element2D_Add_Circle;
    const Export rectangle = Tarvex_Element2D_Add_Rectangle;
    const Export readCircle = Tarvex_Element2D_Circle_GetValue;
    const Export readRectangle = Tarvex_Element2D_Rectangle_GetValue;
    const struct
    {
        Export Add;
        Numbers Values;
        Place From, To;
        Export GetValue;
        Numbers Expected;
    } cases[] = {
        {circle, {5, 5, 20}, {5, 5}, {17, -3}, readCircle, {17, -3, 20}},
        {circle, {5, 5, 20}, {25, 5}, {33, 12}, readCircle, {5, 5, 28.86}},
        {circle, {0, 0, 0.9}, {0, 0}, {9, 9}, readCircle, {9, 9, 0.9}},
        {rectangle, {0, 0, 40, 20, 90}, {-10, 20}, {-14, 30}, readRectangle, {-2, 5, 50, 24, 90}},
        {+addPolygon, {}, {0, 30}, {-9, 39}, Tarvex_Element2D_Polygon_GetValue, {-20, -15, 1}},
        {+addPolygon, {}, {0, 0}, {5, 6}, Tarvex_Element2D_Polygon_GetValue, {-15, -9, 1}},
        // The axes from 1000 to 1005, more or less.
        {circle,
         {1002.5, 1002.5, 2.3},
         {1002.5, 1002.5},
         {1003, 1002},
         readCircle,
         {1003, 1002, 2.3}}};
    for (const auto& way : cases)
    {
        for (const uint32_t mode : {TARVEX_DRAW_NONE, TARVEX_DRAW_POLYGON})
        {
            SCOPED_TRACE(testing::Message() << &way - cases << " in mode " << mode);
            const int32_t element = AddActive(way.Add, way.Values);
            if (way.From.X > 1000)
            {
                Tarvex_Window2D_ChartAutoScale(Id, 0);
            }
            Tarvex_Window2D_SetDrawMode(Id, mode);
            const Numbers range = Range();
            Drag(1, way.From, way.To);
            EXPECT_EQ(heard, Told('d'));
            EXPECT_THAT(Read(way.GetValue, element), IsNear(way.Expected));
            EXPECT_EQ(Range(), range);
            heard.clear();
            Tarvex_Element2D_Show(Id, element, 0);
            Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_RECTANGLE);
            Drag(1, way.To, way.From);
            EXPECT_EQ(heard, Told('a')) << "a hidden handle cannot be taken";
            Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE);
            Tarvex_Element2D_RemoveAll(Id);
            heard.clear();
        }
    }
}

TEST_F(ChartMouse, LetsTheHostDoAnything)
{
    int32_t other = TARVEX_NONE;
    const std::function<void()> actions[] = {
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE); },
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE); },
        [&] { Tarvex_Element2D_Remove(Id, lastElement); },
        [&] { Tarvex_Element2D_RemoveAll(Id); },
        [&] { Tarvex_Window2D_SetActiveElement(Id, other); },
        [] { throw std::runtime_error("the host's own"); },
        [] { TarvexExt_ProcessEvents(); },
        [&] { EXPECT_EQ(Tarvex_Window2D_Delete(Id), STATUS_OK); }};
    for (const DrawCase& one : {drawCases[0], drawCases[2]})
    {
        for (const bool drags : {false, true})
        {
            for (const auto& action : actions)
            {
                SCOPED_TRACE(testing::Message() << &action - actions << drags << one.Mode);
                const auto act = [&]
                {
                    heard.clear();
                    other = AddActiveCircle();
                    AddActiveCircle();
                    Tarvex_Window2D_SetDrawMode(Id, one.Mode);
                    drags ? Drag(1, {5, 5}, {15, 5}) : Draw(one);
                    EXPECT_EQ(heard, Told(drags ? 'd' : 'a'));
                };
                answer = action;
                act();
                answer = nullptr;
                if (Host.Children().empty())
                {
                    Host.MoveMouse(Host.Native, 50, 60);
                    Tarvex_Window2D_Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &Id);
                    Prepare();
                }
                // Nothing hangs on to the mouse, and the view is as usable as before.
                const Numbers range = Range();
                Go({-20, -20});
                Go({20, -5});
                EXPECT_EQ(Range(), range);
                Tarvex_Element2D_RemoveAll(Id);
                act();
                Tarvex_Element2D_RemoveAll(Id);
            }
        }
    }
}

TEST_F(ChartMouse, PansAndZoomsWithTheButtonsOfTheMode)
{
    const auto change = [this](unsigned button)
    {
        const Numbers before = Range();
        Drag(button, {-20, 10}, {15, -25});
        const Numbers after = Range();
        const double grown = (after[2] - after[0]) / (before[2] - before[0]);
        return std::abs(grown - 1) > 1e-3                ? "zoom"
               : std::abs(after[0] - before[0] + 35) < 1 ? "pan"
               : after == before                         ? ""
                                                         : "something else";
    };
    const auto reset = [this]
    {
        Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE);
        Tarvex_Element2D_RemoveAll(Id);
        Add(Tarvex_Element2D_Add_Circle, {0, 0, 45});
        Tarvex_Window2D_ChartAutoScale(Id, 0);
    };
    constexpr unsigned wheel = 4;
    const struct
    {
        unsigned Button;
        std::string Normal, Drawing;
    } cases[] = {{1, "pan", ""}, {2, "zoom", "pan"}, {3, "zoom", ""}, {wheel, "zoom", "zoom"}};
    // What is under way ends with the mode and with the active element, and the next begins.
    const std::function<void()> ends[] = {
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE); },
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE); },
        [&] { Tarvex_Window2D_SetActiveElement(Id, -1); }};
    for (const auto& way : cases)
    {
        reset();
        Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE);
        EXPECT_EQ(change(way.Button), way.Drawing) << way.Button;
    }
    for (const auto& way : cases)
    {
        SCOPED_TRACE(way.Button);
        reset();
        EXPECT_EQ(change(way.Button), way.Normal);
        for (const auto& end : ends)
        {
            reset();
            AddActiveCircle();
            Go({-40, 10});
            Host.Press(way.Button);
            Go({-30, 0});
            end();
            const Numbers range = Range();
            Go({20, -20});
            Host.Release(way.Button);
            Settle();
            Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE);
            Go({-10, 30});
            EXPECT_EQ(Range(), range) << &end - ends;
            reset();
            EXPECT_EQ(change(1), "pan");
        }
    }
}

TEST_F(ChartMouse, ShowsWhatItCanGrab)
{
    const int32_t circle = AddActiveCircle();
    const auto cursorAt = [&](const Place& at)
    {
        Go(at);
        return Host.TakeCursor();
    };
    const auto arrow = cursorAt({-40, -40});
    EXPECT_NE(cursorAt({5, 5}), arrow);
    Tarvex_Window2D_SetActiveElement(Id, -1);
    Settle();
    EXPECT_EQ(Host.TakeCursor(), arrow) << "without a move";
    Tarvex_Window2D_SetActiveElement(Id, circle);
    Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_POLYGON);
    EXPECT_NE(cursorAt({25, 5}), arrow);
    // While something is drawn, handles are places like any other.
    Draw({TARVEX_DRAW_POLYGON, {{-40, -40}, {25, 5}, {0, 40}}, Tarvex_Element2D_GetCount, {}});
    EXPECT_EQ(heard, Told('a'));
    EXPECT_EQ(CircleX(circle), 5);
}

TEST_F(ChartMouse, BelongsToTheViewThatItIsIn)
{
    XResizeWindow(Host.Connection, Host.Native, 3 * Pixels, Pixels);
    const int32_t one = AddActiveCircle();
    const int32_t left = std::exchange(Id, TARVEX_NONE);
    Tarvex_Window2D_Create(Host.Handle(), 1, Pixels, 0, Pixels, Pixels, &Id);
    Prepare();
    int32_t scene = TARVEX_NONE;
    Tarvex_Window_Create(Host.Handle(), 1, 2 * Pixels, 0, Pixels, Pixels, &scene);
    Tarvex_Window_Camera_SetPredefinedView(scene, TARVEX_VIEW_FRONT);
    EXPECT_EQ(Tarvex_Window_SetDrawMode(scene, TARVEX_DRAW_RECTANGLE), STATUS_OK);
    Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE);
    Begin(drawCases[1]);
    const int32_t right = std::exchange(Id, left);
    Tarvex_Window2D_SetDrawMode(left, TARVEX_DRAW_RECTANGLE);
    Host.Release(1);
    Settle();
    EXPECT_EQ(heard, "a" + std::to_string(right) + " ");
    Drag(1, {5, 5}, {25, -15});
    EXPECT_EQ(heard, "a" + std::to_string(right) + " " + Told('d'));
    EXPECT_NEAR(CircleX(one), 25, Pixel().X);
    Host.Drag(NativeOf(scene), 1, 90, 80, 110, 120);
    int32_t count = 0;
    Tarvex_Element_GetCount(scene, &count);
    EXPECT_EQ(count, 1);
    EXPECT_EQ(CountElements(), 1);
    Tarvex_Window_Delete(scene);
    Tarvex_Window2D_Delete(right);
}

TEST_F(ChartMouse, HasNothingToTakeInAChartWithoutArea)
{
    AddActiveCircle();
    Tarvex_Window2D_UpdateSize(Id, 0, 0, 1, 1);
    for (const uint32_t mode : {TARVEX_DRAW_NONE, TARVEX_DRAW_RECTANGLE, TARVEX_DRAW_POLYGON})
    {
        Tarvex_Window2D_SetDrawMode(Id, mode);
        View().GetRenderWindow()->Render();
        for (const unsigned button : {1U, 2U, 3U, 4U, 5U})
        {
            Host.Drag(Native(), button, 0, 0, 3, 3);
        }
    }
    EXPECT_EQ(heard, "");
    EXPECT_THAT(Range(),
                testing::Each(testing::Truly([](double side) { return std::isfinite(side); })));
}
