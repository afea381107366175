// The conversion operations.  Each is a struct whose scalar() is the definition of one
// element's result; lanes(), where present, must give the same bits for sixteen elements at
// once (see convert_lanes.hpp) and is used for the bulk of a row.  Float results that
// depend on the processor's rounding control (cvtps2dq, cvtdq2ps of 32-bit integers, float
// products) are computed inside a RoundingScope that the API function opens; scalar bodies
// round in software and so agree with the vector bodies under that scope.
#pragma once

#include <cmath>
#include <limits>

#include "convert/convert_lanes.hpp"
#include <smmintrin.h>

#include "frame/cpu.hpp"
#include "frame/fpround.hpp"
#include "frame/round.hpp"

namespace KROI_TIER::cvt {

template <class T>
constexpr bool kFloat = std::is_floating_point_v<T>;

// The compiler assumes one rounding for all float arithmetic and may compute an expression
// of the caller's arguments before a RoundingScope opens (or reuse one computed there).
// Passing the arguments through this after the scope opens makes them new values, so that
// everything computed from them is computed under the scope.
template <class F>
inline void underScope1(F& v)
{
    asm volatile("" : "+x"(v));
}
template <class... F>
inline void underScope(F&... v)
{
    (underScope1(v), ...);
}

// A float value rounded to an integral value by rounding mode: 0 toward zero, 1 to nearest
// with ties to even, every other value to nearest with ties away from zero.
inline double roundByMode(double v, int mode)
{
    return mode == kroRndZero ? roundTowardZero(v) : mode == kroRndNear ? roundHalfEven(v) : roundHalfAway(v);
}

// v x 2^-s for s > 0 rounded by mode, for |v| < 2^40 (every integer source fits).
inline int64_t shiftByMode(int64_t v, int s, int mode)
{
    if (mode == kroRndNear) return shiftRoundEven(v, s);
    if (s > 48) return 0;  // |v| / 2^s is below one half
    const int64_t a = v < 0 ? -v : v;
    const int64_t q = mode == kroRndZero ? a >> s : (a + (int64_t{1} << (s - 1))) >> s;
    return v < 0 ? -q : q;
}

// ---- exact widening, saturating narrowing, signed to unsigned -----------------------------
// Float destinations from 32-bit integers round to nearest (the API opens the scope).
template <class S, class D>
struct Saturate {
    static constexpr bool kVector = lanes::kFits<S> && lanes::kStorable<D> && !std::is_same_v<S, Kro32f>;
    static D scalar(S v)
    {
        if constexpr (kFloat<D>) return static_cast<D>(v);
        else return saturate<D>(int64_t(v));
    }
    static lanes::I4 lanes(const lanes::I4& x) { return x; }

    // 16-bit to 8u without the detour through 32-bit lanes: one pack with unsigned
    // saturation (16u is first clamped to 255, which the signed pack then keeps).
    template <class St>
    static void direct(const S* s, D* d)
        requires(sizeof(S) == 2 && std::is_same_v<D, Kro8u>)
    {
        __m128i a = lanes::loadu(s), b = lanes::loadu(s + 8);
        if constexpr (std::is_same_v<S, Kro16u>) {
            const __m128i top = _mm_set1_epi16(255);
            a = _mm_sub_epi16(a, _mm_subs_epu16(a, top));
            b = _mm_sub_epi16(b, _mm_subs_epu16(b, top));
        }
        St::si(d, _mm_packus_epi16(a, b));
    }

    // 16u to 8u with SSE4.1: the clamp to 255 is one pminuw per eight elements.
    KROI_SSE41 static void direct_sse41(const S* s, D* d)
        requires(std::is_same_v<S, Kro16u> && std::is_same_v<D, Kro8u>)
    {
        const __m128i top = _mm_set1_epi16(255);
        const __m128i a = _mm_min_epu16(lanes::loadu(s), top), b = _mm_min_epu16(lanes::loadu(s + 8), top);
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_packus_epi16(a, b));
    }
};

