// Draws the chart of a view.
#pragma once

#include <vtkOpenGLContextActor.h>

// When drawing raises, as it does where memory runs out, the painter is told that it is over: left
// in the middle it would reach for its window again when the view goes, and find none.
class CChartActor : public vtkOpenGLContextActor
{
public:
    static CChartActor* New();
    vtkTypeMacro(CChartActor, vtkOpenGLContextActor);

    int RenderOverlay(vtkViewport* viewport) override;

protected:
    CChartActor() = default;
    ~CChartActor() override = default;
};
