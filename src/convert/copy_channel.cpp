// Channel copies: one channel to one channel (C3CR, C4CR), one channel out of or into a
// multi-channel image (C3C1R, C4C1R, C1C3R, C1C4R), and three channels between three- and
// four-channel images (C3AC4R, AC4C3R).
//
// All of them are one map: element k < K of source pixel x (pixels SP elements apart) goes to
// element k of destination pixel x (DP elements apart).  The pointers point at the first
// element moved, so a row spans (width - 1) x stride + K elements on each side.
//
// Source and destination may share memory (extracting a channel into the front of the same
// buffer, shifting one channel onto another).  Then the pixels are moved one at a time in an
// order that never overwrites a source pixel before it is read: see copyOverlapping.
#include "convert/copy.hpp"

#include "convert/copy_kernels.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::convert {

namespace {

// Lowest and one-past-highest address of an image's ROI.
struct Range {
    std::intptr_t lo, hi;
};
Range range(const void* p, std::ptrdiff_t step, int height, std::size_t span)
{
    const std::intptr_t a = reinterpret_cast<std::intptr_t>(p), last = a + std::ptrdiff_t(height - 1) * step;
    return a < last ? Range{a, last + std::intptr_t(span)} : Range{last, a + std::intptr_t(span)};
}
bool overlap(Range a, Range b) { return a.lo < b.hi && b.lo < a.hi; }

// Moves every pixel of a map whose source and destination share memory, with the result of
// separate buffers, as long as each image's rows follow one another in memory without
// overlapping (steps of one sign, at least the row's span; any steps for one row).
//
// Walk the pixels in address order; both images' addresses then increase.  A pixel whose
// destination is at or below its source is moved in a forward pass: its write lands below
// every later source pixel.  The other pixels are moved in a backward pass: each write lands
// above every earlier source pixel.  Neither pass can overwrite a source pixel that the other
// still has to read (the destinations of one pass lie below, or above, the sources they
// could meet, because both address sequences rise), so the two passes may run in either
// order; a pixel reads its K elements before writing any.
template <class Map, class T>
void copyOverlapping(const T* s, std::ptrdiff_t ss, T* d, std::ptrdiff_t ds, int w, int h)
{
    const auto srcSpan = std::ptrdiff_t(Map::span(Map::kSrcStride, w) * sizeof(T));
    const auto dstSpan = std::ptrdiff_t(Map::span(Map::kDstStride, w) * sizeof(T));
    const bool rising = h == 1 || (ss >= srcSpan && ds >= dstSpan);
    const bool falling = !rising && ss <= -srcSpan && ds <= -dstSpan;
    if (!rising && !falling) {
        // The rows of one image overlap each other, or the images run opposite ways: no order
        // is right for every pixel, so the rows are moved in their own order.
        rows::each(w, h, Map::row, rows::image(s, ss), rows::image(d, ds));
        return;
    }
    auto src = [&](int t, int x) { return rows::image(s, ss).row(rising ? t : h - 1 - t) + x * Map::kSrcStride; };
    auto dst = [&](int t, int x) { return rows::image(d, ds).row(rising ? t : h - 1 - t) + x * Map::kDstStride; };
    auto below = [](const T* a, const T* b) { return reinterpret_cast<std::uintptr_t>(a) <= reinterpret_cast<std::uintptr_t>(b); };
    for (int t = 0; t < h; ++t)
        for (int x = 0; x < w; ++x)
            if (below(dst(t, x), src(t, x))) Map::pixel(src(t, x), dst(t, x));
    for (int t = h - 1; t >= 0; --t)
        for (int x = w - 1; x >= 0; --x)
            if (!below(dst(t, x), src(t, x))) Map::pixel(src(t, x), dst(t, x));
}

}  // namespace

template <class T, int SP, int DP, int K>
KroStatus copyChannels(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi)
{
    using Map = ChannelMap<T, SP, DP, K>;
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    const int w = roi.width, h = roi.height;
    if (overlap(range(pSrc, srcStep, h, Map::span(SP, w) * sizeof(T)), range(pDst, dstStep, h, Map::span(DP, w) * sizeof(T))))
        copyOverlapping<Map>(pSrc, srcStep, pDst, dstStep, w, h);
    else
        rows::each(w, h, Map::fastRow(), rows::image(pSrc, srcStep), rows::image(pDst, dstStep));
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/copy_channel.exports.inc"
}
#undef KROI_EXPORT
