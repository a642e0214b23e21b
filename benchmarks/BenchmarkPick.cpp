// What a mouse move over a surface costs while the picked coordinates are shown, without the
// picture that shows them: the library, and stock VTK, whose picker is asked twice, for the cursor
// and for the position. `Agreement` holds the library's picks against the stock picker's in the
// same view: hits, props that differ, and the largest distance between two positions.
#include "HeightMap.h"
#include "HostWindow.h"
#include "LiteralView.h"
#include "Tarvex.h"
#include "frame/CWindowManager.h"
#include "interaction3d/CScenePicker.h"

#include <benchmark/benchmark.h>

#include <chrono>
#include <functional>
#include <map>
#include <memory>

#include <vtkCommand.h>
#include <vtkMath.h>
#include <vtkPropPicker.h>

namespace
{
constexpr int width = SurfaceView::Width;
constexpr int height = SurfaceView::Height;

const HeightMap& GetMap(int64_t side)
{
    static std::map<int64_t, HeightMap> maps;
    const auto found = maps.find(side);
    const auto count = static_cast<int32_t>(side);
    return found != maps.end() ? found->second
                               : maps.emplace(side, MakeHeightMap(count, count, 0)).first->second;
}

// The surface from above, with the coordinates on.
class HoveredView
{
public:
    explicit HoveredView(const HeightMap& map)
    {
        Tarvex_Window_Create(reinterpret_cast<void*>(Host.Native), 1, 0, 0, width, height, &Id);
        int32_t element = -1;
        Tarvex_Element_Add_SurfaceUniform(Id, map.Heights.data(), nullptr, map.Columns, map.Rows,
                                          map.Pitch, map.Pitch, map.ZScale, 0.0, 0.0, 0.0,
                                          TARVEX_MESH_CELLS, &element);
        Tarvex_Window_Camera_SetViewDirection(Id, 0.2, 0.3, -1.0, 0.0, 1.0, 0.0);
        Tarvex_Window_Camera_AutoSize(Id);
        Tarvex_Window_PickCoordinates_Show(Id, 1);
    }
    ~HoveredView() { Tarvex_Window_Delete(Id); }
    HoveredView(const HoveredView&) = delete;
    HoveredView& operator=(const HoveredView&) = delete;

    void Do(const std::function<void(CWindow&)>& action) const
    {
        CWindowManager::Instance->Call<CWindow>(Id,
                                                [&](CWindow& view) -> int32_t
                                                {
                                                    action(view);
                                                    return STATUS_OK;
                                                });
    }

private:
    HostWindow Host{width, height};
    int32_t Id = -1;
};

// Another pixel of the middle half for each step.
struct Pixel
{
    explicit Pixel(int step)
        : X(width / 4 + step * 37 % (width / 2)), Y(height / 4 + step * 53 % (height / 2))
    {
    }
    int X;
    int Y;
};

// Each move follows a picture, as with a hand on the mouse.
void Measure(benchmark::State& state, const std::function<void()>& render,
             const std::function<void(const Pixel&)>& move)
{
    int step = 0;
    for (auto _ : state)
    {
        render();
        const auto begin = std::chrono::steady_clock::now();
        move(Pixel(++step));
        state.SetIterationTime(
            std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count());
    }
}

void Library(benchmark::State& state)
{
    const HoveredView hovered(GetMap(state.range(0)));
    Measure(
        state, [&] { hovered.Do([](const CWindow& view) { view.GetRenderWindow()->Render(); }); },
        [&](const Pixel& at)
        {
            hovered.Do(
                [&](const CWindow& view)
                {
                    view.GetInteractor()->SetEventInformation(at.X, at.Y);
                    view.GetInteractor()->InvokeEvent(vtkCommand::MouseMoveEvent);
                });
        });
}

void StockTwice(benchmark::State& state)
{
    const HeightMap& map = GetMap(state.range(0));
    LiteralView view;
    view.Add(map);
    view.FrameAll();
    view.Look({0.2, 0.3, -1.0});
    const vtkNew<vtkPropPicker> picker;
    Measure(
        state, [&] { view.GetRenderer()->GetRenderWindow()->Render(); },
        [&](const Pixel& at)
        {
            picker->PickProp(at.X, at.Y, view.GetRenderer());
            picker->PickProp(at.X, at.Y, view.GetRenderer());
        });
}

void Agreement(benchmark::State& state)
{
    const HoveredView hovered(GetMap(state.range(0)));
    int hits = 0;
    int otherProps = 0;
    double farthest = 0.0;
    for (auto _ : state)
    {
        hovered.Do(
            [&](const CWindow& view)
            {
                const vtkNew<vtkPropPicker> stock;
                CScenePicker picker;
                for (int step = 0; step < 400; ++step)
                {
                    const int x = step * 97 % width;
                    const int y = step * 61 % height;
                    picker.Forget();
                    const Vector3 position = picker.Pick(view.GetRenderer(), x, y);
                    hits += stock->PickProp(x, y, view.GetRenderer());
                    otherProps += picker.GetProp() != stock->GetViewProp();
                    farthest = std::max(farthest, std::sqrt(vtkMath::Distance2BetweenPoints(
                                                      position.data(), stock->GetPickPosition())));
                }
            });
    }
    state.counters["hits"] = hits;
    state.counters["otherProps"] = otherProps;
    state.counters["farthest"] = farthest;
}
} // namespace

BENCHMARK(Library)->Arg(1000)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(StockTwice)->Arg(1000)->Arg(2000)->UseManualTime()->Unit(benchmark::kMillisecond);
BENCHMARK(Agreement)->Arg(1000)->Arg(2000)->Iterations(1)->Unit(benchmark::kMillisecond);

BENCHMARK_MAIN();
