// Window events: when there are some, and that each is handled once.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <X11/Xlib.h>

#include <chrono>
#include <poll.h>
#include <thread>

namespace
{
class Pump : public testing::Test
{
protected:
    Pump() { Settle(); }

    static bool IsReadable(int milliseconds)
    {
        int32_t descriptor = -1;
        EXPECT_EQ(TarvexExt_GetEventDescriptor(&descriptor), STATUS_OK);
        pollfd waiting = {descriptor, POLLIN, 0};
        return poll(&waiting, 1, milliseconds) == 1;
    }
    // All that was sent has reached the library's connection after this.
    static void WaitForArrival() { std::this_thread::sleep_for(std::chrono::milliseconds(50)); }

    TestHost Host;
    TestView View{Host.Handle(), 20, 20};
    const NativeWindow Native = NativeOf(View.Id);
};
} // namespace

TEST_F(Pump, DescriptorIsReadableExactlyWhileEventsWait)
{
    EXPECT_FALSE(IsReadable(50));
    Host.MoveMouse(Native, 50, 60);
    EXPECT_TRUE(IsReadable(2000));
    WaitForArrival();
    EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    EXPECT_FALSE(IsReadable(50));
}

TEST_F(Pump, HundredQueuedMotionsCauseOneRender)
{
    Host.MoveMouse(Native, 20, 20);
    Host.Press(1);
    Settle();
    RenderCounter renders(View.Id);
    for (int step = 0; step < 100; ++step)
    {
        Host.MoveMouse(Native, 21 + step, 20 + step % 7);
    }
    WaitForArrival();
    EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    EXPECT_EQ(renders.Count, 1);
    Host.Release(1);
    Settle();
}

TEST_F(Pump, RepaintsWhatWasCovered)
{
    View.Render();
    const Picture before = Host.TakeScreen(Native);
    ASSERT_GT(before.Count(IsRed), 500);
    const Window cover =
        XCreateSimpleWindow(Host.Connection, Host.Native, 0, 0, 150, 400, 0, 0, 0xffffff);
    XMapRaised(Host.Connection, cover);
    XSync(Host.Connection, False);
    Settle();
    XDestroyWindow(Host.Connection, cover);
    XSync(Host.Connection, False);
    ASSERT_GT(Host.TakeScreen(Native).CountDifferences(before), 100);
    RenderCounter renders(View.Id);
    EXPECT_TRUE(SettleUntil([&] { return renders.Count > 0; }));
    EXPECT_EQ(Host.TakeScreen(Native).CountDifferences(before), 0);
}

TEST_F(Pump, RepaintsAfterUpdateSizeAndAfterAResizeByTheHost)
{
    EXPECT_EQ(Tarvex_Window_UpdateSize(View.Id, 5, 6, 320, 240), STATUS_OK);
    Settle();
    Picture screen = Host.TakeScreen(Native);
    EXPECT_EQ(screen.Width, 320);
    EXPECT_GT(screen.Count(IsRed), 500);
    EXPECT_EQ(TakePicture(View.Id).CountDifferences(screen), 0);

    XResizeWindow(Host.Connection, Native, 130, 110);
    XSync(Host.Connection, False);
    Settle();
    screen = Host.TakeScreen(Native);
    EXPECT_EQ(screen.Width, 130);
    EXPECT_EQ(TakePicture(View.Id).CountDifferences(screen), 0);
    EXPECT_GT(screen.Count(IsRed), 300);
}
