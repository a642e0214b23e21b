// The picture of a surface against the one that VTK's own mapper makes of the same samples.
#include "LiteralSurface.h"
#include "MeasuredView.h"

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

    Samples Make() const;
};

class SurfaceOnScreen : public MeasuredView, public testing::WithParamInterface<Case>
{
protected:
    SurfaceOnScreen() : MeasuredView(400, 300)
    {
        Tarvex_Window_SetBackgroundColor(Id, 25, 50, 75);
        Renderer()->GetBackground(Input.Background);
    }

    // Adds the surface, and makes the stock one of the same samples.
    vtkActor* AddBoth()
    {
        const Case& tested = GetParam();
        const std::string type = tested.IsFree ? "SurfaceNonUniform" : "SurfaceUniform";
        const int32_t surface = AddSurface(Data, tested.FullCellsOnly);
        Tarvex_Element_SetLighting(Id, surface, 0.3, 0.4, 0.3, 0);
        Tarvex_Element_SetTransparency(Id, surface, tested.Transparency);
        Input.Heights = Data.Heights.data();
        Input.Columns = Data.Grid.Columns;
        Input.Rows = Data.Grid.Rows;
        std::ranges::copy(Data.Grid.Scale, Input.Scale);
        std::ranges::copy(Data.Grid.Offset, Input.Offset);
        Input.ShiftAndScale = false;
        Input.FullCellsOnly = tested.FullCellsOnly;
        Input.Opacity = 1.0 - tested.Transparency;
        const auto isLower = [](int16_t left, int16_t right)
        { return left != Missing && (right == Missing || left < right); };
        std::array range = {Data.Grid.Place(2, *std::ranges::min_element(Data.Heights, isLower)),
                            Data.Grid.Place(2, *std::ranges::max_element(Data.Heights))};
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
            EXPECT_EQ(GetDrawn()->GetNumberOfPoints(), Stock->PolyData->GetNumberOfPoints());
            Stock->PolyData->SetPoints(GetDrawn()->GetPoints());
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

    Samples Data = GetParam().Make();
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

const auto PunchHoles = std::mem_fn(&Samples::PunchHoles);

Samples Case::Make() const
{
    Samples data = MakeHills(Columns, Rows);
    Change(data);
    if (IsFree)
    {
        data.Place(100, 100);
        data.Grid.Scale[0] = data.Grid.Scale[1] = 0.01;
    }
    for (size_t i = 0; i < data.X.size(); ++i)
    {
        // Folded in X.
        data.X[i] = static_cast<int16_t>(std::abs(data.X[i] + (i * 7919) % 61 - 12000.0));
        data.Y[i] = static_cast<int16_t>(data.Y[i] - (i * 104729) % 53);
    }
    return data;
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
