// Arithmetic with constants against its rule: every integer member at every scale factor from
// -40 to 40, past every fill threshold, in place and out of place between guard pages, AC4
// alpha untouched; a few worked values.
#include <climits>
#include "arith/const_members.hpp"

namespace const_test {
namespace {

// -40..40, and the ends of int, where negating or shifting by the factor would overflow.
std::vector<int> scaleFactors()
{
    std::vector<int> s{INT_MIN, INT_MIN + 1, -64, -63, 63, 64, INT_MAX - 1, INT_MAX};
    for (int k = -40; k <= 40; ++k) s.push_back(k);
    return s;
}

template <class R, class T, std::size_t N>
void everyScaleFactor(const CMember<T, int> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members)
        for (int s : scaleFactors()) {
            SCOPED_TRACE("scale factor " + std::to_string(s));
            T k[4];
            drawConstants(rng, s % 2 != 0, kDivides<R>, k);
            sweepConst(m, k, [&](T v, int c) { return R::f(v, k[c], s); }, rng, !kDivides<R>, {3, 33}, s);
        }
}

TEST(ArithcConst, EveryScaleFactorMatchesRule)
{
    everyScaleFactor<AddR>(kAddC8u), everyScaleFactor<AddR>(kAddC16u), everyScaleFactor<AddR>(kAddC16s);
    everyScaleFactor<SubR>(kSubC8u), everyScaleFactor<SubR>(kSubC16u), everyScaleFactor<SubR>(kSubC16s);
    everyScaleFactor<MulR>(kMulC8u), everyScaleFactor<MulR>(kMulC16u), everyScaleFactor<MulR>(kMulC16s);
    everyScaleFactor<DivR>(kDivC8u), everyScaleFactor<DivR>(kDivC16u), everyScaleFactor<DivR>(kDivC16s);
}

TEST(ArithcConst, KnownValues)
{
    Kro8u a[4] = {3, 10, 200, 0};
    ASSERT_EQ(kroiSubC_8u_C1IRSfs(10, a, 4, {4, 1}, 0), kroStsOk);
    EXPECT_EQ(a[0], 0);
    EXPECT_EQ(a[2], 190);
    Kro8u b[2] = {200, 9};
    ASSERT_EQ(kroiDivC_8u_C1IRSfs(3, b, 2, {2, 1}, 0), kroStsOk);
    EXPECT_EQ(b[0], 67);
    EXPECT_EQ(b[1], 3);
}

}  // namespace
}  // namespace const_test