// ---- float to integer, sixteen at a time ---------------------------------------------------
// D is 8 or 16 bits.  NaN gives 0.  kScaled multiplies by 2^-scaleFactor first: in float
// that is exact, or it overflows (and the result saturates either way), or it falls below
// 2^-126 for a factor of 2^-100 or less (and every mode rounds that to 0).  Without kAway the
// vector body rounds by the processor's control, which the API sets to the mode (0 or 1).
template <class D, bool kAway, bool kScaled>
struct FloatToInt {
    static constexpr bool kVector = true;
    int mode = kroRndNear;
    float factor = 1.0f;

    D scalar(Kro32f x) const
    {
        const double v = kScaled ? double(x) * double(factor) : double(x);
        return saturateIntegral<D>(roundByMode(v, kAway ? kroRndNearAway : mode));
    }
    // One conversion per lane and nothing else.  Wherever no lane converts to INT32_MIN the
    // value was neither NaN nor beyond the int32 range, and the saturating stores clamp it
    // exactly as the clamp in lanes() would have.
    lanes::I4 unclamped(const lanes::F4& x) const
        requires(!kAway)
    {
        const __m128 f = _mm_set1_ps(factor);
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) r.v[k] = _mm_cvtps_epi32(kScaled ? _mm_mul_ps(x.v[k], f) : x.v[k]);
        return r;
    }
    lanes::I4 lanes(const lanes::F4& x) const
    {
        const __m128 lo = _mm_set1_ps(float(std::numeric_limits<D>::min()));
        const __m128 hi = _mm_set1_ps(float(std::numeric_limits<D>::max()));
        const __m128 f = _mm_set1_ps(factor), half = _mm_set1_ps(0.5f), mhalf = _mm_set1_ps(-0.5f);
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            const __m128 v = kScaled ? _mm_mul_ps(x.v[k], f) : x.v[k];
            if constexpr (!kAway) {
                // Only large positive values need clamping before the conversion: NaN and
                // values below -2^31 convert to INT32_MIN, which the packs saturate to the
                // minimum, and the minimum of an unsigned type is NaN's 0.  A signed type
                // clears NaN's lanes afterwards.  (minps returns its second operand, NaN,
                // when either is NaN.)
                const __m128i c = _mm_cvtps_epi32(_mm_min_ps(hi, v));
                r.v[k] = std::is_signed_v<D> ? _mm_and_si128(c, _mm_castps_si128(_mm_cmpord_ps(v, v))) : c;
            } else {
                // NaN to 0, clamp so that the conversion is exact, truncate, then step away
                // from zero when the dropped part is at least one half.
                const __m128 w = _mm_min_ps(_mm_max_ps(_mm_and_ps(v, _mm_cmpord_ps(v, v)), lo), hi);
                const __m128i t = _mm_cvttps_epi32(w);
                const __m128 d = _mm_sub_ps(w, _mm_cvtepi32_ps(t));
                const __m128i up = _mm_castps_si128(_mm_cmpge_ps(d, half));
                const __m128i down = _mm_castps_si128(_mm_cmple_ps(d, mhalf));
                r.v[k] = _mm_add_epi32(_mm_sub_epi32(t, up), down);
            }
        }
        return r;
    }
};

// Float or double to any integer type with a scale factor, one element at a time in double.
// The factor 2^-scaleFactor is applied as two powers of two of the same sign, each within
// the double range: every product is exact unless it overflows (saturates either way) or
// underflows far below one half (rounds to 0 either way).
template <class S, class D>
struct WideToInt {
    static constexpr bool kVector = false;
    int mode;
    double f1, f2;
    WideToInt(int roundMode, int scaleFactor) : mode(roundMode)
    {
        // Past +-2000 every finite product is already 0 or saturated; each half stays normal, so
        // an infinity times the factor stays infinite rather than becoming inf x 0.
        const int s = scaleFactor < -2000 ? -2000 : scaleFactor > 2000 ? 2000 : scaleFactor;
        f1 = std::ldexp(1.0, -(s / 2));
        f2 = std::ldexp(1.0, -(s - s / 2));
    }
    D scalar(S x) const { return saturateIntegral<D>(roundByMode(double(x) * f1 * f2, mode)); }
};

