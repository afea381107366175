// Comparison masks: every type, layout and relation against the rule on data full of equal
// values (and, for 32f, NaN, infinities and both zeros); the tolerance forms; the check
// order, the silent success of unknown operation codes and nothing written on error.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using Fn = KroStatus (*)(const T*, int, const T*, int, Kro8u*, int, KroiSize, KroCompareOp);
template <class T>
using FnC1 = KroStatus (*)(const T*, int, T, Kro8u*, int, KroiSize, KroCompareOp);
template <class T>
using FnC = KroStatus (*)(const T*, int, const T*, Kro8u*, int, KroiSize, KroCompareOp);

template <class T>
struct Forms;
template <>
struct Forms<Kro8u> {
    static constexpr Fn<Kro8u> img[4] = {kroiCompare_8u_C1R, kroiCompare_8u_C3R, kroiCompare_8u_C4R, kroiCompare_8u_AC4R};
    static constexpr FnC1<Kro8u> c1 = kroiCompareC_8u_C1R;
    static constexpr FnC<Kro8u> cn[3] = {kroiCompareC_8u_C3R, kroiCompareC_8u_C4R, kroiCompareC_8u_AC4R};
};
template <>
struct Forms<Kro16u> {
    static constexpr Fn<Kro16u> img[4] = {kroiCompare_16u_C1R, kroiCompare_16u_C3R, kroiCompare_16u_C4R, kroiCompare_16u_AC4R};
    static constexpr FnC1<Kro16u> c1 = kroiCompareC_16u_C1R;
    static constexpr FnC<Kro16u> cn[3] = {kroiCompareC_16u_C3R, kroiCompareC_16u_C4R, kroiCompareC_16u_AC4R};
};
template <>
struct Forms<Kro16s> {
    static constexpr Fn<Kro16s> img[4] = {kroiCompare_16s_C1R, kroiCompare_16s_C3R, kroiCompare_16s_C4R, kroiCompare_16s_AC4R};
    static constexpr FnC1<Kro16s> c1 = kroiCompareC_16s_C1R;
    static constexpr FnC<Kro16s> cn[3] = {kroiCompareC_16s_C3R, kroiCompareC_16s_C4R, kroiCompareC_16s_AC4R};
};
template <>
struct Forms<Kro32f> {
    static constexpr Fn<Kro32f> img[4] = {kroiCompare_32f_C1R, kroiCompare_32f_C3R, kroiCompare_32f_C4R, kroiCompare_32f_AC4R};
    static constexpr FnC1<Kro32f> c1 = kroiCompareC_32f_C1R;
    static constexpr FnC<Kro32f> cn[3] = {kroiCompareC_32f_C3R, kroiCompareC_32f_C4R, kroiCompareC_32f_AC4R};
};

const int kChannels[4] = {1, 3, 4, 4};
const int kCompared[4] = {1, 3, 4, 3};

// Few distinct values, so that every relation meets equal pairs often.
template <class T>
T draw(kt::Rng& rng)
{
    if constexpr (std::is_floating_point_v<T>) {
        static const T v[] = {T(-1), T(0), -T(0), T(1), T(2.5), std::numeric_limits<T>::infinity(),
                              -std::numeric_limits<T>::infinity(), std::numeric_limits<T>::quiet_NaN()};
        return v[kt::uniform<int>(rng, 0, 7)];
    } else {
        static const T v[] = {std::numeric_limits<T>::lowest(), T(0), T(1), T(2), std::numeric_limits<T>::max()};
        return v[kt::uniform<int>(rng, 0, 4)];
    }
}

template <class T>
bool holds(int op, T a, T b)
{
    switch (op) {
    case kroCompareLess: return a < b;
    case kroCompareLessEq: return a <= b;
    case kroCompareEq: return a == b;
    case kroCompareGreaterEq: return a >= b;
    default: return a > b;
    }
}

const int kWidths[] = {1, 15, 16, 17, 33, 300};

template <class T>
void fill(kt::Guarded<T>& g, kt::Rng& rng)
{
    g.forEach([&](int, int, int, T& e) { e = draw<T>(rng); });
}

// Runs `call(src1, src2, dst)` over widths and placements (steps must be positive here:
// placements 0 and 1) and checks the mask against pixel(x, y) -> bool.
template <class T, class Call, class Rule>
void sweep(int c, kt::Rng& rng, Call&& call, Rule&& rule)
{
    for (int w : kWidths)
        for (int pl = 0; pl < 2; ++pl) {
            kt::Guarded<T> a(lt::placed(w, 3, c, pl)), b(lt::placed(w, 3, c, 1 - pl));
            kt::Guarded<Kro8u> d(lt::placed(w, 3, 1, pl));
            fill(a, rng), fill(b, rng);
            d.fillBytes(0x5A);
            const auto before = d.snapshot();
            ASSERT_EQ(call(a, b, d), kroStsOk);
            ASSERT_IMAGE_EQ(d, [&](int x, int y, int) { return rule(a, b, x, y) ? 255 : 0; }) << "w " << w;
            EXPECT_TRUE(d.restUnchangedSince(before, 1));
        }
}

