// Interleaved to planar and back (C3P3R, C4P4R, P3C3R, P4C4R).  The planar side is an array
// of C plane pointers sharing one step.
#include "convert/copy.hpp"

#include "convert/copy_kernels.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/longform.hpp"

namespace KROI_TIER::convert {

namespace {

// Interleaved rows of more bytes than this are written with non-temporal stores.
constexpr int64_t kMergeStreamBytes = 0x100000;
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

template <class T, int C>
KroStatus copyToPlanes(const T* pSrc, int srcStep, T* const pDst[C], int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK((planesPresent<T, C>(pDst)));
    KROI_CHECK(check::roi(roi));
    const Walk wk = walk<T, C>(srcStep, dstStep, roi);
    const auto split = Planes<T, C>::splitter();
    for (int y = 0; y < wk.height; ++y) {
        T* d[C];
        for (int c = 0; c < C; ++c) d[c] = longform::row(pDst[c], dstStep, y);
        split(longform::row(pSrc, srcStep, y), d, wk.width);
    }
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
    const bool streaming = int64_t(roi.width) * roi.height * C * int(sizeof(T)) > kMergeStreamBytes;
    constexpr std::ptrdiff_t chunk = kChunkBytes / (C * sizeof(T));
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
