// Adaptive thresholds: box and Gaussian forms against scalar references that synthesise the
// border pixel by pixel, for small and large masks, every accepted border with and without
// memory around the region, in place and out; the delta shortcuts, which must not read the
// source; the buffer formula; the specification's layout; check orders.
#include <gtest/gtest.h>

#include <sys/mman.h>

#include <cmath>
#include <cstdint>
#include <cstring>
#include <map>
#include <string>
#include <vector>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

// The whole memory: the region of w x h at (r, r) of an image r pixels larger on each side,
// so that any side may be declared in memory.
struct Scene {
    int w, h, r;
    kt::Guarded<Kro8u> outer;
    Scene(int w_, int h_, int r_) : w(w_), h(h_), r(r_), outer(w_ + 2 * r_, h_ + 2 * r_) {}
    Kro8u* roi() { return outer.row(r) + r; }
    int step() const { return outer.step(); }
    Kro8u at(int x, int y) const { return outer.at(x + r, y + r); }
};

// The pixel that (x, y) reads: the row is settled first (memory when its side is flagged,
// else the mode: clamped, or the constant for the whole row), then the column within it.
Kro8u pixel(const Scene& s, int x, int y, unsigned border, Kro8u value)
{
    const bool inMem = border == 0xF0;
    const bool top = inMem || (border & 0x10), bottom = inMem || (border & 0x20);
    const bool left = inMem || (border & 0x40), right = inMem || (border & 0x80);
    const bool constant = !inMem && (border & 15) == 6;
    if ((y < 0 && !top) || (y >= s.h && !bottom)) {
        if (constant) return value;
        y = y < 0 ? 0 : s.h - 1;
    }
    if ((x < 0 && !left) || (x >= s.w && !right)) {
        if (constant) return value;
        x = x < 0 ? 0 : s.w - 1;
    }
    return s.at(x, y);
}

std::int64_t ceilAreaDelta(std::int64_t area, float delta)
{
    const float p = float(area) * delta;
    const auto t = std::int64_t(p);
    return (p > 0 && float(t) != p) ? t + 1 : t;
}

Kro8u boxRef(const Scene& s, int x, int y, int m, float delta, unsigned border, Kro8u value)
{
    if (delta > 255) return 200;
    if (!(delta > -255)) return 10;
    std::int64_t sum = 0;
    for (int j = -m / 2; j <= m / 2; ++j)
        for (int i = -m / 2; i <= m / 2; ++i) sum += pixel(s, x + i, y + j, border, value);
    const std::int64_t a = std::int64_t(m) * m;
    return a * s.at(x, y) > sum - ceilAreaDelta(a, delta) ? 200 : 10;
}

Kro8u gaussRef(const Scene& s, int x, int y, const std::vector<float>& g, float delta, unsigned border, Kro8u value)
{
    if (delta > 255) return 200;
    if (!(delta > -255)) return 10;
    const int r = int(g.size()) / 2;
    float mean = 0;
    for (int i = -r; i <= r; ++i) {
        float col = 0;
        for (int j = -r; j <= r; ++j) col = col + g[j + r] * float(pixel(s, x + i, y + j, border, value));
        mean = mean + g[i + r] * col;
    }
    return float(s.at(x, y)) > mean - delta ? 200 : 10;
}

std::uint32_t bufferFormula(std::uint32_t w, std::uint32_t h, std::uint32_t m)
{
    const std::uint32_t r = m / 2;
    auto r32 = [](std::uint32_t v) { return v / 32 * 32; };
    const std::uint32_t base = r32(r32(w + m + 30) * m + r32(4 * w + 31) * (m + 1) + 8 * m + 31);
    if (m <= w && m <= h)
        return ((r * w + 31) / 32 + (r * h + 31) / 32) * 64 + r32((std::max(w, h) + 2 * r) * 3 * r + 31) + base;
    return r32((m + w - 1) * (m + h - 1) + 31) + base;
}

const unsigned kBorders[] = {1, 6, 0x11, 0x26, 0x41, 0x86, 0x36, 0xC1, 0xF1, 0xF0};
const float kDeltas[] = {0.0f, 1.0f, -2.0f, 2.5f, -3.25f, 0.1f, 7.0f / 9.0f, -100.7f, 254.9f};

