// Bitwise logic against its rule: And, Or, Xor of two images and with constants, Not and
// Complement, every member on random images between guard pages, in place and out of place,
// AC4 alpha and row padding untouched; the check order; complement's round trip.
#include <climits>
#include <cstdint>
#include <limits>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"

namespace {

using namespace kt::pix;

const BinMember<Kro8u> kAnd8u[] = {
    {"kroiAnd_8u_C1R", 1, 1, kroiAnd_8u_C1R, kroiAnd_8u_C1IR},
    {"kroiAnd_8u_C3R", 3, 3, kroiAnd_8u_C3R, kroiAnd_8u_C3IR},
    {"kroiAnd_8u_C4R", 4, 4, kroiAnd_8u_C4R, kroiAnd_8u_C4IR},
    {"kroiAnd_8u_AC4R", 4, 3, kroiAnd_8u_AC4R, kroiAnd_8u_AC4IR},
};
const BinMember<Kro16u> kAnd16u[] = {
    {"kroiAnd_16u_C1R", 1, 1, kroiAnd_16u_C1R, kroiAnd_16u_C1IR},
    {"kroiAnd_16u_C3R", 3, 3, kroiAnd_16u_C3R, kroiAnd_16u_C3IR},
    {"kroiAnd_16u_C4R", 4, 4, kroiAnd_16u_C4R, kroiAnd_16u_C4IR},
    {"kroiAnd_16u_AC4R", 4, 3, kroiAnd_16u_AC4R, kroiAnd_16u_AC4IR},
};
const BinMember<Kro32s> kAnd32s[] = {
    {"kroiAnd_32s_C1R", 1, 1, kroiAnd_32s_C1R, kroiAnd_32s_C1IR},
    {"kroiAnd_32s_C3R", 3, 3, kroiAnd_32s_C3R, kroiAnd_32s_C3IR},
    {"kroiAnd_32s_C4R", 4, 4, kroiAnd_32s_C4R, kroiAnd_32s_C4IR},
    {"kroiAnd_32s_AC4R", 4, 3, kroiAnd_32s_AC4R, kroiAnd_32s_AC4IR},
};
const BinMember<Kro8u> kOr8u[] = {
    {"kroiOr_8u_C1R", 1, 1, kroiOr_8u_C1R, kroiOr_8u_C1IR},
    {"kroiOr_8u_C3R", 3, 3, kroiOr_8u_C3R, kroiOr_8u_C3IR},
    {"kroiOr_8u_C4R", 4, 4, kroiOr_8u_C4R, kroiOr_8u_C4IR},
    {"kroiOr_8u_AC4R", 4, 3, kroiOr_8u_AC4R, kroiOr_8u_AC4IR},
};
const BinMember<Kro16u> kOr16u[] = {
    {"kroiOr_16u_C1R", 1, 1, kroiOr_16u_C1R, kroiOr_16u_C1IR},
    {"kroiOr_16u_C3R", 3, 3, kroiOr_16u_C3R, kroiOr_16u_C3IR},
    {"kroiOr_16u_C4R", 4, 4, kroiOr_16u_C4R, kroiOr_16u_C4IR},
    {"kroiOr_16u_AC4R", 4, 3, kroiOr_16u_AC4R, kroiOr_16u_AC4IR},
};
const BinMember<Kro32s> kOr32s[] = {
    {"kroiOr_32s_C1R", 1, 1, kroiOr_32s_C1R, kroiOr_32s_C1IR},
    {"kroiOr_32s_C3R", 3, 3, kroiOr_32s_C3R, kroiOr_32s_C3IR},
    {"kroiOr_32s_C4R", 4, 4, kroiOr_32s_C4R, kroiOr_32s_C4IR},
    {"kroiOr_32s_AC4R", 4, 3, kroiOr_32s_AC4R, kroiOr_32s_AC4IR},
};
const BinMember<Kro8u> kXor8u[] = {
    {"kroiXor_8u_C1R", 1, 1, kroiXor_8u_C1R, kroiXor_8u_C1IR},
    {"kroiXor_8u_C3R", 3, 3, kroiXor_8u_C3R, kroiXor_8u_C3IR},
    {"kroiXor_8u_C4R", 4, 4, kroiXor_8u_C4R, kroiXor_8u_C4IR},
    {"kroiXor_8u_AC4R", 4, 3, kroiXor_8u_AC4R, kroiXor_8u_AC4IR},
};
const BinMember<Kro16u> kXor16u[] = {
    {"kroiXor_16u_C1R", 1, 1, kroiXor_16u_C1R, kroiXor_16u_C1IR},
    {"kroiXor_16u_C3R", 3, 3, kroiXor_16u_C3R, kroiXor_16u_C3IR},
    {"kroiXor_16u_C4R", 4, 4, kroiXor_16u_C4R, kroiXor_16u_C4IR},
    {"kroiXor_16u_AC4R", 4, 3, kroiXor_16u_AC4R, kroiXor_16u_AC4IR},
};
const BinMember<Kro32s> kXor32s[] = {
    {"kroiXor_32s_C1R", 1, 1, kroiXor_32s_C1R, kroiXor_32s_C1IR},
    {"kroiXor_32s_C3R", 3, 3, kroiXor_32s_C3R, kroiXor_32s_C3IR},
    {"kroiXor_32s_C4R", 4, 4, kroiXor_32s_C4R, kroiXor_32s_C4IR},
    {"kroiXor_32s_AC4R", 4, 3, kroiXor_32s_AC4R, kroiXor_32s_AC4IR},
};
const ConstMember<Kro8u, Kro8u> kAndC8u[] = {
    {"kroiAndC_8u_C1R", 1, 1, ConstR<kroiAndC_8u_C1R>::call, ConstI<kroiAndC_8u_C1IR>::call},
    {"kroiAndC_8u_C3R", 3, 3, ConstR<kroiAndC_8u_C3R>::call, ConstI<kroiAndC_8u_C3IR>::call},
    {"kroiAndC_8u_C4R", 4, 4, ConstR<kroiAndC_8u_C4R>::call, ConstI<kroiAndC_8u_C4IR>::call},
    {"kroiAndC_8u_AC4R", 4, 3, ConstR<kroiAndC_8u_AC4R>::call, ConstI<kroiAndC_8u_AC4IR>::call},
};
const ConstMember<Kro16u, Kro16u> kAndC16u[] = {
    {"kroiAndC_16u_C1R", 1, 1, ConstR<kroiAndC_16u_C1R>::call, ConstI<kroiAndC_16u_C1IR>::call},
    {"kroiAndC_16u_C3R", 3, 3, ConstR<kroiAndC_16u_C3R>::call, ConstI<kroiAndC_16u_C3IR>::call},
    {"kroiAndC_16u_C4R", 4, 4, ConstR<kroiAndC_16u_C4R>::call, ConstI<kroiAndC_16u_C4IR>::call},
    {"kroiAndC_16u_AC4R", 4, 3, ConstR<kroiAndC_16u_AC4R>::call, ConstI<kroiAndC_16u_AC4IR>::call},
};
const ConstMember<Kro32s, Kro32s> kAndC32s[] = {
    {"kroiAndC_32s_C1R", 1, 1, ConstR<kroiAndC_32s_C1R>::call, ConstI<kroiAndC_32s_C1IR>::call},
    {"kroiAndC_32s_C3R", 3, 3, ConstR<kroiAndC_32s_C3R>::call, ConstI<kroiAndC_32s_C3IR>::call},
    {"kroiAndC_32s_C4R", 4, 4, ConstR<kroiAndC_32s_C4R>::call, ConstI<kroiAndC_32s_C4IR>::call},
    {"kroiAndC_32s_AC4R", 4, 3, ConstR<kroiAndC_32s_AC4R>::call, ConstI<kroiAndC_32s_AC4IR>::call},
};
const ConstMember<Kro8u, Kro8u> kOrC8u[] = {
    {"kroiOrC_8u_C1R", 1, 1, ConstR<kroiOrC_8u_C1R>::call, ConstI<kroiOrC_8u_C1IR>::call},
    {"kroiOrC_8u_C3R", 3, 3, ConstR<kroiOrC_8u_C3R>::call, ConstI<kroiOrC_8u_C3IR>::call},
    {"kroiOrC_8u_C4R", 4, 4, ConstR<kroiOrC_8u_C4R>::call, ConstI<kroiOrC_8u_C4IR>::call},
    {"kroiOrC_8u_AC4R", 4, 3, ConstR<kroiOrC_8u_AC4R>::call, ConstI<kroiOrC_8u_AC4IR>::call},
};
const ConstMember<Kro16u, Kro16u> kOrC16u[] = {
    {"kroiOrC_16u_C1R", 1, 1, ConstR<kroiOrC_16u_C1R>::call, ConstI<kroiOrC_16u_C1IR>::call},
    {"kroiOrC_16u_C3R", 3, 3, ConstR<kroiOrC_16u_C3R>::call, ConstI<kroiOrC_16u_C3IR>::call},
    {"kroiOrC_16u_C4R", 4, 4, ConstR<kroiOrC_16u_C4R>::call, ConstI<kroiOrC_16u_C4IR>::call},
    {"kroiOrC_16u_AC4R", 4, 3, ConstR<kroiOrC_16u_AC4R>::call, ConstI<kroiOrC_16u_AC4IR>::call},
};
const ConstMember<Kro32s, Kro32s> kOrC32s[] = {
    {"kroiOrC_32s_C1R", 1, 1, ConstR<kroiOrC_32s_C1R>::call, ConstI<kroiOrC_32s_C1IR>::call},
    {"kroiOrC_32s_C3R", 3, 3, ConstR<kroiOrC_32s_C3R>::call, ConstI<kroiOrC_32s_C3IR>::call},
    {"kroiOrC_32s_C4R", 4, 4, ConstR<kroiOrC_32s_C4R>::call, ConstI<kroiOrC_32s_C4IR>::call},
    {"kroiOrC_32s_AC4R", 4, 3, ConstR<kroiOrC_32s_AC4R>::call, ConstI<kroiOrC_32s_AC4IR>::call},
};
const ConstMember<Kro8u, Kro8u> kXorC8u[] = {
    {"kroiXorC_8u_C1R", 1, 1, ConstR<kroiXorC_8u_C1R>::call, ConstI<kroiXorC_8u_C1IR>::call},
    {"kroiXorC_8u_C3R", 3, 3, ConstR<kroiXorC_8u_C3R>::call, ConstI<kroiXorC_8u_C3IR>::call},
    {"kroiXorC_8u_C4R", 4, 4, ConstR<kroiXorC_8u_C4R>::call, ConstI<kroiXorC_8u_C4IR>::call},
    {"kroiXorC_8u_AC4R", 4, 3, ConstR<kroiXorC_8u_AC4R>::call, ConstI<kroiXorC_8u_AC4IR>::call},
};
const ConstMember<Kro16u, Kro16u> kXorC16u[] = {
    {"kroiXorC_16u_C1R", 1, 1, ConstR<kroiXorC_16u_C1R>::call, ConstI<kroiXorC_16u_C1IR>::call},
    {"kroiXorC_16u_C3R", 3, 3, ConstR<kroiXorC_16u_C3R>::call, ConstI<kroiXorC_16u_C3IR>::call},
    {"kroiXorC_16u_C4R", 4, 4, ConstR<kroiXorC_16u_C4R>::call, ConstI<kroiXorC_16u_C4IR>::call},
    {"kroiXorC_16u_AC4R", 4, 3, ConstR<kroiXorC_16u_AC4R>::call, ConstI<kroiXorC_16u_AC4IR>::call},
};
const ConstMember<Kro32s, Kro32s> kXorC32s[] = {
    {"kroiXorC_32s_C1R", 1, 1, ConstR<kroiXorC_32s_C1R>::call, ConstI<kroiXorC_32s_C1IR>::call},
    {"kroiXorC_32s_C3R", 3, 3, ConstR<kroiXorC_32s_C3R>::call, ConstI<kroiXorC_32s_C3IR>::call},
    {"kroiXorC_32s_C4R", 4, 4, ConstR<kroiXorC_32s_C4R>::call, ConstI<kroiXorC_32s_C4IR>::call},
    {"kroiXorC_32s_AC4R", 4, 3, ConstR<kroiXorC_32s_AC4R>::call, ConstI<kroiXorC_32s_AC4IR>::call},
};
const UnaryMember<Kro8u> kNot8u[] = {
    {"kroiNot_8u_C1R", 1, 1, kroiNot_8u_C1R, kroiNot_8u_C1IR},
    {"kroiNot_8u_C3R", 3, 3, kroiNot_8u_C3R, kroiNot_8u_C3IR},
    {"kroiNot_8u_C4R", 4, 4, kroiNot_8u_C4R, kroiNot_8u_C4IR},
    {"kroiNot_8u_AC4R", 4, 3, kroiNot_8u_AC4R, kroiNot_8u_AC4IR},
};
const UnaryMember<Kro8s> kComplement8s[] = {
    {"kroiComplement_8s_C1R", 1, 1, kroiComplement_8s_C1R, kroiComplement_8s_C1IR},
    {"kroiComplement_8s_C3R", 3, 3, kroiComplement_8s_C3R, kroiComplement_8s_C3IR},
    {"kroiComplement_8s_C4R", 4, 4, kroiComplement_8s_C4R, kroiComplement_8s_C4IR},
    {"kroiComplement_8s_AC4R", 4, 3, kroiComplement_8s_AC4R, kroiComplement_8s_AC4IR},
};
const UnaryMember<Kro16s> kComplement16s[] = {
    {"kroiComplement_16s_C1R", 1, 1, kroiComplement_16s_C1R, kroiComplement_16s_C1IR},
    {"kroiComplement_16s_C3R", 3, 3, kroiComplement_16s_C3R, kroiComplement_16s_C3IR},
    {"kroiComplement_16s_C4R", 4, 4, kroiComplement_16s_C4R, kroiComplement_16s_C4IR},
    {"kroiComplement_16s_AC4R", 4, 3, kroiComplement_16s_AC4R, kroiComplement_16s_AC4IR},
};
const UnaryMember<Kro32s> kComplement32s[] = {
    {"kroiComplement_32s_C1R", 1, 1, kroiComplement_32s_C1R, kroiComplement_32s_C1IR},
    {"kroiComplement_32s_C3R", 3, 3, kroiComplement_32s_C3R, kroiComplement_32s_C3IR},
    {"kroiComplement_32s_C4R", 4, 4, kroiComplement_32s_C4R, kroiComplement_32s_C4IR},
    {"kroiComplement_32s_AC4R", 4, 3, kroiComplement_32s_AC4R, kroiComplement_32s_AC4IR},
};

// The rule of each bit operation, on the element's bits.
struct And { template <class T> static T f(T a, T b) { return T(a & b); } };
struct Or { template <class T> static T f(T a, T b) { return T(a | b); } };
struct Xor { template <class T> static T f(T a, T b) { return T(a ^ b); } };

// Sign and magnitude from two's complement, and back: a negative v has magnitude -v, whose
// sign-and-magnitude bits read as two's complement are min - v.  The most negative value has
// no magnitude and stays.
template <class T>
T complementRule(T v)
{
    constexpr int64_t lo = std::numeric_limits<T>::min();
    return v >= 0 || v == lo ? v : T(lo - int64_t(v));
}

template <class Op, class T, std::size_t N>
void bitwiseMatchesRule(const BinMember<T> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members)
        sweepBinary<T>(m.name, m.channels, m.written, m.r, m.i, [](T a, T b) { return Op::f(a, b); }, rng);
}

