#include "ProfileChart.h"

#include "Colors.h"
#include "Library.h"
#include "MapLines.h"

#include <Tarvex.h>

#include <algorithm>
#include <cstddef>

namespace
{
constexpr const char* ProfileName = "marked row";
constexpr double MarkerSize = 1.5; // the library marks each sample of the General form

// An element that nobody sees but that counts when the axes are fitted to all elements.
void ReserveRange(int32_t chart, const HeightMap& map)
{
    const Extent extent = DescribeExtent(map);
    const HeightStatistics statistics = DescribeHeights(map);
    int32_t diagonal = TARVEX_NONE;
    Check(Tarvex_Element2D_Add_Line_2Points(chart, extent.XMin, map.Height(statistics.Lowest),
                                            extent.XMax, map.Height(statistics.Highest), 1,
                                            &diagonal, nullptr),
          "Tarvex_Element2D_Add_Line_2Points");
    Check(Tarvex_Element2D_Show(chart, diagonal, 0), "Tarvex_Element2D_Show");
}

size_t FirstOf(const HeightMap& map, int32_t row)
{
    return static_cast<size_t>(row) * static_cast<size_t>(map.Columns);
}
} // namespace

ProfileChart::ProfileChart(void* parentWindow, uint32_t layout)
    : ChartView(parentWindow, layout, false)
{
}

void ProfileChart::Show(const HeightMap& map, int32_t row)
{
    const ChartUpdate update(Id());
    Check(Tarvex_Element2D_RemoveAll(Id()), "Tarvex_Element2D_RemoveAll");
    const bool complete =
        std::find(map.Samples.begin(), map.Samples.end(), HeightMap::Missing) == map.Samples.end();
    ShownForm = map.HasFreePositions() ? Form::Kor : complete ? Form::Uniform : Form::General;
    AddProfile(map, row);
    PaintInChart(Id(), Profile, MarkedRowColor, MarkedRowWidth);
    ReserveRange(Id(), map);
    // Adding a profile has fitted the axes to it alone.
    Frame();
}

void ProfileChart::AddProfile(const HeightMap& map, int32_t row)
{
    const int16_t* heights = map.Samples.data() + FirstOf(map, row);
    switch (ShownForm)
    {
    case Form::Uniform:
        Check(Tarvex_Element2D_Add_ProfileUniform(Id(), heights, map.Columns, map.XScale,
                                                  map.ZScale, map.XOffset, map.ZOffset, &Profile),
              "Tarvex_Element2D_Add_ProfileUniform");
        break;
    case Form::Kor:
        Check(Tarvex_Element2D_Add_ProfileNonUniform_KorData(
                  Id(), map.XSamples.data() + FirstOf(map, row), heights, map.Columns, map.XScale,
                  map.ZScale, map.XOffset, map.ZOffset, &Profile, ProfileName),
              "Tarvex_Element2D_Add_ProfileNonUniform_KorData");
        break;
    case Form::General:
        const LineSamples line = SamplesOfRow(map, row);
        Check(Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(
                  Id(), line.Positions.data(), line.Heights.data(), line.Valid.data(), map.Columns,
                  &Profile, ProfileName),
              "Tarvex_Element2D_Add_ProfileNonUniform_GeneralData");
        Check(Tarvex_Element2D_ProfileNonUniform_SetMarkerSize(Id(), Profile, MarkerSize),
              "Tarvex_Element2D_ProfileNonUniform_SetMarkerSize");
        break;
    }
}

void ProfileChart::Replace(const HeightMap& map, int32_t row)
{
    const int16_t* heights = map.Samples.data() + FirstOf(map, row);
    switch (ShownForm)
    {
    case Form::Uniform:
        Check(Tarvex_Element2D_ProfileUniform_SetValue(Id(), Profile, map.Columns, heights,
                                                       map.XScale, map.ZScale, map.XOffset,
                                                       map.ZOffset),
              "Tarvex_Element2D_ProfileUniform_SetValue");
        break;
    case Form::Kor:
        Check(Tarvex_Element2D_ProfileNonUniform_SetValue_KorData(
                  Id(), Profile, map.Columns, map.XSamples.data() + FirstOf(map, row), heights,
                  map.XScale, map.ZScale, map.XOffset, map.ZOffset),
              "Tarvex_Element2D_ProfileNonUniform_SetValue_KorData");
        break;
    case Form::General:
        const LineSamples line = SamplesOfRow(map, row);
        Check(Tarvex_Element2D_ProfileNonUniform_SetValue_GeneralData(
                  Id(), Profile, map.Columns, line.Positions.data(), line.Heights.data(),
                  line.Valid.data()),
              "Tarvex_Element2D_ProfileNonUniform_SetValue_GeneralData");
        break;
    }
}
