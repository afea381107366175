// kroiSwapChannels: every type and form against the rule (destination channel c receives
// source channel order[c]; C3C4: 3 writes val, 4 and up keep), in place against out of
// place, the check order, and nothing written on error.
#include <gtest/gtest.h>

#include <utility>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize, const int*);
template <class T>
using FnVal = KroStatus (*)(const T*, int, T*, int, KroiSize, const int*, T);

template <class T>
struct Forms;
template <>
struct Forms<Kro8u> {
    static constexpr Fn<Kro8u> c3 = kroiSwapChannels_8u_C3R, c4 = kroiSwapChannels_8u_C4R,
                           ac4 = kroiSwapChannels_8u_AC4R, c4c3 = kroiSwapChannels_8u_C4C3R;
    static constexpr FnVal<Kro8u> c3c4 = kroiSwapChannels_8u_C3C4R;
};
template <>
struct Forms<Kro16u> {
    static constexpr Fn<Kro16u> c3 = kroiSwapChannels_16u_C3R, c4 = kroiSwapChannels_16u_C4R,
                           ac4 = kroiSwapChannels_16u_AC4R, c4c3 = kroiSwapChannels_16u_C4C3R;
    static constexpr FnVal<Kro16u> c3c4 = kroiSwapChannels_16u_C3C4R;
};
template <>
struct Forms<Kro16s> {
    static constexpr Fn<Kro16s> c3 = kroiSwapChannels_16s_C3R, c4 = kroiSwapChannels_16s_C4R,
                           ac4 = kroiSwapChannels_16s_AC4R, c4c3 = kroiSwapChannels_16s_C4C3R;
    static constexpr FnVal<Kro16s> c3c4 = kroiSwapChannels_16s_C3C4R;
};
template <>
struct Forms<Kro32s> {
    static constexpr Fn<Kro32s> c3 = kroiSwapChannels_32s_C3R, c4 = kroiSwapChannels_32s_C4R,
                           ac4 = kroiSwapChannels_32s_AC4R, c4c3 = kroiSwapChannels_32s_C4C3R;
    static constexpr FnVal<Kro32s> c3c4 = kroiSwapChannels_32s_C3C4R;
};
template <>
struct Forms<Kro32f> {
    static constexpr Fn<Kro32f> c3 = kroiSwapChannels_32f_C3R, c4 = kroiSwapChannels_32f_C4R,
                           ac4 = kroiSwapChannels_32f_AC4R, c4c3 = kroiSwapChannels_32f_C4C3R;
    static constexpr FnVal<Kro32f> c3c4 = kroiSwapChannels_32f_C3C4R;
};

const int kWidths[] = {1, 2, 5, 15, 16, 17, 33, 67};

// One form: SP source and DP destination channels, DC written, indices drawn below `limit`.
struct Form {
    int sp, dp, dc, limit;
};

// Runs fn (or fnVal) on random images of every width and placement with several orders,
// in place too where the pixel sizes agree, against the rule.
template <class T>
void checkForm(Fn<T> fn, FnVal<T> fnVal, Form f, kt::Rng& rng)
{
    std::vector<std::vector<int>> orders = {{2, 1, 0, 3}, {0, 1, 2, 3}, {1, 1, 0, 2}};
    for (int i = 0; i < 4; ++i) {
        std::vector<int> o(4);
        for (int& k : o) k = kt::uniform<int>(rng, 0, f.limit - 1);
        orders.push_back(o);
    }
    const T val = kt::randomValue<T>(rng);
    for (const auto& order : orders)
        for (int w : kWidths)
            for (int pl = 0; pl < lt::kPlacements; ++pl) {
                const int h = 3;
                std::vector<int> o(order.begin(), order.begin() + f.dc);
                for (int& k : o) k = std::min(k, f.limit - 1);
                kt::Guarded<T> src(lt::placed(w, h, f.sp, pl)), dst(lt::placed(w, h, f.dp, (pl + 1) % 3));
                kt::fillRandom(src, rng), kt::fillRandom(dst, rng);
                const lt::Elements<T> s(src), old(dst);
                const auto before = dst.snapshot();
                auto expected = [&](int x, int y, int c) {
                    if (c >= f.dc) return old(x, y, c);
                    const int k = o[c];
                    return k < f.sp ? s(x, y, k) : (k == 3 ? val : old(x, y, c));
                };
                const KroiSize roi{w, h};
                const KroStatus st = fn ? fn(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, o.data())
                                        : fnVal(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, o.data(), val);
                ASSERT_EQ(st, kroStsOk);
                ASSERT_IMAGE_EQ(dst, expected) << "w " << w << " placement " << pl;
                EXPECT_TRUE(dst.restUnchangedSince(before, f.dp));
                if (f.sp == f.dp && fn) {  // the same image as source and destination
                    ASSERT_EQ(fn(src.ptr(), src.step(), src.ptr(), src.step(), roi, o.data()), kroStsOk);
                    ASSERT_IMAGE_EQ(src, [&](int x, int y, int c) { return c < f.dc ? s(x, y, o[c]) : s(x, y, c); });
                }
            }
}

template <class T>
class SwapChannels : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(SwapChannels, Types);

TYPED_TEST(SwapChannels, MatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    checkForm<T>(Forms<T>::c3, nullptr, {3, 3, 3, 3}, rng);
    checkForm<T>(Forms<T>::c4, nullptr, {4, 4, 4, 4}, rng);
    checkForm<T>(Forms<T>::ac4, nullptr, {4, 4, 3, 3}, rng);
    checkForm<T>(Forms<T>::c4c3, nullptr, {4, 3, 3, 4}, rng);
    checkForm<T>(nullptr, Forms<T>::c3c4, {3, 4, 4, 7}, rng);
}