template <class Op, class T, std::size_t N>
void constantMatchesRule(const ConstMember<T, T> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members)
        for (int round = 0; round < 3; ++round) {
            T k[4];
            for (T& v : k) v = kt::randomValue<T>(rng);
            if (round == 1) k[0] = T(0), k[1] = T(~T(0)); // the identity and absorbing values
            sweepConst(m, k, [&](T v, int c) { return Op::f(v, k[c]); }, rng, false, kWidths);
        }
}

TEST(ArithcBitwise, TwoImagesMatchRule)
{
    bitwiseMatchesRule<And>(kAnd8u), bitwiseMatchesRule<And>(kAnd16u), bitwiseMatchesRule<And>(kAnd32s);
    bitwiseMatchesRule<Or>(kOr8u), bitwiseMatchesRule<Or>(kOr16u), bitwiseMatchesRule<Or>(kOr32s);
    bitwiseMatchesRule<Xor>(kXor8u), bitwiseMatchesRule<Xor>(kXor16u), bitwiseMatchesRule<Xor>(kXor32s);
}

TEST(ArithcBitwise, ConstantsMatchRule)
{
    constantMatchesRule<And>(kAndC8u), constantMatchesRule<And>(kAndC16u), constantMatchesRule<And>(kAndC32s);
    constantMatchesRule<Or>(kOrC8u), constantMatchesRule<Or>(kOrC16u), constantMatchesRule<Or>(kOrC32s);
    constantMatchesRule<Xor>(kXorC8u), constantMatchesRule<Xor>(kXorC16u), constantMatchesRule<Xor>(kXorC32s);
}

