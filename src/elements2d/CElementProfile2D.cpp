#include "elements2d/CElementProfile2D.h"

#include "elements2d/CProfilePlot.h"
#include "elements2d/ProfileSamples.h"
#include "frame/NumberTest.h"

#include <vtkChartHistogram2D.h>

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <new>

namespace
{
// Asks for very much as a whole first: a system may promise each part of what it cannot hold
// together.
bool CanHold(size_t samples)
{
    constexpr size_t much = size_t{1} << 30U;
    const size_t bytes = samples * (2 * sizeof(double) + 2 * sizeof(float));
    return bytes < much ||
           std::unique_ptr<void, decltype(&std::free)>(std::malloc(bytes), &std::free);
}
} // namespace

CElementProfile2D::CElementProfile2D(int32_t elementType)
    : CElement_2D(elementType, 1.0, 255, 255, 255)
{
}

CElementProfile2D::~CElementProfile2D() = default;

void CElementProfile2D::Begin(const ChartSite& site, std::string columnName)
{
    TakeSite(site);
    ColumnName = std::move(columnName);
    Color[1] = Color[2] = 0;
}

void CElementProfile2D::Extent::Include(double x, double y)
{
    if (std::isfinite(x) && std::isfinite(y))
    {
        XMin = std::min(XMin, x);
        XMax = std::max(XMax, x);
        YMin = std::min(YMin, y);
        YMax = std::max(YMax, y);
    }
}

template <class Samples>
int32_t CElementProfile2D::Replace(const Samples& samples, int32_t count, int32_t leastCount)
{
    return Take(samples, 0, count, leastCount);
}

template <class Samples>
int32_t CElementProfile2D::Attach(const Samples& samples, int32_t count)
{
    return Take(samples, SampleCount, count, 1);
}

template <class Samples>
int32_t CElementProfile2D::Take(const Samples& samples, int32_t kept, int32_t count,
                                int32_t leastCount)
{
    if (!samples.HasArrays())
    {
        return STATUS_NULL_ARGUMENT;
    }
    if (count < leastCount)
    {
        return STATUS_TOO_SMALL;
    }
    if (!samples.HasValidNumbers())
    {
        return STATUS_NOT_FINITE;
    }
    if (!FitsAnArray<double>(int64_t{kept} + count))
    {
        return STATUS_OUT_OF_MEMORY;
    }
    // All that asks for memory comes first.
    Reserve(static_cast<size_t>(kept) + static_cast<size_t>(count));
    std::vector<Run> runs;
    size_t firstRun = 0;
    if (kept > 0)
    {
        runs = Runs;
        const bool reopened = HasRuns() && Runs.back().End == kept && samples.IsValid(0);
        firstRun = Runs.size() - (reopened ? 1 : 0);
    }
    FindRuns(samples, kept, count, runs);
    NewPlots added = MakePlots(runs.size());

    Runs.swap(runs);
    SampleCount = kept + count;
    if (kept == 0)
    {
        Bounds = {};
    }
    Write(samples, kept, count, firstRun);
    ArrangePlots(std::move(added), Runs.size());
    ShowRuns(firstRun);
    for (size_t run = firstRun; run < Runs.size(); ++run)
    {
        ApplyMarkers(Plots[run], Runs[run].GetLength());
        Tables[run]->Filled();
    }
    return STATUS_OK;
}

void CElementProfile2D::Reserve(size_t count)
{
    if (count <= Capacity)
    {
        return;
    }
    const auto grow = [this](size_t capacity)
    {
        const bool grown = CanHold(capacity) && X.Resize(capacity) && Y.Resize(capacity) &&
                           PlotX.Resize(capacity) && PlotY.Resize(capacity);
        ShowRuns(0);
        return grown;
    };
    // By at least as much again, so that many small additions do not move all each time. Room that
    // is not used costs no memory yet; but a system may not promise it.
    const size_t generous = std::max(count, 2 * Capacity);
    if (grow(generous))
    {
        Capacity = generous;
        return;
    }
    if (!grow(count))
    {
        throw std::bad_alloc();
    }
    Capacity = count;
}

template <class Samples>
void CElementProfile2D::FindRuns(const Samples& samples, int32_t kept, int32_t count,
                                 std::vector<Run>& runs)
{
    int32_t sample = 0;
    const auto skip = [&](bool valid)
    {
        while (sample < count && samples.IsValid(sample) == valid)
        {
            ++sample;
        }
        return kept + sample;
    };
    while (skip(false) < kept + count)
    {
        const int32_t start = kept + sample;
        const int32_t end = skip(true);
        if (!runs.empty() && runs.back().End == start)
        {
            runs.back().End = end;
        }
        else
        {
            runs.push_back({start, end});
        }
    }
}

