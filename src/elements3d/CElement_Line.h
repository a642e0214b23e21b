// An infinite line, shown as the segment that a box cuts out of it.
#pragma once

#include "elements3d/CElement_Shape.h"

#include <vtkLineSource.h>

#include <array>

class CElement_Line : public CElement_Shape
{
public:
    static constexpr int32_t Type = 11;
    using Position = std::array<double, 3>;

    CElement_Line();

    // A point and a direction of any length.
    int32_t Initialize(const ElementSite& site, double x, double y, double z, double dx, double dy,
                       double dz);
    int32_t BuildPipeline();
    // The end points as drawn, in world coordinates: Y has the opposite sign of what was set.
    int32_t GetValue(double* x1, double* y1, double* z1, double* x2, double* y2, double* z2);
    // Two points of the line.
    int32_t SetValue(double x1, double y1, double z1, double x2, double y2, double z2);
    // The segment as parameters along the unit direction.
    int32_t GetLength(double* start, double* end);
    int32_t SetLength(double start, double end);
    // A box of this line's own, and the segment that it cuts out.
    int32_t SetDrawLimit(double xmin, double xmax, double ymin, double ymax, double zmin,
                         double zmax);

    void FitToDrawSpace(const double drawSpace[6]) override;
    int32_t GetBounds(bool widen, double* xmin, double* xmax, double* ymin, double* ymax,
                      double* zmin, double* zmax) override;

    // The two points where the line enters and leaves DrawLimit; false when it misses the box or
    // only touches it.
    bool ClipToDrawLimit(Position& first, Position& second) const;

private:
    Position PositionAt(double parameter) const;
    void DrawBetween(const Position& first, const Position& second);
    // Clipped where the line crosses the box, else between the two given.
    void DrawClipped(const Position& first, const Position& second);

    Position Point = {0.0, 0.0, 0.0};
    Position Direction = {1.0, 0.0, 0.0}; // a unit vector while valid
    double Start = -10.0;
    double End = 10.0;
    std::array<double, 6> DrawLimit = {-50.0, 50.0, -50.0, 50.0, -50.0, 50.0};
    vtkSmartPointer<vtkLineSource> Source;
};
