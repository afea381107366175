// The choice between cache-resident and streaming stores, first made by Mirror and shared by
// the other out-of-place rearrangements (channel swap) and the comparison masks.
//
// When a call reads and writes more bytes than the biggest processor cache holds, its
// destination lines would be read into the cache only to be overwritten and evicted again;
// non-temporal stores skip that read.  They need 16-byte aligned destination addresses,
// hence whole rows starting on 16 bytes.
#pragma once

#include <cstdint>

#include <emmintrin.h>

#include "frame/base.hpp"

namespace KROI_TIER::convert {

// True when `bytes` (everything the call reads and writes) exceeds the biggest cache and
// every destination row starts on 16 bytes.
inline bool streamRows(std::int64_t bytes, const void* dst, std::int64_t dstStep)
{
    if (reinterpret_cast<std::uintptr_t>(dst) % 16 != 0 || dstStep % 16 != 0) return false;
    int cache = 0;
    if (kroGetMaxCacheSizeB(&cache) != kroStsOk || cache <= 0) return false;
    return bytes > cache;
}

// One 16-byte store, streaming or not.
template <bool kStream>
inline void store16(void* p, __m128i v)
{
    if constexpr (kStream) _mm_stream_si128(static_cast<__m128i*>(p), v);
    else _mm_storeu_si128(static_cast<__m128i*>(p), v);
}

}  // namespace KROI_TIER::convert
