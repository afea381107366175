// Image comparison that names the first differing element.
#pragma once

#include <cmath>
#include <cstdint>
#include <iomanip>
#include <limits>
#include <sstream>
#include <string>
#include <type_traits>

#include "guarded.hpp"

namespace kt {

// Exact equality.  Floats: NaN equals NaN (of any payload), and +0 and -0 differ unless
// `ignoreZeroSign`; there are no tolerances, the functions under test are exact.
template <class T>
bool sameValue(T a, T b, bool ignoreZeroSign = false)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (std::isnan(a) || std::isnan(b)) return std::isnan(a) && std::isnan(b);
        return a == b && (ignoreZeroSign || std::signbit(a) == std::signbit(b));
    } else {
        return a == b;
    }
}

template <class T>
std::string show(T v)
{
    std::ostringstream s;
    if constexpr (std::is_floating_point_v<T>)
        s << std::setprecision(std::numeric_limits<T>::max_digits10) << v;
    else if constexpr (sizeof(T) == 1)
        s << int(v);
    else
        s << v;
    return s.str();
}

// Every element of `actual` equals expected(x, y, c).  On failure: the first difference in
// row order, with coordinates and both values, and how many elements differ in all.
template <class T, class Expected>
testing::AssertionResult imageEquals(const Guarded<T>& actual, Expected&& expected,
                                     bool ignoreZeroSign = false)
{
    long differing = 0;
    std::string first;
    actual.forEach([&](int x, int y, int c, const T& got) {
        const T want = static_cast<T>(expected(x, y, c));
        if (sameValue(got, want, ignoreZeroSign)) return;
        if (differing++ == 0)
            first = "(x " + std::to_string(x) + ", y " + std::to_string(y) + ", c " + std::to_string(c) +
                    "): got " + show(got) + ", expected " + show(want);
    });
    if (differing == 0) return testing::AssertionSuccess();
    return testing::AssertionFailure() << differing << " of " << long(actual.width()) * actual.height() *
                                                            actual.channels()
                                       << " elements differ; first at " << first;
}

// Two images of the same shape hold the same elements.
template <class T>
testing::AssertionResult imageEquals(const Guarded<T>& actual, const Guarded<T>& expected,
                                     bool ignoreZeroSign = false)
{
    if (actual.width() != expected.width() || actual.height() != expected.height() ||
        actual.channels() != expected.channels())
        return testing::AssertionFailure() << "images of different shapes";
    return imageEquals(actual, [&](int x, int y, int c) { return expected.at(x, y, c); },
                       ignoreZeroSign);
}

}  // namespace kt

// EXPECT_IMAGE_EQ(img, expected): expected is an image or a callable (x, y, c) -> value.
#define EXPECT_IMAGE_EQ(actual, ...) EXPECT_TRUE(::kt::imageEquals(actual, __VA_ARGS__))
#define ASSERT_IMAGE_EQ(actual, ...) ASSERT_TRUE(::kt::imageEquals(actual, __VA_ARGS__))
