// Convert from float by rounding mode against the rule, every member and every mode.
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

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

TEST(ConvertRounded, OutOfRangeLanesAmongOrdinaryOnes)
{
    auto member = [](const char* name, auto fn, auto zero, const FloatSource& fs) {
        using D = decltype(zero);
        for (int mode : {0, 1})
            outOfRangeLanes<D>(
                std::string(name) + " mode " + std::to_string(mode),
                [&](const Kro32f* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, mode); },
                [&](Kro32f v) { return clampTo<D>(roundMode(v, mode)); }, fs);
    };
    member("kroiConvert_32f8u_C1R", kroiConvert_32f8u_C1R, Kro8u{}, {-40, 300});
    member("kroiConvert_32f8s_C1R", kroiConvert_32f8s_C1R, Kro8s{}, {-200, 200});
    member("kroiConvert_32f16u_C1R", kroiConvert_32f16u_C1R, Kro16u{}, {-1000, 70000});
    member("kroiConvert_32f16s_C1R", kroiConvert_32f16s_C1R, Kro16s{}, {-40000, 40000});
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

}  // namespace
