// Surfaces with free positions: points, quads of isolated samples, bounds, pictures, colour ranges.
#include "LiteralSurface.h"
#include "SurfaceScene.h"

#include "Tarvex.h"
#include "measurement/CElement_SurfaceNonUniform.h"
#include "measurement/SurfaceMesh.h"

#include <gtest/gtest.h>

#include <bit>
#include <functional>
#include <limits>
#include <string>

#include <vtkCamera.h>
#include <vtkMapper.h>
#include <vtkPoints.h>

namespace
{
// Heights and intensities as in Samples, with positions that a host could give.
struct Cloud
{
    Samples Base;
    std::vector<int16_t> X;
    std::vector<int16_t> Y;

    // A grid of the given pitch in raw units.
    Cloud(Samples base, int pitchX, int pitchY) : Base(std::move(base))
    {
        for (int i = 0; i < Base.Columns * Base.Rows; ++i)
        {
            X.push_back(static_cast<int16_t>(i % Base.Columns * pitchX));
            Y.push_back(static_cast<int16_t>(i / Base.Columns * pitchY));
        }
    }
    SurfaceGrid Grid() const
    {
        SurfaceGrid grid{Base.Columns, Base.Rows};
        std::copy_n(Base.Scale, 3, grid.Scale.begin());
        std::copy_n(Base.Offset, 3, grid.Offset.begin());
        return grid;
    }
    SurfaceMesh Build(bool withIsolated) const
    {
        const SurfaceGrid grid = Grid();
        const auto own = NonUniformSamples::CopyOf({X.data(), Y.data(), Base.Heights.data()}, grid);
        return SurfaceMeshBuilder<NonUniformSamples>(own, grid).Build(withIsolated);
    }
    int32_t AddTo(SurfaceScene& scene, CElement_SurfaceNonUniform& surface,
                  bool fullCellsOnly = true) const
    {
        const SurfaceGrid grid = Grid();
        int32_t status = surface.Initialize(
            scene.Site(), X.data(), Y.data(), Base.Heights.data(), Base.Intensities.data(),
            grid.Columns, grid.Rows, grid.Scale[0], grid.Scale[1], grid.Scale[2], grid.Offset[0],
            grid.Offset[1], grid.Offset[2], fullCellsOnly);
        status = status == STATUS_OK ? surface.BuildPipeline() : status;
        return status == STATUS_OK ? surface.Show(true) : status;
    }
    int32_t SetIn(CElement_SurfaceNonUniform& surface) const
    {
        const SurfaceGrid grid = Grid();
        return surface.SetValue(X.data(), Y.data(), Base.Heights.data(), Base.Intensities.data(),
                                grid.Columns, grid.Rows, grid.Scale[0], grid.Scale[1],
                                grid.Scale[2], grid.Offset[0], grid.Offset[1], grid.Offset[2]);
    }
};

// The quad of the only isolated sample: x and y of its first and of its last corner.
std::array<double, 4> OnlyQuad(const Cloud& cloud)
{
    const SurfaceMesh mesh = cloud.Build(true);
    EXPECT_EQ(mesh.Isolated.size(), 1U);
    double first[3];
    double last[3];
    const vtkIdType begin = mesh.PolyData->GetNumberOfPoints() - 4;
    mesh.PolyData->GetPoint(begin, first);
    mesh.PolyData->GetPoint(begin + 3, last);
    return {first[0], first[1], last[0], last[1]};
}

// Five by two, all missing but the fifth sample of the first row, which lies at raw (40, 0).
Cloud OneSample()
{
    Cloud cloud(MakeFlat(5, 2), 10, 10);
    cloud.Base.Heights.assign(10, Missing);
    cloud.Base.At(4, 0) = 3;
    cloud.Base.Scale[0] = 0.1;
    cloud.Base.Scale[1] = 0.3;
    return cloud;
}

void FillCell(Cloud& cloud)
{
    for (const int32_t row : {0, 1})
    {
        cloud.Base.At(0, row) = cloud.Base.At(1, row) = 0;
    }
}
} // namespace

TEST(NonUniformSurface, PutsEverySampleWhereTheHostSays)
{
    Cloud cloud(MakeHills(40, 30), 11, -7);
    PunchHoles(cloud.Base);
    cloud.X[5] = cloud.Y[6] = Missing; // a position like any other
    cloud.Base.Heights[5] = cloud.Base.Heights[6] = -32767;
    cloud.Base.Heights[7] = Missing;
    cloud.Base.Offset[0] = 1000.1;
    cloud.Base.Offset[1] = -3.3;
    cloud.Base.Offset[2] = 0.7;
    const SurfaceMesh mesh = cloud.Build(false);
    const auto* points = vtkFloatArray::SafeDownCast(mesh.PolyData->GetPoints()->GetData());
    const SurfaceGrid grid = cloud.Grid();
    for (int sample = 0; sample < 40 * 30; ++sample)
    {
        const auto i = static_cast<size_t>(sample);
        const int16_t raw[3] = {cloud.X[i], cloud.Y[i], cloud.Base.Heights[i]};
        for (size_t axis = 0; axis < 3; ++axis)
        {
            const float value = points->GetValue(3 * sample + static_cast<int>(axis));
            if (axis == 2 && raw[2] == Missing)
            {
                ASSERT_EQ(std::bit_cast<uint32_t>(value), 0xFFC00000U) << sample;
            }
            else
            {
                ASSERT_EQ(value,
                          static_cast<float>(raw[axis] * grid.Scale[axis] + grid.Offset[axis]))
                    << sample;
            }
        }
    }
}

