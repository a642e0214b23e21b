#include "elements2d/CImagePlot.h"

#include <vtkAxis.h>
#include <vtkContextScene.h>
#include <vtkObjectFactory.h>
#include <vtkOpenGLQuadHelper.h>
#include <vtkOpenGLRenderWindow.h>
#include <vtkOpenGLShaderCache.h>
#include <vtkOpenGLState.h>
#include <vtkRenderer.h>
#include <vtkShaderProgram.h>
#include <vtkTextureObject.h>
#include <vtk_glew.h>

#include <algorithm>
#include <cmath>

vtkStandardNewMacro(CImagePlot);

namespace
{
// Fills the scissor box. `texel` is the texel under the first pixel of the box, and `share` how
// much of it lies before the middle of that pixel. Texels are counted from the lower left corner.
constexpr const char* fragmentShader = R"(//VTK::System::Dec
//VTK::Output::Dec
uniform sampler2D pixels;
uniform sampler2D colors;
uniform ivec2 size;
uniform ivec2 corner;
uniform ivec2 texel;
uniform vec2 share;
uniform vec2 pitch;
void main()
{
    vec2 along = share + (gl_FragCoord.xy - vec2(corner) - 0.5) * pitch;
    ivec2 at = clamp(texel + ivec2(floor(along)), ivec2(0), size - 1);
    float level = texelFetch(pixels, ivec2(at.x, size.y - 1 - at.y), 0).r;
    gl_FragData[0] = texelFetch(colors, ivec2(int(level * 255.0 + 0.5), 0), 0);
}
)";

// Where texels lie in the window along one direction.
struct Grid
{
    // `clip` holds first pixel and number of those that may be drawn, `view` those of the viewport.
    Grid(vtkAxis* axis, int direction, double origin, double spacing, const int clip[4],
         const int view[4])
        : ClipFirst(clip[direction]), ClipEnd(clip[direction] + clip[direction + 2])
    {
        const double axisFirst = axis->GetPoint1()[direction];
        const double axisPixels = axis->GetPoint2()[direction] - axisFirst;
        // A scene of n pixels has its first and last half a pixel outside the window.
        const double first = view[direction];
        const double count = view[direction + 2];
        const double range = axis->GetMaximum() - axis->GetMinimum();
        // One pixel, or a range that is lost in huge numbers: every run is empty.
        if (!(count > 1.0 && range > 0.0))
        {
            return;
        }
        const double stretch = count / (count - 1.0);
        const double pixelsPerUnit = axisPixels / range * stretch;
        PixelsPerTexel = spacing * pixelsPerUnit;
        Start = first + (axisFirst - 0.5) * stretch + (origin - axis->GetMinimum()) * pixelsPerUnit;
    }

    double ClipFirst;
    double ClipEnd;
    double Start = 0.0; // of texel 0
    double PixelsPerTexel = 0.0;
};

// The pixels with their middle on the texels from `from` on.
struct Run
{
    Run(const Grid& grid, double from, double count)
    {
        const double start = grid.Start + from * grid.PixelsPerTexel;
        const double end = start + count * grid.PixelsPerTexel;
        const double first = std::max(grid.ClipFirst, std::ceil(start - 0.5));
        const double last = std::min(grid.ClipEnd, std::ceil(end - 0.5));
        // Places that are no numbers too: nothing to draw.
        if (!(first < last) || !(start < end))
        {
            return;
        }
        First = static_cast<int>(first);
        Count = static_cast<int>(last) - First;
        const double texel = std::clamp((first + 0.5 - start) / grid.PixelsPerTexel, 0.0, count);
        Texel = static_cast<int>(texel);
        Share = static_cast<float>(texel - Texel);
        Pitch = static_cast<float>(std::min(1.0 / grid.PixelsPerTexel, count));
    }

    int First = 0;
    int Count = 0;
    int Texel = 0; // under the first pixel
    float Share = 0.0F;
    float Pitch = 0.0F; // texels per pixel
};
} // namespace