// A run of one form over shapes, masks, borders and deltas, out of place and in place.
template <class Run, class Ref>
void sweep(const std::vector<int>& masks, Run&& run, Ref&& ref)
{
    auto rng = kt::rngForTest();
    const int shapes[][2] = {{1, 1}, {5, 4}, {17, 9}, {40, 3}, {2, 33}};
    for (const auto& sh : shapes)
        for (int m : masks)
            for (unsigned border : kBorders) {
                const float delta = kDeltas[kt::uniform(rng, 0, 8)];
                const Kro8u value = Kro8u(kt::uniform(rng, 0, 255));
                const int w = sh[0], h = sh[1];
                Scene s(w, h, m / 2);
                // Values near each other, so that sums land on the comparison limit often.
                const int base = kt::uniform(rng, 0, 250);
                s.outer.forEach([&](int, int, int, Kro8u& v) { v = Kro8u(base + kt::uniform(rng, 0, 5)); });
                int bytes = 0;
                ASSERT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({w, h}, {m, m}, kro8u, 1, &bytes), kroStsOk);
                kt::Guarded<Kro8u> buffer(bytes, 1);
                kt::Guarded<Kro8u> dst(w, h);
                dst.fillBytes(0x77);
                const auto before = s.outer.snapshot();
                const std::string what = std::to_string(w) + "x" + std::to_string(h) + " mask " + std::to_string(m) +
                                         " border " + std::to_string(border) + " delta " + std::to_string(delta);
                ASSERT_EQ(run(s.roi(), s.step(), dst.ptr(), dst.step(), w, h, m, delta, border, value, buffer.ptr()),
                          kroStsOk)
                    << what;
                ASSERT_IMAGE_EQ(dst, [&](int x, int y, int) { return ref(s, x, y, m, delta, border, value); }) << what;
                ASSERT_TRUE(s.outer.unchangedSince(before)) << what;

                // In place: the same pixels, nothing outside the region touched.
                kt::Guarded<Kro8u> copy(w + 2 * (m / 2), h + 2 * (m / 2));
                std::memcpy(copy.lowest(), s.outer.lowest(), s.outer.spanBytes());
                Kro8u* roi = copy.row(m / 2) + m / 2;
                ASSERT_EQ(run(roi, copy.step(), roi, copy.step(), w, h, m, delta, border, value, buffer.ptr()), kroStsOk)
                    << what;
                copy.forEach([&](int x, int y, int, Kro8u& v) {
                    const int rx = x - m / 2, ry = y - m / 2;
                    const bool inside = rx >= 0 && rx < w && ry >= 0 && ry < h;
                    const Kro8u want = inside ? dst.at(rx, ry) : s.outer.at(x, y);
                    if (v != want) ADD_FAILURE() << what << " in place at " << x << "," << y;
                });
                if (testing::Test::HasFailure()) return;
            }
}

TEST(AdaptiveBox, MatchesReference)
{
    sweep({1, 3, 5, 7, 31, 41},
          [](const Kro8u* s, int ss, Kro8u* d, int ds, int w, int h, int m, float delta, unsigned b, Kro8u v, Kro8u* buf) {
              if (s == d) return kroiThresholdAdaptiveBox_8u_C1IR(d, ds, {w, h}, {m, m}, delta, 200, 10, b, v, buf);
              return kroiThresholdAdaptiveBox_8u_C1R(s, ss, d, ds, {w, h}, {m, m}, delta, 200, 10, b, v, buf);
          },
          [](const Scene& s, int x, int y, int m, float delta, unsigned b, Kro8u v) {
              return boxRef(s, x, y, m, delta, b, v);
          });
}

