// The integer members of Sqr, Sqrt, Exp and Ln against exact references: every input value of
// 8u and 16-bit images at every scale factor from -20 to 20 and at the ends of int, with the
// references in 128-bit integers (Sqr, Sqrt) and in quadruple precision (Exp, Ln), where the
// test also measures how far each exact value lies from a rounding boundary: that margin is
// what lets the library's long-double computation round every result exactly.
#include <quadmath.h>

#include <climits>
#include <cmath>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"
#include "arith/unary_members.hpp"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"
#include "support/reference.hpp"

namespace unary_test {
namespace {

namespace ref = kt::ref;
using ref::i128;

std::vector<int> scaleFactors()
{
    std::vector<int> s{INT_MIN, INT_MIN + 1, -64, -63, -40, 40, 63, 64, INT_MAX - 1, INT_MAX};
    for (int k = -20; k <= 20; ++k) s.push_back(k);
    return s;
}

// round(sqrt(x) 2^-s), ties to even, x >= 0, unsaturated; s beyond +-40 behaves as +-40 for
// 16-bit x (0, or at least 2^40).
i128 sqrtRef(i128 x, int s)
{
    if (x <= 0) return 0;
    const int c = s < -40 ? -40 : s > 40 ? 40 : s;
    const i128 X = x << (2 * (c < 0 ? -c : 0)), D = i128(1) << (2 * (c > 0 ? c : 0)); // sqrt(X / D)
    i128 lo = 0, hi = c > 0 ? i128(1) << 9 : i128(1) << 49;                             // n^2 D <= X < hi^2 D
    while (hi - lo > 1) {
        const i128 mid = (lo + hi) / 2;
        (mid * mid * D <= X ? lo : hi) = mid;
    }
    const i128 twice = (2 * lo + 1) * (2 * lo + 1) * D; // (n + 1/2)^2 D, times 4
    if (4 * X > twice || (4 * X == twice && lo % 2 != 0)) return lo + 1;
    return lo;
}

// The nearest integer to v >= 0, ties to even, and how far v lies from the nearest
// half-integer (the rounding boundary).
struct Rounded {
    i128 value;
    double margin;
};
Rounded roundQ(__float128 v)
{
    const __float128 f = floorq(v), d = v - f;
    const i128 n = i128(f);
    const double margin = double(fabsq(d - __float128(0.5)));
    if (d > __float128(0.5)) return {n + 1, margin};
    if (d < __float128(0.5)) return {n, margin};
    return {n % 2 == 0 ? n : n + 1, 0.0};
}

// e^x 2^-s and ln(x) 2^-s in quadruple precision; values far outside the type's range are
// clipped before they are computed.
Rounded expRef(int x, int s)
{
    const double t = x * 1.4426950408889634 - double(s);
    if (t > 40) return {i128(1) << 40, 1.0};
    if (t < -40) return {0, 1.0};
    return roundQ(expq(__float128(x) - __float128(s) * logq(__float128(2))));
}
Rounded lnRef(int x, int s)
{
    const int c = s < -64 ? -64 : s > 64 ? 64 : s;
    return roundQ(ldexpq(logq(__float128(x)), -c));
}

// A 16-bit or 8-bit image holding every value of T once, 256 to a row.
template <class T>
void fillEveryValue(kt::Guarded<T>& img)
{
    img.forEach([&](int x, int y, int, T& e) { e = T(std::numeric_limits<T>::min() + y * 256 + x); });
}

template <class T>
T saturated(i128 v)
{
    return ref::saturate<T>(v);
}

// The exact rule of each operation for a value of T.
template <class T>
T want(Op op, T x, int s, double* margin)
{
    switch (op) {
    case Op::Abs: return ref::saturate<T>(x < 0 ? -i128(x) : i128(x));
    case Op::Sqr: return ref::scaleSaturate<T>(i128(x) * x, s);
    case Op::Sqrt: return saturated<T>(sqrtRef(x, s));
    case Op::Exp: {
        const Rounded r = expRef(x, s);
        if (x != 0 && r.value <= std::numeric_limits<T>::max()) *margin = std::fmin(*margin, r.margin);
        return saturated<T>(r.value);
    }
    default: {
        if (x <= 0) return std::numeric_limits<T>::min();
        const Rounded r = lnRef(x, s);
        if (x != 1 && r.value <= std::numeric_limits<T>::max()) *margin = std::fmin(*margin, r.margin);
        return saturated<T>(r.value);
    }
    }
}

template <class T>
void everyInput()
{
    kt::Guarded<T> src(256, (1 << (8 * sizeof(T))) / 256, 1);
    fillEveryValue(src);
    kt::Guarded<T> dst(src.width(), src.height(), 1);
    double margin = 1.0;
    for (const auto& m : members<T>()) {
        if (m.channels != 1) continue;
        for (int s : scaleFactors()) {
            SCOPED_TRACE(std::string(m.name) + " s " + std::to_string(s));
            const bool warns = (m.op == Op::Ln && std::numeric_limits<T>::min() <= 0) ||
                               (m.op == Op::Sqrt && std::is_signed_v<T>);
            const KroStatus status = m.r(src.ptr(), src.step(), dst.ptr(), dst.step(), {src.width(), src.height()}, s);
            EXPECT_EQ(status, warns ? (m.op == Op::Ln ? kroStsNonPositiveLogWarn : kroStsNegativeRootWarn) : kroStsOk);
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int) { return want<T>(m.op, src.at(x, y, 0), s, &margin); });
            if (testing::Test::HasFailure()) return;
        }
    }
    // Every exact Exp and Ln value that the types can hold lies this far from a boundary;
    // the long-double results are within 2^-40 of them.
    EXPECT_GT(margin, std::ldexp(1.0, -30));
    testing::Test::RecordProperty("smallest_margin", std::to_string(margin));
}

