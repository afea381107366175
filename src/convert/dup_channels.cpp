// Dup: a one-channel 8u image copied into every channel of a three- or four-channel image.
// The per-pixel loop is the definition; four channels widen 16 pixels at a time by
// interleaving each byte with itself twice.
#include <emmintrin.h>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::convert {

namespace {

template <int C>
void dupRow(const Kro8u* s, Kro8u* d, long n)
{
    long x = 0;
    if constexpr (C == 4) {
        for (; x + 16 <= n; x += 16) {
            const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + x));
            const __m128i lo = _mm_unpacklo_epi8(v, v), hi = _mm_unpackhi_epi8(v, v);
            __m128i* o = reinterpret_cast<__m128i*>(d + 4 * x);
            _mm_storeu_si128(o, _mm_unpacklo_epi16(lo, lo));
            _mm_storeu_si128(o + 1, _mm_unpackhi_epi16(lo, lo));
            _mm_storeu_si128(o + 2, _mm_unpacklo_epi16(hi, hi));
            _mm_storeu_si128(o + 3, _mm_unpackhi_epi16(hi, hi));
        }
    }
    for (; x < n; ++x)
        for (int c = 0; c < C; ++c) d[C * x + c] = s[x];
}

}  // namespace

template <int C>
KroStatus dup(const Kro8u* pSrc, int srcStep, Kro8u* pDst, int dstStep, KroiSize roiSize)
{
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roiSize));
    for (long y = 0; y < roiSize.height; ++y)
        dupRow<C>(pSrc + y * srcStep, pDst + y * dstStep, roiSize.width);
    return kroStsOk;
}

}  // namespace KROI_TIER::convert

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "convert/dup_channels.exports.inc"
}
#undef KROI_EXPORT
