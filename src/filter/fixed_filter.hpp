// The fixed-kernel filters (derivatives, Laplace, high-pass, sharpen): small integer kernels
// applied to the window rows of the border frame.
//
// A kernel is a type with m (2, 3 or 5), its m*m coefficients row by row (top row first,
// y growing downwards, x to the right) and a shift (3 for the sharpen filter's division by
// 8).  Every result is the sum of the products of the nonzero taps:
//   integer sources   exact in integers (16 bits for 8u sources, whose sums stay below
//                     2^14 in magnitude for every kernel here; 32 bits for 16s), then
//                     divided by 2^shift rounding to nearest with ties to even, saturated;
//   32f               single precision, the products taken row by row, left to right, the
//                     first product the start and each further one added, then times
//                     2^-shift (exact).
// The row loops keep the taps as compile-time constants, so a kernel's zeros cost nothing
// and its +-1 taps are an add or a subtract.
#pragma once

#include <emmintrin.h>

#include <cstdint>
#include <type_traits>
#include <utility>

#include "filter/window_frame.hpp"
#include "frame/round.hpp"

namespace KROI_TIER::filter::fixed {

// ---- the kernels -----------------------------------------------------------------------------

// Separable kernels: k[j][i] = col[j] * row[i].
template <int M, int... V>
struct Taps {
    static constexpr int m = M;
    static constexpr int shift = 0;
    static constexpr int8_t k[M * M] = {V...};
};

template <const int* Col, const int* Row, int M>
struct Outer {
    static constexpr int m = M;
    static constexpr int shift = 0;
    static constexpr auto make()
    {
        struct A { int8_t v[M * M]; } a{};
        for (int j = 0; j < M; ++j)
            for (int i = 0; i < M; ++i) a.v[j * M + i] = int8_t(Col[j] * Row[i]);
        return a;
    }
    static constexpr auto table = make();
    static constexpr const int8_t* k = table.v;
};

inline constexpr int kSmooth3[] = {1, 2, 1}, kDiff3[] = {-1, 0, 1}, kSecond3[] = {1, -2, 1};
inline constexpr int kSmooth5[] = {1, 4, 6, 4, 1}, kDiff5[] = {-1, -2, 0, 2, 1}, kSecond5[] = {1, 0, -2, 0, 1};
inline constexpr int kScharrSmooth[] = {3, 10, 3}, kFlat3[] = {1, 1, 1};

using SobelDx3 = Outer<kSmooth3, kDiff3, 3>;
using SobelDy3 = Outer<kDiff3, kSmooth3, 3>;
using SobelDxx3 = Outer<kSmooth3, kSecond3, 3>;
using SobelDyy3 = Outer<kSecond3, kSmooth3, 3>;
using SobelDxy3 = Outer<kDiff3, kDiff3, 3>;
using SobelDx5 = Outer<kSmooth5, kDiff5, 5>;
using SobelDy5 = Outer<kDiff5, kSmooth5, 5>;
using SobelDxx5 = Outer<kSmooth5, kSecond5, 5>;
using SobelDyy5 = Outer<kSecond5, kSmooth5, 5>;
using SobelDxy5 = Outer<kDiff5, kDiff5, 5>;
using ScharrDx = Outer<kScharrSmooth, kDiff3, 3>;
using ScharrDy = Outer<kDiff3, kScharrSmooth, 3>;
using PrewittDx = Outer<kFlat3, kDiff3, 3>;
using PrewittDy = Outer<kDiff3, kFlat3, 3>;
using RobertsDown = Taps<2, 1, 0, 0, -1>;
using RobertsUp = Taps<2, 0, 1, -1, 0>;
using Laplace3 = Taps<3, 1, 1, 1, 1, -8, 1, 1, 1, 1>;
using Laplace5 = Taps<5, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, -24, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1, 1>;
using HighPass3 = Taps<3, -1, -1, -1, -1, 8, -1, -1, -1, -1>;
using HighPass5 = Taps<5, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, 24, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1, -1>;
struct Sharpen3 : Taps<3, -1, -1, -1, -1, 16, -1, -1, -1, -1> {
    static constexpr int shift = 3;
};

// ---- one output row --------------------------------------------------------------------------

// The readable definition: element x of the row from the window rows (each at column -ax).
template <class K, class S, class D, int C>
D one(const S* const* rows, int64_t x)
{
    if constexpr (std::is_same_v<S, Kro32f>) {
        float v = 0.0f;
        bool first = true;
        for (int j = 0; j < K::m; ++j)
            for (int i = 0; i < K::m; ++i)
                if (const int k = K::k[j * K::m + i]) {
                    const float p = float(k) * rows[j][x + i * C];
                    v = first ? p : v + p;
                    first = false;
                }
        return K::shift ? v * (1.0f / float(1 << K::shift)) : v;
    } else {
        int32_t v = 0;
        for (int j = 0; j < K::m; ++j)
            for (int i = 0; i < K::m; ++i) v += K::k[j * K::m + i] * int32_t(rows[j][x + i * C]);
        return saturate<D>(shiftRoundEven(v, K::shift));
    }
}

// acc + k*v in lanes of 16 or 32 bits, k a compile-time tap.
template <int K>
inline __m128i tap16(__m128i acc, __m128i v)
{
    if constexpr (K == 1) return _mm_add_epi16(acc, v);
    else if constexpr (K == -1) return _mm_sub_epi16(acc, v);
    else if constexpr (K == 2) return _mm_add_epi16(acc, _mm_add_epi16(v, v));
    else if constexpr (K == -2) return _mm_sub_epi16(acc, _mm_add_epi16(v, v));
    else return _mm_add_epi16(acc, _mm_mullo_epi16(v, _mm_set1_epi16(int16_t(K))));
}

// x / 2^s to nearest, ties to even, in 16- or 32-bit lanes: (x + 2^(s-1) - 1 + (q & 1)) >> s
// with q = x >> s.
template <int S>
inline __m128i roundShift16(__m128i x)
{
    if constexpr (S == 0) return x;
    else {
        const __m128i odd = _mm_and_si128(_mm_srai_epi16(x, S), _mm_set1_epi16(1));
        return _mm_srai_epi16(_mm_add_epi16(_mm_add_epi16(x, _mm_set1_epi16((1 << (S - 1)) - 1)), odd), S);
    }
}
template <int S>
inline __m128i roundShift32(__m128i x)
{
    if constexpr (S == 0) return x;
    else {
        const __m128i odd = _mm_and_si128(_mm_srai_epi32(x, S), _mm_set1_epi32(1));
        return _mm_srai_epi32(_mm_add_epi32(_mm_add_epi32(x, _mm_set1_epi32((1 << (S - 1)) - 1)), odd), S);
    }
}

template <int N, class F>
inline void unroll(F&& f)
{
    [&]<int... I>(std::integer_sequence<int, I...>) { (f(std::integral_constant<int, I>{}), ...); }
    (std::make_integer_sequence<int, N>{});
}

// Sixteen results of an 8u source as two vectors of 16-bit sums (one load per tap).
template <class K, int C>
inline void sum8u(const Kro8u* const* rows, int64_t x, __m128i& a, __m128i& b)
{
    a = b = _mm_setzero_si128();
    const __m128i z = _mm_setzero_si128();
    auto load = [&](int j, int i, __m128i& lo, __m128i& hi) {
        const __m128i v = _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[j] + x + i * C));
        lo = _mm_unpacklo_epi8(v, z);
        hi = _mm_unpackhi_epi8(v, z);
    };
    // Taps i and m-1-i of a row with equal or opposite coefficients share one multiply (the
    // 16-bit sums wrap exactly, and the total fits).
    unroll<K::m * K::m>([&](auto t) {
        constexpr int m = K::m, j = t.value / m, i = t.value % m, i2 = m - 1 - i;
        constexpr int k = K::k[t.value], k2 = K::k[j * m + i2];
        if constexpr (i < i2 && k != 0 && (k == k2 || k == -k2)) {
            __m128i l1, h1, l2, h2;
            load(j, i, l1, h1);
            load(j, i2, l2, h2);
            if constexpr (k == k2) {
                a = tap16<k>(a, _mm_add_epi16(l1, l2));
                b = tap16<k>(b, _mm_add_epi16(h1, h2));
            } else {
                a = tap16<k2>(a, _mm_sub_epi16(l2, l1));
                b = tap16<k2>(b, _mm_sub_epi16(h2, h1));
            }
        } else if constexpr (k != 0 && !(i > i2 && (k == k2 || k == -k2))) {
            __m128i l, h;
            load(j, i, l, h);
            a = tap16<k>(a, l);
            b = tap16<k>(b, h);
        }
    });
    a = roundShift16<K::shift>(a);
    b = roundShift16<K::shift>(b);
}