// Integer to integer with a scale factor: the exact value times 2^-scaleFactor, rounded by
// the rounding mode like a float source, then saturated.
template <class S, class D>
struct IntSfs {
    static constexpr bool kVector = false;
    int mode, sf;
    D scalar(S v) const
    {
        return saturate<D>(sf > 0 ? shiftByMode(int64_t(v), sf, mode) : scaleRoundEven(int64_t(v), sf));
    }
};

// The same in 32-bit lanes, for 8- and 16-bit sources and -15 <= scaleFactor <= 30: the
// source shifted up, or plus a rounding bias, then stays inside int32.  The API function
// checks the factor.
template <class S, class D>
struct IntSfsLanes : IntSfs<S, D> {
    static constexpr bool kVector = lanes::kWidens<S> && lanes::kStorable<D>;
    static constexpr bool fits(int scaleFactor) { return scaleFactor >= -15 && scaleFactor <= 30; }

    lanes::I4 lanes(const lanes::I4& x) const
    {
        const int sf = this->sf;
        const __m128i count = _mm_cvtsi32_si128(sf > 0 ? sf : -sf);
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            const __m128i v = x.v[k];
            if (sf <= 0) {
                r.v[k] = _mm_sll_epi32(v, count);
            } else if (this->mode == kroRndNear) {
                // floor((v + half - 1 + (floor(v / 2^sf) & 1)) / 2^sf): ties go to the even side
                const __m128i odd = _mm_and_si128(_mm_sra_epi32(v, count), _mm_set1_epi32(1));
                const __m128i bias = _mm_set1_epi32((1 << (sf - 1)) - 1);
                r.v[k] = _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(v, bias), odd), count);
            } else {
                // The magnitude shifted (plus one half away from zero), the sign put back.
                const __m128i sign = _mm_srai_epi32(v, 31);
                const __m128i add = _mm_set1_epi32(this->mode == kroRndZero ? 0 : 1 << (sf - 1));
                const __m128i a = _mm_sub_epi32(_mm_xor_si128(v, sign), sign);
                const __m128i q = _mm_srl_epi32(_mm_add_epi32(a, add), count);
                r.v[k] = _mm_sub_epi32(_mm_xor_si128(q, sign), sign);
            }
        }
        return r;
    }
};

// ---- range scaling between integer types ---------------------------------------------------
// 8u onto the whole range of D by repeating the byte: 0 goes to D's minimum, 255 to its maximum.
template <class D>
struct ScaleUp {
    static constexpr bool kVector = true;
    static D scalar(Kro8u v)
    {
        if constexpr (std::is_same_v<D, Kro16u>) return D(v * 257);
        else if constexpr (std::is_same_v<D, Kro16s>) return D(v * 257 - 32768);
        else return D(int64_t(v) * 16843009 - INT64_C(2147483648));
    }
    static lanes::I4 lanes(const lanes::I4& x)
    {
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            __m128i v = _mm_or_si128(x.v[k], _mm_slli_epi32(x.v[k], 8));
            if constexpr (std::is_same_v<D, Kro16s>) v = _mm_sub_epi32(v, _mm_set1_epi32(32768));
            if constexpr (std::is_same_v<D, Kro32s>)
                v = _mm_xor_si128(_mm_or_si128(v, _mm_slli_epi32(v, 16)), _mm_set1_epi32(INT32_MIN));
            r.v[k] = v;
        }
        return r;
    }
};

// The source range onto 0..255.  kBias moves an unsigned source onto the signed range;
// kShift is 8 for 16-bit sources and 24 for 32-bit ones.
template <class S>
struct ScaleDownTraits {
    static constexpr int kBias = std::is_same_v<S, Kro16u> ? 32768 : 0;
    static constexpr int kShift = sizeof(S) == 2 ? 8 : 24;
};

