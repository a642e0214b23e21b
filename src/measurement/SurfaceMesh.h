// Turns samples into points and triangle strips.
#pragma once

#include "measurement/HeightRange.h"
#include "measurement/SurfaceGrid.h"

#include <cstdint>
#include <memory>
#include <vector>

#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkSmartPointer.h>
#include <vtkTypeInt32Array.h>

class vtkPolyData;

// The drawn form of a surface. Every sample is a point, missing ones too, to which no triangle
// refers. A cell of four valid samples i, i + 1, i + columns, i + columns + 1 is two triangles. The
// grid is cut into square tiles; all cells of a tile are one strip, in which repeated indices
// (triangles without area) lead from one run of cells to the next. That costs hardly more than two
// indices a cell, and the strips can be given to OpenGL as they are.
struct SurfaceMesh
{
    vtkSmartPointer<vtkPolyData> PolyData;
    // One for each strip: a box around what it draws.
    std::vector<SurfaceBox> StripBoxes;
    // Around everything that is drawn.
    SurfaceBox Bounds;
    // The raw heights that are drawn.
    HeightRange Heights;
    // Samples in no cell that are drawn as quads. The four points of the quads follow the samples'
    // points.
    std::vector<int32_t> Isolated;
};

// Repeats the values of isolated samples for the corners of their quads, so that there is a value
// for each point of the mesh. Without such samples it is the same array again.
template <class Value>
std::shared_ptr<const Value[]> PerPoint(std::shared_ptr<const Value[]> samples, size_t count,
                                        const std::vector<int32_t>& isolated)
{
    if (isolated.empty())
    {
        return samples;
    }
    auto values = std::make_shared_for_overwrite<Value[]>(count + 4 * isolated.size());
    Value* end = std::copy_n(samples.get(), count, values.get());
    for (const int32_t sample : isolated)
    {
        end = std::fill_n(end, 4, samples[sample]);
    }
    return values;
}

// The samples that belong to no cell and are to be drawn all the same, in row order. Hosts know the
// gap in the choice: the last sample of a row is left out where the walk along the row has just
// marked the sample before it. Throws std::bad_alloc.
std::vector<int32_t> FindIsolatedSamples(const int16_t* heights, const SurfaceGrid& grid);

// Collects strips; the mesh is complete after Finish.
class StripWriter
{
public:
    // `expected` indices are the first guess, more are no error.
    StripWriter(SurfaceMesh& mesh, int64_t expected);

    // Continues the present strip with a band of triangles between two rows of points: `pairs`
    // points of one row from index `first` on, `step` apart, each with its counterpart in the other
    // row, `across` further on.
    void AddBand(int32_t first, int32_t pairs, int32_t step, int32_t across);
    // Ends the present strip, which fills the box. Nothing happens if it is still empty.
    void EndStrip(const SurfaceBox& box);
    void Finish(vtkFloatArray* coordinates);

private:
    SurfaceMesh& Mesh;
    vtkNew<vtkTypeInt32Array> Offsets;
    vtkNew<vtkTypeInt32Array> Indices;
    vtkIdType StripBegin = 0;
};

template <class Samples>
class SurfaceMeshBuilder
{
public:
    SurfaceMeshBuilder(const Samples& samples, const SurfaceGrid& grid)
        : Source(samples), Grid(grid), Strips(Mesh, 21 * grid.GetCount() / 10)
    {
    }

    // Throws std::bad_alloc.
    SurfaceMesh Build(bool withIsolated)
    {
        if (withIsolated)
        {
            Mesh.Isolated = FindIsolatedSamples(Source.Heights.get(), Grid);
        }
        const auto isolated = static_cast<int64_t>(Mesh.Isolated.size());
        if (Grid.GetCount() + 4 * isolated > MaxSurfacePoints)
        {
            throw std::bad_alloc();
        }
        Coordinates->SetNumberOfComponents(3);
        Coordinates->SetNumberOfTuples(Grid.GetCount() + 4 * isolated);

        const typename Samples::RowWriter writeRow(Source, Grid);
        int32_t written = 0;
        for (int32_t row = 0; row < Grid.Rows - 1; row += TileSize)
        {
            // The points first: that brings the samples of the tiles into the cache.
            const int32_t lastRow = std::min(row + TileSize, Grid.Rows - 1);
            for (; written <= lastRow; ++written)
            {
                writeRow(written, PointAt(int64_t{written} * Grid.Columns));
            }
            for (int32_t column = 0; column < Grid.Columns - 1; column += TileSize)
            {
                AddTile(row, lastRow, column, std::min(column + TileSize, Grid.Columns - 1));
            }
        }
        AddQuads();
        Strips.Finish(Coordinates);
        return std::move(Mesh);
    }

private:
    // In cells. Small enough that zooming and picking skip most of a surface and that two rows of a
    // tile stay in the vertex cache, large enough that a strip is worth a draw.
    static constexpr int32_t TileSize = 64;
    static constexpr size_t QuadsPerStrip = 1024;

