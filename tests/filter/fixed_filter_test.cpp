// The fixed-kernel filters against a reference that builds each window from the border rule
// and applies the kernel written in the header: every member and mask size, random data
// over the whole range (so the types' saturation is met), images smaller than the kernel,
// every border code with its flags on memory that holds the declared border and no more;
// the meaning of the derivatives' signs; the check orders and the buffer queries.
#include <cmath>
#include <cstring>
#include <functional>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "filter/window_reference.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

using Kernel = std::vector<int>; // m*m taps, row by row

Kernel outer(std::vector<int> col, std::vector<int> row)
{
    Kernel k;
    for (int c : col)
        for (int r : row) k.push_back(c * r);
    return k;
}

// The kernels of the header, by name and mask size.
const std::map<std::string, std::map<int, Kernel>>& kernels()
{
    static const std::vector<int> s3{1, 2, 1}, d3{-1, 0, 1}, e3{1, -2, 1};
    static const std::vector<int> s5{1, 4, 6, 4, 1}, d5{-1, -2, 0, 2, 1}, e5{1, 0, -2, 0, 1};
    static const std::map<std::string, std::map<int, Kernel>> k = {
        {"SobelDx", {{3, outer(s3, d3)}, {5, outer(s5, d5)}}},
        {"SobelDy", {{3, outer(d3, s3)}, {5, outer(d5, s5)}}},
        {"SobelDxx", {{3, outer(s3, e3)}, {5, outer(s5, e5)}}},
        {"SobelDyy", {{3, outer(e3, s3)}, {5, outer(e5, s5)}}},
        {"SobelDxy", {{3, outer(d3, d3)}, {5, outer(d5, d5)}}},
        {"ScharrDx", {{3, {-3, 0, 3, -10, 0, 10, -3, 0, 3}}}},
        {"ScharrDy", {{3, {-3, -10, -3, 0, 0, 0, 3, 10, 3}}}},
        {"PrewittDx", {{3, {-1, 0, 1, -1, 0, 1, -1, 0, 1}}}},
        {"PrewittDy", {{3, {-1, -1, -1, 0, 0, 0, 1, 1, 1}}}},
        {"RobertsDown", {{2, {1, 0, 0, -1}}}},
        {"RobertsUp", {{2, {0, 1, -1, 0}}}},
        {"Laplace", {{3, {1, 1, 1, 1, -8, 1, 1, 1, 1}}, {5, Kernel(25, 1)}}},
        {"HighPass", {{3, {-1, -1, -1, -1, 8, -1, -1, -1, -1}}, {5, Kernel(25, -1)}}},
        {"Sharpen", {{3, {-1, -1, -1, -1, 16, -1, -1, -1, -1}}}},
    };
    static bool once = [] {
        auto& m = const_cast<std::map<std::string, std::map<int, Kernel>>&>(k);
        m["Laplace"][5][12] = -24;
        m["HighPass"][5][12] = 24;
        return true;
    }();
    (void)once;
    return k;
}

template <class S, class D>
struct Member {
    std::string name, kernel; // the export and the kernel's name
    std::function<KroStatus(const S*, int, D*, int, KroiSize, int, KroiBorderMode, const S*, Kro8u*)> fn;
    bool hasMask; // takes a maskSize argument
    int C;
    bool alpha;
    KroStatus (*query)(KroiSize, int, KroDataType, int, int*);
};

