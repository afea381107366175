// The border-filter frame on its simplest member: window sums over a mw x mh mask with its
// anchor at the centre, kept as running sums, for the box filter (mean) and the window sums.
//
// The sums follow one fixed sequence of single-precision operations, which defines the
// results bit for bit:
//   column sums  c[x] of the mh rows of the window, over the widened row x = -ax .. W-1+right:
//                starting from +0, c = c + row for the window's rows top to bottom; for the
//                next output row c = c + (entering - leaving), the difference taken first;
//   window sum   s(0) = +0 + c[0] + c[1] + ... + c[mw-1], left to right; then
//                s(x) = s(x-1) + (c[x+mw-1] - c[x-1]);
// channel by channel.  Integer sources take an exact 32-bit integer path whenever every
// value of that sequence is an integer below 2^24 in magnitude, where single precision is
// exact too, so both paths give the same bits; the integer path may then add in any order.
//
// Buffer areas (sizes fixed by the query, which callers allocate from): area 1, border work
// rows, is not needed by this kernel; area 2 holds the column sums; area 3 holds the staged
// image of the small-image path or, in place, the last ay+1 source rows; area 4, the row
// pointer table, is the slack that lets area 3 start on an element boundary.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>
#include <limits>

#include "filter/border_rules.hpp"
#include "filter/border_stage.hpp"
#include "frame/check.hpp"
#include "frame/round.hpp"

namespace KROI_TIER::box {

using border::Frame;
using border::Rows;

// ---- the buffer ------------------------------------------------------------------------

struct Areas {
    __int128 a1, a2, a3, a4;
    __int128 total() const { return a1 + a2 + a3 + a4; }
};

// The four areas for ROI W x H, mask mw x mh, element size e, n channels.
inline Areas areas(KroiSize roi, KroiSize mask, int64_t e, int64_t n)
{
    using I = __int128;
    const I w = roi.width, h = roi.height, mw = mask.width, mh = mask.height;
    const I ax = (mw - 1) >> 1, ay = (mh - 1) >> 1;
    const I wb = w + mw - 1, hb = h + mh - 1;
    const I a = (mh - 1 - ay + mh - 1) * wb;
    const I b = (2 * mw - 2 - ax) * hb;
    const I c = b + (mw == 2 ? hb : 0);
    const I d = a + (mh == 2 ? wb : 0) + b + c;
    Areas r;
    r.a1 = 4 * n * (a + d);
    r.a2 = (w + mw + 3) * (n == 1 ? 4 : 16);
    r.a3 = w * n * (ay + 1) * e + 64;
    if (!(w - mw + 1 > mw && h - mh + 1 > mh)) {
        const I whole = e * wb * hb * n;
        if (whole > r.a3) r.a3 = whole;
    }
    r.a4 = 8 * (ay + 1);
    return r;
}

// The buffer query of the box filter and the window sums.
inline KroStatus bufferSize(KroiSize roi, KroiSize mask, KroDataType type, int channels, int* size)
{
    KROI_CHECK(check::pointers(size));
    KROI_CHECK(check::roi(roi));
    if (mask.width < 1 || mask.height < 1) return kroStsBadMaskErr;
    int e;
    switch (type) {
    case kro8u: e = 1; break;
    case kro16u:
    case kro16s: e = 2; break;
    case kro32f: e = 4; break;
    default: return kroStsBadDataTypeErr;
    }
    if (channels != 1 && channels != 3 && channels != 4) return kroStsBadChannelCountErr;
    const __int128 total = areas(roi, mask, e, channels).total();
    if (total > 0x7FFFFFFF) return kroStsSizeLimitErr;
    *size = int(total);
    return kroStsOk;
}

// An operation's own refusal of a call whose work area, the query's areas in exact
// arithmetic, exceeds 2^31 - 1 bytes: no query can have described a buffer for it, so a
// buffer passed for it is too small (-6, before anything is read or written).
template <class T, int C>
inline KroStatus checkWorkArea(KroiSize roi, KroiSize mask)
{
    return areas(roi, mask, sizeof(T), C == 4 ? 4 : C).total() > 0x7FFFFFFF ? kroStsBadSizeErr : kroStsOk;
}

template <class P>
P* alignUp(void* p, std::size_t a)
{
    return reinterpret_cast<P*>((reinterpret_cast<uintptr_t>(p) + a - 1) & ~uintptr_t(a - 1));
}

// ---- four elements at a time -----------------------------------------------------------

template <class T>
inline __m128i load4i(const T* p)
{
    if constexpr (sizeof(T) == 1) {
        int v;
        std::memcpy(&v, p, 4);
        const __m128i z = _mm_setzero_si128();
        return _mm_unpacklo_epi16(_mm_unpacklo_epi8(_mm_cvtsi32_si128(v), z), z);
    } else if constexpr (std::is_same_v<T, Kro16u>) {
        return _mm_unpacklo_epi16(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(p)), _mm_setzero_si128());
    } else {
        const __m128i x = _mm_loadl_epi64(reinterpret_cast<const __m128i*>(p));
        return _mm_srai_epi32(_mm_unpacklo_epi16(x, x), 16);
    }
}

