// The members of CElement_Surface that colour it: channel, palette, range, transparency.
#pragma once

#include "measurement/CElement_Surface.h"

#include "Tarvex.h"
#include "frame/NumberTest.h"
#include "measurement/Palettes.h"
#include "measurement/SurfaceMapper.h"

#include <algorithm>
#include <cmath>
#include <new>
#include <utility>

#include <vtkLookupTable.h>
#include <vtkScalarBarActor.h>

template <class Samples>
void CElement_Surface<Samples>::SetLevels(SurfaceMapper& mapper, const Data& data,
                                          Channel channel) const
{
    const SurfaceMesh& mesh = mapper.GetMesh();
    const auto count = static_cast<size_t>(data.Grid.GetCount());
    SurfaceLevels levels;
    if (channel == Channel::Intensity)
    {
        levels.Intensities = PerPoint(data.Intensities, count, mesh.Isolated);
        levels.Highest = 255;
    }
    else
    {
        levels.Heights = PerPoint(data.Values.Heights, count, mesh.Isolated);
        levels.Lowest = mesh.Heights.Minimum;
        levels.Highest = mesh.Heights.Maximum;
        levels.Scale = data.Grid.Scale[2];
        levels.Offset = data.Grid.Offset[2];
    }
    mapper.SetLevels(std::move(levels));
}

template <class Samples>
void CElement_Surface<Samples>::SetRange(SurfaceMapper& mapper, const Data& data,
                                         const Ranges& ranges, Channel channel) const
{
    if (channel == Channel::Intensity)
    {
        mapper.SetScalarRange(ranges.IntensityMin, ranges.IntensityMax);
    }
    else if (AutoScale)
    {
        mapper.SetScalarRange(data.Grid.Place(2, ranges.Heights.Minimum),
                              data.Grid.Place(2, ranges.Heights.Maximum));
    }
    else
    {
        mapper.SetScalarRange(FixedMin, FixedMax);
    }
    mapper.TellRange();
}

template <class Samples>
vtkSmartPointer<vtkLookupTable> CElement_Surface<Samples>::MakeLookupTable(int32_t palette) const
{
    const PaletteTable colors = GetPaletteTable(palette, {Color[0], Color[1], Color[2]});
    const double alpha = 1.0 - Transparency;
    auto table = vtkSmartPointer<vtkLookupTable>::New();
    table->SetNumberOfTableValues(PaletteEntries);
    table->Build();
    for (int32_t i = 0; i < PaletteEntries; ++i)
    {
        const PaletteColor& color = colors[static_cast<size_t>(i)];
        table->SetTableValue(i, color[0] / 255.0, color[1] / 255.0, color[2] / 255.0, alpha);
    }
    table->SetNanColor(BackgroundColor[0], BackgroundColor[1], BackgroundColor[2], 1.0);
    double end[4];
    table->GetTableValue(PaletteEntries - 1, end);
    table->SetAboveRangeColor(end);
    table->UseAboveRangeColorOn();
    table->GetTableValue(0, end);
    table->SetBelowRangeColor(end);
    table->UseBelowRangeColorOn();
    table->BuildSpecialColors();
    return table;
}

