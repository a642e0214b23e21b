// A polygon in a chart, closed or open. Handles: its points, and last their mean, which moves all.
#pragma once

#include "elements2d/CElement_Draggable2D.h"

#include <vector>

class CElement_Polygon2D : public CElement_Draggable2D
{
public:
    static constexpr int32_t Type = 18;

    CElement_Polygon2D();

    int32_t Initialize(const ChartSite& site, int32_t count, const double* x, const double* y,
                       bool closed);
    int32_t GetPointCount(int32_t* count);
    int32_t GetValue(double* x, double* y, uint8_t* closed);
    // Nothing else makes an invalid polygon valid again.
    int32_t SetValue(int32_t count, const double* x, const double* y, bool closed);
    int32_t ChangePoint(int32_t index, double x, double y);
    // Before the point that has the index now, or behind the last one.
    int32_t InsertPoint(int32_t index, double x, double y);
    int32_t RemovePoint(int32_t index);

protected:
    int32_t CountRows() const override { return Count() + (Closed ? 1 : 0); }
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override;
    std::span<const ChartPoint> GetHandles() const override { return Places; }
    int32_t MoveHandle(int32_t handle, double x, double y) override;

private:
    static int32_t LeastCount(bool closed) { return closed ? 3 : 2; }
    static int32_t Read(int32_t count, const double* x, const double* y, bool closed,
                        std::vector<ChartPoint>& places);
    void Store(std::vector<ChartPoint> places, bool closed);
    int32_t Count() const { return static_cast<int32_t>(Places.size()) - 1; }
    std::span<const ChartPoint> GetPoints() const;
    // Room for so many points, in the tables.
    void Reserve(int32_t count, bool closed);
    // What follows from the points, unless the polygon is invalid.
    void Settle();

    std::vector<ChartPoint> Places; // the points, and their mean
    bool Closed = true;
};