// Eight results of a 16s source as two vectors of 32-bit sums (the full products from the
// low and high halves of the 16-bit multiply).
template <class K, int C>
inline void sum16s(const Kro16s* const* rows, int64_t x, __m128i& lo, __m128i& hi)
{
    lo = hi = _mm_setzero_si128();
    unroll<K::m * K::m>([&](auto t) {
        constexpr int k = K::k[t.value];
        if constexpr (k != 0) {
            const __m128i v =
                _mm_loadu_si128(reinterpret_cast<const __m128i*>(rows[t.value / K::m] + x + (t.value % K::m) * C));
            if constexpr (k == 1 || k == -1) {
                const __m128i a = _mm_srai_epi32(_mm_unpacklo_epi16(v, v), 16), b = _mm_srai_epi32(_mm_unpackhi_epi16(v, v), 16);
                lo = k == 1 ? _mm_add_epi32(lo, a) : _mm_sub_epi32(lo, a);
                hi = k == 1 ? _mm_add_epi32(hi, b) : _mm_sub_epi32(hi, b);
            } else {
                const __m128i kk = _mm_set1_epi16(int16_t(k));
                const __m128i pl = _mm_mullo_epi16(v, kk), ph = _mm_mulhi_epi16(v, kk);
                lo = _mm_add_epi32(lo, _mm_unpacklo_epi16(pl, ph));
                hi = _mm_add_epi32(hi, _mm_unpackhi_epi16(pl, ph));
            }
        }
    });
    lo = roundShift32<K::shift>(lo);
    hi = roundShift32<K::shift>(hi);
}

