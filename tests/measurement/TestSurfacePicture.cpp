// The picture of a surface against the one that VTK's own mapper makes of the same samples.
#include "SurfaceScene.h"

#include "Tarvex.h"
#include "measurement/SurfaceMapper.h"

#include <gtest/gtest.h>

#include <functional>
#include <string>

#include <vtkCamera.h>
#include <vtkPropPicker.h>
#include <vtkProperty.h>

namespace
{
struct Case
{
    std::string Name;
    std::function<void(Samples&)> Change = {};
    bool FullCellsOnly = true;
    bool ByIntensity = false;
    double Transparency = 0.0;
    std::function<void(vtkCamera*)> Aim = {};
    // In the place of the range of the heights.
    std::function<void(double (&range)[2])> ChangeRange = {};
    int32_t Columns = 200;
    int32_t Rows = 150;
};

void PrintTo(const Case& tested, std::ostream* stream)
{
    *stream << tested.Name;
}

class SurfaceOnScreen : public testing::TestWithParam<Case>
{
protected:
    void SetUp() override
    {
        const Case& tested = GetParam();
        Data = MakeHills(tested.Columns, tested.Rows);
        if (tested.Change)
        {
            tested.Change(Data);
        }
        Input = Scene.Literal(Data);
        Input.FullCellsOnly = tested.FullCellsOnly;
        Input.Opacity = 1.0 - tested.Transparency;
        if (tested.ByIntensity)
        {
            Input.Intensities = Data.Intensities.data();
            Input.Palette = 5;
            Input.Range[0] = 0.0;
            Input.Range[1] = 255.0;
        }
        if (tested.ChangeRange)
        {
            tested.ChangeRange(Input.Range);
        }
        Literal = std::make_unique<LiteralSurface>(Input);

        ASSERT_EQ(Scene.Add(Surface, Data, tested.FullCellsOnly, tested.ByIntensity), STATUS_OK);
        ASSERT_EQ(Surface.SetTransparency(tested.Transparency), STATUS_OK);
        if (tested.ByIntensity)
        {
            ASSERT_EQ(Surface.ShowIntensity(true), STATUS_OK);
        }
        Own = Scene.GetActor();
        if (tested.ChangeRange)
        {
            Own->GetMapper()->SetScalarRange(Input.Range);
        }

        Scene.Show(Literal->Actor);
        Scene.Renderer->GetActiveCamera()->Elevation(-35.0);
        Scene.Renderer->ResetCamera();
        if (tested.Aim)
        {
            tested.Aim(Scene.Renderer->GetActiveCamera());
        }
    }

    SurfaceScene Scene;
    Samples Data;
    LiteralInput Input;
    std::unique_ptr<LiteralSurface> Literal;
    CElement_SurfaceUniform Surface;
    vtkSmartPointer<vtkActor> Own;
};

const auto IsSurface = [](const Picture::Color& color) {
    return color != Picture::Color{25, 50, 75};
};
} // namespace

// The corners of a triangle come in another order than VTK's, which makes a difference in the last
// bit of what is interpolated between them: a pixel in some thousand takes the neighbouring colour.
TEST_P(SurfaceOnScreen, LooksTheSame)
{
    const Picture stock = Scene.Show(Literal->Actor);
    const Picture own = Scene.Show(Own);
    EXPECT_GT(stock.Count(IsSurface), 400);
    EXPECT_LE(own.CountDifferences(stock), 120);
}

TEST_P(SurfaceOnScreen, HasTheSameBounds)
{
    const double* stock = Literal->Actor->GetBounds();
    const double* own = Own->GetBounds();
    for (int i = 0; i < 6; ++i)
    {
        EXPECT_EQ(own[i], stock[i]) << i;
    }
}

