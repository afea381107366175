// Row kernels of the channel and planar copies.
//
// Each map has a scalar definition (ChannelMap::pixel, the planar loops) that the other
// bodies must match byte for byte.  The SSE4.1 bodies (pshufb shuffles of 8u rows) live in
// copy_kernels.cpp and are chosen per call through cpu::hasSse41().
#pragma once

#include <cstddef>

#include "convert/copy.hpp"
#include "frame/cpu.hpp"

namespace KROI_TIER::convert {

// 8u shuffles, SSE4.1 (pshufb, pblendvb).  n pixels; the source and destinations do not
// overlap.  Stream: non-temporal stores, for 16-byte aligned destinations (the caller fences).
KROI_SSE41 void extract3_8u_sse41(const Kro8u* s, Kro8u* d, std::ptrdiff_t n);  // d[x] = s[3x]
template <bool Stream>
KROI_SSE41 void split3_8u_sse41(const Kro8u* s, Kro8u* const* d, std::ptrdiff_t n);  // d[c][x] = s[3x + c]
template <bool Stream>
KROI_SSE41 void merge3_8u_sse41(const Kro8u* const* s, Kro8u* d, std::ptrdiff_t n);  // d[3x + c] = s[c][x]

// Element k < K of source pixel x (SP elements apart) to element k of destination pixel x
// (DP elements apart).
template <class T, int SP, int DP, int K>
struct ChannelMap {
    static constexpr int kSrcStride = SP, kDstStride = DP;
    using Row = void (*)(const T*, T*, int);

    // Elements a row of w pixels spans on a side whose pixels are `stride` apart.
    static constexpr std::size_t span(int stride, int w) { return std::size_t(w - 1) * stride + K; }

    // The definition: a pixel reads its K elements, then writes them.
    static void pixel(const T* s, T* d)
    {
        T v[K];
        for (int k = 0; k < K; ++k) v[k] = s[k];
        for (int k = 0; k < K; ++k) d[k] = v[k];
    }
    static void row(const T* s, T* d, int w)
    {
        for (int x = 0; x < w; ++x) pixel(s + std::ptrdiff_t(x) * SP, d + std::ptrdiff_t(x) * DP);
    }

    // Rows of separate buffers.
    static void rowApart(const T* __restrict s, T* __restrict d, int w)
    {
        for (std::ptrdiff_t x = 0; x < w; ++x)
            for (int k = 0; k < K; ++k) d[x * DP + k] = s[x * SP + k];
    }
    // One channel to the same channel: the row's bytes, the other channels kept.
    static void rowSameStride(const T* s, T* d, int w)
    {
        static constexpr stream::Pattern kKeep = otherBytes<T, DP>(0);
        keepRow<false>(bytes(s), bytes(d), span(DP, w) * sizeof(T), kKeep);
    }
    static void rowExtract8u_sse41(const T* s, T* d, int w) { extract3_8u_sse41(s, d, w); }

    // The kernel for separate buffers, chosen once per call.
    static Row fastRow()
    {
        if constexpr (SP == DP) return rowSameStride;
        if constexpr (std::is_same_v<T, Kro8u> && SP == 3 && DP == 1)
            if (cpu::hasSse41()) return rowExtract8u_sse41;
        return rowApart;
    }
};


// Interleaved C-channel rows and C planes: plane c holds element c of every pixel.
template <class T, int C>
struct Planes {
    using Split = void (*)(const T*, T* const*, std::ptrdiff_t);
    using Merge = void (*)(const T* const*, T*, std::ptrdiff_t);

    // The definitions, a plane at a time: d[c][x] = s[C x + c], and back.
    static void split(const T* s, T* const* d, std::ptrdiff_t n)
    {
        for (int c = 0; c < C; ++c) {
            T* __restrict p = d[c];
            for (std::ptrdiff_t x = 0; x < n; ++x) p[x] = s[C * x + c];
        }
    }
    static void merge(const T* const* s, T* d, std::ptrdiff_t n)
    {
        for (int c = 0; c < C; ++c) {
            const T* __restrict p = s[c];
            for (std::ptrdiff_t x = 0; x < n; ++x) d[C * x + c] = p[x];
        }
    }

    static constexpr bool kShuffles = std::is_same_v<T, Kro8u> && C == 3;

    // The kernels with ordinary stores; then those that stream to 16-byte aligned
    // destinations, or null where there is none.
    static Split splitter()
    {
        if constexpr (kShuffles)
            if (cpu::hasSse41()) return split3_8u_sse41<false>;
        return split;
    }
    static Merge merger()
    {
        if constexpr (kShuffles)
            if (cpu::hasSse41()) return merge3_8u_sse41<false>;
        return merge;
    }
    static Split streamingSplitter()
    {
        if constexpr (kShuffles)
            if (cpu::hasSse41()) return split3_8u_sse41<true>;
        return nullptr;
    }
    static Merge streamingMerger()
    {
        if constexpr (kShuffles)
            if (cpu::hasSse41()) return merge3_8u_sse41<true>;
        return nullptr;
    }
};

}  // namespace KROI_TIER::convert
