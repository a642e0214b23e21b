#pragma once

#include <cstdint>
#include <filesystem>
#include <stdexcept>
#include <string>
#include <vector>

// An error that names the file.
std::runtime_error Failure(const std::filesystem::path& path, const std::string& text);

// The whole file. Throws std::runtime_error when it can't be read.
std::vector<uint8_t> ReadBytes(const std::filesystem::path& path);

// Two bytes a sample; the place of the high byte differs between the formats.
std::vector<int16_t> ToSamples(const std::vector<uint8_t>& bytes, bool highByteFirst);
