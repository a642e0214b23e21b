#pragma once

#include "LineCharts.h"
#include "Stage.h"
#include "SurfaceView.h"

#include <cstdint>
#include <optional>
#include <vector>

// The charts beside the 3D view.
struct ChartLook
{
    uint32_t Layout = 0;        // one of TARVEX_CHART_...
    std::optional<int32_t> Row; // marked first; none: the middle one
};

// A 3D view of a measurement: alone, or with charts of a marked row on the right. Throws
// LibraryError.
class SurfaceStage : public Stage
{
public:
    SurfaceStage(void* window, const Box& box, const Furniture& furniture,
                 const std::optional<ChartLook>& charts);

    void Show(const Scene& scene) override;
    void Refresh() override;
    void Arrange(int32_t width, int32_t height) override;
    void ReactToKey(unsigned long key) override;
    std::vector<View*> Views() override;

private:
    void ReactToSurfaceKey(SurfaceElement& surface, unsigned long key);
    void MoveMarkedRow(int32_t rows);
    std::optional<SurfaceColors> Colors();

    SurfaceView Surface;
    std::optional<LineCharts> Charts;
    std::optional<int32_t> FirstRow;
    const Scene* Shown = nullptr; // borrowed from the caller of Show
    int32_t MarkedRow = 0;
};
