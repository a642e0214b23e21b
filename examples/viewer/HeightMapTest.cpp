// Reading measured files: what the formats mean, and that damaged files are refused with a reason.

#include "HeightMap.h"
#include "Features.h"
#include "Intensity.h"
#include "PngFile.h"

#include <gtest/gtest.h>
#include <png.h>

#include <cstdlib>
#include <fstream>
#include <stdexcept>
#include <string>

namespace
{
namespace fs = std::filesystem;

const fs::path Shipped = TARVEX_EXAMPLE_DATA;

class Files : public testing::Test
{
protected:
    void SetUp() override
    {
        std::string pattern = (fs::temp_directory_path() / "tarvex-files-XXXXXX").string();
        ASSERT_NE(mkdtemp(pattern.data()), nullptr);
        Folder = pattern;
    }

    void TearDown() override { fs::remove_all(Folder); }

    fs::path Write(const std::string& name, const std::string& content)
    {
        std::ofstream(Folder / name, std::ios::binary) << content;
        return Folder / name;
    }

    // The reason for which a file is refused; empty if it is read.
    static std::string Refusal(const fs::path& path, const LoadOptions& options = {})
    {
        try
        {
            LoadHeightMap(path, options);
            return "";
        }
        catch (const std::runtime_error& error)
        {
            return error.what();
        }
    }

    static bool Mentions(const std::string& text, const std::string& part)
    {
        return text.find(part) != std::string::npos;
    }