template <class T, std::size_t N, class Rule>
void unaryMatchesRule(const UnaryMember<T> (&members)[N], Rule rule)
{
    kt::Rng rng = kt::rngForTest();
    // A third of the elements from the ends of the range, where a sign trick goes wrong.
    const kt::pix::Gen<T> gen = [](kt::Rng& r) {
        constexpr T lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
        const T edges[] = {lo, T(lo + 1), T(-1), T(0), T(1), T(hi - 1), hi};
        return kt::uniform(r, 0, 2) == 0 ? edges[kt::uniform<int>(r, 0, 6)] : kt::randomValue<T>(r);
    };
    for (const auto& m : members)
        sweepUnary<T>(m.name, m.channels, m.written, m.r, m.i, [&](T v, int) { return rule(v); }, rng, gen);
}

TEST(ArithcBitwise, NotAndComplementMatchRule)
{
    unaryMatchesRule(kNot8u, [](Kro8u v) { return Kro8u(~v); });
    unaryMatchesRule(kComplement8s, complementRule<Kro8s>);
    unaryMatchesRule(kComplement16s, complementRule<Kro16s>);
    unaryMatchesRule(kComplement32s, complementRule<Kro32s>);
}

TEST(ArithcBitwise, ComplementTwiceGivesTheValueBack)
{
    kt::Guarded<Kro16s> img(70, 4);
    kt::Rng rng = kt::rngForTest();
    kt::fillRandom(img, rng);
    img.at(0, 0) = -32768, img.at(1, 0) = -1, img.at(2, 0) = -32767, img.at(3, 0) = 5;
    kt::Guarded<Kro16s> orig(70, 4);
    kt::pix::copyElements(img, orig);
    ASSERT_EQ(kroiComplement_16s_C1IR(img.ptr(), img.step(), {70, 4}), kroStsOk);
    EXPECT_EQ(img.at(0, 0), -32768);
    EXPECT_EQ(img.at(1, 0), Kro16s(0x8001));
    EXPECT_EQ(img.at(2, 0), -1);
    EXPECT_EQ(img.at(3, 0), 5);
    ASSERT_EQ(kroiComplement_16s_C1IR(img.ptr(), img.step(), {70, 4}), kroStsOk);
    EXPECT_IMAGE_EQ(img, [&](int x, int y, int) { return orig.at(x, y); });
}

