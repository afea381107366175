// Row walking, written once for every family that processes an image row by row.
//
// An operation's API function hands its images (pointer and byte step each) and the ROI to
// `rows::each`, which calls `fn(rowPtr..., width)` for every row.  When the family's own
// merge rule allows it (contiguous rows), the caller passes the whole ROI as one row instead:
// `rows::merged` tells whether every image's step equals its row's byte count, the common
// part of the families' rules, and the caller adds its own limits (for example that the
// product width x height fits an int).
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/base.hpp"

namespace KROI_TIER::rows {

// One image of a row walk: first pixel and byte step.  T may be const.
template <class T>
struct Image {
    T* ptr;
    std::ptrdiff_t step;
    T* row(std::ptrdiff_t y) const
    {
        using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
        return reinterpret_cast<T*>(reinterpret_cast<Byte*>(ptr) + y * step);
    }
};

template <class T>
Image<T> image(T* p, std::ptrdiff_t step)
{
    return {p, step};
}

// True when every image's step equals `rowBytes` (the images' rows touch end to end).
template <class... T>
bool merged(std::ptrdiff_t rowBytes, const Image<T>&... im)
{
    return ((im.step == rowBytes) && ...);
}

// fn(row pointers..., width) for rows 0..height-1.
template <class F, class... T>
void each(int width, int height, F&& fn, const Image<T>&... im)
{
    for (int y = 0; y < height; ++y) fn(im.row(y)..., width);
}

// The same, stopping at and returning the first negative status fn returns; otherwise the
// last row's status.
template <class F, class... T>
KroStatus eachStatus(int width, int height, F&& fn, const Image<T>&... im)
{
    KroStatus status = kroStsOk;
    for (int y = 0; y < height; ++y) {
        status = fn(im.row(y)..., width);
        if (status < 0) return status;
    }
    return status;
}

}  // namespace KROI_TIER::rows
