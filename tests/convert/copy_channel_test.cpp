// Channel copies and one-channel fills: every member against the rule with every choice of
// channel, guard pages at both ends of the rows' spans, and source and destination sharing
// memory at many relative positions and steps (the result must be that of separate buffers).
#include <cstring>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"
#include "support/guarded.hpp"

namespace {

using kt::Guard;
using kt::Guarded;
using kt::Shape;

// Element k < K of source pixel x, from channel cs on, to element k of destination pixel
// x, from channel cd on.  SC and DC are the images' channel counts.
template <class T>
struct ChannelCopy {
    const char* name;
    KroStatus (*fn)(const T*, int, T*, int, KroiSize);
    int SC, DC, K;
};
template <class T>
struct ChannelSet {
    const char* name;
    KroStatus (*fn)(T, T*, int, KroiSize);
    int C;
};
#define KT_CC(fn, SC, DC, K) ChannelCopy<T>{#fn, fn, SC, DC, K}
#define KT_CS(fn, C) ChannelSet<T>{#fn, fn, C}

template <class T> std::vector<ChannelCopy<T>> channelCopies();
template <class T> std::vector<ChannelSet<T>> channelSets();
template <> std::vector<ChannelCopy<Kro8u>> channelCopies()
{
    using T = Kro8u;
    return {KT_CC(kroiCopy_8u_C3CR, 3, 3, 1),   KT_CC(kroiCopy_8u_C4CR, 4, 4, 1),   KT_CC(kroiCopy_8u_C3C1R, 3, 1, 1),
            KT_CC(kroiCopy_8u_C4C1R, 4, 1, 1),  KT_CC(kroiCopy_8u_C1C3R, 1, 3, 1),  KT_CC(kroiCopy_8u_C1C4R, 1, 4, 1),
            KT_CC(kroiCopy_8u_C3AC4R, 3, 4, 3), KT_CC(kroiCopy_8u_AC4C3R, 4, 3, 3)};
}
template <> std::vector<ChannelSet<Kro8u>> channelSets()
{
    using T = Kro8u;
    return {KT_CS(kroiSet_8u_C3CR, 3), KT_CS(kroiSet_8u_C4CR, 4)};
}
template <> std::vector<ChannelCopy<Kro16u>> channelCopies()
{
    using T = Kro16u;
    return {KT_CC(kroiCopy_16u_C3CR, 3, 3, 1),   KT_CC(kroiCopy_16u_C4CR, 4, 4, 1),   KT_CC(kroiCopy_16u_C3C1R, 3, 1, 1),
            KT_CC(kroiCopy_16u_C4C1R, 4, 1, 1),  KT_CC(kroiCopy_16u_C1C3R, 1, 3, 1),  KT_CC(kroiCopy_16u_C1C4R, 1, 4, 1),
            KT_CC(kroiCopy_16u_C3AC4R, 3, 4, 3), KT_CC(kroiCopy_16u_AC4C3R, 4, 3, 3)};
}
template <> std::vector<ChannelSet<Kro16u>> channelSets()
{
    using T = Kro16u;
    return {KT_CS(kroiSet_16u_C3CR, 3), KT_CS(kroiSet_16u_C4CR, 4)};
}
template <> std::vector<ChannelCopy<Kro16s>> channelCopies()
{
    using T = Kro16s;
    return {KT_CC(kroiCopy_16s_C3CR, 3, 3, 1),   KT_CC(kroiCopy_16s_C4CR, 4, 4, 1),   KT_CC(kroiCopy_16s_C3C1R, 3, 1, 1),
            KT_CC(kroiCopy_16s_C4C1R, 4, 1, 1),  KT_CC(kroiCopy_16s_C1C3R, 1, 3, 1),  KT_CC(kroiCopy_16s_C1C4R, 1, 4, 1),
            KT_CC(kroiCopy_16s_C3AC4R, 3, 4, 3), KT_CC(kroiCopy_16s_AC4C3R, 4, 3, 3)};
}
template <> std::vector<ChannelSet<Kro16s>> channelSets()
{
    using T = Kro16s;
    return {KT_CS(kroiSet_16s_C3CR, 3), KT_CS(kroiSet_16s_C4CR, 4)};
}
template <> std::vector<ChannelCopy<Kro32s>> channelCopies()
{
    using T = Kro32s;
    return {KT_CC(kroiCopy_32s_C3CR, 3, 3, 1),   KT_CC(kroiCopy_32s_C4CR, 4, 4, 1),   KT_CC(kroiCopy_32s_C3C1R, 3, 1, 1),
            KT_CC(kroiCopy_32s_C4C1R, 4, 1, 1),  KT_CC(kroiCopy_32s_C1C3R, 1, 3, 1),  KT_CC(kroiCopy_32s_C1C4R, 1, 4, 1),
            KT_CC(kroiCopy_32s_C3AC4R, 3, 4, 3), KT_CC(kroiCopy_32s_AC4C3R, 4, 3, 3)};
}
template <> std::vector<ChannelSet<Kro32s>> channelSets()
{
    using T = Kro32s;
    return {KT_CS(kroiSet_32s_C3CR, 3), KT_CS(kroiSet_32s_C4CR, 4)};
}
template <> std::vector<ChannelCopy<Kro32f>> channelCopies()
{
    using T = Kro32f;
    return {KT_CC(kroiCopy_32f_C3CR, 3, 3, 1),   KT_CC(kroiCopy_32f_C4CR, 4, 4, 1),   KT_CC(kroiCopy_32f_C3C1R, 3, 1, 1),
            KT_CC(kroiCopy_32f_C4C1R, 4, 1, 1),  KT_CC(kroiCopy_32f_C1C3R, 1, 3, 1),  KT_CC(kroiCopy_32f_C1C4R, 1, 4, 1),
            KT_CC(kroiCopy_32f_C3AC4R, 3, 4, 3), KT_CC(kroiCopy_32f_AC4C3R, 4, 3, 3)};
}
template <> std::vector<ChannelSet<Kro32f>> channelSets()
{
    using T = Kro32f;
    return {KT_CS(kroiSet_32f_C3CR, 3), KT_CS(kroiSet_32f_C4CR, 4)};
}

template <class T>
class Channels : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(Channels, Types);

// The channels a K = 1 form may start at on a side of C channels.
int firstChannels(int C, int K) { return K == 1 ? C : 1; }

TYPED_TEST(Channels, CopyMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : channelCopies<T>())
        for (int w : {1, 2, 5, 15, 16, 17, 31, 33, 48, 67})
            for (int cs = 0; cs < firstChannels(m.SC, m.K); ++cs)
                for (int cd = 0; cd < firstChannels(m.DC, m.K); ++cd)
                    for (Guard g : {Guard::After, Guard::Before}) {
                        const int off = (w + cs + cd) % 16;
                        Guarded<T> src(kt::typed<T>(Shape{w, 3, m.SC, 7, g == Guard::After ? Guard::Before : Guard::After, off}));
                        Guarded<T> dst(kt::typed<T>(Shape{w, 3, m.DC, w % 2 ? 0 : 11, g, off ^ 5}));
                        kt::fillRandom(src, rng);
                        kt::fillRandom(dst, rng);
                        Guarded<T> old(Shape{w, 3, m.DC});
                        old.forEach([&](int x, int y, int c, T& e) { e = dst.at(x, y, c); });
                        const auto before = dst.snapshot();
                        ASSERT_EQ(m.fn(&src.at(0, 0, cs), src.step(), &dst.at(0, 0, cd), dst.step(), {w, 3}), kroStsOk);
                        EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) {
                            return c >= cd && c < cd + m.K ? src.at(x, y, cs + c - cd) : old.at(x, y, c);
                        }) << m.name << " width " << w << " channels " << cs << " -> " << cd;
                        EXPECT_TRUE(dst.restUnchangedSince(before, m.DC)) << m.name;
                    }
}

