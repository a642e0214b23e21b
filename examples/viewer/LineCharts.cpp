#include "LineCharts.h"

#include <algorithm>

namespace
{
// What the image may take of the height of both charts.
constexpr double LeastImageShare = 0.35;
constexpr double MostImageShare = 0.65;
// About what the axes take around it, in pixels.
constexpr int32_t AxesWidth = 90;
constexpr int32_t AxesHeight = 80;
} // namespace

LineCharts::LineCharts(void* parentWindow, uint32_t layout)
    : ParentWindow(parentWindow), Layout(layout), Profile(parentWindow, layout)
{
}

void LineCharts::Show(const HeightMap& map, int32_t row, const std::optional<SurfaceColors>& colors)
{
    if (!colors)
    {
        Image.reset();
    }
    else
    {
        if (!Image)
        {
            Image.emplace(ParentWindow, Layout);
        }
        const Extent extent = DescribeExtent(map);
        ImageAspect = extent.Depth() / extent.Width();
        Image->Show(map, row, *colors);
    }
    Profile.Show(map, row);
    Place(Placed);
}

void LineCharts::Replace(const HeightMap& map, int32_t row,
                         const std::optional<SurfaceColors>& colors)
{
    if (Image && colors)
    {
        Image->Replace(map, row, *colors);
    }
    Profile.Replace(map, row);
}

void LineCharts::MarkRow(const HeightMap& map, int32_t row)
{
    if (Image)
    {
        Image->MarkRow(map, row);
    }
    Profile.Replace(map, row);
}

void LineCharts::Place(const Box& box)
{
    Placed = box;
    const double wanted = std::max(0, box.Width - AxesWidth) * ImageAspect + AxesHeight;
    const int32_t imageHeight =
        Image ? static_cast<int32_t>(
                    std::clamp(wanted, LeastImageShare * box.Height, MostImageShare * box.Height))
              : 0;
    if (Image)
    {
        Image->Place({box.Left, box.Top, box.Width, imageHeight});
    }
    Profile.Place({box.Left, box.Top + imageHeight, box.Width, box.Height - imageHeight});
}

std::vector<View*> LineCharts::Views()
{
    if (!Image)
    {
        return {&Profile};
    }
    return {&*Image, &Profile};
}
