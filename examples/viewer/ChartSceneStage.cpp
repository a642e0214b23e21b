#include "ChartSceneStage.h"

#include "ChartScene.h"
#include "Library.h"
#include "MapImage.h"

#include <Tarvex.h>

#include <X11/keysym.h>

ChartSceneStage::ChartSceneStage(void* window, const Box& box, uint32_t layout)
    : Chart(window, layout, true)
{
    Chart.Place(box);
}

void ChartSceneStage::Show(const Scene& scene)
{
    Shown = &scene;
    Palette = static_cast<uint32_t>(scene.Look.Surface.Palette.value_or(TARVEX_PALETTE_GREY));
    {
        const ChartUpdate update(Chart.Id());
        Check(Tarvex_Element2D_RemoveAll(Chart.Id()), "Tarvex_Element2D_RemoveAll");
        ShowHeightImage(Chart.Id(), scene.Map, Palette);
        AddChartScene(Chart.Id(), scene.Map);
    }
    Chart.Frame();
}

void ChartSceneStage::Arrange(int32_t width, int32_t height)
{
    Chart.Place({0, 0, width, height});
}

void ChartSceneStage::ReactToKey(unsigned long key)
{
    if (key == XK_c)
    {
        Palette = (Palette + 1) % (TARVEX_PALETTE_SINGLE_COLOR + 1);
        ShowHeightImage(Chart.Id(), Shown->Map, Palette);
        Chart.Redraw();
    }
}