TEST(NonUniformSurface, GivesIsolatedSamplesQuadsOfTheMeanCell)
{
    // No full cell: ten raw units wide.
    EXPECT_EQ(OnlyQuad(OneSample()),
              (std::array<double, 4>{4.0F - 0.5F, 0.0F - 1.5F, 4.0F + 0.5F, 1.5F}));

    // One cell of pitch 4 in X and 6 in Y; the signs of its distances do not matter.
    for (const int sign : {1, -1})
    {
        Cloud cloud = OneSample();
        FillCell(cloud);
        cloud.X[1] = static_cast<int16_t>(4 * sign);
        cloud.Y[5] = static_cast<int16_t>(6 * sign);
        EXPECT_EQ(OnlyQuad(cloud),
                  (std::array<double, 4>{4.0F - 0.2F, 0.0F - 0.9F, 4.0F + 0.2F, 0.9F}));
    }

    // Two cells in a row, the second folded back onto the first: the distances cancel out.
    Cloud folded = OneSample();
    FillCell(folded);
    folded.Base.At(2, 0) = folded.Base.At(2, 1) = 0;
    folded.X[1] = 4;
    folded.X[2] = 0;
    EXPECT_EQ(OnlyQuad(folded)[0], 4.0);
    EXPECT_EQ(OnlyQuad(folded)[2], 4.0);

    // The corners are taken in single precision, which makes a difference for this one.
    Cloud fine = OneSample();
    fine.Base.Scale[0] = 0.013;
    fine.Base.Offset[0] = 1.11;
    EXPECT_EQ(OnlyQuad(fine)[0], 1.63F - 0.065F);
    EXPECT_NE(OnlyQuad(fine)[0], static_cast<float>(1.63F - 0.065));
}

TEST(NonUniformSurface, HasTheBoundsOfItsValidSamples)
{
    Cloud cloud(MakeFlat(4, 3), 10, 20);
    cloud.Base.At(0, 0) = cloud.Base.At(3, 2) = Missing;
    cloud.X[0] = cloud.Y[0] = -32000;
    cloud.X[11] = cloud.Y[11] = 32000;
    cloud.X[4] = -5;
    cloud.Base.At(1, 1) = -100;
    cloud.Base.At(2, 1) = 900;
    cloud.Base.Scale[1] = 0.5;
    cloud.Base.Offset[1] = 7.0;
    SurfaceScene scene;
    CElement_SurfaceNonUniform surface;
    ASSERT_EQ(cloud.AddTo(scene, surface), STATUS_OK);
    std::array<double, 6> box{};
    const auto read = [&](bool widen)
    {
        EXPECT_EQ(surface.GetBounds(widen, &box[0], &box[1], &box[2], &box[3], &box[4], &box[5]),
                  STATUS_OK);
        return box;
    };
    EXPECT_EQ(read(false), (std::array<double, 6>{-5.0, 30.0, 7.0, 27.0, -100.0, 900.0}));

    // Percentiles cut heights only.
    ASSERT_EQ(surface.SetZScaling(true, 20.0, 0.0, 0.0), STATUS_OK);
    EXPECT_EQ(read(false), (std::array<double, 6>{-5.0, 30.0, 7.0, 27.0, -1.0, -1.0}));

    // Flat: extents 35 and 20, mean 27.5.
    cloud.Base.At(1, 1) = cloud.Base.At(2, 1) = 0;
    ASSERT_EQ(cloud.SetIn(surface), STATUS_OK);
    EXPECT_DOUBLE_EQ(read(true)[4], -27.5 * 0.15);
    EXPECT_DOUBLE_EQ(box[5], 27.5 * 0.075);

    // Nothing valid: the ranges are empty, and the data is new all the same.
    cloud.Base.Heights.assign(12, Missing);
    ASSERT_EQ(cloud.SetIn(surface), STATUS_BAD_COUNT);
    EXPECT_EQ(read(false),
              (std::array<double, 6>{32767.0, -32768.0, 16390.5, -16377.0, 32767.0, -32768.0}));
}

