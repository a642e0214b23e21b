#include "support/Picture.h"

#include "TarvexExt.h"

#include <gtest/gtest.h>

#include <cstdlib>

Picture::Color Picture::At(int x, int y) const
{
    const size_t at =
        3 * (static_cast<size_t>(y) * static_cast<size_t>(Width) + static_cast<size_t>(x));
    return {Pixels[at], Pixels[at + 1], Pixels[at + 2]};
}

int Picture::Count(const std::function<bool(const Color&)>& matches) const
{
    int count = 0;
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
        {
            count += matches(At(x, y)) ? 1 : 0;
        }
    }
    return count;
}

int Picture::CountDifferences(const Picture& other, int tolerance) const
{
    if (Width != other.Width || Height != other.Height)
    {
        return Width * Height;
    }
    int count = 0;
    for (size_t pixel = 0; pixel < Pixels.size(); pixel += 3)
    {
        bool differs = false;
        for (size_t channel = pixel; channel < pixel + 3; ++channel)
        {
            differs = differs || std::abs(Pixels[channel] - other.Pixels[channel]) > tolerance;
        }
        count += differs ? 1 : 0;
    }
    return count;
}

std::array<double, 2> Picture::Centre(const std::function<bool(const Color&)>& matches) const
{
    double sumX = 0.0;
    double sumY = 0.0;
    int count = 0;
    for (int y = 0; y < Height; ++y)
    {
        for (int x = 0; x < Width; ++x)
        {
            if (matches(At(x, y)))
            {
                sumX += x;
                sumY += y;
                ++count;
            }
        }
    }
    if (count == 0)
    {
        return {-1.0, -1.0};
    }
    return {sumX / count, sumY / count};
}

Picture TakePicture(int32_t windowId)
{
    Picture picture;
    int32_t width = 0;
    int32_t height = 0;
    EXPECT_EQ(TarvexExt_Window_CopyImage(windowId, nullptr, 0, &width, &height), STATUS_OK);
    picture.Width = width;
    picture.Height = height;
    picture.Pixels.resize(size_t{3} * static_cast<size_t>(width) * static_cast<size_t>(height));
    EXPECT_EQ(TarvexExt_Window_CopyImage(windowId, picture.Pixels.data(),
                                         static_cast<int32_t>(picture.Pixels.size()), &width,
                                         &height),
              STATUS_OK);
    return picture;
}
