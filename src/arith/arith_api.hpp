// The API functions of two-image arithmetic: Add, Sub, Mul, Div and Div_Round in every type
// and layout, in place or not, 32-bit or _L.  One template checks the arguments in the
// family's order and hands the images to the kernel choice of arith_kernels.hpp; the exported
// forms are one-line adapters onto it.
//
// Operand order: the exported functions take the subtrahend and the divisor first (pSrc1),
// the kernels take the left operand first, so Sub computes pSrc2 - pSrc1 and Div
// pSrc2 / pSrc1; in place, pSrcDst plays pSrc2 and pDst.
#pragma once

#include "arith/arith_kernels.hpp"
#include "frame/fpround.hpp"
#include "frame/longform.hpp"

namespace KROI_TIER::arith {

// Family tags besides the kinds Add, Sub and Mul.
struct Div {};
struct DivRound {};

// What the kernel choice needs besides the images.
struct Params {
    int scaleFactor = 0;
    int mode = kroRndNear; // Div_Round only
};

template <class Fam>
inline constexpr bool kDivides = std::is_same_v<Fam, Div> || std::is_same_v<Fam, DivRound>;

// 16u Add and Sub fill before checking anything but the sources (the fill's own checks then
// stand for the destination, the size and the step).
template <class Fam, class T>
inline constexpr bool kEarlyFill =
    std::is_same_v<T, Kro16u> && (std::is_same_v<Fam, Add> || std::is_same_v<Fam, Sub>);

// The kernel choice for one operation, type and layout.
template <class Fam, class T, Layout L, class J>
KroStatus choose(const J& j, Params p)
{
    if constexpr (std::is_same_v<T, Kro32f>) {
        if constexpr (std::is_same_v<Fam, Div>) return runOp<L>(FloatDiv{}, j);
        else return runOp<L>(Float<Fam>{}, j);
    } else if constexpr (std::is_same_v<Fam, DivRound>) {
        return runOp<L>(DivExact<T>{p.scaleFactor, p.mode}, j);
    } else if constexpr (std::is_same_v<Fam, Div>) {
        if constexpr (std::is_same_v<T, Kro8u>) {
            const int s = p.scaleFactor;
            if (s > 8 || s < -15) return runOp<L>(DivBound8u{s < -15}, j);
            const RoundingScope nearest(RoundingScope::kNearest);
            return runOp<L>(DivRecip8u{s}, j);
        } else {
            return runOp<L>(DivExact<T>{p.scaleFactor, kroRndNear}, j);
        }
    } else {
        return scaled<Fam, T, L>(j, p.scaleFactor);
    }
}

// The one API function: checks in the family's order, then the kernel choice.
template <class Fam, class T, Layout L>
KroStatus binary(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                 KroiSize roi, Params p)
{
    if constexpr (kEarlyFill<Fam, T>) {
        if (p.scaleFactor >= Ranges<Fam, T>::k.zeroFrom) {
            KROI_CHECK(check::pointers(pSrc1, pSrc2));
            return fillZero<T, L>(pDst, dstStep, roi);
        }
    }
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(check::roi(roi));
    if constexpr (kDivides<Fam>) KROI_CHECK(check::steps(src1Step, src2Step, dstStep));
    if constexpr (std::is_same_v<Fam, DivRound>) KROI_CHECK(check::roundMode(p.mode));
    return choose<Fam, T, L>(job(ImageOperand<T>(pSrc2, src2Step), ImageOperand<T>(pSrc1, src1Step),
                                 pDst, dstStep, roi.width, roi.height),
                             p);
}

// The one-row function of an operation, which the _L forms call on their long path: it
// checks its own pointers and length (and Div_Round's mode), then runs the same choice.
template <class Fam, class T, Layout L>
KroStatus row(const T* pSrc1, const T* pSrc2, T* pDst, int len, Params p)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(check::length(len));
    if constexpr (std::is_same_v<Fam, DivRound>) KROI_CHECK(check::roundMode(p.mode));
    return choose<Fam, T, L>(job(ImageOperand<T>(pSrc2, 0), ImageOperand<T>(pSrc1, 0), pDst, 0, len, 1), p);
}

