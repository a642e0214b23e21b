// An ellipse in a plane of constant Z, shown as an outline.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/CPolyLine.h"

class CElement_Ellipse : public CElement_Shape
{
public:
    static constexpr int32_t Type = 14;

    CElement_Ellipse();

    // The angle is folded into a full turn here; SetValue keeps it as given.
    int32_t Initialize(const ElementSite& site, double x, double y, double z, double a, double b,
                       double angle);
    int32_t BuildPipeline();
    int32_t GetValue(double* x, double* y, double* z, double* a, double* b, double* angle);
    int32_t SetValue(double x, double y, double z, double a, double b, double angle);

private:
    void Store(double x, double y, double z, double a, double b, double angle);
    void Draw();

    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    double SemiAxisA = 20.0; // along x before the rotation
    double SemiAxisB = 5.0;  // along y before the rotation
    double Angle = 0.0;      // degrees, from x towards y
    CPolyLine Outline;
};
