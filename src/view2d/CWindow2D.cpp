#include "view2d/CWindow2D.h"

#include "elements2d/CImageChart.h"
#include "interaction2d/CElement2D_Drawn.h"
#include "interaction2d/MyDefaultInteractorStyle2D.h"
#include "interaction2d/MyDrawInteractorStyle2D.h"
#include "view2d/CChartActor.h"

#include <vtkAxis.h>
#include <vtkContextScene.h>
#include <vtkNew.h>
#include <vtkOpenGLRenderer.h>

CWindow2D::CWindow2D(int32_t id) : CElementView(id) {}

CWindow2D::~CWindow2D()
{
    ElementAddedCallback = nullptr;
    ElementDraggedCallback = nullptr;
    // Elements take their plots out of the chart: nobody may look at it any more.
    if (DrawStyle)
    {
        TakeStyle(nullptr);
    }
    DragTarget = nullptr;
    DrawnElement = nullptr;
    for (const std::unique_ptr<CElement_2D>& element : Elements)
    {
        element->LeaveView();
    }
    Elements.Clear();
    CloseWindow();
}

int32_t CWindow2D::Create(bool noBorders, void* parentWindow, int32_t x, int32_t y, int32_t width,
                          int32_t height)
{
    if (RenderWindow)
    {
        return STATUS_ALREADY_CREATED;
    }
    return Guarded(LastError,
                   [&]() -> int32_t
                   {
                       vtkNew<CChartActor> actor;
                       Chart = vtkSmartPointer<CImageChart>::New();
                       Scene = actor->GetScene();
                       Scene->AddItem(Chart);
                       Chart->SetShowLegend(false);
                       // Axes without a plot too: also while everything in the chart is hidden.
                       Chart->SetRenderEmpty(true);
                       Chart->AutoAxesOff();

                       const bool multiSamples = false;
                       MakeWindow(vtkSmartPointer<vtkOpenGLRenderer>::New(), noBorders,
                                  parentWindow, x, y, width, height, multiSamples);
                       Renderer->AddActor(actor);
                       Scene->SetRenderer(Renderer);

                       MakeStyles();
                       // The styles say when something has to be drawn.
                       Interactor->SetEnableRender(false);

                       for (const int side : {vtkAxis::BOTTOM, vtkAxis::LEFT})
                       {
                           vtkAxis* axis = Chart->GetAxis(side);
                           axis->SetBehavior(vtkAxis::FIXED);
                           axis->SetUnscaledMinimum(StartRange[0]);
                           axis->SetUnscaledMaximum(StartRange[1]);
                       }
                       SetChartLayout(TARVEX_CHART_DARK);
                       Refresh();
                       return STATUS_OK;
                   });
}

vtkChartHistogram2D* CWindow2D::GetChart() const
{
    return Chart;
}
