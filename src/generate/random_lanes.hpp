// The random numbers of the noise functions, four lanes at a time with SSE2 only, so that a
// seed gives the same image on every x86-64 processor.
//
// Generator: the caller's 32-bit state s walks a Weyl sequence, s += 0x9E3779B9 (the golden
// ratio's fraction of 2^32) per sample, and each new state goes through the 32-bit finaliser
// of MurmurHash3:
//     z ^= z >> 16;  z *= 0x85EBCA6B;  z ^= z >> 13;  z *= 0xC2B2AE35;  z ^= z >> 16;
// The finaliser is a bijection with full avalanche, so every seed gives a sequence of period
// 2^32, and sample k of a call is a function of s + k 0x9E3779B9 alone: four lanes compute
// samples k..k+3 at once, and a call leaves s advanced by the samples it used.
//
// Uniform: sample z gives u = (z >> 8) / 16777215 (one IEEE division, so 0 and 1 both occur),
// and the noise low + (high - low) u, in single precision.
// Gaussian (Box-Muller): samples z1, z2 give u1 = ((z1 >> 8) + 1) 2^-24 in (0, 1], a quarter
// turn j = z2 >> 30 and f = (z2 & 0x3FFFFFFF) 2^-30 within it; rho = sqrt(-2 ln u1) and the
// angle (j + f) pi / 2 give the pair rho cos, rho sin.  ln is the library's own (math_lanes),
// cos and sin of f pi / 2 are Taylor polynomials of degree 12 and 11 on [0, pi / 2).  rho
// stays below 5.8, so the noise never leaves mean +- 5.8 stdDev.
#pragma once

#include <emmintrin.h>

#include <cstdint>

#include "arith/math_lanes.hpp"
#include "frame/base.hpp"

