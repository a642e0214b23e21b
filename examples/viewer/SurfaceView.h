#pragma once

#include "HeightMap.h"
#include "SurfaceElement.h"

#include <cstdint>
#include <optional>
#include <vector>

// A finished picture: 8-bit RGB triples, top row first.
struct RgbPicture
{
    int32_t Width = 0;
    int32_t Height = 0;
    std::vector<uint8_t> Rgb;
};

// What stands around the measurement.
struct Furniture
{
    bool Frame = false;  // box with scales around the measurement
    bool Bar = false;    // colours and heights of the surface
    bool Axes = false;   // coordinate axes through the origin
    bool Marker = false; // small axes in the corner that turn along
};

// What is shown of a measurement.
struct SceneLook
{
    SurfaceLook Surface;
    int32_t Profiles = 0;  // rows of the surface that are drawn as profiles above it
    bool Geometry = false; // geometric elements instead of the plain marks
};

// One 3D view of the library in a host's window. It shows one measurement: a surface with marks at
// its lowest and highest sample and a line along X through its middle, or with profiles or
// geometric elements instead of them; or a profile alone. Throws LibraryError.
class SurfaceView
{
public:
    SurfaceView(void* parentWindow, int32_t width, int32_t height, const Furniture& furniture);
    ~SurfaceView();
    SurfaceView(const SurfaceView&) = delete;
    SurfaceView& operator=(const SurfaceView&) = delete;

    // Replaces what the view shows and frames it.
    void Show(const HeightMap& map, const HeightStatistics& statistics, const SceneLook& look);

    // The surface that is shown; none while a profile is.
    SurfaceElement* Surface() { return ShownSurface ? &*ShownSurface : nullptr; }

    void Resize(int32_t width, int32_t height);
    void Frame();
    void ShowFrom(int32_t predefinedView);
    void ToggleParallelProjection();
    void ToggleFurniture(bool Furniture::*part);
    void ActivateNextElement();
    // One of TARVEX_DRAW_...; what the user then draws is reported on standard output.
    void ChooseDrawMode(uint32_t mode);

    RgbPicture Picture() const;

private:
    void SetDrawSpace();
    void LookObliquely();
    void ApplyFurniture();
    void ComeNearer(double most);
    void Zoom(double factor);
    void Redraw();

    int32_t Id = -1;
    Extent Size; // of what is shown, with its heights as drawn
    double Lowest = 0.0;
    double Highest = 0.0;
    std::optional<SurfaceElement> ShownSurface;
    Furniture Around;
    bool Parallel = false;
    double ZoomFactor = 1.0; // how much nearer the camera is than the library puts it
};
