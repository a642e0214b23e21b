// The extent of surfaces and profiles, as the scale frame takes it.
#include "MeasuredView.h"

namespace
{
using Extent = MeasuredView;

TEST_F(Extent, OfASurfaceIsThatOfWholeCellsAndAFlatOneIsWidened)
{
    const int32_t flat = AddSurface({100, 100});
    EXPECT_EQ(Bounds(flat, false), (Numbers{0, 100, 0, 100, 0, 0}));
    EXPECT_EQ(Bounds(flat, true), (Numbers{0, 100, 0, 100, -15, 7.5}));
    Samples steep(3, 4);
    steep.Heights[5] = -200;
    steep.Heights[6] = 300;
    steep.Grid.Scale = {1.0, 2.0, 0.5};
    steep.Grid.Offset = {-7.0, 0.0, 1.0};
    const int32_t element = AddSurface(steep);
    EXPECT_EQ(Bounds(element, true), (Numbers{-7, -4, 0, 8, -99, 151}));
    Do("Element_ZScalingPalette_SurfaceUniform", element, {0, 0, -10, 10});
    EXPECT_EQ(Bounds(element, false), (Numbers{-7, -4, 0, 8, -10, 10}));
}

TEST_F(Extent, OfASurfaceWithFreePositionsIsThatOfItsValidSamples)
{
    Samples samples(2, 2);
    samples.X = {-32000, 30, -5, 32000};
    samples.Y = {-32000, 0, 20, 32000};
    samples.Heights = {Missing, -100, 900, Missing};
    samples.Grid.Scale[1] = 0.5;
    samples.Grid.Offset[1] = 7.0;
    const int32_t surface = AddSurface(samples);
    EXPECT_EQ(Bounds(surface, false), (Numbers{-5, 30, 7, 17, -100, 900}));
    // Percentiles cut heights only.
    Do("Element_ZScalingPalette_SurfaceNonUniform", surface, {1, 45});
    EXPECT_EQ(Bounds(surface, false), (Numbers{-5, 30, 7, 17, -100, 899}));
    // Nothing valid: the ranges are empty, and the data is new all the same.
    Numbers none(12, Missing);
    none.insert(none.end(), {0, 0, 0, 0, 2, 2, 1, 0.5, 1, 0, 7, 0});
    EXPECT_EQ(Do("Element_SurfaceNonUniform_SetValue", surface, none), STATUS_BAD_COUNT);
    EXPECT_EQ(Bounds(surface, false), (Numbers{32767, -32768, 16390.5, -16377, 32767, -32768}));
}
} // namespace
