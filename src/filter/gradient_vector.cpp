// The gradient vector from the Sobel pair: magnitude (L1 or L2) and direction, either one
// optional, from 8u and 32f sources.  Each row's two derivatives are made by the Sobel row
// kernels (exact integers for 8u, the fixed filters' float sequence for 32f) into rows of
// the buffer, then combined.
#include <cmath>

#include "filter/fixed_filter.hpp"
#include "frame/bind.hpp"

namespace KROI_TIER::filter::gradient {

using fixed::SobelDx3;
using fixed::SobelDx5;
using fixed::SobelDy3;
using fixed::SobelDy5;

// The derivative rows: 16-bit integers for 8u sources, floats for 32f.
template <class S>
using Deriv = std::conditional_t<std::is_same_v<S, Kro8u>, Kro16s, Kro32f>;

// Bytes beyond the window frame: the two derivative rows (4-byte elements at most).
inline int64_t extraBytes(KroiSize roi) { return 2 * window::align64(int64_t(roi.width) * 4); }

KroStatus getBufferSize(KroiSize roi, int maskSize, KroDataType type, int channels, int* size)
{
    const bool good = maskSize == 3 || maskSize == 5;
    const int m = good ? maskSize : 1;
    KROI_CHECK(check::pointers(size));
    KROI_CHECK(check::roi(roi));
    if (!good) return kroStsBadMaskErr;
    if (type != kro8u && type != kro32f) return kroStsBadDataTypeErr;
    if (channels != 1) return kroStsBadChannelCountErr;
    return window::bufferSize(roi, {m, m}, true, type, channels, size, [&](int64_t, int64_t) { return extraBytes(roi); });
}

// Magnitude and angle of n pixels from the derivative rows.
template <class G>
void combine(const G* gx, const G* gy, Kro32f* mag, Kro32f* angle, int64_t n, bool l2)
{
    int64_t x = 0;
    if (mag) {
        const __m128 abs = _mm_castsi128_ps(_mm_set1_epi32(0x7FFFFFFF));
        auto load = [](const G* p) {
            if constexpr (std::is_same_v<G, Kro32f>)
                return _mm_loadu_ps(p);
            else
            {
                const __m128i v = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
                return _mm_cvtepi32_ps(_mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16));
            }
        };
        for (; x + 4 <= n; x += 4) {
            const __m128 a = load(gx + x), b = load(gy + x);
            const __m128 m = l2 ? _mm_sqrt_ps(_mm_add_ps(_mm_mul_ps(a, a), _mm_mul_ps(b, b)))
                                : _mm_add_ps(_mm_and_ps(a, abs), _mm_and_ps(b, abs));
            _mm_storeu_ps(mag + x, m);
        }
        for (; x < n; ++x) {
            const float a = float(gx[x]), b = float(gy[x]);
            mag[x] = l2 ? std::sqrt(a * a + b * b) : std::fabs(a) + std::fabs(b);
        }
    }
    if (angle)
        for (x = 0; x < n; ++x) angle[x] = float(std::atan2(double(gy[x]), double(gx[x])));
}

// kroiGradientVectorSobel: pointers, steps, ROI, mask, norm, border code, border value.
template <class S>
KroStatus sobel(const S* pSrc, int srcStep, Kro32f* pMag, int magStep, Kro32f* pAngle, int angleStep, KroiSize roi,
                int maskSize, KroiGradientNorm norm, KroiBorderMode borderType, const S* pBorderValue, Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pBuffer));
    if (!pMag && !pAngle) return kroStsNullPointerErr;
    KROI_CHECK(check::steps(srcStep));
    if ((pMag && magStep < 1) || (pAngle && angleStep < 1)) return kroStsBadStepErr;
    KROI_CHECK(check::roi(roi));
    if (maskSize != 3 && maskSize != 5) return kroStsBadMaskErr;
    if (norm != kroGradientL1 && norm != kroGradientL2) return kroStsBadArgumentErr;
    KROI_CHECK(border::checkFilterMode(borderType));
    S pad[4] = {};
    KROI_CHECK((window::borderValue<S, 1>(borderType, pBorderValue, pad)));
    KROI_CHECK((window::checkWorkArea<S, 1>(roi, KroiSize{maskSize, maskSize})));
    using G = Deriv<S>;
    const KroiSize mask{maskSize, maskSize};
    G* gx = reinterpret_cast<G*>(window::extraArea<S, 1>(pBuffer, roi, mask));
    G* gy = reinterpret_cast<G*>(reinterpret_cast<char*>(gx) + window::align64(int64_t(roi.width) * 4));
    const int64_t n = roi.width;
    window::run<S, 1>(pSrc, srcStep, roi, mask, borderType, pad, pBuffer, [&](int64_t y, const S* const* rows) {
        if (maskSize == 3) {
            fixed::row<SobelDx3, S, G, 1>(rows, gx, n);
            fixed::row<SobelDy3, S, G, 1>(rows, gy, n);
        } else {
            fixed::row<SobelDx5, S, G, 1>(rows, gx, n);
            fixed::row<SobelDy5, S, G, 1>(rows, gy, n);
        }
        combine<G>(gx, gy, pMag ? window::rowAt(pMag, magStep, y) : nullptr,
                   pAngle ? window::rowAt(pAngle, angleStep, y) : nullptr, n, norm == kroGradientL2);
    });
    return kroStsOk;
}

}  // namespace KROI_TIER::filter::gradient

namespace filter = KROI_TIER::filter;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "filter/gradient_vector.exports.inc"
}
#undef KROI_EXPORT
