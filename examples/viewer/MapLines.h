#pragma once

#include "HeightMap.h"

#include <cstddef>
#include <cstdint>
#include <vector>

// Single lines of a map, and where they lie in a picture of it.

// One row among the samples of a map.
struct MapRow
{
    size_t First = 0; // index of the row's first sample
    size_t Valid = 0; // number of valid samples
    double Y = 0.0;   // mean of the valid samples: with free positions a row need not be straight
};

MapRow DescribeRow(const HeightMap& map, int32_t number);

// Positions and heights along a line, with a mark for each sample whether it is there.
struct LineSamples
{
    std::vector<double> Positions; // x along a row, y along a column
    std::vector<double> Heights;   // 0 where missing
    std::vector<uint8_t> Valid;    // 0 where missing
};

LineSamples SamplesOfRow(const HeightMap& map, int32_t row);
LineSamples SamplesOfColumn(const HeightMap& map, int32_t column);

// A map drawn as a picture with one pixel per sample, row 0 at the top. The y of a picture counts
// upwards, that of a map downwards from row 0: in the picture the same range of y is turned over.
// With free positions the pixels are spread evenly over the extent.
struct PixelGrid
{
    explicit PixelGrid(const HeightMap& map);

    // The middle of a pixel.
    double X(int32_t column) const { return Left + (column + 0.5) * PixelWidth; }
    double Y(int32_t row) const { return Bottom + (Rows - row - 0.5) * PixelHeight; }

    int32_t Columns;
    int32_t Rows;
    double PixelWidth;
    double PixelHeight;
    double Left; // outer edges of the first column and of the last row
    double Bottom;
};

// What the next measurement looks like while the object passes the sensor on a belt: each row takes
// over what the row behind it saw, and the last one starts again with the object's first row.
void AdvanceByOneRow(HeightMap& map);
