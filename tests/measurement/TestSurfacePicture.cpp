// The picture of a surface against the one that VTK's own mapper makes of the same samples.
#include "LiteralSurface.h"
#include "measurement/SurfaceGrid.h"
#include "view3d/InsideScene.h"

#include <vtkCamera.h>
#include <vtkPropPicker.h>

#include <cmath>

namespace
{
constexpr int16_t Missing = TARVEX_INVALID_VALUE;

// A height map that a host could give.
struct Samples
{
    int16_t& At(int32_t column, int32_t row)
    {
        return Heights[static_cast<size_t>(row * Grid.Columns + column)];
    }

    SurfaceGrid Grid;
    std::vector<int16_t> Heights;
    std::vector<uint8_t> Intensities;
    // For surfaces with free positions only.
    std::vector<int16_t> X;
    std::vector<int16_t> Y;
};

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

// Hills of about +-4000 counts on 100 units of width, 0.001 units a count, changed by the case.
Samples MakeSamples(const Case& tested)
{
    const int32_t columns = tested.Columns;
    Samples samples;
    samples.Grid = {columns, tested.Rows, {100.0 / columns, 100.0 / columns, 0.001}};
    for (int32_t i = 0; i < columns * tested.Rows; ++i)
    {
        const double x = 7.0 * (i % columns) / columns;
        const double y = 5.0 * (i / columns) / columns; // NOLINT(bugprone-integer-division)
        samples.Heights.push_back(static_cast<int16_t>(3000.0 * std::sin(x) * std::cos(y) +
                                                       1000.0 * std::sin(3.1 * x + 5.3 * y)));
        samples.Intensities.push_back(
            static_cast<uint8_t>(127.5 + 127.5 * std::sin(2.0 * x) * std::sin(3.0 * y)));
    }
    tested.Change(samples);
    for (int32_t i = 0; tested.IsFree && i < columns * tested.Rows; ++i)
    {
        samples.Grid.Scale[0] = samples.Grid.Scale[1] = 0.01;
        // Folded in X.
        const int32_t x = i % columns * 100 + i * 7919 % 61 - 12000;
        samples.X.push_back(static_cast<int16_t>(std::abs(x)));
        samples.Y.push_back(static_cast<int16_t>(i / columns * 100 - int64_t{i} * 104729 % 53));
    }
    return samples;
}

class SurfaceOnScreen : public InsideScene, public testing::WithParamInterface<Case>
{
protected:
    SurfaceOnScreen() : InsideScene(400, 300)
    {
        Tarvex_Window_SetBackgroundColor(Id, 25, 50, 75);
        Renderer()->GetBackground(Input.Background);
    }

