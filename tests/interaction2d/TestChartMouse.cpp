// What a real mouse does to a chart: handles, drawing gestures, pan and zoom, and hosts that do
// anything while they hear of it.
#include "support/MouseFixture.h"

// After the others, whose names Xlib's macros would break.
#include <X11/Xlib.h>

namespace
{
using Place = ChartPoint;

// A mode, two opposite points or three vertices, and what comes of it.
const struct DrawCase
{
    uint32_t Mode;
    std::string Type;
    std::vector<Place> Points;
    Numbers Expected; // of the polygon the first vertex
} drawCases[] = {{TARVEX_DRAW_RECTANGLE, "Rectangle", {{30, 20}, {-10, -40}}, {10, -10, 40, 60, 0}},
                 {TARVEX_DRAW_CIRCLE, "Circle", {{-5, 5}, {25, 5}}, {-5, 5, 30}},
                 {TARVEX_DRAW_POLYGON, "Polygon", {{-30, -20}, {40, -20}, {0, 35}}, {-30, -20, 1}}};

class ChartMouse : public MouseFixture<ChartKind>
{
protected:
    // The values of an element, up to half a pixel at either end of what the mouse does.
    void ExpectValues(const std::string& type, int32_t element, const Numbers& expected) const
    {
        EXPECT_THAT(Read("Element2D_" + type + "_GetValue", element),
                    Near(expected, 1.01 * std::max(Unit().X, Unit().Y)));
    }
    std::vector<Pixel> PixelsOf(const std::vector<Place>& places) const
    {
        std::vector<Pixel> pixels;
        for (const Place& place : places)
        {
            const Place pixel = Locate(place);
            pixels.push_back(
                {static_cast<int>(std::lround(pixel.X)), static_cast<int>(std::lround(pixel.Y))});
        }
        return pixels;
    }
    void Go(const Place& to) { MoveTo(PixelsOf({to})[0]); }
    void DragAlong(const std::vector<Place>& places, unsigned button = 1)
    {
        Go(places[0]);
        const std::vector<Pixel> pixels = PixelsOf(places); // where the axes are now
        Press(button);
        std::ranges::for_each(pixels, [this](const Pixel& pixel) { MoveTo(pixel); });
        Release(button);
    }
    int32_t AddActiveCircle() const { return AddActive("Element2D_Add_Circle", {5, 5, 20}); }
};
} // namespace

TEST_F(ChartMouse, DrawsTheElementOfTheMode)
{
    for (const DrawCase& one : drawCases)
    {
        SCOPED_TRACE(one.Mode);
        const int32_t other = Add("Element2D_Add_Circle", {0, 0, 0.1});
        EXPECT_EQ(Tarvex_Window2D_SetDrawMode(Id, one.Mode), STATUS_OK);
        const std::function<void()> ends[] = {
            [&] { Click(3); }, [&] { Tarvex_Element2D_Circle_SetValue(Id, other, 0, 0, 0.1); },
            [&] { Tarvex_Window2D_SetDrawMode(Id, one.Mode); }};
        for (const auto& end : ends)
        {
            SCOPED_TRACE(&end - ends);
            Begin(PixelsOf(one.Points));
            const int band = CountYellow();
            EXPECT_GT(band, 50);
            // The rubber band stays on top of what comes meanwhile.
            const int32_t wide = Add("Element2D_Add_Point", {one.Points[1].X, -20});
            Tarvex_Element2D_SetColor(Id, wide, 0, 0, 255);
            Tarvex_Element2D_SetSize(Id, wide, 9);
            EXPECT_GT(CountYellow(), band - 9);
            end();
            Release(1);
            EXPECT_LT(CountYellow(), 9) << "dropped";
            Tarvex_Element2D_Remove(Id, wide);
        }
        EXPECT_EQ(heard, "");
        int yellow = 0;
        answer = [&] { yellow = CountYellow(); };
        Draw(PixelsOf(one.Points));
        ExpectValues(one.Type, lastElement, one.Expected);
        EXPECT_EQ(Read("Element2D_GetSize", lastElement), Numbers{1});
        EXPECT_EQ(Read("Element2D_GetColor", lastElement), (Numbers{255, 255, 0}));
        EXPECT_EQ(yellow, CountYellow()) << "seen by the host when it was told";
        Draw(PixelsOf(one.Points));
        EXPECT_EQ(heard, Told('a') + Told('a'));
        // A mode without a shape is none.
        Begin(PixelsOf(one.Points));
        EXPECT_EQ(Tarvex_Window2D_SetDrawMode(Id, one.Mode + 1), STATUS_WRONG_TYPE);
        Release(1);
        EXPECT_EQ(CountElements(), 3);
        Tarvex_Element2D_RemoveAll(Id);
        Prepare();
    }
}

