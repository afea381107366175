// Operations of the bitwise logic and shift families.  Each scalar body is the definition;
// the vector body gives the same bits for every lane.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <type_traits>

#include "arith/logic_rows.hpp"

namespace KROI_TIER::logic {

// ---- element-wise bit operations ----------------------------------------------------------

struct BitAnd {
    template <class T>
    static T scalar(T a, T b) { return T(a & b); }
    static __m128i vec(__m128i a, __m128i b) { return _mm_and_si128(a, b); }
};
struct BitOr {
    template <class T>
    static T scalar(T a, T b) { return T(a | b); }
    static __m128i vec(__m128i a, __m128i b) { return _mm_or_si128(a, b); }
};
struct BitXor {
    template <class T>
    static T scalar(T a, T b) { return T(a ^ b); }
    static __m128i vec(__m128i a, __m128i b) { return _mm_xor_si128(a, b); }
};

// A bit operation with one constant per channel on the right.
template <class Bit, class T, class Lay>
struct BitConst {
    T k[4];
    ChannelVectors<T, Lay> kv;
    explicit BitConst(const T (&values)[4]) : k{values[0], values[1], values[2], values[3]}, kv(values) {}
    T scalar(T v, int c) const { return Bit::scalar(v, k[c]); }
    __m128i vec(__m128i v, int phase) const { return Bit::vec(v, kv.v[phase]); }
};

// ---- complement: two's complement to sign and magnitude, and back --------------------------

// m is all ones for a negative value; (v ^ m) - m is then its magnitude, to which the sign
// bit is put back.  Applied twice it gives the value back, and the most negative value, whose
// magnitude does not fit, maps to itself.
template <class T>
struct Complement {
    static_assert(std::is_signed_v<T>);
    using U = std::make_unsigned_t<T>;
    static constexpr U kSign = U(U(1) << (sizeof(T) * 8 - 1));

    static T scalar(T v, int)
    {
        const U u = U(v);
        const U m = (u & kSign) ? U(~U(0)) : U(0);
        return T(U(U(U(u ^ m) - m) | U(u & kSign)));
    }
    static __m128i vec(__m128i v, int)
    {
        __m128i m, mag;
        if constexpr (sizeof(T) == 1) {
            m = _mm_cmpgt_epi8(_mm_setzero_si128(), v);
            mag = _mm_sub_epi8(_mm_xor_si128(v, m), m);
            return _mm_or_si128(mag, _mm_and_si128(v, _mm_set1_epi8(char(0x80))));
        } else if constexpr (sizeof(T) == 2) {
            m = _mm_srai_epi16(v, 15);
            mag = _mm_sub_epi16(_mm_xor_si128(v, m), m);
            return _mm_or_si128(mag, _mm_and_si128(v, _mm_set1_epi16(short(0x8000))));
        } else {
            m = _mm_srai_epi32(v, 31);
            mag = _mm_sub_epi32(_mm_xor_si128(v, m), m);
            return _mm_or_si128(mag, _mm_and_si128(v, _mm_set1_epi32(int(0x80000000u))));
        }
    }
};

// ---- shifts by a constant count -----------------------------------------------------------

// The count as the vector shift instructions take it, and for 8u the mask that drops the bits
// a 16-bit lane shift moves across a byte boundary.
struct ShiftCount {
    __m128i n;
    __m128i mask;
};

// v << c: bits shifted out are lost; a count of the type's width or more gives 0.
template <class T>
struct LShift {
    using U = std::make_unsigned_t<T>;
    static constexpr uint32_t kBits = sizeof(T) * 8;

    static T scalar(T v, uint32_t c) { return c >= kBits ? T(0) : T(U(uint32_t(U(v)) << c)); }
    static ShiftCount count(uint32_t c)
    {
        c = c > kBits ? kBits : c;
        return {_mm_cvtsi32_si128(int(c)), _mm_set1_epi8(char(uint8_t(c >= 8 ? 0 : 0xFF << c)))};
    }
    static __m128i vec(__m128i v, const ShiftCount& k)
    {
        if constexpr (sizeof(T) == 1) return _mm_and_si128(_mm_sll_epi16(v, k.n), k.mask);
        else if constexpr (sizeof(T) == 2) return _mm_sll_epi16(v, k.n);
        else return _mm_sll_epi32(v, k.n);
    }
};

// v >> c: logical for the unsigned types (a count of the width or more gives 0), arithmetic
// for the signed ones (a count of the width or more gives the sign: 0 or -1).
template <class T>
struct RShift {
    static constexpr uint32_t kBits = sizeof(T) * 8;

    static T scalar(T v, uint32_t c)
    {
        if constexpr (std::is_signed_v<T>) return T(v >> (c >= kBits ? kBits - 1 : c));
        else return c >= kBits ? T(0) : T(v >> c);
    }
    static ShiftCount count(uint32_t c)
    {
        c = c > kBits ? kBits : c;
        return {_mm_cvtsi32_si128(int(c)), _mm_set1_epi8(char(uint8_t(c >= 8 ? 0 : 0xFF >> c)))};
    }
    static __m128i vec(__m128i v, const ShiftCount& k)
    {
        if constexpr (sizeof(T) == 1) return _mm_and_si128(_mm_srl_epi16(v, k.n), k.mask);
        else if constexpr (std::is_same_v<T, Kro16u>) return _mm_srl_epi16(v, k.n);
        else if constexpr (std::is_same_v<T, Kro16s>) return _mm_sra_epi16(v, k.n); // >= 16 fills the sign
        else return _mm_sra_epi32(v, k.n);
    }
};

// Every channel shifted by the same count.
template <class Sh, class T>
struct UniformShift {
    uint32_t c;
    ShiftCount k;
    explicit UniformShift(uint32_t count) : c(count), k(Sh::count(count)) {}
    T scalar(T v, int) const { return Sh::scalar(v, c); }
    __m128i vec(__m128i v, int) const { return Sh::vec(v, k); }
};

// A count per channel: each lane takes the vector shifted by its own channel's count.
template <class Sh, class T, class Lay>
struct ChannelShift {
    static constexpr int kC = Lay::kChannels;
    uint32_t c[4];
    ShiftCount k[kC];
    __m128i lanes[Lay::kPhases][kC]; // all ones where a lane belongs to the channel
    explicit ChannelShift(const uint32_t (&counts)[4]) : c{counts[0], counts[1], counts[2], counts[3]}
    {
        for (int ch = 0; ch < kC; ++ch) {
            k[ch] = Sh::count(c[ch]);
            for (int p = 0; p < Lay::kPhases; ++p)
                lanes[p][ch] = patternVector<T>(p, [&](long i) { return T(i % Lay::kElems == ch ? ~T(0) : T(0)); });
        }
    }
    T scalar(T v, int ch) const { return Sh::scalar(v, c[ch]); }
    __m128i vec(__m128i v, int phase) const
    {
        __m128i r = _mm_and_si128(Sh::vec(v, k[0]), lanes[phase][0]);
        for (int ch = 1; ch < kC; ++ch) r = _mm_or_si128(r, _mm_and_si128(Sh::vec(v, k[ch]), lanes[phase][ch]));
        return r;
    }
};

}  // namespace KROI_TIER::logic
