// Parents, hosts and X servers that go under live views. Each case is a process of its own: what
// counts is also how it ends.
#include "TarvexExt.h"
#include "platform/Inside.h"
#include "support/Effort.h"
#include "support/Functions.h"
#include "support/Process.h"
#include "support/TestView.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <chrono>
#include <csignal>
#include <dlfcn.h>
#include <map>
#include <random>
#include <sys/uio.h>
#include <thread>
#include <unistd.h>
#include <utility>

// After the others, whose names Xlib's macros would break.
#include <GL/glx.h>
#include <X11/Xlib.h>

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
int drawn = 0; // elements, by the mouse

// All functions of both kinds of view with good arguments, and a circle that the mouse draws;
// before one of the calls the views' window goes, or never.
class Session
{
public:
    explicit Session(TestHost& host, int lossAt = -1, const std::function<void()>& lose = {})
        : Host(host), LossAt(lossAt), Lose(lose)
    {
        Hosted::Parents[0] = host.Handle(); // also when there is none any more
        UseView(false);
        UseView(true);
        for (const bool onChart : {false, true})
        {
            Next();
            EXPECT_EQ(Make(onChart, "Delete").Perform(), STATUS_OK);
        }
        Next();
    }

    int Calls = 0;

private:
    void UseView(bool onChart)
    {
        Next();
        Call create = Make(onChart, "Create", {1, 20, 20, 200, 150});
        create.Scalars[0] = 0; // the parent
        EXPECT_EQ(create.Perform(), STATUS_OK);
        Views[onChart] = create.Outputs.at(0).at(0);
        Hosted::Callbacks[onChart][1] = [](int32_t, int32_t) { ++drawn; };
        EXPECT_EQ(Make(onChart, "RegisterCallback_ElementAdded", {1}).Perform(), STATUS_OK);
        CheckAll(onChart, [](const Function& function) { return function.Adds; });

        const Numbers space = {-20, 20, -20, 20, -20, 20};
        Check(Make(onChart, "SetDrawSpace", {space.begin(), space.end() - 2 * onChart}));
        Check(onChart ? Make(true, "ChartAutoScale", {1})
                      : Make(false, "Camera_SetPredefinedView", {TARVEX_VIEW_FRONT}));
        Check(Make(onChart, "SetDrawMode", {TARVEX_DRAW_CIRCLE}));
        UseHand([this] { Host.MoveMouse(Host.Native, 120, 95); });
        UseHand([this] { Host.Press(1); });
        UseHand([this] { Host.MoveMouse(Host.Native, 130, 85); });
        UseHand([this] { Host.Release(1); });
        Check(Make(onChart, "SetDrawMode", {TARVEX_DRAW_NONE}));

        // The first ones need no window; what scales to heights is not for intensities.
        CheckAll(onChart,
                 [](const Function& function)
                 {
                     return function.Has(Role::View) && !function.Adds &&
                            !IsAmong(function, {"_Delete", "_GetCount", "_GetIDFrom", "_GetType",
                                                "_Register", "Default", "_ZScaling", "_Remove"});
                 });
        CheckAll(onChart, [](const Function& function) { return function.NameHas("_Remove"); });
    }

