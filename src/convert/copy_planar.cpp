// Interleaved to planar and back (C3P3R, C4P4R, P3C3R, P4C4R).  The planar side is an array
// of C plane pointers sharing one step.
#include "convert/copy.hpp"

#include "convert/copy_kernels.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/longform.hpp"

namespace KROI_TIER::convert {

namespace {

// Images of more bytes than this (on the interleaved side) are written with non-temporal
// stores: planes and interleaved rows that large would only push the caller's data out of
// the cache on their way to memory.
constexpr int64_t kStreamBytes = 0x100000;
// Streaming rows are built in a buffer of this many bytes, then stored out of it.
constexpr int kChunkBytes = 6144;

template <class T, int C>
KroStatus planesPresent(T* const* planes)
{
    for (int c = 0; c < C; ++c)
        if (!planes[c]) return kroStsNullPointerErr;
    return kroStsOk;
}

// Rows and pixels per row of a planar copy: one long row when the planes are contiguous and
// the interleaved rows are too.
struct Walk {
    std::ptrdiff_t width;
    int height;
};
template <class T, int C>
Walk walk(int interleavedStep, int planeStep, KroiSize roi)
{
    if (planeStep == int64_t(roi.width) * int(sizeof(T)) && int64_t(interleavedStep) == int64_t(C) * planeStep)
        return {std::ptrdiff_t(roi.width) * roi.height, 1};
    return {roi.width, roi.height};
}

}  // namespace

// Either direction writes with non-temporal stores above kStreamBytes: the row is converted
// a chunk at a time into a buffer that stays in the first-level cache, and streamed from
// there, so that the kernels need not care about the destination's alignment.
template <class T, int C>
constexpr std::ptrdiff_t kChunk = kChunkBytes / (C * int(sizeof(T)));

template <class T, int C>
bool streams(KroiSize roi)
{
    return int64_t(roi.width) * roi.height * C * int(sizeof(T)) > kStreamBytes;
}

template <class T, int C>
KroStatus copyToPlanes(const T* pSrc, int srcStep, T* const pDst[C], int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK((planesPresent<T, C>(pDst)));
    KROI_CHECK(check::roi(roi));
    const Walk wk = walk<T, C>(srcStep, dstStep, roi);
    const auto split = Planes<T, C>::splitter();
    const bool streaming = streams<T, C>(roi);
    constexpr std::ptrdiff_t chunk = kChunk<T, C>;
    alignas(16) T buffer[C][chunk];
    T* const bufferPlanes[4] = {buffer[0], buffer[C > 1 ? 1 : 0], buffer[C > 2 ? 2 : 0], buffer[C > 3 ? 3 : 0]};
    for (int y = 0; y < wk.height; ++y) {
        const T* s = longform::row(pSrc, srcStep, y);
        T* d[C];
        for (int c = 0; c < C; ++c) d[c] = longform::row(pDst[c], dstStep, y);
        if (!streaming) {
            split(s, d, wk.width);
            continue;
        }
        for (std::ptrdiff_t x = 0; x < wk.width; x += chunk) {
            const std::ptrdiff_t n = wk.width - x < chunk ? wk.width - x : chunk;
            split(s + x * C, bufferPlanes, n);
            for (int c = 0; c < C; ++c) stream::copyRow(buffer[c], d[c] + x, std::size_t(n) * sizeof(T));
        }
    }
    if (streaming) stream::fence();
    return kroStsOk;
}

template <class T, int C>
KroStatus copyFromPlanes(const T* const pSrc[C], int srcStep, T* pDst, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK((planesPresent<const T, C>(pSrc)));
    KROI_CHECK(check::roi(roi));
    const Walk wk = walk<T, C>(dstStep, srcStep, roi);
    const auto merge = Planes<T, C>::merger();
    const bool streaming = streams<T, C>(roi);
    constexpr std::ptrdiff_t chunk = kChunk<T, C>;
    alignas(16) T buffer[chunk * C];
    for (int y = 0; y < wk.height; ++y) {
        const T* s[C];
        for (int c = 0; c < C; ++c) s[c] = longform::row(pSrc[c], srcStep, y);
        T* d = longform::row(pDst, dstStep, y);
        if (!streaming) {
            merge(s, d, wk.width);
            continue;
        }
        for (std::ptrdiff_t x = 0; x < wk.width; x += chunk) {
            const std::ptrdiff_t n = wk.width - x < chunk ? wk.width - x : chunk;
            merge(s, buffer, n);
            stream::copyRow(buffer, d + x * C, std::size_t(n) * C * sizeof(T));
            for (int c = 0; c < C; ++c) s[c] += n;
        }
    }
    if (streaming) stream::fence();
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/copy_planar.exports.inc"
}
#undef KROI_EXPORT