// Members with and without a mask argument, wrapped to one signature.
#define WITH_MASK(K, Q, t, S, D, lay, C, A)                                                                     \
    Member<S, D>{"kroiFilter" #K "Border_" #t "_" #lay "R", #K,                                              \
                 [](const S* s, int ss, D* d, int ds, KroiSize r, int m, KroiBorderMode b, const S* v, Kro8u* p) { \
                     return kroiFilter##K##Border_##t##_##lay##R(s, ss, d, ds, r, m, b, v, p);               \
                 },                                                                                            \
                 true, C, A, kroiFilter##Q##BorderGetBufferSize}
#define FIXED(K, Q, t, S, D, lay, C, A)                                                                    \
    Member<S, D>{"kroiFilter" #K "Border_" #t "_" #lay "R", #K,                                              \
                 [](const S* s, int ss, D* d, int ds, KroiSize r, int, KroiBorderMode b, const S* v, Kro8u* p) { \
                     return kroiFilter##K##Border_##t##_##lay##R(s, ss, d, ds, r, b, v, p);                  \
                 },                                                                                            \
                 false, C, A, kroiFilter##Q##BorderGetBufferSize}
#define DERIV(M, t, S, D)                                                                                 \
    M(SobelDx, Sobel, t, S, D, C1, 1, false), M(SobelDy, Sobel, t, S, D, C1, 1, false),                   \
        M(SobelDxx, Sobel, t, S, D, C1, 1, false), M(SobelDyy, Sobel, t, S, D, C1, 1, false),             \
        M(SobelDxy, Sobel, t, S, D, C1, 1, false)
#define DERIV_FIXED(t, S, D)                                                                              \
    FIXED(ScharrDx, Scharr, t, S, D, C1, 1, false), FIXED(ScharrDy, Scharr, t, S, D, C1, 1, false),       \
        FIXED(PrewittDx, Prewitt, t, S, D, C1, 1, false), FIXED(PrewittDy, Prewitt, t, S, D, C1, 1, false), \
        FIXED(RobertsDown, Roberts, t, S, D, C1, 1, false), FIXED(RobertsUp, Roberts, t, S, D, C1, 1, false)
#define LAYOUTS(M, K, t, S)                                                                                 \
    M(K, K, t, S, S, C1, 1, false), M(K, K, t, S, S, C3, 3, false), M(K, K, t, S, S, C4, 4, false),       \
        M(K, K, t, S, S, AC4, 4, true)
// The names, for the coverage test: kroiFilterSobelDxBorder_8u16s_C1R kroiFilterSobelDyBorder_8u16s_C1R
// kroiFilterSobelDxxBorder_8u16s_C1R kroiFilterSobelDyyBorder_8u16s_C1R kroiFilterSobelDxyBorder_8u16s_C1R
// kroiFilterScharrDxBorder_8u16s_C1R kroiFilterScharrDyBorder_8u16s_C1R kroiFilterPrewittDxBorder_8u16s_C1R
// kroiFilterPrewittDyBorder_8u16s_C1R kroiFilterRobertsDownBorder_8u16s_C1R kroiFilterRobertsUpBorder_8u16s_C1R
// kroiFilterSobelDxBorder_16s_C1R kroiFilterSobelDyBorder_16s_C1R kroiFilterSobelDxxBorder_16s_C1R
// kroiFilterSobelDyyBorder_16s_C1R kroiFilterSobelDxyBorder_16s_C1R kroiFilterScharrDxBorder_16s_C1R
// kroiFilterScharrDyBorder_16s_C1R kroiFilterPrewittDxBorder_16s_C1R kroiFilterPrewittDyBorder_16s_C1R
// kroiFilterRobertsDownBorder_16s_C1R kroiFilterRobertsUpBorder_16s_C1R kroiFilterSobelDxBorder_32f_C1R
// kroiFilterSobelDyBorder_32f_C1R kroiFilterSobelDxxBorder_32f_C1R kroiFilterSobelDyyBorder_32f_C1R
// kroiFilterSobelDxyBorder_32f_C1R kroiFilterScharrDxBorder_32f_C1R kroiFilterScharrDyBorder_32f_C1R
// kroiFilterPrewittDxBorder_32f_C1R kroiFilterPrewittDyBorder_32f_C1R kroiFilterRobertsDownBorder_32f_C1R
// kroiFilterRobertsUpBorder_32f_C1R kroiFilterLaplaceBorder_8u16s_C1R kroiFilterLaplaceBorder_16s_C1R
// kroiFilterLaplaceBorder_32f_C1R kroiFilterLaplaceBorder_8u_C1R kroiFilterLaplaceBorder_8u_C3R
// kroiFilterLaplaceBorder_8u_C4R kroiFilterLaplaceBorder_8u_AC4R kroiFilterHighPassBorder_8u_C1R
// kroiFilterHighPassBorder_8u_C3R kroiFilterHighPassBorder_8u_C4R kroiFilterHighPassBorder_8u_AC4R
// kroiFilterHighPassBorder_16s_C1R kroiFilterHighPassBorder_16s_C3R kroiFilterHighPassBorder_16s_C4R
// kroiFilterHighPassBorder_16s_AC4R kroiFilterHighPassBorder_32f_C1R kroiFilterHighPassBorder_32f_C3R
// kroiFilterHighPassBorder_32f_C4R kroiFilterHighPassBorder_32f_AC4R kroiFilterSharpenBorder_8u_C1R
// kroiFilterSharpenBorder_8u_C3R kroiFilterSharpenBorder_8u_C4R kroiFilterSharpenBorder_8u_AC4R
// kroiFilterSharpenBorder_16s_C1R kroiFilterSharpenBorder_16s_C3R kroiFilterSharpenBorder_16s_C4R
// kroiFilterSharpenBorder_16s_AC4R kroiFilterSharpenBorder_32f_C1R kroiFilterSharpenBorder_32f_C3R
// kroiFilterSharpenBorder_32f_C4R kroiFilterSharpenBorder_32f_AC4R kroiFilterSobelBorderGetBufferSize
// kroiFilterScharrBorderGetBufferSize kroiFilterPrewittBorderGetBufferSize kroiFilterRobertsBorderGetBufferSize
// kroiFilterLaplaceBorderGetBufferSize kroiFilterHighPassBorderGetBufferSize kroiFilterSharpenBorderGetBufferSize

template <class S, class D>
const std::vector<Member<S, D>>& members();
template <>
const std::vector<Member<Kro8u, Kro16s>>& members()
{
    static const std::vector<Member<Kro8u, Kro16s>> m = {DERIV(WITH_MASK, 8u16s, Kro8u, Kro16s), DERIV_FIXED(8u16s, Kro8u, Kro16s),
                                                         WITH_MASK(Laplace, Laplace, 8u16s, Kro8u, Kro16s, C1, 1, false)};
    return m;
}
template <>
const std::vector<Member<Kro16s, Kro16s>>& members()
{
    static const std::vector<Member<Kro16s, Kro16s>> m = {
        DERIV(WITH_MASK, 16s, Kro16s, Kro16s), DERIV_FIXED(16s, Kro16s, Kro16s),
        WITH_MASK(Laplace, Laplace, 16s, Kro16s, Kro16s, C1, 1, false), LAYOUTS(WITH_MASK, HighPass, 16s, Kro16s),
        LAYOUTS(FIXED, Sharpen, 16s, Kro16s)};
    return m;
}
template <>
const std::vector<Member<Kro32f, Kro32f>>& members()
{
    static const std::vector<Member<Kro32f, Kro32f>> m = {
        DERIV(WITH_MASK, 32f, Kro32f, Kro32f), DERIV_FIXED(32f, Kro32f, Kro32f),
        WITH_MASK(Laplace, Laplace, 32f, Kro32f, Kro32f, C1, 1, false), LAYOUTS(WITH_MASK, HighPass, 32f, Kro32f),
        LAYOUTS(FIXED, Sharpen, 32f, Kro32f)};
    return m;
}
template <>
const std::vector<Member<Kro8u, Kro8u>>& members()
{
    static const std::vector<Member<Kro8u, Kro8u>> m = {LAYOUTS(WITH_MASK, Laplace, 8u, Kro8u),
                                                        LAYOUTS(WITH_MASK, HighPass, 8u, Kro8u),
                                                        LAYOUTS(FIXED, Sharpen, 8u, Kro8u)};
    return m;
}

// The stated arithmetic on one window.
template <class S, class D>
D apply(const Kernel& k, int shift, const std::function<S(int, int)>& w)
{
    const int m = int(std::lround(std::sqrt(double(k.size()))));
    if constexpr (std::is_same_v<S, Kro32f>) {
        float v = 0.0f;
        bool first = true;
        for (int j = 0; j < m; ++j)
            for (int i = 0; i < m; ++i)
                if (k[j * m + i]) {
                    const float p = float(k[j * m + i]) * w(i, j);
                    v = first ? p : v + p;
                    first = false;
                }
        return shift ? v * 0.125f : v;
    } else {
        int64_t v = 0;
        for (int j = 0; j < m; ++j)
            for (int i = 0; i < m; ++i) v += k[j * m + i] * int64_t(w(i, j));
        if (shift) { // to nearest, ties to even
            const int64_t q = v >> 3, rem = v & 7;
            v = rem > 4 || (rem == 4 && (q & 1)) ? q + 1 : q;
        }
        const int64_t lo = std::numeric_limits<D>::min(), hi = std::numeric_limits<D>::max();
        return D(v < lo ? lo : v > hi ? hi : v);
    }
}

template <class S, class D>
void expectRule(const Member<S, D>& mem, int m, kt::WindowCase k, kt::Rng& rng, const kt::FloatMix& mix = {})
{
    k.mw = k.mh = m;
    const int C = mem.C, WC = mem.alpha ? 3 : C;
    kt::Guarded<S> src(kt::Shape{k.W + 2 * k.margin, k.H + 2 * k.margin, C, 3 * int(sizeof(S)), kt::Guard::After});
    src.forEach([&](int, int, int, S& e) { e = kt::randomValue<S>(rng, mix); });
    kt::Guarded<D> dst(kt::typed<D>(kt::Shape{k.W, k.H, C, 5 * int(sizeof(D)), kt::Guard::Before, 6}));
    dst.fillBytes(0xA5);
    const auto canary = dst.snapshot();
    int size = 0;
    ASSERT_EQ(mem.query({k.W, k.H}, m, kt::typeCode<S>(), C, &size), kroStsOk);
    kt::Guarded<Kro8u> buffer(kt::Shape{size, 1, 1, 0, kt::Guard::After});
    S value[4];
    for (S& v : value) v = kt::randomValue<S>(rng, mix);
    const std::string what = mem.name + " mask " + std::to_string(m) + " " + k.name();
    ASSERT_EQ(mem.fn(&src.at(k.margin, k.margin), src.step(), dst.ptr(), dst.step(), {k.W, k.H}, m, k.code, value,
                     buffer.ptr()),
              kroStsOk)
        << what;
    const Kernel& ker = kernels().at(mem.kernel).at(m);
    const int shift = mem.kernel == "Sharpen" ? 3 : 0;
    int bad = 0;
    for (int y = 0; y < k.H && bad < 5; ++y)
        for (int x = 0; x < k.W && bad < 5; ++x)
            for (int c = 0; c < WC; ++c) {
                const D want = apply<S, D>(ker, shift, [&](int i, int j) { return kt::windowAt(src, k, value, x, y, i, j, c); });
                const D got = dst.at(x, y, c);
                if (!kt::sameElement(got, want)) {
                    ADD_FAILURE() << what << " at (" << x << "," << y << "," << c << "): " << kt::show(got) << " want "
                                  << kt::show(want);
                    ++bad;
                }
            }
    EXPECT_TRUE(dst.restUnchangedSince(canary, WC)) << what;
}

template <class S, class D>
void sweep(kt::Rng& rng, const kt::FloatMix& mix = {})
{
    const KroiBorderMode codes[] = {kroBorderReplicate, kroBorderMirror, kroBorderConstant};
    int i = 0;
    for (const auto& mem : members<S, D>()) {
        for (const auto& [m, ker] : kernels().at(mem.kernel)) {
            // Rows that end inside and outside a vector; images smaller than the kernel.
            for (const KroiSize roi : {KroiSize{45, 7}, KroiSize{18, 3}, KroiSize{2, 2}}) {
                expectRule(mem, m, {roi.width, roi.height, 0, 0, codes[i++ % 3], 0}, rng, mix);
                if (::testing::Test::HasFailure()) return;
            }
            // Every flag combination with a margin of real memory around the ROI.
            if (mem.C != 3)
                for (unsigned flags = 0; flags < 16; flags += 3)
                    expectRule(mem, m, {13, 5, 0, 0, KroiBorderMode((flags << 4) | (1u + 2 * (flags % 3) + (flags % 3 == 2))), m}, rng, mix);
            expectRule(mem, m, {11, 4, 0, 0, kroBorderInMem, m}, rng, mix);
        }
    }
}

TEST(FixedFilter, Derivatives8u16sAndLaplace) { auto rng = kt::rngForTest(); sweep<Kro8u, Kro16s>(rng); }
TEST(FixedFilter, Every16sMember) { auto rng = kt::rngForTest(); sweep<Kro16s, Kro16s>(rng); }
TEST(FixedFilter, Every8uMember) { auto rng = kt::rngForTest(); sweep<Kro8u, Kro8u>(rng); }
TEST(FixedFilter, Every32fMember)
{
    auto rng = kt::rngForTest();
    sweep<Kro32f, Kro32f>(rng, {-1000, 1000, 0.02});
}

// A ramp growing to the right (downwards) has positive x (y) derivatives and none across;
// a dark spot among bright neighbours has a positive Laplace response.
TEST(FixedFilter, SignsMeanWhatTheHeaderSays)
{
    kt::Guarded<Kro8u> ramp(16, 8), spot(16, 8);
    ramp.forEach([](int x, int, int, Kro8u& e) { e = Kro8u(10 * x); });
    spot.forEach([](int x, int y, int, Kro8u& e) { e = x == 7 && y == 4 ? 0 : 100; });
    kt::Guarded<Kro16s> dx(16, 8), dy(16, 8), lap(16, 8);
    std::vector<Kro8u> buf(1 << 16);
    ASSERT_EQ(kroiFilterSobelDxBorder_8u16s_C1R(ramp.ptr(), ramp.step(), dx.ptr(), dx.step(), {16, 8}, 3, kroBorderReplicate, nullptr, buf.data()), kroStsOk);
    ASSERT_EQ(kroiFilterSobelDyBorder_8u16s_C1R(ramp.ptr(), ramp.step(), dy.ptr(), dy.step(), {16, 8}, 5, kroBorderReplicate, nullptr, buf.data()), kroStsOk);
    ASSERT_EQ(kroiFilterLaplaceBorder_8u16s_C1R(spot.ptr(), spot.step(), lap.ptr(), lap.step(), {16, 8}, 3, kroBorderReplicate, nullptr, buf.data()), kroStsOk);
    EXPECT_EQ(dx.at(5, 3), 80);
    EXPECT_EQ(dy.at(5, 3), 0);
    EXPECT_EQ(lap.at(7, 4), 800);
    EXPECT_EQ(lap.at(6, 4), -100);
    kt::Guarded<Kro8u> lap8(16, 8);
    ASSERT_EQ(kroiFilterLaplaceBorder_8u_C1R(spot.ptr(), spot.step(), lap8.ptr(), lap8.step(), {16, 8}, 3, kroBorderReplicate, nullptr, buf.data()), kroStsOk);
    EXPECT_EQ(lap8.at(7, 4), 255);
    EXPECT_EQ(lap8.at(6, 4), 0);
}

// ---- check orders ----------------------------------------------------------------------------

// Each failing argument in turn, every earlier one good and every later one bad too.
template <class S, class D>
void checkOrder(const Member<S, D>& mem)
{
    const int C = mem.C, m = kernels().at(mem.kernel).begin()->first;
    kt::Guarded<S> src(8, 6, C);
    kt::Guarded<D> dst(8, 6, C);
    dst.fillBytes(0x3C);
    const auto canary = dst.snapshot();
    std::vector<Kro8u> buf(1 << 16);
    const S value[4] = {};
    // 0 pSrc, 1 pDst, 2 pBuffer, 3 srcStep, 4 dstStep, 5 width, 6 height, 7 mask,
    // 8 border code, 9 value.
    const KroStatus want[] = {kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr, kroStsBadStepErr,
                              kroStsBadStepErr,     kroStsBadSizeErr,     kroStsBadSizeErr,     kroStsBadMaskErr,
                              kroStsBadBorderErr,   kroStsNullPointerErr};
    for (int bad = 0; bad < 10; ++bad) {
        if (bad == 7 && !mem.hasMask) continue;
        auto on = [&](int i) { return i >= bad; };
        const KroiBorderMode code = on(8) ? KroiBorderMode(bad == 8 ? 0x17 : 0x102) : KroiBorderMode(kroBorderConstant);
        const KroStatus st = mem.fn(on(0) && bad == 0 ? nullptr : src.ptr(), on(3) ? (bad == 3 ? 0 : -1) : src.step(),
                                    on(1) && bad <= 1 ? nullptr : dst.ptr(), on(4) ? -5 : dst.step(),
                                    KroiSize{on(5) ? 0 : 8, on(6) ? -1 : 6}, on(7) ? 4 : m, code,
                                    on(9) ? nullptr : value, on(2) && bad <= 2 ? nullptr : buf.data());
        EXPECT_EQ(st, want[bad]) << mem.name << " first bad argument " << bad;
        EXPECT_TRUE(dst.unchangedSince(canary)) << mem.name;
    }
    if (mem.hasMask)
        for (int badMask : {1, 2, 7, 0, -3})
            EXPECT_EQ(mem.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, badMask, kroBorderMirror, nullptr, buf.data()),
                      kroStsBadMaskErr);
    EXPECT_TRUE(dst.unchangedSince(canary)) << mem.name;
    EXPECT_EQ(mem.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, m, kroBorderMirror, nullptr, buf.data()), kroStsOk);
}