    // Adds the surface, and makes the stock one of the same samples.
    vtkActor* AddBoth()
    {
        const Case& tested = GetParam();
        const std::string type = tested.IsFree ? "SurfaceNonUniform" : "SurfaceUniform";
        const auto& [columns, rows, scale, offset] = Data.Grid;
        Call add =
            MakeCall("Tarvex_Element_Add_" + type,
                     {double(Id), double(columns), double(rows), scale[0], scale[1], scale[2],
                      offset[0], offset[1], offset[2], tested.FullCellsOnly ? 1.0 : 0.0});
        const auto give = [&](const auto& samples)
        { add.Inputs.emplace_back(samples.begin(), samples.end()); };
        if (tested.IsFree)
        {
            give(Data.X);
            give(Data.Y);
        }
        give(Data.Heights);
        give(Data.Intensities);
        EXPECT_EQ(add.Perform(), STATUS_OK);
        const auto surface = static_cast<int32_t>(add.Outputs[0][0]);
        Tarvex_Element_SetLighting(Id, surface, 0.3, 0.4, 0.3, 0);
        Tarvex_Element_SetTransparency(Id, surface, tested.Transparency);
        Input.Heights = Data.Heights.data();
        Input.Columns = columns;
        Input.Rows = rows;
        std::ranges::copy(scale, Input.Scale);
        std::ranges::copy(offset, Input.Offset);
        Input.ShiftAndScale = false;
        Input.FullCellsOnly = tested.FullCellsOnly;
        Input.Opacity = 1.0 - tested.Transparency;
        std::vector<int16_t> valid = Data.Heights;
        std::erase(valid, Missing);
        std::array range = {Data.Grid.Place(2, std::ranges::min(valid)),
                            Data.Grid.Place(2, std::ranges::max(valid))};
        if (tested.ByIntensity)
        {
            Input.Intensities = Data.Intensities.data();
            Input.Palette = 5;
            range = {0.0, 255.0};
            EXPECT_EQ(Do("Element_ShowIntensity_" + type, surface, {1}), STATUS_OK);
        }
        if (tested.Range[0] != tested.Range[1])
        {
            range = tested.Range;
            Do("Element_ZScalingPalette_" + type, surface, {0, 0, range[0], range[1]});
        }
        std::ranges::copy(range, Input.Range);
        Stock = std::make_unique<LiteralSurface>(Input);
        if (tested.IsFree)
        {
            auto* drawn = vtkPolyData::SafeDownCast(LastActor()->GetMapper()->GetInput());
            EXPECT_EQ(drawn->GetNumberOfPoints(), Stock->PolyData->GetNumberOfPoints());
            Stock->PolyData->SetPoints(drawn->GetPoints());
        }
        return LastActor();
    }
    // The actor alone, seen by the present camera.
    Picture Show(vtkActor* actor) const
    {
        Renderer()->RemoveAllViewProps();
        Renderer()->AddActor(actor);
        Renderer()->ResetCameraClippingRange();
        Render();
        return TakePicture(Id);
    }
    // Where pixels hit it.
    Numbers PickAll(vtkActor* actor) const
    {
        Numbers places;
        for (int pixel = 0; pixel < 20; ++pixel)
        {
            vtkNew<vtkPropPicker> picker;
            const bool isHit =
                picker->PickProp(10 + pixel / 4 * 95, 10 + pixel % 4 * 70, Renderer()) != 0;
            EXPECT_EQ(picker->GetActor(), isHit ? actor : nullptr);
            const double* place = picker->GetPickPosition();
            // A miss differs from every hit.
            places.insert(places.end(), {isHit ? place[0] : 1e6, place[1], place[2]});
        }
        return places;
    }

    Samples Data = MakeSamples(GetParam());
    LiteralInput Input;
    std::unique_ptr<LiteralSurface> Stock;
};
} // namespace

TEST_P(SurfaceOnScreen, IsShownAndPickedAsByTheStockMapper)
{
    const vtkSmartPointer<vtkActor> own = AddBoth();
    vtkActor* stock = Stock->Actor;
    Show(stock);
    vtkCamera* camera = Renderer()->GetActiveCamera();
    camera->Elevation(-35.0);
    Renderer()->ResetCamera();
    GetParam().Aim(camera);

    const Picture stockPicture = Show(stock);
    const Numbers stockPlaces = PickAll(stock);
    const Picture picture = Show(own);
    // The corners of a triangle come in another order than VTK's, which makes a difference in the
    // last bit of what is interpolated: a pixel in some thousand takes the neighbouring colour.
    const auto isSurface = [](const Picture::Color& color) {
        return color != Picture::Color{25, 50, 75};
    };
    EXPECT_GT(stockPicture.Count(isSurface), 400);
    EXPECT_LE(picture.CountDifferences(stockPicture), 120);
    EXPECT_THAT(PickAll(own), Near(stockPlaces, 1e-3));
    EXPECT_TRUE(std::equal(own->GetBounds(), own->GetBounds() + 6, stock->GetBounds()));
}

namespace
{
// Holes of all sizes, single samples among them.
void PunchHoles(Samples& samples)
{
    for (int32_t i = 0; i < samples.Grid.Columns * samples.Grid.Rows; ++i)
    {
        const int32_t column = i % samples.Grid.Columns;
        const int32_t row = i / samples.Grid.Columns;
        const int32_t hole = column / 19 + row / 19 * 11;
        const int32_t reach = std::max(std::abs(column % 19 - 9), std::abs(row % 19 - 9));
        // Every third hole is a grating, which leaves isolated samples.
        if (reach <= hole % 10 && (hole % 3 != 0 || (row + column) % 2 == 0 || column % 3 == 0))
        {
            samples.At(column, row) = Missing;
        }
    }
}
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
    {.Name = "FreeIntensity", .Change = PunchHoles, .ByIntensity = true, .IsFree = true}};
} // namespace

INSTANTIATE_TEST_SUITE_P(, SurfaceOnScreen, testing::ValuesIn(cases),
                         [](const auto& tested) { return tested.param.Name; });
