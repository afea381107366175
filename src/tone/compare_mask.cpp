// Comparison masks: 255 where the relation holds in every compared channel, 0 elsewhere.
//
// A relation is a struct whose scalar() is the definition and whose vec() gives the same
// answer as lane masks.  Elements are compared in runs of up to kChunk: one-channel masks go
// straight to the destination, several channels first to a buffer that is then reduced per
// pixel.  A constant is compared as a buffer row holding it repeated, so that one row loop
// serves images and constants.
#include <algorithm>
#include <cmath>
#include <cstddef>
#include <type_traits>

#include <emmintrin.h>

#include "frame/base.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"
#include "frame/stream.hpp"

namespace KROI_TIER::tone {

namespace {

// ---- lane relations per element type (all-ones lanes where it holds) -------------------------

inline __m128i ones() { return _mm_set1_epi32(-1); }
inline __m128 ps(__m128i v) { return _mm_castsi128_ps(v); }
inline __m128i si(__m128 v) { return _mm_castps_si128(v); }

template <class T>
struct Lanes;

template <>
struct Lanes<Kro8u> {
    static __m128i le(__m128i a, __m128i b) { return _mm_cmpeq_epi8(_mm_min_epu8(a, b), a); }
    static __m128i lt(__m128i a, __m128i b) { return _mm_xor_si128(le(b, a), ones()); }
    static __m128i eq(__m128i a, __m128i b) { return _mm_cmpeq_epi8(a, b); }
};
template <>
struct Lanes<Kro16s> {
    static __m128i lt(__m128i a, __m128i b) { return _mm_cmplt_epi16(a, b); }
    static __m128i le(__m128i a, __m128i b) { return _mm_xor_si128(_mm_cmpgt_epi16(a, b), ones()); }
    static __m128i eq(__m128i a, __m128i b) { return _mm_cmpeq_epi16(a, b); }
};
// Unsigned 16-bit through the signed compares, both sides offset by 0x8000.
template <>
struct Lanes<Kro16u> {
    static __m128i bias(__m128i v) { return _mm_xor_si128(v, _mm_set1_epi16(short(0x8000))); }
    static __m128i lt(__m128i a, __m128i b) { return Lanes<Kro16s>::lt(bias(a), bias(b)); }
    static __m128i le(__m128i a, __m128i b) { return Lanes<Kro16s>::le(bias(a), bias(b)); }
    static __m128i eq(__m128i a, __m128i b) { return _mm_cmpeq_epi16(a, b); }
};
// Ordered compares: false when either side is NaN; -0 equals +0.
template <>
struct Lanes<Kro32f> {
    static __m128i lt(__m128i a, __m128i b) { return si(_mm_cmplt_ps(ps(a), ps(b))); }
    static __m128i le(__m128i a, __m128i b) { return si(_mm_cmple_ps(ps(a), ps(b))); }
    static __m128i eq(__m128i a, __m128i b) { return si(_mm_cmpeq_ps(ps(a), ps(b))); }
};

// ---- relations -----------------------------------------------------------------------------

struct Lt {
    template <class T> bool scalar(T a, T b) const { return a < b; }
    template <class T> __m128i vec(__m128i a, __m128i b) const { return Lanes<T>::lt(a, b); }
};
struct Le {
    template <class T> bool scalar(T a, T b) const { return a <= b; }
    template <class T> __m128i vec(__m128i a, __m128i b) const { return Lanes<T>::le(a, b); }
};
struct Eq {
    template <class T> bool scalar(T a, T b) const { return a == b; }
    template <class T> __m128i vec(__m128i a, __m128i b) const { return Lanes<T>::eq(a, b); }
};
struct Ge {
    template <class T> bool scalar(T a, T b) const { return a >= b; }
    template <class T> __m128i vec(__m128i a, __m128i b) const { return Lanes<T>::le(b, a); }
};
struct Gt {
    template <class T> bool scalar(T a, T b) const { return a > b; }
    template <class T> __m128i vec(__m128i a, __m128i b) const { return Lanes<T>::lt(b, a); }
};
// |a - b| <= eps, the difference in single precision made absolute by clearing its sign.
struct EqEps {
    float eps;
    template <class T> bool scalar(T a, T b) const { return std::fabs(a - b) <= eps; }
    template <class T> __m128i vec(__m128i a, __m128i b) const
    {
        const __m128 d = _mm_and_ps(_mm_sub_ps(ps(a), ps(b)), ps(_mm_set1_epi32(0x7FFFFFFF)));
        return si(_mm_cmple_ps(d, _mm_set1_ps(eps)));
    }
};

// ---- row loop ----------------------------------------------------------------------------------

inline __m128i load(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }

// Byte masks of 16 consecutive elements.  Lane masks of wider types narrow by signed packs,
// which keep 0 and -1.
template <class T, class Op>
inline __m128i mask16(const T* a, const T* b, const Op& op)
{
    constexpr int L = 16 / sizeof(T);
    if constexpr (L == 16) {
        return op.template vec<T>(load(a), load(b));
    } else if constexpr (L == 8) {
        return _mm_packs_epi16(op.template vec<T>(load(a), load(b)), op.template vec<T>(load(a + 8), load(b + 8)));
    } else {
        const __m128i m0 = op.template vec<T>(load(a), load(b)), m1 = op.template vec<T>(load(a + 4), load(b + 4));
        const __m128i m2 = op.template vec<T>(load(a + 8), load(b + 8)), m3 = op.template vec<T>(load(a + 12), load(b + 12));
        return _mm_packs_epi16(_mm_packs_epi32(m0, m1), _mm_packs_epi32(m2, m3));
    }
}

// How far ahead, in bytes, both sources are prefetched: two read streams and a write stream
// are more than the hardware prefetcher keeps up with.  From the last-level cache 2048
// elements ahead (32 turns of the loop below): less is too late for float images, and byte
// images measured slower again from about 8 KiB on, where the prefetched lines crowd the
// first-level cache.  Streaming rows read from memory, whose latency needs at least 8 KiB
// in flight.
template <class T, bool kStream>
constexpr long kAhead = kStream && 2048 * sizeof(T) < 8192 ? 8192 : 2048 * sizeof(T);

// With kStream the caller has checked that m starts on 16 bytes.
template <bool kStream = false, class T, class Op>
void maskRow(const T* a, const T* b, Kro8u* m, long n, const Op& op)
{
    using stream::store16;
    long i = 0;
    for (; i + 64 <= n; i += 64) {
        for (int l = 0; l < int(sizeof(T)); ++l) {
            _mm_prefetch(reinterpret_cast<const char*>(a + i) + kAhead<T, kStream> + 64 * l, _MM_HINT_T0);
            _mm_prefetch(reinterpret_cast<const char*>(b + i) + kAhead<T, kStream> + 64 * l, _MM_HINT_T0);
        }
        const __m128i x = mask16(a + i, b + i, op), y = mask16(a + i + 16, b + i + 16, op);
        const __m128i z = mask16(a + i + 32, b + i + 32, op), w = mask16(a + i + 48, b + i + 48, op);
        store16<kStream>(m + i, x), store16<kStream>(m + i + 16, y);
        store16<kStream>(m + i + 32, z), store16<kStream>(m + i + 48, w);
    }
    for (; i + 16 <= n; i += 16) store16<kStream>(m + i, mask16(a + i, b + i, op));
    for (; i < n; ++i) m[i] = op.template scalar<T>(a[i], b[i]) ? 255 : 0;
}

// Elements per run: a multiple of 3, 4 and 16, so that runs start on pixels and a buffer
// row of a repeated constant lines up with every run.
constexpr long kChunk = 768;

// One row of n pixels.  b is the second image's row, or (kConstRow) a buffer of kChunk
// elements holding the constant repeated, used for every run.
template <class T, int C, int W, bool kConstRow, bool kStream, class Op>
void compareRow(const T* a, const T* b, Kro8u* d, long n, const Op& op)
{
    if constexpr (C == 1) {
        if constexpr (!kConstRow) {
            maskRow<kStream>(a, b, d, n, op);
        } else {
            for (long x = 0; x < n; x += kChunk) maskRow<kStream>(a + x, b, d + x, std::min(kChunk, n - x), op);
        }
    } else {
        constexpr long kPx = kChunk / C;
        alignas(16) Kro8u m[kChunk];
        for (long x = 0; x < n; x += kPx) {
            const long np = std::min(kPx, n - x);
            maskRow(a + x * C, kConstRow ? b : b + x * C, m, np * C, op);
            for (long p = 0; p < np; ++p) {
                Kro8u all = m[C * p];
                for (int c = 1; c < W; ++c) all &= m[C * p + c];
                d[x + p] = all;
            }
        }
    }
}

template <class T, int C, int W, bool kConstRow, class Op>
KroStatus compareRows(const T* a, int sa, const T* b, int sb, Kro8u* d, int sd, KroiSize roi, const Op& op)
{
    const auto A = rows::image(a, sa);
    const auto B = rows::image(b, sb);
    const auto D = rows::image(d, sd);
    const std::ptrdiff_t rowBytes = std::ptrdiff_t(roi.width) * C * sizeof(T);
    const bool merged =
        rows::merged(rowBytes, A) && (kConstRow || rows::merged(rowBytes, B)) && rows::merged(roi.width, D);
    const long width = merged ? long(roi.width) * roi.height : roi.width;
    const int height = merged ? 1 : roi.height;
    // One-channel masks of images beyond the biggest cache go out with streaming stores.
    const std::int64_t bytes = std::int64_t(roi.width) * roi.height * ((kConstRow ? 1 : 2) * rowBytes / roi.width + 1);
    if constexpr (C == 1) {
        if (stream::rowsBeyondCache(bytes, d, sd)) {
            for (int y = 0; y < height; ++y)
                compareRow<T, C, W, kConstRow, true>(A.row(y), kConstRow ? b : B.row(y), D.row(y), width, op);
            _mm_sfence();
            return kroStsOk;
        }
    }
    {
        for (int y = 0; y < height; ++y)
            compareRow<T, C, W, kConstRow, false>(A.row(y), kConstRow ? b : B.row(y), D.row(y), width, op);
    }
    return kroStsOk;
}

// The constant as a run-length buffer row.
template <class T, int C, int W>
struct ConstRow {
    alignas(16) T v[kChunk];
    explicit ConstRow(const T* value)
    {
        for (long i = 0; i < kChunk; ++i) v[i] = (i % C) < W ? value[i % C] : T{};
    }
};

template <class T, int C>
using ConstArg = std::conditional_t<C == 1, T, const T*>;

template <class T, int C>
const T* constPtr(const ConstArg<T, C>& value)
{
    if constexpr (C == 1) return &value;
    else return value;
}

constexpr KroStatus tolerance(float eps)
{
    return eps < 0 ? kroStsNegativeToleranceErr : kroStsOk;
}

}  // namespace

// An operation code outside 0..4, negative ones included, does nothing and succeeds.
// Greater-or-equal and greater are less-or-equal and less with the sources exchanged.
template <class T, int C, int W>
KroStatus compare(const T* pSrc1, int src1Step, const T* pSrc2, int src2Step, Kro8u* pDst, int dstStep,
                  KroiSize roiSize, KroCompareOp op)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(check::steps(src1Step, src2Step, dstStep));
    KROI_CHECK(check::roi(roiSize));
    switch (static_cast<std::uint32_t>(op)) {
    case kroCompareLess:
        return compareRows<T, C, W, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, Lt{});
    case kroCompareLessEq:
        return compareRows<T, C, W, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, Le{});
    case kroCompareEq:
        return compareRows<T, C, W, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, Eq{});
    case kroCompareGreaterEq:
        return compareRows<T, C, W, false>(pSrc2, src2Step, pSrc1, src1Step, pDst, dstStep, roiSize, Le{});
    case kroCompareGreater:
        return compareRows<T, C, W, false>(pSrc2, src2Step, pSrc1, src1Step, pDst, dstStep, roiSize, Lt{});
    default:
        return kroStsOk;
    }
}

