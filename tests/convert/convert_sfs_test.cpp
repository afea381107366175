// The RSfs conversions against the rule: every member, rounding mode and scale factor that
// matters, and the in-place 32f to 32u form.
#include <climits>
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

// ---- RSfs ----------------------------------------------------------------------------------------
constexpr int kSfsModes[] = {1, 0, 2, 9};

// The exact value times 2^-sf rounded by mode (long double holds every source and the power
// of two exactly for these factors).
template <class S>
constexpr double kFloatReach = std::is_floating_point_v<S> ? double(std::numeric_limits<S>::max()) / 4 : 1e30;

template <class S, class D>
D sfsRule(S v, int mode, int sf)
{
    if constexpr (std::is_floating_point_v<S>)
        if (std::isnan(v)) return D(0);
    // Beyond +-20000 every source is 0 or infinite after scaling, as it is at the limit;
    // the bound also keeps -sf from overflowing at INT_MIN.
    const int c = sf < -20000 ? -20000 : sf > 20000 ? 20000 : sf;
    return clampTo<D>(roundMode(std::ldexp((long double)v, -c), mode));
}

template <class S, class D>
void sfsMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize, KroRoundMode, int), int)
{
    kt::Rng rng = kt::rngForTest();
    const std::vector<int> factors =
        std::is_floating_point_v<S>
            ? std::vector<int>{0, 1, 3, -2, 24, -24, 100, -100, -101, 126, 127, -150, 200, 1100, -1100, 2000, -2000, INT_MIN, INT_MIN + 1, INT_MAX}
            : std::vector<int>{0, 1, 2, 7, 8, 9, 15, 16, 17, 30, 31, 32, 33, 60, -1, -7, -8, -15, -16, -31, -32, -40,
                                INT_MIN, INT_MIN + 1, -63, -64, 63, 64, INT_MAX - 1, INT_MAX};
    for (int mode : kSfsModes)
        for (int sf : factors) {
            const std::string what = std::string(name) + " mode " + std::to_string(mode) + " sf " + std::to_string(sf);
            // Values around the destination's range once scaled, within the source's range.
            const double reach = std::fmin(std::ldexp(70000.0, sf), kFloatReach<S>);
            const FloatSource fs{-reach, reach};
            sweep<S, D>(
                what, 1,
                [&](const S* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, mode, sf); },
                [&](S v) { return sfsRule<S, D>(v, mode, sf); }, rng, sf == 0 && mode == 1 ? Depth::full : Depth::quick,
                fs);
        }
    // Pointers and size only: the steps are used as given.
    checkOrder<S, D>(name, [&](const S* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, 1, 0); },
                     false);
    S one[4] = {};
    D out[4] = {};
    EXPECT_EQ(fn(one, 0, out, 0, {4, 3}, 1, 0), kroStsOk) << name << ": a step of 0 is accepted";
}

TEST(ConvertSfs, EveryMemberMatchesTheRule)
{
    sfsMember(KT_M(kroiConvert_8u8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_16u8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_16s8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_16u16s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32s16s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32s16u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32u8u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32u8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32u16u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32u16s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32u32s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f8u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f16u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f16s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f32s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_32f32u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_64f8u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_64f8s_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_64f16u_C1RSfs, 1));
    sfsMember(KT_M(kroiConvert_64f16s_C1RSfs, 1));
}

// The float factors of 8- and 16-bit destinations scale the lanes before the same unclamped
// conversion as Convert's.
TEST(ConvertSfs, OutOfRangeLanesAmongOrdinaryOnes)
{
    for (int sf : {-3, 2})
        for (int mode : {0, 1}) {
            const std::string what = " mode " + std::to_string(mode) + " sf " + std::to_string(sf);
            outOfRangeLanes<Kro8s>(
                "kroiConvert_32f8s_C1RSfs" + what,
                [&](const Kro32f* s, int ss, Kro8s* d, int ds, KroiSize roi) {
                    return kroiConvert_32f8s_C1RSfs(s, ss, d, ds, roi, mode, sf);
                },
                [&](Kro32f v) { return sfsRule<Kro32f, Kro8s>(v, mode, sf); }, {-300, 300});
            outOfRangeLanes<Kro16s>(
                "kroiConvert_32f16s_C1RSfs" + what,
                [&](const Kro32f* s, int ss, Kro16s* d, int ds, KroiSize roi) {
                    return kroiConvert_32f16s_C1RSfs(s, ss, d, ds, roi, mode, sf);
                },
                [&](Kro32f v) { return sfsRule<Kro32f, Kro16s>(v, mode, sf); }, {-150000, 150000});
        }
}

TEST(ConvertSfs, InPlace32f32u)
{
    kt::Rng rng = kt::rngForTest();
    for (int mode : kSfsModes)
        for (int sf : {0, 1, -3, 31, -200}) {
            sweepInPlace<Kro32f, Kro32u>(
                "kroiConvert_32f32u_C1IRSfs",
                [&](Kro32u* p, int step, KroiSize roi) { return kroiConvert_32f32u_C1IRSfs(p, step, roi, mode, sf); },
                [&](Kro32f v) { return sfsRule<Kro32f, Kro32u>(v, mode, sf); }, rng, {-1e10, 5e9});
        }
    Kro32u px = 0;
    EXPECT_EQ(kroiConvert_32f32u_C1IRSfs(nullptr, 4, {0, 1}, 1, 0), kroStsNullPointerErr);
    EXPECT_EQ(kroiConvert_32f32u_C1IRSfs(&px, 4, {1, 0}, 1, 0), kroStsBadSizeErr);
}

}  // namespace
