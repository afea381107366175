// Shifts against their rule: every member, every count from 0 to 40 in all channels and mixed
// counts per channel, past every fill threshold and through the copy at count 0, in place and
// out of place between guard pages; the check order on every kernel path.
#include <cstdint>
#include <limits>
#include <type_traits>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"

namespace {

using namespace kt::pix;

const ConstMember<Kro8u, Kro32u> kLShiftC8u[] = {
    {"kroiLShiftC_8u_C1R", 1, 1, ConstR<kroiLShiftC_8u_C1R>::call, ConstI<kroiLShiftC_8u_C1IR>::call},
    {"kroiLShiftC_8u_C3R", 3, 3, ConstR<kroiLShiftC_8u_C3R>::call, ConstI<kroiLShiftC_8u_C3IR>::call},
    {"kroiLShiftC_8u_C4R", 4, 4, ConstR<kroiLShiftC_8u_C4R>::call, ConstI<kroiLShiftC_8u_C4IR>::call},
    {"kroiLShiftC_8u_AC4R", 4, 3, ConstR<kroiLShiftC_8u_AC4R>::call, ConstI<kroiLShiftC_8u_AC4IR>::call},
};
const ConstMember<Kro16u, Kro32u> kLShiftC16u[] = {
    {"kroiLShiftC_16u_C1R", 1, 1, ConstR<kroiLShiftC_16u_C1R>::call, ConstI<kroiLShiftC_16u_C1IR>::call},
    {"kroiLShiftC_16u_C3R", 3, 3, ConstR<kroiLShiftC_16u_C3R>::call, ConstI<kroiLShiftC_16u_C3IR>::call},
    {"kroiLShiftC_16u_C4R", 4, 4, ConstR<kroiLShiftC_16u_C4R>::call, ConstI<kroiLShiftC_16u_C4IR>::call},
    {"kroiLShiftC_16u_AC4R", 4, 3, ConstR<kroiLShiftC_16u_AC4R>::call, ConstI<kroiLShiftC_16u_AC4IR>::call},
};
const ConstMember<Kro32s, Kro32u> kLShiftC32s[] = {
    {"kroiLShiftC_32s_C1R", 1, 1, ConstR<kroiLShiftC_32s_C1R>::call, ConstI<kroiLShiftC_32s_C1IR>::call},
    {"kroiLShiftC_32s_C3R", 3, 3, ConstR<kroiLShiftC_32s_C3R>::call, ConstI<kroiLShiftC_32s_C3IR>::call},
    {"kroiLShiftC_32s_C4R", 4, 4, ConstR<kroiLShiftC_32s_C4R>::call, ConstI<kroiLShiftC_32s_C4IR>::call},
    {"kroiLShiftC_32s_AC4R", 4, 3, ConstR<kroiLShiftC_32s_AC4R>::call, ConstI<kroiLShiftC_32s_AC4IR>::call},
};
const ConstMember<Kro8u, Kro32u> kRShiftC8u[] = {
    {"kroiRShiftC_8u_C1R", 1, 1, ConstR<kroiRShiftC_8u_C1R>::call, ConstI<kroiRShiftC_8u_C1IR>::call},
    {"kroiRShiftC_8u_C3R", 3, 3, ConstR<kroiRShiftC_8u_C3R>::call, ConstI<kroiRShiftC_8u_C3IR>::call},
    {"kroiRShiftC_8u_C4R", 4, 4, ConstR<kroiRShiftC_8u_C4R>::call, ConstI<kroiRShiftC_8u_C4IR>::call},
    {"kroiRShiftC_8u_AC4R", 4, 3, ConstR<kroiRShiftC_8u_AC4R>::call, ConstI<kroiRShiftC_8u_AC4IR>::call},
};
const ConstMember<Kro16u, Kro32u> kRShiftC16u[] = {
    {"kroiRShiftC_16u_C1R", 1, 1, ConstR<kroiRShiftC_16u_C1R>::call, ConstI<kroiRShiftC_16u_C1IR>::call},
    {"kroiRShiftC_16u_C3R", 3, 3, ConstR<kroiRShiftC_16u_C3R>::call, ConstI<kroiRShiftC_16u_C3IR>::call},
    {"kroiRShiftC_16u_C4R", 4, 4, ConstR<kroiRShiftC_16u_C4R>::call, ConstI<kroiRShiftC_16u_C4IR>::call},
    {"kroiRShiftC_16u_AC4R", 4, 3, ConstR<kroiRShiftC_16u_AC4R>::call, ConstI<kroiRShiftC_16u_AC4IR>::call},
};
const ConstMember<Kro16s, Kro32u> kRShiftC16s[] = {
    {"kroiRShiftC_16s_C1R", 1, 1, ConstR<kroiRShiftC_16s_C1R>::call, ConstI<kroiRShiftC_16s_C1IR>::call},
    {"kroiRShiftC_16s_C3R", 3, 3, ConstR<kroiRShiftC_16s_C3R>::call, ConstI<kroiRShiftC_16s_C3IR>::call},
    {"kroiRShiftC_16s_C4R", 4, 4, ConstR<kroiRShiftC_16s_C4R>::call, ConstI<kroiRShiftC_16s_C4IR>::call},
    {"kroiRShiftC_16s_AC4R", 4, 3, ConstR<kroiRShiftC_16s_AC4R>::call, ConstI<kroiRShiftC_16s_AC4IR>::call},
};
const ConstMember<Kro32s, Kro32u> kRShiftC32s[] = {
    {"kroiRShiftC_32s_C1R", 1, 1, ConstR<kroiRShiftC_32s_C1R>::call, ConstI<kroiRShiftC_32s_C1IR>::call},
    {"kroiRShiftC_32s_C3R", 3, 3, ConstR<kroiRShiftC_32s_C3R>::call, ConstI<kroiRShiftC_32s_C3IR>::call},
    {"kroiRShiftC_32s_C4R", 4, 4, ConstR<kroiRShiftC_32s_C4R>::call, ConstI<kroiRShiftC_32s_C4IR>::call},
    {"kroiRShiftC_32s_AC4R", 4, 3, ConstR<kroiRShiftC_32s_AC4R>::call, ConstI<kroiRShiftC_32s_AC4IR>::call},
};

// v x 2^c, keeping the type's low bits; nothing is left once every bit is shifted out.
template <class T>
T leftRule(T v, uint32_t c)
{
    using U = std::make_unsigned_t<T>;
    if (c >= 8 * sizeof(T)) return T(0);
    return T(U(uint64_t(U(v)) << c));
}

// floor(v / 2^c): logical for unsigned values, toward minus infinity for signed ones, so that
// large counts leave 0 or -1.
template <class T>
T rightRule(T v, uint32_t c)
{
    if (c > 62) c = 62;
    const int64_t d = int64_t{1} << c, w = int64_t(v);
    int64_t q = w / d;
    if (w % d != 0 && w < 0) q -= 1;
    return T(q);
}

struct Left {
    template <class T>
    static T f(T v, uint32_t c) { return leftRule(v, c); }
};
struct Right {
    template <class T>
    static T f(T v, uint32_t c) { return rightRule(v, c); }
};

template <class Rule, class T, std::size_t N>
void everyCount(const ConstMember<T, Kro32u> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members)
        for (uint32_t c = 0; c <= 40; ++c) {
            const Kro32u k[4] = {c, c, c, c};
            SCOPED_TRACE("count " + std::to_string(c));
            sweepConst(m, k, [&](T v, int) { return Rule::f(v, c); }, rng, false, {1, 3, 17, 33, 65});
        }
}

