#pragma once

#include "HeightMap.h"
#include "SurfaceView.h"

#include <optional>
#include <string>
#include <vector>

// The command line, checked.
struct Options
{
    std::vector<std::string> Files;
    std::string Intensity;
    std::string Screenshot;
    int Width = 0;
    int Height = 0;
    std::optional<double> Exaggeration; // empty: chosen for each surface
    LoadOptions Load;
    SceneLook Look;
    Furniture Around;
    bool Print = false;
};

// What the keys do, for people.
extern const char* const KeyHelp;

// Nothing when there is no more to do, as after --help; the exit status is set then. Throws
// std::runtime_error for values that can't be used.
std::optional<Options> ReadOptions(int argc, char** argv, int& exitStatus);
