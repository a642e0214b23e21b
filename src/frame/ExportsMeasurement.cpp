// Exports of the measured elements of 3D views: surfaces and profiles.
#include "Tarvex.h"

#include "frame/CallFrame.h"
#include "measurement/CElementProfileNonUniform.h"
#include "measurement/CElementProfileUniform.h"
#include "measurement/CElement_SurfaceNonUniform.h"
#include "measurement/CElement_SurfaceUniform.h"
#include "view3d/CWindow.h"

int32_t Tarvex_Element_Add_SurfaceUniform(int32_t windowId, const int16_t* heights,
                                          const uint8_t* intensities, int32_t columns, int32_t rows,
                                          double xScale, double yScale, double zScale,
                                          double xOffset, double yOffset, double zOffset,
                                          uint8_t mode, int32_t* elementId)
{
    ClearToNone(elementId);
    // Tested here, ahead of the view.
    if (heights == nullptr)
    {
        return STATUS_NULL_ARGUMENT;
    }

    return OnAdd<CElement_SurfaceUniform>(windowId, elementId, heights, intensities, columns, rows,
                                          xScale, yScale, zScale, xOffset, yOffset, zOffset,
                                          mode != 0);
}

int32_t Tarvex_Element_SurfaceUniform_SetValue(int32_t windowId, int32_t elementId,
                                               const int16_t* heights, const uint8_t* intensities,
                                               int32_t columns, int32_t rows, double xScale,
                                               double yScale, double zScale, double xOffset,
                                               double yOffset, double zOffset)
{
    return OnColoring(windowId, elementId, Render::AfterSuccess, &CElement_SurfaceUniform::SetValue,
                      heights, intensities, columns, rows, xScale, yScale, zScale, xOffset, yOffset,
                      zOffset);
}

int32_t Tarvex_Element_SurfaceUniform_AddIntensity(int32_t windowId, int32_t elementId,
                                                   const uint8_t* values, int32_t columns,
                                                   int32_t rows)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_SurfaceUniform::AddIntensity,
                     values, columns, rows);
}

int32_t Tarvex_Element_ShowIntensity_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                    uint8_t show)
{
    return OnColoring(windowId, elementId, Render::Always, &CElement_SurfaceUniform::ShowIntensity,
                      show != 0);
}

int32_t Tarvex_Element3D_SurfaceUniform_GetRepresentationMode(int32_t windowId, int32_t elementId,
                                                              uint8_t* mode)
{
    ClearTo(1, mode);
    return OnElement(windowId, elementId, Render::Never,
                     &CElement_SurfaceUniform::GetRepresentationMode, mode);
}

int32_t Tarvex_Element3D_SurfaceUniform_SetRepresentationMode(int32_t windowId, int32_t elementId,
                                                              uint8_t mode)
{
    return OnElement(windowId, elementId, Render::AfterSuccess,
                     &CElement_SurfaceUniform::SetRepresentationMode, mode != 0);
}

int32_t Tarvex_Element_GetPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                 uint32_t* palette)
{
    ClearToNone(palette);
    return OnElement(windowId, elementId, Render::Never,
                     &CElement_SurfaceUniform::GetPaletteInForce, palette);
}

int32_t Tarvex_Element_SetPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                 uint32_t palette)
{
    return OnColoring(windowId, elementId, Render::Always, &CElement_SurfaceUniform::SetPalette,
                      palette);
}

int32_t Tarvex_Element_GetZScalingPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                         uint8_t* autoScale, double* percent,
                                                         double* min, double* max)
{
    ClearToZero(autoScale, min, max);
    ClearTo(-1.0, percent);
    return OnElement(windowId, elementId, Render::Never, &CElement_SurfaceUniform::GetZScaling,
                     autoScale, percent, min, max);
}

int32_t Tarvex_Element_ZScalingPalette_SurfaceUniform(int32_t windowId, int32_t elementId,
                                                      uint8_t autoScale, double percent, double min,
                                                      double max)
{
    return OnColoring(windowId, elementId, Render::Always, &CElement_SurfaceUniform::SetZScaling,
                      autoScale != 0, percent, min, max);
}

