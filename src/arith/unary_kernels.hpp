// Kernels of the one-image functions Abs, Sqrt, Exp and Ln, and of MinEvery and MaxEvery.
//
// Sqr is not here: it is the two-image product of the image with itself, and runs through the
// arithmetic's own kernel choice by scale factor (arith_kernels.hpp), so that its rounding is
// the one the products have.  MinEvery and MaxEvery are two-image operations of the same row
// loop.  Abs, Sqrt, Exp and Ln read one image: they run on unaryRow below, which also gathers
// the lanes that meet a negative root or a non-positive logarithm for the warnings.
//
// An operation here is a struct with
//     T scalar(T x)                 the definition of the result
//     bool badScalar(T x)           whether x gives the family's warning (kWarns only)
// and, when kVector,
//     Vec vec(Vec x), Vec bad(Vec x)   the same for a whole vector, bit for bit.
#pragma once

#include <cmath>
#include <vector>

#include "arith/arith_kernels.hpp"
#include "arith/math_lanes.hpp"
#include "frame/fpround.hpp"

namespace KROI_TIER::arith {

// ---- the one-image row loop -------------------------------------------------------------------

// d[i] = op(s[i]) over `width` pixels of layout L (AC4 skips every fourth element); returns
// whether an element it wrote a result for gives the operation's warning.  s may equal d.
template <Layout L, class Op, class T>
bool unaryRow(const Op& opIn, const T* s, T* d, long width)
{
    using S = Simd<T>;
    const Op op = opIn; // a byte store through d could otherwise alias the operation's fields
    const long n = width * kElems<L>;
    long i = 0;
    bool bad = false;
    if constexpr (Op::kVector) {
        const auto alpha = S::alphaLanes();
        auto flags = S::zero();
        for (; i + S::kLanes <= n; i += S::kLanes) {
            const auto x = S::load(s + i);
            auto r = op.vec(x);
            if constexpr (Op::kWarns) flags = S::orV(flags, L == kAC4 ? S::andNot(alpha, op.bad(x)) : op.bad(x));
            if constexpr (L == kAC4) r = S::select(alpha, S::load(d + i), r);
            S::store(d + i, r);
        }
        if constexpr (Op::kWarns) bad = S::any(flags);
    }
    for (; i < n; ++i) {
        if constexpr (L == kAC4)
            if ((i & 3) == 3) continue;
        if constexpr (Op::kWarns) bad |= op.badScalar(s[i]);
        d[i] = op.scalar(s[i]);
    }
    return bad;
}

// Every row of a one-image call; contiguous rows are walked as one.
template <Layout L, class Op, class T>
bool unaryRows(const Op& op, const T* s, std::ptrdiff_t sStep, T* d, std::ptrdiff_t dStep, int width, int height)
{
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(width) * kElems<L> * std::ptrdiff_t(sizeof(T));
    const rows::Image<const T> src{s, sStep};
    const rows::Image<T> dst{d, dStep};
    if (height > 1 && rows::merged(rowBytes, src, dst)) return unaryRow<L>(op, s, d, long(width) * height);
    bool bad = false;
    for (int y = 0; y < height; ++y) bad |= unaryRow<L>(op, src.row(y), dst.row(y), width);
    return bad;
}

// ---- Abs ------------------------------------------------------------------------------------------

template <class T>
struct AbsOp;

// |x|, with |-32768| saturated to 32767.
template <>
struct AbsOp<Kro16s> {
    using Vec = __m128i;
    static constexpr bool kVector = true, kWarns = false;
    static Kro16s scalar(Kro16s x) { return x == -32768 ? Kro16s(32767) : Kro16s(x < 0 ? -x : x); }
    static Vec vec(Vec x)
    {
        const __m128i sign = _mm_srai_epi16(x, 15); // -1 where negative
        return _mm_subs_epi16(_mm_xor_si128(x, sign), sign); // ~x + 1, saturating at 32767
    }
    static Vec bad(Vec) { return _mm_setzero_si128(); }
    static bool badScalar(Kro16s) { return false; }
};

// The sign bit cleared: |-0| = +0, a NaN keeps its payload.
template <>
struct AbsOp<Kro32f> {
    using Vec = __m128;
    static constexpr bool kVector = true, kWarns = false;
    static Kro32f scalar(Kro32f x) { return std::fabs(x); }
    static Vec vec(Vec x) { return _mm_and_ps(x, _mm_castsi128_ps(_mm_set1_epi32(0x7FFFFFFF))); }
    static Vec bad(Vec) { return _mm_setzero_ps(); }
    static bool badScalar(Kro32f) { return false; }
};

// ---- Sqrt -----------------------------------------------------------------------------------------

// The scale factor of a root, clamped where nothing changes any more: sqrt(x) < 2^8 for every
// integer source, so beyond 2^-64 every result is 0 and beyond 2^64 every non-zero one saturates.
inline int clampScale(int s) { return s < -64 ? -64 : s > 64 ? 64 : s; }

// round(sqrt(x) 2^-s), ties to even, saturated to T; negative x gives 0 and the warning.
// sqrt in double is correctly rounded, and for a 16-bit x the exact root is an integer or lies
// at least 2^-26 (relative to the result's unit) away from every half-integer of the scaled
// result, far beyond the double's error: the double result rounds exactly as the exact one.
template <class T>
struct SqrtInt {
    using Vec = __m128i;
    using W = Lanes32<T>;
    static constexpr bool kVector = true, kWarns = std::is_signed_v<T>;
    static constexpr double kMax = double(std::numeric_limits<T>::max());
    double factor; // 2^-s

