#include "MeasuredView.h"

#include <cmath>
#include <random>

Samples::Samples(int32_t columns, int32_t rows)
    : Grid{columns, rows}, Heights(static_cast<size_t>(columns * rows)), Intensities(Heights.size())
{
}

void Samples::Place(int pitchX, int pitchY)
{
    for (int i = 0; i < Grid.Columns * Grid.Rows; ++i)
    {
        X.push_back(static_cast<int16_t>(i % Grid.Columns * pitchX));
        Y.push_back(static_cast<int16_t>(i / Grid.Columns * pitchY));
    }
}

void Samples::PunchHoles()
{
    std::mt19937 random(7);
    for (int hole = 0; hole < 40; ++hole)
    {
        const auto x = static_cast<int32_t>(random() % 200);
        const auto y = static_cast<int32_t>(random() % 150);
        const int32_t radius = hole % 10;
        for (int32_t i = 0; i < Grid.Columns * Grid.Rows; ++i)
        {
            const int32_t column = i % Grid.Columns;
            const int32_t row = i / Grid.Columns;
            // Every third hole is a grating, which leaves isolated samples.
            if (std::abs(column - x) <= radius && std::abs(row - y) <= radius &&
                (hole % 3 != 0 || (row + column) % 2 == 0 || column % 3 == 0))
            {
                At(column, row) = Missing;
            }
        }
    }
}

Samples MakeHills(int32_t columns, int32_t rows)
{
    Samples samples(columns, rows);
    for (int32_t i = 0; i < columns * rows; ++i)
    {
        const double x = 7.0 * (i % columns) / columns;
        const double y = 5.0 * (i / columns) / columns; // NOLINT(bugprone-integer-division)
        const auto at = static_cast<size_t>(i);
        samples.Heights[at] = static_cast<int16_t>(3000.0 * std::sin(x) * std::cos(y) +
                                                   1000.0 * std::sin(3.1 * x + 5.3 * y));
        samples.Intensities[at] =
            static_cast<uint8_t>(127.5 + 127.5 * std::sin(2.0 * x) * std::sin(3.0 * y));
    }
    samples.Grid.Scale = {100.0 / columns, 100.0 / columns, 0.001};
    return samples;
}

int32_t MeasuredView::AddSurface(const Samples& samples, bool fullCellsOnly) const
{
    int32_t surface = TARVEX_NONE;
    const auto& [columns, rows, scale, offset] = samples.Grid;
    const int16_t* heights = samples.Heights.data();
    const uint8_t* intensities = samples.Intensities.data();
    const int32_t status =
        samples.IsFree()
            ? Tarvex_Element_Add_SurfaceNonUniform(Id, samples.X.data(), samples.Y.data(), heights,
                                                   intensities, columns, rows, scale[0], scale[1],
                                                   scale[2], offset[0], offset[1], offset[2],
                                                   fullCellsOnly, &surface)
            : Tarvex_Element_Add_SurfaceUniform(Id, heights, intensities, columns, rows, scale[0],
                                                scale[1], scale[2], offset[0], offset[1], offset[2],
                                                fullCellsOnly, &surface);
    EXPECT_EQ(status, STATUS_OK);
    return surface;
}
