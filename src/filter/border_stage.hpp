// Staging of small images for the border-aware filters.
//
// When an image is not larger than the mask, the streaming rules would have to reach past a
// side more than once; instead the filter copies the image, widened by the sides that are
// in memory, into a bordered image of (W + mw - 1) x (H + mh - 1) pixels with the border copy
// of its mode, and then filters that copy with every side in memory.  The staged image's
// row step is its width in pixels.
#pragma once

#include "filter/border_copy.hpp"

namespace KROI_TIER::border {

template <class T>
struct Staged {
    const T* roi;        // first ROI pixel inside the staged image
    std::ptrdiff_t step; // bytes
};

// Copies the ROI at `src` (`step` bytes per row, `roi` pixels, C elements per pixel; AC4
// counts 4) into `buf`, framed for `f`.  `value` holds C elements (constant mode).
template <class T, int C>
Staged<T> stage(const T* src, std::ptrdiff_t step, KroiSize roi, const Frame& f, const T* value, T* buf)
{
    const int64_t left = f.memLeft ? f.left : 0, top = f.memTop ? f.top : 0;
    const int64_t sw = roi.width + left + (f.memRight ? f.right : 0);
    const int64_t sh = roi.height + top + (f.memBottom ? f.bottom : 0);
    const int64_t wb = int64_t(roi.width) + f.left + f.right, hb = int64_t(roi.height) + f.top + f.bottom;
    const std::ptrdiff_t bstep = std::ptrdiff_t(wb) * C * sizeof(T);
    const T* from = rowAt(src, step, -top) - left * C;
    copyBorder<T, C, C>(from, step, buf, bstep, CopyShape{sw, sh, wb, hb, f.top - top, f.left - left}, f.mode, value);
    return {rowAt(static_cast<const T*>(buf), bstep, f.top) + f.left * C, bstep};
}

}  // namespace KROI_TIER::border
