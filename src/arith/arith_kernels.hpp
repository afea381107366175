// Pixel-wise arithmetic kernels, shared by the two-image functions (Add, Sub, Mul, Div,
// Div_Round) and the functions with a constant operand (AddC, SubC, MulC, DivC).
//
// The pieces, from the bottom up:
//
//   Layout        kC1, kC3, kC4, kAC4.  A row is width x elems(L) elements; kAC4 rows have
//                 four elements per pixel of which the fourth is never written.
//
//   Operands      where the two inputs of an operation come from.  Both are "row sources":
//                   ImageOperand<T>{ptr, step}      an image, one row per ROI row
//                   ConstOperand<T, L>(values)      one value per channel, the same every row
//                 image.row(y) / constant.row(y) give the row view the row loop reads:
//                   at(i)           element i of the row (scalar)
//                   vec<k>(i)       the vector of elements [i, i + lanes), k = i / lanes mod
//                                   kPeriod, which lets a C3 constant rotate its three
//                                   precomputed vectors without a division
//                 and merges(rowBytes) says whether the rows lie end to end (a constant always
//                 does), so that the row walk may treat the ROI as one row.
//
//   Operations    structs with `T scalar(T x, T y)`, the definition of the result, and, when
//                 kVector, `Vec vec(Vec x, Vec y)` giving the same bits for a whole vector.
//                 x is the left operand (minuend, dividend), y the right one (subtrahend,
//                 divisor).  Integer operations are Scaled<T, Kind, Mode>: Kind says what
//                 the exact result is (Add, Sub, Mul), Mode how it is scaled for a range of
//                 scale factors (Plain s = 0, Half s = 1, Down s > 1, Up s < 0, Bound for the
//                 scale factors where every non-zero result saturates).  Every mode's scalar
//                 body is the one rule, exact r x 2^-s with ties to even, then saturation;
//                 modes differ only in how the vector body gets there.  Operations that
//                 divide set kDivides: the row loop then reports whether a right operand
//                 that it wrote a result for was zero.
//
//                 Besides Scaled: Float<Kind> and FloatDiv (32f), DivExact<T> (integer
//                 division with a rounding mode, exact), DivRecip8u and DivBound8u (8u
//                 division through the single-precision reciprocal, and its ranges where the
//                 scale factor alone decides).
//
//   rowLoop<L>    one row: vectors over the bulk, the operation's scalar body over the tail;
//                 kAC4 puts the destination's fourth element back into each vector before
//                 the store and skips it in the tail.
//   job(x, y, d, dStep, width, height)
//                 what a call works on; runRows<L>(op, job) walks its rows, merged into one
//                 long row when all of them lie end to end and the operation allows it, with
//                 non-temporal stores when the images exceed the largest cache;
//                 runOp<L>(op, job) does the same and returns 0 or the zero-divisor warning.
//   Ranges<Kind, T> and scaled<Kind, T, L>(job, s)
//                 the kernel choice by scale factor: fill 0 where every result is 0 (through
//                 the Set functions, fillZero<T, L>), otherwise the mode for s.  Its result
//                 never depends on the choice, which only saves work.
//
// A constant family instantiates the same pieces:
//     scaled<Add, Kro8u, kC3>(job(ImageOperand<Kro8u>(pSrc, srcStep),
//                                 ConstOperand<Kro8u, kC3>(value), pDst, dstStep, w, h), s)
// is AddC_8u_C3, and runOp<kC1>(DivExact<Kro16s>{s, kroRndNear}, job(...)) inside a
// RoundingScope(kNearest) divides by a constant.
#pragma once

#include <emmintrin.h>
#include <pmmintrin.h>
#include <xmmintrin.h>

#include <climits>
#include <cstddef>
#include <cstring>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/round.hpp"
#include "frame/rows.hpp"
#include "frame/stream.hpp"

// The fill-0 paths reuse the Set functions.
KROI_INTERNAL(kroiSet_8u_C1R)
KROI_INTERNAL(kroiSet_8u_C3R)
KROI_INTERNAL(kroiSet_8u_C4R)
KROI_INTERNAL(kroiSet_8u_AC4R)
KROI_INTERNAL(kroiSet_16s_C1R)
KROI_INTERNAL(kroiSet_16s_C3R)
KROI_INTERNAL(kroiSet_16s_C4R)
KROI_INTERNAL(kroiSet_16s_AC4R)

