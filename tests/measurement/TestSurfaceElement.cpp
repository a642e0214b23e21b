// What surfaces keep, and what they tell the view about it.
#include "SurfaceScene.h"

#include "Tarvex.h"

#include <gtest/gtest.h>

TEST(Surface, HasBoundsOfWholeCellsAndAFlatOneIsWidened)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeFlat(100, 100)), STATUS_OK);
    EXPECT_EQ(Bounds(surface, false), (Box{0, 100, 0, 100, 0, 0}));
    EXPECT_EQ(Bounds(surface, true), (Box{0, 100, 0, 100, -15, 7.5}));
    Samples steep = MakeFlat(3, 4);
    steep.Heights[5] = -200;
    steep.Heights[6] = 300;
    steep.Grid.Scale = {1.0, 2.0, 0.5};
    steep.Grid.Offset = {-7.0, 0.0, 1.0};
    ASSERT_EQ(SetValue(surface, steep), STATUS_OK);
    EXPECT_EQ(Bounds(surface, true), (Box{-7, -4, 0, 8, -99, 151}));
    scene.Defaults.AutoScale = false;
    CElement_SurfaceUniform fixed;
    ASSERT_EQ(scene.Add(fixed, steep), STATUS_OK);
    EXPECT_EQ(Bounds(fixed, false), (Box{-7, -4, 0, 8, -10, 10}));
}

TEST(Surface, WithFreePositionsHasTheBoundsOfItsValidSamples)
{
    Samples samples = MakeFlat(4, 3);
    samples.Place(10, 20);
    samples.At(0, 0) = samples.At(3, 2) = Missing;
    samples.X[0] = samples.Y[0] = -32000;
    samples.X[11] = samples.Y[11] = 32000;
    samples.X[4] = -5;
    samples.At(1, 1) = -100;
    samples.At(2, 1) = 900;
    samples.Grid.Scale[1] = 0.5;
    samples.Grid.Offset[1] = 7.0;
    SurfaceScene scene;
    CElement_SurfaceNonUniform surface;
    ASSERT_EQ(scene.Add(surface, samples), STATUS_OK);
    EXPECT_EQ(Bounds(surface, false), (Box{-5, 30, 7, 27, -100, 900}));
    // Percentiles cut heights only.
    ASSERT_EQ(surface.SetZScaling(true, 20.0, 0.0, 0.0), STATUS_OK);
    EXPECT_EQ(Bounds(surface, false), (Box{-5, 30, 7, 27, -1, -1}));
    // Nothing valid: the ranges are empty, and the data is new all the same.
    samples.Heights.assign(12, Missing);
    ASSERT_EQ(SetValue(surface, samples), STATUS_BAD_COUNT);
    EXPECT_EQ(Bounds(surface, false), (Box{32767, -32768, 16390.5, -16377, 32767, -32768}));
}
