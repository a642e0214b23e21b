#pragma once

#include "HeightMap.h"

#include <filesystem>

// Reads one brightness per sample from an 8-bit PGM (P5) or grey PNG file of the map's size.
// Throws std::runtime_error when the file is no such picture or does not fit the map.
void LoadIntensity(const std::filesystem::path& path, HeightMap& map);
