#pragma once

#include "HeightMap.h"
#include "SurfaceView.h"

#include <string>

struct Options;

// One file of the command line, ready to be shown.
struct Scene
{
    std::string Title;
    HeightMap Map;
    HeightStatistics Statistics;
    SceneLook Look;
};

// Reads the file and prints about it what the options ask for. Throws std::runtime_error for files
// that can't be read and for options that do not go with the file.
Scene LoadScene(const std::string& file, const Options& options);
