#include "elements2d/CElement_Image2D.h"

#include "elements2d/CImagePlot.h"

#include <vtkChartHistogram2D.h>

#include <algorithm>
#include <array>
#include <cstring>
#include <limits>

namespace
{
void ToBytes(const uint8_t* pixels, std::vector<uint8_t>& bytes, ImageForm& /*form*/)
{
    std::memcpy(bytes.data(), pixels, bytes.size());
}

// Byte 0 stands for TARVEX_INVALID_VALUE. Values that do not fit into a byte are spread over
// 1..255, and scale and offset in Z follow.
void ToBytes(const int16_t* pixels, std::vector<uint8_t>& bytes, ImageForm& form)
{
    constexpr int32_t invalid = TARVEX_INVALID_VALUE;
    const size_t count = bytes.size();
    // Invalid values are the lowest ones, so they cannot be the highest, and one less than them
    // wraps round to where it cannot be the lowest.
    int16_t lowestLessOne = std::numeric_limits<int16_t>::max();
    int16_t highest = std::numeric_limits<int16_t>::min();
    for (size_t i = 0; i < count; ++i)
    {
        lowestLessOne = std::min(lowestLessOne, static_cast<int16_t>(pixels[i] - 1));
        highest = std::max(highest, pixels[i]);
    }
    const int32_t min = lowestLessOne + 1;
    const int32_t max = highest;
    if (min >= max)
    {
        // All invalid: 0. Flat: 1, where nothing is measured too.
        std::memset(bytes.data(), min > max ? 0 : 1, count);
        return;
    }
    if (min >= 0 && max < 256)
    {
        std::transform(pixels, pixels + count, bytes.begin(),
                       [](int16_t value) { return static_cast<uint8_t>(value < 0 ? 0 : value); });
        return;
    }
    const double stepsPerUnit = 254.0 / (max - min);
    const double given = form.Scale[2];
    form.Scale[2] = given / stepsPerUnit;
    form.Offset[2] = min * given + form.Offset[2] + form.Scale[2];
    // The byte of each value that occurs, by its bits: cheaper than one division a pixel.
    std::array<uint8_t, 65536> byteOf;
    const auto bits = [](int32_t value) { return static_cast<uint16_t>(value); };
    byteOf[bits(invalid)] = 0;
    for (int32_t value = min; value <= max; ++value)
    {
        // NOLINTNEXTLINE(bugprone-incorrect-roundings): nothing here is negative
        const int byte = static_cast<int>((value - min) * stepsPerUnit + 1.0 + 0.5);
        byteOf[bits(value)] = static_cast<uint8_t>(std::clamp(byte, 1, 255));
    }
    std::transform(pixels, pixels + count, bytes.begin(),
                   [&](int16_t value) { return byteOf[bits(value)]; });
}
} // namespace

CElement_Image2D::CElement_Image2D() : CElement_2D(Type, 0.5, 0, 0, 255) {}

CImagePlot* CElement_Image2D::GetPlot() const
{
    return CImagePlot::SafeDownCast(Chart->GetPlot(0));
}

template <class Sample>
int32_t CElement_Image2D::Store(const Sample* pixels, const ImageForm& form)
{
    constexpr int32_t leastSide = 2;
    constexpr double leastScale = 1e-10;
    if (!pixels)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (form.Width < leastSide || form.Height < leastSide)
    {
        return STATUS_TOO_SMALL;
    }
    if (std::any_of(std::begin(form.Scale), std::end(form.Scale),
                    [](double scale) { return scale < leastScale; }) ||
        form.Palette >= uint32_t{PaletteCount})
    {
        return STATUS_OUT_OF_RANGE;
    }
    const int64_t count = int64_t{form.Width} * form.Height;
    if (count > std::numeric_limits<int32_t>::max())
    {
        return STATUS_OUT_OF_MEMORY;
    }
    if (Pixels.size() != static_cast<size_t>(count))
    {
        Pixels = std::vector<uint8_t>(static_cast<size_t>(count));
    }
    Form = form;
    ToBytes(pixels, Pixels, Form);
    return STATUS_OK;
}