// Vector arithmetic of one accumulator type.
template <class Acc>
struct Vec;

template <>
struct Vec<int32_t> {
    using R = __m128i;
    static R load(const int32_t* p) { return _mm_loadu_si128(reinterpret_cast<const R*>(p)); }
    static void store(int32_t* p, R v) { _mm_storeu_si128(reinterpret_cast<R*>(p), v); }
    static R add(R a, R b) { return _mm_add_epi32(a, b); }
    static R sub(R a, R b) { return _mm_sub_epi32(a, b); }
    template <class T>
    static R in(const T* p) { return load4i(p); }
    static __m128 toFloat(R v) { return _mm_cvtepi32_ps(v); }
    // ws[i] = ws[i-C] + d[i] across one vector, given the previous vector's sums.
    template <int C>
    static R scan(R prev, R d)
    {
        if constexpr (C == 4) return _mm_add_epi32(prev, d);
        if constexpr (C == 3) // lane 3 is lane 0's sum plus its own difference
            return _mm_add_epi32(_mm_add_epi32(d, _mm_slli_si128(d, 12)), _mm_shuffle_epi32(prev, 0x79));
        d = _mm_add_epi32(d, _mm_slli_si128(d, 4));
        d = _mm_add_epi32(d, _mm_slli_si128(d, 8));
        return _mm_add_epi32(d, _mm_shuffle_epi32(prev, 0xFF));
    }
};

template <>
struct Vec<float> {
    using R = __m128;
    static R load(const float* p) { return _mm_loadu_ps(p); }
    static void store(float* p, R v) { _mm_storeu_ps(p, v); }
    static R add(R a, R b) { return _mm_add_ps(a, b); }
    static R sub(R a, R b) { return _mm_sub_ps(a, b); }
    template <class T>
    static R in(const T* p)
    {
        if constexpr (std::is_same_v<T, float>)
            return _mm_loadu_ps(p);
        else
            return _mm_cvtepi32_ps(load4i(p));
    }
    static __m128 toFloat(R v) { return v; }
    // Only the orders that repeat the scalar sequence exactly: one add per element, with the
    // same two operands (C == 1 has no such form and stays scalar).
    template <int C>
    static R scan(R prev, R d)
    {
        if constexpr (C == 4) return _mm_add_ps(prev, d);
        const R t = _mm_add_ps(d, _mm_castsi128_ps(_mm_srli_si128(_mm_castps_si128(prev), 4)));
        return _mm_add_ps(t, _mm_castsi128_ps(_mm_slli_si128(_mm_castps_si128(t), 12)));
    }
};

// ---- column sums -----------------------------------------------------------------------

// c[i] = c[i] + in[i]
template <class T, class Acc>
void addElems(Acc* c, const T* in, int64_t n)
{
    using V = Vec<Acc>;
    int64_t i = 0;
    for (; i + 4 <= n; i += 4) V::store(c + i, V::add(V::load(c + i), V::template in<T>(in + i)));
    for (; i < n; ++i) c[i] = c[i] + Acc(in[i]);
}