namespace KROI_TIER::arith {

// ---- layouts --------------------------------------------------------------------------------

enum Layout { kC1 = 1, kC3 = 3, kC4 = 4, kAC4 = 5 };

// Elements per pixel in memory.
template <Layout L>
inline constexpr int kElems = L == kAC4 ? 4 : int(L);

// Channels that are computed (AC4 leaves its fourth alone).
template <Layout L>
inline constexpr int kChannels = L == kAC4 ? 3 : int(L);

// ---- vectors ----------------------------------------------------------------------------------

// The 16-byte vector of an element type: its register type, loads, stores, and the two
// masks the row loop needs.
template <class T>
struct Simd {
    using Vec = __m128i;
    static constexpr int kLanes = 16 / int(sizeof(T));
    static Vec load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static void store(T* p, Vec v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
    static void stream(T* p, Vec v) { _mm_stream_si128(reinterpret_cast<__m128i*>(p), v); } // p aligned
    static Vec set1(T v)
    {
        if constexpr (sizeof(T) == 1) return _mm_set1_epi8(static_cast<char>(v));
        else return _mm_set1_epi16(static_cast<short>(v));
    }
    // All ones in the lanes holding the fourth element of each pixel.
    static Vec alphaLanes()
    {
        if constexpr (sizeof(T) == 1) return _mm_set1_epi32(int(0xFF000000u));
        else return _mm_set1_epi64x(int64_t(0xFFFF000000000000ull));
    }
    static Vec zeroLanes(Vec v)
    {
        if constexpr (sizeof(T) == 1) return _mm_cmpeq_epi8(v, _mm_setzero_si128());
        else return _mm_cmpeq_epi16(v, _mm_setzero_si128());
    }
    static Vec orV(Vec a, Vec b) { return _mm_or_si128(a, b); }
    static Vec andNot(Vec mask, Vec v) { return _mm_andnot_si128(mask, v); }
    // mask ? keep : v
    static Vec select(Vec mask, Vec keep, Vec v)
    {
        return _mm_or_si128(_mm_and_si128(mask, keep), _mm_andnot_si128(mask, v));
    }
    static bool any(Vec v) { return _mm_movemask_epi8(v) != 0; }
    static Vec zero() { return _mm_setzero_si128(); }
};

template <>
struct Simd<Kro32f> {
    using Vec = __m128;
    static constexpr int kLanes = 4;
    static Vec load(const Kro32f* p) { return _mm_loadu_ps(p); }
    static void store(Kro32f* p, Vec v) { _mm_storeu_ps(p, v); }
    static void stream(Kro32f* p, Vec v) { _mm_stream_ps(p, v); } // p aligned
    static Vec set1(Kro32f v) { return _mm_set1_ps(v); }
    static Vec alphaLanes() { return _mm_castsi128_ps(_mm_set_epi32(-1, 0, 0, 0)); }
    static Vec zeroLanes(Vec v) { return _mm_cmpeq_ps(v, _mm_setzero_ps()); }
    static Vec orV(Vec a, Vec b) { return _mm_or_ps(a, b); }
    static Vec andNot(Vec mask, Vec v) { return _mm_andnot_ps(mask, v); }
    static Vec select(Vec mask, Vec keep, Vec v)
    {
        return _mm_or_ps(_mm_and_ps(mask, keep), _mm_andnot_ps(mask, v));
    }
    static bool any(Vec v) { return _mm_movemask_ps(v) != 0; }
    static Vec zero() { return _mm_setzero_ps(); }
};

// ---- operands ---------------------------------------------------------------------------------

// One row of an image.
template <class T>
struct RowView {
    static constexpr int kPeriod = 1;
    static constexpr int kImages = 1;
    const T* p;
    T at(long i) const { return p[i]; }
    template <int k>
    typename Simd<T>::Vec vec(long i) const { return Simd<T>::load(p + i); }
    // Asks for the line `ahead` bytes past element i.  A prefetch never faults, so it may
    // look past the end of the image.
    void prefetch(long i, long ahead) const
    {
        _mm_prefetch(reinterpret_cast<const char*>(p + i) + ahead, _MM_HINT_T0);
    }
};

// An image operand: first pixel and byte step.
template <class T>
struct ImageOperand {
    rows::Image<const T> im;
    ImageOperand(const T* p, std::ptrdiff_t step) : im{p, step} {}
    RowView<T> row(std::ptrdiff_t y) const { return {im.row(y)}; }
    bool merges(std::ptrdiff_t rowBytes) const { return rows::merged(rowBytes, im); }
};

// One value per channel, the same in every row.  The pattern of a C3 constant repeats every
// three vectors (48 bytes), so three vectors are built once and the row loop picks them by
// its compile-time phase; C1, C4 and AC4 patterns repeat within one vector.
template <class T, Layout L>
struct ConstOperand {
    static constexpr int kPeriod = L == kC3 ? 3 : 1;
    static constexpr int kImages = 0;
    static constexpr int kE = kElems<L>;
    using S = Simd<T>;
    T v[kE];
    typename S::Vec pattern[kPeriod];

    // `values` holds kChannels<L> values (one for C1); an AC4 constant's fourth element is
    // never used, since the fourth element is never written.
    explicit ConstOperand(const T* values)
    {
        for (int c = 0; c < kE; ++c) v[c] = c < kChannels<L> ? values[c] : T(0);
        alignas(16) T lanes[S::kLanes * kPeriod];
        for (int i = 0; i < S::kLanes * kPeriod; ++i) lanes[i] = v[i % kE];
        for (int k = 0; k < kPeriod; ++k) pattern[k] = S::load(lanes + k * S::kLanes);
    }
    const ConstOperand& row(std::ptrdiff_t) const { return *this; }
    bool merges(std::ptrdiff_t) const { return true; }
    T at(long i) const { return v[i % kE]; }
    template <int k>
    typename S::Vec vec(long) const { return pattern[k]; }
    void prefetch(long, long) const {}
};

// ---- exact results ------------------------------------------------------------------------------

// What an operation computes before scaling: exact, in 64 bits for the scalar body and, where
// the result fits, in 32-bit lanes for the vector bodies (see Lanes32 below).
struct Add {
    static int64_t exact(int64_t x, int64_t y) { return x + y; }
};
struct Sub {
    static int64_t exact(int64_t x, int64_t y) { return x - y; }
};
struct Mul {
    static int64_t exact(int64_t x, int64_t y) { return x * y; }
};

// Integer vectors in 32-bit lanes: a vector of T holds kParts vectors of four int32.
template <class T>
struct Lanes32;

template <>
struct Lanes32<Kro8u> {
    static constexpr int kParts = 4;
    static void widen(__m128i v, __m128i* r)
    {
        const __m128i z = _mm_setzero_si128();
        const __m128i lo = _mm_unpacklo_epi8(v, z), hi = _mm_unpackhi_epi8(v, z);
        r[0] = _mm_unpacklo_epi16(lo, z);
        r[1] = _mm_unpackhi_epi16(lo, z);
        r[2] = _mm_unpacklo_epi16(hi, z);
        r[3] = _mm_unpackhi_epi16(hi, z);
    }
    // Saturating: the signed pack clamps to int16, the unsigned one then to 0..255.
    static __m128i narrow(const __m128i* r)
    {
        return _mm_packus_epi16(_mm_packs_epi32(r[0], r[1]), _mm_packs_epi32(r[2], r[3]));
    }
    // Exact products: 255 x 255 fits 16 unsigned bits.
    static void mul(__m128i x, __m128i y, __m128i* r)
    {
        const __m128i z = _mm_setzero_si128();
        const __m128i lo = _mm_mullo_epi16(_mm_unpacklo_epi8(x, z), _mm_unpacklo_epi8(y, z));
        const __m128i hi = _mm_mullo_epi16(_mm_unpackhi_epi8(x, z), _mm_unpackhi_epi8(y, z));
        r[0] = _mm_unpacklo_epi16(lo, z);
        r[1] = _mm_unpackhi_epi16(lo, z);
        r[2] = _mm_unpacklo_epi16(hi, z);
        r[3] = _mm_unpackhi_epi16(hi, z);
    }
    static constexpr bool kMul = true;
};

template <>
struct Lanes32<Kro16s> {
    static constexpr int kParts = 2;
    static void widen(__m128i v, __m128i* r)
    {
        r[0] = _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16);
        r[1] = _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16);
    }
    static __m128i narrow(const __m128i* r) { return _mm_packs_epi32(r[0], r[1]); }
    // Exact products: |x y| <= 2^30.
    static void mul(__m128i x, __m128i y, __m128i* r)
    {
        const __m128i lo = _mm_mullo_epi16(x, y), hi = _mm_mulhi_epi16(x, y);
        r[0] = _mm_unpacklo_epi16(lo, hi);
        r[1] = _mm_unpackhi_epi16(lo, hi);
    }
    static constexpr bool kMul = true;
};

