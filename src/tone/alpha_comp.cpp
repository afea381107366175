// Alpha composition of two images: with one constant alpha per image (AlphaCompC), with the
// alpha of each pixel (AlphaComp), and with a key colour deciding per pixel
// (AlphaCompColorKey).
#include <cstdint>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/fpround.hpp"
#include "frame/rows.hpp"
#include "tone/alpha_kernels.hpp"
#include "tone/alpha_rows.hpp"

namespace KROI_TIER::tone {

using namespace alpha;

namespace {

// Width below 1, then height below 1: both -6.
KroStatus size(KroiSize roi) { return check::roi(roi); }

}  // namespace

// ---- constant alphas ----------------------------------------------------------------------------

template <class T, int C, int W>
KroStatus alphaCompC(const T* pSrc1, int src1Step, T alpha1, const T* pSrc2, int src2Step, T alpha2, T* pDst,
                     int dstStep, KroiSize roiSize, KroiAlphaOp alphaType)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(size(roiSize));
    KROI_CHECK(opCode(alphaType));
    const RoundingScope rounding(RoundingScope::kNearest);
    if constexpr (std::is_same_v<T, Kro8u>) {
        if (constRows8u<C, W>(alphaType, alpha1, alpha2, pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize))
            return kroStsOk;
    }
    const Const8u k = constOf<T>(alphaType, alpha1, alpha2);
    withOp(alphaType, [&](auto op) {
        rows::each(
            roiSize.width, roiSize.height,
            [&](const T* a, const T* b, T* d, int n) { constRow<op(), T, C, W>(k, alpha1, alpha2, a, b, d, n); },
            rows::image(pSrc1, src1Step), rows::image(pSrc2, src2Step), rows::image(pDst, dstStep));
    });
    return kroStsOk;
}

template <class T, int C, int W>
KroStatus alphaCompCI(const T* pSrc, int srcStep, T alpha1, T* pSrcDst, int srcDstStep, T alpha2, KroiSize roiSize,
                      KroiAlphaOp alphaType)
{
    return alphaCompC<T, C, W>(pSrc, srcStep, alpha1, pSrcDst, srcDstStep, alpha2, pSrcDst, srcDstStep, roiSize,
                               alphaType);
}

// Four planes: the three colour planes are composed, the fourth is left as it is.
template <class T>
KroStatus alphaCompCP4(const T* const pSrc1[4], int src1Step, T alpha1, const T* const pSrc2[4], int src2Step,
                       T alpha2, T* const pDst[4], int dstStep, KroiSize roiSize, KroiAlphaOp alphaType)
{
    KROI_CHECK(planes(pSrc1));
    KROI_CHECK(planes(pSrc2));
    KROI_CHECK(planes(pDst));
    KROI_CHECK(size(roiSize));
    KROI_CHECK(opCode(alphaType));
    for (int c = 0; c < 3; ++c)
        KROI_CHECK((alphaCompC<T, 1, 1>(pSrc1[c], src1Step, alpha1, pSrc2[c], src2Step, alpha2, pDst[c], dstStep,
                                        roiSize, alphaType)));
    return kroStsOk;
}

template <class T>
KroStatus alphaCompCIP4(const T* const pSrc[4], int srcStep, T alpha1, T* const pSrcDst[4], int srcDstStep, T alpha2,
                        KroiSize roiSize, KroiAlphaOp alphaType)
{
    return alphaCompCP4<T>(pSrc, srcStep, alpha1, pSrcDst, srcDstStep, alpha2, pSrcDst, srcDstStep, roiSize,
                           alphaType);
}

// ---- the alphas of the pixels -------------------------------------------------------------------

