#include "SurfaceElement.h"

#include "Library.h"

#include <Tarvex.h>

#include <algorithm>
#include <array>

struct SurfaceCalls
{
    decltype(&Tarvex_Element_GetPalette_SurfaceUniform) GetPalette;
    decltype(&Tarvex_Element_SetPalette_SurfaceUniform) SetPalette;
    decltype(&Tarvex_Element_ZScalingPalette_SurfaceUniform) SetRange;
    decltype(&Tarvex_Element_ShowIntensity_SurfaceUniform) ShowIntensity;
    decltype(&Tarvex_Element3D_SurfaceUniform_GetRepresentationMode) GetMode;
    decltype(&Tarvex_Element3D_SurfaceUniform_SetRepresentationMode) SetMode;
};

namespace
{
constexpr SurfaceCalls RegularGridCalls = {
    Tarvex_Element_GetPalette_SurfaceUniform,
    Tarvex_Element_SetPalette_SurfaceUniform,
    Tarvex_Element_ZScalingPalette_SurfaceUniform,
    Tarvex_Element_ShowIntensity_SurfaceUniform,
    Tarvex_Element3D_SurfaceUniform_GetRepresentationMode,
    Tarvex_Element3D_SurfaceUniform_SetRepresentationMode,
};
constexpr SurfaceCalls FreePositionCalls = {
    Tarvex_Element_GetPalette_SurfaceNonUniform,
    Tarvex_Element_SetPalette_SurfaceNonUniform,
    Tarvex_Element_ZScalingPalette_SurfaceNonUniform,
    Tarvex_Element_ShowIntensity_SurfaceNonUniform,
    Tarvex_Element3D_SurfaceNonUniform_GetRepresentationMode,
    Tarvex_Element3D_SurfaceNonUniform_SetRepresentationMode,
};

constexpr uint32_t PaletteCount = TARVEX_PALETTE_SINGLE_COLOR + 1;
constexpr std::array ClipSteps = {0.0, 0.5, 1.0, 2.0, 5.0, 10.0, 20.0, 40.0};
} // namespace

SurfaceElement::SurfaceElement(int32_t view, const HeightMap& map, const SurfaceLook& look)
    : View(view), Calls(map.HasFreePositions() ? FreePositionCalls : RegularGridCalls),
      Range(look.Range), Exaggeration(look.Exaggeration), HasIntensities(!map.Intensities.empty())
{
    Add(map, look);
    // Heights and intensities have colours of their own; these are for the heights, shown first.
    if (look.Palette)
    {
        Check(Calls.SetPalette(View, Element, static_cast<uint32_t>(*look.Palette)),
              "Tarvex_Element_SetPalette");
    }
    UseRange();
    if (HasIntensities)
    {
        ShowIntensity(true);
        // A camera often uses a small part of 0 to 255, which would be one grey.
        const auto [darkest, brightest] =
            std::minmax_element(map.Intensities.begin(), map.Intensities.end());
        Darkest = std::min<int32_t>(*darkest, 254);
        Brightest = std::max<int32_t>(*brightest, *darkest + 1);
        UseRange();
    }
}

void SurfaceElement::Add(const HeightMap& map, const SurfaceLook& look)
{
    const uint8_t* intensities = HasIntensities ? map.Intensities.data() : nullptr;
    const double zScale = map.ZScale * look.Exaggeration;
    const double zOffset = map.ZOffset * look.Exaggeration;
    const uint8_t mode = look.IsolatedSamples ? TARVEX_MESH_CELLS_AND_POINTS : TARVEX_MESH_CELLS;
    if (map.HasFreePositions())
    {
        Check(Tarvex_Element_Add_SurfaceNonUniform(
                  View, map.XSamples.data(), map.YSamples.data(), map.Samples.data(), intensities,
                  map.Columns, map.Rows, map.XScale, map.YScale, zScale, map.XOffset, map.YOffset,
                  zOffset, mode, &Element),
              "Tarvex_Element_Add_SurfaceNonUniform");
        return;
    }
    Check(Tarvex_Element_Add_SurfaceUniform(View, map.Samples.data(), intensities, map.Columns,
                                            map.Rows, map.XScale, map.YScale, zScale, map.XOffset,
                                            map.YOffset, zOffset, mode, &Element),
          "Tarvex_Element_Add_SurfaceUniform");
}