template <>
struct Lanes32<Kro16u> {
    static constexpr int kParts = 2;
    static void widen(__m128i v, __m128i* r)
    {
        const __m128i z = _mm_setzero_si128();
        r[0] = _mm_unpacklo_epi16(v, z);
        r[1] = _mm_unpackhi_epi16(v, z);
    }
    // SSE3 has no unsigned 32-to-16 pack: shift the range down by 32768, pack signed, and
    // shift it back up.
    static __m128i narrow(const __m128i* r)
    {
        const __m128i off = _mm_set1_epi32(32768);
        const __m128i p = _mm_packs_epi32(_mm_sub_epi32(r[0], off), _mm_sub_epi32(r[1], off));
        return _mm_xor_si128(p, _mm_set1_epi16(short(0x8000)));
    }
    static void mul(__m128i, __m128i, __m128i*) {}
    static constexpr bool kMul = false; // 65535^2 does not fit 32 signed bits: see Scaled::mul16u
};

// The exact result of Kind in 32-bit lanes.
template <class Kind, class T>
inline void exact32(__m128i x, __m128i y, __m128i* r)
{
    using W = Lanes32<T>;
    if constexpr (std::is_same_v<Kind, Mul>) {
        W::mul(x, y, r);
    } else {
        __m128i a[W::kParts], b[W::kParts];
        W::widen(x, a);
        W::widen(y, b);
        for (int k = 0; k < W::kParts; ++k)
            r[k] = std::is_same_v<Kind, Add> ? _mm_add_epi32(a[k], b[k]) : _mm_sub_epi32(a[k], b[k]);
    }
}

// ---- scaled integer operations -------------------------------------------------------------------

enum class Mode { Plain, Half, Down, Down16, Up, Bound };

// x op y, exact, times 2^-s, ties to even, saturated to T.  `s` must lie in the mode's range:
// Plain 0, Half 1, Down 2..32 (below the fill range), Down16 1..9 (8u only), Up below 0, Bound where every non-zero
// result saturates.
template <class T, class Kind, Mode M>
struct Scaled {
    using S = Simd<T>;
    using W = Lanes32<T>;
    using Vec = __m128i;
    static constexpr bool kVector = true;
    static constexpr bool kDivides = false;
    static constexpr bool kMergeRows = true;
    static constexpr int64_t kLo = std::numeric_limits<T>::min(), kHi = std::numeric_limits<T>::max();

    int s = 0;
    __m128i bias, one, count, hiK, loK, hiV, loV, half;

    explicit Scaled(int scale = M == Mode::Half ? 1 : 0) : s(scale)
    {
        one = _mm_set1_epi32(1);
        hiV = _mm_set1_epi32(int(kHi));
        loV = _mm_set1_epi32(int(kLo));
        const int down = s > 0 ? (s > 32 ? 32 : s) : 0;
        const int up = s < 0 ? (s < -31 ? 31 : -s) : 0;
        count = _mm_cvtsi32_si128(down > 0 ? down : up);
        bias = _mm_set1_epi32(down > 0 ? int(uint32_t((int64_t{1} << (down - 1)) - 1)) : 0);
        half = _mm_set1_epi32(down > 0 ? int(uint32_t{1} << (down - 1)) : 0); // 2^31 wraps, as wanted
        // r << up stays in range exactly when -((-lo) >> up) <= r <= hi >> up.
        hiK = _mm_set1_epi32(int(kHi >> up));
        loK = _mm_set1_epi32(int(-((-kLo) >> up)));
    }

    T scalar(T x, T y) const { return scaleSaturate<T>(Kind::exact(x, y), s); }

