// Scale between 8u and a float range against the rule: clamping, rounding, and the range
// checked before everything else.
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

// ---- with a float range -----------------------------------------------------------------------
struct Range {
    float vMin, vMax;
};
const Range kRanges[] = {{0, 1},         {-1, 1},       {0, 255},          {-1000, 3000},  {1e-3f, 2e-3f},
                         {5, 5.0001f},   {-3e38f, 3e38f}, {1e6f, 1e6f + 1}, {-1e7f - 3, -1e7f}};

// 8u to 32f: factor = (vMax - vMin) / 255, v x factor + vMin, all in single precision.
float toFloatRule(Kro8u v, Range r)
{
    const float factor = (r.vMax - r.vMin) / 255.0f;
    return float(v) * factor + r.vMin;
}

// 32f to 8u: clamp to the range (NaN to vMin), then x x factor + offset in single precision,
// to nearest with ties to even.
Kro8u toByteRule(Kro32f x, Range r)
{
    const float factor = 255.0f / (r.vMax - r.vMin), offset = -r.vMin * factor;
    const float c = std::isnan(x) ? r.vMin : std::fmin(std::fmax(x, r.vMin), r.vMax);
    return clampTo<Kro8u>(std::nearbyint(c * factor + offset));
}

template <class S, class D>
void floatMember(const char* name, KroStatus (*fn)(const S*, int, D*, int, KroiSize, Kro32f, Kro32f), int layout)
{
    kt::Rng rng = kt::rngForTest();
    for (const Range& r : kRanges) {
        const std::string what = std::string(name) + " [" + std::to_string(r.vMin) + ", " + std::to_string(r.vMax) + "]";
        auto call = [&](const S* s, int ss, D* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, r.vMin, r.vMax); };
        const double span = double(r.vMax) - r.vMin;
        const FloatSource fs{std::fmax(r.vMin - span / 4, -3e38), std::fmin(r.vMax + span / 4, 3e38)};
        if constexpr (std::is_same_v<S, Kro8u>)
            sweep<S, D>(what, layout, call, [&](S v) { return toFloatRule(v, r); }, rng, Depth::quick, fs);
        else
            sweep<S, D>(what, layout, call, [&](S v) { return toByteRule(v, r); }, rng, Depth::quick, fs);
        checkOrder<S, D>(what, call, true);
    }
    // The range is checked before everything else, NaN counting as empty.
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (Range bad : {Range{1, 1}, Range{2, 1}, Range{nan, 1}, Range{0, nan}, Range{-0.0f, 0.0f}}) {
        EXPECT_EQ(callAsCaller([&] { return fn(nullptr, 0, nullptr, 0, {0, 0}, bad.vMin, bad.vMax); }),
                  kroStsEmptyScaleRangeErr)
            << name;
    }
}

TEST(ScaleFloat, EveryMemberMatchesTheRule)
{
    floatMember(KT_M(kroiScale_8u32f_C1R, 1));
    floatMember(KT_M(kroiScale_8u32f_C3R, 3));
    floatMember(KT_M(kroiScale_8u32f_C4R, 4));
    floatMember(KT_M(kroiScale_8u32f_AC4R, 5));
    floatMember(KT_M(kroiScale_32f8u_C1R, 1));
    floatMember(KT_M(kroiScale_32f8u_C3R, 3));
    floatMember(KT_M(kroiScale_32f8u_C4R, 4));
    floatMember(KT_M(kroiScale_32f8u_AC4R, 5));
}

// Ranges whose top maps to 255 convert without the clamp while no lane overflows.
TEST(ScaleFloat, OutOfRangeLanesAmongOrdinaryOnes)
{
    for (const Range r : {Range{-1, 3}, Range{0, 1}, Range{-1000, 3000}}) {
        const double span = double(r.vMax) - r.vMin;
        outOfRangeLanes<Kro8u>(
            "kroiScale_32f8u_C1R [" + std::to_string(r.vMin) + ", " + std::to_string(r.vMax) + "]",
            [&](const Kro32f* s, int ss, Kro8u* d, int ds, KroiSize roi) {
                return kroiScale_32f8u_C1R(s, ss, d, ds, roi, r.vMin, r.vMax);
            },
            [&](Kro32f v) { return toByteRule(v, r); }, {r.vMin - span / 4, r.vMax + span / 4});
    }
}

TEST(ScaleFloat, Examples)
{
    const Kro32f src[] = {0.5f, 2.0f, -1.0f, 0.0f, 1.0f};
    Kro8u d[5];
    ASSERT_EQ(kroiScale_32f8u_C1R(src, 20, d, 5, {5, 1}, 0.0f, 1.0f), kroStsOk);
    const Kro8u want[] = {128, 255, 0, 0, 255};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], want[i]) << src[i];
}

}  // namespace
