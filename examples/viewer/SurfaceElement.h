#pragma once

#include "HeightMap.h"

#include <cstdint>
#include <optional>

// Which heights take the first and the last colour of the palette.
struct ColorRange
{
    bool Fixed = false;       // from Min to Max rather than from the data
    double ClipPercent = 0.0; // share of the samples beyond the colours at each end
    double Min = 0.0;         // heights of the map, without the view's exaggeration
    double Max = 0.0;
};

struct SurfaceLook
{
    double Exaggeration = 1.0;   // factor on all heights
    bool IsolatedSamples = true; // draw also samples that lie in no complete cell
    std::optional<int32_t> Palette;
    ColorRange Range;
};

// What the colours of a surface show now.
struct SurfaceColors
{
    uint32_t Palette = 0;
    bool Intensity = false; // rather than heights
};

struct SurfaceCalls;

// One measured surface in a 3D view. On a regular grid or with free positions: the library has a
// family of calls for each, here they are handled alike. Throws LibraryError.
class SurfaceElement
{
public:
    // Adds the surface to the view. It shows its intensities if it has any.
    SurfaceElement(int32_t view, const HeightMap& map, const SurfaceLook& look);

    // Other samples for the same surface.
    void Replace(const HeightMap& map);

    int32_t Id() const { return Element; }
    SurfaceColors Colors() const;
    void UseNextPalette();
    void ClipMore() { ChangeClipping(+1); }
    void ClipLess() { ChangeClipping(-1); }
    void ToggleIsolatedSamples();
    void ToggleIntensity(); // does nothing for a surface without intensities

private:
    void Add(const HeightMap& map, const SurfaceLook& look);
    void UseRange();
    void ChangeClipping(int32_t steps);
    void ShowIntensity(bool show);

    int32_t View;
    const SurfaceCalls& Calls;
    ColorRange Range;
    double Exaggeration;
    int32_t Element = -1;
    bool HasIntensities;
    bool IntensityShown = false;
    int32_t Darkest = 0; // of the intensities at first
    int32_t Brightest = 255;
};
