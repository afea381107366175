// Reference arithmetic written from the rules alone, in integers wide enough to be exact.
// It shares no code with the library: a test that compares the library with these catches a
// wrong rule, not only a kernel that disagrees with its own scalar path.
#pragma once

#include <cfenv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <ostream>
#include <string>

namespace kt::ref {

using i128 = __int128;

// Results this far from zero are beyond every pixel type; scaling up stops there, so that
// saturation to any type of up to 64 bits still gives the exact answer's clamp.
constexpr i128 kHuge = i128(1) << 120;

// v x 2^-s, rounded to nearest with ties to even (s > 0), or exact (s <= 0, clamped to
// +-kHuge).  |v| must stay below kHuge.
constexpr i128 scaleRoundEven(i128 v, int s)
{
    if (s <= 0) {
        // Past 128 doublings every non-zero value has reached kHuge; the bound also keeps -s
        // from overflowing at INT_MIN.
        const int up = s < -128 ? 128 : -s;
        for (int i = 0; i < up; ++i) {
            if (v >= kHuge / 2) return kHuge;
            if (v <= -kHuge / 2) return -kHuge;
            v *= 2;
        }
        return v;
    }
    if (s >= 126) return 0; // |v| < 2^120 is below half of 2^s
    const i128 d = i128(1) << s;
    i128 q = v / d, r = v % d; // truncated toward zero
    if (r < 0) {               // make it floor division with 0 <= r < d
        q -= 1;
        r += d;
    }
    const i128 twice = 2 * r;
    if (twice > d || (twice == d && (q % 2 != 0))) q += 1;
    return q;
}

// Clamps an exact value to the range of T.
template <class T>
constexpr T saturate(i128 v)
{
    constexpr i128 lo = std::numeric_limits<T>::lowest(), hi = std::numeric_limits<T>::max();
    return T(v < lo ? lo : v > hi ? hi : v);
}

// The scaled-integer result: exact r x 2^-s, ties to even, saturated to T.
template <class T>
constexpr T scaleSaturate(i128 r, int s)
{
    return saturate<T>(scaleRoundEven(r, s));
}

// Floating-point rounding to integral values by the C library, which the library's own
// helpers do not use.
inline double roundHalfEven(double x)
{
    const int saved = std::fegetround();
    std::fesetround(FE_TONEAREST);
    const double r = std::nearbyint(x);
    std::fesetround(saved);
    return r;
}
inline double roundHalfAway(double x) { return std::round(x); }
inline double roundTowardZero(double x) { return std::trunc(x); }

inline std::string toString(i128 v)
{
    if (v == 0) return "0";
    const bool neg = v < 0;
    std::string s;
    for (; v != 0; v /= 10) s.insert(s.begin(), char('0' + int(neg ? -(v % 10) : v % 10)));
    return neg ? "-" + s : s;
}

}  // namespace kt::ref
