// Moments: raw moments against exact references, the getters against closed forms and a
// direct computation, Hu invariants under mirror and rotation, check orders, guard pages.
#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>
#include <xmmintrin.h>

#include "kroi.h"
#include "stat/moments_kernels.hpp"
#include "support/random.hpp"

namespace {

using u128 = unsigned __int128;

double rawOf(const KroiMomentState64f& s, int c, int p, int q) { return s.raw[16 * c + 2 + p + 4 * q - 2]; }

KroiMomentState64f freshState()
{
    KroiMomentState64f s;
    std::memset(&s, 0xA5, sizeof s);
    EXPECT_EQ(kroiMomentInit_64f(&s, kroHintAccurate), kroStsOk);
    return s;
}

template <class T>
using MomentFn = KroStatus (*)(const T*, int, KroiSize, KroiMomentState64f*);

template <class T>
struct Member {
    MomentFn<T> fn;
    int elems;
};

const Member<Kro8u> k8u[] = {{kroiMoments64f_8u_C1R, 1}, {kroiMoments64f_8u_C3R, 3}, {kroiMoments64f_8u_AC4R, 4}};
const Member<Kro16u> k16u[] = {{kroiMoments64f_16u_C1R, 1}, {kroiMoments64f_16u_C3R, 3}, {kroiMoments64f_16u_AC4R, 4}};
const Member<Kro32f> k32f[] = {{kroiMoments64f_32f_C1R, 1}, {kroiMoments64f_32f_C3R, 3}, {kroiMoments64f_32f_AC4R, 4}};

// Integer images: the exact sums in 128 bits, converted once.
template <class T>
void expectExact(const kt::Guarded<T>& img, int channels, const KroiMomentState64f& s)
{
    for (int c = 0; c < channels; ++c)
        for (int p = 0; p <= 3; ++p)
            for (int q = 0; p + q <= 3; ++q) {
                u128 sum = 0;
                for (int y = 0; y < img.height(); ++y)
                    for (int x = 0; x < img.width(); ++x) {
                        u128 w = img.at(x, y, c);
                        for (int i = 0; i < p; ++i) w *= u128(x);
                        for (int j = 0; j < q; ++j) w *= u128(y);
                        sum += w;
                    }
                ASSERT_EQ(rawOf(s, c, p, q), double(sum)) << "channel " << c << " M" << p << q;
            }
}

template <class T>
void exactOnRandomImages(const Member<T>* members)
{
    auto rng = kt::rngForTest();
    const KroiSize sizes[] = {{1, 1}, {5, 3}, {17, 65}, {600, 7}, {1030, 131}, {33, 300}};
    for (int m = 0; m < 3; ++m)
        for (KroiSize sz : sizes)
            for (bool extreme : {false, true}) {
                kt::Guarded<T> img(kt::typed<T>(kt::Shape{sz.width, sz.height, members[m].elems, 7, kt::Guard::Before, 3}));
                img.forEach([&](int, int, int, T& v) { v = extreme ? T(~T(0)) : kt::uniform<T>(rng, 0, T(~T(0))); });
                KroiMomentState64f s = freshState();
                ASSERT_EQ(members[m].fn(img.ptr(), img.step(), sz, &s), kroStsOk);
                ASSERT_EQ(s.numChannels, members[m].elems == 1 ? 1 : 3);
                expectExact(img, s.numChannels, s);
            }
}

TEST(Moments, IntegerSumsAreExactlyRounded)
{
    exactOnRandomImages(k8u);
    exactOnRandomImages(k16u);
}

// The 32f order written out from the header, compared bit for bit.
TEST(Moments, FloatFollowsTheStatedOrder)
{
    auto rng = kt::rngForTest();
    for (const auto& m : k32f)
        for (KroiSize sz : {KroiSize{1, 1}, KroiSize{13, 9}, KroiSize{300, 40}}) {
            kt::Guarded<Kro32f> img(kt::Shape{sz.width, sz.height, m.elems, 4});
            img.forEach([&](int, int, int, Kro32f& v) { v = kt::randomValue<Kro32f>(rng); });
            KroiMomentState64f s = freshState();
            // A caller's rounding toward zero must not reach the sums.
            const unsigned csr = _mm_getcsr();
            _mm_setcsr((csr & ~0x6000u) | 0x6000u);
            const KroStatus st = m.fn(img.ptr(), img.step(), sz, &s);
            EXPECT_EQ(_mm_getcsr(), (csr & ~0x6000u) | 0x6000u);
            _mm_setcsr(csr);
            ASSERT_EQ(st, kroStsOk);
            const int channels = m.elems == 1 ? 1 : 3;
            for (int c = 0; c < channels; ++c) {
                double M[4][4] = {};
                for (int y = 0; y < sz.height; ++y) {
                    double r[4] = {};
                    for (int x = 0; x < sz.width; ++x) {
                        const double v = img.at(x, y, c), xd = x, x2 = xd * xd, x3 = x2 * xd;
                        r[0] += v, r[1] += xd * v, r[2] += x2 * v, r[3] += x3 * v;
                    }
                    const double yd = y, yq[4] = {1, yd, yd * yd, yd * yd * yd};
                    for (int p = 0; p <= 3; ++p)
                        for (int q = 0; p + q <= 3; ++q) M[p][q] += q == 0 ? r[p] : yq[q] * r[p];
                }
                for (int p = 0; p <= 3; ++p)
                    for (int q = 0; p + q <= 3; ++q) ASSERT_EQ(rawOf(s, c, p, q), M[p][q]) << c << p << q;
            }
        }
}

// The 256-bit totals round once, ties to even, also where 128 bits no longer hold them.
TEST(Moments, WideTotalsRoundToNearestEven)
{
    namespace st = t3::stat;
    auto rng = kt::rngForTest();
    for (int i = 0; i < 20000; ++i) {
        const u128 a = (u128(rng()) << 96 | u128(rng()) << 64 | u128(rng()) << 32 | rng()) >> (rng() % 127);
        st::U256 v;
        v.addProduct(a, 1);
        ASSERT_EQ(st::toDouble(v), double(a));
    }
    // 2^200 + 2^147: exactly half an ulp above 2^200, ties to the even 2^200; one more unit
    // below it rounds up.
    st::U256 tie;
    tie.addProduct(u128(1) << 100, u128(1) << 100);
    tie.addProduct(u128(1) << 100, u128(1) << 47);
    EXPECT_EQ(st::toDouble(tie), std::ldexp(1.0, 200));
    tie.addProduct(1, 1);
    EXPECT_EQ(st::toDouble(tie), std::ldexp(1.0, 200) + std::ldexp(1.0, 148));
    st::U256 top;
    top.addProduct(~u128(0), ~u128(0)); // (2^128 - 1)^2 rounds up to 2^256
    EXPECT_EQ(st::toDouble(top), std::ldexp(1.0, 256));
}

// A filled rectangle: centroid and second central moments in closed form.
TEST(Moments, GettersOnARectangle)
{
    const int W = 40, H = 30, x0 = 7, y0 = 5, w = 21, h = 12;
    kt::Guarded<Kro8u> img(W, H, 1);
    img.forEach([&](int x, int y, int, Kro8u& v) { v = (x >= x0 && x < x0 + w && y >= y0 && y < y0 + h) ? 1 : 0; });
    KroiMomentState64f s = freshState();
    ASSERT_EQ(kroiMoments64f_8u_C1R(img.ptr(), img.step(), {W, H}, &s), kroStsOk);
    double v = -1;
    ASSERT_EQ(kroiGetSpatialMoment_64f(&s, 0, 0, 0, {0, 0}, &v), kroStsOk);
    EXPECT_EQ(v, w * h);
    ASSERT_EQ(kroiGetSpatialMoment_64f(&s, 1, 0, 0, {0, 0}, &v), kroStsOk);
    EXPECT_EQ(v / (w * h), x0 + (w - 1) / 2.0);
    // About an origin moved by the offset: the moment of x + 10.
    ASSERT_EQ(kroiGetSpatialMoment_64f(&s, 1, 0, 0, {10, 0}, &v), kroStsOk);
    EXPECT_EQ(v / (w * h), x0 + 10 + (w - 1) / 2.0);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 1, 0, 0, &v), kroStsOk);
    EXPECT_EQ(v, 0.0);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 0, 1, 0, &v), kroStsOk);
    EXPECT_EQ(v, 0.0);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 2, 0, 0, &v), kroStsOk);
    EXPECT_NEAR(v, h * w * (w * w - 1) / 12.0, 1e-9);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 0, 2, 0, &v), kroStsOk);
    EXPECT_NEAR(v, w * h * (h * h - 1) / 12.0, 1e-9);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 1, 1, 0, &v), kroStsOk);
    EXPECT_NEAR(v, 0.0, 1e-9);
    ASSERT_EQ(kroiGetCentralMoment_64f(&s, 3, 0, 0, &v), kroStsOk);
    EXPECT_NEAR(v, 0.0, 1e-7);
    ASSERT_EQ(kroiGetNormalizedCentralMoment_64f(&s, 2, 0, 0, &v), kroStsOk);
    EXPECT_NEAR(v, h * w * (w * w - 1) / 12.0 / std::pow(double(w * h), 2.0), 1e-15);
    ASSERT_EQ(kroiGetNormalizedSpatialMoment_64f(&s, 1, 0, 0, {0, 0}, &v), kroStsOk);
    EXPECT_NEAR(v, (x0 + (w - 1) / 2.0) * (w * h) / std::pow(double(w * h), 1.5), 1e-15);
}

