// The min/max filters against a brute-force window reference written from the rule: every
// output pixel is the extreme of its window, each window pixel found by the border rules
// applied to the ROI widened by the sides that are in memory.
#include <cmath>
#include <cstring>
#include <limits>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using FilterFn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);

template <class T>
struct Member {
    const char* name;
    FilterFn<T> fn;
    int C;      // elements per pixel
    bool alpha; // AC4
    bool max;
};

#define MEMBERS(t, T)                                                                                        \
    {"kroiFilterMaxBorder_" #t "_C1R", kroiFilterMaxBorder_##t##_C1R, 1, false, true},                      \
        {"kroiFilterMaxBorder_" #t "_C3R", kroiFilterMaxBorder_##t##_C3R, 3, false, true},                  \
        {"kroiFilterMaxBorder_" #t "_C4R", kroiFilterMaxBorder_##t##_C4R, 4, false, true},                  \
        {"kroiFilterMaxBorder_" #t "_AC4R", kroiFilterMaxBorder_##t##_AC4R, 4, true, true},                 \
        {"kroiFilterMinBorder_" #t "_C1R", kroiFilterMinBorder_##t##_C1R, 1, false, false},                 \
        {"kroiFilterMinBorder_" #t "_C3R", kroiFilterMinBorder_##t##_C3R, 3, false, false},                 \
        {"kroiFilterMinBorder_" #t "_C4R", kroiFilterMinBorder_##t##_C4R, 4, false, false},                 \
        {"kroiFilterMinBorder_" #t "_AC4R", kroiFilterMinBorder_##t##_AC4R, 4, true, false}
// The names, spelled out for the coverage test: kroiFilterMaxBorder_8u_C1R kroiFilterMaxBorder_8u_C3R
// kroiFilterMaxBorder_8u_C4R kroiFilterMaxBorder_8u_AC4R kroiFilterMinBorder_8u_C1R kroiFilterMinBorder_8u_C3R
// kroiFilterMinBorder_8u_C4R kroiFilterMinBorder_8u_AC4R kroiFilterMaxBorder_16u_C1R kroiFilterMaxBorder_16u_C3R
// kroiFilterMaxBorder_16u_C4R kroiFilterMaxBorder_16u_AC4R kroiFilterMinBorder_16u_C1R kroiFilterMinBorder_16u_C3R
// kroiFilterMinBorder_16u_C4R kroiFilterMinBorder_16u_AC4R kroiFilterMaxBorder_16s_C1R kroiFilterMaxBorder_16s_C3R
// kroiFilterMaxBorder_16s_C4R kroiFilterMaxBorder_16s_AC4R kroiFilterMinBorder_16s_C1R kroiFilterMinBorder_16s_C3R
// kroiFilterMinBorder_16s_C4R kroiFilterMinBorder_16s_AC4R kroiFilterMaxBorder_32f_C1R kroiFilterMaxBorder_32f_C3R
// kroiFilterMaxBorder_32f_C4R kroiFilterMaxBorder_32f_AC4R kroiFilterMinBorder_32f_C1R kroiFilterMinBorder_32f_C3R
// kroiFilterMinBorder_32f_C4R kroiFilterMinBorder_32f_AC4R

template <class T>
const std::vector<Member<T>>& members();
template <>
const std::vector<Member<Kro8u>>& members() { static const std::vector<Member<Kro8u>> m = {MEMBERS(8u, Kro8u)}; return m; }
template <>
const std::vector<Member<Kro16u>>& members() { static const std::vector<Member<Kro16u>> m = {MEMBERS(16u, Kro16u)}; return m; }
template <>
const std::vector<Member<Kro16s>>& members() { static const std::vector<Member<Kro16s>> m = {MEMBERS(16s, Kro16s)}; return m; }
template <>
const std::vector<Member<Kro32f>>& members() { static const std::vector<Member<Kro32f>> m = {MEMBERS(32f, Kro32f)}; return m; }

template <class T>
KroDataType typeCode()
{
    if constexpr (std::is_same_v<T, Kro8u>) return kro8u;
    else if constexpr (std::is_same_v<T, Kro16u>) return kro16u;
    else if constexpr (std::is_same_v<T, Kro16s>) return kro16s;
    else return kro32f;
}

// Border rule over a line of n pixels, stepping instead of taking a modulo.
int64_t ruleIndex(unsigned mode, int64_t x, int64_t n)
{
    if (mode == kroBorderReplicate) return x < 0 ? 0 : (x >= n ? n - 1 : x);
    if (n == 1) return 0;
    while (x < 0 || x >= n) x = x < 0 ? -x : 2 * (n - 1) - x;
    return x;
}

// One call: an image of W x H pixels placed `margin` pixels inside a larger source so that the
// sides in memory can be read (margin 0: the ROI touches the guard page).
struct Case {
    int W, H, mw, mh;
    KroiBorderMode code;
    int margin;
};

// The rule.  Where a coordinate lies: inside the ROI or a side in memory (the ROI widened by
// them), read as is; otherwise the mode's rule over the widened extent, or the constant.
template <class T>
std::vector<T> reference(const kt::Guarded<T>& src, int margin, const Case& k, int C, bool max, const T* value)
{
    const int ax = (k.mw - 1) >> 1, ay = (k.mh - 1) >> 1, right = k.mw - 1 - ax, bottom = k.mh - 1 - ay;
    const bool all = k.code == kroBorderInMem;
    const bool mL = all || (k.code & kroBorderInMemLeft) || ax == 0, mR = all || (k.code & kroBorderInMemRight) || right == 0;
    const bool mT = all || (k.code & kroBorderInMemTop) || ay == 0, mB = all || (k.code & kroBorderInMemBottom) || bottom == 0;
    const unsigned mode = k.code & 15u;
    const int64_t xlo = mL ? -ax : 0, xhi = mR ? k.W + right : k.W, ylo = mT ? -ay : 0, yhi = mB ? k.H + bottom : k.H;
    std::vector<T> out(std::size_t(k.W) * k.H * C);
    for (int y = 0; y < k.H; ++y)
        for (int x = 0; x < k.W; ++x)
            for (int c = 0; c < C; ++c) {
                long double best = max ? -INFINITY : INFINITY;
                bool any = false;
                for (int j = 0; j < k.mh; ++j)
                    for (int i = 0; i < k.mw; ++i) {
                        int64_t sx = x - ax + i, sy = y - ay + j;
                        T v;
                        const bool outX = sx < xlo || sx >= xhi, outY = sy < ylo || sy >= yhi;
                        if ((outX || outY) && mode == kroBorderConstant && !all) {
                            v = value[c];
                        } else {
                            if (outX) sx = xlo + ruleIndex(mode, sx - xlo, xhi - xlo);
                            if (outY) sy = ylo + ruleIndex(mode, sy - ylo, yhi - ylo);
                            v = src.at(int(sx + margin), int(sy + margin), c);
                        }
                        if (v != v) continue; // NaN never wins
                        any = true;
                        if (max ? v > best : v < best) best = v;
                    }
                (void)any;
                out[(std::size_t(y) * k.W + x) * C + c] = T(best);
            }
    return out;
}

// Runs member m on case k (random data, canary destination, buffer ending at a guard page)
// and compares with the rule.
template <class T>
void expectRule(const Member<T>& m, const Case& k, kt::Rng& rng, const kt::FloatMix& mix = {})
{
    const int C = m.C;
    kt::Shape ss{k.W + 2 * k.margin, k.H + 2 * k.margin, C, 5 * int(sizeof(T)), kt::Guard::After};
    const int dstPad = 7 * int(sizeof(T));
    kt::Guarded<T> src(ss);
    kt::fillRandom(src, rng, mix);
    kt::Guarded<T> dst(kt::Shape{k.W, k.H, C, dstPad, kt::Guard::Before, 4});
    dst.fillBytes(0x5C);
    const auto before = dst.snapshot();
    int size = 0;
    ASSERT_EQ(kroiFilterMaxBorderGetBufferSize({k.W, k.H}, {k.mw, k.mh}, typeCode<T>(), C == 4 ? 4 : C, &size), kroStsOk);
    kt::Guarded<Kro8u> buffer(kt::Shape{size, 1, 1, 0, kt::Guard::After});
    T value[4];
    for (T& v : value) v = kt::randomValue<T>(rng, mix);
    const std::string what = std::string(m.name) + " " + std::to_string(k.W) + "x" + std::to_string(k.H) + " mask " +
                             std::to_string(k.mw) + "x" + std::to_string(k.mh) + " code 0x" + [&] {
                                 char b[8];
                                 std::snprintf(b, sizeof b, "%X", k.code);
                                 return std::string(b);
                             }();
    const T* roi = &src.at(k.margin, k.margin);
    ASSERT_EQ(m.fn(roi, src.step(), dst.ptr(), dst.step(), {k.W, k.H}, {k.mw, k.mh}, k.code, value, buffer.ptr()), kroStsOk)
        << what;
    const auto want = reference(src, k.margin, k, C, m.max, value);
    const int WC = m.alpha ? 3 : C;
    int bad = 0;
    for (int y = 0; y < k.H && bad < 5; ++y)
        for (int x = 0; x < k.W && bad < 5; ++x)
            for (int c = 0; c < WC; ++c) {
                const T got = dst.at(x, y, c), exp = want[(std::size_t(y) * k.W + x) * C + c];
                if (std::memcmp(&got, &exp, sizeof(T)) != 0) {
                    ADD_FAILURE() << what << " at (" << x << "," << y << "," << c << "): " << kt::show(got)
                                  << " want " << kt::show(exp);
                    ++bad;
                }
            }
    EXPECT_TRUE(dst.restUnchangedSince(before, WC)) << what;
}

template <class T>
void sweepMasks(kt::Rng& rng)
{
    // Odd, even, 1xN, Nx1, direct, doubling and block row passes, direct and block column
    // passes, and masks larger than the image (staged).
    const KroiSize masks[] = {{1, 1}, {2, 2}, {3, 3}, {1, 3}, {2, 3}, {1, 5}, {5, 1}, {4, 3}, {6, 5}, {9, 2}, {2, 9},
                              {3, 12}, {15, 2}, {17, 7}, {21, 1}, {1, 21}, {66, 6}, {40, 15}, {55, 3}};
    const KroiBorderMode codes[] = {kroBorderReplicate, kroBorderMirror, kroBorderConstant};
    for (const auto& m : members<T>())
        for (const KroiSize mk : masks)
            for (KroiBorderMode mode : codes) {
                const int W = mk.width >= 60 ? 71 : 37, H = mk.width >= 60 ? 7 : 11;
                expectRule(m, {W, H, mk.width, mk.height, mode, 0}, rng);
                if (::testing::Test::HasFailure()) return;
            }
}

template <class T>
void sweepCodes(kt::Rng& rng)
{
    // Every mode with every combination of the four flags, and 0xF0, with streaming masks and
    // masks as large as or larger than the image in either direction.
    const Case shapes[] = {{13, 6, 3, 3, 0, 0}, {13, 6, 4, 2, 0, 0}, {9, 5, 9, 2, 0, 0}, {6, 4, 3, 7, 0, 0}, {5, 3, 12, 8, 0, 0}};
    for (const auto& m : members<T>())
        for (Case k : shapes) {
            k.margin = std::max(k.mw, k.mh);
            for (unsigned flags = 0; flags < 16; ++flags)
                for (unsigned mode : {1u, 3u, 6u}) {
                    k.code = (flags << 4) | mode;
                    expectRule(m, k, rng);
                }
            k.code = kroBorderInMem;
            expectRule(m, k, rng);
            if (::testing::Test::HasFailure()) return;
        }
}

TEST(MinMaxFilter, EveryMaskMatchesRule)
{
    auto rng = kt::rngForTest();
    sweepMasks<Kro8u>(rng);
    sweepMasks<Kro16u>(rng);
    sweepMasks<Kro16s>(rng);
    sweepMasks<Kro32f>(rng);
}

TEST(MinMaxFilter, EveryBorderCodeMatchesRule)
{
    auto rng = kt::rngForTest();
    sweepCodes<Kro8u>(rng);
    sweepCodes<Kro16u>(rng);
    sweepCodes<Kro16s>(rng);
    sweepCodes<Kro32f>(rng);
}

// Masks wider than the longest doubling row pass take the block scheme along the row: rows of
// several blocks, and a mask wider than the image (staged).
template <class T>
void sweepWide(kt::Rng& rng)
{
    int i = 0;
    for (const auto& m : members<T>()) {
        const KroiBorderMode mode = (i++ % 3 == 0) ? kroBorderReplicate : (i % 3 == 1) ? kroBorderMirror : kroBorderConstant;
        expectRule(m, {530, 2, 257, 2, mode, 0}, rng);
        expectRule(m, {600, 2, 300, 1, mode, 0}, rng);
        expectRule(m, {7, 3, 301, 4, mode, 0}, rng);
    }
}

TEST(MinMaxFilter, WideMasks)
{
    auto rng = kt::rngForTest();
    sweepWide<Kro8u>(rng);
    sweepWide<Kro16u>(rng);
    sweepWide<Kro16s>(rng);
    sweepWide<Kro32f>(rng);
}

// Long rows cross many vector widths and tails; one-pixel images stage everything.
TEST(MinMaxFilter, WidthsAndTinyImages)
{
    auto rng = kt::rngForTest();
    for (int W : {1, 2, 3, 15, 16, 17, 33, 64, 65, 131})
        for (const auto& m : members<Kro8u>()) {
            expectRule(m, {W, 3, 3, 2, kroBorderMirror, 0}, rng);
            expectRule(m, {W, 1, 5, 5, kroBorderReplicate, 0}, rng);
        }
    for (int W : {1, 4, 5, 9})
        for (const auto& m : members<Kro32f>()) expectRule(m, {W, 9, 7, 6, kroBorderConstant, 0}, rng);
}

// Rows over a kilobyte long, which the filter reads in place with short copies at the ends,
// with three-row and taller masks.
template <class T>
void sweepLong(kt::Rng& rng)
{
    const KroiBorderMode codes[] = {kroBorderReplicate, kroBorderMirror | kroBorderInMemTop,
                                    kroBorderConstant | kroBorderInMemRight};
    int i = 0;
    for (const auto& m : members<T>())
        for (KroiSize mk : {KroiSize{3, 3}, KroiSize{2, 3}, KroiSize{5, 9}, KroiSize{33, 4}, KroiSize{16, 5}, KroiSize{17, 3},
                            KroiSize{31, 6}, KroiSize{32, 2}}) {
            expectRule(m, {1030, 9, mk.width, mk.height, codes[i++ % 3], 17}, rng);
            if (::testing::Test::HasFailure()) return;
        }
}

TEST(MinMaxFilter, LongRows)
{
    auto rng = kt::rngForTest();
    sweepLong<Kro8u>(rng);
    sweepLong<Kro16u>(rng);
    sweepLong<Kro16s>(rng);
    sweepLong<Kro32f>(rng);
}

// NaN never wins: the max filter counts it as -inf, the min filter as +inf.  Images with a
// few NaNs, and with NaNs only (every window then gives the infinity).
TEST(MinMaxFilter, NaNNeverWins)
{
    auto rng = kt::rngForTest();
    kt::FloatMix some{-100.0, 100.0, 0.0};
    for (const auto& m : members<Kro32f>())
        for (KroiSize mk : {KroiSize{3, 3}, KroiSize{8, 7}, KroiSize{70, 1}}) {
            const int W = mk.width > 60 ? 75 : 21;
            // A NaN-free image first, then one seeded with NaNs through the constant.
            expectRule(m, {W, 9, mk.width, mk.height, kroBorderReplicate, 0}, rng, some);
        }
    const float nan = std::numeric_limits<float>::quiet_NaN();
    for (const auto& m : members<Kro32f>()) {
        const int C = m.C, W = 23, H = 9;
        for (float fillNaNEvery : {3.0f, 1.0f}) {
            kt::Guarded<Kro32f> src(W, H, C);
            int i = 0;
            src.forEach([&](int, int, int, Kro32f& e) {
                e = (i++ % int(fillNaNEvery) == 0) ? nan : kt::randomValue<Kro32f>(rng, some);
            });
            kt::Guarded<Kro32f> dst(W, H, C);
            int size = 0;
            kroiFilterMaxBorderGetBufferSize({W, H}, {4, 5}, kro32f, C, &size);
            std::vector<Kro8u> buf(size);
            const Kro32f value[4] = {nan, nan, nan, nan};
            ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {W, H}, {4, 5}, kroBorderConstant, value,
                           buf.data()),
                      kroStsOk);
            const Case k{W, H, 4, 5, kroBorderConstant, 0};
            const auto want = reference(src, 0, k, C, m.max, value);
            for (int y = 0; y < H; ++y)
                for (int x = 0; x < W; ++x)
                    for (int c = 0; c < (m.alpha ? 3 : C); ++c) {
                        const float got = dst.at(x, y, c), exp = want[(std::size_t(y) * W + x) * C + c];
                        ASSERT_FALSE(std::isnan(got)) << m.name;
                        ASSERT_EQ(got, exp) << m.name << " " << x << "," << y;
                        if (fillNaNEvery == 1.0f) {
                            ASSERT_EQ(got, m.max ? -INFINITY : INFINITY) << m.name;
                        }
                    }
        }
    }
}

// A 1 x 1 mask copies the ROI bit for bit, NaN payloads and -0 included.
TEST(MinMaxFilter, OneByOneCopies)
{
    auto rng = kt::rngForTest();
    kt::FloatMix specials{-10, 10, 0.5};
    for (const auto& m : members<Kro32f>()) {
        kt::Guarded<Kro32f> src(17, 4, m.C, 4), dst(17, 4, m.C, 12);
        kt::fillRandom(src, rng, specials);
        dst.fillBytes(0x77);
        const auto before = dst.snapshot();
        Kro8u buf[256];
        ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {17, 4}, {1, 1}, kroBorderConstant, nullptr, buf),
                  kroStsOk);
        const int WC = m.alpha ? 3 : m.C;
        for (int y = 0; y < 4; ++y)
            for (int x = 0; x < 17; ++x)
                for (int c = 0; c < WC; ++c) ASSERT_EQ(std::memcmp(&src.at(x, y, c), &dst.at(x, y, c), 4), 0) << m.name;
        EXPECT_TRUE(dst.restUnchangedSince(before, WC));
    }
}

// Bottom-up images (negative steps are used as given) and a source ending at a guard page.
TEST(MinMaxFilter, NegativeStepsAndGuards)
{
    auto rng = kt::rngForTest();
    for (const auto& m : members<Kro16s>()) {
        kt::Shape s{19, 8, m.C, 0, kt::Guard::Before, 0, true};
        kt::Guarded<Kro16s> src(s), dst(kt::Shape{19, 8, m.C, 2, kt::Guard::After, 0, true});
        kt::fillRandom(src, rng);
        int size = 0;
        kroiFilterMinBorderGetBufferSize({19, 8}, {5, 3}, kro16s, m.C, &size);
        kt::Guarded<Kro8u> buf(kt::Shape{size, 1, 1, 0, kt::Guard::After});
        const Kro16s value[4] = {1, 2, 3, 4};
        ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {19, 8}, {5, 3}, kroBorderMirror, value, buf.ptr()),
                  kroStsOk);
        const auto want = reference(src, 0, {19, 8, 5, 3, kroBorderMirror, 0}, m.C, m.max, value);
        for (int y = 0; y < 8; ++y)
            for (int x = 0; x < 19; ++x)
                for (int c = 0; c < (m.alpha ? 3 : m.C); ++c)
                    ASSERT_EQ(dst.at(x, y, c), want[(std::size_t(y) * 19 + x) * m.C + c]) << m.name;
    }
}

}  // namespace
