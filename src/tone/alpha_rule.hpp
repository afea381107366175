// Alpha composition of one element: the definitions every kernel of the family follows.
//
// 8u runs the fixed single-precision sequences (the products in the order written below,
// the alpha constants formed once per call, or once per pixel where the alpha is the
// pixel's) and the exact integer division by 255 for the premultiplied In, Out and Over.
// The other types compute the exact value of the operation's formula, with the type's
// largest value standing for alpha 1, and round it once: integers exactly (the divisor is a
// power of that odd largest value, so no result is ever a tie), 32f in double.
#pragma once

#include <xmmintrin.h>

#include <bit>
#include <cstdint>
#include <limits>

#include "frame/base.hpp"
#include "frame/round.hpp"

namespace KROI_TIER::tone::alpha {

enum Op {
    kOver, kIn, kOut, kAtop, kXor, kPlus,
    kOverPremul, kInPremul, kOutPremul, kAtopPremul, kXorPremul, kPlusPremul
};

inline KroStatus opCode(KroiAlphaOp op)
{
    return uint32_t(op) > uint32_t(kPlusPremul) ? kroStsBadAlphaOpErr : kroStsOk;
}

// The operation that composes the alphas themselves: the premultiplied rule with each
// alpha as its own colour (Over gives a1 + a2 (1 - a1)).
constexpr int alphaOpOf(int op) { return op < kOverPremul ? op + kOverPremul : op; }

// ---- 8u ------------------------------------------------------------------------------------

inline const float kK1 = std::bit_cast<float>(0x3B808081u);  // nearest 1/255
inline const float kK2 = std::bit_cast<float>(0x37810182u);  // nearest 1/65025

// x / 255 rounded to nearest, exact for 0 <= x <= 65025 (no tie exists: 255 is odd).
constexpr int div255(int x) { return (x + ((x + 128) >> 8) + 128) >> 8; }

// Nearest integer, ties to even (the caller holds the rounding control at nearest),
// saturated to 0..255.
inline int round8u(float x)
{
    const int r = _mm_cvtss_si32(_mm_set_ss(x));
    return r < 0 ? 0 : r > 255 ? 255 : r;
}

// The per-call (or per-pixel) constants of an operation with alphas A1, A2: the result is
// round((S1 * x + S2 * y) * z), round(S1 * x) for In and Out, or an integer rule.
struct Const8u {
    float x, y, z;
    int a1, a2;
};

inline Const8u const8u(int op, int A1, int A2)
{
    const float a1 = float(A1), a2 = float(A2), n1 = float(255 - A1), n2 = float(255 - A2);
    switch (op) {
    case kOver: return {a1, (n1 * kK1) * a2, kK1, A1, A2};
    case kIn: return {a2 * (a1 * kK2), 0.f, 0.f, A1, A2};
    case kOut: return {(a1 * kK2) * n2, 0.f, 0.f, A1, A2};
    case kAtop: return {a1 * a2, n1 * a2, kK2, A1, A2};
    case kXor: return {n2 * a1, n1 * a2, kK2, A1, A2};
    case kPlus: return {a1, a2, kK1, A1, A2};
    case kAtopPremul: return {a2, n1, kK1, A1, A2};
    case kXorPremul: return {n2, n1, kK1, A1, A2};
    default: return {0.f, 0.f, 0.f, A1, A2};
    }
}

template <int kOp>
inline Kro8u apply8u(const Const8u& k, int s1, int s2)
{
    if constexpr (kOp == kIn || kOp == kOut) {
        return Kro8u(round8u(float(s1) * k.x));
    } else if constexpr (kOp == kOverPremul) {
        const int r = s1 + div255(s2 * (255 - k.a1));
        return Kro8u(r > 255 ? 255 : r);
    } else if constexpr (kOp == kInPremul) {
        return Kro8u(div255(s1 * k.a2));
    } else if constexpr (kOp == kOutPremul) {
        return Kro8u(div255(s1 * (255 - k.a2)));
    } else if constexpr (kOp == kPlusPremul) {
        const int r = s1 + s2;
        return Kro8u(r > 255 ? 255 : r);
    } else {
        return Kro8u(round8u((float(s1) * k.x + float(s2) * k.y) * k.z));
    }
}

// ---- every other type: the exact formula ----------------------------------------------------

// The value that stands for alpha 1: the type's largest value, 1 for 32f.
template <class T>
constexpr double alphaOne()
{
    if constexpr (std::is_floating_point_v<T>) return 1.0;
    else return double(std::numeric_limits<T>::max());
}

// Arithmetic wide enough for the exact numerators: 64-bit for 16-bit types, 128-bit for
// 32-bit ones, double for 32f.
template <class T>
using Wide = std::conditional_t<std::is_floating_point_v<T>, double,
                                std::conditional_t<(sizeof(T) <= 2), int64_t, __int128>>;

template <class W>
struct Frac {
    W num, den;
};

// The table's formula as num / den, with m standing for alpha 1.
template <class W>
inline Frac<W> formula(int op, W s1, W s2, W a1, W a2, W m)
{
    switch (op) {
    case kOver: return {s1 * a1 * m + s2 * a2 * (m - a1), m * m};
    case kIn: return {s1 * a1 * a2, m * m};
    case kOut: return {s1 * a1 * (m - a2), m * m};
    case kAtop: return {s1 * a1 * a2 + s2 * a2 * (m - a1), m * m};
    case kXor: return {s1 * a1 * (m - a2) + s2 * a2 * (m - a1), m * m};
    case kPlus: return {s1 * a1 + s2 * a2, m};
    case kOverPremul: return {s1 * m + s2 * (m - a1), m};
    case kInPremul: return {s1 * a2, m};
    case kOutPremul: return {s1 * (m - a2), m};
    case kAtopPremul: return {s1 * a2 + s2 * (m - a1), m};
    case kXorPremul: return {s1 * (m - a2) + s2 * (m - a1), m};
    default: return {s1 + s2, W(1)};
    }
}

// num / den (den > 0) to the nearest integer; ties, which the callers never produce, up.
template <class W>
inline W roundDiv(W num, W den)
{
    const W n2 = 2 * num + den, d2 = 2 * den;
    W q = n2 / d2;
    if (n2 % d2 != 0 && n2 < 0) q -= 1;  // floor
    return q;
}

template <class T>
inline T exact(int op, T s1, T s2, T a1, T a2)
{
    using W = Wide<T>;
    const auto f = formula<W>(op, W(s1), W(s2), W(a1), W(a2), W(alphaOne<T>()));
    if constexpr (std::is_floating_point_v<T>) {
        return T(f.num / f.den);
    } else {
        const W r = roundDiv(f.num, f.den);
        constexpr W lo = W(std::numeric_limits<T>::min()), hi = W(std::numeric_limits<T>::max());
        return T(r < lo ? lo : r > hi ? hi : r);
    }
}

}  // namespace KROI_TIER::tone::alpha
