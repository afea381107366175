// The _L forms of arithmetic with constants, on both of their paths.
#include <span>

#include "arith/const_members.hpp"

namespace const_test {
namespace {

// The _L forms: narrowed to the 32-bit form while steps and size fit, and otherwise row by
// row through the one-row operation, which checks its own pointers, length and divisor.
// One copy per element type: the rule comes in as a function.
template <class T, class... More>
void longFormsOf(std::span<const CMember<T, More...>> members, T (*rule)(T, T, int), bool divides, More... more)
{
    kt::Rng rng = kt::rngForTest();
    const int s = (more + ... + 0);
    T k[4];
    drawConstants(rng, true, true, k);
    const auto want = [&](T v, int c) { return rule(v, k[c], s); };
    for (const auto& m : members) {
        SCOPED_TRACE(m.name);
        sweepUnary<T>(
            m.name, m.channels, m.written,
            [&](const T* p, int ps, T* d, int ds, KroiSize r) { return m.rl(p, ps, k, d, ds, {r.width, r.height}, more...); },
            [&](T* d, int ds, KroiSize r) { return m.il(k, d, ds, {r.width, r.height}, more...); }, want, rng,
            anyValue<T>(), false, kroStsOk, {1, 17});
        // A step of 2^31 does not narrow: with one row only row 0 is touched.
        constexpr int64_t kFar = int64_t{1} << 31;
        for (int w : {1, 7, 40}) {
            kt::Guarded<T> src(w, 1, m.channels), dst(w, 1, m.channels);
            kt::fillRandom(src, rng);
            kt::fillRandom(dst, rng);
            const auto before = dst.snapshot();
            ASSERT_EQ(m.rl(src.ptr(), kFar, k, dst.ptr(), kFar, {w, 1}, more...), kroStsOk);
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written));
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c < m.written ? want(src.at(x, y, c), c) : dst.at(x, y, c); });
            ASSERT_EQ(m.il(k, src.ptr(), kFar, {w, 1}, more...), kroStsOk);
            EXPECT_IMAGE_EQ(src, [&](int x, int y, int c) { return c < m.written ? dst.at(x, y, c) : src.at(x, y, c); });
        }
        kt::Guarded<T> img(4, 1, m.channels);
        const auto before = img.snapshot();
        EXPECT_EQ(m.rl(nullptr, kFar, k, nullptr, kFar, {4, 0}, more...), kroStsOk) << "no row, no check";
        EXPECT_EQ(m.rl(nullptr, kFar, k, img.ptr(), kFar, {4, 1}, more...), kroStsNullPointerErr);
        EXPECT_EQ(m.rl(img.ptr(), kFar, k, img.ptr(), kFar, {0, 1}, more...), kroStsBadSizeErr);
        EXPECT_EQ(m.rl(img.ptr(), 64, k, img.ptr(), 64, {0, 1}, more...), kroStsBadSizeErr) << "narrowed";
        // Negative widths whose low 32 bits are positive, zero or negative: each reaches the
        // row function as a length below 1, whatever the steps.
        for (int64_t w : {-(int64_t{1} << 32) + 1, -(int64_t{1} << 32), -(int64_t{1} << 32) - 1,
                          -(int64_t{1} << 31) + 1, -(int64_t{1} << 31), -(int64_t{1} << 31) - 1, INT64_MIN,
                          int64_t{-3639531663080023339}})
            for (int64_t step : {int64_t{64}, kFar})
                for (int64_t h : {1, 2}) {
                    EXPECT_EQ(m.rl(img.ptr(), step, k, img.ptr(), step, {w, h}, more...), kroStsBadSizeErr) << w;
                    EXPECT_EQ(m.il(k, img.ptr(), step, {w, h}, more...), kroStsBadSizeErr) << w;
                }
        if (divides) {
            const T zero[4] = {};
            EXPECT_EQ(m.rl(img.ptr(), kFar, zero, img.ptr(), kFar, {4, 1}, more...), kroStsZeroDivisorErr);
            EXPECT_EQ(m.il(zero, img.ptr(), kFar, {4, 1}, more...), kroStsZeroDivisorErr);
        }
        EXPECT_TRUE(img.unchangedSince(before));
    }
}

template <class R, class T, class... More, std::size_t N>
void longForms(const CMember<T, More...> (&members)[N], More... more)
{
    longFormsOf(std::span<const CMember<T, More...>>(members), +[](T v, T k, int s) -> T { return R::f(v, k, s); },
                kDivides<R>, more...);
}

TEST(ArithcConst, LongFormsMatchRule)
{
    for (int s : {0, 2, -3}) {
        longForms<AddR>(kAddC8u, s), longForms<AddR>(kAddC16u, s), longForms<AddR>(kAddC16s, s);
        longForms<SubR>(kSubC8u, s), longForms<SubR>(kSubC16u, s), longForms<SubR>(kSubC16s, s);
        longForms<MulR>(kMulC8u, s), longForms<MulR>(kMulC16u, s), longForms<MulR>(kMulC16s, s);
        longForms<DivR>(kDivC8u, s), longForms<DivR>(kDivC16u, s), longForms<DivR>(kDivC16s, s);
    }
    longForms<AddR>(kAddC32f), longForms<SubR>(kSubC32f), longForms<MulR>(kMulC32f), longForms<DivR>(kDivC32f);
}

}  // namespace
}  // namespace const_test
