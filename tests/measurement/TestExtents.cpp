// What measured lines join, and the extent of profiles and surfaces, as the scale frame takes it.
#include "view3d/InsideScene.h"

#include <vtkCellArray.h>
#include <vtkDataArray.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

namespace
{
constexpr double gap = TARVEX_INVALID_VALUE; // a missing sample

class Extents : public InsideScene
{
protected:
    Numbers Bounds(int32_t element, bool widen = false) const
    {
        Numbers b(6);
        EXPECT_EQ(
            View().FindElement(element)->GetBounds(widen, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]),
            STATUS_OK);
        return b;
    }
    void ExpectDrawnIn(const Numbers& expected) const
    {
        EXPECT_EQ(Numbers(LastActor()->GetBounds(), LastActor()->GetBounds() + 6), expected);
    }
};

TEST_F(Extents, OfPiecesOfAProfileReachFromOneValidSampleToTheNext)
{
    // The numbers of the samples at both ends of each piece.
    const std::pair<Numbers, Numbers> cases[] = {{{1, 2, 3, 4}, {0, 1, 1, 2, 2, 3}},
                                                 {{1, gap, 3, gap}, {}},
                                                 {{gap, 2, 3, gap}, {1, 2}},
                                                 {{1, 2, gap, 4}, {0, 1}}};
    for (const auto& [z, expected] : cases)
    {
        Numbers given = z;
        given.insert(given.end(), {4, 2, 0.5, 1, 3, 1.75});
        for (const std::string form : {"Uniform", "NonUniform"})
        {
            Add("Element_Add_Profile" + form, given);
            vtkCellArray* lines =
                vtkPolyData::SafeDownCast(LastActor()->GetMapper()->GetInput())->GetLines();
            Numbers ends;
            for (vtkIdType end = 0; end < 2 * lines->GetNumberOfCells(); ++end)
            {
                ends.push_back(lines->GetConnectivityArray()->GetTuple1(end));
            }
            EXPECT_EQ(ends, expected) << form;
            given.insert(given.begin(), 4, gap); // where X alone has the marker, a sample is there
        }
    }
}

TEST_F(Extents, OfAProfileAreThoseOfItsValidSamplesInItsPlane)
{
    const int32_t uniform =
        Add("Element_Add_ProfileUniform", {gap, 40, -60, gap, 4, 2, 0.5, 1, 3, 1.75});
    ExpectDrawnIn({3, 5, -1.75, -1.75, -27, 23}); // mirrored
    const int32_t free = Add("Element_Add_ProfileNonUniform",
                             {-900, 5, -6, 900, gap, 40, -60, gap, 4, 2, 0.5, 1, 3, 1.75});
    ExpectDrawnIn({-11, 11, -1.75, -1.75, -27, 23});
    // Uniform: one pitch beyond the last sample, missing ones at the ends included.
    EXPECT_EQ(Bounds(uniform), (Numbers{1, 9, 1.75, 1.75, -27, 23}));
    EXPECT_EQ(Bounds(free), (Numbers{-11, 11, 1.75, 1.75, -27, 23}));
    // Flat ones are widened, lopsidedly, and a margin comes to it.
    const int32_t flat = Add("Element_Add_ProfileUniform", {4, 4, 4, 4, 4, 5, 0.5, 1, 3, 1.75});
    EXPECT_DOUBLE_EQ(Bounds(flat, true)[4], 1.55);
}

TEST_F(Extents, OfASurfaceAreThoseOfWholeCellsAndOfAFlatOneWidened)
{
    const int32_t flat =
        Add("Element_Add_SurfaceUniform", {0, 0, 0, 0, 0, 0, 0, 0, 2, 2, 50, 50, 1, 0, 0, 0, 1});
    EXPECT_EQ(Bounds(flat), (Numbers{0, 100, 0, 100, 0, 0}));
    EXPECT_EQ(Bounds(flat, true), (Numbers{0, 100, 0, 100, -15, 7.5}));
    const int32_t steep = Add("Element_Add_SurfaceUniform",
                              {0, -200, 300, 0, 0, 0, 0, 0, 2, 2, 1.5, 4, 0.5, -7, 0, 1, 1});
    EXPECT_EQ(Bounds(steep, true), (Numbers{-7, -4, 0, 8, -99, 151}));
    Do("Element_ZScalingPalette_SurfaceUniform", steep, {0, 0, -10, 10});
    EXPECT_EQ(Bounds(steep), (Numbers{-7, -4, 0, 8, -10, 10}));
}

TEST_F(Extents, OfASurfaceWithFreePositionsAreThoseOfItsValidSamples)
{
    Numbers given = {-32000, 30, -5, 32000, -32000, 0, 20, 32000, gap, -100, 900, gap,
                     0,      0,  0,  0,     2,      2, 1,  0.5,   1,   0,    7,   0};
    const int32_t surface = Add("Element_Add_SurfaceNonUniform", given);
    EXPECT_EQ(Bounds(surface), (Numbers{-5, 30, 7, 17, -100, 900}));
    // Percentiles cut heights only.
    Do("Element_ZScalingPalette_SurfaceNonUniform", surface, {1, 45});
    EXPECT_EQ(Bounds(surface), (Numbers{-5, 30, 7, 17, -100, 899}));
    // Nothing valid: the ranges are empty, and the data is new all the same.
    std::fill_n(given.begin(), 12, gap);
    EXPECT_EQ(Do("Element_SurfaceNonUniform_SetValue", surface, given), STATUS_BAD_COUNT);
    EXPECT_EQ(Bounds(surface), (Numbers{32767, -32768, 16390.5, -16377, 32767, -32768}));
}
} // namespace
