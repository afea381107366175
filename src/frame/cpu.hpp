// Processor features, asked of the core library at kernel choice on every call (the core
// reads CPUID once at load, so the question is a load).  The library itself keeps no state.
//
// The library is compiled for SSE3.  A kernel that uses SSE4.1 is marked function by
// function with KROI_SSE41 and named *_sse41 (the tier audit test looks for that suffix);
// never compile a whole translation unit above SSE3, or shared templates instantiated in
// it may replace their SSE3 copies at link time.
#pragma once

#include "frame/base.hpp"

#define KROI_SSE41 __attribute__((target("sse4.1")))

namespace KROI_TIER::cpu {

inline bool has(uint64_t feature) { return (ownGetFeature() & feature) == feature; }
inline bool hasSse41() { return has(kroCpuSSE41); }

}  // namespace KROI_TIER::cpu
