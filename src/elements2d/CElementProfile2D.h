// A measured line in a chart. It is cut into runs of valid samples, so that nothing is drawn across
// a gap; each run has a table and a plot of its own, and all of them one look.
#pragma once

#include "Tarvex.h"
#include "elements2d/CElement_2D.h"
#include "elements2d/CGrowingArray.h"
#include "elements2d/CPlotTable.h"

#include <limits>
#include <memory>

#include <vtkSmartPointer.h>

class CProfilePlot;

class CElementProfile2D : public CElement_2D
{
public:
    static constexpr bool EndsDrawing = true;

    explicit CElementProfile2D(int32_t elementType);
    ~CElementProfile2D() override;

    // Initialize has stored and built all.
    int32_t BuildPipeline() { return STATUS_OK; }
    int32_t GetBounds(double* xmin, double* xmax, double* ymin, double* ymax) override;
    using CElement_2D::GetBounds;
    int32_t GetPointCount(int32_t* count);
    // For the host's arrays of as many samples as there are.
    int32_t GetValue(double* x, double* y, uint8_t* valid);

protected:
    // For Initialize: the element belongs to the chart and is red from here on.
    void Begin(const ChartSite& site, std::string columnName);
    // Other samples in place of all, or behind the last, after the tests of pointers, number
    // and scales. With any other status than STATUS_OK everything is as it was.
    template <class Samples>
    int32_t Replace(const Samples& samples, int32_t count, int32_t leastCount = 2);
    template <class Samples>
    int32_t Attach(const Samples& samples, int32_t count);
    // The markers of a run of so many samples.
    virtual void ApplyMarkers(vtkPlotPoints* plot, int32_t rows) const = 0;
    bool IsReady() const override { return Chart != nullptr; }
    bool HasRuns() const { return !Runs.empty(); }
    // The first sample lies at 0 when it is not valid.
    void DropFirstXIfInvalid();

private:
    struct Run
    {
        int32_t Start; // its first sample
        int32_t End;   // the sample behind its last one

        int32_t GetLength() const { return End - Start; }
    };
    // Of the finite valid samples; turned inside out without any.
    struct Extent
    {
        void Include(double x, double y);

        double XMin = std::numeric_limits<double>::infinity();
        double XMax = -std::numeric_limits<double>::infinity();
        double YMin = std::numeric_limits<double>::infinity();
        double YMax = -std::numeric_limits<double>::infinity();
    };
    // What runs beyond the present number of them will need.
    struct NewPlots
    {
        std::vector<std::unique_ptr<CPlotTable>> Tables;
        std::vector<vtkSmartPointer<CProfilePlot>> Plots;
    };

    template <class Samples>
    int32_t Take(const Samples& samples, int32_t kept, int32_t count, int32_t leastCount);
    template <class Samples>
    static void FindRuns(const Samples& samples, int32_t kept, int32_t count,
                         std::vector<Run>& runs);
    template <class Samples>
    void Write(const Samples& samples, int32_t kept, int32_t count, size_t firstRun);
    // Room for so many samples; the present ones stay.
    void Reserve(size_t count);
    NewPlots MakePlots(size_t count);
    void ArrangePlots(NewPlots added, size_t count);
    // Tells the tables from the given run on where their samples lie.
    void ShowRuns(size_t firstRun);

    std::string ColumnName;
    int32_t SampleCount = 0;
    // For each sample the place that the host reads back, and that of the plots.
    CGrowingArray<double> X;
    CGrowingArray<double> Y; // 0 for an invalid sample
    CGrowingArray<float> PlotX;
    CGrowingArray<float> PlotY;
    size_t Capacity = 0;   // of each of them
    std::vector<Run> Runs; // in order; no two of them touch
    Extent Bounds;
    std::vector<std::unique_ptr<CPlotTable>> Tables; // one for each run, as the plots are
};
