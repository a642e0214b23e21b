// A host program that shows measurements in its own X11 window with the library's 3D views and
// charts.

#include "HostWindow.h"
#include "Library.h"
#include "Options.h"
#include "PngFile.h"
#include "Scene.h"
#include "StopWatch.h"
#include "Viewer.h"

#include <TarvexExt.h>

#include <cstdio>
#include <iostream>
#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace
{
constexpr int ExitBadInput = 1;
constexpr int ExitNoDisplay = 2; // also: the display can't show the views

void Show(const Options& options, const StopWatch& sinceStart)
{
    std::vector<Scene> scenes;
    for (const std::string& file : options.Files)
    {
        scenes.push_back(LoadScene(file, options));
    }
    Viewer viewer(std::move(scenes), options);
    if (options.Print)
    {
        std::printf("first picture after %.0f ms, library %s\n", 1000.0 * sinceStart.Seconds(),
                    TarvexExt_GetVersion());
        std::fflush(stdout);
    }
    const bool justPicture = !options.Screenshot.empty() && !options.Live;
    if (!justPicture)
    {
        std::printf("%s\n", KeyHelp);
        std::fflush(stdout);
        viewer.Run();
    }
    if (!options.Screenshot.empty())
    {
        const RgbPicture picture = viewer.Picture();
        WriteRgbPng(options.Screenshot, picture.Rgb, picture.Width, picture.Height);
    }
}

int Complain(const std::exception& error, int exitStatus)
{
    std::cerr << "tarvex_viewer: " << error.what() << "\n";
    return exitStatus;
}
} // namespace

int main(int argc, char** argv)
{
    const StopWatch sinceStart;
    try
    {
        int exitStatus = 0;
        const std::optional<Options> options = ReadOptions(argc, argv, exitStatus);
        if (options)
        {
            Show(*options, sinceStart);
        }
        return exitStatus;
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
