// The picture of a view, for tests that look at it by counts and places of colours.
#pragma once

#include <array>
#include <cstdint>
#include <functional>
#include <vector>

struct Picture
{
    using Color = std::array<uint8_t, 3>;

    // From the upper left corner.
    Color At(int x, int y) const;
    // Numbers of the matching pixels, counted row by row.
    std::vector<int> Find(const std::function<bool(const Color&)>& matches) const;
    int Count(const std::function<bool(const Color&)>& matches) const
    {
        return static_cast<int>(Find(matches).size());
    }
    // Pixels that differ from those of `other`; all, for another size.
    int CountDifferences(const Picture& other) const;
    // Centre of the matching pixels; -1, -1 when there are none.
    std::array<double, 2> Centre(const std::function<bool(const Color&)>& matches) const;

    int Width = 0;
    int Height = 0;
    std::vector<uint8_t> Pixels; // RGB, top row first
};

// The last rendered picture of a 3D view.
Picture TakePicture(int32_t windowId);
// Of a chart view.
Picture TakeChartPicture(int32_t windowId);
