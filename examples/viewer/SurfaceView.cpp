#include "SurfaceView.h"

#include "ElementReports.h"
#include "GeometryScene.h"
#include "Library.h"
#include "Marks.h"
#include "ProfileElements.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <algorithm>
#include <cmath>
#include <utility>

namespace
{
// A dark grey blue: no palette colour, so that holes in the data are seen as holes.
constexpr Color Background = {28, 32, 40};

// The library leaves room for the sphere around the scene. A flat surface that is seen obliquely
// can come nearer, and a line too, as far as frame and bar leave room.
constexpr double Nearer = 1.25;
constexpr double NearerWithFrame = 1.2;
constexpr double NearerWithBar = 1.06;
constexpr double FlatRelief = 0.35; // height as a share of the longer side

// Share of the scene's size by which it moves to the left to make room for the bar.
constexpr double RoomForBar = 0.09;
constexpr double BesideBar = 0.85;    // share of the view's width
constexpr double ProfileShare = 0.93; // likewise

const ActiveElementCalls SceneCalls = {
    Tarvex_Element_GetCount,
    Tarvex_Element_GetIDFromIndex,
    Tarvex_Element_GetType,
    Tarvex_Window_GetActiveElement,
    Tarvex_Window_SetActiveElement,
    {TARVEX_ELEMENT_CYLINDER, TARVEX_ELEMENT_CUBE, TARVEX_ELEMENT_POLYHEDRON}};
} // namespace

SurfaceView::SurfaceView(void* parentWindow, const Box& box, const Furniture& furniture)
    : Placed(box), Around(furniture)
{
    Check(Tarvex_Window_Create(parentWindow, 1, box.Left, box.Top, box.Width, box.Height, &Id),
          "Tarvex_Window_Create");
    try
    {
        // The first call that needs the native window; it fails where the view can't be shown.
        Redraw();
        LookObliquely();
        ReportElements(Id);
    }
    catch (...)
    {
        Tarvex_Window_Delete(Id);
        throw;
    }
}

SurfaceView::~SurfaceView()
{
    Tarvex_Window_Delete(Id);
}

void SurfaceView::Show(const HeightMap& map, const HeightStatistics& statistics,
                       const SceneLook& look)
{
    const SceneUpdate update(Id);
    ShownSurface.reset();
    MarkedRow.reset();
    Check(Tarvex_Element_RemoveAll(Id), "Tarvex_Element_RemoveAll");
    Exaggeration = look.Surface.Exaggeration;
    Size = DescribeExtent(map);
    Lowest = map.Height(statistics.Lowest) * Exaggeration;
    Highest = map.Height(statistics.Highest) * Exaggeration;
    SetDrawSpace();
    if (map.IsProfile())
    {
        AddProfile(Id, map, Exaggeration);
        ApplyFurniture();
        ShowFrom(TARVEX_VIEW_FRONT);
        return;
    }
    ShownSurface.emplace(Id, map, look.Surface);
    if (look.Profiles > 0)
    {
        AddProfiles(Id, map, Exaggeration, look.Profiles);
    }
    if (look.Geometry)
    {
        AddGeometryScene(Id, map, Exaggeration);
    }
    if (look.Marks)
    {
        AddMarks(Id, map, statistics, Exaggeration);
    }
    ApplyFurniture();
    LookObliquely();
    Frame();
}

void SurfaceView::Replace(const HeightMap& map, std::optional<int32_t> markedRow)
{
    const SceneUpdate update(Id);
    if (ShownSurface)
    {
        ShownSurface->Replace(map);
    }
    if (markedRow)
    {
        MarkRow(map, *markedRow);
    }
}

void SurfaceView::MarkRow(const HeightMap& map, int32_t row)
{
    const SceneUpdate update(Id);
    if (MarkedRow)
    {
        Check(Tarvex_Element_Remove(Id, *MarkedRow), "Tarvex_Element_Remove");
    }
    MarkedRow = AddMarkedProfile(Id, map, Exaggeration, row);
}

void SurfaceView::SetDrawSpace()
{
    // The box has to have some size for a perfectly flat surface and for a profile too.
    const double least = 0.01 * std::max(Size.Width(), Size.Depth());
    const double heightRoom = std::max(0.0, least - (Highest - Lowest)) / 2.0;
    const double depthRoom = std::max(0.0, least - Size.Depth()) / 2.0;
    Check(Tarvex_Window_SetDrawSpace(Id, Size.XMin, Size.XMax, Size.YMin - depthRoom,
                                     Size.YMax + depthRoom, Lowest - heightRoom,
                                     Highest + heightRoom),
          "Tarvex_Window_SetDrawSpace");
    // A draw mode keeps the space in which it began.
    int32_t mode = TARVEX_DRAW_NONE;
    Check(Tarvex_Window_GetDrawMode(Id, &mode), "Tarvex_Window_GetDrawMode");
    if (mode != TARVEX_DRAW_NONE)
    {
        ChooseDrawMode(static_cast<uint32_t>(mode));
    }
}