    [[gnu::always_inline]] Vec vec(Vec x, Vec y) const
    {
        constexpr bool k8u = std::is_same_v<T, Kro8u>;
        constexpr bool kAdd = std::is_same_v<Kind, Add>, kSub = std::is_same_v<Kind, Sub>;
        if constexpr (M == Mode::Plain && (kAdd || kSub) && sizeof(T) == 2) {
            if constexpr (std::is_same_v<T, Kro16s>)
                return kAdd ? _mm_adds_epi16(x, y) : _mm_subs_epi16(x, y);
            else
                return kAdd ? _mm_adds_epu16(x, y) : _mm_subs_epu16(x, y);
        } else if constexpr (M == Mode::Plain && (kAdd || kSub) && k8u) {
            return kAdd ? _mm_adds_epu8(x, y) : _mm_subs_epu8(x, y);
        } else if constexpr (M == Mode::Half && kAdd && k8u) {
            // avg rounds the odd sums up; an odd ceiling is one above the even floor.
            const __m128i c = _mm_avg_epu8(x, y);
            const __m128i odd = _mm_and_si128(_mm_and_si128(_mm_xor_si128(x, y), c), _mm_set1_epi8(1));
            return _mm_sub_epi8(c, odd);
        } else if constexpr (M == Mode::Down16) {
            // 8u: every exact result fits a 16-bit lane (products up to 65025, sums up to 510,
            // differences within +-255), and so does r + 2^(s-1) - 1 + 1 for s <= 9, so the
            // rounding (r + 2^(s-1) - 1 + ((r >> s) & 1)) >> s runs on eight lanes, not four.
            static_assert(k8u);
            const __m128i z = _mm_setzero_si128(), one16 = _mm_set1_epi16(1);
            const __m128i bias16 = _mm_set1_epi16(short((1 << (s - 1)) - 1));
            auto exact = [&](__m128i a, __m128i b) {
                return kAdd ? _mm_add_epi16(a, b) : kSub ? _mm_sub_epi16(a, b) : _mm_mullo_epi16(a, b);
            };
            auto round = [&](__m128i r) { // differences may be negative: arithmetic shifts there
                const __m128i q = kSub ? _mm_sra_epi16(r, count) : _mm_srl_epi16(r, count);
                const __m128i t = _mm_add_epi16(_mm_add_epi16(r, bias16), _mm_and_si128(q, one16));
                return kSub ? _mm_sra_epi16(t, count) : _mm_srl_epi16(t, count);
            };
            const __m128i lo = round(exact(_mm_unpacklo_epi8(x, z), _mm_unpacklo_epi8(y, z)));
            const __m128i hi = round(exact(_mm_unpackhi_epi8(x, z), _mm_unpackhi_epi8(y, z)));
            return _mm_packus_epi16(lo, hi); // results below 2^15: the signed pack saturates to 0..255
        } else if constexpr (M == Mode::Half && kSub && k8u) {
            // A negative difference gives 0 at every scale; r = max(x - y, 0) <= 255, then
            // (r >> 1) plus one where r is odd and r >> 1 is odd.
            const __m128i r = _mm_subs_epu8(x, y);
            const __m128i h = _mm_and_si128(_mm_srli_epi16(r, 1), _mm_set1_epi8(0x7F));
            return _mm_add_epi8(h, _mm_and_si128(_mm_and_si128(r, h), _mm_set1_epi8(1)));
        } else if constexpr (M == Mode::Bound && k8u && !kSub) {
            // Add: non-zero where either is; Mul: where both are.
            const __m128i z = _mm_setzero_si128();
            const __m128i zx = _mm_cmpeq_epi8(x, z), zy = _mm_cmpeq_epi8(y, z);
            const __m128i isZero = kAdd ? _mm_and_si128(zx, zy) : _mm_or_si128(zx, zy);
            return _mm_andnot_si128(isZero, _mm_set1_epi8(-1));
        } else if constexpr (std::is_same_v<T, Kro16u> && std::is_same_v<Kind, Mul>) {
            return mul16u(x, y);
        } else if constexpr (M == Mode::Bound && k8u && kSub) {
            const __m128i d = _mm_subs_epu8(x, y);
            return _mm_andnot_si128(_mm_cmpeq_epi8(d, _mm_setzero_si128()), _mm_set1_epi8(-1));
        } else {
            __m128i r[W::kParts];
            exact32<Kind, T>(x, y, r);
            for (int k = 0; k < W::kParts; ++k) r[k] = scale32(r[k]);
            return W::narrow(r);
        }
    }

    // 16u products reach 65535^2, past int32: they are kept as 16-bit halves, a product
    // above 65535 saturates at s <= 0, and s > 0 rounds in unsigned 32-bit lanes by
    // quotient and remainder, which cannot overflow.
    [[gnu::always_inline]] __m128i mul16u(__m128i x, __m128i y) const
    {
        const __m128i lo = _mm_mullo_epi16(x, y), hi = _mm_mulhi_epu16(x, y);
        const __m128i big = _mm_andnot_si128(_mm_cmpeq_epi16(hi, _mm_setzero_si128()), _mm_set1_epi8(-1));
        if constexpr (M == Mode::Plain) {
            return _mm_or_si128(lo, big);
        } else if constexpr (M == Mode::Bound) {
            // Every non-zero product saturates (16u reaches this only at INT_MIN).
            const __m128i zero = _mm_cmpeq_epi16(_mm_or_si128(lo, hi), _mm_setzero_si128());
            return _mm_andnot_si128(zero, _mm_set1_epi8(-1));
        } else if constexpr (M == Mode::Up) {
            __m128i r[2];
            W::widen(lo, r);
            r[0] = scale32(r[0]);
            r[1] = scale32(r[1]);
            return _mm_or_si128(W::narrow(r), big);
        } else {
            const __m128i sign = _mm_set1_epi32(INT_MIN), halfS = _mm_xor_si128(half, sign);
            __m128i p[2] = {_mm_unpacklo_epi16(lo, hi), _mm_unpackhi_epi16(lo, hi)};
            for (__m128i& v : p) {
                const __m128i q = _mm_srl_epi32(v, count);
                const __m128i rem = _mm_sub_epi32(v, _mm_sll_epi32(q, count));
                const __m128i gt = _mm_cmpgt_epi32(_mm_xor_si128(rem, sign), halfS);
                const __m128i tieOdd = _mm_and_si128(_mm_cmpeq_epi32(rem, half), q);
                v = _mm_add_epi32(q, _mm_and_si128(_mm_or_si128(gt, tieOdd), one));
            }
            return W::narrow(p); // q < 2^31 for s >= 1
        }
    }