// Fast: ((v - (v >> 8)) >> shift) + 128 with arithmetic shifts, on the signed value; it
// divides by 257 (by 16843009 for 32 bits) closely enough that the ends map exactly.
template <class S>
struct ScaleDownFast {
    static constexpr bool kVector = true;
    using T = ScaleDownTraits<S>;
    static Kro8u scalar(S v)
    {
        const int32_t w = int32_t(int64_t(v) - T::kBias);
        return Kro8u(((w - (w >> 8)) >> T::kShift) + 128);
    }
    static lanes::I4 lanes(const lanes::I4& x)
    {
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            const __m128i w = _mm_sub_epi32(x.v[k], _mm_set1_epi32(T::kBias));
            const __m128i q = _mm_srai_epi32(_mm_sub_epi32(w, _mm_srai_epi32(w, 8)), T::kShift);
            r.v[k] = _mm_add_epi32(q, _mm_set1_epi32(128));
        }
        return r;
    }
};

// Accurate, 16-bit sources: (v - min) x 0.0038910505827516317 (255/65535 in single
// precision), the product in single precision, rounded to nearest, ties to even.
template <class S>
struct ScaleDownAccurate16 {
    static constexpr bool kVector = true;
    static constexpr float kFactor = 0.0038910505827516317f;
    static constexpr int kOffset = std::is_same_v<S, Kro16s> ? 32768 : 0;
    static Kro8u scalar(S v)
    {
        const float p = float(int32_t(v) + kOffset) * kFactor;
        return saturateIntegral<Kro8u>(roundHalfEven(p));
    }
    static lanes::I4 lanes(const lanes::I4& x)
    {
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            const __m128 f = _mm_cvtepi32_ps(_mm_add_epi32(x.v[k], _mm_set1_epi32(kOffset)));
            r.v[k] = _mm_cvtps_epi32(_mm_mul_ps(f, _mm_set1_ps(kFactor)));
        }
        return r;
    }
};

// Accurate, 32s: (v + 2^31) x 255 / (2^32 - 1) rounded to nearest, in exact integers (the
// quotient never falls on a half, so the tie rule does not arise).
struct ScaleDownAccurate32 {
    static constexpr bool kVector = false;
    static Kro8u scalar(Kro32s v)
    {
        const int64_t u = int64_t(v) + INT64_C(2147483648), d = INT64_C(4294967295);
        return Kro8u((u * 510 + d) / (2 * d));
    }
};

// ---- range scaling with a float side -------------------------------------------------------
// 8u to 32f: v x factor + vMin, in single precision rounded to nearest.
struct Scale8u32f {
    static constexpr bool kVector = true;
    float factor, vMin;
    Kro32f scalar(Kro8u v) const { return float(v) * factor + vMin; }
    lanes::F4 lanes(const lanes::I4& x) const
    {
        const __m128 f = _mm_set1_ps(factor), m = _mm_set1_ps(vMin);
        lanes::F4 r;
        for (int k = 0; k < 4; ++k) r.v[k] = _mm_add_ps(_mm_mul_ps(_mm_cvtepi32_ps(x.v[k]), f), m);
        return r;
    }
};

