// The points of a plot as the chart takes them: a table of two columns of floats.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkTable.h>

class CPlotTable
{
public:
    // `name` names the column of Y, which the chart shows in legend and tooltips.
    explicit CPlotTable(const std::string& name);

    // Makes room and gives the columns to be filled; Filled must follow.
    struct Columns
    {
        float* X;
        float* Y;

        // A value that a float cannot hold makes a gap.
        void Write(int32_t row, double x, double y) const
        {
            X[row] = ToFloat(x);
            Y[row] = ToFloat(y);
        }
    };
    Columns Resize(int32_t rows);
    // Takes rows that the caller keeps, without copying them; Filled must follow when they are
    // other ones.
    void View(const Columns& columns, int32_t rows);
    // Room for so many rows: a Resize up to there needs no memory.
    void Reserve(int32_t rows);
    // Plots on this table take the new values with the next render.
    void Filled() { Table->Modified(); }

    vtkTable* GetTable() const { return Table; }

private:
    static float ToFloat(double value)
    {
        return std::abs(value) <= static_cast<double>(std::numeric_limits<float>::max())
                   ? static_cast<float>(value)
                   : std::numeric_limits<float>::quiet_NaN();
    }

    vtkNew<vtkFloatArray> X;
    vtkNew<vtkFloatArray> Y;
    vtkNew<vtkTable> Table;
};
