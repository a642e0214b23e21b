#include "measurement/SurfaceMesh.h"

#include <vtkCellArray.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <algorithm>

namespace
{
enum Mark : uint8_t
{
    Unmarked,
    InCell,
    IsIsolated
};

// Marks the samples of one row of cells: `upper` and `lower` are the rows of samples above and
// below it. Cells are taken from left to right, and a full cell overrules an earlier mark.
void MarkRow(const int16_t* upper, const int16_t* lower, int32_t columns, uint8_t* upperMarks,
             uint8_t* lowerMarks)
{
    bool isLeftValid = upper[0] != InvalidHeight;
    bool isLeftFull = isLeftValid && lower[0] != InvalidHeight;
    for (int32_t column = 0; column < columns - 1; ++column)
    {
        const bool isRightValid = upper[column + 1] != InvalidHeight;
        const bool isRightFull = isRightValid && lower[column + 1] != InvalidHeight;
        if (isLeftFull && isRightFull)
        {
            upperMarks[column] = upperMarks[column + 1] = InCell;
            lowerMarks[column] = lowerMarks[column + 1] = InCell;
        }
        else if (isLeftValid && upperMarks[column] == Unmarked)
        {
            upperMarks[column] = IsIsolated;
        }
        else if (isRightValid && upperMarks[column + 1] == Unmarked)
        {
            upperMarks[column + 1] = IsIsolated;
        }
        isLeftValid = isRightValid;
        isLeftFull = isRightFull;
    }
}
} // namespace

std::vector<int32_t> FindIsolatedSamples(const int16_t* heights, const SurfaceGrid& grid)
{
    const auto columns = static_cast<size_t>(grid.Columns);
    std::vector<int32_t> isolated;
    std::vector<uint8_t> marks(columns, Unmarked);
    std::vector<uint8_t> nextMarks(columns, Unmarked);
    for (int32_t row = 0; row < grid.Rows; ++row)
    {
        const int16_t* samples = heights + static_cast<size_t>(row) * columns;
        const bool isLast = row == grid.Rows - 1;
        if (!isLast)
        {
            MarkRow(samples, samples + columns, grid.Columns, marks.data(), nextMarks.data());
        }
        for (int32_t column = 0; column < grid.Columns; ++column)
        {
            const uint8_t mark = marks[static_cast<size_t>(column)];
            if (mark == IsIsolated ||
                (isLast && mark == Unmarked && samples[column] != InvalidHeight))
            {
                isolated.push_back(row * grid.Columns + column);
            }
        }
        marks.swap(nextMarks);
        std::fill(nextMarks.begin(), nextMarks.end(), uint8_t{Unmarked});
    }
    return isolated;
}

StripWriter::StripWriter(SurfaceMesh& mesh, int64_t expected) : Mesh(mesh)
{
    Offsets->InsertNextValue(0);
    Indices->Allocate(expected);
}

void StripWriter::AddBand(int32_t first, int32_t pairs, int32_t step, int32_t across)
{
    const vtkIdType begin = Indices->GetNumberOfValues();
    const bool isFirst = begin == StripBegin;
    // An even number of indices each time, so that all triangles turn the same way.
    int32_t* index = Indices->WritePointer(begin, 2 * vtkIdType{pairs} + (isFirst ? 0 : 2));
    if (!isFirst)
    {
        index[0] = index[-1];
        index[1] = first;
        index += 2;
    }
    for (int32_t i = 0; i < pairs; ++i, first += step)
    {
        *index++ = first;
        *index++ = first + across;
    }
}

void StripWriter::EndStrip(const SurfaceBox& box)
{
    const vtkIdType end = Indices->GetNumberOfValues();
    if (end > StripBegin)
    {
        Offsets->InsertNextValue(static_cast<int32_t>(end));
        Mesh.StripBoxes.push_back(box);
        Mesh.Bounds.Include(box);
        StripBegin = end;
    }
}

void StripWriter::Finish(vtkFloatArray* coordinates)
{
    Indices->Squeeze();
    vtkNew<vtkCellArray> strips;
    strips->SetData(Offsets, Indices);
    vtkNew<vtkPoints> points;
    points->SetData(coordinates);
    Mesh.PolyData = vtkSmartPointer<vtkPolyData>::New();
    Mesh.PolyData->SetPoints(points);
    Mesh.PolyData->SetStrips(strips);
}
