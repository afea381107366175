#include "png_io.hpp"

#include <png.h>

#include <cerrno>
#include <csetjmp>
#include <cstdio>
#include <cstring>
#include <stdexcept>
#include <utility>

namespace kroi_tool {

namespace {

// The allocators by [16-bit][channels - 1].  The wrapper only forgets the element type, so
// the table can hold the 8- and 16-bit forms side by side.
template <class T, T* (*Alloc)(int, int, int*)>
void* allocAs(int width, int height, int* step)
{
    return Alloc(width, height, step);
}

using AllocFn = void* (*)(int, int, int*);
constexpr AllocFn kAllocators[2][4] = {
    {allocAs<Kro8u, kroiMalloc_8u_C1>, allocAs<Kro8u, kroiMalloc_8u_C2>,
     allocAs<Kro8u, kroiMalloc_8u_C3>, allocAs<Kro8u, kroiMalloc_8u_C4>},
    {allocAs<Kro16u, kroiMalloc_16u_C1>, allocAs<Kro16u, kroiMalloc_16u_C2>,
     allocAs<Kro16u, kroiMalloc_16u_C3>, allocAs<Kro16u, kroiMalloc_16u_C4>},
};

bool validLayout(int channels, int depth)
{
    return channels >= 1 && channels <= 4 && (depth == 8 || depth == 16);
}

// Null when the library refuses the size or has no memory; never throws, so that the PNG
// reader can call it between setjmp and longjmp.
void* allocPixels(int width, int height, int channels, int depth, int* step)
{
    return kAllocators[depth == 16][channels - 1](width, height, step);
}

// PNG colour type by channel count.
constexpr int kColorTypes[4] = {PNG_COLOR_TYPE_GRAY, PNG_COLOR_TYPE_GRAY_ALPHA,
                                PNG_COLOR_TYPE_RGB, PNG_COLOR_TYPE_RGB_ALPHA};

// libpng reports errors through a callback that must not return.  The message is kept for
// the exception thrown once control is back above the setjmp.
struct PngError {
    char message[200] = "unknown libpng error";
};

[[noreturn]] void onPngError(png_structp png, png_const_charp msg)
{
    auto* err = static_cast<PngError*>(png_get_error_ptr(png));
    std::snprintf(err->message, sizeof err->message, "%s", msg);
    png_longjmp(png, 1);
}

// Warnings (an odd ancillary chunk, say) do not stop a read and are not worth a line.
void onPngWarning(png_structp, png_const_charp) {}

// Everything alive between setjmp and a longjmp is a plain pointer or integer, so a
// longjmp skips no destructor.  The caller owns what these fields point to.
struct ReadState {
    FILE* file;
    png_structp png;
    png_infop info;
    void* data; // pixels, from allocPixels
    int width, height, channels, depth, step;
};

bool readPixels(ReadState& s)
{
    if (setjmp(png_jmpbuf(s.png))) return false;
    png_init_io(s.png, s.file);
    png_set_sig_bytes(s.png, 8);
    png_read_info(s.png, s.info);
    png_set_expand(s.png);
    if (png_get_bit_depth(s.png, s.info) == 16) png_set_swap(s.png); // PNG is big-endian
    const int passes = png_set_interlace_handling(s.png);
    png_read_update_info(s.png, s.info);

    s.width = int(png_get_image_width(s.png, s.info));
    s.height = int(png_get_image_height(s.png, s.info));
    s.channels = png_get_channels(s.png, s.info);
    s.depth = png_get_bit_depth(s.png, s.info);
    if (!validLayout(s.channels, s.depth)) png_error(s.png, "unsupported pixel layout");
    s.data = allocPixels(s.width, s.height, s.channels, s.depth, &s.step);
    if (!s.data) png_error(s.png, "image too large for the allocator, or out of memory");
    // Row by row, once per interlace pass: libpng merges the passes into the rows.
    for (int pass = 0; pass < passes; ++pass)
        for (int y = 0; y < s.height; ++y)
            png_read_row(s.png, static_cast<png_bytep>(s.data) + ptrdiff_t(y) * s.step, nullptr);
    png_read_end(s.png, nullptr);
    return true;
}

struct WriteState {
    FILE* file;
    png_structp png;
    png_infop info;
    const Image* img;
};

bool writePixels(WriteState& s)
{
    if (setjmp(png_jmpbuf(s.png))) return false;
    const Image& img = *s.img;
    png_init_io(s.png, s.file);
    png_set_IHDR(s.png, s.info, png_uint_32(img.width), png_uint_32(img.height), img.depth,
                 kColorTypes[img.channels - 1], PNG_INTERLACE_NONE, PNG_COMPRESSION_TYPE_DEFAULT,
                 PNG_FILTER_TYPE_DEFAULT);
    png_write_info(s.png, s.info);
    if (img.depth == 16) png_set_swap(s.png);
    for (int y = 0; y < img.height; ++y) png_write_row(s.png, img.row<png_byte>(y));
    png_write_end(s.png, nullptr);
    return true;
}

std::runtime_error fileError(const std::string& path, const std::string& why)
{
    return std::runtime_error(path + ": " + why);
}

} // namespace

Image::Image(int w, int h, int c, int d) : width(w), height(h), channels(c), depth(d)
{
    if (!validLayout(c, d)) throw std::invalid_argument("Image: channels 1..4 and depth 8 or 16");
    data = allocPixels(w, h, c, d, &step);
    if (!data)
        throw std::runtime_error("kroiMalloc_" + std::string(d == 8 ? "8u" : "16u") + "_C" +
                                 std::to_string(c) + "(" + std::to_string(w) + ", " +
                                 std::to_string(h) + ") returned null");
}

Image Image::adopt(void* block, int step, int width, int height, int channels, int depth)
{
    Image img;
    img.width = width;
    img.height = height;
    img.channels = channels;
    img.depth = depth;
    img.step = step;
    img.data = block;
    return img;
}

Image::Image(Image&& o) noexcept
    : width(o.width), height(o.height), channels(o.channels), depth(o.depth), step(o.step),
      data(std::exchange(o.data, nullptr))
{
}

Image& Image::operator=(Image&& o) noexcept
{
    if (this != &o) {
        kroiFree(data);
        width = o.width;
        height = o.height;
        channels = o.channels;
        depth = o.depth;
        step = o.step;
        data = std::exchange(o.data, nullptr);
    }
    return *this;
}

Image::~Image() { kroiFree(data); }

std::string describe(const Image& img)
{
    static const char* const kNames[4] = {"gray", "gray+alpha", "RGB", "RGBA"};
    return std::to_string(img.depth) + "-bit " + kNames[img.channels - 1];
}

Image readPng(const std::string& path)
{
    FILE* file = std::fopen(path.c_str(), "rb");
    if (!file) throw fileError(path, std::strerror(errno));
    png_byte sig[8];
    const size_t got = std::fread(sig, 1, sizeof sig, file);
    if (got != sizeof sig || png_sig_cmp(sig, 0, sizeof sig) != 0) {
        std::fclose(file);
        throw fileError(path, "not a PNG file");
    }
    PngError err;
    ReadState s{file, nullptr, nullptr, nullptr, 0, 0, 0, 0, 0};
    s.png = png_create_read_struct(PNG_LIBPNG_VER_STRING, &err, onPngError, onPngWarning);
    if (s.png) s.info = png_create_info_struct(s.png);
    const bool ok = s.png && s.info && readPixels(s);
    png_destroy_read_struct(&s.png, &s.info, nullptr);
    std::fclose(file);
    if (!ok) {
        kroiFree(s.data);
        throw fileError(path, std::string("damaged or truncated PNG: ") + err.message);
    }
    return Image::adopt(s.data, s.step, s.width, s.height, s.channels, s.depth);
}

void writePng(const std::string& path, const Image& img)
{
    if (!img.data || !validLayout(img.channels, img.depth))
        throw fileError(path, "nothing to write: no pixels, or not 8/16-bit with 1..4 channels");
    FILE* file = std::fopen(path.c_str(), "wb");
    if (!file) throw fileError(path, std::strerror(errno));
    PngError err;
    WriteState s{file, nullptr, nullptr, &img};
    s.png = png_create_write_struct(PNG_LIBPNG_VER_STRING, &err, onPngError, onPngWarning);
    if (s.png) s.info = png_create_info_struct(s.png);
    const bool ok = s.png && s.info && writePixels(s);
    png_destroy_write_struct(&s.png, &s.info);
    // A full disk may show only when the buffered bytes go out, at fclose.
    const bool closed = std::fclose(file) == 0;
    const int closeErrno = errno;
    if (!ok || !closed) {
        std::remove(path.c_str());
        throw fileError(path, std::string("cannot write PNG: ") +
                                  (ok ? std::strerror(closeErrno) : err.message));
    }
}

} // namespace kroi_tool
