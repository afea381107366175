// ScaleC's rule and the sweep of one member over every constant pair, shared by the test
// programs that split the members between them.
#pragma once

#include <cmath>
#include <limits>

#include "convert/convert_harness.hpp"

namespace cvtest {

struct Constants {
    double m, a;
};
inline constexpr Constants kConstants[] = {{1, 0},       {0.5, 0.25}, {-2.5, 100}, {1.0 / 3, -0.5},
                                           {1e-3, -7},   {3e9, 0},    {0, 0.5},    {-1, -0.0},
                                           {std::numeric_limits<double>::quiet_NaN(), 1}};

// v x m + a in double, then to the destination: integers to nearest even, saturated, NaN 0.
template <class S, class D>
D constRule(S v, Constants c)
{
    const double r = double(v) * c.m + c.a;
    if constexpr (std::is_floating_point_v<D>) return D(r);
    else return clampTo<D>(std::nearbyint(r));
}

template <class S, class D>
void constMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize, Kro64f, Kro64f), int)
{
    kt::Rng rng = kt::rngForTest();
    for (const Constants& c : kConstants) {
        auto call = [&](const S* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, c.m, c.a); };
        sweep<S, D>(name, 1, call, [&](S v) { return constRule<S, D>(v, c); }, rng, c.m == 1 ? Depth::full : Depth::quick,
                    {-70000, 70000});
        checkOrder<S, D>(name, call, true);
    }
}

template <class T>
void constInPlace(const char* name, KroStatus (*fn)(Kro64f, Kro64f, T*, int, KroiSize), int)
{
    kt::Rng rng = kt::rngForTest();
    for (const Constants& c : kConstants)
        sweepInPlace<T, T>(name, [&](T* p, int step, KroiSize roi) { return fn(c.m, c.a, p, step, roi); },
                           [&](T v) { return constRule<T, T>(v, c); }, rng, {-70000, 70000});
    T px{};
    EXPECT_EQ(fn(1, 0, nullptr, 8, {0, 1}), kroStsNullPointerErr) << name;
    EXPECT_EQ(fn(1, 0, &px, 8, {1, 0}), kroStsBadSizeErr) << name;
    EXPECT_EQ(fn(1, 0, &px, 0, {1, 1}), kroStsBadStepErr) << name;
}

}  // namespace cvtest
