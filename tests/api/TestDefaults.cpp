// The look of new elements after the library is loaded.
#include "support/ViewFixture.h"

#include <algorithm>

namespace
{
// Transparency, three of colour, size, four of lighting, palette (9), auto scale, clip, fixed
// range, length of a line (14, 15), box.
const Numbers plain = {0, 255, 255, 255, 0.5, 1, 1, 0, 1, -1, 0, -1, 0, 0, 0, 0, 0, 0, 0, 0, 0, 0};

// Numbers from some place on replaced.
Numbers With(ptrdiff_t place, const Numbers& numbers, Numbers look = plain)
{
    std::ranges::copy(numbers, look.begin() + place);
    return look;
}

TEST_F(ViewFixture, HasADefaultLookForEachType)
{
    const Numbers surface = With(4, {-1, 0.3, 0.8, 0, 1, 0, 1, 0, -10, 10});
    const Numbers plane = With(0, {0.8}, With(16, {-10, 10, -10, 10, -10, 10}));
    const Numbers cylinder = With(5, {0.3, 0.7, 0.5, 10});
    const std::pair<std::vector<int32_t>, Numbers> looks[] = {
        {{0, 1}, surface},
        {{2, 3, 12, 14, 17, 18, 19}, plain},
        {{10}, With(4, {0.3, 1, 0, 0, 1})},
        {{11}, With(4, {2}, With(14, {-10, 10}))},
        {{13}, plane},
        {{15}, cylinder},
        {{16}, With(0, {0.5}, cylinder)}};
    for (const auto& [types, look] : looks)
    {
        for (const int32_t type : types)
        {
            EXPECT_EQ(Read("Element_GetDefault", type), look) << type;
        }
    }
}
} // namespace
