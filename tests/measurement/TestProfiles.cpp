// Measured lines in the scene: their points, segments and bounds.
#include "MeasuredView.h"

#include <vtkCellArray.h>

namespace
{
using Heights = std::vector<int16_t>;
using Segments = std::vector<std::array<vtkIdType, 2>>;

class Profiles : public MeasuredView
{
protected:
    // A profile at Y 1.75; no X for a uniform one.
    int32_t AddProfile(const Heights& x, const Heights& z) const
    {
        const auto count = static_cast<int32_t>(z.size());
        int32_t profile = TARVEX_NONE;
        EXPECT_EQ(x.empty() ? Tarvex_Element_Add_ProfileUniform(Id, z.data(), count, 2, 0.5, 1, 3,
                                                                1.75, &profile)
                            : Tarvex_Element_Add_ProfileNonUniform(Id, x.data(), z.data(), count, 2,
                                                                   0.5, 1, 3, 1.75, &profile),
                  STATUS_OK);
        return profile;
    }
    Segments DrawnSegments() const
    {
        Segments segments;
        vtkCellArray* lines = GetDrawn()->GetLines();
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
    void ExpectDrawnIn(const Numbers& expected) const
    {
        EXPECT_EQ(Numbers(LastActor()->GetBounds(), LastActor()->GetBounds() + 6), expected);
    }
};

TEST_F(Profiles, JoinValidNeighboursOnly)
{
    const std::pair<Heights, Segments> cases[] = {
        {{1, 2, 3}, {{0, 1}, {1, 2}}},
        {{1, Missing, 3}, {}},
        {{Missing, 2, 3, Missing, 5, 6, Missing}, {{1, 2}, {4, 5}}},
    };
    for (const auto& [z, expected] : cases)
    {
        // Where X alone has the marker, the sample is there.
        for (const Heights& x : {Heights(), Heights(z.size(), Missing)})
        {
            AddProfile(x, z);
            EXPECT_EQ(DrawnSegments(), expected);
        }
    }
}

TEST_F(Profiles, LieInTheirPlaneWithTheBoundsOfTheirValidSamples)
{
    const Heights z = {Missing, 40, -60, 0, Missing};
    const int32_t uniform = AddProfile({}, z);
    ExpectDrawnIn({3, 7, -1.75, -1.75, -27, 23}); // mirrored
    const int32_t free = AddProfile({-900, 5, -6, 4, 900}, z);
    ExpectDrawnIn({-11, 11, -1.75, -1.75, -27, 23});
    // Uniform: one pitch beyond the last sample, missing ones at the ends included.
    EXPECT_EQ(Bounds(uniform, false), (Numbers{1, 11, 1.75, 1.75, -27, 23}));
    EXPECT_EQ(Bounds(free, false), (Numbers{-11, 11, 1.75, 1.75, -27, 23}));
    // Flat ones are widened, lopsidedly, and a margin comes to it.
    EXPECT_DOUBLE_EQ(Bounds(AddProfile({}, Heights(10, 4)), true)[4], 1.55);
}
} // namespace
