#include "elements2d/CImageChart.h"

#include "elements2d/CChartAxis.h"
#include "elements2d/CImagePlot.h"

#include <vtkObjectFactory.h>
#include <vtkTooltipItem.h>

vtkStandardNewMacro(CImageChart);

CImageChart::CImageChart()
{
    for (int side = 0; side < this->GetNumberOfAxes(); ++side)
    {
        vtkAxis* former = this->GetAxis(side);
        CChartAxis* axis = CChartAxis::New();
        axis->SetTitle(former->GetTitle());
        // Takes over the reference of the new axis, and forgets that of the old one.
        this->SetAxis(side, axis);
        former->UnRegister(nullptr);
    }
    // Over the axes, as before.
    this->RemoveItem(this->Tooltip);
    this->AddItem(this->Tooltip);
    // After the axes, which a plot takes from its chart.
    vtkChartXY::RemovePlot(0);
    this->Histogram = vtkSmartPointer<CImagePlot>::New();
    vtkChartXY::AddPlot(this->Histogram);
}
