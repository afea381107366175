// Vector row loops of the 8u alpha composition.  They compute exactly what the scalar rules
// of alpha_rule.hpp compute: the same single-precision products in the same order (packed
// products round as scalar ones do, and the caller holds the rounding control at nearest),
// and the same integer division by 255.  Each returns false when it does not handle the
// call, and the plain rows run instead.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

#include "frame/base.hpp"
#include "frame/rows.hpp"
#include "tone/alpha_rows.hpp"

namespace KROI_TIER::tone::alpha {

namespace vec {

inline __m128i load(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void store(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }

// div255 of eight 16-bit lanes holding 0..65025: (t + (t >> 8)) >> 8 with t = x + 128,
// which never leaves 16 bits (65407 at most).
inline __m128i div255x8(__m128i x)
{
    const __m128i t = _mm_add_epi16(x, _mm_set1_epi16(128));
    return _mm_srli_epi16(_mm_add_epi16(t, _mm_srli_epi16(t, 8)), 8);
}

// Sixteen bytes as four vectors of four floats.
struct Quad {
    __m128 v[4];
};
inline Quad widen(__m128i b)
{
    const __m128i z = _mm_setzero_si128();
    const __m128i lo = _mm_unpacklo_epi8(b, z), hi = _mm_unpackhi_epi8(b, z);
    return {{_mm_cvtepi32_ps(_mm_unpacklo_epi16(lo, z)), _mm_cvtepi32_ps(_mm_unpackhi_epi16(lo, z)),
             _mm_cvtepi32_ps(_mm_unpacklo_epi16(hi, z)), _mm_cvtepi32_ps(_mm_unpackhi_epi16(hi, z))}};
}
// Rounded by the rounding control (nearest) and saturated to 0..255.
inline __m128i narrow(__m128 a, __m128 b, __m128 c, __m128 d)
{
    const __m128i lo = _mm_packs_epi32(_mm_cvtps_epi32(a), _mm_cvtps_epi32(b));
    const __m128i hi = _mm_packs_epi32(_mm_cvtps_epi32(c), _mm_cvtps_epi32(d));
    return _mm_packus_epi16(lo, hi);
}

// Sixteen results of one operation with constant alphas.
template <int kOp>
inline __m128i constOp(const Const8u& k, __m128i a, __m128i b)
{
    const __m128i z = _mm_setzero_si128();
    if constexpr (kOp == kPlusPremul) {
        return _mm_adds_epu8(a, b);
    } else if constexpr (kOp == kPlus || kOp == kAtopPremul || kOp == kXorPremul) {
        // round((S1 x + S2 y) k1) with integer x, y <= 255: the sum N is exact in single
        // precision (at most 130050) and N k1 lies within 5e-5 of N / 255, which is never
        // nearer than 1/510 to a half (255 is odd).  So the result is N / 255 rounded, and
        // min(div255(min(N, 65025)), 255) gives it in 16-bit lanes: from N = 64898 on both
        // are 255.
        const __m128i x = _mm_set1_epi16(short(int(k.x))), y = _mm_set1_epi16(short(int(k.y)));
        const __m128i top = _mm_set1_epi16(short(65025));
        auto half = [&](__m128i p, __m128i q) {
            const __m128i n = _mm_adds_epu16(_mm_mullo_epi16(p, x), _mm_mullo_epi16(q, y));
            return div255x8(_mm_sub_epi16(n, _mm_subs_epu16(n, top)));
        };
        return _mm_packus_epi16(half(_mm_unpacklo_epi8(a, z), _mm_unpacklo_epi8(b, z)),
                                half(_mm_unpackhi_epi8(a, z), _mm_unpackhi_epi8(b, z)));
    } else if constexpr (kOp == kInPremul || kOp == kOutPremul || kOp == kOverPremul) {
        const int f = kOp == kInPremul ? k.a2 : kOp == kOutPremul ? 255 - k.a2 : 255 - k.a1;
        const __m128i m = _mm_set1_epi16(short(f));
        const __m128i src = kOp == kOverPremul ? b : a;
        const __m128i lo = div255x8(_mm_mullo_epi16(_mm_unpacklo_epi8(src, z), m));
        const __m128i hi = div255x8(_mm_mullo_epi16(_mm_unpackhi_epi8(src, z), m));
        const __m128i r = _mm_packus_epi16(lo, hi);
        return kOp == kOverPremul ? _mm_adds_epu8(a, r) : r;
    } else if constexpr (kOp == kIn || kOp == kOut) {
        const Quad s = widen(a);
        const __m128 x = _mm_set1_ps(k.x);
        return narrow(_mm_mul_ps(s.v[0], x), _mm_mul_ps(s.v[1], x), _mm_mul_ps(s.v[2], x), _mm_mul_ps(s.v[3], x));
    } else {
        const Quad s = widen(a), t = widen(b);
        const __m128 x = _mm_set1_ps(k.x), y = _mm_set1_ps(k.y), zz = _mm_set1_ps(k.z);
        __m128 r[4];
        for (int i = 0; i < 4; ++i) r[i] = _mm_mul_ps(_mm_add_ps(_mm_mul_ps(s.v[i], x), _mm_mul_ps(t.v[i], y)), zz);
        return narrow(r[0], r[1], r[2], r[3]);
    }
}

// Four pixels of per-pixel Over, AC4: the colours by the Over sequence with the pixel's
// constants, the alpha by min(A1 + div255(A2 (255 - A1)), 255) (which never exceeds 255).
inline __m128i pixelOver(__m128i a, __m128i b)
{
    const Quad s = widen(a), t = widen(b);
    const __m128 k1 = _mm_set1_ps(kK1), c255 = _mm_set1_ps(255.f);
    __m128 r[4];
    for (int i = 0; i < 4; ++i) {
        const __m128 a1 = _mm_shuffle_ps(s.v[i], s.v[i], 0xFF), a2 = _mm_shuffle_ps(t.v[i], t.v[i], 0xFF);
        const __m128 w = _mm_mul_ps(_mm_mul_ps(_mm_sub_ps(c255, a1), k1), a2);
        r[i] = _mm_mul_ps(_mm_add_ps(_mm_mul_ps(s.v[i], a1), _mm_mul_ps(t.v[i], w)), k1);
    }
    const __m128i colour = narrow(r[0], r[1], r[2], r[3]);
    const __m128i A1 = _mm_srli_epi32(a, 24), A2 = _mm_srli_epi32(b, 24);
    const __m128i x = _mm_mullo_epi16(A2, _mm_sub_epi32(_mm_set1_epi32(255), A1));  // high halves stay 0
    const __m128i t1 = _mm_add_epi32(x, _mm_set1_epi32(128));
    const __m128i d = _mm_srli_epi32(_mm_add_epi32(t1, _mm_srli_epi32(t1, 8)), 8);
    const __m128i alpha = _mm_slli_epi32(_mm_add_epi32(A1, d), 24);
    return _mm_or_si128(_mm_and_si128(colour, _mm_set1_epi32(0x00FFFFFF)), alpha);
}

}  // namespace vec

constexpr long kAhead = 2048;

// Constant alphas over rows of n pixels of C elements: sixteen elements at a time, the
// fourth channel of AC4 put back from the destination, the rest by the scalar rule.
template <int kOp, int C, int W>
void constRowVec(const Const8u& k, const Kro8u* s1, const Kro8u* s2, Kro8u* d, long n)
{
    const long e = n * C;
    const __m128i keep = _mm_set1_epi32(int(0xFF000000u));
    long i = 0;
    for (; i + 16 <= e; i += 16) {
        // Two read streams and a write stream outrun the hardware prefetcher from the last
        // cache level; a line each, well ahead, is fetched by hand.
        if ((i & 63) == 0) {
            _mm_prefetch(reinterpret_cast<const char*>(s1 + i) + kAhead, _MM_HINT_T0);
            _mm_prefetch(reinterpret_cast<const char*>(s2 + i) + kAhead, _MM_HINT_T0);
        }
        __m128i r = vec::constOp<kOp>(k, vec::load(s1 + i), vec::load(s2 + i));
        if constexpr (C != W) r = _mm_or_si128(_mm_andnot_si128(keep, r), _mm_and_si128(keep, vec::load(d + i)));
        vec::store(d + i, r);
    }
    // The vectors stop on a pixel for four channels; three written channels of three share one
    // rule, so their tail may start inside a pixel.
    if constexpr (C == W) constRow<kOp, Kro8u, 1, 1>(k, Kro8u(k.a1), Kro8u(k.a2), s1 + i, s2 + i, d + i, e - i);
    else constRow<kOp, Kro8u, C, W>(k, Kro8u(k.a1), Kro8u(k.a2), s1 + i, s2 + i, d + i, (e - i) / C);
}

template <int C, int W>
bool constRows8u(int op, Kro8u a1, Kro8u a2, const Kro8u* s1, int st1, const Kro8u* s2, int st2, Kro8u* d, int sd,
                 KroiSize roi)
{
    const Const8u k = const8u(op, a1, a2);
    const auto A = rows::image(s1, st1), B = rows::image(s2, st2);
    const auto D = rows::image(d, sd);
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(roi.width) * C;
    const bool merged = rows::merged(rowBytes, A, B, D);
    const long width = merged ? long(roi.width) * roi.height : roi.width;
    const int height = merged ? 1 : roi.height;
    withOp(op, [&](auto o) {
        for (int y = 0; y < height; ++y) constRowVec<o(), C, W>(k, A.row(y), B.row(y), D.row(y), width);
    });
    return true;
}

// Per-pixel alphas, AC4: Over in vectors, the other operations by the plain rows.
inline bool pixelRows8u(int op, const Kro8u* s1, int st1, const Kro8u* s2, int st2, Kro8u* d, int sd, KroiSize roi)
{
    if (op != kOver) return false;
    const auto A = rows::image(s1, st1), B = rows::image(s2, st2);
    const auto D = rows::image(d, sd);
    for (int y = 0; y < roi.height; ++y) {
        const Kro8u* a = A.row(y);
        const Kro8u* b = B.row(y);
        Kro8u* r = D.row(y);
        long p = 0;
        for (; p + 4 <= roi.width; p += 4) vec::store(r + 4 * p, vec::pixelOver(vec::load(a + 4 * p), vec::load(b + 4 * p)));
        pixelRow<kOver, Kro8u, 4>(a + 4 * p, b + 4 * p, r + 4 * p, roi.width - p);
    }
    return true;
}

}  // namespace KROI_TIER::tone::alpha
