// A host program that shows measurements in its own X11 window with the library's 3D view.

#include "HeightMap.h"
#include "HostWindow.h"
#include "Intensity.h"
#include "Library.h"
#include "Options.h"
#include "PngFile.h"
#include "SurfaceView.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <X11/keysym.h>

#include <array>
#include <chrono>
#include <cstdio>
#include <filesystem>
#include <iostream>
#include <optional>
#include <stdexcept>
#include <string>
#include <utility>
#include <vector>

namespace
{
constexpr int ExitBadInput = 1;
constexpr int ExitNoDisplay = 2; // also: the display can't show 3D views

using Clock = std::chrono::steady_clock;

double MillisecondsSince(Clock::time_point start)
{
    return std::chrono::duration<double, std::milli>(Clock::now() - start).count();
}

// One file of the command line, ready to be shown.
struct Scene
{
    std::string Title;
    HeightMap Map;
    HeightStatistics Statistics;
    SceneLook Look;
};

void Print(const Scene& scene)
{
    const HeightMap& map = scene.Map;
    const HeightStatistics& statistics = scene.Statistics;
    const size_t samples = map.Samples.size();
    const char* unit = map.Unit.c_str();
    std::printf("  columns %d, rows %d%s\n", map.Columns, map.Rows,
                map.HasFreePositions() ? ", free positions" : "");
    std::printf("  missing %zu (%.2f %%)\n", statistics.MissingSamples,
                100.0 * static_cast<double>(statistics.MissingSamples) /
                    static_cast<double>(samples));
    std::printf("  lowest %g %s (count %d), highest %g %s (count %d)\n",
                map.Height(statistics.Lowest), unit, statistics.Lowest,
                map.Height(statistics.Highest), unit, statistics.Highest);
    const Extent extent = DescribeExtent(map);
    std::printf("  x %g to %g %s, y %g to %g %s, heights shown %g times\n", extent.XMin,
                extent.XMax, unit, extent.YMin, extent.YMax, unit, scene.Look.Surface.Exaggeration);
}

// What the scales of the view can't say: the unit, and that heights are drawn larger.
std::string MakeTitle(const std::string& file, const HeightMap& map, double exaggeration)
{
    std::string title = std::filesystem::path(file).filename().string() + " - " + map.Unit;
    if (exaggeration != 1.0)
    {
        std::array<char, 32> factor{};
        std::snprintf(factor.data(), factor.size(), "%g", exaggeration);
        title += std::string(", heights times ") + factor.data();
    }
    return title;
}

Scene Load(const std::string& file, const Options& options)
{
    const Clock::time_point start = Clock::now();
    Scene scene;
    scene.Map = LoadHeightMap(file, options.Load);
    if (!options.Intensity.empty())
    {
        LoadIntensity(options.Intensity, scene.Map);
    }
    ChooseUnit(scene.Map);
    scene.Statistics = DescribeHeights(scene.Map);
    scene.Look = options.Look;
    scene.Look.Surface.Exaggeration =
        options.Exaggeration.value_or(ChooseExaggeration(scene.Map, scene.Statistics));
    const ColorRange& range = options.Look.Surface.Range;
    // The least that the library tells apart.
    if (range.Fixed && (range.Max - range.Min) * scene.Look.Surface.Exaggeration <= 0.001)
    {
        throw std::runtime_error("--range: MIN and MAX are too near to each other");
    }
    scene.Title = MakeTitle(file, scene.Map, scene.Look.Surface.Exaggeration);
    if (options.Print)
    {
        std::printf("%s\n", file.c_str());
        Print(scene);
        std::printf("  read in %.0f ms\n", MillisecondsSince(start));
    }
    return scene;
}

void Save(const SurfaceView& view, const std::string& file)
{
    const RgbPicture picture = view.Picture();
    WriteRgbPng(file, picture.Rgb, picture.Width, picture.Height);
}

int Complain(const std::exception& error, int exitStatus)
{
    std::cerr << "tarvex_viewer: " << error.what() << "\n";
    return exitStatus;
}

class Program
{
public:
    Program(std::vector<Scene> scenes, const Options& options)
        : Scenes(std::move(scenes)), Window("Surface viewer", options.Width, options.Height),
          View(Window.Handle(), Window.Width(), Window.Height(), options.Around)
    {
        ShowScene(0);
    }

