// The scale frame of a 3D view. Its box lies in VTK's world, its Y labels read host coordinates.
#include "frame/NumberTest.h"
#include "view3d/CCubeAxesActor.h"
#include "view3d/CWindow.h"

#include <vtkCamera.h>
#include <vtkProperty.h>
#include <vtkTextProperty.h>

#include <algorithm>
#include <array>
#include <cmath>

namespace
{
enum Axis : int32_t
{
    AXIS_X,
    AXIS_Y,
    AXIS_Z
};
constexpr std::array allAxes = {AXIS_X, AXIS_Y, AXIS_Z};

// VTK names the property of each part and axis apart; these tables are the only place that does.
using PropertyGetter = vtkProperty* (vtkCubeAxesActor::*)();
constexpr PropertyGetter lineProperties[][3] = {
    {&vtkCubeAxesActor::GetXAxesGridlinesProperty, &vtkCubeAxesActor::GetYAxesGridlinesProperty,
     &vtkCubeAxesActor::GetZAxesGridlinesProperty},
    {&vtkCubeAxesActor::GetXAxesGridpolysProperty, &vtkCubeAxesActor::GetYAxesGridpolysProperty,
     &vtkCubeAxesActor::GetZAxesGridpolysProperty},
    {&vtkCubeAxesActor::GetXAxesInnerGridlinesProperty,
     &vtkCubeAxesActor::GetYAxesInnerGridlinesProperty,
     &vtkCubeAxesActor::GetZAxesInnerGridlinesProperty},
    {&vtkCubeAxesActor::GetXAxesLinesProperty, &vtkCubeAxesActor::GetYAxesLinesProperty,
     &vtkCubeAxesActor::GetZAxesLinesProperty}};
constexpr int32_t linePartCount = std::size(lineProperties);
constexpr int32_t coloredPartCount = linePartCount + 2; // title text and label text

using Switch = void (vtkCubeAxesActor::*)(vtkTypeBool);
constexpr Switch switches[][3] = {
    {&vtkCubeAxesActor::SetXAxisVisibility, &vtkCubeAxesActor::SetYAxisVisibility,
     &vtkCubeAxesActor::SetZAxisVisibility},
    {&vtkCubeAxesActor::SetXAxisLabelVisibility, &vtkCubeAxesActor::SetYAxisLabelVisibility,
     &vtkCubeAxesActor::SetZAxisLabelVisibility},
    {&vtkCubeAxesActor::SetXAxisTickVisibility, &vtkCubeAxesActor::SetYAxisTickVisibility,
     &vtkCubeAxesActor::SetZAxisTickVisibility},
    {&vtkCubeAxesActor::SetXAxisMinorTickVisibility, &vtkCubeAxesActor::SetYAxisMinorTickVisibility,
     &vtkCubeAxesActor::SetZAxisMinorTickVisibility},
    {&vtkCubeAxesActor::SetDrawXGridlines, &vtkCubeAxesActor::SetDrawYGridlines,
     &vtkCubeAxesActor::SetDrawZGridlines},
    {&vtkCubeAxesActor::SetDrawXInnerGridlines, &vtkCubeAxesActor::SetDrawYInnerGridlines,
     &vtkCubeAxesActor::SetDrawZInnerGridlines},
    {&vtkCubeAxesActor::SetDrawXGridpolys, &vtkCubeAxesActor::SetDrawYGridpolys,
     &vtkCubeAxesActor::SetDrawZGridpolys}};

void SetPartColor(vtkCubeAxesActor* cube, Axis axis, int32_t part, const double color[3])
{
    if (part < linePartCount)
    {
        (cube->*lineProperties[part][axis])()->SetColor(color[0], color[1], color[2]);
    }
    else if (part < coloredPartCount)
    {
        vtkTextProperty* text = part == linePartCount ? cube->GetTitleTextProperty(axis)
                                                      : cube->GetLabelTextProperty(axis);
        text->SetColor(color[0], color[1], color[2]);
    }
}

// The interface counts 0 for all axes, then from 1.
bool IsSelected(int32_t selection, Axis axis)
{
    return selection == 0 || selection == axis + 1;
}

bool IsSelection(int32_t selection, int32_t part)
{
    return selection >= 0 && selection <= 3 && part >= 0;
}

// VTK steps from tick to tick through its numbers and counts them from zero with 32 bits: far away,
// a small extent would take it for ever. Such an axis is drawn a little longer, by what the single
// precision of a picture loses there anyway; a flat one stays flat as long as steps of 1 are steps.
void KeepCountable(double& min, double& max)
{
    const double magnitude = std::max(std::abs(min), std::abs(max));
    const bool isFlat = min == max && magnitude < 1e12;
    if (!isFlat && max - min < 1e-8 * magnitude)
    {
        min -= 5e-7 * magnitude;
        max += 5e-7 * magnitude;
    }
}

vtkSmartPointer<CCubeAxesActor> MakeCubeAxes(vtkCamera* camera, const double bounds[6])
{
    auto cube = vtkSmartPointer<CCubeAxesActor>::New();
    cube->SetCornerOffset(0.0);
    cube->SetUse2DMode(0);
    cube->SetEnableDistanceLOD(0);
    cube->SetEnableViewAngleLOD(0);
    cube->SetXLabelFormat("%6.1f");
    cube->SetYLabelFormat("%6.1f");
    cube->SetZLabelFormat("%6.1f");
    cube->SetDrawXGridlines(1);
    cube->SetDrawYGridlines(1);
    cube->SetDrawZGridlines(1);
    cube->SetGridLineLocation(vtkCubeAxesActor::VTK_GRID_LINES_FURTHEST);
    cube->SetFlyModeToOuterEdges();
    constexpr double white[] = {1.0, 1.0, 1.0};
    for (const Axis axis : allAxes)
    {
        for (int32_t part = 0; part < coloredPartCount; ++part)
        {
            SetPartColor(cube, axis, part, white);
        }
        constexpr int32_t gridlines = 0;
        constexpr int32_t innerGridlines = 2;
        for (const int32_t part : {gridlines, innerGridlines})
        {
            (cube->*lineProperties[part][axis])()->SetLineWidth(0.01F);
        }
    }
    cube->SetLabelOffset(20.0);
    cube->SetCamera(camera);
    cube->SetBounds(bounds);
    cube->Set_InvertAxisLabellingY(true);
    return cube;
}
} // namespace