// 32f to 8u: clamp to [vMin, vMax] (NaN takes vMin and gives 0), then x x factor + offset in
// single precision, rounded to nearest with ties to even.
//
// kClampTop false is the shortcut the API takes when vMax itself maps to 255: the float
// operations are monotone and vMin maps to exactly 0 (offset is -(vMin x factor)), so mapping
// an unclamped value and saturating the result gives the clamped result.  Only the top is
// then clamped, after the mapping, to keep the conversion in range; NaN stays NaN through
// minps and converts to 0 like a value below the range.
template <bool kClampTop>
struct Scale32f8u {
    static constexpr bool kVector = true;
    float vMin, vMax, factor, offset;
    Kro8u scalar(Kro32f x) const
    {
        x = x > vMin ? x : vMin;  // the operand order of maxps and minps, NaN included
        x = x < vMax ? x : vMax;
        return saturateIntegral<Kro8u>(roundHalfEven(x * factor + offset));
    }
    // Without the clamp to 255: right wherever no lane converts to INT32_MIN (see FloatToInt).
    lanes::I4 unclamped(const lanes::F4& x) const
        requires(!kClampTop)
    {
        const __m128 f = _mm_set1_ps(factor), o = _mm_set1_ps(offset);
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) r.v[k] = _mm_cvtps_epi32(_mm_add_ps(_mm_mul_ps(x.v[k], f), o));
        return r;
    }
    lanes::I4 lanes(const lanes::F4& x) const
    {
        const __m128 lo = _mm_set1_ps(vMin), hi = _mm_set1_ps(vMax), top = _mm_set1_ps(255.0f);
        const __m128 f = _mm_set1_ps(factor), o = _mm_set1_ps(offset);
        lanes::I4 r;
        for (int k = 0; k < 4; ++k) {
            if constexpr (kClampTop)
                r.v[k] = _mm_cvtps_epi32(_mm_add_ps(_mm_mul_ps(_mm_min_ps(_mm_max_ps(x.v[k], lo), hi), f), o));
            else
                r.v[k] = _mm_cvtps_epi32(_mm_min_ps(top, _mm_add_ps(_mm_mul_ps(x.v[k], f), o)));
        }
        return r;
    }
};

// ---- multiply and add constants ------------------------------------------------------------
// v x m + a in double precision (rounded to nearest), then rounded once to the destination:
// integers to nearest with ties to even and saturated (NaN gives 0), floats to nearest.
template <class S, class D>
struct ScaleConst {
    static constexpr bool kVector = lanes::kFits<S> && lanes::kFits<D>;
    double m, a;
    D scalar(S v) const
    {
        const double r = double(v) * m + a;
        if constexpr (kFloat<D>) return static_cast<D>(r);
        else return saturateIntegral<D>(roundHalfEven(r));
    }

    // Two doubles per register.  Integer results are clamped to the destination's range
    // (bounds are integers, so clamping before rounding changes nothing) and converted by
    // cvtpd2dq, to nearest with ties to even under the call's rounding scope.
    template <class X>
    auto lanes(const X& x) const
    {
        const __m128d mv = _mm_set1_pd(m), av = _mm_set1_pd(a);
        const __m128d lo = _mm_set1_pd(double(std::numeric_limits<D>::lowest()));
        const __m128d hi = _mm_set1_pd(double(std::numeric_limits<D>::max()));
        std::conditional_t<kFloat<D>, lanes::F4, lanes::I4> out;
        for (int k = 0; k < 4; ++k) {
            __m128d r0, r1;
            if constexpr (std::is_same_v<X, lanes::F4>) {
                r0 = _mm_cvtps_pd(x.v[k]);
                r1 = _mm_cvtps_pd(_mm_movehl_ps(x.v[k], x.v[k]));
            } else {
                r0 = _mm_cvtepi32_pd(x.v[k]);
                r1 = _mm_cvtepi32_pd(_mm_shuffle_epi32(x.v[k], 0x0E));
            }
            r0 = _mm_add_pd(_mm_mul_pd(r0, mv), av);
            r1 = _mm_add_pd(_mm_mul_pd(r1, mv), av);
            if constexpr (kFloat<D>) {
                out.v[k] = _mm_movelh_ps(_mm_cvtpd_ps(r0), _mm_cvtpd_ps(r1));
            } else {
                r0 = _mm_min_pd(_mm_max_pd(_mm_and_pd(r0, _mm_cmpord_pd(r0, r0)), lo), hi);  // NaN to 0
                r1 = _mm_min_pd(_mm_max_pd(_mm_and_pd(r1, _mm_cmpord_pd(r1, r1)), lo), hi);
                out.v[k] = _mm_unpacklo_epi64(_mm_cvtpd_epi32(r0), _mm_cvtpd_epi32(r1));
            }
        }
        return out;
    }
};

}  // namespace KROI_TIER::cvt
