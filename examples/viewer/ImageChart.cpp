#include "ImageChart.h"

#include "Colors.h"
#include "Library.h"
#include "MapImage.h"
#include "MapLines.h"

#include <Tarvex.h>

namespace
{
void ShowImage(int32_t chart, const HeightMap& map, const SurfaceColors& colors)
{
    if (colors.Intensity)
    {
        ShowIntensityImage(chart, map, colors.Palette);
    }
    else
    {
        ShowHeightImage(chart, map, colors.Palette);
    }
}
} // namespace

ImageChart::ImageChart(void* parentWindow, uint32_t layout) : ChartView(parentWindow, layout, true)
{
}

void ImageChart::Show(const HeightMap& map, int32_t markedRow, const SurfaceColors& colors)
{
    const ChartUpdate update(Id());
    Check(Tarvex_Element2D_RemoveAll(Id()), "Tarvex_Element2D_RemoveAll");
    ShowImage(Id(), map, colors);
    const PixelGrid grid(map);
    Check(Tarvex_Element2D_Add_Line_2Points(Id(), grid.X(0), grid.Y(markedRow),
                                            grid.X(map.Columns - 1), grid.Y(markedRow), 1, &Marker,
                                            "marked row"),
          "Tarvex_Element2D_Add_Line_2Points");
    PaintInChart(Id(), Marker, MarkedRowColor, MarkedRowWidth);
}

void ImageChart::Replace(const HeightMap& map, int32_t markedRow, const SurfaceColors& colors)
{
    const ChartUpdate update(Id());
    ShowImage(Id(), map, colors);
    MarkRow(map, markedRow); // which also renders the image
}

void ImageChart::MarkRow(const HeightMap& map, int32_t row)
{
    const PixelGrid grid(map);
    Check(Tarvex_Element2D_Line_SetValue(Id(), Marker, grid.X(0), grid.Y(row),
                                         grid.X(map.Columns - 1), grid.Y(row), 1),
          "Tarvex_Element2D_Line_SetValue");
}
