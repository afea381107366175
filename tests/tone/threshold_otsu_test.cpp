// Otsu's threshold against a transcription of its sequence of operations, on random,
// constant, two-valued and near-degenerate images, and its checks.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <vector>

#include "kroi.h"
#include "support/random.hpp"

namespace {

// Written from the rule, not from the library: bin centres at i + 0.5, the admission test,
// m advanced by admitted bins only, strict improvement, truncation.
int transcription(const kt::Guarded<Kro8u>& img)
{
    std::vector<double> h(256, 0.0);
    img.forEach([&](int, int, int, const Kro8u& v) { h[v] += 1; });
    double N = 0;
    for (double c : h) N += c;
    const double inv = std::abs(N) > 1.1920928955078125e-7 ? 1 / N : 0;
    double sum = 0;
    for (int i = 0; i < 256; ++i) sum += (i + 0.5) * h[i];
    const double mT = inv * sum;
    double best = 0.0, threshold = 0.0, w0 = 0, m = 0;
    for (int i = 0; i < 256; ++i) {
        const double p = inv * h[i];
        w0 = w0 + p;
        const double w1 = 1.0 - w0;
        if (!(std::min(w0, w1) >= 1.1920928955078125e-7 && std::max(w0, w1) <= 0.9999998807907104)) continue;
        m = m + p * (i + 0.5);
        const double s = (w1 * m - (mT - m) * w0) * (w1 * m - (mT - m) * w0) / (w1 * w0);
        if (s > best) threshold = i + 0.5;
        best = std::max(best, s);
    }
    return int(threshold);
}

int otsu(const kt::Guarded<Kro8u>& img)
{
    Kro8u t = 77;
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(img.ptr(), img.step(), {img.width(), img.height()}, &t), kroStsOk);
    return t;
}

TEST(Otsu, MatchesTranscription)
{
    auto rng = kt::rngForTest();
    for (int trial = 0; trial < 60; ++trial) {
        const int w = kt::uniform(rng, 1, 90), h = kt::uniform(rng, 1, 40);
        kt::Guarded<Kro8u> img(kt::Shape{w, h, 1, trial % 3 * 5, kt::Guard::Before, trial % 7});
        // Mixtures of a few clusters of varying spread, so that the best bin moves around.
        const int a = kt::uniform(rng, 0, 255), b = kt::uniform(rng, 0, 255), spread = kt::uniform(rng, 0, 40);
        img.forEach([&](int, int, int, Kro8u& v) {
            const int c = kt::uniform(rng, 0, 2) ? a : b;
            v = Kro8u(std::clamp(c + kt::uniform(rng, -spread, spread), 0, 255));
        });
        ASSERT_EQ(otsu(img), transcription(img)) << w << "x" << h;
    }
}

TEST(Otsu, ConstantTwoValuedAndNearDegenerate)
{
    kt::Guarded<Kro8u> flat(33, 7);
    flat.forEach([](int, int, int, Kro8u& v) { v = 140; });
    EXPECT_EQ(otsu(flat), 0);
    // Half 0 and half 255: the first admitted bin already scores the most.
    kt::Guarded<Kro8u> two(32, 8);
    two.forEach([](int x, int, int, Kro8u& v) { v = x < 16 ? 0 : 255; });
    EXPECT_EQ(otsu(two), 0);
    two.forEach([](int x, int, int, Kro8u& v) { v = x < 16 ? 40 : 41; });
    EXPECT_EQ(otsu(two), 40);
    // One odd pixel among 2^23 and among more: its class weight sits on either side of the
    // admission limit.
    for (int w : {4096, 4097}) {
        kt::Guarded<Kro8u> big(w, 2048);
        big.forEach([](int x, int y, int, Kro8u& v) { v = x == 5 && y == 9 ? 3 : (x + y) % 2 ? 100 : 200; });
        EXPECT_EQ(otsu(big), transcription(big)) << w;
    }
}

TEST(Otsu, Checks)
{
    kt::Guarded<Kro8u> img(8, 2);
    Kro8u t = 9;
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(nullptr, 0, {0, 0}, &t), kroStsNullPointerErr);
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(img.ptr(), 8, {8, 2}, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(img.ptr(), 0, {0, 2}, &t), kroStsBadSizeErr);
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(img.ptr(), 7, {8, 2}, &t), kroStsBadStepErr);
    EXPECT_EQ(t, 9);
    EXPECT_EQ(kroiComputeThreshold_Otsu_8u_C1R(img.ptr(), 8, {8, 2}, &t), kroStsOk);
}

}  // namespace
