// What all elements of a chart view share: the chart, the plots in it, and the look of these.
#pragma once

#include "elements3d/CElement_Base.h"

#include <string>
#include <vector>

class CPlotTable;
class vtkChartHistogram2D;
class vtkPlot;
class vtkPlotPoints;

// Where a new chart element comes to stand.
struct ChartSite
{
    int32_t Id = -1;
    vtkChartHistogram2D* Chart = nullptr;
    const double* DrawSpace = nullptr; // xmin, xmax, ymin, ymax
};

class CElement_2D : public CElement_Base
{
public:
    // Whether another geometry for an element ends what the user is drawing in the view.
    static constexpr bool EndsDrawing = false;

    CElement_2D(int32_t elementType, double size, uint8_t red, uint8_t green, uint8_t blue);
    ~CElement_2D() override;

    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;
    int32_t GetColor(uint8_t* red, uint8_t* green, uint8_t* blue) override;
    // Line width in pixels.
    int32_t SetSize(double size) override;
    int32_t GetSize(double* size) override;

    // The box of the values. What is cleared on failure is the class's own matter.
    virtual int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) = 0;
    using CElement_Base::GetBounds;
    // A hidden element stays hidden through changes. Seen with the next render. The status says
    // whether the element is complete.
    int32_t Show(bool show);
    // Takes everything out of the chart.
    virtual void LeaveView();
    // The view's box for lines without ends has changed.
    virtual void FitToDrawSpace(const double* /*drawSpace*/) {}

protected:
    enum class PlotKind
    {
        Line,
        Points
    };

    // For Initialize: the element belongs to the chart from here on.
    void TakeSite(const ChartSite& site);
    // Adds a plot on top of all others, with the element's look. `markerStyle` is one of
    // vtkPlotPoints.
    vtkPlotPoints* MakePlot(PlotKind kind, const CPlotTable& table, int markerStyle);
    // The same for a plot that is not in the chart yet.
    void SetUpPlot(vtkPlotPoints* plot, const CPlotTable& table, int markerStyle) const;
    // Out of the chart, if it is in it.
    void RemovePlot(vtkPlot* plot);
    void RemovePlots();
    // True if the plots are the last ones of the chart, in this order: a changed element is drawn
    // on top of all others, and plots that are there already can stay.
    bool AreOnTop(const std::vector<vtkPlotPoints*>& plots) const;
    // Draws all plots on top of those of other elements, as if they were new.
    void RaisePlots();
    // Colour, width and visibility, on all plots.
    virtual void ApplyLook();
    void ApplyLook(vtkPlot* plot) const;
    bool IsVisible() const { return Valid && Shown; }
    // False: nothing to be seen has been built, and most calls answer STATUS_NOT_READY.
    virtual bool IsReady() const { return Chart && !Plots.empty(); }
    virtual int32_t CheckComplete() const;
    bool IsShown() const { return Shown; }

    vtkChartHistogram2D* Chart = nullptr; // borrowed
    std::vector<vtkPlotPoints*> Plots;    // owned by the chart
    double Size;
    uint8_t Color[3];

private:
    bool Shown = true;
};

// The name of an element's Y column: the host's, if it gave one of 1 to 255 characters, else the
// kind of element and its id.
std::string MakeColumnName(const char* name, const char* kind, int32_t id);
