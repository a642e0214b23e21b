#include "SurfaceScene.h"

#include "Tarvex.h"
#include "measurement/SurfaceMapper.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <limits>

#include <sys/resource.h>
#include <unistd.h>

#include <fstream>

#include <vtkActorCollection.h>
#include <vtkCamera.h>
#include <vtkLookupTable.h>
#include <vtkProperty.h>
#include <vtkScalarBarActor.h>

namespace
{
constexpr double NotANumber = std::numeric_limits<double>::quiet_NaN();
constexpr double Infinite = std::numeric_limits<double>::infinity();

std::array<double, 6> Bounds(CElement_SurfaceUniform& surface, bool widen)
{
    std::array<double, 6> b = {9, 9, 9, 9, 9, 9};
    EXPECT_EQ(surface.GetBounds(widen, &b[0], &b[1], &b[2], &b[3], &b[4], &b[5]), STATUS_OK);
    return b;
}

// The colour that the lookup table of the picture has for the middle of the range.
std::array<double, 4> MiddleColor(const SurfaceScene& scene)
{
    std::array<double, 4> color{};
    vtkLookupTable::SafeDownCast(scene.GetActor()->GetMapper()->GetLookupTable())
        ->GetTableValue(128, color.data());
    return color;
}

bool ShowsIntensity(const SurfaceScene& scene)
{
    // Intensities are shown in grey, heights in the colours of the rainbow.
    const std::array<double, 4> color = MiddleColor(scene);
    return color[0] == color[1] && color[1] == color[2];
}
} // namespace

TEST(Surface, RefusesBadArgumentsInOrder)
{
    const Samples good = MakeHills(4, 3);
    const int16_t* heights = good.Heights.data();
    struct
    {
        const int16_t* Heights;
        int32_t Columns, Rows;
        std::array<double, 6> Numbers;
        int32_t AddStatus;
        int32_t SetStatus; // tests the numbers before the pointer
    } const cases[] = {
        {heights, 4, 3, {1, 1, 1, 0, 0, 0}, STATUS_OK, STATUS_OK},
        {nullptr, 1, 1, {NotANumber, 1, 1, 0, 0, 0}, STATUS_NULL_ARGUMENT, STATUS_NOT_FINITE},
        {nullptr, 1, 1, {1, 1, 1, 0, 0, 0}, STATUS_NULL_ARGUMENT, STATUS_NULL_ARGUMENT},
        {heights, 1, 5, {1, 1, 1, 0, 0, NotANumber}, STATUS_NOT_FINITE, STATUS_NOT_FINITE},
        {heights, 1, 5, {0, 1, 1, 0, 0, 0}, STATUS_TOO_SMALL, STATUS_TOO_SMALL},
        {heights, 4, -3, {1, 1, 1, 0, 0, 0}, STATUS_TOO_SMALL, STATUS_TOO_SMALL},
        {heights, 4, 3, {1, 1, 0.9e-12, 0, 0, 0}, STATUS_OUT_OF_RANGE, STATUS_OUT_OF_RANGE},
        {heights, 4, 3, {1, -1, 1, 0, 0, 0}, STATUS_OUT_OF_RANGE, STATUS_OUT_OF_RANGE},
        {heights, 4, 3, {1e-12, 1, 1, 0, 0, 0}, STATUS_OK, STATUS_OK},
        // Beyond 31 and 32 bits, and beyond what a vertex buffer holds.
        {heights, 46341, 46341, {1, 1, 1, 0, 0, 0}, STATUS_OUT_OF_MEMORY, STATUS_OUT_OF_MEMORY},
        {heights, 65536, 65536, {1, 1, 1, 0, 0, 0}, STATUS_OUT_OF_MEMORY, STATUS_OUT_OF_MEMORY},
        {heights,
         2147483647,
         2147483647,
         {1, 1, 1, 0, 0, 0},
         STATUS_OUT_OF_MEMORY,
         STATUS_OUT_OF_MEMORY},
        {heights, 20000, 20000, {1, 1, 1, 0, 0, 0}, STATUS_OUT_OF_MEMORY, STATUS_OUT_OF_MEMORY},
        {heights, 46341, 46341, {0, 1, 1, 0, 0, 0}, STATUS_OUT_OF_RANGE, STATUS_OUT_OF_RANGE},
    };
    for (const auto& tested : cases)
    {
        const auto& n = tested.Numbers;
        SurfaceScene scene;
        CElement_SurfaceUniform added;
        EXPECT_EQ(added.Initialize(scene.Site(), tested.Heights, nullptr, tested.Columns,
                                   tested.Rows, n[0], n[1], n[2], n[3], n[4], n[5], true),
                  tested.AddStatus)
            << &tested - cases;
        CElement_SurfaceUniform changed;
        ASSERT_EQ(scene.Add(changed, good), STATUS_OK);
        const vtkActor* before = scene.GetActor();
        EXPECT_EQ(changed.SetValue(tested.Heights, nullptr, tested.Columns, tested.Rows, n[0], n[1],
                                   n[2], n[3], n[4], n[5]),
                  tested.SetStatus)
            << &tested - cases;
        EXPECT_EQ(scene.GetActor() == before, tested.SetStatus != STATUS_OK);
        changed.Show(false);
    }
    CElement_SurfaceUniform nowhere;
    EXPECT_EQ(nowhere.Initialize(ElementSite(), heights, nullptr, 4, 3, 1, 1, 1, 0, 0, 0, true),
              STATUS_NULL_ARGUMENT);
}

