// Thinned lines against the rule by which pixels belong to a line.
#include "elements2d/LineThinning.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>
#include <utility>

namespace
{
// The pixels whose inner diamond the line touches.
std::set<std::pair<int, int>> Cover(const std::vector<PlotPlace>& line)
{
    std::set<std::pair<int, int>> covered;
    for (size_t at = 1; at < line.size(); ++at)
    {
        const PlotPlace a = line[at - 1];
        const PlotPlace b = line[at];
        for (int x = static_cast<int>(std::floor(a.X)) - 1; x <= std::floor(b.X) + 1; ++x)
        {
            for (int y = static_cast<int>(std::floor(std::min(a.Y, b.Y))) - 1;
                 y <= std::floor(std::max(a.Y, b.Y)) + 1; ++y)
            {
                // Turned by 45 degrees the diamond is a square about the origin.
                const double ends[2][2] = {{a.X + a.Y - x - y - 1.0, b.X + b.Y - x - y - 1.0},
                                           {a.X - a.Y - x + y, b.X - b.Y - x + y}};
                double from = 0.0;
                double to = 1.0;
                for (const auto& [start, end] : ends)
                {
                    const double length = end - start;
                    if (length == 0.0)
                    {
                        to = std::abs(start) < 0.5 ? to : -1.0;
                        continue;
                    }
                    from = std::max(from, (-std::copysign(0.5, length) - start) / length);
                    to = std::min(to, (std::copysign(0.5, length) - start) / length);
                }
                if (from < to)
                {
                    covered.emplace(x, y);
                }
            }
        }
    }
    return covered;
}
} // namespace

TEST(LineThinning, CoversTheSamePixels)
{
    unsigned random = 7;
    const auto next = [&random]
    {
        random = random * 1664525U + 1013904223U;
        return static_cast<double>(random >> 8U) / (1U << 24U);
    };
    for (int line = 0; line < 60; ++line)
    {
        const double noise = std::pow(10.0, next() * 4.0 - 3.0);
        const double slope = next() * 4.0 - 2.0;
        std::vector<PlotPlace> places;
        for (double x = 10.0 * next(); x < 40.0; x += next() < 0.1 ? 0.0 : next() * 0.1)
        {
            places.push_back({static_cast<float>(x),
                              static_cast<float>(100.0 + slope * x + noise * (next() - 0.5))});
        }
        std::vector<PlotPlace> thinned;
        ThinLine(places, {1.0, 1.0, 0.0}, thinned);
        EXPECT_LT(thinned.size(), places.size() / 2);
        EXPECT_EQ(Cover(thinned), Cover(places)) << noise << " " << slope;
    }
}