    const SurfaceView& ShownView() const { return View; }

    // Serves both connections until the user ends the program.
    void Run()
    {
        int32_t descriptor = -1;
        if (TarvexExt_GetEventDescriptor(&descriptor) != STATUS_OK)
        {
            throw LibraryError("the views can't receive events");
        }
        while (!Ended)
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
            if (!Ended)
            {
                Window.Wait(descriptor);
            }
        }
    }

private:
    void ShowScene(size_t index)
    {
        Shown = index;
        const Scene& scene = Scenes[Shown];
        Window.SetTitle(scene.Title);
        View.Show(scene.Map, scene.Statistics, scene.Look);
    }

    void React(const HostEvent& event)
    {
        switch (event.What)
        {
        case HostEvent::Kind::Key:
            ReactToKey(event.Key);
            break;
        case HostEvent::Kind::Resize:
            View.Resize(event.Width, event.Height);
            break;
        case HostEvent::Kind::Close:
            Ended = true;
            break;
        }
    }

    void ReactToKey(unsigned long key)
    {
        switch (key)
        {
        case XK_q:
        case XK_Escape:
            Ended = true;
            break;
        case XK_r:
            View.Frame();
            break;
        case XK_p:
            View.ToggleParallelProjection();
            break;
        case XK_f:
            View.ToggleFurniture(&Furniture::Frame);
            break;
        case XK_b:
            View.ToggleFurniture(&Furniture::Bar);
            break;
        case XK_a:
            View.ToggleFurniture(&Furniture::Axes);
            break;
        case XK_o:
            View.ToggleFurniture(&Furniture::Marker);
            break;
        case XK_Tab:
            View.ActivateNextElement();
            break;
        case XK_n:
            ShowScene((Shown + 1) % Scenes.size());
            break;
        default:
            if (key >= XK_0 && key <= XK_7)
            {
                View.ChooseDrawMode(static_cast<uint32_t>(key - XK_0));
            }
            else if (key >= XK_F1 && key <= XK_F6)
            {
                View.ShowFrom(static_cast<int32_t>(key - XK_F1));
            }
            else if (SurfaceElement* surface = View.Surface())
            {
                ReactToSurfaceKey(*surface, key);
            }
            break;
        }
    }

    void ReactToSurfaceKey(SurfaceElement& surface, unsigned long key)
    {
        switch (key)
        {
        case XK_c:
            surface.UseNextPalette();
            break;
        case XK_plus:
        case XK_equal: // the key of + on keyboards where + wants the shift key
        case XK_KP_Add:
            surface.ClipMore();
            break;
        case XK_minus:
        case XK_KP_Subtract:
            surface.ClipLess();
            break;
        case XK_i:
            surface.ToggleIntensity();
            break;
        case XK_m:
            surface.ToggleIsolatedSamples();
            break;
        default:
            break;
        }
    }

    std::vector<Scene> Scenes;
    HostWindow Window; // outlives the view in it
    SurfaceView View;
    size_t Shown = 0;
    bool Ended = false;
};
} // namespace

int main(int argc, char** argv)
{
    const Clock::time_point start = Clock::now();
    try
    {
        int exitStatus = 0;
        const std::optional<Options> options = ReadOptions(argc, argv, exitStatus);
        if (!options)
        {
            return exitStatus;
        }
        std::vector<Scene> scenes;
        for (const std::string& file : options->Files)
        {
            scenes.push_back(Load(file, *options));
        }
        Program program(std::move(scenes), *options);
        if (options->Print)
        {
            std::printf("first picture after %.0f ms, library %s\n", MillisecondsSince(start),
                        TarvexExt_GetVersion());
            std::fflush(stdout);
        }
        if (!options->Screenshot.empty())
        {
            Save(program.ShownView(), options->Screenshot);
            return 0;
        }
        std::printf("%s\n", KeyHelp);
        std::fflush(stdout);
        program.Run();
        return 0;
    }
    catch (const NoDisplayError& error)
    {
        return Complain(error, ExitNoDisplay);
    }
    catch (const LibraryError& error)
    {
        return Complain(error, ExitNoDisplay);
    }
    catch (const std::exception& error)
    {
        return Complain(error, ExitBadInput);
    }
}
