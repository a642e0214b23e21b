#pragma once

#include "HeightMap.h"

#include <cstdint>
#include <stdexcept>
#include <string>
#include <vector>

// A call into the library that did not succeed; the text names the call and the status.
class LibraryError : public std::runtime_error
{
public:
    using std::runtime_error::runtime_error;
};

// A finished picture: 8-bit RGB triples, top row first.
struct RgbPicture
{
    int32_t Width = 0;
    int32_t Height = 0;
    std::vector<uint8_t> Rgb;
};

struct SurfaceLook
{
    double Exaggeration = 1.0;   // factor on all heights
    bool IsolatedSamples = true; // draw also samples that lie in no complete cell
};

// One 3D view of the library in a host's window, showing one surface and a few marks on it: its
// lowest and highest sample and a line along X through its middle. Throws LibraryError.
class SurfaceView
{
public:
    SurfaceView(void* parentWindow, int32_t width, int32_t height);
    ~SurfaceView();
    SurfaceView(const SurfaceView&) = delete;
    SurfaceView& operator=(const SurfaceView&) = delete;

    // Replaces what the view shows and frames it.
    void Show(const HeightMap& map, const HeightStatistics& statistics, const SurfaceLook& look);

    void Resize(int32_t width, int32_t height);
    void Frame();
    void ShowFrom(int32_t predefinedView);
    void ToggleParallelProjection();
    void ToggleIsolatedSamples();
    void ToggleIntensity(); // does nothing for a surface without intensities

    RgbPicture Picture() const;

private:
    void LookObliquely();
    void AddMarks(const HeightMap& map, const HeightStatistics& statistics, double exaggeration);
    void AddMark(double x, double y, double z, double radius, const uint8_t (&color)[3]);
    void UseIntensity(bool show);
    void Redraw();

    int32_t Id = -1;
    int32_t Surface = -1;
    bool Parallel = false;
    bool Zoomed = false; // Frame has run
    bool IntensityShown = false;
    bool HasIntensities = false;
};
