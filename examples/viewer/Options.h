#pragma once

#include "HeightMap.h"
#include "SurfaceView.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

enum class SceneKind
{
    Surface,
    Geometry, // the surface with geometric elements on it
    Charts    // one chart with every kind of chart element
};

// The measurement moves on with each picture, as an object on a belt under the sensor.
struct LiveMode
{
    bool IsOver(double seconds) const { return Seconds && seconds >= *Seconds; }

    std::optional<double> Seconds; // none: until the user ends it
};

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
    SceneKind Scene = SceneKind::Surface;
    bool Charts = false;         // beside the surface
    uint32_t Layout = 0;         // of all charts, one of TARVEX_CHART_...
    std::optional<int32_t> Line; // row that the charts mark first
    std::optional<LiveMode> Live;
    bool Print = false;
};

// What the keys do, for people.
extern const char* const KeyHelp;

// Nothing when there is no more to do, as after --help; the exit status is set then. Throws
// std::runtime_error for values that can't be used.
std::optional<Options> ReadOptions(int argc, char** argv, int& exitStatus);
