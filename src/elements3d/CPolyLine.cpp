#include "elements3d/CPolyLine.h"

#include <vtkCellArray.h>
#include <vtkNew.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkTrivialProducer.h>
#include <vtkTypeInt32Array.h>

#include <algorithm>
#include <numeric>
#include <vector>

CPolyLine::CPolyLine()
    : PolyData(vtkSmartPointer<vtkPolyData>::New()),
      Producer(vtkSmartPointer<vtkTrivialProducer>::New())
{
    Producer->SetOutput(PolyData);
}

void CPolyLine::Set(std::span<const double> coordinates, std::span<const int32_t> path)
{
    const auto count = static_cast<vtkIdType>(coordinates.size() / 3);
    const vtkNew<vtkPoints> points;
    points->SetNumberOfPoints(count);
    for (vtkIdType point = 0; point < count; ++point)
    {
        points->SetPoint(point, &coordinates[3 * static_cast<size_t>(point)]);
    }
    const auto length = static_cast<vtkIdType>(path.size());
    const vtkNew<vtkTypeInt32Array> indices;
    indices->SetNumberOfValues(length);
    std::copy(path.begin(), path.end(), indices->GetPointer(0));
    const vtkNew<vtkCellArray> cells;
    cells->SetData(length, indices);
    // New objects each time: VTK does not notice changes in place, neither in the picture nor in
    // the bounds.
    PolyData->SetPoints(points);
    PolyData->SetLines(cells);
}

void CPolyLine::Set(std::span<const double> coordinates, bool closed)
{
    const size_t count = coordinates.size() / 3;
    std::vector<int32_t> path(count + (closed ? 1 : 0), 0);
    // The index 0 that closes the line stays behind.
    std::iota(path.begin(), path.begin() + static_cast<std::ptrdiff_t>(count), 0);
    Set(coordinates, path);
}

vtkAlgorithmOutput* CPolyLine::GetOutputPort() const
{
    return Producer->GetOutputPort();
}
