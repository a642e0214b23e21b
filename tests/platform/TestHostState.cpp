// What belongs to the host stays as it is: error handlers, OpenGL context, threads.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

// After the others, whose names Xlib's macros would break.
#include <GL/glx.h>
#include <X11/Xlib.h>

#include <array>
#include <atomic>
#include <functional>
#include <thread>
#include <unistd.h>

namespace
{
int hostErrors = 0;

int CountHostError(Display*, XErrorEvent*)
{
    return ++hostErrors;
}
} // namespace

TEST(HostState, ErrorsReachWhoseConnectionTheyAreOn)
{
    TestHost host;
    const XErrorHandler before = XSetErrorHandler(CountHostError);
    hostErrors = 0;
    TestView view(host.Handle());
    {
        TestView unusable(reinterpret_cast<void*>(0xdeadbeefUL));
    }
    EXPECT_EQ(hostErrors, 0);
    XDestroyWindow(host.Connection, 0xdeadbeefUL);
    XSync(host.Connection, False);
    EXPECT_EQ(hostErrors, 1);
    EXPECT_EQ(XSetErrorHandler(before), CountHostError);
}

TEST(HostState, OpenGLContextIsTheSameAfterEachCall)
{
    TestHost host;
    TestHost viewHost;
    int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, None};
    XVisualInfo* visual = glXChooseVisual(host.Connection, 0, attributes);
    const GLXContext context = glXCreateContext(host.Connection, visual, nullptr, True);
    XFree(visual);
    glXMakeCurrent(host.Connection, host.Native, context);
    {
        TestView view(viewHost.Handle());
        EXPECT_EQ(glXGetCurrentContext(), context);
        Tarvex_Window_UpdateSize(view.Id, -1, -1, 100, 90);
        Settle();
        EXPECT_EQ(glXGetCurrentContext(), context);
        viewHost.Destroy();
        EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(view.Delete(), STATUS_OK);
        EXPECT_EQ(glXGetCurrentContext(), context);
    }
    glXMakeCurrent(host.Connection, None, nullptr);
    glXDestroyContext(host.Connection, context);
    TestView view(host.Handle());
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
}

TEST(Threads, MayCallWhileAnotherPumps)
{
    alarm(120); // ends the process should they wait for each other
    TestHost host;
    TestView view(host.Handle(), 0, 0, 60, 50);
    const Picture before = TakePicture(view.Id);
    std::atomic<bool> stop = false;
    std::atomic<int> failures = 0;
    std::array<std::atomic<int>, 3> rounds = {};
    const auto expect = [&](int32_t status) { failures += status == STATUS_OK ? 0 : 1; };
    const std::function<void()> actions[] = {
        [&] { expect(view.Render()); },
        [&]
        {
            int32_t element = -1;
            expect(Tarvex_Element_Add_Line(view.Id, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, &element));
            expect(Tarvex_Element_Remove(view.Id, element));
        },
        [&] { expect(TestView(host.Handle(), 100, 100, 60, 50).Created); }};
    std::vector<std::thread> threads;
    for (size_t at = 0; at < 3; ++at)
    {
        threads.emplace_back(
            [&, at]
            {
                for (; !stop; ++rounds[at])
                {
                    actions[at]();
                }
            });
    }
    for (int step = 0; step < 40 || rounds[0] < 2 || rounds[1] < 2 || rounds[2] < 2; ++step)
    {
        host.MoveMouse(host.Native, step % 300, step % 200);
        expect(TarvexExt_ProcessEvents());
    }
    stop = true;
    for (std::thread& thread : threads)
    {
        thread.join();
    }
    alarm(0);
    EXPECT_EQ(failures, 0);
    view.Render();
    EXPECT_EQ(TakePicture(view.Id).CountDifferences(before), 0);
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
}