    // One vector of exact results in 32-bit lanes, scaled; the narrowing pack saturates.
    __m128i scale32(__m128i r) const
    {
        if constexpr (M == Mode::Plain) {
            return r;
        } else if constexpr (M == Mode::Half || M == Mode::Down) {
            // (r + 2^(s-1) - 1 + ((r >> s) & 1)) >> s: ties to even, arithmetic shifts.
            const __m128i odd = _mm_and_si128(_mm_sra_epi32(r, count), one);
            return _mm_sra_epi32(_mm_add_epi32(_mm_add_epi32(r, bias), odd), count);
        } else if constexpr (M == Mode::Up) {
            const __m128i gt = _mm_cmpgt_epi32(r, hiK), lt = _mm_cmplt_epi32(r, loK);
            const __m128i inRange = _mm_sll_epi32(r, count);
            const __m128i out = _mm_or_si128(_mm_and_si128(gt, hiV), _mm_and_si128(lt, loV));
            return _mm_or_si128(_mm_andnot_si128(_mm_or_si128(gt, lt), inRange), out);
        } else {
            const __m128i z = _mm_setzero_si128();
            return _mm_or_si128(_mm_and_si128(_mm_cmpgt_epi32(r, z), hiV),
                                _mm_and_si128(_mm_cmplt_epi32(r, z), loV));
        }
    }
};

// ---- floating point --------------------------------------------------------------------------------

// IEEE single-precision x op y, one rounding per element.
template <class Kind>
struct Float {
    using Vec = __m128;
    static constexpr bool kVector = true;
    static constexpr bool kDivides = false;
    static constexpr bool kMergeRows = true;
    static Kro32f scalar(Kro32f x, Kro32f y)
    {
        if constexpr (std::is_same_v<Kind, Add>) return x + y;
        else if constexpr (std::is_same_v<Kind, Sub>) return x - y;
        else return x * y;
    }
    [[gnu::always_inline]] static Vec vec(Vec x, Vec y)
    {
        if constexpr (std::is_same_v<Kind, Add>) return _mm_add_ps(x, y);
        else if constexpr (std::is_same_v<Kind, Sub>) return _mm_sub_ps(x, y);
        else return _mm_mul_ps(x, y);
    }
};

// x / y; a zero divisor gives the IEEE result and is reported.
struct FloatDiv {
    using Vec = __m128;
    static constexpr bool kVector = true;
    static constexpr bool kDivides = true;
    static constexpr bool kMergeRows = true;
    static Kro32f scalar(Kro32f x, Kro32f y) { return x / y; }
    [[gnu::always_inline]] static Vec vec(Vec x, Vec y) { return _mm_div_ps(x, y); }
};

// ---- division ----------------------------------------------------------------------------------------

// x / y times 2^-s, rounded by `mode` (kroRndZero, kroRndNear, kroRndNearAway), for integers
// of up to 16 bits and y != 0.  Exact: the scale goes into the numerator or the denominator,
// and beyond 40 bits of scale every result is already 0 or saturated, so it stops there.
inline int64_t divScaleRound(int64_t x, int64_t y, int s, int mode)
{
    int64_t num = x, den = y;
    if (s < 0) num *= int64_t{1} << (s < -40 ? 40 : -s);
    if (s > 0) den *= int64_t{1} << (s > 40 ? 40 : s);
    if (den < 0) num = -num, den = -den;
    if (mode == kroRndZero) return num / den;
    int64_t q = num / den, rem = num % den;
    if (rem < 0) q -= 1, rem += den; // floor, 0 <= rem < den
    const int64_t twice = 2 * rem;
    if (twice > den) return q + 1;
    if (twice < den) return q;
    return mode == kroRndNear ? q + (q & 1) : (q >= 0 ? q + 1 : q);
}

// What a zero divisor gives in the integer divisions: the type's maximum for a positive
// dividend, its minimum (0 for unsigned types) for a negative one, and 0 for 0 / 0, as if
// the quotient were an infinity of the dividend's sign.
template <class T>
constexpr T divByZero(T x)
{
    return x > 0 ? std::numeric_limits<T>::max() : x < 0 ? std::numeric_limits<T>::min() : T(0);
}

// Integer division with a rounding mode, exact; the scalar body is the definition.
//
// The vector body divides in double precision, x 2^-s / y with s clamped to +-40 as above.
// That is exact enough to round exactly: x 2^-s is exact, the quotient is rounded once, and
// a quotient that is not itself an integer or a half lies at least 2^-17 of its size away
// from every integer and half (|x| < 2^16), far more than double's 2^-53, so rounding to an
// integer, either way and at ties, lands where the exact quotient would.  Quotients are
// clamped to +-2^20, beyond every pixel type, before the conversion to 32 bits.  Mode 1
// converts by the rounding control: the caller runs it in a RoundingScope(kNearest).
template <class T>
struct DivExact {
    static constexpr bool kVector = true;
    static constexpr bool kDivides = true;
    static constexpr bool kMergeRows = true;
    using Vec = __m128i;
    using W = Lanes32<T>;
    int s = 0;
    int mode = kroRndNear;

    T scalar(T x, T y) const
    {
        return y == 0 ? divByZero(x) : saturate<T>(divScaleRound(x, y, s, mode));
    }

