// e^x and ln x for four floats at a time, in single precision with SSE2 only, so that the
// result of every input is the same bits on every x86-64 processor (no fused multiply-add, no
// table whose contents depend on a library).  Both run inside DefaultFloatScope: the
// conversions round to nearest and subnormals are kept.
//
// exp4: x = n ln 2 + r with n = round(x / ln 2) and |r| <= ln 2 / 2, ln 2 split in two parts
//       (the first with few bits, so that n times it is exact); e^r by its Taylor polynomial
//       of degree 7 (truncation below 2^-27 relative); the result scaled by 2^n as two powers
//       of two, each a normal float, so that results near overflow and in the subnormal range
//       are rounded once, by the last multiplication.  x is clamped to [-104, 89] first:
//       e^-104 is below half the smallest subnormal and e^89 above the largest float, so the
//       clamp leaves 0 and +inf as they are; NaN is put back at the end.
// log4: x = 2^e m with m in [sqrt(1/2), sqrt(2)), f = m - 1, s = f / (2 + f), and
//       ln(1 + f) = f - f^2/2 + s (f^2/2 + R(s^2)), R an odd-power series of four terms;
//       e ln 2 added in two parts.  Subnormal inputs are scaled by 2^25 first.  ln 0 = -inf,
//       ln of a negative value or NaN is NaN, ln +inf = +inf.
//
// The tests measure both against a long-double reference over a dense sweep of every float
// range and state the bound in the header.
#pragma once

#include <emmintrin.h>
#include <xmmintrin.h>

#include "frame/base.hpp"

