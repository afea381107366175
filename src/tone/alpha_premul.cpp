// Premultiplication of colours by their alpha (AlphaPremul) or by a constant (AlphaPremulC),
// and composition by a key colour (CompColorKey).
#include <cstdint>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "tone/alpha_rows.hpp"

namespace KROI_TIER::tone {

using namespace alpha;

namespace {

// s * a with a standing for alpha 1 at the type's largest value, rounded to nearest: the
// premultiplied In rule with s as the colour and a as the second alpha.
template <class T>
inline T premul(T s, T a)
{
    return composeOne<kInPremul>(constOf<T>(kInPremul, T(0), a), s, T(0), T(0), a);
}

}  // namespace

// The three colours of each pixel times its alpha; the alpha is not written.
template <class T>
KroStatus alphaPremul(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    rows::each(
        roiSize.width, roiSize.height,
        [](const T* s, T* d, int n) {
            for (int p = 0; p < n; ++p)
                for (int c = 0; c < 3; ++c) d[4 * p + c] = premul(s[4 * p + c], s[4 * p + 3]);
        },
        rows::image(pSrc, srcStep), rows::image(pDst, dstStep));
    return kroStsOk;
}

template <class T>
KroStatus alphaPremulI(T* pSrcDst, int srcDstStep, KroiSize roiSize)
{
    return alphaPremul<T>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}

template <class T>
KroStatus alphaPremulP4(const T* const pSrc[4], int srcStep, T* const pDst[4], int dstStep, KroiSize roiSize)
{
    KROI_CHECK(planes(pSrc));
    KROI_CHECK(planes(pDst));
    KROI_CHECK(check::roi(roiSize));
    const auto A = rows::image(pSrc[3], srcStep);
    for (int c = 0; c < 3; ++c) {
        const auto S = rows::image(pSrc[c], srcStep);
        const auto D = rows::image(pDst[c], dstStep);
        for (int y = 0; y < roiSize.height; ++y) {
            const T* s = S.row(y);
            const T* a = A.row(y);
            T* d = D.row(y);
            for (int p = 0; p < roiSize.width; ++p) d[p] = premul(s[p], a[p]);
        }
    }
    return kroStsOk;
}

template <class T>
KroStatus alphaPremulIP4(T* const pSrcDst[4], int srcDstStep, KroiSize roiSize)
{
    return alphaPremulP4<T>(pSrcDst, srcDstStep, pSrcDst, srcDstStep, roiSize);
}

// The first W elements of each C-element pixel times the constant alpha.
template <class T, int C, int W>
KroStatus alphaPremulC(const T* pSrc, int srcStep, T alpha, T* pDst, int dstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    rows::each(
        roiSize.width, roiSize.height,
        [alpha](const T* s, T* d, int n) {
            for (long p = 0; p < n; ++p)
                for (int c = 0; c < W; ++c) d[p * C + c] = premul(s[p * C + c], alpha);
        },
        rows::image(pSrc, srcStep), rows::image(pDst, dstStep));
    return kroStsOk;
}

template <class T, int C, int W>
KroStatus alphaPremulCI(T alpha, T* pSrcDst, int srcDstStep, KroiSize roiSize)
{
    return alphaPremulC<T, C, W>(pSrcDst, srcDstStep, alpha, pSrcDst, srcDstStep, roiSize);
}

// The three colour planes times the constant; the fourth plane is not written.
template <class T>
KroStatus alphaPremulCP4(const T* const pSrc[4], int srcStep, T alpha, T* const pDst[4], int dstStep,
                         KroiSize roiSize)
{
    KROI_CHECK(planes(pSrc));
    KROI_CHECK(planes(pDst));
    KROI_CHECK(check::roi(roiSize));
    for (int c = 0; c < 3; ++c) KROI_CHECK((alphaPremulC<T, 1, 1>(pSrc[c], srcStep, alpha, pDst[c], dstStep, roiSize)));
    return kroStsOk;
}

template <class T>
KroStatus alphaPremulCIP4(T alpha, T* const pSrcDst[4], int srcDstStep, KroiSize roiSize)
{
    return alphaPremulCP4<T>(pSrcDst, srcDstStep, alpha, pSrcDst, srcDstStep, roiSize);
}

// ---- key colour ----------------------------------------------------------------------------------

template <class T, int C>
using KeyArg = std::conditional_t<C == 1, T, const T*>;

// The second source's pixel where every channel of the first source's pixel equals the key,
// the first source's pixel elsewhere.
template <class T, int C>
KroStatus compColorKey(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, T* pDst, int dstStep,
                       KroiSize roiSize, KeyArg<T, C> colorKey)
{
    const T* key;
    if constexpr (C == 1) key = &colorKey;
    else key = colorKey;
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst, key));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(check::steps(src1Step, src2Step, dstStep));
    T k[C];
    for (int c = 0; c < C; ++c) k[c] = key[c];
    rows::each(
        roiSize.width, roiSize.height,
        [&k](const T* a, const T* b, T* d, int n) {
            for (long p = 0; p < n; ++p) {
                bool hit = true;
                for (int c = 0; c < C; ++c) hit = hit && a[p * C + c] == k[c];
                const T* s = hit ? b : a;
                for (int c = 0; c < C; ++c) d[p * C + c] = s[p * C + c];
            }
        },
        rows::image(pSrc1, src1Step), rows::image(pSrc2, src2Step), rows::image(pDst, dstStep));
    return kroStsOk;
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/alpha_premul.exports.inc"
}
#undef KROI_EXPORT
