#include "LiteralImage.h"
#include "elements2d/CImagePlot.h"
#include "view2d/InsideChart.h"

#include <cmath>

namespace
{
using Bytes = std::vector<uint8_t>;

class Image2D : public InsideChart
{
protected:
    Image2D() : InsideChart(400, 300) { Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0); }

    void AddImage(const Bytes& pixels, int columns, int rows, double x = 0, double y = 0,
                  double scale = 1, uint32_t palette = 0)
    {
        ASSERT_EQ(Tarvex_Element2D_Add_ImageByte(Id, pixels.data(), columns, rows, scale, scale, 2,
                                                 x, y, 3, palette, &Image),
                  STATUS_OK);
    }
    Picture Draw() const
    {
        Render();
        return Look();
    }
    Picture DrawRange(const double range[4]) const
    {
        Axis(vtkAxis::BOTTOM)->SetUnscaledRange(range[0], range[1]);
        Axis(vtkAxis::LEFT)->SetUnscaledRange(range[2], range[3]);
        return Draw();
    }
    int32_t Image = TARVEX_NONE;
};
} // namespace

TEST_F(Image2D, IsDrawnPixelByPixelLikeTheStockPlotInEachPalette)
{
    Bytes pixels;
    for (int at = 0; at < 150 * 90; ++at)
    {
        pixels.push_back(static_cast<uint8_t>(at % 150 * 7 + at / 150 * 31)); // neighbours differ
    }
    const double ranges[][4] = {{-10.3, 161.7, -7.1, 99.2},      // all of it
                                {20.013, 31.27, 40.017, 47.031}, // magnified
                                {-900.1, 1300.7, -700.3, 800.9}, // small
                                {-50.17, 60.31, 30.03, 140.77}}; // partly outside
    for (int palette = 0; palette < PaletteCount; ++palette)
    {
        AddImage(pixels, 150, 90, 0, 0, 1, static_cast<uint32_t>(palette));
        for (const auto& range : ranges)
        {
            const Picture picture = DrawRange(range);
            LiteralImage stock(View());
            stock.SetValue(pixels.data(), 150, 90, palette);
            stock.Refresh();
            EXPECT_EQ(picture.CountDifferences(Draw()), 0) << palette << ", " << range[0];
        }
    }
}

TEST_F(Image2D, LiesWhereTheAxesSayAlsoFarFromZeroAndBeyondTheSizeOfTextures)
{
    const struct
    {
        int Columns, Rows;
        double X, Y, Scale, Range[4];
    } cases[] = {{100, 100, 1000, 1000, 0.1, {998, 1006, 998, 1006}}, // an axis shift is on
                 {100, 100, -5e6, 7e5, 1e-3, {-5e6 - 0.01, -5e6 + 0.05, 7e5 + 0.03, 7e5 + 0.12}},
                 {40000, 3, 0, 0, 1, {16300.3, 16500.1, -1.03, 4.1}},
                 {3, 40000, 0, 0, 1, {-1.03, 4.1, 39700.3, 39900.1}}};
    for (const auto& [columns, rows, x, y, scale, range] : cases)
    {
        SCOPED_TRACE(testing::Message() << columns << " at " << x);
        // Blue, with one red texel about the middle of the range.
        Bytes pixels(static_cast<size_t>(columns * rows));
        const double column = std::floor(((range[0] + range[1]) / 2 - x) / scale);
        const double row = std::floor(((range[2] + range[3]) / 2 - y) / scale);
        pixels[static_cast<size_t>((rows - 1 - row) * columns + column)] = 170;
        AddImage(pixels, columns, rows, x, y, scale);
        const Picture picture = DrawRange(range);
        const auto mark = picture.Centre([](const Picture::Color& color)
                                         { return color[0] > 200 && color[1] < 40; });
        const ChartPoint middle = Locate({x + (column + 0.5) * scale, y + (row + 0.5) * scale});
        EXPECT_NEAR(mark[0], middle.X, 1.0);
        EXPECT_NEAR(mark[1], middle.Y, 1.0);
        const auto isRest = [](const Picture::Color& color) { return color[2] > 250 && !color[1]; };
        EXPECT_GT(picture.Count(isRest), 9000);
        // The mouse finds the corner pixel, in the plot's own, shifted numbers.
        vtkPlot* plot = Chart()->GetPlot(0);
        const vtkRectd shift = plot->GetShiftScale();
        const vtkVector2f point(static_cast<float>((x + scale / 2 + shift[0]) * shift[2]),
                                static_cast<float>((y + scale / 2 + shift[1]) * shift[3]));
        vtkVector2f place;
        EXPECT_EQ(plot->GetNearestPoint(point, {0, 0}, &place, nullptr), 0);
        const auto texel = static_cast<vtkIdType>(row * columns + column);
        EXPECT_TRUE(plot->GetTooltipLabel({}, texel, 0).ends_with(":  170"));
    }
}

