#include "LiteralSurface.h"

#include "measurement/Palettes.h"

#include <cmath>
#include <limits>
#include <vector>

#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkLookupTable.h>
#include <vtkNew.h>
#include <vtkOpenGLPolyDataMapper.h>
#include <vtkOpenGLVertexBufferObject.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkProperty.h>
#include <vtkTransform.h>

namespace
{
bool IsValid(const LiteralInput& input, vtkIdType sample)
{
    return input.Heights[sample] != -32768;
}

bool IsFull(const LiteralInput& input, vtkIdType i)
{
    return IsValid(input, i) && IsValid(input, i + 1) && IsValid(input, i + input.Columns) &&
           IsValid(input, i + input.Columns + 1);
}

double Value(const LiteralInput& input, vtkIdType sample)
{
    if (!IsValid(input, sample))
    {
        return std::numeric_limits<double>::quiet_NaN();
    }
    return input.Intensities ? input.Intensities[sample]
                             : input.Heights[sample] * input.Scale[2] + input.Offset[2];
}

std::vector<vtkIdType> FindIsolated(const LiteralInput& input)
{
    const vtkIdType count = vtkIdType{input.Columns} * input.Rows;
    std::vector<int> marks(static_cast<size_t>(count), 0);
    const auto mark = [&](vtkIdType i) -> int& { return marks[static_cast<size_t>(i)]; };
    for (vtkIdType row = 0; row < input.Rows - 1; ++row)
    {
        for (vtkIdType column = 0; column < input.Columns - 1; ++column)
        {
            const vtkIdType i = row * input.Columns + column;
            if (IsFull(input, i))
            {
                mark(i) = mark(i + 1) = mark(i + input.Columns) = mark(i + input.Columns + 1) = 1;
            }
            else if (IsValid(input, i) && mark(i) == 0)
            {
                mark(i) = 2;
            }
            else if (IsValid(input, i + 1) && mark(i + 1) == 0)
            {
                mark(i + 1) = 2;
            }
        }
    }
    std::vector<vtkIdType> isolated;
    for (vtkIdType i = 0; i < count; ++i)
    {
        const bool isLastRow = i >= count - input.Columns;
        if (mark(i) == 2 || (isLastRow && mark(i) == 0 && IsValid(input, i)))
        {
            isolated.push_back(i);
        }
    }
    return isolated;
}
} // namespace

LiteralSurface::LiteralSurface(const LiteralInput& input)
{
    const vtkIdType count = vtkIdType{input.Columns} * input.Rows;
    vtkNew<vtkFloatArray> coordinates;
    coordinates->SetNumberOfComponents(3);
    vtkNew<vtkCellArray> strips;
    vtkNew<vtkDoubleArray> scalars;
    scalars->SetName("Height");

    for (vtkIdType row = 0; row < input.Rows; ++row)
    {
        for (vtkIdType column = 0; column < input.Columns; ++column)
        {
            const vtkIdType i = row * input.Columns + column;
            const double point[3] = {
                static_cast<double>(column) * input.Scale[0] + input.Offset[0],
                static_cast<double>(row) * input.Scale[1] + input.Offset[1],
                IsValid(input, i) ? input.Heights[i] * input.Scale[2] + input.Offset[2] : -10000.0};
            coordinates->InsertNextTuple(point);
            if (row < input.Rows - 1 && column < input.Columns - 1 && IsFull(input, i))
            {
                const vtkIdType cell[4] = {i, i + input.Columns, i + 1, i + input.Columns + 1};
                strips->InsertNextCell(4, cell);
            }
        }
    }
    for (vtkIdType i = 0; i < count; ++i)
    {
        scalars->InsertTuple1(i, Value(input, i));
    }
    if (!input.FullCellsOnly)
    {
        vtkIdType next = count;
        for (const vtkIdType i : FindIsolated(input))
        {
            double centre[3];
            coordinates->GetTuple(i, centre);
            const double half[2] = {input.Scale[0] * 0.5, input.Scale[1] * 0.5};
            for (int corner = 0; corner < 4; ++corner)
            {
                const double point[3] = {centre[0] + (corner < 2 ? -half[0] : half[0]),
                                         centre[1] + (corner % 2 == 0 ? -half[1] : half[1]),
                                         centre[2]};
                coordinates->InsertNextTuple(point);
                scalars->InsertTuple1(next + corner, Value(input, i));
            }
            const vtkIdType cell[4] = {next, next + 1, next + 2, next + 3};
            strips->InsertNextCell(4, cell);
            next += 4;
        }
    }

    vtkNew<vtkPoints> points;
    points->SetData(coordinates);
    PolyData = vtkSmartPointer<vtkPolyData>::New();
    PolyData->SetPoints(points);
    PolyData->SetStrips(strips);
    PolyData->GetPointData()->SetScalars(scalars);

    Mapper = vtkSmartPointer<vtkPolyDataMapper>::New();
    if (!input.ShiftAndScale)
    {
        vtkOpenGLPolyDataMapper::SafeDownCast(Mapper)->SetVBOShiftScaleMethod(
            vtkOpenGLVertexBufferObject::DISABLE_SHIFT_SCALE);
    }
    Mapper->SetInputData(PolyData);
    SetPalette(input);
    Mapper->SetScalarRange(input.Range[0], input.Range[1]);
    Mapper->SetScalarModeToUsePointData();
    Mapper->SetColorModeToMapScalars();
    Mapper->ScalarVisibilityOn();
    Mapper->InterpolateScalarsBeforeMappingOn();

    Actor = vtkSmartPointer<vtkActor>::New();
    Actor->SetMapper(Mapper);
    vtkProperty* property = Actor->GetProperty();
    property->SetColor(1.0, 1.0, 1.0);
    property->SetAmbient(0.3);
    property->SetDiffuse(0.4);
    property->SetSpecular(0.3);
    property->SetSpecularPower(0.0);
    vtkNew<vtkTransform> mirror;
    mirror->Scale(1.0, -1.0, 1.0);
    Actor->SetUserMatrix(mirror->GetMatrix());
}

void LiteralSurface::SetPalette(const LiteralInput& input)
{
    const PaletteTable colors = GetPaletteTable(input.Palette, {255, 255, 255});
    vtkNew<vtkLookupTable> table;
    table->SetNumberOfTableValues(256);
    table->Build();
    for (int i = 0; i < 256; ++i)
    {
        const PaletteColor& color = colors[static_cast<size_t>(i)];
        table->SetTableValue(i, color[0] / 255.0, color[1] / 255.0, color[2] / 255.0,
                             input.Opacity);
    }
    double end[4];
    table->GetTableValue(255, end);
    table->SetAboveRangeColor(end);
    table->SetUseAboveRangeColor(1);
    table->GetTableValue(0, end);
    table->SetBelowRangeColor(end);
    table->SetUseBelowRangeColor(1);
    table->SetNanColor(input.Background[0], input.Background[1], input.Background[2], 1.0);
    table->BuildSpecialColors();
    Mapper->SetLookupTable(table);
}
