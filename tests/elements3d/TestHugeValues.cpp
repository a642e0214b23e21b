// Values far beyond what can be drawn are good values, but they must not spoil the picture of the
// others: one visible prop out there leaves the camera without usable numbers for good.
#include "support/ViewFixture.h"

#include <array>
#include <cmath>
#include <ostream>
#include <string>

namespace
{
constexpr double infinity = std::numeric_limits<double>::infinity();

struct Case
{
    const char* Name;
    bool Line; // else a point
    int32_t (*Spoil)(int32_t view, int32_t element, double huge);
};

void PrintTo(const Case& test, std::ostream* out)
{
    *out << test.Name;
}

const Case cases[] = {
    {"PointPlace", false,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_Point_SetValue(view, element, 0, -huge, 0, 3); }},
    {"PointRadius", false,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_Point_SetValue(view, element, 0, 0, 0, huge); }},
    {"PointSize", false,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_SetSize(view, element, huge); }},
    {"LineFirstPoint", true,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_Line_SetValue(view, element, -huge, 0, 99, 1, 0, 99); }},
    {"LineSecondPoint", true,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_Line_SetValue(view, element, 0, 0, 99, 0, huge, 99); }},
    {"LineLength", true,
     [](int32_t view, int32_t element, double huge)
     { return Tarvex_Element_SetLength_Line(view, element, -huge, huge); }},
    {"LineBox", true,
     [](int32_t view, int32_t element, double huge) {
         return Tarvex_Element_SetDrawLimit_Line(view, element, -huge, huge, -huge, huge, -huge,
                                                 huge);
     }},
    {"DrawSpace", true,
     [](int32_t view, int32_t, double huge)
     { return Tarvex_Window_SetDrawSpace(view, -huge, huge, -huge, huge, -huge, huge); }},
};

bool IsRed(const Picture::Color& color)
{
    return color[0] > 100 && color[2] == 0;
}
bool IsBlue(const Picture::Color& color)
{
    return color[2] > 100 && color[0] == 0;
}

class HugeValues : public ViewFixture, public testing::WithParamInterface<std::tuple<Case, double>>
{
protected:
    void AddRedPoint() const
    {
        const int32_t point = AddPoint(20, 0, 20);
        Tarvex_Element_SetSize(Id, point, 3);
        Tarvex_Element_SetColor(Id, point, 255, 0, 0);
    }
    void ExpectUsableCameraAndRedPoint() const
    {
        EXPECT_EQ(Tarvex_Window_Camera_AutoSize(Id), STATUS_OK);
        std::array<double, 3> position = {NaN, NaN, NaN};
        Tarvex_Window_Camera_GetPosition(Id, &position[0], &position[1], &position[2]);
        EXPECT_LT(std::hypot(position[0], position[1], position[2]), 1e4);
        EXPECT_GT(TakePicture(Id).Count(IsRed), 0);
    }
};

INSTANTIATE_TEST_SUITE_P(
    Elements, HugeValues,
    testing::Combine(testing::ValuesIn(cases), testing::Values(1e35, 1e39, 1e300, infinity)),
    [](const auto& test)
    { return std::string(std::get<0>(test.param).Name) + std::to_string(test.index % 4); });

TEST_P(HugeValues, LeaveTheOthersVisibleAndGoAwayWithUsableOnes)
{
    const auto& [test, huge] = GetParam();
    AddRedPoint();
    const int32_t spoiled = test.Line ? AddLine(0, 0, 0, 0, 1, 0) : AddPoint(0, 0, 0);
    Tarvex_Element_SetColor(Id, spoiled, 0, 0, 255);

    EXPECT_EQ(test.Spoil(Id, spoiled, huge), STATUS_OK);
    EXPECT_TRUE(IsValid(spoiled));
    ExpectUsableCameraAndRedPoint();

    if (test.Line)
    {
        EXPECT_EQ(Tarvex_Element_SetDrawLimit_Line(Id, spoiled, -5, 5, -5, 5, -5, 5), STATUS_OK);
        EXPECT_EQ(Tarvex_Element_Line_SetValue(Id, spoiled, 0, 0, 0, 0, 1, 0), STATUS_OK);
    }
    else
    {
        EXPECT_EQ(Tarvex_Element_Point_SetValue(Id, spoiled, 0, 0, 0, 3), STATUS_OK);
    }
    ExpectUsableCameraAndRedPoint();
    EXPECT_GT(TakePicture(Id).Count(IsBlue), 0);
}

TEST_F(HugeValues, LeaveTheOthersVisibleWhenElementsAreAddedWithThem)
{
    for (const double huge : {1e35, 1e39, 1e300, -infinity})
    {
        AddPoint(huge, 0, 0);
        AddLine(0, huge, 0, 1, 0, 0);
        AddLine(0, 0, 0, huge, 1, 0);
    }
    AddRedPoint();
    ExpectUsableCameraAndRedPoint();
}
} // namespace
