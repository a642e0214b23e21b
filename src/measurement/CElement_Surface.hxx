// The members of CElement_Surface that hold values and picture, for the files that instantiate it;
// those that colour are in CElement_SurfaceColoring.hxx.
#pragma once

#include "measurement/CElement_Surface.h"

#include "Tarvex.h"
#include "frame/ElementDefaults.h"
#include "frame/NumberTest.h"
#include "measurement/CElement_SurfaceColoring.hxx"
#include "measurement/SurfaceMapper.h"
#include "measurement/SurfaceMesh.h"

#include <algorithm>
#include <new>

#include <vtkProperty.h>
#include <vtkRenderer.h>

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
int32_t CElement_Surface<Samples>::FindRanges(const Data& data, double clipPercent, Ranges& ranges)
{
    ranges = Ranges{};
    return FindHeightRange(data.Values.Heights.get(), static_cast<size_t>(data.Grid.GetCount()),
                           clipPercent, ranges.Heights);
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
        return FindRanges(Held, ClipPercent, ColorRanges);
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
        Pipeline pipeline = MakePipeline(Held, ColorRanges, Shown, FullCellsOnly);
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
        Ranges ranges;
        status = FindRanges(data, ClipPercent, ranges);
        if (status == STATUS_OK)
        {
            pipeline = MakePipeline(data, ranges, channel, FullCellsOnly);
            EnterScene(pipeline.Actor);
        }
        Held = std::move(data);
        ColorRanges = ranges;
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    Shown = channel;
    IsPictureOfData = status == STATUS_OK;
    return status == STATUS_OK ? TakePipeline(std::move(pipeline)) : status;
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
        pipeline = MakePipeline(Held, ColorRanges, Shown, fullCellsOnly);
        EnterScene(pipeline.Actor);
    }
    catch (const std::bad_alloc&)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    FullCellsOnly = fullCellsOnly;
    IsPictureOfData = true;
    return TakePipeline(std::move(pipeline));
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
auto CElement_Surface<Samples>::MakePipeline(const Data& data, const Ranges& ranges,
                                             Channel channel, bool fullCellsOnly) const -> Pipeline
{
    Pipeline made{vtkSmartPointer<SurfaceMapper>::New(), vtkSmartPointer<vtkActor>::New()};
    made.Mapper->SetMesh(SurfaceMeshBuilder<Samples>(data.Values, data.Grid).Build(!fullCellsOnly));
    made.Mapper->SetLookupTable(MakeLookupTable(GetPalette(channel)));
    SetLevels(*made.Mapper, data, channel);
    SetRange(*made.Mapper, data, ranges, channel);

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
void CElement_Surface<Samples>::EnterScene(vtkActor* actor) const
{
    try
    {
        Renderer->AddActor(actor);
    }
    catch (const std::bad_alloc&)
    {
        Renderer->RemoveActor(actor);
        throw;
    }
}

template <class Samples>
int32_t CElement_Surface<Samples>::TakePipeline(Pipeline pipeline)
{
    Renderer->RemoveActor(Actor);
    // The old picture gives its memory back before the new one needs the same on the graphics side.
    Mapper = std::move(pipeline.Mapper);
    Actor = std::move(pipeline.Actor);
    return SetInScene(true);
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
    *zmin = AutoScale ? Held.Grid.Place(2, ColorRanges.Heights.Minimum) : FixedMin;
    *zmax = AutoScale ? Held.Grid.Place(2, ColorRanges.Heights.Maximum) : FixedMax;
    if (widen)
    {
        WidenFlatRange(((*xmax - *xmin) + (*ymax - *ymin)) * 0.5, zmin, zmax);
    }
    return STATUS_OK;
}