TEST(Surface, WithoutPictureIsNotReady)
{
    CElement_SurfaceUniform surface;
    uint8_t byte = 0;
    double number = 0.0;
    vtkNew<vtkScalarBarActor> bar;
    EXPECT_EQ(surface.BuildPipeline(), STATUS_NO_DATA);
    EXPECT_EQ(surface.SetRepresentationMode(true), STATUS_NOT_READY);
    EXPECT_EQ(surface.GetRepresentationMode(&byte), STATUS_NOT_READY);
    EXPECT_EQ(surface.GetColor(&byte, &byte, &byte), STATUS_NOT_READY);
    EXPECT_EQ(surface.GetBounds(false, &number, &number, &number, &number, &number, &number),
              STATUS_NOT_READY);
    EXPECT_EQ(surface.ApplyPalette(0), STATUS_NOT_READY);
    EXPECT_EQ(surface.ConnectScalarBar(bar), STATUS_NOT_READY);
    EXPECT_EQ(surface.ConnectScalarBar(nullptr), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(surface.ShowIntensity(true), STATUS_NOT_READY);
    EXPECT_EQ(surface.AddIntensity(&byte, 1, 1), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(surface.SetBackgroundColor(0.0, 0.0, 0.0), STATUS_OK);
    EXPECT_EQ(surface.SetTransparency(0.5), STATUS_OK);
    EXPECT_EQ(surface.GetTransparency(&number), STATUS_OK);
    EXPECT_EQ(number, 0.5);
    EXPECT_EQ(surface.SetColor(1, 2, 3), STATUS_OK);
    EXPECT_EQ(surface.SetSize(1.0), STATUS_NOT_SUPPORTED);
    EXPECT_EQ(surface.GetSize(&number), STATUS_NOT_SUPPORTED);
}

TEST(Surface, WithNothingButMissingSamplesIsRefused)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    Samples missing = MakeFlat(5, 4);
    missing.Heights.assign(20, Missing);
    EXPECT_EQ(scene.Add(surface, missing), STATUS_BAD_COUNT);

    // The new values are stored, the old picture stays and is never mixed with them.
    CElement_SurfaceUniform changed;
    scene.Defaults.Palette = 1;
    const Samples hills = MakeHills(30, 20);
    ASSERT_EQ(scene.Add(changed, hills, true, true), STATUS_OK);
    scene.Renderer->ResetCamera();
    const Picture before = scene.Render();
    EXPECT_EQ(SetValue(changed, missing, true), STATUS_BAD_COUNT);
    EXPECT_EQ(scene.Render().CountDifferences(before), 0);
    EXPECT_EQ(Bounds(changed, false)[1], 5.0);
    EXPECT_EQ(changed.AddIntensity(missing.Intensities.data(), 30, 20), STATUS_TOO_SMALL);
    EXPECT_EQ(changed.AddIntensity(missing.Intensities.data(), 5, 4), STATUS_OK);
    EXPECT_EQ(changed.ShowIntensity(true), STATUS_OK);
    EXPECT_EQ(changed.ShowIntensity(false), STATUS_OK);
    EXPECT_EQ(scene.Render().CountDifferences(before), 0);

    // Built anew, there is nothing to see; good values bring a picture again.
    EXPECT_EQ(changed.SetRepresentationMode(false), STATUS_OK);
    EXPECT_EQ(scene.Render().Count(
                  [](const Picture::Color& color) {
                      return color != Picture::Color{25, 50, 75};
                  }),
              0);
    EXPECT_EQ(changed.SetRepresentationMode(true), STATUS_OK);
    EXPECT_EQ(SetValue(changed, hills), STATUS_OK);
    scene.Renderer->ResetCamera();
    EXPECT_EQ(scene.Render().CountDifferences(before), 0);
}

TEST(Surface, SetValueReplacesThePicture)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeHills(40, 30), true, true), STATUS_OK);
    ASSERT_EQ(surface.ShowIntensity(true), STATUS_OK);
    EXPECT_TRUE(ShowsIntensity(scene));
    EXPECT_EQ(SetValue(surface, MakeHills(30, 40), true), STATUS_OK);
    EXPECT_TRUE(ShowsIntensity(scene));
    EXPECT_EQ(SetValue(surface, MakeHills(50, 20)), STATUS_OK);
    EXPECT_FALSE(ShowsIntensity(scene));
    EXPECT_EQ(surface.ShowIntensity(true), STATUS_NOT_READY);
    EXPECT_EQ(scene.Renderer->GetActors()->GetNumberOfItems(), 1);

    ASSERT_EQ(surface.Show(false), STATUS_OK);
    EXPECT_EQ(SetValue(surface, MakeHills(50, 20)), STATUS_OK);
    EXPECT_NE(scene.GetActor(), nullptr);
    ASSERT_EQ(surface.Show(false), STATUS_OK);
    EXPECT_EQ(surface.SetRepresentationMode(true), STATUS_OK);
    EXPECT_NE(scene.GetActor(), nullptr);
}

