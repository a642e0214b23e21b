// What mouse and keyboard do to the views they are meant for.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <array>
#include <cmath>
#include <vtkMath.h>

namespace
{
using Vector = std::array<double, 3>;

class Camera
{
public:
    explicit Camera(int32_t windowId)
    {
        Vector up;
        Tarvex_Window_Camera_GetPosition(windowId, &Position[0], &Position[1], &Position[2]);
        Tarvex_Window_Camera_GetViewDirection(windowId, &Direction[0], &Direction[1], &Direction[2],
                                              &up[0], &up[1], &up[2]);
    }

    // What kind of motion leads from here to `now`.
    const char* MotionTo(const Camera& now) const
    {
        Vector step;
        vtkMath::Subtract(now.Position, Position, step);
        if (vtkMath::Dot(Direction, now.Direction) < 0.9999)
        {
            return "turn";
        }
        if (vtkMath::Norm(step.data()) < 1e-6)
        {
            return "none";
        }
        const double along = std::abs(vtkMath::Dot(step, Direction));
        return along > 0.99 * vtkMath::Norm(step.data()) ? "zoom" : "pan";
    }

private:
    Vector Position;
    Vector Direction;
};

class Mouse : public testing::Test
{
protected:
    Mouse() { Settle(); }

    const char* MotionByDrag(unsigned button)
    {
        const Camera before(View.Id);
        Host.Drag(Native, button, 40, 40, 110, 90);
        return before.MotionTo(Camera(View.Id));
    }
    const char* MotionByWheel(unsigned button)
    {
        const Camera before(View.Id);
        Host.MoveMouse(Native, 40, 40);
        Host.Press(button);
        Host.Release(button);
        Settle();
        return before.MotionTo(Camera(View.Id));
    }

    TestHost Host;
    TestView View{Host.Handle(), 10, 10};
    const NativeWindow Native = NativeOf(View.Id);
};
} // namespace

TEST_F(Mouse, TurnsPansAndZoomsTheCameraAsFarAsItIsSwitchedOn)
{
    // Left, middle, right with wheel.
    const char* const all[] = {"turn", "pan", "zoom"};
    for (const uint8_t off : {0, 1, 2, 4, 7})
    {
        SCOPED_TRACE(static_cast<int>(off));
        const auto expected = [&](unsigned button)
        { return (off >> (button - 1) & 1) != 0 ? "none" : all[button - 1]; };
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(View.Id, !(off & 1), !(off & 2), !(off & 4)),
                  STATUS_OK);
        for (const unsigned button : {1U, 2U, 3U})
        {
            EXPECT_STREQ(MotionByDrag(button), expected(button));
        }
        EXPECT_STREQ(MotionByWheel(4), expected(3));
        EXPECT_STREQ(MotionByWheel(5), expected(3));
    }
    EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(View.Id, 1, 1, 1), STATUS_OK);
    const KeyCode shift = XKeysymToKeycode(Host.Connection, XStringToKeysym("Shift_L"));
    XTestFakeKeyEvent(Host.Connection, shift, True, CurrentTime);
    EXPECT_STREQ(MotionByDrag(1), "pan");
    XTestFakeKeyEvent(Host.Connection, shift, False, CurrentTime);
    EXPECT_EQ(Tarvex_Window_EnableInteraction(View.Id, 0), STATUS_OK);
    EXPECT_STREQ(MotionByDrag(1), "none");
}

TEST_F(Mouse, LeavesKeysToTheHost)
{
    XSelectInput(Host.Connection, Host.Native, KeyPressMask);
    XSetInputFocus(Host.Connection, Host.Native, RevertToParent, CurrentTime);
    Host.MoveMouse(Native, 50, 50);
    Settle();
    const Picture before = TakePicture(View.Id);
    const char* const keys[] = {"q", "e", "w", "s", "r", "3", "p", "f", "Escape"};
    int seen = 0;
    for (const char* key : keys)
    {
        Host.TypeKey(key);
        Settle();
        XEvent event;
        seen += XCheckMaskEvent(Host.Connection, KeyPressMask, &event) ? 1 : 0;
    }
    EXPECT_EQ(seen, static_cast<int>(std::size(keys)));
    EXPECT_EQ(View.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(View.Id).CountDifferences(before), 0);
    EXPECT_STREQ(MotionByDrag(1), "turn");
}
