// Ramps, zone plates and checkerboards against their closed forms, between guard pages, with
// the fourth AC4 element and the row padding untouched; check orders with canaries.
#include <cfenv>
#include <climits>
#include <cmath>
#include <string>

#include <gtest/gtest.h>

#include "generate/generate_members.hpp"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"

namespace generate_test {
namespace {

// A double as an element of T: nearest with ties to even, saturated, NaN 0 (integers), the
// nearest float otherwise.
template <class T>
T toElement(double v)
{
    if constexpr (std::is_floating_point_v<T>) {
        return T(v);
    } else {
        if (std::isnan(v)) return T(0);
        const double r = std::nearbyint(v); // the test runs in the default rounding mode
        return r <= std::numeric_limits<T>::min() ? std::numeric_limits<T>::min()
             : r >= std::numeric_limits<T>::max() ? std::numeric_limits<T>::max()
                                                  : T(r);
    }
}

template <class T>
void everyRamp()
{
    ASSERT_EQ(std::fegetround(), FE_TONEAREST);
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : Members<T>::ramp)
        for (KroiRampAxis axis : {kroRampAxisX, kroRampAxisY, kroRampAxisXY})
            for (const kt::Shape& sh : {kt::Shape{37, 5, m.channels, 0, kt::Guard::After},
                                        kt::Shape{300, 3, m.channels, 6 * int(sizeof(T)), kt::Guard::Before, 4}}) {
                const float offset = float(kt::uniform(rng, -300, 300)) + 0.5f, slope = float(kt::uniform(rng, -99, 99)) / 8;
                SCOPED_TRACE(std::string(m.name) + " axis " + std::to_string(axis) + " slope " + std::to_string(slope));
                kt::Guarded<T> d(kt::typed<T>(sh));
                kt::fillRandom(d, rng);
                const auto before = d.snapshot();
                ASSERT_EQ(m.f(d.ptr(), d.step(), {sh.width, sh.height}, offset, slope, axis), kroStsOk);
                EXPECT_TRUE(d.restUnchangedSince(before, m.written));
                EXPECT_IMAGE_EQ(d, [&](int x, int y, int c) {
                    const double t = axis == kroRampAxisX ? x : axis == kroRampAxisY ? y : double(x) * y;
                    return c < m.written ? toElement<T>(double(offset) + double(slope) * t) : d.at(x, y, c);
                });
            }
}

TEST(Ramp, Every8uMember) { everyRamp<Kro8u>(); }
TEST(Ramp, Every8sMember) { everyRamp<Kro8s>(); }
TEST(Ramp, Every16uMember) { everyRamp<Kro16u>(); }
TEST(Ramp, Every16sMember) { everyRamp<Kro16s>(); }
TEST(Ramp, Every32fMember) { everyRamp<Kro32f>(); }

TEST(Ramp, ChecksAndTies)
{
    kt::Guarded<Kro8u> d(8, 2, 1);
    d.fillBytes(0x77);
    const auto before = d.snapshot();
    EXPECT_EQ(kroiImageRamp_8u_C1R(nullptr, 8, {0, 0}, 0, 1, 7), kroStsNullPointerErr);
    EXPECT_EQ(kroiImageRamp_8u_C1R(d.ptr(), 8, {8, 0}, 0, 1, 7), kroStsBadSizeErr);
    EXPECT_EQ(kroiImageRamp_8u_C1R(d.ptr(), 8, {8, 2}, 0, 1, 3), kroStsBadArgumentErr);
    EXPECT_EQ(kroiImageRamp_8u_C1R(d.ptr(), 8, {8, 2}, 0, 1, -1), kroStsBadArgumentErr);
    EXPECT_TRUE(d.unchangedSince(before));
    // 0.5, 1.5, 2.5, ... go to the even neighbour; NaN gives 0; far values saturate.
    ASSERT_EQ(kroiImageRamp_8u_C1R(d.ptr(), d.step(), {8, 1}, 0.5f, 1.0f, kroRampAxisX), kroStsOk);
    EXPECT_EQ(d.at(0, 0, 0), 0);
    EXPECT_EQ(d.at(1, 0, 0), 2);
    EXPECT_EQ(d.at(2, 0, 0), 2);
    ASSERT_EQ(kroiImageRamp_8u_C1R(d.ptr(), d.step(), {8, 1}, NAN, 1.0f, kroRampAxisX), kroStsOk);
    EXPECT_EQ(d.at(5, 0, 0), 0);
    Kro16s s[4];
    ASSERT_EQ(kroiImageRamp_16s_C1R(s, 8, {4, 1}, -1e9f, 1e9f, kroRampAxisX), kroStsOk);
    EXPECT_EQ(s[0], -32768);
    EXPECT_EQ(s[1], 0);
    EXPECT_EQ(s[2], 32767);
}

// cos(pi t), t = r^2 / 2R, within the last unit of every type (the library's cosine is within
// 2^-50, so only exact values next to a rounding boundary can round the other way).
template <class T>
void zonePlate(KroStatus (*f)(T*, int, KroiSize), double amplitude, double centre)
{
    for (KroiSize roi : {KroiSize{64, 48}, KroiSize{33, 1}, KroiSize{1, 1}, KroiSize{255, 7}}) {
        kt::Guarded<T> d(roi.width, roi.height, 1, 2 * int(sizeof(T)));
        d.fillBytes(0x41);
        const auto before = d.snapshot();
        ASSERT_EQ(f(d.ptr(), d.step(), roi), kroStsOk);
        EXPECT_TRUE(d.restUnchangedSince(before, 1));
        const long double cx = (roi.width - 1) / 2.0L, cy = (roi.height - 1) / 2.0L;
        const long double R = sqrtl(cx * cx + cy * cy);
        for (int y = 0; y < roi.height; ++y)
            for (int x = 0; x < roi.width; ++x) {
                const long double r2 = (x - cx) * (x - cx) + (y - cy) * (y - cy);
                const long double c = cosl(3.14159265358979323846264338327950288L * (R > 0 ? r2 / (2 * R) : 0));
                const double want = double(centre + amplitude * c);
                const double tolerance = std::is_floating_point_v<T> ? 1e-6 : 0.5 + 1e-9;
                EXPECT_NEAR(double(d.at(x, y, 0)), want, tolerance) << x << "," << y;
            }
        // The corners reach the Nyquist limit: neighbours there differ by about half a cycle.
        if (roi.width > 32 && roi.height > 32) {
            const double a = double(d.at(0, 0, 0)) - centre, b = double(d.at(1, 0, 0)) - centre;
            EXPECT_LT(a * b, 0.0) << "neighbours at a corner have opposite signs";
        }
    }
    EXPECT_EQ(f(nullptr, 4, {1, 1}), kroStsNullPointerErr);
    T one[1];
    EXPECT_EQ(f(one, 4, {1, 0}), kroStsBadSizeErr);
}

TEST(ZonePlate, ClosedForm8u) { zonePlate<Kro8u>(kroiImageZonePlate_8u_C1R, 127.5, 127.5); }
TEST(ZonePlate, ClosedForm16s) { zonePlate<Kro16s>(kroiImageZonePlate_16s_C1R, 32767, 0); }
TEST(ZonePlate, ClosedForm32f) { zonePlate<Kro32f>(kroiImageZonePlate_32f_C1R, 1, 0); }

template <class T>
void checkerboard(KroStatus (*f)(T*, int, KroiSize, int, T, T), T a, T b)
{
    for (int cell : {1, 3, 8, 1000, INT_MAX}) {
        const KroiSize roi{29, 11};
        kt::Guarded<T> d(kt::Shape{roi.width, roi.height, 1, 3 * int(sizeof(T)), kt::Guard::Before, 2 * int(sizeof(T))});
        d.fillBytes(0x41);
        const auto before = d.snapshot();
        ASSERT_EQ(f(d.ptr(), d.step(), roi, cell, a, b), kroStsOk);
        EXPECT_TRUE(d.restUnchangedSince(before, 1));
        EXPECT_IMAGE_EQ(d, [&](int x, int y, int) { return (x / cell + y / cell) % 2 == 0 ? a : b; });
    }
    kt::Guarded<T> d(4, 4, 1);
    d.fillBytes(0x41);
    const auto before = d.snapshot();
    EXPECT_EQ(f(nullptr, 4, {0, 4}, 0, a, b), kroStsNullPointerErr);
    EXPECT_EQ(f(d.ptr(), d.step(), {0, 4}, 0, a, b), kroStsBadSizeErr);
    EXPECT_EQ(f(d.ptr(), d.step(), {4, 4}, 0, a, b), kroStsBadSizeErr);
    EXPECT_EQ(f(d.ptr(), d.step(), {4, 4}, -3, a, b), kroStsBadSizeErr);
    EXPECT_TRUE(d.unchangedSince(before));
}

TEST(Checkerboard, ClosedForm)
{
    checkerboard<Kro8u>(kroiImageCheckerboard_8u_C1R, 255, 0);
    checkerboard<Kro16s>(kroiImageCheckerboard_16s_C1R, -5, 1234);
    checkerboard<Kro32f>(kroiImageCheckerboard_32f_C1R, 0.25f, -1.0f);
}

}  // namespace
}  // namespace generate_test
