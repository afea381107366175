// Shifts by a constant count per channel.  Checks as the bitwise logic: pointers, steps, size.
//
// Kernel choice, once per call: when every channel's count empties every element (8u above
// 7, 16u above 15, a 32s left shift above 31) the ROI is filled with 0 through Set; a 16s
// right shift by 0 in every channel copies through Copy; equal counts shift every lane alike;
// otherwise each lane takes its channel's shift.
#include "arith/logic_fill.hpp"
#include "arith/logic_ops.hpp"
#include "frame/bind.hpp"
#include "frame/check.hpp"

namespace KROI_TIER::logic {

// What a shift makes of its extreme counts.
template <class Sh, class T>
struct ShiftRule;
template <class T>
struct ShiftRule<LShift<T>, T> {
    static constexpr bool kFills = true;    // a count of the width or more empties the element
    static constexpr bool kCopiesAtZero = false;
};
template <class T>
struct ShiftRule<RShift<T>, T> {
    static constexpr bool kFills = std::is_unsigned_v<T>; // signed right shifts keep the sign
    static constexpr bool kCopiesAtZero = std::is_same_v<T, Kro16s>;
};

template <class Sh, class T, class Lay>
KroStatus shiftC(const T* s, int ss, ChannelArg<Kro32u, Lay> count, T* d, int sd, KroiSize roi)
{
    KROI_CHECK((checkWithConstants<Lay, Kro32u>(s, ss, count, d, sd, roi)));

    uint32_t c[4];
    channelValues<Lay, Kro32u>(count, c, 0u);
    bool allEqual = true, allEmpty = true, allZero = true;
    for (int ch = 0; ch < Lay::kChannels; ++ch) {
        allEqual = allEqual && c[ch] == c[0];
        allEmpty = allEmpty && c[ch] >= Sh::kBits;
        allZero = allZero && c[ch] == 0;
    }
    if (ShiftRule<Sh, T>::kFills && allEmpty) return fill::fillZero<T, arith::Layout(Lay::kArith)>(d, sd, roi);
    if (ShiftRule<Sh, T>::kCopiesAtZero && allZero) return fill::copyImage<T, arith::Layout(Lay::kArith)>(s, ss, d, sd, roi);
    if (allEqual)
        imageUnary<T, Lay>(s, ss, d, sd, roi, UniformShift<Sh, T>(c[0]));
    else
        imageUnary<T, Lay>(s, ss, d, sd, roi, ChannelShift<Sh, T, Lay>(c));
    return kroStsOk;
}

template <class Sh, class T, class Lay>
KroStatus shiftCI(ChannelArg<Kro32u, Lay> count, T* sd, int sds, KroiSize roi)
{
    return shiftC<Sh, T, Lay>(sd, sds, count, sd, sds, roi);
}

}  // namespace KROI_TIER::logic

// The list names template arguments relative to the tier namespace too.
using namespace KROI_TIER;

#define KROI_EXPORT KROI_BIND
KROI_BIND_LIST {
#include "arith/shift_api.exports.inc"
}
#undef KROI_EXPORT