namespace KROI_TIER::mathlanes {

inline __m128 exp4(__m128 x)
{
    const __m128 nan = _mm_cmpunord_ps(x, x);
    const __m128 xc = _mm_max_ps(_mm_min_ps(x, _mm_set1_ps(89.0f)), _mm_set1_ps(-104.0f));
    const __m128i n = _mm_cvtps_epi32(_mm_mul_ps(xc, _mm_set1_ps(1.44269504088896341f)));
    const __m128 fn = _mm_cvtepi32_ps(n);
    // ln 2 = 0.693359375 - 2.12194440e-4: the first part has 9 significant bits, so
    // n times it (|n| <= 150) is exact and so is the first subtraction.
    __m128 r = _mm_sub_ps(xc, _mm_mul_ps(fn, _mm_set1_ps(0.693359375f)));
    r = _mm_sub_ps(r, _mm_mul_ps(fn, _mm_set1_ps(-2.12194440e-4f)));
    // 1 + r + r^2/2! + ... + r^7/7!, the inner terms first.
    __m128 p = _mm_set1_ps(1.0f / 5040.0f);
    p = _mm_add_ps(_mm_mul_ps(p, r), _mm_set1_ps(1.0f / 720.0f));
    p = _mm_add_ps(_mm_mul_ps(p, r), _mm_set1_ps(1.0f / 120.0f));
    p = _mm_add_ps(_mm_mul_ps(p, r), _mm_set1_ps(1.0f / 24.0f));
    p = _mm_add_ps(_mm_mul_ps(p, r), _mm_set1_ps(1.0f / 6.0f));
    p = _mm_add_ps(_mm_mul_ps(p, r), _mm_set1_ps(0.5f));
    p = _mm_add_ps(_mm_mul_ps(_mm_mul_ps(p, r), r), r);
    p = _mm_add_ps(p, _mm_set1_ps(1.0f));
    // 2^n = 2^n1 2^n2 with n1 = floor(n / 2), both within [-75, 65].
    const __m128i n1 = _mm_srai_epi32(n, 1), n2 = _mm_sub_epi32(n, n1);
    const __m128i bias = _mm_set1_epi32(127);
    const __m128 s1 = _mm_castsi128_ps(_mm_slli_epi32(_mm_add_epi32(n1, bias), 23));
    const __m128 s2 = _mm_castsi128_ps(_mm_slli_epi32(_mm_add_epi32(n2, bias), 23));
    const __m128 y = _mm_mul_ps(_mm_mul_ps(p, s1), s2);
    return _mm_or_ps(_mm_and_ps(nan, x), _mm_andnot_ps(nan, y));
}

inline __m128 log4(__m128 x)
{
    const __m128 zero = _mm_setzero_ps();
    // Subnormals (and zeros, which are handled at the end) scaled up by 2^25.
    const __m128 tiny = _mm_cmplt_ps(x, _mm_set1_ps(1.17549435e-38f));
    const __m128 xs = _mm_or_ps(_mm_and_ps(tiny, _mm_mul_ps(x, _mm_set1_ps(33554432.0f))), _mm_andnot_ps(tiny, x));
    const __m128i bits = _mm_castps_si128(xs);
    __m128i e = _mm_sub_epi32(_mm_srli_epi32(bits, 23), _mm_set1_epi32(127));
    e = _mm_sub_epi32(e, _mm_and_si128(_mm_castps_si128(tiny), _mm_set1_epi32(25)));
    // m in [1, 2); above sqrt(2) it is halved and e counts one more.
    __m128 m = _mm_castsi128_ps(_mm_or_si128(_mm_and_si128(bits, _mm_set1_epi32(0x007FFFFF)), _mm_set1_epi32(0x3F800000)));
    const __m128 big = _mm_cmpgt_ps(m, _mm_set1_ps(1.41421354f));
    m = _mm_or_ps(_mm_and_ps(big, _mm_mul_ps(m, _mm_set1_ps(0.5f))), _mm_andnot_ps(big, m));
    e = _mm_sub_epi32(e, _mm_castps_si128(big)); // the mask is -1 where big
    const __m128 fe = _mm_cvtepi32_ps(e);
    const __m128 f = _mm_sub_ps(m, _mm_set1_ps(1.0f));
    const __m128 s = _mm_div_ps(f, _mm_add_ps(f, _mm_set1_ps(2.0f)));
    const __m128 z = _mm_mul_ps(s, s), w = _mm_mul_ps(z, z);
    const __m128 t1 = _mm_mul_ps(w, _mm_add_ps(_mm_set1_ps(0.40000972152f), _mm_mul_ps(w, _mm_set1_ps(0.24279078841f))));
    const __m128 t2 = _mm_mul_ps(z, _mm_add_ps(_mm_set1_ps(0.66666662693f), _mm_mul_ps(w, _mm_set1_ps(0.28498786688f))));
    const __m128 rr = _mm_add_ps(t2, t1);
    const __m128 hfsq = _mm_mul_ps(_mm_mul_ps(_mm_set1_ps(0.5f), f), f);
    // e ln2_hi - ((hfsq - (s (hfsq + R) + e ln2_lo)) - f); ln2_hi has 16 significant bits.
    const __m128 inner = _mm_add_ps(_mm_mul_ps(s, _mm_add_ps(hfsq, rr)), _mm_mul_ps(fe, _mm_set1_ps(9.0580006145e-06f)));
    __m128 y = _mm_sub_ps(_mm_mul_ps(fe, _mm_set1_ps(6.9313812256e-01f)), _mm_sub_ps(_mm_sub_ps(hfsq, inner), f));
    // Specials: +inf and NaN give themselves, 0 gives -inf, negatives NaN.
    const __m128 inf = _mm_set1_ps(__builtin_inff());
    const __m128 self = _mm_or_ps(_mm_cmpeq_ps(x, inf), _mm_cmpunord_ps(x, x));
    y = _mm_or_ps(_mm_and_ps(self, x), _mm_andnot_ps(self, y));
    const __m128 isZero = _mm_cmpeq_ps(x, zero);
    y = _mm_or_ps(_mm_and_ps(isZero, _mm_sub_ps(zero, inf)), _mm_andnot_ps(isZero, y));
    const __m128 negative = _mm_cmplt_ps(x, zero);
    return _mm_or_ps(_mm_and_ps(negative, _mm_set1_ps(__builtin_nanf(""))), _mm_andnot_ps(negative, y));
}

// One float through the same lanes, so that a row's tail gets the bits its bulk would.
inline float exp1(float x) { return _mm_cvtss_f32(exp4(_mm_set1_ps(x))); }
inline float log1(float x) { return _mm_cvtss_f32(log4(_mm_set1_ps(x))); }

}  // namespace KROI_TIER::mathlanes