template <class T, int C, int W>
KroStatus compareC(const T* pSrc, int srcStep, ConstArg<T, C> value, Kro8u* pDst, int dstStep, KroiSize roiSize,
                   KroCompareOp op)
{
    KROI_CHECK(check::pointers(pSrc, constPtr<T, C>(value), pDst));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    const auto op32 = static_cast<std::uint32_t>(op);
    if (op32 > kroCompareGreater) return kroStsOk;
    const ConstRow<T, C, W> k(constPtr<T, C>(value));
    const T* b = k.v;
    switch (op32) {
    case kroCompareLess: return compareRows<T, C, W, true>(pSrc, srcStep, b, 0, pDst, dstStep, roiSize, Lt{});
    case kroCompareLessEq: return compareRows<T, C, W, true>(pSrc, srcStep, b, 0, pDst, dstStep, roiSize, Le{});
    case kroCompareEq: return compareRows<T, C, W, true>(pSrc, srcStep, b, 0, pDst, dstStep, roiSize, Eq{});
    case kroCompareGreaterEq: return compareRows<T, C, W, true>(pSrc, srcStep, b, 0, pDst, dstStep, roiSize, Ge{});
    default: return compareRows<T, C, W, true>(pSrc, srcStep, b, 0, pDst, dstStep, roiSize, Gt{});
    }
}

