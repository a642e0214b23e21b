// Measured lines in charts: runs, plots, what a host reads back, and the same picture as stock
// plots give.
#include "LiteralChartProfile.h"
#include "Tarvex.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

#include <cmath>
#include <numeric>

#include <vtkPlotPoints.h>
#include <vtkTable.h>

namespace
{
constexpr int16_t Gap = TARVEX_INVALID_VALUE;
using Heights = std::vector<int16_t>;
using testing::ElementsAre;

class Profiles2D : public InsideChart
{
protected:
    Profiles2D() : InsideChart(400, 300) {}

    // X counts from 0: a new profile, one in the place of what it has, or from X 100 on after it.
    enum How
    {
        New,
        Set,
        Attach
    };
    void Give(How how, const Heights& z)
    {
        Heights x(z.size());
        std::iota(x.begin(), x.end(), int16_t{0});
        const auto count = static_cast<int32_t>(z.size());
        const auto change = how == Attach ? Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData
                                          : Tarvex_Element2D_ProfileNonUniform_SetValue_KorData;
        EXPECT_EQ(how == New ? Tarvex_Element2D_Add_ProfileNonUniform_KorData(
                                   Id, x.data(), z.data(), count, 1, 1, 0, 0, &Element, nullptr)
                             : change(Id, Element, count, x.data(), z.data(), 1, 1,
                                      how == Set ? 0 : 100, 0),
                  STATUS_OK);
    }
    // Of doubles.
    void AddGeneral(const double* x, const double* y, const uint8_t* valid, int32_t count,
                    const char* name = nullptr)
    {
        EXPECT_EQ(Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(Id, x, y, valid, count,
                                                                     &Element, name),
                  STATUS_OK);
    }
    vtkPlotPoints* GetPlot(vtkIdType index) const
    {
        return vtkPlotPoints::SafeDownCast(Chart()->GetPlot(index));
    }
    // For each plot the number of its rows; negative where it has crosses. The first plot of the
    // chart is that of the image.
    std::vector<int> Rows() const
    {
        std::vector<int> rows;
        for (vtkIdType index = 1; index < Chart()->GetNumberOfPlots(); ++index)
        {
            vtkPlotPoints* plot = GetPlot(index);
            const auto count = static_cast<int>(plot->GetInput()->GetNumberOfRows());
            rows.push_back(plot->GetMarkerStyle() == vtkPlotPoints::CROSS ? -count : count);
        }
        return rows;
    }
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

    int32_t Element = TARVEX_NONE;
};
} // namespace

TEST_F(Profiles2D, HaveAPlotForEachRunOfValidSamples)
{
    const std::pair<Heights, std::vector<int>> cases[] = {
        {{1, 2, Gap, 4, Gap, 6, 7}, {2, -1, 2}},
        {{Gap, 2, 3, Gap}, {2}},
        {{1, -32767, 3}, {3}},
        {{Gap, Gap}, {}},
        {{1, Gap, 3, Gap, 5}, {-1, -1, -1}},
        {{1, 2}, {2}},
    };
    Give(New, {1, 2, 3});
    for (const auto& [z, rows] : cases)
    {
        Give(Set, z);
        EXPECT_EQ(Rows(), rows);
    }
}

TEST_F(Profiles2D, GoOnFromTheirLastSample)
{
    const std::tuple<Heights, std::vector<int>> cases[] = {
        {{4}, {2, 2}}, {{Gap}, {2, -1}}, {{Gap, 5}, {2, -1, -1}}, {{4, 5, Gap, 7, 8}, {2, 3, 2}}};
    for (const auto& [z, rows] : cases)
    {
        Give(New, {1, 2, Gap, 3});
        Give(Attach, z);
        EXPECT_EQ(Rows(), rows);
        Tarvex_Element2D_RemoveAll(Id);
    }
    Give(New, {1, Gap});
    Give(Attach, {-5});
    EXPECT_EQ(Rows(), (std::vector<int>{-1, -1}));
    EXPECT_THAT(Bounds(Element), ElementsAre(0, 100, -5, 1));
}

