// Additive noise: uniform noise against an independent transcription of the generator and
// its arithmetic; the same seed giving the same image and a second call continuing the
// sequence; Gaussian sample statistics on a large image; saturation and rounding at the
// types' edges; every member between guard pages; check order with canaries.
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "generate/generate_members.hpp"
#include "support/compare.hpp"
#include "support/guarded.hpp"
#include "support/random.hpp"

namespace generate_test {
namespace {

constexpr uint32_t kStep = 0x9E3779B9u;

// Sample k >= 1 after state s: the Weyl state through MurmurHash3's 32-bit finaliser.
uint32_t sample(uint32_t s, uint32_t k)
{
    uint32_t z = s + k * kStep;
    z = (z ^ (z >> 16)) * 0x85EBCA6Bu;
    z = (z ^ (z >> 13)) * 0xC2B2AE35u;
    return z ^ (z >> 16);
}

float uniformNoise(uint32_t s, uint32_t e, float lo, float hi)
{
    const float u = float(sample(s, e + 1) >> 8) / 16777215.0f;
    return lo + (hi - lo) * u;
}

template <class T>
T addRounded(T x, float n)
{
    const float r = float(x) + n;
    if constexpr (std::is_floating_point_v<T>) {
        return r;
    } else {
        const double v = std::nearbyint(double(r)); // float r is exact in double; ties to even
        return v <= std::numeric_limits<T>::min() ? std::numeric_limits<T>::min()
             : v >= std::numeric_limits<T>::max() ? std::numeric_limits<T>::max()
                                                  : T(v);
    }
}

// Uniform noise on random images of every member, exactly; the seed advanced by one sample
// per written element.
template <class T>
void uniformExact()
{
    kt::Rng rng = kt::rngForTest();
    for (const auto& m : Members<T>::noise)
        for (const kt::Shape& sh : {kt::Shape{67, 3, m.channels, 0, kt::Guard::After},
                                    kt::Shape{5, 4, m.channels, 2 * int(sizeof(T)), kt::Guard::Before, 3}}) {
            SCOPED_TRACE(std::string(m.name) + " width " + std::to_string(sh.width));
            kt::Guarded<T> d(kt::typed<T>(sh));
            kt::fillRandom(d, rng, kt::FloatMix{-100, 100});
            const auto before = d.snapshot();
            std::vector<T> old;
            d.forEach([&](int, int, int, T& e) { old.push_back(e); });
            const uint32_t seed0 = uint32_t(rng());
            unsigned int seed = seed0;
            const float lo = std::is_unsigned_v<T> ? -40.0f : -70.5f, hi = 60.25f;
            ASSERT_EQ(m.uniform(d.ptr(), d.step(), {sh.width, sh.height}, lo, hi, &seed), kroStsOk);
            EXPECT_TRUE(d.restUnchangedSince(before, m.written));
            EXPECT_EQ(seed, seed0 + uint32_t(sh.width * sh.height * m.written) * kStep);
            uint32_t e = 0;
            std::size_t k = 0;
            d.forEach([&](int x, int y, int c, T& got) {
                const T o = old[k++];
                if (c >= m.written) return;
                const T want = addRounded(o, uniformNoise(seed0, e++, lo, hi));
                EXPECT_EQ(std::memcmp(&got, &want, sizeof(T)), 0) << x << "," << y << "," << c;
            });
            if (testing::Test::HasFailure()) return;
        }
}

TEST(Noise, UniformExact8u) { uniformExact<Kro8u>(); }
TEST(Noise, UniformExact8s) { uniformExact<Kro8s>(); }
TEST(Noise, UniformExact16u) { uniformExact<Kro16u>(); }
TEST(Noise, UniformExact16s) { uniformExact<Kro16s>(); }
TEST(Noise, UniformExact32f) { uniformExact<Kro32f>(); }

// Gaussian noise: the same seed gives the same image in every member, a call on the top rows
// and one on the rest give the image of one call, and the seed moves by 2 ceil(N / 2).
template <class T>
void gaussRepeatsAndContinues()
{
    for (const auto& m : Members<T>::noise) {
        SCOPED_TRACE(m.name);
        const KroiSize roi{34, 6}; // 34 x written channels is even: the halves split between pairs
        kt::Guarded<T> a(roi.width, roi.height, m.channels), b(roi.width, roi.height, m.channels, 4 * int(sizeof(T)));
        a.forEach([](int, int, int, T& e) { e = T(40); });
        b.forEach([](int, int, int, T& e) { e = T(40); });
        unsigned int sa = 99, sb = 99;
        ASSERT_EQ(m.gauss(a.ptr(), a.step(), roi, 2.0f, 9.0f, &sa), kroStsOk);
        ASSERT_EQ(m.gauss(b.ptr(), b.step(), {roi.width, 2}, 2.0f, 9.0f, &sb), kroStsOk);
        T* rest = reinterpret_cast<T*>(reinterpret_cast<char*>(b.ptr()) + 2 * b.step());
        ASSERT_EQ(m.gauss(rest, b.step(), {roi.width, roi.height - 2}, 2.0f, 9.0f, &sb), kroStsOk);
        EXPECT_EQ(sa, sb);
        const uint32_t n = uint32_t(roi.width * roi.height * m.written);
        EXPECT_EQ(sa, 99u + 2 * ((n + 1) / 2) * kStep);
        EXPECT_IMAGE_EQ(b, [&](int x, int y, int c) { return a.at(x, y, c); });
        // An odd count of elements uses the whole last pair.
        unsigned int so = 5;
        T one[4] = {};
        ASSERT_EQ(m.gauss(one, 16, {1, 1}, 0, 1, &so), kroStsOk);
        EXPECT_EQ(so, 5u + uint32_t((m.written + 1) / 2 * 2) * kStep);
    }
}

TEST(Noise, GaussRepeatsAndContinues8u) { gaussRepeatsAndContinues<Kro8u>(); }
TEST(Noise, GaussRepeatsAndContinues8s) { gaussRepeatsAndContinues<Kro8s>(); }
TEST(Noise, GaussRepeatsAndContinues16u) { gaussRepeatsAndContinues<Kro16u>(); }
TEST(Noise, GaussRepeatsAndContinues16s) { gaussRepeatsAndContinues<Kro16s>(); }
TEST(Noise, GaussRepeatsAndContinues32f) { gaussRepeatsAndContinues<Kro32f>(); }

// Sample statistics on a million elements: mean and deviation within five standard errors,
// the third and fourth moments of a normal law, and the tails bounded.
TEST(Noise, GaussianStatistics)
{
    const int w = 1000, h = 1000;
    std::vector<float> img(std::size_t(w) * h, 0.0f);
    unsigned int seed = 12345;
    ASSERT_EQ(kroiAddRandGauss_32f_C1IR(img.data(), w * 4, {w, h}, 3.0f, 2.0f, &seed), kroStsOk);
    double s1 = 0, s2 = 0, s3 = 0, s4 = 0, worst = 0;
    for (float v : img) {
        const double z = (v - 3.0) / 2.0;
        s1 += z, s2 += z * z, s3 += z * z * z, s4 += z * z * z * z;
        worst = std::fmax(worst, std::fabs(z));
    }
    const double n = double(img.size()), mean = s1 / n, var = s2 / n - mean * mean;
    EXPECT_NEAR(mean, 0.0, 5 / std::sqrt(n));
    EXPECT_NEAR(var, 1.0, 5 * std::sqrt(2.0 / n));
    EXPECT_NEAR(s3 / n, 0.0, 5 * std::sqrt(15.0 / n));
    EXPECT_NEAR(s4 / n, 3.0, 5 * std::sqrt(96.0 / n));
    EXPECT_LT(worst, 5.8);
    EXPECT_GT(worst, 4.0);
    // The share within one deviation: 68.27 %.
    std::size_t inside = 0;
    for (float v : img) inside += std::fabs(v - 3.0f) < 2.0f;
    EXPECT_NEAR(double(inside) / n, 0.682689, 5 * std::sqrt(0.2166 / n));
}

TEST(Noise, UniformStatistics)
{
    const int w = 1000, h = 1000;
    std::vector<float> img(std::size_t(w) * h, 0.0f);
    unsigned int seed = 0;
    ASSERT_EQ(kroiAddRandUniform_32f_C1IR(img.data(), w * 4, {w, h}, -1.0f, 3.0f, &seed), kroStsOk);
    std::vector<int> bins(16, 0);
    double s1 = 0;
    for (float v : img) {
        ASSERT_TRUE(v >= -1.0f && v <= 3.0f);
        s1 += v;
        bins[std::min(15, int((v + 1.0f) * 4.0f))]++;
    }
    const double n = double(img.size());
    EXPECT_NEAR(s1 / n, 1.0, 5 * std::sqrt(16.0 / 12 / n));
    double chi2 = 0;
    for (int b : bins) chi2 += (b - n / 16) * (b - n / 16) / (n / 16);
    EXPECT_LT(chi2, 45.0); // 15 degrees of freedom: p < 1e-4
}

// Saturation and rounding at the edges of every integer type.
TEST(Noise, SaturatesAtTheTypesEdges)
{
    unsigned int seed = 7;
    Kro8u a[40];
    std::fill(a, a + 40, Kro8u(250));
    ASSERT_EQ(kroiAddRandUniform_8u_C1IR(a, 40, {40, 1}, 10, 20, &seed), kroStsOk);
    for (Kro8u v : a) EXPECT_EQ(v, 255);
    Kro8s b[40];
    std::fill(b, b + 40, Kro8s(-120));
    ASSERT_EQ(kroiAddRandUniform_8s_C1IR(b, 40, {40, 1}, -30, -10, &seed), kroStsOk);
    for (Kro8s v : b) EXPECT_EQ(v, -128);
    Kro16u c[40] = {};
    ASSERT_EQ(kroiAddRandGauss_16u_C1IR(c, 80, {40, 1}, -1000, 10, &seed), kroStsOk);
    for (Kro16u v : c) EXPECT_EQ(v, 0);
    Kro16s d[40];
    std::fill(d, d + 40, Kro16s(32000));
    ASSERT_EQ(kroiAddRandGauss_16s_C1IR(d, 80, {40, 1}, 1e30f, 1, &seed), kroStsOk);
    for (Kro16s v : d) EXPECT_EQ(v, 32767);
    // A deviation of 0 adds the mean exactly; 0.5 goes to the even neighbour.
    Kro8u e[4] = {1, 2, 3, 4};
    ASSERT_EQ(kroiAddRandGauss_8u_C1IR(e, 4, {4, 1}, 0.5f, 0.0f, &seed), kroStsOk);
    EXPECT_EQ(e[0], 2);
    EXPECT_EQ(e[1], 2);
    EXPECT_EQ(e[2], 4);
    EXPECT_EQ(e[3], 4);
}

// Pointers -8, size -6, then the parameters; nothing written and the seed untouched.
TEST(Noise, CheckOrder)
{
    kt::Guarded<Kro16s> img(6, 2, 4);
    img.fillBytes(0x5C);
    const auto before = img.snapshot();
    unsigned int seed = 17;
    for (const auto& m : Members<Kro16s>::noise) {
        EXPECT_EQ(m.uniform(nullptr, 48, {0, 0}, 1, 0, &seed), kroStsNullPointerErr);
        EXPECT_EQ(m.uniform(img.ptr(), 48, {6, 2}, 0, 1, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(m.uniform(img.ptr(), 48, {0, 2}, 1, 0, &seed), kroStsBadSizeErr);
        EXPECT_EQ(m.uniform(img.ptr(), 48, {6, 2}, 1, 0, &seed), kroStsBadRangeErr);
        EXPECT_EQ(m.uniform(img.ptr(), 48, {6, 2}, 1, 1, &seed), kroStsBadRangeErr);
        EXPECT_EQ(m.uniform(img.ptr(), 48, {6, 2}, NAN, 1, &seed), kroStsBadRangeErr);
        EXPECT_EQ(m.gauss(nullptr, 48, {-1, 2}, 0, -1, &seed), kroStsNullPointerErr);
        EXPECT_EQ(m.gauss(img.ptr(), 48, {6, -2}, 0, -1, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(m.gauss(img.ptr(), 48, {6, -2}, 0, -1, &seed), kroStsBadSizeErr);
        EXPECT_EQ(m.gauss(img.ptr(), 48, {6, 2}, 0, -1e-30f, &seed), kroStsNegativeNoiseErr);
        EXPECT_EQ(m.gauss(img.ptr(), 48, {6, 2}, 0, NAN, &seed), kroStsNegativeNoiseErr);
    }
    EXPECT_EQ(seed, 17u);
    EXPECT_TRUE(img.unchangedSince(before));
}

}  // namespace
}  // namespace generate_test
