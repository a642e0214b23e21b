// The look of new elements after the library is loaded.
#include "support/ViewFixture.h"

TEST_F(ViewFixture, HasADefaultLookForEachType)
{
    // Transparency, three of colour, size, four of lighting, palette (9), auto scale, clip, fixed
    // range, length of a line (14, 15), box; zeros at the end are left out.
    const std::pair<std::vector<int32_t>, Numbers> looks[] = {
        {{0, 1}, {0, 255, 255, 255, -1, 0.3, 0.8, 0, 1, 0, 1, 0, -10, 10}},
        {{2, 3, 12, 14, 17, 18, 19}, {0, 255, 255, 255, 0.5, 1, 1, 0, 1, -1, 0, -1}},
        {{10}, {0, 255, 255, 255, 0.3, 1, 0, 0, 1, -1, 0, -1}},
        {{11}, {0, 255, 255, 255, 2, 1, 1, 0, 1, -1, 0, -1, 0, 0, -10, 10}},
        {{13},
         {0.8, 255, 255, 255, 0.5, 1, 1, 0, 1, -1, 0, -1, 0, 0, 0, 0, -10, 10, -10, 10, -10, 10}},
        {{15}, {0, 255, 255, 255, 0.5, 0.3, 0.7, 0.5, 10, -1, 0, -1}},
        {{16}, {0.5, 255, 255, 255, 0.5, 0.3, 0.7, 0.5, 10, -1, 0, -1}}};
    for (auto [types, look] : looks)
    {
        look.resize(22);
        for (const int32_t type : types)
        {
            EXPECT_EQ(Read("Element_GetDefault", type), look) << type;
        }
    }
}
