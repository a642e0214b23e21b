#include "elements2d/CPlotTable.h"

#include <cmath>
#include <limits>
#include <new>

namespace
{
float ToFloat(double value)
{
    return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max())
               ? static_cast<float>(value)
               : std::numeric_limits<float>::quiet_NaN();
}
} // namespace

CPlotTable::CPlotTable(const std::string& name)
{
    // Plots find their columns by name: two of one name would be one column.
    X->SetName(name == "X Axis" ? "X Axis (X)" : "X Axis");
    Y->SetName(name.c_str());
    Table->AddColumn(X);
    Table->AddColumn(Y);
}

void CPlotTable::Columns::Write(int32_t row, double x, double y) const
{
    X[row] = ToFloat(x);
    Y[row] = ToFloat(y);
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