namespace KROI_TIER::generate {

inline constexpr uint32_t kWeyl = 0x9E3779B9u;

// The scalar definition of sample k >= 1 after state s.
constexpr uint32_t sample(uint32_t s, uint32_t k)
{
    uint32_t z = s + k * kWeyl;
    z ^= z >> 16;
    z *= 0x85EBCA6Bu;
    z ^= z >> 13;
    z *= 0xC2B2AE35u;
    z ^= z >> 16;
    return z;
}

// The low 32 bits of a times b in each lane (SSE2 has no 32-bit lane product).
inline __m128i mul32(__m128i a, __m128i b)
{
    const __m128i even = _mm_mul_epu32(a, b);
    const __m128i odd = _mm_mul_epu32(_mm_srli_epi64(a, 32), _mm_srli_epi64(b, 32));
    return _mm_unpacklo_epi32(_mm_shuffle_epi32(even, 0x08), _mm_shuffle_epi32(odd, 0x08));
}

// The finaliser on four states.
inline __m128i mix4(__m128i z)
{
    z = _mm_xor_si128(z, _mm_srli_epi32(z, 16));
    z = mul32(z, _mm_set1_epi32(int(0x85EBCA6Bu)));
    z = _mm_xor_si128(z, _mm_srli_epi32(z, 13));
    z = mul32(z, _mm_set1_epi32(int(0xC2B2AE35u)));
    return _mm_xor_si128(z, _mm_srli_epi32(z, 16));
}

// Samples k, k + step, k + 2 step, k + 3 step after state s.
inline __m128i samples4(uint32_t s, uint32_t k, uint32_t step)
{
    const __m128i lanes = _mm_setr_epi32(0, int(step), int(2 * step), int(3 * step));
    const __m128i first = _mm_set1_epi32(int(s + k * kWeyl));
    return mix4(_mm_add_epi32(first, mul32(lanes, _mm_set1_epi32(int(kWeyl)))));
}

// Uniform noise of samples z.
inline __m128 uniform4(__m128i z, __m128 low, __m128 range)
{
    const __m128 u = _mm_div_ps(_mm_cvtepi32_ps(_mm_srli_epi32(z, 8)), _mm_set1_ps(16777215.0f));
    return _mm_add_ps(low, _mm_mul_ps(range, u));
}

// Standard normal pairs from samples z1 (radius) and z2 (angle): cosine parts and sine parts.
inline void gauss4(__m128i z1, __m128i z2, __m128* cosPart, __m128* sinPart)
{
    const __m128 u1 = _mm_mul_ps(_mm_cvtepi32_ps(_mm_add_epi32(_mm_srli_epi32(z1, 8), _mm_set1_epi32(1))),
                                 _mm_set1_ps(5.9604644775390625e-8f)); // 2^-24
    const __m128 rho = _mm_sqrt_ps(_mm_mul_ps(_mm_set1_ps(-2.0f), mathlanes::log4(u1)));
    // x = f pi / 2 in [0, pi / 2), from the low 30 bits (exact in two steps: 2^-30 then pi / 2).
    const __m128 f = _mm_mul_ps(_mm_cvtepi32_ps(_mm_and_si128(z2, _mm_set1_epi32(0x3FFFFFFF))),
                                _mm_set1_ps(9.3132257461547852e-10f)); // 2^-30
    const __m128 x = _mm_mul_ps(f, _mm_set1_ps(1.57079632679489662f)), x2 = _mm_mul_ps(x, x);
    __m128 c = _mm_set1_ps(1.0f / 479001600.0f); // 1/12!
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(-1.0f / 3628800.0f));
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(1.0f / 40320.0f));
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(-1.0f / 720.0f));
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(1.0f / 24.0f));
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(-0.5f));
    c = _mm_add_ps(_mm_mul_ps(c, x2), _mm_set1_ps(1.0f));
    __m128 s = _mm_set1_ps(-1.0f / 39916800.0f); // -1/11!
    s = _mm_add_ps(_mm_mul_ps(s, x2), _mm_set1_ps(1.0f / 362880.0f));
    s = _mm_add_ps(_mm_mul_ps(s, x2), _mm_set1_ps(-1.0f / 5040.0f));
    s = _mm_add_ps(_mm_mul_ps(s, x2), _mm_set1_ps(1.0f / 120.0f));
    s = _mm_add_ps(_mm_mul_ps(s, x2), _mm_set1_ps(-1.0f / 6.0f));
    s = _mm_add_ps(_mm_mul_ps(_mm_mul_ps(s, x2), x), x);
    // Quarter turn j: (cos, sin) -> (c, s), (-s, c), (-c, -s), (s, -c).
    const __m128i j = _mm_srli_epi32(z2, 30);
    const __m128 swap = _mm_castsi128_ps(_mm_slli_epi32(j, 31)); // j odd: all bits where set below
    const __m128 oddMask = _mm_castsi128_ps(_mm_srai_epi32(_mm_castps_si128(swap), 31));
    const __m128 cs = _mm_or_ps(_mm_and_ps(oddMask, s), _mm_andnot_ps(oddMask, c));
    const __m128 sn = _mm_or_ps(_mm_and_ps(oddMask, c), _mm_andnot_ps(oddMask, s));
    // cos is negative for j = 1, 2; sin for j = 2, 3.
    const __m128i one = _mm_set1_epi32(1), two = _mm_set1_epi32(2);
    const __m128i cosNeg = _mm_or_si128(_mm_cmpeq_epi32(j, one), _mm_cmpeq_epi32(j, two));
    const __m128i sinNeg = _mm_cmpgt_epi32(j, one);
    const __m128 signBit = _mm_castsi128_ps(_mm_set1_epi32(INT32_MIN));
    *cosPart = _mm_mul_ps(rho, _mm_xor_ps(cs, _mm_and_ps(_mm_castsi128_ps(cosNeg), signBit)));
    *sinPart = _mm_mul_ps(rho, _mm_xor_ps(sn, _mm_and_ps(_mm_castsi128_ps(sinNeg), signBit)));
}

}  // namespace KROI_TIER::generate
