#include "SurfaceScene.h"

#include <algorithm>
#include <cmath>
#include <random>

#include <vtkUnsignedCharArray.h>

void Samples::Place(int pitchX, int pitchY)
{
    for (int i = 0; i < Grid.Columns * Grid.Rows; ++i)
    {
        X.push_back(static_cast<int16_t>(i % Grid.Columns * pitchX));
        Y.push_back(static_cast<int16_t>(i / Grid.Columns * pitchY));
    }
}

Samples MakeFlat(int32_t columns, int32_t rows)
{
    const auto count = static_cast<size_t>(columns * rows);
    return {.Grid = {columns, rows},
            .Heights = std::vector<int16_t>(count, 0),
            .Intensities = std::vector<uint8_t>(count, 0)};
}

Samples MakeHills(int32_t columns, int32_t rows)
{
    Samples samples = MakeFlat(columns, rows);
    for (int32_t i = 0; i < columns * rows; ++i)
    {
        const double x = 7.0 * (i % columns) / columns;
        const double y = 5.0 * (i / columns) / columns; // NOLINT(bugprone-integer-division)
        const auto at = static_cast<size_t>(i);
        samples.Heights[at] = static_cast<int16_t>(3000.0 * std::sin(x) * std::cos(y) +
                                                   1000.0 * std::sin(3.1 * x + 5.3 * y));
        samples.Intensities[at] =
            static_cast<uint8_t>(127.5 + 127.5 * std::sin(2.0 * x) * std::sin(3.0 * y));
    }
    samples.Grid.Scale = {100.0 / columns, 100.0 / columns, 0.001};
    return samples;
}

void PunchHoles(Samples& samples)
{
    std::mt19937 random(7);
    for (int hole = 0; hole < 40; ++hole)
    {
        const auto x = static_cast<int32_t>(random() % 200);
        const auto y = static_cast<int32_t>(random() % 150);
        const int32_t radius = hole % 10;
        for (int32_t i = 0; i < samples.Grid.Columns * samples.Grid.Rows; ++i)
        {
            const int32_t column = i % samples.Grid.Columns;
            const int32_t row = i / samples.Grid.Columns;
            // Every third hole is a grating, which leaves isolated samples.
            if (std::abs(column - x) <= radius && std::abs(row - y) <= radius &&
                (hole % 3 != 0 || (row + column) % 2 == 0 || column % 3 == 0))
            {
                samples.At(column, row) = Missing;
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

LiteralInput SurfaceScene::Literal(const Samples& samples) const
{
    LiteralInput input;
    input.Heights = samples.Heights.data();
    input.Columns = samples.Grid.Columns;
    input.Rows = samples.Grid.Rows;
    std::copy_n(samples.Grid.Scale.begin(), 3, input.Scale);
    std::copy_n(samples.Grid.Offset.begin(), 3, input.Offset);
    Renderer->GetBackground(input.Background);
    input.ShiftAndScale = false;
    int lowest = 32767;
    for (const int16_t height : samples.Heights)
    {
        lowest = height == Missing ? lowest : std::min<int>(lowest, height);
    }
    const int highest = *std::max_element(samples.Heights.begin(), samples.Heights.end());
    input.Range[0] = samples.Grid.Place(2, lowest);
    input.Range[1] = samples.Grid.Place(2, highest);
    return input;
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
    Window->GetPixelData(0, 0, picture.Width - 1, picture.Height - 1, 1, pixels);
    // The lowest row comes first.
    for (vtkIdType y = picture.Height - 1; y >= 0; --y)
    {
        const unsigned char* row = pixels->GetPointer(3 * y * picture.Width);
        picture.Pixels.insert(picture.Pixels.end(), row, row + 3 * vtkIdType{picture.Width});
    }
    return picture;
}