    void Next()
    {
        EXPECT_EQ(glXGetCurrentContext(), Context) << "before call " << Calls;
        if (Calls++ == LossAt)
        {
            Lose();
            Lost = true;
        }
    }
    // What the host's hand does, as long as it has one.
    void UseHand(const std::function<void()>& move)
    {
        Next();
        if (!Lost)
        {
            move();
        }
        Settle();
    }
    Call Make(bool onChart, const std::string& name, Numbers given = {}) const
    {
        given.insert(given.begin(), Views[onChart]);
        return MakeCall((onChart ? "Tarvex_Window2D_" : "Tarvex_Window_") + name, given);
    }
    Call Check(Call call)
    {
        Next();
        const int32_t status = call.Perform();
        // Nor are there parts to switch that could not be added.
        const bool isLost = status == STATUS_NO_NATIVE_WINDOW || status == STATUS_NOT_READY;
        EXPECT_TRUE(Lost ? isLost : status == STATUS_OK) << call.Describe();
        return call;
    }
    static bool IsAmong(const Function& function, const std::vector<const char*>& parts)
    {
        return std::ranges::any_of(parts, [&](const char* part) { return function.NameHas(part); });
    }
    // On the last element that each is for.
    void CheckAll(bool onChart, const std::function<bool(const Function&)>& isIt)
    {
        for (const Function& function : AllFunctions())
        {
            if (function.OnChart != onChart || !isIt(function))
            {
                continue;
            }
            const bool isFurniture = IsAmong(function, {"ScalarBar", "Cube_Add"});
            double& element = Elements[onChart][isFurniture ? TARVEX_ELEMENT_SURFACE_UNIFORM
                                                            : function.ElementType];
            Numbers ids = {Views[onChart]};
            if (function.Has(Role::Element))
            {
                ids.push_back(element);
            }
            const int side = function.NameHas("CopyImage") ? 300 : 4; // its square are the bytes
            const Call call = Check(MakeGood(function, ids, side));
            element = function.Adds ? call.Outputs.back().at(0) : element;
        }
    }

    TestHost& Host;
    const int LossAt;
    const std::function<void()> Lose;
    const GLXContext Context = glXGetCurrentContext();
    bool Lost = false;
    double Views[2] = {TARVEX_NONE, TARVEX_NONE};
    std::map<int32_t, double> Elements[2]; // by type
};

// A server of its own with two hosts: one that something happens to, and one that keeps its view
// unless the server goes.
struct Doomed
{
    Doomed()
    {
        // A host that wants to outlive its server has both of these.
        XSetIOErrorHandler([](Display*) { return 0; });
        for (Display* connection : {Keeper.Connection, Host.Connection})
        {
            XSetIOErrorExitHandler(
                connection, [](Display*, void*) {}, nullptr);
        }
        View.AddSurface();
    }

    void CheckWhatIsLeft()
    {
        EXPECT_EQ(View.Guard(), STATUS_NO_NATIVE_WINDOW);
        EXPECT_EQ(View.Delete(), STATUS_OK);
        if (!Server.IsAlive())
        {
            EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_NO_NATIVE_WINDOW);
            EXPECT_EQ(Kept.Guard(), STATUS_NO_NATIVE_WINDOW);
            return;
        }
        EXPECT_EQ(TarvexExt_ProcessEvents(), STATUS_OK);
        EXPECT_EQ(Kept.Render(), STATUS_OK);
        EXPECT_EQ(TakePicture(Kept.Id).CountDifferences(Before), 0);
        EXPECT_EQ(TestView(Keeper.Handle()).Guard(), STATUS_OK);
    }

    TestServer Server;
    TestHost Keeper;
    TestHost Host;
    TestView Kept{Keeper.Handle()};
    TestView View{Host.Handle()};
    const Picture Before = TakePicture(Kept.Id);
};

struct Loss
{
    const char* Of;
    void (*Happen)(Doomed& doomed); // on any thread
};
const Loss losses[] = {{"parent",
                        [](Doomed& doomed)
                        {
                            const NativeWindow parent = std::exchange(doomed.Host.Native, 0);
                            XDestroyWindow(doomed.Keeper.Connection, parent);
                            XSync(doomed.Keeper.Connection, False);
                        }},
                       {"host's connection",
                        [](Doomed& doomed)
                        {
                            doomed.Host.CloseConnection();
                            // The server hears of it in its own time.
                            while (doomed.View.Guard() == STATUS_OK)
                            {
                                usleep(1000);
                            }
                        }},
                       {"server", [](Doomed& doomed) { doomed.Server.Kill(); }}};

void WorksHere()
{
    TestHost host;
    const Session session(host);
}
} // namespace

// For valgrind too. The OpenGL context is the host's own after each step, and when a view is lost.
TEST(Session, GoesToItsEndUnderTheHostsContext)
{
    TestHost owner;
    int attributes[] = {GLX_RGBA, GLX_DOUBLEBUFFER, None};
    XVisualInfo* visual = glXChooseVisual(owner.Connection, 0, attributes);
    const GLXContext context = glXCreateContext(owner.Connection, visual, nullptr, True);
    XFree(visual);
    glXMakeCurrent(owner.Connection, owner.Native, context);
    drawn = 0;
    WorksHere();
    EXPECT_EQ(drawn, 2);
    TestHost host;
    const Session lost(host, 100, [&] { host.Destroy(); });
    glXMakeCurrent(owner.Connection, None, nullptr);
    glXDestroyContext(owner.Connection, context);
}

