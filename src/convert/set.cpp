// Set: fill an image, or some of its channels, with constants.
//
// A fill is a byte pattern of period 48 (stream::Pattern), repeated from the start of each
// row: the definition is d[x * C + c] = value[c], and the pattern holds exactly those bytes.
#include "convert/copy.hpp"

#include <algorithm>

#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::convert {

// Fills of more bytes than this may stream: the core library is asked for its largest cache,
// and a fill at least that large bypasses it.  A smaller fill stays in cache, where its
// reader will find it.
constexpr int64_t kSetStreamBytes = 0x80000;

// A fill that is not one repeated byte stores its first kSeed bytes from the pattern and
// copies the rest from what it has written, in pieces that double up to kPiece bytes: both
// multiples of the pattern's period (48), and kPiece small enough to stay in the first-level
// cache while it is copied again and again.
constexpr std::size_t kSeed = 48 * 64;
constexpr std::size_t kPiece = 48 * 512;
// Rows shorter than this are stored from the pattern whole: a library call per row would
// cost more than it saves.
constexpr std::size_t kShortRow = 1024;

// Ordinary stores of a pattern that is not one repeated byte.  memcpy does the copying with
// the widest stores the processor has, as memset does its fill.  Every copy starts at a
// multiple of the period from a row start, so it lands in phase.
void fillCached(unsigned char* d, std::ptrdiff_t step, std::size_t rowBytes, int height, const stream::Pattern& p)
{
    const bool rowsApart = step >= std::ptrdiff_t(rowBytes) || -step >= std::ptrdiff_t(rowBytes);
    if (rowBytes < kShortRow || !rowsApart) {
        for (int y = 0; y < height; ++y) stream::fillRow<stream::storeCached>(d + y * step, rowBytes, p);
        return;
    }
    std::size_t have = rowBytes < kSeed ? rowBytes : kSeed;
    stream::fillRow<stream::storeCached>(d, have, p);
    while (have < rowBytes) {
        const std::size_t n = std::min({have, kPiece, rowBytes - have});
        std::memcpy(d + have, d, n);
        have += n;
    }
    const std::size_t piece = std::min(rowBytes, kPiece);
    for (int y = 1; y < height; ++y)
        for (std::size_t x = 0; x < rowBytes; x += piece) std::memcpy(d + y * step + x, d, std::min(piece, rowBytes - x));
}

// Fills `height` rows of `rowBytes` bytes with the pattern.
void fillRows(unsigned char* d, std::ptrdiff_t step, std::size_t rowBytes, int height, const stream::Pattern& p)
{
    const int64_t total = int64_t(rowBytes) * height;
    if (step == std::ptrdiff_t(rowBytes)) rowBytes = step = total, height = 1;  // contiguous: one row
    if (stream::beyondCache(total, kSetStreamBytes)) {
        for (int y = 0; y < height; ++y) stream::fillRow<stream::storeStreaming>(d + y * step, rowBytes, p);
        stream::fence();
    } else if (p.uniform()) {
        for (int y = 0; y < height; ++y) std::memset(d + y * step, p.bytes[0], rowBytes);
    } else {
        fillCached(d, step, rowBytes, height, p);
    }
}

// Rows of n bytes where only the bytes not in `keep` take the pattern's values.
void fillKeepRows(unsigned char* d, std::ptrdiff_t step, std::size_t n, int height, const stream::Pattern& value,
                  const stream::Pattern& keep)
{
    for (int y = 0; y < height; ++y) keepRow<true>(value.bytes, d + y * step, n, keep);
}

// C1 takes its value, the other layouts an array of written(L) values.
template <class T, Layout L>
using Value = std::conditional_t<L == C1, T, const T*>;

template <class T, Layout L>
stream::Pattern pattern(Value<T, L> value)
{
    T px[channels(L)] = {};
    if constexpr (L == C1)
        px[0] = value;
    else
        for (int c = 0; c < written(L); ++c) px[c] = value[c];
    return stream::Pattern::of(px, sizeof px);
}

// Whole fill.
template <class T, Layout L>
KroStatus set(Value<T, L> value, T* pDst, int dstStep, KroiSize roi)
{
    if constexpr (L == C1)
        KROI_CHECK(check::pointers(pDst));
    else
        KROI_CHECK(check::pointers(value, pDst));
    KROI_CHECK(check::roi(roi));
    const stream::Pattern p = pattern<T, L>(value);
    const std::size_t rowBytes = std::size_t(roi.width) * channels(L) * sizeof(T);
    if constexpr (L == AC4)
        fillKeepRows(bytes(pDst), dstStep, rowBytes, roi.height, p, channelBytes<T, 4>(3));
    else
        fillRows(bytes(pDst), dstStep, rowBytes, roi.height, p);
    return kroStsOk;
}

// Masked fill: pixels whose mask byte is non-zero take the values.
template <class T, Layout L>
KroStatus setMasked(Value<T, L> value, T* pDst, int dstStep, KroiSize roi, const Kro8u* pMask, int maskStep)
{
    if constexpr (L == C1)
        KROI_CHECK(check::pointers(pDst, pMask));
    else
        KROI_CHECK(check::pointers(value, pDst, pMask));
    KROI_CHECK(check::roi(roi));
    const stream::Pattern p = pattern<T, L>(value);
    rows::each(
        roi.width, roi.height, [&](T* d, const Kro8u* m, int w) { maskedRow<T, L>(nullptr, d, m, w, &p); },
        rows::image(pDst, dstStep), rows::image(pMask, maskStep));
    return kroStsOk;
}

// One channel of a C-channel image (the pointer at that channel) takes the value.  A row
// spans from the first pixel's channel to the last pixel's, the other channels between them
// keeping their values.
template <class T, int C>
KroStatus setChannel(T value, T* pDst, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pDst));
    KROI_CHECK(check::roi(roi));
    T px[C] = {value};
    const std::size_t span = (std::size_t(roi.width - 1) * C + 1) * sizeof(T);
    fillKeepRows(bytes(pDst), dstStep, span, roi.height, stream::Pattern::of(px, sizeof px), otherBytes<T, C>(0));
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

// The list names layouts as template arguments (convert::AC4), which are read here.
namespace convert = KROI_TIER::convert;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/set.exports.inc"
}
#undef KROI_EXPORT
