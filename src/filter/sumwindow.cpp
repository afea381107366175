// Window sums: the box filter's frame storing the sum itself, and the one-dimensional sums
// along a row or a column that read their neighbourhood from memory.
#include "filter/box_filter.hpp"

#include "frame/bind.hpp"

namespace KROI_TIER::box {

KroStatus sumWindowBufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* size)
{
    return bufferSize(roi, mask, type, channels, size);
}

// Checks as the box filter's pointers-first members.  The sums are not an in-place
// operation, but a 32f image summed onto itself is served by the box filter's in-place
// path rather than left to read its own results.
template <class T, class Out, int C, int WC>
KroStatus sumWindow(const T* src, int srcStep, Out* dst, int dstStep, KroiSize roi, KroiSize mask,
                    KroiBorderMode code, const T* value, Kro8u* buffer)
{
    KROI_CHECK(check::pointers(src, dst, buffer));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(checkMask(mask));
    KROI_CHECK(border::checkFilterMode(code));
    T pad[4] = {};
    KROI_CHECK((borderValue<T, WC>(code, value, pad)));
    KROI_CHECK((checkWorkArea<T, C>(roi, mask)));
    bool inPlace = false;
    if constexpr (std::is_same_v<T, Out>) inPlace = src == dst;
    run<T, Out, C, WC>(src, inPlace ? dstStep : srcStep, dst, dstStep, roi, mask, code, pad, buffer, inPlace,
                       Sum<Out>{});
    return kroStsOk;
}

// One-dimensional checks: pointers, mask, anchor (no rows is then success, nothing to do),
// width.
inline KroStatus checkLine(const void* src, const void* dst, KroiSize roi, int mask, int anchor)
{
    KROI_CHECK(check::pointers(src, dst));
    if (mask < 1) return kroStsBadMaskErr;
    if (anchor < 0 || anchor >= mask) return kroStsBadAnchorErr;
    if (roi.height < 1) return kroStsOk;
    return check::roi(roi);
}

// Output x sums source x - anchor .. x - anchor + mask - 1 along the row, by the window
// sequence of the box filter (one float chain per channel).
template <class T, int C>
KroStatus sumWindowRow(const T* src, int srcStep, Kro32f* dst, int dstStep, KroiSize roi, int mask, int anchor)
{
    KROI_CHECK(checkLine(src, dst, roi, mask, anchor));
    if (roi.height < 1) return kroStsOk;
    for (int y = 0; y < roi.height; ++y) {
        Emit<Kro32f, float, C, C, Sum<Kro32f>> emit{border::rowAt(dst, dstStep, y), Sum<Kro32f>{}};
        windowRow<float, C>(border::rowAt(src, srcStep, y) - int64_t(anchor) * C, roi.width, mask, emit);
    }
    return kroStsOk;
}

// Output row y sums source rows y - anchor .. y - anchor + mask - 1: the first row from +0
// top to bottom, every later one as the row above it plus (entering - leaving), so the
// destination row above serves as the running sum.
template <class T, int C>
KroStatus sumWindowColumn(const T* src, int srcStep, Kro32f* dst, int dstStep, KroiSize roi, int mask, int anchor)
{
    KROI_CHECK(checkLine(src, dst, roi, mask, anchor));
    if (roi.height < 1) return kroStsOk;
    const int64_t n = int64_t(roi.width) * C;
    const T* top = border::rowAt(src, srcStep, -int64_t(anchor));
    std::memset(dst, 0, sizeof(float) * std::size_t(n));
    for (int k = 0; k < mask; ++k) addElems<T, float>(dst, border::rowAt(top, srcStep, k), n);
    for (int y = 1; y < roi.height; ++y) {
        float* d = border::rowAt(dst, dstStep, y);
        std::memcpy(d, border::rowAt(dst, dstStep, y - 1), sizeof(float) * std::size_t(n));
        slideElems<T, float>(d, border::rowAt(top, srcStep, y - 1 + mask), border::rowAt(top, srcStep, y - 1), n);
    }
    return kroStsOk;
}

}  // namespace KROI_TIER::box

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/sumwindow.exports.inc"
}
#undef KROI_EXPORT
