// Scale between 8u and the wider integer types: the whole range of one onto the whole range
// of the other.  Up: the byte repeated (exact).  Down: a fast kernel by shifts, or with the
// accurate hint (2) a rounded product.
#include "convert/scale_stream.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::cvt {

template <class D, Layout L>
KroStatus scaleUp(const Kro8u* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(srcStep, dstStep));
    run<L>(pSrc, srcStep, pDst, dstStep, roiSize, contiguous<L, Kro8u, D>(srcStep, dstStep, roiSize),
           ScaleUp<D>{}, storesFor<L, Kro8u, D>(roiSize));
    return kroStsOk;
}

template <class S, Layout L>
KroStatus scaleDown(const S* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize, KroAlgorithmHint hint)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(srcStep, dstStep));
    const bool oneRow = contiguous<L, S, Kro8u>(srcStep, dstStep, roiSize);
    const Stores stores = storesFor<L, S, Kro8u>(roiSize);
    if (hint != kroHintAccurate) {
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, ScaleDownFast<S>{}, stores);
    } else if constexpr (sizeof(S) == 2) {
        RoundingScope scope(RoundingScope::kNearest);  // the product and its conversion
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, ScaleDownAccurate16<S>{}, stores);
    } else {
        run<L>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, ScaleDownAccurate32{}, stores);
    }
    return kroStsOk;
}

}  // namespace KROI_TIER::cvt

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/scale_int.exports.inc"
}
#undef KROI_EXPORT
