#include "LiteralImage.h"
#include "TarvexExt.h"
#include "elements2d/CImagePlot.h"
#include "frame/CWindowManager.h"
#include "frame/FailingAllocations.h"
#include "support/TestHost.h"

#include <gtest/gtest.h>

#include <cmath>

#include <vtkAxis.h>

namespace
{
using Bytes = std::vector<uint8_t>;
using Shorts = std::vector<int16_t>;

// Neighbours differ; every byte occurs.
Bytes MakePixels(int width, int height)
{
    Bytes pixels;
    for (int i = 0; i < width * height; ++i)
    {
        pixels.push_back(static_cast<uint8_t>((i % width) * 7 + (i / width) * 31));
    }
    return pixels;
}

class Image2D : public testing::Test
{
protected:
    Image2D()
    {
        EXPECT_EQ(Tarvex_Window2D_Create(Host.Handle(), 1, 0, 0, 400, 300, &Id), STATUS_OK);
        CWindowManager::Instance->Call<CWindow2D>(
            Id, [this](CWindow2D& view) -> int32_t { return (View = &view, STATUS_OK); });
    }
    ~Image2D() override { Tarvex_Window2D_Delete(Id); }

    int32_t Add(const Bytes& pixels, int width, int height, double x = 0, double y = 0,
                double scale = 1, uint32_t palette = 0)
    {
        return Tarvex_Element2D_Add_ImageByte(Id, pixels.data(), width, height, scale, scale, 2, x,
                                              y, 3, palette, &Image);
    }
    int32_t Add(const Shorts& pixels, int width, int height)
    {
        return Tarvex_Element2D_Add_ImageShort(Id, pixels.data(), width, height, 1, 1, 2, 0, 0, 3,
                                               0, &Image);
    }
    vtkAxis* GetAxis(int side) const { return View->GetChart()->GetAxis(side); }
    void SetRange(double xmin, double xmax, double ymin, double ymax) const
    {
        GetAxis(vtkAxis::BOTTOM)->SetUnscaledRange(xmin, xmax);
        GetAxis(vtkAxis::LEFT)->SetUnscaledRange(ymin, ymax);
    }
    Picture Draw() const
    {
        Picture picture{400, 300, Bytes(400 * 300 * 3)};
        EXPECT_EQ(Tarvex_Window2D_SetBackgroundColor(Id, 0, 0, 0), STATUS_OK);
        EXPECT_EQ(TarvexExt_Window2D_CopyImage(Id, picture.Pixels.data(), 400 * 300 * 3,
                                               &picture.Width, &picture.Height),
                  STATUS_OK);
        return picture;
    }
    // Pixels of the plot area that do not show what lies there by the axes; those within a
    // hundredth of a pixel of a border between two texels are left out.
    int CountWrong(const Picture& picture, const Bytes& pixels, int width, int height, double x0,
                   double y0, double scale, int* inside) const
    {
        const auto locate = [&](int side, int direction, double pixel, double size, double* step)
        {
            vtkAxis* axis = GetAxis(side);
            const double first = axis->GetPoint1()[direction];
            const double perPixel = (axis->GetMaximum() - axis->GetMinimum()) /
                                    (axis->GetPoint2()[direction] - first) / scale;
            *step = perPixel * (size - 1) / size;
            const double scene = (pixel + 0.5) * (size - 1) / size + 0.5;
            return axis->GetMinimum() / scale + (scene - first) * perPixel;
        };
        const PaletteTable colors = GetImageTable(0, {});
        int wrong = 0;
        *inside = 0;
        for (int row = 20; row < 220; ++row) // from above; clear of the axes
        {
            for (int column = 80; column < 380; ++column)
            {
                double step[2];
                const double x =
                    locate(vtkAxis::BOTTOM, 0, column, picture.Width, step) - x0 / scale;
                const double y =
                    locate(vtkAxis::LEFT, 1, picture.Height - 1 - row, picture.Height, step + 1) -
                    y0 / scale;
                const bool isBorder = std::abs(x - std::round(x)) < 0.01 * step[0] ||
                                      std::abs(y - std::round(y)) < 0.01 * step[1];
                if (isBorder || x < 0 || x > width || y < 0 || y > height)
                {
                    continue;
                }
                ++*inside;
                const auto texel = static_cast<size_t>(
                    (height - 1 - static_cast<int64_t>(y)) * width + static_cast<int64_t>(x));
                wrong += picture.At(column, row) != colors[pixels[texel]];
            }
        }
        return wrong;
    }

