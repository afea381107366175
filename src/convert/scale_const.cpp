// ScaleC: v x mVal + aVal between any two of 8u, 8s, 16u, 16s, 32s, 32f, 64f (C1), and in
// place for each type.  Computed in double precision rounded to nearest (set for the call).
#include "convert/convert_rows.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::cvt {

template <class S, class D>
KroStatus scaleC(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize, Kro64f mVal, Kro64f aVal)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(srcStep, dstStep));
    RoundingScope scope(RoundingScope::kNearest);
    underScope(mVal, aVal);
    run<C1>(pSrc, srcStep, pDst, dstStep, roiSize, contiguous<C1, S, D>(srcStep, dstStep, roiSize),
            ScaleConst<S, D>{mVal, aVal});
    return kroStsOk;
}

template <class T>
KroStatus scaleCInPlace(Kro64f mVal, Kro64f aVal, T* pSrcDst, int srcDstStep, KroiSize roiSize)
{
    return scaleC<T, T>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, mVal, aVal);
}

}  // namespace KROI_TIER::cvt

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/scale_const.exports.inc"
}
#undef KROI_EXPORT
