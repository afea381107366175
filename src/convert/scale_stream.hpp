// When the range scalings stream their stores: once source and destination together pass
// 2 MiB, the destination would only evict the source from the cache on its way to memory,
// so it is written with non-temporal stores instead (8u to 32f: above 419,430 pixels of one
// channel; 8u to 16s and 16s to 8u: above 699,050).
#pragma once

#include "convert/convert_rows.hpp"

namespace KROI_TIER::cvt {

constexpr long kStreamBytes = 2L << 20;

template <Layout L, class S, class D>
Stores storesFor(KroiSize roi)
{
    const long bytes = long(roi.width) * roi.height * channelsOf(L) * long(sizeof(S) + sizeof(D));
    return bytes > kStreamBytes ? Stores::stream : Stores::plain;
}

}  // namespace KROI_TIER::cvt