    TestHost Host{400, 300};
    int32_t Id = -1;
    int32_t Image = -1;
    CWindow2D* View = nullptr;
};
} // namespace

TEST_F(Image2D, HasTheColoursOfTheStockTransferFunction)
{
    const uint8_t own[] = {200, 31, 7};
    for (int palette = 0; palette < PaletteCount; ++palette)
    {
        const auto stock = LiteralImage::MakeColors(palette, own);
        const PaletteTable table = GetImageTable(palette, {own[0], own[1], own[2]});
        for (size_t byte = 0; byte < table.size(); ++byte)
        {
            const uint8_t* color =
                stock->MapValue(byte < 255 ? static_cast<double>(byte) : 254.9999);
            EXPECT_EQ(table[byte], (PaletteColor{color[0], color[1], color[2]}))
                << palette << ", " << byte;
        }
    }
    // The nodes themselves.
    EXPECT_EQ(GetImageTable(0, {})[42], (PaletteColor{0, 252, 255}));
    EXPECT_EQ(GetImageTable(1, {})[51], (PaletteColor{0, 1, 243}));
    EXPECT_EQ(GetImageTable(4, {})[127], (PaletteColor{0, 0, 255}));
}

TEST_F(Image2D, IsDrawnPixelByPixelLikeTheStockPlot)
{
    const Bytes pixels = MakePixels(150, 90);
    const double ranges[][4] = {{-10.3, 161.7, -7.1, 99.2},      // all of it
                                {20.013, 31.27, 40.017, 47.031}, // magnified
                                {-900.1, 1300.7, -700.3, 800.9}, // small
                                {-50.17, 60.31, 30.03, 140.77},  // partly outside
                                {200.2, 300.1, 10.1, 80.3}};     // all outside
    for (const auto& range : ranges)
    {
        SCOPED_TRACE(range[0]);
        ASSERT_EQ(Add(pixels, 150, 90, 0, 0, 1, 1), STATUS_OK);
        SetRange(range[0], range[1], range[2], range[3]);
        const Picture own = Draw();
        LiteralImage stock(*View);
        stock.SetValue(pixels.data(), 150, 90, 1);
        stock.Refresh();
        EXPECT_EQ(own.CountDifferences(Draw()), 0);
    }
}

TEST_F(Image2D, LiesWhereTheAxesSayAlsoFarFromZeroAndBeyondTheSizeOfTextures)
{
    const struct
    {
        int Width;
        int Height;
        double X;
        double Y;
        double Scale;
        double Range[4];
    } cases[] = {{100, 100, 1000, 1000, 0.1, {998, 1006, 998, 1006}}, // an axis shift is on
                 {100, 100, -5e6, 7e5, 1e-3, {-5e6 - 0.01, -5e6 + 0.05, 7e5 + 0.03, 7e5 + 0.12}},
                 {100, 100, 1e-9, 1e-9, 1e-10, {0, 2e-8, 0, 1.1e-8}},
                 {40000, 3, 0, 0, 1, {16300.3, 16500.1, -1.03, 4.1}},
                 {3, 40000, 0, 0, 1, {-1.03, 4.1, 31000.3, 39900.1}}};
    for (const auto& [width, height, x, y, scale, range] : cases)
    {
        SCOPED_TRACE(testing::Message() << width << " at " << x);
        const Bytes pixels = MakePixels(width, height);
        ASSERT_EQ(Add(pixels, width, height, x, y, scale), STATUS_OK);
        SetRange(range[0], range[1], range[2], range[3]);
        int inside = 0;
        EXPECT_EQ(CountWrong(Draw(), pixels, width, height, x, y, scale, &inside), 0);
        EXPECT_GT(inside, 9000);
        // The tip of the mouse in the plot's own, shifted numbers: its corner pixel is found.
        vtkPlot* plot = View->GetChart()->GetPlot(0);
        const vtkRectd shift = plot->GetShiftScale();
        vtkVector2f place;
        const vtkVector2f point(static_cast<float>((x + scale / 2 + shift.GetX()) * shift[2]),
                                static_cast<float>((y + scale / 2 + shift.GetY()) * shift[3]));
        vtkIdType segment = -1;
        ASSERT_EQ(plot->GetNearestPoint(point, {0, 0}, &place, &segment), 0);
        const auto corner = static_cast<size_t>(width) * static_cast<size_t>(height - 1);
        EXPECT_TRUE(
            plot->GetTooltipLabel({0, 0}, 0, 0).ends_with(":  " + std::to_string(pixels[corner])));
    }
}

