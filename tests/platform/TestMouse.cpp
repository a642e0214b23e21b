// What mouse and keyboard do to the views they are meant for.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/ViewFixture.h"

#include <X11/Xlib.h>
#include <X11/extensions/XTest.h>

#include <cmath>
#include <vtkMath.h>

namespace
{
class Mouse : public ViewFixture
{
protected:
    Mouse()
    {
        AddLine(0, 0, 0, 1, 1, 1);
        Tarvex_Window_Camera_AutoSize(Id);
        Settle();
    }

    // What kind of motion the camera makes meanwhile.
    std::string MotionBy(const std::function<void()>& action) const
    {
        const Numbers from = Read("Window_Camera_GetPosition");
        const Numbers before = Read("Window_Camera_GetViewDirection");
        action();
        const Numbers to = Read("Window_Camera_GetPosition");
        const Numbers now = Read("Window_Camera_GetViewDirection");
        if (vtkMath::Dot(before.data(), now.data()) < 0.9999)
        {
            return "turn";
        }
        const double step[] = {to[0] - from[0], to[1] - from[1], to[2] - from[2]};
        if (vtkMath::Norm(step) < 1e-6)
        {
            return "none";
        }
        const double along = std::abs(vtkMath::Dot(step, now.data()));
        return along > 0.99 * vtkMath::Norm(step) ? "zoom" : "pan";
    }
    std::string MotionByDrag(unsigned button)
    {
        return MotionBy([&] { Host.Drag(Native, button, 40, 40, 110, 90); });
    }
    std::string MotionByWheel(unsigned button)
    {
        return MotionBy(
            [&]
            {
                Host.MoveMouse(Native, 40, 40);
                Host.Press(button);
                Host.Release(button);
                Settle();
            });
    }

    const NativeWindow Native = NativeOf(Id);
};
} // namespace

TEST_F(Mouse, TurnsPansAndZoomsTheCameraAsFarAsItIsSwitchedOn)
{
    // Left, middle, right with wheel.
    const std::string all[] = {"turn", "pan", "zoom"};
    for (const uint8_t off : {0, 1, 2, 4, 7})
    {
        SCOPED_TRACE(static_cast<int>(off));
        const auto expected = [&](unsigned button)
        { return (off >> (button - 1) & 1) != 0 ? std::string("none") : all[button - 1]; };
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, !(off & 1), !(off & 2), !(off & 4)),
                  STATUS_OK);
        for (const unsigned button : {1U, 2U, 3U})
        {
            EXPECT_EQ(MotionByDrag(button), expected(button));
        }
        EXPECT_EQ(MotionByWheel(4), expected(3));
        EXPECT_EQ(MotionByWheel(5), expected(3));
    }
    EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1), STATUS_OK);
    const KeyCode shift = XKeysymToKeycode(Host.Connection, XStringToKeysym("Shift_L"));
    XTestFakeKeyEvent(Host.Connection, shift, True, CurrentTime);
    EXPECT_EQ(MotionByDrag(1), "pan");
    XTestFakeKeyEvent(Host.Connection, shift, False, CurrentTime);
    EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, 0), STATUS_OK);
    EXPECT_EQ(MotionByDrag(1), "none");
}

TEST_F(Mouse, LeavesKeysToTheHost)
{
    XSelectInput(Host.Connection, Host.Native, KeyPressMask);
    XSetInputFocus(Host.Connection, Host.Native, RevertToParent, CurrentTime);
    Host.MoveMouse(Native, 50, 50);
    Settle();
    const Picture before = TakePicture(Id);
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
    Tarvex_Window_SetBackgroundColor(Id, 0, 0, 0);
    EXPECT_EQ(TakePicture(Id).CountDifferences(before), 0);
    EXPECT_EQ(MotionByDrag(1), "turn");
}
