#include "elements2d/CPlotTable.h"

#include <new>

CPlotTable::CPlotTable(const std::string& name)
{
    // Plots find their columns by name: two of one name would be one column.
    X->SetName(name == "X Axis" ? "X Axis (X)" : "X Axis");
    Y->SetName(name.c_str());
    Table->AddColumn(X);
    Table->AddColumn(Y);
}

void CPlotTable::Reserve(int32_t rows)
{
    for (vtkFloatArray* column : {Y.Get(), X.Get()})
    {
        if (column->GetSize() < rows && !column->Resize(rows))
        {
            throw std::bad_alloc();
        }
    }
}

CPlotTable::Columns CPlotTable::Resize(int32_t rows)
{
    Reserve(rows);
    Y->SetNumberOfTuples(rows);
    X->SetNumberOfTuples(rows);
    return {X->GetPointer(0), Y->GetPointer(0)};
}

void CPlotTable::View(const Columns& columns, int32_t rows)
{
    constexpr int notOwned = 1;
    X->SetArray(columns.X, rows, notOwned);
    Y->SetArray(columns.Y, rows, notOwned);
}
