// Measured lines in the scene: their points, segments and bounds.
#include "SurfaceScene.h"

#include "Tarvex.h"
#include "measurement/CElementProfileNonUniform.h"
#include "measurement/CElementProfileUniform.h"

#include <gtest/gtest.h>

#include <limits>

#include <vtkCellArray.h>

namespace
{
using Segments = std::vector<std::array<vtkIdType, 2>>;

Segments SegmentsOf(const CElementProfile& profile)
{
    Segments segments;
    vtkCellArray* lines = profile.GetPolyData()->GetLines();
    for (vtkIdType cell = 0; cell < lines->GetNumberOfCells(); ++cell)
    {
        vtkIdType count = 0;
        const vtkIdType* ids = nullptr;
        lines->GetCellAtId(cell, count, ids);
        EXPECT_EQ(count, 2);
        segments.push_back({ids[0], ids[1]});
    }
    return segments;
}

std::array<double, 6> BoundsOf(CElementProfile& profile, bool widen)
{
    std::array<double, 6> box{};
    EXPECT_EQ(profile.GetBounds(widen, &box[0], &box[1], &box[2], &box[3], &box[4], &box[5]),
              STATUS_OK);
    return box;
}

class Profiles : public testing::Test
{
protected:
    int32_t Add(CElementProfileUniform& profile, const std::vector<int16_t>& z, double xScale = 1.0,
                double zScale = 1.0, double xOffset = 0.0, double zOffset = 0.0, double y = 0.0)
    {
        return Show(profile,
                    profile.Initialize(Scene.Site(), z.data(), static_cast<int32_t>(z.size()),
                                       xScale, zScale, xOffset, zOffset, y));
    }
    int32_t Add(CElementProfileNonUniform& profile, const std::vector<int16_t>& x,
                const std::vector<int16_t>& z, double xScale, double zScale, double xOffset,
                double zOffset, double y)
    {
        return Show(profile, profile.Initialize(Scene.Site(), x.data(), z.data(),
                                                static_cast<int32_t>(z.size()), xScale, zScale,
                                                xOffset, zOffset, y));
    }
    static int32_t Show(CElementProfile& profile, int32_t status)
    {
        status = status == STATUS_OK ? profile.BuildPipeline() : status;
        return status == STATUS_OK ? profile.Show(true) : status;
    }

    SurfaceScene Scene;
};
} // namespace

TEST_F(Profiles, PutEverySampleIntoTheirPlane)
{
    const std::vector<int16_t> z = {100, Missing, -300, 32767};
    CElementProfileUniform uniform;
    ASSERT_EQ(Add(uniform, z, 0.3, 0.01, -5.0, 2.0, 1.7), STATUS_OK);
    const std::vector<int16_t> x = {7, -20, Missing, 0};
    CElementProfileNonUniform free;
    ASSERT_EQ(Add(free, x, z, 0.3, 0.01, -5.0, 2.0, 1.7), STATUS_OK);
    for (int i = 0; i < 4; ++i)
    {
        const auto at = static_cast<size_t>(i);
        double point[3];
        uniform.GetPolyData()->GetPoint(i, point);
        EXPECT_EQ(point[0], static_cast<float>(i * 0.3 - 5.0));
        EXPECT_EQ(point[1], 1.7F);
        EXPECT_EQ(point[2], static_cast<float>(z[at] * 0.01 + 2.0));
        free.GetPolyData()->GetPoint(i, point);
        EXPECT_EQ(point[0], static_cast<float>(x[at] * 0.3 - 5.0));
        EXPECT_EQ(point[1], 1.7F);
        EXPECT_EQ(point[2], static_cast<float>(z[at] * 0.01 + 2.0));
    }
    // The scene has Y mirrored.
    EXPECT_DOUBLE_EQ(Scene.GetActor()->GetBounds()[2], static_cast<double>(-1.7F));
}

