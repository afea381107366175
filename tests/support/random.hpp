// Random test data.  Every generator is a seeded std::mt19937, so a failure repeats exactly;
// tests print the seed they used or take a fixed one.
#pragma once

#include <cmath>
#include <cstdint>
#include <limits>
#include <random>
#include <string>
#include <type_traits>
#include <vector>

#include "guarded.hpp"

namespace kt {

using Rng = std::mt19937;

// A fresh generator per test, seeded from the test's name, so that adding a test does not
// change the data of another.
inline Rng rngForTest()
{
    const auto* info = testing::UnitTest::GetInstance()->current_test_info();
    std::string name = info ? std::string(info->test_suite_name()) + "." + info->name() : "";
    std::seed_seq seq(name.begin(), name.end());
    return Rng(seq);
}

// Uniform integer in [lo, hi], for any integer type including 64-bit.
template <class T>
T uniform(Rng& rng, T lo, T hi)
{
    using W = std::conditional_t<std::is_signed_v<T>, int64_t, uint64_t>;
    return T(std::uniform_int_distribution<W>(W(lo), W(hi))(rng));
}

// How floating-point fills are drawn.
struct FloatMix {
    double lo = -1000.0, hi = 1000.0; // the range of ordinary values
    double specials = 0.0;            // fraction of values drawn from specialValues()
};

// Values that trip rounding and conversion code: signed zeros, halves, the largest and
// smallest values, infinities and NaN.
template <class F>
const std::vector<F>& specialValues()
{
    using L = std::numeric_limits<F>;
    static const std::vector<F> v = {F(0),          -F(0),       F(0.5),       F(-0.5),     F(1.5),
                                     F(-1.5),       F(2.5),      F(-2.5),      L::max(),    L::lowest(),
                                     L::min(),      -L::min(),   L::denorm_min(), -L::denorm_min(),
                                     L::infinity(), -L::infinity(), L::quiet_NaN(), -L::quiet_NaN()};
    return v;
}

// One random element: integers over the whole range of the type, floats from `mix`.
template <class T>
T randomValue(Rng& rng, const FloatMix& mix = {})
{
    if constexpr (std::is_integral_v<T>) {
        return uniform<T>(rng, std::numeric_limits<T>::lowest(), std::numeric_limits<T>::max());
    } else {
        if (mix.specials > 0 && std::uniform_real_distribution<double>(0, 1)(rng) < mix.specials) {
            const auto& s = specialValues<T>();
            return s[uniform<std::size_t>(rng, 0, s.size() - 1)];
        }
        return T(std::uniform_real_distribution<double>(mix.lo, mix.hi)(rng));
    }
}

// Fills every element of the image (the padding keeps its canary).
template <class T>
void fillRandom(Guarded<T>& img, Rng& rng, const FloatMix& mix = {})
{
    img.forEach([&](int, int, int, T& e) { e = randomValue<T>(rng, mix); });
}

}  // namespace kt
