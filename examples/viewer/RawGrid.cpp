#include "RawGrid.h"

#include "FileBytes.h"

#include <cmath>
#include <fstream>
#include <functional>
#include <map>
#include <sstream>
#include <utility>

namespace
{
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
        return Number(name) * LengthFactor(Unit(name), unit);
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

} // namespace

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
    if (map.Columns < 2 || map.Rows < 1)
    {
        throw Failure(beside, "at least 2 columns and 1 row are wanted, this has " +
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

HeightMap LoadFreeGrid(const std::filesystem::path& xPath)
{
    const std::string stem = xPath.stem().string();
    const auto load = [&](const char* coordinate)
    {
        const std::string name = stem.substr(0, stem.size() - 1) + coordinate;
        return LoadRawGrid(xPath.parent_path() / (name + xPath.extension().string()));
    };
    HeightMap x = load("x");
    HeightMap y = load("y");
    HeightMap map = load("z");
    for (const HeightMap& other : {std::cref(x), std::cref(y)})
    {
        if (other.Columns != map.Columns || other.Rows != map.Rows)
        {
            throw Failure(xPath, "x, y and z have to be of the same size");
        }
    }
    // Each file is a grid of numbers with a step and an offset of its own.
    const auto factor = [&](const HeightMap& other) { return LengthFactor(other.Unit, map.Unit); };
    map.XScale = x.ZScale * factor(x);
    map.XOffset = x.ZOffset * factor(x);
    map.YScale = y.ZScale * factor(y);
    map.YOffset = y.ZOffset * factor(y);
    for (size_t i = 0; i < map.Samples.size(); ++i)
    {
        // The library looks for missing samples in the heights alone.
        if (x.Samples[i] == HeightMap::Missing || y.Samples[i] == HeightMap::Missing)
        {
            map.Samples[i] = HeightMap::Missing;
        }
    }
    map.XSamples = std::move(x.Samples);
    map.YSamples = std::move(y.Samples);
    return map;
}

bool IsFreeGridPath(const std::filesystem::path& path)
{
    const std::string stem = path.stem().string();
    return stem.size() >= 2 && stem.compare(stem.size() - 2, 2, "_x") == 0;
}