TEST(NonUniformSurface, BeginsEachSetOfValuesWithAWholeIntensityRange)
{
    const Cloud cloud(MakeHills(20, 20), 5, 5);
    SurfaceScene scene;
    CElement_SurfaceNonUniform surface;
    ASSERT_EQ(cloud.AddTo(scene, surface), STATUS_OK);
    const auto range = [&]
    {
        const double* ends = scene.GetActor()->GetMapper()->GetScalarRange();
        return std::array<double, 2>{ends[0], ends[1]};
    };
    ASSERT_EQ(surface.ShowIntensity(true), STATUS_OK);
    EXPECT_EQ(surface.SetZScaling(true, 0.0, 0.0, 0.0), STATUS_BAD_POINT);
    EXPECT_EQ(surface.SetZScaling(false, 0.0, 10.0, 10.5), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(range(), (std::array<double, 2>{0.0, 255.0}));
    ASSERT_EQ(surface.SetZScaling(false, 0.0, 10.4, 200.6), STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{10.0, 201.0}));
    ASSERT_EQ(surface.SetRepresentationMode(false), STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{10.0, 201.0}));
    ASSERT_EQ(cloud.SetIn(surface), STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{0.0, 255.0}));
    ASSERT_EQ(surface.SetRepresentationMode(true), STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{0.0, 255.0}));
    // A NaN passes the tests of ranges and becomes level 0.
    ASSERT_EQ(surface.SetZScaling(false, 0.0, std::numeric_limits<double>::quiet_NaN(), 90.0),
              STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{0.0, 90.0}));
    // The fixed range of heights took none of these.
    ASSERT_EQ(surface.ShowIntensity(false), STATUS_OK);
    EXPECT_EQ(range(), (std::array<double, 2>{-10.0, 10.0}));
}

namespace
{
struct Case
{
    std::string Name;
    std::function<void(Cloud&)> Change;
    bool FullCellsOnly = true;
    bool ByIntensity = false;
};

void PrintTo(const Case& tested, std::ostream* stream)
{
    *stream << tested.Name;
}

class NonUniformOnScreen : public testing::TestWithParam<Case>
{
};
} // namespace

// The stock picture of the same heights, its points moved to where the mesh has them. The mapper is
// held to VTK's by the tests of uniform surfaces; here the points differ, NaN among them.
TEST_P(NonUniformOnScreen, LooksTheSameAsWithTheStockMapper)
{
    const Case& tested = GetParam();
    Cloud cloud(MakeHills(120, 90), 100, 100);
    for (size_t i = 0; i < cloud.X.size(); ++i)
    {
        cloud.X[i] = static_cast<int16_t>(cloud.X[i] + (i * 7919) % 61);
        cloud.Y[i] = static_cast<int16_t>(cloud.Y[i] - (i * 104729) % 53);
    }
    cloud.Base.Scale[0] = cloud.Base.Scale[1] = 0.01;
    tested.Change(cloud);

    SurfaceScene scene;
    CElement_SurfaceNonUniform surface;
    ASSERT_EQ(cloud.AddTo(scene, surface, tested.FullCellsOnly), STATUS_OK);
    LiteralInput input = scene.Literal(cloud.Base);
    input.FullCellsOnly = tested.FullCellsOnly;
    if (tested.ByIntensity)
    {
        ASSERT_EQ(surface.ShowIntensity(true), STATUS_OK);
        input.Intensities = cloud.Base.Intensities.data();
        input.Palette = 5;
        input.Range[0] = 0.0;
        input.Range[1] = 255.0;
    }
    const LiteralSurface literal(input);
    const SurfaceMesh mesh = cloud.Build(!tested.FullCellsOnly);
    ASSERT_EQ(literal.PolyData->GetNumberOfPoints(), mesh.PolyData->GetNumberOfPoints());
    literal.PolyData->SetPoints(mesh.PolyData->GetPoints());

    const vtkSmartPointer<vtkActor> own = scene.GetActor();
    scene.Renderer->ResetCamera();
    scene.Renderer->GetActiveCamera()->Elevation(-35.0);
    scene.Renderer->ResetCamera();
    const Picture picture = scene.Show(own);
    EXPECT_LE(picture.CountDifferences(scene.Show(literal.Actor)), 120);
    EXPECT_GT(picture.Count(
                  [&](const Picture::Color& color) {
                      return color != Picture::Color{25, 50, 75};
                  }),
              4000);
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(own->GetBounds()[i], literal.Actor->GetBounds()[i]) << i;
    }
}

INSTANTIATE_TEST_SUITE_P(
    , NonUniformOnScreen,
    testing::Values(Case{"Full", [](Cloud&) {}},
                    Case{"Holes", [](Cloud& cloud) { PunchHoles(cloud.Base); }},
                    Case{"IsolatedSamples", [](Cloud& cloud) { PunchHoles(cloud.Base); }, false},
                    Case{"Intensity", [](Cloud& cloud) { PunchHoles(cloud.Base); }, false, true},
                    Case{"Folded",
                         [](Cloud& cloud)
                         {
                             for (int16_t& x : cloud.X)
                             {
                                 x = static_cast<int16_t>(std::abs(x - 8000));
                             }
                         }}),
    [](const auto& tested) { return tested.param.Name; });
