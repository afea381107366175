// Saturation and rounding: the one definition of how an exact result becomes a pixel.
// Families call these; none re-derives its own.
#pragma once

#include <cmath>
#include <limits>

#include "frame/base.hpp"

namespace KROI_TIER {

// Clamps an exact integer to the range of T.
template <class T>
constexpr T saturate(int64_t v)
{
    static_assert(std::is_integral_v<T> && sizeof(T) <= 4);
    constexpr int64_t lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
    return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

// v / 2^s rounded to nearest, ties to even, for any s >= 0.  Ties go to even so that
// repeated halving does not drift.  Exact for every int64 v; s >= 64 gives 0 because
// |v| < 2^63 lies at most at one half of 2^s, and a half rounds to the even 0.
constexpr int64_t shiftRoundEven(int64_t v, int s)
{
    if (s <= 0) return v;
    if (s >= 64) return 0;
    const uint64_t rem = static_cast<uint64_t>(v) & ((uint64_t{1} << s) - 1); // v mod 2^s
    const int64_t q = v >> s;                                                 // floor(v / 2^s)
    const uint64_t half = uint64_t{1} << (s - 1);
    return (rem > half || (rem == half && (q & 1))) ? q + 1 : q;
}

// v * 2^-s with the rounding above for s > 0 and an exact left shift for s < 0; a product
// that leaves the int64 range saturates there (every pixel type saturates far below).
constexpr int64_t scaleRoundEven(int64_t v, int s)
{
    if (s >= 0) return shiftRoundEven(v, s);
    if (v == 0) return 0;
    constexpr int64_t kMax = std::numeric_limits<int64_t>::max();
    constexpr int64_t kMin = std::numeric_limits<int64_t>::min();
    // Compared before negating: -s overflows at INT_MIN, and every shift past 62 saturates.
    if (s < -62) return v > 0 ? kMax : kMin;
    const int up = -s;
    if (v > (kMax >> up) || v < (kMin >> up)) return v > 0 ? kMax : kMin;
    return static_cast<int64_t>(static_cast<uint64_t>(v) << up);
}

// The scaled-integer result of the Sfs functions: exact r times 2^-s, ties to even, saturated.
template <class T>
constexpr T scaleSaturate(int64_t r, int s)
{
    return saturate<T>(scaleRoundEven(r, s));
}

// Rounding of floating-point values to integers, independent of the processor's rounding
// control (floor and the subtraction below are exact for every double).
inline double roundHalfEven(double x)
{
    const double f = std::floor(x), d = x - f;
    const double r = d > 0.5 ? f + 1.0 : d < 0.5 ? f : std::fmod(f, 2.0) == 0.0 ? f : f + 1.0;
    return std::copysign(r, x); // -0.3 rounds to -0.0, as the processor's rounding does
}
inline double roundHalfAway(double x)
{
    const double t = std::trunc(x), d = x - t;
    return d >= 0.5 ? t + 1.0 : d <= -0.5 ? t - 1.0 : t;
}
inline double roundTowardZero(double x) { return std::trunc(x); }

// Clamps a floating-point value that is already integral to the range of T; NaN gives 0.
template <class T>
inline T saturateIntegral(double v)
{
    static_assert(std::is_integral_v<T> && sizeof(T) <= 4);
    constexpr double lo = double(std::numeric_limits<T>::min());
    constexpr double hi = double(std::numeric_limits<T>::max());
    if (!(v == v)) return T(0);
    return static_cast<T>(v < lo ? lo : v > hi ? hi : v);
}

}  // namespace KROI_TIER