template <class Samples>
void CElementProfile2D::Write(const Samples& samples, int32_t kept, int32_t count, size_t firstRun)
{
    double* const x = X.Get();
    double* const y = Y.Get();
    const CPlotTable::Columns columns{PlotX.Get(), PlotY.Get()};
    Extent extent = Bounds;
    int32_t sample = kept;
    const auto skipGap = [&](int32_t end)
    {
        for (; sample < end; ++sample)
        {
            x[sample] = samples.GetX(sample - kept);
            y[sample] = 0.0;
        }
    };
    for (size_t run = firstRun; run < Runs.size(); ++run)
    {
        skipGap(Runs[run].Start);
        for (; sample < Runs[run].End; ++sample)
        {
            x[sample] = samples.GetX(sample - kept);
            y[sample] = samples.GetY(sample - kept);
            columns.Write(sample, x[sample], y[sample]);
            extent.Include(x[sample], y[sample]);
        }
    }
    skipGap(kept + count);
    Bounds = extent;
}

CElementProfile2D::NewPlots CElementProfile2D::MakePlots(size_t count)
{
    NewPlots added;
    for (size_t run = Plots.size(); run < count; ++run)
    {
        added.Tables.push_back(std::make_unique<CPlotTable>(ColumnName));
        added.Plots.push_back(vtkSmartPointer<CProfilePlot>::New());
        SetUpPlot(added.Plots.back(), *added.Tables.back(), vtkPlotPoints::NONE);
        // One entry in a legend for the whole profile.
        added.Plots.back()->SetLegendVisibility(run == 0);
    }
    Plots.reserve(count);
    Tables.reserve(count);
    return added;
}

void CElementProfile2D::ArrangePlots(NewPlots added, size_t count)
{
    for (; Plots.size() > count; Plots.pop_back())
    {
        RemovePlot(Plots.back());
    }
    Tables.resize(Plots.size());
    RaisePlots();
    for (CProfilePlot* plot : added.Plots)
    {
        Chart->AddPlot(plot);
        Plots.push_back(plot);
    }
    std::move(added.Tables.begin(), added.Tables.end(), std::back_inserter(Tables));
}

void CElementProfile2D::ShowRuns(size_t firstRun)
{
    for (size_t run = firstRun; run < Runs.size(); ++run)
    {
        const int32_t start = Runs[run].Start;
        Tables[run]->View({PlotX.Get() + start, PlotY.Get() + start}, Runs[run].GetLength());
    }
}

void CElementProfile2D::DropFirstXIfInvalid()
{
    if (!HasRuns() || Runs.front().Start > 0)
    {
        X.Get()[0] = 0.0;
    }
}

int32_t CElementProfile2D::GetBounds(double* xmin, double* xmax, double* ymin, double* ymax)
{
    const bool any = Bounds.XMin <= Bounds.XMax;
    *xmin = any ? Bounds.XMin : 0.0;
    *xmax = any ? Bounds.XMax : 0.0;
    *ymin = any ? Bounds.YMin : 0.0;
    *ymax = any ? Bounds.YMax : 0.0;
    return CheckComplete();
}

int32_t CElementProfile2D::GetPointCount(int32_t* count)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    *count = SampleCount;
    return STATUS_OK;
}

int32_t CElementProfile2D::GetValue(double* x, double* y, uint8_t* valid)
{
    if (!IsReady())
    {
        return STATUS_NOT_READY;
    }
    if (!x || !y || !valid)
    {
        return STATUS_NULL_ARGUMENT;
    }
    std::copy_n(X.Get(), SampleCount, x);
    std::copy_n(Y.Get(), SampleCount, y);
    std::fill_n(valid, SampleCount, uint8_t{0});
    for (const Run& run : Runs)
    {
        std::fill(valid + run.Start, valid + run.End, uint8_t{1});
    }
    return STATUS_OK;
}

template int32_t CElementProfile2D::Replace(const GeneralSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Replace(const KorSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Replace(const PitchedSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Attach(const GeneralSamples&, int32_t);
template int32_t CElementProfile2D::Attach(const KorSamples&, int32_t);
