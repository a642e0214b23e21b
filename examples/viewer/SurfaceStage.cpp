#include "SurfaceStage.h"

#include <X11/keysym.h>

#include <algorithm>

namespace
{
constexpr double SurfaceShare = 0.55; // of the width of the window beside charts
constexpr int32_t PagesOfASurface = 20;
} // namespace

SurfaceStage::SurfaceStage(void* window, const Box& box, const Furniture& furniture,
                           const std::optional<ChartLook>& charts)
    : Surface(window, box, furniture)
{
    if (charts)
    {
        Charts.emplace(window, charts->Layout);
        FirstRow = charts->Row;
    }
    Arrange(box.Width, box.Height);
}

void SurfaceStage::Show(const Scene& scene)
{
    Shown = &scene;
    Surface.Show(scene.Map, scene.Statistics, scene.Look);
    if (!Charts)
    {
        return;
    }
    MarkedRow = FirstRow.value_or(scene.Map.Rows / 2);
    if (Surface.Surface())
    {
        Surface.MarkRow(scene.Map, MarkedRow);
    }
    Charts->Show(scene.Map, MarkedRow, Colors());
}

void SurfaceStage::Refresh()
{
    Surface.Replace(Shown->Map, Charts ? std::optional(MarkedRow) : std::nullopt);
    if (Charts)
    {
        Charts->Replace(Shown->Map, MarkedRow, Colors());
    }
}

void SurfaceStage::Arrange(int32_t width, int32_t height)
{
    const int32_t left = Charts ? static_cast<int32_t>(width * SurfaceShare) : width;
    Surface.Place({0, 0, left, height});
    if (Charts)
    {
        Charts->Place({left, 0, width - left, height});
    }
}

std::vector<View*> SurfaceStage::Views()
{
    std::vector<View*> views = {&Surface};
    if (Charts)
    {
        const std::vector<View*> charts = Charts->Views();
        views.insert(views.end(), charts.begin(), charts.end());
    }
    return views;
}

std::optional<SurfaceColors> SurfaceStage::Colors()
{
    const SurfaceElement* surface = Surface.Surface();
    return surface ? std::optional(surface->Colors()) : std::nullopt;
}

void SurfaceStage::MoveMarkedRow(int32_t rows)
{
    if (!Charts || !Surface.Surface())
    {
        return;
    }
    MarkedRow = std::clamp(MarkedRow + rows, 0, Shown->Map.Rows - 1);
    Surface.MarkRow(Shown->Map, MarkedRow);
    Charts->MarkRow(Shown->Map, MarkedRow);
}

void SurfaceStage::ReactToKey(unsigned long key)
{
    const int32_t page = std::max(1, Shown->Map.Rows / PagesOfASurface);
    switch (key)
    {
    case XK_p:
        Surface.ToggleParallelProjection();
        break;
    case XK_f:
        Surface.ToggleFurniture(&Furniture::Frame);
        break;
    case XK_b:
        Surface.ToggleFurniture(&Furniture::Bar);
        break;
    case XK_a:
        Surface.ToggleFurniture(&Furniture::Axes);
        break;
    case XK_o:
        Surface.ToggleFurniture(&Furniture::Marker);
        break;
    case XK_Up: // row 0 is the uppermost
        MoveMarkedRow(-1);
        break;
    case XK_Down:
        MoveMarkedRow(+1);
        break;
    case XK_Page_Up:
        MoveMarkedRow(-page);
        break;
    case XK_Page_Down:
        MoveMarkedRow(+page);
        break;
    default:
        if (key >= XK_F1 && key <= XK_F6)
        {
            Surface.ShowFrom(static_cast<int32_t>(key - XK_F1));
        }
        else if (SurfaceElement* surface = Surface.Surface())
        {
            ReactToSurfaceKey(*surface, key);
        }
        break;
    }
}

void SurfaceStage::ReactToSurfaceKey(SurfaceElement& surface, unsigned long key)
{
    switch (key)
    {
    case XK_c:
        surface.UseNextPalette();
        break;
    case XK_plus:
    case XK_equal: // the key of + on keyboards where + wants the shift key
    case XK_KP_Add:
        surface.ClipMore();
        break;
    case XK_minus:
    case XK_KP_Subtract:
        surface.ClipLess();
        break;
    case XK_i:
        surface.ToggleIntensity();
        break;
    case XK_m:
        surface.ToggleIsolatedSamples();
        break;
    default:
        return;
    }
    if (Charts)
    {
        Charts->Replace(Shown->Map, MarkedRow, Colors());
    }
}
