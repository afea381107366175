// The min/max filters' API functions: the buffer-size query, kroiFilterMaxBorder /
// kroiFilterMinBorder for every type and layout, and the fixed 3x3 64f forms.  Included by
// minmax_max.cpp and minmax_min.cpp, which instantiate one operation each.
//
// The filter is separable.  Every virtual row -ay .. H-1+bottom of the bordered image gets a
// row result (the extreme over mw adjacent pixels, row kernels of minmax_kernels.hpp), and
// each output row is the extreme of mh consecutive row results.  Small masks combine the mh
// rows directly from a ring of row results (three-row masks make output rows in pairs that
// share their middle rows, and with short row windows make the two new row results in the
// same pass); taller ones run the block scheme down the
// columns: the ring then holds the suffix extremes of the last full block of mh rows while
// the next block's rows replace them one by one, and a running prefix of the new block
// completes each window.  Either way the cost per pixel is bounded whatever the mask.
//
// Buffer layout (from the first 32-byte boundary of the caller's buffer, areas as the
// buffer-size formula sizes them):
//   area S    align32(n*S*e)       the widened row being built and the vertical prefix row;
//                                  or the staged (bordered) image when the image is staged;
//   area M    align32(mw*n*e)      unused here, kept so that the formula is the family's;
//   ring      mh * align32(W*n*e)  row results.
// With a one-row mask there is no ring traffic: the widened row may run on into areas M and
// the ring, and results go straight to the destination.
#pragma once

#include <cstddef>
#include <cstring>
#include <utility>

#include "filter/border_rules.hpp"
#include "filter/border_stage.hpp"
#include "filter/minmax_kernels.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::filter::minmax {

inline uint32_t align32(uint32_t v) { return (v + 31u) & ~31u; }

// Element size of a data-type code, 0 for a code this family does not take.
inline uint32_t elementSize(KroDataType t)
{
    switch (t) {
    case kro8u: return 1;
    case kro16u:
    case kro16s: return 2;
    case kro32f: return 4;
    default: return 0;
    }
}

// Pixels of area S: the border rows and columns of the streaming path when the image is
// larger than the mask in both directions, else a whole bordered copy of the image.  U is
// uint32_t for the query (products wrap, the two candidates compared as signed values) and
// __int128 for the exact area the operations check.
template <class U>
inline U areaElements(U W, U H, U mw, U mh)
{
    using S = std::conditional_t<std::is_same_v<U, uint32_t>, int32_t, U>;
    const U ax = (mw - 1) >> 1, ay = (mh - 1) >> 1;
    if (!(mw < W && mh < H)) return (W + mw - 1) * (H + mh - 1);
    U area = (mh - ay - 1 < 1) ? 0 : (W + mw - 1) * (2 * mh - ay - 2);
    if (mw - ax - 1 > 0) {
        const U cols = (H + mh - 1) * (2 * mw - ax - 2);
        if (S(cols) > S(area)) area = cols;
    }
    return area;
}

// The operations' refusal of a call whose work area, the query's formula in exact
// arithmetic, exceeds 2^31 - 1 bytes: the query keeps its stated 32-bit result, which wraps
// there, so a buffer sized from it would be overrun (-6, before anything is read or written).
template <class T, int C>
inline KroStatus checkWorkArea(KroiSize roi, KroiSize mask)
{
    using I = __int128;
    const auto a32 = [](I v) { return (v + 31) / 32 * 32; };
    const I W = roi.width, H = roi.height, mw = mask.width, mh = mask.height, n = C, e = sizeof(T);
    const I total = a32(n * areaElements<I>(W, H, mw, mh) * e) + a32(mw * n * e) + mh * a32(W * n * e) + 32 +
                    (std::is_same_v<T, Kro32f> ? 64 : 0);
    return total > 0x7FFFFFFF ? kroStsBadSizeErr : kroStsOk;
}