int32_t CWindow::Cube_Add_Resize(int32_t elementId, double xmin, double xmax, double ymin,
                                 double ymax, double zmin, double zmax)
{
    return WhenReady(
        [&]() -> int32_t
        {
            // Also when an element replaces the box.
            if (xmax - xmin < 0.0 || ymax - ymin < 0.0 || zmax - zmin < 0.0)
            {
                return STATUS_OUT_OF_RANGE;
            }
            if (elementId >= 0)
            {
                CElement_Scene* element = Elements.Find(elementId);
                if (!element)
                {
                    return STATUS_BAD_INDEX;
                }
                if (element->ElementType > TARVEX_ELEMENT_PROFILE_NON_UNIFORM)
                {
                    return STATUS_WRONG_TYPE;
                }
                const int32_t status =
                    element->GetBounds(true, &xmin, &xmax, &ymin, &ymax, &zmin, &zmax);
                if (status != STATUS_OK)
                {
                    return status;
                }
            }
            // VTK would make tick marks for such a box until memory ends.
            if (!AreDrawable({xmin, xmax, ymin, ymax, zmin, zmax}))
            {
                return STATUS_OUT_OF_RANGE;
            }
            KeepCountable(xmin, xmax);
            KeepCountable(ymin, ymax);
            KeepCountable(zmin, zmax);
            const double bounds[] = {xmin, xmax, -ymax, -ymin, zmin, zmax};
            if (CubeAxes)
            {
                CubeAxes->SetBounds(bounds);
            }
            else
            {
                CubeAxes = MakeCubeAxes(Renderer->GetActiveCamera(), bounds);
                Renderer->AddActor(CubeAxes);
            }
            return ShowCamera();
        });
}

