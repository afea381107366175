// Convert against the rules: exact widening, saturating narrowing and Rs, float to integer
// by rounding mode, and the RSfs forms with scale factors, every member.
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

// ---- without a rounding argument ------------------------------------------------------------
template <class S, class D>
D plainRule(S v)
{
    if constexpr (std::is_floating_point_v<D>) return D(v);  // 32-bit integers: nearest, ties to even
    else return clampTo<D>(v);
}

template <class S, class D>
void plainMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize), int layout)
{
    kt::Rng rng = kt::rngForTest();
    sweep<S, D>(name, layout, fn, plainRule<S, D>, rng, Depth::full);
    checkOrder<S, D>(name, fn, true);
}

TEST(ConvertPlain, EveryMemberMatchesTheRule)
{
    plainMember(KT_M(kroiConvert_8u16u_C1R, 1));
    plainMember(KT_M(kroiConvert_8u16u_C3R, 3));
    plainMember(KT_M(kroiConvert_8u16u_C4R, 4));
    plainMember(KT_M(kroiConvert_8u16u_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u16s_C1R, 1));
    plainMember(KT_M(kroiConvert_8u16s_C3R, 3));
    plainMember(KT_M(kroiConvert_8u16s_C4R, 4));
    plainMember(KT_M(kroiConvert_8u16s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u32s_C1R, 1));
    plainMember(KT_M(kroiConvert_8u32s_C3R, 3));
    plainMember(KT_M(kroiConvert_8u32s_C4R, 4));
    plainMember(KT_M(kroiConvert_8u32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_8u32f_C3R, 3));
    plainMember(KT_M(kroiConvert_8u32f_C4R, 4));
    plainMember(KT_M(kroiConvert_8u32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s16s_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32s_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32s_C3R, 3));
    plainMember(KT_M(kroiConvert_8s32s_C4R, 4));
    plainMember(KT_M(kroiConvert_8s32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_8s32f_C3R, 3));
    plainMember(KT_M(kroiConvert_8s32f_C4R, 4));
    plainMember(KT_M(kroiConvert_8s32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s64f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32s_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32s_C3R, 3));
    plainMember(KT_M(kroiConvert_16u32s_C4R, 4));
    plainMember(KT_M(kroiConvert_16u32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_16u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u32f_C3R, 3));
    plainMember(KT_M(kroiConvert_16u32f_C4R, 4));
    plainMember(KT_M(kroiConvert_16u32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_16u32u_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32s_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32s_C3R, 3));
    plainMember(KT_M(kroiConvert_16s32s_C4R, 4));
    plainMember(KT_M(kroiConvert_16s32s_AC4R, 5));
    plainMember(KT_M(kroiConvert_16s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16s32f_C3R, 3));
    plainMember(KT_M(kroiConvert_16s32f_C4R, 4));
    plainMember(KT_M(kroiConvert_16s32f_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s32f_C1R, 1));
    plainMember(KT_M(kroiConvert_32u32f_C1R, 1));
    plainMember(KT_M(kroiConvert_16u8u_C1R, 1));
    plainMember(KT_M(kroiConvert_16u8u_C3R, 3));
    plainMember(KT_M(kroiConvert_16u8u_C4R, 4));
    plainMember(KT_M(kroiConvert_16u8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_16s8u_C1R, 1));
    plainMember(KT_M(kroiConvert_16s8u_C3R, 3));
    plainMember(KT_M(kroiConvert_16s8u_C4R, 4));
    plainMember(KT_M(kroiConvert_16s8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s8u_C1R, 1));
    plainMember(KT_M(kroiConvert_32s8u_C3R, 3));
    plainMember(KT_M(kroiConvert_32s8u_C4R, 4));
    plainMember(KT_M(kroiConvert_32s8u_AC4R, 5));
    plainMember(KT_M(kroiConvert_32s8s_C1R, 1));
    plainMember(KT_M(kroiConvert_32s8s_C3R, 3));
    plainMember(KT_M(kroiConvert_32s8s_C4R, 4));
    plainMember(KT_M(kroiConvert_32s8s_AC4R, 5));
    plainMember(KT_M(kroiConvert_8s8u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_8s16u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_8s32u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_16s16u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_16s32u_C1Rs, 1));
    plainMember(KT_M(kroiConvert_32s32u_C1Rs, 1));
}

