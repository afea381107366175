// Row loops of the conversion family and the walk over an ROI.
//
// A row is width x channels elements; the loop runs the operation's vector body over whole
// blocks of sixteen and its scalar body over the rest.  AC4 rows convert the first three
// elements of each pixel and never touch the fourth.  The streaming loop, for large range
// scalings, writes whole aligned blocks with non-temporal stores so that a destination far
// larger than the cache does not evict the source.
#pragma once

#include <cstddef>

#include "convert/convert_ops.hpp"
#include "frame/rows.hpp"

namespace KROI_TIER::cvt {

// Channel layouts; AC4 is four interleaved channels of which the fourth is left alone.
enum Layout : int { C1 = 1, C3 = 3, C4 = 4, AC4 = 5 };
constexpr int channelsOf(Layout l) { return l == AC4 ? 4 : int(l); }

// An operation with unclamped() offers a cheaper body that is right whenever no lane comes
// out as INT32_MIN; a block where one does is done again by lanes().
template <class St, class Op, class S, class D>
inline void block(const S* s, D* d, const Op& op)
{
    if constexpr (requires { Op::template direct<St>(s, d); }) {
        Op::template direct<St>(s, d);
    } else if constexpr (requires { op.unclamped(lanes::load(s)); }) {
        const auto x = lanes::load(s);
        if (__builtin_expect(!lanes::storeUnlessIntMin<St>(d, op.unclamped(x)), 0)) lanes::store<St>(d, op.lanes(x));
    } else {
        lanes::store<St>(d, op.lanes(lanes::load(s)));
    }
}

// The operation is taken by value: a reference would have to be read again after every
// store, since the compiler cannot rule out that the destination overlaps it.
template <class Op, class S, class D>
void row(const S* s, D* d, long n, const Op op)
{
    long i = 0;
    if constexpr (Op::kVector) {
        const long ahead = lanes::prefetchEnd<S>(n);
        for (; i + 2 * lanes::kBlock <= n; i += 2 * lanes::kBlock) {  // two blocks in flight
            if (i < ahead) lanes::prefetch(s + i);
            block<lanes::StoreU>(s + i, d + i, op);
            block<lanes::StoreU>(s + i + lanes::kBlock, d + i + lanes::kBlock, op);
        }
        if (i + lanes::kBlock <= n) {
            block<lanes::StoreU>(s + i, d + i, op);
            i += lanes::kBlock;
        }
    }
    for (; i < n; ++i) d[i] = op.scalar(s[i]);
}

// The same loop with SSE4.1, for operations on 8- and 16-bit sources: widening loads, or the
// operation's own SSE4.1 block (direct_sse41) where it has one.
template <class Op, class S, class D>
constexpr bool kSse41Row = requires(const S* s, D* d) { Op::direct_sse41(s, d); } ||
                           (lanes::kWidens<S> && Op::kVector && !requires(const S* s, D* d) {
                               Op::template direct<lanes::StoreU>(s, d);
                           });

template <class Op, class S, class D>
KROI_SSE41 inline void block_sse41(const S* s, D* d, const Op& op)
{
    if constexpr (requires { Op::direct_sse41(s, d); })
        Op::direct_sse41(s, d);
    else
        lanes::store<lanes::StoreU>(d, op.lanes(lanes::load_sse41(s)));
}

template <class Op, class S, class D>
KROI_SSE41 void row_sse41(const S* s, D* d, long n, const Op op)
{
    const long ahead = lanes::prefetchEnd<S>(n);
    long i = 0;
    for (; i + 2 * lanes::kBlock <= n; i += 2 * lanes::kBlock) {
        if (i < ahead) lanes::prefetch(s + i);
        block_sse41(s + i, d + i, op);
        block_sse41(s + i + lanes::kBlock, d + i + lanes::kBlock, op);
    }
    if (i + lanes::kBlock <= n) {
        block_sse41(s + i, d + i, op);
        i += lanes::kBlock;
    }
    for (; i < n; ++i) d[i] = op.scalar(s[i]);
}

template <class Op, class S, class D>
void rowAlpha(const S* s, D* d, long pixels, const Op& op)
{
    for (long x = 0; x < pixels; ++x, s += 4, d += 4) {
        d[0] = op.scalar(s[0]);
        d[1] = op.scalar(s[1]);
        d[2] = op.scalar(s[2]);
    }
}

// Scalar up to the first 16-byte boundary of the destination, streamed blocks, scalar tail.
template <class Op, class S, class D>
void rowStream(const S* s, D* d, long n, const Op& op)
{
    static_assert(Op::kVector);
    long i = 0;
    for (; i < n && (reinterpret_cast<uintptr_t>(d + i) & 15) != 0; ++i) d[i] = op.scalar(s[i]);
    for (; i + lanes::kBlock <= n; i += lanes::kBlock) block<lanes::StoreNT>(s + i, d + i, op);
    for (; i < n; ++i) d[i] = op.scalar(s[i]);
}

enum class Stores { plain, stream };

// Runs op over the ROI: as one row when the caller's group allows it (oneRow), else row by
// row.  Streaming needs an element-aligned destination (so that a 16-byte boundary can be
// reached) and is never used for AC4, whose alpha must be left as it is.
template <Layout L, class Op, class S, class D>
void run(const S* s, int ss, D* d, int ds, KroiSize roi, bool oneRow, const Op& op,
         Stores stores = Stores::plain)
{
    const long width = oneRow ? long(roi.width) * roi.height : roi.width;
    const int height = oneRow ? 1 : roi.height;
    const auto src = rows::image(s, ss);
    const auto dst = rows::image(d, ds);
    if constexpr (L == AC4) {
        for (int y = 0; y < height; ++y) rowAlpha(src.row(y), dst.row(y), width, op);
    } else {
        const long n = width * L;
        if constexpr (Op::kVector) {
            if (stores == Stores::stream && reinterpret_cast<uintptr_t>(d) % sizeof(D) == 0 &&
                ds % int(sizeof(D)) == 0) {
                for (int y = 0; y < height; ++y) rowStream(src.row(y), dst.row(y), n, op);
                _mm_sfence();  // streamed stores are ordered before the caller's next access
                return;
            }
        }
        if constexpr (kSse41Row<Op, S, D>) {
            if (cpu::hasSse41()) {
                for (int y = 0; y < height; ++y) row_sse41(src.row(y), dst.row(y), n, op);
                return;
            }
        }
        for (int y = 0; y < height; ++y) row(src.row(y), dst.row(y), n, op);
    }
}

// The common one-row test: both steps equal the bytes of their rows.
template <Layout L, class S, class D>
bool contiguous(int ss, int ds, KroiSize roi)
{
    const std::ptrdiff_t px = std::ptrdiff_t(roi.width) * channelsOf(L);
    return rows::merged(px * std::ptrdiff_t(sizeof(S)), rows::image(static_cast<const S*>(nullptr), ss)) &&
           rows::merged(px * std::ptrdiff_t(sizeof(D)), rows::image(static_cast<D*>(nullptr), ds));
}

}  // namespace KROI_TIER::cvt
