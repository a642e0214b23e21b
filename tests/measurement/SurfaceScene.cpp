#include "SurfaceScene.h"

#include "Tarvex.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <vtkActorCollection.h>
#include <vtkCamera.h>
#include <vtkUnsignedCharArray.h>

Samples MakeFlat(int32_t columns, int32_t rows)
{
    Samples samples;
    samples.Columns = columns;
    samples.Rows = rows;
    const auto count = static_cast<size_t>(columns) * static_cast<size_t>(rows);
    samples.Heights.assign(count, 0);
    samples.Intensities.assign(count, 0);
    return samples;
}

Samples MakeHills(int32_t columns, int32_t rows)
{
    Samples samples = MakeFlat(columns, rows);
    for (int32_t row = 0; row < rows; ++row)
    {
        for (int32_t column = 0; column < columns; ++column)
        {
            const double x = 7.0 * column / columns;
            const double y = 5.0 * row / columns;
            samples.At(column, row) = static_cast<int16_t>(3000.0 * std::sin(x) * std::cos(y) +
                                                           1000.0 * std::sin(3.1 * x + 5.3 * y));
            samples.Intensities[static_cast<size_t>(row * columns + column)] =
                static_cast<uint8_t>(127.5 + 127.5 * std::sin(2.0 * x) * std::sin(3.0 * y));
        }
    }
    samples.Scale[0] = samples.Scale[1] = 100.0 / columns;
    samples.Scale[2] = 0.001;
    return samples;
}

void PunchHoles(Samples& samples)
{
    std::mt19937 random(7);
    const auto pick = [&](int32_t end)
    { return static_cast<int32_t>(random() % static_cast<uint32_t>(end)); };
    for (int hole = 0; hole < 40; ++hole)
    {
        const int32_t centreX = pick(samples.Columns);
        const int32_t centreY = pick(samples.Rows);
        const int32_t radius = hole % 10;
        for (int32_t row = std::max(0, centreY - radius);
             row <= std::min(samples.Rows - 1, centreY + radius); ++row)
        {
            for (int32_t column = std::max(0, centreX - radius);
                 column <= std::min(samples.Columns - 1, centreX + radius); ++column)
            {
                // Every third hole is a grating, which leaves isolated samples.
                if (hole % 3 != 0 || (row + column) % 2 == 0 || column % 3 == 0)
                {
                    samples.At(column, row) = Missing;
                }
            }
        }
    }
}

SurfaceScene::SurfaceScene()
{
    Window->SetMultiSamples(0);
    Window->SetSize(400, 300);
    Window->AddRenderer(Renderer);
    Renderer->SetBackground(25.0 / 255.0, 50.0 / 255.0, 75.0 / 255.0);
    Mirror->Scale(1.0, -1.0, 1.0);
    Defaults.Ambient = 0.3;
    Defaults.Diffuse = 0.4;
    Defaults.Specular = 0.3;
    Defaults.SpecularPower = 0.0;
}

SurfaceScene::~SurfaceScene()
{
    Renderer->RemoveAllViewProps();
}

ElementSite SurfaceScene::Site()
{
    ElementSite site;
    site.Id = 0;
    site.Renderer = Renderer;
    site.RenderWindow = Window;
    site.Transform = Mirror;
    site.Defaults = &Defaults;
    Renderer->GetBackground(site.BackgroundColor);
    return site;
}

int32_t SurfaceScene::Add(CElement_SurfaceUniform& surface, const Samples& samples,
                          bool fullCellsOnly, bool withIntensities)
{
    int32_t status = surface.Initialize(
        Site(), samples.Heights.data(), withIntensities ? samples.Intensities.data() : nullptr,
        samples.Columns, samples.Rows, samples.Scale[0], samples.Scale[1], samples.Scale[2],
        samples.Offset[0], samples.Offset[1], samples.Offset[2], fullCellsOnly);
    if (status == STATUS_OK)
    {
        status = surface.BuildPipeline();
    }
    return status == STATUS_OK ? surface.Show(true) : status;
}

LiteralInput SurfaceScene::Literal(const Samples& samples) const
{
    LiteralInput input;
    input.Heights = samples.Heights.data();
    input.Columns = samples.Columns;
    input.Rows = samples.Rows;
    std::copy_n(samples.Scale, 3, input.Scale);
    std::copy_n(samples.Offset, 3, input.Offset);
    input.Palette = Defaults.Palette;
    Renderer->GetBackground(input.Background);
    input.ShiftAndScale = false;

    int16_t lowest = 32767;
    int16_t highest = Missing;
    for (const int16_t height : samples.Heights)
    {
        lowest = height == Missing ? lowest : std::min(lowest, height);
        highest = std::max(highest, height);
    }
    input.Range[0] = lowest * samples.Scale[2] + samples.Offset[2];
    input.Range[1] = highest * samples.Scale[2] + samples.Offset[2];
    return input;
}

vtkActor* SurfaceScene::GetActor() const
{
    return Renderer->GetActors()->GetLastActor();
}

Picture SurfaceScene::Show(vtkActor* actor)
{
    Renderer->RemoveAllViewProps();
    Renderer->AddActor(actor);
    Renderer->ResetCameraClippingRange();
    return Render();
}

Picture SurfaceScene::Render()
{
    Window->Render();
    Picture picture;
    picture.Width = Window->GetSize()[0];
    picture.Height = Window->GetSize()[1];
    vtkNew<vtkUnsignedCharArray> pixels;
    Window->GetRGBACharPixelData(0, 0, picture.Width - 1, picture.Height - 1, 1, pixels);
    for (int y = picture.Height - 1; y >= 0; --y)
    {
        for (int x = 0; x < picture.Width; ++x)
        {
            const unsigned char* pixel = pixels->GetPointer(4 * (vtkIdType{y} * picture.Width + x));
            picture.Pixels.insert(picture.Pixels.end(), pixel, pixel + 3);
        }
    }
    return picture;
}

int32_t SetValue(CElement_SurfaceUniform& surface, const Samples& samples, bool withIntensities)
{
    return surface.SetValue(samples.Heights.data(),
                            withIntensities ? samples.Intensities.data() : nullptr, samples.Columns,
                            samples.Rows, samples.Scale[0], samples.Scale[1], samples.Scale[2],
                            samples.Offset[0], samples.Offset[1], samples.Offset[2]);
}
