// Many views, and hosts that end their windows at any moment.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Picture.h"
#include "support/Process.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <X11/Xlib.h>

#include <chrono>
#include <random>
#include <sys/wait.h>
#include <unistd.h>

TEST(Cycles, LeaveNothingBehindHoweverTheParentEnds)
{
    TestHost keeper;
    TestView kept(keeper.Handle());
    const Picture picture = TakePicture(kept.Id);
    int descriptors = 0;
    [[maybe_unused]] long memory = 0;
    for (int cycle = 0; cycle < 100; ++cycle)
    {
        if (cycle == 40)
        {
            descriptors = CountDescriptors();
            memory = ResidentKilobytes();
        }
        TestHost host;
        TestView view(host.Handle());
        ASSERT_EQ(view.Render(), STATUS_OK);
        if (cycle % 3 == 1)
        {
            host.Destroy();
        }
        else if (cycle % 3 == 2)
        {
            host.CloseConnection();
        }
        ASSERT_EQ(view.Delete(), STATUS_OK);
    }
    EXPECT_EQ(CountDescriptors(), descriptors);
#ifndef __SANITIZE_ADDRESS__ // which keeps freed memory
    EXPECT_LT(ResidentKilobytes() - memory, 2000);
#endif
    EXPECT_EQ(kept.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(kept.Id).CountDifferences(picture), 0);
}

TEST(Cycles, SurviveAParentThatAnotherProcessDestroysAtAnyMoment)
{
    std::minstd_rand random(7); // NOLINT: the same moments in each run
    for (int round = 0; round < 20; ++round)
    {
        TestHost host;
        const useconds_t moment = random() % 120000;
        const pid_t destroyer = fork();
        if (destroyer == 0)
        {
            // Only system calls and a connection of its own: the other threads are not here.
            Display* display = XOpenDisplay(nullptr);
            usleep(moment);
            XDestroyWindow(display, host.Native);
            XSync(display, False);
            _exit(0);
        }
        TestView view(host.Handle());
        ASSERT_EQ(view.Created, STATUS_OK);
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        for (int step = 0; view.Render() == STATUS_OK && std::chrono::steady_clock::now() < end;
             ++step)
        {
            Tarvex_Window_UpdateSize(view.Id, -1, -1, 100 + step % 50, 100);
            ASSERT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
        }
        EXPECT_EQ(view.Guard(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(view.Delete(), STATUS_OK);
        waitpid(destroyer, nullptr, 0);
        host.Native = 0; // nothing left to destroy
    }
}
