// A view without host and library around it, and samples to show in it.
#pragma once

#include "LiteralSurface.h"
#include "measurement/CElement_SurfaceUniform.h"
#include "support/Picture.h"

#include "frame/ElementDefaults.h"

#include <memory>
#include <vector>

#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkTransform.h>

constexpr int16_t Missing = -32768;

// A height map that a host could give.
struct Samples
{
    int32_t Columns = 0;
    int32_t Rows = 0;
    std::vector<int16_t> Heights;
    std::vector<uint8_t> Intensities;
    double Scale[3] = {1.0, 1.0, 1.0};
    double Offset[3] = {0.0, 0.0, 0.0};

    int16_t& At(int32_t column, int32_t row)
    {
        return Heights[static_cast<size_t>(row) * static_cast<size_t>(Columns) +
                       static_cast<size_t>(column)];
    }
};

// All samples at height 0, intensity 0.
Samples MakeFlat(int32_t columns, int32_t rows);
// Hills of about +-4000 counts on 100 units of width, 0.001 units a count.
Samples MakeHills(int32_t columns, int32_t rows);
// Takes holes of all sizes, single samples among them, out of the samples.
void PunchHoles(Samples& samples);

class SurfaceScene
{
public:
    SurfaceScene();
    ~SurfaceScene();

    ElementSite Site();
    // Adds a surface as a view does. The status of the first step that fails.
    int32_t Add(CElement_SurfaceUniform& surface, const Samples& samples, bool fullCellsOnly = true,
                bool withIntensities = false);
    // The stock picture of the same samples.
    LiteralInput Literal(const Samples& samples) const;

    // The only actor; null if there is none.
    vtkActor* GetActor() const;
    // The scene with the actor alone, seen by the present camera.
    Picture Show(vtkActor* actor);
    Picture Render();

    vtkNew<vtkRenderWindow> Window;
    vtkNew<vtkRenderer> Renderer;
    vtkNew<vtkTransform> Mirror;
    ElementDefaults Defaults;
};

int32_t SetValue(CElement_SurfaceUniform& surface, const Samples& samples,
                 bool withIntensities = false);
