// Measured lines in charts: runs, plots, what a host reads back, and the same picture as stock
// plots give.
#include "LiteralChartProfile.h"
#include "Tarvex.h"
#include "frame/FailingAllocations.h"
#include "support/TestView.h"
#include "view2d/InsideChart.h"

#include <cmath>

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

    // X counts from 0.
    static Heights CountX(size_t count)
    {
        Heights x(count);
        std::generate(x.begin(), x.end(), [next = int16_t{0}]() mutable { return next++; });
        return x;
    }
    void AddKor(const Heights& z)
    {
        EXPECT_EQ(Tarvex_Element2D_Add_ProfileNonUniform_KorData(
                      Id, CountX(z.size()).data(), z.data(), static_cast<int32_t>(z.size()), 1.0,
                      1.0, 0.0, 0.0, &Element, nullptr),
                  STATUS_OK);
    }
    // In the place of what it has, or from X 100 on after it.
    int32_t Give(const Heights& z, bool attach) const
    {
        const auto give = attach ? Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData
                                 : Tarvex_Element2D_ProfileNonUniform_SetValue_KorData;
        return give(Id, Element, static_cast<int32_t>(z.size()), CountX(z.size()).data(), z.data(),
                    1.0, 1.0, attach ? 100.0 : 0.0, 0.0);
    }
    int32_t SetKor(const Heights& z) const { return Give(z, false); }
    int32_t Attach(const Heights& z) const { return Give(z, true); }
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
    struct Values
    {
        Numbers X;
        Numbers Y;
        std::vector<uint8_t> Valid;
    };
    Values ReadProfile() const
    {
        Values values;
        int32_t count = -1;
        EXPECT_EQ(Tarvex_Element2D_ProfileNonUniform_GetPointCount(Id, Element, &count), STATUS_OK);
        values.X.resize(static_cast<size_t>(count));
        values.Y.resize(values.X.size());
        values.Valid.resize(values.X.size());
        EXPECT_EQ(Tarvex_Element2D_ProfileNonUniform_GetValue(Id, Element, values.X.data(),
                                                              values.Y.data(), values.Valid.data()),
                  STATUS_OK);
        return values;
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
    AddKor({1, 2, 3});
    for (const auto& [z, rows] : cases)
    {
        EXPECT_EQ(SetKor(z), STATUS_OK);
        EXPECT_EQ(Rows(), rows);
        EXPECT_EQ(ReadProfile().X.size(), z.size());
    }
}

TEST_F(Profiles2D, GoOnFromTheirLastSample)
{
    const std::tuple<Heights, std::vector<int>> cases[] = {
        {{4}, {2, 2}}, {{Gap}, {2, -1}}, {{Gap, 5}, {2, -1, -1}}, {{4, 5, Gap, 7, 8}, {2, 3, 2}}};
    for (const auto& [z, rows] : cases)
    {
        AddKor({1, 2, Gap, 3});
        EXPECT_EQ(Attach(z), STATUS_OK);
        EXPECT_EQ(Rows(), rows);
        EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
    }
    AddKor({1, Gap});
    EXPECT_EQ(Attach({-5}), STATUS_OK);
    EXPECT_EQ(Rows(), (std::vector<int>{-1, -1}));
    const Values values = ReadProfile();
    EXPECT_THAT(values.X, ElementsAre(0, 1, 100));
    EXPECT_THAT(values.Y, ElementsAre(1, 0, -5));
    EXPECT_THAT(values.Valid, ElementsAre(1, 0, 1));
    EXPECT_THAT(Bounds(Element), ElementsAre(0, 100, -5, 1));
}

TEST_F(Profiles2D, KeepDoublesAsGivenAndDrawOnlyWhatAFloatHolds)
{
    const double x[] = {5, 1, 2, 3, 4};
    const double y[] = {9, NaN, 2, 1e39, -4};
    const uint8_t valid[] = {0, 1, 2, 1, 1};
    const auto add = [&](const uint8_t* bytes, int32_t count, const char* name)
    {
        return Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(Id, x, y, bytes, count, &Element,
                                                                  name);
    };
    ASSERT_EQ(add(valid, 5, "X Axis"), STATUS_OK);
    EXPECT_EQ(Rows(), std::vector<int>{-4});
    Values values = ReadProfile();
    EXPECT_THAT(values.X, ElementsAre(0, 1, 2, 3, 4)); // the first is not valid
    EXPECT_THAT(values.Y, ElementsAre(0, testing::NanSensitiveDoubleEq(NaN), 2, 1e39, -4));
    EXPECT_THAT(values.Valid, ElementsAre(0, 1, 1, 1, 1));
    EXPECT_THAT(Bounds(Element), ElementsAre(2, 4, -4, 1e39));

    EXPECT_EQ(
        Tarvex_Element2D_ProfileNonUniform_AttachValues_GeneralData(Id, Element, 1, x, y, valid),
        STATUS_OK);
    EXPECT_EQ(ReadProfile().X.back(), 5); // not the first of all
    EXPECT_EQ(add(nullptr, 1, std::string(256, 'n').c_str()), STATUS_OK);
    EXPECT_STREQ(GetPlot(2)->GetInput()->GetColumnName(1), "Non-uniform spaced profile 1");
    EXPECT_EQ(add(nullptr, 1, std::string(255, 'n').c_str()), STATUS_OK);
    EXPECT_EQ(GetPlot(3)->GetInput()->GetColumnName(1), std::string(255, 'n'));
}