// The buffer size, in unsigned 32-bit arithmetic as callers allocate from it (no overflow
// test: sizes that wrap are the caller's to avoid).
inline KroStatus bufferSize(KroiSize roi, KroiSize mask, KroDataType dataType, int numChannels, int* pBufferSize)
{
    KROI_CHECK(check::pointers(pBufferSize));
    KROI_CHECK(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return kroStsBadMaskErr;
    if (numChannels != 1 && numChannels != 3 && numChannels != 4) return kroStsBadChannelCountErr;
    const uint32_t e = elementSize(dataType);
    if (e == 0) return kroStsBadDataTypeErr;

    const uint32_t W = uint32_t(roi.width), H = uint32_t(roi.height);
    const uint32_t mw = uint32_t(mask.width), mh = uint32_t(mask.height), n = uint32_t(numChannels);
    uint32_t S = areaElements<uint32_t>(W, H, mw, mh);
    S *= e;
    uint32_t total = align32(n * S) + align32(mw * n * e) + mh * align32(W * n * e) + 32;
    if (dataType == kro32f) total += 64;
    *pBufferSize = int32_t(total);
    return kroStsOk;
}

// The kernels of one call, chosen once from the mask.
template <class T>
using RowKernel = void (*)(const T* in, T* work, T* out, long width, int m);

// The single-sweep kernels (SSE4.1) by window from 5 pixels: one-channel 8u rows up to 32,
// three-channel 8u and one-channel 32f rows up to 16 (wider windows need so many spans
// there that the passes of rowDoubling are as fast).
template <class Op, class T, int C, int... Ms>
RowKernel<T> spansKernel(int mw, std::integer_sequence<int, Ms...>)
{
    if constexpr (std::is_same_v<T, Kro8u> && C == 1) {
        static constexpr RowKernel<T> table[] = {rowSpans8u<Op, Ms + 5>...};
        return table[mw - 5];
    } else {
        static constexpr RowKernel<T> table[] = {rowSpans<Op, T, C, Ms + 5>...};
        return table[mw - 5];
    }
}

template <class Op, class T, int C, bool kAlpha, bool kKeepAlpha>
RowKernel<T> rowKernel(int mw)
{
    constexpr bool kSpans = (std::is_same_v<T, Kro8u> && (C == 1 || C == 3)) ||
                            (std::is_same_v<T, Kro32f> && C == 1);
    if constexpr (kSpans) {
        constexpr int kWidest = C == 1 && sizeof(T) == 1 ? 32 : 16;
        if (mw >= 5 && mw <= kWidest && cpu::hasSse41())
            return spansKernel<Op, T, C>(mw, std::make_integer_sequence<int, kWidest - 4>{});
    }
    if (mw == 1) return rowDirect<Op, T, C, 1, kKeepAlpha>;
    if (mw == 2) return rowDirect<Op, T, C, 2, kKeepAlpha>;
    if (mw == 3) return rowDirect<Op, T, C, 3, kKeepAlpha>;
    if (mw <= kDoublingMax) return rowDoubling<Op, T, C, kKeepAlpha>;
    return rowBlocks<Op, T, C, kKeepAlpha, kAlpha>;
}

// Masks up to this height combine their rows directly; taller ones use the block scheme.
constexpr int kDirectRowsMax = 4;

using border::rowAt;

// The filter proper, on an image whose border code has been decoded and adjusted.  `rows`
// reads the virtual rows; `staged` says they live in the buffer (the staged image), so the
// row kernels may work in them in place and the first one is free once read.
template <class Op, class T, int C, bool kAlpha>
void run(const border::Rows<T, C>& rows, bool staged, T* dst, std::ptrdiff_t dstStep, KroiSize mask, char* area,
         char* ring, std::size_t slotBytes)
{
    const border::Frame& f = rows.f;
    const long W = rows.width;
    const int H = rows.height, mw = mask.width, mh = mask.height;
    const long n = W * C;
    const bool fetch = !(f.memLeft && f.memRight);
    T* temp = reinterpret_cast<T*>(area);

    // Where each column outside the row reads from, as an element offset from the row's
    // first pixel (kConstant: the border value).  The rule depends on the column only, so it
    // is worked out once per call and a widened row then costs one copy and a few pixels.
    constexpr int kMapMax = 64;
    constexpr long kConstant = -(long(1) << 62);
    long leftMap[kMapMax], rightMap[kMapMax];
    const bool mapped = f.left <= kMapMax && f.right <= kMapMax;
    auto offset = [&](int64_t x) {
        if ((x < 0 && f.memLeft) || (x >= W && f.memRight)) return long(x * C);
        const int64_t s = border::sourceIndex(f.mode, x, W);
        return s < 0 ? kConstant : long(s * C);
    };
    if (fetch && mapped) {
        for (int k = 0; k < f.left; ++k) leftMap[k] = offset(k - f.left);
        for (int k = 0; k < f.right; ++k) rightMap[k] = offset(W + k);
    }
    auto pixel = [&](T* d, const T* r, long off) {
        const T* p = off == kConstant ? rows.value : r + off;
        for (int c = 0; c < C; ++c) d[c] = p[c];
    };
    // The widened row around `r` (null: a constant row) into `out`.
    auto fetchWide = [&](const T* r, T* out) {
        if (!r || !mapped) return rows.fetchRow(r, r, out);
        for (int k = 0; k < f.left; ++k) pixel(out + k * C, r, leftMap[k]);
        std::memcpy(out + f.left * C, r, sizeof(T) * std::size_t(n));
        for (int k = 0; k < f.right; ++k) pixel(out + (f.left + W + k) * C, r, rightMap[k]);
    };
    // Pixels x0 .. x0+count-1 of the widened row around r (not null) into `out`: a short
    // piece at one end of the row.
    auto piece = [&](const T* r, int64_t x0, int64_t count, T* out) {
        for (int64_t x = x0; x < x0 + count; ++x)
            pixel(out + (x - x0) * C, r, x < 0 ? leftMap[x + f.left] : x >= W ? rightMap[x - W] : long(x * C));
    };
    // Row result of virtual row y into `out`.
    auto rowPass = [&](int64_t y, T* out, RowKernel<T> kernel) {
        const T* r = rows.row(y);
        if (r && !fetch) {
            const T* in = r - f.left * C;
            kernel(in, staged ? const_cast<T*>(in) : temp, out, W, mw);
        } else {
            fetchWide(r, temp);
            kernel(temp, temp, out, W, mw);
        }
    };
    auto dstRow = [&](int64_t y) { return rowAt(dst, dstStep, y); };
    auto slot = [&](int i) { return reinterpret_cast<T*>(ring + std::size_t(i) * slotBytes); };

    if (mh == 1) {
        const RowKernel<T> k = rowKernel<Op, T, C, kAlpha, kAlpha>(mw);
        for (int y = 0; y < H; ++y) rowPass(y, dstRow(y), k);
        return;
    }
    const RowKernel<T> k = rowKernel<Op, T, C, kAlpha, false>(mw);
    const int64_t total = int64_t(H) + mh - 1; // row results
    if (mh == 3) {
        // Output rows in pairs, which share their middle two row results; the fourth row
        // result goes after the widened row in area S, or into the staged image's first
        // row, consumed before the fourth row result is made.
        T* r4[4] = {slot(0), slot(1), slot(2),
                    staged ? const_cast<T*>(rows.row(-f.top)) : temp + (W + mw - 1) * C};
        auto R = [&](int64_t r) { return r4[r & 3]; };
        int64_t made = 0;
        auto upTo = [&](int64_t last) {
            for (; made <= last; ++made) rowPass(made - f.top, R(made), k);
        };
        using Fused = void (*)(const T*, const T*, const T*, const T*, T*, T*, T*, T*, long);
        const Fused fused = mw == 1 ? rowsAndPair3<Op, T, C, 1, kAlpha>
                          : mw == 2 ? rowsAndPair3<Op, T, C, 2, kAlpha> : rowsAndPair3<Op, T, C, 3, kAlpha>;
        // Widened copies of the two new rows when they are not read in place: the first and
        // third rows of area S (the second is the fourth ring slot).
        T* wideA = temp;
        T* wideB = temp + 2 * (W + mw - 1) * C;
        auto widened = [&](int64_t y, T* copy) -> const T* {
            const T* r = rows.row(y);
            if (r && !fetch) return r - f.left * C;
            fetchWide(r, copy);
            return copy;
        };
        // Both new rows at once: their row results and the pair of outputs in one pass, over
        // pixels x0 .. x0+count-1 of the output rows.
        auto fusedAt = [&](int64_t y, const T* ra, const T* rb, long x0, long count) {
            const long o = x0 * C;
            fused(ra, rb, R(y) + o, R(y + 1) + o, R(y + 2) + o, R(y + 3) + o, dstRow(y) + o, dstRow(y + 1) + o,
                  count * C);
        };
        // Short rows are cheaper to copy whole than to split into three calls.
        const bool inner = fetch && mapped && W >= mw && n * sizeof(T) > 1024;
        for (int64_t y = 0; y < H; y += 2) {
            if (y + 1 < H && made == y + 2 && mw <= 3) {
                const T* ra = rows.row(y + 2 - f.top);
                const T* rb = rows.row(y + 3 - f.top);
                if (ra && rb && inner) {
                    // The inner outputs read the rows in place; the few at each end, whose
                    // windows reach past a side, read short pieces of the widened rows.
                    fusedAt(y, ra, rb, f.left, W - mw + 1);
                    const long w = mw - 1;
                    for (int side = 0; side < 2; ++side) {
                        const int count = side ? f.right : f.left;
                        const int64_t x0 = side ? W - f.right : 0;
                        if (count == 0) continue;
                        piece(ra, x0 - f.left, count + w, wideA);
                        piece(rb, x0 - f.left, count + w, wideB);
                        fusedAt(y, wideA, wideB, x0, count);
                    }
                } else {
                    fusedAt(y, widened(y + 2 - f.top, wideA), widened(y + 3 - f.top, wideB), 0, W);
                }
                made = y + 4;
            } else if (y + 1 < H) {
                upTo(y + 3);
                columnsPair3<Op, T, kAlpha>(R(y), R(y + 1), R(y + 2), R(y + 3), dstRow(y), dstRow(y + 1), n);
            } else {
                upTo(y + 2);
                const T* w3[3] = {R(y), R(y + 1), R(y + 2)};
                columns<Op, T, kAlpha, 3>(w3, dstRow(y), n);
            }
        }
        return;
    }
    if (mh <= kDirectRowsMax) {
        const T* window[kDirectRowsMax];
        for (int i = 0; i < mh; ++i) window[i] = slot(i);
        using Columns = void (*)(const T* const*, T*, long);
        const Columns col = mh == 2 ? columns<Op, T, kAlpha, 2>
                          : mh == 3 ? columns<Op, T, kAlpha, 3> : columns<Op, T, kAlpha, 4>;
        for (int64_t r = 0; r < total; ++r) {
            rowPass(r - f.top, slot(int(r % mh)), k);
            if (r >= mh - 1) col(window, dstRow(r - mh + 1), n);
        }
        return;
    }
    // The block scheme.  The prefix row follows the widened row in area S, or takes the
    // staged image's first row, which the first row pass has consumed.
    T* prefix = staged ? const_cast<T*>(rows.row(-f.top)) : temp + (W + mw - 1) * C;
    auto suffixes = [&](int64_t y) { // the full block in the ring becomes its suffixes
        for (int i = mh - 2; i >= 1; --i) pair<Op, T, false>(slot(i), slot(i + 1), slot(i), n);
        pair<Op, T, kAlpha>(slot(0), slot(1), dstRow(y), n); // its first window is output y
    };
    for (int i = 0; i < mh; ++i) rowPass(i - f.top, slot(i), k);
    suffixes(0);
    for (int64_t r = mh; r < total; ++r) {
        const int j = int(r % mh);
        rowPass(r - f.top, slot(j), k);
        const int64_t y = r - mh + 1;
        if (j < mh - 1)
            prefixStep<Op, T, kAlpha>(prefix, slot(j), j == 0, slot(j + 1), dstRow(y), n);
        else
            suffixes(y);
    }
}

// kroiFilterMaxBorder (kMax) / kroiFilterMinBorder.  kAlpha: AC4 (C = 4, the fourth channel of the
// destination is never written, the constant has three values).
template <class T, int C, bool kAlpha, bool kMax>
KroStatus filterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, KroiSize mask,
                       KroiBorderMode borderType, const T* pBorderValue, Kro8u* pBuffer)
{
    using Op = Extreme<T, kMax>;
    KROI_CHECK(check::pointers(pSrc, pDst, pBuffer));
    KROI_CHECK(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return kroStsBadMaskErr;
    KROI_CHECK(border::checkFilterMode(borderType));

    // A side the mask does not reach past needs no border: it counts as in memory.
    border::Frame f = border::frame(borderType, mask);
    f.memLeft |= f.left == 0;
    f.memRight |= f.right == 0;
    f.memTop |= f.top == 0;
    f.memBottom |= f.bottom == 0;
    const bool constant = !f.allInMem() && f.mode == border::Mode::Constant;
    if (constant && !pBorderValue) return kroStsNullPointerErr;
    KROI_CHECK((checkWorkArea<T, C>(roi, mask)));

    const long n = long(roi.width) * C;
    if (mask.width == 1 && mask.height == 1) { // a plain copy of the ROI
        for (int y = 0; y < roi.height; ++y) {
            const T* s = rowAt(pSrc, srcStep, y);
            columns<Op, T, kAlpha, 1>(&s, rowAt(pDst, dstStep, y), n);
        }
        return kroStsOk;
    }

    T value[C] = {};
    if (constant)
        for (int c = 0; c < (kAlpha ? 3 : C); ++c) value[c] = pBorderValue[c];

    const int W = roi.width, H = roi.height, mw = mask.width, mh = mask.height;
    const uint32_t e = sizeof(T), nC = C;
    char* base = reinterpret_cast<char*>((reinterpret_cast<uintptr_t>(pBuffer) + 31) & ~uintptr_t(31));
    const uint32_t sBytes = align32(nC * areaElements<uint32_t>(uint32_t(W), uint32_t(H), uint32_t(mw), uint32_t(mh)) * e);
    char* ring = base + sBytes + align32(uint32_t(mw) * nC * e);
    const std::size_t slotBytes = align32(uint32_t(W) * nC * e);

    border::Rows<T, C> rows{pSrc, srcStep, W, H, f, value};
    if (!f.stage(roi, mask)) {
        run<Op, T, C, kAlpha>(rows, false, pDst, dstStep, mask, base, ring, slotBytes);
        return kroStsOk;
    }
    // Staging: the ROI, widened where a side is in memory, with the mode's border copy into
    // a bordered image of (W+mw-1) x (H+mh-1) pixels at the start of area S; the filter then
    // reads it with every side in memory.
    const border::Staged<T> st = border::stage<T, C>(pSrc, srcStep, roi, f, value, reinterpret_cast<T*>(base));
    border::Frame inMem = f;
    inMem.memLeft = inMem.memRight = inMem.memTop = inMem.memBottom = true;
    border::Rows<T, C> stagedRows{st.roi, st.step, W, H, inMem, value};
    run<Op, T, C, kAlpha>(stagedRows, true, pDst, dstStep, mask, base, ring, slotBytes);
    return kroStsOk;
}

// kroiFilterMaxBorderGetBufferSize and kroiFilterMinBorderGetBufferSize: the same query,
// instantiated once per name so that each export has a body of its own.
template <bool kMax>
KroStatus getBufferSize(KroiSize roi, KroiSize mask, KroDataType dataType, int numChannels, int* pBufferSize)
{
    return bufferSize(roi, mask, dataType, numChannels, pBufferSize);
}

// kroiDilate3x3_64f_C1R / kroiErode3x3_64f_C1R: the 3x3 neighbourhood read from memory
// around the ROI (one row above and below, one column each side).
template <bool kMax>
KroStatus fixed3x3(const Kro64f* pSrc, int srcStep, Kro64f* pDst, int dstStep, KroiSize roi)
{
    using Op = Extreme<Kro64f, kMax>;
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::steps(srcStep, dstStep));
    if (roi.width < 1) return kroStsBadSizeErr;
    if (roi.height < 1) return kroStsBadSizeErr;
    KROI_CHECK(check::stepsCoverRow(int64_t(roi.width) * 8 + 16, srcStep));
    KROI_CHECK(check::stepsCoverRow(int64_t(roi.width) * 8, dstStep));
    for (int y = 0; y < roi.height; ++y) {
        const Kro64f* r[3] = {rowAt(pSrc, srcStep, y - 1) - 1, rowAt(pSrc, srcStep, y) - 1,
                              rowAt(pSrc, srcStep, y + 1) - 1};
        rows3x3<Op>(r, rowAt(pDst, dstStep, y), roi.width);
    }
    return kroStsOk;
}

}  // namespace KROI_TIER::filter::minmax
