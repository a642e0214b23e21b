// A rectangle in a plane of constant Y, shown as an outline: width along x, height along z.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/CPolyLine.h"

class CElement_Rectangle : public CElement_Shape
{
public:
    static constexpr int32_t Type = 17;

    CElement_Rectangle();

    // The point is the centre or, if not `centered`, the corner of smallest x and z before the
    // rotation about the centre. The angle is folded into -180 .. 180 here; SetValue keeps it as
    // given.
    int32_t Initialize(const ElementSite& site, bool centered, double x, double y, double z,
                       double width, double height, double angle);
    int32_t BuildPipeline();
    // The point of these two is always the centre.
    int32_t GetValue(double* x, double* y, double* z, double* width, double* height, double* angle);
    int32_t SetValue(double x, double y, double z, double width, double height, double angle);

private:
    void Store(double x, double y, double z, double width, double height, double angle);
    void Draw();

    // The centre.
    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    double Width = 0.0; // either may be negative, and one of them 0
    double Height = 1.0;
    double Angle = 5.0; // degrees, from x towards z
    CPolyLine Outline;
};
