// The members of CElement_Surface, for the files that instantiate it.
#pragma once

#include "measurement/CElement_Surface.h"

#include "Tarvex.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"
#include "measurement/Palettes.h"
#include "measurement/SurfaceMapper.h"
#include "measurement/SurfaceMesh.h"

#include <algorithm>
#include <new>

#include <vtkLookupTable.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkScalarBarActor.h>

template <class Samples>
CElement_Surface<Samples>::CElement_Surface() : CElement_Scene(Type), IntensityPalette(GreyPalette)
{
    Ambient = 0.3;
    Diffuse = 0.4;
    Specular = 0.3;
    SpecularPower = 0.0;
}

template <class Samples>
CElement_Surface<Samples>::~CElement_Surface() = default;

template <class Samples>
int32_t CElement_Surface<Samples>::JudgeNumbers(const SurfaceGrid& grid)
{
    return AreValidNumbers({grid.Scale[0], grid.Scale[1], grid.Scale[2], grid.Offset[0],
                            grid.Offset[1], grid.Offset[2]})
               ? STATUS_OK
               : STATUS_NOT_FINITE;
}

template <class Samples>
int32_t CElement_Surface<Samples>::JudgeGrid(const SurfaceGrid& grid)
{
    if (grid.Columns < 2 || grid.Rows < 2)
    {
        return STATUS_TOO_SMALL;
    }
    if (std::any_of(grid.Scale.begin(), grid.Scale.end(),
                    [](double scale) { return scale < 1e-12; }))
    {
        return STATUS_OUT_OF_RANGE;
    }
    return grid.GetCount() > MaxSurfacePoints ? STATUS_OUT_OF_MEMORY : STATUS_OK;
}

template <class Samples>
auto CElement_Surface<Samples>::CopyOf(const Source& source, const uint8_t* intensities,
                                       const SurfaceGrid& grid) -> Data
{
    Data data{grid, Samples::CopyOf(source, grid), nullptr};
    if (intensities)
    {
        const auto count = static_cast<size_t>(grid.GetCount());
        auto bytes = std::make_shared_for_overwrite<uint8_t[]>(count);
        std::copy_n(intensities, count, bytes.get());
        data.Intensities = std::move(bytes);
    }
    return data;
}

