// An X server that dies under live views. Each case is a process of its own: what counts is also
// how it ends.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Picture.h"
#include "support/Process.h"
#include "support/TestHost.h"
#include "support/TestView.h"

#include <X11/Xlib.h>

#include <chrono>
#include <csignal>
#include <dlfcn.h>
#include <functional>
#include <random>
#include <sys/uio.h>
#include <thread>
#include <utility>

namespace
{
// Runs once, between XCB's look at its socket and its write.
std::function<void()> beforeWrite;
} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t writev(int descriptor, const iovec* parts,
                                                                 int count)
{
    if (const auto action = std::exchange(beforeWrite, nullptr))
    {
        action();
    }
    static const auto next = reinterpret_cast<decltype(&writev)>(dlsym(RTLD_NEXT, "writev"));
    return next(descriptor, parts, count);
}

namespace
{
void WorksHere()
{
    TestHost host;
    TestView view(host.Handle());
    EXPECT_EQ(view.Render(), STATUS_OK);
    EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    EXPECT_GT(TakePicture(view.Id).Count(IsRed), 500);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}

// The server of a case, a host on it, and a view.
struct Doomed
{
    Doomed()
    {
        // The host's own connection dies as well. A host that wants to live has both of these.
        XSetIOErrorHandler([](Display*) { return 0; });
        XSetIOErrorExitHandler(
            Host.Connection, [](Display*, void*) {}, nullptr);
        View.AddSurface();
    }

    TestServer Server;
    TestHost Host;
    TestView View{Host.Handle()};
};

} // namespace

TEST(ServerLoss, EndsNoProcess)
{
    RunInProcesses("ServerLossProcess");
}

TEST(ServerLossProcess, DISABLED_EndsTheProcessNormallyWithLiveViews)
{
    Doomed doomed;
    doomed.Server.Kill();
    doomed.View.Forget();
}

TEST(ServerLossProcess, DISABLED_WithoutOpenGLAViewHasNoWindow)
{
    TestServer server(false);
    TestHost host;
    TestView view(host.Handle());
    EXPECT_EQ(view.Created, STATUS_OK);
    EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}

// A write to a socket that nobody reads raises SIGPIPE, and few hosts ignore it.
TEST(ServerLossProcess, DISABLED_JustBeforeAWriteRaisesNoSignal)
{
    {
        Doomed doomed;
        bool killed = false;
        beforeWrite = [&]
        {
            doomed.Server.Kill();
            killed = true;
        };
        doomed.View.Render();
        EXPECT_TRUE(killed);
        EXPECT_EQ(doomed.View.Guard(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(doomed.View.Delete(), STATUS_OK);
    }
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    EXPECT_EQ(sigismember(&mask, SIGPIPE), 0);
    WorksHere();
}

TEST(ServerLossProcess, DISABLED_AtAnyMomentOfAnyCallIsSurvived)
{
    std::minstd_rand random(3); // NOLINT: the same moments in each run
    testing::internal::CaptureStderr();
    for (int round = 0; round < 15; ++round)
    {
        Doomed doomed;
        const auto moment = std::chrono::microseconds(random() % 150000);
        std::thread killer(
            [&]
            {
                std::this_thread::sleep_for(moment);
                doomed.Server.Kill();
            });
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        do
        {
            TestView brief(nullptr);
            Tarvex_Window_UpdateSize(doomed.View.Id, -1, -1, 100 + round, 100);
            TarvexExt_ProcessEvents();
        } while (doomed.View.Render() == STATUS_OK && std::chrono::steady_clock::now() < end);
        EXPECT_EQ(doomed.View.Guard(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(doomed.View.Delete(), STATUS_OK);
        killer.join();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    WorksHere();
}
