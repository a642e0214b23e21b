#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

// A picture of one channel as read from a file: row by row, the top row first.
struct GreyPicture
{
    int32_t Columns = 0;
    int32_t Rows = 0;
    int32_t Bits = 8; // bits of the file's samples, 8 or 16
    std::vector<uint16_t> Samples;

    size_t SampleCount() const { return static_cast<size_t>(Columns) * static_cast<size_t>(Rows); }
};
