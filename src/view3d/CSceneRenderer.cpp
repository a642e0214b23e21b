#include "view3d/CSceneRenderer.h"

#include <vtkObjectFactory.h>

#include <utility>

vtkStandardNewMacro(CSceneRenderer);

void CSceneRenderer::Render()
{
    if (std::exchange(ClippingRangeStale, false))
    {
        Superclass::ResetCameraClippingRange();
    }
    Superclass::Render();
}
