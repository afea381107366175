// The window frame of the neighbourhood filters that read every pixel of their mask (median,
// Gaussian, the fixed kernels): for each output row, the mh widened rows of its window, each
// W + mw - 1 pixels from column -ax, read in place where the image and its flagged sides
// are in memory and otherwise fetched through the border rules into a ring in the buffer.
// Images not larger than the mask are staged first (border_stage.hpp), as the box filter
// does, so that no rule reaches past a side more than once.
//
// Buffer (from the caller's pointer rounded up to 64 bytes; the query adds the slack):
//   ring      mh rows of align64((W+mw-1) * n * e) bytes: fetched rows;
//   constant  one such row, the border value across the widened row;
//   table     2 * mh row pointers, rounded up to 64 bytes;
//   staging   align64((W+mw-1) * (H+mh-1) * n * e) when the image is staged, else nothing;
//   extra     what the filter asks for (its own rows, histograms), from a 64-byte boundary.
#pragma once

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "filter/border_rules.hpp"
#include "filter/border_stage.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::filter::window {

using border::rowAt;

inline int64_t align64(int64_t v) { return (v + 63) & ~int64_t(63); }

// Element size of a data-type code, 0 for a code the filters do not take.
inline int elementSize(KroDataType t)
{
    switch (t) {
    case kro8u: return 1;
    case kro16u:
    case kro16s: return 2;
    case kro32f: return 4;
    default: return 0;
    }
}

// The data-type code of an element type.
template <class T>
constexpr KroDataType dataType()
{
    if constexpr (std::is_same_v<T, Kro8u>) return kro8u;
    else if constexpr (std::is_same_v<T, Kro16u>) return kro16u;
    else if constexpr (std::is_same_v<T, Kro16s>) return kro16s;
    else return kro32f;
}

// True when the image must be staged whatever the flags say (the frame decides with them).
inline bool mayStage(KroiSize roi, KroiSize mask) { return !(roi.width > mask.width && roi.height > mask.height); }

// Bytes of the frame's areas for ROI W x H, mask mw x mh, element size e, n elements per
// pixel, plus `extra`, with the 64 bytes of alignment slack.
// Exact in 128 bits (a staged copy of the largest sizes passes 2^64 bytes), then clamped to
// the int64 range, far above any size a query gives.
inline int64_t frameBytes(KroiSize roi, KroiSize mask, int64_t e, int64_t n, int64_t extra)
{
    using I = __int128;
    const auto a64 = [](I v) { return (v + 63) / 64 * 64; };
    const I wb = I(roi.width) + mask.width - 1, hb = I(roi.height) + mask.height - 1;
    const I row = a64(wb * n * e);
    I total = 64 + (I(mask.height) + 1) * row + a64(16 * I(mask.height)) + a64(extra);
    if (mayStage(roi, mask)) total += a64(wb * hb * n * e);
    return total > I(INT64_MAX) ? INT64_MAX : int64_t(total);
}

// An operation's own refusal (-6), before anything is read or written, of a call whose frame
// alone needs more than 2^31 - 1 bytes: the query gives -232 there, so no buffer can have
// been sized for it.
template <class T, int C>
KroStatus checkWorkArea(KroiSize roi, KroiSize mask)
{
    return frameBytes(roi, mask, sizeof(T), C, 0) > 0x7FFFFFFF ? kroStsBadSizeErr : kroStsOk;
}

// The common query: null pBufferSize -8, ROI -6, mask -33 (`maskOk` false), data type -59,
// channel count (1, 3, 4) -53, a total above 2^31-1 -232.  `extra(e, n)` gives the
// filter's own bytes.
template <class Extra>
KroStatus bufferSize(KroiSize roi, KroiSize mask, bool maskOk, KroDataType type, int channels, int* size, Extra&& extra)
{
    KROI_CHECK(check::pointers(size));
    KROI_CHECK(check::roi(roi));
    if (!maskOk) return kroStsBadMaskErr;
    const int e = elementSize(type);
    if (e == 0) return kroStsBadDataTypeErr;
    if (channels != 1 && channels != 3 && channels != 4) return kroStsBadChannelCountErr;
    const int64_t total = frameBytes(roi, mask, e, channels, extra(int64_t(e), int64_t(channels)));
    if (total > 0x7FFFFFFF) return kroStsSizeLimitErr;
    *size = int(total);
    return kroStsOk;
}

