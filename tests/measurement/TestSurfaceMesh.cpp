#include "measurement/NonUniformSamples.h"
#include "measurement/SurfaceMesh.h"

#include <vtkPolyData.h>

#include <gtest/gtest.h>

#include <array>

namespace
{
constexpr int16_t gap = InvalidHeight;
using Quad = std::array<double, 4>;

// Free positions: five by two, all missing but the fifth of the first row, at raw (40, 0).
struct OneSample
{
    // The quad of the only isolated sample: x and y of its first and of its last corner.
    Quad OnlyQuad() const
    {
        const auto own = NonUniformSamples::CopyOf({X, Y, Heights}, Grid);
        const SurfaceMesh mesh = SurfaceMeshBuilder<NonUniformSamples>(own, Grid).Build(true);
        EXPECT_EQ(mesh.Isolated.size(), 1U);
        double corners[2][3];
        mesh.PolyData->GetPoint(mesh.PolyData->GetNumberOfPoints() - 4, corners[0]);
        mesh.PolyData->GetPoint(mesh.PolyData->GetNumberOfPoints() - 1, corners[1]);
        return {corners[0][0], corners[0][1], corners[1][0], corners[1][1]};
    }

    int16_t X[10] = {0, 10, 20, 30, 40, 0, 10, 20, 30, 40};
    int16_t Y[10] = {0, 0, 0, 0, 0, 10, 10, 10, 10, 10};
    int16_t Heights[10] = {gap, gap, gap, gap, 3, gap, gap, gap, gap, gap};
    SurfaceGrid Grid = {5, 2, {0.1, 0.3, 1.0}};
};
} // namespace

TEST(SurfaceMesh, GivesIsolatedFreeSamplesQuadsOfTheMeanCell)
{
    // No full cell: ten raw units wide.
    EXPECT_EQ(OneSample().OnlyQuad(), (Quad{4.0F - 0.5F, -1.5F, 4.0F + 0.5F, 1.5F}));
    // One cell of pitch 4 in X and 6 in Y; the signs of its distances do not matter.
    for (const int16_t sign : {1, -1})
    {
        OneSample samples;
        samples.Heights[0] = samples.Heights[1] = samples.Heights[5] = samples.Heights[6] = 0;
        samples.X[1] = static_cast<int16_t>(4 * sign);
        samples.Y[5] = static_cast<int16_t>(6 * sign);
        EXPECT_EQ(samples.OnlyQuad(), (Quad{4.0F - 0.2F, -0.9F, 4.0F + 0.2F, 0.9F}));
        // A second cell, folded back onto the first: the distances cancel out.
        samples.Heights[2] = samples.Heights[7] = 0;
        samples.X[2] = 0;
        EXPECT_EQ(samples.OnlyQuad()[0], 4.0);
    }
    // The corners are taken in single precision, which makes a difference for this one.
    OneSample fine;
    fine.Grid.Scale[0] = 0.013;
    fine.Grid.Offset[0] = 1.11;
    EXPECT_EQ(fine.OnlyQuad()[0], 1.63F - 0.065F);
}