    explicit SqrtInt(int s) : factor(std::ldexp(1.0, -clampScale(s))) {}

    T scalar(T x) const
    {
        if (x <= 0) return T(0);
        const double v = std::sqrt(double(x)) * factor;
        return T(v >= kMax ? kMax : roundHalfEven(v)); // the processor's rounding, as cvtpd2dq below
    }
    static bool badScalar(T x) { return x < 0; }

    // Four int32 lanes to four roots, rounded by the processor (to nearest, ties to even, under
    // DefaultFloatScope), clamped above first so that the conversion never overflows.
    __m128i roots(__m128i v) const
    {
        const __m128d f = _mm_set1_pd(factor), hi = _mm_set1_pd(kMax);
        const __m128d a = _mm_min_pd(_mm_mul_pd(_mm_sqrt_pd(_mm_cvtepi32_pd(v)), f), hi);
        const __m128d b = _mm_min_pd(_mm_mul_pd(_mm_sqrt_pd(_mm_cvtepi32_pd(_mm_shuffle_epi32(v, 0xEE))), f), hi);
        return _mm_unpacklo_epi64(_mm_cvtpd_epi32(a), _mm_cvtpd_epi32(b));
    }
    Vec vec(Vec x) const
    {
        if constexpr (std::is_signed_v<T>) x = _mm_max_epi16(x, _mm_setzero_si128());
        __m128i p[W::kParts];
        W::widen(x, p);
        for (auto& v : p) v = roots(v);
        return W::narrow(p);
    }
    static Vec bad(Vec x)
    {
        if constexpr (std::is_signed_v<T>) return _mm_cmplt_epi16(x, _mm_setzero_si128());
        else return _mm_setzero_si128();
    }
};

// The IEEE square root, correctly rounded: sqrt(-0) = -0, negatives give NaN and the warning.
struct SqrtFloat {
    using Vec = __m128;
    static constexpr bool kVector = true, kWarns = true;
    static Kro32f scalar(Kro32f x) { return _mm_cvtss_f32(_mm_sqrt_ss(_mm_set_ss(x))); }
    static bool badScalar(Kro32f x) { return x < 0.0f; }
    static Vec vec(Vec x) { return _mm_sqrt_ps(x); }
    static Vec bad(Vec x) { return _mm_cmplt_ps(x, _mm_setzero_ps()); }
};

// ---- Exp and Ln of integers ---------------------------------------------------------------------

// round(v), ties to even, for a long double v >= 0 (independent of the x87 rounding control).
inline long double roundEvenL(long double v)
{
    const long double f = floorl(v), d = v - f;
    return d > 0.5L ? f + 1 : d < 0.5L ? f : (fmodl(f, 2.0L) == 0 ? f : f + 1);
}

// e^x 2^-s rounded to nearest, ties to even, saturated at `max`.  Only results in (2^-2, 2^18)
// need computing; there e^(x - s ln 2) in long double is within 2^-30 of the exact value, and
// the tests show every exact value in that window to lie further than that from a half-integer
// (e^x is transcendental for x != 0, and e^0 2^-s is a power of two).
inline long expScaled(long x, int s, long max)
{
    const long double t = (long double)x * 1.442695040888963407359924681001892137L - (long double)s;
    if (t >= 18) return max;
    if (t <= -2) return 0;
    const long double v = expl((long double)x - (long double)s * 0.693147180559945309417232121458176568L);
    const long double r = roundEvenL(v);
    return r >= (long double)max ? max : long(r);
}

// ln(x) 2^-s rounded to nearest, ties to even, saturated to [lo, hi]; x <= 0 gives lo (minus
// infinity saturated).  ln x is transcendental for x > 1 and 0 for x = 1; the tests show every
// scaled value of a 16-bit x to lie more than 2^-30 from a half-integer, beyond the error of
// the long-double logarithm.
inline long lnScaled(long x, int s, long lo, long hi)
{
    if (x <= 0) return lo;
    const long double v = ldexpl(logl((long double)x), -clampScale(s));
    if (v >= (long double)hi) return hi;
    return long(roundEvenL(v));
}

// e^x 2^-s for 8u and 16s: every x below the window gives 0, every x above it the maximum,
// and the few x inside (about 14 consecutive values) come from a table made by the call.
template <class T>
struct ExpInt {
    static constexpr bool kVector = false, kWarns = false;
    static constexpr long kMin = std::numeric_limits<T>::min(), kMax = std::numeric_limits<T>::max();
    long lo = 0, hi = -1;
    T table[32] = {};

