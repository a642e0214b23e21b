#include "elements2d/LineThinning.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
// The samples within one pixel column. A pixel belongs to a line when the line touches the diamond
// between the middles of its sides. Inside a column these pixels follow from few samples: the ends,
// the lowest and highest, those that reach farthest down and up into the diamonds, and the pair
// about the middle of the column. A line through them covers the same pixels.
class Column
{
public:
    void Start(const PlotPlace& place, size_t index, double middle, double steepness)
    {
        Middle = middle;
        Steepness = steepness;
        First = Last = Lowest = Highest = Deepest = Tallest = index;
        BeforeMiddle = AfterMiddle = index;
        LowestY = HighestY = place.Y;
        const double away = std::abs(place.X - Middle) * Steepness;
        Depth = place.Y + away;
        Height = place.Y - away;
        Passed = place.X > Middle;
    }
    void Add(const PlotPlace& place, size_t index)
    {
        Last = index;
        if (place.Y < LowestY)
        {
            LowestY = place.Y;
            Lowest = index;
        }
        if (place.Y > HighestY)
        {
            HighestY = place.Y;
            Highest = index;
        }
        const double away = std::abs(place.X - Middle) * Steepness;
        if (place.Y + away < Depth)
        {
            Depth = place.Y + away;
            Deepest = index;
        }
        if (place.Y - away > Height)
        {
            Height = place.Y - away;
            Tallest = index;
        }
        if (!Passed)
        {
            Passed = place.X > Middle;
            AfterMiddle = index;
            BeforeMiddle = Passed ? index - 1 : index;
        }
    }
    // In the order of the samples, each once.
    template <class Action>
    void ForEach(Action&& action)
    {
        std::array<size_t, 8> kept = {First,   Last,    Lowest,       Highest,
                                      Deepest, Tallest, BeforeMiddle, AfterMiddle};
        std::sort(kept.begin(), kept.end());
        std::for_each(kept.begin(), std::unique(kept.begin(), kept.end()), action);
    }

private:
    double Middle = 0.0;    // X of the column, in the units of the plot
    double Steepness = 0.0; // height of a rise by one pixel a pixel, for one unit of X
    size_t First = 0;
    size_t Last = 0;
    size_t Lowest = 0;
    size_t Highest = 0;
    size_t Deepest = 0;
    size_t Tallest = 0;
    size_t BeforeMiddle = 0;
    size_t AfterMiddle = 0;
    float LowestY = 0.0F;
    float HighestY = 0.0F;
    double Depth = 0.0;
    double Height = 0.0;
    bool Passed = false;
};
} // namespace

void ThinLine(std::span<const PlotPlace> places, const PixelScale& scale,
              std::vector<PlotPlace>& thinned)
{
    thinned.clear();
    const double steepness = scale.X / scale.Y;
    for (size_t index = 0; index < places.size();)
    {
        const double left = std::floor(scale.ToPixel(places[index].X));
        const double right = scale.FromPixel(left + 1.0);
        Column column;
        column.Start(places[index], index, scale.FromPixel(left + 0.5), steepness);
        for (++index; index < places.size() && places[index].X < right; ++index)
        {
            column.Add(places[index], index);
        }
        column.ForEach([&](size_t kept) { thinned.push_back(places[kept]); });
    }
}
