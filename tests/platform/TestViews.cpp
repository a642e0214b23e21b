#include <gtest/gtest.h>

#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Picture.h"
#include "support/TestHost.h"
#include "support/TestView.h"

// After GoogleTest, which its macros would break.
#include <X11/Xlib.h>

namespace
{
void CheckLost(TestView& view)
{
    int32_t element = 0;
    EXPECT_EQ(view.Guard(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(Tarvex_Window_UpdateSize(view.Id, 0, 0, 50, 50), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(Tarvex_Element_Add_Point(view.Id, 0.0, 0.0, 0.0, &element), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(element, -1);
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

TEST(Views, WithoutParentIsATopLevelWindowThatItsUserMayClose)
{
    TestHost host;
    TestView inHost(host.Handle());
    TestView view(nullptr);
    EXPECT_EQ(view.Guard(), STATUS_OK);
    EXPECT_GT(TakePicture(view.Id).Count(IsRed), 500);
    const NativeWindow native = NativeOf(view.Id);
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
    void* destroyed = host.Handle();
    host.Destroy();
    CheckUnusable(destroyed);
}

TEST(Views, AreLostAtOnceWhenTheirParentIsDestroyed)
{
    TestHost host;
    TestHost other;
    TestView first(host.Handle());
    TestView second(host.Handle(), 220, 0);
    TestView safe(other.Handle());
    const Picture before = TakePicture(safe.Id);
    host.Destroy();
    CheckLost(first);
    CheckLost(second);
    EXPECT_EQ(first.Delete(), STATUS_OK);
    EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
    EXPECT_EQ(second.Delete(), STATUS_OK);
    EXPECT_EQ(safe.Render(), STATUS_OK);
    EXPECT_EQ(TakePicture(safe.Id).CountDifferences(before), 0);
}