int32_t Tarvex_Element_Add_SurfaceNonUniform(int32_t windowId, const int16_t* x, const int16_t* y,
                                             const int16_t* z, const uint8_t* intensities,
                                             int32_t columns, int32_t rows, double xScale,
                                             double yScale, double zScale, double xOffset,
                                             double yOffset, double zOffset, uint8_t mode,
                                             int32_t* elementId)
{
    ClearToNone(elementId);
    // Tested here, ahead of the view.
    if (x == nullptr || y == nullptr || z == nullptr)
    {
        return STATUS_NULL_ARGUMENT;
    }

    return OnAdd<CElement_SurfaceNonUniform>(windowId, elementId, x, y, z, intensities, columns,
                                             rows, xScale, yScale, zScale, xOffset, yOffset,
                                             zOffset, mode != 0);
}

int32_t Tarvex_Element_SurfaceNonUniform_SetValue(int32_t windowId, int32_t elementId,
                                                  const int16_t* x, const int16_t* y,
                                                  const int16_t* z, const uint8_t* intensities,
                                                  int32_t columns, int32_t rows, double xScale,
                                                  double yScale, double zScale, double xOffset,
                                                  double yOffset, double zOffset)
{
    return OnColoring(windowId, elementId, Render::AfterSuccess,
                      &CElement_SurfaceNonUniform::SetValue, x, y, z, intensities, columns, rows,
                      xScale, yScale, zScale, xOffset, yOffset, zOffset);
}

int32_t Tarvex_Element_SurfaceNonUniform_AddIntensity(int32_t windowId, int32_t elementId,
                                                      const uint8_t* values, int32_t columns,
                                                      int32_t rows)
{
    return OnElement(windowId, elementId, Render::Never, &CElement_SurfaceNonUniform::AddIntensity,
                     values, columns, rows);
}

int32_t Tarvex_Element_ShowIntensity_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                       uint8_t show)
{
    return OnColoring(windowId, elementId, Render::Always,
                      &CElement_SurfaceNonUniform::ShowIntensity, show != 0);
}

int32_t Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode(int32_t windowId,
                                                                 int32_t elementId, uint8_t* mode)
{
    ClearTo(1, mode);
    return OnElement(windowId, elementId, Render::Never,
                     &CElement_SurfaceNonUniform::GetRepresentationMode, mode);
}

int32_t Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode(int32_t windowId,
                                                                 int32_t elementId, uint8_t mode)
{
    return OnElement(windowId, elementId, Render::AfterSuccess,
                     &CElement_SurfaceNonUniform::SetRepresentationMode, mode != 0);
}

int32_t Tarvex_Element_GetPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                    uint32_t* palette)
{
    ClearToNone(palette);
    // Unlike its uniform twin, this getter does what the setter does after the call.
    return OnColoring(windowId, elementId, Render::Always,
                      &CElement_SurfaceNonUniform::GetPaletteInForce, palette);
}

int32_t Tarvex_Element_SetPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                    uint32_t palette)
{
    return OnColoring(windowId, elementId, Render::Always, &CElement_SurfaceNonUniform::SetPalette,
                      palette);
}

int32_t Tarvex_Element_GetZScalingPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                            uint8_t* autoScale, double* percent,
                                                            double* min, double* max)
{
    ClearToZero(autoScale, min, max);
    ClearTo(-1.0, percent);
    return OnElement(windowId, elementId, Render::Never, &CElement_SurfaceNonUniform::GetZScaling,
                     autoScale, percent, min, max);
}

int32_t Tarvex_Element_ZScalingPalette_SurfaceNonUniform(int32_t windowId, int32_t elementId,
                                                         uint8_t autoScale, double percent,
                                                         double min, double max)
{
    return OnColoring(windowId, elementId, Render::Always, &CElement_SurfaceNonUniform::SetZScaling,
                      autoScale != 0, percent, min, max);
}

int32_t Tarvex_Element_Add_ProfileUniform(int32_t windowId, const int16_t* z, int32_t count,
                                          double xScale, double zScale, double xOffset,
                                          double zOffset, double y, int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElementProfileUniform>(windowId, elementId, z, count, xScale, zScale, xOffset,
                                         zOffset, y);
}

int32_t Tarvex_Element_Add_ProfileNonUniform(int32_t windowId, const int16_t* x, const int16_t* z,
                                             int32_t count, double xScale, double zScale,
                                             double xOffset, double zOffset, double y,
                                             int32_t* elementId)
{
    ClearToNone(elementId);
    return OnAdd<CElementProfileNonUniform>(windowId, elementId, x, z, count, xScale, zScale,
                                            xOffset, zOffset, y);
}
