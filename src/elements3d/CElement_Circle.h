// A circle anywhere in space, shown as an outline.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/Directions.h"

#include <vtkRegularPolygonSource.h>

class CElement_Circle : public CElement_Shape
{
public:
    static constexpr int32_t Type = 12;

    CElement_Circle();

    int32_t Initialize(const ElementSite& site, double x, double y, double z, double radius,
                       double nx, double ny, double nz);
    int32_t BuildPipeline();
    int32_t GetValue(double* x, double* y, double* z, double* radius, double* nx, double* ny,
                     double* nz);
    int32_t SetValue(double x, double y, double z, double radius, double nx, double ny, double nz);

    // Alone among the shapes, an invalid circle does not tell its colour.
    int32_t GetColor(uint8_t* red, uint8_t* green, uint8_t* blue) override;

private:
    void Store(double x, double y, double z, double radius, double nx, double ny, double nz);
    void Draw();

    double X = 0.0;
    double Y = 0.0;
    double Z = 0.0;
    double Radius = 5.0;
    Vector3 Normal = {0.0, 0.0, 1.0}; // a unit vector while valid, else as given
    vtkSmartPointer<vtkRegularPolygonSource> Source;
};
