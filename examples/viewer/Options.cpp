#include "Options.h"

#include <Tarvex.h>

#include <CLI/CLI.hpp>

#include <cmath>
#include <cstdio>
#include <stdexcept>

const char* const KeyHelp =
    "Keys: r frames the scene, F1 to F6 look along an axis, p parallel projection,\n"
    "c next palette, + and - clip more or less of the heights, i intensity,\n"
    "m isolated samples, f scale frame, b bar, a coordinate axes, o orientation\n"
    "marker, n next file, q or Escape end.\n"
    "Charts beside the surface: Up and Down move the marked row by one, Page Up and\n"
    "Page Down by a twentieth of the surface.\n"
    "Drawing: 1 rectangle, 2 cube, 3 circle, 4 cylinder: drag with the left button.\n"
    "5 polygon, 6 polyhedron: a click for each vertex, the right button ends. 7 draws\n"
    "nothing, 0 gives the camera back. Tab puts handles on the next cube, cylinder or\n"
    "polyhedron, to drag it by. Charts know 1, 3, 5 and 0, and Tab takes the next\n"
    "circle, rectangle or polygon there.";

namespace
{
constexpr const char* PlainSize = "1100x800";
constexpr const char* SizeWithCharts = "1280x800";

// What has to be read more closely than CLI11 does.
struct Words
{
    std::optional<std::string> Size;
    std::string Mode = "points";
    std::string Scene = "surface";
    std::string Exaggeration = "auto";
    std::string MissingCount = "0";
    std::string Range = "auto";
    std::string Layout = "dark";
    std::optional<std::string> Live;
};

void DeclareInput(CLI::App& app, Options& options, Words& words)
{
    app.add_option("file", options.Files,
                   "measurements to show: elevation tiles (.hgt), raw grids with a description "
                   "beside them (.i16 and .txt; one row is a profile), raw surfaces with free "
                   "positions (NAME_x.i16, with NAME_y and NAME_z beside it), grey height pictures "
                   "(.png)")
        ->required();
    app.add_option("--intensity", options.Intensity,
                   "brightness of each sample: 8-bit .pgm (P5) or grey .png of the same size");
    app.add_option("--x-scale", options.Load.XScale,
                   "distance of columns (or of one count), instead of the file's");
    app.add_option("--y-scale", options.Load.YScale,
                   "distance of rows (or of one count), instead of the file's");
    app.add_option("--z-scale", options.Load.ZScale, "height of one count, instead of the file's");
    app.add_option("--unit", options.Load.Unit, "unit of the scales: nm, um, mm, m, km or a name");
    app.add_option("--missing", words.MissingCount,
                   "count that marks missing samples of a .png, or none")
        ->capture_default_str();
    app.add_option("--trim", options.Load.TrimPercent,
                   "percent of the samples to leave out as outliers at each end")
        ->check(CLI::Range(0.0, 49.0));
}

void DeclareLook(CLI::App& app, Options& options, Words& words)
{
    app.add_option("--mode", words.Mode, "full: complete cells only; points: isolated samples too")
        ->check(CLI::IsMember({"full", "points"}))
        ->capture_default_str();
    app.add_option("--z-exaggeration", words.Exaggeration,
                   "factor on the heights, or auto; scale frame and bar show heights times this "
                   "factor")
        ->capture_default_str();
    app.add_option("--palette", options.Look.Surface.Palette,
                   "colours of the heights: 0 rainbow, 1 spectrum, 2 red, 3 green, 4 blue, 5 grey, "
                   "6 one colour")
        ->check(CLI::Range(0, 6));
    app.add_option("--range", words.Range,
                   "heights from the first to the last colour: auto, PERCENT% to leave out at each "
                   "end, or MIN:MAX in the unit that the title shows")
        ->capture_default_str();
    app.add_option("--profiles", options.Look.Profiles,
                   "draw this many rows of the surface as profiles above it")
        ->check(CLI::Range(0, 1000));
    app.add_option("--scene", words.Scene,
                   "surface: marks at the lowest and highest sample; geometry: geometric elements "
                   "on the features of the laser scan (their handles have a radius of 0.05 units, "
                   "so that a unit suits in which the surface has a few); charts: one chart with "
                   "every kind of chart element on the image of the heights (handles there are "
                   "taken within 1 unit, so that a unit suits in which the surface has hundreds)")
        ->check(CLI::IsMember({"surface", "geometry", "charts"}))
        ->capture_default_str();
    app.add_flag("--frame", options.Around.Frame, "scale frame around the measurement");
    app.add_flag("--bar", options.Around.Bar, "bar of the surface's colours");
    app.add_flag("--axes", options.Around.Axes, "coordinate axes");
    app.add_flag("--marker", options.Around.Marker, "orientation marker in the corner");
}

void DeclareCharts(CLI::App& app, Options& options, Words& words)
{
    CLI::Option* charts = app.add_flag(
        "--charts", options.Charts,
        "charts beside the surface: its image (of the intensity if there is one) with a marked "
        "row, and that row's profile");
    app.add_option("--line", options.Line, "row to mark first, 0 is the uppermost")
        ->check(CLI::NonNegativeNumber)
        ->default_str("the middle one")
        ->needs(charts);
    app.add_option("--layout", words.Layout, "colours of the charts")
        ->check(CLI::IsMember({"dark", "light"}))
        ->capture_default_str();
    app.add_option("--live", words.Live,
                   "move the measurement on by one row for each picture, as an object on a belt "
                   "under the sensor, and print the pictures per second; ends after SECONDS if "
                   "they are given")
        ->expected(0, 1)
        ->type_name("[SECONDS]");
}

void DeclareOutput(CLI::App& app, Options& options, Words& words)
{
    app.add_option("--size", words.Size, "size of the window")
        ->default_str(std::string(PlainSize) + ", with charts " + SizeWithCharts);
    app.add_option("--screenshot", options.Screenshot, "write the picture to this PNG and end");
    app.add_flag("--print", options.Print, "print numbers about the data and the time it took");
    app.footer(KeyHelp);
}

// The whole text as a finite number, or nothing.
std::optional<double> ToNumber(const std::string& text)
{
    size_t used = 0;
    try
    {
        const double number = std::stod(text, &used);
        return used == text.size() && std::isfinite(number) ? std::optional(number) : std::nullopt;
    }
    catch (const std::logic_error&)
    {
        return std::nullopt;
    }
}

ColorRange ToRange(const std::string& text)
{
    ColorRange range;
    if (text == "auto")
    {
        return range;
    }
    const size_t colon = text.find(':');
    if (colon != std::string::npos)
    {
        const auto min = ToNumber(text.substr(0, colon));
        const auto max = ToNumber(text.substr(colon + 1));
        if (min && max && *min < *max)
        {
            return {true, 0.0, *min, *max};
        }
    }
    else if (!text.empty() && text.back() == '%')
    {
        const auto percent = ToNumber(text.substr(0, text.size() - 1));
        if (percent && *percent >= 0.0 && *percent <= 45.0)
        {
            range.ClipPercent = *percent;
            return range;
        }
    }
    throw std::runtime_error("--range: auto, 0% to 45%, or MIN:MAX with MIN below MAX is wanted");
}

std::optional<LiveMode> ToLiveMode(const std::optional<std::string>& text)
{
    if (!text)
    {
        return std::nullopt;
    }
    LiveMode live;
    if (!text->empty())
    {
        live.Seconds = ToNumber(*text);
        if (!live.Seconds || *live.Seconds <= 0.0)
        {
            throw std::runtime_error("--live: " + *text + " is no number of seconds above 0");
        }
    }
    return live;
}

void RequireTogether(const Options& options)
{
    if (options.Files.size() > 1 && !(options.Screenshot.empty() && options.Intensity.empty()))
    {
        throw std::runtime_error("--screenshot and --intensity go with one file only");
    }
    if (options.Charts && options.Scene == SceneKind::Charts)
    {
        throw std::runtime_error("--charts stand beside a surface, --scene charts shows none");
    }
    if (options.Live && (options.Scene != SceneKind::Surface || options.Look.Profiles > 0))
    {
        throw std::runtime_error("--live moves the surface, --scene and --profiles would stand "
                                 "still");
    }
    if (options.Live && !options.Live->Seconds && !options.Screenshot.empty())
    {
        throw std::runtime_error("--live needs SECONDS before a --screenshot");
    }
}

void Interpret(const Words& words, Options& options)
{
    const std::string size = words.Size.value_or(options.Charts ? SizeWithCharts : PlainSize);
    char rest = '\0';
    if (std::sscanf(size.c_str(), "%5dx%5d%c", &options.Width, &options.Height, &rest) != 2 ||
        options.Width < 16 || options.Height < 16 || options.Width > 16384 ||
        options.Height > 16384)
    {
        throw std::runtime_error("--size: " + size + " is no size such as " + PlainSize);
    }
    const auto missing = ToNumber(words.MissingCount);
    if (words.MissingCount != "none" &&
        !(missing && *missing >= 0 && *missing <= 65535 && *missing == std::floor(*missing)))
    {
        throw std::runtime_error("--missing: a count from 0 to 65535 or none is wanted");
    }
    options.Load.MissingCount =
        missing ? std::optional(static_cast<int32_t>(*missing)) : std::nullopt;
    options.Exaggeration = ToNumber(words.Exaggeration);
    if (words.Exaggeration != "auto" && !(options.Exaggeration && *options.Exaggeration > 0.0))
    {
        throw std::runtime_error("--z-exaggeration: a number above 0 or auto is wanted");
    }
    options.Look.Surface.Range = ToRange(words.Range);
    options.Look.Surface.IsolatedSamples = words.Mode == "points";
    options.Scene = words.Scene == "geometry" ? SceneKind::Geometry
                    : words.Scene == "charts" ? SceneKind::Charts
                                              : SceneKind::Surface;
    options.Look.Geometry = options.Scene == SceneKind::Geometry;
    options.Layout = words.Layout == "light" ? TARVEX_CHART_LIGHT : TARVEX_CHART_DARK;
    options.Live = ToLiveMode(words.Live);
    // They stand still, and the line among them looks like a marked row.
    options.Look.Marks = options.Look.Profiles == 0 && options.Scene == SceneKind::Surface &&
                         !options.Charts && !options.Live;
    RequireTogether(options);
}
} // namespace

std::optional<Options> ReadOptions(int argc, char** argv, int& exitStatus)
{
    Options options;
    Words words;
    CLI::App app("Shows measured surfaces and profiles in three dimensions and in charts.",
                 "tarvex_viewer");
    DeclareInput(app, options, words);
    DeclareLook(app, options, words);
    DeclareCharts(app, options, words);
    DeclareOutput(app, options, words);
    try
    {
        app.parse(argc, argv);
    }
    catch (const CLI::ParseError& error)
    {
        exitStatus = app.exit(error);
        return std::nullopt;
    }
    Interpret(words, options);
    return options;
}
