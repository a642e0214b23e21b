#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Picture.h"
#include "support/Process.h"
#include "support/TestHost.h"
#include "support/TestView.h"

// After GoogleTest, which its macros would break.
#include <X11/Xlib.h>

namespace
{
void CheckLost(TestView& view)
{
    int32_t width = 0;
    int32_t height = 0;
    int32_t element = 0;
    EXPECT_EQ(view.Guard(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(Tarvex_Window_UpdateSize(view.Id, 0, 0, 50, 50), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(Tarvex_Window_Camera_AutoSize(view.Id), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(Tarvex_Element_Add_Point(view.Id, 0.0, 0.0, 0.0, &element), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(element, -1);
    EXPECT_EQ(TarvexExt_Window_CopyImage(view.Id, nullptr, 0, &width, &height),
              STATUS_NO_NATIVE_WINDOW);
}

// Created all the same, guarded calls answer, deleting works.
void CheckUnusable(void* parent)
{
    TestView view(parent);
    EXPECT_EQ(view.Created, STATUS_OK);
    CheckLost(view);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}
} // namespace

TEST(Views, SeveralInOneAndInTwoParentsShowTheirPicturesThere)
{
    TestHost host;
    TestHost other;
    TestView first(host.Handle(), 0, 0);
    TestView second(host.Handle(), 220, 100);
    TestView third(other.Handle(), 10, 10);
    ASSERT_EQ(host.Children().size(), 2U);
    ASSERT_EQ(other.Children().size(), 1U);
    XRaiseWindow(host.Connection, host.Native);
    XSync(host.Connection, False);
    for (const TestView* view : {&first, &second})
    {
        EXPECT_EQ(view->Render(), STATUS_OK);
    }
    const int red = TakePicture(first.Id).Count(IsRed);
    EXPECT_GT(red, 500);
    for (const NativeWindow child : host.Children())
    {
        EXPECT_EQ(host.TakeScreen(child).Count(IsRed), red);
    }
    EXPECT_EQ(TakePicture(third.Id).Count(IsRed), red);
}

TEST(Views, LeavesTheParentWhenDeleted)
{
    TestHost host;
    TestView first(host.Handle());
    TestView second(host.Handle());
    const Picture before = TakePicture(second.Id);
    EXPECT_EQ(first.Delete(), STATUS_OK);
    EXPECT_EQ(host.Children().size(), 1U);
    EXPECT_EQ(second.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(second.Id).CountDifferences(before), 0);
}

TEST(Views, WithoutParentIsATopLevelWindowThatItsUserMayClose)
{
    TestHost host;
    TestView inHost(host.Handle());
    TestView view(nullptr);
    EXPECT_EQ(view.Guard(), STATUS_OK);
    EXPECT_GT(TakePicture(view.Id).Count(IsRed), 500);
    const NativeWindow native = NativeOf(view.Id);
    Window root = 0;
    Window parent = 0;
    Window* children = nullptr;
    unsigned count = 0;
    ASSERT_NE(XQueryTree(host.Connection, native, &root, &parent, &children, &count), 0);
    XFree(children);
    EXPECT_EQ(parent, root);
    Settle();

    // As a window manager does.
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = native;
    event.xclient.message_type = XInternAtom(host.Connection, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] =
        static_cast<long>(XInternAtom(host.Connection, "WM_DELETE_WINDOW", False));
    XSendEvent(host.Connection, native, False, NoEventMask, &event);
    XSync(host.Connection, False);
    Settle();
    CheckLost(view);
    EXPECT_EQ(inHost.Render(), STATUS_OK);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}

TEST(Views, InAnUnusableParentAnswerNoNativeWindow)
{
    TestHost host;
    CheckUnusable(reinterpret_cast<void*>(0xdeadbeefUL));
    const Window inputOnly = XCreateWindow(host.Connection, host.Native, 0, 0, 30, 30, 0, 0,
                                           InputOnly, static_cast<Visual*>(nullptr), 0, nullptr);
    XSync(host.Connection, False);
    CheckUnusable(reinterpret_cast<void*>(inputOnly));
    void* destroyed = host.Handle();
    host.Destroy();
    CheckUnusable(destroyed);
}

TEST(Views, AnswerNoNativeWindowOnAServerWithoutGlx)
{
    const int before = CountDescriptors();
    {
        const TestServer server({"-extension", "GLX"});
        TestHost host;
        CheckUnusable(host.Handle());
    }
    EXPECT_EQ(CountDescriptors(), before);
}

TEST(Views, AreLostAtOnceWhenTheirParentIsDestroyed)
{
    TestHost host;
    TestHost other;
    TestView first(host.Handle());
    TestView second(host.Handle(), 220, 0);
    TestView safe(other.Handle());
    first.AddSurface();
    const Picture before = TakePicture(safe.Id);
    host.Destroy();
    CheckLost(first);
    CheckLost(second);
    // A lost view keeps its elements.
    int32_t count = 0;
    EXPECT_EQ(Tarvex_Element_GetCount(first.Id, &count), STATUS_OK);
    EXPECT_EQ(count, 3);
    EXPECT_EQ(first.Delete(), STATUS_OK);
    EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    EXPECT_EQ(second.Delete(), STATUS_OK);
    EXPECT_EQ(safe.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(safe.Id).CountDifferences(before), 0);
}

TEST(Views, AreLostWhenTheHostClosesItsConnection)
{
    TestHost host;
    TestHost other;
    TestView view(host.Handle());
    TestView safe(other.Handle());
    host.CloseConnection();
    // The server does not say when it has done that.
    EXPECT_TRUE(SettleUntil([&] { return view.Guard() == STATUS_NO_NATIVE_WINDOW; }));
    CheckLost(view);
    EXPECT_EQ(view.Delete(), STATUS_OK);
    EXPECT_EQ(safe.Render(), STATUS_OK);
}

TEST(Views, KeepTheLastPictureUntilTheNextRenderAfterAResize)
{
    TestHost host;
    TestView view(host.Handle());
    const Picture before = TakePicture(view.Id);
    EXPECT_EQ(Tarvex_Window_UpdateSize(view.Id, -1, -1, 120, 90), STATUS_OK);
    EXPECT_EQ(TakePicture(view.Id).CountDifferences(before), 0);
    EXPECT_EQ(view.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(view.Id).Width, 120);
}
