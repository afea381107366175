// Row loops of the bitwise logic and shift families, and the pixel layouts they walk.
//
// A row is one vector of width x elements-per-pixel elements; the loops see the layout only
// where it matters: per-channel parameters repeat with the pixel (C3 every three vectors, the
// others within one vector), and an AC4 row must keep its fourth element, which the vector
// bulk restores from the destination before the store and the scalar tail skips.
//
// An operation is a struct.  Unary operations give `T scalar(T v, int channel)` (the
// definition) and `__m128i vec(__m128i v, int phase)` for the vector of lanes starting at
// element phase x L of the pattern; binary ones give `scalar(T a, T b)` and `vec(a, b)`.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>

#include "arith/arith_kernels.hpp"
#include "frame/base.hpp"
#include "frame/check.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::logic {

// Elements per pixel, and whether the fourth element is alpha, left as it was.
template <int E, bool Alpha>
struct Layout {
    static constexpr int kElems = E;
    static constexpr bool kAlpha = Alpha;
    static constexpr int kChannels = Alpha ? 3 : E; // channels computed (and given constants)
    // Vectors per repetition of a per-channel pattern: 16 bytes hold whole pixels of every
    // type up to 32 bits except for three channels, which repeat every three vectors.
    static constexpr int kPhases = E == 3 ? 3 : 1;
    // The same layout as the arithmetic names it, for the shared fills and copies.
    static constexpr int kArith = E == 1 ? 1 : E == 3 ? 3 : Alpha ? 5 : 4;
};
using LayC1 = Layout<1, false>;
using LayC3 = Layout<3, false>;
using LayC4 = Layout<4, false>;
using LayAC4 = Layout<4, true>;

// One constant per channel: taken by value for one channel, as an array otherwise.
template <class T, class Lay>
using ChannelArg = std::conditional_t<Lay::kElems == 1, T, const T*>;

// The channel values of a ChannelArg, with `fill` for the channels it does not give.
template <class Lay, class T, class V>
void channelValues(ChannelArg<T, Lay> arg, V (&out)[4], V fill)
{
    for (int c = 0; c < 4; ++c) out[c] = fill;
    if constexpr (Lay::kElems == 1)
        out[0] = V(arg);
    else
        for (int c = 0; c < Lay::kChannels; ++c) out[c] = V(arg[c]);
}

// The checks of the logic and shift functions that take constants: pointers (the constants'
// array among them when there is one), then steps, then size.
template <class Lay, class V, class T>
KroStatus checkWithConstants(const T* s, int ss, ChannelArg<V, Lay> value, const T* d, int sd, KroiSize roi)
{
    if constexpr (Lay::kElems == 1) KROI_CHECK(check::pointers(s, d));
    else KROI_CHECK(check::pointers(s, value, d));
    KROI_CHECK(check::steps(ss, sd));
    return check::roi(roi);
}

template <class T>
inline constexpr long kLanes = 16 / sizeof(T);

inline __m128i load(const void* p) { return _mm_loadu_si128(static_cast<const __m128i*>(p)); }
inline void store(void* p, __m128i v) { _mm_storeu_si128(static_cast<__m128i*>(p), v); }

// The vector of phase `phase` of a per-element pattern: lane j holds f(element index).
template <class T, class F>
__m128i patternVector(int phase, F&& f)
{
    alignas(16) T lanes[kLanes<T>];
    for (long j = 0; j < kLanes<T>; ++j) lanes[j] = f(phase * kLanes<T> + j);
    return _mm_load_si128(reinterpret_cast<const __m128i*>(lanes));
}

// All ones in the alpha lanes of an AC4 vector.
template <class T>
__m128i alphaLanes()
{
    return patternVector<T>(0, [](long i) { return T(i % 4 == 3 ? ~T(0) : T(0)); });
}

// The per-channel constants of a layout spread over its phase vectors.
template <class T, class Lay>
struct ChannelVectors {
    __m128i v[Lay::kPhases];
    explicit ChannelVectors(const T (&k)[4])
    {
        for (int p = 0; p < Lay::kPhases; ++p)
            v[p] = patternVector<T>(p, [&](long i) { return k[i % Lay::kElems]; });
    }
};

