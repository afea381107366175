// The box filter family's queries, check orders and the functions that read their whole
// neighbourhood from memory: the one-dimensional window sums and the 64-bit box filter.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

// The buffer size from its formula, in wide integers.
__int128 formula(KroiSize roi, KroiSize mask, int e, int n)
{
    using I = __int128;
    const I W = roi.width, H = roi.height, mw = mask.width, mh = mask.height, ax = (mw - 1) / 2, ay = (mh - 1) / 2;
    const I Wb = W + mw - 1, Hb = H + mh - 1;
    const I A = (mh - 1 - ay + mh - 1) * Wb, B = (2 * mw - 2 - ax) * Hb, C = B + (mw == 2 ? Hb : 0);
    const I D = A + (mh == 2 ? Wb : 0) + B + C;
    I area3 = W * n * (ay + 1) * e + 64;
    if (!(W - mw + 1 > mw && H - mh + 1 > mh) && e * Wb * Hb * n > area3) area3 = e * Wb * Hb * n;
    return 4 * n * (A + D) + (W + mw + 3) * (n == 1 ? 4 : 16) + area3 + 8 * (ay + 1);
}

TEST(BoxBuffer, SizeIsTheFormula)
{
    auto rng = kt::rngForTest();
    const struct {
        KroDataType t;
        int e;
    } types[] = {{kro8u, 1}, {kro16u, 2}, {kro16s, 2}, {kro32f, 4}};
    for (auto query : {kroiFilterBoxBorderGetBufferSize, kroiSumWindowGetBufferSize})
        for (int i = 0; i < 3000; ++i) {
            const KroiSize roi{kt::uniform(rng, 1, i < 1500 ? 40 : 5000), kt::uniform(rng, 1, i < 1500 ? 40 : 5000)};
            const KroiSize mask{kt::uniform(rng, 1, i % 3 ? 9 : 300), kt::uniform(rng, 1, i % 3 ? 9 : 300)};
            const auto& t = types[i % 4];
            const int n = (i / 4) % 3 == 0 ? 1 : (i / 4) % 3 == 1 ? 3 : 4;
            const __int128 want = formula(roi, mask, t.e, n);
            int got = -1;
            const KroStatus st = query(roi, mask, t.t, n, &got);
            if (want > 0x7FFFFFFF) {
                EXPECT_EQ(st, kroStsSizeLimitErr);
                EXPECT_EQ(got, -1);
            } else {
                ASSERT_EQ(st, kroStsOk);
                EXPECT_EQ(got, int(want)) << roi.width << "x" << roi.height << " mask " << mask.width << "x"
                                          << mask.height << " e" << t.e << " n" << n;
            }
        }
}