TEST(Surface, TakesIntensitiesOfItsWidth)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    const Samples hills = MakeHills(40, 30);
    const std::vector<uint8_t> values(40 * 31, 200);
    ASSERT_EQ(scene.Add(surface, hills), STATUS_OK);
    EXPECT_EQ(surface.AddIntensity(nullptr, 40, 30), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(surface.AddIntensity(values.data(), 41, 30), STATUS_TOO_SMALL);
    EXPECT_EQ(surface.AddIntensity(values.data(), 40, 29), STATUS_TOO_SMALL);
    EXPECT_EQ(surface.AddIntensity(values.data(), 40, 31), STATUS_OK);
    EXPECT_FALSE(ShowsIntensity(scene));
    EXPECT_EQ(surface.ShowIntensity(true), STATUS_OK);
    scene.Renderer->ResetCamera();
    const Picture before = scene.Render();
    // While intensity is shown, new ones are seen in the next picture.
    EXPECT_EQ(surface.AddIntensity(hills.Intensities.data(), 40, 30), STATUS_OK);
    EXPECT_GT(scene.Render().CountDifferences(before), 1000);
    EXPECT_EQ(surface.AddIntensity(values.data(), 40, 30), STATUS_OK);
    EXPECT_EQ(scene.Render().CountDifferences(before), 0);
}

TEST(Surface, GivesBounds)
{
    SurfaceScene scene;
    CElement_SurfaceUniform flat;
    ASSERT_EQ(scene.Add(flat, MakeFlat(100, 100)), STATUS_OK);
    EXPECT_EQ(Bounds(flat, false), (std::array<double, 6>{0, 100, 0, 100, 0, 0}));
    EXPECT_EQ(Bounds(flat, true), (std::array<double, 6>{0, 100, 0, 100, -15, 7.5}));

    Samples steep = MakeFlat(3, 4);
    steep.Heights[5] = -200;
    steep.Heights[6] = 300;
    steep.Scale[1] = 2.0;
    steep.Scale[2] = 0.5;
    steep.Offset[0] = -7.0;
    steep.Offset[2] = 1.0;
    ASSERT_EQ(SetValue(flat, steep), STATUS_OK);
    EXPECT_EQ(Bounds(flat, true), (std::array<double, 6>{-7, -4, 0, 8, -99, 151}));

    scene.Defaults.AutoScale = false;
    CElement_SurfaceUniform fixed;
    ASSERT_EQ(scene.Add(fixed, steep), STATUS_OK);
    EXPECT_EQ(Bounds(fixed, false), (std::array<double, 6>{-7, -4, 0, 8, -10, 10}));
}

