// A position, shown as a small sphere.
#pragma once

#include "elements3d/CElement_Shape.h"

#include <vtkSphereSource.h>

class CElement_Point : public CElement_Shape
{
public:
    static constexpr int32_t Type = 10;

    CElement_Point();

    int32_t Initialize(const ElementSite& site, double x, double y, double z);
    int32_t BuildPipeline();
    int32_t GetValue(double* x, double* y, double* z, double* size);
    // A size below the least one is ignored without complaint.
    int32_t SetValue(double x, double y, double z, double size);

    int32_t GetBounds(bool widen, double* xmin, double* xmax, double* ymin, double* ymax,
                      double* zmin, double* zmax) override;
    // The size of a point is the radius of its sphere, in scene units.
    int32_t SetSize(double size) override;

private:
    void PlaceSphere();

    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    vtkSmartPointer<vtkSphereSource> Source;
};