TEST_F(ChartMouse, DragsHandles)
{
    const double s = std::sqrt(0.5);
    // Values, the way of the mouse, and the values afterwards.
    const std::tuple<std::string, Numbers, std::vector<Place>, Numbers> cases[] = {
        {"Circle", {5, 5, 20}, {{25, 5}, {33, 12}}, {5, 5, 28.86}},
        {"Circle", {5, 5, 20}, {{25, 5}, {5, 5}}, {5, 5, 0}},
        {"Circle", {0, 0, 0.9}, {{0, 0}, {9, 9}}, {9, 9, 0.9}},
        {"Rectangle", {0, 0, 40, 16, 30}, {{0, 0}, {12, 16}}, {12, 16, 40, 16, 30}},
        {"Rectangle", {0, 0, 40, 16, 0}, {{20, 8}, {28, 16}}, {4, 4, 48, 24, 0}},
        // An edge at right angles to the axes, and one that moves along the diagonal.
        {"Rectangle", {0, 0, 40, 16, 90}, {{0, 20}, {44, 36}}, {0, 8, 56, 16, 90}},
        {"Rectangle", {0, 0, 40, 16, -90}, {{8, 0}, {14, 44}}, {3, 0, 40, 22, -90}},
        {"Rectangle",
         {0, 0, 40, 16, 45},
         {{-20 * s, -20 * s}, {-36, -4}},
         {10 * s - 10, 10 * s - 10, 20 + 40 * s, 16, 45}},
        // Across what is opposite, and on: it stays put all the time.
        {"Rectangle",
         {0, 0, 40, 16, 0},
         {{20, 8}, {-24, -12}, {-28, -24}, {-36, -16}},
         {-28, -12, 16, 8, 0}},
        {"Rectangle", {0, 0, -40, 16, 0}, {{20, -8}, {36, -8}, {32, -16}}, {6, -4, 52, 24, 0}},
        {"Polygon", {3, -20, 20, 0, 0, -15, -15, 30, 0, 1}, {{0, 0}, {5, 6}}, {-15, -9, 1}},
        {"Polygon", {3, -20, 20, 0, 0, -15, -15, 30, 0, 1}, {{-20, -15}, {-26, -9}}, {-26, -9, 1}},
        // The axes from 1000 to 1005, more or less.
        {"Circle", {1002.5, 1002.5, 2.3}, {{1002.5, 1002.5}, {1003, 1002}}, {1003, 1002, 2.3}}};
    // A drag begins anew, wherever the last one of the handle has crossed to.
    const int32_t crossed = AddActive("Element2D_Add_Rectangle", {0, 0, 40, 16, 0});
    DragAlong({{20, 8}, {-36, -16}});
    DragAlong({{-20, -8}, {0, 8}});
    ExpectValues("Rectangle", crossed, {-18, -4, 36, 24, 0});
    for (const auto& [type, values, way, expected] : cases)
    {
        SCOPED_TRACE(testing::PrintToString(values));
        heard.clear();
        const int32_t element = AddActive("Element2D_Add_" + type, values);
        if (values[0] > 1000)
        {
            Tarvex_Window2D_ChartAutoScale(Id, 0);
        }
        // Also while another is drawn, but not a hidden one.
        Tarvex_Window2D_SetDrawMode(Id, type == "Circle" ? TARVEX_DRAW_POLYGON : TARVEX_DRAW_NONE);
        const Numbers range = Ranges();
        DragAlong(way);
        EXPECT_EQ(heard, Told('d'));
        ExpectValues(type, element, expected);
        EXPECT_EQ(Ranges(), range);
        heard.clear();
        Tarvex_Element2D_Show(Id, element, 0);
        Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_RECTANGLE);
        DragAlong({way.back(), {way[0].X, way[0].Y - 9 * Unit().Y}});
        EXPECT_EQ(heard, Told('a'));
        Tarvex_Element2D_RemoveAll(Id);
    }
}

