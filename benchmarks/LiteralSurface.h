// A height map shown the plain way, with VTK's own classes and one call for each sample and cell.
// The tests hold the pictures of the library against it, the benchmarks its times.
#pragma once

#include <cstdint>

#include <vtkActor.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkSmartPointer.h>

struct LiteralInput
{
    const int16_t* Heights = nullptr;
    const uint8_t* Intensities = nullptr; // colours, if given
    int32_t Columns = 0;
    int32_t Rows = 0;
    double Scale[3] = {1.0, 1.0, 1.0};
    double Offset[3] = {0.0, 0.0, 0.0};
    bool FullCellsOnly = true;
    double Range[2] = {0.0, 255.0};
    int32_t Palette = 0;
    double Opacity = 1.0;
    double Background[3] = {0.0, 0.0, 0.0};
    // Stock VTK moves and scales large point arrays, which makes pictures less exact.
    bool ShiftAndScale = true;
};

struct LiteralSurface
{
    vtkSmartPointer<vtkPolyData> PolyData;
    vtkSmartPointer<vtkPolyDataMapper> Mapper;
    vtkSmartPointer<vtkActor> Actor; // mirrored in Y

    explicit LiteralSurface(const LiteralInput& input);
    void SetPalette(const LiteralInput& input);
};
