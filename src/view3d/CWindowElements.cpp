// The elements of a 3D view: lookup, generic calls, removal, and the box for unbounded elements.
#include "view3d/CWindow.h"

#include <vtkRenderer.h>
#include <vtkTransform.h>

#include <algorithm>

ElementSite CWindow::MakeSite(const ElementDefaults* defaults) const
{
    ElementSite site;
    site.Id = NextElementId;
    site.Renderer = Renderer;
    site.RenderWindow = RenderWindow;
    site.Transform = SceneTransform;
    Renderer->GetBackground(site.BackgroundColor);
    site.DrawSpace = DrawSpace;
    site.Defaults = defaults;
    return site;
}

int32_t CWindow::ShowElement(int32_t elementId, bool show)
{
    return OnElement<CElement_Scene>(elementId, Render::Never,
                                     [&](CElement_Scene& element) { return element.Show(show); });
}

int32_t CWindow::SetColor(int32_t elementId, uint8_t red, uint8_t green, uint8_t blue)
{
    return OnColoring<CElement_Base>(elementId, Render::AfterSuccess,
                                     [&](CElement_Base& element)
                                     { return element.SetColor(red, green, blue); });
}

int32_t CWindow::GetColor(int32_t elementId, uint8_t* red, uint8_t* green, uint8_t* blue)
{
    // Connects the scalar bar anew like its setter, for hosts that rely on it.
    return OnColoring<CElement_Base>(elementId, Render::AfterSuccess,
                                     [&](CElement_Base& element)
                                     { return element.GetColor(red, green, blue); });
}

int32_t CWindow::Remove(int32_t elementId)
{
    return WhenReady(
        [&]() -> int32_t
        {
            CElement_Scene* element = Elements.Find(elementId);
            if (!element)
            {
                return STATUS_BAD_INDEX;
            }
            if (elementId == ScalarBarElementId)
            {
                RemoveScalarBar();
            }
            if (elementId == ActiveElementId)
            {
                ClearActiveElement();
            }
            element->LeaveView();
            Elements.Remove(elementId);
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::RemoveAll()
{
    return WhenReady(
        [&]() -> int32_t
        {
            RemoveScalarBar();
            ClearActiveElement();
            for (const std::unique_ptr<CElement_Scene>& element : Elements)
            {
                element->LeaveView();
            }
            Elements.Clear();
            RenderWindow->Render();
            return STATUS_OK;
        });
}

int32_t CWindow::GetDrawSpace(double* xmin, double* xmax, double* ymin, double* ymax, double* zmin,
                              double* zmax)
{
    return WhenReady(
        [&]() -> int32_t
        {
            double* const box[] = {xmin, xmax, ymin, ymax, zmin, zmax};
            for (size_t side = 0; side < 6; ++side)
            {
                *box[side] = DrawSpace[side];
            }
            return STATUS_OK;
        });
}

int32_t CWindow::SetDrawSpace(double xmin, double xmax, double ymin, double ymax, double zmin,
                              double zmax)
{
    return WhenReady(
        [&]() -> int32_t
        {
            constexpr double leastExtent = 1e-6;
            if (xmax - xmin < leastExtent || ymax - ymin < leastExtent || zmax - zmin < leastExtent)
            {
                return STATUS_TOO_SMALL;
            }
            const double box[] = {xmin, xmax, ymin, ymax, zmin, zmax};
            std::copy(std::begin(box), std::end(box), std::begin(DrawSpace));
            for (const std::unique_ptr<CElement_Scene>& element : Elements)
            {
                // Seen with the next render.
                element->FitToDrawSpace(DrawSpace);
            }
            return STATUS_OK;
        });
}
