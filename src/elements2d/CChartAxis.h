// An axis of a chart that does not go where double numbers end.
#pragma once

#include <vtkAxis.h>

// Places its ticks by adding intervals, as VTK does: at the last digits of a number an interval
// adds nothing, and close to the largest one it adds infinity; both would go on for ever. A range
// out there, from whoever sets it, is replaced by the one before it.
class CChartAxis : public vtkAxis
{
public:
    static CChartAxis* New();
    vtkTypeMacro(CChartAxis, vtkAxis);

    static bool CanShow(double minimum, double maximum);

    void RecalculateTickSpacing() override;

protected:
    CChartAxis() = default;
    ~CChartAxis() override = default;

private:
    double Shown[2] = {0.0, 1.0};
};