TEST(UnaryInt, Every8uInputAtEveryScaleFactor) { everyInput<Kro8u>(); }
TEST(UnaryInt, Every16uInputAtEveryScaleFactor) { everyInput<Kro16u>(); }
TEST(UnaryInt, Every16sInputAtEveryScaleFactor) { everyInput<Kro16s>(); }

// Every layout, in place and out, padded and merged rows between guard pages, against the
// same rule: the fourth AC4 element and the padding keep their bytes.
template <class T>
void everyLayout()
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : members<T>()) {
        if (std::is_same_v<T, Kro32f> && m.op != Op::Sqr && m.op != Op::Abs) continue; // see unary_float_test
        for (int s : {0, 1, -3, 5}) {
            double margin = 1.0;
            const int sf = std::is_same_v<T, Kro32f> || m.op == Op::Abs ? 0 : s;
            // What the member returns on random data: a warning when a written element warns.
            kt::pix::sweepUnary<T>(
                m.name, m.channels, m.written,
                [&](const T* a, int as, T* d, int ds, KroiSize r) {
                    const KroStatus st = m.r(a, as, d, ds, r, sf);
                    return st > 0 ? KroStatus(kroStsOk) : st;
                },
                [&](T* d, int ds, KroiSize r) {
                    const KroStatus st = m.i(d, ds, r, sf);
                    return st > 0 ? KroStatus(kroStsOk) : st;
                },
                [&](T v, int) -> T {
                    if constexpr (std::is_same_v<T, Kro32f>) {
                        return m.op == Op::Sqr ? v * v : std::fabs(v);
                    } else {
                        return want<T>(m.op, v, sf, &margin);
                    }
                },
                rng);
            if (testing::Test::HasFailure()) return;
        }
    }
}

TEST(UnaryInt, EveryLayout8u) { everyLayout<Kro8u>(); }
TEST(UnaryInt, EveryLayout16u) { everyLayout<Kro16u>(); }
TEST(UnaryInt, EveryLayout16s) { everyLayout<Kro16s>(); }
TEST(UnaryInt, EveryLayout32fSqrAbs) { everyLayout<Kro32f>(); }

TEST(UnaryInt, WorkedValues)
{
    Kro16s a[4] = {-32768, -5, 9, 32767};
    ASSERT_EQ(kroiAbs_16s_C1IR(a, 8, {4, 1}), kroStsOk);
    EXPECT_EQ(a[0], 32767);
    EXPECT_EQ(a[1], 5);
    Kro8u r[3] = {9, 25, 49}; // roots 3, 5, 7 halved: 1.5, 2.5, 3.5 go to 2, 2, 4
    ASSERT_EQ(kroiSqrt_8u_C1IRSfs(r, 3, {3, 1}, 1), kroStsOk);
    EXPECT_EQ(r[0], 2);
    EXPECT_EQ(r[1], 2);
    EXPECT_EQ(r[2], 4);
    Kro8u e[2] = {0, 5}; // e^0 / 2 = 0.5 goes to 0; e^5 / 2 = 74.2
    ASSERT_EQ(kroiExp_8u_C1IRSfs(e, 2, {2, 1}, 1), kroStsOk);
    EXPECT_EQ(e[0], 0);
    EXPECT_EQ(e[1], 74);
    Kro16s l[3] = {0, -7, 20000}; // ln 20000 x 2^10 = 10141.2
    ASSERT_EQ(kroiLn_16s_C1IRSfs(l, 6, {3, 1}, -10), kroStsNonPositiveLogWarn);
    EXPECT_EQ(l[0], -32768);
    EXPECT_EQ(l[1], -32768);
    EXPECT_EQ(l[2], 10141);
}

}  // namespace
}  // namespace unary_test