// C = 1: the images are alphas (AC1); C = 4: three colours and an alpha (AC4).  The
// destination's alpha is written: the alphas composed by the operation's alpha rule.
template <class T, int C>
KroStatus alphaComp(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                    KroiSize roiSize, KroiAlphaOp alphaType)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(size(roiSize));
    KROI_CHECK(opCode(alphaType));
    const RoundingScope rounding(RoundingScope::kNearest);
    if constexpr (std::is_same_v<T, Kro8u> && C == 4) {
        if (pixelRows8u(alphaType, pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize)) return kroStsOk;
    }
    withOp(alphaType, [&](auto op) {
        rows::each(
            roiSize.width, roiSize.height, [&](const T* a, const T* b, T* d, int n) { pixelRow<op(), T, C>(a, b, d, n); },
            rows::image(pSrc1, src1Step), rows::image(pSrc2, src2Step), rows::image(pDst, dstStep));
    });
    return kroStsOk;
}

template <class T, int C>
KroStatus alphaCompI(const T* pSrc, int srcStep, T* pSrcDst, int srcDstStep, KroiSize roiSize, KroiAlphaOp alphaType)
{
    return alphaComp<T, C>(pSrc, srcStep, pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize, alphaType);
}

// Four planes, the fourth the alpha; colour planes first, so that in place the second
// source's alpha is read before it is replaced.
template <class T>
KroStatus alphaCompP4(const T* const pSrc1[4], int src1Step, const T* const pSrc2[4], int src2Step, T* const pDst[4],
                      int dstStep, KroiSize roiSize, KroiAlphaOp alphaType)
{
    KROI_CHECK(planes(pSrc1));
    KROI_CHECK(planes(pSrc2));
    KROI_CHECK(planes(pDst));
    KROI_CHECK(size(roiSize));
    KROI_CHECK(opCode(alphaType));
    const RoundingScope rounding(RoundingScope::kNearest);
    const auto A1 = rows::image(pSrc1[3], src1Step), A2 = rows::image(pSrc2[3], src2Step);
    withOp(alphaType, [&](auto op) {
        for (int c = 0; c < 3; ++c) {
            const auto S1 = rows::image(pSrc1[c], src1Step), S2 = rows::image(pSrc2[c], src2Step);
            const auto D = rows::image(pDst[c], dstStep);
            for (int y = 0; y < roiSize.height; ++y)
                planeRow<op(), T>(S1.row(y), A1.row(y), S2.row(y), A2.row(y), D.row(y), roiSize.width);
        }
        const auto D = rows::image(pDst[3], dstStep);
        for (int y = 0; y < roiSize.height; ++y) pixelRow<op(), T, 1>(A1.row(y), A2.row(y), D.row(y), roiSize.width);
    });
    return kroStsOk;
}

// ---- key colour ----------------------------------------------------------------------------------

// Pixels of the first source whose three colours equal the key take the second source's
// pixel, alpha included; the others are composed as by AlphaComp.
KroStatus alphaCompColorKey8u(const Kro8u* pSrc1, int src1Step, const Kro8u* pSrc2, int src2Step, Kro8u* pDst,
                              int dstStep, KroiSize roiSize, const Kro8u colorKey[3], KroiAlphaOp alphaType)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst, colorKey));
    KROI_CHECK(size(roiSize));
    KROI_CHECK(check::steps(src1Step, src2Step, dstStep));
    KROI_CHECK(opCode(alphaType));
    const RoundingScope rounding(RoundingScope::kNearest);
    const Kro8u k0 = colorKey[0], k1 = colorKey[1], k2 = colorKey[2];
    withOp(alphaType, [&](auto op) {
        rows::each(
            roiSize.width, roiSize.height,
            [&](const Kro8u* a, const Kro8u* b, Kro8u* d, int n) {
                for (int p = 0; p < n; ++p) {
                    const Kro8u* s1 = a + 4 * p;
                    const Kro8u* s2 = b + 4 * p;
                    if (s1[0] == k0 && s1[1] == k1 && s1[2] == k2) {
                        const Kro8u t[4] = {s2[0], s2[1], s2[2], s2[3]};
                        for (int c = 0; c < 4; ++c) d[4 * p + c] = t[c];
                    } else {
                        pixelRow<op(), Kro8u, 4>(s1, s2, d + 4 * p, 1);
                    }
                }
            },
            rows::image(pSrc1, src1Step), rows::image(pSrc2, src2Step), rows::image(pDst, dstStep));
    });
    return kroStsOk;
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/alpha_comp.exports.inc"
}
#undef KROI_EXPORT