    explicit ExpInt(int s)
    {
        // x ln(2)^-1 - s in (-2, 18), widened by one at each end; the table holds 30 values
        // at most since 20 ln 2 < 14.
        const double ln2 = 0.6931471805599453;
        const double from = std::floor((double(s) - 2.0) * ln2) - 1, to = std::ceil((double(s) + 18.0) * ln2) + 1;
        lo = long(from < double(kMin) ? double(kMin) : from > double(kMax) + 1 ? double(kMax) + 1 : from);
        hi = long(to > double(kMax) ? double(kMax) : to < double(kMin) - 1 ? double(kMin) - 1 : to);
        for (long x = lo; x <= hi; ++x) table[x - lo] = T(expScaled(x, s, kMax));
    }
    T scalar(T x) const { return x < lo ? T(0) : x > hi ? T(kMax) : table[x - lo]; }
    static bool badScalar(T) { return false; }
};

// ln(x) 2^-s for 8u (a table of the 256 values, made by the call) and 16s (per element).
template <class T>
struct LnInt {
    static constexpr bool kVector = false, kWarns = true;
    static constexpr long kMin = std::numeric_limits<T>::min(), kMax = std::numeric_limits<T>::max();
    int s;
    T table[std::is_same_v<T, Kro8u> ? 256 : 1] = {};

    explicit LnInt(int scale) : s(scale)
    {
        if constexpr (std::is_same_v<T, Kro8u>)
            for (int x = 0; x < 256; ++x) table[x] = T(lnScaled(x, s, kMin, kMax));
    }
    T scalar(T x) const
    {
        if constexpr (std::is_same_v<T, Kro8u>) return table[x];
        else return T(lnScaled(x, s, kMin, kMax));
    }
    static bool badScalar(T x) { return x <= 0; }
};

// ---- Exp and Ln of floats ---------------------------------------------------------------------------

struct ExpFloat {
    using Vec = __m128;
    static constexpr bool kVector = true, kWarns = false;
    static Kro32f scalar(Kro32f x) { return mathlanes::exp1(x); }
    static bool badScalar(Kro32f) { return false; }
    static Vec vec(Vec x) { return mathlanes::exp4(x); }
    static Vec bad(Vec) { return _mm_setzero_ps(); }
};

// x <= 0 (-0 included) gives the warning; NaN does not.
struct LnFloat {
    using Vec = __m128;
    static constexpr bool kVector = true, kWarns = true;
    static Kro32f scalar(Kro32f x) { return mathlanes::log1(x); }
    static bool badScalar(Kro32f x) { return x <= 0.0f; }
    static Vec vec(Vec x) { return mathlanes::log4(x); }
    static Vec bad(Vec x) { return _mm_cmple_ps(x, _mm_setzero_ps()); }
};

// ---- MinEvery and MaxEvery ------------------------------------------------------------------------

// d = min(d, s) or max(d, s) through the two-image row loop, with x the destination's value
// and y the source's.  The source replaces the destination only where it is strictly less
// (greater): a NaN in the source never replaces, a NaN in the destination stays, and of +0
// and -0 the destination's is kept.  That is the comparison minps and maxps make.
template <class T, bool kMax>
struct Every {
    using Vec = typename Simd<T>::Vec;
    static constexpr bool kVector = true, kDivides = false, kMergeRows = true, kReadsDestination = true;
    static T scalar(T x, T y) { return kMax ? (y > x ? y : x) : (y < x ? y : x); }
    [[gnu::always_inline]] static Vec vec(Vec x, Vec y)
    {
        if constexpr (std::is_same_v<T, Kro8u>) return kMax ? _mm_max_epu8(x, y) : _mm_min_epu8(x, y);
        else if constexpr (std::is_same_v<T, Kro16s>) return kMax ? _mm_max_epi16(x, y) : _mm_min_epi16(x, y);
        else if constexpr (std::is_same_v<T, Kro16u>) {
            // No unsigned 16-bit min or max before SSE4.1: x - (x -sat y) is the minimum,
            // y + (x -sat y) the maximum.
            const __m128i d = _mm_subs_epu16(x, y);
            return kMax ? _mm_add_epi16(y, d) : _mm_sub_epi16(x, d);
        } else {
            return kMax ? _mm_max_ps(y, x) : _mm_min_ps(y, x); // y op x ? y : x
        }
    }
};

}  // namespace KROI_TIER::arith
