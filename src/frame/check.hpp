// Argument checks shared by every family.  Each returns kroStsOk or the status of the first
// failure; an API function calls them in its family's order through KROI_CHECK, so that the
// order, which is part of the contract, reads straight off the function body.
#pragma once

#include "frame/base.hpp"

namespace KROI_TIER::check {

// Any null pointer: -8.
template <class... P>
constexpr KroStatus pointers(const P*... p)
{
    return ((p == nullptr) || ...) ? kroStsNullPointerErr : kroStsOk;
}

// ROI width or height below 1: -6.
constexpr KroStatus roi(KroiSize s)
{
    return (s.width < 1 || s.height < 1) ? kroStsBadSizeErr : kroStsOk;
}
constexpr KroStatus roi(KroiSizeL s)
{
    return (s.width < 1 || s.height < 1) ? kroStsBadSizeErr : kroStsOk;
}

// A one-dimensional length below 1: -6.
template <class N>
constexpr KroStatus length(N n)
{
    return n < 1 ? kroStsBadSizeErr : kroStsOk;
}

// Any step below 1, compared as a signed value (not against the row's bytes): -16.
template <class... S>
constexpr KroStatus steps(S... s)
{
    static_assert((std::is_integral_v<S> && ...));
    return ((s < 1) || ...) ? kroStsBadStepErr : kroStsOk;
}

// Any step smaller than the bytes of one row: -37, for the families that ask for it.
template <class... S>
constexpr KroStatus stepsCoverRow(int64_t rowBytes, S... s)
{
    return ((int64_t(s) < rowBytes) || ...) ? kroStsShortStepErr : kroStsOk;
}

// Rounding mode among 0, 1, 2: otherwise -213.
constexpr KroStatus roundMode(int mode)
{
    return (mode < kroRndZero || mode > kroRndNearAway) ? kroStsBadRoundModeErr : kroStsOk;
}

}  // namespace KROI_TIER::check
