// Argument checks of every member: the order of the checks, nothing written on an error, the
// step checks that only Div and Div_Round make, the rounding-mode check, and the 16u Add and
// Sub fills that check the sources only.  Then a few worked values of the rule.
#include <algorithm>

#include "arith/arith_members.hpp"

namespace arith_test {
namespace {

// One bad call: which pointer is null, the size, the steps, the mode; the status expected
// when the member divides and when it does not.
struct Case {
    const char* what;
    int nullArg; // 0 none, 1 src1, 2 src2 (or src-dst in place), 3 dst
    KroiSize roi;
    int step;    // given to every image; 0 = the images' own
    int mode;
    KroStatus divides, other, rounding;
};

constexpr int kOwn = 0;
const Case kCases[] = {
    {"null src1, zero width", 1, {0, 2}, kOwn, 1, kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr},
    {"null dst, zero size", 3, {0, 0}, -1, 7, kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr},
    {"zero width", 0, {0, 2}, -1, 7, kroStsBadSizeErr, kroStsBadSizeErr, kroStsBadSizeErr},
    {"negative height", 0, {3, -1}, kOwn, 1, kroStsBadSizeErr, kroStsBadSizeErr, kroStsBadSizeErr},
    {"zero step, bad mode", 0, {3, 2}, -4, 3, kroStsBadStepErr, kroStsOk, kroStsBadStepErr},
    {"bad mode 3", 0, {3, 2}, kOwn, 3, kroStsOk, kroStsOk, kroStsBadRoundModeErr},
    {"bad mode -1", 0, {3, 2}, kOwn, -1, kroStsOk, kroStsOk, kroStsBadRoundModeErr},
};

template <class T>
void checkOrder()
{
    for (const auto& m : members<T>())
        for (const Case& c : kCases) {
            const KroStatus want = m.op == Op::DivRound ? c.rounding : divides(m.op) ? c.divides : c.other;
            if (want >= 0) continue; // not an error for this member
            SCOPED_TRACE(m.name + ": " + c.what);
            kt::Guarded<T> a(4, 2, elems(m.layout), 3), d(4, 2, elems(m.layout), 3);
            a.fillBytes(1);
            d.fillBytes(0xA5);
            const auto before = d.snapshot();
            const T* src1 = c.nullArg == 1 ? nullptr : a.ptr();
            T* dst = c.nullArg == 3 ? nullptr : d.ptr();
            const int step = c.step == kOwn ? d.step() : c.step;
            const Params p{0, c.mode};
            EXPECT_EQ(m.r(src1, step, a.ptr(), step, dst, step, c.roi, p), want);
            EXPECT_EQ(m.ir(src1, step, dst, step, c.roi, p), want);
            EXPECT_EQ(m.rl(src1, step, a.ptr(), step, dst, step, KroiSizeL{c.roi.width, c.roi.height}, p), want);
            EXPECT_EQ(m.irl(src1, step, dst, step, KroiSizeL{c.roi.width, c.roi.height}, p), want);
            EXPECT_TRUE(d.unchangedSince(before));
        }
}

TEST(ArithChecks, Order8u) { checkOrder<Kro8u>(); }
TEST(ArithChecks, Order16u) { checkOrder<Kro16u>(); }
TEST(ArithChecks, Order16s) { checkOrder<Kro16s>(); }
TEST(ArithChecks, Order32f) { checkOrder<Kro32f>(); }

// Add, Sub and Mul take the steps as given: a zero step reads and writes one row again and
// again, and succeeds.
TEST(ArithChecks, AddSubMulUseZeroStepsAsGiven)
{
    for (const auto& m : members<Kro8u>()) {
        if (divides(m.op)) continue;
        kt::Guarded<Kro8u> a(5, 1, elems(m.layout)), b(5, 1, elems(m.layout)), d(5, 1, elems(m.layout));
        a.fillBytes(3);
        b.fillBytes(4);
        EXPECT_EQ(m.r(a.ptr(), 0, b.ptr(), 0, d.ptr(), 0, {5, 3}, Params{0, 1}), kroStsOk) << m.name;
        EXPECT_EQ(d.at(4, 0, 0), expected<Kro8u>(m.op, 3, 4, Params{}, false)) << m.name;
    }
}

// 16u Add from s = 18 and Sub from s = 17: the sources are checked, then the fill reports a
// null destination or a bad size itself; one scale factor lower the usual order holds.
TEST(ArithChecks, Unsigned16AddSubFillChecksSourcesOnly)
{
    for (const auto& m : members<Kro16u>()) {
        if (m.op != Op::Add && m.op != Op::Sub) continue;
        SCOPED_TRACE(m.name);
        const int fill = m.op == Op::Add ? 18 : 17;
        kt::Guarded<Kro16u> a(3, 2, elems(m.layout)), d(3, 2, elems(m.layout));
        a.fillBytes(0xFF);
        d.fillBytes(0xA5);
        const int st = a.step();
        EXPECT_EQ(m.r(nullptr, st, a.ptr(), st, d.ptr(), st, {0, 2}, {fill}), kroStsNullPointerErr);
        EXPECT_EQ(m.r(a.ptr(), st, a.ptr(), st, nullptr, st, {3, 2}, {fill}), kroStsNullPointerErr);
        EXPECT_EQ(m.r(a.ptr(), st, a.ptr(), st, d.ptr(), st, {0, 2}, {fill}), kroStsBadSizeErr);
        EXPECT_EQ(m.r(a.ptr(), st, a.ptr(), st, d.ptr(), st, {3, 2}, {fill - 1}), kroStsOk);
        EXPECT_EQ(d.at(2, 1, 0), m.op == Op::Add ? 1 : 0); // 131070 / 2^17 rounds up to 1
        EXPECT_EQ(m.r(a.ptr(), st, a.ptr(), st, d.ptr(), st, {3, 2}, {fill}), kroStsOk);
        EXPECT_EQ(d.at(2, 1, 0), 0);
        if (m.layout == kAC4) {
            EXPECT_EQ(d.at(2, 1, 3), 0xA5A5); // the fill keeps the fourth channel
        }
    }
}

// Worked values: a reference that agrees with the library on a wrong rule would fail here.
TEST(ArithRule, WorkedValues)
{
    auto add8u = [](Kro8u x, Kro8u y, int s) {
        Kro8u d = 0;
        EXPECT_EQ(kroiAdd_8u_C1RSfs(&x, 1, &y, 1, &d, 1, {1, 1}, s), kroStsOk);
        return int(d);
    };
    EXPECT_EQ(add8u(1, 2, 1), 2);
    EXPECT_EQ(add8u(2, 3, 1), 2);
    EXPECT_EQ(add8u(3, 4, 1), 4);
    EXPECT_EQ(add8u(255, 255, 9), 1);
    EXPECT_EQ(add8u(255, 255, 10), 0);
    EXPECT_EQ(add8u(0, 1, -8), 255);

    Kro8u a = 10, b = 3, d = 9;
    EXPECT_EQ(kroiSub_8u_C1RSfs(&a, 1, &b, 1, &d, 1, {1, 1}, 0), kroStsOk);
    EXPECT_EQ(d, 0);
    EXPECT_EQ(kroiSub_8u_C1RSfs(&b, 1, &a, 1, &d, 1, {1, 1}, 0), kroStsOk);
    EXPECT_EQ(d, 7);

    Kro16s m1 = -1, m2 = 2, md = 0;
    EXPECT_EQ(kroiMul_16s_C1RSfs(&m1, 2, &m2, 2, &md, 2, {1, 1}, -14), kroStsOk);
    EXPECT_EQ(md, -32768);

    Kro8u div[20], num[20], q[20];
    for (int i = 0; i < 20; ++i) div[i] = 3, num[i] = 200;
    div[17] = 0, num[17] = 9, div[18] = 0, num[18] = 0;
    EXPECT_EQ(kroiDiv_8u_C1RSfs(div, 20, num, 20, q, 20, {20, 1}, 0), kroStsZeroDivisorWarn);
    EXPECT_EQ(q[0], 67);
    EXPECT_EQ(q[16], 67);
    EXPECT_EQ(q[17], 255);
    EXPECT_EQ(q[18], 0);

    Kro16s sd = 0, sn = -7, sq = 1;
    EXPECT_EQ(kroiDiv_Round_16s_C1RSfs(&sd, 2, &sn, 2, &sq, 2, {1, 1}, kroRndNear, 0), kroStsZeroDivisorWarn);
    EXPECT_EQ(sq, -32768);
    sd = 2;
    EXPECT_EQ(kroiDiv_Round_16s_C1RSfs(&sd, 2, &sn, 2, &sq, 2, {1, 1}, kroRndZero, 0), kroStsOk);
    EXPECT_EQ(sq, -3);
    EXPECT_EQ(kroiDiv_Round_16s_C1RSfs(&sd, 2, &sn, 2, &sq, 2, {1, 1}, kroRndNear, 0), kroStsOk);
    EXPECT_EQ(sq, -4);
    EXPECT_EQ(kroiDiv_Round_16s_C1RSfs(&sd, 2, &sn, 2, &sq, 2, {1, 1}, kroRndNearAway, 0), kroStsOk);
    EXPECT_EQ(sq, -4);
    sn = -5;
    EXPECT_EQ(kroiDiv_Round_16s_C1RSfs(&sd, 2, &sn, 2, &sq, 2, {1, 1}, kroRndNear, 0), kroStsOk);
    EXPECT_EQ(sq, -2);

    Kro32f fz = 0.0f, fn = 1.0f, fq = 0.0f;
    EXPECT_EQ(kroiDiv_32f_C1R(&fz, 4, &fn, 4, &fq, 4, {1, 1}), kroStsZeroDivisorWarn);
    EXPECT_TRUE(std::isinf(fq) && fq > 0);
}

}  // namespace
}  // namespace arith_test

