// What a real mouse does in a view of either kind, and what the host hears of it.
#pragma once

#include "TarvexExt.h"
#include "view2d/InsideChart.h"
#include "view3d/InsideScene.h"

#include <stdexcept>

// GLX's own header brings Xlib's macros.
extern "C" struct __GLXcontextRec* glXGetCurrentContext();

struct Pixel // from the upper left corner of the view
{
    int X, Y;
};

// The two kinds of view by the calls that they have in common.
template <bool onChart>
struct ViewKind
{
    using Fixture = std::conditional_t<onChart, InsideChart, InsideScene>;
    using View = std::conditional_t<onChart, CWindow2D, CWindow>;
    static constexpr auto Create = onChart ? Tarvex_Window2D_Create : Tarvex_Window_Create;
    static constexpr auto Delete = onChart ? Tarvex_Window2D_Delete : Tarvex_Window_Delete;
    static constexpr auto OnAdded = onChart ? Tarvex_Window2D_RegisterCallback_ElementAdded
                                            : Tarvex_Window_RegisterCallback_ElementAdded;
    static constexpr auto OnDragged = onChart ? Tarvex_Window2D_RegisterCallback_ElementDragged
                                              : Tarvex_Window_RegisterCallback_ElementDragged;
    static constexpr auto SetDrawMode =
        onChart ? Tarvex_Window2D_SetDrawMode : Tarvex_Window_SetDrawMode;
    static constexpr auto SetActiveElement =
        onChart ? Tarvex_Window2D_SetActiveElement : Tarvex_Window_SetActiveElement;
    static constexpr auto Remove = onChart ? Tarvex_Element2D_Remove : Tarvex_Element_Remove;
    static constexpr auto RemoveAll =
        onChart ? Tarvex_Element2D_RemoveAll : Tarvex_Element_RemoveAll;
    static constexpr auto GetCount = onChart ? Tarvex_Element2D_GetCount : Tarvex_Element_GetCount;
    static constexpr auto Look = onChart ? TakeChartPicture : TakePicture;
};
using SceneKind = ViewKind<false>;
using ChartKind = ViewKind<true>;

// What the host heard, and what it does then.
inline std::string heard;
inline int32_t lastElement = TARVEX_NONE;
inline std::function<void()> answer;

// An 'a' for an element that was added, a 'd' for one that was dragged.
template <char kind>
void Hear(int32_t view, int32_t element)
{
    heard += kind + std::to_string(view) + " ";
    lastElement = element;
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
    if (answer)
    {
        answer();
        EXPECT_EQ(glXGetCurrentContext(), nullptr);
    }
}

template <class Kind>
class MouseFixture : public Kind::Fixture
{
protected:
    using Kind::Fixture::Host;
    using Kind::Fixture::Id;
    using Kind::Fixture::Pixels;
    using Kind::Fixture::View;

    MouseFixture() { Prepare(); }
    ~MouseFixture() override { answer = nullptr; }

    // A view that is new.
    void Prepare() const
    {
        heard.clear();
        answer = nullptr;
        Kind::OnAdded(Id, Hear<'a'>);
        Kind::OnDragged(Id, Hear<'d'>);
        Settle();
    }
    std::string Told(char kind) const { return kind + std::to_string(Id) + " "; }
    NativeWindow Native() const { return NativeOf<typename Kind::View>(Id); }
    int32_t AddActive(const std::string& add, const Numbers& values) const
    {
        const int32_t element = this->Add(add, values);
        EXPECT_EQ(Kind::SetActiveElement(Id, element), STATUS_OK);
        this->Render();
        return element;
    }

    void MoveTo(const Pixel& to)
    {
        Host.MoveMouse(Native(), to.X, to.Y);
        Settle();
    }
    void Press(unsigned button, bool down = true)
    {
        Host.Press(button, down);
        Settle();
    }
    void Release(unsigned button) { Press(button, false); }
    void Click(unsigned button)
    {
        Press(button);
        Release(button);
    }
    void Drag(unsigned button, const Pixel& from, const Pixel& to, int steps = 2)
    {
        Host.Drag(Native(), button, from.X, from.Y, to.X, to.Y, steps);
    }
    // From one point to another, or with a click at each of more: up to where the left button is
    // held at the last.
    void Begin(const std::vector<Pixel>& points)
    {
        for (const Pixel& point : points)
        {
            const bool clicks = points.size() > 2;
            clicks ? Release(1) : void();
            MoveTo(point);
            clicks || &point == &points[0] ? Press(1) : void();
        }
    }
    void Draw(const std::vector<Pixel>& points)
    {
        Begin(points);
        Release(1);
        if (points.size() > 2)
        {
            // A chart's last vertex is still a moving one until the mouse goes on.
            Host.MoveMouse(Host.Native, 100, 95);
            Click(3);
        }
    }
    // The host does each of many things when it hears of the gesture; the next is as good as ever.
    void LetTheHostAnswer(char kind, const std::function<void()>& gesture)
    {
        const std::function<void()> actions[] = {
            [this] { Kind::SetDrawMode(Id, TARVEX_DRAW_NONE); },
            [this] { Kind::SetDrawMode(Id, TARVEX_DRAW_CIRCLE); },
            [this] { Kind::SetActiveElement(Id, lastElement); },
            [this] { Kind::SetActiveElement(Id, Other); },
            [this] { Kind::Remove(Id, lastElement); },
            [this] { Kind::RemoveAll(Id); },
            [] { TarvexExt_ProcessEvents(); },
            [] { throw std::runtime_error("the host's own"); },
            [this]
            {
                EXPECT_EQ(Kind::Delete(Id), STATUS_OK);
                EXPECT_EQ(Host.Children().size(), 0U);
            }};
        for (const auto& action : actions)
        {
            SCOPED_TRACE(testing::Message() << "action " << &action - actions);
            answer = action;
            gesture();
            EXPECT_EQ(heard, Told(kind));
            if (Host.Children().empty())
            {
                Host.MoveMouse(Host.Native, 50, 60);
                Settle();
                Kind::Create(Host.Handle(), 1, 0, 0, Pixels, Pixels, &Id);
            }
            // Nothing hangs on to the mouse.
            Prepare();
            const Picture before = Kind::Look(Id);
            MoveTo({50, 60});
            MoveTo({90, 20});
            EXPECT_EQ(Kind::Look(Id).CountDifferences(before), 0);
            gesture();
            EXPECT_EQ(heard, Told(kind)) << "the next gesture";
            Prepare();
            Kind::RemoveAll(Id);
        }
    }

    int CountYellow() const
    {
        return Kind::Look(Id).Count([](const Picture::Color& color)
                                    { return color[0] > 99 && color[1] > 99 && color[2] < 60; });
    }
    int32_t CountElements() const
    {
        int32_t count = -1;
        Kind::GetCount(Id, &count);
        return count;
    }

    int32_t Other = TARVEX_NONE; // an element that is not the one of the gesture
};