    // The cells between the given rows and columns of samples.
    void AddTile(int32_t firstRow, int32_t lastRow, int32_t firstColumn, int32_t lastColumn)
    {
        RawBox box;
        // Of the present row of samples, what the band above it has put into the box already.
        int32_t knownFirst = 0;
        int32_t knownLast = -1;
        for (int32_t row = firstRow; row < lastRow; ++row)
        {
            int32_t nextFirst = 0;
            int32_t nextLast = -1;
            const int32_t begin = row * Grid.Columns;
            const int16_t* upper = &Source.Heights[begin];
            const int16_t* lower = upper + Grid.Columns;
            for (int32_t column = firstColumn; column <= lastColumn;)
            {
                const int32_t first = column;
                while (column <= lastColumn && upper[column] != InvalidHeight &&
                       lower[column] != InvalidHeight)
                {
                    ++column;
                }
                if (column - first > 1)
                {
                    Strips.AddBand(begin + first, column - first, 1, Grid.Columns);
                    if (first < knownFirst || column - 1 > knownLast)
                    {
                        Source.Extend(box, Grid, row, first, column - 1);
                    }
                    Source.Extend(box, Grid, row + 1, first, column - 1);
                    nextFirst = first;
                    nextLast = column - 1;
                }
                ++column;
            }
            knownFirst = nextFirst;
            knownLast = nextLast;
        }
        if (!box.IsEmpty())
        {
            IncludeHeights(box.Lowest[2], box.Highest[2]);
            Strips.EndStrip(SurfaceBox(Grid, box));
        }
    }

    void AddQuads()
    {
        if (Mesh.Isolated.empty())
        {
            return;
        }
        const std::array<double, 2> half = Source.GetQuadHalfSize(Grid);
        auto first = static_cast<int32_t>(Grid.GetCount());
        for (size_t i = 0; i < Mesh.Isolated.size(); i += QuadsPerStrip)
        {
            SurfaceBox box;
            const size_t end = std::min(i + QuadsPerStrip, Mesh.Isolated.size());
            for (size_t k = i; k < end; ++k, first += 4)
            {
                const int32_t sample = Mesh.Isolated[k];
                AddQuad(PointAt(sample), half, PointAt(first), box);
                Strips.AddBand(first, 2, 2, 1);
                IncludeHeights(Source.Heights[sample], Source.Heights[sample]);
            }
            Strips.EndStrip(box);
        }
    }

    static void AddQuad(const float* centre, const std::array<double, 2>& half, float* corner,
                        SurfaceBox& box)
    {
        const float x[2] = {Samples::Shift(centre[0], -half[0]),
                            Samples::Shift(centre[0], half[0])};
        const float y[2] = {Samples::Shift(centre[1], -half[1]),
                            Samples::Shift(centre[1], half[1])};
        SurfaceBox quad;
        quad.Bounds = {x[0], x[1], y[0], y[1], centre[2], centre[2]};
        box.Include(quad);
        for (size_t i = 0; i < 4; ++i, corner += 3)
        {
            corner[0] = x[i / 2];
            corner[1] = y[i % 2];
            corner[2] = centre[2];
        }
    }

    void IncludeHeights(int32_t lowest, int32_t highest)
    {
        Mesh.Heights.Minimum = std::min(Mesh.Heights.Minimum, static_cast<int16_t>(lowest));
        Mesh.Heights.Maximum = std::max(Mesh.Heights.Maximum, static_cast<int16_t>(highest));
    }

    float* PointAt(int64_t index) { return Coordinates->GetPointer(3 * index); }

    const Samples& Source;
    const SurfaceGrid& Grid;
    SurfaceMesh Mesh;
    StripWriter Strips;
    vtkNew<vtkFloatArray> Coordinates;
};