TEST_P(SurfaceOnScreen, IsPickedAtTheSamePlaces)
{
    const auto pickAll = [&](vtkActor* actor)
    {
        Scene.Show(actor);
        std::vector<double> places;
        for (int x = 10; x < 400; x += 95)
        {
            for (int y = 10; y < 300; y += 70)
            {
                vtkNew<vtkPropPicker> picker;
                const bool isHit = picker->PickProp(x, y, Scene.Renderer) != 0;
                EXPECT_EQ(picker->GetActor(), isHit ? actor : nullptr);
                const double* place = picker->GetPickPosition();
                // A miss differs from every hit.
                places.insert(places.end(), {isHit ? place[0] : 1e6, place[1], place[2]});
            }
        }
        return places;
    };
    const std::vector<double> own = pickAll(Own);
    const std::vector<double> stock = pickAll(Literal->Actor);
    for (size_t i = 0; i < own.size(); ++i)
    {
        EXPECT_NEAR(own[i], stock[i], 1e-3) << i;
    }
}

TEST_P(SurfaceOnScreen, IsTheSameAfterHidingAndShowing)
{
    const Picture before = Scene.Show(Own);
    ASSERT_EQ(Surface.Show(false), STATUS_OK);
    EXPECT_EQ(Scene.Render().Count(IsSurface), 0);
    ASSERT_EQ(Surface.Show(true), STATUS_OK);
    EXPECT_EQ(Scene.Render().CountDifferences(before), 0);
}

namespace
{

const Case Cases[] = {
    {.Name = "Full"},
    {.Name = "Holes", .Change = PunchHoles},
    {.Name = "HolesWithIsolatedSamples", .Change = PunchHoles, .FullCellsOnly = false},
    {.Name = "NothingButIsolatedSamples",
     .Change =
         [](Samples& samples)
     {
         for (int32_t i = 0; i < samples.Columns * samples.Rows; ++i)
         {
             if ((i / samples.Columns + i % samples.Columns) % 2 == 0)
             {
                 samples.Heights[static_cast<size_t>(i)] = Missing;
             }
         }
     },
     .FullCellsOnly = false},
    {.Name = "RangeInsideTheHeights",
     .ChangeRange =
         [](double (&range)[2])
     {
         range[0] = -0.7;
         range[1] = 1.1;
     }},
    {.Name = "RangeBelowTheHeights",
     .ChangeRange =
         [](double (&range)[2])
     {
         range[0] = -9.0;
         range[1] = -8.0;
     }},
    {.Name = "RangeFarAwayAndNarrow",
     .ChangeRange =
         [](double (&range)[2])
     {
         range[0] = 1e9;
         range[1] = 1e9 + 0.002;
     }},
    {.Name = "ThousandthsAtOffsetThousand",
     .Change = [](Samples& samples) { samples.Offset[2] = 1000.0; }},
    {.Name = "NanometresAtOffsetTenThousand",
     .Change =
         [](Samples& samples)
     {
         samples.Scale[0] = samples.Scale[1] = 0.02;
         samples.Scale[2] = 1e-4;
         samples.Offset[2] = 1e4;
     }},
    // Heights on a line between two colours: the last bit of the coordinate decides.
    {.Name = "TerracesOnColourLimits",
     .Change =
         [](Samples& samples)
     {
         for (int16_t& height : samples.Heights)
         {
             height = static_cast<int16_t>(height / 100 * 100);
         }
         samples.Heights[0] = -12800;
         samples.Heights[1] = 12800;
     }},
    {.Name = "Flat",
     .Change = [](Samples& samples) { samples.Heights.assign(samples.Heights.size(), 1234); }},
    {.Name = "Intensity", .Change = PunchHoles, .ByIntensity = true},
    {.Name = "IntensityWithIsolatedSamples",
     .Change = PunchHoles,
     .FullCellsOnly = false,
     .ByIntensity = true},
    {.Name = "Transparent", .Change = PunchHoles, .Transparency = 0.6},
    {.Name = "ZoomedIn",
     .Change = PunchHoles,
     .FullCellsOnly = false,
     .Aim = [](vtkCamera* camera) { camera->Zoom(8.0); }},
    {.Name = "Parallel",
     .Change = PunchHoles,
     .Aim =
         [](vtkCamera* camera)
     {
         camera->ParallelProjectionOn();
         camera->Zoom(3.0);
     }},
    {.Name = "CameraInside",
     .Aim =
         [](vtkCamera* camera)
     {
         camera->SetPosition(50.0, -37.0, 6.0);
         camera->SetFocalPoint(90.0, -40.0, 0.0);
         camera->SetViewUp(0.0, 0.0, 1.0);
     }},
    {.Name = "TwoByTwo", .Columns = 2, .Rows = 2},
    {.Name = "OneCellWide", .Columns = 2, .Rows = 200},
    {.Name = "OneMoreThanATile", .Columns = 66, .Rows = 67},
};
} // namespace