TEST(Loss, EndsNoProcess)
{
    RunInProcesses("LossProcess");
}

TEST(LossProcess, DISABLED_BeforeACallOfASessionIsSurvived)
{
    for (const Loss& loss : losses)
    {
        int moments = 0;
        for (int at = 0, end = 1; at < end; at += Effort(150, 7), ++moments)
        {
            SCOPED_TRACE(loss.Of + std::string(" before call ") + std::to_string(at));
            Doomed doomed;
            end = Session(doomed.Host, at, [&] { loss.Happen(doomed); }).Calls;
            doomed.CheckWhatIsLeft();
        }
        ReportFigure("loss", std::to_string(moments) + " moments of a session without " + loss.Of);
    }
    WorksHere();
}

TEST(LossProcess, DISABLED_AtAnyMomentOfAnyCallIsSurvived)
{
    const int rounds = Effort(3, 40);
    std::minstd_rand random(3); // NOLINT: the same moments in each run
    testing::internal::CaptureStderr();
    for (int round = 0; round < rounds * static_cast<int>(std::size(losses)); ++round)
    {
        const Loss& loss = losses[round / rounds];
        SCOPED_TRACE(loss.Of);
        Doomed doomed;
        void* parent = doomed.Host.Handle();
        const auto moment = std::chrono::microseconds(random() % 150000);
        std::thread fate(
            [&]
            {
                std::this_thread::sleep_for(moment);
                loss.Happen(doomed);
            });
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        do
        {
            TestView brief(parent);
            Tarvex_Window_UpdateSize(doomed.View.Id, -1, -1, 100 + round, 100);
            TarvexExt_ProcessEvents();
        } while (doomed.View.Render() == STATUS_OK && std::chrono::steady_clock::now() < end);
        fate.join();
        doomed.CheckWhatIsLeft();
    }
    EXPECT_EQ(testing::internal::GetCapturedStderr(), "");
    WorksHere();
}

TEST(LossProcess, DISABLED_OfTheServerEndsTheProcessNormallyWithLiveViews)
{
    Doomed doomed;
    doomed.Server.Kill();
    doomed.View.Forget();
    doomed.Kept.Forget();
}

// A write to a socket that nobody reads raises SIGPIPE, and few hosts ignore it.
TEST(LossProcess, DISABLED_OfTheServerJustBeforeAWriteRaisesNoSignal)
{
    {
        Doomed doomed;
        beforeWrite = [&] { doomed.Server.Kill(); };
        doomed.View.Render();
        EXPECT_FALSE(doomed.Server.IsAlive());
        doomed.CheckWhatIsLeft();
    }
    sigset_t mask;
    pthread_sigmask(SIG_BLOCK, nullptr, &mask);
    EXPECT_EQ(sigismember(&mask, SIGPIPE), 0);
    WorksHere();
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

TEST(Loss, OfATopLevelWindowThatItsUserCloses)
{
    TestHost host;
    TestView inHost(host.Handle());
    TestView view(nullptr);
    EXPECT_GT(TakePicture(view.Id).Count(IsRed), 500);
    Settle();

    // As a window manager does.
    XEvent event = {};
    event.xclient.type = ClientMessage;
    event.xclient.window = NativeOf(view.Id);
    event.xclient.message_type = XInternAtom(host.Connection, "WM_PROTOCOLS", False);
    event.xclient.format = 32;
    event.xclient.data.l[0] =
        static_cast<long>(XInternAtom(host.Connection, "WM_DELETE_WINDOW", False));
    XSendEvent(host.Connection, event.xclient.window, False, NoEventMask, &event);
    XSync(host.Connection, False);
    Settle();
    EXPECT_EQ(view.Guard(), STATUS_NO_NATIVE_WINDOW);
    EXPECT_EQ(inHost.Render(), STATUS_OK);
    EXPECT_EQ(view.Delete(), STATUS_OK);
}
