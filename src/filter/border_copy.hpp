// The border copies: a source image copied into a larger destination with a frame of
// synthesised pixels around it, by the rules of border_rules.hpp.  The copies move bits and
// never convert, so each works on the unsigned type of the element's size (16u and 16s share
// one body, 32s and 32f another; a 32f constant travels as its bit pattern).
//
// C is the number of elements per pixel and WC the number written: 3 for AC4, whose alpha
// is left as the destination held it everywhere, border and copied source alike.
//
// The kernels here have no checks; the exported forms in border_copy.cpp check first.  The
// staging of small images for the filters (border_stage.hpp) calls the kernels directly.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "filter/border_rules.hpp"

namespace KROI_TIER::border {

template <class T>
inline T* rowAt(T* p, int64_t step, int64_t y)
{
    using Byte = std::conditional_t<std::is_const_v<T>, const char, char>;
    return reinterpret_cast<T*>(reinterpret_cast<Byte*>(p) + y * step);
}

// Pixel moves of one layout.
template <class B, int C, int WC>
struct Pixels {
    // n pixels from s to d; the regions may overlap (a caller's source and destination may).
    static void copy(B* d, const B* s, int64_t n)
    {
        if constexpr (C == WC) {
            std::memmove(d, s, std::size_t(n) * C * sizeof(B));
        } else {
            if (d <= s) {
                for (int64_t i = 0; i < n; ++i)
                    for (int c = 0; c < WC; ++c) d[i * C + c] = s[i * C + c];
            } else {
                for (int64_t i = n - 1; i >= 0; --i)
                    for (int c = 0; c < WC; ++c) d[i * C + c] = s[i * C + c];
            }
        }
    }
    // n copies of the pixel px.
    static void fill(B* d, const B* px, int64_t n)
    {
        if constexpr (C == 1 && sizeof(B) == 1) {
            std::memset(d, px[0], std::size_t(n));
        } else {
            B v[C];
            for (int c = 0; c < WC; ++c) v[c] = px[c];
            for (int64_t i = 0; i < n; ++i)
                for (int c = 0; c < WC; ++c) d[i * C + c] = v[c];
        }
    }
};

// Geometry of one copy: source extent, destination extent and where the source lands.
struct CopyShape {
    int64_t sw, sh, dw, dh, top, left;
    int64_t right() const { return dw - sw - left; }
    int64_t bottom() const { return dh - sh - top; }
};

// The frame of one destination row around the source row `s`, which the destination row
// `d` holds at column `left` (copied there first unless `inPlace`).
template <class B, int C, int WC>
void frameRow(B* d, const B* s, const CopyShape& g, Mode mode, const B* value, bool inPlace)
{
    using P = Pixels<B, C, WC>;
    const int64_t right = g.right();
    B* mid = d + g.left * C;
    if (!inPlace) P::copy(mid, s, g.sw);
    switch (mode) {
    case Mode::Constant:
        P::fill(d, value, g.left);
        P::fill(mid + g.sw * C, value, right);
        break;
    case Mode::Replicate:
        P::fill(d, s, g.left);
        P::fill(mid + g.sw * C, s + (g.sw - 1) * C, right);
        break;
    case Mode::Mirror:
        if (g.left < g.sw && right < g.sw) { // one reflection: the neighbours in reverse order
            for (int64_t k = 1; k <= g.left; ++k)
                for (int c = 0; c < WC; ++c) mid[-k * C + c] = s[k * C + c];
            for (int64_t k = 1; k <= right; ++k)
                for (int c = 0; c < WC; ++c) mid[(g.sw - 1 + k) * C + c] = s[(g.sw - 1 - k) * C + c];
            break;
        }
        [[fallthrough]];
    default:
        for (int64_t x = -g.left; x < 0; ++x) P::copy(mid + x * C, s + sourceIndex(mode, x, g.sw) * C, 1);
        for (int64_t x = g.sw; x < g.sw + right; ++x)
            P::copy(mid + x * C, s + sourceIndex(mode, x, g.sw) * C, 1);
    }
}

// Out of place.  Replicate: each source row with its left and right parts, then the bottom
// rows as copies of the last row written, then the top rows as copies of the first.
// Constant: the top rows, the source rows with their parts, the bottom rows.  Mirror and
// wrap: destination rows top to bottom, each built from the source row its rule names.
template <class B, int C, int WC>
void copyBorder(const B* src, int64_t srcStep, B* dst, int64_t dstStep, const CopyShape& g, Mode mode,
                const B* value)
{
    using P = Pixels<B, C, WC>;
    if (mode == Mode::Replicate || mode == Mode::Constant) {
        for (int64_t y = 0; y < g.sh; ++y)
            frameRow<B, C, WC>(rowAt(dst, dstStep, g.top + y), rowAt(src, srcStep, y), g, mode, value, false);
        for (int64_t y = g.top + g.sh; y < g.dh; ++y) {
            if (mode == Mode::Constant)
                P::fill(rowAt(dst, dstStep, y), value, g.dw);
            else
                P::copy(rowAt(dst, dstStep, y), rowAt(dst, dstStep, g.top + g.sh - 1), g.dw);
        }
        for (int64_t y = 0; y < g.top; ++y) {
            if (mode == Mode::Constant)
                P::fill(rowAt(dst, dstStep, y), value, g.dw);
            else
                P::copy(rowAt(dst, dstStep, y), rowAt(dst, dstStep, g.top), g.dw);
        }
        return;
    }
    for (int64_t y = 0; y < g.dh; ++y)
        frameRow<B, C, WC>(rowAt(dst, dstStep, y), rowAt(src, srcStep, sourceIndex(mode, y - g.top, g.sh)), g,
                           mode, value, false);
}

// In place: `p` is the source's first pixel inside the destination.  The left and right
// parts of every source row first, then the top and bottom rows as whole-row copies of the
// finished rows their rule names (the constant fills them).
template <class B, int C, int WC>
void copyBorderInPlace(B* p, int64_t step, const CopyShape& g, Mode mode, const B* value)
{
    using P = Pixels<B, C, WC>;
    B* d0 = rowAt(p, step, -g.top) - g.left * C;
    for (int64_t y = 0; y < g.sh; ++y)
        frameRow<B, C, WC>(rowAt(d0, step, g.top + y), rowAt(p, step, y), g, mode, value, true);
    auto outer = [&](int64_t y) {
        B* d = rowAt(d0, step, y);
        if (mode == Mode::Constant)
            P::fill(d, value, g.dw);
        else
            P::copy(d, rowAt(d0, step, g.top + sourceIndex(mode, y - g.top, g.sh)), g.dw);
    };
    for (int64_t y = 0; y < g.top; ++y) outer(y);
    for (int64_t y = g.top + g.sh; y < g.dh; ++y) outer(y);
}

}  // namespace KROI_TIER::border
