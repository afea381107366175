// Copy: whole images, the 64-bit forms and the managed copy.
#include "convert/copy.hpp"

#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/longform.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::convert {

// Copies of more bytes than this write with non-temporal stores: the destination of a copy
// that large is unlikely to be read again before it would have left the cache anyway.
constexpr int64_t kCopyStreamBytes = 0x100000;
// Contiguous images are copied as one long row while both sides stay below this.
constexpr int kMergeLimit = 32768;
// Row pieces of the 64-bit forms, in elements.
constexpr int64_t kPieceElements = 0x40000000;

void copyRows(const unsigned char* s, std::ptrdiff_t srcStep, unsigned char* d, std::ptrdiff_t dstStep,
              std::size_t rowBytes, int height, bool streaming)
{
    if (streaming) {
        for (int y = 0; y < height; ++y) stream::copyRow(s + y * srcStep, d + y * dstStep, rowBytes);
        stream::fence();
    } else {
        for (int y = 0; y < height; ++y) std::memcpy(d + y * dstStep, s + y * srcStep, rowBytes);
    }
}

// Whole copy of C1, C3 and C4 images (a byte copy) and AC4 images (per pixel, alpha kept).
template <class T, Layout L>
KroStatus copy(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    if constexpr (L == AC4) {
        const stream::Pattern alpha = channelBytes<T, 4>(3);
        rows::each(
            roi.width, roi.height,
            [&](const T* s, T* d, int w) { keepRow<false>(bytes(s), bytes(d), std::size_t(w) * 4 * sizeof(T), alpha); },
            rows::image(pSrc, srcStep), rows::image(pDst, dstStep));
    } else {
        const std::size_t rowBytes = std::size_t(roi.width) * channels(L) * sizeof(T);
        const bool streaming = int64_t(rowBytes) * roi.height > kCopyStreamBytes;
        if (srcStep == dstStep && std::size_t(srcStep) == rowBytes && roi.width < kMergeLimit &&
            roi.height < kMergeLimit)
            copyRows(bytes(pSrc), 0, bytes(pDst), 0, rowBytes * roi.height, 1, streaming);
        else
            copyRows(bytes(pSrc), srcStep, bytes(pDst), dstStep, rowBytes, roi.height, streaming);
    }
    return kroStsOk;
}

// The one-dimensional copy behind the 64-bit forms: `len` pixels.
template <class T, Layout L>
KroStatus copyVector(const T* s, T* d, int len)
{
    KROI_CHECK(check::pointers(s, d));
    KROI_CHECK(check::length(len));
    if constexpr (L == AC4)
        keepRow<false>(bytes(s), bytes(d), std::size_t(len) * 4 * sizeof(T), channelBytes<T, 4>(3));
    else
        std::memcpy(d, s, std::size_t(len) * channels(L) * sizeof(T));
    return kroStsOk;
}

// The 64-bit forms: checks, then row by row, each row in pieces of at most kPieceElements
// elements (whole pixels) through the one-dimensional copy.
template <class T, Layout L>
KroStatus copyL(const T* pSrc, int64_t srcStep, T* pDst, int64_t dstStep, KroiSizeL roi)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    constexpr int64_t piece = kPieceElements / channels(L);
    KroStatus status = kroStsOk;
    for (int64_t y = 0; y < roi.height; ++y) {
        const T* s = longform::row(pSrc, srcStep, y);
        T* d = longform::row(pDst, dstStep, y);
        for (int64_t x = 0; x < roi.width; x += piece) {
            const int64_t left = roi.width - x;
            const int64_t at = x * channels(L);
            status = copyVector<T, L>(s + at, d + at, int(left < piece ? left : piece));
            if (status < 0) return status;
        }
    }
    return status;
}

// Flags of the managed copy: bit 0 asks for non-temporal stores (followed by a fence);
// the other bits are ignored.
constexpr int kManagedStreaming = 1;

KroStatus copyManaged(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roi, int flags)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    const bool streaming = (flags & kManagedStreaming) != 0;
    if (srcStep == roi.width && dstStep == roi.width)
        copyRows(pSrc, 0, pDst, 0, std::size_t(roi.width) * roi.height, 1, streaming);
    else
        copyRows(pSrc, srcStep, pDst, dstStep, std::size_t(roi.width), roi.height, streaming);
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

// The list names layouts as template arguments (convert::AC4), which are read here.
namespace convert = KROI_TIER::convert;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/copy.exports.inc"
}
#undef KROI_EXPORT
