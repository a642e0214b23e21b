// A circle in a chart. Handles: the centre, which moves it, and the lowest, rightmost, highest and
// leftmost point, each of which sets the radius.
#pragma once

#include "elements2d/CElement_Draggable2D.h"

class CElement_Circle2D : public CElement_Draggable2D
{
public:
    static constexpr int32_t Type = 12;

    CElement_Circle2D();

    int32_t Initialize(const ChartSite& site, double x, double y, double radius);
    int32_t GetValue(double* x, double* y, double* radius);
    int32_t SetValue(double x, double y, double radius);

    // Clears nothing when it fails.
    int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) override;
    using CElement_Draggable2D::GetBounds;

protected:
    int32_t CountRows() const override;
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override;
    std::span<const ChartPoint> GetHandles() const override { return Places; }
    int32_t MoveHandle(int32_t handle, double x, double y) override;
    // Refuses to be added while invalid.
    int32_t CheckComplete() const override;

private:
    void Store(double x, double y, double radius);
    void PlaceHandles();

    double X = 0.0;
    double Y = 0.0;
    double Radius = 5.0;
    std::array<ChartPoint, 5> Places; // of the handles
};
