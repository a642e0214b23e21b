#include "support/Picture.h"

#include "TarvexExt.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <numeric>
#include <utility>

Picture::Color Picture::At(int x, int y) const
{
    const size_t at =
        3 * (static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x));
    return {Pixels[at], Pixels[at + 1], Pixels[at + 2]};
}

std::vector<int> Picture::Find(const std::function<bool(const Color&)>& matches) const
{
    std::vector<int> found(static_cast<size_t>(Width * Height));
    std::iota(found.begin(), found.end(), 0);
    std::erase_if(found, [&](int at) { return !matches(At(at % Width, at / Width)); });
    return found;
}

int Picture::CountDifferences(const Picture& other) const
{
    if (Width != other.Width || Height != other.Height)
    {
        return Width * Height;
    }
    auto at = other.Pixels.begin();
    return Count([&](const Color& color)
                 { return !std::equal(color.begin(), color.end(), std::exchange(at, at + 3)); });
}

std::array<double, 2> Picture::Centre(const std::function<bool(const Color&)>& matches) const
{
    std::array<double, 2> centre = {};
    const std::vector<int> found = Find(matches);
    const auto count = static_cast<double>(found.size());
    for (const int at : found)
    {
        centre[0] += at % Width / count;
        centre[1] += at / Width / count; // NOLINT: the row
    }
    return found.empty() ? std::array{-1.0, -1.0} : centre;
}

namespace
{
Picture TakeBy(decltype(TarvexExt_Window_CopyImage) copy, int32_t windowId)
{
    Picture picture;
    EXPECT_EQ(copy(windowId, nullptr, 0, &picture.Width, &picture.Height), STATUS_OK);
    const int32_t size = 3 * picture.Width * picture.Height;
    picture.Pixels.resize(static_cast<size_t>(size));
    EXPECT_EQ(copy(windowId, picture.Pixels.data(), size, &picture.Width, &picture.Height),
              STATUS_OK);
    return picture;
}
} // namespace

Picture TakePicture(int32_t windowId)
{
    return TakeBy(TarvexExt_Window_CopyImage, windowId);
}

Picture TakeChartPicture(int32_t windowId)
{
    return TakeBy(TarvexExt_Window2D_CopyImage, windowId);
}
