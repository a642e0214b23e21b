// From samples to picture and from change to picture: the library, stock VTK used the plain way,
// and the bare OpenGL floor, on the same data in one program. Compare figures of one run only, see
// ratios.py.
#include "FloorSurface.h"
#include "HeightMap.h"
#include "LibrarySurface.h"
#include "LiteralView.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <string>

#include <time.h>
#include <unistd.h>

namespace
{
struct Size
{
    const char* Name;
    int32_t Columns;
    int32_t Rows;
};
constexpr Size sizes[] = {{"1M", 1000, 1000}, {"4M", 2000, 2000}, {"8M", 4000, 2000}};

const std::pair<const char*, std::unique_ptr<SurfaceView> (*)()> kinds[] = {
    {"Library", [] { return std::unique_ptr<SurfaceView>(new LibrarySurface); }},
    {"Floor", [] { return std::unique_ptr<SurfaceView>(new FloorSurface); }},
    {"Literal", [] { return std::unique_ptr<SurfaceView>(new LiteralView); }}};

// Two height maps of each size, made once.
const HeightMap& GetMap(const Size& size, int which)
{
    static std::map<std::pair<std::string, int>, HeightMap> maps;
    const auto key = std::pair(std::string(size.Name), which);
    const auto found = maps.find(key);
    return found != maps.end()
               ? found->second
               : maps.emplace(key, MakeHeightMap(size.Columns, size.Rows, which)).first->second;
}

// A view that stays for all repetitions; its surface is shown and framed whenever the clock stops.
class Shown
{
public:
    Shown(std::unique_ptr<SurfaceView> view, const Size& size) : View(std::move(view)), Maps(size)
    {
        View->Prepare(Map());
        View->Add(Map());
        View->FrameAll();
    }

    const HeightMap& Map() const { return GetMap(Maps, Step % 2); }

    const std::unique_ptr<SurfaceView> View;
    const Size Maps;
    int Step = 0; // goes up with each measured operation
};

Shown& GetShown(size_t kind, const Size& size)
{
    static std::map<std::string, std::unique_ptr<Shown>> all;
    auto& shown = all[std::string(kinds[kind].first) + size.Name];
    if (!shown)
    {
        shown = std::make_unique<Shown>(kinds[kind].second(), size);
    }
    return *shown;
}

struct Operation
{
    const char* Name;
    void (*Before)(Shown&);
    void (*Measured)(Shown&);
};

void Nothing(Shown&) {}

const Operation operations[] = {
    {"Add",
     [](Shown& shown)
     {
         shown.View->Remove();
         shown.View->Prepare(shown.Map());
     },
     [](Shown& shown) { shown.View->Add(shown.Map()); }},
    {"Replace", [](Shown& shown) { shown.View->Prepare(shown.Map()); },
     [](Shown& shown) { shown.View->Replace(shown.Map()); }},
    {"Palette", Nothing, [](Shown& shown) { shown.View->SetPalette(shown.Step % 2); }},
    {"Range", Nothing,
     [](Shown& shown) { shown.View->SetRange(-3.0 - shown.Step % 2, 3.0 + shown.Step % 2); }},
    {"Camera", Nothing,
     [](Shown& shown)
     {
         // Within 20 degrees of the view from above: the same number of triangles in view.
         const double angle = 0.35 * std::sin(shown.Step * 0.7);
         shown.View->Look({std::sin(angle), 0.0, -std::cos(angle)});
     }}};

// Of all threads. On a busy machine it is steadier than the time on the clock.
double GetCpuSeconds()
{
    timespec time = {};
    clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &time);
    return static_cast<double>(time.tv_sec) + 1e-9 * static_cast<double>(time.tv_nsec);
}

void Measure(benchmark::State& state, const Operation& operation, size_t kind, const Size& size)
{
    Shown& shown = GetShown(kind, size);
    for (auto _ : state)
    {
        ++shown.Step;
        operation.Before(shown);
        const double cpuBegin = GetCpuSeconds();
        const auto begin = std::chrono::steady_clock::now();
        operation.Measured(shown);
        const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
        state.SetIterationTime(time.count());
        state.counters["cpuMilliseconds"] = 1000.0 * (GetCpuSeconds() - cpuBegin);
    }
}

size_t GetResidentBytes()
{
    size_t pages = 0;
    std::ifstream("/proc/self/statm") >> pages >> pages;
    return pages * static_cast<size_t>(sysconf(_SC_PAGESIZE));
}

// What the process grows by, without the host's own samples. True only in a fresh process.
void MeasureMemory(benchmark::State& state, size_t kind, const Size& size)
{
    const HeightMap& map = GetMap(size, 0);
    const std::unique_ptr<SurfaceView> view = kinds[kind].second();
    view->FrameAll();
    for (auto _ : state)
    {
        const size_t before = GetResidentBytes();
        view->Prepare(map);
        view->Add(map);
        state.counters["bytesPerSample"] =
            static_cast<double>(GetResidentBytes() - before) / static_cast<double>(map.GetCount());
    }
}
} // namespace

int main(int argc, char** argv)
{
    benchmark::Initialize(&argc, argv);
    for (const Size& size : sizes)
    {
        for (size_t kind = 0; kind < std::size(kinds); ++kind)
        {
            const std::string name = std::string("/") + kinds[kind].first + "/" + size.Name;
            for (const Operation& operation : operations)
            {
                benchmark::RegisterBenchmark((operation.Name + name).c_str(), Measure, operation,
                                             kind, size)
                    ->UseManualTime()
                    ->Iterations(1)
                    ->Unit(benchmark::kMillisecond);
            }
            benchmark::RegisterBenchmark(("Memory" + name).c_str(), MeasureMemory, kind, size)
                ->Iterations(1)
                ->Unit(benchmark::kMillisecond);
        }
    }
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
