// The plots that chart elements are drawn with.
#pragma once

#include <vtkObjectFactory.h>
#include <vtkPlotLine.h>
#include <vtkPlotPoints.h>

// A chart draws with values relative to the axis minimum where the range is far from zero, and
// finds that out while it paints: its stock plots have their points ready by then and would appear
// in the old place until the next picture. These take a changed shift into the picture under way.
template <class Base>
class CShiftedPlot : public Base
{
public:
    void UpdateCache() override { this->Update(); }

protected:
    CShiftedPlot() = default;
    ~CShiftedPlot() override = default;
};

class CLinePlot : public CShiftedPlot<vtkPlotLine>
{
public:
    static CLinePlot* New();
    vtkTypeMacro(CLinePlot, vtkPlotLine);
};

class CPointsPlot : public CShiftedPlot<vtkPlotPoints>
{
public:
    static CPointsPlot* New();
    vtkTypeMacro(CPointsPlot, vtkPlotPoints);
};
