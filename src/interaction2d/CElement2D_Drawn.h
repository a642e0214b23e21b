// What the mouse draws in a draw mode of a chart view, and the rubber band that shows how far it
// has come: a line of its own in the chart, no element of the view.
#pragma once

#include "elements2d/CPlotTable.h"
#include "elements2d/ChartPoint.h"
#include "interaction3d/DrawnLook.h"

#include <vector>

class vtkChartHistogram2D;
class vtkPlot;

class CElement2D_Drawn
{
public:
    // The chart is borrowed and outlives this object; `name` is that of the rubber band.
    CElement2D_Drawn(vtkChartHistogram2D* chart, DrawGesture gesture, const char* name);
    ~CElement2D_Drawn();
    CElement2D_Drawn(const CElement2D_Drawn&) = delete;
    CElement2D_Drawn& operator=(const CElement2D_Drawn&) = delete;

    bool IsMultiClick() const { return Gesture == DrawGesture::Vertices; }

    // What the mouse does: the left button goes down, the mouse moves, the button goes up, the
    // right one goes down. In chart coordinates.
    void Down(double x, double y);
    void Move(double x, double y);
    void Up(double x, double y);
    void End();
    // Drops what was drawn; the next gesture can begin.
    void Clear();
    // The rubber band, if there is one, is drawn over all that is in the chart by now.
    void Raise();

    // There is a result, until Clear.
    bool IsFinished() const { return Finished; }
    // Of the finished shape.
    ChartPoint GetCenter() const;
    ChartPoint GetExtent() const; // none is negative
    double GetRadius() const;
    const std::vector<ChartPoint>& GetVertices() const { return Points; }

private:
    bool IsUnderWay() const { return !Points.empty() && !Finished; }
    void ShowBand();
    void HideBand();
    int32_t CountRows() const;
    void Fill(const CPlotTable::Columns& columns) const;

    vtkChartHistogram2D* Chart;
    DrawGesture Gesture;
    // Two corners; centre and rim; or the vertices. The last one moves.
    std::vector<ChartPoint> Points;
    bool GrowOnMove = false; // the last vertex was fixed by a click
    bool Finished = false;
    CPlotTable Table;
    vtkSmartPointer<vtkPlot> Band; // null: not in the chart
};