// c[i] = c[i] + (in[i] - out[i])
template <class T, class Acc>
void slideElems(Acc* c, const T* in, const T* out, int64_t n)
{
    using V = Vec<Acc>;
    int64_t i = 0;
    if constexpr (sizeof(T) == 1 && std::is_same_v<Acc, int32_t>) {
        const __m128i z = _mm_setzero_si128();
        for (; i + 16 <= n; i += 16) {
            const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(in + i));
            const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(out + i));
            const __m128i lo = _mm_sub_epi16(_mm_unpacklo_epi8(a, z), _mm_unpacklo_epi8(b, z));
            const __m128i hi = _mm_sub_epi16(_mm_unpackhi_epi8(a, z), _mm_unpackhi_epi8(b, z));
            const __m128i d[4] = {_mm_srai_epi32(_mm_unpacklo_epi16(lo, lo), 16),
                                  _mm_srai_epi32(_mm_unpackhi_epi16(lo, lo), 16),
                                  _mm_srai_epi32(_mm_unpacklo_epi16(hi, hi), 16),
                                  _mm_srai_epi32(_mm_unpackhi_epi16(hi, hi), 16)};
            for (int k = 0; k < 4; ++k) V::store(c + i + 4 * k, V::add(V::load(c + i + 4 * k), d[k]));
        }
    }
    for (; i + 4 <= n; i += 4)
        V::store(c + i, V::add(V::load(c + i), V::sub(V::template in<T>(in + i), V::template in<T>(out + i))));
    for (; i < n; ++i) c[i] = c[i] + (Acc(in[i]) - Acc(out[i]));
}

// One row as the column sums see it: the ROI part (a saved copy in place), the memory row
// around it, or null for a constant row.
template <class T>
struct RowRef {
    const T* roi;
    const T* mem;
};

template <class T, int C, class Acc>
struct ColumnSums {
    const Rows<T, C>& rows;
    Acc* c; // widened row, (W + mw - 1) * C elements

    const T* pixel(RowRef<T> r, int64_t x) const
    {
        if (!r.roi) return rows.value;
        return (x >= 0 && x < rows.width) ? r.roi + x * C : rows.outside(r.roi, r.mem, x);
    }
    Acc* at(int64_t x) const { return c + (x + rows.f.left) * C; }

    // The border columns of the widened row, after the ROI's columns are up to date.  A side
    // read from memory goes through `f` one column at a time.  Every other border column
    // reads, row after row, the pixel of one ROI column (replicate, mirror) or the constant,
    // so its sum went through the same operations on the same values: it is copied, from
    // that ROI column or from the side's first column, instead of being added up again.
    // With a wide mask this is most of the per-row cost outside the vector loops.
    template <class F>
    void borders(F&& f) const
    {
        const int64_t w = rows.width;
        side(-rows.f.left, 0, rows.f.memLeft, f);
        side(w, w + rows.f.right, rows.f.memRight, f);
    }
    template <class F>
    void side(int64_t from, int64_t to, bool inMemory, F& f) const
    {
        if (from == to) return;
        if (inMemory) {
            for (int64_t x = from; x < to; ++x) f(x);
            return;
        }
        if (rows.f.mode == border::Mode::Constant) {
            f(from);
            for (int64_t x = from + 1; x < to; ++x) std::memcpy(at(x), at(from), sizeof(Acc) * C);
            return;
        }
        const int64_t w = rows.width;
        for (int64_t x = from; x < to; ++x) {
            const int64_t s = rows.f.mode == border::Mode::Replicate ? (x < 0 ? 0 : w - 1) : border::mirrorIndex(x, w);
            std::memcpy(at(x), at(s), sizeof(Acc) * C);
        }
    }

    void clear() { std::memset(c, 0, sizeof(Acc) * std::size_t(rows.f.widened(rows.width)) * C); }

    void add(RowRef<T> r)
    {
        if (!r.roi) {
            const int64_t n = rows.f.widened(rows.width);
            for (int64_t x = 0; x < n; ++x)
                for (int k = 0; k < C; ++k) c[x * C + k] = c[x * C + k] + Acc(rows.value[k]);
            return;
        }
        addElems<T, Acc>(at(0), r.roi, int64_t(rows.width) * C);
        borders([&](int64_t x) {
            const T* p = pixel(r, x);
            for (int k = 0; k < C; ++k) at(x)[k] = at(x)[k] + Acc(p[k]);
        });
    }

    void slide(RowRef<T> in, RowRef<T> out)
    {
        auto one = [&](int64_t x) {
            const T *a = pixel(in, x), *b = pixel(out, x);
            for (int k = 0; k < C; ++k) at(x)[k] = at(x)[k] + (Acc(a[k]) - Acc(b[k]));
        };
        if (!in.roi || !out.roi) {
            for (int64_t x = -rows.f.left; x < int64_t(rows.width) + rows.f.right; ++x) one(x);
            return;
        }
        slideElems<T, Acc>(at(0), in.roi, out.roi, int64_t(rows.width) * C);
        borders(one);
    }
};

// ---- window sums along a row -----------------------------------------------------------

