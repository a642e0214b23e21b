#pragma once

#include "HeightMap.h"
#include "SurfaceElement.h"
#include "View.h"

#include <cstdint>
#include <optional>

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
    bool Geometry = false; // geometric elements
    bool Marks = true;     // lowest and highest sample, and a line through the middle
};

// One 3D view of the library in a host's window. It shows one measurement: a surface with marks,
// profiles or geometric elements on it, or a profile alone. Throws LibraryError.
class SurfaceView : public View
{
public:
    SurfaceView(void* parentWindow, const Box& box, const Furniture& furniture);
    ~SurfaceView() override;

    // Replaces what the view shows and frames it.
    void Show(const HeightMap& map, const HeightStatistics& statistics, const SceneLook& look);
    // The same surface with other samples, and with the given row marked if one is.
    void Replace(const HeightMap& map, std::optional<int32_t> markedRow);
    // Draws a row of the surface as a line on it, instead of the one marked before.
    void MarkRow(const HeightMap& map, int32_t row);

    // The surface that is shown; none while a profile is.
    SurfaceElement* Surface() { return ShownSurface ? &*ShownSurface : nullptr; }

    void Place(const Box& box) override;
    Box Where() const override { return Placed; }
    void Frame() override;
    void ActivateNextElement() override;
    void ChooseDrawMode(uint32_t mode) override;
    RgbPicture Picture() const override;

    void ShowFrom(int32_t predefinedView);
    void ToggleParallelProjection();
    void ToggleFurniture(bool Furniture::*part);

private:
    void SetDrawSpace();
    void LookObliquely();
    void ApplyFurniture();
    void ComeNearer(double most);
    void Zoom(double factor);
    void Redraw();

    int32_t Id = -1;
    Box Placed;
    Extent Size; // of what is shown, with its heights as drawn
    double Lowest = 0.0;
    double Highest = 0.0;
    double Exaggeration = 1.0;
    std::optional<SurfaceElement> ShownSurface;
    std::optional<int32_t> MarkedRow; // the element
    Furniture Around;
    bool Parallel = false;
    double ZoomFactor = 1.0; // how much nearer the camera is than the library puts it
};
