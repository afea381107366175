// The mapping of one value through one channel's levels and values: the definition that the
// integer full maps are built from and that 32f pixels are looked up with.
//
// Interval k is [L[k], L[k+1]); an interval whose upper level is not above its lower one is
// empty and skipped.  Where intervals overlap (levels not ascending) the later one wins, as
// when each interval is painted over the identity in turn.
#pragma once

#include <cmath>
#include <cstdint>

#include "frame/base.hpp"
#include "frame/round.hpp"

namespace KROI_TIER::tone::lut {

enum Interp { kNearest = 1, kLinear = 2, kCubic = 6 };

// The first of the four points the cubic of interval k goes through: k-1, moved inwards at
// either end of the table.  -1 where the cubic does not apply: fewer than four levels, or
// four levels that are not strictly ascending (the polynomial is then undefined); the linear
// rule stands in for both.
template <class L>
int cubicBase(const L* lv, int n, int k)
{
    if (n < 4) return -1;
    const int j = k - 1 < 0 ? 0 : k - 1 > n - 4 ? n - 4 : k - 1;
    return lv[j] < lv[j + 1] && lv[j + 1] < lv[j + 2] && lv[j + 2] < lv[j + 3] ? j : -1;
}

// The Lagrange form of the cubic through points j .. j+3, in double.
template <class L, class V>
double cubicAt(const L* lv, const V* val, int j, double v)
{
    const double x[4] = {double(lv[j]), double(lv[j + 1]), double(lv[j + 2]), double(lv[j + 3])};
    double r = 0.0;
    for (int i = 0; i < 4; ++i) {
        double w = 1.0;
        for (int m = 0; m < 4; ++m)
            if (m != i) w *= (v - x[m]) / (x[i] - x[m]);
        r += w * double(val[j + i]);
    }
    return r;
}

// 32f value of interval k at v (L[k] <= v < L[k+1]): nearest V[k]; linear
// V[k] + (V[k+1] - V[k]) * ((v - L[k]) / (L[k+1] - L[k])); cubic as above; all in double,
// rounded once to single precision.
inline float evalFloat(int interp, const float* lv, const float* val, int n, int k, float v)
{
    if (interp == kNearest) return val[k];
    if (interp == kCubic) {
        const int j = cubicBase(lv, n, k);
        if (j >= 0) return float(cubicAt(lv, val, j, double(v)));
    }
    const double a = lv[k], b = lv[k + 1];
    return float(double(val[k]) + (double(val[k + 1]) - double(val[k])) * ((double(v) - a) / (b - a)));
}

// Integer linear value, exact: (V[k] * d + (V[k+1] - V[k]) * (v - L[k])) / d with d =
// L[k+1] - L[k] > 0, rounded to nearest with ties to even.  The products need up to 96 bits.
inline int64_t linearExact(const Kro32s* lv, const Kro32s* val, int k, int64_t v)
{
    const __int128 d = __int128(lv[k + 1]) - lv[k];
    const __int128 num = __int128(val[k]) * d + (__int128(val[k + 1]) - val[k]) * (__int128(v) - lv[k]);
    __int128 q = num / d, r = num % d;
    if (r < 0) r += d, q -= 1;  // floor division
    if (2 * r > d || (2 * r == d && (q & 1))) q += 1;
    return int64_t(q);
}

// Integer value of interval k at v before saturation: the cubic in double rounded to
// nearest with ties to even (clamped to +-2^62, far beyond every pixel type).
inline int64_t evalInt(int interp, const Kro32s* lv, const Kro32s* val, int n, int k, int64_t v)
{
    if (interp == kNearest) return val[k];
    if (interp == kCubic) {
        const int j = cubicBase(lv, n, k);
        if (j >= 0) {
            const double r = roundHalfEven(cubicAt(lv, val, j, double(v)));
            constexpr double kBig = 4611686018427387904.0;
            return r < -kBig ? -int64_t(kBig) : r > kBig ? int64_t(kBig) : int64_t(r);
        }
    }
    return linearExact(lv, val, k, v);
}

}  // namespace KROI_TIER::tone::lut
