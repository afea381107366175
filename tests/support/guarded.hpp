// Images between guard pages.
//
// A Guarded image lives in its own mmap'd region with a PROT_NONE page on each side.  One
// side touches the image: by default the byte after the image's highest byte is unmapped, so
// a kernel that reads or writes one byte past the last row faults at once instead of
// touching a neighbour's memory; with Guard::Before the byte before the lowest byte is.
// Rows may be padded (the padding is part of the image's bytes, so canaries cover it), the
// start may be moved off alignment, and rows may run bottom-up (negative step).
#pragma once

#include <gtest/gtest.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <vector>

namespace kt {

enum class Guard { After, Before };

struct Shape {
    int width = 1;        // pixels
    int height = 1;
    int channels = 1;     // elements per pixel
    int padBytes = 0;     // bytes after each row; the step is row bytes + padBytes
    Guard guard = Guard::After;
    // Guard::Before only: the first row starts this many bytes (0..15 and beyond) past a page
    // boundary, so kernels see unaligned starts.  With Guard::After the last row ends at the
    // page, and the start's alignment is whatever the image's size makes it.
    int offset = 0;
    bool bottomUp = false; // row 0 at the highest address, negative step
};

// The shape with offset and padding rounded down to whole elements of T, so that every
// element of a 16- or 32-bit image is aligned for its type (as callers' images are), while
// the rows still start at every alignment a kernel can meet.
template <class T>
Shape typed(Shape s)
{
    s.offset -= s.offset % int(sizeof(T));
    s.padBytes -= s.padBytes % int(sizeof(T));
    return s;
}

// The untyped part: memory, placement, canaries.
class GuardedBytes {
public:
    GuardedBytes(std::size_t elemSize, const Shape& shape);
    ~GuardedBytes();
    GuardedBytes(const GuardedBytes&) = delete;
    GuardedBytes& operator=(const GuardedBytes&) = delete;

    const Shape& shape() const { return shape_; }
    int width() const { return shape_.width; }
    int height() const { return shape_.height; }
    int channels() const { return shape_.channels; }
    std::size_t elemSize() const { return elemSize_; }
    std::size_t rowBytes() const { return rowBytes_; }
    int step() const { return step_; }

    unsigned char* rowBytesPtr(int y) { return first_ + std::ptrdiff_t(y) * step_; }
    const unsigned char* rowBytesPtr(int y) const { return first_ + std::ptrdiff_t(y) * step_; }

    // Every byte of the image, padding included, lowest address first.
    unsigned char* lowest() { return lowest_; }
    const unsigned char* lowest() const { return lowest_; }
    std::size_t spanBytes() const { return span_; }

    // Canaries: fill every byte, padding included; a snapshot remembers them all.
    void fillBytes(unsigned char v) { std::memset(lowest_, v, span_); }
    std::vector<unsigned char> snapshot() const { return {lowest_, lowest_ + span_}; }

    // Nothing at all changed since `before` (an error must write nothing).
    testing::AssertionResult unchangedSince(const std::vector<unsigned char>& before) const;
    // Only the first `writtenChannels` elements of each pixel may have changed: padding,
    // and untouched channels such as the alpha of an AC4 image, are as in `before`.
    testing::AssertionResult restUnchangedSince(const std::vector<unsigned char>& before,
                                                int writtenChannels) const;

private:
    Shape shape_;
    std::size_t elemSize_, rowBytes_, span_;
    int step_;
    void* map_ = nullptr;
    std::size_t mapBytes_ = 0;
    unsigned char* lowest_ = nullptr;
    unsigned char* first_ = nullptr;
};

template <class T>
class Guarded : public GuardedBytes {
public:
    explicit Guarded(const Shape& shape) : GuardedBytes(sizeof(T), shape) {}
    Guarded(int width, int height, int channels = 1, int padBytes = 0)
        : GuardedBytes(sizeof(T), Shape{width, height, channels, padBytes}) {}

    // The pointer and step a kroIP call takes.
    T* ptr() { return row(0); }
    const T* ptr() const { return row(0); }

    T* row(int y) { return reinterpret_cast<T*>(rowBytesPtr(y)); }
    const T* row(int y) const { return reinterpret_cast<const T*>(rowBytesPtr(y)); }
    T& at(int x, int y, int c = 0) { return row(y)[std::ptrdiff_t(x) * channels() + c]; }
    const T& at(int x, int y, int c = 0) const { return row(y)[std::ptrdiff_t(x) * channels() + c]; }

    // Calls f(x, y, c, element) for every element of the image (not the padding).
    template <class F>
    void forEach(F&& f)
    {
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                for (int c = 0; c < channels(); ++c) f(x, y, c, at(x, y, c));
    }
    template <class F>
    void forEach(F&& f) const
    {
        for (int y = 0; y < height(); ++y)
            for (int x = 0; x < width(); ++x)
                for (int c = 0; c < channels(); ++c) f(x, y, c, at(x, y, c));
    }
};

}  // namespace kt
