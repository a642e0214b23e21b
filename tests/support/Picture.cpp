#include "support/Picture.h"

#include "TarvexExt.h"

#include <gtest/gtest.h>

Picture::Color Picture::At(int x, int y) const
{
    const size_t at =
        3 * (static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x));
    return {Pixels[at], Pixels[at + 1], Pixels[at + 2]};
}

int Picture::Count(const std::function<bool(const Color&)>& matches) const
{
    int count = 0;
    for (int at = 0; at < Width * Height; ++at)
    {
        count += matches(At(at % Width, at / Width)) ? 1 : 0;
    }
    return count;
}

int Picture::CountDifferences(const Picture& other) const
{
    if (Width != other.Width || Height != other.Height)
    {
        return Width * Height;
    }
    int count = 0;
    for (int at = 0; at < Width * Height; ++at)
    {
        count += At(at % Width, at / Width) != other.At(at % Width, at / Width) ? 1 : 0;
    }
    return count;
}

std::array<double, 2> Picture::Centre(const std::function<bool(const Color&)>& matches) const
{
    std::array<double, 2> sum = {};
    for (int at = 0; at < Width * Height; ++at)
    {
        if (matches(At(at % Width, at / Width)))
        {
            sum[0] += at % Width;
            sum[1] += at / Width; // NOLINT: the row
        }
    }
    const int count = Count(matches);
    return count > 0 ? std::array{sum[0] / count, sum[1] / count} : std::array{-1.0, -1.0};
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