    // Two quotients, rounded by the mode, in the low two int32 lanes.
    __m128i quotient2(__m128d x, __m128d y, __m128d scale) const
    {
        const __m128d lim = _mm_set1_pd(1048576.0);
        __m128d q = _mm_div_pd(_mm_mul_pd(x, scale), y);
        q = _mm_max_pd(_mm_min_pd(q, lim), _mm_sub_pd(_mm_setzero_pd(), lim)); // NaN (0 / 0) gives -lim
        if (mode == kroRndNear) return _mm_cvtpd_epi32(q);
        const __m128i t = _mm_cvttpd_epi32(q);
        if (mode == kroRndZero) return t;
        const __m128d frac = _mm_sub_pd(q, _mm_cvtepi32_pd(t)); // exact
        const __m128i up = _mm_shuffle_epi32(_mm_castpd_si128(_mm_cmpge_pd(frac, _mm_set1_pd(0.5))), 0x08);
        const __m128i dn = _mm_shuffle_epi32(_mm_castpd_si128(_mm_cmple_pd(frac, _mm_set1_pd(-0.5))), 0x08);
        return _mm_add_epi32(_mm_sub_epi32(t, up), dn);
    }

    [[gnu::always_inline]] Vec vec(Vec x, Vec y) const
    {
        __m128i a[W::kParts], b[W::kParts], q[W::kParts];
        W::widen(x, a);
        W::widen(y, b);
        const __m128d scale = _mm_set1_pd(std::ldexp(1.0, s < -40 ? 40 : s > 40 ? -40 : -s));
        for (int k = 0; k < W::kParts; ++k) {
            const __m128i lo = quotient2(_mm_cvtepi32_pd(a[k]), _mm_cvtepi32_pd(b[k]), scale);
            const __m128i hi = quotient2(_mm_cvtepi32_pd(_mm_shuffle_epi32(a[k], 0xEE)),
                                         _mm_cvtepi32_pd(_mm_shuffle_epi32(b[k], 0xEE)), scale);
            q[k] = _mm_unpacklo_epi64(lo, hi);
        }
        const __m128i r = W::narrow(q);
        // Zero divisors: the type's maximum for x > 0, its minimum for x < 0, 0 for 0.
        const __m128i z = _mm_setzero_si128();
        const __m128i yZero = S::zeroLanes(y);
        __m128i byZero;
        if constexpr (std::is_signed_v<T>)
            byZero = _mm_or_si128(_mm_and_si128(_mm_cmpgt_epi16(x, z), _mm_set1_epi16(0x7FFF)),
                                  _mm_and_si128(_mm_cmplt_epi16(x, z), _mm_set1_epi16(short(0x8000))));
        else
            byZero = _mm_andnot_si128(S::zeroLanes(x), _mm_set1_epi8(-1));
        return S::select(yZero, byZero, r);
    }

private:
    using S = Simd<T>;
};

// 8u division for -15 <= s <= 8: x times the reciprocal of y, the reciprocal taken from the
// processor's estimate and one Newton-Raphson step, x0 (2 - y x0); the quotient times 2^-s
// is converted to the nearest integer, ties to even, and saturated.  The row's last
// (width x channels) mod 16 elements are divided exactly in single precision instead; that
// is the scalar body.  Rows are never merged, so the tail is the tail of each ROI row.
// The vector body converts by the rounding control: the caller runs it in a
// RoundingScope(kNearest).
struct DivRecip8u {
    using Vec = __m128i;
    static constexpr bool kVector = true;
    static constexpr bool kDivides = true;
    static constexpr bool kMergeRows = false;
    float scale = 1.0f; // 2^-s, exact
    bool scaled = false; // s != 0; times 1 is exact, so it is left out

    explicit DivRecip8u(int s) : scale(std::ldexp(1.0f, -s)), scaled(s != 0) {}

    Kro8u scalar(Kro8u x, Kro8u y) const
    {
        if (y == 0) return divByZero(x);
        const float q = (float(x) / float(y)) * scale;
        return saturateIntegral<Kro8u>(roundHalfEven(q));
    }

    __m128 quotient(__m128i x32, __m128i y32, __m128 sc) const
    {
        const __m128 fy = _mm_cvtepi32_ps(y32), fx = _mm_cvtepi32_ps(x32);
        const __m128 r0 = _mm_rcp_ps(fy);
        const __m128 r1 = _mm_mul_ps(r0, _mm_sub_ps(_mm_set1_ps(2.0f), _mm_mul_ps(fy, r0)));
        const __m128 q = _mm_mul_ps(fx, r1);
        return scaled ? _mm_mul_ps(q, sc) : q;
    }

    [[gnu::always_inline]] Vec vec(Vec x, Vec y) const
    {
        __m128i a[4], b[4], q[4];
        Lanes32<Kro8u>::widen(x, a);
        Lanes32<Kro8u>::widen(y, b);
        const __m128 sc = _mm_set1_ps(scale);
        for (int k = 0; k < 4; ++k) q[k] = _mm_cvtps_epi32(quotient(a[k], b[k], sc));
        // A zero divisor makes the quotient NaN (the estimate is infinite and 0 x infinity is
        // NaN), which converts to INT_MIN and packs to 0: those lanes need only the 255.
        const __m128i r = Lanes32<Kro8u>::narrow(q);
        const __m128i z = _mm_setzero_si128();
        return _mm_or_si128(r, _mm_andnot_si128(_mm_cmpeq_epi8(x, z), _mm_cmpeq_epi8(y, z)));
    }
};

