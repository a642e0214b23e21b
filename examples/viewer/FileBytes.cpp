#include "FileBytes.h"

#include <fstream>

std::runtime_error Failure(const std::filesystem::path& path, const std::string& text)
{
    return std::runtime_error(path.string() + ": " + text);
}

std::vector<uint8_t> ReadBytes(const std::filesystem::path& path)
{
    if (!std::filesystem::is_regular_file(path))
    {
        throw Failure(path, std::filesystem::exists(path) ? "not a file" : "no such file");
    }
    std::ifstream stream(path, std::ios::binary);
    std::vector<uint8_t> bytes(std::filesystem::file_size(path));
    if (!stream || !stream.read(reinterpret_cast<char*>(bytes.data()),
                                static_cast<std::streamsize>(bytes.size())))
    {
        throw Failure(path, "can't be read");
    }
    return bytes;
}

std::vector<int16_t> ToSamples(const std::vector<uint8_t>& bytes, bool highByteFirst)
{
    std::vector<int16_t> samples(bytes.size() / 2);
    const size_t high = highByteFirst ? 0 : 1;
    for (size_t i = 0; i < samples.size(); ++i)
    {
        samples[i] = static_cast<int16_t>(bytes[2 * i + high] << 8 | bytes[2 * i + 1 - high]);
    }
    return samples;
}