// A rotated ellipse of grey levels: every central moment against a direct sum about the
// centroid in long double.
TEST(Moments, CentralMomentsMatchADirectComputation)
{
    const int W = 120, H = 90;
    kt::Guarded<Kro16u> img(W, H, 3);
    const double ang = 0.6, ca = std::cos(ang), sa = std::sin(ang);
    img.forEach([&](int x, int y, int c, Kro16u& v) {
        const double u = (x - 57.3) * ca + (y - 41.8) * sa, w = -(x - 57.3) * sa + (y - 41.8) * ca;
        v = (u * u / 1600 + w * w / 300 <= 1) ? Kro16u(1000 + 300 * c + (x * 7 + y * 3) % 50) : 0;
    });
    KroiMomentState64f s = freshState();
    ASSERT_EQ(kroiMoments64f_16u_C3R(img.ptr(), img.step(), {W, H}, &s), kroStsOk);
    for (int c = 0; c < 3; ++c) {
        long double m00 = 0, m10 = 0, m01 = 0;
        img.forEach([&](int x, int y, int cc, Kro16u& v) {
            if (cc == c) m00 += v, m10 += (long double)x * v, m01 += (long double)y * v;
        });
        const long double xc = m10 / m00, yc = m01 / m00;
        for (int p = 0; p <= 3; ++p)
            for (int q = 0; p + q <= 3; ++q) {
                long double mu = 0;
                img.forEach([&](int x, int y, int cc, Kro16u& v) {
                    if (cc == c) mu += std::pow(x - xc, (long double)p) * std::pow(y - yc, (long double)q) * v;
                });
                double got = 0;
                ASSERT_EQ(kroiGetCentralMoment_64f(&s, p, q, c, &got), kroStsOk);
                EXPECT_NEAR(got, double(mu), 1e-9 * std::pow(double(W), p + q) * double(m00)) << c << p << q;
            }
    }
}

