// Measured lines in the scene: their points, segments and bounds.
#include "SurfaceScene.h"

#include "Tarvex.h"
#include "measurement/CElementProfileNonUniform.h"
#include "measurement/CElementProfileUniform.h"

#include <gtest/gtest.h>

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

// A profile at Y 1.75; no X for a uniform one.
struct Shown
{
    Shown(const std::vector<int16_t>& x, const std::vector<int16_t>& z)
    {
        const auto count = static_cast<int32_t>(z.size());
        EXPECT_EQ(x.empty() ? Uniform.Initialize(Scene.Site(), z.data(), count, 2, 0.5, 1, 3, 1.75)
                            : Free.Initialize(Scene.Site(), x.data(), z.data(), count, 2, 0.5, 1, 3,
                                              1.75),
                  STATUS_OK);
        Profile = x.empty() ? static_cast<CElementProfile*>(&Uniform) : &Free;
        EXPECT_EQ(Profile->BuildPipeline(), STATUS_OK);
        EXPECT_EQ(Profile->Show(true), STATUS_OK);
    }
    SurfaceScene Scene;
    CElementProfileUniform Uniform;
    CElementProfileNonUniform Free;
    CElementProfile* Profile = nullptr;
};
} // namespace

TEST(Profiles, JoinValidNeighboursOnly)
{
    const int16_t gap = Missing;
    const std::pair<std::vector<int16_t>, Segments> cases[] = {
        {{1, 2, 3}, {{0, 1}, {1, 2}}},
        {{1, gap, 3}, {}},
        {{gap, 2, 3, gap, 5, 6, gap}, {{1, 2}, {4, 5}}},
    };
    for (const auto& [z, expected] : cases)
    {
        EXPECT_EQ(SegmentsOf(*Shown({}, z).Profile), expected);
        // Where X alone has the marker, the sample is there.
        EXPECT_EQ(SegmentsOf(*Shown(std::vector<int16_t>(z.size(), gap), z).Profile), expected);
    }
}

TEST(Profiles, LieInTheirPlaneWithTheBoundsOfTheirValidSamples)
{
    const std::vector<int16_t> z = {Missing, 40, -60, 0, Missing};
    const Shown uniform({}, z);
    const Shown free({-900, 5, -6, 4, 900}, z);
    // The scene has Y mirrored.
    const double drawn[] = {3.0, 7.0, -1.75, -1.75, -27.0, 23.0};
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(uniform.Scene.GetActor()->GetBounds()[i], drawn[i]);
        EXPECT_EQ(free.Scene.GetActor()->GetBounds()[i], i < 2 ? 22.0 * i - 11.0 : drawn[i]);
    }
    // Flat ones are widened, lopsidedly, and a margin comes to it.
    EXPECT_DOUBLE_EQ(Bounds(*Shown({}, std::vector<int16_t>(10, 4)).Profile, true)[4], 1.55);
    // Uniform: one pitch beyond the last sample, missing ones at the ends included.
    EXPECT_EQ(Bounds(*uniform.Profile, false), (Box{1.0, 11.0, 1.75, 1.75, -27.0, 23.0}));
    EXPECT_EQ(Bounds(*free.Profile, false), (Box{-11.0, 11.0, 1.75, 1.75, -27.0, 23.0}));
}
