// A 3D view as a whole: its native window, its background, its box and its mouse switches.
#include "support/ViewFixture.h"

#include <array>

namespace
{
class AView : public ViewFixture
{
protected:
    using Box = std::array<double, 6>;

    int32_t SetDrawSpace(const Box& box) const
    {
        return Tarvex_Window_SetDrawSpace(Id, box[0], box[1], box[2], box[3], box[4], box[5]);
    }
    Box GetDrawSpace() const
    {
        Box box = {};
        EXPECT_EQ(
            Tarvex_Window_GetDrawSpace(Id, &box[0], &box[1], &box[2], &box[3], &box[4], &box[5]),
            STATUS_OK);
        return box;
    }
    std::array<int, 4> Placement() const { return Host.Placement(Host.Children().at(0)); }
};

TEST_F(AView, FillsItsPictureWithTheBackgroundExactly)
{
    for (const Picture::Color& color :
         {Picture::Color{255, 128, 0}, {1, 2, 3}, {127, 254, 253}, {0, 0, 0}})
    {
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(Id, color[0], color[1], color[2]), STATUS_OK);
        EXPECT_EQ(
            TakePicture(Id).Count([&](const Picture::Color& other) { return other == color; }),
            Pixels * Pixels)
            << testing::PrintToString(color);
    }
}

TEST_F(AView, IsCreatedAndResizedToFourPixelsAtLeast)
{
    EXPECT_EQ(Placement(), (std::array{0, 0, Pixels, Pixels}));
    struct Case
    {
        int32_t Width;
        int32_t Height;
        int Expected[2];
    };
    for (const Case& test : {Case{0, 3, {4, 4}}, {-5, 60, {4, 60}}, {60, 4, {60, 4}}})
    {
        EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 0, 0, test.Width, test.Height), STATUS_OK);
        EXPECT_EQ(Placement(), (std::array{0, 0, test.Expected[0], test.Expected[1]}));

        int32_t other = TARVEX_NONE;
        EXPECT_EQ(Tarvex_Window_Create(Host.Handle(), 1, 21, 22, test.Width, test.Height, &other),
                  STATUS_OK);
        EXPECT_EQ(Host.Placement(Host.Children().at(1)),
                  (std::array{21, 22, test.Expected[0], test.Expected[1]}));
        EXPECT_EQ(Tarvex_Window_SetBackgroundColor(other, 9, 9, 9), STATUS_OK);
        const Picture picture = TakePicture(other);
        EXPECT_EQ(picture.Width, test.Expected[0]);
        EXPECT_EQ(picture.Height, test.Expected[1]);
        EXPECT_EQ(Tarvex_Window_Delete(other), STATUS_OK);
    }
}

TEST_F(AView, KeepsItsPositionWhenEitherCoordinateIsNegative)
{
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 11, 12, 50, 40), STATUS_OK);
    EXPECT_EQ(Placement(), (std::array{11, 12, 50, 40}));
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, -1, 10, 60, 40), STATUS_OK);
    EXPECT_EQ(Placement(), (std::array{11, 12, 60, 40}));
    EXPECT_EQ(Tarvex_Window_UpdateSize(Id, 10, -1, 60, 70), STATUS_OK);
    EXPECT_EQ(Placement(), (std::array{11, 12, 60, 70}));
}

TEST_F(AView, TakesOnlyBoxesWithAnExtentOnEachAxis)
{
    const Box initial = {-50, 50, -50, 50, -50, 50};
    EXPECT_EQ(GetDrawSpace(), initial);
    for (const Box& flat :
         {Box{1, 1, -5, 5, -5, 5}, {-5, 5, 5, -5, -5, 5}, {0, 1, 0, 1, 0, 0.9e-6}})
    {
        EXPECT_EQ(SetDrawSpace(flat), STATUS_TOO_SMALL) << testing::PrintToString(flat);
        EXPECT_EQ(GetDrawSpace(), initial);
    }
    const Box least = {0, 1e-6, -2, 3, -4, 5};
    EXPECT_EQ(SetDrawSpace(least), STATUS_OK);
    EXPECT_EQ(GetDrawSpace(), least);
}

TEST_F(AView, FitsItsLinesToANewBox)
{
    const int32_t line = AddLine(0, 0, 0, 1, 0, 0);
    EXPECT_EQ(SetDrawSpace({-5, 7, -1, 1, -1, 1}), STATUS_OK);
    double start = 0.0;
    double end = 0.0;
    EXPECT_EQ(Tarvex_Element_GetLength_Line(Id, line, &start, &end), STATUS_OK);
    EXPECT_EQ(start, -5.0);
    EXPECT_EQ(end, 7.0);
}

TEST_F(AView, SwitchesTheMouseWithEveryCombinationOfFlags)
{
    for (const uint8_t flag : {0, 1, 255})
    {
        EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, flag), STATUS_OK);
        EXPECT_EQ(Tarvex_Window_EnableInteraction(Id, flag), STATUS_OK) << "again";
        EXPECT_EQ(Tarvex_Window_EnableMouseInteraction(Id, flag, 1, 0), STATUS_OK);
    }
}

TEST_F(AView, HasNoActiveElementUnlessOneWithHandlesIsChosen)
{
    struct Case
    {
        int32_t Element;
        int32_t Status;
    };
    const int32_t point = AddPoint(0, 0, 0);
    for (const Case& test : {Case{TARVEX_NONE, STATUS_OK},
                             {-7, STATUS_OK},
                             {point, STATUS_OK},
                             {point + 1, STATUS_BAD_INDEX}})
    {
        EXPECT_EQ(Tarvex_Window_SetActiveElement(Id, test.Element), test.Status) << test.Element;
        int32_t active = 77;
        EXPECT_EQ(Tarvex_Window_GetActiveElement(Id, &active), STATUS_OK);
        EXPECT_EQ(active, TARVEX_NONE) << test.Element;
    }
}
} // namespace