TEST(BoxBuffer, CheckOrder)
{
    for (auto query : {kroiFilterBoxBorderGetBufferSize, kroiSumWindowGetBufferSize}) {
        int size = 7;
        EXPECT_EQ(query({0, 0}, {0, 0}, 2, 2, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(query({0, 5}, {0, 0}, 2, 2, &size), kroStsBadSizeErr);
        EXPECT_EQ(query({5, 5}, {1, 0}, 2, 2, &size), kroStsBadMaskErr);
        EXPECT_EQ(query({5, 5}, {1, 1}, 19, 2, &size), kroStsBadDataTypeErr);
        EXPECT_EQ(query({5, 5}, {1, 1}, kro16s, 2, &size), kroStsBadChannelCountErr);
        EXPECT_EQ(query({65536, 65536}, {65536, 1}, kro32f, 4, &size), kroStsSizeLimitErr);
        EXPECT_EQ(size, 7);
    }
}

// The filters' check orders: each row breaks the arguments from one check on.
struct Filter {
    const char* name;
    KroStatus (*fn)(const void*, int, void*, int, KroiSize, KroiSize, KroiBorderMode, const void*, Kro8u*);
    bool borderFirst;
};
#define KT_FILTER(f, first) Filter{#f, reinterpret_cast<decltype(Filter::fn)>(f), first}

TEST(BoxFilter, CheckOrder)
{
    const Filter filters[] = {
        KT_FILTER(kroiFilterBoxBorder_8u_C1R, false),    KT_FILTER(kroiFilterBoxBorder_8u_C3R, true),
        KT_FILTER(kroiFilterBoxBorder_8u_C4R, true),     KT_FILTER(kroiFilterBoxBorder_8u_AC4R, false),
        KT_FILTER(kroiFilterBoxBorder_16u_C1R, true),    KT_FILTER(kroiFilterBoxBorder_16u_C3R, true),
        KT_FILTER(kroiFilterBoxBorder_16u_C4R, true),    KT_FILTER(kroiFilterBoxBorder_16u_AC4R, false),
        KT_FILTER(kroiFilterBoxBorder_16s_C1R, true),    KT_FILTER(kroiFilterBoxBorder_16s_C3R, true),
        KT_FILTER(kroiFilterBoxBorder_16s_C4R, true),    KT_FILTER(kroiFilterBoxBorder_16s_AC4R, true),
        KT_FILTER(kroiFilterBoxBorder_32f_C1R, false),   KT_FILTER(kroiFilterBoxBorder_32f_C3R, true),
        KT_FILTER(kroiFilterBoxBorder_32f_C4R, true),    KT_FILTER(kroiFilterBoxBorder_32f_AC4R, true),
        KT_FILTER(kroiSumWindow_8u32s_C1R, false),       KT_FILTER(kroiSumWindow_8u32s_C3R, false),
        KT_FILTER(kroiSumWindow_8u32s_C4R, false),       KT_FILTER(kroiSumWindow_8u32s_AC4R, false),
        KT_FILTER(kroiSumWindow_16u32f_C1R, false),      KT_FILTER(kroiSumWindow_16u32f_C3R, false),
        KT_FILTER(kroiSumWindow_16u32f_C4R, false),      KT_FILTER(kroiSumWindow_16u32f_AC4R, false),
        KT_FILTER(kroiSumWindow_16s32f_C1R, false),      KT_FILTER(kroiSumWindow_16s32f_C3R, false),
        KT_FILTER(kroiSumWindow_16s32f_C4R, false),      KT_FILTER(kroiSumWindow_16s32f_AC4R, false),
        KT_FILTER(kroiSumWindow_32f_C1R, false),         KT_FILTER(kroiSumWindow_32f_C3R, false),
        KT_FILTER(kroiSumWindow_32f_C4R, false),         KT_FILTER(kroiSumWindow_32f_AC4R, false),
    };
    alignas(16) unsigned char src[4096], buf[4096];
    kt::Guarded<unsigned char> dst(256, 8);
    dst.fillBytes(0x3C);
    const auto before = dst.snapshot();
    const unsigned char* s = src;
    void* d = dst.ptr();
    struct Row {
        const void* s; int ss; void* d; int ds; KroiSize roi; KroiSize mask; unsigned code; const void* v; Kro8u* b;
        KroStatus want, wantBorderFirst;
    };
    const float value[4] = {};
    const Row rows[] = {
        {nullptr, 0, d, 0, {0, 0}, {0, 0}, 2, nullptr, buf, kroStsNullPointerErr, kroStsBadBorderErr},
        {s, 64, nullptr, 64, {4, 4}, {3, 3}, 1, nullptr, buf, kroStsNullPointerErr, kroStsNullPointerErr},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0x101, nullptr, nullptr, kroStsNullPointerErr, kroStsBadBorderErr},
        {s, 0, d, 64, {0, 4}, {0, 3}, 5, nullptr, buf, kroStsBadStepErr, kroStsBadBorderErr},
        {s, 64, d, -1, {0, 4}, {0, 3}, 6, nullptr, buf, kroStsBadStepErr, kroStsBadStepErr},
        {s, 64, d, 64, {4, 0}, {0, 3}, 7, nullptr, buf, kroStsBadSizeErr, kroStsBadBorderErr},
        {s, 64, d, 64, {4, 4}, {3, 0}, 0xF6, nullptr, buf, kroStsBadMaskErr, kroStsBadMaskErr},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0x20, nullptr, buf, kroStsBadBorderErr, kroStsBadBorderErr},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0x36, nullptr, buf, kroStsNullPointerErr, kroStsNullPointerErr},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0xF4, nullptr, buf, kroStsBadBorderErr, kroStsBadBorderErr},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0xF0, nullptr, buf, kroStsOk, kroStsOk},
        {s, 64, d, 64, {4, 4}, {3, 3}, 0x16, value, buf, kroStsOk, kroStsOk},
    };
    for (const Filter& f : filters)
        for (std::size_t i = 0; i < sizeof rows / sizeof rows[0]; ++i) {
            const Row& r = rows[i];
            const KroStatus want = f.borderFirst ? r.wantBorderFirst : r.want;
            if (want == kroStsOk) continue;
            EXPECT_EQ(f.fn(r.s, r.ss, r.d, r.ds, r.roi, r.mask, r.code, r.v, r.b), want) << f.name << " row " << i;
            EXPECT_TRUE(dst.unchangedSince(before)) << f.name << " row " << i;
        }
}

