// The lookup-table specification: what kroiLUT_GetSize sizes, kroiLUT_Init_* fills and
// kroiLUT_* reads.  It lives in the caller's block; everything in it is found from offsets
// counted from the block's start, so an initialised specification may be copied byte for
// byte to another block of the same size.
#pragma once

#include <cstddef>
#include <cstdint>

#include "frame/base.hpp"

namespace KROI_TIER::tone::lut {

// Channel layout codes of the query and the initialisers.
enum Layout { kC1 = 1, kC3 = 3, kC4 = 4, kAC4 = 9 };

inline int tablesOf(int layout)
{
    return layout == kC1 ? 1 : layout == kC3 || layout == kAC4 ? 3 : layout == kC4 ? 4 : 0;
}

// The kind identifier: the six fixed values, and for every other kind the letters "LK" in
// the upper half and the data type, layout and interpolation codes in the lower.
inline uint32_t kindId(int type, int layout, int interp)
{
    if (type == kro8u && layout == kC1) {
        if (interp == kroInterNearest) return 0x1234567;
        if (interp == kroInterLinear) return 0x1234577;
        if (interp == kroInterCubic) return 0x1234587;
    }
    if (type == kro8u && layout == kC3 && interp == kroInterNearest) return 0x1234588;
    if (type == kro8u && layout == kC4 && interp == kroInterNearest) return 0x123458A;
    if (type == kro32f && layout == kC1 && interp == kroInterNearest) return 0x1234573;
    return 0x4C4B0000u | uint32_t(type) << 8 | uint32_t(layout) << 4 | uint32_t(interp);
}

// Start of the block.  The tables begin at the first 64-byte boundary at or after kHead
// bytes, which every size leaves room for (288 bytes beyond the tables).
struct Head {
    uint32_t kind;
    int32_t interp;
    int32_t tables;          // 1, 3 or 4
    uint32_t dataOffset;     // integer types: the full maps, one after the other
    uint32_t sameMaps;       // integer types: every map of the layout is the same
    int32_t count[4];        // 32f: level counts
    uint64_t chanOffset[4];  // 32f: each channel's levels, then its values
    uint32_t ascending[4];   // 32f: the levels never descend (and hold no NaN)
};
constexpr std::size_t kHead = 128;
static_assert(sizeof(Head) <= kHead);

}  // namespace KROI_TIER::tone::lut