TEST_F(ChartMouse, LetsTheHostDoAnything)
{
    for (const DrawCase& one : {drawCases[0], drawCases[2]})
    {
        for (const bool drags : {false, true})
        {
            SCOPED_TRACE(testing::Message() << drags << one.Mode);
            LetTheHostAnswer(drags ? 'd' : 'a',
                             [&]
                             {
                                 Other = AddActiveCircle();
                                 AddActiveCircle();
                                 Tarvex_Window2D_SetDrawMode(Id, one.Mode);
                                 drags ? DragAlong({{5, 5}, {15, 5}}) : Draw(PixelsOf(one.Points));
                             });
        }
    }
}

TEST_F(ChartMouse, PansAndZoomsWithTheButtonsOfTheMode)
{
    const auto change = [this](unsigned button, uint32_t mode = TARVEX_DRAW_NONE)
    {
        Tarvex_Window2D_SetDrawMode(Id, mode);
        const Numbers before = Ranges();
        DragAlong({{-20, 10}, {0, 0}, {15, -25}}, button);
        const Numbers after = Ranges();
        const double grown = (after[1] - after[0]) / (before[1] - before[0]);
        return std::abs(grown - 1) > 1e-3                ? "zoom"
               : std::abs(after[0] - before[0] + 35) < 1 ? "pan"
               : after == before                         ? ""
                                                         : "something else";
    };
    const auto reset = [this]
    {
        Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE);
        Tarvex_Element2D_RemoveAll(Id);
        AddActive("Element2D_Add_Circle", {0, 0, 45});
        Tarvex_Window2D_ChartAutoScale(Id, 0);
    };
    constexpr unsigned wheel = 4;
    const std::tuple<unsigned, std::string, std::string> cases[] = {
        {1, "pan", ""}, {2, "zoom", "pan"}, {3, "zoom", ""}, {wheel, "zoom", "zoom"}};
    // What is under way ends with the mode and with the active element, and the next begins.
    const std::function<void()> ends[] = {
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE); },
        [&] { Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE); },
        [&] { Tarvex_Window2D_SetActiveElement(Id, -1); }};
    for (const uint32_t mode : {TARVEX_DRAW_CIRCLE, TARVEX_DRAW_NONE})
    {
        for (const auto& [button, normal, drawing] : cases)
        {
            reset();
            EXPECT_EQ(change(button, mode), mode == TARVEX_DRAW_NONE ? normal : drawing) << button;
        }
    }
    // Each button after others: a second press within 0.4 seconds would begin no zoom.
    for (const auto& end : ends)
    {
        for (const auto& [button, normal, drawing] : cases)
        {
            SCOPED_TRACE(testing::Message() << &end - ends << ", " << button);
            reset();
            Go({-40, 10});
            Press(button);
            Go({-30, 0});
            end();
            const Numbers range = Ranges();
            Go({20, -20});
            Release(button);
            Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_NONE);
            Go({-10, 30});
            EXPECT_EQ(Ranges(), range);
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
    Draw(PixelsOf({{-40, -40}, {25, 5}, {0, 40}}));
    EXPECT_EQ(heard, Told('a'));
    ExpectValues("Circle", circle, {5, 5, 20});
}

TEST_F(ChartMouse, BelongsToTheViewThatItIsIn)
{
    XResizeWindow(Host.Connection, Host.Native, 2 * Pixels, Pixels);
    const int32_t circle = AddActiveCircle();
    const int32_t left = std::exchange(Id, TARVEX_NONE);
    Tarvex_Window2D_Create(Host.Handle(), 1, Pixels, 0, Pixels, Pixels, &Id);
    Prepare();
    Tarvex_Window2D_SetDrawMode(Id, TARVEX_DRAW_CIRCLE);
    Begin(PixelsOf(drawCases[1].Points));
    const std::string told = Told('a');
    const int32_t right = std::exchange(Id, left);
    Tarvex_Window2D_SetDrawMode(left, TARVEX_DRAW_RECTANGLE);
    Release(1);
    DragAlong({{5, 5}, {25, -15}});
    EXPECT_EQ(heard, told + Told('d'));
    ExpectValues("Circle", circle, {25, -15, 20});
    EXPECT_EQ(CountElements(), 1);
    Tarvex_Window2D_Delete(right);
}
