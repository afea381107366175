// kroiTranspose: every type and layout against the rule on odd, non-square sizes that cross
// the tiles and register blocks, in place against out of place, and the check order with
// the hand-over of the same image to the in-place form.
#include <gtest/gtest.h>

#include <algorithm>

#include <utility>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using Fn = KroStatus (*)(const T*, int, T*, int, KroiSize);
template <class T>
using FnI = KroStatus (*)(T*, int, KroiSize);

template <class T>
struct Forms;
template <>
struct Forms<Kro8u> {
    static constexpr Fn<Kro8u> r[3] = {kroiTranspose_8u_C1R, kroiTranspose_8u_C3R, kroiTranspose_8u_C4R};
    static constexpr FnI<Kro8u> ir[3] = {kroiTranspose_8u_C1IR, kroiTranspose_8u_C3IR, kroiTranspose_8u_C4IR};
};
template <>
struct Forms<Kro16u> {
    static constexpr Fn<Kro16u> r[3] = {kroiTranspose_16u_C1R, kroiTranspose_16u_C3R, kroiTranspose_16u_C4R};
    static constexpr FnI<Kro16u> ir[3] = {kroiTranspose_16u_C1IR, kroiTranspose_16u_C3IR, kroiTranspose_16u_C4IR};
};
template <>
struct Forms<Kro16s> {
    static constexpr Fn<Kro16s> r[3] = {kroiTranspose_16s_C1R, kroiTranspose_16s_C3R, kroiTranspose_16s_C4R};
    static constexpr FnI<Kro16s> ir[3] = {kroiTranspose_16s_C1IR, kroiTranspose_16s_C3IR, kroiTranspose_16s_C4IR};
};
template <>
struct Forms<Kro32s> {
    static constexpr Fn<Kro32s> r[3] = {kroiTranspose_32s_C1R, kroiTranspose_32s_C3R, kroiTranspose_32s_C4R};
    static constexpr FnI<Kro32s> ir[3] = {kroiTranspose_32s_C1IR, kroiTranspose_32s_C3IR, kroiTranspose_32s_C4IR};
};
template <>
struct Forms<Kro32f> {
    static constexpr Fn<Kro32f> r[3] = {kroiTranspose_32f_C1R, kroiTranspose_32f_C3R, kroiTranspose_32f_C4R};
    static constexpr FnI<Kro32f> ir[3] = {kroiTranspose_32f_C1IR, kroiTranspose_32f_C3IR, kroiTranspose_32f_C4IR};
};

const int kChannels[3] = {1, 3, 4};

// Source w x h, destination h x w.
template <class T>
void checkOutOfPlace(Fn<T> fn, int c, kt::Rng& rng)
{
    const KroiSize sizes[] = {{1, 1}, {3, 2}, {2, 3}, {17, 5}, {19, 33}, {70, 35}, {33, 131}};
    for (KroiSize s : sizes)
        for (int pl = 0; pl < lt::kPlacements; ++pl) {
            kt::Guarded<T> src(lt::placed(s.width, s.height, c, pl)), dst(lt::placed(s.height, s.width, c, 2 - pl));
            kt::fillRandom(src, rng);
            dst.fillBytes(0xC3);
            const auto before = dst.snapshot();
            ASSERT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), s), kroStsOk);
            ASSERT_IMAGE_EQ(dst, [&](int x, int y, int ch) { return src.at(y, x, ch); })
                << s.width << "x" << s.height << " placement " << pl;
            EXPECT_TRUE(dst.restUnchangedSince(before, c));
        }
}

template <class T>
void checkInPlace(FnI<T> fnI, Fn<T> fn, int c, kt::Rng& rng)
{
    for (int n : {1, 2, 5, 16, 33, 70, 131})
        for (int pl = 0; pl < lt::kPlacements; ++pl) {
            kt::Guarded<T> img(lt::placed(n, n, c, pl)), twin(lt::placed(n, n, c, pl));
            kt::fillRandom(img, rng);
            img.forEach([&](int x, int y, int ch, T& e) { twin.at(x, y, ch) = e; });
            const lt::Elements<T> s(img);
            ASSERT_EQ(fnI(img.ptr(), img.step(), {n, n}), kroStsOk);
            ASSERT_IMAGE_EQ(img, [&](int x, int y, int ch) { return s(y, x, ch); }) << n;
            // The out-of-place form on the same image and step is the in-place one.
            ASSERT_EQ(fn(twin.ptr(), twin.step(), twin.ptr(), twin.step(), {n, n}), kroStsOk);
            ASSERT_IMAGE_EQ(twin, std::as_const(img));
        }
    // Any other shape, in memory that holds both the w x h source and the h x w result at
    // one step: the result's elements transposed, every other element as it was.
    for (KroiSize s : {KroiSize{3, 2}, KroiSize{2, 3}, KroiSize{17, 5}, KroiSize{5, 17}, KroiSize{70, 35},
                       KroiSize{1, 9}, KroiSize{131, 2}})
        for (int pl = 0; pl < lt::kPlacements; ++pl) {
            const int n = std::max(s.width, s.height);
            kt::Guarded<T> img(lt::placed(n, n, c, pl)), twin(lt::placed(n, n, c, pl));
            kt::fillRandom(img, rng);
            img.forEach([&](int x, int y, int ch, T& e) { twin.at(x, y, ch) = e; });
            const lt::Elements<T> before(img);
            const auto want = [&](int x, int y, int ch) { return x < s.height && y < s.width ? before(y, x, ch) : before(x, y, ch); };
            ASSERT_EQ(fnI(img.ptr(), img.step(), s), kroStsOk);
            ASSERT_IMAGE_EQ(img, want) << s.width << "x" << s.height << " placement " << pl;
            ASSERT_EQ(fn(twin.ptr(), twin.step(), twin.ptr(), twin.step(), s), kroStsOk);
            ASSERT_IMAGE_EQ(twin, want);
        }
}