// Means that sit on a half: 0 and 1 round up, -1 and 0 round away from zero.
TEST(BoxFilter, HalvesRound)
{
    int size = 0;
    ASSERT_EQ(kroiFilterBoxBorderGetBufferSize({4, 3}, {1, 2}, kro16s, 1, &size), kroStsOk);
    std::vector<Kro8u> buf(std::size_t(size) + 64);
    const Kro8u a[3][4] = {{0, 0, 0, 0}, {1, 1, 1, 1}, {0, 0, 0, 0}};
    Kro8u b[3][4];
    ASSERT_EQ(kroiFilterBoxBorder_8u_C1R(&a[0][0], 4, &b[0][0], 4, {4, 3}, {1, 2}, kroBorderReplicate, nullptr,
                                         buf.data()),
              kroStsOk);
    EXPECT_EQ(b[0][0], 1);
    const Kro16s c[3][4] = {{-1, -1, -1, -1}, {0, 0, 0, 0}, {-1, -1, -1, -1}};
    Kro16s e[3][4];
    ASSERT_EQ(kroiFilterBoxBorder_16s_C1R(&c[0][0], 8, &e[0][0], 8, {4, 3}, {1, 2}, kroBorderReplicate, nullptr,
                                          buf.data()),
              kroStsOk);
    EXPECT_EQ(e[0][0], -1);
    EXPECT_EQ(e[1][0], -1);
}

// The staging path gives what filtering the mode's border copy gives.
TEST(BoxFilter, StagingEqualsFilteringABorderCopy)
{
    auto rng = kt::rngForTest();
    const KroiSize roi{5, 4}, mask{7, 9};
    const int ax = 3, ay = 4, wb = roi.width + mask.width - 1, hb = roi.height + mask.height - 1;
    kt::Guarded<Kro8u> src(roi.width, roi.height, 3), big(wb, hb, 3), a(roi.width, roi.height, 3),
        b(roi.width, roi.height, 3);
    kt::fillRandom(src, rng);
    const Kro8u value[3] = {7, 200, 31};
    int size = 0;
    ASSERT_EQ(kroiFilterBoxBorderGetBufferSize(roi, mask, kro8u, 3, &size), kroStsOk);
    std::vector<Kro8u> buf(static_cast<std::size_t>(size));
    for (unsigned mode : {1u, 3u, 6u}) {
        KroStatus st = mode == 1   ? kroiCopyReplicateBorder_8u_C3R(src.ptr(), src.step(), roi, big.ptr(), big.step(),
                                                                    {wb, hb}, ay, ax)
                       : mode == 3 ? kroiCopyMirrorBorder_8u_C3R(src.ptr(), src.step(), roi, big.ptr(), big.step(),
                                                                 {wb, hb}, ay, ax)
                                   : kroiCopyConstBorder_8u_C3R(src.ptr(), src.step(), roi, big.ptr(), big.step(),
                                                                {wb, hb}, ay, ax, value);
        ASSERT_EQ(st, kroStsOk);
        ASSERT_EQ(kroiFilterBoxBorder_8u_C3R(src.ptr(), src.step(), a.ptr(), a.step(), roi, mask, mode, value,
                                             buf.data()),
                  kroStsOk);
        ASSERT_EQ(kroiFilterBoxBorder_8u_C3R(&big.at(ax, ay), big.step(), b.ptr(), b.step(), roi, mask, kroBorderInMem,
                                             nullptr, buf.data()),
                  kroStsOk);
        EXPECT_IMAGE_EQ(a, static_cast<const kt::Guarded<Kro8u>&>(b)) << mode;
    }
}

