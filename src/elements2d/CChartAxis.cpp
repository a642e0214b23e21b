#include "elements2d/CChartAxis.h"

#include <vtkObjectFactory.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(CChartAxis);

bool CChartAxis::CanShow(double minimum, double maximum)
{
    constexpr double farthest = 1e300;
    constexpr double leastExtent = 1e-200;
    constexpr double leastPart = 1e-12; // of the numbers themselves
    const double size = std::max(std::abs(minimum), std::abs(maximum));
    return size <= farthest && maximum - minimum > std::max(size * leastPart, leastExtent);
}

void CChartAxis::RecalculateTickSpacing()
{
    if (CanShow(this->Minimum, this->Maximum))
    {
        Shown[0] = this->Minimum;
        Shown[1] = this->Maximum;
    }
    else
    {
        this->SetRange(Shown[0], Shown[1]);
    }
    this->Superclass::RecalculateTickSpacing();
}