namespace arith_test {
namespace {

// Images beyond the largest cache are written with non-temporal stores: the results are the
// same, and an AC4 destination keeps its fourth channel there too.
TEST(ArithRule, ImagesBeyondTheCache)
{
    int cache = 0;
    ASSERT_EQ(kroGetMaxCacheSizeB(&cache), kroStsOk);
    const int64_t perImage = std::min<int64_t>(cache, int64_t{48} << 20) / 2 + 4096;
    const int width = 1024, height = int(perImage / (4 * width)) + 1;
    int step = 0;
    Kro8u* a = kroiMalloc_8u_C4(width, height, &step);
    Kro8u* b = kroiMalloc_8u_C4(width, height, &step);
    Kro8u* d = kroiMalloc_8u_C4(width, height, &step);
    ASSERT_TRUE(a && b && d);
    const std::size_t n = std::size_t(step) * height;
    for (std::size_t i = 0; i < n; ++i) a[i] = Kro8u(i * 7 + (i >> 9)), b[i] = Kro8u(i * 13 + (i >> 11)), d[i] = 0xA5;
    EXPECT_EQ(kroiMul_8u_AC4RSfs(a, step, b, step, d, step, {width, height}, 3), kroStsOk);
    std::size_t bad = 0;
    for (std::size_t i = 0; i < n; ++i)
        bad += d[i] != (i % 4 == 3 ? 0xA5 : kt::ref::scaleSaturate<Kro8u>(int(a[i]) * b[i], 3));
    EXPECT_EQ(bad, 0u);
    EXPECT_EQ(kroiAdd_8u_C1RSfs(a, step, b, step, d, step, {4 * width, height}, 0), kroStsOk);
    for (std::size_t i = 0; i < n; ++i) bad += d[i] != std::min(255, a[i] + b[i]);
    EXPECT_EQ(bad, 0u);
    kroiFree(a);
    kroiFree(b);
    kroiFree(d);
}

}  // namespace
}  // namespace arith_test