void SurfaceElement::Replace(const HeightMap& map)
{
    const uint8_t* intensities = HasIntensities ? map.Intensities.data() : nullptr;
    const double zScale = map.ZScale * Exaggeration;
    const double zOffset = map.ZOffset * Exaggeration;
    if (map.HasFreePositions())
    {
        Check(Tarvex_Element_SurfaceNonUniform_SetValue(
                  View, Element, map.XSamples.data(), map.YSamples.data(), map.Samples.data(),
                  intensities, map.Columns, map.Rows, map.XScale, map.YScale, zScale, map.XOffset,
                  map.YOffset, zOffset),
              "Tarvex_Element_SurfaceNonUniform_SetValue");
    }
    else
    {
        Check(Tarvex_Element_SurfaceUniform_SetValue(View, Element, map.Samples.data(), intensities,
                                                     map.Columns, map.Rows, map.XScale, map.YScale,
                                                     zScale, map.XOffset, map.YOffset, zOffset),
              "Tarvex_Element_SurfaceUniform_SetValue");
    }
    // New samples come with ranges that hold all of them.
    UseRange();
}

SurfaceColors SurfaceElement::Colors() const
{
    SurfaceColors colors;
    Check(Calls.GetPalette(View, Element, &colors.Palette), "Tarvex_Element_GetPalette");
    colors.Intensity = IntensityShown;
    return colors;
}

void SurfaceElement::UseRange()
{
    if (IntensityShown)
    {
        Check(Calls.SetRange(View, Element, 0, 0.0, Darkest, Brightest),
              "Tarvex_Element_ZScalingPalette");
        return;
    }
    Check(Calls.SetRange(View, Element, Range.Fixed ? 0 : 1, Range.ClipPercent,
                         Range.Min * Exaggeration, Range.Max * Exaggeration),
          "Tarvex_Element_ZScalingPalette");
}

void SurfaceElement::UseNextPalette()
{
    Check(Calls.SetPalette(View, Element, (Colors().Palette + 1) % PaletteCount),
          "Tarvex_Element_SetPalette");
}

void SurfaceElement::ChangeClipping(int32_t steps)
{
    if (IntensityShown)
    {
        return; // only heights have a range that follows the data
    }
    // From a fixed range the first press goes to all of the data.
    const auto found = std::lower_bound(ClipSteps.begin(), ClipSteps.end(), Range.ClipPercent);
    const auto last = static_cast<int32_t>(ClipSteps.size()) - 1;
    const int32_t next = Range.Fixed ? 0 : static_cast<int32_t>(found - ClipSteps.begin()) + steps;
    Range = {};
    Range.ClipPercent = ClipSteps[static_cast<size_t>(std::clamp(next, 0, last))];
    UseRange();
}

void SurfaceElement::ToggleIsolatedSamples()
{
    uint8_t mode = TARVEX_MESH_CELLS;
    Check(Calls.GetMode(View, Element, &mode), "Tarvex_Element3D_GetRepresentationMode");
    mode = mode == TARVEX_MESH_CELLS ? TARVEX_MESH_CELLS_AND_POINTS : TARVEX_MESH_CELLS;
    Check(Calls.SetMode(View, Element, mode), "Tarvex_Element3D_SetRepresentationMode");
}

void SurfaceElement::ToggleIntensity()
{
    if (HasIntensities)
    {
        ShowIntensity(!IntensityShown);
    }
}

void SurfaceElement::ShowIntensity(bool show)
{
    Check(Calls.ShowIntensity(View, Element, show ? 1 : 0), "Tarvex_Element_ShowIntensity");
    IntensityShown = show;
    // A range that is set for the one ends the automatic one of the other.
    UseRange();
}
