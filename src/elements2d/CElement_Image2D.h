// The image of a chart view: bytes, or 16-bit values reduced to bytes.
#pragma once

#include "Tarvex.h"
#include "elements2d/CElement_2D.h"
#include "measurement/Palettes.h"

#include <vector>

class CImagePlot;

struct ImageForm
{
    int32_t Width;
    int32_t Height;
    double Scale[3]; // chart units per pixel in X and Y, units per step of a value in Z
    double Offset[3];
    uint32_t Palette;
};

class CElement_Image2D : public CElement_2D
{
public:
    static constexpr int32_t Type = TARVEX_ELEMENT_IMAGE;

    CElement_Image2D();

    // Samples are bytes or 16-bit values.
    template <class Sample>
    int32_t Initialize(const ChartSite& site, const Sample* pixels, const ImageForm& form);
    int32_t BuildPipeline();
    template <class Sample>
    int32_t SetValue(const Sample* pixels, const ImageForm& form);
    // The bytes, and scale and offset in Z as they fit to them.
    int32_t GetValue(uint8_t* pixels, double* scaleX, double* scaleY, double* scaleZ,
                     double* offsetX, double* offsetY, double* offsetZ);
    int32_t GetImageSize(int32_t* width, int32_t* height);
    int32_t SetPalette(uint32_t palette);
    int32_t GetPalette(int32_t* palette);

    // Kept and handed out, but answered with STATUS_WRONG_TYPE. The colour is taken when the
    // palette of one colour is chosen next.
    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;
    int32_t GetColor(uint8_t* red, uint8_t* green, uint8_t* blue) override;
    int32_t SetSize(double size) override;
    int32_t GetSize(double* size) override;

    int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) override;
    using CElement_2D::GetBounds;
    void LeaveView() override;

protected:
    void ApplyLook() override;
    bool IsReady() const override { return Chart && !Pixels.empty(); }

private:
    // Judges and keeps. Changes nothing unless it answers STATUS_OK.
    template <class Sample>
    int32_t Store(const Sample* pixels, const ImageForm& form);
    CImagePlot* GetPlot() const;
    void ApplyPalette();

    std::vector<uint8_t> Pixels; // the first row is the uppermost
    ImageForm Form{};            // scale and offset in Z as they fit to the bytes
};