// Four results of a 32f source.
template <class K, int C>
inline __m128 sum32f(const Kro32f* const* rows, int64_t x)
{
    __m128 acc = _mm_setzero_ps();
    bool first = true;
    unroll<K::m * K::m>([&](auto t) {
        constexpr int k = K::k[t.value];
        if constexpr (k != 0) {
            const __m128 v = _mm_loadu_ps(rows[t.value / K::m] + x + (t.value % K::m) * C);
            const __m128 p = _mm_mul_ps(_mm_set1_ps(float(k)), v);
            acc = first ? p : _mm_add_ps(acc, p);
            first = false;
        }
    });
    return K::shift ? _mm_mul_ps(acc, _mm_set1_ps(1.0f / float(1 << K::shift))) : acc;
}

// The n elements of one output row.
template <class K, class S, class D, int C>
void row(const S* const* rows, D* d, int64_t n)
{
    int64_t x = 0;
    if constexpr (std::is_same_v<S, Kro8u>) {
        for (; x + 16 <= n; x += 16) {
            __m128i a, b;
            sum8u<K, C>(rows, x, a, b);
            if constexpr (std::is_same_v<D, Kro8u>) {
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + x), _mm_packus_epi16(a, b));
            } else {
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + x), a);
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + x + 8), b);
            }
        }
    } else if constexpr (std::is_same_v<S, Kro16s>) {
        for (; x + 8 <= n; x += 8) {
            __m128i lo, hi;
            sum16s<K, C>(rows, x, lo, hi);
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + x), _mm_packs_epi32(lo, hi));
        }
    } else {
        for (; x + 4 <= n; x += 4) _mm_storeu_ps(d + x, sum32f<K, C>(rows, x));
    }
    for (; x < n; ++x) d[x] = one<K, S, D, C>(rows, x);
}

// ---- the API frame ---------------------------------------------------------------------------