template <class Sample>
int32_t CElement_Image2D::Initialize(const ChartSite& site, const Sample* pixels,
                                     const ImageForm& form)
{
    TakeSite(site);
    return Store(pixels, form);
}

template int32_t CElement_Image2D::Initialize(const ChartSite&, const uint8_t*, const ImageForm&);
template int32_t CElement_Image2D::Initialize(const ChartSite&, const int16_t*, const ImageForm&);

template <class Sample>
int32_t CElement_Image2D::SetValue(const Sample* pixels, const ImageForm& form)
{
    const int32_t status = Store(pixels, form);
    return status == STATUS_OK ? BuildPipeline() : status;
}

template int32_t CElement_Image2D::SetValue(const uint8_t*, const ImageForm&);
template int32_t CElement_Image2D::SetValue(const int16_t*, const ImageForm&);

int32_t CElement_Image2D::BuildPipeline()
{
    GetPlot()->SetRaster({Pixels.data(),
                          Form.Width,
                          Form.Height,
                          {Form.Offset[0], Form.Offset[1]},
                          {Form.Scale[0], Form.Scale[1]}});
    ApplyPalette();
    return STATUS_OK;
}

void CElement_Image2D::ApplyPalette()
{
    GetPlot()->SetColors(
        GetImageTable(static_cast<int32_t>(Form.Palette), {Color[0], Color[1], Color[2]}));
}

void CElement_Image2D::ApplyLook()
{
    GetPlot()->SetVisible(IsShown());
}

void CElement_Image2D::LeaveView()
{
    GetPlot()->SetRaster({});
}

int32_t CElement_Image2D::GetValue(uint8_t* pixels, double* scaleX, double* scaleY, double* scaleZ,
                                   double* offsetX, double* offsetY, double* offsetZ)
{
    if (!pixels)
    {
        return STATUS_NULL_ARGUMENT;
    }
    std::memcpy(pixels, Pixels.data(), Pixels.size());
    *scaleX = Form.Scale[0];
    *scaleY = Form.Scale[1];
    *scaleZ = Form.Scale[2];
    *offsetX = Form.Offset[0];
    *offsetY = Form.Offset[1];
    *offsetZ = Form.Offset[2];
    return STATUS_OK;
}

int32_t CElement_Image2D::GetImageSize(int32_t* width, int32_t* height)
{
    *width = Form.Width;
    *height = Form.Height;
    return STATUS_OK;
}

int32_t CElement_Image2D::SetPalette(uint32_t palette)
{
    if (palette >= uint32_t{PaletteCount})
    {
        return STATUS_OUT_OF_RANGE;
    }
    Form.Palette = palette;
    ApplyPalette();
    return STATUS_OK;
}

int32_t CElement_Image2D::GetPalette(int32_t* palette)
{
    *palette = static_cast<int32_t>(Form.Palette);
    return STATUS_OK;
}

int32_t CElement_Image2D::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    CElement_2D::SetColor(red, green, blue);
    return STATUS_WRONG_TYPE;
}

int32_t CElement_Image2D::GetColor(uint8_t* red, uint8_t* green, uint8_t* blue)
{
    CElement_2D::GetColor(red, green, blue);
    return STATUS_WRONG_TYPE;
}

int32_t CElement_Image2D::SetSize(double size)
{
    CElement_2D::SetSize(size);
    return STATUS_WRONG_TYPE;
}

int32_t CElement_Image2D::GetSize(double* size)
{
    CElement_2D::GetSize(size);
    return STATUS_WRONG_TYPE;
}

int32_t CElement_Image2D::GetBounds(double* xmin, double* xmax, double* ymin, double* ymax)
{
    *xmin = Form.Offset[0];
    *xmax = Form.Width * Form.Scale[0] + Form.Offset[0];
    *ymin = Form.Offset[1];
    *ymax = Form.Height * Form.Scale[1] + Form.Offset[1];
    return STATUS_OK;
}
