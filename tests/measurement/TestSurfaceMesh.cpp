#include "MeasuredView.h"

#include "measurement/NonUniformSamples.h"
#include "measurement/SurfaceMesh.h"

#include <gtest/gtest.h>

#include <array>

namespace
{
// Free positions: five by two, all missing but the fifth of the first row, at raw (40, 0).
Samples OneSample()
{
    Samples samples(5, 2);
    samples.Place(10, 10);
    samples.Heights.assign(10, Missing);
    samples.At(4, 0) = 3;
    samples.Grid.Scale = {0.1, 0.3, 1.0};
    return samples;
}

// The quad of the only isolated sample: x and y of its first and of its last corner.
std::array<double, 4> OnlyQuad(const Samples& samples)
{
    const auto own = NonUniformSamples::CopyOf(
        {samples.X.data(), samples.Y.data(), samples.Heights.data()}, samples.Grid);
    const SurfaceMesh mesh = SurfaceMeshBuilder<NonUniformSamples>(own, samples.Grid).Build(true);
    EXPECT_EQ(mesh.Isolated.size(), 1U);
    double corners[2][3];
    mesh.PolyData->GetPoint(mesh.PolyData->GetNumberOfPoints() - 4, corners[0]);
    mesh.PolyData->GetPoint(mesh.PolyData->GetNumberOfPoints() - 1, corners[1]);
    return {corners[0][0], corners[0][1], corners[1][0], corners[1][1]};
}
} // namespace

TEST(SurfaceMesh, GivesIsolatedFreeSamplesQuadsOfTheMeanCell)
{
    using Quad = std::array<double, 4>;
    // No full cell: ten raw units wide.
    EXPECT_EQ(OnlyQuad(OneSample()), (Quad{4.0F - 0.5F, -1.5F, 4.0F + 0.5F, 1.5F}));
    // One cell of pitch 4 in X and 6 in Y; the signs of its distances do not matter.
    for (const int sign : {1, -1})
    {
        Samples samples = OneSample();
        samples.At(0, 0) = samples.At(1, 0) = samples.At(0, 1) = samples.At(1, 1) = 0;
        samples.X[1] = static_cast<int16_t>(4 * sign);
        samples.Y[5] = static_cast<int16_t>(6 * sign);
        EXPECT_EQ(OnlyQuad(samples), (Quad{4.0F - 0.2F, -0.9F, 4.0F + 0.2F, 0.9F}));
        // A second cell, folded back onto the first: the distances cancel out.
        samples.At(2, 0) = samples.At(2, 1) = 0;
        samples.X[2] = 0;
        EXPECT_EQ(OnlyQuad(samples)[0], 4.0);
    }
    // The corners are taken in single precision, which makes a difference for this one.
    Samples fine = OneSample();
    fine.Grid.Scale[0] = 0.013;
    fine.Grid.Offset[0] = 1.11;
    EXPECT_EQ(OnlyQuad(fine)[0], 1.63F - 0.065F);
}
