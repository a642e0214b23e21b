// A line through points, as a VTK data set: for every element that is drawn as one.
#pragma once

#include <cstdint>
#include <span>

#include <vtkSmartPointer.h>

class vtkAlgorithmOutput;
class vtkCellArray;
class vtkPoints;
class vtkPolyData;
class vtkTrivialProducer;

class CPolyLine
{
public:
    CPolyLine();

    // Three doubles a point, in the coordinates of the actor; `path` visits points by their index,
    // as often as it likes. Replaces what was there.
    void Set(std::span<const double> coordinates, std::span<const int32_t> path);

    // For the mapper.
    vtkAlgorithmOutput* GetOutputPort() const;
    vtkPolyData* GetPolyData() const { return PolyData; }

private:
    vtkSmartPointer<vtkPoints> Points;
    vtkSmartPointer<vtkCellArray> Cells;
    vtkSmartPointer<vtkPolyData> PolyData;
    vtkSmartPointer<vtkTrivialProducer> Producer;
};
