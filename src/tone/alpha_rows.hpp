// Row kernels of the alpha-composition family, shared by its translation units.
//
// Every kernel reads an element of each source before it writes the destination's element
// of the same place, so the in-place forms (second source and destination the same image)
// call them unchanged.
#pragma once

#include <cstddef>
#include <type_traits>
#include <utility>

#include "frame/base.hpp"
#include "frame/check.hpp"
#include "tone/alpha_rule.hpp"

namespace KROI_TIER::tone::alpha {

// Four plane pointers, none null: -8.
template <class T>
KroStatus planes(const T* const* p)
{
    return p == nullptr ? kroStsNullPointerErr : check::pointers(p[0], p[1], p[2], p[3]);
}

// Calls f(std::integral_constant<int, op>) for op 0..11, so that row loops are compiled per
// operation.
template <class F>
void withOp(int op, F&& f)
{
    switch (op) {
    case kOver: return f(std::integral_constant<int, kOver>{});
    case kIn: return f(std::integral_constant<int, kIn>{});
    case kOut: return f(std::integral_constant<int, kOut>{});
    case kAtop: return f(std::integral_constant<int, kAtop>{});
    case kXor: return f(std::integral_constant<int, kXor>{});
    case kPlus: return f(std::integral_constant<int, kPlus>{});
    case kOverPremul: return f(std::integral_constant<int, kOverPremul>{});
    case kInPremul: return f(std::integral_constant<int, kInPremul>{});
    case kOutPremul: return f(std::integral_constant<int, kOutPremul>{});
    case kAtopPremul: return f(std::integral_constant<int, kAtopPremul>{});
    case kXorPremul: return f(std::integral_constant<int, kXorPremul>{});
    default: return f(std::integral_constant<int, kPlusPremul>{});
    }
}

// One composed element with the operation fixed at compile time; the constants of 8u are
// formed by the caller (once per call or once per pixel).
template <int kOp, class T>
inline T composeOne(const Const8u& k, T s1, T s2, T a1, T a2)
{
    if constexpr (std::is_same_v<T, Kro8u>) {
        (void)a1, (void)a2;
        return apply8u<kOp>(k, s1, s2);
    } else {
        (void)k;
        return exact<T>(kOp, s1, s2, a1, a2);
    }
}

template <class T>
inline Const8u constOf(int op, T a1, T a2)
{
    if constexpr (std::is_same_v<T, Kro8u>) return const8u(op, a1, a2);
    else return Const8u{};
}

// Constant alphas: the first W elements of each C-element pixel composed, the rest left.
template <int kOp, class T, int C, int W>
void constRow(const Const8u& k, T a1, T a2, const T* s1, const T* s2, T* d, long n)
{
    for (long p = 0; p < n; ++p)
        for (int c = 0; c < W; ++c) d[p * C + c] = composeOne<kOp>(k, s1[p * C + c], s2[p * C + c], a1, a2);
}

// The alphas of the pixels: C = 1 composes the alphas themselves, C = 4 the three colours
// with the pixel's alpha and the alpha by the alpha rule.
template <int kOp, class T, int C>
void pixelRow(const T* s1, const T* s2, T* d, long n)
{
    constexpr int kAlphaOp = alphaOpOf(kOp);
    for (long p = 0; p < n; ++p) {
        const T a1 = s1[p * C + C - 1], a2 = s2[p * C + C - 1];
        if constexpr (C == 4) {
            const Const8u k = constOf<T>(kOp, a1, a2);
            for (int c = 0; c < 3; ++c) d[p * 4 + c] = composeOne<kOp>(k, s1[p * 4 + c], s2[p * 4 + c], a1, a2);
        }
        d[p * C + C - 1] = composeOne<kAlphaOp>(constOf<T>(kAlphaOp, a1, a2), a1, a2, a1, a2);
    }
}

// One colour plane with its alpha planes.
template <int kOp, class T>
void planeRow(const T* s1, const T* a1, const T* s2, const T* a2, T* d, long n)
{
    for (long p = 0; p < n; ++p) d[p] = composeOne<kOp>(constOf<T>(kOp, a1[p], a2[p]), s1[p], s2[p], a1[p], a2[p]);
}

}  // namespace KROI_TIER::tone::alpha
