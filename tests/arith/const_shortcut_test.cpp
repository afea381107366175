// The copies and fills that arithmetic with constants takes instead of computing give the
// rule's result; 32f against IEEE.
#include "arith/const_members.hpp"

namespace const_test {
namespace {

// The copies and fills taken before any arithmetic give the rule's result, AC4 alpha kept;
// a mixed constant that is not an identity takes the arithmetic.
template <class R, class T, std::size_t N>
void shortcuts(const CMember<T, int> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    const T sets[][4] = {{0, 0, 0, 0}, {1, 1, 1, 1}, {1, 1, 0, 1}, {0, 1, 0, 0}};
    for (const auto& m : members)
        for (const auto& k : sets) {
            if (kDivides<R> && k[0] * k[1] * k[2] * (m.channels == 4 && m.written == 4 ? k[3] : 1) == 0) continue;
            for (int s : {-3, 0, 40})
                sweepConst(m, k, [&](T v, int c) { return R::f(v, k[c], s); }, rng, !kDivides<R>, {1, 17, 33}, s);
        }
}

TEST(ArithcConst, ShortcutsMatchRule)
{
    shortcuts<AddR>(kAddC8u), shortcuts<AddR>(kAddC16u), shortcuts<AddR>(kAddC16s);
    shortcuts<SubR>(kSubC8u), shortcuts<SubR>(kSubC16u), shortcuts<SubR>(kSubC16s);
    shortcuts<MulR>(kMulC8u), shortcuts<MulR>(kMulC16u), shortcuts<MulR>(kMulC16s);
    shortcuts<DivR>(kDivC8u), shortcuts<DivR>(kDivC16u), shortcuts<DivR>(kDivC16s);
}

template <class R, std::size_t N>
void floatMatchesRule(const CMember<Kro32f> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    const kt::FloatMix mix{-1e3, 1e3, 0.2};
    for (const auto& m : members)
        for (int round = 0; round < 6; ++round) {
            Kro32f k[4];
            for (Kro32f& v : k) {
                v = kt::randomValue<Kro32f>(rng, mix);
                if (kDivides<R> && v == 0) v = 0.5f;
            }
            if (round == 0 && !kDivides<R>) k[0] = 0.0f, k[1] = 1.0f, k[2] = -0.0f; // no shortcut for floats
            sweepUnary<Kro32f>(
                m.name, m.channels, m.written,
                [&](const Kro32f* s, int ss, Kro32f* d, int sd, KroiSize r) { return m.r(s, ss, k, d, sd, r); },
                [&](Kro32f* sd, int sds, KroiSize r) { return m.i(k, sd, sds, r); },
                [&](Kro32f v, int c) { return R::f(v, k[c], 0); }, rng,
                [&](kt::Rng& r) { return kt::randomValue<Kro32f>(r, mix); }, !kDivides<R>);
        }
}

TEST(ArithcConst, FloatMatchesIeee)
{
    floatMatchesRule<AddR>(kAddC32f), floatMatchesRule<SubR>(kSubC32f);
    floatMatchesRule<MulR>(kMulC32f), floatMatchesRule<DivR>(kDivC32f);
}

}  // namespace
}  // namespace const_test
