// A measured surface: its own copy of the samples, coloured by height or by intensity.
#pragma once

#include "elements3d/CElement_Scene.h"
#include "measurement/HeightRange.h"
#include "measurement/SurfaceGrid.h"

#include <array>
#include <cstdint>
#include <memory>
#include <type_traits>

#include <vtkSmartPointer.h>

class SurfaceMapper;
class vtkLookupTable;
class vtkScalarBarActor;

// Everything that surfaces have in common. `Samples` says which arrays a kind of surface holds and
// where a sample lies, see UniformSamples. Bad input is an error of the call and never hides a
// surface, so Valid stays true.
//
// A change makes everything new aside and swaps it in at its end: when memory runs out, the answer
// is STATUS_OUT_OF_MEMORY and data and picture are as before.
template <class Samples>
class CElement_Surface : public CElement_Scene
{
public:
    static constexpr int32_t Type = Samples::Type;

    CElement_Surface();
    ~CElement_Surface() override;

    int32_t BuildPipeline();
    // Accepts more rows than the surface has, and reads as many as it has. Does not render.
    int32_t AddIntensity(const uint8_t* values, int32_t columns, int32_t rows);
    // Does not render.
    int32_t ShowIntensity(bool show);
    // True: full cells only. False: also samples in no full cell. Rebuilds the picture and shows a
    // hidden surface. Does not render.
    int32_t SetRepresentationMode(bool fullCellsOnly);
    int32_t GetRepresentationMode(uint8_t* fullCellsOnly);
    // Takes the colours of a palette, without storing it as the palette of the surface.
    int32_t ApplyPalette(int32_t palette);
    int32_t ConnectScalarBar(vtkScalarBarActor* bar) override;

    // The palette of the channel that is shown: heights and intensities have one each.
    int32_t SetPalette(uint32_t palette);
    int32_t GetPaletteInForce(uint32_t* palette);
    // The range of values that the palette spans. Automatic: the heights without `percent` of the
    // samples at each end; else `min` to `max`, in height units or, while intensity is shown, in
    // its whole levels. What does not apply is not tested.
    int32_t SetZScaling(bool autoScale, double percent, double min, double max);
    // The percentage and the fixed range of heights, also while another range is in force.
    int32_t GetZScaling(uint8_t* autoScale, double* percent, double* min, double* max);

    // The background is the colour of missing values in the lookup table.
    int32_t SetBackgroundColor(double red, double green, double blue) override;
    // The lookup table carries the opacity, not the actor's property.
    int32_t SetTransparency(double transparency) override;
    int32_t GetBounds(bool widen, double* xmin, double* xmax, double* ymin, double* ymax,
                      double* zmin, double* zmax) override;
    // The colour of the one palette that has none of its own.
    int32_t SetColor(uint8_t red, uint8_t green, uint8_t blue) override;

protected:
    using Source = typename Samples::Source;

    int32_t InitializeFrom(const ElementSite& site, const Source& source,
                           const uint8_t* intensities, const SurfaceGrid& grid, bool fullCellsOnly);
    // Rebuilds the picture from new values and shows a hidden surface. If all samples are missing,
    // the new values are stored but the old picture stays. Does not render.
    int32_t SetValueFrom(const Source& source, const uint8_t* intensities, const SurfaceGrid& grid);

private:
    struct Data
    {
        SurfaceGrid Grid;
        Samples Values;
        std::shared_ptr<const uint8_t[]> Intensities; // may be null
    };
    struct Pipeline
    {
        vtkSmartPointer<SurfaceMapper> Mapper;
        vtkSmartPointer<vtkActor> Actor;
    };
    enum class Channel
    {
        Height,
        Intensity
    };
    // What the colours span. New values begin with new ranges.
    struct Ranges
    {
        HeightRange Heights; // raw; clipped by ClipPercent
        uint8_t IntensityMin = 0;
        uint8_t IntensityMax = 255;
    };

    static int32_t JudgeNumbers(const SurfaceGrid& grid);
    static int32_t JudgeGrid(const SurfaceGrid& grid);
    static Data CopyOf(const Source& source, const uint8_t* intensities, const SurfaceGrid& grid);
    // STATUS_BAD_COUNT without a valid sample. Throws std::bad_alloc.
    static int32_t FindRanges(const Data& data, double clipPercent, Ranges& ranges);

    // The pipeline that the given values need, with everything else as it is stored.
    Pipeline MakePipeline(const Data& data, const Ranges& ranges, Channel channel,
                          bool fullCellsOnly) const;
    void SetLevels(SurfaceMapper& mapper, const Data& data, Channel channel) const;
    void SetRange(SurfaceMapper& mapper, const Data& data, const Ranges& ranges,
                  Channel channel) const;
    vtkSmartPointer<vtkLookupTable> MakeLookupTable(int32_t palette) const;
    // Gives a field on which the colours depend a new value, and the colours of the palette in
    // force anew. Throws std::bad_alloc, with nothing changed.
    template <class Field>
    void Recolor(Field& field, std::type_identity_t<Field>&& value);
    // Into the scene, beside the present actor. Throws std::bad_alloc, with the scene unchanged.
    void EnterScene(vtkActor* actor) const;
    // Puts a finished pipeline, which is in the scene already, in the place of the present one.
    int32_t TakePipeline(Pipeline pipeline);
    int32_t SetAutoScale(double percent);
    static uint8_t RoundToByte(double value);
    // Brings stored values and channel onto the present picture.
    int32_t UpdateScalars();

    int32_t GetPalette(Channel channel) const
    {
        return channel == Channel::Intensity ? IntensityPalette : HeightPalette;
    }

    Data Held;
    Ranges ColorRanges;
    // False after values without a valid sample: the picture is that of earlier values then.
    bool IsPictureOfData = false;
    bool FullCellsOnly = true;
    Channel Shown = Channel::Height;

    double ClipPercent = 0.0; // of the samples at each end of the height range
    bool AutoScale = true;    // colours follow the height range
    double FixedMin = -10.0;  // in height units, without AutoScale
    double FixedMax = 10.0;
    int32_t HeightPalette = 0;
    int32_t IntensityPalette;
};
