// Parents, hosts and X servers that go under live views. Each case is a process of its own: what
// counts is also how it ends.
#include "TarvexExt.h"
#include "fuzz/Engine.h"
#include "platform/Inside.h"
#include "support/Effort.h"
#include "support/Process.h"
#include "support/TestView.h"

#include <gtest/gtest.h>

#include <csignal>
#include <dlfcn.h>
#include <optional>
#include <sys/uio.h>
#include <utility>

// After the others, whose names Xlib's macros would break.
#include <GL/glx.h>
#include <X11/Xlib.h>
#undef Status

namespace
{
bool isLost = false;
std::function<void()> happen;
int momentsLeft = 0; // until it does: before and after each write to an X server

void Lose()
{
    isLost = true;
    happen();
}
void PassMoment()
{
    if (momentsLeft > 0 && --momentsLeft == 0)
    {
        Lose();
    }
}
} // namespace

extern "C" __attribute__((visibility("default"))) ssize_t writev(int descriptor, const iovec* parts,
                                                                 int count)
{
    static const auto next = reinterpret_cast<decltype(&writev)>(dlsym(RTLD_NEXT, "writev"));
    PassMoment();
    const ssize_t written = next(descriptor, parts, count);
    written > 0 ? PassMoment() : void();
    return written;
}

namespace
{
// All functions of both kinds of view with good arguments, and a circle that the mouse draws, held
// against the model. Before one of the calls, or some moments later, the views' window goes.
class Session
{
public:
    Session(Engine& player, TestHost& host, int lossAt = -1, int moments = 0)
        : Player(player), Host(host), LossAt(lossAt), Moments(moments)
    {
        Hosted::Parents[0] = host.Handle();
        isLost = false;
        for (const bool onChart : {false, true})
        {
            UseView(onChart);
        }
        for (const bool onChart : {false, true})
        {
            Perform(MakeCall(onChart ? "Tarvex_Window2D_Delete" : "Tarvex_Window_Delete",
                             {Views[onChart]}));
        }
        momentsLeft = 0;
    }

    int Calls = 0;

private:
    void UseView(bool onChart)
    {
        const std::string window = onChart ? "Tarvex_Window2D_" : "Tarvex_Window_";
        const int side = onChart ? 96 : 64;
        const int middle = 20 + side / 2;
        Call create = MakeCall(window + "Create", {0, 1, 20, 20, double(side), double(side)});
        const double view = Views[onChart] = Perform(create).Outputs.at(0).at(0);
        PerformAll(onChart, [](const Function& function) { return function.Adds; });
        Perform(MakeCall(window + (onChart ? "ChartAutoScale" : "Camera_SetPredefinedView"),
                         {view, TARVEX_VIEW_FRONT}));
        // The callback ends the draw mode.
        Perform(MakeCall(window + "RegisterCallback_ElementAdded", {view, 3}));
        Perform(MakeCall(window + "SetDrawMode", {view, TARVEX_DRAW_CIRCLE}));
        const std::function<void()> gesture[] = {
            [&] { Host.MoveMouse(Host.Native, middle, middle); }, [&] { Host.Press(1); },
            [&] { Host.MoveMouse(Host.Native, middle + 10, middle - 10); },
            [&] { Host.Release(1); }};
        for (const auto& move : gesture)
        {
            momentsLeft = 0; // the host's own writes are none
            isLost ? void() : move();
            Step(
                []
                {
                    isLost ? void(TarvexExt_ProcessEvents()) : Settle();
                    return STATUS_OK;
                });
        }
        const auto isDrawn = [&]
        { return isLost || Player.GetModel().Views[onChart].back().DrawMode == 0; };
        EXPECT_TRUE(SettleUntil(isDrawn));
        const auto removes = [](const Function& function) { return function.NameHas("_Remove"); };
        PerformAll(onChart,
                   [&](const Function& function) {
                       return !function.Adds && !function.NameHas("_Delete") && !removes(function);
                   });
        PerformAll(onChart, removes);
    }
    // On the last element that each is for.
    void PerformAll(bool onChart, const std::function<bool(const Function&)>& isIt)
    {
        for (const Function& function : AllFunctions())
        {
            if (function.OnChart != onChart || !function.Has(Role::View) || !isIt(function))
            {
                continue;
            }
            Numbers ids = {Views[onChart], 0};
            for (const ModelElement& element : Player.GetModel().Views[onChart].back().Elements)
            {
                const bool isFor = element.Type == std::max(function.ElementType, 0);
                ids[1] = isFor ? element.Id : ids[1];
            }
            ids.resize(function.Has(Role::Element) ? 2 : 1);
            // The square of the side are a picture's bytes.
            Perform(MakeGood(function, ids, function.NameHas("CopyImage") ? 300 : 4));
        }
    }
    Call Perform(Call call)
    {
        Step(
            [&]
            {
                Player.Perform(call);
                return call.Status;
            });
        return call;
    }
    void Step(const std::function<int32_t()>& perform)
    {
        EXPECT_EQ(glXGetCurrentContext(), Context) << "before call " << Calls;
        if (Calls++ == LossAt)
        {
            momentsLeft = Moments;
            Moments == 0 ? Lose() : void();
        }
        const bool wasLost = isLost;
        const Model before = Player.GetModel();
        for (const bool onChart : {false, true})
        {
            ModelView* const view = Player.GetModel().Find(onChart, Views[onChart]);
            view&& isLost ? void(view->Usable = false) : void();
        }
        const int32_t status = perform();
        const bool isNow = isLost && !wasLost;
        if (isNow && status != STATUS_OK)
        {
            Player.GetModel() = before;
        }
        // Which furniture a view still has without a window is not the model's matter.
        const bool isKnown = isNow || (isLost && status == STATUS_NO_NATIVE_WINDOW);
        EXPECT_TRUE(isKnown || Player.GetComplaint().empty()) << Player.GetComplaint();
        Player.ForgetComplaint();
    }

