// Kernels of the min/max (morphological) filters: the operation (larger or smaller of two
// values), the row kernels that take the extreme over m horizontally adjacent pixels, and the
// column kernels that combine row results vertically.  Nothing here checks arguments.
//
// Arrays are element arrays: a row of W pixels of C elements is W*C elements, and the window
// of output element i is input elements i, i+C, ..., i+(m-1)*C.  An input row is the widened
// row (W+m-1 pixels, starting at the leftmost pixel the first window reads).
//
// NaN (32f, 64f): a NaN never wins.  The max filter treats it as -infinity and the min filter
// as +infinity, so a window holding numbers and NaNs gives the extreme of its numbers, and a
// window of NaNs only gives -inf (max) or +inf (min).  The first pass over the source (the
// row kernels) removes NaNs this way, so the column kernels only ever see numbers.  +0 and -0
// compare equal; which of them a window of zeros yields depends on the window's order.
#pragma once

#include <emmintrin.h>
#include <tmmintrin.h>

#include <cstddef>
#include <cstring>
#include <limits>
#include <type_traits>
#include <utility>

#include "frame/base.hpp"
#include "frame/cpu.hpp"

namespace KROI_TIER::filter::minmax {

// ---- 128-bit vectors of each element type (SSE2) -----------------------------------------

template <class T>
struct Simd;

template <class T>
struct SimdInt {
    using R = __m128i;
    static constexpr long L = 16 / sizeof(T);
    static R load(const T* p) { return _mm_loadu_si128(reinterpret_cast<const __m128i*>(p)); }
    static void store(T* p, R v) { _mm_storeu_si128(reinterpret_cast<__m128i*>(p), v); }
    // v with the lanes of `mask` taken from `old`.
    static R keep(R v, R old, R mask) { return _mm_or_si128(_mm_andnot_si128(mask, v), _mm_and_si128(mask, old)); }
    // The lanes of every fourth element.
    static R alphaMask()
    {
        if constexpr (sizeof(T) == 1) return _mm_set1_epi32(int(0xFF000000u));
        else return _mm_set1_epi64x(int64_t(0xFFFF000000000000ull));
    }
};
template <>
struct Simd<Kro8u> : SimdInt<Kro8u> {};
template <>
struct Simd<Kro16u> : SimdInt<Kro16u> {};
template <>
struct Simd<Kro16s> : SimdInt<Kro16s> {};
template <>
struct Simd<Kro32f> {
    using R = __m128;
    static constexpr long L = 4;
    static R load(const Kro32f* p) { return _mm_loadu_ps(p); }
    static void store(Kro32f* p, R v) { _mm_storeu_ps(p, v); }
    static R alphaMask() { return _mm_castsi128_ps(_mm_set_epi32(-1, 0, 0, 0)); }
    static R keep(R v, R old, R mask) { return _mm_or_ps(_mm_andnot_ps(mask, v), _mm_and_ps(mask, old)); }
};
template <>
struct Simd<Kro64f> {
    using R = __m128d;
    static constexpr long L = 2;
    static R load(const Kro64f* p) { return _mm_loadu_pd(p); }
    static void store(Kro64f* p, R v) { _mm_storeu_pd(p, v); }
};

// ---- the operation ------------------------------------------------------------------------

// The larger (kMax) or smaller of two values.  absorb(acc, v) is the window's accumulator
// taking one more value; the scalar body is the definition and the vector body gives the
// same bits.  For floats it is `v > acc ? v : acc` (`v < acc ? v : acc`), which is exactly
// what maxps(v, acc) (minps) computes: a NaN v leaves acc as it was.  first(v) starts a
// window: a NaN becomes the value that never wins, so no accumulator is ever NaN.
template <class T, bool kMax>
struct Extreme {
    using S = Simd<T>;
    using R = typename S::R;
    static constexpr bool kFloat = std::is_floating_point_v<T>;

    static T neutral()
    {
        using N = std::numeric_limits<T>;
        if constexpr (kFloat) return kMax ? -N::infinity() : N::infinity();
        else return kMax ? N::lowest() : N::max();
    }
    static T absorb(T acc, T v)
    {
        if constexpr (kMax) return v > acc ? v : acc;
        else return v < acc ? v : acc;
    }
    static T first(T v)
    {
        if constexpr (kFloat) return absorb(neutral(), v);
        else return v;
    }

