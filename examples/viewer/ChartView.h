#pragma once

#include "View.h"

#include <cstdint>

// One chart of the library in a host's window. Throws LibraryError.
class ChartView : public View
{
public:
    // The layout is one of TARVEX_CHART_...; an equal aspect draws a unit equally long on both
    // axes.
    ChartView(void* parentWindow, uint32_t layout, bool equalAspect);
    ~ChartView() override;

    void Place(const Box& box) override;
    Box Where() const override { return Placed; }
    void Frame() override;
    void ActivateNextElement() override;
    void ChooseDrawMode(uint32_t mode) override;
    RgbPicture Picture() const override;

    int32_t Id() const { return Chart; }
    // Some changes do not show before the next render.
    void Redraw();

private:
    int32_t Chart = -1;
    Box Placed;
    uint32_t Layout;
    bool EqualAspect;
};
