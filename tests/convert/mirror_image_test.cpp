// kroiMirror: every type and layout, out of place and in place, flips 0, 1 and 2 against
// the rule (AC4 alpha untouched), the same image through the out-of-place form, the
// streaming path of images larger than the biggest cache, and the check order.
#include <gtest/gtest.h>

#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize, int);
template <class T>
using FnI = KroStatus (*)(T*, int, KroiSize, int);

template <class T>
struct Forms;
template <>
struct Forms<Kro8u> {
    static constexpr Fn<Kro8u> r[4] = {kroiMirror_8u_C1R, kroiMirror_8u_C3R, kroiMirror_8u_C4R, kroiMirror_8u_AC4R};
    static constexpr FnI<Kro8u> ir[4] = {kroiMirror_8u_C1IR, kroiMirror_8u_C3IR, kroiMirror_8u_C4IR, kroiMirror_8u_AC4IR};
};
template <>
struct Forms<Kro16u> {
    static constexpr Fn<Kro16u> r[4] = {kroiMirror_16u_C1R, kroiMirror_16u_C3R, kroiMirror_16u_C4R, kroiMirror_16u_AC4R};
    static constexpr FnI<Kro16u> ir[4] = {kroiMirror_16u_C1IR, kroiMirror_16u_C3IR, kroiMirror_16u_C4IR, kroiMirror_16u_AC4IR};
};
template <>
struct Forms<Kro16s> {
    static constexpr Fn<Kro16s> r[4] = {kroiMirror_16s_C1R, kroiMirror_16s_C3R, kroiMirror_16s_C4R, kroiMirror_16s_AC4R};
    static constexpr FnI<Kro16s> ir[4] = {kroiMirror_16s_C1IR, kroiMirror_16s_C3IR, kroiMirror_16s_C4IR, kroiMirror_16s_AC4IR};
};
template <>
struct Forms<Kro32s> {
    static constexpr Fn<Kro32s> r[4] = {kroiMirror_32s_C1R, kroiMirror_32s_C3R, kroiMirror_32s_C4R, kroiMirror_32s_AC4R};
    static constexpr FnI<Kro32s> ir[4] = {kroiMirror_32s_C1IR, kroiMirror_32s_C3IR, kroiMirror_32s_C4IR, kroiMirror_32s_AC4IR};
};
template <>
struct Forms<Kro32f> {
    static constexpr Fn<Kro32f> r[4] = {kroiMirror_32f_C1R, kroiMirror_32f_C3R, kroiMirror_32f_C4R, kroiMirror_32f_AC4R};
    static constexpr FnI<Kro32f> ir[4] = {kroiMirror_32f_C1IR, kroiMirror_32f_C3IR, kroiMirror_32f_C4IR, kroiMirror_32f_AC4IR};
};

// Layouts C1, C3, C4, AC4: elements per pixel and elements written.
const int kChannels[4] = {1, 3, 4, 4};
const int kWritten[4] = {1, 3, 4, 3};

// The source pixel that lands on (x, y).
struct Flip {
    int flip, w, h;
    int sx(int x) const { return flip == 0 ? x : w - 1 - x; }
    int sy(int y) const { return flip == 1 ? y : h - 1 - y; }
};

template <class T>
void checkLayout(int li, kt::Rng& rng)
{
    const int c = kChannels[li], wc = kWritten[li];
    const Fn<T> fn = Forms<T>::r[li];
    const FnI<T> fnI = Forms<T>::ir[li];
    for (int w : {1, 2, 3, 5, 16, 17, 31, 33, 70})
        for (int h : {1, 2, 5})
            for (int flip = 0; flip < 3; ++flip)
                for (int pl = 0; pl < lt::kPlacements; ++pl) {
                    const Flip f{flip, w, h};
                    kt::Guarded<T> src(lt::placed(w, h, c, pl)), dst(lt::placed(w, h, c, (pl + 1) % 3));
                    kt::fillRandom(src, rng), kt::fillRandom(dst, rng);
                    const lt::Elements<T> s(src), old(dst);
                    const auto before = dst.snapshot();
                    auto expected = [&](int x, int y, int ch) { return ch < wc ? s(f.sx(x), f.sy(y), ch) : old(x, y, ch); };
                    ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, flip), kroStsOk);
                    ASSERT_IMAGE_EQ(dst, expected) << w << "x" << h << " flip " << flip << " placement " << pl;
                    EXPECT_TRUE(dst.restUnchangedSince(before, c));
                    // In place, and the out-of-place form on the same image and step.
                    auto inPlace = [&](int x, int y, int ch) { return ch < wc ? s(f.sx(x), f.sy(y), ch) : s(x, y, ch); };
                    ASSERT_EQ(fnI(src.ptr(), src.step(), {w, h}, flip), kroStsOk);
                    ASSERT_IMAGE_EQ(src, inPlace) << w << "x" << h << " flip " << flip << " in place";
                    ASSERT_EQ(fn(src.ptr(), src.step(), src.ptr(), src.step(), {w, h}, flip), kroStsOk);
                    ASSERT_IMAGE_EQ(src, s) << w << "x" << h << " flip " << flip << " twice";
                }
}