TEST_F(Image2D, LeavesNothingBehindWhenItIsHiddenOrRemovedOrGetsAnotherPalette)
{
    SetRange(-1, 5, -1, 5);
    const Picture empty = Draw();
    const Bytes pixels = MakePixels(4, 4);
    ASSERT_EQ(Add(pixels, 4, 4), STATUS_OK);
    const Picture shown = Draw();
    EXPECT_GT(shown.CountDifferences(empty), 9000);
    Tarvex_Element2D_Show(Id, Image, 0);
    EXPECT_EQ(Draw().CountDifferences(empty), 0);
    EXPECT_EQ(Add(pixels, 4, 4), STATUS_OK) << "hidden, and stays so";
    EXPECT_EQ(Draw().CountDifferences(empty), 0);
    Tarvex_Element2D_Show(Id, Image, 1);
    EXPECT_EQ(Draw().CountDifferences(shown), 0);

    EXPECT_EQ(Tarvex_Element2D_SetPalette_Image(Id, Image, TARVEX_PALETTE_RED), STATUS_OK);
    const Picture changed = Draw();
    EXPECT_EQ(Tarvex_Element2D_Remove(Id, Image), STATUS_OK);
    EXPECT_EQ(Draw().CountDifferences(empty), 0);
    EXPECT_EQ(Add(pixels, 4, 4, 0, 0, 1, TARVEX_PALETTE_RED), STATUS_OK);
    EXPECT_EQ(Draw().CountDifferences(changed), 0);

    // One colour: the one of the time when the palette was chosen.
    const PaletteColor green = {9, 200, 3};
    const auto isGreen = [&](const Picture::Color& color) { return color == green; };
    const auto isBlue = [](const Picture::Color& color) {
        return color == Picture::Color{0, 0, 255};
    };
    Tarvex_Element2D_SetPalette_Image(Id, Image, 6);
    EXPECT_EQ(Tarvex_Element2D_SetColor(Id, Image, 9, 200, 3), STATUS_WRONG_TYPE);
    EXPECT_GT(Draw().Count(isBlue), 9000);
    Tarvex_Element2D_SetPalette_Image(Id, Image, 6);
    EXPECT_GT(Draw().Count(isGreen), 9000);
}

TEST_F(Image2D, ReducesShortsToBytes)
{
    constexpr int16_t gap = -32768;
    const struct
    {
        Shorts Pixels;
        Bytes Expected;
        double ScaleZ;
        double OffsetZ;
    } cases[] = {{{0, 255, gap, 7}, {0, 255, 0, 7}, 2, 3},
                 {{gap, gap, gap, gap}, {0, 0, 0, 0}, 2, 3},
                 {{100, gap, 100, 100}, {1, 1, 1, 1}, 2, 3},
                 {{0, 256, gap, 128}, {1, 255, 0, 128}, 2 / (254.0 / 256), 3 + 2 / (254.0 / 256)},
                 {{-1, 1, gap, 0}, {1, 255, 0, 128}, 2 / 127.0, -2 + 3.0 + 2 / 127.0},
                 {{-32767, 32767, gap, 0},
                  {1, 255, 0, 128},
                  2 / (254.0 / 65534),
                  -32767 * 2.0 + 3.0 + 2 / (254.0 / 65534)}};
    for (const auto& [pixels, expected, scaleZ, offsetZ] : cases)
    {
        SCOPED_TRACE(pixels[1]);
        ASSERT_EQ(Add(pixels, 2, 2), STATUS_OK);
        Bytes bytes(4);
        double z[2];
        double unused;
        EXPECT_EQ(Tarvex_Element2D_Image_GetValue(Id, Image, bytes.data(), &unused, &unused, z,
                                                  &unused, &unused, z + 1),
                  STATUS_OK);
        EXPECT_EQ(bytes, expected);
        EXPECT_EQ(z[0], scaleZ);
        EXPECT_EQ(z[1], offsetZ);
    }
}