CImagePlot::CImagePlot() = default;
CImagePlot::~CImagePlot() = default;

void CImagePlot::SetRaster(const Raster& raster)
{
    if (raster.Width != Image.Width || raster.Height != Image.Height)
    {
        Tiles.clear();
    }
    Image = raster;
    for (Tile& tile : Tiles)
    {
        tile.IsCurrent = false;
    }
}

void CImagePlot::SetColors(const PaletteTable& colors)
{
    Colors = colors;
    ColorsAreCurrent = false;
}

void CImagePlot::ReleaseGraphicsResources()
{
    Tiles.clear();
    ColorTexture = nullptr;
    Quad.reset();
    this->Superclass::ReleaseGraphicsResources();
}

void CImagePlot::MakeTiles(int32_t longestSide)
{
    const auto side = [longestSide](int32_t total, int32_t first)
    { return std::min(longestSide, total - first); };
    // In 64 bits: the step behind the last tile may be one too far.
    for (int64_t y = 0; y < Image.Height; y += longestSide)
    {
        for (int64_t x = 0; x < Image.Width; x += longestSide)
        {
            const auto column = static_cast<int32_t>(x);
            const auto row = static_cast<int32_t>(y);
            Tiles.push_back(
                {column, row, {side(Image.Width, column), side(Image.Height, row)}, nullptr});
        }
    }
}

void CImagePlot::Upload(Tile& tile, vtkOpenGLRenderWindow* window) const
{
    if (!tile.Texture)
    {
        tile.Texture = vtkSmartPointer<vtkTextureObject>::New();
        tile.Texture->SetContext(window);
    }
    const int64_t first = int64_t{tile.Row} * Image.Width + tile.Column;
    vtkOpenGLState* state = window->GetState();
    state->vtkglPixelStorei(GL_UNPACK_ROW_LENGTH, Image.Width);
    // Only read.
    tile.Texture->Create2DFromRaw(static_cast<unsigned>(tile.Size[0]),
                                  static_cast<unsigned>(tile.Size[1]), 1, VTK_UNSIGNED_CHAR,
                                  const_cast<uint8_t*>(Image.Pixels + first));
    state->vtkglPixelStorei(GL_UNPACK_ROW_LENGTH, 0);
    tile.IsCurrent = true;
}

void CImagePlot::Prepare(vtkOpenGLRenderWindow* window)
{
    if (Tiles.empty())
    {
        MakeTiles(vtkTextureObject::GetMaximumTextureSize(window));
    }
    if (!ColorTexture)
    {
        ColorTexture = vtkSmartPointer<vtkTextureObject>::New();
        ColorTexture->SetContext(window);
        ColorsAreCurrent = false;
    }
    if (!ColorsAreCurrent)
    {
        ColorTexture->Create2DFromRaw(PaletteEntries, 1, 3, VTK_UNSIGNED_CHAR, Colors.data());
        ColorsAreCurrent = true;
    }
    if (Quad)
    {
        window->GetShaderCache()->ReadyShaderProgram(Quad->Program);
    }
    else
    {
        Quad = std::make_unique<vtkOpenGLQuadHelper>(window, nullptr, fragmentShader, nullptr);
    }
}