INSTANTIATE_TEST_SUITE_P(, SurfaceOnScreen, testing::ValuesIn(Cases),
                         [](const auto& tested) { return tested.param.Name; });

TEST(SurfaceMapper, DrawsOnlyWhatIsInView)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeHills(640, 640)), STATUS_OK);
    const auto* mapper = SurfaceMapper::SafeDownCast(scene.GetActor()->GetMapper());
    scene.Renderer->ResetCamera();
    scene.Render();
    EXPECT_EQ(mapper->GetDrawnStripCount(), 100U);

    vtkNew<vtkPropPicker> picker;
    EXPECT_EQ(picker->PickProp(200, 150, scene.Renderer), 1);
    EXPECT_LE(mapper->GetDrawnStripCount(), 4U);

    scene.Renderer->GetActiveCamera()->Zoom(10.0);
    scene.Render();
    EXPECT_LE(mapper->GetDrawnStripCount(), 9U);
    EXPECT_GE(mapper->GetDrawnStripCount(), 1U);
}

TEST(SurfaceMapper, MovesBetweenWindows)
{
    CElement_SurfaceUniform surface;
    SurfaceScene first;
    ASSERT_EQ(first.Add(surface, MakeHills(100, 100)), STATUS_OK);
    vtkSmartPointer<vtkActor> actor = first.GetActor();
    first.Renderer->ResetCamera();
    const Picture picture = first.Show(actor);
    first.Renderer->RemoveAllViewProps();
    {
        SurfaceScene second;
        second.Show(actor);
        second.Renderer->ResetCamera();
        EXPECT_EQ(second.Show(actor).CountDifferences(picture), 0);
    }
    EXPECT_EQ(first.Show(actor).CountDifferences(picture), 0);
}

TEST(SurfaceMapper, OutlivesItsWindow)
{
    CElement_SurfaceUniform surface;
    vtkSmartPointer<vtkActor> actor;
    {
        SurfaceScene scene;
        ASSERT_EQ(scene.Add(surface, MakeHills(100, 100)), STATUS_OK);
        actor = scene.GetActor();
    }
    SurfaceScene scene;
    scene.Show(actor);
    scene.Renderer->ResetCamera();
    EXPECT_GT(scene.Show(actor).Count(IsSurface), 1000);
}

// What is drawn after a surface must not notice it.
TEST(SurfaceMapper, LeavesTheStateOfTheWindowAlone)
{
    const Samples samples = MakeHills(60, 60);
    Samples beside = samples;
    beside.Offset[0] = 110.0;
    const auto show = [&](bool withOwn)
    {
        SurfaceScene scene;
        CElement_SurfaceUniform surface;
        const LiteralSurface stock(scene.Literal(samples));
        const LiteralSurface stockBeside(scene.Literal(beside));
        if (withOwn)
        {
            EXPECT_EQ(scene.Add(surface, samples), STATUS_OK);
        }
        else
        {
            scene.Renderer->AddActor(stock.Actor);
        }
        scene.Renderer->AddActor(stockBeside.Actor);
        scene.Renderer->ResetCamera();
        scene.Render();
        return scene.Render();
    };
    EXPECT_LE(show(true).CountDifferences(show(false)), 60);
}