TEST_F(Image2D, IsTheOnlyOneAndKeepsItsStateWhenAChangeFails)
{
    const Bytes pixels = MakePixels(4, 3);
    const Bytes others = MakePixels(9, 8);
    ASSERT_EQ(Add(pixels, 4, 3, 10, 20, 0.5), STATUS_OK);
    const Picture before = Draw();
    const int32_t first = Image;
    EXPECT_EQ(first, 0);
    const auto set =
        [&](const uint8_t* given, int width, int height, double x, double z, uint32_t palette)
    {
        int32_t id = -1;
        const int32_t status = Tarvex_Element2D_Add_ImageByte(Id, given, width, height, x, 1, z, 0,
                                                              0, 0, palette, &id);
        EXPECT_EQ(id, status == STATUS_OK ? first : -1);
        EXPECT_EQ(Tarvex_Element2D_Image_SetValueByte(Id, first, given, width, height, x, 1, z, 0,
                                                      0, 0, palette),
                  status);
        return status;
    };
    EXPECT_EQ(set(nullptr, 1, 2, 0, 0, 9), STATUS_NULL_ARGUMENT);
    EXPECT_EQ(set(pixels.data(), 1, 2, 0, 0, 9), STATUS_TOO_SMALL);
    EXPECT_EQ(set(pixels.data(), 2, 2, 1e-11, 1, 1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(set(pixels.data(), 2, 2, 1, -1, 1), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(set(pixels.data(), 65536, 65536, 1, 1, 7), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(set(pixels.data(), 65536, 32768, 1, 1, 1), STATUS_OUT_OF_MEMORY);
    FailAllocation(1);
    EXPECT_EQ(
        Tarvex_Element2D_Image_SetValueByte(Id, first, others.data(), 9, 8, 1, 1, 1, 0, 0, 0, 1),
        STATUS_OUT_OF_MEMORY);
    EXPECT_TRUE(StopFailing());
    EXPECT_EQ(Tarvex_Element2D_SetPalette_Image(Id, first, 7), STATUS_OUT_OF_RANGE);
    EXPECT_EQ(Draw().CountDifferences(before), 0);
    int32_t size[2];
    EXPECT_EQ(Tarvex_Element2D_Image_GetImageSize(Id, first, size, size + 1), STATUS_OK);
    EXPECT_EQ(size[0] * 10 + size[1], 43);
    double box[4];
    EXPECT_EQ(View->FindElement(first)->GetBounds(box, box + 1, box + 2, box + 3), STATUS_OK);
    EXPECT_EQ(std::vector<double>(box, box + 4), (std::vector<double>{10, 12, 20, 21.5}));

    EXPECT_EQ(set(others.data(), 9, 8, 1, 1, 3), STATUS_OK);
    int32_t number = 0;
    Tarvex_Element2D_GetCount(Id, &number);
    EXPECT_EQ(number, 1);
    EXPECT_EQ(Tarvex_Element2D_GetPalette_Image(Id, first, &number), STATUS_OK);
    EXPECT_EQ(number, 3);
    // Kept, and handed out with the refusal.
    double extent = 0;
    EXPECT_EQ(Tarvex_Element2D_SetSize(Id, first, 4.0), STATUS_WRONG_TYPE);
    EXPECT_EQ(Tarvex_Element2D_GetSize(Id, first, &extent), STATUS_WRONG_TYPE);
    EXPECT_EQ(extent, 4.0);
    Tarvex_Element2D_RemoveAll(Id);
    EXPECT_EQ(Add(pixels, 4, 3), STATUS_OK);
    EXPECT_EQ(Image, 1);
}
