#include "Viewer.h"

#include "ChartSceneStage.h"
#include "FrameMeter.h"
#include "Library.h"
#include "MapLines.h"
#include "SurfaceStage.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <X11/keysym.h>

#include <cstdint>
#include <utility>

namespace
{
std::unique_ptr<Stage> MakeStage(const HostWindow& window, const Options& options)
{
    const Box box = {0, 0, window.Width(), window.Height()};
    if (options.Scene == SceneKind::Charts)
    {
        return std::make_unique<ChartSceneStage>(window.Handle(), box, options.Layout);
    }
    const std::optional<ChartLook> charts =
        options.Charts ? std::optional(ChartLook{options.Layout, options.Line}) : std::nullopt;
    return std::make_unique<SurfaceStage>(window.Handle(), box, options.Around, charts);
}
} // namespace

Viewer::Viewer(std::vector<Scene> scenes, const Options& options)
    : Scenes(std::move(scenes)), Live(options.Live),
      Window("Surface viewer", options.Width, options.Height), Shown(MakeStage(Window, options))
{
    ShowScene(0);
}

void Viewer::ShowScene(size_t index)
{
    SceneIndex = index;
    Window.SetTitle(Scenes[SceneIndex].Title);
    Shown->Show(Scenes[SceneIndex]);
}

void Viewer::Run()
{
    int32_t descriptor = -1;
    if (TarvexExt_GetEventDescriptor(&descriptor) != STATUS_OK)
    {
        throw LibraryError("the views can't receive events");
    }
    FrameMeter meter;
    const auto isOver = [&] { return Ended || (Live && Live->IsOver(meter.Seconds())); };
    while (!isOver())
    {
        if (Live)
        {
            ShowNextMeasurement();
            meter.Count();
        }
        ServeEvents();
        if (!Ended && !Live)
        {
            Window.Wait(descriptor);
        }
    }
    if (Live)
    {
        meter.PrintTotal();
    }
}

void Viewer::ShowNextMeasurement()
{
    AdvanceByOneRow(Scenes[SceneIndex].Map);
    Shown->Refresh();
}

void Viewer::ServeEvents()
{
    while (const auto event = Window.NextEvent())
    {
        React(*event);
    }
    // Other failures concern one event, and the next may well succeed.
    if (TarvexExt_ProcessEvents() == STATUS_NO_NATIVE_WINDOW)
    {
        throw LibraryError("the X server is lost");
    }
}

void Viewer::React(const HostEvent& event)
{
    switch (event.What)
    {
    case HostEvent::Kind::Key:
        ReactToKey(event.Key);
        break;
    case HostEvent::Kind::Resize:
        Shown->Arrange(event.Width, event.Height);
        break;
    case HostEvent::Kind::Close:
        Ended = true;
        break;
    }
}

void Viewer::ReactToKey(unsigned long key)
{
    switch (key)
    {
    case XK_q:
    case XK_Escape:
        Ended = true;
        break;
    case XK_n:
        ShowScene((SceneIndex + 1) % Scenes.size());
        break;
    default:
        for (View* view : Shown->Views())
        {
            ReactToViewKey(*view, key);
        }
        Shown->ReactToKey(key);
        break;
    }
}
