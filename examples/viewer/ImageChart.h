#pragma once

#include "ChartView.h"
#include "HeightMap.h"
#include "SurfaceElement.h"

#include <cstdint>

// A chart with the picture of a surface in which one row is marked. Throws LibraryError.
class ImageChart : public ChartView
{
public:
    ImageChart(void* parentWindow, uint32_t layout);

    // Shows another surface, coloured as in its 3D view.
    void Show(const HeightMap& map, int32_t markedRow, const SurfaceColors& colors);
    // The same surface with other samples, colours or another marked row.
    void Replace(const HeightMap& map, int32_t markedRow, const SurfaceColors& colors);
    void MarkRow(const HeightMap& map, int32_t row);

private:
    int32_t Marker = -1;
};
