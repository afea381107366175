// The alpha-composition rules written out plainly, for the tests to hold the library to.
#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>
#include <type_traits>
#include <vector>

namespace ar {

inline float k1() { return std::bit_cast<float>(0x3B808081u); }
inline float k2() { return std::bit_cast<float>(0x37810182u); }

inline int sat8(float x)
{
    const float r = std::nearbyint(x);  // the default rounding: ties to even
    return r < 0 ? 0 : r > 255 ? 255 : int(r);
}

inline int div255(int x) { return int(std::lround(x / 255.0)); }  // exact: 255 is odd

// 8u: the fixed single-precision sequences.
inline int comp8u(int op, int S1, int S2, int A1, int A2)
{
    const float s1 = float(S1), s2 = float(S2), a1 = float(A1), a2 = float(A2);
    switch (op) {
    case 0: { const float w = (float(255 - A1) * k1()) * a2; return sat8((s1 * a1 + s2 * w) * k1()); }
    case 1: return sat8(s1 * (a2 * (a1 * k2())));
    case 2: return sat8(s1 * ((a1 * k2()) * float(255 - A2)));
    case 3: { const float p = a1 * a2, q = float(255 - A1) * a2; return sat8((s1 * p + s2 * q) * k2()); }
    case 4: { const float p = float(255 - A2) * a1, q = float(255 - A1) * a2; return sat8((s1 * p + s2 * q) * k2()); }
    case 5: return sat8((s1 * a1 + s2 * a2) * k1());
    case 6: return std::min(S1 + div255(S2 * (255 - A1)), 255);
    case 7: return div255(S1 * A2);
    case 8: return div255(S1 * (255 - A2));
    case 9: return sat8((s1 * a2 + s2 * float(255 - A1)) * k1());
    case 10: return sat8((s1 * float(255 - A2) + s2 * float(255 - A1)) * k1());
    default: return std::min(S1 + S2, 255);
    }
}

template <class T>
constexpr long double one()
{
    if constexpr (std::is_floating_point_v<T>) return 1.0L;
    else return (long double)std::numeric_limits<T>::max();
}

// The formula with alphas in [0, 1], in long double (double for 32f).
template <class R>
R formula(int op, R s1, R s2, R a1, R a2)
{
    switch (op) {
    case 0: return s1 * a1 + s2 * a2 * (1 - a1);
    case 1: return s1 * a1 * a2;
    case 2: return s1 * a1 * (1 - a2);
    case 3: return s1 * a1 * a2 + s2 * a2 * (1 - a1);
    case 4: return s1 * a1 * (1 - a2) + s2 * a2 * (1 - a1);
    case 5: return s1 * a1 + s2 * a2;
    case 6: return s1 + s2 * (1 - a1);
    case 7: return s1 * a2;
    case 8: return s1 * (1 - a2);
    case 9: return s1 * a2 + s2 * (1 - a1);
    case 10: return s1 * (1 - a2) + s2 * (1 - a1);
    default: return s1 + s2;
    }
}

// The results a composed element may have: one, or the two integers beside a value that
// long double cannot tell from a tie.
template <class T>
std::vector<T> comp(int op, T s1, T s2, T a1, T a2)
{
    if constexpr (std::is_same_v<T, uint8_t>) {
        return {T(comp8u(op, s1, s2, a1, a2))};
    } else if constexpr (std::is_floating_point_v<T>) {
        // Alpha 1 is 1: the products in the order of the formula with m = 1.
        const double m = 1.0;
        const double d1 = s1, d2 = s2, b1 = a1, b2 = a2;
        double r;
        switch (op) {
        case 0: r = d1 * b1 * m + d2 * b2 * (m - b1); break;
        case 1: r = d1 * b1 * b2; break;
        case 2: r = d1 * b1 * (m - b2); break;
        case 3: r = d1 * b1 * b2 + d2 * b2 * (m - b1); break;
        case 4: r = d1 * b1 * (m - b2) + d2 * b2 * (m - b1); break;
        default: r = formula<double>(op, d1, d2, b1, b2);
        }
        return {T(r)};
    } else {
        const long double m = one<T>();
        const long double v = formula<long double>(op, s1, s2, a1 / m, a2 / m);
        auto sat = [](long double x) {
            constexpr long double lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
            return T(x < lo ? lo : x > hi ? hi : x);
        };
        const long double f = std::floor(v);
        const long double tol = sizeof(T) == 4 ? 1e-8L : 1e-12L;
        if (std::fabs(v - f - 0.5L) < tol) return {sat(f), sat(f + 1)};
        return {sat(std::floor(v + 0.5L))};
    }
}

constexpr int alphaOp(int op) { return op < 6 ? op + 6 : op; }

}  // namespace ar
