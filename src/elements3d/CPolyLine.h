// A line through points, as a VTK data set: for every element that is drawn as one.
#pragma once

#include <cstdint>
#include <span>

#include <vtkSmartPointer.h>

class vtkAlgorithmOutput;
class vtkPolyData;
class vtkTrivialProducer;

class CPolyLine
{
public:
    CPolyLine();

    // Three doubles a point, in the coordinates of the actor; `path` visits points by their index,
    // as often as it likes. Replaces what was there; if memory runs out, the old line stays.
    void Set(std::span<const double> coordinates, std::span<const int32_t> path);
    // Through all points in their order, and back to the first if `closed`.
    void Set(std::span<const double> coordinates, bool closed);

    // For the mapper.
    vtkAlgorithmOutput* GetOutputPort() const;

private:
    vtkSmartPointer<vtkPolyData> PolyData;
    vtkSmartPointer<vtkTrivialProducer> Producer;
};
