// Convert without a rounding argument: exact widening, saturating narrowing, and the signed
// to unsigned (Rs) forms, whose negative values saturate to 0.  One template serves all.
#include "convert/convert_rows.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::cvt {

template <class S, class D, Layout L>
KroStatus plain(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(srcStep, dstStep));
    const bool oneRow = contiguous<L, S, D>(srcStep, dstStep, roiSize);
    if constexpr (kFloat<D> && sizeof(S) == 4 && !kFloat<S>) {
        // 32-bit integers do not all fit a float: round to nearest, whatever the caller set.
        RoundingScope scope(RoundingScope::kNearest);
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, Saturate<S, D>{});
    } else {
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, Saturate<S, D>{});
    }
    return kroStsOk;
}

}  // namespace KROI_TIER::cvt

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/convert_plain.exports.inc"
}
#undef KROI_EXPORT
