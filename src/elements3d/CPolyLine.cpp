#include "elements3d/CPolyLine.h"

#include <vtkCellArray.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkTrivialProducer.h>

CPolyLine::CPolyLine()
    : Points(vtkSmartPointer<vtkPoints>::New()), Cells(vtkSmartPointer<vtkCellArray>::New()),
      PolyData(vtkSmartPointer<vtkPolyData>::New()),
      Producer(vtkSmartPointer<vtkTrivialProducer>::New())
{
    PolyData->SetPoints(Points);
    PolyData->SetLines(Cells);
    Producer->SetOutput(PolyData);
}

void CPolyLine::Set(std::span<const double> coordinates, std::span<const int32_t> path)
{
    const auto count = static_cast<vtkIdType>(coordinates.size() / 3);
    Points->SetNumberOfPoints(count);
    for (vtkIdType point = 0; point < count; ++point)
    {
        Points->SetPoint(point, &coordinates[3 * static_cast<size_t>(point)]);
    }
    Cells->Reset();
    Cells->InsertNextCell(static_cast<int>(path.size()));
    for (const int32_t index : path)
    {
        Cells->InsertCellPoint(index);
    }
    // VTK does not notice changes in place; without these the old picture and the old bounds stay.
    Points->Modified();
    Cells->Modified();
    PolyData->Modified();
}

vtkAlgorithmOutput* CPolyLine::GetOutputPort() const
{
    return Producer->GetOutputPort();
}
