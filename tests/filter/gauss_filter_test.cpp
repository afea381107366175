// The Gaussian filter against a reference that builds each window from the border rule and
// applies the kernel rule in the stated single-precision sequence: every type and layout,
// odd kernels with derived and given sigmas, every border code with its flags, images smaller
// than the kernel, the types' extremes, the caller's rounding control; then the check orders.
#include <xmmintrin.h>

#include <cmath>
#include <cstring>
#include <vector>

#include <gtest/gtest.h>

#include "filter/window_reference.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using GaussFn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiBorderMode, const T*, const KroiFilterGaussianSpec*,
                              Kro8u*);

template <class T>
struct Member {
    const char* name;
    GaussFn<T> fn;
    int C;
    bool alpha;
};

#define MEMBERS(t)                                                                                \
    {"kroiFilterGaussianBorder_" #t "_C1R", kroiFilterGaussianBorder_##t##_C1R, 1, false},       \
        {"kroiFilterGaussianBorder_" #t "_C3R", kroiFilterGaussianBorder_##t##_C3R, 3, false},   \
        {"kroiFilterGaussianBorder_" #t "_C4R", kroiFilterGaussianBorder_##t##_C4R, 4, false},   \
        {"kroiFilterGaussianBorder_" #t "_AC4R", kroiFilterGaussianBorder_##t##_AC4R, 4, true}
// The names, for the coverage test: kroiFilterGaussianBorder_8u_C1R kroiFilterGaussianBorder_8u_C3R
// kroiFilterGaussianBorder_8u_C4R kroiFilterGaussianBorder_8u_AC4R kroiFilterGaussianBorder_16u_C1R
// kroiFilterGaussianBorder_16u_C3R kroiFilterGaussianBorder_16u_C4R kroiFilterGaussianBorder_16u_AC4R
// kroiFilterGaussianBorder_16s_C1R kroiFilterGaussianBorder_16s_C3R kroiFilterGaussianBorder_16s_C4R
// kroiFilterGaussianBorder_16s_AC4R kroiFilterGaussianBorder_32f_C1R kroiFilterGaussianBorder_32f_C3R
// kroiFilterGaussianBorder_32f_C4R kroiFilterGaussianBorder_32f_AC4R

template <class T>
const std::vector<Member<T>>& members();
template <>
const std::vector<Member<Kro8u>>& members() { static const std::vector<Member<Kro8u>> m = {MEMBERS(8u)}; return m; }
template <>
const std::vector<Member<Kro16u>>& members() { static const std::vector<Member<Kro16u>> m = {MEMBERS(16u)}; return m; }
template <>
const std::vector<Member<Kro16s>>& members() { static const std::vector<Member<Kro16s>> m = {MEMBERS(16s)}; return m; }
template <>
const std::vector<Member<Kro32f>>& members() { static const std::vector<Member<Kro32f>> m = {MEMBERS(32f)}; return m; }

// The kernel rule, written out from the header.
std::vector<float> kernel(int m, float sigma)
{
    const int r = m >> 1;
    if (sigma <= 0.0f) sigma = (float(m - 1) * 0.5f - 1.0f) * 0.3f + 0.8f;
    std::vector<float> c(m);
    for (int k = 1; k <= r; ++k)
        c[r - k] = c[r + k] = float(std::exp(-(double(k) * double(k)) / (2.0 * double(sigma) * double(sigma))));
    float total = 1.0f;
    for (int i = 0; i < m; ++i)
        if (i != r) total = total + c[i];
    const float inv = 1.0f / total;
    float sum = 0.0f;
    for (int i = 0; i < m; ++i)
        if (i != r) {
            c[i] = c[i] * inv;
            sum = sum + c[i];
        }
    c[r] = 1.0f - sum;
    return c;
}

template <class T>
T rounded(float v)
{
    if constexpr (std::is_same_v<T, Kro32f>)
        return v;
    else {
        const float q = std::nearbyint(v); // the default environment: ties to even
        const float lo = float(std::numeric_limits<T>::min()), hi = float(std::numeric_limits<T>::max());
        return T(q < lo ? lo : q > hi ? hi : q);
    }
}

struct Spec {
    std::vector<Kro8u> block;
    const KroiFilterGaussianSpec* get() const { return reinterpret_cast<const KroiFilterGaussianSpec*>(block.data() + 1); }
};

// An initialised specification at an odd address, and a work buffer against a guard page.
template <class T>
Spec makeSpec(KroiSize roi, int m, float sigma, int C, int* bufSize)
{
    int specSize = 0;
    EXPECT_EQ(kroiFilterGaussianGetBufferSize(roi, m, kt::typeCode<T>(), C, &specSize, bufSize), kroStsOk);
    Spec s;
    s.block.assign(specSize + 1, 0xEE);
    EXPECT_EQ(kroiFilterGaussianInit(roi, m, sigma, kt::typeCode<T>(), C,
                                     reinterpret_cast<KroiFilterGaussianSpec*>(s.block.data() + 1)),
              kroStsOk);
    return s;
}

template <class T>
void expectRule(const Member<T>& mem, const kt::WindowCase& k, float sigma, kt::Rng& rng, const kt::FloatMix& mix = {})
{
    const int C = mem.C, WC = mem.alpha ? 3 : C, m = k.mw, r = m >> 1;
    kt::Guarded<T> src(kt::Shape{k.W + 2 * k.margin, k.H + 2 * k.margin, C, 3 * int(sizeof(T)), kt::Guard::After});
    src.forEach([&](int, int, int, T& e) { e = kt::randomValue<T>(rng, mix); });
    kt::Guarded<T> dst(kt::typed<T>(kt::Shape{k.W, k.H, C, 5 * int(sizeof(T)), kt::Guard::Before, 6}));
    dst.fillBytes(0xA5);
    const auto canary = dst.snapshot();
    int size = 0;
    const Spec spec = makeSpec<T>({k.W, k.H}, m, sigma, C, &size);
    kt::Guarded<Kro8u> buffer(kt::Shape{size, 1, 1, 0, kt::Guard::After});
    T value[4];
    for (T& v : value) v = kt::randomValue<T>(rng, mix);
    char what[160];
    std::snprintf(what, sizeof what, "%s %s sigma %g", mem.name, k.name().c_str(), double(sigma));
    ASSERT_EQ(mem.fn(&src.at(k.margin, k.margin), src.step(), dst.ptr(), dst.step(), {k.W, k.H}, k.code, value,
                     spec.get(), buffer.ptr()),
              kroStsOk)
        << what;
    const std::vector<float> c = kernel(m, sigma);
    std::vector<float> t(m);
    int bad = 0;
    for (int y = 0; y < k.H && bad < 5; ++y)
        for (int x = 0; x < k.W && bad < 5; ++x)
            for (int ch = 0; ch < WC; ++ch) {
                auto w = [&](int i, int j) { return float(kt::windowAt(src, k, value, x, y, i, j, ch)); };
                for (int i = 0; i < m; ++i) {
                    float a = c[r] * w(i, r);
                    for (int q = 1; q <= r; ++q) a = a + c[r + q] * (w(i, r - q) + w(i, r + q));
                    t[i] = a;
                }
                float v = c[r] * t[r];
                for (int q = 1; q <= r; ++q) v = v + c[r + q] * (t[r - q] + t[r + q]);
                const T want = rounded<T>(v), got = dst.at(x, y, ch);
                if (!kt::sameElement(got, want)) {
                    ADD_FAILURE() << what << " at (" << x << "," << y << "," << ch << "): " << kt::show(got) << " want "
                                  << kt::show(want);
                    ++bad;
                }
            }
    EXPECT_TRUE(dst.restUnchangedSince(canary, WC)) << what;
}

template <class T>
void sweepKernels(kt::Rng& rng)
{
    // Kernel sizes with derived and given sigmas; widths that end inside and outside a
    // vector, and images smaller than the kernel (staged).
    const struct { int m; float sigma; } ks[] = {{3, 0}, {5, 1.2f}, {1, 0}, {7, 0}, {9, 0.6f}, {15, 3}, {5, -2}};
    const KroiBorderMode codes[] = {kroBorderReplicate, kroBorderMirror, kroBorderConstant};
    int i = 0;
    for (const auto& mem : members<T>())
        for (const auto& kk : ks)
            for (int W : {37, 4}) {
                expectRule(mem, {W, W == 4 ? 3 : 11, kk.m, kk.m, codes[i++ % 3], 0}, kk.sigma, rng);
                if (::testing::Test::HasFailure()) return;
            }
}

TEST(GaussFilter, EveryMemberMatchesRule)
{
    auto rng = kt::rngForTest();
    sweepKernels<Kro8u>(rng);
    sweepKernels<Kro16u>(rng);
    sweepKernels<Kro16s>(rng);
    sweepKernels<Kro32f>(rng);
}

// Every border code with every combination of in-memory flags, on memory that holds the
// declared border and no more.
template <class T>
void sweepCodes(kt::Rng& rng, int memberIndex)
{
    const auto& mem = members<T>()[memberIndex];
    for (kt::WindowCase k : {kt::WindowCase{23, 7, 5, 5, 0, 2}, kt::WindowCase{6, 4, 7, 7, 0, 3}}) {
        for (unsigned flags = 0; flags < 16; ++flags)
            for (unsigned mode : {1u, 3u, 6u}) {
                k.code = (flags << 4) | mode;
                expectRule(mem, k, 0.0f, rng);
            }
        k.code = kroBorderInMem;
        expectRule(mem, k, 0.0f, rng);
        if (::testing::Test::HasFailure()) return;
    }
}

TEST(GaussFilter, EveryBorderCodeMatchesRule)
{
    auto rng = kt::rngForTest();
    sweepCodes<Kro8u>(rng, 0);
    sweepCodes<Kro16u>(rng, 3);
    sweepCodes<Kro16s>(rng, 1);
    sweepCodes<Kro32f>(rng, 2);
}

// Values at the types' ends saturate as the rule says; 32f carries infinities and NaN
// through; long rows run the vector loops and their tails.
TEST(GaussFilter, ExtremesAndLongRows)
{
    auto rng = kt::rngForTest();
    for (int W : {16, 17, 63, 250}) {
        expectRule(members<Kro8u>()[0], {W, 4, 5, 5, kroBorderMirror, 0}, 1.2f, rng);
        expectRule(members<Kro16s>()[0], {W, 4, 3, 3, kroBorderReplicate, 0}, 0.0f, rng);
        expectRule(members<Kro16u>()[1], {W, 3, 7, 7, kroBorderConstant, 0}, 0.0f, rng);
        expectRule(members<Kro32f>()[0], {W, 4, 5, 5, kroBorderMirror, 0}, 0.0f, rng, kt::FloatMix{-5, 5, 0.2});
    }
}

// The kernel the header promises sums to exactly 1 in its order and is symmetric, for every
// size and sigma; flat images therefore stay flat, whatever the caller's rounding control.
TEST(GaussFilter, KernelSumsToOneAndFlatStaysFlat)
{
    for (int m = 1; m <= 61; m += 2)
        for (float sigma : {0.0f, 0.3f, 1.0f, 2.7f, 10.0f, 1000.0f}) {
            const std::vector<float> c = kernel(m, sigma);
            float sum = 0.0f;
            for (int i = 0; i < m; ++i)
                if (i != m / 2) sum = sum + c[i];
            EXPECT_EQ(sum + c[m / 2], 1.0f) << m << " " << sigma;
            for (int i = 0; i < m; ++i) EXPECT_EQ(c[i], c[m - 1 - i]);
        }
    const unsigned saved = _mm_getcsr();
    for (unsigned control : {0x2000u, 0x6000u}) {
        for (Kro16s level : {Kro16s(-32768), Kro16s(32767), Kro16s(-7)}) {
            kt::Guarded<Kro16s> src(40, 9, 3), dst(40, 9, 3);
            src.forEach([&](int, int, int, Kro16s& e) { e = level; });
            int size = 0;
            const Spec spec = makeSpec<Kro16s>({40, 9}, 9, 2.5f, 3, &size);
            std::vector<Kro8u> buf(size);
            _mm_setcsr((saved & ~0x6000u) | control);
            const KroStatus st = kroiFilterGaussianBorder_16s_C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), {40, 9},
                                                                  kroBorderReplicate, nullptr, spec.get(), buf.data());
            const unsigned after = _mm_getcsr();
            _mm_setcsr(saved);
            ASSERT_EQ(st, kroStsOk);
            EXPECT_EQ(after, (saved & ~0x6000u) | control);
            dst.forEach([&](int x, int y, int c, Kro16s& e) { ASSERT_EQ(e, level) << x << "," << y << "," << c; });
        }
        kt::Guarded<Kro8u> src(33, 5, 1), dst(33, 5, 1);
        src.forEach([&](int, int, int, Kro8u& e) { e = 255; });
        int size = 0;
        const Spec spec = makeSpec<Kro8u>({33, 5}, 15, 0.0f, 1, &size);
        std::vector<Kro8u> buf(size);
        _mm_setcsr((saved & ~0x6000u) | control);
        const KroStatus st = kroiFilterGaussianBorder_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {33, 5},
                                                             kroBorderMirror, nullptr, spec.get(), buf.data());
        _mm_setcsr(saved);
        ASSERT_EQ(st, kroStsOk);
        dst.forEach([&](int x, int y, int, Kro8u& e) { ASSERT_EQ(e, 255) << x << "," << y; });
    }
}

// ---- check orders ----------------------------------------------------------------------------

TEST(GaussChecks, QueryAndInit)
{
    int spec = -1, buf = -1;
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({0, 0}, 2, KroDataType(2), 2, nullptr, &buf), kroStsNullPointerErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({0, 0}, 2, KroDataType(2), 2, &spec, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({5, 0}, 2, KroDataType(2), 2, &spec, &buf), kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({5, 5}, 2, KroDataType(2), 2, &spec, &buf), kroStsBadMaskErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({5, 5}, -1, KroDataType(2), 2, &spec, &buf), kroStsBadMaskErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({5, 5}, 3, KroDataType(2), 2, &spec, &buf), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({5, 5}, 3, kro16u, 2, &spec, &buf), kroStsBadChannelCountErr);
    EXPECT_EQ(kroiFilterGaussianGetBufferSize({30000, 30000}, 20001, kro32f, 4, &spec, &buf), kroStsSizeLimitErr);
    EXPECT_EQ(spec, -1);
    EXPECT_EQ(buf, -1);

    std::vector<Kro8u> block(4096, 0x5A);
    const std::vector<Kro8u> before = block;
    auto* p = reinterpret_cast<KroiFilterGaussianSpec*>(block.data());
    EXPECT_EQ(kroiFilterGaussianInit({0, 0}, 2, NAN, KroDataType(2), 2, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiFilterGaussianInit({0, 5}, 2, NAN, KroDataType(2), 2, p), kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterGaussianInit({5, 5}, 4, NAN, KroDataType(2), 2, p), kroStsBadMaskErr);
    EXPECT_EQ(kroiFilterGaussianInit({5, 5}, 5, NAN, KroDataType(3), 2, p), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiFilterGaussianInit({5, 5}, 5, NAN, kro8u, 2, p), kroStsBadChannelCountErr);
    EXPECT_EQ(kroiFilterGaussianInit({5, 5}, 5, NAN, kro8u, 1, p), kroStsBadArgumentErr);
    EXPECT_EQ(kroiFilterGaussianInit({5, 5}, 5, INFINITY, kro8u, 1, p), kroStsBadArgumentErr);
    EXPECT_EQ(block, before);
}

// Each failing argument in turn, every earlier one good and every later one bad too.
template <class T>
void checkOrder(GaussFn<T> fn, const char* name, int C)
{
    kt::Guarded<T> src(8, 6, C), dst(8, 6, C);
    dst.fillBytes(0x3C);
    const auto canary = dst.snapshot();
    int size = 0;
    const Spec good = makeSpec<T>({8, 6}, 3, 0.0f, C, &size);
    std::vector<Kro8u> buf(size);
    // A specification for the other channel count, and one for another type.
    const Spec otherC = makeSpec<T>({8, 6}, 3, 0.0f, C == 1 ? 3 : 1, &size);
    const Spec otherT = std::is_same_v<T, Kro16u> ? makeSpec<Kro16s>({8, 6}, 3, 0.0f, C, &size)
                                                 : makeSpec<Kro16u>({8, 6}, 3, 0.0f, C, &size);
    Spec blank;
    blank.block.assign(good.block.size(), 0);
    const T value[4] = {};
    // 0 pSrc, 1 pDst, 2 pSpec, 3 pBuffer, 4 srcStep, 5 dstStep, 6 width, 7 height,
    // 8 spec tag, 9 border code, 10 value.
    const KroStatus want[] = {kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr,
                              kroStsBadStepErr,     kroStsBadStepErr,     kroStsBadSizeErr,     kroStsBadSizeErr,
                              kroStsWrongTagErr,    kroStsBadBorderErr,   kroStsNullPointerErr};
    for (int bad = 0; bad < 11; ++bad) {
        auto on = [&](int i) { return i >= bad; };
        const KroiBorderMode code = on(9) ? KroiBorderMode(bad == 9 ? 0x17 : 0x102) : KroiBorderMode(kroBorderConstant);
        const KroiFilterGaussianSpec* spec = on(2) && bad <= 2 ? nullptr : on(8) ? blank.get() : good.get();
        const KroStatus st = fn(on(0) && bad == 0 ? nullptr : src.ptr(), on(4) ? 0 : src.step(),
                                on(1) && bad <= 1 ? nullptr : dst.ptr(), on(5) ? -5 : dst.step(),
                                KroiSize{on(6) ? 0 : 8, on(7) ? -1 : 6}, code, on(10) ? nullptr : value, spec,
                                on(3) && bad <= 3 ? nullptr : buf.data());
        EXPECT_EQ(st, want[bad]) << name << " first bad argument " << bad;
        EXPECT_TRUE(dst.unchangedSince(canary)) << name;
    }
    for (const Spec* s : {&otherC, &otherT})
        EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, kroBorderMirror, nullptr, s->get(), buf.data()),
                  kroStsWrongTagErr)
            << name;
    EXPECT_TRUE(dst.unchangedSince(canary)) << name;
    EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, kroBorderMirror, nullptr, good.get(), buf.data()),
              kroStsOk);
}

TEST(GaussChecks, OrderOfEveryMember)
{
    for (const auto& m : members<Kro8u>()) checkOrder<Kro8u>(m.fn, m.name, m.C);
    for (const auto& m : members<Kro16u>()) checkOrder<Kro16u>(m.fn, m.name, m.C);
    for (const auto& m : members<Kro16s>()) checkOrder<Kro16s>(m.fn, m.name, m.C);
    for (const auto& m : members<Kro32f>()) checkOrder<Kro32f>(m.fn, m.name, m.C);
}

}  // namespace