template <class T>
class Transpose : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(Transpose, Types);

TYPED_TEST(Transpose, MatchesRule)
{
    auto rng = kt::rngForTest();
    for (int i = 0; i < 3; ++i) {
        checkOutOfPlace<TypeParam>(Forms<TypeParam>::r[i], kChannels[i], rng);
        checkInPlace<TypeParam>(Forms<TypeParam>::ir[i], Forms<TypeParam>::r[i], kChannels[i], rng);
    }
}

TEST(Transpose32fc, MatchesRule)
{
    auto rng = kt::rngForTest();
    for (KroiSize s : {KroiSize{1, 1}, KroiSize{5, 3}, KroiSize{37, 70}}) {
        kt::Guarded<Kro32fc> src(lt::placed(s.width, s.height, 1, 1)), dst(s.height, s.width);
        src.forEach([&](int, int, int, Kro32fc& e) { e = {kt::randomValue<float>(rng), kt::randomValue<float>(rng)}; });
        ASSERT_EQ(kroiTranspose_32fc_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), s), kroStsOk);
        for (int y = 0; y < s.width; ++y)
            for (int x = 0; x < s.height; ++x) {
                ASSERT_EQ(dst.at(x, y).re, src.at(y, x).re);
                ASSERT_EQ(dst.at(x, y).im, src.at(y, x).im);
            }
    }
    Kro32fc two[2] = {{1, 2}, {3, 4}};
    EXPECT_EQ(kroiTranspose_32fc_C1R(two, 8, two, 8, {1, 1}), kroStsOk);
    EXPECT_EQ(kroiTranspose_32fc_C1R(two, 8, two, 8, {2, 1}), kroStsOk) << "one row of two becomes two rows of one";
    EXPECT_EQ(two[1].re, 3.0f);
}

// Same image and step: the in-place form's checks, first of all (null, size).
// Otherwise null, then width, then height; steps are not checked.
TYPED_TEST(Transpose, CheckOrderAndNothingWritten)
{
    using T = TypeParam;
    kt::Guarded<T> a(6, 6, 4), b(6, 6, 4);
    a.fillBytes(0x11), b.fillBytes(0x22);
    const auto beforeA = a.snapshot(), beforeB = b.snapshot();
    for (int i = 0; i < 3; ++i) {
        const Fn<T> fn = Forms<T>::r[i];
        const FnI<T> fnI = Forms<T>::ir[i];
        EXPECT_EQ(fn(nullptr, 0, nullptr, 0, {0, 0}), kroStsNullPointerErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), a.ptr(), a.step(), {3, 0}), kroStsBadSizeErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), a.ptr(), a.step(), {0, 0}), kroStsBadSizeErr);
        EXPECT_EQ(fn(nullptr, a.step(), b.ptr(), b.step(), {0, 3}), kroStsNullPointerErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), nullptr, b.step(), {3, 3}), kroStsNullPointerErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), b.ptr(), b.step(), {0, 3}), kroStsBadSizeErr);
        EXPECT_EQ(fn(a.ptr(), a.step(), b.ptr(), b.step(), {3, -1}), kroStsBadSizeErr);
        EXPECT_EQ(fnI(nullptr, a.step(), {0, 0}), kroStsNullPointerErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {6, 0}), kroStsBadSizeErr);
        EXPECT_EQ(fnI(a.ptr(), a.step(), {-6, 5}), kroStsBadSizeErr);
    }
    EXPECT_TRUE(a.unchangedSince(beforeA));
    EXPECT_TRUE(b.unchangedSince(beforeB));
}

}  // namespace
