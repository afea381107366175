// The check orders of AddC, SubC and MulC (no steps) and DivC (steps before the divisor).
#include "arith/const_members.hpp"
#include <span>

namespace const_test {
namespace {

// AddC, SubC and MulC: pointers, then size; steps are used as given.
const std::vector<BadCall> kPlainOrder = {
    {"null source, zero width", true, false, 0, {0, 0}, kroStsNullPointerErr},
    {"null destination, zero height", false, true, 0, {4, 0}, kroStsNullPointerErr},
    {"zero width", false, false, 0, {0, 2}, kroStsBadSizeErr},
    {"zero height, negative step", false, false, -5, {4, 0}, kroStsBadSizeErr},
};
// DivC: pointers, size, steps, then the divisor.
const std::vector<BadCall> kDivOrder = {
    {"null source, zero step and width", true, false, 0, {0, 0}, kroStsNullPointerErr},
    {"zero width and zero step", false, false, 0, {0, 2}, kroStsBadSizeErr},
    {"zero step", false, false, 0, {4, 2}, kroStsBadStepErr},
    {"negative step", false, false, -8, {4, 2}, kroStsBadStepErr},
};
const std::vector<BadCall> kZeroDivisorOrder = {
    {"zero divisor, null destination", false, true, 0, {0, 2}, kroStsNullPointerErr},
    {"zero divisor and zero width", false, false, kOwnStep, {0, 2}, kroStsBadSizeErr},
    {"zero divisor and zero step", false, false, 0, {4, 2}, kroStsBadStepErr},
    {"zero divisor", false, false, kOwnStep, {4, 2}, kroStsZeroDivisorErr},
};

template <class T, class... More, std::size_t N>
void checkOrder(const CMember<T, More...> (&members)[N], const std::vector<BadCall>& cases, More... more)
{
    const T k[4] = {1, 2, 3, 4};
    expectCheckOrder(members, k, cases, more...);
}

TEST(ArithcConst, CheckOrders)
{
    for (int s : {0, 1, 40, -40}) {
        checkOrder(kAddC8u, kPlainOrder, s), checkOrder(kAddC16u, kPlainOrder, s), checkOrder(kAddC16s, kPlainOrder, s);
        checkOrder(kSubC8u, kPlainOrder, s), checkOrder(kSubC16u, kPlainOrder, s), checkOrder(kSubC16s, kPlainOrder, s);
        checkOrder(kMulC8u, kPlainOrder, s), checkOrder(kMulC16u, kPlainOrder, s), checkOrder(kMulC16s, kPlainOrder, s);
        checkOrder(kDivC8u, kDivOrder, s), checkOrder(kDivC16u, kDivOrder, s), checkOrder(kDivC16s, kDivOrder, s);
    }
    checkOrder(kAddC32f, kPlainOrder), checkOrder(kSubC32f, kPlainOrder), checkOrder(kMulC32f, kPlainOrder);
    checkOrder(kDivC32f, kDivOrder);
    // A zero constant in the last computed channel, and the identity and zero constants whose
    // shortcuts must not run before the checks.
    const Kro8u zero8[4] = {0, 5, 5, 5}, last8[4] = {5, 5, 0, 5};
    const Kro16u zero16u[4] = {0, 5, 5, 5};
    const Kro16s zero16s[4] = {0, 5, 5, 5};
    const Kro32f zero32f[4] = {-0.0f, 5, 5, 5}, last32f[4] = {5, 5, 0.0f, 5};
    expectCheckOrder(kDivC8u, zero8, kZeroDivisorOrder, 0), expectCheckOrder(kDivC16u, zero16u, kZeroDivisorOrder, 0);
    expectCheckOrder(kDivC16s, zero16s, kZeroDivisorOrder, 0), expectCheckOrder(kDivC32f, zero32f, kZeroDivisorOrder);
    expectCheckOrder(std::span(kDivC8u).subspan(1), last8, kZeroDivisorOrder, 0);
    expectCheckOrder(std::span(kDivC32f).subspan(1), last32f, kZeroDivisorOrder);
    const Kro8u ones[4] = {1, 1, 1, 1}, zeros[4] = {};
    expectCheckOrder(kMulC8u, ones, kPlainOrder, 0), expectCheckOrder(kMulC8u, zeros, kPlainOrder, 3);
    expectCheckOrder(kAddC8u, zeros, kPlainOrder, 0), expectCheckOrder(kDivC8u, ones, kDivOrder, 0);
}

}  // namespace
}  // namespace const_test