// 8u division where the scale factor decides every result with a non-zero divisor: s > 8
// gives 0 (x / y <= 255 < 2^8 / 2), s < -15 gives 255 for x != 0 (x / y >= 1/255 > 2^-16 x 2)
// and 0 for x = 0.  A zero divisor gives 255 or 0 as everywhere.
struct DivBound8u {
    using Vec = __m128i;
    static constexpr bool kVector = true;
    static constexpr bool kDivides = true;
    static constexpr bool kMergeRows = true;
    bool large = false; // s < -15
    Kro8u scalar(Kro8u x, Kro8u y) const
    {
        return y == 0 || large ? divByZero(x) : Kro8u(0);
    }
    [[gnu::always_inline]] Vec vec(Vec x, Vec y) const
    {
        const __m128i z = _mm_setzero_si128();
        const __m128i xNonZero = _mm_andnot_si128(_mm_cmpeq_epi8(x, z), _mm_set1_epi8(-1));
        return large ? xNonZero : _mm_and_si128(xNonZero, _mm_cmpeq_epi8(y, z));
    }
};

// ---- the row loop ----------------------------------------------------------------------------------

// d[i] = op(x[i], y[i]) over `width` pixels of layout L; returns whether a right operand was
// zero for an element written by an operation that divides.  kStream: d is 16-byte aligned
// and the vectors are written with non-temporal stores (the caller fences).
//
// The bulk goes four vectors (one 64-byte line of every image) per step, C3 three (one period
// of its constant), with a prefetch of each source image a few lines ahead: rows that sit in
// the last-level cache arrive faster when asked for early than when the hardware's stream
// detection catches up.  The operands and the operation are copied first: a byte store
// through d could otherwise alias them, and they would be reloaded for every vector.  The
// operations' vector bodies are always inlined: one left out of line in this long loop costs
// a call, and with its arrays a stack canary, per vector.
template <Layout L, bool kStream = false, class Op, class X, class Y, class T>
bool rowLoop(const Op& opIn, const X& xIn, const Y& yIn, T* d, long width)
{
    using S = Simd<T>;
    constexpr long kLanes = S::kLanes;
    constexpr int kPeriod = X::kPeriod > Y::kPeriod ? X::kPeriod : Y::kPeriod;
    constexpr int kStep = kPeriod == 3 ? 3 : 4;
    constexpr long kAhead = 512; // eight lines: far enough to cover the latency of the last-level cache
    const Op op = opIn;
    const X x = xIn;
    const Y y = yIn;
    const long n = width * kElems<L>;
    long i = 0;
    bool zero = false;
    if constexpr (Op::kVector) {
        const auto alpha = S::alphaLanes();
        auto zeros = S::zero();
        auto one = [&]<int k>(std::integral_constant<int, k>) {
            const auto vy = y.template vec<k>(i);
            auto r = op.vec(x.template vec<k>(i), vy);
            if constexpr (L == kAC4) r = S::select(alpha, S::load(d + i), r);
            if constexpr (Op::kDivides) {
                if constexpr (L == kAC4) zeros = S::orV(zeros, S::andNot(alpha, S::zeroLanes(vy)));
                else zeros = S::orV(zeros, S::zeroLanes(vy));
            }
            if constexpr (kStream) S::stream(d + i, r);
            else S::store(d + i, r);
            i += kLanes;
        };
        using P0 = std::integral_constant<int, 0>;
        using P1 = std::integral_constant<int, 1>;
        using P2 = std::integral_constant<int, 2>;
        for (; i + kStep * kLanes <= n;) {
            if constexpr (!kStream) { // streamed images come from memory, where the hardware keeps up
                x.prefetch(i, kAhead);
                y.prefetch(i, kAhead);
            }
            if constexpr (kPeriod == 3) {
                one(P0{});
                one(P1{});
                one(P2{});
            } else {
                one(P0{});
                one(P0{});
                one(P0{});
                one(P0{});
            }
        }
        if constexpr (kPeriod == 3) {
            if (i + kLanes <= n) one(P0{});
            if (i + kLanes <= n) one(P1{});
        } else {
            while (i + kLanes <= n) one(P0{});
        }
        if constexpr (Op::kDivides) zero = S::any(zeros);
    }
    for (; i < n; ++i) {
        if constexpr (L == kAC4)
            if ((i & 3) == 3) continue;
        const T vy = y.at(i);
        if constexpr (Op::kDivides) zero |= vy == 0;
        d[i] = op.scalar(x.at(i), vy);
    }
    return zero;
}

// What one call works on: the left and right operands, the destination and the size.
template <class T, class X, class Y>
struct Job {
    X x;
    Y y;
    T* d;
    std::ptrdiff_t dStep;
    int width, height;
};

template <class T, class X, class Y>
Job<T, X, Y> job(X x, Y y, T* d, std::ptrdiff_t dStep, int width, int height)
{
    return {x, y, d, dStep, width, height};
}

// Whether a call whose images span `bytes` in all writes its destination with non-temporal
// stores: only when they fill half the largest cache or more (which other programs share,
// so the images would not stay there for the next call anyway), where a store that first
// reads its line would add a third to the memory traffic, and when every destination row
// starts on 16 bytes.
inline bool streams(std::ptrdiff_t bytes, const void* d, std::ptrdiff_t dStep)
{
    const std::int64_t cache = stream::largestCache();
    return cache > 0 && bytes >= cache / 2 && stream::rowsAligned(d, dStep);
}

// Whether an operation may write with non-temporal stores: not one that always reads the
// destination first (MinEvery, MaxEvery say kReadsDestination), whose lines are already in
// the cache when they are written and would be evicted to memory for nothing.
template <class Op>
constexpr bool mayStream()
{
    if constexpr (requires { Op::kReadsDestination; }) return !Op::kReadsDestination;
    else return true;
}

