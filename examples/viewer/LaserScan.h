#pragma once

#include "Features.h"

#include <array>

// Where the features of the laser scan are.
constexpr Area Block = {0.094, 0.811, 0.411, 0.968};
constexpr Area CylinderTop = {0.33, 0.52, 0.49, 0.755};
constexpr Area ScrewHead = {0.775, 0.91, 0.12, 0.325};
constexpr Area PlateMiddle = {0.26, 0.42, 0.31, 0.39};
constexpr std::array<Spot, 3> Holes = {{{0.483, 0.224}, {0.604, 0.224}, {0.958, 0.228}}};
constexpr std::array<Spot, 10> PlateOutline = {{{0.248, 0.002},
                                                {0.322, 0.002},
                                                {0.324, 0.24},
                                                {0.363, 0.288},
                                                {0.404, 0.24},
                                                {0.401, 0.002},
                                                {0.490, 0.002},
                                                {0.500, 0.042},
                                                {0.997, 0.042},
                                                {0.997, 0.405}}};
constexpr Spot PlateCorner = {0.248, 0.405};

// Lines across the scan: a row through the cylinder, a column over block and plate beside it.
constexpr Spot Cut = {0.72, 0.62};
// A region of the block as an inspection would choose it.
constexpr Spot RegionMiddle = {0.64, 0.80};