// The specification block at every misalignment, and its coefficients.
struct GaussBlock {
    std::vector<Kro8u> bytes;
    KroiThresholdAdaptiveGaussSpec* spec;
    GaussBlock(int m, float sigma, int shift)
    {
        int specSize = 0, bufSize = 0;
        EXPECT_EQ(kroiThresholdAdaptiveGaussGetBufferSize({4, 4}, {m, m}, kro8u, 1, &specSize, &bufSize), kroStsOk);
        EXPECT_EQ(specSize, 4 * m + 40);
        bytes.assign(std::size_t(specSize) + 8, 0);
        auto* p = bytes.data() + (8 - reinterpret_cast<std::uintptr_t>(bytes.data()) % 8) % 8 + shift;
        spec = reinterpret_cast<KroiThresholdAdaptiveGaussSpec*>(p);
        EXPECT_EQ(kroiThresholdAdaptiveGaussInit({4, 4}, {m, m}, kro8u, 1, spec, sigma), kroStsOk);
    }
    Kro8u* raw() const { return reinterpret_cast<Kro8u*>(spec); }
    std::vector<float> coeffs() const
    {
        const Kro8u* s = raw() + raw()[0];
        std::int32_t m;
        std::memcpy(&m, s + 12, 4);
        std::vector<float> g(static_cast<std::size_t>(m));
        std::memcpy(g.data(), s + 32, 4 * std::size_t(m));
        return g;
    }
};

TEST(AdaptiveGauss, SpecificationLayoutAndCoefficients)
{
    for (int shift = 0; shift < 8; ++shift)
        for (int m : {1, 3, 11})
            for (float sigma : {0.0f, -1.0f, 1.5f}) {
                GaussBlock b(m, sigma, shift);
                const Kro8u* raw = b.raw();
                const int off = raw[0];
                EXPECT_EQ(off, shift == 0 ? 8 : 8 - shift);
                EXPECT_EQ(reinterpret_cast<std::uintptr_t>(raw + off) % 8, 0u);
                std::uint32_t words[4];
                std::memcpy(words, raw + off, 16);
                EXPECT_EQ(words[0], 0x4B61738Eu);
                EXPECT_EQ(words[1], 1u);
                EXPECT_EQ(words[2], 1u);
                EXPECT_EQ(words[3], std::uint32_t(m));
                float s;
                std::memcpy(&s, raw + off + 16, 4);
                const float want = sigma > 0 ? sigma : (float(m - 1) * 0.5f - 1.0f) * 0.3f + 0.8f;
                EXPECT_EQ(s, want);
                const float* ptr;
                std::memcpy(&ptr, raw + off + 24, sizeof ptr);
                EXPECT_EQ(reinterpret_cast<const Kro8u*>(ptr), raw + off + 32);
                std::vector<float> g;
                float sum = 0;
                for (int k = -m / 2; k <= m / 2; ++k) {
                    g.push_back(std::exp(-float(k * k) / (2.0f * want * want)));
                    sum += g.back();
                }
                const float scale = 1.0f / sum;
                const auto got = b.coeffs();
                for (int i = 0; i < m; ++i) EXPECT_EQ(got[i], g[i] * scale) << m << " " << i;
            }
}

TEST(AdaptiveGauss, MatchesReference)
{
    for (float sigma : {0.0f, 2.0f}) {
        sweep({1, 3, 5, 7, 11, 31},
              [sigma](const Kro8u* s, int ss, Kro8u* d, int ds, int w, int h, int m, float delta, unsigned b, Kro8u v,
                      Kro8u* buf) {
                  GaussBlock spec(m, sigma, 3);
                  if (s == d) return kroiThresholdAdaptiveGauss_8u_C1IR(d, ds, {w, h}, delta, 200, 10, b, v, spec.spec, buf);
                  return kroiThresholdAdaptiveGauss_8u_C1R(s, ss, d, ds, {w, h}, delta, 200, 10, b, v, spec.spec, buf);
              },
              [sigma, coeffs = std::map<int, std::vector<float>>()](const Scene& s, int x, int y, int m, float delta,
                                                                    unsigned b, Kro8u v) mutable {
                  auto it = coeffs.find(m);
                  if (it == coeffs.end()) it = coeffs.emplace(m, GaussBlock(m, sigma, 0).coeffs()).first;
                  return gaussRef(s, x, y, it->second, delta, b, v);
              });
    }
}

