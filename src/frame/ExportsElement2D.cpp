// Exports that work on any chart element, and those of profiles and images in charts.
#include "Tarvex.h"

#include "elements2d/CElementProfileNonUniform2D.h"
#include "elements2d/CElementProfileUniform2D.h"
#include "elements2d/CElement_Image2D.h"
#include "frame/CallFrame.h"

int32_t Tarvex_Element2D_GetCount(int32_t windowId, int32_t* count)
{
    ClearToZero(count);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetElementCount, count);
}

int32_t Tarvex_Element2D_GetIDFromIndex(int32_t windowId, int32_t index, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetElementIDFromIndex, index, elementId);
}

int32_t Tarvex_Element2D_GetType(int32_t windowId, int32_t elementId, int32_t* type)
{
    ClearToNone(type);
    return OnView<CWindow2D>(windowId, &CWindow2D::GetElementType, elementId, type);
}

int32_t Tarvex_Element2D_HasValidValues(int32_t windowId, int32_t elementId, uint8_t* valid)
{
    ClearToZero(valid);
    return OnView<CWindow2D>(windowId, &CWindow2D::HasValidValues, elementId, valid);
}

int32_t Tarvex_Element2D_GetColor(int32_t windowId, int32_t elementId, uint8_t* red, uint8_t* green,
                                  uint8_t* blue)
{
    ClearToZero(red, green, blue);
    return OnElement(windowId, elementId, Render::Never, &CElement_2D::GetColor, red, green, blue);
}

int32_t Tarvex_Element2D_SetColor(int32_t windowId, int32_t elementId, uint8_t red, uint8_t green,
                                  uint8_t blue)
{
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_2D::SetColor, red, green,
                     blue);
}

int32_t Tarvex_Element2D_GetSize(int32_t windowId, int32_t elementId, double* size)
{
    ClearToZero(size);
    return OnElement(windowId, elementId, Render::Never, &CElement_2D::GetSize, size);
}

int32_t Tarvex_Element2D_SetSize(int32_t windowId, int32_t elementId, double size)
{
    return OnElement(windowId, elementId, Render::AfterSuccess, &CElement_2D::SetSize, size);
}

int32_t Tarvex_Element2D_Show(int32_t windowId, int32_t elementId, uint8_t show)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_2D::Show, show != 0);
}

int32_t Tarvex_Element2D_Remove(int32_t windowId, int32_t elementId)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::Remove, elementId);
}

int32_t Tarvex_Element2D_RemoveAll(int32_t windowId)
{
    return OnView<CWindow2D>(windowId, &CWindow2D::RemoveAll);
}

int32_t Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(int32_t windowId, const double* x,
                                                           const double* y, const uint8_t* valid,
                                                           int32_t count, int32_t* elementId,
                                                           const char* name)
{
    ClearToNone(elementId);
    return OnAddToChart<CElementProfileNonUniform2D>(windowId, ChartFit::Fill, elementId, x, y,
                                                     valid, count, name);
}

int32_t Tarvex_Element2D_Add_ProfileNonUniform_KorData(int32_t windowId, const int16_t* x,
                                                       const int16_t* z, int32_t count,
                                                       double xScale, double zScale, double xOffset,
                                                       double zOffset, int32_t* elementId,
                                                       const char* name)
{
    ClearToNone(elementId);
    return OnAddToChart<CElementProfileNonUniform2D>(windowId, ChartFit::KeepAspect, elementId, x,
                                                     z, count, xScale, zScale, xOffset, zOffset,
                                                     name);
}

int32_t Tarvex_Element2D_Add_ProfileUniform(int32_t windowId, const int16_t* z, int32_t count,
                                            double xSpacing, double zScale, double xStart,
                                            double zOffset, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAddToChart<CElementProfileUniform2D>(windowId, ChartFit::KeepAspect, elementId, z,
                                                  count, xSpacing, zScale, xStart, zOffset);
}

int32_t Tarvex_Element2D_ProfileNonUniform_SetValue_GeneralData(int32_t windowId, int32_t elementId,
                                                                int32_t count, const double* x,
                                                                const double* y,
                                                                const uint8_t* valid)
{
    return OnChange(windowId, elementId, &CElementProfileNonUniform2D::SetValue_GeneralData, count,
                    x, y, valid);
}

int32_t Tarvex_Element2D_ProfileNonUniform_SetValue_KorData(int32_t windowId, int32_t elementId,
                                                            int32_t count, const int16_t* x,
                                                            const int16_t* z, double xScale,
                                                            double zScale, double xOffset,
                                                            double zOffset)
{
    return OnChange(windowId, elementId, &CElementProfileNonUniform2D::SetValue_KorData, count, x,
                    z, xScale, zScale, xOffset, zOffset);
}

int32_t Tarvex_Element2D_ProfileNonUniform_AttachValues_GeneralData(int32_t windowId,
                                                                    int32_t elementId,
                                                                    int32_t count, const double* x,
                                                                    const double* y,
                                                                    const uint8_t* valid)
{
    return OnChange(windowId, elementId, &CElementProfileNonUniform2D::AttachValues_GeneralData,
                    count, x, y, valid);
}

int32_t Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData(int32_t windowId, int32_t elementId,
                                                                int32_t count, const int16_t* x,
                                                                const int16_t* z, double xScale,
                                                                double zScale, double xOffset,
                                                                double zOffset)
{
    return OnChange(windowId, elementId, &CElementProfileNonUniform2D::AttachValues_KorData, count,
                    x, z, xScale, zScale, xOffset, zOffset);
}

