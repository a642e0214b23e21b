// Thinned lines against the rule by which pixels belong to a line.
#include "elements2d/LineThinning.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>
#include <set>

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
        const auto [lowest, highest] = std::minmax(a.Y, b.Y);
        for (int x = static_cast<int>(a.X); x <= b.X; ++x)
        {
            for (int y = static_cast<int>(lowest); y <= highest; ++y)
            {
                // Nearest to the pixel's middle it is at an end, or level with it in X or Y.
                const double dx = double{b.X} - a.X;
                const double dy = double{b.Y} - a.Y;
                const double left = x + 0.5 - a.X;
                const double below = y + 0.5 - a.Y;
                for (const double part :
                     {0.0, 1.0, dx > 0.0 ? left / dx : 0.0, dy != 0.0 ? below / dy : 0.0})
                {
                    const double along = std::clamp(part, 0.0, 1.0);
                    if (std::abs(along * dx - left) + std::abs(along * dy - below) < 0.5)
                    {
                        covered.emplace(x, y);
                    }
                }
            }
        }
    }
    return covered;
}
} // namespace

TEST(LineThinning, CoversTheSamePixels)
{
    std::mt19937 random(7);
    std::uniform_real_distribution<double> next;
    for (int line = 0; line < 60; ++line)
    {
        const double noise = std::pow(10.0, next(random) * 4.0 - 3.0);
        const double slope = next(random) * 4.0 - 2.0;
        std::vector<PlotPlace> places;
        for (double x = 10.0 * next(random); x < 40.0;
             x += next(random) < 0.1 ? 0.0 : next(random) * 0.1)
        {
            const double y = 100.0 + slope * x + noise * (next(random) - 0.5);
            places.push_back({static_cast<float>(x), static_cast<float>(y)});
        }
        std::vector<PlotPlace> thinned;
        ThinLine(places, {1.0, 1.0, 0.0}, thinned);
        EXPECT_LT(thinned.size(), places.size() / 2);
        EXPECT_EQ(Cover(thinned), Cover(places)) << noise << " " << slope;
    }
}