// ---- neighbourhoods read from memory -------------------------------------------------------

template <class T, int C>
struct Line {
    const char* name;
    KroStatus (*row)(const T*, int, Kro32f*, int, KroiSize, int, int);
    KroStatus (*col)(const T*, int, Kro32f*, int, KroiSize, int, int);
};

template <class T, int C>
void runLines(const Line<T, C>& l)
{
    auto rng = kt::rngForTest();
    for (int mask : {1, 2, 5, 300})
        for (int anchor : {0, mask / 2, mask - 1}) {
            const int W = 19, H = 6;
            // The row form reads mask - 1 pixels around each row, the column form rows.
            kt::Guarded<T> srow(kt::Shape{W + mask - 1, H, C}), scol(kt::Shape{W, H + mask - 1, C});
            kt::fillRandom(srow, rng);
            kt::fillRandom(scol, rng);
            kt::Guarded<Kro32f> d(kt::Shape{W, H, C, 4});
            ASSERT_EQ(l.row(&srow.at(anchor, 0), srow.step(), d.ptr(), d.step(), {W, H}, mask, anchor), kroStsOk);
            EXPECT_IMAGE_EQ(d, [&](int x, int y, int c) {
                float s = 0.0f;
                for (int k = 0; k < mask; ++k) s = s + float(srow.at(k, y, c));
                for (int i = 1; i <= x; ++i) s = s + (float(srow.at(i + mask - 1, y, c)) - float(srow.at(i - 1, y, c)));
                return s;
            }) << l.name << " row mask " << mask << " anchor " << anchor;
            ASSERT_EQ(l.col(&scol.at(0, anchor), scol.step(), d.ptr(), d.step(), {W, H}, mask, anchor), kroStsOk);
            EXPECT_IMAGE_EQ(d, [&](int x, int y, int c) {
                float s = 0.0f;
                for (int k = 0; k < mask; ++k) s = s + float(scol.at(x, k, c));
                for (int i = 1; i <= y; ++i) s = s + (float(scol.at(x, i + mask - 1, c)) - float(scol.at(x, i - 1, c)));
                return s;
            }) << l.name << " column mask " << mask << " anchor " << anchor;
        }
    // Checks: pointers, mask, anchor; no rows is success with nothing written; then width.
    Kro32f out[4] = {1, 2, 3, 4};
    const T in[64] = {};
    for (auto fn : {l.row, l.col}) {
        EXPECT_EQ(fn(nullptr, 0, out, 0, {0, 0}, 0, -1), kroStsNullPointerErr);
        EXPECT_EQ(fn(in, 64, nullptr, 16, {1, 1}, 1, 0), kroStsNullPointerErr);
        EXPECT_EQ(fn(in, 64, out, 16, {0, 0}, 0, -1), kroStsBadMaskErr);
        EXPECT_EQ(fn(in, 64, out, 16, {0, 0}, 3, -1), kroStsBadAnchorErr);
        EXPECT_EQ(fn(in, 64, out, 16, {0, 0}, 3, 3), kroStsBadAnchorErr);
        EXPECT_EQ(fn(in, 64, out, 16, {1, 0}, 3, 2), kroStsOk);
        EXPECT_EQ(fn(in, 64, out, 16, {0, 1}, 3, 2), kroStsBadSizeErr);
        EXPECT_EQ(out[0], 1.0f);
    }
}

