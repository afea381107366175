// The min/max filters' buffer-size formula and check orders, and the fixed 3x3 64f forms.
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/random.hpp"

namespace {

// The formula, written out from its statement.
uint32_t formula(uint32_t W, uint32_t H, uint32_t mw, uint32_t mh, uint32_t e, uint32_t n, bool f32)
{
    auto a32 = [](uint32_t v) { return (v + 31u) / 32u * 32u; };
    const uint32_t ax = (mw - 1) / 2, ay = (mh - 1) / 2;
    uint32_t S;
    if (mw < W && mh < H) {
        S = (mh - ay - 1 < 1) ? 0 : (W + mw - 1) * (2 * mh - ay - 2);
        if (mw - ax - 1 > 0 && int32_t((H + mh - 1) * (2 * mw - ax - 2)) > int32_t(S))
            S = (H + mh - 1) * (2 * mw - ax - 2);
    } else {
        S = (W + mw - 1) * (H + mh - 1);
    }
    S *= e;
    return a32(n * S) + a32(mw * n * e) + mh * a32(W * n * e) + 32 + (f32 ? 64 : 0);
}

TEST(MinMaxBufferSize, Formula)
{
    const struct { KroDataType t; uint32_t e; } types[] = {{kro8u, 1}, {kro16u, 2}, {kro16s, 2}, {kro32f, 4}};
    for (auto query : {kroiFilterMaxBorderGetBufferSize, kroiFilterMinBorderGetBufferSize})
        for (auto [t, e] : types)
            for (int n : {1, 3, 4})
                for (KroiSize roi : {KroiSize{1, 1}, KroiSize{7, 5}, KroiSize{64, 3}, KroiSize{1920, 1080}})
                    for (KroiSize mask : {KroiSize{1, 1}, KroiSize{1, 4}, KroiSize{4, 1}, KroiSize{2, 2}, KroiSize{3, 3},
                                          KroiSize{6, 5}, KroiSize{31, 31}, KroiSize{7, 100}}) {
                        int size = -1;
                        ASSERT_EQ(query(roi, mask, t, n, &size), kroStsOk);
                        EXPECT_EQ(uint32_t(size), formula(roi.width, roi.height, mask.width, mask.height, e, n,
                                                          t == kro32f));
                    }
}

TEST(MinMaxBufferSize, CheckOrder)
{
    int size = 12345;
    for (auto query : {kroiFilterMaxBorderGetBufferSize, kroiFilterMinBorderGetBufferSize}) {
        EXPECT_EQ(query({0, 1}, {0, 1}, 2, 2, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(query({1, 0}, {0, 1}, 2, 2, &size), kroStsBadSizeErr);
        EXPECT_EQ(query({1, 1}, {1, 0}, 2, 2, &size), kroStsBadMaskErr);
        EXPECT_EQ(query({1, 1}, {1, 1}, 2, 2, &size), kroStsBadChannelCountErr); // channels before type
        EXPECT_EQ(query({1, 1}, {1, 1}, kro64f, 1, &size), kroStsBadDataTypeErr);
        EXPECT_EQ(size, 12345);
    }
}

// One row of the check-order table: the arguments broken, and the status expected.
struct Bad {
    bool nullSrc, nullDst, nullBuf;
    KroiSize roi, mask;
    KroiBorderMode code;
    bool nullValue;
    KroStatus want;
};

template <class T>
void checkOrder(KroStatus (*fn)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*),
                int C, const char* name)
{
    const Bad table[] = {
        {true, false, false, {0, 0}, {0, 0}, 0, true, kroStsNullPointerErr},
        {false, true, false, {4, 4}, {3, 3}, 1, false, kroStsNullPointerErr},
        {false, false, true, {4, 4}, {3, 3}, 1, false, kroStsNullPointerErr},
        {false, false, false, {0, 4}, {0, 3}, 0, true, kroStsBadSizeErr},
        {false, false, false, {4, -1}, {3, 3}, 0, true, kroStsBadSizeErr},
        {false, false, false, {4, 4}, {3, 0}, 0, true, kroStsBadMaskErr},
        {false, false, false, {4, 4}, {-2, 3}, 1, false, kroStsBadMaskErr},
        {false, false, false, {4, 4}, {3, 3}, 0, true, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 2, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 4, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 7, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 0xE0, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 0x106, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 0x1F0, false, kroStsBadBorderErr},
        {false, false, false, {4, 4}, {3, 3}, 6, true, kroStsNullPointerErr},
        {false, false, false, {4, 4}, {3, 3}, 0x76, true, kroStsNullPointerErr}, // bottom still synthesised
        // The constant is not read, so it may be null: every side in memory, or a 1 x 1 mask,
        // or a 1 x 3 mask whose top and bottom are in memory.
        {false, false, false, {4, 4}, {3, 3}, 0xF6, true, kroStsOk},
        {false, false, false, {4, 4}, {1, 1}, 6, true, kroStsOk},
        {false, false, false, {4, 4}, {1, 3}, 0x36, true, kroStsOk},
    };
    const int W = 4, H = 4, pad = 3;
    kt::Guarded<T> src(W + 2 * pad, H + 2 * pad, C), dst(W, H, C, 5 * int(sizeof(T)));
    std::memset(src.lowest(), 0, src.spanBytes());
    std::vector<Kro8u> buf(4096);
    for (const Bad& b : table) {
        dst.fillBytes(0xA7);
        const auto before = dst.snapshot();
        const T value[4] = {};
        const KroStatus s = fn(b.nullSrc ? nullptr : &src.at(pad, pad), src.step(), b.nullDst ? nullptr : dst.ptr(),
                               dst.step(), b.roi, b.mask, b.code, b.nullValue ? nullptr : value,
                               b.nullBuf ? nullptr : buf.data());
        EXPECT_EQ(s, b.want) << name << " code " << b.code;
        if (b.want != kroStsOk) {
            EXPECT_TRUE(dst.unchangedSince(before)) << name;
        }
    }
    // No step check: zero steps are used as given (every row reads and writes one row).
    const T value[4] = {};
    EXPECT_EQ(fn(&src.at(pad, pad), 0, dst.ptr(), 0, {W, H}, {3, 3}, kroBorderReplicate, value, buf.data()), kroStsOk);
}

TEST(MinMaxFilter, CheckOrder)
{
#define ROW(t, T)                                                                                \
    checkOrder<T>(kroiFilterMaxBorder_##t##_C1R, 1, "Max " #t " C1");                             \
    checkOrder<T>(kroiFilterMaxBorder_##t##_C3R, 3, "Max " #t " C3");                             \
    checkOrder<T>(kroiFilterMaxBorder_##t##_C4R, 4, "Max " #t " C4");                             \
    checkOrder<T>(kroiFilterMaxBorder_##t##_AC4R, 4, "Max " #t " AC4");                           \
    checkOrder<T>(kroiFilterMinBorder_##t##_C1R, 1, "Min " #t " C1");                             \
    checkOrder<T>(kroiFilterMinBorder_##t##_C3R, 3, "Min " #t " C3");                             \
    checkOrder<T>(kroiFilterMinBorder_##t##_C4R, 4, "Min " #t " C4");                             \
    checkOrder<T>(kroiFilterMinBorder_##t##_AC4R, 4, "Min " #t " AC4");
    ROW(8u, Kro8u)
    ROW(16u, Kro16u)
    ROW(16s, Kro16s)
    ROW(32f, Kro32f)
#undef ROW
}

// ---- kroiDilate3x3_64f_C1R, kroiErode3x3_64f_C1R ---------------------------------------------

TEST(MinMax3x3, MatchesRule)
{
    auto rng = kt::rngForTest();
    const double nan = std::numeric_limits<double>::quiet_NaN();
    for (bool max : {true, false})
        for (int W : {1, 2, 3, 5, 16, 33})
            for (int nanEvery : {0, 5, 1}) {
                const int H = 6;
                kt::Guarded<Kro64f> src(W + 2, H + 2, 1, 8), dst(W, H, 1, 16);
                int i = 0;
                src.forEach([&](int, int, int, Kro64f& e) {
                    e = (nanEvery && i++ % nanEvery == 0) ? nan : kt::randomValue<Kro64f>(rng);
                });
                dst.fillBytes(0x3C);
                const auto before = dst.snapshot();
                auto fn = max ? kroiDilate3x3_64f_C1R : kroiErode3x3_64f_C1R;
                ASSERT_EQ(fn(&src.at(1, 1), src.step(), dst.ptr(), dst.step(), {W, H}), kroStsOk);
                for (int y = 0; y < H; ++y)
                    for (int x = 0; x < W; ++x) {
                        double want = max ? -INFINITY : INFINITY;
                        for (int j = 0; j < 3; ++j)
                            for (int k = 0; k < 3; ++k) {
                                const double v = src.at(x + k, y + j);
                                if (v == v && (max ? v > want : v < want)) want = v;
                            }
                        ASSERT_EQ(dst.at(x, y), want) << max << " " << W << " " << x << "," << y;
                    }
                EXPECT_TRUE(dst.restUnchangedSince(before, 1));
            }
}

TEST(MinMax3x3, CheckOrder)
{
    for (auto fn : {kroiDilate3x3_64f_C1R, kroiErode3x3_64f_C1R}) {
        kt::Guarded<Kro64f> src(6, 6, 1), dst(4, 4, 1);
        src.fillBytes(0);
        dst.fillBytes(0x11);
        const auto before = dst.snapshot();
        const Kro64f* s = &src.at(1, 1);
        const int ss = src.step(), ds = dst.step();
        EXPECT_EQ(fn(nullptr, 0, dst.ptr(), 0, {0, 0}), kroStsNullPointerErr);
        EXPECT_EQ(fn(s, ss, nullptr, ds, {4, 4}), kroStsNullPointerErr);
        EXPECT_EQ(fn(s, 0, dst.ptr(), ds, {0, 4}), kroStsBadStepErr); // steps before sizes
        EXPECT_EQ(fn(s, ss, dst.ptr(), -8, {4, 4}), kroStsBadStepErr);
        EXPECT_EQ(fn(s, 8, dst.ptr(), 8, {0, 4}), kroStsBadSizeErr);
        EXPECT_EQ(fn(s, 8, dst.ptr(), 8, {4, 0}), kroStsBadSizeErr);
        EXPECT_EQ(fn(s, 4 * 8 + 15, dst.ptr(), ds, {4, 4}), kroStsShortStepErr);
        EXPECT_EQ(fn(s, ss, dst.ptr(), 4 * 8 - 1, {4, 4}), kroStsShortStepErr);
        EXPECT_TRUE(dst.unchangedSince(before));
        EXPECT_EQ(fn(s, 4 * 8 + 16, dst.ptr(), 4 * 8, {4, 1}), kroStsOk); // exactly enough
    }
}

}  // namespace
