// The box (mean) filter with border synthesis, its buffer query, and the 64-bit box filter
// that reads its whole neighbourhood from memory.
#include "filter/box_filter.hpp"

#include "frame/bind.hpp"

namespace KROI_TIER::box {

KroStatus filterBoxBufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* size)
{
    return bufferSize(roi, mask, type, channels, size);
}

template <class T, int C, int WC, CheckOrder Order>
KroStatus filterBoxIn(const T* src, int srcStep, T* dst, int dstStep, KroiSize roi, KroiSize mask, KroiBorderMode code,
                    const T* value, Kro8u* buffer)
{
    if constexpr (Order == CheckOrder::BorderFirst) KROI_CHECK(border::checkFilterMode(code));
    KROI_CHECK(check::pointers(src, dst, buffer));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(checkMask(mask));
    if constexpr (Order == CheckOrder::PointersFirst) KROI_CHECK(border::checkFilterMode(code));
    T pad[4] = {};
    KROI_CHECK((borderValue<T, WC>(code, value, pad)));
    KROI_CHECK((checkWorkArea<T, C>(roi, mask)));
    if constexpr (std::is_same_v<T, float>)
        if (mask.width == 1 && mask.height == 1) { // the mean of one pixel is the pixel
            if (src != dst)
                for (int y = 0; y < roi.height; ++y)
                    border::Pixels<T, C, WC>::copy(border::rowAt(dst, dstStep, y), border::rowAt(src, srcStep, y),
                                                   roi.width);
            return kroStsOk;
        }
    const Mean<T> op{1.0f / float(mask.width * mask.height)};
    run<T, T, C, WC>(src, src == dst ? dstStep : srcStep, dst, dstStep, roi, mask, code, pad, buffer, src == dst, op);
    return kroStsOk;
}

// The two check orders, by name for the list.
template <class T, int C, int WC>
KroStatus filterBox(const T* src, int srcStep, T* dst, int dstStep, KroiSize roi, KroiSize mask, KroiBorderMode code,
                    const T* value, Kro8u* buffer)
{
    return filterBoxIn<T, C, WC, CheckOrder::PointersFirst>(src, srcStep, dst, dstStep, roi, mask, code, value, buffer);
}
template <class T, int C, int WC>
KroStatus filterBoxBorderFirst(const T* src, int srcStep, T* dst, int dstStep, KroiSize roi, KroiSize mask,
                               KroiBorderMode code, const T* value, Kro8u* buffer)
{
    return filterBoxIn<T, C, WC, CheckOrder::BorderFirst>(src, srcStep, dst, dstStep, roi, mask, code, value, buffer);
}

// The 64-bit box filter: window (x - anchor.x .. x - anchor.x + mw - 1) and likewise in y,
// all read from memory.  Column sums in double over the window's rows, kept running (the
// entering row's element minus the leaving row's, then added), and window sums along the
// row kept running the same way; the mean is sum * (1.0 / (mw * mh)).  The column sums
// need one row of W + mw - 1 doubles from the core allocator.
KroStatus filterBox64f(const Kro64f* src, int srcStep, Kro64f* dst, int dstStep, KroiSize roi, KroiSize mask,
                       KroiPoint anchor)
{
    KROI_CHECK(check::pointers(src, dst));
    KROI_CHECK(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return kroStsBadSizeErr;
    if (int64_t(srcStep) < (int64_t(roi.width) + mask.width - 1) * 8 || int64_t(dstStep) < int64_t(roi.width) * 8)
        return kroStsBadStepErr;
    const int64_t wb = int64_t(roi.width) + mask.width - 1;
    auto* sums = static_cast<double*>(kroMalloc_L(wb * int64_t(sizeof(double))));
    if (!sums) return kroStsNoMemoryErr;
    const Kro64f* top = border::rowAt(src, srcStep, -int64_t(anchor.y)) - anchor.x;
    for (int64_t x = 0; x < wb; ++x) sums[x] = 0.0;
    for (int k = 0; k < mask.height; ++k) {
        const Kro64f* r = border::rowAt(top, srcStep, k);
        for (int64_t x = 0; x < wb; ++x) sums[x] = sums[x] + r[x];
    }
    const double inv = 1.0 / (double(mask.width) * double(mask.height));
    for (int y = 0; y < roi.height; ++y) {
        Kro64f* d = border::rowAt(dst, dstStep, y);
        double s = 0.0;
        for (int k = 0; k < mask.width; ++k) s = s + sums[k];
        d[0] = s * inv;
        for (int x = 1; x < roi.width; ++x) {
            s = s + (sums[x + mask.width - 1] - sums[x - 1]);
            d[x] = s * inv;
        }
        if (y + 1 < roi.height) {
            const Kro64f* in = border::rowAt(top, srcStep, y + mask.height);
            const Kro64f* out = border::rowAt(top, srcStep, y);
            for (int64_t x = 0; x < wb; ++x) sums[x] = sums[x] + (in[x] - out[x]);
        }
    }
    kroFree(sums);
    return kroStsOk;
}

}  // namespace KROI_TIER::box

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/box_filter.exports.inc"
}
#undef KROI_EXPORT