template <class T>
class Compare : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32f>;
TYPED_TEST_SUITE(Compare, Types);

TYPED_TEST(Compare, TwoImagesMatchRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (int li = 0; li < 4; ++li)
        for (int op = 0; op < 5; ++op)
            sweep<T>(kChannels[li], rng,
                     [&](auto& a, auto& b, auto& d) {
                         return Forms<T>::img[li](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(),
                                                  {a.width(), a.height()}, op);
                     },
                     [&](auto& a, auto& b, int x, int y) {
                         bool all = true;
                         for (int ch = 0; ch < kCompared[li]; ++ch) all = all && holds(op, a.at(x, y, ch), b.at(x, y, ch));
                         return all;
                     });
}

TYPED_TEST(Compare, ConstantMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (int li = 0; li < 4; ++li)
        for (int op = 0; op < 5; ++op) {
            T k[4] = {draw<T>(rng), draw<T>(rng), draw<T>(rng), draw<T>(rng)};
            if (li == 0 && op == 2) k[0] = T(1);  // a value the data holds, not NaN
            sweep<T>(kChannels[li], rng,
                     [&](auto& a, auto&, auto& d) {
                         const KroiSize roi{a.width(), a.height()};
                         return li == 0 ? Forms<T>::c1(a.ptr(), a.step(), k[0], d.ptr(), d.step(), roi, op)
                                        : Forms<T>::cn[li - 1](a.ptr(), a.step(), k, d.ptr(), d.step(), roi, op);
                     },
                     [&](auto& a, auto&, int x, int y) {
                         bool all = true;
                         for (int ch = 0; ch < kCompared[li]; ++ch) all = all && holds(op, a.at(x, y, ch), k[ch]);
                         return all;
                     });
        }
}

// Pointers (sources, constant, destination), then steps below 1, then size; an unknown
// operation code then returns 0 without writing.
TYPED_TEST(Compare, CheckOrderAndUnknownCodes)
{
    using T = TypeParam;
    kt::Guarded<T> a(4, 2, 4), b(4, 2, 4);
    kt::Guarded<Kro8u> d(4, 2);
    d.fillBytes(0x5A);
    const auto before = d.snapshot();
    const T k[4] = {};
    const int s = a.step();
    for (int li = 0; li < 4; ++li) {
        const Fn<T> f = Forms<T>::img[li];
        EXPECT_EQ(f(a.ptr(), 0, nullptr, s, d.ptr(), 4, {0, 0}, 9), kroStsNullPointerErr);
        EXPECT_EQ(f(a.ptr(), s, b.ptr(), s, nullptr, 4, {4, 2}, 0), kroStsNullPointerErr);
        EXPECT_EQ(f(a.ptr(), s, b.ptr(), 0, d.ptr(), 4, {0, 0}, 9), kroStsBadStepErr);
        EXPECT_EQ(f(a.ptr(), s, b.ptr(), s, d.ptr(), -4, {4, 2}, 9), kroStsBadStepErr);
        EXPECT_EQ(f(a.ptr(), s, b.ptr(), s, d.ptr(), 4, {0, 2}, 9), kroStsBadSizeErr);
        EXPECT_EQ(f(a.ptr(), s, b.ptr(), s, d.ptr(), 4, {4, 0}, 9), kroStsBadSizeErr);
        for (int op : {5, 7, -1, std::numeric_limits<int>::min()})
            EXPECT_EQ(f(a.ptr(), s, b.ptr(), s, d.ptr(), 4, {4, 2}, op), kroStsOk);
        if (li == 0) {
            EXPECT_EQ(Forms<T>::c1(nullptr, s, T(0), d.ptr(), 4, {0, 0}, 9), kroStsNullPointerErr);
            EXPECT_EQ(Forms<T>::c1(a.ptr(), 0, T(0), d.ptr(), 4, {0, 0}, 9), kroStsBadStepErr);
            EXPECT_EQ(Forms<T>::c1(a.ptr(), s, T(0), d.ptr(), 4, {0, 2}, 9), kroStsBadSizeErr);
            EXPECT_EQ(Forms<T>::c1(a.ptr(), s, T(0), d.ptr(), 4, {4, 2}, -3), kroStsOk);
        } else {
            const FnC<T> fc = Forms<T>::cn[li - 1];
            EXPECT_EQ(fc(a.ptr(), 0, nullptr, d.ptr(), 4, {0, 0}, 9), kroStsNullPointerErr);
            EXPECT_EQ(fc(a.ptr(), s, k, d.ptr(), 0, {0, 0}, 9), kroStsBadStepErr);
            EXPECT_EQ(fc(a.ptr(), s, k, d.ptr(), 4, {-1, 2}, 9), kroStsBadSizeErr);
            EXPECT_EQ(fc(a.ptr(), s, k, d.ptr(), 4, {4, 2}, 5), kroStsOk);
        }
    }
    EXPECT_TRUE(d.unchangedSince(before));
}