template <class T>
class Mirror : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(Mirror, Types);

TYPED_TEST(Mirror, MatchesRule)
{
    auto rng = kt::rngForTest();
    for (int li = 0; li < 4; ++li) checkLayout<TypeParam>(li, rng);
}

// In place: null, size, flip.  Out of place, the same image and step with a flip other
// than 0 and 1 goes to the in-place form first; otherwise null, size, flip.
TYPED_TEST(Mirror, CheckOrderAndNothingWritten)
{
    using T = TypeParam;
    kt::Guarded<T> a(5, 3, 4), b(5, 3, 4);
    a.fillBytes(0x11), b.fillBytes(0x22);
    const auto beforeA = a.snapshot(), beforeB = b.snapshot();
    for (int li = 0; li < 4; ++li) {
        const Fn<T> fn = Forms<T>::r[li];
        const FnI<T> fnI = Forms<T>::ir[li];
        EXPECT_EQ(fnI(nullptr, a.step(), {0, 0}, 3), kroStsNullPointerErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {0, 3}, 3), kroStsBadSizeErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {5, 0}, 3), kroStsBadSizeErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {5, 3}, 3), kroStsBadFlipErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {5, 3}, -1), kroStsBadFlipErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), a.ptr(), a.step(), {5, 3}, 7), kroStsBadFlipErr);
        EXPECT_EQ(fn(nullptr, 0, nullptr, 0, {0, 0}, 7), kroStsNullPointerErr);
        EXPECT_EQ(fn(nullptr, a.step(), b.ptr(), b.step(), {0, 3}, 9), kroStsNullPointerErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), nullptr, b.step(), {5, 3}, 0), kroStsNullPointerErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), b.ptr(), b.step(), {0, 3}, 9), kroStsBadSizeErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), b.ptr(), b.step(), {5, 3}, 3), kroStsBadFlipErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), b.ptr(), b.step(), {5, 3}, -2), kroStsBadFlipErr);
    }
    EXPECT_TRUE(a.unchangedSince(beforeA));
    EXPECT_TRUE(b.unchangedSince(beforeB));
}

// An image of more bytes than the biggest cache takes the streaming path; the result is
// the same.
TEST(MirrorLarge, BeyondTheCache)
{
    int cache = 0;
    if (kroGetMaxCacheSizeB(&cache) != kroStsOk || cache <= 0) GTEST_SKIP() << "no cache size";
    auto rng = kt::rngForTest();
    for (int c : {1, 3}) {
        const int w = 1021, h = cache / (2 * w * c) + 3;
        std::vector<Kro8u> src(std::size_t(w) * c * h);
        for (auto& v : src) v = Kro8u(rng());
        // Streaming needs destination rows on 16 bytes: the vector's block (16-byte aligned
        // from the C library) and a step rounded up to 16.
        const int step = w * c, dstStep = (step + 15) / 16 * 16;
        std::vector<Kro8u> out(std::size_t(dstStep) * h);
        for (int flip = 0; flip < 3; ++flip) {
            Kro8u* o = out.data();
            if (reinterpret_cast<std::uintptr_t>(o) % 16) GTEST_SKIP() << "unaligned vector storage";
            const Flip f{flip, w, h};
            const KroStatus st = c == 1 ? kroiMirror_8u_C1R(src.data(), step, o, dstStep, {w, h}, flip)
                                        : kroiMirror_8u_C3R(src.data(), step, o, dstStep, {w, h}, flip);
            ASSERT_EQ(st, kroStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int ch = 0; ch < c; ++ch)
                        ASSERT_EQ(o[std::size_t(y) * dstStep + x * c + ch], src[std::size_t(f.sy(y)) * step + f.sx(x) * c + ch])
                            << "flip " << flip << " at " << x << "," << y;
        }
    }
}

}  // namespace
