// An image shown the plain way, with VTK's own chart and plot and a double for each pixel. The
// tests hold the pictures of the library against it, the benchmarks its times.
#pragma once

#include <cstdint>
#include <vector>

#include <vtkChartHistogram2D.h>
#include <vtkDiscretizableColorTransferFunction.h>
#include <vtkImageData.h>
#include <vtkNew.h>
#include <vtkRenderWindow.h>
#include <vtkSmartPointer.h>

class CWindow2D;

class LiteralImage
{
public:
    // Takes the place of the chart of `view` as long as it lives, with its ranges as they stand.
    explicit LiteralImage(const CWindow2D& view);
    ~LiteralImage();
    LiteralImage(const LiteralImage&) = delete;
    LiteralImage& operator=(const LiteralImage&) = delete;

    // Shown with the next refresh; X and Y in pixels, the lower left corner at 0, 0.
    void SetValue(const uint8_t* pixels, int width, int height, int palette);
    void SetValue(const int16_t* pixels, int width, int height, int palette);
    void SetRange(double xmin, double xmax, double ymin, double ymax);
    void Refresh();

    // With the nodes of a palette; that of one colour takes `own`, red, green and blue of 0..255.
    static vtkSmartPointer<vtkDiscretizableColorTransferFunction> MakeColors(int palette,
                                                                             const uint8_t own[3]);

private:
    void Build(int width, int height, int palette);

    vtkNew<vtkChartHistogram2D> Chart;
    vtkRenderWindow* Window;
    vtkChartHistogram2D* Other;
    vtkSmartPointer<vtkImageData> Image;
    std::vector<uint8_t> Pixels;
};
