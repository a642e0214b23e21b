#include "SurfaceView.h"

#include <Tarvex.h>
#include <TarvexExt.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <utility>

namespace
{
// A dark grey blue: no palette colour, so that holes in the data are seen as holes.
constexpr uint8_t Background[3] = {28, 32, 40};
constexpr uint8_t LowestColor[3] = {255, 230, 60};
constexpr uint8_t HighestColor[3] = {40, 220, 90};
constexpr uint8_t LineColor[3] = {255, 255, 255};

void Check(int32_t status, const char* call)
{
    if (status == STATUS_OK)
    {
        return;
    }
    std::array<char, 256> text{};
    TarvexExt_GetLastError(text.data(), static_cast<int32_t>(text.size()));
    std::string message = std::string(call) + " failed with status " + std::to_string(status);
    if (text[0] != '\0')
    {
        message += std::string(" (") + text.data() + ")";
    }
    throw LibraryError(message);
}
} // namespace

SurfaceView::SurfaceView(void* parentWindow, int32_t width, int32_t height)
{
    Check(Tarvex_Window_Create(parentWindow, 1, 0, 0, width, height, &Id), "Tarvex_Window_Create");
    try
    {
        // The first call that needs the native window; it fails where the view can't be shown.
        Redraw();
        LookObliquely();
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
                       const SurfaceLook& look)
{
    Check(Tarvex_Element_RemoveAll(Id), "Tarvex_Element_RemoveAll");
    const double right = (map.Columns - 1) * map.XScale;
    const double bottom = (map.Rows - 1) * map.YScale;
    const double low = map.Height(statistics.Lowest) * look.Exaggeration;
    const double high = map.Height(statistics.Highest) * look.Exaggeration;
    // The box has to have some height for a perfectly flat surface too.
    const double room = std::max(0.0, 1.0 - (high - low)) / 2.0;
    Check(Tarvex_Window_SetDrawSpace(Id, 0.0, right, 0.0, bottom, low - room, high + room),
          "Tarvex_Window_SetDrawSpace");

    // Every change renders at once, so the large element comes last.
    AddMarks(map, statistics, look.Exaggeration);
    const bool intensities = !map.Intensities.empty();
    Check(Tarvex_Element_Add_SurfaceUniform(
              Id, map.Samples.data(), intensities ? map.Intensities.data() : nullptr, map.Columns,
              map.Rows, map.XScale, map.YScale, map.ZScale * look.Exaggeration, 0.0, 0.0,
              map.ZOffset * look.Exaggeration,
              look.IsolatedSamples ? TARVEX_MESH_CELLS_AND_POINTS : TARVEX_MESH_CELLS, &Surface),
          "Tarvex_Element_Add_SurfaceUniform");
    HasIntensities = intensities;
    IntensityShown = false;
    if (HasIntensities)
    {
        UseIntensity(true);
    }
    Frame();
}

void SurfaceView::AddMarks(const HeightMap& map, const HeightStatistics& statistics,
                           double exaggeration)
{
    const auto columns = static_cast<size_t>(map.Columns);
    const double width = (map.Columns - 1) * map.XScale;
    const double depth = (map.Rows - 1) * map.YScale;
    const double radius = std::hypot(width, depth) * 0.008;
    const auto mark = [&](size_t index, int16_t raw, const uint8_t(&color)[3])
    {
        AddMark(static_cast<double>(index % columns) * map.XScale,
                static_cast<double>(index / columns) * map.YScale, map.Height(raw) * exaggeration,
                radius, color);
    };
    mark(statistics.LowestIndex, statistics.Lowest, LowestColor);
    mark(statistics.HighestIndex, statistics.Highest, HighestColor);

    // At the height of the middle row's highest sample: it touches the surface and stays visible.
    const auto row = map.Samples.begin() + static_cast<std::ptrdiff_t>(map.Rows / 2) * map.Columns;
    const int16_t top = *std::max_element(row, row + map.Columns);
    const double height = map.Height(top == HeightMap::Missing ? statistics.Highest : top);
    int32_t line = -1;
    Check(Tarvex_Element_Add_Line(Id, width / 2.0, map.Rows / 2 * map.YScale, height * exaggeration,
                                  1.0, 0.0, 0.0, &line),
          "Tarvex_Element_Add_Line");
    Check(Tarvex_Element_SetColor(Id, line, LineColor[0], LineColor[1], LineColor[2]),
          "Tarvex_Element_SetColor");
}

void SurfaceView::AddMark(double x, double y, double z, double radius, const uint8_t (&color)[3])
{
    int32_t point = -1;
    Check(Tarvex_Element_Add_Point(Id, x, y, z, &point), "Tarvex_Element_Add_Point");
    Check(Tarvex_Element_SetSize(Id, point, radius), "Tarvex_Element_SetSize");
    Check(Tarvex_Element_SetColor(Id, point, color[0], color[1], color[2]),
          "Tarvex_Element_SetColor");
    Check(Tarvex_Element_SetLighting(Id, point, 0.4, 0.6, 0.3, 20.0), "Tarvex_Element_SetLighting");
}

void SurfaceView::Resize(int32_t width, int32_t height)
{
    Check(Tarvex_Window_UpdateSize(Id, 0, 0, width, height), "Tarvex_Window_UpdateSize");
    // The new size shows with the next render.
    Redraw();
}

void SurfaceView::Redraw()
{
    Check(Tarvex_Window_SetBackgroundColor(Id, Background[0], Background[1], Background[2]),
          "Tarvex_Window_SetBackgroundColor");
}

void SurfaceView::Frame()
{
    // AutoSize leaves room for the sphere around the scene; a flat surface can come nearer. Zooming
    // adds up from call to call, so the last one is taken back first.
    constexpr double Nearer = 1.25;
    if (std::exchange(Zoomed, true))
    {
        Check(Tarvex_Window_Camera_SetZoom(Id, 1.0 / Nearer), "Tarvex_Window_Camera_SetZoom");
    }
    Check(Tarvex_Window_Camera_AutoSize(Id), "Tarvex_Window_Camera_AutoSize");
    Check(Tarvex_Window_Camera_SetZoom(Id, Nearer), "Tarvex_Window_Camera_SetZoom");
}

void SurfaceView::LookObliquely()
{
    // The camera lives in world coordinates, where Y points the other way than in the data: row 0,
    // the northern edge, is away from the viewer and columns run to the right.
    Check(Tarvex_Window_Camera_SetViewDirection(Id, 0.3, 1.0, -0.9, 0.0, 0.0, 1.0),
          "Tarvex_Window_Camera_SetViewDirection");
}

void SurfaceView::ShowFrom(int32_t predefinedView)
{
    Check(Tarvex_Window_Camera_SetPredefinedView(Id, predefinedView),
          "Tarvex_Window_Camera_SetPredefinedView");
}

void SurfaceView::ToggleParallelProjection()
{
    Parallel = !Parallel;
    Check(Tarvex_Window_Camera_EnableParallelProjection(Id, Parallel ? 1 : 0),
          "Tarvex_Window_Camera_EnableParallelProjection");
}

void SurfaceView::ToggleIsolatedSamples()
{
    uint8_t mode = TARVEX_MESH_CELLS;
    Check(Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(Id, Surface, &mode),
          "Tarvex_Element3D_SurfaceUniform_GetRepresentationMode");
    mode = mode == TARVEX_MESH_CELLS ? TARVEX_MESH_CELLS_AND_POINTS : TARVEX_MESH_CELLS;
    Check(Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(Id, Surface, mode),
          "Tarvex_Element3D_SurfaceUniform_SetRepresentationMode");
}

void SurfaceView::ToggleIntensity()
{
    if (HasIntensities)
    {
        UseIntensity(!IntensityShown);
    }
}

void SurfaceView::UseIntensity(bool show)
{
    Check(Tarvex_Element_ShowIntensity_SurfaceUniform(Id, Surface, show ? 1 : 0),
          "Tarvex_Element_ShowIntensity_SurfaceUniform");
    IntensityShown = show;
}

RgbPicture SurfaceView::Picture() const
{
    RgbPicture picture;
    Check(TarvexExt_Window_CopyImage(Id, nullptr, 0, &picture.Width, &picture.Height),
          "TarvexExt_Window_CopyImage");
    picture.Rgb.resize(static_cast<size_t>(picture.Width) * static_cast<size_t>(picture.Height) *
                       3);
    Check(TarvexExt_Window_CopyImage(Id, picture.Rgb.data(),
                                     static_cast<int32_t>(picture.Rgb.size()), &picture.Width,
                                     &picture.Height),
          "TarvexExt_Window_CopyImage");
    return picture;
}
