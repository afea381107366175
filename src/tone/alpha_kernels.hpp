// Vector row loops of the 8u alpha composition, for the operations and layouts that pay.
// Each returns false when it does not handle the call, and the plain rows run instead.
#pragma once

#include <cstddef>

#include "frame/base.hpp"

namespace KROI_TIER::tone::alpha {

template <int C, int W>
bool constRows8u(int, Kro8u, Kro8u, const Kro8u*, int, const Kro8u*, int, Kro8u*, int, KroiSize)
{
    return false;
}

inline bool pixelRows8u(int, const Kro8u*, int, const Kro8u*, int, Kro8u*, int, KroiSize) { return false; }

}  // namespace KROI_TIER::tone::alpha