template <class Samples>
int32_t CElement_Surface<Samples>::InitializeFrom(const ElementSite& site, const Source& source,
                                                  const uint8_t* intensities,
                                                  const SurfaceGrid& grid, bool fullCellsOnly)
{
    int32_t status = TakeSite(site);
    if (status == STATUS_OK && !source.IsComplete())
    {
        status = STATUS_NULL_ARGUMENT;
    }
    if (status == STATUS_OK)
    {
        status = JudgeNumbers(grid);
    }
    if (status == STATUS_OK)
    {
        status = JudgeGrid(grid);
    }
    if (status != STATUS_OK)
    {
        return status;
    }
    if (site.Defaults)
    {
        // Not its fixed range: a new surface begins with its own.
        HeightPalette = site.Defaults->Palette;
        AutoScale = site.Defaults->AutoScale;
        ClipPercent = site.Defaults->ClipPercent;
    }
    FullCellsOnly = fullCellsOnly;
    try
    {
        Held = CopyOf(source, intensities, grid);
        return FindHeightRange(Held.Values.Heights.get(), static_cast<size_t>(grid.GetCount()),
                               ClipPercent, Range);
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
}

template <class Samples>
int32_t CElement_Surface<Samples>::BuildPipeline()
{
    if (!Held.Values.Heights)
    {
        return STATUS_NO_DATA;
    }
    try
    {
        Pipeline pipeline = MakePipeline(Held, Range, Shown, FullCellsOnly);
        Mapper = pipeline.Mapper;
        Actor = pipeline.Actor;
        IsPictureOfData = true;
        return STATUS_OK;
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetValueFrom(const Source& source, const uint8_t* intensities,
                                                const SurfaceGrid& grid)
{
    int32_t status = JudgeNumbers(grid);
    if (status == STATUS_OK && !source.IsComplete())
    {
        status = STATUS_NULL_ARGUMENT;
    }
    if (status == STATUS_OK)
    {
        status = JudgeGrid(grid);
    }
    if (status != STATUS_OK)
    {
        return status;
    }

    const Channel channel = intensities ? Shown : Channel::Height;
    Pipeline pipeline;
    try
    {
        Data data = CopyOf(source, intensities, grid);
        HeightRange range;
        status = FindHeightRange(data.Values.Heights.get(), static_cast<size_t>(grid.GetCount()),
                                 ClipPercent, range);
        if (status == STATUS_OK)
        {
            pipeline = MakePipeline(data, range, channel, FullCellsOnly);
        }
        Held = std::move(data);
        Range = range;
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    Shown = channel;
    IntensityMin = 0;
    IntensityMax = 255;
    IsPictureOfData = status == STATUS_OK;
    return status == STATUS_OK ? ShowPipeline(std::move(pipeline)) : status;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetRepresentationMode(bool fullCellsOnly)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    Pipeline pipeline;
    try
    {
        pipeline = MakePipeline(Held, Range, Shown, fullCellsOnly);
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    FullCellsOnly = fullCellsOnly;
    IsPictureOfData = true;
    return ShowPipeline(std::move(pipeline));
}

template <class Samples>
int32_t CElement_Surface<Samples>::GetRepresentationMode(uint8_t* fullCellsOnly)
{
    if (!Actor)
    {
        return STATUS_NOT_READY;
    }
    *fullCellsOnly = FullCellsOnly ? 1 : 0;
    return STATUS_OK;
}

// Neither scalars nor normals are made for the mesh: the mapper colours by the samples themselves,
// and shades by the slope of each triangle.
template <class Samples>
auto CElement_Surface<Samples>::MakePipeline(const Data& data, const HeightRange& range,
                                             Channel channel, bool fullCellsOnly) const -> Pipeline
{
    Pipeline made{vtkSmartPointer<SurfaceMapper>::New(), vtkSmartPointer<vtkActor>::New()};
    made.Mapper->SetMesh(SurfaceMeshBuilder<Samples>(data.Values, data.Grid).Build(!fullCellsOnly));
    made.Mapper->SetLookupTable(MakeLookupTable(GetPalette(channel)));
    SetLevels(*made.Mapper, data, channel);
    SetRange(*made.Mapper, data, range, channel);

    made.Actor->SetMapper(made.Mapper);
    made.Actor->GetProperty()->SetColor(1.0, 1.0, 1.0);
    ApplyLighting(made.Actor);
    MirrorByUserMatrix(made.Actor);
    const bool isUsable = made.Mapper->GetMesh().Bounds.IsUsable();
    made.Actor->SetUseBounds(isUsable);
    made.Actor->SetVisibility(isUsable);
    return made;
}

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
                                         const HeightRange& range, Channel channel) const
{
    if (channel == Channel::Intensity)
    {
        mapper.SetScalarRange(IntensityMin, IntensityMax);
    }
    else if (AutoScale)
    {
        mapper.SetScalarRange(data.Grid.Place(2, range.Minimum), data.Grid.Place(2, range.Maximum));
    }
    else
    {
        mapper.SetScalarRange(FixedMin, FixedMax);
    }
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
int32_t CElement_Surface<Samples>::ShowPipeline(Pipeline pipeline)
{
    if (Actor && Renderer)
    {
        Renderer->RemoveActor(Actor);
    }
    // The old picture gives its memory back before the new one needs the same on the graphics side.
    Mapper = std::move(pipeline.Mapper);
    Actor = std::move(pipeline.Actor);
    return Show(true);
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
        SetRange(mapper, Held, Range, Shown);
    }
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::AddIntensity(const uint8_t* values, int32_t columns,
                                                int32_t rows)
{
    if (!values || !Held.Values.Heights)
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (columns != Held.Grid.Columns || rows < Held.Grid.Rows)
    {
        return STATUS_TOO_SMALL;
    }
    std::shared_ptr<const uint8_t[]> previous = Held.Intensities;
    try
    {
        const auto count = static_cast<size_t>(Held.Grid.GetCount());
        auto bytes = std::make_shared_for_overwrite<uint8_t[]>(count);
        std::copy_n(values, count, bytes.get());
        Held.Intensities = std::move(bytes);
        if (Shown == Channel::Intensity)
        {
            UpdateScalars();
        }
        return STATUS_OK;
    }
    catch (const std::bad_alloc&)
    {
        Held.Intensities = std::move(previous);
        return STATUS_OUT_OF_MEMORY;
    }
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
int32_t CElement_Surface<Samples>::SetBackgroundColor(double red, double green, double blue)
{
    CElement_Scene::SetBackgroundColor(red, green, blue);
    ApplyPalette(GetPalette(Shown));
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetTransparency(double transparency)
{
    if (IsOutside(transparency, 0.0, 1.0))
    {
        return STATUS_OUT_OF_RANGE;
    }
    Transparency = transparency;
    ApplyPalette(GetPalette(Shown));
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::SetColor(uint8_t red, uint8_t green, uint8_t blue)
{
    Color[0] = red;
    Color[1] = green;
    Color[2] = blue;
    if (GetPalette(Shown) == SingleColorPalette)
    {
        ApplyPalette(SingleColorPalette);
    }
    return STATUS_OK;
}

template <class Samples>
int32_t CElement_Surface<Samples>::GetBounds(bool widen, double* xmin, double* xmax, double* ymin,
                                             double* ymax, double* zmin, double* zmax)
{
    *xmin = *xmax = *ymin = *ymax = *zmin = *zmax = 0.0;
    if (!Held.Values.Heights)
    {
        return STATUS_NOT_READY;
    }
    const std::array<double, 4> extent = Held.Values.GetExtent(Held.Grid);
    *xmin = extent[0];
    *xmax = extent[1];
    *ymin = extent[2];
    *ymax = extent[3];
    *zmin = AutoScale ? Held.Grid.Place(2, Range.Minimum) : FixedMin;
    *zmax = AutoScale ? Held.Grid.Place(2, Range.Maximum) : FixedMax;
    if (widen)
    {
        const double side = ((*xmax - *xmin) + (*ymax - *ymin)) * 0.5;
        if (side * 0.3 > *zmax - *zmin)
        {
            // The second mean is that of the lowered minimum: hosts know the lopsided frame.
            *zmin = (*zmin + *zmax) * 0.5 - side * 0.15;
            *zmax = (*zmin + *zmax) * 0.5 + side * 0.15;
        }
    }
    return STATUS_OK;
}