// Hu invariants: I1..I6 survive a mirror and I7 changes sign; a quarter turn keeps all seven.
TEST(Moments, HuInvariantsUnderMirrorAndRotation)
{
    const int N = 64;
    kt::Guarded<Kro32f> a(N, N, 1), mirror(N, N, 1), turn(N, N, 1);
    auto rng = kt::rngForTest();
    a.forEach([&](int x, int y, int, Kro32f& v) {
        // A triangle and an off-centre blob: no symmetry, so I7 is far from 0.
        const bool tri = x > 4 && y > 4 && x + 2 * y < 70;
        const bool blob = (x - 45) * (x - 45) + (y - 50) * (y - 50) < 60;
        v = tri || blob ? float(kt::uniform<int>(rng, 1, 255)) * (blob ? 3.f : 1.f) : 0.f;
    });
    mirror.forEach([&](int x, int y, int, Kro32f& v) { v = a.at(N - 1 - x, y); });
    turn.forEach([&](int x, int y, int, Kro32f& v) { v = a.at(y, N - 1 - x); });
    double hu[3][7];
    const kt::Guarded<Kro32f>* imgs[] = {&a, &mirror, &turn};
    for (int i = 0; i < 3; ++i) {
        KroiMomentState64f s = freshState();
        ASSERT_EQ(kroiMoments64f_32f_C1R(imgs[i]->ptr(), imgs[i]->step(), {N, N}, &s), kroStsOk);
        ASSERT_EQ(kroiGetHuMoments_64f(&s, 0, hu[i]), kroStsOk);
    }
    for (int k = 0; k < 7; ++k) {
        const double tol = 1e-7 * std::fabs(hu[0][k]);
        EXPECT_NEAR(hu[1][k], k == 6 ? -hu[0][k] : hu[0][k], tol) << "I" << k + 1;
        EXPECT_NEAR(hu[2][k], hu[0][k], tol) << "I" << k + 1;
    }
    EXPECT_GT(std::fabs(hu[0][6]), 1e-22); // the shape is not symmetric: I7 is a real test
}