int32_t CWindow::WhenCubeExists(const std::function<int32_t()>& change)
{
    return CubeAxes ? WhenReady(
                          [&]() -> int32_t
                          {
                              const int32_t status = change();
                              if (status == STATUS_OK)
                              {
                                  RenderWindow->Render();
                              }
                              return status;
                          })
                    : int32_t{STATUS_NOT_READY};
}

int32_t CWindow::Cube_AxisColoring(int32_t selection, int32_t part, uint8_t red, uint8_t green,
                                   uint8_t blue)
{
    return WhenCubeExists(
        [&]() -> int32_t
        {
            if (!IsSelection(selection, part))
            {
                return STATUS_OUT_OF_RANGE;
            }
            const double color[] = {red / 255.0, green / 255.0, blue / 255.0};
            for (const Axis axis : allAxes)
            {
                if (IsSelected(selection, axis))
                {
                    SetPartColor(CubeAxes, axis, part, color);
                }
            }
            return STATUS_OK;
        });
}

int32_t CWindow::Cube_Visibility(int32_t selection, int32_t part, bool visible)
{
    return WhenCubeExists(
        [&]() -> int32_t
        {
            if (!IsSelection(selection, part))
            {
                return STATUS_OUT_OF_RANGE;
            }
            for (const Axis axis : allAxes)
            {
                if (IsSelected(selection, axis) && part < static_cast<int32_t>(std::size(switches)))
                {
                    // Apart: GCC's bounds check of both in one takes a wrong index.
                    const Switch change = switches[part][axis];
                    (CubeAxes->*change)(visible);
                }
            }
            return STATUS_OK;
        });
}

int32_t CWindow::Cube_FlyMode(int32_t mode)
{
    return WhenCubeExists(
        [&]() -> int32_t
        {
            // VTK counts its modes alike; one more is accepted and changes nothing.
            constexpr int32_t unchanged = vtkCubeAxesActor::VTK_FLY_STATIC_EDGES + 1;
            if (mode < 0 || mode > unchanged)
            {
                return STATUS_OUT_OF_RANGE;
            }
            if (mode != unchanged)
            {
                CubeAxes->SetFlyMode(mode);
            }
            return STATUS_OK;
        });
}

int32_t CWindow::Cube_GridLineLocation(int32_t location)
{
    return WhenCubeExists(
        [&]() -> int32_t
        {
            // The interface counts the other way round.
            constexpr int locations[] = {vtkCubeAxesActor::VTK_GRID_LINES_FURTHEST,
                                         vtkCubeAxesActor::VTK_GRID_LINES_CLOSEST,
                                         vtkCubeAxesActor::VTK_GRID_LINES_ALL};
            if (location < 0 || location >= static_cast<int32_t>(std::size(locations)))
            {
                return STATUS_OUT_OF_RANGE;
            }
            CubeAxes->SetGridLineLocation(locations[location]);
            return STATUS_OK;
        });
}

int32_t CWindow::Cube_ShowHide(bool show)
{
    return WhenCubeExists(
        [&]() -> int32_t
        {
            if (show)
            {
                Renderer->AddActor(CubeAxes);
            }
            else
            {
                Renderer->RemoveActor(CubeAxes);
            }
            return STATUS_OK;
        });
}

int32_t CWindow::Cube_Remove()
{
    return WhenReady(
        [&]() -> int32_t
        {
            if (CubeAxes)
            {
                Renderer->RemoveActor(CubeAxes);
                CubeAxes = nullptr;
                RenderWindow->Render();
            }
            return STATUS_OK;
        });
}