// Null first, then size, then a zero step (a negative one is fine), then the order.
TYPED_TEST(SwapChannels, CheckOrderAndNothingWritten)
{
    using T = TypeParam;
    kt::Guarded<T> src(4, 2, 4), dst(4, 2, 4);
    dst.fillBytes(0x5A);
    const auto before = dst.snapshot();
    const int good[4] = {0, 1, 2, 0}, bad[4] = {0, 1, 5, -1};
    struct Case {
        bool nullSrc, nullOrder;
        int w, step;
        const int* order;
        KroStatus want;
    };
    const Case cases[] = {{true, false, 0, 0, bad, kroStsNullPointerErr},  {false, true, 0, 0, good, kroStsNullPointerErr},
                          {false, false, 0, 0, bad, kroStsBadSizeErr},     {false, false, 4, 0, bad, kroStsBadStepErr},
                          {false, false, 4, 64, bad, kroStsBadChannelOrderErr}};
    for (const Case& c : cases) {
        const T* s = c.nullSrc ? nullptr : src.ptr();
        const int* o = c.nullOrder ? nullptr : c.order;
        const KroiSize roi{c.w, 2};
        EXPECT_EQ(Forms<T>::c3(s, c.step, dst.ptr(), dst.step(), roi, o), c.want);
        EXPECT_EQ(Forms<T>::c4(s, c.step, dst.ptr(), dst.step(), roi, o), c.want);
        EXPECT_EQ(Forms<T>::ac4(s, c.step, dst.ptr(), dst.step(), roi, o), c.want);
        EXPECT_EQ(Forms<T>::c4c3(s, c.step, dst.ptr(), dst.step(), roi, o), c.want);
        EXPECT_EQ(Forms<T>::c3c4(s, c.step, dst.ptr(), dst.step(), roi, o, T(1)), c.want);
    }
    // Index limits of each form: 3 is a channel of C4 and C4C3 but not of C3 or AC4; C3C4
    // takes any index from 0 up.
    const int three[4] = {3, 3, 3, 3}, four[4] = {4, 4, 4, 4}, neg[4] = {0, 0, 0, -1};
    const KroiSize roi{4, 2};
    EXPECT_EQ(Forms<T>::c3(src.ptr(), 16, dst.ptr(), 16, roi, three), kroStsBadChannelOrderErr);
    EXPECT_EQ(Forms<T>::ac4(src.ptr(), 16, dst.ptr(), 16, roi, three), kroStsBadChannelOrderErr);
    EXPECT_EQ(Forms<T>::c4(src.ptr(), 16, dst.ptr(), 16, roi, four), kroStsBadChannelOrderErr);
    EXPECT_EQ(Forms<T>::c4c3(src.ptr(), 16, dst.ptr(), 16, roi, four), kroStsBadChannelOrderErr);
    EXPECT_EQ(Forms<T>::c3c4(src.ptr(), 16, dst.ptr(), 16, roi, neg, T(1)), kroStsBadChannelOrderErr);
    EXPECT_TRUE(dst.unchangedSince(before));
}

// The 8u in-place forms against the out-of-place form on a copy.
TEST(SwapChannelsInPlace, EqualsOutOfPlace)
{
    auto rng = kt::rngForTest();
    for (int c : {3, 4})
        for (int w : kWidths)
            for (int pl = 0; pl < lt::kPlacements; ++pl) {
                kt::Guarded<Kro8u> img(lt::placed(w, 5, c, pl)), ref(w, 5, c);
                kt::fillRandom(img, rng);
                img.forEach([&](int x, int y, int ch, Kro8u& e) { ref.at(x, y, ch) = e; });
                const int order[4] = {c - 1, 0, 1, c == 4 ? 1 : 0};
                const KroiSize roi{w, 5};
                if (c == 3) {
                    ASSERT_EQ(kroiSwapChannels_8u_C3IR(img.ptr(), img.step(), roi, order), kroStsOk);
                    ASSERT_EQ(kroiSwapChannels_8u_C3R(ref.ptr(), ref.step(), ref.ptr(), ref.step(), roi, order), kroStsOk);
                } else {
                    ASSERT_EQ(kroiSwapChannels_8u_C4IR(img.ptr(), img.step(), roi, order), kroStsOk);
                    ASSERT_EQ(kroiSwapChannels_8u_C4R(ref.ptr(), ref.step(), ref.ptr(), ref.step(), roi, order), kroStsOk);
                }
                ASSERT_IMAGE_EQ(img, std::as_const(ref));
            }
    const int bad[3] = {0, 1, 3};
    Kro8u px[4] = {1, 2, 3, 4};
    EXPECT_EQ(kroiSwapChannels_8u_C3IR(nullptr, 0, {0, 0}, bad), kroStsNullPointerErr);
    EXPECT_EQ(kroiSwapChannels_8u_C3IR(px, 0, {1, 1}, bad), kroStsBadStepErr);
    EXPECT_EQ(kroiSwapChannels_8u_C3IR(px, 3, {1, 1}, bad), kroStsBadChannelOrderErr);
    EXPECT_EQ(kroiSwapChannels_8u_C4IR(px, 4, {0, 1}, bad), kroStsBadSizeErr);
    const int rev[3] = {2, 1, 0};
    EXPECT_EQ(kroiSwapChannels_8u_C3IR(px, 3, {1, 1}, rev), kroStsOk);
    EXPECT_EQ(px[0], 3);
    EXPECT_EQ(px[2], 1);
}

}  // namespace
