// Measured lines in charts: runs, plots, what a host reads back, and the same picture as stock
// plots give.
#include "LiteralChartProfile.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

#include <cmath>
#include <random>

#include <vtkTable.h>

namespace
{
constexpr int16_t Gap = TARVEX_INVALID_VALUE;
using Heights = std::vector<int16_t>;

class Profiles2D : public InsideChart
{
protected:
    Profiles2D() : InsideChart(400, 300) {}

    // Red pixels without a red one beside them in the other picture.
    static int CountFar(const Picture& picture, const Picture& other)
    {
        int far = 0;
        for (int at = 0; at < picture.Width * picture.Height; ++at)
        {
            const int x = at % picture.Width;
            const int y = at / picture.Width;
            bool near = !IsRed(picture.At(x, y));
            for (int beside = 0; !near && beside < 9; ++beside)
            {
                near = IsRed(other.At(x - 1 + beside % 3, y - 1 + beside / 3));
            }
            far += near ? 0 : 1;
        }
        return far;
    }
};
} // namespace

TEST_F(Profiles2D, HaveAPlotForEachRunOfValidSamplesOnTopOfThoseBefore)
{
    // Profile, change, heights (X counts from 0), and the rows of all plots from the lowest up,
    // negative where it has crosses.
    const std::tuple<int32_t, std::string, Numbers, std::vector<int>> steps[] = {
        {1, "SetValue", {1, 2}, {4, 2}},
        {0, "SetValue", {1, 2, Gap, 4}, {2, 2, -1}},
        {0, "AttachValues", {5}, {2, 2, 2}},
        {0, "AttachValues", {6, Gap, 7, Gap}, {2, 2, 3, -1}},
        {0, "AttachValues", {Gap, 5}, {2, 2, 3, -1, -1}},
        {1, "AttachValues", {Gap}, {2, 3, -1, -1, 2}},
        {1, "AttachValues", {Gap, Gap, Gap, -5}, {2, 3, -1, -1, 2, -1}},
        {0, "SetValue", {Gap, 2, 3, Gap}, {2, -1, 2}},
        {0, "SetValue", {Gap, Gap}, {2, -1}},
        {0, "SetValue", {1, -32767, 3}, {2, -1, 3}},
        {0, "SetValue", {1, Gap, 3, Gap}, {2, -1, -1, -1}}};
    for (int profile = 0; profile < 2; ++profile)
    {
        Add("Element2D_Add_ProfileNonUniform_KorData", {0, 1, 2, 3, 1, 1, 1, 1, 4});
    }
    for (const auto& step : steps)
    {
        const auto& [profile, change, heights, rows] = step;
        Numbers given = {static_cast<double>(heights.size()), 0, 1, 2, 3};
        given.insert(given.end(), heights.begin(), heights.end());
        given.resize(9);
        EXPECT_EQ(Do("Element2D_ProfileNonUniform_" + change + "_KorData", profile, given),
                  STATUS_OK);
        std::vector<int> all;
        // Above the image.
        for (int below = static_cast<int>(Chart()->GetNumberOfPlots()) - 2; below >= 0; --below)
        {
            vtkPlotPoints* plot = TopPlot(below);
            const auto count = static_cast<int>(plot->GetInput()->GetNumberOfRows());
            all.push_back(plot->GetMarkerStyle() == vtkPlotPoints::CROSS ? -count : count);
        }
        EXPECT_EQ(all, rows) << &step - steps;
    }
    // Times 7 and 7 more.
    EXPECT_EQ(Bounds(1), (Numbers{7, 28, -28, 21}));
}