    Engine& Player;
    TestHost& Host;
    const int LossAt;
    const int Moments;
    const GLXContext Context = glXGetCurrentContext();
    double Views[2] = {TARVEX_NONE, TARVEX_NONE};
};

// Hosts that want to outlive their server have this and an error handler that returns.
void Outlive(const TestHost& host)
{
    XSetIOErrorHandler([](Display*) { return 0; });
    XSetIOErrorExitHandler(
        host.Connection, [](Display*, void*) {}, nullptr);
}

// A server of its own with a view that nothing happens to unless the server goes.
struct Doomed
{
    explicit Doomed(Engine& player) : Player(player)
    {
        Outlive(Keeper);
        Hosted::Parents[0] = Keeper.Handle();
        Player.Begin(100);
        Kept = player.GetModel().Views[0].back().Id;
        Player.Do("Tarvex_Element_Add_Point", {double(Kept), 0, 0, 0});
        Before = TakePicture(Kept);
    }

    // In a session; returns how many calls it has.
    int LoseAt(int call, int moments, int (*hit)(Display*, XID))
    {
        TestHost host;
        Outlive(host);
        happen = [&]
        {
            hit ? hit(Keeper.Connection, std::exchange(host.Native, 0)) : 0;
            hit ? void(XSync(Keeper.Connection, False)) : Server.Kill();
        };
        const int calls = Session(Player, host, call, moments).Calls;
        isLost ? void() : Lose(); // there were not so many moments
        if (!hit)
        {
            EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_NO_NATIVE_WINDOW);
            return calls;
        }
        Player.Do("TarvexExt_ProcessEvents", {});
        Player.Do("Tarvex_Window_SetBackgroundColor", {double(Kept), 0, 0, 0});
        EXPECT_EQ(Player.GetComplaint(), "");
        EXPECT_EQ(TakePicture(Kept).CountDifferences(Before), 0);
        return calls;
    }

    Engine& Player;
    TestServer Server;
    TestHost Keeper;
    int32_t Kept;
    Picture Before;
};