int32_t Tarvex_Element2D_ProfileNonUniform_GetPointCount(int32_t windowId, int32_t elementId,
                                                         int32_t* count)
{
    ClearToZero(count);
    return OnElement<CElementProfileNonUniform2D>(windowId, elementId, Render::Never,
                                                  &CElementProfile2D::GetPointCount, count);
}

int32_t Tarvex_Element2D_ProfileNonUniform_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                    double* y, uint8_t* valid)
{
    return OnElement<CElementProfileNonUniform2D>(windowId, elementId, Render::Never,
                                                  &CElementProfile2D::GetValue, x, y, valid);
}

int32_t Tarvex_Element2D_ProfileNonUniform_SetMarkerSize(int32_t windowId, int32_t elementId,
                                                         double size)
{
    return OnChange(windowId, elementId, &CElementProfileNonUniform2D::SetMarkerSize, size);
}

int32_t Tarvex_Element2D_ProfileUniform_SetValue(int32_t windowId, int32_t elementId, int32_t count,
                                                 const int16_t* z, double xSpacing, double zScale,
                                                 double xStart, double zOffset)
{
    return OnChange(windowId, elementId, &CElementProfileUniform2D::SetValue, count, z, xSpacing,
                    zScale, xStart, zOffset);
}

int32_t Tarvex_Element2D_ProfileUniform_GetPointCount(int32_t windowId, int32_t elementId,
                                                      int32_t* count)
{
    ClearToZero(count);
    return OnElement<CElementProfileUniform2D>(windowId, elementId, Render::Never,
                                               &CElementProfile2D::GetPointCount, count);
}

int32_t Tarvex_Element2D_ProfileUniform_GetValue(int32_t windowId, int32_t elementId, double* x,
                                                 double* y, uint8_t* valid)
{
    return OnElement<CElementProfileUniform2D>(windowId, elementId, Render::Never,
                                               &CElementProfile2D::GetValue, x, y, valid);
}

int32_t Tarvex_Element2D_Add_ImageByte(int32_t windowId, const uint8_t* pixels, int32_t width,
                                       int32_t height, double scaleX, double scaleY, double scaleZ,
                                       double offsetX, double offsetY, double offsetZ,
                                       uint32_t palette, int32_t* elementId)
{
    ClearToNone(elementId);
    const ImageForm form{
        width, height, {scaleX, scaleY, scaleZ}, {offsetX, offsetY, offsetZ}, palette};
    return OnView<CWindow2D>(windowId,
                             &CWindow2D::AddOnly<CElement_Image2D, const uint8_t*, ImageForm>,
                             elementId, pixels, form);
}

int32_t Tarvex_Element2D_Add_ImageShort(int32_t windowId, const int16_t* pixels, int32_t width,
                                        int32_t height, double scaleX, double scaleY, double scaleZ,
                                        double offsetX, double offsetY, double offsetZ,
                                        uint32_t palette, int32_t* elementId)
{
    ClearToNone(elementId);
    const ImageForm form{
        width, height, {scaleX, scaleY, scaleZ}, {offsetX, offsetY, offsetZ}, palette};
    return OnView<CWindow2D>(windowId,
                             &CWindow2D::AddOnly<CElement_Image2D, const int16_t*, ImageForm>,
                             elementId, pixels, form);
}

int32_t Tarvex_Element2D_Image_SetValueByte(int32_t windowId, int32_t elementId,
                                            const uint8_t* pixels, int32_t width, int32_t height,
                                            double scaleX, double scaleY, double scaleZ,
                                            double offsetX, double offsetY, double offsetZ,
                                            uint32_t palette)
{
    const ImageForm form{
        width, height, {scaleX, scaleY, scaleZ}, {offsetX, offsetY, offsetZ}, palette};
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::SetValue<uint8_t>,
                     pixels, form);
}

int32_t Tarvex_Element2D_Image_SetValueShort(int32_t windowId, int32_t elementId,
                                             const int16_t* pixels, int32_t width, int32_t height,
                                             double scaleX, double scaleY, double scaleZ,
                                             double offsetX, double offsetY, double offsetZ,
                                             uint32_t palette)
{
    const ImageForm form{
        width, height, {scaleX, scaleY, scaleZ}, {offsetX, offsetY, offsetZ}, palette};
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::SetValue<int16_t>,
                     pixels, form);
}

int32_t Tarvex_Element2D_Image_GetImageSize(int32_t windowId, int32_t elementId, int32_t* width,
                                            int32_t* height)
{
    ClearToZero(width, height);
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::GetImageSize, width,
                     height);
}

int32_t Tarvex_Element2D_Image_GetValue(int32_t windowId, int32_t elementId, uint8_t* pixels,
                                        double* scaleX, double* scaleY, double* scaleZ,
                                        double* offsetX, double* offsetY, double* offsetZ)
{
    ClearToZero(scaleX, scaleY, scaleZ, offsetX, offsetY, offsetZ);
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::GetValue, pixels,
                     scaleX, scaleY, scaleZ, offsetX, offsetY, offsetZ);
}

int32_t Tarvex_Element2D_GetPalette_Image(int32_t windowId, int32_t elementId, int32_t* palette)
{
    ClearToNone(palette);
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::GetPalette, palette);
}

int32_t Tarvex_Element2D_SetPalette_Image(int32_t windowId, int32_t elementId, uint32_t palette)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_Image2D::SetPalette, palette);
}