// Calls emit.vec4(i, sums of elements i..i+15) and emit.vec(i, sums of elements i..i+3) for
// i = 0, 4, 8, ... in order, then emit.one(i, sum) for the remaining elements: the window sums of
// elements 0 .. n-1 (n = W * C) of the row of column sums `c`, by the sequence above.
// `c` may also be a row of source elements (Src), each converted to Acc as it is read.
template <class Acc, int C, class Src, class Emit>
void windowRow(const Src* c, int64_t w, int64_t mw, Emit& emit)
{
    using V = Vec<Acc>;
    const int64_t n = w * C, lead = (mw - 1) * C;
    auto start = [&](int64_t i) {
        Acc s = 0;
        for (int64_t k = 0; k < mw; ++k) s = s + Acc(c[i + k * C]);
        return s;
    };
    auto ld = [](const Src* p) {
        if constexpr (std::is_same_v<Src, Acc>)
            return V::load(p);
        else
            return V::template in<Src>(p);
    };
    constexpr bool kInt = std::is_same_v<Acc, int32_t>;
    if constexpr (kInt) {
        if (mw <= 3) { // few enough terms to add directly
            int64_t i = 0;
            auto sum4 = [&](int64_t j) {
                typename V::R s = ld(c + j);
                for (int k = 1; k < mw; ++k) s = V::add(s, ld(c + j + k * C));
                return s;
            };
            for (; i + 16 <= n; i += 16) {
                const typename V::R s[4] = {sum4(i), sum4(i + 4), sum4(i + 8), sum4(i + 12)};
                emit.vec4(i, s);
            }
            for (; i + 4 <= n; i += 4) emit.vec(i, sum4(i));
            for (; i < n; ++i) emit.one(i, start(i));
            return;
        }
    }
    Acc last[8]; // the sums of elements i-4 .. i-1 and, in the tail, i .. i+3
    int64_t i = 0;
    auto next = [&](int64_t j, Acc prev) { return prev + (Acc(c[j + lead]) - Acc(c[j - C])); };
    if (!kInt && C == 1) { // one chain: only the scalar order is exact
        Acc s = start(0);
        Acc buf[4];
        int64_t j = 0;
        for (; j + 4 <= n; j += 4) {
            for (int k = 0; k < 4; ++k) {
                if (j + k > 0) s = next(j + k, s);
                buf[k] = s;
            }
            emit.vec(j, V::load(buf));
        }
        for (; j < n; ++j) {
            if (j > 0) s = next(j, s);
            emit.one(j, s);
        }
        return;
    }
    if (n < 8) {
        for (; i < n; ++i) {
            last[i] = i < C ? start(i) : next(i, last[i - C]);
            emit.one(i, last[i]);
        }
        return;
    }
    for (; i < 4; ++i) last[i] = i < C ? start(i) : next(i, last[i - C]);
    typename V::R prev = V::load(last);
    emit.vec(0, prev);
    auto advance = [&](typename V::R& p, int64_t j) {
        return p = V::template scan<C>(p, V::sub(ld(c + j + lead), ld(c + j - C)));
    };
    auto step = [&](int64_t j) { return advance(prev, j); };
    if constexpr (kInt) {
        // Integer sums may restart anywhere: a second chain from the middle of the row runs
        // beside the first, so that neither waits for the other's additions.
        const int64_t blocks = (n - 4) / 32;
        if (blocks > 0) {
            int64_t b = 4 + 16 * blocks;
            typename V::R other = ld(c + b - 4);
            for (int64_t k = 1; k < mw; ++k) other = V::add(other, ld(c + b - 4 + k * C));
            for (; i < 4 + 16 * blocks; i += 16, b += 16) {
                typename V::R sa[4], sb[4];
                for (int k = 0; k < 4; ++k) {
                    sa[k] = advance(prev, i + 4 * k);
                    sb[k] = advance(other, b + 4 * k);
                }
                emit.vec4(i, sa);
                emit.vec4(b, sb);
            }
            i = b;
            prev = other;
        }
    }
    for (; i + 16 <= n; i += 16) {
        typename V::R s[4];
        for (int k = 0; k < 4; ++k) s[k] = step(i + 4 * k);
        emit.vec4(i, s);
    }
    for (; i + 4 <= n; i += 4) emit.vec(i, step(i));
    V::store(last, prev);
    for (int64_t j = i; j < n; ++j) {
        Acc& s = last[4 + (j - i)];
        s = next(j, last[4 + (j - i) - C]);
        emit.one(j, s);
    }
}

