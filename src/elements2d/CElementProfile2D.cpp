#include "elements2d/CElementProfile2D.h"

#include "elements2d/CProfilePlot.h"
#include "elements2d/ProfileSamples.h"

#include <vtkChartHistogram2D.h>

#include <algorithm>
#include <cmath>

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

CElementProfile2D::SampleStore::SampleStore(size_t capacity)
    : X(std::make_unique_for_overwrite<double[]>(capacity)),
      Y(std::make_unique_for_overwrite<double[]>(capacity)),
      PlotX(std::make_unique_for_overwrite<float[]>(capacity)),
      PlotY(std::make_unique_for_overwrite<float[]>(capacity)), Capacity(capacity)
{
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
    if (count > std::numeric_limits<int32_t>::max() - kept)
    {
        return STATUS_OUT_OF_MEMORY;
    }
    // All that asks for memory comes first.
    SampleStore larger = MakeRoom(kept, count);
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

    const bool moved = larger.Capacity > 0;
    if (moved)
    {
        std::swap(Store, larger);
    }
    Runs.swap(runs);
    SampleCount = kept + count;
    if (kept == 0)
    {
        Bounds = {};
    }
    Write(samples, kept, count, firstRun);
    ArrangePlots(std::move(added), Runs.size());
    for (size_t run = moved ? 0 : firstRun; run < Runs.size(); ++run)
    {
        ShowRun(run);
        if (run >= firstRun)
        {
            Tables[run]->Filled();
        }
    }
    return STATUS_OK;
}

CElementProfile2D::SampleStore CElementProfile2D::MakeRoom(int32_t kept, int32_t count) const
{
    const size_t needed = static_cast<size_t>(kept) + static_cast<size_t>(count);
    // A store that was once much larger is given back.
    constexpr size_t muchLarger = 8;
    if (needed <= Store.Capacity && (kept > 0 || Store.Capacity / muchLarger <= needed))
    {
        return {};
    }
    // Growing by half as much again, so that many small additions do not copy all each time.
    SampleStore larger(kept > 0 ? std::max(needed, Store.Capacity + Store.Capacity / 2) : needed);
    std::copy_n(Store.X.get(), kept, larger.X.get());
    std::copy_n(Store.Y.get(), kept, larger.Y.get());
    std::copy_n(Store.PlotX.get(), kept, larger.PlotX.get());
    std::copy_n(Store.PlotY.get(), kept, larger.PlotY.get());
    return larger;
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
    double* const x = Store.X.get();
    double* const y = Store.Y.get();
    const CPlotTable::Columns columns{Store.PlotX.get(), Store.PlotY.get()};
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
    BringToTop();
    for (CProfilePlot* plot : added.Plots)
    {
        Chart->AddPlot(plot);
        Plots.push_back(plot);
    }
    std::move(added.Tables.begin(), added.Tables.end(), std::back_inserter(Tables));
}

void CElementProfile2D::ShowRun(size_t run)
{
    const int32_t start = Runs[run].Start;
    const int32_t rows = Runs[run].GetLength();
    Tables[run]->View({Store.PlotX.get() + start, Store.PlotY.get() + start}, rows);
    ApplyMarkers(Plots[run], rows);
}

void CElementProfile2D::DropFirstXIfInvalid()
{
    if (!HasRuns() || Runs.front().Start > 0)
    {
        Store.X[0] = 0.0;
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
    std::copy_n(Store.X.get(), SampleCount, x);
    std::copy_n(Store.Y.get(), SampleCount, y);
    std::fill_n(valid, SampleCount, uint8_t{0});
    for (const Run& run : Runs)
    {
        std::fill(valid + run.Start, valid + run.End, uint8_t{1});
    }
    return STATUS_OK;
}

template int32_t CElementProfile2D::Replace(const GeneralSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Replace(const KorSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Replace(const UniformSamples&, int32_t, int32_t);
template int32_t CElementProfile2D::Attach(const GeneralSamples&, int32_t);
template int32_t CElementProfile2D::Attach(const KorSamples&, int32_t);
