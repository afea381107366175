// Fixed thresholds: every element compared with a threshold of its channel and either clamped
// to it or replaced by a value of its channel.
//
// An operation is a struct with scalar(), the readable definition, and vec(), the same rule
// on 16 bytes of elements.  Both take the element and the operation's parameters (thresholds
// and values) for that element's channel.  One-channel images hold each parameter broadcast in
// a register; multi-channel images read them from rows of kChunk elements holding the
// parameters repeated per pixel, so that every 16-byte vector, whatever channel it starts on,
// finds its parameters at the same offset of the row.  Every comparison is strict and false
// for a NaN on either side, so a NaN element is kept and a NaN threshold changes nothing.
#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <type_traits>

#include <emmintrin.h>

#include "frame/base.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::tone::thr {

inline __m128 ps(__m128i v) { return _mm_castsi128_ps(v); }
inline __m128i si(__m128 v) { return _mm_castps_si128(v); }
inline __m128i load(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void store(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }
// m ? x : y, lane by lane (m all ones or all zeros per lane).
inline __m128i select(__m128i m, __m128i x, __m128i y)
{
    return _mm_or_si128(_mm_and_si128(m, x), _mm_andnot_si128(m, y));
}

// Per type: max and min of element lanes, and less(a, b, x, y) = a < b ? x : y.
template <class T>
struct Lanes;

template <>
struct Lanes<Kro8u> {
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epu8(a, b); }
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epu8(a, b); }
    // a >= b exactly where max(a, b) is a, which saves the inversion of a "less" mask.
    static __m128i less(__m128i a, __m128i b, __m128i x, __m128i y)
    {
        return select(_mm_cmpeq_epi8(_mm_max_epu8(a, b), a), y, x);
    }
};
template <>
struct Lanes<Kro16s> {
    static __m128i max(__m128i a, __m128i b) { return _mm_max_epi16(a, b); }
    static __m128i min(__m128i a, __m128i b) { return _mm_min_epi16(a, b); }
    static __m128i less(__m128i a, __m128i b, __m128i x, __m128i y) { return select(_mm_cmplt_epi16(a, b), x, y); }
};
// Unsigned 16-bit without SSE4.1: saturating differences give max and min exactly, and the
// signed compare works on both sides offset by 0x8000.
template <>
struct Lanes<Kro16u> {
    static __m128i max(__m128i a, __m128i b) { return _mm_adds_epu16(_mm_subs_epu16(a, b), b); }
    static __m128i min(__m128i a, __m128i b) { return _mm_sub_epi16(a, _mm_subs_epu16(a, b)); }
    static __m128i less(__m128i a, __m128i b, __m128i x, __m128i y)
    {
        const __m128i bias = _mm_set1_epi16(short(0x8000));
        return select(_mm_cmplt_epi16(_mm_xor_si128(a, bias), _mm_xor_si128(b, bias)), x, y);
    }
};
// maxps(a, b) is a > b ? a : b, so maxps(t, s) is s < t ? t : s: a NaN on either side and
// equal zeros of either sign keep s, as the scalar rule does.
template <>
struct Lanes<Kro32f> {
    static __m128i max(__m128i t, __m128i s) { return si(_mm_max_ps(ps(t), ps(s))); }
    static __m128i min(__m128i t, __m128i s) { return si(_mm_min_ps(ps(t), ps(s))); }
    static __m128i less(__m128i a, __m128i b, __m128i x, __m128i y) { return select(si(_mm_cmplt_ps(ps(a), ps(b))), x, y); }
};

// ---- operations: k holds the parameters of the element's channel -----------------------------

