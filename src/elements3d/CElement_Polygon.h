// A line through any number of points, open or closed, edited point by point.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/CPolyLine.h"

#include <vector>

class CElement_Polygon : public CElement_Shape
{
public:
    static constexpr int32_t Type = 18;

    CElement_Polygon();

    // Too few points and null arrays are refused; unusable numbers are kept, unseen.
    int32_t Initialize(const ElementSite& site, int32_t count, const double* x, const double* y,
                       const double* z, bool closed);
    int32_t BuildPipeline();
    int32_t GetPointCount(int32_t* count);
    int32_t GetValue(double* x, double* y, double* z, uint8_t* closed);
    int32_t SetValue(int32_t count, const double* x, const double* y, const double* z, bool closed);
    int32_t ChangePoint(int32_t index, double x, double y, double z);
    int32_t InsertPoint(int32_t index, double x, double y, double z);
    int32_t RemovePoint(int32_t index);

private:
    using Coordinates = std::vector<double>; // x, y, z of each point in turn

    // Judges the host's arrays and copies them into `points`.
    static int32_t Read(int32_t count, const double* x, const double* y, const double* z,
                        bool closed, Coordinates& points);
    // Puts new values in place of the old ones and into the picture, and judges them: every point
    // counts, so an invalid polygon becomes valid when its last bad point is changed or removed.
    int32_t Refresh(Coordinates points, bool closed);
    static int32_t LeastCount(bool closed) { return closed ? 3 : 2; }
    int32_t Count() const { return static_cast<int32_t>(Points.size() / 3); }
    bool HasPoint(int32_t index) const { return index >= 0 && index < Count(); }

    Coordinates Points;
    bool Closed = true;
    CPolyLine Outline;
};
