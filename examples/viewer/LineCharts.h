#pragma once

#include "HeightMap.h"
#include "ImageChart.h"
#include "ProfileChart.h"
#include "SurfaceElement.h"

#include <cstdint>
#include <optional>
#include <vector>

// The charts beside a surface: its picture with a marked row, and below it that row's profile. A
// single measured profile has no picture and fills the place of both. Throws LibraryError.
class LineCharts
{
public:
    LineCharts(void* parentWindow, uint32_t layout);

    // The colours are those of the surface's 3D view; none for a profile.
    void Show(const HeightMap& map, int32_t row, const std::optional<SurfaceColors>& colors);
    void Replace(const HeightMap& map, int32_t row, const std::optional<SurfaceColors>& colors);
    void MarkRow(const HeightMap& map, int32_t row);

    void Place(const Box& box);
    std::vector<View*> Views();

private:
    void* ParentWindow;
    uint32_t Layout;
    Box Placed;
    double ImageAspect = 1.0; // height over width
    std::optional<ImageChart> Image;
    ProfileChart Profile;
};