    const std::string Sidecar = "columns 2\nrows 2\ntype int16 little-endian, row-major\n"
                                "invalid -1\nxscale 2 mm\nyscale 3 mm\nzscale 5 um\nzoffset 1 mm\n";
    fs::path Folder;
};

TEST_F(Files, ElevationTilesAreBigEndianWithTheNorthernRowFirst)
{
    const std::string samples("\x01\x02\x80\x00\x00\x05\xff\xfe", 8);
    const HeightMap map = LoadHeightMap(Write("S60W001.hgt", samples), {});
    EXPECT_EQ(map.Samples, (std::vector<int16_t>{258, HeightMap::Missing, 5, -2}));
    EXPECT_NEAR(map.YScale, 111195.0, 1.0);
    EXPECT_NEAR(map.XScale / map.YScale, 0.5075, 0.001) << "59.5 degrees south";
}

TEST_F(Files, AnElevationTileHasToBeSquare)
{
    EXPECT_TRUE(Mentions(Refusal(Write("N00E000.hgt", std::string(10, '\1'))), "square"));
    EXPECT_TRUE(Mentions(Refusal(Write("N00E000.hgt", std::string(9, '\1'))), "square"));
    EXPECT_TRUE(Mentions(Refusal(Write("N00E000.hgt", "")), "square"));
}

TEST_F(Files, RawGridsFollowTheirSidecar)
{
    Write("grid.txt", Sidecar);
    const std::string samples("\xff\xff\x00\x80\x02\x01\x00\x00", 8);
    const HeightMap map = LoadHeightMap(Write("grid.i16", samples), {});
    EXPECT_EQ(map.Samples, (std::vector<int16_t>{HeightMap::Missing, -32767, 258, 0}))
        << "the file's own marker becomes ours, and a height that equals ours is kept";
    EXPECT_EQ(map.Unit, "mm");
    EXPECT_DOUBLE_EQ(map.ZScale, 0.005) << "brought to the unit of the columns";
    EXPECT_DOUBLE_EQ(map.Height(258), 258 * 0.005 + 1.0);
}

TEST_F(Files, RawGridsThatDoNotFitTheirSidecarAreRefused)
{
    const fs::path grid = Write("grid.i16", std::string(8, '\1'));
    EXPECT_TRUE(Mentions(Refusal(grid), "grid.txt"));
    Write("grid.txt", "columns 2\nrows 3\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "asks for 12"));
    Write("grid.txt", "columns 2\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "'rows'"));
    Write("grid.txt", "columns two\nrows 2\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "'columns'"));
    Write("grid.txt", "columns 1\nrows 4\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "1 x 4"));
    Write("grid.txt", "columns 2\nrows 2\nxscale 0\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "above zero"));
    Write("grid.txt", "type float32\ncolumns 2\nrows 2\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "int16"));
    Write("grid.txt", "columns 70000\nrows 70000\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(grid), "asks for 9800000000"));
}

TEST_F(Files, OneRowIsAProfile)
{
    Write("line.txt", "columns 3\nrows 1\nxscale 2 um\nyscale 1 um\nzscale 1 nm\n");
    const HeightMap map = LoadHeightMap(Write("line.i16", std::string("\1\0\2\0\3\0", 6)), {});
    EXPECT_TRUE(map.IsProfile());
    EXPECT_DOUBLE_EQ(map.X(2), 4.0);
    EXPECT_DOUBLE_EQ(map.Height(map.Samples[2]), 0.003);
}

TEST_F(Files, EachCoordinateOfFreePositionsHasItsOwnScaleAndOffset)
{
    const std::string common = "columns 2\nrows 2\nxscale 7 mm\nyscale 7 mm\n";
    Write("free_x.txt", common + "zscale 500 um\nzoffset 0.1 m\n");
    Write("free_y.txt", common + "zscale 2 mm\nzoffset 20 mm\n");
    Write("free_z.txt", common + "zscale 3 mm\nzoffset 30 mm\ninvalid 0\n");
    const fs::path path = Write("free_x.i16", std::string("\1\0\2\0\x00\x80\4\0", 8));
    Write("free_y.i16", std::string("\1\0\1\0\2\0\2\0", 8));
    Write("free_z.i16", std::string("\1\0\0\0\3\0\4\0", 8));
    HeightMap map = LoadHeightMap(path, {});
    ASSERT_TRUE(map.HasFreePositions());
    EXPECT_DOUBLE_EQ(map.X(0), 100.5);
    EXPECT_DOUBLE_EQ(map.Y(3), 24.0);
    EXPECT_DOUBLE_EQ(map.Height(map.Samples[3]), 42.0);
    EXPECT_EQ(map.Samples, (std::vector<int16_t>{1, HeightMap::Missing, HeightMap::Missing, 4}))
        << "missing where z is, and where a position is";
    const Extent extent = DescribeExtent(map);
    EXPECT_DOUBLE_EQ(extent.Width(), 1.5) << "the valid samples count";
    ChooseUnit(map);
    EXPECT_EQ(map.Unit, "um");
    EXPECT_NEAR(map.X(0), 100500.0, 1e-6) << "positions go along with the unit";

    Write("free_y.i16", std::string(12, '\1'));
    Write("free_y.txt", "columns 2\nrows 3\nxscale 1\nyscale 1\nzscale 1\n");
    EXPECT_TRUE(Mentions(Refusal(path), "same size"));
    fs::remove(Folder / "free_y.i16");
    EXPECT_TRUE(Mentions(Refusal(path), "free_y.i16"));
}

TEST_F(Files, ASurfaceWithoutAValidSampleIsRefused)
{
    Write("grid.txt", Sidecar);
    EXPECT_TRUE(Mentions(Refusal(Write("grid.i16", std::string(8, '\xff'))), "no valid sample"));
}

TEST_F(Files, MissingUnknownAndDirectoryPathsAreRefused)
{
    EXPECT_TRUE(Mentions(Refusal(Folder / "absent.hgt"), "no such file"));
    EXPECT_TRUE(Mentions(Refusal(Folder / "absent.png"), "no such file"));
    EXPECT_TRUE(Mentions(Refusal(Write("scan.stl", "solid")), "unknown kind"));
    fs::create_directory(Folder / "folder.hgt");
    EXPECT_TRUE(Mentions(Refusal(Folder / "folder.hgt"), "not a file"));
    fs::create_directory(Folder / "folder.png");
    EXPECT_FALSE(Refusal(Folder / "folder.png").empty());
}

TEST_F(Files, DamagedAndColouredPicturesAreRefused)
{
    EXPECT_TRUE(Mentions(Refusal(Write("text.png", "no picture")), "PNG"));
    std::ifstream stream(Shipped / "cylinder1.png", std::ios::binary);
    std::string bytes(std::istreambuf_iterator<char>(stream), {});
    EXPECT_TRUE(Mentions(Refusal(Write("cut.png", bytes.substr(0, bytes.size() / 2))), "damaged"));
    WriteRgbPng(Folder / "colour.png", std::vector<uint8_t>(2 * 2 * 3, 9), 2, 2);
    EXPECT_TRUE(Mentions(Refusal(Folder / "colour.png"), "grey"));
}

TEST_F(Files, ZeroIsMissingInAHeightPictureUnlessToldOtherwise)
{
    const fs::path scan = Shipped / "cylinder1.png";
    const HeightMap map = LoadHeightMap(scan, {});
    EXPECT_EQ(map.Columns, 2101);
    EXPECT_EQ(map.Rows, 1319);
    const HeightStatistics statistics = DescribeHeights(map);
    EXPECT_NEAR(static_cast<double>(statistics.MissingSamples) / map.Samples.size(), 0.3229, 5e-5);
    EXPECT_EQ(statistics.Lowest, 1);
    EXPECT_EQ(statistics.Highest, 315);
    EXPECT_EQ(map.Samples[statistics.HighestIndex], 315);

    LoadOptions everythingCounts;
    everythingCounts.MissingCount.reset();
    EXPECT_EQ(DescribeHeights(LoadHeightMap(scan, everythingCounts)).MissingSamples, 0U);
}

TEST_F(Files, CountsBeyondTheSignedRangeKeepTheirHeights)
{
    const std::vector<uint16_t> counts = {0, 40000, 65535, 1};
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = 2;
    image.height = 2;
    image.format = PNG_FORMAT_LINEAR_Y;
    const fs::path path = Folder / "counts.png";
    ASSERT_TRUE(png_image_write_to_file(&image, path.c_str(), 0, counts.data(), 0, nullptr));
    EXPECT_EQ(ReadGreyPng(path).Samples, counts);
    LoadOptions options;
    options.ZScale = 0.5;
    const HeightMap map = LoadHeightMap(path, options);
    EXPECT_EQ(map.Samples[0], HeightMap::Missing);
    EXPECT_DOUBLE_EQ(map.Height(map.Samples[1]), 20000.0);
    EXPECT_DOUBLE_EQ(map.Height(map.Samples[3]), 0.5);
    options.MissingCount = 40000;
    const HeightMap other = LoadHeightMap(path, options);
    EXPECT_DOUBLE_EQ(other.Height(other.Samples[0]), 0.0);
    EXPECT_EQ(other.Samples[1], HeightMap::Missing);
}

TEST_F(Files, TheShippedSurfacesAreWhatTheirSourcesSay)
{
    const HeightMap tile = LoadHeightMap(Shipped / "N42E001.hgt", {});
    const HeightStatistics heights = DescribeHeights(tile);
    EXPECT_EQ(tile.Columns, 1201);
    EXPECT_EQ(heights.Lowest, 349);
    EXPECT_EQ(heights.Highest, 3100);

    HeightMap interferometer = LoadHeightMap(Shipped / "wli_height.i16", {});
    LoadIntensity(Shipped / "wli_intensity8.pgm", interferometer);
    EXPECT_EQ(interferometer.Intensities.size(), 640U * 480U);
    EXPECT_EQ(DescribeHeights(interferometer).MissingSamples, 116U);

    HeightMap confocal = LoadHeightMap(Shipped / "confocal_land.i16", {});
    EXPECT_EQ(DescribeHeights(confocal).MissingSamples, 25292U);
    EXPECT_THROW(LoadIntensity(Shipped / "wli_intensity8.pgm", confocal), std::runtime_error);

    const HeightMap beads = LoadHeightMap(Shipped / "clad_nonuniform_x.i16", {});
    EXPECT_EQ(DescribeHeights(beads).MissingSamples, 8455U);
    const Extent extent = DescribeExtent(beads);
    EXPECT_NEAR(extent.XMin, 56.25, 0.5);
    EXPECT_NEAR(extent.YMax, 125.885, 1e-6);
    EXPECT_TRUE(LoadHeightMap(Shipped / "stylus_profile.i16", {}).IsProfile());
}

TEST_F(Files, FeaturesOfTheLaserScanAreMeasured)
{
    LoadOptions options;
    options.XScale = options.YScale = options.ZScale = 0.1;
    const HeightMap scan = LoadHeightMap(Shipped / "cylinder1.png", options);
    // The round part on the block, read off the picture by hand.
    const Plateau part = MeasurePlateau(scan, {0.33, 0.52, 0.49, 0.755});
    EXPECT_NEAR(part.X, 89.8, 0.5);
    EXPECT_NEAR(part.Y, 81.8, 0.5);
    EXPECT_NEAR(part.HalfWidth, 14.9, 0.5);
    EXPECT_NEAR(part.HalfDepth, 14.9, 0.5);
    EXPECT_NEAR(part.Height, 31.0, 0.3);
    EXPECT_NEAR(part.Surrounding, 20.2, 0.5);
    const FittedPlane top = FitPlane(scan, {0.094, 0.811, 0.411, 0.968});
    EXPECT_NEAR(top.At(89.8, 81.8), part.Surrounding, 0.5) << "the part does not bend the plane";
    EXPECT_LT(top.At(95.0, 60.0), top.At(95.0, 120.0)) << "the block leans";
}

TEST_F(Files, DamagedIntensityPicturesAreRefused)
{
    HeightMap map;
    map.Columns = 2;
    map.Rows = 2;
    const std::string good = "P5 # a comment\n2 2\n# another\n255\n";
    LoadIntensity(Write("good.pgm", good + "\x01\xff\x03\x04"), map);
    EXPECT_EQ(map.Intensities, (std::vector<uint8_t>{1, 255, 3, 4}));
    for (const std::string bad :
         {"P5 2 2 255\n123", "P5 2 2 65535\n12345678", "P2 2 2 255\n1 2 3 4", "P5 2 2",
          "P5 -2 -2 255\n1234", "P5 99999999999 2 255\n1234", "P5 60000 60000 255\n1234", ""})
    {
        EXPECT_THROW(LoadIntensity(Write("bad.pgm", bad), map), std::runtime_error) << bad;
    }
    EXPECT_THROW(LoadIntensity(Folder / "absent.pgm", map), std::runtime_error);
    EXPECT_THROW(LoadIntensity(Shipped / "cylinder1.png", map), std::runtime_error) << "16 bits";
}

TEST(HeightMaps, OutliersAreTrimmedAtBothEnds)
{
    const fs::path scan = Shipped / "confocal_land.i16";
    LoadOptions options;
    options.TrimPercent = 1.0;
    const HeightMap whole = LoadHeightMap(scan, {});
    const HeightMap trimmed = LoadHeightMap(scan, options);
    const size_t before = DescribeHeights(whole).MissingSamples;
    const size_t dropped = DescribeHeights(trimmed).MissingSamples - before;
    const double valid = static_cast<double>(whole.Samples.size() - before);
    EXPECT_NEAR(static_cast<double>(dropped) / valid, 0.02, 0.001);
}

TEST(HeightMaps, TheUnitFitsTheExtentAndTheHeightsGoAlong)
{
    HeightMap map;
    map.Columns = 641;
    map.Rows = 481;
    map.XScale = map.YScale = 0.0002;
    map.ZScale = 1e-8;
    map.ZOffset = -0.0003;
    map.Unit = "mm";
    ChooseUnit(map);
    EXPECT_EQ(map.Unit, "um");
    EXPECT_NEAR(map.XScale, 0.2, 1e-12);
    EXPECT_NEAR(map.Height(1000), -0.29, 1e-9);

    map.XScale = map.YScale = 100.0;
    map.Unit = "m";
    ChooseUnit(map);
    EXPECT_EQ(map.Unit, "km");
    EXPECT_NEAR(map.XScale, 0.1, 1e-12);

    map.Unit = "furlong";
    ChooseUnit(map);
    EXPECT_EQ(map.Unit, "furlong");
}

TEST(HeightMaps, ExaggerationIsRoundAndNeverFlattens)
{
    HeightMap map;
    map.Columns = 101;
    map.Rows = 101;
    HeightStatistics statistics;
    const auto forRelief = [&](int16_t relief)
    {
        statistics.Highest = relief;
        return ChooseExaggeration(map, statistics);
    };
    EXPECT_DOUBLE_EQ(forRelief(0), 1.0);
    EXPECT_DOUBLE_EQ(forRelief(1), 20.0);
    EXPECT_DOUBLE_EQ(forRelief(3), 5.0);
    EXPECT_DOUBLE_EQ(forRelief(20), 1.0);
    EXPECT_DOUBLE_EQ(forRelief(1000), 1.0);
}
} // namespace
