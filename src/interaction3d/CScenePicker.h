// What lies under a pixel of a 3D view: the prop, and the position on it.
#pragma once

#include "elements3d/Directions.h"

#include <vtkOpenGLFramebufferObject.h>
#include <vtkProp.h>
#include <vtkSmartPointer.h>
#include <vtkWeakPointer.h>

class vtkOpenGLRenderWindow;
class vtkRenderer;

// Outside there is nothing to be picked. Pixels count from the lower left corner.
bool IsInView(vtkRenderer* renderer, int x, int y);
// `depth` 0 is the near end of the line of sight, 1 the far end.
Vector3 ToWorld(vtkRenderer* renderer, int x, int y, double depth);

// Finds what vtkPropPicker finds, and the same position, in a fraction of its time: VTK draws the
// whole scene twice, into the picture of the view. Here nothing but the props whose bounds reach
// the pixel is drawn, once, into a frame buffer of a single pixel; a surface draws only the tile
// there. The picture of the view stays as it is.
class CScenePicker
{
public:
    // The picked position is this when nothing was hit.
    static constexpr Vector3 Nothing = {0.0, 0.0, 0.0};

    // Picks, unless it has picked already since Forget.
    const Vector3& Pick(vtkRenderer* renderer, int x, int y);
    // The mouse has moved, or the scene has changed.
    void Forget() { Fresh = false; }

    // Of the last pick. Null when it hit nothing, and once the prop is gone.
    vtkProp* GetProp() const { return Prop; }
    void SetProp(vtkProp* prop) { Prop = prop; }

private:
    void BindPixel(vtkOpenGLRenderWindow* window);

    vtkSmartPointer<vtkOpenGLFramebufferObject> Pixel;
    bool Fresh = false;
    vtkWeakPointer<vtkProp> Prop;
    Vector3 Position = Nothing;
};
