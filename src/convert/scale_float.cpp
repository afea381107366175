// Scale between 8u and a float range [vMin, vMax] given by the caller.  The range is checked
// first, before the pointers.  All float arithmetic runs rounded to nearest, set for the call.
#include "convert/scale_stream.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::cvt {

namespace {

// The group's checks, in order: an empty range (NaN included) -12, then pointers, size and
// steps.  Called inside the caller's rounding scope, since the range test raises flags too.
template <class S, class D>
KroStatus checks(const S* pSrc, int srcStep, const D* pDst, int dstStep, KroiSize roi, Kro32f vMin, Kro32f vMax)
{
    KROI_CHECK(vMax - vMin > 0.0f ? kroStsOk : kroStsEmptyScaleRangeErr);
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    return check::steps(srcStep, dstStep);
}

// Both steps equal the row's bytes and the pixel count stays below 2^31 - 1.
template <Layout L, class S, class D>
bool oneRowScale(int ss, int ds, KroiSize roi)
{
    return contiguous<L, S, D>(ss, ds, roi) && int64_t(roi.width) * roi.height < 0x7FFFFFFF;
}

}  // namespace

template <Layout L>
KroStatus scale8u32f(const Kro8u* pSrc, int srcStep, Kro32f* pDst, int dstStep, KroiSize roiSize, Kro32f vMin,
                     Kro32f vMax)
{
    RoundingScope scope(RoundingScope::kNearest);
    underScope(vMin, vMax);
    KROI_CHECK(checks(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax));
    const Scale8u32f op{(vMax - vMin) / 255.0f, vMin};
    run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRowScale<L, Kro8u, Kro32f>(srcStep, dstStep, roiSize), op,
           storesFor<L, Kro8u, Kro32f>(roiSize));
    return kroStsOk;
}

template <Layout L>
KroStatus scale32f8u(const Kro32f* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, Kro32f vMin,
                     Kro32f vMax)
{
    RoundingScope scope(RoundingScope::kNearest);
    underScope(vMin, vMax);
    KROI_CHECK(checks(pSrc, srcStep, pDst, dstStep, roiSize, vMin, vMax));
    const float factor = 255.0f / (vMax - vMin), offset = -vMin * factor;
    const bool oneRow = oneRowScale<L, Kro32f, Kro8u>(srcStep, dstStep, roiSize);
    const float top = vMax * factor + offset;  // what vMax maps to, before rounding
    if (top > 254.5f && std::isfinite(factor) && std::isfinite(offset))
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, Scale32f8u<false>{vMin, vMax, factor, offset});
    else
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, Scale32f8u<true>{vMin, vMax, factor, offset});
    return kroStsOk;
}

}  // namespace KROI_TIER::cvt

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/scale_float.exports.inc"
}
#undef KROI_EXPORT
