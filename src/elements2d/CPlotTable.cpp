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

CPlotTable::Columns CPlotTable::Resize(int32_t rows)
{
    // Plots take their length from X: Y is never the shorter one, also when memory runs out
    // between.
    if (!Y->SetNumberOfValues(rows) || !X->SetNumberOfValues(rows))
    {
        throw std::bad_alloc();
    }
    return {X->GetPointer(0), Y->GetPointer(0)};
}
