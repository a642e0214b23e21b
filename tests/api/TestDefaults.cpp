// The look of new elements.
#include "support/ViewFixture.h"

#include <algorithm>
#include <cmath>

namespace
{
// What the two functions carry: transparency, three of colour, size, four of lighting, palette (9),
// auto scale, clip, fixed range, length of a line (14, 15), box.
using Look = Numbers;

const Look plain = {0, 255, 255, 255, 0.5, 1, 1, 0, 1, -1, 0, -1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

// Numbers from some place on replaced.
Look With(size_t place, const Look& numbers, Look look = plain)
{
    std::ranges::copy(numbers, look.begin() + static_cast<ptrdiff_t>(place));
    return look;
}

const Look surface = With(4, {-1, 0.3, 0.8, 0, 1, 0, 1, 0, -10, 10});
const Look point = With(4, {0.3, 1, 0, 0, 1});
const Look line = With(4, {2}, With(14, {-10, 10}));
const Look plane = With(0, {0.8}, With(16, {-10, 10, -10, 10, -10, 10}));
const Look cylinder = With(5, {0.3, 0.7, 0.5, 10});
const Look cube = With(0, {0.5}, cylinder);

// After the library is loaded, by type.
const std::pair<int32_t, Look> initial[] = {
    {0, surface}, {1, surface}, {2, plain},     {3, plain}, {10, point}, {11, line},  {12, plain},
    {13, plane},  {14, plain},  {15, cylinder}, {16, cube}, {17, plain}, {18, plain}, {19, plain}};

class Defaults : public ViewFixture
{
protected:
    // The records are the process's, not the view's.
    ~Defaults() override
    {
        for (const auto& [type, look] : initial)
        {
            EXPECT_EQ(Set(type, look), STATUS_OK);
        }
    }
    Look Get(int32_t type) const { return Read(Tarvex_Element_GetDefault, type); }
    int32_t Set(int32_t type, const Look& look) const
    {
        return Call(Tarvex_Element_SetDefault, type, look);
    }
};

TEST_F(Defaults, AnswerForEveryTypeWithTheLookAfterLoad)
{
    for (const auto& [type, look] : initial)
    {
        EXPECT_EQ(Get(type), look) << type;
    }
    for (const int32_t type : {-1, 4, 9, 20})
    {
        EXPECT_EQ(Read(Tarvex_Element_GetDefault, type, STATUS_BAD_ELEMENT_TYPE), Look(22, 77));
        EXPECT_EQ(Set(type, plain), STATUS_BAD_ELEMENT_TYPE) << type;
    }
}

TEST_F(Defaults, AreSharedByBothSurfacesAndByBothProfiles)
{
    for (const int32_t type : {1, 3})
    {
        EXPECT_EQ(Set(type, With(2, {7}, Get(type))), STATUS_OK);
        EXPECT_EQ(Get(type - 1), With(2, {7}, type == 1 ? surface : plain));
    }
    EXPECT_EQ(Get(TARVEX_ELEMENT_POINT), point);
}

TEST_F(Defaults, RefuseAValueOutsideItsLimitsAndThenChangeNothing)
{
    // By type and place: what is refused and what is accepted.
    const std::tuple<int32_t, size_t, Look, Look> cases[] = {{10, 0, {1.0000001, -0.1}, {1, 0}},
                                                             {12, 5, {1.1, -0.1}, {1}},
                                                             {2, 6, {1.1, -0.1}, {0}},
                                                             {1, 7, {1.1, -0.1}, {0.5}},
                                                             {13, 8, {100.5, -0.1}, {100}},
                                                             {12, 4, {0, 0.0009}, {0.001}},
                                                             {0, 9, {7, -1}, {6}},
                                                             {1, 11, {45.1, -0.1}, {45}},
                                                             {0, 13, {-9.9991, -11}, {-9}},
                                                             {11, 14, {10}, {20}},
                                                             {13, 17, {-10, -9.9991, -11}, {0}},
                                                             {13, 19, {-10, -11}, {0}},
                                                             {13, 21, {-9.9991}, {0}}};
    for (const auto& [type, place, refused, accepted] : cases)
    {
        SCOPED_TRACE(testing::Message() << "type " << type << ", place " << place);
        const Look before = Get(type);
        for (const double value : refused)
        {
            // Blue would change along.
            EXPECT_EQ(Set(type, With(3, {7}, With(place, {value}, before))), STATUS_OUT_OF_RANGE);
            EXPECT_EQ(Get(type), before) << value;
        }
        for (const double value : accepted)
        {
            EXPECT_EQ(Set(type, With(place, {value}, before)), STATUS_OK);
            EXPECT_EQ(Get(type), With(place, {value}, before)) << value;
        }
    }
}

TEST_F(Defaults, IgnoreWhatATypeDoesNotHaveAndLetANaNPass)
{
    EXPECT_EQ(Set(TARVEX_ELEMENT_SURFACE_UNIFORM, With(4, {0}, surface)), STATUS_OK);
    EXPECT_EQ(Get(TARVEX_ELEMENT_SURFACE_UNIFORM), surface);
    EXPECT_EQ(Set(TARVEX_ELEMENT_CIRCLE, With(9, {7, 7, 46, 5, 0, 3, 3})), STATUS_OK);
    EXPECT_EQ(Get(TARVEX_ELEMENT_CIRCLE), plain);
    EXPECT_EQ(Set(TARVEX_ELEMENT_CIRCLE, With(0, {NaN})), STATUS_OK);
    EXPECT_TRUE(std::isnan(Get(TARVEX_ELEMENT_CIRCLE)[0]));
}

TEST_F(Defaults, ReachElementsAddedLaterAndNoOthers)
{
    const int32_t before = AddPoint(0, 0, 0);
    const Look look = With(0, {0.25, 1, 2, 3, 4, 0.1, 0.2, 0.3, 40}, With(14, {-3, 5}));
    EXPECT_EQ(Set(TARVEX_ELEMENT_POINT, look), STATUS_OK);
    EXPECT_EQ(Set(TARVEX_ELEMENT_LINE, look), STATUS_OK);
    const int32_t added = AddLine(0, 0, 0, 1, 0, 0);
    for (const int32_t element : {AddPoint(0, 0, 0), added})
    {
        EXPECT_EQ(Read(Tarvex_Element_GetTransparency, element), (Look{0.25}));
        EXPECT_EQ(Read(Tarvex_Element_GetColor, element), (Look{1, 2, 3}));
        EXPECT_EQ(Read(Tarvex_Element_GetSize, element), (Look{4}));
        EXPECT_EQ(Read(Tarvex_Element_GetLighting, element), (Look{0.1, 0.2, 0.3, 40}));
    }
    EXPECT_EQ(Read(Tarvex_Element_GetLength_Line, added), (Look{-3, 5}));
    EXPECT_EQ(Read(Tarvex_Element_GetSize, before), (Look{0.3}));
}
} // namespace
