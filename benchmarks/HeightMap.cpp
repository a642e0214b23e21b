#include "HeightMap.h"

#include <algorithm>
#include <cmath>
#include <random>

HeightMap MakeHeightMap(int32_t columns, int32_t rows, int seed)
{
    HeightMap map;
    map.Columns = columns;
    map.Rows = rows;
    map.Pitch = 100.0 / columns;
    const size_t count = static_cast<size_t>(columns) * static_cast<size_t>(rows);
    map.Heights.resize(count);
    for (int32_t row = 0; row < rows; ++row)
    {
        for (int32_t column = 0; column < columns; ++column)
        {
            const double x = 8.0 * column / columns + 0.1 * seed;
            const double y = 8.0 * row / columns;
            map.Heights[static_cast<size_t>(row) * static_cast<size_t>(columns) +
                        static_cast<size_t>(column)] =
                static_cast<int16_t>(3700.0 * std::sin(x) * std::cos(y) +
                                     300.0 * std::sin(9.0 * x + 7.0 * y));
        }
    }

    std::mt19937 random(1);
    size_t missing = 0;
    while (missing < count / 10)
    {
        const auto pick = [&](int32_t end)
        { return static_cast<int32_t>(random() % static_cast<uint32_t>(end)); };
        const int32_t radius = 3 + pick(std::max(rows / 30, 1));
        const int32_t centreX = pick(columns);
        const int32_t centreY = pick(rows);
        for (int32_t row = std::max(centreY - radius, 0);
             row <= std::min(centreY + radius, rows - 1); ++row)
        {
            for (int32_t column = std::max(centreX - radius, 0);
                 column <= std::min(centreX + radius, columns - 1); ++column)
            {
                const int32_t dx = column - centreX;
                const int32_t dy = row - centreY;
                int16_t& height =
                    map.Heights[static_cast<size_t>(row) * static_cast<size_t>(columns) +
                                static_cast<size_t>(column)];
                if (dx * dx + dy * dy <= radius * radius && height != -32768)
                {
                    height = -32768;
                    ++missing;
                }
            }
        }
    }
    return map;
}
