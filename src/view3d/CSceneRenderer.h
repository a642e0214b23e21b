// The renderer of a 3D view.
#pragma once

#include <vtkOpenGLRenderer.h>

// Fits the clipping range once for each picture, however often it was asked to: a pass over all
// props at every one of ten thousand adds would cost far more than drawing them.
class CSceneRenderer : public vtkOpenGLRenderer
{
public:
    static CSceneRenderer* New();
    vtkTypeMacro(CSceneRenderer, vtkOpenGLRenderer);

    using vtkOpenGLRenderer::ResetCameraClippingRange;
    void ResetCameraClippingRange() override { ClippingRangeStale = true; }
    void Render() override;

protected:
    CSceneRenderer() = default;
    ~CSceneRenderer() override = default;

private:
    bool ClippingRangeStale = false;
};
