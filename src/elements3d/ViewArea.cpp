#include "elements3d/ViewArea.h"

#include <vtkCamera.h>
#include <vtkHardwareSelector.h>
#include <vtkMatrix4x4.h>
#include <vtkRenderer.h>

#include <algorithm>

ViewArea::ViewArea(vtkRenderer* renderer, double margin)
{
    int width = 0;
    int height = 0;
    int left = 0;
    int bottom = 0;
    renderer->GetTiledSizeAndOrigin(&width, &height, &left, &bottom);
    const double unitX = 2.0 / std::max(width, 1);
    const double unitY = 2.0 / std::max(height, 1);
    if (vtkHardwareSelector* selector = renderer->GetSelector())
    {
        unsigned int pixels[4]; // xmin, ymin, xmax, ymax within the window, all inclusive
        selector->GetArea(pixels);
        Left = (static_cast<double>(pixels[0]) - left) * unitX - 1.0;
        Bottom = (static_cast<double>(pixels[1]) - bottom) * unitY - 1.0;
        Right = (static_cast<double>(pixels[2]) + 1.0 - left) * unitX - 1.0;
        Top = (static_cast<double>(pixels[3]) + 1.0 - bottom) * unitY - 1.0;
    }
    Left -= margin * unitX;
    Right += margin * unitX;
    Bottom -= margin * unitY;
    Top += margin * unitY;
}

// All corners lie on the outer side of one edge of the area. That is tested before the division by
// w, as OpenGL clips, so a box around the camera needs no care.
bool ViewArea::IsOutside(const double* box, const double (&toDevice)[16]) const
{
    int left = 0;
    int right = 0;
    int below = 0;
    int above = 0;
    for (size_t corner = 0; corner < 8; ++corner)
    {
        const double point[4] = {box[corner & 1], box[2 + (corner >> 1 & 1)],
                                 box[4 + (corner >> 2)], 1.0};
        double device[4];
        vtkMatrix4x4::MultiplyPoint(toDevice, point, device);
        left += device[0] < Left * device[3];
        right += device[0] > Right * device[3];
        below += device[1] < Bottom * device[3];
        above += device[1] > Top * device[3];
    }
    return left == 8 || right == 8 || below == 8 || above == 8;
}

void GetWorldToDevice(vtkRenderer* renderer, double (&matrix)[16])
{
    vtkMatrix4x4* found = renderer->GetActiveCamera()->GetCompositeProjectionTransformMatrix(
        renderer->GetTiledAspectRatio(), -1, 1);
    std::copy_n(found->GetData(), 16, matrix);
}
