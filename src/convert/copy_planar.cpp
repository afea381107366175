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

// Streaming rows are written by a kernel that streams itself when the destinations are 16-byte
// aligned (rows and planes alike); otherwise each row is converted a chunk at a time into a
// buffer that stays in the first-level cache and streamed from there.
template <class T, int C>
constexpr std::ptrdiff_t kChunk = kChunkBytes / (C * int(sizeof(T)));

bool aligned16(const void* p, int step, int height)
{
    return (reinterpret_cast<std::uintptr_t>(p) & 15) == 0 && (height == 1 || (step & 15) == 0);
}

// How a planar copy writes: the kernel, and whether it streams through the buffer.
template <class Kernel>
struct Plan {
    Kernel kernel;
    bool streaming, viaBuffer;
};
template <class Kernel>
Plan<Kernel> plan(bool streaming, Kernel cached, Kernel streamer, bool destinationsAligned)
{
    if (!streaming) return {cached, false, false};
    if (streamer && destinationsAligned) return {streamer, true, false};
    return {cached, true, true};
}

}  // namespace

// Planes are streamed only when they outgrow the largest cache (and 1 MiB): below that they
// stay in the cache for whoever reads them next.
template <class T, int C>
KroStatus copyToPlanes(const T* pSrc, int srcStep, T* const pDst[C], int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK((planesPresent<T, C>(pDst)));
    KROI_CHECK(check::roi(roi));
    const Walk wk = walk<T, C>(srcStep, dstStep, roi);
    bool aligned = true;
    for (int c = 0; c < C; ++c) aligned = aligned && aligned16(pDst[c], dstStep, wk.height);
    const auto p = plan(stream::beyondCache(int64_t(roi.width) * roi.height * C * int(sizeof(T)), kStreamBytes),
                        Planes<T, C>::splitter(), Planes<T, C>::streamingSplitter(), aligned);
    constexpr std::ptrdiff_t chunk = kChunk<T, C>;
    alignas(16) T buffer[C][chunk];
    T* const bufferPlanes[4] = {buffer[0], buffer[C > 1 ? 1 : 0], buffer[C > 2 ? 2 : 0], buffer[C > 3 ? 3 : 0]};
    for (int y = 0; y < wk.height; ++y) {
        const T* s = longform::row(pSrc, srcStep, y);
        T* d[C];
        for (int c = 0; c < C; ++c) d[c] = longform::row(pDst[c], dstStep, y);
        if (!p.viaBuffer) {
            p.kernel(s, d, wk.width);
            continue;
        }
        for (std::ptrdiff_t x = 0; x < wk.width; x += chunk) {
            const std::ptrdiff_t n = wk.width - x < chunk ? wk.width - x : chunk;
            p.kernel(s + x * C, bufferPlanes, n);
            for (int c = 0; c < C; ++c) stream::copyRow(buffer[c], d[c] + x, std::size_t(n) * sizeof(T));
        }
    }
    if (p.streaming) stream::fence();
    return kroStsOk;
}

// Interleaved images above 1 MiB are streamed.
template <class T, int C>
KroStatus copyFromPlanes(const T* const pSrc[C], int srcStep, T* pDst, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK((planesPresent<const T, C>(pSrc)));
    KROI_CHECK(check::roi(roi));
    const Walk wk = walk<T, C>(dstStep, srcStep, roi);
    const auto p = plan(int64_t(roi.width) * roi.height * C * int(sizeof(T)) > kStreamBytes, Planes<T, C>::merger(),
                        Planes<T, C>::streamingMerger(), aligned16(pDst, dstStep, wk.height));
    constexpr std::ptrdiff_t chunk = kChunk<T, C>;
    alignas(16) T buffer[chunk * C];
    for (int y = 0; y < wk.height; ++y) {
        const T* s[C];
        for (int c = 0; c < C; ++c) s[c] = longform::row(pSrc[c], srcStep, y);
        T* d = longform::row(pDst, dstStep, y);
        if (!p.viaBuffer) {
            p.kernel(s, d, wk.width);
            continue;
        }
        for (std::ptrdiff_t x = 0; x < wk.width; x += chunk) {
            const std::ptrdiff_t n = wk.width - x < chunk ? wk.width - x : chunk;
            p.kernel(s, buffer, n);
            stream::copyRow(buffer, d + x * C, std::size_t(n) * C * sizeof(T));
            for (int c = 0; c < C; ++c) s[c] += n;
        }
    }
    if (p.streaming) stream::fence();
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/copy_planar.exports.inc"
}
#undef KROI_EXPORT
