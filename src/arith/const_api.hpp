// The API functions of the arithmetic with constants: AddC, SubC, MulC and DivC in every type
// and layout, in place or not, 32-bit or _L.  The kernels, the rounding and the kernel choice
// by scale factor are the two-image arithmetic's, with the constant as the right operand
// (src - value, src / value).  What differs is the check order of DivC and the shortcuts
// taken before any arithmetic: an identity copies through Copy, a product with 0 fills
// through Set.
#pragma once

#include "arith/arith_api.hpp"
#include "arith/logic_fill.hpp"

namespace KROI_TIER::arith {

// One value per computed channel: by value for C1, an array otherwise.
template <class T, Layout L>
using ValueArg = std::conditional_t<L == kC1, T, const T*>;

template <class T, Layout L>
const T* valuePtr(const ValueArg<T, L>& v)
{
    if constexpr (L == kC1) return &v;
    else return v;
}

// Null source, destination or (for the array forms) constants: -8.
template <class T, Layout L>
KroStatus checkPointers(const T* s, ValueArg<T, L> value, const T* d)
{
    if constexpr (L == kC1) return check::pointers(s, d);
    else return check::pointers(s, value, d);
}

// DivC refuses a zero constant in any computed channel: -10.
template <class T, Layout L>
KroStatus checkDivisor(const T* k)
{
    for (int c = 0; c < kChannels<L>; ++c)
        if (k[c] == T(0)) return kroStsZeroDivisorErr;
    return kroStsOk;
}

template <class T, Layout L>
bool allEqual(const T* k, T v)
{
    for (int c = 0; c < kChannels<L>; ++c)
        if (k[c] != v) return false;
    return true;
}

// The kernel choice of one call.  Integer types: a product with 0 is 0 whatever the scale
// factor; an identity at scale factor 0 (adding or subtracting 0, multiplying or dividing by
// 1) is the source; a division by 1 is the product with 1 at the same scale factor; the rest
// is the two-image arithmetic's choice by scale factor.  Division by a constant is exact.
// 32f has no shortcuts: x + 0 is +0 for x = -0, and x * 0 is NaN for an infinite x.
template <class Fam, class T, Layout L>
KroStatus chooseC(const T* s, int ss, const T* k, T* d, int sd, KroiSize roi, int sf)
{
    const auto j = job(ImageOperand<T>(s, ss), ConstOperand<T, L>(k), d, sd, roi.width, roi.height);
    if constexpr (std::is_same_v<T, Kro32f>) {
        if constexpr (std::is_same_v<Fam, Div>) return runOp<L>(FloatDiv{}, j);
        else return runOp<L>(Float<Fam>{}, j);
    } else {
        constexpr T kIdentity = std::is_same_v<Fam, Add> || std::is_same_v<Fam, Sub> ? 0 : 1;
        if (std::is_same_v<Fam, Mul> && allEqual<T, L>(k, T(0))) return fill::fillZero<T, L>(d, sd, roi);
        if (sf == 0 && allEqual<T, L>(k, kIdentity)) return fill::copyImage<T, L>(s, ss, d, sd, roi);
        if constexpr (std::is_same_v<Fam, Div>) {
            if (allEqual<T, L>(k, T(1))) return scaled<Mul, T, L>(j, sf);
            return runOp<L>(DivExact<T>{sf, kroRndNear}, j);
        } else {
            return scaled<Fam, T, L>(j, sf);
        }
    }
}

// The one API function: pointers, size, then for DivC the steps and the divisor.
template <class Fam, class T, Layout L>
KroStatus withConst(const T* pSrc, int srcStep, ValueArg<T, L> value, T* pDst, int dstStep, KroiSize roi, int sf)
{
    KROI_CHECK((checkPointers<T, L>(pSrc, value, pDst)));
    KROI_CHECK(check::roi(roi));
    const T* k = valuePtr<T, L>(value);
    if constexpr (std::is_same_v<Fam, Div>) {
        KROI_CHECK(check::steps(srcStep, dstStep));
        KROI_CHECK((checkDivisor<T, L>(k)));
    }
    return chooseC<Fam, T, L>(pSrc, srcStep, k, pDst, dstStep, roi, sf);
}

// The one-row function the _L forms call on their long path: its own pointer and length
// checks (and DivC's divisor), then the same choice on one row.
template <class Fam, class T, Layout L>
KroStatus rowC(const T* pSrc, ValueArg<T, L> value, T* pDst, int len, int sf)
{
    KROI_CHECK((checkPointers<T, L>(pSrc, value, pDst)));
    KROI_CHECK(check::length(len));
    const T* k = valuePtr<T, L>(value);
    if constexpr (std::is_same_v<Fam, Div>) KROI_CHECK((checkDivisor<T, L>(k)));
    return chooseC<Fam, T, L>(pSrc, 0, k, pDst, 0, KroiSize{len, 1}, sf);
}

template <class Fam, class T, Layout L>
KroStatus withConstL(const T* pSrc, int64_t srcStep, ValueArg<T, L> value, T* pDst, int64_t dstStep,
                     KroiSizeL roi, int sf)
{
    const int64_t steps[2] = {srcStep, dstStep};
    return longform::run<longform::ArithRule>(
        steps, roi,
        [&](const int* s, KroiSize r) { return withConst<Fam, T, L>(pSrc, s[0], value, pDst, s[1], r, sf); },
        [&](int64_t y, int64_t x, int len) {
            const int64_t at = x * kElems<L>;
            return rowC<Fam, T, L>(longform::row(pSrc, srcStep, y) + at, value, longform::row(pDst, dstStep, y) + at,
                                   len, sf);
        });
}

// ---- the exported forms --------------------------------------------------------------------------

template <class Fam, class T, Layout L>
KroStatus sfsC(const T* pSrc, int srcStep, ValueArg<T, L> value, T* pDst, int dstStep, KroiSize roi, int sf)
{
    return withConst<Fam, T, L>(pSrc, srcStep, value, pDst, dstStep, roi, sf);
}
template <class Fam, class T, Layout L>
KroStatus sfsCI(ValueArg<T, L> value, T* pSrcDst, int srcDstStep, KroiSize roi, int sf)
{
    return withConst<Fam, T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, sf);
}
template <class Fam, class T, Layout L>
KroStatus sfsCL(const T* pSrc, int64_t srcStep, ValueArg<T, L> value, T* pDst, int64_t dstStep, KroiSizeL roi,
                int sf)
{
    return withConstL<Fam, T, L>(pSrc, srcStep, value, pDst, dstStep, roi, sf);
}
template <class Fam, class T, Layout L>
KroStatus sfsCIL(ValueArg<T, L> value, T* pSrcDst, int64_t srcDstStep, KroiSizeL roi, int sf)
{
    return withConstL<Fam, T, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, sf);
}

template <class Fam, Layout L>
KroStatus fltC(const Kro32f* pSrc, int srcStep, ValueArg<Kro32f, L> value, Kro32f* pDst, int dstStep, KroiSize roi)
{
    return withConst<Fam, Kro32f, L>(pSrc, srcStep, value, pDst, dstStep, roi, 0);
}
template <class Fam, Layout L>
KroStatus fltCI(ValueArg<Kro32f, L> value, Kro32f* pSrcDst, int srcDstStep, KroiSize roi)
{
    return withConst<Fam, Kro32f, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, 0);
}
template <class Fam, Layout L>
KroStatus fltCL(const Kro32f* pSrc, int64_t srcStep, ValueArg<Kro32f, L> value, Kro32f* pDst, int64_t dstStep,
                KroiSizeL roi)
{
    return withConstL<Fam, Kro32f, L>(pSrc, srcStep, value, pDst, dstStep, roi, 0);
}
template <class Fam, Layout L>
KroStatus fltCIL(ValueArg<Kro32f, L> value, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roi)
{
    return withConstL<Fam, Kro32f, L>(pSrcDst, srcDstStep, value, pSrcDst, srcDstStep, roi, 0);
}

}  // namespace KROI_TIER::arith
