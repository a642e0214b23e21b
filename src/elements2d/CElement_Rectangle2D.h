// A rectangle in a chart. Handles: 0 the centre, which moves it; from 1 on the corners (odd) and
// the middles of the edges (even) in turn, from the corner of smallest x and y before the rotation.
// What is opposite of a dragged corner or edge stays where it is.
#pragma once

#include "elements2d/CElement_Draggable2D.h"

class CElement_Rectangle2D : public CElement_Draggable2D
{
public:
    static constexpr int32_t Type = 17;

    CElement_Rectangle2D();

    // The angle, in degrees from X towards Y, is folded into -180 .. 180 here; SetValue keeps it as
    // given.
    int32_t Initialize(const ChartSite& site, double x, double y, double width, double height,
                       double angle);
    // Refuses what cannot be drawn.
    int32_t BuildPipeline() override;
    int32_t GetValue(double* x, double* y, double* width, double* height, double* angle);
    int32_t SetValue(double x, double y, double width, double height, double angle);

protected:
    int32_t CountRows() const override { return 5; }
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override;
    std::span<const ChartPoint> GetHandles() const override { return Places; }
    int32_t MoveHandle(int32_t handle, double x, double y) override;

private:
    void Store(double x, double y, double width, double height, double angle);
    bool IsFlat() const;
    void PlaceHandles();

    // The centre.
    double X = 0.0;
    double Y = 0.0;
    double Width = 0.0; // either may be negative
    double Height = 1.0;
    double Angle = 0.0;
    std::array<ChartPoint, 9> Places; // of the handles
};
