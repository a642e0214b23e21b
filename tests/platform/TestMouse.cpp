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

    // What kind of motion the camera makes by a drag.
    std::string Drag(unsigned button)
    {
        const Numbers from = Read("Window_Camera_GetPosition");
        const Numbers before = Read("Window_Camera_GetViewDirection");
        Host.Drag(Native, button, 40, 40, 110, 90);
        const Numbers to = Read("Window_Camera_GetPosition");
        const Numbers now = Read("Window_Camera_GetViewDirection");
        if (vtkMath::Dot(before.data(), now.data()) < 0.9999)
        {
            return "turn";
        }
        const double step[] = {to[0] - from[0], to[1] - from[1], to[2] - from[2]};
        const double along = std::abs(vtkMath::Dot(step, now.data()));
        return vtkMath::Norm(step) < 1e-6           ? "none"
               : along > 0.99 * vtkMath::Norm(step) ? "zoom"
                                                    : "pan";
    }

    const NativeWindow Native = NativeOf(Id);
};
} // namespace

TEST_F(Mouse, TurnsPansAndZoomsTheCameraAsFarAsItIsSwitchedOn)
{
    // Left, middle, right, and both ways of the wheel.
    const std::string all[] = {"turn", "pan", "zoom", "zoom", "zoom"};
    for (const uint8_t off : {0, 1, 2, 4, 7})
    {
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, !(off & 1), !(off & 2), !(off & 4)),
                  STATUS_OK);
        for (unsigned button = 0; button < 5; ++button)
        {
            const bool isOff = (off >> std::min(button, 2U) & 1) != 0;
            EXPECT_EQ(Drag(button + 1), isOff ? "none" : all[button]) << int{off} << button;
        }
    }
    EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, 1, 1, 1), STATUS_OK);
    const KeyCode shift = XKeysymToKeycode(Host.Connection, XStringToKeysym("Shift_L"));
    XTestFakeKeyEvent(Host.Connection, shift, True, CurrentTime);
    EXPECT_EQ(Drag(1), "pan");
    XTestFakeKeyEvent(Host.Connection, shift, False, CurrentTime);
    EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, 0), STATUS_OK);
    EXPECT_EQ(Drag(1), "none");
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
    EXPECT_EQ(Drag(1), "turn");
}
