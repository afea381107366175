// Scale between 8u and the wider integer types against the exact formulas, over every source
// value: fast and accurate kernels by hint, and the streaming path of large images.
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

}  // namespace