TEST_F(Profiles2D, AreMeasuredByWhatIsValidAndAFloatMayNotHold)
{
    const auto add = [this](double name)
    {
        return Add("Element2D_Add_ProfileNonUniform_GeneralData",
                   {5, 1, 2, 3, 9, NaN, 2, 1e39, 0, 1, 2, 1, 4, name});
    };
    // By their entry in the hosted names: as long as may be, and longer.
    EXPECT_EQ(Bounds(add(4)), (Numbers{2, 3, 2, 1e39}));
    EXPECT_EQ(TopPlot()->GetInput()->GetColumnName(1), std::string(255, 'n'));
    EXPECT_EQ(TopPlot()->GetMarkerStyle(), vtkPlotPoints::CROSS);
    add(5);
    EXPECT_STREQ(TopPlot()->GetInput()->GetColumnName(1), "Non-uniform spaced profile 1");
}

TEST_F(Profiles2D, LookAsStockPlotsDo)
{
    // A wave with noise of so many counts, flat to wild; X steps of one count and of none.
    for (const int noise : {0, 20, 200, 2000, 20000})
    {
        for (const auto& [offset, first, width] :
             {std::tuple(0.0, 0.0, 300.0), {1e5, 1e5, 300.0}, {1e5, 1e5 + 203, 6.0}})
        {
            SCOPED_TRACE(testing::Message() << noise << " from " << first);
            const size_t count = 30000;
            Heights x(count);
            Heights z(count);
            std::mt19937 random(1);
            for (size_t sample = 0; sample < count; ++sample)
            {
                x[sample] = static_cast<int16_t>(sample / 2 * 2);
                z[sample] = static_cast<int16_t>(
                    std::sin(static_cast<double>(sample) * 4e-4) * 9000.0 +
                    noise * (std::generate_canonical<double, 16>(random) - 0.5));
            }
            std::fill_n(z.begin() + 20000, 500, Gap);
            int32_t element = TARVEX_NONE;
            Tarvex_Element2D_Add_ProfileNonUniform_KorData(Id, x.data(), z.data(), count, 0.01,
                                                           0.001, offset, 0.0, &element, nullptr);
            // All of it, or little around the end of the gap.
            Axis(vtkAxis::BOTTOM)->SetUnscaledRange(first, first + width);
            Render();
            const Picture ours = Look();
            EXPECT_GT(ours.Count(IsRed), 100);
            Tarvex_Element2D_RemoveAll(Id);
            Render();
            EXPECT_EQ(Look().Count(IsRed), 0);
            LiteralChartProfile stock(Chart());
            stock.Replace(x, z, 0.01, 0.001, offset);
            Render();
            Render();
            // Software OpenGL loses and doubles single pixels of lines far shorter than a pixel.
            const Picture theirs = Look();
            EXPECT_LE(theirs.CountDifferences(ours), theirs.Count(IsRed) / 8);
            EXPECT_EQ(CountFar(ours, theirs) + CountFar(theirs, ours), 0);
        }
    }
}

TEST_F(Profiles2D, AreFoundUnderTheMouseWhereverTheAxesBegin)
{
    for (const double offset : {0.0, 1000.0})
    {
        const Numbers x = {offset, offset + 1, offset + 2, offset + 1.5};
        const Numbers y = {1, 2, NaN, 4};
        // In order, with a gap, and back and forth.
        for (const size_t count : {2, 3, 4})
        {
            Add("Element2D_Add_ProfileNonUniform_GeneralData",
                {x[0], x[1], x[2], x[3], y[0], y[1], y[2], y[3], 1, 1, 1, 1, double(count), 3});
            const size_t last = count == 4 ? 3 : 1;
            const vtkRectd shift = TopPlot()->GetShiftScale();
            const vtkVector2f mouse(static_cast<float>(x[last] + 0.05 + shift[0]),
                                    static_cast<float>(y[last] + shift[1]));
            vtkVector2f found;
            const auto find = [&](float tolerance) {
                return TopPlot()->GetNearestPoint(mouse, {tolerance, 0.1F}, &found, nullptr);
            };
            EXPECT_EQ(find(0.1F), last);
            EXPECT_FLOAT_EQ(found.GetX(), static_cast<float>(x[last]));
            EXPECT_EQ(find(0.01F), -1);
            Tarvex_Element2D_RemoveAll(Id);
        }
    }
}
