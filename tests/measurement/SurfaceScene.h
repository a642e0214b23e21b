// A view without host and library around it, and samples to show in it.
#pragma once

#include "LiteralSurface.h"
#include "Tarvex.h"
#include "measurement/CElement_SurfaceNonUniform.h"
#include "measurement/CElement_SurfaceUniform.h"
#include "support/Picture.h"

#include "frame/ElementDefaults.h"

#include <tuple>
#include <vector>

#include <gtest/gtest.h>
#include <vtkActorCollection.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkTransform.h>

constexpr int16_t Missing = InvalidHeight;

// A height map that a host could give.
struct Samples
{
    SurfaceGrid Grid;
    std::vector<int16_t> Heights;
    std::vector<uint8_t> Intensities;
    // For surfaces with free positions only.
    std::vector<int16_t> X = {};
    std::vector<int16_t> Y = {};

    int16_t& At(int32_t column, int32_t row)
    {
        return Heights[static_cast<size_t>(row * Grid.Columns + column)];
    }
    // Sets X and Y to a grid of the given pitch in raw units.
    void Place(int pitchX, int pitchY);
};

// All samples at height 0, intensity 0.
Samples MakeFlat(int32_t columns, int32_t rows);
// Hills of about +-4000 counts on 100 units of width, 0.001 units a count.
Samples MakeHills(int32_t columns, int32_t rows);
// Takes holes of all sizes, single samples among them, out of the samples.
void PunchHoles(Samples& samples);

// What a host gives to both functions of a surface, in their order.
template <class Surface>
auto Arguments(const Samples& samples)
{
    const auto& [columns, rows, scale, offset] = samples.Grid;
    const auto both =
        std::make_tuple(samples.Heights.data(), samples.Intensities.data(), columns, rows, scale[0],
                        scale[1], scale[2], offset[0], offset[1], offset[2]);
    if constexpr (std::is_same_v<Surface, CElement_SurfaceUniform>)
    {
        return both;
    }
    else
    {
        return std::tuple_cat(std::make_tuple(samples.X.data(), samples.Y.data()), both);
    }
}

template <class Surface>
int32_t SetValue(Surface& surface, const Samples& samples)
{
    return std::apply([&](auto... values) { return surface.SetValue(values...); },
                      Arguments<Surface>(samples));
}

using Box = std::array<double, 6>;

// Of a surface or a profile, as its view asks for them.
template <class Measured>
Box Bounds(Measured& element, bool widen)
{
    Box b{};
    EXPECT_EQ(element.GetBounds(widen, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]), STATUS_OK);
    return b;
}

class SurfaceScene
{
public:
    SurfaceScene();
    ~SurfaceScene() { Renderer->RemoveAllViewProps(); }

    ElementSite Site();
    // Adds a surface as a view does. The status of the first step that fails.
    template <class Surface>
    int32_t Add(Surface& surface, const Samples& samples, bool fullCellsOnly = true)
    {
        const int32_t status = std::apply(
            [&](auto... values) { return surface.Initialize(Site(), values..., fullCellsOnly); },
            Arguments<Surface>(samples));
        const int32_t built = status == STATUS_OK ? surface.BuildPipeline() : status;
        return built == STATUS_OK ? surface.Show(true) : built;
    }
    // The stock picture of the same samples.
    LiteralInput Literal(const Samples& samples) const;

    // The only actor; null if there is none.
    vtkActor* GetActor() const { return Renderer->GetActors()->GetLastActor(); }
    // The scene with the actor alone, seen by the present camera.
    Picture Show(vtkActor* actor);
    Picture Render();

    vtkNew<vtkRenderWindow> Window;
    vtkNew<vtkRenderer> Renderer;
    vtkNew<vtkTransform> Mirror;
    ElementDefaults Defaults;
};
