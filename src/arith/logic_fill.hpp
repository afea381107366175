// Whole-image fills and copies of the logic, shift and constant-arithmetic families, done by
// the Copy and Set API functions: when a parameter makes every result 0 or every result the
// source, those families hand the ROI to Set or Copy of the same layout and return its status.
// An AC4 fill or copy thereby leaves the fourth channel as it was, as the arithmetic would.
// 8- and 16-bit fills are the arithmetic's own; 16-bit unsigned images are copied through the
// 16s functions: only the bits matter.
#pragma once

#include <type_traits>

#include "arith/arith_kernels.hpp"
#include "frame/bind.hpp"

KROI_INTERNAL(kroiSet_32s_C1R)
KROI_INTERNAL(kroiSet_32s_C3R)
KROI_INTERNAL(kroiSet_32s_C4R)
KROI_INTERNAL(kroiSet_32s_AC4R)
KROI_INTERNAL(kroiCopy_8u_C1R)
KROI_INTERNAL(kroiCopy_8u_C3R)
KROI_INTERNAL(kroiCopy_8u_C4R)
KROI_INTERNAL(kroiCopy_8u_AC4R)
KROI_INTERNAL(kroiCopy_16s_C1R)
KROI_INTERNAL(kroiCopy_16s_C3R)
KROI_INTERNAL(kroiCopy_16s_C4R)
KROI_INTERNAL(kroiCopy_16s_AC4R)
KROI_INTERNAL(kroiCopy_32s_C1R)
KROI_INTERNAL(kroiCopy_32s_C3R)
KROI_INTERNAL(kroiCopy_32s_C4R)
KROI_INTERNAL(kroiCopy_32s_AC4R)

namespace KROI_TIER::fill {

using arith::Layout;

// The integer type of the same size whose Set and Copy serve T.
template <class T>
using FillType = std::conditional_t<sizeof(T) == 1, Kro8u, std::conditional_t<sizeof(T) == 2, Kro16s, Kro32s>>;

// Sets every computed channel of the ROI to 0 through Set.
template <class T, Layout L>
KroStatus fillZero(T* d, int sd, KroiSize roi)
{
    if constexpr (sizeof(T) <= 2) {
        return arith::fillZero<T, L>(d, sd, roi);
    } else {
        Kro32s* p = reinterpret_cast<Kro32s*>(d);
        const Kro32s zero[4] = {};
        if constexpr (L == arith::kC1) return api::kroiSet_32s_C1R(0, p, sd, roi);
        else if constexpr (L == arith::kC3) return api::kroiSet_32s_C3R(zero, p, sd, roi);
        else if constexpr (L == arith::kC4) return api::kroiSet_32s_C4R(zero, p, sd, roi);
        else return api::kroiSet_32s_AC4R(zero, p, sd, roi);
    }
}

// Copies every computed channel of the ROI through Copy.  In place there is nothing to do.
template <class T, Layout L>
KroStatus copyImage(const T* s, int ss, T* d, int sd, KroiSize roi)
{
    using S = FillType<T>;
    if (static_cast<const void*>(s) == d && ss == sd) return kroStsOk;
    const S* ps = reinterpret_cast<const S*>(s);
    S* pd = reinterpret_cast<S*>(d);
    if constexpr (L == arith::kC1) {
        if constexpr (sizeof(S) == 1) return api::kroiCopy_8u_C1R(ps, ss, pd, sd, roi);
        else if constexpr (sizeof(S) == 2) return api::kroiCopy_16s_C1R(ps, ss, pd, sd, roi);
        else return api::kroiCopy_32s_C1R(ps, ss, pd, sd, roi);
    } else if constexpr (L == arith::kC3) {
        if constexpr (sizeof(S) == 1) return api::kroiCopy_8u_C3R(ps, ss, pd, sd, roi);
        else if constexpr (sizeof(S) == 2) return api::kroiCopy_16s_C3R(ps, ss, pd, sd, roi);
        else return api::kroiCopy_32s_C3R(ps, ss, pd, sd, roi);
    } else if constexpr (L == arith::kC4) {
        if constexpr (sizeof(S) == 1) return api::kroiCopy_8u_C4R(ps, ss, pd, sd, roi);
        else if constexpr (sizeof(S) == 2) return api::kroiCopy_16s_C4R(ps, ss, pd, sd, roi);
        else return api::kroiCopy_32s_C4R(ps, ss, pd, sd, roi);
    } else {
        if constexpr (sizeof(S) == 1) return api::kroiCopy_8u_AC4R(ps, ss, pd, sd, roi);
        else if constexpr (sizeof(S) == 2) return api::kroiCopy_16s_AC4R(ps, ss, pd, sd, roi);
        else return api::kroiCopy_32s_AC4R(ps, ss, pd, sd, roi);
    }
}

}  // namespace KROI_TIER::fill
