#include "SurfaceScene.h"

#include "measurement/SurfaceMesh.h"
#include "measurement/UniformSamples.h"

#include <gtest/gtest.h>

#include <array>
#include <map>

#include <vtkCellArray.h>
#include <vtkPoints.h>

namespace
{
using Triangle = std::array<vtkIdType, 3>;

// Turned so that the smallest index comes first: equal only for the same orientation.
Triangle Normalise(vtkIdType a, vtkIdType b, vtkIdType c)
{
    Triangle triangle = {a, b, c};
    std::rotate(triangle.begin(), std::min_element(triangle.begin(), triangle.end()),
                triangle.end());
    return triangle;
}

// How often each triangle is drawn; those without area don't count.
std::map<Triangle, int> Triangles(vtkPolyData* polyData)
{
    std::map<Triangle, int> triangles;
    vtkCellArray* strips = polyData->GetStrips();
    strips->InitTraversal();
    vtkIdType count = 0;
    const vtkIdType* ids = nullptr;
    while (strips->GetNextCell(count, ids))
    {
        for (vtkIdType i = 0; i + 2 < count; ++i)
        {
            const bool isOdd = i % 2 == 1;
            const vtkIdType a = ids[i];
            const vtkIdType b = ids[i + (isOdd ? 2 : 1)];
            const vtkIdType c = ids[i + (isOdd ? 1 : 2)];
            if (a != b && b != c && a != c)
            {
                ++triangles[Normalise(a, b, c)];
            }
        }
    }
    return triangles;
}

SurfaceMesh Build(const Samples& samples, bool withIsolated)
{
    SurfaceGrid grid;
    grid.Columns = samples.Columns;
    grid.Rows = samples.Rows;
    std::copy_n(samples.Scale, 3, grid.Scale.begin());
    std::copy_n(samples.Offset, 3, grid.Offset.begin());
    const UniformSamples own = UniformSamples::CopyOf({samples.Heights.data()}, grid);
    return SurfaceMeshBuilder<UniformSamples>(own, grid).Build(withIsolated);
}

void ExpectLikeLiteral(const Samples& samples, bool withIsolated)
{
    const SurfaceMesh mesh = Build(samples, withIsolated);
    LiteralInput input = SurfaceScene().Literal(samples);
    input.FullCellsOnly = !withIsolated;
    const LiteralSurface literal(input);

    EXPECT_TRUE(Triangles(mesh.PolyData) == Triangles(literal.PolyData));
    ASSERT_EQ(mesh.PolyData->GetNumberOfPoints(), literal.PolyData->GetNumberOfPoints());
    for (vtkIdType i = 0; i < mesh.PolyData->GetNumberOfPoints(); ++i)
    {
        for (int axis = 0; axis < 3; ++axis)
        {
            ASSERT_EQ(mesh.PolyData->GetPoint(i)[axis], literal.PolyData->GetPoint(i)[axis]) << i;
        }
    }

    // The boxes are those of the points that the strips use.
    ASSERT_EQ(mesh.PolyData->GetNumberOfStrips(), static_cast<vtkIdType>(mesh.StripBoxes.size()));
    vtkCellArray* strips = mesh.PolyData->GetStrips();
    for (size_t strip = 0; strip < mesh.StripBoxes.size(); ++strip)
    {
        vtkIdType count = 0;
        const vtkIdType* ids = nullptr;
        strips->GetCellAtId(static_cast<vtkIdType>(strip), count, ids);
        SurfaceBox box;
        for (vtkIdType i = 0; i < count; ++i)
        {
            const double* p = mesh.PolyData->GetPoint(ids[i]);
            SurfaceBox point;
            point.Bounds = {p[0], p[0], p[1], p[1], p[2], p[2]};
            box.Include(point);
        }
        ASSERT_EQ(box.Bounds, mesh.StripBoxes[strip].Bounds) << strip;
    }
}
} // namespace

TEST(SurfaceMesh, HasTheTrianglesAndPointsOfTheGrid)
{
    for (const auto& [columns, rows] :
         {std::pair{2, 2}, {2, 9}, {9, 2}, {65, 65}, {66, 64}, {130, 70}, {64, 200}})
    {
        Samples samples = MakeHills(columns, rows);
        samples.Offset[0] = -3.7;
        samples.Offset[2] = 12.0;
        ExpectLikeLiteral(samples, false);
        PunchHoles(samples);
        ExpectLikeLiteral(samples, false);
        ExpectLikeLiteral(samples, true);
    }
}

TEST(SurfaceMesh, DrawsOneSampleAmidMissingOnesAsQuad)
{
    Samples samples = MakeFlat(5, 5);
    samples.Heights.assign(25, Missing);
    samples.At(2, 3) = 7;
    const SurfaceMesh none = Build(samples, false);
    EXPECT_EQ(none.PolyData->GetNumberOfStrips(), 0);
    EXPECT_TRUE(none.Bounds.IsEmpty());

    const SurfaceMesh mesh = Build(samples, true);
    EXPECT_EQ(mesh.Isolated, std::vector<int32_t>{17});
    EXPECT_EQ(mesh.PolyData->GetNumberOfPoints(), 29);
    EXPECT_EQ(mesh.Bounds.Bounds, (std::array<double, 6>{1.5, 2.5, 2.5, 3.5, 7.0, 7.0}));
    EXPECT_EQ(mesh.Heights.Minimum, 7);
    EXPECT_EQ(mesh.Heights.Maximum, 7);
}

TEST(SurfaceMesh, LeavesOutTheLastSampleOfARowWithoutCells)
{
    Samples samples = MakeFlat(4, 3);
    samples.Heights.assign(12, Missing);
    samples.At(0, 0) = samples.At(1, 0) = samples.At(2, 0) = samples.At(3, 0) = 1;
    samples.At(3, 1) = 2;
    EXPECT_EQ(Build(samples, true).Isolated, (std::vector<int32_t>{0, 1, 2, 7}));
}

TEST(SurfaceMesh, RepeatsTheValuesOfIsolatedSamples)
{
    const std::shared_ptr<const uint8_t[]> values(new uint8_t[4]{10, 20, 30, 40});
    EXPECT_EQ(PerPoint(values, 4, {}), values);
    const std::shared_ptr<const uint8_t[]> perPoint = PerPoint(values, 4, {1, 3});
    EXPECT_EQ(std::vector<int>(perPoint.get(), perPoint.get() + 12),
              (std::vector<int>{10, 20, 30, 40, 20, 20, 20, 20, 40, 40, 40, 40}));
}
