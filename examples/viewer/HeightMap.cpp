#include "HeightMap.h"

#include "FileBytes.h"
#include "PngFile.h"
#include "RawGrid.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <limits>
#include <numbers>
#include <stdexcept>

namespace
{
// Length units in rising order, each a thousand times the one before.
constexpr std::array<const char*, 5> LengthUnits = {"nm", "um", "mm", "m", "km"};

std::ptrdiff_t UnitIndex(const std::string& unit)
{
    const auto found = std::find(LengthUnits.begin(), LengthUnits.end(), unit);
    return found == LengthUnits.end() ? -1 : found - LengthUnits.begin();
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

// The offset stands for a number of steps and keeps standing for it.
void OverrideScale(const std::optional<double>& wanted, double& scale, double& offset)
{
    if (wanted)
    {
        offset = offset / scale * *wanted;
        scale = *wanted;
    }
}

void Override(HeightMap& map, const LoadOptions& options)
{
    OverrideScale(options.XScale, map.XScale, map.XOffset);
    OverrideScale(options.YScale, map.YScale, map.YOffset);
    OverrideScale(options.ZScale, map.ZScale, map.ZOffset);
    map.Unit = options.Unit.value_or(map.Unit);
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
    if (map.Columns < 2 || map.Rows < 1)
    {
        throw Failure(path, "at least 2 columns and 1 row are wanted");
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
        map = IsFreeGridPath(path) ? LoadFreeGrid(path) : LoadRawGrid(path);
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
    const Extent extent = DescribeExtent(map);
    const double longer = std::max(extent.Width(), extent.Depth());
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
    map.XOffset *= factor;
    map.YOffset *= factor;
    map.ZOffset *= factor;
}

double LengthFactor(const std::string& from, const std::string& to)
{
    const auto fromIndex = UnitIndex(from);
    const auto toIndex = UnitIndex(to);
    const bool areLengths = fromIndex >= 0 && toIndex >= 0;
    return areLengths ? std::pow(1000.0, static_cast<double>(fromIndex - toIndex)) : 1.0;
}

Extent DescribeExtent(const HeightMap& map)
{
    if (!map.HasFreePositions())
    {
        return {map.XOffset, map.XOffset + (map.Columns - 1) * map.XScale, map.YOffset,
                map.YOffset + (map.Rows - 1) * map.YScale};
    }
    constexpr double Infinity = std::numeric_limits<double>::infinity();
    Extent extent = {Infinity, -Infinity, Infinity, -Infinity};
    for (size_t i = 0; i < map.Samples.size(); ++i)
    {
        if (map.Samples[i] != HeightMap::Missing)
        {
            extent.XMin = std::min(extent.XMin, map.X(i));
            extent.XMax = std::max(extent.XMax, map.X(i));
            extent.YMin = std::min(extent.YMin, map.Y(i));
            extent.YMax = std::max(extent.YMax, map.Y(i));
        }
    }
    return extent;
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
    const Extent extent = DescribeExtent(map);
    const double width = map.IsProfile() ? extent.Width() : (extent.Width() + extent.Depth()) / 2.0;
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
