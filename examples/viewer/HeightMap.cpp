#include "HeightMap.h"

#include "PngFile.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <fstream>
#include <map>
#include <numbers>
#include <sstream>
#include <stdexcept>

namespace
{
std::runtime_error Failure(const std::filesystem::path& path, const std::string& text)
{
    return std::runtime_error(path.string() + ": " + text);
}

// Length units in rising order, each a thousand times the one before.
constexpr std::array<const char*, 5> LengthUnits = {"nm", "um", "mm", "m", "km"};

std::ptrdiff_t UnitIndex(const std::string& unit)
{
    const auto found = std::find(LengthUnits.begin(), LengthUnits.end(), unit);
    return found == LengthUnits.end() ? -1 : found - LengthUnits.begin();
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

// Two bytes a sample; the place of the high byte differs between the formats.
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

// Latitude of a tile's middle, from a name such as N42E001 for its south-western corner. A name of
// another form gives the equator, where the samples are as far apart in both directions.
double TileLatitude(const std::string& name)
{
    const bool fits = name.size() >= 3 && std::isdigit(static_cast<unsigned char>(name[1])) &&
                      std::isdigit(static_cast<unsigned char>(name[2]));
    const int sign = !fits ? 0 : (name[0] == 'N' || name[0] == 'n') ? 1 : -1;
    if (sign == 0 || (sign < 0 && name[0] != 'S' && name[0] != 's'))
    {
        return 0.0;
    }
    return sign * ((name[1] - '0') * 10 + (name[2] - '0')) + 0.5;
}

// A tile of one degree in both directions, first row in the north, big-endian metres.
HeightMap LoadElevationTile(const std::filesystem::path& path)
{
    const std::vector<uint8_t> bytes = ReadBytes(path);
    const auto side =
        static_cast<size_t>(std::lround(std::sqrt(static_cast<double>(bytes.size() / 2))));
    if (side < 2 || side * side * 2 != bytes.size())
    {
        throw Failure(path, std::to_string(bytes.size()) +
                                " bytes are no square elevation tile of 16-bit samples");
    }
    constexpr double MetresPerDegree = 6371000.0 * std::numbers::pi / 180.0;
    const double latitude = TileLatitude(path.stem().string());
    HeightMap map;
    map.Columns = static_cast<int32_t>(side);
    map.Rows = static_cast<int32_t>(side);
    map.Samples = ToSamples(bytes, true);
    map.YScale = MetresPerDegree / static_cast<double>(side - 1);
    map.XScale = map.YScale * std::cos(latitude * std::numbers::pi / 180.0);
    // Assigned as text, GCC 12 wrongly warns of overlapping memory.
    map.Unit = std::string("m");
    return map;
}

// The description beside a raw grid: lines of a name, a value and sometimes a unit.
class Sidecar
{
public:
    explicit Sidecar(const std::filesystem::path& path) : Path(path)
    {
        std::ifstream stream(path);
        if (!stream)
        {
            throw Failure(path, "the description of the grid is missing or can't be read");
        }
        for (std::string line; std::getline(stream, line);)
        {
            std::istringstream words(line);
            std::string name;
            if (words >> name)
            {
                std::getline(words >> std::ws, Values[name]);
            }
        }
    }

    bool Has(const std::string& name) const { return Values.count(name) != 0; }

    const std::string& Text(const std::string& name) const
    {
        const auto found = Values.find(name);
        if (found == Values.end())
        {
            throw Failure(Path, "has no line '" + name + "'");
        }
        return found->second;
    }

    double Number(const std::string& name) const
    {
        std::istringstream words(Text(name));
        double number = 0.0;
        if (!(words >> number) || !std::isfinite(number))
        {
            throw Failure(Path, "the value of '" + name + "' is no number");
        }
        return number;
    }

    int32_t Count(const std::string& name) const
    {
        const double number = Number(name);
        if (number != std::floor(number) || std::abs(number) > INT32_MAX)
        {
            throw Failure(Path, "the value of '" + name + "' is no usable whole number");
        }
        return static_cast<int32_t>(number);
    }

    std::string Unit(const std::string& name) const
    {
        std::istringstream words(Text(name));
        std::string number;
        std::string unit;
        words >> number >> unit;
        return unit;
    }

    // A length in another unit than its own, as far as both are length units.
    double NumberIn(const std::string& name, const std::string& unit) const
    {
        const auto from = UnitIndex(Unit(name));
        const auto to = UnitIndex(unit);
        const double factor =
            from < 0 || to < 0 ? 1.0 : std::pow(1000.0, static_cast<double>(from - to));
        return Number(name) * factor;
    }

private:
    std::filesystem::path Path;
    std::map<std::string, std::string> Values;
};

void UseMarker(std::vector<int16_t>& samples, int32_t marker)
{
    if (marker == HeightMap::Missing)
    {
        return;
    }
    for (int16_t& sample : samples)
    {
        if (sample == marker)
        {
            sample = HeightMap::Missing;
        }
        else if (sample == HeightMap::Missing)
        {
            // A height in a file with another marker: one count up rather than lost.
            ++sample;
        }
    }
}

HeightMap LoadRawGrid(const std::filesystem::path& path)
{
    const std::vector<uint8_t> bytes = ReadBytes(path);
    std::filesystem::path beside = path;
    const Sidecar sidecar(beside.replace_extension(".txt"));
    if (sidecar.Has("type") && sidecar.Text("type").rfind("int16 little-endian", 0) != 0)
    {
        throw Failure(beside, "only grids of type 'int16 little-endian' can be read");
    }
    HeightMap map;
    map.Columns = sidecar.Count("columns");
    map.Rows = sidecar.Count("rows");
    if (map.Columns < 2 || map.Rows < 2)
    {
        throw Failure(beside, "a surface has at least 2 columns and 2 rows, this has " +
                                  std::to_string(map.Columns) + " x " + std::to_string(map.Rows));
    }
    const int64_t wanted = static_cast<int64_t>(map.Columns) * map.Rows * 2;
    if (static_cast<int64_t>(bytes.size()) != wanted)
    {
        throw Failure(path, "has " + std::to_string(bytes.size()) + " bytes, its description of " +
                                std::to_string(map.Columns) + " x " + std::to_string(map.Rows) +
                                " samples asks for " + std::to_string(wanted));
    }
    map.Samples = ToSamples(bytes, false);
    UseMarker(map.Samples, sidecar.Has("invalid") ? sidecar.Count("invalid") : HeightMap::Missing);
    map.Unit = sidecar.Unit("xscale");
    map.XScale = sidecar.Number("xscale");
    map.YScale = sidecar.NumberIn("yscale", map.Unit);
    map.ZScale = sidecar.NumberIn("zscale", map.Unit);
    map.ZOffset = sidecar.Has("zoffset") ? sidecar.NumberIn("zoffset", map.Unit) : 0.0;
    return map;
}

HeightMap LoadHeightPicture(const std::filesystem::path& path, const LoadOptions& options)
{
    if (!std::filesystem::exists(path))
    {
        throw Failure(path, "no such file");
    }
    const GreyPicture picture = ReadGreyPng(path);
    HeightMap map;
    map.Columns = picture.Columns;
    map.Rows = picture.Rows;
    map.Unit = std::string("counts");
    // Counts beyond the signed range are moved down as a whole, and the offset moves them up again.
    const uint16_t largest = *std::max_element(picture.Samples.begin(), picture.Samples.end());
    const int32_t shift = largest > INT16_MAX ? INT16_MAX : 0;
    map.ZOffset = shift;
    map.Samples.reserve(picture.Samples.size());
    for (const uint16_t count : picture.Samples)
    {
        const bool missing = options.MissingCount && count == *options.MissingCount;
        // 65535 counts do not fit beside the marker; the highest one is a saturated sample anyway.
        const int32_t moved = std::min<int32_t>(count - shift, INT16_MAX);
        map.Samples.push_back(missing ? HeightMap::Missing : static_cast<int16_t>(moved));
    }
    return map;
}

void Override(HeightMap& map, const LoadOptions& options)
{
    map.XScale = options.XScale.value_or(map.XScale);
    map.YScale = options.YScale.value_or(map.YScale);
    map.Unit = options.Unit.value_or(map.Unit);
    if (options.ZScale)
    {
        // The offset stands for a number of counts and keeps standing for it.
        map.ZOffset = map.ZOffset / map.ZScale * *options.ZScale;
        map.ZScale = *options.ZScale;
    }
}

void Trim(HeightMap& map, double percent)
{
    std::vector<int16_t> valid;
    std::copy_if(map.Samples.begin(), map.Samples.end(), std::back_inserter(valid),
                 [](int16_t sample) { return sample != HeightMap::Missing; });
    if (percent <= 0.0 || valid.empty())
    {
        return;
    }
    std::sort(valid.begin(), valid.end());
    const auto dropped = static_cast<size_t>(static_cast<double>(valid.size() - 1) *
                                             std::min(percent, 49.0) / 100.0);
    const int16_t low = valid[dropped];
    const int16_t high = valid[valid.size() - 1 - dropped];
    for (int16_t& sample : map.Samples)
    {
        sample = sample < low || sample > high ? HeightMap::Missing : sample;
    }
}

void RequireUsable(const std::filesystem::path& path, const HeightMap& map)
{
    if (map.Columns < 2 || map.Rows < 2)
    {
        throw Failure(path, "a surface has at least 2 columns and 2 rows");
    }
    if (!(map.XScale > 0.0) || !(map.YScale > 0.0) || !(map.ZScale > 0.0))
    {
        throw Failure(path, "scales have to be above zero");
    }
    if (std::all_of(map.Samples.begin(), map.Samples.end(),
                    [](int16_t sample) { return sample == HeightMap::Missing; }))
    {
        throw Failure(path, "holds no valid sample");
    }
}
} // namespace

HeightMap LoadHeightMap(const std::filesystem::path& path, const LoadOptions& options)
{
    std::string extension = path.extension().string();
    for (char& letter : extension)
    {
        letter = static_cast<char>(std::tolower(static_cast<unsigned char>(letter)));
    }
    HeightMap map;
    if (extension == ".hgt")
    {
        map = LoadElevationTile(path);
    }
    else if (extension == ".i16")
    {
        map = LoadRawGrid(path);
    }
    else if (extension == ".png")
    {
        map = LoadHeightPicture(path, options);
    }
    else
    {
        throw Failure(path, "unknown kind of file; .hgt, .i16 and .png can be shown");
    }
    Override(map, options);
    RequireUsable(path, map);
    Trim(map, options.TrimPercent);
    return map;
}

void ChooseUnit(HeightMap& map)
{
    constexpr double FewestUnits = 10.0;
    constexpr double MostUnits = 10000.0;
    auto unit = UnitIndex(map.Unit);
    if (unit < 0)
    {
        return;
    }
    double longer = std::max((map.Columns - 1) * map.XScale, (map.Rows - 1) * map.YScale);
    double factor = 1.0;
    const auto last = static_cast<std::ptrdiff_t>(LengthUnits.size()) - 1;
    for (; longer * factor >= MostUnits && unit < last; ++unit)
    {
        factor /= 1000.0;
    }
    for (; longer * factor < FewestUnits && unit > 0; --unit)
    {
        factor *= 1000.0;
    }
    map.Unit = LengthUnits[static_cast<size_t>(unit)];
    map.XScale *= factor;
    map.YScale *= factor;
    map.ZScale *= factor;
    map.ZOffset *= factor;
}

HeightStatistics DescribeHeights(const HeightMap& map)
{
    HeightStatistics statistics;
    bool any = false;
    for (size_t i = 0; i < map.Samples.size(); ++i)
    {
        const int16_t sample = map.Samples[i];
        if (sample == HeightMap::Missing)
        {
            ++statistics.MissingSamples;
            continue;
        }
        if (!any || sample < statistics.Lowest)
        {
            statistics.Lowest = sample;
            statistics.LowestIndex = i;
        }
        if (!any || sample > statistics.Highest)
        {
            statistics.Highest = sample;
            statistics.HighestIndex = i;
        }
        any = true;
    }
    return statistics;
}

double ChooseExaggeration(const HeightMap& map, const HeightStatistics& statistics)
{
    // A relief a fifth as high as the surface is wide shows its form without looking like a wall.
    constexpr double WantedRelief = 0.2;
    const double width = ((map.Columns - 1) * map.XScale + (map.Rows - 1) * map.YScale) / 2.0;
    const double relief = map.Height(statistics.Highest) - map.Height(statistics.Lowest);
    if (relief <= 0.0)
    {
        return 1.0;
    }
    const double factor = WantedRelief * width / relief;
    const double decade = std::pow(10.0, std::floor(std::log10(factor)));
    const double leading = factor / decade;
    const double rounded = leading >= 5.0 ? 5.0 : leading >= 2.0 ? 2.0 : 1.0;
    return std::max(1.0, rounded * decade);
}