TYPED_TEST(Channels, SetMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : channelSets<T>())
        for (int w : {1, 2, 5, 16, 17, 33, 67})
            for (int cd = 0; cd < m.C; ++cd)
                for (Guard g : {Guard::After, Guard::Before}) {
                    Guarded<T> dst(kt::typed<T>(Shape{w, 3, m.C, 5, g, (w + cd) % 16}));
                    kt::fillRandom(dst, rng);
                    Guarded<T> old(Shape{w, 3, m.C});
                    old.forEach([&](int x, int y, int c, T& e) { e = dst.at(x, y, c); });
                    const T v = kt::randomValue<T>(rng);
                    ASSERT_EQ(m.fn(v, &dst.at(0, 0, cd), dst.step(), {w, 3}), kroStsOk);
                    EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c == cd ? v : old.at(x, y, c); })
                        << m.name << " width " << w << " channel " << cd;
                }
}

// Source and destination inside one buffer: the result equals the rule applied to the
// source as it was before the call.  Steps tight, equal and padded, and bottom-up.
template <class T>
void expectOverlapLikeSeparate(const ChannelCopy<T>& m, kt::Rng& rng, int w, int h, int srcStepEl, int dstStepEl,
                               int delta)
{
    const int srcSpan = (w - 1) * m.SC + m.K, dstSpan = (w - 1) * m.DC + m.K;
    const int srcExtent = (h - 1) * std::abs(srcStepEl) + srcSpan, dstExtent = (h - 1) * std::abs(dstStepEl) + dstSpan;
    const int base = srcExtent + dstExtent + 8, size = 3 * base;
    std::vector<T> mem(size);
    for (T& e : mem) e = kt::randomValue<T>(rng);
    // Lowest element of each image; the ROI pointer is its first row, the highest when the
    // step is negative.
    const int srcLow = base, dstLow = base + delta;
    const int srcFirst = srcLow + (srcStepEl < 0 ? (h - 1) * -srcStepEl : 0);
    const int dstFirst = dstLow + (dstStepEl < 0 ? (h - 1) * -dstStepEl : 0);
    std::vector<T> want = mem;
    for (int y = 0; y < h; ++y)
        for (int x = 0; x < w; ++x)
            for (int k = 0; k < m.K; ++k)
                want[dstFirst + y * dstStepEl + x * m.DC + k] = mem[srcFirst + y * srcStepEl + x * m.SC + k];
    ASSERT_EQ(m.fn(&mem[srcFirst], srcStepEl * int(sizeof(T)), &mem[dstFirst], dstStepEl * int(sizeof(T)), {w, h}),
              kroStsOk);
    for (int i = 0; i < size; ++i)
        if (std::memcmp(&mem[i], &want[i], sizeof(T))) {
            ADD_FAILURE() << m.name << " " << w << " x " << h << " steps " << srcStepEl << ", " << dstStepEl
                          << " destination at source " << (delta >= 0 ? "+" : "") << delta << ": element " << i - base
                          << " differs";
            return;
        }
}

