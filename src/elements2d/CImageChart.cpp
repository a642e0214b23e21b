#include "elements2d/CImageChart.h"

#include "elements2d/CImagePlot.h"

#include <vtkObjectFactory.h>

vtkStandardNewMacro(CImageChart);

CImageChart::CImageChart()
{
    vtkChartXY::RemovePlot(0);
    this->Histogram = vtkSmartPointer<CImagePlot>::New();
    vtkChartXY::AddPlot(this->Histogram);
}
