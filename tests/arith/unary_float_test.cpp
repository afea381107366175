// The 32f members of Sqrt, Exp and Ln against long-double references: a dense sweep of every
// float range (one bit pattern in 257, specials, subnormals, the edges of overflow and
// underflow) measured in ulps of the correctly rounded result, every layout and form between
// guard pages, the warnings with the whole output written, and results that do not depend on
// the caller's MXCSR.  Also MinEvery and MaxEvery, and the check order of the whole section.
#include <xmmintrin.h>

#include <cfloat>
#include <climits>
#include <cmath>
#include <cstring>

#include <gtest/gtest.h>

#include "arith/logic_harness.hpp"
#include "arith/unary_members.hpp"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"

namespace unary_test {
namespace {

// Floats in the order of their values: adjacent floats differ by 1, -0 and +0 are both 0.
int64_t ordered(float f)
{
    int32_t i;
    std::memcpy(&i, &f, 4);
    return i >= 0 ? int64_t(i) : int64_t(INT32_MIN) - i;
}

float correctlyRounded(Op op, float x)
{
    const long double v = (long double)x;
    switch (op) {
    case Op::Exp: return float(expl(v));
    case Op::Ln: return float(logl(v));
    default: return float(sqrtl(v));
    }
}

// The largest distance in ulps between a member's result and the correctly rounded one over
// `inputs`; NaN must give NaN.
int64_t worstUlps(const Member<Kro32f>& m, const std::vector<float>& inputs, float* worstInput)
{
    std::vector<float> out(inputs.size());
    const int w = int(inputs.size());
    EXPECT_GE(m.r(inputs.data(), w * 4, out.data(), w * 4, {w, 1}, 0), kroStsOk);
    int64_t worst = 0;
    for (std::size_t k = 0; k < inputs.size(); ++k) {
        const float want = correctlyRounded(m.op, inputs[k]);
        if (std::isnan(want) || std::isnan(out[k])) {
            EXPECT_TRUE(std::isnan(want) && std::isnan(out[k])) << m.name << " of " << inputs[k] << " gives " << out[k];
            continue;
        }
        const int64_t d = std::llabs(ordered(out[k]) - ordered(want));
        if (d > worst) worst = d, *worstInput = inputs[k];
    }
    return worst;
}

std::vector<float> denseSweep(uint32_t from, uint32_t stride)
{
    std::vector<float> v;
    for (uint64_t b = from; b <= 0xFFFFFFFFu; b += stride) {
        const uint32_t u = uint32_t(b);
        float f;
        std::memcpy(&f, &u, 4);
        v.push_back(f);
    }
    for (float f : {0.0f, -0.0f, INFINITY, -INFINITY, NAN, FLT_MIN, FLT_TRUE_MIN, -FLT_TRUE_MIN, FLT_MAX, -FLT_MAX, 1.0f,
                    88.7228393f, 88.7228394f, 88.72284f, -87.33654f, -87.33655f, -103.27893f, -103.9720840f,
                    -103.9720917f, -104.0f, 1e-7f, -1e-7f, 0.6931472f, 0.34657359f})
        v.push_back(f);
    return v;
}

// The stated bounds: Sqrt 0 ulps, Exp 2, Ln 1.
TEST(UnaryFloat, WithinStatedUlpsOfCorrectRounding)
{
#ifdef KROI_SANITIZE
    const uint32_t stride = 2053; // the instrumented build checks the same ranges more thinly
#else
    const uint32_t stride = 257;
#endif
    const std::vector<float> inputs = denseSweep(12345, stride);
    for (const auto& m : members<Kro32f>()) {
        if (m.channels != 1 || m.op == Op::Abs || m.op == Op::Sqr) continue;
        const int64_t bound = m.op == Op::Exp ? 2 : m.op == Op::Ln ? 1 : 0;
        float at = 0;
        const int64_t worst = worstUlps(m, inputs, &at);
        EXPECT_LE(worst, bound) << m.name << " at " << at;
        testing::Test::RecordProperty(std::string(m.name) + "_worst_ulps", std::to_string(worst));
        std::printf("%s: at most %lld ulps over %zu inputs (worst at %.9g)\n", m.name, (long long)worst, inputs.size(),
                    double(at));
    }
}

// The same results in every layout and form (a row's tail computes as its bulk), with the
// fourth AC4 element and the padding untouched.
TEST(UnaryFloat, EveryLayoutGivesTheC1Result)
{
    kt::Rng rng = kt::rngForTest();
    const kt::FloatMix mix{-120.0, 120.0, 0.1};
    for (const auto& m : members<Kro32f>()) {
        if (m.op == Op::Abs || m.op == Op::Sqr) continue; // exact IEEE rules, in unary_int_test
        const Member<Kro32f>* c1 = nullptr;
        for (const auto& k : members<Kro32f>())
            if (k.op == m.op && k.channels == 1) c1 = &k;
        const auto one = [&](float v, int) {
            float out = 0;
            c1->r(&v, 4, &out, 4, {1, 1}, 0);
            return out;
        };
        kt::pix::sweepUnary<Kro32f>(
            m.name, m.channels, m.written,
            [&](const float* a, int as, float* d, int ds, KroiSize r) { const KroStatus st = m.r(a, as, d, ds, r, 0); return st > 0 ? KroStatus(kroStsOk) : st; },
            [&](float* d, int ds, KroiSize r) { const KroStatus st = m.i(d, ds, r, 0); return st > 0 ? KroStatus(kroStsOk) : st; }, one, rng,
            [&](kt::Rng& r) { return kt::randomValue<float>(r, mix); });
    }
}

// A negative root or a non-positive logarithm anywhere gives the warning after the whole
// output is written; a negative value in the fourth AC4 element is not read and warns of
// nothing.
TEST(UnaryFloat, WarningsWithTheWholeOutputWritten)
{
    float in[8] = {4, 1, 9, -1, 16, 25, 0, 36};
    float out[8];
    EXPECT_EQ(kroiSqrt_32f_C1R(in, 32, out, 32, {8, 1}), kroStsNegativeRootWarn);
    EXPECT_EQ(out[7], 6.0f);
    EXPECT_TRUE(std::isnan(out[3]));
    EXPECT_EQ(kroiLn_32f_C1R(in, 32, out, 32, {8, 1}), kroStsNonPositiveLogWarn);
    EXPECT_EQ(out[6], -INFINITY);
    EXPECT_EQ(kroiSqrt_32f_AC4R(in, 32, out, 32, {2, 1}), kroStsOk) << "-1 is an alpha element";
    float negZero = -0.0f, r = 1;
    EXPECT_EQ(kroiSqrt_32f_C1R(&negZero, 4, &r, 4, {1, 1}), kroStsOk);
    EXPECT_TRUE(std::signbit(r) && r == 0.0f);
    EXPECT_EQ(kroiLn_32f_C1R(&negZero, 4, &r, 4, {1, 1}), kroStsNonPositiveLogWarn);
    float nan = NAN;
    EXPECT_EQ(kroiLn_32f_C1R(&nan, 4, &r, 4, {1, 1}), kroStsOk);
    Kro16s s[20];
    for (int k = 0; k < 20; ++k) s[k] = Kro16s(k == 17 ? -4 : k * k);
    EXPECT_EQ(kroiSqrt_16s_C1IRSfs(s, 40, {20, 1}, 0), kroStsNegativeRootWarn);
    EXPECT_EQ(s[17], 0);
    EXPECT_EQ(s[19], 19);
    Kro8u z[20] = {};
    EXPECT_EQ(kroiLn_8u_C1IRSfs(z, 20, {20, 1}, 0), kroStsNonPositiveLogWarn);
}

// Results do not depend on the caller's rounding control or flush modes, and the caller's
// MXCSR comes back, flags included.
TEST(UnaryFloat, CallersFloatEnvironmentChangesNothing)
{
    std::vector<float> in = denseSweep(777, 65537);
    std::vector<float> ref(in.size()), got(in.size());
    const int w = int(in.size());
    for (const auto& m : members<Kro32f>()) {
        if (m.channels != 1) continue;
        m.r(in.data(), w * 4, ref.data(), w * 4, {w, 1}, 0);
        for (unsigned csr : {0x1F80u | 0x8040u, 0x1F80u | 0x6000u, 0x1F80u | 0x2000u, 0x0000u}) {
            const unsigned saved = _mm_getcsr();
            _mm_setcsr(csr);
            m.r(in.data(), w * 4, got.data(), w * 4, {w, 1}, 0);
            const unsigned after = _mm_getcsr();
            _mm_setcsr(saved);
            EXPECT_EQ(after, csr) << m.name;
            EXPECT_EQ(std::memcmp(ref.data(), got.data(), in.size() * 4), 0) << m.name << " MXCSR " << std::hex << csr;
        }
    }
}

// ---- MinEvery, MaxEvery ------------------------------------------------------------------------------

template <class T>
T everyRule(bool max, T src, T dst)
{
    return max ? (src > dst ? src : dst) : (src < dst ? src : dst);
}

template <class T>
void everyMember()
{
    kt::Rng rng = kt::rngForTest();
    const kt::FloatMix mix{-10.0, 10.0, 0.2};
    for (const auto& m : everyMembers<T>())
        for (const kt::Shape& sh : kt::pix::shapes(m.channels, sizeof(T), false)) {
            SCOPED_TRACE(std::string(m.name) + " width " + std::to_string(sh.width));
            kt::Shape other = sh;
            other.guard = sh.guard == kt::Guard::After ? kt::Guard::Before : kt::Guard::After;
            kt::Guarded<T> src(sh), sd(other);
            kt::fillRandom(src, rng, mix);
            kt::fillRandom(sd, rng, mix);
            // Equal values often, so that the choice between equal elements shows.
            sd.forEach([&](int x, int y, int c, T& e) {
                if (kt::uniform(rng, 0, 3) == 0) e = src.at(x, y, c);
            });
            const auto before = sd.snapshot();
            std::vector<T> old;
            sd.forEach([&](int, int, int, T& e) { old.push_back(e); });
            ASSERT_EQ(m.f(src.ptr(), src.step(), sd.ptr(), sd.step(), {sh.width, sh.height}), kroStsOk);
            EXPECT_TRUE(sd.restUnchangedSince(before, m.written));
            std::size_t k = 0;
            sd.forEach([&](int x, int y, int c, T& e) {
                const T o = old[k++];
                const T want = c < m.written ? everyRule(m.max, src.at(x, y, c), o) : o;
                EXPECT_EQ(std::memcmp(&e, &want, sizeof(T)), 0) << x << "," << y << "," << c;
            });
            if (testing::Test::HasFailure()) return;
        }
}

TEST(Every, Every8uMember) { everyMember<Kro8u>(); }
TEST(Every, Every16uMember) { everyMember<Kro16u>(); }
TEST(Every, Every16sMember) { everyMember<Kro16s>(); }
TEST(Every, Every32fMember) { everyMember<Kro32f>(); }

TEST(Every, NaNAndSignedZeros)
{
    float d[4] = {NAN, 1.0f, 0.0f, -0.0f};
    const float s[4] = {1.0f, NAN, -0.0f, 0.0f};
    ASSERT_EQ(kroiMinEvery_32f_C1IR(s, 16, d, 16, {4, 1}), kroStsOk);
    EXPECT_TRUE(std::isnan(d[0])) << "a NaN in the destination stays";
    EXPECT_EQ(d[1], 1.0f) << "a NaN in the source never replaces";
    EXPECT_FALSE(std::signbit(d[2])) << "of two zeros the destination's is kept";
    EXPECT_TRUE(std::signbit(d[3]));
    ASSERT_EQ(kroiMaxEvery_32f_C1IR(s, 16, d, 16, {4, 1}), kroStsOk);
    EXPECT_TRUE(std::isnan(d[0]));
    EXPECT_EQ(d[1], 1.0f);
    Kro16u a[2] = {65535, 0};
    const Kro16u b[2] = {0, 65535};
    ASSERT_EQ(kroiMaxEvery_16u_C1IR(b, 4, a, 4, {2, 1}), kroStsOk);
    EXPECT_EQ(a[0], 65535);
    EXPECT_EQ(a[1], 65535);
}

// ---- check order ------------------------------------------------------------------------------------

// Null pointers -8 before a bad size -6, nothing written; no step is checked.
template <class T>
void checkOrder()
{
    kt::Guarded<T> img(4, 2, 4);
    img.fillBytes(0x3C);
    const auto before = img.snapshot();
    for (const auto& m : members<T>()) {
        SCOPED_TRACE(m.name);
        EXPECT_EQ(m.r(nullptr, 16, img.ptr(), img.step(), {0, 0}, 0), kroStsNullPointerErr);
        EXPECT_EQ(m.r(img.ptr(), 16, nullptr, img.step(), {4, 2}, 0), kroStsNullPointerErr);
        EXPECT_EQ(m.i(nullptr, img.step(), {-1, 2}, 0), kroStsNullPointerErr);
        EXPECT_EQ(m.r(img.ptr(), img.step(), img.ptr(), img.step(), {0, 2}, INT_MIN), kroStsBadSizeErr);
        EXPECT_EQ(m.i(img.ptr(), img.step(), {4, -1}, 0), kroStsBadSizeErr);
        EXPECT_TRUE(img.unchangedSince(before));
        T one[4] = {}, out[4];
        EXPECT_GE(m.r(one, 0, out, 0, {1, 3}, 0), kroStsOk) << "steps are used as given";
    }
    for (const auto& m : everyMembers<T>()) {
        EXPECT_EQ(m.f(nullptr, 16, img.ptr(), img.step(), {0, 0}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.f(img.ptr(), 16, nullptr, 16, {1, 1}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.f(img.ptr(), img.step(), img.ptr(), img.step(), {1, 0}), kroStsBadSizeErr) << m.name;
        EXPECT_TRUE(img.unchangedSince(before));
    }
}

TEST(UnaryChecks, Order8u) { checkOrder<Kro8u>(); }
TEST(UnaryChecks, Order16u) { checkOrder<Kro16u>(); }
TEST(UnaryChecks, Order16s) { checkOrder<Kro16s>(); }
TEST(UnaryChecks, Order32f) { checkOrder<Kro32f>(); }

}  // namespace
}  // namespace unary_test
