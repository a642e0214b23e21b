#include "PngFile.h"

#include "FileBytes.h"

#include <png.h>

#include <csetjmp>
#include <cstdio>
#include <memory>
#include <stdexcept>
#include <string>

namespace
{
struct CloseFile
{
    void operator()(std::FILE* file) const { std::fclose(file); }
};
using File = std::unique_ptr<std::FILE, CloseFile>;

// Largest number of samples a picture may have; sample counts are 32-bit signed further on.
constexpr int64_t LargestSampleCount = INT32_MAX;

// libpng reports errors by jumping out of its functions. The handlers keep the text for the
// exception that is thrown once the jump has landed; libpng itself would print it.
[[noreturn]] void OnPngError(png_structp png, png_const_charp message)
{
    *static_cast<std::string*>(png_get_error_ptr(png)) = message;
    std::longjmp(*png_set_longjmp_fn(png, std::longjmp, sizeof(std::jmp_buf)), 1);
}

void OnPngWarning(png_structp /*png*/, png_const_charp /*message*/) {}

struct PngReader
{
    std::string Message;
    png_structp Png =
        png_create_read_struct(PNG_LIBPNG_VER_STRING, &Message, OnPngError, OnPngWarning);
    png_infop Info = Png ? png_create_info_struct(Png) : nullptr;

    PngReader() = default;
    PngReader(const PngReader&) = delete;
    PngReader& operator=(const PngReader&) = delete;
    ~PngReader() { png_destroy_read_struct(&Png, &Info, nullptr); }
};

struct PngWriter
{
    std::string Message;
    png_structp Png =
        png_create_write_struct(PNG_LIBPNG_VER_STRING, &Message, OnPngError, OnPngWarning);
    png_infop Info = Png ? png_create_info_struct(Png) : nullptr;

    PngWriter() = default;
    PngWriter(const PngWriter&) = delete;
    PngWriter& operator=(const PngWriter&) = delete;
    ~PngWriter() { png_destroy_write_struct(&Png, &Info); }
};

// The three functions with a setjmp hold nothing that has a destructor: a jump would skip it.
bool ReadHeader(png_structp png, png_infop info, std::FILE* file)
{
    if (setjmp(png_jmpbuf(png)) != 0)
    {
        return false;
    }
    png_init_io(png, file);
    png_read_info(png, info);
    png_set_interlace_handling(png);
    png_read_update_info(png, info);
    return true;
}

bool ReadRows(png_structp png, png_infop info, png_bytepp rows)
{
    if (setjmp(png_jmpbuf(png)) != 0)
    {
        return false;
    }
    png_read_image(png, rows);
    png_read_end(png, info);
    return true;
}

bool WritePicture(png_structp png, png_infop info, std::FILE* file, png_bytepp rows,
                  png_uint_32 width, png_uint_32 height)
{
    if (setjmp(png_jmpbuf(png)) != 0)
    {
        return false;
    }
    png_init_io(png, file);
    png_set_IHDR(png, info, width, height, 8, PNG_COLOR_TYPE_RGB, PNG_INTERLACE_NONE,
                 PNG_COMPRESSION_TYPE_DEFAULT, PNG_FILTER_TYPE_DEFAULT);
    png_write_info(png, info);
    png_write_image(png, rows);
    png_write_end(png, nullptr);
    return true;
}

File Open(const std::filesystem::path& path, const char* mode, const char* complaint)
{
    File file(std::fopen(path.c_str(), mode));
    if (!file)
    {
        throw Failure(path, complaint);
    }
    return file;
}
} // namespace

GreyPicture ReadGreyPng(const std::filesystem::path& path)
{
    const File file = Open(path, "rb", "can't be opened");
    PngReader reader;
    if (!reader.Info)
    {
        throw Failure(path, "libpng can't be set up");
    }
    if (!ReadHeader(reader.Png, reader.Info, file.get()))
    {
        throw Failure(path, "not a readable PNG file (" + reader.Message + ")");
    }
    const int64_t columns = png_get_image_width(reader.Png, reader.Info);
    const int64_t rows = png_get_image_height(reader.Png, reader.Info);
    const int32_t bits = png_get_bit_depth(reader.Png, reader.Info);
    if (png_get_color_type(reader.Png, reader.Info) != PNG_COLOR_TYPE_GRAY || bits < 8)
    {
        throw Failure(path, "a grey PNG of 8 or 16 bits without alpha is wanted");
    }
    if (columns * rows > LargestSampleCount)
    {
        throw Failure(path, "the picture is too large");
    }

    const size_t rowBytes = png_get_rowbytes(reader.Png, reader.Info);
    std::vector<png_byte> bytes(rowBytes * static_cast<size_t>(rows));
    std::vector<png_bytep> rowPointers(static_cast<size_t>(rows));
    for (size_t row = 0; row < rowPointers.size(); ++row)
    {
        rowPointers[row] = bytes.data() + row * rowBytes;
    }
    if (!ReadRows(reader.Png, reader.Info, rowPointers.data()))
    {
        throw Failure(path, "the PNG file is damaged (" + reader.Message + ")");
    }

    GreyPicture picture;
    picture.Columns = static_cast<int32_t>(columns);
    picture.Rows = static_cast<int32_t>(rows);
    picture.Bits = bits;
    picture.Samples.resize(picture.SampleCount());
    for (size_t i = 0; i < picture.Samples.size(); ++i)
    {
        // PNG stores 16-bit samples with the high byte first.
        picture.Samples[i] =
            bits == 16 ? static_cast<uint16_t>(bytes[2 * i] << 8 | bytes[2 * i + 1]) : bytes[i];
    }
    return picture;
}

void WriteRgbPng(const std::filesystem::path& path, const std::vector<uint8_t>& rgb, int32_t width,
                 int32_t height)
{
    const size_t rowBytes = static_cast<size_t>(width) * 3;
    if (width < 1 || height < 1 || rgb.size() < rowBytes * static_cast<size_t>(height))
    {
        throw Failure(path, "there is no picture to write");
    }
    File file = Open(path, "wb", "can't be written");
    PngWriter writer;
    if (!writer.Info)
    {
        throw Failure(path, "libpng can't be set up");
    }
    std::vector<png_bytep> rowPointers(static_cast<size_t>(height));
    for (size_t row = 0; row < rowPointers.size(); ++row)
    {
        // libpng's writer takes non-const rows and only reads them.
        rowPointers[row] = const_cast<png_bytep>(rgb.data()) + row * rowBytes;
    }
    const bool written =
        WritePicture(writer.Png, writer.Info, file.get(), rowPointers.data(),
                     static_cast<png_uint_32>(width), static_cast<png_uint_32>(height));
    // A full disk often shows only when the last buffer is flushed.
    const bool closed = std::fclose(file.release()) == 0;
    if (!written || !closed)
    {
        throw Failure(path, "writing failed" +
                                (writer.Message.empty() ? "" : " (" + writer.Message + ")"));
    }
}
