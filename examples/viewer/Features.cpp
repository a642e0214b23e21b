#include "Features.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

namespace
{
// The valid samples of an area as indices into the samples of the map.
std::vector<size_t> ValidSamples(const HeightMap& map, const Area& area)
{
    const size_t first = IndexAt(map, {area.Left, area.Top});
    const size_t last = IndexAt(map, {area.Right, area.Bottom});
    const auto columns = static_cast<size_t>(map.Columns);
    std::vector<size_t> indices;
    for (size_t row = first / columns; row <= last / columns; ++row)
    {
        for (size_t column = first % columns; column <= last % columns; ++column)
        {
            const size_t index = row * columns + column;
            if (map.Samples[index] != HeightMap::Missing)
            {
                indices.push_back(index);
            }
        }
    }
    return indices;
}

double MedianHeight(const HeightMap& map, std::vector<size_t> indices)
{
    if (indices.empty())
    {
        return 0.0;
    }
    const auto middle = indices.begin() + static_cast<std::ptrdiff_t>(indices.size() / 2);
    std::nth_element(indices.begin(), middle, indices.end(),
                     [&](size_t a, size_t b) { return map.Samples[a] < map.Samples[b]; });
    return map.Height(map.Samples[*middle]);
}
} // namespace

size_t IndexAt(const HeightMap& map, const Spot& spot)
{
    const auto column = static_cast<size_t>(std::lround(spot.Column * (map.Columns - 1)));
    const auto row = static_cast<size_t>(std::lround(spot.Row * (map.Rows - 1)));
    return row * static_cast<size_t>(map.Columns) + column;
}

double MedianHeight(const HeightMap& map, const Area& area)
{
    return MedianHeight(map, ValidSamples(map, area));
}

FittedPlane FitPlane(const HeightMap& map, const Area& area)
{
    const std::vector<size_t> indices = ValidSamples(map, area);
    const double median = MedianHeight(map, indices);
    const HeightStatistics statistics = DescribeHeights(map);
    const double near =
        0.1 * (map.Height(statistics.Highest) - map.Height(statistics.Lowest)) + map.ZScale;
    std::vector<size_t> used;
    std::copy_if(indices.begin(), indices.end(), std::back_inserter(used),
                 [&](size_t i) { return std::abs(map.Height(map.Samples[i]) - median) <= near; });
    if (used.empty())
    {
        return {0.0, 0.0, median};
    }
    // Around the middle of the samples the constant falls out of the equations.
    const auto count = static_cast<double>(used.size());
    double meanX = 0.0;
    double meanY = 0.0;
    double meanZ = 0.0;
    for (const size_t i : used)
    {
        meanX += map.X(i) / count;
        meanY += map.Y(i) / count;
        meanZ += map.Height(map.Samples[i]) / count;
    }
    double xx = 0.0;
    double xy = 0.0;
    double yy = 0.0;
    double xz = 0.0;
    double yz = 0.0;
    for (const size_t i : used)
    {
        const double x = map.X(i) - meanX;
        const double y = map.Y(i) - meanY;
        const double z = map.Height(map.Samples[i]) - meanZ;
        xx += x * x;
        xy += x * y;
        yy += y * y;
        xz += x * z;
        yz += y * z;
    }
    const double determinant = xx * yy - xy * xy;
    FittedPlane plane;
    if (determinant > 0.0)
    {
        plane.SlopeX = (xz * yy - yz * xy) / determinant;
        plane.SlopeY = (yz * xx - xz * xy) / determinant;
    }
    plane.Constant = meanZ - plane.SlopeX * meanX - plane.SlopeY * meanY;
    return plane;
}

Plateau MeasurePlateau(const HeightMap& map, const Area& area)
{
    const std::vector<size_t> indices = ValidSamples(map, area);
    if (indices.empty())
    {
        return {};
    }
    const auto [lowest, highest] =
        std::minmax_element(indices.begin(), indices.end(),
                            [&](size_t a, size_t b) { return map.Samples[a] < map.Samples[b]; });
    const int32_t threshold = (map.Samples[*lowest] + map.Samples[*highest]) / 2;
    std::vector<size_t> above;
    std::vector<size_t> below;
    for (const size_t i : indices)
    {
        (map.Samples[i] >= threshold ? above : below).push_back(i);
    }
    double left = map.X(above.front());
    double right = left;
    double front = map.Y(above.front());
    double back = front;
    for (const size_t i : above)
    {
        left = std::min(left, map.X(i));
        right = std::max(right, map.X(i));
        front = std::min(front, map.Y(i));
        back = std::max(back, map.Y(i));
    }
    Plateau plateau;
    plateau.X = (left + right) / 2.0;
    plateau.Y = (front + back) / 2.0;
    plateau.HalfWidth = (right - left) / 2.0;
    plateau.HalfDepth = (back - front) / 2.0;
    plateau.Height = MedianHeight(map, above);
    plateau.Surrounding = below.empty() ? plateau.Height : MedianHeight(map, below);
    return plateau;
}