// Deltas that decide alone never read the source: here it lies in inaccessible memory.
TEST(Adaptive, ShortcutsDoNotReadTheSource)
{
    void* page = mmap(nullptr, 4096, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS, -1, 0);
    ASSERT_NE(page, MAP_FAILED);
    const auto* src = static_cast<const Kro8u*>(page);
    int bytes = 0;
    ASSERT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({9, 4}, {3, 3}, kro8u, 1, &bytes), kroStsOk);
    kt::Guarded<Kro8u> buffer(bytes, 1), dst(9, 4);
    GaussBlock spec(3, 0, 1);
    for (float delta : {255.5f, 300.0f, -255.0f, -1000.0f, NAN}) {
        const Kro8u want = delta > 255 ? 200 : 10;
        dst.fillBytes(1);
        ASSERT_EQ(kroiThresholdAdaptiveBox_8u_C1R(src, 9, dst.ptr(), dst.step(), {9, 4}, {3, 3}, delta, 200, 10, 1, 0,
                                                  buffer.ptr()),
                  kroStsOk);
        EXPECT_IMAGE_EQ(dst, [&](int, int, int) { return want; });
        dst.fillBytes(1);
        ASSERT_EQ(kroiThresholdAdaptiveGauss_8u_C1R(src, 9, dst.ptr(), dst.step(), {9, 4}, delta, 200, 10, 6, 0,
                                                    spec.spec, buffer.ptr()),
                  kroStsOk);
        EXPECT_IMAGE_EQ(dst, [&](int, int, int) { return want; });
    }
    munmap(page, 4096);
}

TEST(Adaptive, BufferFormulaOnRandomArguments)
{
    auto rng = kt::rngForTest();
    for (int i = 0; i < 3000; ++i) {
        const int big = i % 3 == 0 ? 1 << 20 : 200;
        const int w = kt::uniform(rng, 1, big), h = kt::uniform(rng, 1, big);
        const int m = 2 * kt::uniform(rng, 0, i % 5 == 0 ? 5000 : 40) + 1;
        int box = 0, gauss = 0, spec = 0;
        ASSERT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({w, h}, {m, m}, kro8u, 1, &box), kroStsOk);
        ASSERT_EQ(kroiThresholdAdaptiveGaussGetBufferSize({w, h}, {m, m}, kro8u, 1, &spec, &gauss), kroStsOk);
        EXPECT_EQ(std::uint32_t(box), bufferFormula(w, h, m)) << w << " " << h << " " << m;
        EXPECT_EQ(gauss, box);
        EXPECT_EQ(spec, 4 * m + 40);
    }
}

