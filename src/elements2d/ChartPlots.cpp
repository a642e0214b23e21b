#include "elements2d/ChartPlots.h"

vtkStandardNewMacro(CLinePlot);
vtkStandardNewMacro(CPointsPlot);
