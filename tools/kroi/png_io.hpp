// The kroi program's images and their PNG files.
//
// Pixels live in blocks from the library's own allocators (kroiMalloc_8u_C* and
// kroiMalloc_16u_C*, released with kroiFree), so every run of the program exercises them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "kroi.h"

namespace kroi_tool {

// An interleaved image of 1 to 4 channels (gray, gray + alpha, RGB, RGBA) with 8 or 16 bits
// per sample.  16-bit samples are held in native byte order.  Move-only: it owns its block.
struct Image {
    int width = 0;
    int height = 0;
    int channels = 0;
    int depth = 0; // bits per sample: 8 or 16
    int step = 0;  // bytes from the start of one row to the next, as the allocator chose it
    void* data = nullptr;

    Image() = default;
    // Allocates with the library allocator for this type and channel count; throws
    // std::runtime_error when it returns null.
    Image(int width, int height, int channels, int depth);
    // Takes over a block from the kroiMalloc form of this type and channel count.
    static Image adopt(void* block, int step, int width, int height, int channels, int depth);

    Image(Image&& other) noexcept;
    Image& operator=(Image&& other) noexcept;
    Image(const Image&) = delete;
    Image& operator=(const Image&) = delete;
    ~Image();

    size_t rowBytes() const { return size_t(width) * channels * (depth / 8); }

    template <class T>
    T* row(int y) const
    {
        return reinterpret_cast<T*>(static_cast<uint8_t*>(data) + ptrdiff_t(y) * step);
    }
};

// "8-bit RGB" and the like, for messages and the gallery.
std::string describe(const Image& img);

// Reads a PNG of any colour type and bit depth: palette images become RGB or RGBA, gray
// below 8 bits becomes 8-bit gray, a transparency chunk becomes an alpha channel; 8- and
// 16-bit samples are kept as they are.  Throws std::runtime_error naming the file and the
// reason when the file cannot be opened, is no PNG or is damaged.
Image readPng(const std::string& path);

// Writes an 8- or 16-bit PNG of the image's colour type.  Throws std::runtime_error naming
// the file on failure, and leaves no partial file behind.
void writePng(const std::string& path, const Image& img);

} // namespace kroi_tool
