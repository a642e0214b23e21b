#include "measurement/Palettes.h"

#include <gtest/gtest.h>

TEST(Palettes, HaveTheirColoursAtTheLimitsOfTheRamps)
{
    const std::tuple<int32_t, size_t, PaletteColor> rows[] = {
        {0, 1, {0, 6, 255}},     {0, 42, {0, 255, 255}},  {0, 43, {0, 255, 249}},
        {0, 85, {0, 255, 0}},    {0, 127, {255, 255, 0}}, {0, 171, {255, 0, 5}},
        {0, 213, {255, 0, 255}}, {0, 214, {255, 6, 255}}, {1, 51, {0, 0, 244}},
        {1, 52, {0, 0, 240}},    {1, 103, {0, 153, 36}},  {1, 104, {40, 160, 0}},
        {1, 155, {244, 7, 0}},   {1, 156, {255, 40, 0}},  {1, 208, {255, 255, 0}},
        {2, 127, {255, 0, 0}},   {2, 128, {255, 1, 1}},   {3, 127, {0, 255, 0}},
        {4, 128, {1, 1, 255}},   {5, 77, {77, 77, 77}},   {6, 0, {9, 8, 7}}};
    for (const auto& [palette, entry, color] : rows)
    {
        EXPECT_EQ(GetPaletteTable(palette, {9, 8, 7})[entry], color) << palette << ", " << entry;
    }
}
