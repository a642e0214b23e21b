// What belongs to the host stays as it is: error handlers, OpenGL context, messages, threads.
#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

// After the others, whose names Xlib's macros would break.
#include "platform/HostContext.h"

#include <X11/Xlib.h>
#include <X11/cursorfont.h>
#include <X11/extensions/Xfixes.h>

#include <algorithm>
#include <array>
#include <atomic>
#include <thread>
#include <unistd.h>
#include <vtkLogger.h>
#include <vtkObjectFactory.h>
#include <vtkOutputWindow.h>

namespace
{
int hostErrors = 0;

int CountHostError(Display*, XErrorEvent*)
{
    return ++hostErrors;
}

class HostMessages : public vtkOutputWindow
{
public:
    static HostMessages* New();
    vtkTypeMacro(HostMessages, vtkOutputWindow);
    void DisplayText(const char*) override { ++Count; }

    int Count = 0;
};
vtkStandardNewMacro(HostMessages);

// The shape of the mouse pointer as the server draws it.
std::vector<unsigned long> CursorPixels(const TestHost& host)
{
    XFixesCursorImage* image = XFixesGetCursorImage(host.Connection);
    std::vector<unsigned long> pixels(image->pixels, image->pixels + image->width * image->height);
    XFree(image);
    return pixels;
}

void SetCursor(int32_t windowId, int shape)
{
    Inside(windowId, [&](CWindow& view) { view.GetRenderWindow()->SetCurrentCursor(shape); });
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
    // Inside a call of ours, as a callback of the host's might.
    Inside(view.Id,
           [&](CWindow&)
           {
               XDestroyWindow(host.Connection, 0xdeadbeefUL);
               XSync(host.Connection, False);
           });
    EXPECT_EQ(hostErrors, 1);
    EXPECT_EQ(XSetErrorHandler(before), CountHostError);
}

TEST(HostState, OpenGLContextIsTheSameAfterEachCall)
{
    TestHost host;
    TestHost viewHost;
    {
        const HostContext context(host);
        TestView view(viewHost.Handle());
        EXPECT_TRUE(context.IsUntouched());
        view.Render();
        Settle();
        Tarvex_Window_UpdateSize(view.Id, -1, -1, 100, 90);
        Settle();
        EXPECT_TRUE(context.IsUntouched());
        TestView lost(host.Handle());
        viewHost.Destroy();
        EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(view.Delete(), STATUS_OK);
        EXPECT_TRUE(context.IsUntouched());
    }
    TestView view(host.Handle());
    view.Render();
    EXPECT_EQ(glXGetCurrentContext(), nullptr);
}

TEST(HostState, VtkMessagesAreKeptFromStandardErrorAndFromTheHost)
{
    TestHost host;
    TestView view(host.Handle());
    const vtkNew<HostMessages> messages;
    vtkOutputWindow::SetInstance(messages);
    const auto verbosity = vtkLogger::GetCurrentVerbosityCutoff();
    testing::internal::CaptureStderr();
    Inside(view.Id, [](CWindow&) { vtkGenericWarningMacro("a complaint of VTK's"); });
    view.Render();
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    EXPECT_EQ(messages->Count, 0);
    EXPECT_EQ(vtkOutputWindow::GetInstance(), messages.GetPointer());
    EXPECT_EQ(vtkLogger::GetCurrentVerbosityCutoff(), verbosity);
    vtkOutputWindow::SetInstance(nullptr);
    std::array<char, 500> text = {};
    EXPECT_EQ(TarvexExt_GetLastError(text.data(), static_cast<int32_t>(text.size())), STATUS_OK);
    EXPECT_NE(std::string(text.data()).find("a complaint of VTK's"), std::string::npos);
}

TEST(HostState, CursorOfAViewChangesWithoutAnotherCall)
{
    TestHost host;
    TestView view(host.Handle());
    Settle();
    const Window sample =
        XCreateSimpleWindow(host.Connection, host.Native, 300, 300, 50, 50, 0, 0, 0);
    XMapWindow(host.Connection, sample);
    for (const auto& [shape, glyph] :
         {std::pair{VTK_CURSOR_SIZEALL, XC_fleur}, std::pair{VTK_CURSOR_ARROW, XC_top_left_arrow}})
    {
        XDefineCursor(host.Connection, sample, XCreateFontCursor(host.Connection, glyph));
        host.MoveMouse(sample, 20, 20);
        const std::vector<unsigned long> expected = CursorPixels(host);
        host.MoveMouse(NativeOf(view.Id), 50, 50);
        EXPECT_NE(CursorPixels(host), expected);
        SetCursor(view.Id, shape);
        for (int wait = 0; wait < 100 && CursorPixels(host) != expected; ++wait)
        {
            std::this_thread::sleep_for(std::chrono::milliseconds(10));
        }
        EXPECT_EQ(CursorPixels(host), expected);
    }
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
    std::vector<std::thread> threads;
    threads.emplace_back(
        [&]
        {
            for (; !stop; ++rounds[0])
            {
                expect(view.Render());
            }
        });
    threads.emplace_back(
        [&]
        {
            for (; !stop; ++rounds[1])
            {
                int32_t element = -1;
                expect(Tarvex_Element_Add_Line(view.Id, 0.0, 0.0, 0.0, 0.0, 1.0, 0.0, &element));
                expect(Tarvex_Element_Remove(view.Id, element));
            }
        });
    threads.emplace_back(
        [&]
        {
            for (; !stop; ++rounds[2])
            {
                TestView brief(host.Handle(), 100, 100, 60, 50);
                expect(brief.Created);
                int32_t count = 0;
                expect(Tarvex_Window_GetCount(&count));
            }
        });
    const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(3);
    const auto everyoneCalled = [&] {
        return std::all_of(rounds.begin(), rounds.end(),
                           [](const auto& count) { return count > 1; });
    };
    for (int step = 0; std::chrono::steady_clock::now() < end || !everyoneCalled(); ++step)
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
