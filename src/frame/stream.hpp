// Stores that bypass the caches, for kernels that write large regions, and the cache size
// they are weighed against.
//
// A non-temporal store sends its line to memory without first reading it into the cache
// and without evicting data the caller still needs, so above a family's size threshold it
// roughly halves the memory traffic of a write-only stream.  Below the threshold it is a
// loss: the data would have stayed in cache for whoever reads it next.  Each family decides
// when to stream (the rules differ: some sizes are fixed, some are measured against the
// largest cache); this header gives the cache size, the alignment test and the stores.
//
// Non-temporal stores are weakly ordered: another thread may see them after later ordinary
// stores.  Every function that used them calls fence() once before it returns, so that the
// caller's next store (for example a flag saying the image is ready) is ordered after them.
//
// All helpers write exactly the bytes they are given and never touch a byte outside
// [d, d + n): the head up to the first 16-byte boundary and the tail after the last one
// are written with ordinary stores.
#pragma once

#include <emmintrin.h>

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "frame/base.hpp"

namespace KROI_TIER::stream {

// The size in bytes of the largest processor cache, or 0 when the core library cannot tell
// (then nothing is beyond it and every caller keeps ordinary stores).
inline std::int64_t largestCache()
{
    int cache = 0;
    return kroGetMaxCacheSizeB(&cache) == kroStsOk && cache > 0 ? cache : 0;
}

// True when every row of an image starts on 16 bytes, as 16-byte non-temporal stores need
// when a kernel writes whole rows with them.
inline bool rowsAligned(const void* d, std::ptrdiff_t step)
{
    return ((reinterpret_cast<std::uintptr_t>(d) | static_cast<std::uintptr_t>(step)) & 15) == 0;
}

// The rearrangements (mirror, comparison masks): stream when everything the
// call reads and writes exceeds the largest cache, and every destination row is aligned.
inline bool rowsBeyondCache(std::int64_t bytes, const void* d, std::ptrdiff_t step)
{
    const std::int64_t cache = largestCache();
    return rowsAligned(d, step) && cache > 0 && bytes > cache;
}

// True when a write of `bytes` bytes should stream: it is above `floor` and at least as large
// as the largest cache the core library reports, so that it would not have stayed in the
// cache anyway.  A failed query means ordinary stores.
inline bool beyondCache(int64_t bytes, int64_t floor)
{
    if (bytes <= floor) return false;
    const std::int64_t cache = largestCache();
    return cache > 0 && bytes >= cache;
}

// Orders the non-temporal stores issued so far before any later store.
inline void fence() { _mm_sfence(); }

// Bytes from d up to its next 16-byte boundary, at most n.
inline std::size_t headBytes(const void* d, std::size_t n)
{
    const std::size_t head = (16 - (reinterpret_cast<std::uintptr_t>(d) & 15)) & 15;
    return head < n ? head : n;
}

// Copies n bytes from s to d (the ranges do not overlap); the aligned body of d is written
// with non-temporal stores, 64 bytes (a cache line) per step while it lasts.
inline void copyRow(const void* src, void* dst, std::size_t n)
{
    auto* d = static_cast<unsigned char*>(dst);
    const auto* s = static_cast<const unsigned char*>(src);
    const std::size_t head = headBytes(d, n);
    std::memcpy(d, s, head);
    d += head, s += head, n -= head;
    for (; n >= 64; n -= 64, d += 64, s += 64) {
        const __m128i a = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s));
        const __m128i b = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 16));
        const __m128i c = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 32));
        const __m128i e = _mm_loadu_si128(reinterpret_cast<const __m128i*>(s + 48));
        _mm_stream_si128(reinterpret_cast<__m128i*>(d), a);
        _mm_stream_si128(reinterpret_cast<__m128i*>(d + 16), b);
        _mm_stream_si128(reinterpret_cast<__m128i*>(d + 32), c);
        _mm_stream_si128(reinterpret_cast<__m128i*>(d + 48), e);
    }
    for (; n >= 16; n -= 16, d += 16, s += 16)
        _mm_stream_si128(reinterpret_cast<__m128i*>(d), _mm_loadu_si128(reinterpret_cast<const __m128i*>(s)));
    std::memcpy(d, s, n);
}

// A byte pattern of period 48 (a common multiple of 16 and of every pixel size of 1, 2, 3,
// 4, 6, 8, 12 and 16 bytes), stored twice over so that 48 bytes starting at any phase can be
// loaded from it in one piece.
struct Pattern {
    alignas(16) unsigned char bytes[96];

    // The pattern that repeats `pixel` (of `pixelBytes` bytes, a divisor of 48).
    static Pattern of(const void* pixel, std::size_t pixelBytes)
    {
        Pattern p;
        for (std::size_t i = 0; i < sizeof p.bytes; i += pixelBytes) std::memcpy(p.bytes + i, pixel, pixelBytes);
        return p;
    }
    // True when all 48 bytes are equal (a fill that memset can do).
    bool uniform() const
    {
        for (int i = 1; i < 48; ++i)
            if (bytes[i] != bytes[0]) return false;
        return true;
    }
};

// Fills n bytes at d with the pattern, byte i of the row taking pattern byte i mod 48.
// Store is _mm_store_si128 or _mm_stream_si128; the body is 16-byte aligned either way.
template <void (*Store)(__m128i*, __m128i)>
inline void fillRow(void* dst, std::size_t n, const Pattern& p)
{
    auto* d = static_cast<unsigned char*>(dst);
    const std::size_t head = headBytes(d, n);
    std::memcpy(d, p.bytes, head);
    d += head, n -= head;
    const unsigned char* q = p.bytes + head;  // phase of the first aligned byte
    const __m128i v0 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(q));
    const __m128i v1 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(q + 16));
    const __m128i v2 = _mm_loadu_si128(reinterpret_cast<const __m128i*>(q + 32));
    for (; n >= 96; n -= 96, d += 96) {
        Store(reinterpret_cast<__m128i*>(d), v0);
        Store(reinterpret_cast<__m128i*>(d + 16), v1);
        Store(reinterpret_cast<__m128i*>(d + 32), v2);
        Store(reinterpret_cast<__m128i*>(d + 48), v0);
        Store(reinterpret_cast<__m128i*>(d + 64), v1);
        Store(reinterpret_cast<__m128i*>(d + 80), v2);
    }
    // Fewer than 96 bytes are left, starting at phase q again.
    const __m128i v[3] = {v0, v1, v2};
    int k = 0;
    for (; n >= 16; n -= 16, d += 16, k = k == 2 ? 0 : k + 1) Store(reinterpret_cast<__m128i*>(d), v[k]);
    std::memcpy(d, q + 16 * k, n);
}

inline void storeCached(__m128i* d, __m128i v) { _mm_store_si128(d, v); }
inline void storeStreaming(__m128i* d, __m128i v) { _mm_stream_si128(d, v); }

// One 16-byte store, streaming (p aligned) or not (any p).
template <bool kStream>
inline void store16(void* p, __m128i v)
{
    if constexpr (kStream) _mm_stream_si128(static_cast<__m128i*>(p), v);
    else _mm_storeu_si128(static_cast<__m128i*>(p), v);
}

}  // namespace KROI_TIER::stream
