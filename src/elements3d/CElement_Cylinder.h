// A cylinder between two points: an open tube with a circle, its rim, at each end.
#pragma once

#include "elements3d/CElement_Draggable.h"

#include <array>

class vtkCylinderSource;
class vtkMatrix4x4;
class vtkRegularPolygonSource;

class CElement_Cylinder : public CElement_Draggable
{
public:
    static constexpr int32_t Type = 15;

    CElement_Cylinder();

    int32_t Initialize(const ElementSite& site, double x1, double y1, double z1, double x2,
                       double y2, double z2, double radius);
    int32_t BuildPipeline();
    // Two end points and the radius.
    int32_t GetValue(double* x1, double* y1, double* z1, double* x2, double* y2, double* z2,
                     double* radius);
    int32_t SetValue(double x1, double y1, double z1, double x2, double y2, double z2,
                     double radius);
    // Centre, axis, radius and height. A negative height exchanges the ends; below -8 it is
    // invalid.
    int32_t GetValue2(double* cx, double* cy, double* cz, double* ax, double* ay, double* az,
                      double* radius, double* height);
    int32_t SetValue2(double cx, double cy, double cz, double ax, double ay, double az,
                      double radius, double height);

    // Tube and rims. Transparency and lighting are the tube's alone.
    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;
    int32_t SetSize(double size) override;
    int32_t SetInScene(bool inScene) override;

protected:
    // Handles 0 and 1 are the end points, 2 to 5 lie a quarter turn apart on the first rim, 6 to 9
    // next to them on the second.
    void PlaceHandles() override;
    void Draw(bool visible) override;
    // An end point takes the whole cylinder along, a handle on a rim changes the radius.
    void DragHandle(int32_t handle, const Vector3& position) override;

private:
    struct Rim
    {
        vtkSmartPointer<vtkRegularPolygonSource> Source;
        vtkSmartPointer<vtkActor> Actor;
    };

    void Store(const Vector3& first, const Vector3& second, double radius);
    void BuildRim(Rim& rim);
    // A unit vector across the axis: where the handles on the rims begin.
    Vector3 AcrossAxis() const;

    Vector3 Ends[2] = {{0.0, 0.0, 0.0}, {0.0, 0.0, 10.0}};
    double Radius = 5.0;
    double Length = 10.0;           // as given in SetValue2: maybe negative
    Vector3 Axis = {0.0, 0.0, 0.0}; // a unit vector while valid
    vtkSmartPointer<vtkCylinderSource> Source;
    vtkSmartPointer<vtkMatrix4x4> TubeMatrix; // from the source's frame into VTK's world
    std::array<Rim, 2> Rims;
};
