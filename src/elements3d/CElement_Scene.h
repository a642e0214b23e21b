// What all elements of a 3D view share: the place where they were added, the main actor, showing
// and hiding, lighting, and the two ways of mirroring Y.
#pragma once

#include "elements3d/CElement_Base.h"

#include <array>

#include <vtkActor.h>
#include <vtkSmartPointer.h>

struct ElementDefaults;
class vtkPolyDataMapper;
class vtkRenderer;
class vtkRenderWindow;
class vtkScalarBarActor;
class vtkTransform;

// Everything that a view gives to a new element beside its geometry. All pointers are borrowed; the
// view outlives its elements.
struct ElementSite
{
    int32_t Id = -1;
    vtkRenderer* Renderer = nullptr;
    vtkRenderWindow* RenderWindow = nullptr;
    vtkTransform* Transform = nullptr; // host coordinates to VTK's world: Y mirrored
    double BackgroundColor[3] = {0.0, 0.0, 0.0};
    const double* DrawSpace = nullptr;         // xmin, xmax, ymin, ymax, zmin, zmax
    const ElementDefaults* Defaults = nullptr; // null: the constructor's look stays

    // Copies the draw space, unless it is too thin for a new element: then `box` stays.
    void TakeDrawSpace(std::array<double, 6>& box) const;
};

class CElement_Scene : public CElement_Base
{
public:
    using CElement_Base::CElement_Base;

    // The part of showing that does not draw: in or out of the renderer, clipping range reset.
    virtual int32_t SetInScene(bool inScene);
    void LeaveView() { SetInScene(false); }
    // SetInScene and a render.
    int32_t Show(bool show);
    // The view's box (xmin, xmax, ymin, ymax, zmin, zmax) has changed; of use to unbounded
    // elements.
    virtual void FitToDrawSpace(const double drawSpace[6]);

    // Gives the bar the element's colour table; STATUS_WRONG_TYPE for elements without one.
    virtual int32_t ConnectScalarBar(vtkScalarBarActor* bar);

    int32_t SetBackgroundColor(double red, double green, double blue) override;
    int32_t GetTransparency(double* transparency) override;
    int32_t GetColor(uint8_t* red, uint8_t* green, uint8_t* blue) override;
    int32_t SetLighting(double ambient, double diffuse, double specular,
                        double specularPower) override;
    int32_t GetLighting(double* ambient, double* diffuse, double* specular,
                        double* specularPower) override;

protected:
    // Stores site and the look that all classes take from the defaults record.
    // STATUS_NULL_ARGUMENT without renderer or render window.
    int32_t TakeSite(const ElementSite& site);
    void ApplyLighting(vtkActor* actor) const;
    // Mirror by the actor: geometry stays in host coordinates, the user matrix turns Y.
    void MirrorByUserMatrix(vtkActor* actor) const;
    // Mirror by hand: classes without user matrix write this Y into their VTK sources.
    static double MirrorY(double y) { return -y; }

    vtkSmartPointer<vtkPolyDataMapper> Mapper;
    vtkSmartPointer<vtkActor> Actor;
    uint8_t Color[3] = {255, 255, 255};
    vtkTransform* Transform = nullptr;
    vtkRenderer* Renderer = nullptr;
    vtkRenderWindow* RenderWindow = nullptr;
};