// Bytes beyond the window frame: one output row for AC4 (4-byte elements at most).
inline int64_t extraBytes(KroiSize roi, int64_t n) { return window::align64(int64_t(roi.width) * n * 4); }

// The buffer query of every fixed-kernel filter: the sizes of kernels A and B are the ones
// it has.  (Each filter names its own kernels, so that no two exports share an instance.)
template <class A, class B>
KroStatus bufferSize(KroiSize roi, int maskSize, KroDataType type, int channels, int* size)
{
    const bool good = maskSize == A::m || maskSize == B::m;
    const int m = good ? maskSize : 1;
    return window::bufferSize(roi, {m, m}, good, type, channels, size,
                              [&](int64_t, int64_t n) { return extraBytes(roi, n); });
}

// Runs kernel K over the image; the arguments are checked.
template <class K, class S, class D, int C, int WC>
void run(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roi, KroiBorderMode code, const S* pad, Kro8u* pBuffer)
{
    const KroiSize mask{K::m, K::m};
    const int64_t n = int64_t(roi.width) * C;
    D* whole = reinterpret_cast<D*>(window::extraArea<S, C>(pBuffer, roi, mask));
    window::run<S, C>(pSrc, srcStep, roi, mask, code, pad, pBuffer, [&](int64_t y, const S* const* rows) {
        D* out = window::rowAt(pDst, dstStep, y);
        if constexpr (C == WC) {
            row<K, S, D, C>(rows, out, n);
        } else {
            row<K, S, D, C>(rows, whole, n);
            for (int64_t x = 0; x < roi.width; ++x)
                for (int c = 0; c < WC; ++c) out[x * C + c] = whole[x * C + c];
        }
    });
}

// The checks of the filters without a mask argument: pointers, steps, ROI, border code,
// border value.
template <class S, class D, int WC>
KroStatus checkArgs(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roi, KroiBorderMode code,
                const S* pBorderValue, Kro8u* pBuffer, S* pad)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pBuffer));
    KROI_CHECK(window::checkStepsRoi(srcStep, dstStep, roi));
    KROI_CHECK(border::checkFilterMode(code));
    return window::borderValue<S, WC>(code, pBorderValue, pad);
}

// A filter of one size.
template <class K, class S, class D, int C, int WC>
KroStatus filter(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roi, KroiBorderMode borderType,
                 const S* pBorderValue, Kro8u* pBuffer)
{
    S pad[4] = {};
    KROI_CHECK((checkArgs<S, D, WC>(pSrc, srcStep, pDst, dstStep, roi, borderType, pBorderValue, pBuffer, pad)));
    KROI_CHECK((window::checkWorkArea<S, C>(roi, KroiSize{K::m, K::m})));
    run<K, S, D, C, WC>(pSrc, srcStep, pDst, dstStep, roi, borderType, pad, pBuffer);
    return kroStsOk;
}

// A filter of two sizes, 3 and 5, chosen by maskSize (checked after the ROI, -33).
template <class K3, class K5, class S, class D, int C, int WC>
KroStatus filter35(const S* pSrc, int srcStep, D* pDst, int dstStep, KroiSize roi, int maskSize,
                   KroiBorderMode borderType, const S* pBorderValue, Kro8u* pBuffer)
{
    KROI_CHECK(check::pointers(pSrc, pDst, pBuffer));
    KROI_CHECK(window::checkStepsRoi(srcStep, dstStep, roi));
    if (maskSize != 3 && maskSize != 5) return kroStsBadMaskErr;
    KROI_CHECK(border::checkFilterMode(borderType));
    S pad[4] = {};
    KROI_CHECK((window::borderValue<S, WC>(borderType, pBorderValue, pad)));
    KROI_CHECK((window::checkWorkArea<S, C>(roi, KroiSize{maskSize, maskSize})));
    if (maskSize == 3)
        run<K3, S, D, C, WC>(pSrc, srcStep, pDst, dstStep, roi, borderType, pad, pBuffer);
    else
        run<K5, S, D, C, WC>(pSrc, srcStep, pDst, dstStep, roi, borderType, pad, pBuffer);
    return kroStsOk;
}

}  // namespace KROI_TIER::filter::fixed
