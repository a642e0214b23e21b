#pragma once

#include "GreyPicture.h"

#include <cstdint>
#include <filesystem>
#include <vector>

// Reads a grey PNG of 8 or 16 bits as raw counts: no gamma, no scaling, since the numbers are
// measured values and no brightness. Throws std::runtime_error for everything else.
GreyPicture ReadGreyPng(const std::filesystem::path& path);

// Writes 8-bit RGB triples, top row first. Throws std::runtime_error when the file can't be
// written.
void WriteRgbPng(const std::filesystem::path& path, const std::vector<uint8_t>& rgb, int32_t width,
                 int32_t height);