TYPED_TEST(Channels, SharedMemoryLikeSeparateBuffers)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : channelCopies<T>())
        for (auto [w, h] : {std::pair{1, 1}, std::pair{23, 1}, std::pair{7, 3}, std::pair{20, 2}}) {
            const int sRow = (w - 1) * m.SC + m.K, dRow = (w - 1) * m.DC + m.K, both = std::max(m.SC, m.DC) * w + 2;
            const std::pair<int, int> steps[] = {{sRow, dRow}, {both, both}, {sRow + 3, dRow + 9}, {-both, -both}};
            for (auto [ss, ds] : steps) {
                const int reach = (h - 1) * std::max(std::abs(ss), std::abs(ds)) + std::max(sRow, dRow);
                for (int delta = -reach - 1; delta <= reach + 1; delta += (std::abs(delta) < 8 ? 1 : 3))
                    expectOverlapLikeSeparate(m, rng, w, h, ss, ds, delta);
            }
        }
}

TYPED_TEST(Channels, CheckOrder)
{
    using T = TypeParam;
    Guarded<T> src(4, 2, 4), dst(4, 2, 4);
    dst.fillBytes(0x77);
    const auto before = dst.snapshot();
    for (const auto& m : channelCopies<T>()) {
        EXPECT_EQ(m.fn(nullptr, src.step(), dst.ptr(), dst.step(), {0, 0}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), src.step(), nullptr, dst.step(), {4, 2}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {4, 0}), kroStsBadSizeErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {-1, 2}), kroStsBadSizeErr) << m.name;
    }
    for (const auto& m : channelSets<T>()) {
        EXPECT_EQ(m.fn(T(1), nullptr, dst.step(), {0, 2}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.fn(T(1), dst.ptr(), dst.step(), {4, -3}), kroStsBadSizeErr) << m.name;
    }
    EXPECT_TRUE(dst.unchangedSince(before));
}

}  // namespace
