#include "Intensity.h"

#include "FileBytes.h"
#include "PngFile.h"

#include <cctype>
#include <fstream>
#include <string>

namespace
{
// The numbers of a PGM header stand between white space and comments that run to the line's end.
int32_t ReadHeaderNumber(std::istream& stream)
{
    while (std::isspace(stream.peek()) || stream.peek() == '#')
    {
        if (stream.get() == '#')
        {
            std::string comment;
            std::getline(stream, comment);
        }
    }
    int32_t number = -1;
    return stream >> number ? number : -1;
}

GreyPicture ReadPgm(const std::filesystem::path& path)
{
    std::ifstream stream(path, std::ios::binary);
    if (!stream)
    {
        throw Failure(path, "can't be opened");
    }
    if (stream.get() != 'P' || stream.get() != '5')
    {
        throw Failure(path, "not a binary PGM file (P5)");
    }
    GreyPicture picture;
    picture.Columns = ReadHeaderNumber(stream);
    picture.Rows = ReadHeaderNumber(stream);
    const int32_t brightest = ReadHeaderNumber(stream);
    if (picture.Columns < 1 || picture.Rows < 1 || brightest < 1 || brightest > 65535 ||
        !std::isspace(stream.get()))
    {
        throw Failure(path, "the PGM header is damaged");
    }
    if (brightest > 255)
    {
        throw Failure(path, "an intensity picture of 8 bits is wanted, this one has 16");
    }
    // Compared before anything is allocated: a damaged header may claim any size.
    const auto start = stream.tellg();
    const auto length = stream.seekg(0, std::ios::end).tellg() - start;
    if (length < static_cast<int64_t>(picture.Columns) * picture.Rows)
    {
        throw Failure(path, "the file ends before its last row");
    }
    stream.seekg(start);
    std::vector<char> bytes(picture.SampleCount());
    if (!stream.read(bytes.data(), static_cast<std::streamsize>(bytes.size())))
    {
        throw Failure(path, "can't be read");
    }
    picture.Samples.reserve(bytes.size());
    for (const char byte : bytes)
    {
        picture.Samples.push_back(static_cast<uint8_t>(byte));
    }
    return picture;
}
} // namespace

void LoadIntensity(const std::filesystem::path& path, HeightMap& map)
{
    std::string extension = path.extension().string();
    for (char& letter : extension)
    {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    if (extension != ".png" && extension != ".pgm")
    {
        throw Failure(path, "an intensity picture is a .pgm or a .png file");
    }
    const GreyPicture picture = extension == ".png" ? ReadGreyPng(path) : ReadPgm(path);
    if (picture.Bits != 8)
    {
        throw Failure(path, "an intensity picture of 8 bits is wanted, this one has " +
                                std::to_string(picture.Bits));
    }
    if (picture.Columns != map.Columns || picture.Rows != map.Rows)
    {
        throw Failure(path, "has " + std::to_string(picture.Columns) + " x " +
                                std::to_string(picture.Rows) + " samples, the surface has " +
                                std::to_string(map.Columns) + " x " + std::to_string(map.Rows));
    }
    map.Intensities.assign(picture.Samples.begin(), picture.Samples.end());
}
