// A measured line in the scene: samples in a plane of constant Y, joined where neighbours are
// valid. Fixed at creation. Unlike the shapes, a profile answers bad arguments with a status of its
// add.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "measurement/HeightRange.h"

#include <vtkPolyData.h>

#include <memory>

class vtkPoints;

class CElementProfile : public CElement_Shape
{
public:
    using CElement_Shape::CElement_Shape;

    int32_t BuildPipeline();
    int32_t GetBounds(bool widen, double* xmin, double* xmax, double* ymin, double* ymax,
                      double* zmin, double* zmax) override;
    vtkPolyData* GetPolyData() const { return PolyData; }

protected:
    // A raw coordinate times scale plus offset is a position in scene units.
    struct Scaling
    {
        double Scale = 1.0;
        double Offset = 0.0;

        double Place(double raw) const { return raw * Scale + Offset; }
    };

    int32_t Store(const ElementSite& site, const int16_t* z, int32_t count, const Scaling& xScaling,
                  const Scaling& zScaling, double y);

    // The two differences between the classes. X of every sample, into each third float.
    virtual void WriteX(float* x) const = 0;
    virtual void GetXRange(double* xmin, double* xmax) const = 0;

    std::unique_ptr<int16_t[]> ZValues; // InvalidHeight where a sample is missing
    int32_t PointCount = 0;
    Scaling X;

private:
    vtkSmartPointer<vtkPoints> MakePoints() const;

    Scaling Z;
    double YPosition = 0.0;
    HeightRange Raw; // of the valid samples
    vtkSmartPointer<vtkPolyData> PolyData;
};