// The _L form of binary().
template <class Fam, class T, Layout L>
KroStatus binaryL(const T* pSrc1, int64_t src1Step, const T* pSrc2, int64_t src2Step, T* pDst,
                  int64_t dstStep, KroiSizeL roi, Params p)
{
    const int64_t steps[3] = {src1Step, src2Step, dstStep};
    return longform::run<longform::ArithRule>(
        steps, roi,
        [&](const int* s, KroiSize r) { return binary<Fam, T, L>(pSrc1, s[0], pSrc2, s[1], pDst, s[2], r, p); },
        [&](int64_t y, int64_t x, int len) {
            const int64_t at = x * kElems<L>;
            return row<Fam, T, L>(longform::row(pSrc1, src1Step, y) + at, longform::row(pSrc2, src2Step, y) + at,
                                  longform::row(pDst, dstStep, y) + at, len, p);
        });
}

// ---- the exported forms --------------------------------------------------------------------------

template <class Fam, class T, Layout L>
KroStatus sfs(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
              KroiSize roi, int scaleFactor)
{
    return binary<Fam, T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {scaleFactor});
}
template <class Fam, class T, Layout L>
KroStatus sfsI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, KroiSize roi, int scaleFactor)
{
    return binary<Fam, T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, {scaleFactor});
}
template <class Fam, class T, Layout L>
KroStatus sfsL(const T* pSrc1, int64_t src1Step, const T* pSrc2, int64_t src2Step, T* pDst,
               int64_t dstStep, KroiSizeL roi, int scaleFactor)
{
    return binaryL<Fam, T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {scaleFactor});
}
template <class Fam, class T, Layout L>
KroStatus sfsIL(const T* pSrc, int64_t srcStep, T* pSrcDst, int64_t srcDstStep, KroiSizeL roi, int scaleFactor)
{
    return binaryL<Fam, T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, {scaleFactor});
}

template <class Fam, Layout L>
KroStatus flt(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro32f* pDst,
              int dstStep, KroiSize roi)
{
    return binary<Fam, Kro32f, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {});
}
template <class Fam, Layout L>
KroStatus fltI(const Kro32f* pSrc, int srcStep, Kro32f* pSrcDst, int srcDstStep, KroiSize roi)
{
    return binary<Fam, Kro32f, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, {});
}
template <class Fam, Layout L>
KroStatus fltL(const Kro32f* pSrc1, int64_t src1Step, const Kro32f* pSrc2, int64_t src2Step,
               Kro32f* pDst, int64_t dstStep, KroiSizeL roi)
{
    return binaryL<Fam, Kro32f, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {});
}
template <class Fam, Layout L>
KroStatus fltIL(const Kro32f* pSrc, int64_t srcStep, Kro32f* pSrcDst, int64_t srcDstStep, KroiSizeL roi)
{
    return binaryL<Fam, Kro32f, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi, {});
}

template <class T, Layout L>
KroStatus rnd(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
              KroiSize roi, KroRoundMode mode, int scaleFactor)
{
    return binary<DivRound, T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {scaleFactor, mode});
}
template <class T, Layout L>
KroStatus rndI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, KroiSize roi, KroRoundMode mode,
               int scaleFactor)
{
    return binary<DivRound, T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi,
                                  {scaleFactor, mode});
}
template <class T, Layout L>
KroStatus rndL(const T* pSrc1, int64_t src1Step, const T* pSrc2, int64_t src2Step, T* pDst,
               int64_t dstStep, KroiSizeL roi, KroRoundMode mode, int scaleFactor)
{
    return binaryL<DivRound, T, L>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roi, {scaleFactor, mode});
}
template <class T, Layout L>
KroStatus rndIL(const T* pSrc, int64_t srcStep, T* pSrcDst, int64_t srcDstStep, KroiSizeL roi,
                KroRoundMode mode, int scaleFactor)
{
    return binaryL<DivRound, T, L>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roi,
                                   {scaleFactor, mode});
}

}  // namespace KROI_TIER::arith
