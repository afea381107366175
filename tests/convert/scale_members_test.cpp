// Scale and ScaleC against their rules: the integer formulas exhaustively, fast and accurate
// kernels by hint, the float ranges with clamping and their check order, the streaming path
// of large images, and every ScaleC pair and in-place form.
#include <cmath>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "convert/convert_harness.hpp"

namespace {

using namespace cvtest;

// ---- integer to integer -----------------------------------------------------------------------
template <class D>
D upRule(Kro8u v)
{
    if constexpr (std::is_same_v<D, Kro16u>) return D(v * 257);
    else if constexpr (std::is_same_v<D, Kro16s>) return D(v * 257 - 32768);
    else return D(int64_t(v) * 16843009 - 2147483648LL);
}

// Fast: shifts on the signed value (16u moved down by 32768).  Accurate: 16-bit sources by
// the single-precision product, 32s to the nearest of (v - min) x 255 / (max - min).
template <class S>
Kro8u downRule(S v, bool accurate)
{
    if (!accurate) {
        const int64_t w = int64_t(v) - (std::is_same_v<S, Kro16u> ? 32768 : 0);
        const int shift = sizeof(S) == 2 ? 8 : 24;
        return Kro8u(((w - (w >> 8)) >> shift) + 128);
    }
    if constexpr (sizeof(S) == 2) {
        const float p = float(int64_t(v) + (std::is_same_v<S, Kro16s> ? 32768 : 0)) * 0.0038910505827516317f;
        return Kro8u(std::nearbyint(p));
    } else {
        const long double exact = (long double)(int64_t(v) + 2147483648LL) * 255.0L / 4294967295.0L;
        return Kro8u(std::nearbyint(exact));
    }
}

template <class D>
void upMember(const char* name, KroStatus (*fn)(const Kro8u*, int, D*, int, KroiSize), int layout)
{
    kt::Rng rng = kt::rngForTest();
    sweep<Kro8u, D>(name, layout, fn, upRule<D>, rng, Depth::full);
    checkOrder<Kro8u, D>(name, fn, true);
}

// Hint 2 is accurate, every other value fast.
template <class S>
void downMember(const char* name, KroStatus (*fn)(const S*, int, Kro8u*, int, KroiSize, KroAlgorithmHint), int layout)
{
    kt::Rng rng = kt::rngForTest();
    for (int hint : {2, 0, 1, 3, -1}) {
        const std::string what = std::string(name) + " hint " + std::to_string(hint);
        auto call = [&](const S* s, int ss, Kro8u* d, int ds, KroiSize roi) { return fn(s, ss, d, ds, roi, hint); };
        sweep<S, Kro8u>(what, layout, call, [&](S v) { return downRule(v, hint == 2); }, rng,
                        hint <= 1 ? Depth::full : Depth::quick);
        checkOrder<S, Kro8u>(what, call, true);
    }
}

TEST(ScaleInteger, EveryMemberMatchesTheRule)
{
    upMember(KT_M(kroiScale_8u16u_C1R, 1));
    upMember(KT_M(kroiScale_8u16u_C3R, 3));
    upMember(KT_M(kroiScale_8u16u_C4R, 4));
    upMember(KT_M(kroiScale_8u16u_AC4R, 5));
    upMember(KT_M(kroiScale_8u16s_C1R, 1));
    upMember(KT_M(kroiScale_8u16s_C3R, 3));
    upMember(KT_M(kroiScale_8u16s_C4R, 4));
    upMember(KT_M(kroiScale_8u16s_AC4R, 5));
    upMember(KT_M(kroiScale_8u32s_C1R, 1));
    upMember(KT_M(kroiScale_8u32s_C3R, 3));
    upMember(KT_M(kroiScale_8u32s_C4R, 4));
    upMember(KT_M(kroiScale_8u32s_AC4R, 5));
    downMember(KT_M(kroiScale_16u8u_C1R, 1));
    downMember(KT_M(kroiScale_16u8u_C3R, 3));
    downMember(KT_M(kroiScale_16u8u_C4R, 4));
    downMember(KT_M(kroiScale_16u8u_AC4R, 5));
    downMember(KT_M(kroiScale_16s8u_C1R, 1));
    downMember(KT_M(kroiScale_16s8u_C3R, 3));
    downMember(KT_M(kroiScale_16s8u_C4R, 4));
    downMember(KT_M(kroiScale_16s8u_AC4R, 5));
    downMember(KT_M(kroiScale_32s8u_C1R, 1));
    downMember(KT_M(kroiScale_32s8u_C3R, 3));
    downMember(KT_M(kroiScale_32s8u_C4R, 4));
    downMember(KT_M(kroiScale_32s8u_AC4R, 5));
}

TEST(ScaleInteger, Examples)
{
    const Kro8u up[] = {0, 255, 128};
    Kro16s s16[3];
    ASSERT_EQ(kroiScale_8u16s_C1R(up, 3, s16, 6, {3, 1}), kroStsOk);
    EXPECT_EQ(s16[0], -32768);
    EXPECT_EQ(s16[1], 32767);
    EXPECT_EQ(s16[2], 128);
    const Kro16s down[] = {-32768, 32767, 0};
    Kro8u d[3];
    ASSERT_EQ(kroiScale_16s8u_C1R(down, 6, d, 3, {3, 1}, kroHintFast), kroStsOk);
    EXPECT_EQ(d[0], 0);
    EXPECT_EQ(d[1], 255);
    EXPECT_EQ(d[2], 128);
}

// Images large enough to stream their stores, with the destination on and off a 16-byte
// boundary: the results are those of the rule all the same.
TEST(ScaleInteger, LargeImagesStream)
{
    kt::Rng rng = kt::rngForTest();
    const Geometry aligned{1024, 700, 0, 0, kt::Guard::Before, 0}, odd{1001, 700, 3, 5, kt::Guard::Before, 2};
    for (const Geometry& g : {aligned, odd}) {
        auto fill = [&](auto& s) { s.forEach([&](int, int, int, auto& e) { e = draw<std::remove_reference_t<decltype(e)>>(rng, {}); }); };
        auto up16 = [](const Kro8u* s, int ss, Kro16s* d, int ds, KroiSize r) { return kroiScale_8u16s_C1R(s, ss, d, ds, r); };
        auto r16 = upRule<Kro16s>;
        runOnce<Kro8u, Kro16s>("kroiScale_8u16s_C1R large", 1, g, up16, r16, fill);
        auto down = [](const Kro16s* s, int ss, Kro8u* d, int ds, KroiSize r) { return kroiScale_16s8u_C1R(s, ss, d, ds, r, 2); };
        auto rd = [](Kro16s v) { return downRule(v, true); };
        runOnce<Kro16s, Kro8u>("kroiScale_16s8u_C1R large", 1, g, down, rd, fill);
        auto f32 = [](const Kro8u* s, int ss, Kro32f* d, int ds, KroiSize r) { return kroiScale_8u32f_C1R(s, ss, d, ds, r, -1.0f, 3.0f); };
        auto rf = [](Kro8u v) { return float(v) * (4.0f / 255.0f) + -1.0f; };
        runOnce<Kro8u, Kro32f>("kroiScale_8u32f_C1R large", 1, g, f32, rf, fill);
    }
}

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

TEST(ScaleFloat, Examples)
{
    const Kro32f src[] = {0.5f, 2.0f, -1.0f, 0.0f, 1.0f};
    Kro8u d[5];
    ASSERT_EQ(kroiScale_32f8u_C1R(src, 20, d, 5, {5, 1}, 0.0f, 1.0f), kroStsOk);
    const Kro8u want[] = {128, 255, 0, 0, 255};
    for (int i = 0; i < 5; ++i) EXPECT_EQ(d[i], want[i]) << src[i];
}

// ---- ScaleC ------------------------------------------------------------------------------------
struct Constants {
    double m, a;
};
const Constants kConstants[] = {{1, 0}, {0.5, 0.25}, {-2.5, 100}, {1.0 / 3, -0.5}, {1e-3, -7}, {3e9, 0}, {0, 0.5},
                                {-1, -0.0}, {std::numeric_limits<double>::quiet_NaN(), 1}};

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

TEST(ScaleConst, EveryMemberMatchesTheRule)
{
    constMember(KT_M(kroiScaleC_8u_C1R, 1));
    constMember(KT_M(kroiScaleC_8u8s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u16u_C1R, 1));
    constMember(KT_M(kroiScaleC_8u16s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u32s_C1R, 1));
    constMember(KT_M(kroiScaleC_8u32f_C1R, 1));
    constMember(KT_M(kroiScaleC_8u64f_C1R, 1));
    constMember(KT_M(kroiScaleC_8s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_8s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_8s16s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s32s_C1R, 1));
    constMember(KT_M(kroiScaleC_8s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_8s64f_C1R, 1));
    constMember(KT_M(kroiScaleC_16u8u_C1R, 1));
    constMember(KT_M(kroiScaleC_16u8s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u_C1R, 1));
    constMember(KT_M(kroiScaleC_16u16s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u32s_C1R, 1));
    constMember(KT_M(kroiScaleC_16u32f_C1R, 1));
    constMember(KT_M(kroiScaleC_16u64f_C1R, 1));
    constMember(KT_M(kroiScaleC_16s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_16s8s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_16s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s32s_C1R, 1));
    constMember(KT_M(kroiScaleC_16s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_16s64f_C1R, 1));
    constMember(KT_M(kroiScaleC_32s8u_C1R, 1));
    constMember(KT_M(kroiScaleC_32s8s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s16u_C1R, 1));
    constMember(KT_M(kroiScaleC_32s16s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s_C1R, 1));
    constMember(KT_M(kroiScaleC_32s32f_C1R, 1));
    constMember(KT_M(kroiScaleC_32s64f_C1R, 1));
    constMember(KT_M(kroiScaleC_32f8u_C1R, 1));
    constMember(KT_M(kroiScaleC_32f8s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f16u_C1R, 1));
    constMember(KT_M(kroiScaleC_32f16s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f32s_C1R, 1));
    constMember(KT_M(kroiScaleC_32f_C1R, 1));
    constMember(KT_M(kroiScaleC_32f64f_C1R, 1));
    constMember(KT_M(kroiScaleC_64f8u_C1R, 1));
    constMember(KT_M(kroiScaleC_64f8s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f16u_C1R, 1));
    constMember(KT_M(kroiScaleC_64f16s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f32s_C1R, 1));
    constMember(KT_M(kroiScaleC_64f32f_C1R, 1));
    constMember(KT_M(kroiScaleC_64f_C1R, 1));
}

TEST(ScaleConst, InPlace)
{
    constInPlace(KT_M(kroiScaleC_8u_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_8s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_16u_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_16s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_32s_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_32f_C1IR, 1));
    constInPlace(KT_M(kroiScaleC_64f_C1IR, 1));
}

}  // namespace