// Images that outgrow the caches are written with streaming stores, from 16-byte aligned
// destination rows only; the result is the same.  2048 x 2048 32s images: 16 MiB each.
TEST(ArithcBitwise, LargeImagesMatchRule)
{
    for (int offset : {0, 4}) {
        const kt::Shape shape{2048, 2048, 1, 0, kt::Guard::Before, offset, false};
        kt::Guarded<Kro32s> a(shape), b(shape), d(shape);
        a.forEach([](int x, int y, int, Kro32s& e) { e = Kro32s(uint32_t(x) * 2654435761u ^ uint32_t(y) * 40503u); });
        b.forEach([](int x, int y, int, Kro32s& e) { e = Kro32s(uint32_t(y) * 2246822519u + uint32_t(x)); });
        ASSERT_EQ(kroiXorC_32s_C1R(a.ptr(), a.step(), 0x3C3C3C3C, d.ptr(), d.step(), {2048, 2048}), kroStsOk);
        EXPECT_IMAGE_EQ(d, [&](int x, int y, int) { return Kro32s(a.at(x, y) ^ 0x3C3C3C3C); });
        ASSERT_EQ(kroiAnd_32s_C1R(a.ptr(), a.step(), b.ptr(), b.step(), d.ptr(), d.step(), {2048, 2048}), kroStsOk);
        EXPECT_IMAGE_EQ(d, [&](int x, int y, int) { return Kro32s(a.at(x, y) & b.at(x, y)); });
    }
}

