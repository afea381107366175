// Sixteen elements in flight: the common middle of every vector conversion kernel.
//
// A conversion kernel loads 16 source elements as sixteen 32-bit lanes (four SSE registers
// of int32, or of float when the source is float), transforms the lanes, and stores them as
// 16 destination elements.  Loading widens exactly; storing an integer destination narrows
// with saturation (the packs instructions), storing a float destination converts int32 lanes
// with cvtdq2ps.  So every pair of types that fits in 32-bit lanes shares one load and one
// store per type, and an operation only says what happens to the lanes.
#pragma once

#include <emmintrin.h>
#include <pmmintrin.h>
#include <smmintrin.h>

#include <cstdint>
#include <cstring>
#include <type_traits>

#include "frame/base.hpp"
#include "frame/cpu.hpp"

namespace KROI_TIER::cvt::lanes {

constexpr long kBlock = 16;  // elements per vector step

struct I4 {
    __m128i v[4];
};
struct F4 {
    __m128 v[4];
};

// Stores: plain unaligned, or non-temporal (the destination must then be 16-byte aligned).
struct StoreU {
    static void si(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
    static void ps(float* p, __m128 v) { _mm_storeu_ps(p, v); }
};
struct StoreNT {
    static void si(void* p, __m128i v) { _mm_stream_si128(static_cast<__m128i*>(p), v); }
    static void ps(float* p, __m128 v) { _mm_stream_ps(p, v); }
};

// Whether type T travels in the lanes (32u does not: its upper half has no int32 lane).
template <class T>
constexpr bool kFits = std::is_same_v<T, Kro8u> || std::is_same_v<T, Kro8s> ||
                       std::is_same_v<T, Kro16u> || std::is_same_v<T, Kro16s> ||
                       std::is_same_v<T, Kro32s> || std::is_same_v<T, Kro32f>;
// A 32u destination is reached from int32 lanes that are known to be non-negative or are
// clamped to 0, so it may be stored to.
template <class T>
constexpr bool kStorable = kFits<T> || std::is_same_v<T, Kro32u>;

inline __m128i loadu(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

template <class S>
inline auto load(const S* p)
{
    const __m128i z = _mm_setzero_si128();
    if constexpr (std::is_same_v<S, Kro32f>) {
        return F4{{_mm_loadu_ps(p), _mm_loadu_ps(p + 4), _mm_loadu_ps(p + 8), _mm_loadu_ps(p + 12)}};
    } else if constexpr (std::is_same_v<S, Kro8u>) {
        const __m128i x = loadu(p), lo = _mm_unpacklo_epi8(x, z), hi = _mm_unpackhi_epi8(x, z);
        return I4{{_mm_unpacklo_epi16(lo, z), _mm_unpackhi_epi16(lo, z), _mm_unpacklo_epi16(hi, z),
                   _mm_unpackhi_epi16(hi, z)}};
    } else if constexpr (std::is_same_v<S, Kro8s>) {
        const __m128i x = loadu(p);  // each byte into the top of a word, then shifted down
        const __m128i lo = _mm_srai_epi16(_mm_unpacklo_epi8(x, x), 8);
        const __m128i hi = _mm_srai_epi16(_mm_unpackhi_epi8(x, x), 8);
        return I4{{_mm_srai_epi32(_mm_unpacklo_epi16(lo, lo), 16), _mm_srai_epi32(_mm_unpackhi_epi16(lo, lo), 16),
                   _mm_srai_epi32(_mm_unpacklo_epi16(hi, hi), 16), _mm_srai_epi32(_mm_unpackhi_epi16(hi, hi), 16)}};
    } else if constexpr (std::is_same_v<S, Kro16u>) {
        const __m128i a = loadu(p), b = loadu(p + 8);
        return I4{{_mm_unpacklo_epi16(a, z), _mm_unpackhi_epi16(a, z), _mm_unpacklo_epi16(b, z),
                   _mm_unpackhi_epi16(b, z)}};
    } else if constexpr (std::is_same_v<S, Kro16s>) {
        const __m128i a = loadu(p), b = loadu(p + 8);
        return I4{{_mm_srai_epi32(_mm_unpacklo_epi16(a, a), 16), _mm_srai_epi32(_mm_unpackhi_epi16(a, a), 16),
                   _mm_srai_epi32(_mm_unpacklo_epi16(b, b), 16), _mm_srai_epi32(_mm_unpackhi_epi16(b, b), 16)}};
    } else {
        static_assert(std::is_same_v<S, Kro32s>);
        return I4{{loadu(p), loadu(p + 4), loadu(p + 8), loadu(p + 12)}};
    }
}

// Source lines are asked for this many elements ahead of the loads.  The hardware prefetcher
// alone leaves a single core waiting on the L3 and on memory; 2048 elements (8 KiB of float,
// 4 KiB of 16-bit source) cover the latency of either at the rate these loops consume
// data, where 1 KiB was enough for the L3 but lost time on images that come from memory.
// Loops stop prefetching that far before the row's end, so that no address outside the
// caller's rows is ever named.
constexpr long kPrefetchAhead = 2048;

// Asks for the line kPrefetchAhead elements beyond p (and the next one when a step of two
// blocks reads two lines).  8-bit sources are left to the hardware: their destination is
// two to four times larger and sets the pace, and from memory the extra requests cost
// 8u to 32f a fifth of its speed.
template <class S>
inline void prefetch(const S* p)
{
    if constexpr (sizeof(S) > 1) {
        const char* c = reinterpret_cast<const char*>(p + kPrefetchAhead);
        _mm_prefetch(c, _MM_HINT_T0);
        if constexpr (sizeof(S) == 4) _mm_prefetch(c + 64, _MM_HINT_T0);
    }
}
// prefetch(p + i) stays inside a row of n elements while i is below this.
template <class S>
constexpr long prefetchEnd(long n)
{
    return n - kPrefetchAhead - 128 / long(sizeof(S));
}

// 8- and 16-bit sources with SSE4.1: each four elements widen straight from memory with one
// pmovzx or pmovsx, where load() needs a cascade of unpacks that keeps the shuffle unit busy.
template <class S>
constexpr bool kWidens = sizeof(S) <= 2 && std::is_integral_v<S>;

template <class S>
KROI_SSE41 inline I4 load_sse41(const S* p)
    requires kWidens<S>
{
    I4 r;
    for (int k = 0; k < 4; ++k) {
        if constexpr (sizeof(S) == 1) {
            int32_t w;
            std::memcpy(&w, p + 4 * k, 4);
            const __m128i x = _mm_cvtsi32_si128(w);
            r.v[k] = std::is_signed_v<S> ? _mm_cvtepi8_epi32(x) : _mm_cvtepu8_epi32(x);
        } else {
            const __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p + 4 * k));
            r.v[k] = std::is_signed_v<S> ? _mm_cvtepi16_epi32(x) : _mm_cvtepu16_epi32(x);
        }
    }
    return r;
}

// int32 lanes below 0 become 0.
inline __m128i clampNegative(__m128i v) { return _mm_andnot_si128(_mm_srai_epi32(v, 31), v); }

template <class St, class D>
inline void store(D* p, const I4& x)
{
    if constexpr (std::is_same_v<D, Kro32f>) {
        for (int k = 0; k < 4; ++k) St::ps(p + 4 * k, _mm_cvtepi32_ps(x.v[k]));
    } else if constexpr (std::is_same_v<D, Kro32s>) {
        for (int k = 0; k < 4; ++k) St::si(p + 4 * k, x.v[k]);
    } else if constexpr (std::is_same_v<D, Kro32u>) {
        for (int k = 0; k < 4; ++k) St::si(p + 4 * k, clampNegative(x.v[k]));
    } else if constexpr (std::is_same_v<D, Kro16s>) {
        St::si(p, _mm_packs_epi32(x.v[0], x.v[1]));
        St::si(p + 8, _mm_packs_epi32(x.v[2], x.v[3]));
    } else if constexpr (std::is_same_v<D, Kro16u>) {
        // No unsigned 32-to-16 pack below SSE4.1: shift 0..65535 onto the signed range, pack
        // with signed saturation and shift back; negatives are cleared first so that the
        // subtraction cannot wrap.
        const __m128i bias = _mm_set1_epi32(32768), flip = _mm_set1_epi16(-32768);
        __m128i w[4];
        for (int k = 0; k < 4; ++k) w[k] = _mm_sub_epi32(clampNegative(x.v[k]), bias);
        St::si(p, _mm_xor_si128(_mm_packs_epi32(w[0], w[1]), flip));
        St::si(p + 8, _mm_xor_si128(_mm_packs_epi32(w[2], w[3]), flip));
    } else if constexpr (std::is_same_v<D, Kro8u>) {
        // Saturating to 16s first keeps the order of values, so the second pack clamps right.
        St::si(p, _mm_packus_epi16(_mm_packs_epi32(x.v[0], x.v[1]), _mm_packs_epi32(x.v[2], x.v[3])));
    } else {
        static_assert(std::is_same_v<D, Kro8s>);
        St::si(p, _mm_packs_epi16(_mm_packs_epi32(x.v[0], x.v[1]), _mm_packs_epi32(x.v[2], x.v[3])));
    }
}

// Stores x as store() would unless a lane holds INT32_MIN, the value cvtps2dq gives for NaN
// and for floats beyond the int32 range; returns whether it stored.  A lane near INT32_MIN
// may refuse as well, which only costs its block the slow path.
template <class St, class D>
inline bool storeUnlessIntMin(D* p, const I4& x)
{
    const __m128i kMin16 = _mm_set1_epi16(-32768);
    if constexpr (sizeof(D) == 1) {
        // INT32_MIN packs to -32768, the least 16-bit value, so one minimum of the two packed
        // registers shows it.  (So does a true -32768, which saturates to the same byte.)
        const __m128i a = _mm_packs_epi32(x.v[0], x.v[1]), b = _mm_packs_epi32(x.v[2], x.v[3]);
        if (_mm_movemask_epi8(_mm_cmpeq_epi16(_mm_min_epi16(a, b), kMin16)) != 0) return false;
        St::si(p, std::is_same_v<D, Kro8u> ? _mm_packus_epi16(a, b) : _mm_packs_epi16(a, b));
    } else {
        // A 16-bit destination saturates many values to -32768, so look before packing: the
        // upper half of INT32_MIN is the least 16-bit value and survives a 16-bit minimum.
        const __m128i m = _mm_min_epi16(_mm_min_epi16(x.v[0], x.v[1]), _mm_min_epi16(x.v[2], x.v[3]));
        if ((_mm_movemask_epi8(_mm_cmpeq_epi16(m, kMin16)) & 0xCCCC) != 0) return false;
        store<St>(p, x);
    }
    return true;
}

template <class St, class D>
inline void store(D* p, const F4& x)
{
    static_assert(std::is_same_v<D, Kro32f>, "float lanes reach an integer type only through a rounding operation");
    for (int k = 0; k < 4; ++k) St::ps(p + 4 * k, x.v[k]);
}

}  // namespace KROI_TIER::cvt::lanes