TEST_F(Profiles2D, WithoutASampleCannotBeChangedAnyMore)
{
    const int16_t z[] = {1, 2};
    const int16_t gaps[] = {Gap, Gap};
    EXPECT_EQ(Tarvex_Element2D_Add_ProfileUniform(Id, z, 2, 1, 1, 0, 0, &Element), STATUS_OK);
    EXPECT_EQ(Tarvex_Element2D_ProfileUniform_SetValue(Id, Element, 2, gaps, 1, 1, 0, 0),
              STATUS_OK);
    EXPECT_EQ(Tarvex_Element2D_ProfileUniform_SetValue(Id, Element, 2, z, 1, 1, 0, 0),
              STATUS_NOT_READY);
}

TEST_F(Profiles2D, ChangedComeToLieOnTopAndKeepTheirPlotsThere)
{
    AddKor({1, Gap, 3});
    vtkPlot* const first = GetPlot(1);
    const int32_t lower = Element;
    AddKor({4, 5, 6, 7});
    EXPECT_EQ(SetKor({1, 2, 3, 4, 5}), STATUS_OK);
    EXPECT_EQ(Rows(), (std::vector<int>{-1, -1, 5}));
    Element = lower;
    EXPECT_EQ(SetKor({2, 3, Gap, 5}), STATUS_OK);
    EXPECT_EQ(Rows(), (std::vector<int>{5, 2, -1}));
    EXPECT_EQ(GetPlot(2), first);
    EXPECT_EQ(SetKor({2, 3}), STATUS_OK);
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
            EXPECT_EQ(Tarvex_Element2D_Add_ProfileNonUniform_KorData(Id, x.data(), z.data(), count,
                                                                     0.01, 0.001, offset, 0.0,
                                                                     &Element, nullptr),
                      STATUS_OK);
            const Picture ours = Look();
            EXPECT_GT(ours.Count(IsRed), 280);
            EXPECT_EQ(Tarvex_Element2D_Show(Id, Element, 0), STATUS_OK);
            Render();
            EXPECT_EQ(Look().Count(IsRed), 0);
            {
                LiteralChartProfile stock(Chart());
                stock.Replace(x, z, 0.01, 0.001, offset);
                Render();
                Render();
                // Software OpenGL loses and doubles single pixels of lines far shorter than a
                // pixel.
                const Picture theirs = Look();
                EXPECT_LE(theirs.CountDifferences(ours), theirs.Count(IsRed) / 8);
                EXPECT_EQ(CountFar(ours, theirs) + CountFar(theirs, ours), 0);
            }
            EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
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
            ASSERT_EQ(Tarvex_Element2D_Add_ProfileNonUniform_GeneralData(Id, x, y, nullptr, count,
                                                                         &Element, nullptr),
                      STATUS_OK);
            const vtkRectd shift = GetPlot(1)->GetShiftScale();
            const int32_t last = count == 4 ? 3 : 1;
            const vtkVector2f mouse(static_cast<float>(x[last] + 0.05 + shift[0]),
                                    static_cast<float>(y[last] + shift[1]));
            vtkVector2f found;
            vtkIdType segment = -1;
            vtkPlot* plot = GetPlot(1);
            EXPECT_EQ(plot->GetNearestPoint(mouse, vtkVector2f(0.1F, 0.1F), &found, &segment),
                      last);
            EXPECT_FLOAT_EQ(found.GetX(), static_cast<float>(x[last]));
            EXPECT_EQ(plot->GetNearestPoint(mouse, vtkVector2f(0.01F, 0.1F), &found, &segment), -1);
            EXPECT_EQ(Tarvex_Element2D_RemoveAll(Id), STATUS_OK);
        }
    }
}

TEST_F(Profiles2D, StayAsTheyWereWhenMemoryRunsOut)
{
    AddKor({1, 2, Gap, 4, 5});
    const Picture before = Look();
    const Heights more = {1, Gap, 3, Gap, 5, Gap, 7, 8};
    for (const bool attach : {false, true})
    {
        int place = 0;
        do
        {
            EXPECT_EQ(Rows(), (std::vector<int>{2, 2})) << place;
            EXPECT_THAT(ReadProfile().Y, ElementsAre(1, 2, 0, 4, 5));
            Render();
            EXPECT_EQ(Look().CountDifferences(before), 0);
            const Heights x = CountX(more.size());
            FailAllocation(++place);
            const auto call = attach ? Tarvex_Element2D_ProfileNonUniform_AttachValues_KorData
                                     : Tarvex_Element2D_ProfileNonUniform_SetValue_KorData;
            call(Id, Element, 8, x.data(), more.data(), 1, 1, 0, 0);
        } while (StopFailing());
        EXPECT_GT(place, 4);
        EXPECT_EQ(SetKor({1, 2, Gap, 4, 5}), STATUS_OK);
    }
}
