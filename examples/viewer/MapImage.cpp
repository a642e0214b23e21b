#include "MapImage.h"

#include "Library.h"
#include "MapLines.h"

#include <Tarvex.h>

#include <algorithm>
#include <array>
#include <cstddef>
#include <vector>

void ShowHeightImage(int32_t chart, const HeightMap& map, uint32_t palette)
{
    const PixelGrid grid(map);
    int32_t image = TARVEX_NONE;
    Check(Tarvex_Element2D_Add_ImageShort(chart, map.Samples.data(), map.Columns, map.Rows,
                                          grid.PixelWidth, grid.PixelHeight, map.ZScale, grid.Left,
                                          grid.Bottom, map.ZOffset, palette, &image),
          "Tarvex_Element2D_Add_ImageShort");
}

void ShowIntensityImage(int32_t chart, const HeightMap& map, uint32_t palette)
{
    // A camera often uses a small part of 0 to 255, which would be one grey: here it is spread over
    // all of it, and scale and offset let the pixels still stand for the camera's numbers.
    const auto [darkest, brightest] =
        std::minmax_element(map.Intensities.begin(), map.Intensities.end());
    const int32_t dark = *darkest;
    const int32_t span = std::max(1, *brightest - dark);
    std::array<uint8_t, 256> spread{};
    for (int32_t i = 0; i <= span && dark + i < 256; ++i)
    {
        spread[static_cast<size_t>(dark + i)] = static_cast<uint8_t>(i * 255 / span);
    }
    std::vector<uint8_t> pixels(map.Intensities.size());
    std::transform(map.Intensities.begin(), map.Intensities.end(), pixels.begin(),
                   [&](uint8_t intensity) { return spread[intensity]; });
    const PixelGrid grid(map);
    int32_t image = TARVEX_NONE;
    Check(Tarvex_Element2D_Add_ImageByte(chart, pixels.data(), map.Columns, map.Rows,
                                         grid.PixelWidth, grid.PixelHeight, span / 255.0, grid.Left,
                                         grid.Bottom, dark, palette, &image),
          "Tarvex_Element2D_Add_ImageByte");
}