// Raise to the threshold what lies below it.
struct Lt {
    static constexpr int N = 1;
    template <class T> static T scalar(T s, const T* k) { return s < k[0] ? k[0] : s; }
    template <class T> static __m128i vec(__m128i s, const __m128i* k) { return Lanes<T>::max(k[0], s); }
};
// Lower to the threshold what lies above it.
struct Gt {
    static constexpr int N = 1;
    template <class T> static T scalar(T s, const T* k) { return s > k[0] ? k[0] : s; }
    template <class T> static __m128i vec(__m128i s, const __m128i* k) { return Lanes<T>::min(k[0], s); }
};
// Replace by the value what lies below the threshold.
struct LtVal {
    static constexpr int N = 2;
    template <class T> static T scalar(T s, const T* k) { return s < k[0] ? k[1] : s; }
    template <class T> static __m128i vec(__m128i s, const __m128i* k) { return Lanes<T>::less(s, k[0], k[1], s); }
};
// Replace by the value what lies above the threshold.
struct GtVal {
    static constexpr int N = 2;
    template <class T> static T scalar(T s, const T* k) { return s > k[0] ? k[1] : s; }
    template <class T> static __m128i vec(__m128i s, const __m128i* k) { return Lanes<T>::less(k[0], s, k[1], s); }
};
// Both: k = lower threshold, lower value, upper threshold, upper value.  The lower test wins,
// which matters only when a NaN threshold makes the two ranges meet.
struct LtValGtVal {
    static constexpr int N = 4;
    template <class T> static T scalar(T s, const T* k) { return s < k[0] ? k[1] : s > k[2] ? k[3] : s; }
    template <class T> static __m128i vec(__m128i s, const __m128i* k)
    {
        return Lanes<T>::less(s, k[0], k[1], Lanes<T>::less(k[2], s, k[3], s));
    }
};

// ---- rows ------------------------------------------------------------------------------------

// Elements per parameter row: a multiple of 3 and 4 pixels and of every lane count.
constexpr long kChunk = 768;

// The parameters of an operation repeated per pixel over kChunk elements; the unprocessed
// fourth channel of AC4 pixels gets zeros, which are never used.
template <class T, int N>
struct Params {
    alignas(16) T k[N][kChunk];
    template <int C, int W>
    void fill(const T* const* values)
    {
        for (int j = 0; j < N; ++j)
            for (long i = 0; i < kChunk; ++i) k[j][i] = (i % C) < W ? values[j][i % C] : T{};
    }
};

// Lanes holding the fourth channel of each pixel, whose old destination an AC4 row keeps.
template <class T>
inline __m128i alphaLanes()
{
    alignas(16) T m[16 / sizeof(T)];
    for (int i = 0; i < int(16 / sizeof(T)); ++i) {
        T v;
        std::memset(&v, i % 4 == 3 ? 0xFF : 0, sizeof v);
        m[i] = v;
    }
    return load(m);
}

// The scalar rule for the element at offset i of a parameter row.
template <class T, class Op>
T scalarAt(T s, const Params<T, Op::N>& p, long i)
{
    T k[Op::N];
    for (int j = 0; j < Op::N; ++j) k[j] = p.k[j][i];
    return Op::scalar(s, k);
}

// One row of n elements (a whole number of pixels, the first starting a pixel).  s may equal d.
template <class T, int C, int W, class Op>
void row(const T* s, T* d, long n, const Params<T, Op::N>& p)
{
    constexpr long L = 16 / sizeof(T);
    __m128i k[Op::N];
    if constexpr (C == 1) {
        for (int j = 0; j < Op::N; ++j) k[j] = load(p.k[j]);
        long i = 0;
        for (; i + 4 * L <= n; i += 4 * L) {
            const __m128i a = Op::template vec<T>(load(s + i), k), b = Op::template vec<T>(load(s + i + L), k);
            const __m128i c = Op::template vec<T>(load(s + i + 2 * L), k), e = Op::template vec<T>(load(s + i + 3 * L), k);
            store(d + i, a), store(d + i + L, b), store(d + i + 2 * L, c), store(d + i + 3 * L, e);
        }
        for (; i + L <= n; i += L) store(d + i, Op::template vec<T>(load(s + i), k));
        for (; i < n; ++i) d[i] = scalarAt<T, Op>(s[i], p, 0);
    } else {
        const __m128i alpha = alphaLanes<T>();
        for (long x = 0; x < n; x += kChunk) {
            const long m = std::min(kChunk, n - x);
            const T* sx = s + x;
            T* dx = d + x;
            long i = 0;
            for (; i + L <= m; i += L) {
                for (int j = 0; j < Op::N; ++j) k[j] = load(p.k[j] + i);
                __m128i r = Op::template vec<T>(load(sx + i), k);
                if constexpr (W < C) r = select(alpha, load(dx + i), r);
                store(dx + i, r);
            }
            for (; i < m; ++i)
                if (i % C < W) dx[i] = scalarAt<T, Op>(sx[i], p, i);
        }
    }
}


