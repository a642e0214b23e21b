// The chart of a view, with axes of our own, and our plot for the image in the place of the stock
// one: plot 0.
#pragma once

#include <vtkChartHistogram2D.h>

class CImageChart : public vtkChartHistogram2D
{
public:
    static CImageChart* New();
    vtkTypeMacro(CImageChart, vtkChartHistogram2D);

protected:
    CImageChart();
    ~CImageChart() override = default;
};
