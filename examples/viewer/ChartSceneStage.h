#pragma once

#include "ChartView.h"
#include "Stage.h"

// One chart with the image of a surface and every kind of chart element on it. Throws LibraryError.
class ChartSceneStage : public Stage
{
public:
    ChartSceneStage(void* window, const Box& box, uint32_t layout);

    void Show(const Scene& scene) override;
    void Refresh() override { Show(*Shown); }
    void Arrange(int32_t width, int32_t height) override;
    void ReactToKey(unsigned long key) override;
    std::vector<View*> Views() override { return {&Chart}; }

private:
    ChartView Chart;
    const Scene* Shown = nullptr; // borrowed from the caller of Show
    uint32_t Palette = 0;
};