template <class Rule, class T, std::size_t N>
void countPerChannel(const ConstMember<T, Kro32u> (&members)[N])
{
    kt::Rng rng = kt::rngForTest();
    constexpr uint32_t bits = 8 * sizeof(T);
    const uint32_t sets[][4] = {{0, 1, 2, 3}, {bits, bits, bits - 1, bits}, {0, 0, 0, 1}, {bits + 9, 0, 5, 2}, {3, 3, 3, 40}};
    for (const auto& m : members) {
        if (m.channels == 1) continue;
        for (int round = 0; round < 8; ++round) {
            Kro32u k[4];
            for (int ch = 0; ch < 4; ++ch) k[ch] = round < 5 ? sets[round][ch] : kt::uniform<uint32_t>(rng, 0, 40);
            sweepConst(m, k, [&](T v, int c) { return Rule::f(v, k[c]); }, rng, false, kWidths);
        }
    }
}

TEST(ArithcShift, EveryCountMatchesRule)
{
    everyCount<Left>(kLShiftC8u), everyCount<Left>(kLShiftC16u), everyCount<Left>(kLShiftC32s);
    everyCount<Right>(kRShiftC8u), everyCount<Right>(kRShiftC16u), everyCount<Right>(kRShiftC16s);
    everyCount<Right>(kRShiftC32s);
}

TEST(ArithcShift, CountPerChannelMatchesRule)
{
    countPerChannel<Left>(kLShiftC8u), countPerChannel<Left>(kLShiftC16u), countPerChannel<Left>(kLShiftC32s);
    countPerChannel<Right>(kRShiftC8u), countPerChannel<Right>(kRShiftC16u), countPerChannel<Right>(kRShiftC16s);
    countPerChannel<Right>(kRShiftC32s);
}

TEST(ArithcShift, KnownValues)
{
    Kro16s v[4] = {-5, -5, 7, -1};
    ASSERT_EQ(kroiRShiftC_16s_C1IR(1, v, 8, {4, 1}), kroStsOk);
    EXPECT_EQ(v[0], -3);
    EXPECT_EQ(v[2], 3);
    Kro16s w[2] = {-5, 300};
    ASSERT_EQ(kroiRShiftC_16s_C1IR(20, w, 4, {2, 1}), kroStsOk);
    EXPECT_EQ(w[0], -1);
    EXPECT_EQ(w[1], 0);
}

// The checks come before every kernel path: the fills, the copy and the shifts.
template <class T, std::size_t N>
void checkOrder(const ConstMember<T, Kro32u> (&members)[N])
{
    for (uint32_t c : {0u, 1u, 40u}) {
        const Kro32u k[4] = {c, c, c, c};
        expectCheckOrder(members, k, logicOrder());
    }
}

TEST(ArithcShift, CheckOrderPointersStepsSize)
{
    checkOrder(kLShiftC8u), checkOrder(kLShiftC16u), checkOrder(kLShiftC32s);
    checkOrder(kRShiftC8u), checkOrder(kRShiftC16u), checkOrder(kRShiftC16s), checkOrder(kRShiftC32s);
}

}  // namespace