// The vector bulk of a row: blocks of four vectors (one pattern period of three for C3),
// AC4 alpha lanes restored from the destination, streaming stores when asked for (the
// destination is then 16-byte aligned).  `vec(i, phase)` computes the vector at element i.
// Returns the number of elements done.
template <class T, class Lay, bool Stream, class Vec>
[[gnu::always_inline]] inline long bulk(T* d, long n, Vec vec)
{
    constexpr long L = kLanes<T>, P = Lay::kPhases, B = P == 1 ? 4 : P;
    const __m128i alpha = Lay::kAlpha ? alphaLanes<T>() : _mm_setzero_si128();
    long i = 0;
    auto one = [&](long at, int phase) [[gnu::always_inline]] {
        __m128i r = vec(at, phase);
        if constexpr (Lay::kAlpha) r = _mm_or_si128(_mm_andnot_si128(alpha, r), _mm_and_si128(alpha, load(d + at)));
        if constexpr (Stream) _mm_stream_si128(reinterpret_cast<__m128i*>(d + at), r);
        else store(d + at, r);
    };
    for (; i + B * L <= n; i += B * L)
        for (long q = 0; q < B; ++q) one(i + q * L, int(q % P));
    if constexpr (P == 1)
        for (; i + L <= n; i += L) one(i, 0);
    return i;
}

template <class T, class Lay, class Vec>
[[gnu::always_inline]] inline long bulk(T* d, long n, bool stream, Vec vec)
{
    return stream ? bulk<T, Lay, true>(d, n, vec) : bulk<T, Lay, false>(d, n, vec);
}

// d[i] = op(s[i]) over n elements of a Lay row.
template <class T, class Lay, class Op>
void rowUnary(const T* s, T* d, long n, const Op& opArg, bool stream = false)
{
    const Op op = opArg; // a local copy: stores through d cannot change its constants
    long i = bulk<T, Lay>(d, n, stream, [&](long at, int phase) { return op.vec(load(s + at), phase); });
    for (; i < n; ++i)
        if (!Lay::kAlpha || i % 4 != 3) d[i] = op.scalar(s[i], int(i % Lay::kElems));
}

// d[i] = op(a[i], b[i]) over n elements of a Lay row.
template <class T, class Lay, class Op>
void rowBinary(const T* a, const T* b, T* d, long n, const Op& opArg, bool stream = false)
{
    const Op op = opArg;
    long i = bulk<T, Lay>(d, n, stream, [&](long at, int) { return op.vec(load(a + at), load(b + at)); });
    for (; i < n; ++i)
        if (!Lay::kAlpha || i % 4 != 3) d[i] = op.scalar(a[i], b[i]);
}

// The image walks: the whole ROI as one row when the rows touch end to end, else row by row.
// Out of place, a destination is written past the caches on the arithmetic's terms (the
// images outgrow the largest cache, every destination row starts on 16 bytes).
template <class T, class Lay, class Op>
void imageUnary(const T* s, int ss, T* d, int sd, KroiSize roi, const Op& op)
{
    const long n = long(roi.width) * Lay::kElems;
    const auto is = rows::image(s, ss);
    const auto id = rows::image(d, sd);
    const bool merge = rows::merged(std::ptrdiff_t(n * sizeof(T)), is, id);
    const bool stream = static_cast<const void*>(s) != d &&
                        arith::streams(2 * n * roi.height * long(sizeof(T)), d, merge ? 0 : sd);
    if (merge)
        rowUnary<T, Lay>(s, d, n * roi.height, op, stream);
    else
        rows::each(roi.width, roi.height, [&](const T* rs, T* rd, int) { rowUnary<T, Lay>(rs, rd, n, op, stream); }, is, id);
    if (stream) _mm_sfence();
}

template <class T, class Lay, class Op>
void imageBinary(const T* a, int sa, const T* b, int sb, T* d, int sd, KroiSize roi, const Op& op)
{
    const long n = long(roi.width) * Lay::kElems;
    const auto ia = rows::image(a, sa);
    const auto ib = rows::image(b, sb);
    const auto id = rows::image(d, sd);
    const bool merge = rows::merged(std::ptrdiff_t(n * sizeof(T)), ia, ib, id);
    const bool stream = static_cast<const void*>(a) != d && static_cast<const void*>(b) != d &&
                        arith::streams(3 * n * roi.height * long(sizeof(T)), d, merge ? 0 : sd);
    if (merge)
        rowBinary<T, Lay>(a, b, d, n * roi.height, op, stream);
    else
        rows::each(
            roi.width, roi.height,
            [&](const T* ra, const T* rb, T* rd, int) { rowBinary<T, Lay>(ra, rb, rd, n, op, stream); }, ia, ib, id);
    if (stream) _mm_sfence();
}

}  // namespace KROI_TIER::logic
