// Values far beyond what can be drawn are good values, but they must not spoil the picture of the
// others: one visible prop out there leaves the camera without usable numbers for good.
#include "support/ViewFixture.h"

#include <cmath>

namespace
{
class HugeValues : public ViewFixture, public testing::WithParamInterface<double>
{
protected:
    void ExpectUsableCameraAndColors(int least) const
    {
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        const Numbers at = Read(Tarvex_Window_Camera_GetPosition);
        EXPECT_LT(std::hypot(at[0], at[1], at[2]), 1e4);
        const Picture picture = TakePicture(Id);
        int seen = 0;
        for (const size_t color : {0, 1, 2})
        {
            const auto isPure = [=](const Picture::Color& c)
            { return c[color] > 50 && c[0] + c[1] + c[2] == c[color]; };
            seen += picture.Count(isPure) > 0;
        }
        EXPECT_GE(seen, least);
    }
};

INSTANTIATE_TEST_SUITE_P(Elements, HugeValues,
                         testing::Values(1e35, 1e39, 1e300,
                                         std::numeric_limits<double>::infinity()));

TEST_P(HugeValues, LeaveTheOthersVisibleAndGoAwayWithUsableOnes)
{
    const double huge = GetParam();
    const int32_t red = AddPoint(20, 0, 20);
    Tarvex_Element_SetSize(Id, red, 3);
    Tarvex_Element_SetColor(Id, red, 255, 0, 0);
    const double point = AddPoint(0, 0, 0);
    const double line = AddLine(0, 0, 0, 0, 1, 0);
    Tarvex_Element_SetColor(Id, 1, 0, 255, 0);
    Tarvex_Element_SetColor(Id, 2, 0, 0, 255);
    const std::pair<Export, Numbers> calls[] = {
        {Tarvex_Element_Point_SetValue, {point, 0, -huge, 0, 3}},
        {Tarvex_Element_Point_SetValue, {point, 0, 0, 0, huge}},
        {Tarvex_Element_SetSize, {point, huge}},
        {Tarvex_Element_Line_SetValue, {line, -huge, 0, 99, 1, 0, 99}},
        {Tarvex_Element_Line_SetValue, {line, 0, 0, 99, 0, huge, 99}},
        {Tarvex_Element_SetLength_Line, {line, -huge, huge}},
        {Tarvex_Element_SetDrawLimit_Line, {line, -huge, huge, -huge, huge, -huge, huge}},
        {Tarvex_Window_SetDrawSpace, {-huge, huge, -huge, huge, -huge, huge}},
        {Tarvex_Element_Add_Point, {-huge, 0, 0}},
        {Tarvex_Element_Add_Line, {0, huge, 0, 1, 0, 0}},
        {Tarvex_Element_Add_Line, {0, 0, 0, huge, 1, 0}}};
    for (const auto& [function, given] : calls)
    {
        SCOPED_TRACE(testing::PrintToString(given));
        EXPECT_EQ(Call(function, given), STATUS_OK);
        EXPECT_TRUE(IsValid(1) && IsValid(2));
        ExpectUsableCameraAndColors(1);
        EXPECT_EQ(Tarvex_Window_SetDrawSpace(Id, -5, 5, -5, 5, -5, 5), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Line_SetValue(Id, 2, 0, 0, 0, 0, 1, 0), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, 1, 0, 0, 0, 3), STATUS_OK);
        ExpectUsableCameraAndColors(3);
    }
}
} // namespace