// Before each call of a session, and some moments after many of them.
void LoseAnywhere(const std::string& what, int (*hit)(Display*, XID))
{
    testing::internal::CaptureStderr();
    // A dead server's contexts stay in memory, and those of the player's driver are the largest.
    hit ? 0 : setenv("GALLIUM_DRIVER", "llvmpipe", 0);
    Engine player(true, false);
    std::optional<Doomed> doomed;
    for (const bool later : {false, true})
    {
        const int step = Effort(75, (hit ? 1 : 3) * (later ? 3 : 1));
        int count = 0;
        for (int call = 0, calls = 1; call < calls; call += step, ++count)
        {
            SCOPED_TRACE(testing::Message() << "call " << call << (later ? " later" : ""));
            if (!doomed || !doomed->Server.IsAlive())
            {
                doomed.emplace(player);
            }
            calls = doomed->LoseAt(call, later ? 1 + call / 3 % 8 : 0, hit);
        }
        ReportFigure("loss", "no " + what + (later ? " in " : " before ") + std::to_string(count) +
                                 " calls of a session");
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    // A write to a socket that nobody reads raises SIGPIPE, and few hosts ignore it.
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    EXPECT_EQ(sigismember(&mask, SIGPIPE), 0);
}
} // namespace

TEST(Loss, EndsNoProcess)
{
    RunInProcesses("LossProcess");
}

TEST(LossProcess, DISABLED_OfTheParentIsSurvived)
{
    LoseAnywhere("parent", XDestroyWindow);
}
TEST(LossProcess, DISABLED_OfTheHostsConnectionIsSurvived)
{
    LoseAnywhere("host's connection", XKillClient);
}
TEST(LossProcess, DISABLED_OfTheServerIsSurvived)
{
    LoseAnywhere("server", nullptr);
}

TEST(LossProcess, DISABLED_OfTheServerEndsTheProcessNormallyWithLiveViews)
{
    TestServer server;
    TestHost host;
    Outlive(host);
    TestView view(host.Handle());
    view.AddSurface();
    server.Kill();
    view.Forget();
}

TEST(LossProcess, DISABLED_WithoutOpenGLAViewHasNoWindow)
{
    TestServer server(false);
    TestHost host;
    TestView view(host.Handle());
    EXPECT_EQ(view.Created, STATUS_OK);
    EXPECT_EQ(view.Render(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}

// For valgrind too. The OpenGL context is the host's own after each step, and when a view is lost.
TEST(LossProcess, DISABLED_IsNotNeededForASessionUnderTheHostsContext)
{
    Engine player(true, false);
    TestHost owner;
    int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, None};
    XVisualInfo* visual = glXChooseVisual(owner.Connection, 0, attributes);
    const GLXContext context = glXCreateContext(owner.Connection, visual, nullptr, True);
    XFree(visual);
    glXMakeCurrent(owner.Connection, owner.Native, context);
    player.Begin(4);
    const Session session(player, owner);
    TestHost host;
    happen = [&] { host.Destroy(); };
    const Session lost(player, host, 100);
    glXMakeCurrent(owner.Connection, None, nullptr);
    glXDestroyContext(owner.Connection, context);
}

TEST(Loss, OfATopLevelWindowThatItsUserCloses)
{
    TestHost host;
    TestView inHost(host.Handle());
    TestView view(nullptr);
    EXPECT_GT(TakePicture(view.Id).Count(IsRed), 500);
    Settle();

    // As a window manager does.
    const auto atom = [&](const char* name) { return XInternAtom(host.Connection, name, False); };
    const NativeWindow window = NativeOf(view.Id);
    const auto close = static_cast<long>(atom("WM_DELETE_WINDOW"));
    XEvent event;
    event.xclient = {ClientMessage, 0, 0, nullptr, window, atom("WM_PROTOCOLS"), 32,
                     {.l = {close}}};
    XSendEvent(host.Connection, window, False, NoEventMask, &event);
    XSync(host.Connection, False);
    Settle();
    EXPECT_EQ(view.Guard(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(inHost.Render(), STATUS_OK);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}