// |s1 - s2| <= eps in every compared channel, the difference in single precision.
TEST(CompareEqualEps, MatchesRuleAndChecks)
{
    using EpsFn = KroStatus (*)(const Kro32f*, int, const Kro32f*, int, Kro8u*, int, KroiSize, Kro32f);
    using EpsFnC = KroStatus (*)(const Kro32f*, int, const Kro32f*, Kro8u*, int, KroiSize, Kro32f);
    const EpsFn img[4] = {kroiCompareEqualEps_32f_C1R, kroiCompareEqualEps_32f_C3R, kroiCompareEqualEps_32f_C4R,
                          kroiCompareEqualEps_32f_AC4R};
    const EpsFnC cn[3] = {kroiCompareEqualEpsC_32f_C3R, kroiCompareEqualEpsC_32f_C4R, kroiCompareEqualEpsC_32f_AC4R};
    auto rng = kt::rngForTest();
    auto near = [](float a, float b, float eps) { return std::fabs(a - b) <= eps; };
    for (float eps : {0.f, 1.f, 1.5f, std::numeric_limits<float>::infinity()})
        for (int li = 0; li < 4; ++li) {
            const int wc = kCompared[li];
            sweep<Kro32f>(kChannels[li], rng,
                          [&](auto& a, auto& b, auto& d) {
                              return img[li](a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(),
                                             {a.width(), a.height()}, eps);
                          },
                          [&](auto& a, auto& b, int x, int y) {
                              bool all = true;
                              for (int ch = 0; ch < wc; ++ch) all = all && near(a.at(x, y, ch), b.at(x, y, ch), eps);
                              return all;
                          });
            const float k[4] = {1.f, -0.f, 2.5f, 0.f};
            sweep<Kro32f>(kChannels[li], rng,
                          [&](auto& a, auto&, auto& d) {
                              const KroiSize roi{a.width(), a.height()};
                              return li == 0 ? kroiCompareEqualEpsC_32f_C1R(a.ptr(), a.step(), k[0], d.ptr(), d.step(), roi, eps)
                                             : cn[li - 1](a.ptr(), a.step(), k, d.ptr(), d.step(), roi, eps);
                          },
                          [&](auto& a, auto&, int x, int y) {
                              bool all = true;
                              for (int ch = 0; ch < wc; ++ch) all = all && near(a.at(x, y, ch), k[ch], eps);
                              return all;
                          });
        }
    float v = 1.f;
    Kro8u m = 7;
    EXPECT_EQ(kroiCompareEqualEps_32f_C1R(&v, 4, nullptr, 4, &m, 1, {0, 0}, -1.f), kroStsNullPointerErr);
    EXPECT_EQ(kroiCompareEqualEps_32f_C1R(&v, 4, &v, 0, &m, 1, {0, 0}, -1.f), kroStsBadStepErr);
    EXPECT_EQ(kroiCompareEqualEps_32f_C1R(&v, 4, &v, 4, &m, 1, {0, 1}, -1.f), kroStsBadSizeErr);
    EXPECT_EQ(kroiCompareEqualEps_32f_C1R(&v, 4, &v, 4, &m, 1, {1, 1}, -1.f), kroStsNegativeToleranceErr);
    EXPECT_EQ(kroiCompareEqualEpsC_32f_C1R(&v, 4, v, &m, 1, {1, 1}, -0.5f), kroStsNegativeToleranceErr);
    EXPECT_EQ(kroiCompareEqualEpsC_32f_C3R(&v, 4, nullptr, &m, 1, {1, 1}, -0.5f), kroStsNullPointerErr);
    EXPECT_EQ(m, 7);
    EXPECT_EQ(kroiCompareEqualEpsC_32f_C1R(&v, 4, -v, &m, 1, {1, 1}, 2.f), kroStsOk);
    EXPECT_EQ(m, 255);
}

// A one-channel mask of an image beyond the biggest cache streams out; the result is the
// same.
TEST(CompareLarge, BeyondTheCache)
{
    int cache = 0;
    if (kroGetMaxCacheSizeB(&cache) != kroStsOk || cache <= 0) GTEST_SKIP() << "no cache size";
    auto rng = kt::rngForTest();
    const int w = 1024, h = cache / (3 * w) + 3;  // two sources and the mask exceed the cache
    std::vector<Kro8u> a(std::size_t(w) * h), b(a.size()), m(a.size());
    for (std::size_t i = 0; i < a.size(); ++i) a[i] = Kro8u(rng() & 7), b[i] = Kro8u(rng() & 7);
    ASSERT_EQ(kroiCompare_8u_C1R(a.data(), w, b.data(), w, m.data(), w, {w, h}, kroCompareGreater), kroStsOk);
    for (std::size_t i = 0; i < a.size(); ++i) ASSERT_EQ(m[i], a[i] > b[i] ? 255 : 0) << i;
    ASSERT_EQ(kroiCompareC_8u_C1R(a.data(), w, 3, m.data(), w, {w, h}, kroCompareLessEq), kroStsOk);
    for (std::size_t i = 0; i < a.size(); ++i) ASSERT_EQ(m[i], a[i] <= 3 ? 255 : 0) << i;
}

}  // namespace
