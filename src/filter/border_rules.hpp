// Border rules, shared by every family that reads pixels outside the region of interest:
// the border copies, the box filter and window sums, the min/max filters, and later the
// resize kernels, the affine warp and the adaptive thresholds.  Nothing here is exported.
//
// What a family takes from here:
//   checkFilterMode(code)          the validity check of the neighbourhood filters' border
//                                  code (above 255, 0xF0, low nibble 1, 3 or 6; else -225).
//   lowMode(code), Mode            the mode in the low nibble; Mode::Wrap is the periodic
//                                  border, which exists as a copy only.
//   replicateIndex, mirrorIndex,   the index rules: where an outside coordinate x of a line
//   wrapIndex, sourceIndex         of n pixels reads from.  sourceIndex returns -1 for the
//                                  constant mode.
//   Frame, frame(code, roi, mask)  a border code decoded against a mask with its anchor at
//                                  the centre: which sides are read from memory, how many
//                                  pixels each side reaches, and whether the image must be
//                                  staged because it is not larger than the mask.
//   Rows<T, C>                     row fetching for a streaming filter: the pointer of any
//                                  virtual row -ay .. H-1+bottom (a memory row, the row the
//                                  rule maps it to, or null for a constant row), and
//                                  fetchRow(), which writes one row widened by the left and
//                                  right reaches into a buffer, synthesising what is not in
//                                  memory.
// The staging of small images (a bordered copy of the image that a filter then reads with
// every side in memory) is border_stage.hpp, which builds on the copies.
#pragma once

#include <cstdint>
#include <cstring>

#include "frame/base.hpp"

namespace KROI_TIER::border {

enum class Mode : unsigned { Replicate = 1, Mirror = 3, Constant = 6, Wrap = 0x100 };

constexpr unsigned kInMemTop = kroBorderInMemTop, kInMemBottom = kroBorderInMemBottom,
                   kInMemLeft = kroBorderInMemLeft, kInMemRight = kroBorderInMemRight,
                   kInMem = kroBorderInMem;

// The neighbourhood filters' border code: a code above 255 is refused; 0xF0 exactly (every
// side in memory) is accepted whatever the low nibble would say; otherwise the low nibble
// must name replicate, mirror or constant, with any flags.
constexpr KroStatus checkFilterMode(KroiBorderMode code)
{
    if (code > 255) return kroStsBadBorderErr;
    if (code == kInMem) return kroStsOk;
    const unsigned m = code & 15u;
    return (m == 1 || m == 3 || m == 6) ? kroStsOk : kroStsBadBorderErr;
}

constexpr Mode lowMode(KroiBorderMode code) { return Mode(code & 15u); }

// ---- index rules: where coordinate x of a line of n pixels (n >= 1) reads from ----------

// Clamp to the nearest edge pixel.
constexpr int64_t replicateIndex(int64_t x, int64_t n) { return x < 0 ? 0 : (x >= n ? n - 1 : x); }

// Reflection about the edge pixel, which is not repeated, continued with period 2n-2, so that
// a border wider than the line bounces back and forth; a one-pixel line reads pixel 0.
constexpr int64_t mirrorIndex(int64_t x, int64_t n)
{
    if (x >= 0 && x < n) return x;
    if (n == 1) return 0;
    const int64_t p = 2 * n - 2;
    int64_t r = x % p;
    if (r < 0) r += p;
    return r >= n ? p - r : r;
}

// Periodic: a border wider than the line repeats the whole line.
constexpr int64_t wrapIndex(int64_t x, int64_t n)
{
    int64_t r = x % n;
    return r < 0 ? r + n : r;
}

// The rule of `mode` for an outside x; -1 means "the constant".
constexpr int64_t sourceIndex(Mode mode, int64_t x, int64_t n)
{
    switch (mode) {
    case Mode::Replicate: return replicateIndex(x, n);
    case Mode::Mirror: return mirrorIndex(x, n);
    case Mode::Wrap: return wrapIndex(x, n);
    default: return (x >= 0 && x < n) ? x : -1;
    }
}

// ---- a border code decoded for a filter with a centred mask -----------------------------

struct Frame {
    Mode mode;
    bool memTop, memBottom, memLeft, memRight; // the side's pixels are read from memory
    int ax, ay;                                // anchor: (mask - 1) >> 1
    int left, top, right, bottom;              // pixels each side reaches beyond the ROI
    bool allInMem() const { return memTop && memBottom && memLeft && memRight; }
    // Staging is needed when the image is not larger than the mask in both directions and
    // something must be synthesised: the streaming rules then could reach past a side
    // more than once.
    bool stage(KroiSize roi, KroiSize mask) const
    {
        return !allInMem() && !(roi.width > mask.width && roi.height > mask.height);
    }
    int widened(int w) const { return w + left + right; } // W + mw - 1
};

// Decodes `code` (already accepted by checkFilterMode) for `mask`.  0xF0 sets every flag.
inline Frame frame(KroiBorderMode code, KroiSize mask)
{
    Frame f{};
    f.mode = lowMode(code);
    f.memTop = code & kInMemTop;
    f.memBottom = code & kInMemBottom;
    f.memLeft = code & kInMemLeft;
    f.memRight = code & kInMemRight;
    f.ax = (mask.width - 1) >> 1;
    f.ay = (mask.height - 1) >> 1;
    f.left = f.ax;
    f.top = f.ay;
    f.right = mask.width - 1 - f.ax;
    f.bottom = mask.height - 1 - f.ay;
    return f;
}

// ---- row fetching for a streaming filter ------------------------------------------------

// T is the element type, C the elements per pixel (AC4 counts 4; the constant then holds 4
// elements, the caller supplies the fourth).  The image is the ROI at `src` with `step`
// bytes per row, `width` x `height` pixels.
template <class T, int C>
struct Rows {
    const T* src;
    std::ptrdiff_t step;
    int width, height;
    Frame f;
    const T* value; // C elements, used in the constant mode