bool CImagePlot::Paint(vtkContext2D* /*painter*/)
{
    auto* window = vtkOpenGLRenderWindow::SafeDownCast(
        this->Scene ? this->Scene->GetRenderer()->GetRenderWindow() : nullptr);
    if (!Image.Pixels || !window)
    {
        return false;
    }
    Prepare(window);
    vtkShaderProgram* program = Quad->Program;
    if (!program)
    {
        return false;
    }
    vtkOpenGLState* state = window->GetState();
    const vtkOpenGLState::ScopedglScissor scissor(state);
    const vtkOpenGLState::ScopedglEnableDisable blend(state, GL_BLEND);
    state->vtkglDisable(GL_BLEND);
    int clip[4];
    int view[4];
    state->vtkglGetIntegerv(GL_SCISSOR_BOX, clip);
    state->vtkglGetIntegerv(GL_VIEWPORT, view);
    // From the axes in double precision, and not by the matrix of the scene: its numbers are
    // relative to the axis minimum where the range is far from zero, and it has floats only.
    const Grid columns(this->XAxis, 0, Image.Origin[0], Image.Spacing[0], clip, view);
    const Grid rows(this->YAxis, 1, Image.Origin[1], Image.Spacing[1], clip, view);

    ColorTexture->Activate();
    program->SetUniformi("colors", ColorTexture->GetTextureUnit());
    for (Tile& tile : Tiles)
    {
        const int32_t fromBelow = Image.Height - tile.Row - tile.Size[1];
        const Run x(columns, tile.Column, tile.Size[0]);
        const Run y(rows, fromBelow, tile.Size[1]);
        if (x.Count == 0 || y.Count == 0)
        {
            continue;
        }
        if (!tile.IsCurrent)
        {
            Upload(tile, window);
        }
        tile.Texture->Activate();
        const int corner[] = {x.First, y.First};
        const int texel[] = {x.Texel, y.Texel};
        const float share[] = {x.Share, y.Share};
        const float pitch[] = {x.Pitch, y.Pitch};
        program->SetUniformi("pixels", tile.Texture->GetTextureUnit());
        program->SetUniform2i("size", tile.Size);
        program->SetUniform2i("corner", corner);
        program->SetUniform2i("texel", texel);
        program->SetUniform2f("share", share);
        program->SetUniform2f("pitch", pitch);
        state->vtkglScissor(x.First, y.First, x.Count, y.Count);
        Quad->Render();
        tile.Texture->Deactivate();
    }
    ColorTexture->Deactivate();
    return true;
}

void CImagePlot::GetBounds(double bounds[4])
{
    const int32_t size[] = {Image.Width, Image.Height};
    for (size_t direction = 0; direction < 2; ++direction)
    {
        bounds[2 * direction] = Image.Origin[direction];
        bounds[2 * direction + 1] =
            Image.Origin[direction] + size[direction] * Image.Spacing[direction];
    }
}

vtkIdType CImagePlot::GetNearestPoint(const vtkVector2f& point, const vtkVector2f& /*tolerance*/,
                                      vtkVector2f* location, vtkIdType* /*segmentId*/)
{
    double place[2];
    this->TransformScreenToData(point.GetX(), point.GetY(), place[0], place[1]);
    const double column = std::floor((place[0] - Image.Origin[0]) / Image.Spacing[0]);
    const double row = std::floor((place[1] - Image.Origin[1]) / Image.Spacing[1]);
    const bool hits =
        Image.Pixels && column >= 0.0 && column < Image.Width && row >= 0.0 && row < Image.Height;
    if (!hits)
    {
        return -1;
    }
    *location = vtkVector2f(static_cast<float>(place[0]), static_cast<float>(place[1]));
    return static_cast<vtkIdType>(row) * Image.Width + static_cast<vtkIdType>(column);
}

vtkStdString CImagePlot::GetTooltipLabel(const vtkVector2d& /*plotPos*/, vtkIdType seriesIndex,
                                         vtkIdType /*segmentIndex*/)
{
    if (!Image.Pixels)
    {
        return {};
    }
    const vtkIdType column = seriesIndex % Image.Width;
    const vtkIdType row = seriesIndex / Image.Width;
    const auto place = [this](size_t direction, vtkIdType cell)
    { return Image.Origin[direction] + static_cast<double>(cell) * Image.Spacing[direction]; };
    const uint8_t byte = Image.Pixels[(Image.Height - 1 - row) * Image.Width + column];
    return this->GetNumber(place(0, column), this->XAxis) + ",  " +
           this->GetNumber(place(1, row), this->YAxis) + ":  " + std::to_string(byte);
}