// ---- float to integer with a rounding mode ---------------------------------------------------
// Every mode value is accepted: 0 and 1 as named, everything else as 2.
constexpr int kModes[] = {1, 0, 2, 3, -1, 7, INT32_MIN};

template <class D>
void roundedMember(const char* name, KroStatus (*fn)(const Kro32f*, int, D*, int, KroiSize, KroRoundMode),
                   int layout)
{
    kt::Rng rng = kt::rngForTest();
    const FloatSource fs{double(std::numeric_limits<D>::min()) * 1.25 - 3, double(std::numeric_limits<D>::max()) * 1.25 + 3};
    for (int mode : kModes) {
        const std::string what = std::string(name) + " mode " + std::to_string(mode);
        sweep<Kro32f, D>(
            what, layout,
            [&](const Kro32f* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, mode); },
            [&](Kro32f v) { return clampTo<D>(roundMode(v, mode)); }, rng, mode == 1 ? Depth::full : Depth::quick, fs);
        checkOrder<Kro32f, D>(
            what, [&](const Kro32f* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, mode); }, true);
    }
}

TEST(ConvertRounded, EveryMemberMatchesTheRuleInEveryMode)
{
    roundedMember(KT_M(kroiConvert_32f8u_C1R, 1));
    roundedMember(KT_M(kroiConvert_32f8u_C3R, 3));
    roundedMember(KT_M(kroiConvert_32f8u_C4R, 4));
    roundedMember(KT_M(kroiConvert_32f8u_AC4R, 5));
    roundedMember(KT_M(kroiConvert_32f8s_C1R, 1));
    roundedMember(KT_M(kroiConvert_32f8s_C3R, 3));
    roundedMember(KT_M(kroiConvert_32f8s_C4R, 4));
    roundedMember(KT_M(kroiConvert_32f8s_AC4R, 5));
    roundedMember(KT_M(kroiConvert_32f16u_C1R, 1));
    roundedMember(KT_M(kroiConvert_32f16u_C3R, 3));
    roundedMember(KT_M(kroiConvert_32f16u_C4R, 4));
    roundedMember(KT_M(kroiConvert_32f16u_AC4R, 5));
    roundedMember(KT_M(kroiConvert_32f16s_C1R, 1));
    roundedMember(KT_M(kroiConvert_32f16s_C3R, 3));
    roundedMember(KT_M(kroiConvert_32f16s_C4R, 4));
    roundedMember(KT_M(kroiConvert_32f16s_AC4R, 5));
}

TEST(ConvertRounded, Examples)
{
    const Kro32f src[] = {2.5f, -1.0f, 300.0f, -2.5f, 0.5f, -0.0f};
    Kro8u d[6];
    const KroiSize roi{6, 1};
    struct {
        int mode;
        Kro8u want[6];
    } const cases[] = {{0, {2, 0, 255, 0, 0, 0}}, {1, {2, 0, 255, 0, 0, 0}}, {2, {3, 0, 255, 0, 1, 0}}, {7, {3, 0, 255, 0, 1, 0}}};
    for (const auto& c : cases) {
        ASSERT_EQ(kroiConvert_32f8u_C1R(src, 24, d, 6, roi, c.mode), kroStsOk);
        for (int i = 0; i < 6; ++i) EXPECT_EQ(d[i], c.want[i]) << "mode " << c.mode << " value " << src[i];
    }
    Kro16s s16[3];
    const Kro32f ties[] = {-2.5f, -3.5f, 2.5f};
    ASSERT_EQ(kroiConvert_32f16s_C1R(ties, 12, s16, 6, {3, 1}, 2), kroStsOk);
    EXPECT_EQ(s16[0], -3);
    EXPECT_EQ(s16[1], -4);
    EXPECT_EQ(s16[2], 3);
}

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
    return clampTo<D>(roundMode(std::ldexp((long double)v, -sf), mode));
}

template <class S, class D>
void sfsMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize, KroRoundMode, int), int)
{
    kt::Rng rng = kt::rngForTest();
    const std::vector<int> factors =
        std::is_floating_point_v<S>
            ? std::vector<int>{0, 1, 3, -2, 24, -24, 100, -100, -101, 126, 127, -150, 200, 1100, -1100, 2000, -2000}
            : std::vector<int>{0, 1, 2, 7, 8, 9, 15, 16, 17, 31, 32, 33, 60, -1, -7, -8, -16, -31, -32, -40};
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
