#include "LiteralImage.h"

#include "measurement/Palettes.h"
#include "view2d/CWindow2D.h"

#include <vtkAxis.h>
#include <vtkContextScene.h>
#include <vtkPen.h>
#include <vtkTextProperty.h>

#include <algorithm>

LiteralImage::LiteralImage(const CWindow2D& view)
    : Window(view.GetRenderWindow()), Other(view.GetChart())
{
    Chart->SetShowLegend(false);
    Other->GetScene()->AddItem(Chart);
    Other->SetVisible(false);
    for (const int side : {vtkAxis::BOTTOM, vtkAxis::LEFT})
    {
        vtkAxis* axis = Chart->GetAxis(side);
        vtkAxis* from = Other->GetAxis(side);
        axis->SetBehavior(vtkAxis::FIXED);
        axis->SetUnscaledMinimum(from->GetUnscaledMinimum());
        axis->SetUnscaledMaximum(from->GetUnscaledMaximum());
        axis->GetPen()->DeepCopy(from->GetPen());
        axis->GetGridPen()->DeepCopy(from->GetGridPen());
        axis->GetLabelProperties()->ShallowCopy(from->GetLabelProperties());
        axis->GetTitleProperties()->ShallowCopy(from->GetTitleProperties());
    }
}

LiteralImage::~LiteralImage()
{
    Other->GetScene()->RemoveItem(Chart);
    Other->SetVisible(true);
}

void LiteralImage::SetRange(double xmin, double xmax, double ymin, double ymax)
{
    Chart->GetAxis(vtkAxis::BOTTOM)->SetUnscaledRange(xmin, xmax);
    Chart->GetAxis(vtkAxis::LEFT)->SetUnscaledRange(ymin, ymax);
}

void LiteralImage::Refresh()
{
    Chart->Update();
    Window->Render();
}

void LiteralImage::SetValue(const uint8_t* pixels, int width, int height, int palette)
{
    Pixels.assign(pixels, pixels + width * height);
    Build(width, height, palette);
}

void LiteralImage::SetValue(const int16_t* pixels, int width, int height, int palette)
{
    constexpr int16_t invalid = -32768;
    const int count = width * height;
    int min = 32767;
    int max = -32768;
    for (int i = 0; i < count; ++i)
    {
        if (pixels[i] != invalid)
        {
            min = std::min<int>(min, pixels[i]);
            max = std::max<int>(max, pixels[i]);
        }
    }
    const double k = 254.0 / (max - min);
    Pixels.resize(static_cast<size_t>(count));
    for (int i = 0; i < count; ++i)
    {
        const int byte = static_cast<int>((pixels[i] - min) * k + 1.0 + 0.5);
        Pixels[static_cast<size_t>(i)] =
            static_cast<uint8_t>(pixels[i] == invalid ? 0 : std::clamp(byte, 1, 255));
    }
    Build(width, height, palette);
}

void LiteralImage::Build(int width, int height, int palette)
{
    Chart->SetInputData(nullptr, 0);
    Chart->SetTransferFunction(nullptr);
    Image = vtkSmartPointer<vtkImageData>::New();
    Image->SetExtent(0, width - 1, 0, height - 1, 0, 0);
    Image->AllocateScalars(VTK_DOUBLE, 1);
    auto* scalars = static_cast<double*>(Image->GetScalarPointer());
    for (int y = 0; y < height; ++y)
    {
        for (int x = 0; x < width; ++x)
        {
            const uint8_t byte = Pixels[static_cast<size_t>(y * width + x)];
            scalars[(height - 1 - y) * width + x] = byte < 255 ? byte : 254.9999;
        }
    }
    Chart->SetInputData(Image, 0);
    const uint8_t blue[] = {0, 0, 255};
    Chart->SetTransferFunction(MakeColors(palette, blue));
}

vtkSmartPointer<vtkDiscretizableColorTransferFunction>
LiteralImage::MakeColors(int palette, const uint8_t own[3])
{
    auto colors = vtkSmartPointer<vtkDiscretizableColorTransferFunction>::New();
    colors->SetAlpha(1.0);
    colors->SetColorSpaceToRGB();
    colors->SetScaleToLinear();
    colors->SetDiscretize(1);
    colors->SetEnableOpacityMapping(false);
    colors->SetNumberOfIndexedColors(256);
    colors->SetNumberOfValues(256);
    colors->SetIndexedLookup(0);
    double range[] = {0.0, 256.0};
    colors->AdjustRange(range);
    for (const PaletteNode& node : GetPaletteNodes(palette))
    {
        colors->AddRGBPoint(node.Value, node.Color[0], node.Color[1], node.Color[2]);
    }
    if (palette == SingleColorPalette)
    {
        for (const double end : {0.0, 255.0})
        {
            colors->AddRGBPoint(end, own[0] / 255.0, own[1] / 255.0, own[2] / 255.0);
        }
    }
    colors->SetNanColor(0.0, 0.0, 0.0);
    colors->SetClamping(1);
    colors->Build();
    return colors;
}
