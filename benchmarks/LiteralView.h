// Stock VTK with its defaults and the plainest use of its classes.
#pragma once

#include "LiteralSurface.h"
#include "SurfaceView.h"

#include <memory>

#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>

class LiteralView : public SurfaceView
{
public:
    LiteralView();

    void Add(const HeightMap& map) override;
    void Remove() override;
    void Replace(const HeightMap& map) override;
    void SetPalette(int palette) override;
    void SetRange(double lowest, double highest) override;
    void FrameAll() override;
    void Look(const std::array<double, 3>& direction) override;

    vtkRenderer* GetRenderer() const { return Renderer; }

private:
    void Render();

    vtkNew<vtkRenderWindow> Window;
    vtkNew<vtkRenderer> Renderer;
    LiteralInput Input;
    std::unique_ptr<LiteralSurface> Surface;
};
