// The API functions of Abs, Sqr, Sqrt, Exp, Ln (one source image, or in place) and of
// MinEvery and MaxEvery (in place).  Like the two-image arithmetic they check the pointers
// (-8) and the size (-6) and no step; then the operation's parameters, of which these have
// none to refuse: every scale factor is valid.
#pragma once

#include "arith/unary_kernels.hpp"
#include "frame/fpround.hpp"

namespace KROI_TIER::arith::unary {

// The families, each naming its kernel for a type and a scale factor.
struct Abs {};
struct Sqr {};
struct Sqrt {};
struct Exp {};
struct Ln {};

// Runs a one-image operation and turns its flag into the family's warning.
template <Layout L, class Op, class T>
KroStatus run(const Op& op, const T* s, int sStep, T* d, int dStep, KroiSize roi, KroStatus warning)
{
    const bool bad = unaryRows<L>(op, s, sStep, d, dStep, roi.width, roi.height);
    return bad ? warning : kroStsOk;
}

template <class F, class T, Layout L>
KroStatus choose(const T* s, int sStep, T* d, int dStep, KroiSize roi, int scale)
{
    constexpr bool kFloat = std::is_same_v<T, Kro32f>;
    const DefaultFloatScope env;
    if constexpr (std::is_same_v<F, Abs>) {
        return run<L>(AbsOp<T>{}, s, sStep, d, dStep, roi, kroStsOk);
    } else if constexpr (std::is_same_v<F, Sqr>) {
        // The product of the image with itself, through the arithmetic's kernel choice.
        const auto j = job(ImageOperand<T>(s, sStep), ImageOperand<T>(s, sStep), d, dStep, roi.width, roi.height);
        if constexpr (kFloat) return runOp<L>(Float<Mul>{}, j);
        else return scaled<Mul, T, L>(j, scale);
    } else if constexpr (std::is_same_v<F, Sqrt>) {
        if constexpr (kFloat) return run<L>(SqrtFloat{}, s, sStep, d, dStep, roi, kroStsNegativeRootWarn);
        else return run<L>(SqrtInt<T>{scale}, s, sStep, d, dStep, roi, kroStsNegativeRootWarn);
    } else if constexpr (std::is_same_v<F, Exp>) {
        if constexpr (kFloat) return run<L>(ExpFloat{}, s, sStep, d, dStep, roi, kroStsOk);
        else return run<L>(ExpInt<T>{scale}, s, sStep, d, dStep, roi, kroStsOk);
    } else {
        if constexpr (kFloat) return run<L>(LnFloat{}, s, sStep, d, dStep, roi, kroStsNonPositiveLogWarn);
        else return run<L>(LnInt<T>{scale}, s, sStep, d, dStep, roi, kroStsNonPositiveLogWarn);
    }
}

// ---- the exported forms ---------------------------------------------------------------------------

template <class F, class T, Layout L>
KroStatus sfs(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, int scaleFactor)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    return choose<F, T, L>(pSrc, srcStep, pDst, dstStep, roi, scaleFactor);
}
template <class F, class T, Layout L>
KroStatus sfsI(T* pSrcDst, int srcDstStep, KroiSize roi, int scaleFactor)
{
    return sfs<F, T, L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, scaleFactor);
}
template <class F, class T, Layout L>
KroStatus plain(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi)
{
    return sfs<F, T, L>(pSrc, srcStep, pDst, dstStep, roi, 0);
}
template <class F, class T, Layout L>
KroStatus plainI(T* pSrcDst, int srcDstStep, KroiSize roi)
{
    return sfs<F, T, L>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, 0);
}

// MinEvery (kMax false) and MaxEvery: pSrcDst = min or max of itself and pSrc.
template <class T, Layout L, bool kMax>
KroStatus every(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, KroiSize roi)
{
    KROI_CHECK(check::pointers(pSrc, pSrcDst));
    KROI_CHECK(check::roi(roi));
    return runOp<L>(Every<T, kMax>{},
                    job(ImageOperand<T>(pSrcDst, srcDstStep), ImageOperand<T>(pSrc, srcStep), pSrcDst, srcDstStep,
                        roi.width, roi.height));
}

}  // namespace KROI_TIER::arith::unary
