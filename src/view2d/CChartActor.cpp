#include "view2d/CChartActor.h"

#include <vtkContext2D.h>
#include <vtkContextDevice2D.h>
#include <vtkObjectFactory.h>

vtkStandardNewMacro(CChartActor);

int CChartActor::RenderOverlay(vtkViewport* viewport)
{
    try
    {
        return Superclass::RenderOverlay(viewport);
    }
    catch (...)
    {
        if (vtkContextDevice2D* painter = GetContext()->GetDevice())
        {
            painter->End();
        }
        throw;
    }
}