template <int C, int W>
KroStatus compareEqualEps(const Kro32f* pSrc1, int src1Step, const Kro32f* pSrc2, int src2Step, Kro8u* pDst,
                          int dstStep, KroiSize roiSize, Kro32f eps)
{
    KROI_CHECK(check::pointers(pSrc1, pSrc2, pDst));
    KROI_CHECK(check::steps(src1Step, src2Step, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(tolerance(eps));
    return compareRows<Kro32f, C, W, false>(pSrc1, src1Step, pSrc2, src2Step, pDst, dstStep, roiSize, EqEps{eps});
}

template <int C, int W>
KroStatus compareEqualEpsC(const Kro32f* pSrc, int srcStep, ConstArg<Kro32f, C> value, Kro8u* pDst, int dstStep,
                           KroiSize roiSize, Kro32f eps)
{
    KROI_CHECK(check::pointers(pSrc, constPtr<Kro32f, C>(value), pDst));
    KROI_CHECK(check::steps(srcStep, dstStep));
    KROI_CHECK(check::roi(roiSize));
    KROI_CHECK(tolerance(eps));
    const ConstRow<Kro32f, C, W> k(constPtr<Kro32f, C>(value));
    return compareRows<Kro32f, C, W, true>(pSrc, srcStep, k.v, 0, pDst, dstStep, roiSize, EqEps{eps});
}

}  // namespace KROI_TIER::tone

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "tone/compare_mask.exports.inc"
}
#undef KROI_EXPORT
