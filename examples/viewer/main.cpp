// A host program that shows measured surfaces in its own X11 window with the library's 3D view.

#include "HeightMap.h"
#include "HostWindow.h"
#include "Intensity.h"
#include "PngFile.h"
#include "SurfaceView.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <CLI/CLI.hpp>
#include <X11/keysym.h>

#include <chrono>
#include <cmath>
#include <cstdio>
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

struct Options
{
    std::vector<std::string> Files;
    std::string Intensity;
    std::string Screenshot;
    std::string Size = "1100x800";
    std::string Mode = "points";
    std::string Exaggeration = "auto";
    std::string MissingCount = "0";
    LoadOptions Load;
    bool Print = false;
};

// One file of the command line, ready to be shown.
struct Scene
{
    std::string Name;
    HeightMap Map;
    HeightStatistics Statistics;
    SurfaceLook Look;
};

void Declare(CLI::App& app, Options& options)
{
    app.add_option("file", options.Files,
                   "surfaces to show: elevation tiles (.hgt), raw grids with a description beside "
                   "them (.i16 and .txt), grey height pictures (.png)")
        ->required();
    app.add_option("--intensity", options.Intensity,
                   "brightness of each sample: 8-bit .pgm (P5) or grey .png of the same size");
    app.add_option("--screenshot", options.Screenshot, "write the picture to this PNG and end");
    app.add_option("--size", options.Size, "size of the window")->capture_default_str();
    app.add_option("--mode", options.Mode,
                   "full: complete cells only; points: isolated samples too")
        ->check(CLI::IsMember({"full", "points"}))
        ->capture_default_str();
    app.add_option("--z-exaggeration", options.Exaggeration, "factor on the heights, or auto")
        ->capture_default_str();
    app.add_option("--x-scale", options.Load.XScale, "distance of columns, instead of the file's");
    app.add_option("--y-scale", options.Load.YScale, "distance of rows, instead of the file's");
    app.add_option("--z-scale", options.Load.ZScale, "height of one count, instead of the file's");
    app.add_option("--unit", options.Load.Unit, "unit of the scales: nm, um, mm, m, km or a name");
    app.add_option("--missing", options.MissingCount,
                   "count that marks missing samples of a .png, or none")
        ->capture_default_str();
    app.add_option("--trim", options.Load.TrimPercent,
                   "percent of the samples to leave out as outliers at each end")
        ->check(CLI::Range(0.0, 49.0));
    app.add_flag("--print", options.Print, "print numbers about the data and the time it took");
    app.footer("Keys: r frames the surface, 0 to 5 look along an axis, p parallel projection,\n"
               "m isolated samples, i intensity, n next file, q or Escape end.");
}

// The whole text as a number, or nothing.
std::optional<double> ToNumber(const std::string& text)
{
    size_t used = 0;
    try
    {
        const double number = std::stod(text, &used);
        return used == text.size() ? std::optional(number) : std::nullopt;
    }
    catch (const std::logic_error&)
    {
        return std::nullopt;
    }
}

void Interpret(Options& options, int& width, int& height)
{
    char rest = '\0';
    if (std::sscanf(options.Size.c_str(), "%5dx%5d%c", &width, &height, &rest) != 2 || width < 16 ||
        height < 16 || width > 16384 || height > 16384)
    {
        throw std::runtime_error("--size: " + options.Size + " is no size such as 1100x800");
    }
    const auto missing = ToNumber(options.MissingCount);
    if (options.MissingCount != "none" &&
        !(missing && *missing >= 0 && *missing <= 65535 && *missing == std::floor(*missing)))
    {
        throw std::runtime_error("--missing: a count from 0 to 65535 or none is wanted");
    }
    options.Load.MissingCount =
        missing ? std::optional(static_cast<int32_t>(*missing)) : std::nullopt;
    const auto exaggeration = ToNumber(options.Exaggeration);
    if (options.Exaggeration != "auto" &&
        !(exaggeration && *exaggeration > 0.0 && std::isfinite(*exaggeration)))
    {
        throw std::runtime_error("--z-exaggeration: a number above 0 or auto is wanted");
    }
    if (options.Files.size() > 1 && !(options.Screenshot.empty() && options.Intensity.empty()))
    {
        throw std::runtime_error("--screenshot and --intensity go with one file only");
    }
}

Scene Load(const std::string& file, const Options& options)
{
    const Clock::time_point start = Clock::now();
    Scene scene;
    scene.Name = file;
    scene.Map = LoadHeightMap(file, options.Load);
    if (!options.Intensity.empty())
    {
        LoadIntensity(options.Intensity, scene.Map);
        SpreadIntensities(scene.Map);
    }
    ChooseUnit(scene.Map);
    scene.Statistics = DescribeHeights(scene.Map);
    scene.Look.IsolatedSamples = options.Mode == "points";
    scene.Look.Exaggeration =
        ToNumber(options.Exaggeration).value_or(ChooseExaggeration(scene.Map, scene.Statistics));
    const HeightMap& map = scene.Map;
    if (options.Print)
    {
        const size_t samples = map.Samples.size();
        const size_t missing = scene.Statistics.MissingSamples;
        std::printf("%s\n", file.c_str());
        std::printf("  columns %d, rows %d\n", map.Columns, map.Rows);
        std::printf("  missing %zu (%.2f %%)\n", missing,
                    100.0 * static_cast<double>(missing) / static_cast<double>(samples));
        std::printf("  lowest %g %s (count %d), highest %g %s (count %d)\n",
                    map.Height(scene.Statistics.Lowest), map.Unit.c_str(), scene.Statistics.Lowest,
                    map.Height(scene.Statistics.Highest), map.Unit.c_str(),
                    scene.Statistics.Highest);
        std::printf("  extent %g x %g %s, heights shown %g times\n", (map.Columns - 1) * map.XScale,
                    (map.Rows - 1) * map.YScale, map.Unit.c_str(), scene.Look.Exaggeration);
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
    Program(std::vector<Scene> scenes, int width, int height)
        : Scenes(std::move(scenes)), Window("Surface viewer", width, height),
          View(Window.Handle(), Window.Width(), Window.Height())
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
        Window.SetTitle(scene.Name);
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
        case XK_m:
            View.ToggleIsolatedSamples();
            break;
        case XK_i:
            View.ToggleIntensity();
            break;
        case XK_n:
            ShowScene((Shown + 1) % Scenes.size());
            break;
        default:
            if (key >= XK_0 && key <= XK_5)
            {
                View.ShowFrom(static_cast<int32_t>(key - XK_0));
            }
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
    Options options;
    CLI::App app("Shows measured surfaces in three dimensions.", "tarvex_viewer");
    Declare(app, options);
    CLI11_PARSE(app, argc, argv);
    try
    {
        int width = 0;
        int height = 0;
        Interpret(options, width, height);
        std::vector<Scene> scenes;
        for (const std::string& file : options.Files)
        {
            scenes.push_back(Load(file, options));
        }
        Program program(std::move(scenes), width, height);
        if (options.Print)
        {
            std::printf("first picture after %.0f ms, library %s\n", MillisecondsSince(start),
                        TarvexExt_GetVersion());
            std::fflush(stdout);
        }
        if (!options.Screenshot.empty())
        {
            Save(program.ShownView(), options.Screenshot);
            return 0;
        }
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
