// A line in a chart: a segment, or a line without ends that is drawn from edge to edge of a box.
#pragma once

#include "elements2d/CElement_Plotted2D.h"

class CElement_Line2D : public CElement_Plotted2D
{
public:
    static constexpr int32_t Type = 11;

    CElement_Line2D();

    // A point and a direction of any length.
    int32_t Initialize(const ChartSite& site, double x, double y, double dirX, double dirY,
                       const char* name);
    // Two points, which are the ends of a segment.
    int32_t Initialize(const ChartSite& site, double x1, double y1, double x2, double y2,
                       bool isSegment, const char* name);
    // The points at Start and at End, not those where it is cut off; also of an invalid line.
    int32_t GetValue(double* x1, double* y1, double* x2, double* y2);
    int32_t SetValue(double x1, double y1, double x2, double y2, bool isSegment);

    void FitToDrawSpace(const double* drawSpace) override;

    // Where the line enters and leaves DrawLimit, the lower X first; false when it misses the box.
    bool ClipToDrawLimit(ChartPoint& first, ChartPoint& second) const;

protected:
    PlotForm GetForm() const override;
    int32_t CountRows() const override { return 2; }
    void Fill(const CPlotTable::Columns& columns) override;
    std::string MakeName() const override { return Name; }

private:
    // Judges a direction, which becomes a unit vector if it is `least` long or longer (squared),
    // and returns its length.
    double StoreDirection(double dx, double dy, double least);
    void TakeSite(const ChartSite& site, const char* name);
    bool TakeDrawLimit(const double* drawSpace);
    ChartPoint PositionAt(double parameter) const;
    void FitBounds();

    double X = 0.0;
    double Y = 0.0;
    double DirX = 1.0; // a unit vector while valid
    double DirY = 0.0;
    double Start = -10.0; // parameters along the direction
    double End = 10.0;
    bool IsSegment = false;
    double DrawLimit[4] = {-50.0, 50.0, -50.0, 50.0}; // xmin, xmax, ymin, ymax
    std::string Name;
};