TEST_F(Profiles2D, DrawOnlyWhatAFloatHolds)
{
    const double x[] = {5, 1, 2, 3, 4};
    const double y[] = {9, NaN, 2, 1e39, -4};
    const uint8_t valid[] = {0, 1, 2, 1, 1};
    AddGeneral(x, y, valid, 5, "X Axis");
    EXPECT_EQ(Rows(), std::vector<int>{-4});
    EXPECT_THAT(Bounds(Element), ElementsAre(2, 4, -4, 1e39));

    AddGeneral(x, y, nullptr, 1, std::string(256, 'n').c_str());
    EXPECT_STREQ(GetPlot(2)->GetInput()->GetColumnName(1), "Non-uniform spaced profile 1");
    AddGeneral(x, y, nullptr, 1, std::string(255, 'n').c_str());
    EXPECT_EQ(GetPlot(3)->GetInput()->GetColumnName(1), std::string(255, 'n'));
}

TEST_F(Profiles2D, ChangedComeToLieOnTopAndKeepTheirPlotsThere)
{
    Give(New, {1, Gap, 3});
    vtkPlot* const first = GetPlot(1);
    const int32_t lower = Element;
    Give(New, {4, 5, 6, 7});
    Give(Set, {1, 2, 3, 4, 5});
    EXPECT_EQ(Rows(), (std::vector<int>{-1, -1, 5}));
    Element = lower;
    Give(Set, {2, 3, Gap, 5});
    EXPECT_EQ(Rows(), (std::vector<int>{5, 2, -1}));
    EXPECT_EQ(GetPlot(2), first);
    Give(Set, {2, 3});
    EXPECT_EQ(Rows(), (std::vector<int>{5, 2}));
}

TEST_F(Profiles2D, LookAsStockPlotsDo)
{
    // A wave with noise of so many counts, flat to wild; X steps of one count and of none.
    for (const int noise : {0, 20, 200, 2000, 20000})
    {
        for (const double offset : {0.0, 1e5})
        {
            SCOPED_TRACE(std::to_string(noise) + " from " + std::to_string(offset));
            const size_t count = 30000;
            Heights x(count);
            Heights z(count);
            unsigned random = 1;
            for (size_t sample = 0; sample < count; ++sample)
            {
                random = random * 1664525U + 1013904223U;
                x[sample] = static_cast<int16_t>(sample / 2 * 2);
                z[sample] = static_cast<int16_t>(
                    std::sin(static_cast<double>(sample) * 4e-4) * 9000.0 +
                    noise * (static_cast<double>(random >> 16U) / 65536.0 - 0.5));
            }
            std::fill_n(z.begin() + 20000, 500, Gap);
            Tarvex_Element2D_Add_ProfileNonUniform_KorData(Id, x.data(), z.data(), count, 0.01,
                                                           0.001, offset, 0.0, &Element, nullptr);
            const Picture ours = Look();
            EXPECT_GT(ours.Count(IsRed), 280);
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
        const double x[] = {offset, offset + 1, offset + 2, offset + 1.5};
        const double y[] = {1, 2, NaN, 4};
        // In order, with a gap, and back and forth.
        for (const int32_t count : {2, 3, 4})
        {
            AddGeneral(x, y, nullptr, count);
            vtkPlot* plot = GetPlot(1);
            const vtkRectd shift = plot->GetShiftScale();
            const int32_t last = count == 4 ? 3 : 1;
            const vtkVector2f mouse(static_cast<float>(x[last] + 0.05 + shift[0]),
                                    static_cast<float>(y[last] + shift[1]));
            vtkVector2f found;
            vtkIdType segment = -1;
            EXPECT_EQ(plot->GetNearestPoint(mouse, vtkVector2f(0.1F, 0.1F), &found, &segment),
                      last);
            EXPECT_FLOAT_EQ(found.GetX(), static_cast<float>(x[last]));
            EXPECT_EQ(plot->GetNearestPoint(mouse, vtkVector2f(0.01F, 0.1F), &found, &segment), -1);
            Tarvex_Element2D_RemoveAll(Id);
        }
    }
}