// The checks every filter of the frame makes after its own pointers: steps -16, ROI -6; the
// mask and the border code follow in the filter.
inline KroStatus checkStepsRoi(int srcStep, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::steps(srcStep, dstStep));
    return check::roi(roi);
}

// The constant mode needs its value: -8 when it is null (only when the code is not 0xF0).
// The WC values are copied into `pad` (C elements, an AC4 alpha left 0).
template <class T, int WC>
KroStatus borderValue(KroiBorderMode code, const T* value, T* pad)
{
    if (code == border::kInMem || border::lowMode(code) != border::Mode::Constant) return kroStsOk;
    KROI_CHECK(check::pointers(value));
    for (int k = 0; k < WC; ++k) pad[k] = value[k];
    return kroStsOk;
}

// Where the filter's own area starts in the buffer (64-byte aligned).
template <class T, int C>
char* extraArea(void* buffer, KroiSize roi, KroiSize mask)
{
    const int64_t wb = int64_t(roi.width) + mask.width - 1, hb = int64_t(roi.height) + mask.height - 1;
    const int64_t row = align64(wb * C * int64_t(sizeof(T)));
    char* base = reinterpret_cast<char*>((reinterpret_cast<uintptr_t>(buffer) + 63) & ~uintptr_t(63));
    char* p = base + (int64_t(mask.height) + 1) * row + align64(16 * int64_t(mask.height));
    if (mayStage(roi, mask)) p += align64(wb * hb * C * int64_t(sizeof(T)));
    return p;
}

// The rows of each output row's window.  `each(y, rows)` is called for y = 0 .. H-1 in
// order with rows[0 .. mh-1] the widened rows y-ay .. y-ay+mh-1, each pointing at column
// -ax; every pointer stays valid until the next call.  `value` holds C elements.
template <class T, int C, class Each>
void run(const T* src, std::ptrdiff_t srcStep, KroiSize roi, KroiSize mask, KroiBorderMode code, const T* value,
         void* buffer, Each&& each)
{
    const int64_t wb = int64_t(roi.width) + mask.width - 1;
    const int64_t rowBytes = align64(wb * C * int64_t(sizeof(T)));
    const int mh = mask.height;
    char* ring = reinterpret_cast<char*>((reinterpret_cast<uintptr_t>(buffer) + 63) & ~uintptr_t(63));
    T* constant = reinterpret_cast<T*>(ring + int64_t(mh) * rowBytes);
    const T** cur = reinterpret_cast<const T**>(ring + (int64_t(mh) + 1) * rowBytes);
    const T** win = cur + mh;
    char* stageArea = reinterpret_cast<char*>(cur) + align64(16 * int64_t(mh));

    border::Frame f = border::frame(code, mask);
    // A side the mask does not reach past needs no border: it counts as in memory.
    f.memLeft |= f.left == 0;
    f.memRight |= f.right == 0;
    f.memTop |= f.top == 0;
    f.memBottom |= f.bottom == 0;
    border::Rows<T, C> rows{src, srcStep, roi.width, roi.height, f, value};
    if (!f.allInMem() && mayStage(roi, mask)) {
        const border::Staged<T> s = border::stage<T, C>(src, srcStep, roi, f, value, reinterpret_cast<T*>(stageArea));
        border::Frame all = f;
        all.memLeft = all.memRight = all.memTop = all.memBottom = true;
        rows = border::Rows<T, C>{s.roi, s.step, roi.width, roi.height, all, value};
    }
    const bool fetch = !(rows.f.memLeft && rows.f.memRight);
    if (!rows.f.allInMem() && rows.f.mode == border::Mode::Constant) rows.fetchRow(nullptr, nullptr, constant);

    auto widened = [&](int64_t v, int slot) -> const T* {
        const T* r = rows.row(v);
        if (!r) return constant;
        if (!fetch) return r - rows.f.left * C;
        T* out = reinterpret_cast<T*>(ring + int64_t(slot) * rowBytes);
        rows.fetchRow(r, r, out);
        return out;
    };
    for (int k = 0; k < mh; ++k) cur[k] = widened(k - rows.f.top, k);
    for (int64_t y = 0; y < roi.height; ++y) {
        const int first = int(y % mh);
        for (int k = 0; k < mh; ++k) win[k] = cur[first + k < mh ? first + k : first + k - mh];
        each(y, static_cast<const T* const*>(win));
        if (y + 1 < roi.height) cur[first] = widened(y + mh - rows.f.top, first);
    }
}

}  // namespace KROI_TIER::filter::window
