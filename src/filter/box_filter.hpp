// What the box filter and the window sums share beyond the frame: the order of their checks
// and the check and padding of the border value.
#pragma once

#include "filter/box_frame.hpp"

namespace KROI_TIER::box {

// Members differ in where the border-code check stands: after the mask (pointers first) or
// before everything else.
enum class CheckOrder { PointersFirst, BorderFirst };

inline KroStatus checkMask(KroiSize mask)
{
    return (mask.width < 1 || mask.height < 1) ? kroStsBadMaskErr : kroStsOk;
}

// The constant mode needs its value: -8 when it is null.  The WC values are copied into
// `pad` (4 elements, an AC4 alpha left 0) so that the kernels may read whole pixels.
template <class T, int WC>
KroStatus borderValue(KroiBorderMode code, const T* value, T* pad)
{
    if (border::lowMode(code) != border::Mode::Constant) return kroStsOk;
    KROI_CHECK(check::pointers(value));
    for (int k = 0; k < WC; ++k) pad[k] = value[k];
    return kroStsOk;
}

}  // namespace KROI_TIER::box