// ---- results ---------------------------------------------------------------------------

// Four int32 results stored as Out.
template <class Out>
inline void store4(Out* d, __m128i v)
{
    if constexpr (std::is_same_v<Out, Kro8u>) {
        const __m128i p = _mm_packus_epi16(_mm_packs_epi32(v, v), v);
        const int b = _mm_cvtsi128_si32(p);
        std::memcpy(d, &b, 4);
    } else if constexpr (std::is_same_v<Out, Kro16u>) {
        const __m128i bias = _mm_set1_epi32(32768);
        const __m128i p = _mm_packs_epi32(_mm_sub_epi32(v, bias), v);
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), _mm_xor_si128(p, _mm_set1_epi16(short(0x8000))));
    } else if constexpr (std::is_same_v<Out, Kro16s>) {
        _mm_storel_epi64(reinterpret_cast<__m128i*>(d), _mm_packs_epi32(v, v));
    } else {
        _mm_storeu_si128(reinterpret_cast<__m128i*>(d), v);
    }
}

// The mean: sum * r with r = 1/(mw*mh) in single precision; 8u and 16u add 0.5 and truncate,
// 16s rounds halves away from zero the same way, 32f keeps the product.
template <class Out>
struct Mean {
    float r;
    template <class Acc>
    Out one(Acc sum) const
    {
        const float f = float(sum) * r;
        if constexpr (std::is_same_v<Out, float>)
            return f;
        else if constexpr (std::is_same_v<Out, Kro16s>)
            return saturate<Out>(int64_t(sum < 0 ? f - 0.5f : f + 0.5f));
        else
            return saturate<Out>(int64_t(f + 0.5f));
    }
    // Integer outputs: the four results as int32, before saturation.
    __m128i ints(__m128 sum) const
    {
        const __m128 f = _mm_mul_ps(sum, _mm_set1_ps(r));
        __m128 half = _mm_set1_ps(0.5f);
        if constexpr (std::is_same_v<Out, Kro16s>) half = _mm_or_ps(half, _mm_and_ps(sum, _mm_set1_ps(-0.0f)));
        return _mm_cvttps_epi32(_mm_add_ps(f, half));
    }
    void vec(Out* d, __m128 sum) const
    {
        if constexpr (std::is_same_v<Out, float>)
            _mm_storeu_ps(d, _mm_mul_ps(sum, _mm_set1_ps(r)));
        else
            store4(d, ints(sum));
    }
};

// The window sum itself: 32-bit integers (8u sources) or floats.
template <class Out>
struct Sum {
    template <class Acc>
    Out one(Acc sum) const
    {
        return Out(sum);
    }
    void vec(Out* d, __m128 sum) const
    {
        if constexpr (std::is_same_v<Out, float>)
            _mm_storeu_ps(d, sum);
        else
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d), _mm_cvttps_epi32(sum));
    }
};

// Writes the results of one row; AC4 (C = 4, WC = 3) leaves every fourth element alone.
template <class Out, class Acc, int C, int WC, class Op>
struct Emit {
    Out* d;
    Op op; // by value: stores through d may alias anything the compiler would reload

    // Sixteen elements at once; 8u means are packed into one store.  Inlined: the sums
    // arrive in registers.
    [[gnu::always_inline]] void vec4(int64_t i, const typename Vec<Acc>::R (&s)[4])
    {
        if constexpr (std::is_same_v<Out, Kro8u> && std::is_same_v<Op, Mean<Kro8u>> && C == WC) {
            const __m128i lo = _mm_packs_epi32(op.ints(Vec<Acc>::toFloat(s[0])), op.ints(Vec<Acc>::toFloat(s[1])));
            const __m128i hi = _mm_packs_epi32(op.ints(Vec<Acc>::toFloat(s[2])), op.ints(Vec<Acc>::toFloat(s[3])));
            _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), _mm_packus_epi16(lo, hi));
        } else {
            for (int k = 0; k < 4; ++k) vec(i + 4 * k, s[k]);
        }
    }
    [[gnu::always_inline]] void vec(int64_t i, typename Vec<Acc>::R s)
    {
        if constexpr (C == WC) {
            if constexpr (std::is_same_v<Acc, int32_t> && std::is_same_v<Out, Kro32s> &&
                          std::is_same_v<Op, Sum<Kro32s>>)
                _mm_storeu_si128(reinterpret_cast<__m128i*>(d + i), s);
            else
                op.vec(d + i, Vec<Acc>::toFloat(s));
        } else {
            Out t[4];
            op.vec(t, Vec<Acc>::toFloat(s));
            for (int k = 0; k < WC; ++k) d[i + k] = t[k];
        }
    }
    void one(int64_t i, Acc s)
    {
        if (C != WC && i % C >= WC) return;
        d[i] = op.template one<Acc>(s);
    }
};

