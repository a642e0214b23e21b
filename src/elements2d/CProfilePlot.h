// The plot of a run of samples: a line, with markers if wanted. It costs by the width of the
// screen, not by the number of samples, where X does not decrease.
#pragma once

#include "elements2d/ChartPlots.h"
#include "elements2d/LineThinning.h"

#include <vector>

class CProfilePlot : public CShiftedPlot<vtkPlotLine>
{
public:
    static CProfilePlot* New();
    vtkTypeMacro(CProfilePlot, vtkPlotLine);

    void Update() override;
    bool Paint(vtkContext2D* painter) override;
    // Nothing: the axes of a chart view are set, no plot widens them.
    void GetBounds(double bounds[4]) override;
    // The first sample within the tolerance, or -1. Without the sorted copy of all samples that the
    // stock plot makes after each change.
    vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                              vtkVector2f* location, vtkIdType* segmentId) override;
    using vtkPlotLine::GetNearestPoint;

protected:
    CProfilePlot() = default;
    ~CProfilePlot() override = default;

private:
    bool IsStale() const;
    void CopyPoints(const vtkTable& table);
    void PaintLine(vtkContext2D* painter, PlotPlace* places, vtkIdType count);

    bool Ordered = false;           // X never decreases, and there are no gaps
    std::vector<PlotPlace> Thinned; // of the line being painted
};