void SurfaceView::ApplyFurniture()
{
    if (Around.Bar && ShownSurface)
    {
        Check(Tarvex_Window_ScalarBar_Add(Id, ShownSurface->Id()), "Tarvex_Window_ScalarBar_Add");
    }
    else
    {
        Check(Tarvex_Window_ScalarBar_Remove(Id), "Tarvex_Window_ScalarBar_Remove");
    }
    if (Around.Frame)
    {
        // The heights' own box: one taken from the element would follow its colour range.
        Check(Tarvex_Window_Cube_Add_Resize(Id, TARVEX_NONE, Size.XMin, Size.XMax, Size.YMin,
                                            Size.YMax, Lowest, Highest),
              "Tarvex_Window_Cube_Add_Resize");
    }
    else
    {
        Check(Tarvex_Window_Cube_Remove(Id), "Tarvex_Window_Cube_Remove");
    }
    Check(Tarvex_Window_CoordinateAxes_Show(Id, Around.Axes ? 1 : 0),
          "Tarvex_Window_CoordinateAxes_Show");
    Check(Tarvex_Window_Orientation_Show(Id, Around.Marker ? 1 : 0),
          "Tarvex_Window_Orientation_Show");
}

void SurfaceView::ToggleFurniture(bool Furniture::*part)
{
    Around.*part = !(Around.*part);
    const SceneUpdate update(Id);
    ApplyFurniture();
}

void SurfaceView::ActivateNextElement()
{
    ActivateNext(Id, SceneCalls);
    Redraw();
}

void SurfaceView::ChooseDrawMode(uint32_t mode)
{
    Check(Tarvex_Window_SetDrawMode(Id, mode), "Tarvex_Window_SetDrawMode");
}

void SurfaceView::Place(const Box& box)
{
    Placed = box;
    Check(Tarvex_Window_UpdateSize(Id, box.Left, box.Top, box.Width, box.Height),
          "Tarvex_Window_UpdateSize");
    // The new size shows with the next render.
    Redraw();
}

void SurfaceView::Redraw()
{
    Check(Tarvex_Window_SetBackgroundColor(Id, Background.Red, Background.Green, Background.Blue),
          "Tarvex_Window_SetBackgroundColor");
}

void SurfaceView::Frame()
{
    const SceneUpdate update(Id);
    Zoom(1.0);
    Check(Tarvex_Window_Camera_AutoSize(Id), "Tarvex_Window_Camera_AutoSize");
    const bool flat = Highest - Lowest < FlatRelief * std::max(Size.Width(), Size.Depth());
    ComeNearer(flat ? Nearer : 1.0);
}

void SurfaceView::ShowFrom(int32_t predefinedView)
{
    const SceneUpdate update(Id);
    Zoom(1.0);
    Check(Tarvex_Window_Camera_SetPredefinedView(Id, predefinedView),
          "Tarvex_Window_Camera_SetPredefinedView");
    // From above a surface fills more of the sphere.
    ComeNearer(ShownSurface ? NearerWithBar : Nearer);
}

void SurfaceView::ComeNearer(double most)
{
    const bool hasBar = Around.Bar && ShownSurface;
    // The library lets the height of the view decide, whatever its width.
    const double aspect = (hasBar ? BesideBar : 1.0) * Placed.Width / Placed.Height;
    const double near = std::min(most, hasBar         ? NearerWithBar
                                       : Around.Frame ? NearerWithFrame
                                                      : Nearer);
    // A profile is as wide as the sphere around it, a surface is seen obliquely.
    Zoom(ShownSurface ? near * std::min(1.0, aspect) : std::min(near, ProfileShare * aspect));
    if (!hasBar)
    {
        return;
    }
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    Check(Tarvex_Window_Camera_GetPosition(Id, &x, &y, &z), "Tarvex_Window_Camera_GetPosition");
    double direction[3] = {};
    double up[3] = {};
    Check(Tarvex_Window_Camera_GetViewDirection(Id, &direction[0], &direction[1], &direction[2],
                                                &up[0], &up[1], &up[2]),
          "Tarvex_Window_Camera_GetViewDirection");
    // To the right of the camera: direction x up.
    const double way = RoomForBar * std::hypot(Size.Width(), Size.Depth(), Highest - Lowest);
    Check(Tarvex_Window_Camera_SetPosition(Id,
                                           x + way * (direction[1] * up[2] - direction[2] * up[1]),
                                           y + way * (direction[2] * up[0] - direction[0] * up[2]),
                                           z + way * (direction[0] * up[1] - direction[1] * up[0])),
          "Tarvex_Window_Camera_SetPosition");
}

void SurfaceView::Zoom(double factor)
{
    // Zooming adds up from call to call.
    Check(Tarvex_Window_Camera_SetZoom(Id, factor / std::exchange(ZoomFactor, factor)),
          "Tarvex_Window_Camera_SetZoom");
}

void SurfaceView::LookObliquely()
{
    // The camera lives in world coordinates, where Y points the other way than in the data: row 0,
    // the northern edge, is away from the viewer and columns run to the right.
    Check(Tarvex_Window_Camera_SetViewDirection(Id, 0.3, 1.0, -0.9, 0.0, 0.0, 1.0),
          "Tarvex_Window_Camera_SetViewDirection");
}

void SurfaceView::ToggleParallelProjection()
{
    Parallel = !Parallel;
    Check(Tarvex_Window_Camera_EnableParallelProjection(Id, Parallel ? 1 : 0),
          "Tarvex_Window_Camera_EnableParallelProjection");
}

RgbPicture SurfaceView::Picture() const
{
    return CopyPicture(Id, TarvexExt_Window_CopyImage);
}