TEST_F(Profiles, JoinValidNeighboursOnly)
{
    const int16_t gap = Missing;
    const struct
    {
        std::vector<int16_t> Z;
        Segments Expected;
    } cases[] = {
        {{1, 2, 3}, {{0, 1}, {1, 2}}},
        {{1, gap, 3}, {}},
        {{gap, 2, gap, gap}, {}},
        {{1, gap}, {}},
        {{gap, 2, 3, gap, 5, 6, gap}, {{1, 2}, {4, 5}}},
    };
    for (const auto& [z, expected] : cases)
    {
        CElementProfileUniform uniform;
        ASSERT_EQ(Add(uniform, z), STATUS_OK);
        EXPECT_EQ(SegmentsOf(uniform), expected);
        CElementProfileNonUniform free;
        // Where X alone has the marker, the sample is there.
        const std::vector<int16_t> x(z.size(), Missing);
        ASSERT_EQ(Add(free, x, z, 1.0, 1.0, 0.0, 0.0, 0.0), STATUS_OK);
        EXPECT_EQ(SegmentsOf(free), expected);
    }
}

TEST_F(Profiles, HaveTheBoundsOfTheirValidSamples)
{
    // Uniform: one pitch beyond the last sample, missing ones at the ends included.
    CElementProfileUniform uniform;
    ASSERT_EQ(Add(uniform, {Missing, 40, -60, 0, Missing}, 2.0, 0.5, 1.0, 3.0, 8.0), STATUS_OK);
    EXPECT_EQ(BoundsOf(uniform, false), (std::array<double, 6>{1.0, 11.0, 8.0, 8.0, -27.0, 23.0}));
    CElementProfileNonUniform free;
    ASSERT_EQ(
        Add(free, {-900, 5, -6, 4, 900}, {Missing, 40, -60, 0, Missing}, 2.0, 0.5, 1.0, 3.0, 8.0),
        STATUS_OK);
    EXPECT_EQ(BoundsOf(free, false), (std::array<double, 6>{-11.0, 11.0, 8.0, 8.0, -27.0, 23.0}));
}

TEST_F(Profiles, WidenFlatBoundsLopsidedlyAndAlwaysAddAMargin)
{
    CElementProfileUniform flat;
    ASSERT_EQ(Add(flat, std::vector<int16_t>(10, 4)), STATUS_OK);
    const std::array<double, 6> box = BoundsOf(flat, true);
    EXPECT_DOUBLE_EQ(box[4], 4.0 - 1.5 - 0.225);
    EXPECT_DOUBLE_EQ(box[5], 4.0 + 0.75 + 0.225);
    EXPECT_EQ(BoundsOf(flat, false)[4], 4.0);

    CElementProfileUniform steep;
    ASSERT_EQ(Add(steep, {0, 100}), STATUS_OK);
    EXPECT_EQ(BoundsOf(steep, true), (std::array<double, 6>{0.0, 2.0, 0.0, 0.0, -10.0, 110.0}));
}

TEST_F(Profiles, FarOutsideAreKeptButNeitherDrawnNorFramed)
{
    const double infinity = std::numeric_limits<double>::infinity();
    for (const double far : {1e300, -1e31, infinity})
    {
        CElementProfileUniform profile;
        ASSERT_EQ(Add(profile, {1, 2}, 1.0, 1.0, 0.0, 0.0, far), STATUS_OK);
        EXPECT_EQ(BoundsOf(profile, true)[2], far);
        EXPECT_FALSE(Scene.GetActor()->GetVisibility());
        EXPECT_FALSE(Scene.GetActor()->GetUseBounds());
    }
    CElementProfileNonUniform profile;
    ASSERT_EQ(Add(profile, {0, 1}, {1, 2}, infinity, 1.0, 0.0, 0.0, 0.0), STATUS_OK);
    EXPECT_FALSE(Scene.GetActor()->GetVisibility());
}