// Every row of the region, or the whole region as one row when both images' rows touch.
template <class T, int C, int W, class Op>
KroStatus image(const T* s, int ss, T* d, int ds, KroiSize roi, const T* const* values)
{
    // Pixels whose every channel has the same parameters (bit for bit, so that -0 and +0
    // values stay apart) are one-channel rows of C times the width, which need no parameter
    // rows; AC4 is excluded, its fourth channel must stay untouched.
    if constexpr (C > 1 && C == W) {
        bool same = roi.width <= INT32_MAX / C;
        for (int j = 0; j < Op::N; ++j)
            for (int c = 1; c < C; ++c) same = same && std::memcmp(&values[j][c], &values[j][0], sizeof(T)) == 0;
        if (same) return image<T, 1, 1, Op>(s, ss, d, ds, {roi.width * C, roi.height}, values);
    }
    Params<T, Op::N> p;
    p.template fill<C, W>(values);
    const auto S = rows::image(s, ss);
    const auto D = rows::image(d, ds);
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(roi.width) * C * sizeof(T);
    if (rows::merged(rowBytes, S, D)) {
        row<T, C, W, Op>(s, d, long(roi.width) * C * roi.height, p);
    } else {
        for (int y = 0; y < roi.height; ++y) row<T, C, W, Op>(S.row(y), D.row(y), long(roi.width) * C, p);
    }
    return kroStsOk;
}

// One-channel forms take their parameters by value, the others as arrays.
template <class T, int C>
using Arg = std::conditional_t<C == 1, T, const T*>;

template <class T, int C>
const T* ptr(const Arg<T, C>& a)
{
    if constexpr (C == 1) return &a;
    else return a;
}

constexpr KroStatus operation(KroCompareOp op)
{
    return op == kroCompareLess || op == kroCompareGreater ? kroStsOk : kroStsUnsupportedModeErr;
}

// Some upper threshold below its lower one: -19.  A NaN threshold is never below.
template <class T, int W>
KroStatus order(const T* lower, const T* upper)
{
    for (int c = 0; c < W; ++c)
        if (upper[c] < lower[c]) return kroStsThresholdOrderErr;
    return kroStsOk;
}

}  // namespace KROI_TIER::tone::thr

// ---- API functions ---------------------------------------------------------------------------
// The in-place forms check like the others with one image, and run the same rows with the
// source equal to the destination: each vector is read before it is written.

