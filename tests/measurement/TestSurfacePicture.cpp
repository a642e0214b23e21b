// The picture of a surface against the one that VTK's own mapper makes of the same samples.
#include "SurfaceScene.h"

#include "Tarvex.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include <vtkCamera.h>
#include <vtkPropPicker.h>

namespace
{
struct Case
{
    std::string Name;
    std::function<void(Samples&)> Change = [](Samples&) {};
    bool FullCellsOnly = true;
    bool ByIntensity = false;
    double Transparency = 0.0;
    std::function<void(vtkCamera*)> Aim = [](vtkCamera*) {};
    // In the place of the range of the heights.
    std::array<double, 2> Range = {0.0, 0.0};
    int32_t Columns = 200;
    int32_t Rows = 150;
    bool IsFree = false; // with positions beside the grid
};

class SurfaceOnScreen : public testing::TestWithParam<Case>
{
};

const auto IsSurface = [](const Picture::Color& color) {
    return color != Picture::Color{25, 50, 75};
};

template <class Surface>
void ExpectLikeStock(const Case& tested, const Samples& data)
{
    SurfaceScene scene;
    LiteralInput input = scene.Literal(data);
    input.FullCellsOnly = tested.FullCellsOnly;
    input.Opacity = 1.0 - tested.Transparency;
    Surface surface;
    ASSERT_EQ(scene.Add(surface, data, tested.FullCellsOnly), STATUS_OK);
    ASSERT_EQ(surface.SetTransparency(tested.Transparency), STATUS_OK);
    if (tested.ByIntensity)
    {
        input.Intensities = data.Intensities.data();
        input.Palette = 5;
        input.Range[0] = 0.0;
        input.Range[1] = 255.0;
        ASSERT_EQ(surface.ShowIntensity(true), STATUS_OK);
    }
    if (const auto& [min, max] = tested.Range; min != max)
    {
        input.Range[0] = min;
        input.Range[1] = max;
        ASSERT_EQ(surface.SetZScaling(false, 0.0, min, max), STATUS_OK);
    }
    const LiteralSurface literal(input);
    const vtkSmartPointer<vtkActor> own = scene.GetActor();
    if (tested.IsFree)
    {
        auto* points = vtkPolyData::SafeDownCast(own->GetMapper()->GetInput())->GetPoints();
        ASSERT_EQ(points->GetNumberOfPoints(), literal.PolyData->GetNumberOfPoints());
        literal.PolyData->SetPoints(points);
    }
    scene.Show(literal.Actor);
    scene.Renderer->GetActiveCamera()->Elevation(-35.0);
    scene.Renderer->ResetCamera();
    tested.Aim(scene.Renderer->GetActiveCamera());

    const auto pickAll = [&](vtkActor* actor)
    {
        std::vector<double> places;
        for (int pixel = 0; pixel < 20; ++pixel)
        {
            vtkNew<vtkPropPicker> picker;
            const bool isHit =
                picker->PickProp(10 + pixel / 4 * 95, 10 + pixel % 4 * 70, scene.Renderer) != 0;
            EXPECT_EQ(picker->GetActor(), isHit ? actor : nullptr);
            const double* place = picker->GetPickPosition();
            // A miss differs from every hit.
            places.insert(places.end(), {isHit ? place[0] : 1e6, place[1], place[2]});
        }
        return places;
    };
    const Picture stockPicture = scene.Show(literal.Actor);
    const std::vector<double> stockPlaces = pickAll(literal.Actor);
    const Picture picture = scene.Show(own);
    const std::vector<double> places = pickAll(own);
    // The corners of a triangle come in another order than VTK's, which makes a difference in the
    // last bit of what is interpolated: a pixel in some thousand takes the neighbouring colour.
    EXPECT_GT(stockPicture.Count(IsSurface), 400);
    EXPECT_LE(picture.CountDifferences(stockPicture), 120);
    for (size_t i = 0; i < places.size(); ++i)
    {
        EXPECT_NEAR(places[i], stockPlaces[i], 1e-3) << i;
    }
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(own->GetBounds()[i], literal.Actor->GetBounds()[i]) << i;
    }
}
} // namespace

TEST_P(SurfaceOnScreen, IsShownAndPickedAsByTheStockMapper)
{
    Samples data = MakeHills(GetParam().Columns, GetParam().Rows);
    GetParam().Change(data);
    if (!GetParam().IsFree)
    {
        ExpectLikeStock<CElement_SurfaceUniform>(GetParam(), data);
        return;
    }
    data.Place(100, 100);
    data.Grid.Scale[0] = data.Grid.Scale[1] = 0.01;
    for (size_t i = 0; i < data.X.size(); ++i)
    {
        // Folded in X.
        data.X[i] = static_cast<int16_t>(std::abs(data.X[i] + (i * 7919) % 61 - 12000.0));
        data.Y[i] = static_cast<int16_t>(data.Y[i] - (i * 104729) % 53);
    }
    ExpectLikeStock<CElement_SurfaceNonUniform>(GetParam(), data);
}

namespace
{
void MakeCheckerboard(Samples& samples)
{
    for (int32_t i = 0; i < samples.Grid.Columns * samples.Grid.Rows; i += 2)
    {
        const int32_t row = i / samples.Grid.Columns;
        samples.At(i % samples.Grid.Columns + row % 2, row) = Missing;
    }
}
void MoveFarUp(Samples& samples)
{
    samples.Grid.Scale = {0.02, 0.02, 1e-4};
    samples.Grid.Offset[2] = 1e4;
}
void ZoomInParallel(vtkCamera* camera)
{
    camera->ParallelProjectionOn();
    camera->Zoom(8.0);
}

const Case cases[] = {
    {.Name = "Full"},
    {.Name = "Holes", .Change = PunchHoles},
    {.Name = "IsolatedSamples", .Change = PunchHoles, .FullCellsOnly = false},
    {.Name = "NothingElse", .Change = MakeCheckerboard, .FullCellsOnly = false},
    {.Name = "RangeInsideTheHeights", .Range = {-0.7, 1.1}},
    {.Name = "RangeFarAwayAndNarrow", .Range = {1e9, 1e9 + 0.002}},
    {.Name = "OffsetThousand", .Change = [](Samples& samples) { samples.Grid.Offset[2] = 1e3; }},
    {.Name = "NanometresAtOffsetTenThousand", .Change = MoveFarUp},
    {.Name = "Intensity", .Change = PunchHoles, .FullCellsOnly = false, .ByIntensity = true},
    {.Name = "Transparent", .Change = PunchHoles, .Transparency = 0.6},
    {.Name = "ZoomedIn", .Change = PunchHoles, .Aim = ZoomInParallel},
    {.Name = "OneCellWide", .Columns = 2, .Rows = 200},
    {.Name = "OneMoreThanATile", .Columns = 66, .Rows = 67},
    {.Name = "Free", .Change = PunchHoles, .IsFree = true},
    {.Name = "FreeIsolated", .Change = PunchHoles, .FullCellsOnly = false, .IsFree = true},
    {.Name = "FreeIntensity", .Change = PunchHoles, .ByIntensity = true, .IsFree = true},
};
} // namespace

INSTANTIATE_TEST_SUITE_P(, SurfaceOnScreen, testing::ValuesIn(cases),
                         [](const auto& tested) { return tested.param.Name; });
