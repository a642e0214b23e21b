// Lines taken out of height maps, and where they lie in pictures of them.

#include "MapLines.h"

#include <gtest/gtest.h>

#include <vector>

namespace
{
constexpr int16_t Missing = HeightMap::Missing;

HeightMap SmallMap()
{
    HeightMap map;
    map.Columns = 3;
    map.Rows = 4;
    map.Samples = {1, 2, 3, 4, Missing, 6, 7, 8, 9, 10, 11, 12};
    map.XScale = 0.5;
    map.YScale = 2.0;
    map.ZScale = 0.1;
    map.YOffset = 10.0;
    map.ZOffset = 1.0;
    return map;
}

TEST(MapLines, RowsAndColumnsComeWithPositionsAndGaps)
{
    const HeightMap map = SmallMap();
    const LineSamples row = SamplesOfRow(map, 1);
    EXPECT_EQ(row.Positions, (std::vector<double>{0.0, 0.5, 1.0}));
    EXPECT_EQ(row.Heights, (std::vector<double>{1.4, 0.0, 1.6}));
    EXPECT_EQ(row.Valid, (std::vector<uint8_t>{1, 0, 1}));
    const LineSamples column = SamplesOfColumn(map, 1);
    EXPECT_EQ(column.Positions, (std::vector<double>{10.0, 12.0, 14.0, 16.0}));
    EXPECT_EQ(column.Valid, (std::vector<uint8_t>{1, 0, 1, 1}));
    EXPECT_DOUBLE_EQ(column.Heights[3], 2.1);
}

TEST(MapLines, ThePixelGridHasRowZeroOnTopAndSamplesInTheMiddleOfPixels)
{
    const HeightMap map = SmallMap();
    const PixelGrid grid(map);
    EXPECT_DOUBLE_EQ(grid.Left, -0.25);
    EXPECT_DOUBLE_EQ(grid.Bottom, 9.0);
    EXPECT_DOUBLE_EQ(grid.X(2), 1.0);
    EXPECT_DOUBLE_EQ(grid.Y(0), 16.0); // the map has it at 10
    EXPECT_DOUBLE_EQ(grid.Y(3), 10.0);
}

TEST(MapLines, OnABeltSamplesMoveOnAndRowsKeepTheirPlaces)
{
    HeightMap map = SmallMap();
    map.XSamples = {0, 1, 2, 0, 1, 2, 0, 1, 2, 0, 1, 2};
    map.YSamples = {0, 1, 0, 10, 11, 10, 20, 21, 20, 30, 32, 30};
    const std::vector<int16_t> samples = map.Samples;
    const std::vector<int16_t> places = map.YSamples;
    AdvanceByOneRow(map);
    EXPECT_EQ(map.Samples, (std::vector<int16_t>{4, Missing, 6, 7, 8, 9, 10, 11, 12, 1, 2, 3}));
    EXPECT_EQ(map.YSamples, (std::vector<int16_t>{0, 1, 0, 10, 11, 10, 20, 22, 20, 30, 31, 30}));
    for (int32_t i = 1; i < map.Rows; ++i)
    {
        AdvanceByOneRow(map);
    }
    EXPECT_EQ(map.Samples, samples);
    EXPECT_EQ(map.YSamples, places);
}
} // namespace
