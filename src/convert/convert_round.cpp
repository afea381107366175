// Convert from float with a rounding mode: 32f to the 8- and 16-bit types in every layout,
// and the RSfs forms (C1) that also scale by 2^-scaleFactor, from float, double and integer
// sources.
//
// Modes 0 and 1 run under the processor's rounding control, set for the call to toward zero
// or to nearest and restored on return; every other mode value rounds half away from zero
// in software.  No mode value is rejected.
#include "convert/convert_rows.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::cvt {

namespace {

// Runs the 32f source through FloatToInt<D, away, scaled> for the mode.
template <Layout L, bool kScaled, class D>
void floatToInt(const Kro32f* s, int ss, D* d, int ds, KroiSize roi, bool oneRow, int mode, float factor)
{
    // Every mode opens the scope: the ties-away kernel does not depend on the rounding
    // control, but its conversions raise flags that the caller must not see.
    RoundingScope scope(RoundingScope::forMode(mode));
    if (mode == kroRndZero || mode == kroRndNear)
        run<L>(s, ss, d, ds, roi, oneRow, FloatToInt<D, false, kScaled>{mode, factor});
    else
        run<L>(s, ss, d, ds, roi, oneRow, FloatToInt<D, true, kScaled>{mode, factor});
}

}  // namespace

template <class D, Layout L>
KroStatus rounded(const Kro32f* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(srcStep, dstStep));
    const bool oneRow = contiguous<L, Kro32f, D>(srcStep, dstStep, roiSize);
    floatToInt<L, false>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, roundMode, 1.0f);
    return kroStsOk;
}

// RSfs: pointers and size only; the steps are used as given.
template <class S, class D>
KroStatus sfs(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roiSize, KroRoundMode roundMode,
              int scaleFactor)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    const bool oneRow = contiguous<C1, S, D>(srcStep, dstStep, roiSize);
    if constexpr (!kFloat<S>) {
        if constexpr (IntSfsLanes<S, D>::kVector) {
            if (IntSfsLanes<S, D>::fits(scaleFactor)) {
                run<C1>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, IntSfsLanes<S, D>{{roundMode, scaleFactor}});
                return kroStsOk;
            }
        }
        run<C1>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, IntSfs<S, D>{roundMode, scaleFactor});
    } else {
        // 2^-scaleFactor is a float for these factors, and the float product is as good as exact
        // (see FloatToInt); other factors and 32-bit destinations go through double.
        if constexpr (std::is_same_v<S, Kro32f> && sizeof(D) <= 2) {
            if (scaleFactor >= -100 && scaleFactor <= 126) {
                const float factor = std::ldexp(1.0f, -scaleFactor);
                floatToInt<C1, true>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, roundMode, factor);
                return kroStsOk;
            }
        }
        RoundingScope scope(RoundingScope::kNearest);  // keeps the caller's flags as they were
        run<C1>(pSrc, srcStep, pDst, dstStep, roiSize, oneRow, WideToInt<S, D>(roundMode, scaleFactor));
    }
    return kroStsOk;
}

// In place: each element is read as a float and written back as an unsigned integer of the
// same size, so source and destination are the same image.  An element is always read
// before it is written, and no other element is read after its own write.
KroStatus sfsInPlace(Kro32u* pSrcDst, int srcDstStep, KroiSize roiSize, KroRoundMode roundMode, int scaleFactor)
{
    return sfs<Kro32f, Kro32u>(reinterpret_cast<const Kro32f*>(pSrcDst), srcDstStep, pSrcDst, srcDstStep,
                               roiSize, roundMode, scaleFactor);
}

}  // namespace KROI_TIER::cvt

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/convert_round.exports.inc"
}
#undef KROI_EXPORT
