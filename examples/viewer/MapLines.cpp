#include "MapLines.h"

#include <algorithm>
#include <cmath>

namespace
{
void Append(LineSamples& line, const HeightMap& map, size_t index, double position)
{
    const int16_t sample = map.Samples[index];
    const bool valid = sample != HeightMap::Missing;
    line.Positions.push_back(position);
    line.Heights.push_back(valid ? map.Height(sample) : 0.0);
    line.Valid.push_back(valid ? 1 : 0);
}

template <class Value>
void RotateByOneRow(std::vector<Value>& values, int32_t columns)
{
    if (!values.empty())
    {
        std::rotate(values.begin(), values.begin() + columns, values.end());
    }
}

// The rows keep their places on the belt although the samples in them have moved on by one.
void MoveBack(std::vector<int16_t>& ySamples, int32_t columns, int32_t rows)
{
    if (ySamples.empty() || rows < 2)
    {
        return;
    }
    const auto rowMean = [&](int32_t row)
    {
        double sum = 0.0;
        const auto first = ySamples.begin() + static_cast<std::ptrdiff_t>(row) * columns;
        std::for_each(first, first + columns, [&](int16_t y) { sum += y; });
        return sum / columns;
    };
    // The first row has moved to the end already: the pitch is that of the others.
    const auto pitch =
        rows > 2 ? static_cast<int32_t>(std::lround((rowMean(rows - 2) - rowMean(0)) / (rows - 2)))
                 : static_cast<int32_t>(std::lround(rowMean(0) - rowMean(1)));
    const auto move = [](int16_t y, int32_t way)
    { return static_cast<int16_t>(std::clamp<int32_t>(y + way, INT16_MIN, INT16_MAX)); };
    const auto last = ySamples.end() - columns;
    std::transform(ySamples.begin(), last, ySamples.begin(),
                   [&](int16_t y) { return move(y, -pitch); });
    std::transform(last, ySamples.end(), last,
                   [&](int16_t y) { return move(y, (rows - 1) * pitch); });
}
} // namespace

MapRow DescribeRow(const HeightMap& map, int32_t number)
{
    const auto columns = static_cast<size_t>(map.Columns);
    MapRow row;
    row.First = static_cast<size_t>(number) * columns;
    double sum = 0.0;
    for (size_t i = row.First; i < row.First + columns; ++i)
    {
        if (map.Samples[i] != HeightMap::Missing)
        {
            sum += map.Y(i);
            ++row.Valid;
        }
    }
    row.Y = row.Valid > 0 ? sum / static_cast<double>(row.Valid) : 0.0;
    return row;
}

LineSamples SamplesOfRow(const HeightMap& map, int32_t row)
{
    const auto columns = static_cast<size_t>(map.Columns);
    const size_t first = static_cast<size_t>(row) * columns;
    LineSamples line;
    for (size_t i = first; i < first + columns; ++i)
    {
        Append(line, map, i, map.X(i));
    }
    return line;
}

LineSamples SamplesOfColumn(const HeightMap& map, int32_t column)
{
    LineSamples line;
    for (auto i = static_cast<size_t>(column); i < map.Samples.size();
         i += static_cast<size_t>(map.Columns))
    {
        Append(line, map, i, map.Y(i));
    }
    return line;
}

PixelGrid::PixelGrid(const HeightMap& map) : Columns(map.Columns), Rows(map.Rows)
{
    const Extent extent = DescribeExtent(map);
    PixelWidth = extent.Width() / (Columns - 1);
    PixelHeight = extent.Depth() / (Rows - 1);
    // A sample lies in the middle of its pixel.
    Left = extent.XMin - 0.5 * PixelWidth;
    Bottom = extent.YMin - 0.5 * PixelHeight;
}

void AdvanceByOneRow(HeightMap& map)
{
    RotateByOneRow(map.Samples, map.Columns);
    RotateByOneRow(map.Intensities, map.Columns);
    RotateByOneRow(map.XSamples, map.Columns);
    RotateByOneRow(map.YSamples, map.Columns);
    MoveBack(map.YSamples, map.Columns, map.Rows);
}
