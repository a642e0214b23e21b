// The image of a chart, below all other plots: bytes, drawn through a table of colours by the
// graphics processor. The bytes go there once, whatever is done to axes and colours afterwards; the
// stock plot maps each pixel four times per refresh and sends the result with each picture.
#pragma once

#include "measurement/Palettes.h"

#include <memory>
#include <vector>

#include <vtkPlotHistogram2D.h>
#include <vtkSmartPointer.h>

class vtkOpenGLQuadHelper;
class vtkOpenGLRenderWindow;
class vtkTextureObject;

class CImagePlot : public vtkPlotHistogram2D
{
public:
    static CImagePlot* New();
    vtkTypeMacro(CImagePlot, vtkPlotHistogram2D);

    struct Raster
    {
        const uint8_t* Pixels = nullptr; // borrowed until the next raster; null: no image
        int32_t Width = 0;
        int32_t Height = 0;
        double Origin[2] = {0.0, 0.0};  // lower left corner, of the last row
        double Spacing[2] = {1.0, 1.0}; // of a pixel
    };
    // Both are seen with the next render.
    void SetRaster(const Raster& raster);
    void SetColors(const PaletteTable& colors);

    void Update() override {}
    bool Paint(vtkContext2D* painter) override;
    void ReleaseGraphicsResources() override;
    void GetBounds(double bounds[4]) override;
    // The pixel under a point, counted from the lower left corner.
    vtkIdType GetNearestPoint(const vtkVector2f& point, const vtkVector2f& tolerance,
                              vtkVector2f* location, vtkIdType* segmentId) override;
    using vtkPlotHistogram2D::GetNearestPoint;
    // Corner of a pixel, and its byte.
    vtkStdString GetTooltipLabel(const vtkVector2d& plotPos, vtkIdType seriesIndex,
                                 vtkIdType segmentIndex) override;

protected:
    CImagePlot();
    ~CImagePlot() override;

private:
    // A texture's share of the image: one holds all of it, unless the image is longer or wider
    // than a texture can be.
    struct Tile
    {
        int32_t Column; // of its first pixel in the image
        int32_t Row;
        int32_t Size[2];
        vtkSmartPointer<vtkTextureObject> Texture; // null: not been in sight yet
        bool IsCurrent = false;
    };
    void MakeTiles(int32_t longestSide);
    void Prepare(vtkOpenGLRenderWindow* window);
    void Upload(Tile& tile, vtkOpenGLRenderWindow* window) const;

    Raster Image;
    PaletteTable Colors{};
    bool ColorsAreCurrent = false;
    std::vector<Tile> Tiles;
    vtkSmartPointer<vtkTextureObject> ColorTexture;
    std::unique_ptr<vtkOpenGLQuadHelper> Quad;
};
