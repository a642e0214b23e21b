// The measured data that all benchmarks show.
#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

struct HeightMap
{
    int32_t Columns = 0;
    int32_t Rows = 0;
    std::vector<int16_t> Heights;
    // 100 units wide, 8 units high.
    double Pitch = 1.0;
    double ZScale = 0.001;

    size_t GetCount() const { return Heights.size(); }
    double GetHeight() const { return Pitch * Rows; }
};

// Rolling ground with a tenth of the samples missing in round holes. Another `seed` moves the
// ground, but the holes only a little.
HeightMap MakeHeightMap(int32_t columns, int32_t rows, int seed);