TEST_F(Image2D, LeavesNothingBehindWhenItIsHiddenOrRemovedOrGetsAnotherPalette)
{
    const Bytes pixels = {5, 90, 180, 250};
    const Picture empty = DrawRange(std::array{-1.0, 5.0, -1.0, 5.0}.data());
    AddImage(pixels, 2, 2, 0, 0, 2);
    const Picture shown = Draw();
    EXPECT_GT(shown.CountDifferences(empty), 9000);
    Tarvex_Element2D_Show(Id, Image, 0);
    AddImage(pixels, 2, 2, 0, 0, 2);
    EXPECT_EQ(Draw().CountDifferences(empty), 0) << "hidden, and stays so";
    Tarvex_Element2D_Show(Id, Image, 1);
    EXPECT_EQ(Draw().CountDifferences(shown), 0);
    Tarvex_Element2D_Remove(Id, Image);
    EXPECT_EQ(Draw().CountDifferences(empty), 0);

    // One colour: the one of the time when the palette was chosen.
    AddImage(pixels, 2, 2, 0, 0, 2, SingleColorPalette);
    EXPECT_EQ(Tarvex_Element2D_SetColor(Id, Image, 9, 200, 3), STATUS_WRONG_TYPE);
    EXPECT_EQ(Draw().At(200, 130), (Picture::Color{0, 0, 255}));
    Tarvex_Element2D_SetPalette_Image(Id, Image, SingleColorPalette);
    EXPECT_EQ(Draw().At(200, 130), (Picture::Color{9, 200, 3}));
}

TEST_F(Image2D, ReducesShortsToBytes)
{
    constexpr double gap = TARVEX_INVALID_VALUE;
    // Shorts, bytes, scale and offset in Z.
    const std::tuple<Numbers, Numbers, double, double> cases[] = {
        {{0, 255, gap, 7}, {0, 255, 0, 7}, 2, 3},
        {{gap, gap, gap, gap}, {0, 0, 0, 0}, 2, 3},
        {{100, gap, 100, 100}, {1, 1, 1, 1}, 2, 3},
        {{0, 256, gap, 64}, {1, 255, 0, 65}, 2 / (254.0 / 256), 3 + 2 / (254.0 / 256)},
        {{-32767, 32767, gap, 0},
         {1, 255, 0, 128},
         2 / (254.0 / 65534),
         -32767 * 2.0 + 3.0 + 2 / (254.0 / 65534)}};
    for (const auto& [pixels, expected, scaleZ, offsetZ] : cases)
    {
        Numbers given = pixels;
        given.insert(given.end(), {2, 2, 1, 1, 2, 0, 0, 3, 0});
        const int32_t image = Add("Element2D_Add_ImageShort", given);
        Call read = MakeCall("Tarvex_Element2D_Image_GetValue", {double(Id), double(image)});
        read.OutputLength = 4;
        read.Perform();
        EXPECT_EQ(read.Outputs[0], expected);
        EXPECT_EQ(read.Outputs[3][0], scaleZ);
        EXPECT_EQ(read.Outputs[6][0], offsetZ);
    }
}