TEST(Surface, CarriesTransparencyAndColoursInItsTable)
{
    SurfaceScene scene;
    scene.Defaults.Palette = 6;
    scene.Defaults.Color[1] = 51;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeHills(40, 30)), STATUS_OK);
    EXPECT_EQ(MiddleColor(scene), (std::array<double, 4>{1.0, 0.2, 1.0, 1.0}));
    EXPECT_EQ(surface.SetColor(51, 0, 0), STATUS_OK);
    EXPECT_EQ(surface.SetTransparency(1.0000001), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(surface.SetTransparency(1.0), STATUS_OK);
    EXPECT_EQ(surface.SetBackgroundColor(0.25, 0.5, 0.75), STATUS_OK);
    EXPECT_EQ(MiddleColor(scene), (std::array<double, 4>{0.2, 0.0, 0.0, 0.0}));
    EXPECT_EQ(scene.GetActor()->GetProperty()->GetOpacity(), 1.0);

    vtkNew<vtkScalarBarActor> bar;
    ASSERT_EQ(surface.ConnectScalarBar(bar), STATUS_OK);
    auto* table = vtkLookupTable::SafeDownCast(bar->GetLookupTable());
    EXPECT_EQ(table->GetAboveRangeColor()[3], 0.0);
    EXPECT_EQ(table->GetNanColor()[2], 0.75);
    EXPECT_EQ(table->GetNanColor()[3], 1.0);
    EXPECT_EQ(table->GetNumberOfTableValues(), 256);
    // The labels of the bar come from the range that the picture gave the table.
    scene.Render();
    EXPECT_EQ(table->GetRange()[0], Bounds(surface, false)[4]);
    EXPECT_EQ(table->GetRange()[1], Bounds(surface, false)[5]);

    EXPECT_EQ(surface.ApplyPalette(7), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(surface.ApplyPalette(-1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(surface.ApplyPalette(2), STATUS_OK);
    EXPECT_NEAR(MiddleColor(scene)[1], 1.0 / 255.0, 1e-9);
}

TEST(Surface, ReturnsToTheLightingItWasMadeWith)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeHills(40, 30)), STATUS_OK);
    EXPECT_EQ(surface.SetLighting(1.0, 0.0, 0.0, 7.0), STATUS_OK);
    EXPECT_EQ(scene.GetActor()->GetProperty()->GetSpecularPower(), 7.0);
    EXPECT_EQ(surface.SetRepresentationMode(false), STATUS_OK);
    double lighting[4];
    EXPECT_EQ(surface.GetLighting(&lighting[0], &lighting[1], &lighting[2], &lighting[3]),
              STATUS_OK);
    EXPECT_EQ(std::to_array(lighting), (std::array<double, 4>{0.3, 0.4, 0.3, 0.0}));
    uint8_t mode = 9;
    EXPECT_EQ(surface.GetRepresentationMode(&mode), STATUS_OK);
    EXPECT_EQ(mode, 0);
}

TEST(Surface, OutOfReachLeavesTheCameraUsable)
{
    const Samples hills = MakeHills(40, 30);
    for (const double size : {1e31, 1e300, Infinite})
    {
        for (int number = 0; number < 6; ++number)
        {
            SurfaceScene scene;
            CElement_SurfaceUniform near;
            CElement_SurfaceUniform far;
            ASSERT_EQ(scene.Add(near, hills), STATUS_OK);
            Samples extreme = hills;
            (number < 3 ? extreme.Scale : extreme.Offset)[number % 3] = size;
            ASSERT_EQ(scene.Add(far, extreme, number % 2 == 0), STATUS_OK);
            scene.Renderer->ResetCamera();
            scene.Render();
            EXPECT_LT(scene.Renderer->GetActiveCamera()->GetDistance(), 1000.0);
            ASSERT_EQ(SetValue(far, hills), STATUS_OK);
            EXPECT_TRUE(scene.GetActor()->GetVisibility());
            EXPECT_TRUE(scene.GetActor()->GetUseBounds());
        }
    }
    // As far out as a picture is still made.
    SurfaceScene scene;
    CElement_SurfaceUniform wide;
    Samples extreme = hills;
    extreme.Scale[0] = extreme.Scale[1] = extreme.Scale[2] = 1e25;
    ASSERT_EQ(scene.Add(wide, extreme, false), STATUS_OK);
    scene.Renderer->ResetCamera();
    scene.Render();
    EXPECT_TRUE(std::isfinite(scene.Renderer->GetActiveCamera()->GetDistance()));
}

#ifndef __SANITIZE_ADDRESS__
TEST(Surface, WithoutMemoryStaysAsItWas)
{
    SurfaceScene scene;
    CElement_SurfaceUniform surface;
    ASSERT_EQ(scene.Add(surface, MakeHills(40, 30)), STATUS_OK);
    scene.Renderer->ResetCamera();
    const Picture before = scene.Render();
    const std::array<double, 6> bounds = Bounds(surface, false);
    const Samples large = MakeHills(4000, 3000); // 24 MB of heights, 144 MB of points

    rlimit normal{};
    getrlimit(RLIMIT_AS, &normal);
    for (const rlim_t megabytes : {8, 16, 40, 100, 190})
    {
        rlim_t pages = 0;
        std::ifstream("/proc/self/statm") >> pages;
        rlimit tight = normal;
        tight.rlim_cur = pages * static_cast<rlim_t>(sysconf(_SC_PAGESIZE)) + (megabytes << 20);
        setrlimit(RLIMIT_AS, &tight);
        const int32_t status = SetValue(surface, large, true);
        setrlimit(RLIMIT_AS, &normal);
        EXPECT_EQ(status, STATUS_OUT_OF_MEMORY) << megabytes;
        EXPECT_EQ(Bounds(surface, false), bounds);
        EXPECT_EQ(surface.ShowIntensity(true), STATUS_NOT_READY);
        EXPECT_EQ(scene.Render().CountDifferences(before), 0);
    }
}
#endif