TEST(Moments, ChecksInOrderAndNothingWritten)
{
    kt::Guarded<Kro8u> img(8, 4, 1);
    img.fillBytes(3);
    KroiMomentState64f s = freshState();
    const auto before = s;
    auto same = [&] { return std::memcmp(&s, &before, sizeof s) == 0; };
    const KroiSize roi{8, 4};
    EXPECT_EQ(kroiMoments64f_8u_C1R(nullptr, img.step(), roi, &s), kroStsNullPointerErr);
    EXPECT_EQ(kroiMoments64f_8u_C1R(img.ptr(), img.step(), roi, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiMoments64f_8u_C1R(img.ptr(), 0, {0, 4}, &s), kroStsBadStepErr);
    EXPECT_EQ(kroiMoments64f_8u_C1R(img.ptr(), img.step(), {0, 4}, &s), kroStsBadSizeErr);
    EXPECT_EQ(kroiMoments64f_8u_C1R(img.ptr(), 7, roi, &s), kroStsShortStepErr);
    EXPECT_EQ(kroiMoments64f_16u_C3R(reinterpret_cast<const Kro16u*>(img.ptr()), 47, {8, 1}, &s), kroStsShortStepErr);
    EXPECT_TRUE(same());
    KroiMomentState64f bad = s;
    bad.tag = 34;
    const auto badBefore = bad;
    double v = 7, hu[7] = {};
    EXPECT_EQ(kroiMoments64f_8u_C1R(img.ptr(), 0, {0, 0}, &bad), kroStsWrongTagErr);
    EXPECT_EQ(kroiGetSpatialMoment_64f(&bad, 9, 9, 9, {0, 0}, &v), kroStsWrongTagErr);
    EXPECT_EQ(kroiGetCentralMoment_64f(&bad, 0, 0, 0, &v), kroStsWrongTagErr);
    EXPECT_EQ(kroiGetNormalizedSpatialMoment_64f(&bad, 0, 0, 0, {0, 0}, &v), kroStsWrongTagErr);
    EXPECT_EQ(kroiGetNormalizedCentralMoment_64f(&bad, 0, 0, 0, &v), kroStsWrongTagErr);
    EXPECT_EQ(kroiGetHuMoments_64f(&bad, 0, hu), kroStsWrongTagErr);
    EXPECT_EQ(std::memcmp(&bad, &badBefore, sizeof bad), 0);
    // Channel count -1 until a moment call: every channel is refused.
    EXPECT_EQ(kroiGetSpatialMoment_64f(&s, 0, 0, 0, {0, 0}, &v), kroStsBadChannelErr);
    ASSERT_EQ(kroiMoments64f_8u_C1R(img.ptr(), img.step(), roi, &s), kroStsOk);
    EXPECT_EQ(kroiGetSpatialMoment_64f(&s, 2, 2, 5, {0, 0}, &v), kroStsBadSizeErr);
    EXPECT_EQ(kroiGetSpatialMoment_64f(&s, -1, 0, 0, {0, 0}, &v), kroStsBadSizeErr);
    EXPECT_EQ(kroiGetCentralMoment_64f(&s, 0, 0, 1, &v), kroStsBadChannelErr);
    EXPECT_EQ(kroiGetCentralMoment_64f(&s, 0, 0, 0, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(v, 7);
    int size = 0;
    EXPECT_EQ(kroiMomentGetStateSize_64f(kroHintNone, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiMomentGetStateSize_64f(kroHintNone, &size), kroStsOk);
    EXPECT_EQ(size, 400);
    EXPECT_EQ(kroiMomentInit_64f(nullptr, kroHintNone), kroStsNullPointerErr);
}

TEST(Moments, ZeroMassAndChannels)
{
    kt::Guarded<Kro8u> img(6, 5, 3);
    img.fillBytes(0);
    KroiMomentState64f s = freshState();
    ASSERT_EQ(kroiMoments64f_8u_C3R(img.ptr(), img.step(), {6, 5}, &s), kroStsOk);
    double v = 7, hu[7] = {1, 2, 3, 4, 5, 6, 7};
    EXPECT_EQ(kroiGetSpatialMoment_64f(&s, 1, 1, 2, {3, 4}, &v), kroStsOk);
    EXPECT_EQ(v, 0.0);
    v = 7;
    EXPECT_EQ(kroiGetCentralMoment_64f(&s, 2, 0, 0, &v), kroStsZeroMassErr);
    EXPECT_EQ(kroiGetNormalizedCentralMoment_64f(&s, 2, 0, 1, &v), kroStsZeroMassErr);
    EXPECT_EQ(kroiGetNormalizedSpatialMoment_64f(&s, 0, 0, 2, {0, 0}, &v), kroStsZeroMassErr);
    EXPECT_EQ(kroiGetHuMoments_64f(&s, 0, hu), kroStsZeroMassErr);
    EXPECT_EQ(kroiGetHuMoments_64f(&s, 3, hu), kroStsBadChannelErr);
    EXPECT_EQ(v, 7);
    EXPECT_EQ(hu[6], 7);
}

}  // namespace
