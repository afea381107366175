// The median filters' API functions: the buffer query, kroiFilterMedianBorder for every type
// and layout, and the weighted-centre 3x3 median of 8u images.
#include "filter/median_filter.hpp"

#include "frame/bind.hpp"

namespace KROI_TIER::filter::median {

KroStatus getBufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* size)
{
    return bufferSize(roi, mask, type, channels, size);
}

// kroiFilterMedianBorder: pointers, steps, ROI, mask, border code, border value.
template <class T, int C, int WC>
KroStatus filterBorder(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, KroiSize mask,
                       KroiBorderMode borderType, const T* pBorderValue, Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pBuffer));
    KROI_CHECK(window::checkStepsRoi(srcStep, dstStep, roi));
    if (mask.width < 1 || mask.height < 1) return kroStsBadMaskErr;
    KROI_CHECK(border::checkFilterMode(borderType));
    T pad[4] = {};
    KROI_CHECK((window::borderValue<T, WC>(borderType, pBorderValue, pad)));
    KROI_CHECK((window::checkWorkArea<T, C>(roi, mask)));
    run<T, C, WC>(pSrc, srcStep, pDst, dstStep, roi, mask, borderType, pad, pBuffer);
    return kroStsOk;
}

// The 3x3 median with the centre counted `weight` times: the element of rank (8+weight-1)/2
// of the eight neighbours and weight copies of the centre.  The neighbours are sorted; those
// below the centre, the centre's copies with the neighbours equal to it, and those above
// then stand in order, so the rank falls in one of the three runs.
KroStatus weightedCenter3x3(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roi, int weight,
                            KroiBorderMode borderType, const Kro8u* pBorderValue, Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pBuffer));
    KROI_CHECK(window::checkStepsRoi(srcStep, dstStep, roi));
    if (weight <= 0) return kroStsBadWeightErr;
    KROI_CHECK(border::checkFilterMode(borderType));
    Kro8u pad[4] = {};
    KROI_CHECK((window::borderValue<Kro8u, 1>(borderType, pBorderValue, pad)));
    KROI_CHECK((window::checkWorkArea<Kro8u, 1>(roi, KroiSize{3, 3})));
    const int64_t k = (int64_t(8) + weight - 1) / 2;
    window::run<Kro8u, 1>(pSrc, srcStep, roi, {3, 3}, borderType, pad, pBuffer, [&](int64_t y, const Kro8u* const* r) {
        Kro8u* d = window::rowAt(pDst, dstStep, y);
        for (int64_t x = 0; x < roi.width; ++x) {
            int s[8] = {r[0][x], r[0][x + 1], r[0][x + 2], r[1][x], r[1][x + 2], r[2][x], r[2][x + 1], r[2][x + 2]};
            std::sort(s, s + 8);
            const int c = r[1][x + 1];
            int lt = 0, le = 0;
            for (int v : s) {
                lt += v < c;
                le += v <= c;
            }
            d[x] = Kro8u(k < lt ? s[k] : k < le + int64_t(weight) ? c : s[k - weight]);
        }
    });
    return kroStsOk;
}

}  // namespace KROI_TIER::filter::median

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/median_filter.exports.inc"
}
#undef KROI_EXPORT