template <class Samples>
int32_t CElement_Surface<Samples>::UpdateScalars()
{
    if (!Mapper || (Shown == Channel::Intensity && !Held.Intensities))
    {
        return STATUS_NOT_READY;
    }
    if (IsPictureOfData)
    {
        auto& mapper = static_cast<SurfaceMapper&>(*Mapper);
        SetLevels(mapper, Held, Shown);
        SetRange(mapper, Held, ColorRanges, Shown);
    }
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::ShowIntensity(bool show)
{
    if (show && !Held.Intensities)
    {
        return STATUS_NOT_READY;
    }
    const Channel previous = Shown;
    try
    {
        Shown = show ? Channel::Intensity : Channel::Height;
        const vtkSmartPointer<vtkLookupTable> table = MakeLookupTable(GetPalette(Shown));
        const int32_t status = UpdateScalars();
        if (Mapper)
        {
            Mapper->SetLookupTable(table);
            static_cast<SurfaceMapper&>(*Mapper).TellRange();
        }
        return status;
    }
    catch (const std::bad_alloc&)
    {
        Shown = previous;
        return STATUS_OUT_OF_MEMORY;
    }
}

template <class Samples>
int32_t CElement_Surface<Samples>::ApplyPalette(int32_t palette)
{
    if (!IsPalette(palette))
    {
        return STATUS_OUT_OF_RANGE;
    }
    if (!Mapper)
    {
        return STATUS_NOT_READY;
    }
    Mapper->SetLookupTable(MakeLookupTable(palette));
    static_cast<SurfaceMapper&>(*Mapper).TellRange();
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::ConnectScalarBar(vtkScalarBarActor* bar)
{
    if (!bar)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    bar->SetLookupTable(Mapper->GetLookupTable());
    return STATUS_OK;
}

template <class Samples>
template <class Field>
void CElement_Surface<Samples>::Recolor(Field& field, std::type_identity_t<Field>&& value)
{
    std::swap(field, value);
    try
    {
        ApplyPalette(GetPalette(Shown));
    }
    catch (const std::bad_alloc&)
    {
        std::swap(field, value);
        throw;
    }
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetBackgroundColor(double red, double green, double blue)
{
    Recolor(BackgroundColor, {red, green, blue});
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetTransparency(double transparency)
{
    if (IsOutside(transparency, 0.0, 1.0))
    {
        return STATUS_OUT_OF_RANGE;
    }
    Recolor(Transparency, double{transparency});
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    Recolor(Color, {red, green, blue});
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetPalette(uint32_t palette)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    if (palette >= static_cast<uint32_t>(PaletteCount))
    {
        return STATUS_OUT_OF_RANGE;
    }
    const auto index = static_cast<int32_t>(palette);
    // Throws with nothing changed.
    const int32_t status = ApplyPalette(index);
    (Shown == Channel::Intensity ? IntensityPalette : HeightPalette) = index;
    return status;
}

template <class Samples>
int32_t CElement_Surface<Samples>::GetPaletteInForce(uint32_t* palette)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    *palette = static_cast<uint32_t>(GetPalette(Shown));
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetZScaling(bool autoScale, double percent, double min,
                                               double max)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    if (autoScale ? IsOutside(percent, 0.0, 45.0) : min >= max - 0.001)
    {
        return STATUS_OUT_OF_RANGE;
    }
    if (autoScale)
    {
        return Shown == Channel::Intensity ? STATUS_BAD_POINT : SetAutoScale(percent);
    }
    // Also when the range of an intensity is refused below.
    AutoScale = false;
    if (Shown == Channel::Intensity)
    {
        if (min < 0.0 || max > 255.0 || max - min < 1.0)
        {
            return STATUS_OUT_OF_RANGE;
        }
        ColorRanges.IntensityMin = RoundToByte(min);
        ColorRanges.IntensityMax = RoundToByte(max);
    }
    else
    {
        FixedMin = min;
        FixedMax = max;
    }
    // Also onto a picture of earlier values: these ranges do not depend on the samples.
    SetRange(static_cast<SurfaceMapper&>(*Mapper), Held, ColorRanges, Shown);
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetAutoScale(double percent)
{
    Ranges ranges;
    int32_t status = STATUS_OK;
    try
    {
        status = FindRanges(Held, percent, ranges);
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    AutoScale = true;
    ClipPercent = percent;
    ColorRanges = ranges;
    // Without a valid sample there is no range, and the picture of earlier values keeps its own.
    if (status == STATUS_OK)
    {
        SetRange(static_cast<SurfaceMapper&>(*Mapper), Held, ColorRanges, Shown);
    }
    return status;
}

template <class Samples>
uint8_t CElement_Surface<Samples>::RoundToByte(double value)
{
    // A NaN, which passes the tests of ranges, becomes 0.
    return value > 0.0 ? static_cast<uint8_t>(std::min(value + 0.5, 255.0)) : uint8_t{0};
}

template <class Samples>
int32_t CElement_Surface<Samples>::GetZScaling(uint8_t* autoScale, double* percent, double* min,
                                               double* max)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    *autoScale = AutoScale ? 1 : 0;
    *percent = ClipPercent;
    *min = FixedMin;
    *max = FixedMax;
    return STATUS_OK;
}
