// What many small elements cost: filling a scene, one call on one of them, a camera move, emptying.
// Arguments: the number of elements, and whether an update is open while the scene is filled.
#include "HostWindow.h"
#include "TarvexExt.h"

#include <benchmark/benchmark.h>

namespace
{
class Scene
{
public:
    Scene()
    {
        Tarvex_Window_Create(reinterpret_cast<void*>(Host.Native), 1, 0, 0, 800, 600, &View);
    }
    ~Scene() { Tarvex_Window_Delete(View); }
    Scene(const Scene&) = delete;
    Scene& operator=(const Scene&) = delete;

    void Fill(int64_t count, bool inUpdate)
    {
        if (inUpdate)
        {
            TarvexExt_Window_BeginUpdate(View);
        }
        for (int64_t i = 0; i < count; ++i)
        {
            Tarvex_Element_Add_Circle(View, static_cast<double>(i % 100),
                                      static_cast<double>(i / 100), 0, 0.4, 0, 0, 1, &Last);
        }
        if (inUpdate)
        {
            TarvexExt_Window_EndUpdate(View);
        }
    }

    HostWindow Host{800, 600};
    int32_t View = -1;
    int32_t Last = -1;
};

void FillScene(benchmark::State& state)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        Scene scene;
        state.ResumeTiming();
        scene.Fill(state.range(0), state.range(1) != 0);
        state.PauseTiming();
        Tarvex_Window_DeleteAll();
        state.ResumeTiming();
    }
    state.counters["each"] = benchmark::Counter(static_cast<double>(state.range(0)),
                                                benchmark::Counter::kIsIterationInvariantRate |
                                                    benchmark::Counter::kInvert);
}
BENCHMARK(FillScene)
    ->Args({1000, 0})
    ->Args({1000, 1})
    ->Args({10000, 1})
    ->Unit(benchmark::kMillisecond);

void MoveCamera(benchmark::State& state)
{
    Scene scene;
    scene.Fill(state.range(0), true);
    for (auto _ : state)
    {
        Tarvex_Window_Camera_SetZoom(scene.View, 1.0);
    }
}
BENCHMARK(MoveCamera)->Arg(1)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);

// Without the picture that it asks for.
void CallOneElement(benchmark::State& state)
{
    Scene scene;
    scene.Fill(state.range(0), true);
    TarvexExt_Window_BeginUpdate(scene.View);
    for (auto _ : state)
    {
        Tarvex_Element_SetColor(scene.View, scene.Last, 1, 2, 3);
    }
}
BENCHMARK(CallOneElement)->Arg(1)->Arg(1000)->Arg(10000)->Unit(benchmark::kMicrosecond);

void EmptyScene(benchmark::State& state)
{
    for (auto _ : state)
    {
        state.PauseTiming();
        Scene scene;
        scene.Fill(state.range(0), true);
        state.ResumeTiming();
        Tarvex_Element_RemoveAll(scene.View);
    }
}
BENCHMARK(EmptyScene)->Arg(1000)->Arg(10000)->Iterations(2)->Unit(benchmark::kMillisecond);
} // namespace

BENCHMARK_MAIN();
