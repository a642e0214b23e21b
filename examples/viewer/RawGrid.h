#pragma once

#include "HeightMap.h"

#include <filesystem>

// Raw grids: little-endian 16-bit samples, row by row, with a description in a .txt file beside
// them. Both functions throw std::runtime_error.

// Heights on a regular grid. One row is a profile.
HeightMap LoadRawGrid(const std::filesystem::path& path);

// Free positions: NAME_x, NAME_y and NAME_z, found by the path of the first.
HeightMap LoadFreeGrid(const std::filesystem::path& xPath);
bool IsFreeGridPath(const std::filesystem::path& path);