// Every member, out of place and in place, through the family's check order.
template <class T, std::size_t N>
void checkOrder(const BinMember<T> (&members)[N])
{
    for (const auto& m : members) {
        expectCheckOrder<T>(m.name, m.channels, logicOrder(),
                            [&](const T* s, int st, T* d, int sd, KroiSize r) { return m.r(s, st, s, st, d, sd, r); });
        expectCheckOrder<T>(m.name, m.channels, logicOrder(),
                            [&](const T* s, int st, T* d, int sd, KroiSize r) { return m.i(s, st, d, sd, r); });
    }
}
template <class T, std::size_t N>
void checkOrder(const ConstMember<T, T> (&members)[N])
{
    const T k[4] = {1, 2, 3, 4};
    expectCheckOrder(members, k, logicOrder());
}
template <class T, std::size_t N>
void checkOrder(const UnaryMember<T> (&members)[N])
{
    for (const auto& m : members) {
        expectCheckOrder<T>(m.name, m.channels, logicOrder(), m.r);
        expectCheckOrder<T>(m.name, m.channels, logicOrder(),
                            [&](const T* s, int, T* d, int sd, KroiSize r) { return m.i(s ? d : nullptr, sd, r); });
    }
}

TEST(ArithcBitwise, CheckOrderPointersStepsSize)
{
    checkOrder(kAnd8u), checkOrder(kAnd16u), checkOrder(kAnd32s);
    checkOrder(kOr8u), checkOrder(kOr16u), checkOrder(kOr32s);
    checkOrder(kXor8u), checkOrder(kXor16u), checkOrder(kXor32s);
    checkOrder(kAndC8u), checkOrder(kAndC16u), checkOrder(kAndC32s);
    checkOrder(kOrC8u), checkOrder(kOrC16u), checkOrder(kOrC32s);
    checkOrder(kXorC8u), checkOrder(kXorC16u), checkOrder(kXorC32s);
    checkOrder(kNot8u);
    checkOrder(kComplement8s), checkOrder(kComplement16s), checkOrder(kComplement32s);
}

}  // namespace
