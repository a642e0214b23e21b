// An infinite plane, shown as the quad over a box: two coordinates of each corner are the box's,
// the third follows from the plane and may leave the box.
#pragma once

#include "elements3d/CElement_Shape.h"
#include "elements3d/Directions.h"

#include <vtkPlaneSource.h>

class CElement_Plane : public CElement_Shape
{
public:
    static constexpr int32_t Type = 13;

    CElement_Plane();

    // All points p with n . p = distance.
    int32_t Initialize(const ElementSite& site, double distance, double nx, double ny, double nz);
    int32_t BuildPipeline();

    // By point and normal. The distance becomes -(n . p) here, of the opposite sign.
    int32_t GetValue(double* x, double* y, double* z, double* nx, double* ny, double* nz);
    int32_t SetValue(double x, double y, double z, double nx, double ny, double nz);
    // By distance and normal, as in Initialize.
    int32_t GetValue2(double* distance, double* nx, double* ny, double* nz);
    int32_t SetValue2(double distance, double nx, double ny, double nz);

    int32_t GetDrawSize(double* xmin, double* xmax, double* ymin, double* ymax, double* zmin,
                        double* zmax);
    int32_t SetDrawSize(double xmin, double xmax, double ymin, double ymax, double zmin,
                        double zmax);
    void FitToDrawSpace(const double drawSpace[6]) override;

private:
    void Store(double distance, double nx, double ny, double nz);
    // Judges the normal, and `rest` as found by the caller; keeps the normal.
    void StoreNormal(bool rest, double nx, double ny, double nz);
    void Draw();
    // `point` with the coordinate along `axis` moved so that it lies in the plane.
    Vector3 Solve(size_t axis, Vector3 point) const;
    // The corner between the two others, then its neighbours; host coordinates.
    std::array<Vector3, 3> GetCorners() const;

    Vector3 Point = {0.0, 0.0, 0.0};
    Vector3 Normal = {0.0, 0.0, 1.0}; // a unit vector while valid, else as given
    double Distance = 10.0;
    std::array<double, 6> DrawSize = {-10.0, 10.0, -10.0, 10.0, -10.0, 10.0};
    vtkSmartPointer<vtkPlaneSource> Source;
};
