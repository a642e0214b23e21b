// Elements with one colour and one line width, both held by the actor's property: the geometric
// elements and the profiles in 3D.
#pragma once

#include "elements3d/CElement_Scene.h"

class vtkAlgorithmOutput;

class CElement_Shape : public CElement_Scene
{
public:
    using CElement_Scene::CElement_Scene;

    int32_t SetTransparency(double transparency) override;
    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;
    int32_t SetSize(double size) override;
    int32_t GetSize(double* size) override;

protected:
    static constexpr double leastSize = 0.001;

    // TakeSite and the size of the defaults record.
    int32_t TakeSiteAndSize(const ElementSite& site);
    // Mapper and actor behind the geometry, with the look of the fields; hidden unless valid.
    void BuildActor(vtkAlgorithmOutput* geometry);
    // Shows the actor if the element is valid and `drawable`, and then counts it in the bounds of
    // the scene. Returns what it did.
    bool ApplyVisibility(bool drawable);

    double Size = 0.5; // line width in pixels
};