// ---- the streaming kernel --------------------------------------------------------------

// Filters the ROI of `rows` into dst.  `ring`, when not null, makes the kernel safe in place:
// it holds the last ay+1 source rows (W * C elements each), saved before their output row
// is written, and every ROI row at or above the last written one is read from there.
template <class T, class Out, int C, int WC, class Acc, class Op>
void stream(const Rows<T, C>& rows, Out* dst, std::ptrdiff_t dstStep, KroiSize mask, Acc* sums, T* ring,
            const Op& op)
{
    const Frame& f = rows.f;
    const int64_t w = rows.width, h = rows.height, rowElems = w * C, slots = f.ay + 1;
    int64_t written = -1;
    auto ref = [&](int64_t v) -> RowRef<T> {
        const T* mem = rows.row(v);
        const int64_t r = rows.roiRow(v);
        if (ring && r >= 0 && r <= written) return {ring + (r % slots) * rowElems, mem};
        return {mem, mem};
    };
    ColumnSums<T, C, Acc> cs{rows, sums};
    cs.clear();
    for (int k = 0; k < mask.height; ++k) cs.add(ref(k - f.ay));
    for (int64_t y = 0; y < h; ++y) {
        if (ring) std::memcpy(ring + (y % slots) * rowElems, rows.memRow(y), sizeof(T) * std::size_t(rowElems));
        Emit<Out, Acc, C, WC, Op> emit{border::rowAt(dst, dstStep, y), op};
        windowRow<Acc, C>(static_cast<const Acc*>(sums), w, mask.width, emit);
        written = y;
        if (y + 1 < h) cs.slide(ref(y - f.ay + mask.height), ref(y - f.ay));
    }
}

// True when every value of the sums' sequence is an integer below 2^24 in magnitude for
// elements of magnitude up to `maxAbs`, so that 32-bit integers give the same bits.
inline bool exactInInt(int64_t maxAbs, KroiSize mask)
{
    const int64_t mw = mask.width < 2 ? 2 : mask.width;
    return maxAbs * int64_t(mask.height) * mw <= (int64_t(1) << 24);
}

// The whole filter after the checks: staging or streaming, the accumulator chosen, the ring
// in place.  `value` holds C elements.
template <class T, class Out, int C, int WC, class Op>
void run(const T* src, std::ptrdiff_t srcStep, Out* dst, std::ptrdiff_t dstStep, KroiSize roi, KroiSize mask,
         KroiBorderMode code, const T* value, void* buffer, bool inPlace, const Op& op)
{
    const Areas a = areas(roi, mask, sizeof(T), C == 4 ? 4 : C);
    char* base = static_cast<char*>(buffer);
    auto* sums = alignUp<char>(base + std::ptrdiff_t(a.a1), 16);
    T* area3 = alignUp<T>(base + std::ptrdiff_t(a.a1 + a.a2), alignof(T));
    Frame f = border::frame(code, mask);
    Rows<T, C> rows{src, srcStep, roi.width, roi.height, f, value};
    if (f.stage(roi, mask)) {
        const border::Staged<T> s = border::stage<T, C>(src, srcStep, roi, f, value, area3);
        rows = Rows<T, C>{s.roi, s.step, roi.width, roi.height, border::frame(border::kInMem, mask), value};
        inPlace = false;
    }
    T* ring = inPlace ? area3 : nullptr;
    if constexpr (std::is_integral_v<T>) {
        const int64_t maxAbs = std::is_signed_v<T> ? -int64_t(std::numeric_limits<T>::min()) : std::numeric_limits<T>::max();
        if (exactInInt(maxAbs, mask)) {
            stream<T, Out, C, WC>(rows, dst, dstStep, mask, reinterpret_cast<int32_t*>(sums), ring, op);
            return;
        }
    }
    stream<T, Out, C, WC>(rows, dst, dstStep, mask, reinterpret_cast<float*>(sums), ring, op);
}

}  // namespace KROI_TIER::box