    static R absorb(R acc, R v)
    {
        if constexpr (std::is_same_v<T, Kro8u>) return kMax ? _mm_max_epu8(acc, v) : _mm_min_epu8(acc, v);
        else if constexpr (std::is_same_v<T, Kro16s>) return kMax ? _mm_max_epi16(acc, v) : _mm_min_epi16(acc, v);
        else if constexpr (std::is_same_v<T, Kro16u>) {
            // SSE2 has no unsigned 16-bit max/min: a - b saturated at 0 is the excess of a
            // over b, so b + excess is the max and a - excess the min.
            const __m128i excess = _mm_subs_epu16(v, acc);
            return kMax ? _mm_add_epi16(acc, excess) : _mm_sub_epi16(v, excess);
        }
        else if constexpr (std::is_same_v<T, Kro32f>) return kMax ? _mm_max_ps(v, acc) : _mm_min_ps(v, acc);
        else return kMax ? _mm_max_pd(v, acc) : _mm_min_pd(v, acc);
    }
    static R first(R v)
    {
        if constexpr (std::is_same_v<T, Kro32f>) return absorb(_mm_set1_ps(neutral()), v);
        else if constexpr (std::is_same_v<T, Kro64f>) return absorb(_mm_set1_pd(neutral()), v);
        else return v;
    }
};

// ---- stores into the destination -----------------------------------------------------------

// How results reach their row.  Plain: every element.  KeepAlpha (AC4): the fourth element
// of every pixel keeps what the row held, restored from it before each vector store; vector
// stores start on pixel boundaries (lane counts are multiples of 4), so the mask is fixed.
template <class T, bool kKeepAlpha>
struct Out {
    using S = Simd<T>;
    using R = typename S::R;
    R mask;
    Out()
    {
        if constexpr (kKeepAlpha) mask = S::alphaMask();
    }
    void vec(T* d, R v) const
    {
        if constexpr (kKeepAlpha) v = S::keep(v, S::load(d), mask);
        S::store(d, v);
    }
    static void one(T* d, long i, T v)
    {
        if (!kKeepAlpha || (i & 3) != 3) d[i] = v;
    }
};

// Two vectors of results of one step.
template <class T>
struct Two {
    typename Simd<T>::R a, b;
};

// ---- the element loop ----------------------------------------------------------------------

// Runs a kernel over elements 0 .. n-1 in vectors of L lanes: compute(i) gives the results of
// the vector at i, put(i, r) stores them.  The tail is one more vector ending at n, which
// overlaps the last full one instead of finishing lane by lane; it is computed before the
// loop, so that a pass running in place (which reads only at and after the element it
// writes) still reads the original values there.  Rows shorter than a vector go through
// one(i), the scalar definition.
template <long L, class Compute, class Put, class One>
inline void sweep(long n, Compute compute, Put put, One one)
{
    if (n < L) {
        for (long i = 0; i < n; ++i) one(i);
        return;
    }
    const auto last = compute(n - L);
    long i = 0;
#pragma GCC unroll 2
    for (; i + L < n; i += L) put(i, compute(i));
    put(n - L, last);
}

// ---- row kernels ---------------------------------------------------------------------------

// The widest mask whose row pass doubles; beyond it the block scheme (rowBlocks) is cheaper,
// so the cost per pixel of the row pass stays bounded whatever the mask.
constexpr int kDoublingMax = 256;

// Window of M <= 3 pixels, every tap read: the cheapest for the small masks.
template <class Op, class T, int C, int M, bool kKeepAlpha>
void rowDirect(const T* in, T*, T* out, long width, int)
{
    using S = Simd<T>;
    const Out<T, kKeepAlpha> o;
    sweep<S::L>(
        width * C,
        [&](long i) {
            auto acc = Op::first(S::load(in + i));
            for (int k = 1; k < M; ++k) acc = Op::absorb(acc, S::load(in + i + k * C));
            return acc;
        },
        [&](long i, typename S::R v) { o.vec(out + i, v); },
        [&](long i) {
            T acc = Op::first(in[i]);
            for (int k = 1; k < M; ++k) acc = Op::absorb(acc, in[i + k * C]);
            o.one(out, i, acc);
        });
}

// a[i] absorbs b[i] into d[i], i < n; d may be a.
template <class Op, class T, class O>
inline void pairs(const T* a, const T* b, T* d, long n, const O& o)
{
    using S = Simd<T>;
    sweep<S::L>(
        n, [&](long i) { return Op::absorb(S::load(a + i), S::load(b + i)); },
        [&](long i, typename S::R v) { o.vec(d + i, v); }, [&](long i) { o.one(d, i, Op::absorb(a[i], b[i])); });
}

// d[i] = the extreme of a[i], a[i+s], a[i+2s], a[i+3s] (s in elements), i < n; d may be a.
// kFirst: `a` is a source row, whose NaNs are removed here.
template <class Op, class T, bool kFirst>
void quads(const T* a, T* d, long n, long s)
{
    using S = Simd<T>;
    sweep<S::L>(
        n,
        [&](long i) {
            auto v = S::load(a + i);
            if constexpr (kFirst) v = Op::first(v);
            return Op::absorb(Op::absorb(Op::absorb(v, S::load(a + i + s)), S::load(a + i + 2 * s)),
                              S::load(a + i + 3 * s));
        },
        [&](long i, typename S::R v) { S::store(d + i, v); },
        [&](long i) {
            T v = kFirst ? Op::first(a[i]) : a[i];
            d[i] = Op::absorb(Op::absorb(Op::absorb(v, a[i + s]), a[i + 2 * s]), a[i + 3 * s]);
        });
}

template <class Op, class T, bool kKeepAlpha, int K>
void columns(const T* const* rows, T* d, long n);

// Window of 4..kDoublingMax pixels by growing spans: after a pass, work[i] is the extreme of
// s consecutive pixels from i, s growing fourfold while 4s fits the window; the last pass
// combines two to four spans of s (at 0, s, 2s and m - s) that cover it.  Each pass runs in place in
// `work` (a forward pass reads i + k*s*C after writing i, never before), so `work` needs
// W+m-4 pixels and may be `in` itself.
template <class Op, class T, int C, bool kKeepAlpha>
void rowDoubling(const T* in, T* work, T* out, long width, int m)
{
    long len = (width + m - 4) * C; // valid elements after the first pass
    quads<Op, T, true>(in, work, len, C);
    long s = 4;
    for (; 4 * s <= m; s *= 4) {
        len -= 3 * s * C;
        quads<Op, T, false>(work, work, len, s * C);
    }
    // The last pass covers the window with two to four spans of s pixels.
    const T* span[4] = {work, work + s * C, work + 2 * s * C, work + (m - s) * C};
    const long n = width * C;
    if (m <= 2 * s) {
        span[1] = span[3];
        columns<Op, T, kKeepAlpha, 2>(span, out, n);
    } else if (m <= 3 * s) {
        span[2] = span[3];
        columns<Op, T, kKeepAlpha, 3>(span, out, n);
    } else {
        columns<Op, T, kKeepAlpha, 4>(span, out, n);
    }
}

// One-channel 8u rows with windows of M = 5 .. 32 pixels in a single sweep (SSSE3 byte
// alignment, so run only on processors with SSE4.1).  The four-pixel extremes come from
// unaligned loads; the wider spans are the same vectors realigned in registers, so no
// intermediate row is stored and read back.  Loads and shuffles go to different units,
// which is what makes this cheaper than the passes of rowDoubling.  Returns the number of
// outputs made: the sweep stops where its next vector would read past the widened row, and
// the caller finishes the row.
// The extremes of in[y .. y+3] for y = x .. x+15.
template <class Op>
KROI_SSE41 inline __m128i quad8u_sse41(const Kro8u* in)
{
    using S = Simd<Kro8u>;
    const __m128i v = Op::absorb(S::load(in), S::load(in + 1));
    return Op::absorb(v, Op::absorb(S::load(in + 2), S::load(in + 3)));
}

// Spans of K <= 16 pixels from the four-pixel extremes lo (at x) and hi (at x+16): the
// spans at 0, 4, 8 and K-4, or closer for short windows.
template <class Op, int K>
KROI_SSE41 inline __m128i span8u_sse41(__m128i lo, __m128i hi)
{
    constexpr int o1 = K - 4 < 4 ? K - 4 : 4, o2 = K - 4 < 8 ? K - 4 : 8, o3 = K - 4;
    const __m128i v = Op::absorb(lo, _mm_alignr_epi8(hi, lo, o1));
    return Op::absorb(v, Op::absorb(_mm_alignr_epi8(hi, lo, o2), _mm_alignr_epi8(hi, lo, o3)));
}

template <class Op, int M>
KROI_SSE41 long rowSpans8u_sse41(const Kro8u* in, Kro8u* out, long width)
{
    using S = Simd<Kro8u>;
    using R = S::R;
    static_assert(M >= 5 && M <= 32);
    const long len = width + M - 1; // pixels of the widened row
    constexpr int K = M <= 16 ? M : 16;
    long x = 0;
    if constexpr (M <= 16) {
        // out(x) = span(q(x), q(x+16)), which reads up to in[x+34].
        if (len < 35) return 0;
        R q = quad8u_sse41<Op>(in);
        for (; x + 16 <= width && x + 35 <= len; x += 16) {
            const R qn = quad8u_sse41<Op>(in + x + 16);
            S::store(out + x, span8u_sse41<Op, K>(q, qn));
            q = qn;
        }
    } else {
        // out(x) = the extreme of the 16-pixel spans at x and x+M-16, the second realigned
        // from the spans at x and x+16; reads up to in[x+50].
        if (len < 51) return 0;
        R q = quad8u_sse41<Op>(in + 16);
        R v = span8u_sse41<Op, K>(quad8u_sse41<Op>(in), q);
        for (; x + 16 <= width && x + 51 <= len; x += 16) {
            const R qn = quad8u_sse41<Op>(in + x + 32);
            const R vn = span8u_sse41<Op, K>(q, qn);
            S::store(out + x, Op::absorb(v, _mm_alignr_epi8(vn, v, M - 16)));
            v = vn;
            q = qn;
        }
    }
    return x;
}

// The same single sweep for other layouts and element types, windows of M = 5 .. 32: the
// four-pixel extremes Q of a short history of vectors, and the window as the extreme of the
// spans of four at pixels 0, 4, 8, ... and M-4, each span realigned from two neighbouring Q
// vectors (whole ones where the offset falls on a vector).  Returns the elements made.
template <class T, int B>
KROI_SSE41 inline typename Simd<T>::R bytesAt_sse41(typename Simd<T>::R lo, typename Simd<T>::R hi)
{
    if constexpr (B == 0) {
        return lo;
    } else if constexpr (std::is_same_v<T, Kro32f>) {
        return _mm_castsi128_ps(_mm_alignr_epi8(_mm_castps_si128(hi), _mm_castps_si128(lo), B));
    } else {
        return _mm_alignr_epi8(hi, lo, B);
    }
}

template <class Op, class T, int C, int M, int... Ks>
KROI_SSE41 inline typename Simd<T>::R spans_sse41(const typename Simd<T>::R* q, std::integer_sequence<int, Ks...>)
{
    constexpr long L = Simd<T>::L;
    auto v = q[0];
    ((v = Op::absorb(v, bytesAt_sse41<T, int((((Ks + 1) * 4 < M - 4 ? (Ks + 1) * 4 : M - 4) * C) % L * sizeof(T))>(
                            q[(((Ks + 1) * 4 < M - 4 ? (Ks + 1) * 4 : M - 4) * C) / L],
                            q[(((Ks + 1) * 4 < M - 4 ? (Ks + 1) * 4 : M - 4) * C) / L + 1]))),
     ...);
    return v;
}

template <class Op, class T, int C, int M>
KROI_SSE41 long rowSpans_sse41(const T* in, T* out, long width)
{
    using S = Simd<T>;
    using R = typename S::R;
    static_assert(M >= 5 && M <= 32);
    constexpr long L = S::L;
    constexpr int H = int(long(M - 4) * C / L) + 2; // Q vectors held: up to the last span's pair
    constexpr long reach = (H - 1) * L + 3 * C + L;  // elements read ahead of the output
    const long n = width * C, len = (width + M - 1) * C;
    if (len < reach) return 0;
    R q[H];
    for (int h = 0; h < H - 1; ++h) {
        const T* p = in + h * L;
        q[h] = Op::absorb(Op::absorb(Op::first(S::load(p)), S::load(p + C)),
                          Op::absorb(S::load(p + 2 * C), S::load(p + 3 * C)));
    }
    long x = 0;
    for (; x + L <= n && x + reach <= len; x += L) {
        const T* p = in + x + (H - 1) * L;
        q[H - 1] = Op::absorb(Op::absorb(Op::first(S::load(p)), S::load(p + C)),
                              Op::absorb(S::load(p + 2 * C), S::load(p + 3 * C)));
        S::store(out + x, spans_sse41<Op, T, C, M>(q, std::make_integer_sequence<int, (M + 3) / 4 - 1>{}));
        for (int h = 0; h < H - 1; ++h) q[h] = q[h + 1];
    }
    return x;
}

// Rows with windows of M pixels on processors with SSE4.1, for the layouts whose vectors
// hold whole spans (C = 1, or 8u C = 3): the single sweep, then rowDoubling for the rest.
template <class Op, class T, int C, int M>
void rowSpans(const T* in, T* work, T* out, long width, int m)
{
    const long done = rowSpans_sse41<Op, T, C, M>(in, out, width) / C; // whole pixels
    if (done < width) rowDoubling<Op, T, C, false>(in + done * C, work, out + done * C, width - done, m);
}

// The kernel of one-channel 8u rows with windows of M pixels on processors with SSE4.1:
// the single sweep, then rowDoubling for the few outputs at the end of the row that it
// leaves.  `work` may be `in`: rowDoubling writes work[i] before it reads in[done + i].
template <class Op, int M>
void rowSpans8u(const Kro8u* in, Kro8u* work, Kro8u* out, long width, int m)
{
    const long done = rowSpans8u_sse41<Op, M>(in, out, width);
    if (done < width) rowDoubling<Op, Kro8u, 1, false>(in + done, work, out + done, width - done, m);
}

// Any window, in blocks of m pixels (the van Herk / Gil-Werman scheme): the extreme of the
// window starting at x is that of the suffix of x's block from x and the prefix of the next
// block up to x+m-1, so three operations per element whatever m.  The suffixes go to `out`
// first, then the prefixes are run forward and combined into it.  Scalar: each step depends
// on the one before.  AC4 rows skip the fourth element, which nothing reads.
template <class Op, class T, int C, bool kKeepAlpha, bool kAlpha>
void rowBlocks(const T* in, T*, T* out, long width, int m)
{
    constexpr int WC = kAlpha ? 3 : C;
    const long total = width + m - 1;
    for (int c = 0; c < WC; ++c) {
        for (long b = 0; b < width; b += m) {
            T acc = Op::neutral();
            for (long x = b + m - 1; x >= b; --x) {
                acc = Op::absorb(acc, in[x * C + c]);
                if (x < width) out[x * C + c] = acc;
            }
        }
        T acc = Op::neutral();
        long inBlock = 0;
        for (long j = 0; j < total; ++j) {
            const T v = in[j * C + c];
            acc = inBlock == 0 ? Op::first(v) : Op::absorb(acc, v);
            if (++inBlock == m) inBlock = 0;
            const long x = j - (m - 1);
            if (x >= 0) out[x * C + c] = Op::absorb(out[x * C + c], acc);
        }
    }
}

// ---- column kernels ------------------------------------------------------------------------

// d = the extreme of K rows, element by element (K = 1 is a copy).
template <class Op, class T, bool kKeepAlpha, int K>
void columns(const T* const* rows, T* d, long n)
{
    using S = Simd<T>;
    const Out<T, kKeepAlpha> o;
    const T* r[K];
    for (int k = 0; k < K; ++k) r[k] = rows[k];
    sweep<S::L>(
        n,
        [&](long i) {
            auto acc = S::load(r[0] + i);
            for (int k = 1; k < K; ++k) acc = Op::absorb(acc, S::load(r[k] + i));
            return acc;
        },
        [&](long i, typename S::R v) { o.vec(d + i, v); },
        [&](long i) {
            T acc = r[0][i];
            for (int k = 1; k < K; ++k) acc = Op::absorb(acc, r[k][i]);
            o.one(d, i, acc);
        });
}

// Two outputs of a three-row mask from four row results, sharing the middle pair:
// d0 = extreme(r0, r1, r2), d1 = extreme(r1, r2, r3).
template <class Op, class T, bool kKeepAlpha>
void columnsPair3(const T* r0, const T* r1, const T* r2, const T* r3, T* d0, T* d1, long n)
{
    using S = Simd<T>;
    using R = typename S::R;
    const Out<T, kKeepAlpha> o;
    sweep<S::L>(
        n,
        [&](long i) {
            const R mid = Op::absorb(S::load(r1 + i), S::load(r2 + i));
            return Two<T>{Op::absorb(mid, S::load(r0 + i)), Op::absorb(mid, S::load(r3 + i))};
        },
        [&](long i, Two<T> v) {
            o.vec(d0 + i, v.a);
            o.vec(d1 + i, v.b);
        },
        [&](long i) {
            const T mid = Op::absorb(r1[i], r2[i]);
            o.one(d0, i, Op::absorb(mid, r0[i]));
            o.one(d1, i, Op::absorb(mid, r3[i]));
        });
}

// Two new rows and a pair of outputs of a three-row mask in one pass, for row windows of
// M <= 3 pixels: ra, rb = the row results of the widened rows ina, inb (kept for the next
// pair), d0 = extreme(r0, r1, ra), d1 = extreme(r1, ra, rb).  The same values as rowDirect
// followed by columnsPair3, without reading ra and rb back.
template <class Op, class T, int C, int M, bool kKeepAlpha>
void rowsAndPair3(const T* ina, const T* inb, const T* r0, const T* r1, T* ra, T* rb, T* d0, T* d1, long n)
{
    using S = Simd<T>;
    using R = typename S::R;
    const Out<T, kKeepAlpha> o;
    struct Four {
        R a, b, d0, d1;
    };
    sweep<S::L>(
        n,
        [&](long i) {
            R a = Op::first(S::load(ina + i)), b = Op::first(S::load(inb + i));
            for (int k = 1; k < M; ++k) {
                a = Op::absorb(a, S::load(ina + i + k * C));
                b = Op::absorb(b, S::load(inb + i + k * C));
            }
            const R mid = Op::absorb(S::load(r1 + i), a);
            return Four{a, b, Op::absorb(mid, S::load(r0 + i)), Op::absorb(mid, b)};
        },
        [&](long i, const Four& v) {
            S::store(ra + i, v.a);
            S::store(rb + i, v.b);
            o.vec(d0 + i, v.d0);
            o.vec(d1 + i, v.d1);
        },
        [&](long i) {
            T a = Op::first(ina[i]), b = Op::first(inb[i]);
            for (int k = 1; k < M; ++k) {
                a = Op::absorb(a, ina[i + k * C]);
                b = Op::absorb(b, inb[i + k * C]);
            }
            ra[i] = a;
            rb[i] = b;
            const T mid = Op::absorb(r1[i], a);
            o.one(d0, i, Op::absorb(mid, r0[i]));
            o.one(d1, i, Op::absorb(mid, b));
        });
}

// One step of the vertical block scheme: the running prefix p absorbs the new row r (or
// starts from it), and d = the extreme of the old block's suffix s and the prefix.
template <class Op, class T, bool kKeepAlpha>
void prefixStep(T* p, const T* r, bool start, const T* s, T* d, long n)
{
    using S = Simd<T>;
    using R = typename S::R;
    const Out<T, kKeepAlpha> o;
    sweep<S::L>(
        n,
        [&](long i) {
            const R v = start ? S::load(r + i) : Op::absorb(S::load(p + i), S::load(r + i));
            return Two<T>{v, Op::absorb(S::load(s + i), v)};
        },
        [&](long i, Two<T> v) {
            S::store(p + i, v.a);
            o.vec(d + i, v.b);
        },
        [&](long i) {
            const T v = start ? r[i] : Op::absorb(p[i], r[i]);
            p[i] = v;
            o.one(d, i, Op::absorb(s[i], v));
        });
}

// a absorbs b into d (d may be a).
template <class Op, class T, bool kKeepAlpha>
void pair(const T* a, const T* b, T* d, long n)
{
    pairs<Op>(a, b, d, n, Out<T, kKeepAlpha>{});
}

// The fixed 3x3 window: d[x] = the extreme of r[0..2][x .. x+2] (the rows start one pixel
// left of the output's column).
template <class Op>
void rows3x3(const Kro64f* const* r, Kro64f* d, long w)
{
    using S = Simd<Kro64f>;
    long x = 0;
    for (; x + S::L <= w; x += S::L) {
        auto acc = Op::first(S::load(r[0] + x));
        for (int k = 0; k < 3; ++k)
            for (int i = k == 0 ? 1 : 0; i < 3; ++i) acc = Op::absorb(acc, S::load(r[k] + x + i));
        S::store(d + x, acc);
    }
    for (; x < w; ++x) {
        Kro64f acc = Op::first(r[0][x]);
        for (int k = 0; k < 3; ++k)
            for (int i = k == 0 ? 1 : 0; i < 3; ++i) acc = Op::absorb(acc, r[k][x + i]);
        d[x] = acc;
    }
}

}  // namespace KROI_TIER::filter::minmax