namespace KROI_TIER::tone {

template <class T, int C, int W>
KroStatus plain(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t, KroCompareOp op)
{
    const T* k = thr::ptr<T, C>(t);
    KROI_CHECK(check::pointers(pSrc, pDst, k));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(thr::operation(op));
    return op == kroCompareLess ? thr::image<T, C, W, thr::Lt>(pSrc, srcStep, pDst, dstStep, roi, &k)
                                : thr::image<T, C, W, thr::Gt>(pSrc, srcStep, pDst, dstStep, roi, &k);
}
template <class T, int C, int W>
KroStatus plainI(T* p, int step, KroiSize roi, thr::Arg<T, C> t, KroCompareOp op)
{
    const T* k = thr::ptr<T, C>(t);
    KROI_CHECK(check::pointers(p, k));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(check::steps(step));
    KROI_CHECK(thr::operation(op));
    return op == kroCompareLess ? thr::image<T, C, W, thr::Lt>(p, step, p, step, roi, &k)
                                : thr::image<T, C, W, thr::Gt>(p, step, p, step, roi, &k);
}

// The named forms, which have no operation to check.
template <class Op, class T, int C, int W>
KroStatus named(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, const T* const* k)
{
    for (int j = 0; j < Op::N; ++j) KROI_CHECK(check::pointers(k[j]));
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(check::steps(srcStep, dstStep));
    return thr::image<T, C, W, Op>(pSrc, srcStep, pDst, dstStep, roi, k);
}

template <class T, int C, int W>
KroStatus lt(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t)
{
    const T* k[] = {thr::ptr<T, C>(t)};
    return named<thr::Lt, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus ltI(T* p, int step, KroiSize roi, thr::Arg<T, C> t)
{
    const T* k[] = {thr::ptr<T, C>(t)};
    return named<thr::Lt, T, C, W>(p, step, p, step, roi, k);
}
template <class T, int C, int W>
KroStatus gt(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t)
{
    const T* k[] = {thr::ptr<T, C>(t)};
    return named<thr::Gt, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus gtI(T* p, int step, KroiSize roi, thr::Arg<T, C> t)
{
    const T* k[] = {thr::ptr<T, C>(t)};
    return named<thr::Gt, T, C, W>(p, step, p, step, roi, k);
}
template <class T, int C, int W>
KroStatus ltVal(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v)
{
    const T* k[] = {thr::ptr<T, C>(t), thr::ptr<T, C>(v)};
    return named<thr::LtVal, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus ltValI(T* p, int step, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v)
{
    const T* k[] = {thr::ptr<T, C>(t), thr::ptr<T, C>(v)};
    return named<thr::LtVal, T, C, W>(p, step, p, step, roi, k);
}
template <class T, int C, int W>
KroStatus gtVal(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v)
{
    const T* k[] = {thr::ptr<T, C>(t), thr::ptr<T, C>(v)};
    return named<thr::GtVal, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus gtValI(T* p, int step, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v)
{
    const T* k[] = {thr::ptr<T, C>(t), thr::ptr<T, C>(v)};
    return named<thr::GtVal, T, C, W>(p, step, p, step, roi, k);
}

// The operation is tested before anything else, unlike the plain form: a deliberate
// difference that callers may rely on.
template <class T, int C, int W>
KroStatus valCommon(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, const T* t, const T* v,
                    KroCompareOp op)
{
    KROI_CHECK(thr::operation(op));
    const T* k[] = {t, v};
    return op == kroCompareLess ? named<thr::LtVal, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k)
                                : named<thr::GtVal, T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus val(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v,
              KroCompareOp op)
{
    return valCommon<T, C, W>(pSrc, srcStep, pDst, dstStep, roi, thr::ptr<T, C>(t), thr::ptr<T, C>(v), op);
}
template <class T, int C, int W>
KroStatus valI(T* p, int step, KroiSize roi, thr::Arg<T, C> t, thr::Arg<T, C> v, KroCompareOp op)
{
    return valCommon<T, C, W>(p, step, p, step, roi, thr::ptr<T, C>(t), thr::ptr<T, C>(v), op);
}

template <class T, int C, int W>
KroStatus ltValGtValCommon(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, const T* const* k)
{
    for (int j = 0; j < 4; ++j) KROI_CHECK(check::pointers(k[j]));
    KROI_CHECK(check::pointers(pSrc, pDst));
    KROI_CHECK(check::roi(roi));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK((thr::order<T, W>(k[0], k[2])));
    return thr::image<T, C, W, thr::LtValGtVal>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus ltValGtVal(const T* pSrc, int srcStep, T* pDst, int dstStep, KroiSize roi, thr::Arg<T, C> tl,
                     thr::Arg<T, C> vl, thr::Arg<T, C> th, thr::Arg<T, C> vh)
{
    const T* k[] = {thr::ptr<T, C>(tl), thr::ptr<T, C>(vl), thr::ptr<T, C>(th), thr::ptr<T, C>(vh)};
    return ltValGtValCommon<T, C, W>(pSrc, srcStep, pDst, dstStep, roi, k);
}
template <class T, int C, int W>
KroStatus ltValGtValI(T* p, int step, KroiSize roi, thr::Arg<T, C> tl, thr::Arg<T, C> vl, thr::Arg<T, C> th,
                      thr::Arg<T, C> vh)
{
    const T* k[] = {thr::ptr<T, C>(tl), thr::ptr<T, C>(vl), thr::ptr<T, C>(th), thr::ptr<T, C>(vh)};
    return ltValGtValCommon<T, C, W>(p, step, p, step, roi, k);
}

}  // namespace KROI_TIER::tone
