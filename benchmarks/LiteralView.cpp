#include "LiteralView.h"

#include <algorithm>

#include <vtkCamera.h>

LiteralView::LiteralView()
{
    Window->SetSize(Width, Height);
    Window->AddRenderer(Renderer);
    Window->Render();
}

void LiteralView::Render()
{
    Renderer->ResetCameraClippingRange();
    Window->Render();
}

void LiteralView::Add(const HeightMap& map)
{
    int16_t lowest = 32767;
    int16_t highest = -32768;
    for (const int16_t height : map.Heights)
    {
        if (height != -32768)
        {
            lowest = std::min(lowest, height);
            highest = std::max(highest, height);
        }
    }
    Input.Heights = map.Heights.data();
    Input.Columns = map.Columns;
    Input.Rows = map.Rows;
    Input.Scale[0] = Input.Scale[1] = map.Pitch;
    Input.Scale[2] = map.ZScale;
    Input.Range[0] = lowest * map.ZScale;
    Input.Range[1] = highest * map.ZScale;
    Surface = std::make_unique<LiteralSurface>(Input);
    Renderer->AddActor(Surface->Actor);
    Render();
}

void LiteralView::Remove()
{
    Renderer->RemoveActor(Surface->Actor);
    Surface.reset();
    Render();
}

void LiteralView::Replace(const HeightMap& map)
{
    Renderer->RemoveActor(Surface->Actor);
    Add(map);
}

void LiteralView::SetPalette(int palette)
{
    Input.Palette = palette;
    Surface->SetPalette(Input);
    Window->Render();
}

void LiteralView::SetRange(double lowest, double highest)
{
    Surface->Mapper->SetScalarRange(lowest, highest);
    Window->Render();
}

void LiteralView::FrameAll()
{
    vtkCamera* camera = Renderer->GetActiveCamera();
    camera->SetFocalPoint(0.0, 0.0, 0.0);
    camera->SetPosition(0.0, 0.0, 100.0);
    camera->SetViewUp(0.0, 1.0, 0.0);
    Renderer->ResetCamera();
    Window->Render();
}

void LiteralView::Look(const std::array<double, 3>& direction)
{
    vtkCamera* camera = Renderer->GetActiveCamera();
    const double distance = camera->GetDistance();
    const double* focus = camera->GetFocalPoint();
    camera->SetPosition(focus[0] - distance * direction[0], focus[1] - distance * direction[1],
                        focus[2] - distance * direction[2]);
    camera->SetViewUp(0.0, 1.0, 0.0);
    Render();
}