TEST(SumWindowLine, MatchesSequence)
{
    runLines<Kro8u, 1>({"8u32f_C1", kroiSumWindowRow_8u32f_C1R, kroiSumWindowColumn_8u32f_C1R});
    runLines<Kro8u, 3>({"8u32f_C3", kroiSumWindowRow_8u32f_C3R, kroiSumWindowColumn_8u32f_C3R});
    runLines<Kro8u, 4>({"8u32f_C4", kroiSumWindowRow_8u32f_C4R, kroiSumWindowColumn_8u32f_C4R});
    runLines<Kro16u, 1>({"16u32f_C1", kroiSumWindowRow_16u32f_C1R, kroiSumWindowColumn_16u32f_C1R});
    runLines<Kro16u, 3>({"16u32f_C3", kroiSumWindowRow_16u32f_C3R, kroiSumWindowColumn_16u32f_C3R});
    runLines<Kro16u, 4>({"16u32f_C4", kroiSumWindowRow_16u32f_C4R, kroiSumWindowColumn_16u32f_C4R});
    runLines<Kro16s, 1>({"16s32f_C1", kroiSumWindowRow_16s32f_C1R, kroiSumWindowColumn_16s32f_C1R});
    runLines<Kro16s, 3>({"16s32f_C3", kroiSumWindowRow_16s32f_C3R, kroiSumWindowColumn_16s32f_C3R});
    runLines<Kro16s, 4>({"16s32f_C4", kroiSumWindowRow_16s32f_C4R, kroiSumWindowColumn_16s32f_C4R});
}

TEST(FilterBox64f, MatchesSequenceAndChecks)
{
    auto rng = kt::rngForTest();
    for (KroiSize mask : {KroiSize{1, 1}, KroiSize{3, 3}, KroiSize{4, 2}, KroiSize{9, 5}})
        for (KroiPoint anchor : {KroiPoint{0, 0}, KroiPoint{(mask.width - 1) / 2, (mask.height - 1) / 2},
                                 KroiPoint{mask.width - 1, mask.height - 1}}) {
            const int W = 13, H = 7;
            kt::Guarded<Kro64f> src(W + mask.width - 1, H + mask.height - 1), dst(kt::Shape{W, H, 1, 8});
            kt::fillRandom(src, rng);
            ASSERT_EQ(kroiFilterBox_64f_C1R(&src.at(anchor.x, anchor.y), src.step(), dst.ptr(), dst.step(), {W, H}, mask,
                                            anchor),
                      kroStsOk);
            const double inv = 1.0 / (double(mask.width) * double(mask.height));
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int) {
                auto col = [&](int cx, int cy) { // column sum by the running sequence
                    double c = 0.0;
                    for (int k = 0; k < mask.height; ++k) c = c + src.at(cx, k);
                    for (int i = 1; i <= cy; ++i) c = c + (src.at(cx, i + mask.height - 1) - src.at(cx, i - 1));
                    return c;
                };
                double s = 0.0;
                for (int k = 0; k < mask.width; ++k) s = s + col(k, y);
                for (int i = 1; i <= x; ++i) s = s + (col(i + mask.width - 1, y) - col(i - 1, y));
                return s * inv;
            });
        }
    Kro64f in[64] = {}, out[8] = {};
    EXPECT_EQ(kroiFilterBox_64f_C1R(nullptr, 0, out, 0, {0, 0}, {0, 0}, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(kroiFilterBox_64f_C1R(in, 0, out, 0, {0, 1}, {1, 1}, {0, 0}), kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterBox_64f_C1R(in, 0, out, 0, {2, 1}, {1, 0}, {0, 0}), kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterBox_64f_C1R(in, 31, out, 64, {2, 1}, {3, 1}, {0, 0}), kroStsBadStepErr);
    EXPECT_EQ(kroiFilterBox_64f_C1R(in, 32, out, 15, {2, 1}, {3, 1}, {0, 0}), kroStsBadStepErr);
    EXPECT_EQ(kroiFilterBox_64f_C1R(in, 32, out, 16, {2, 1}, {3, 1}, {0, 0}), kroStsOk);
}

}  // namespace