// Every row of the job; rows that lie end to end in every image are done as one.  Returns
// whether a zero divisor was met.
template <Layout L, class Op, class T, class X, class Y>
bool runRows(const Op& op, const Job<T, X, Y>& j)
{
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(j.width) * kElems<L> * std::ptrdiff_t(sizeof(T));
    rows::Image<T> dst{j.d, j.dStep};
    const bool merge = Op::kMergeRows && j.height > 1 && j.x.merges(rowBytes) && j.y.merges(rowBytes) &&
                       rows::merged(rowBytes, dst);
    const std::ptrdiff_t step = merge ? 0 : j.dStep;
    auto all = [&]<bool kStream>(std::bool_constant<kStream>) {
        if (merge) return rowLoop<L, kStream>(op, j.x.row(0), j.y.row(0), j.d, long(j.width) * j.height);
        bool zero = false;
        for (int yy = 0; yy < j.height; ++yy)
            zero |= rowLoop<L, kStream>(op, j.x.row(yy), j.y.row(yy), dst.row(yy), j.width);
        return zero;
    };
    constexpr int kImages = 1 + std::remove_cvref_t<decltype(j.x.row(0))>::kImages +
                            std::remove_cvref_t<decltype(j.y.row(0))>::kImages;
    if (Op::kVector && mayStream<Op>() && streams(rowBytes * j.height * kImages, j.d, step)) {
        const bool zero = all(std::true_type{});
        _mm_sfence(); // the caller's later stores land after the image
        return zero;
    }
    return all(std::false_type{});
}

// ---- kernel choice by scale factor -----------------------------------------------------------------

// The scale-factor ranges of an integer operation: s >= kZeroFrom makes every result 0 (the
// destination is filled), s <= kBoundFrom makes every non-zero result saturate, s = 1 has a
// half kernel where kHalf.
struct RangeSet {
    int zeroFrom;
    int boundFrom;
    bool half;
};

template <class Kind, class T>
struct Ranges;
// 8u: sums reach 510 (2^9 > 510 / 0.5), differences 255, products 65025.
template <> struct Ranges<Add, Kro8u> { static constexpr RangeSet k{10, -8, true}; };
template <> struct Ranges<Sub, Kro8u> { static constexpr RangeSet k{9, -8, true}; };
template <> struct Ranges<Mul, Kro8u> { static constexpr RangeSet k{17, -8, true}; };
// 16s: |sum| and |difference| reach 65535, |product| 2^30.
template <> struct Ranges<Add, Kro16s> { static constexpr RangeSet k{17, -16, true}; };
template <> struct Ranges<Sub, Kro16s> { static constexpr RangeSet k{17, -16, true}; };
template <> struct Ranges<Mul, Kro16s> { static constexpr RangeSet k{31, -15, true}; };
// 16u: sums reach 131070, differences 65535, products 65535^2 < 2^32.
template <> struct Ranges<Add, Kro16u> { static constexpr RangeSet k{18, INT_MIN, false}; };
template <> struct Ranges<Sub, Kro16u> { static constexpr RangeSet k{17, INT_MIN, false}; };
template <> struct Ranges<Mul, Kro16u> { static constexpr RangeSet k{33, INT_MIN, false}; };

// Sets the destination ROI to zero through the Set functions and returns their status.  Every
// layout keeps to its own elements: AC4 leaves the fourth one as it was.  16u images are
// filled as 16s, whose zero has the same bits.
template <class T, Layout L>
KroStatus fillZero(T* d, int dStep, KroiSize roi)
{
    static_assert(sizeof(T) <= 2 && std::is_integral_v<T>);
    if constexpr (sizeof(T) == 1) {
        constexpr Kro8u z[4] = {0, 0, 0, 0};
        if constexpr (L == kC1) return api::kroiSet_8u_C1R(0, d, dStep, roi);
        else if constexpr (L == kC3) return api::kroiSet_8u_C3R(z, d, dStep, roi);
        else if constexpr (L == kC4) return api::kroiSet_8u_C4R(z, d, dStep, roi);
        else return api::kroiSet_8u_AC4R(z, d, dStep, roi);
    } else {
        constexpr Kro16s z[4] = {0, 0, 0, 0};
        Kro16s* p = reinterpret_cast<Kro16s*>(d);
        if constexpr (L == kC1) return api::kroiSet_16s_C1R(0, p, dStep, roi);
        else if constexpr (L == kC3) return api::kroiSet_16s_C3R(z, p, dStep, roi);
        else if constexpr (L == kC4) return api::kroiSet_16s_C4R(z, p, dStep, roi);
        else return api::kroiSet_16s_AC4R(z, p, dStep, roi);
    }
}

// Runs `op` over the job and turns a met zero divisor into the warning.
template <Layout L, class Op, class T, class X, class Y>
KroStatus runOp(const Op& op, const Job<T, X, Y>& j)
{
    const bool zero = runRows<L>(op, j);
    return Op::kDivides && zero ? kroStsZeroDivisorWarn : kroStsOk;
}

// The kernel choice of Add, Sub and Mul by scale factor.
template <class Kind, class T, Layout L, class X, class Y>
KroStatus scaled(const Job<T, X, Y>& j, int s)
{
    constexpr RangeSet r = Ranges<Kind, T>::k;
    if (s >= r.zeroFrom) return fillZero<T, L>(j.d, int(j.dStep), KroiSize{j.width, j.height});
    if (s == 0) return runOp<L>(Scaled<T, Kind, Mode::Plain>{}, j);
    if constexpr (std::is_same_v<T, Kro8u>) {
        // Add and Sub have their own one-step kernels at s = 1; Mul goes to 16-bit lanes there too.
        if (s >= (std::is_same_v<Kind, Mul> ? 1 : 2) && s <= 9) return runOp<L>(Scaled<T, Kind, Mode::Down16>{s}, j);
    }
    if (s == 1 && r.half) return runOp<L>(Scaled<T, Kind, Mode::Half>{}, j);
    if (s > 0) return runOp<L>(Scaled<T, Kind, Mode::Down>{s}, j);
    if (s <= r.boundFrom) return runOp<L>(Scaled<T, Kind, Mode::Bound>{s}, j);
    return runOp<L>(Scaled<T, Kind, Mode::Up>{s}, j);
}

}  // namespace KROI_TIER::arith