    const T* memRow(int64_t y) const
    {
        return reinterpret_cast<const T*>(reinterpret_cast<const char*>(src) + y * step);
    }

    // The ROI row that virtual row y (-top .. height-1+bottom) reads, or -1 when it reads
    // the memory above or below the ROI (flagged sides) or is a constant row.
    int64_t roiRow(int64_t y) const
    {
        if (y >= 0 && y < height) return y;
        if ((y < 0 && f.memTop) || (y >= height && f.memBottom)) return -1;
        return sourceIndex(f.mode, y, height);
    }

    // The row that virtual row y reads: a row of the image or of the memory around it, or
    // null when the whole row is the constant.
    const T* row(int64_t y) const
    {
        if ((y < 0 && f.memTop) || (y >= height && f.memBottom)) return memRow(y);
        const int64_t s = roiRow(y);
        return s < 0 ? nullptr : memRow(s);
    }

    // The pixel that column x (outside 0..width-1) of a row reads, given the ROI part of the
    // row `roi` and the memory row `mem` around it (the same pointer unless the ROI part is
    // a saved copy); the constant for the constant mode.
    const T* outside(const T* roi, const T* mem, int64_t x) const
    {
        if ((x < 0 && f.memLeft) || (x >= width && f.memRight)) return mem + x * C;
        const int64_t s = sourceIndex(f.mode, x, width);
        return s < 0 ? value : roi + s * C;
    }

    // Writes columns -left .. width-1+right of a row into `out` (widened(width) pixels).
    // `roi` null means a constant row.
    void fetchRow(const T* roi, const T* mem, T* out) const
    {
        const int total = f.widened(width);
        if (!roi) {
            for (int x = 0; x < total; ++x) std::memcpy(out + x * C, value, sizeof(T) * C);
            return;
        }
        for (int x = -f.left; x < 0; ++x) std::memcpy(out + (x + f.left) * C, outside(roi, mem, x), sizeof(T) * C);
        std::memcpy(out + f.left * C, roi, sizeof(T) * C * std::size_t(width));
        for (int x = width; x < width + f.right; ++x)
            std::memcpy(out + (x + f.left) * C, outside(roi, mem, x), sizeof(T) * C);
    }
    void fetchRow(int64_t y, T* out) const
    {
        const T* r = row(y);
        fetchRow(r, r, out);
    }
};

}  // namespace KROI_TIER::border