TEST(Adaptive, ChecksInOrderWriteNothing)
{
    kt::Guarded<Kro8u> src(6, 5), dst(6, 5), buf(4096, 1);
    dst.fillBytes(0x42);
    const auto before = dst.snapshot();
    GaussBlock spec(3, 0, 5);
    Kro8u* s = src.ptr();
    Kro8u* d = dst.ptr();
    auto box = [&](const Kro8u* a, Kro8u* b, Kro8u* w, KroiSize roi, KroiSize mask, unsigned border) {
        return kroiThresholdAdaptiveBox_8u_C1R(a, 6, b, 6, roi, mask, 1, 200, 10, border, 0, w);
    };
    EXPECT_EQ(box(nullptr, d, buf.ptr(), {0, 0}, {2, 2}, 300), kroStsNullPointerErr);
    EXPECT_EQ(box(s, d, nullptr, {0, 0}, {2, 2}, 300), kroStsNullPointerErr);
    EXPECT_EQ(box(s, d, buf.ptr(), {6, 0}, {2, 2}, 300), kroStsBadSizeErr);
    for (KroiSize mask : {KroiSize{4, 4}, KroiSize{3, 5}, KroiSize{0, 0}, KroiSize{-1, -1}})
        EXPECT_EQ(box(s, d, buf.ptr(), {6, 5}, mask, 300), kroStsBadMaskErr);
    for (unsigned border : {0u, 2u, 3u, 4u, 7u, 0x13u, 0x100u, 0x101u, 0xF3u})
        EXPECT_EQ(box(s, d, buf.ptr(), {6, 5}, {3, 3}, border), kroStsBadBorderErr) << border;
    // Identical images with identical steps take the in-place path; a null work buffer is
    // then still the first failure.
    EXPECT_EQ(kroiThresholdAdaptiveBox_8u_C1R(d, 6, d, 6, {6, 5}, {3, 3}, 1, 200, 10, 1, 0, nullptr),
              kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveBox_8u_C1IR(nullptr, 6, {6, 5}, {3, 3}, 1, 200, 10, 1, 0, buf.ptr()),
              kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveBox_8u_C1IR(d, 6, {6, 5}, {2, 3}, 1, 200, 10, 1, 0, buf.ptr()), kroStsBadMaskErr);

    auto gauss = [&](const Kro8u* a, const KroiThresholdAdaptiveGaussSpec* sp, KroiSize roi, unsigned border) {
        return kroiThresholdAdaptiveGauss_8u_C1R(a, 6, d, 6, roi, 1, 200, 10, border, 0, sp, buf.ptr());
    };
    EXPECT_EQ(gauss(nullptr, spec.spec, {0, 0}, 300), kroStsNullPointerErr);
    EXPECT_EQ(gauss(s, nullptr, {0, 0}, 300), kroStsNullPointerErr);
    EXPECT_EQ(gauss(s, spec.spec, {0, 5}, 300), kroStsBadSizeErr);
    EXPECT_EQ(gauss(s, spec.spec, {6, 5}, 3), kroStsBadBorderErr);
    EXPECT_EQ(kroiThresholdAdaptiveGauss_8u_C1IR(d, 6, {6, 5}, 1, 200, 10, 0x103, 0, spec.spec, buf.ptr()),
              kroStsBadBorderErr);
    // Each field of the specification, spoiled in turn.
    Kro8u* raw = spec.raw();
    const int off = raw[0];
    for (int field : {-1, 0, 4, 8, 12, 24}) {
        GaussBlock bad(3, 0, 5);
        Kro8u* r = bad.raw();
        if (field < 0) r[0] = Kro8u(off + 1);
        else if (field == 12) r[off + 12] = 2;   // an even mask width
        else if (field == 24) std::memset(r + off + 24, 0, 8);
        else r[off + field] ^= 1;
        EXPECT_EQ(gauss(s, bad.spec, {6, 5}, 1), kroStsWrongTagErr) << field;
        EXPECT_EQ(kroiThresholdAdaptiveGauss_8u_C1IR(d, 6, {6, 5}, 1, 200, 10, 1, 0, bad.spec, buf.ptr()),
                  kroStsWrongTagErr);
    }
    EXPECT_TRUE(dst.unchangedSince(before));

    // The queries and the initialiser.
    int size = -1, specSize = -1;
    EXPECT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({6, 5}, {3, 3}, kro8u, 1, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({0, 5}, {2, 2}, 5, 3, &size), kroStsBadSizeErr);
    EXPECT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({6, 5}, {2, 2}, 5, 3, &size), kroStsBadMaskErr);
    EXPECT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({6, 5}, {3, 3}, 5, 3, &size), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiThresholdAdaptiveBoxGetBufferSize({6, 5}, {3, 3}, kro8u, 3, &size), kroStsBadChannelCountErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussGetBufferSize({6, 5}, {3, 3}, kro8u, 1, nullptr, &size), kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussGetBufferSize({6, 5}, {3, 3}, kro8u, 1, &specSize, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussGetBufferSize({6, 5}, {3, 1}, kro8u, 1, &specSize, &size), kroStsBadMaskErr);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(specSize, -1);
    const auto specBefore = std::vector<Kro8u>(raw, raw + 52);
    auto* sp = spec.spec;
    EXPECT_EQ(kroiThresholdAdaptiveGaussInit({6, 5}, {3, 3}, kro8u, 1, nullptr, 1), kroStsNullPointerErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussInit({6, 0}, {4, 4}, 5, 2, sp, 1), kroStsBadSizeErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussInit({6, 5}, {4, 4}, 5, 2, sp, 1), kroStsBadMaskErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussInit({6, 5}, {5, 5}, 5, 2, sp, 1), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiThresholdAdaptiveGaussInit({6, 5}, {5, 5}, kro8u, 2, sp, 1), kroStsBadChannelCountErr);
    EXPECT_EQ(std::vector<Kro8u>(raw, raw + 52), specBefore);
}

}  // namespace