TEST(FixedChecks, OrderOfEveryMember)
{
    for (const auto& m : members<Kro8u, Kro16s>()) checkOrder(m);
    for (const auto& m : members<Kro8u, Kro8u>()) checkOrder(m);
    for (const auto& m : members<Kro16s, Kro16s>()) checkOrder(m);
    for (const auto& m : members<Kro32f, Kro32f>()) checkOrder(m);
}

// Each query in its order; the mask sizes each filter has and no others.
TEST(FixedChecks, BufferQueries)
{
    const struct { KroStatus (*q)(KroiSize, int, KroDataType, int, int*); std::vector<int> sizes; } qs[] = {
        {kroiFilterSobelBorderGetBufferSize, {3, 5}},   {kroiFilterScharrBorderGetBufferSize, {3}},
        {kroiFilterPrewittBorderGetBufferSize, {3}},    {kroiFilterRobertsBorderGetBufferSize, {2}},
        {kroiFilterLaplaceBorderGetBufferSize, {3, 5}}, {kroiFilterHighPassBorderGetBufferSize, {3, 5}},
        {kroiFilterSharpenBorderGetBufferSize, {3}}};
    for (const auto& [q, sizes] : qs) {
        int size = -1;
        const int m = sizes[0];
        EXPECT_EQ(q({0, 0}, 0, KroDataType(2), 2, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(q({0, 4}, 0, KroDataType(2), 2, &size), kroStsBadSizeErr);
        EXPECT_EQ(q({4, 4}, 4, KroDataType(2), 2, &size), kroStsBadMaskErr);
        EXPECT_EQ(q({4, 4}, m, KroDataType(2), 2, &size), kroStsBadDataTypeErr);
        EXPECT_EQ(q({4, 4}, m, kro16s, 2, &size), kroStsBadChannelCountErr);
        EXPECT_EQ(q({2, 2000000000}, m, kro32f, 4, &size), kroStsSizeLimitErr); // staged
        EXPECT_EQ(size, -1);
        for (int s = 1; s <= 6; ++s) {
            const bool has = std::find(sizes.begin(), sizes.end(), s) != sizes.end();
            EXPECT_EQ(q({4, 4}, s, kro8u, 1, &size), has ? kroStsOk : kroStsBadMaskErr) << s;
        }
    }
}

// ---- the gradient vector ---------------------------------------------------------------------

// Magnitude (both norms) and angle against the Sobel pair of the reference, for both source
// types, both sizes, each output alone and both together.
template <class S>
void expectGradient(int m, bool l2, bool wantMag, bool wantAngle, kt::WindowCase k, kt::Rng& rng)
{
    using G = std::conditional_t<std::is_same_v<S, Kro8u>, Kro16s, Kro32f>;
    k.mw = k.mh = m;
    kt::Guarded<S> src(kt::Shape{k.W + 2 * k.margin, k.H + 2 * k.margin, 1, 3 * int(sizeof(S)), kt::Guard::After});
    src.forEach([&](int, int, int, S& e) { e = kt::randomValue<S>(rng, {-100, 100, 0.0}); });
    kt::Guarded<Kro32f> mag(kt::Shape{k.W, k.H, 1, 8, kt::Guard::Before, 4}), ang(kt::Shape{k.W, k.H, 1, 4, kt::Guard::After});
    mag.fillBytes(0xA5);
    ang.fillBytes(0x5A);
    const auto magCanary = mag.snapshot(), angCanary = ang.snapshot();
    int size = 0;
    ASSERT_EQ(kroiGradientVectorSobelGetBufferSize({k.W, k.H}, m, kt::typeCode<S>(), 1, &size), kroStsOk);
    kt::Guarded<Kro8u> buffer(kt::Shape{size, 1, 1, 0, kt::Guard::After});
    const S value = S(7);
    KroStatus st;
    if constexpr (std::is_same_v<S, Kro8u>)
        st = kroiGradientVectorSobel_8u32f_C1R(&src.at(k.margin, k.margin), src.step(), wantMag ? mag.ptr() : nullptr, mag.step(),
                                               wantAngle ? ang.ptr() : nullptr, ang.step(), {k.W, k.H}, m,
                                               l2 ? kroGradientL2 : kroGradientL1, k.code, &value, buffer.ptr());
    else
        st = kroiGradientVectorSobel_32f_C1R(&src.at(k.margin, k.margin), src.step(), wantMag ? mag.ptr() : nullptr, mag.step(),
                                             wantAngle ? ang.ptr() : nullptr, ang.step(), {k.W, k.H}, m,
                                             l2 ? kroGradientL2 : kroGradientL1, k.code, &value, buffer.ptr());
    const std::string what = "gradient " + std::to_string(sizeof(S)) + " mask " + std::to_string(m) + " " + k.name();
    ASSERT_EQ(st, kroStsOk) << what;
    const Kernel& kx = kernels().at("SobelDx").at(m);
    const Kernel& ky = kernels().at("SobelDy").at(m);
    int bad = 0;
    for (int y = 0; y < k.H && bad < 5; ++y)
        for (int x = 0; x < k.W && bad < 5; ++x) {
            auto w = [&](int i, int j) { return kt::windowAt(src, k, &value, x, y, i, j, 0); };
            const float gx = float(apply<S, G>(kx, 0, w)), gy = float(apply<S, G>(ky, 0, w));
            const float wm = l2 ? std::sqrt(gx * gx + gy * gy) : std::fabs(gx) + std::fabs(gy);
            const float wa = float(std::atan2(double(gy), double(gx)));
            if (wantMag && !kt::sameElement(mag.at(x, y), wm)) {
                ADD_FAILURE() << what << " magnitude at " << x << "," << y << ": " << mag.at(x, y) << " want " << wm;
                ++bad;
            }
            if (wantAngle && !kt::sameElement(ang.at(x, y), wa)) {
                ADD_FAILURE() << what << " angle at " << x << "," << y << ": " << ang.at(x, y) << " want " << wa;
                ++bad;
            }
        }
    EXPECT_TRUE(wantMag ? mag.restUnchangedSince(magCanary, 1) : mag.unchangedSince(magCanary)) << what;
    EXPECT_TRUE(wantAngle ? ang.restUnchangedSince(angCanary, 1) : ang.unchangedSince(angCanary)) << what;
}

TEST(GradientVector, MagnitudeAndAngleFollowTheSobelPair)
{
    auto rng = kt::rngForTest();
    int i = 0;
    for (int m : {3, 5})
        for (bool l2 : {false, true})
            for (auto [wm, wa] : {std::pair{true, true}, std::pair{true, false}, std::pair{false, true}}) {
                const KroiBorderMode code = i % 3 == 0 ? kroBorderReplicate : i % 3 == 1 ? kroBorderMirror : kroBorderConstant;
                ++i;
                expectGradient<Kro8u>(m, l2, wm, wa, {37, 6, 0, 0, code, 0}, rng);
                expectGradient<Kro32f>(m, l2, wm, wa, {19, 5, 0, 0, code | kroBorderInMemTop, m}, rng);
                expectGradient<Kro8u>(m, l2, wm, wa, {3, 2, 0, 0, code, 0}, rng);
            }
}

TEST(GradientVector, CheckOrderAndQuery)
{
    kt::Guarded<Kro8u> src(8, 6);
    kt::Guarded<Kro32f> mag(8, 6), ang(8, 6);
    mag.fillBytes(0x3C);
    const auto canary = mag.snapshot();
    std::vector<Kro8u> buf(1 << 16);
    auto call = [&](const Kro8u* s, Kro8u* b, Kro32f* m, Kro32f* a, int ss, int ms, int as, KroiSize roi, int mask, int norm,
                    KroiBorderMode code, const Kro8u* v) {
        return kroiGradientVectorSobel_8u32f_C1R(s, ss, m, ms, a, as, roi, mask, norm, code, v, b);
    };
    const KroiSize roi{8, 6};
    const int S = src.step(), M = mag.step();
    EXPECT_EQ(call(nullptr, nullptr, nullptr, nullptr, 0, 0, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(call(src.ptr(), nullptr, mag.ptr(), nullptr, 0, 0, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), nullptr, nullptr, 0, 0, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, 0, M, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsBadStepErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, 0, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsBadStepErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), ang.ptr(), S, M, 0, {0, 0}, 4, 3, 0x17, nullptr), kroStsBadStepErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, {8, 0}, 4, 3, 0x17, nullptr), kroStsBadSizeErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, roi, 4, 3, 0x17, nullptr), kroStsBadMaskErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, roi, 5, 3, 0x17, nullptr), kroStsBadArgumentErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, roi, 5, 0, 0x17, nullptr), kroStsBadArgumentErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, roi, 5, kroGradientL1, 0x17, nullptr), kroStsBadBorderErr);
    EXPECT_EQ(call(src.ptr(), buf.data(), mag.ptr(), nullptr, S, M, 0, roi, 5, kroGradientL1, kroBorderConstant, nullptr),
              kroStsNullPointerErr);
    EXPECT_TRUE(mag.unchangedSince(canary));
    EXPECT_EQ(kroiGradientVectorSobel_32f_C1R(nullptr, 4, mag.ptr(), M, nullptr, 0, roi, 3, kroGradientL2, kroBorderMirror,
                                              nullptr, buf.data()),
              kroStsNullPointerErr);
    int size = -1;
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize(roi, 3, kro8u, 1, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize({0, 6}, 4, kro16u, 3, &size), kroStsBadSizeErr);
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize(roi, 4, kro16u, 3, &size), kroStsBadMaskErr);
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize(roi, 5, kro16u, 3, &size), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize(roi, 5, kro32f, 3, &size), kroStsBadChannelCountErr);
    EXPECT_EQ(kroiGradientVectorSobelGetBufferSize({2, 2000000000}, 5, kro32f, 1, &size), kroStsSizeLimitErr);
    EXPECT_EQ(size, -1);
}

}  // namespace
