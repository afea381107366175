// Lookup tables: every type, layout and interpolation against a reference of the interval
// rule for random level sets (levels out of order, beyond the type's range, two levels);
// the specification sizes and the check orders of the query, the initialisers and the
// mapping functions; kind mismatches and nothing written on error; guard pages around
// images and specifications.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <memory>
#include <cstring>
#include <limits>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using Map = KroStatus (*)(const T*, int, T*, int, KroiSize, const KroiLUTSpec*);
template <class T>
using MapI = KroStatus (*)(T*, int, KroiSize, const KroiLUTSpec*);
template <class E>
using Init = KroStatus (*)(int, int, KroiSize, const E**, const E**, const int*, KroiLUTSpec*);

template <class T>
struct Forms;
template <>
struct Forms<Kro8u> {
    using Elem = Kro32s;
    static constexpr int type = kro8u;
    static constexpr Init<Kro32s> init = kroiLUT_Init_8u;
    static constexpr Map<Kro8u> map[4] = {kroiLUT_8u_C1R, kroiLUT_8u_C3R, kroiLUT_8u_C4R, kroiLUT_8u_AC4R};
    static constexpr MapI<Kro8u> mapI[4] = {kroiLUT_8u_C1IR, kroiLUT_8u_C3IR, kroiLUT_8u_C4IR, kroiLUT_8u_AC4IR};
};
template <>
struct Forms<Kro16u> {
    using Elem = Kro32s;
    static constexpr int type = kro16u;
    static constexpr Init<Kro32s> init = kroiLUT_Init_16u;
    static constexpr Map<Kro16u> map[4] = {kroiLUT_16u_C1R, kroiLUT_16u_C3R, kroiLUT_16u_C4R, kroiLUT_16u_AC4R};
    static constexpr MapI<Kro16u> mapI[4] = {kroiLUT_16u_C1IR, kroiLUT_16u_C3IR, kroiLUT_16u_C4IR, kroiLUT_16u_AC4IR};
};
template <>
struct Forms<Kro16s> {
    using Elem = Kro32s;
    static constexpr int type = kro16s;
    static constexpr Init<Kro32s> init = kroiLUT_Init_16s;
    static constexpr Map<Kro16s> map[4] = {kroiLUT_16s_C1R, kroiLUT_16s_C3R, kroiLUT_16s_C4R, kroiLUT_16s_AC4R};
    static constexpr MapI<Kro16s> mapI[4] = {kroiLUT_16s_C1IR, kroiLUT_16s_C3IR, kroiLUT_16s_C4IR, kroiLUT_16s_AC4IR};
};
template <>
struct Forms<Kro32f> {
    using Elem = Kro32f;
    static constexpr int type = kro32f;
    static constexpr Init<Kro32f> init = kroiLUT_Init_32f;
    static constexpr Map<Kro32f> map[4] = {kroiLUT_32f_C1R, kroiLUT_32f_C3R, kroiLUT_32f_C4R, kroiLUT_32f_AC4R};
    static constexpr MapI<Kro32f> mapI[4] = {kroiLUT_32f_C1IR, kroiLUT_32f_C3IR, kroiLUT_32f_C4IR, kroiLUT_32f_AC4IR};
};

const int kLayout[4] = {kroC1, kroC3, kroC4, kroAC4};
const int kChannels[4] = {1, 3, 4, 4};
const int kTables[4] = {1, 3, 4, 3};
const int kInterp[3] = {kroInterNearest, kroInterLinear, kroInterCubic};

// One channel's table.
template <class E>
struct Table {
    std::vector<E> lv, val;
};

// ---- the reference: the last non-empty interval holding v, else v -------------------------

double lagrange(const double* x, const double* y, double v)
{
    double r = 0;
    for (int i = 0; i < 4; ++i) {
        double num = 1, den = 1;
        for (int m = 0; m < 4; ++m)
            if (m != i) num *= v - x[m], den *= x[i] - x[m];
        r += y[i] * num / den;
    }
    return r;
}

// The cubic's four points for interval k, or -1 where the linear rule applies.
template <class E>
int cubicStart(const Table<E>& t, int k)
{
    const int n = int(t.lv.size());
    if (n < 4) return -1;
    const int j = std::clamp(k - 1, 0, n - 4);
    for (int i = j; i < j + 3; ++i)
        if (!(t.lv[i] < t.lv[i + 1])) return -1;
    return j;
}

template <class E>
int interval(const Table<E>& t, double v)
{
    for (int k = int(t.lv.size()) - 2; k >= 0; --k)
        if (t.lv[k] < t.lv[k + 1] && t.lv[k] <= v && v < t.lv[k + 1]) return k;
    return -1;
}

// Integer types: the exact value as a fraction num / den (den > 0), or the cubic in long
// double; returns the candidates the result may round to (two only at a cubic's near tie).
template <class T>
std::vector<T> refInt(const Table<Kro32s>& t, int interp, int64_t v)
{
    auto sat = [](long double x) {
        constexpr long double lo = std::numeric_limits<T>::min(), hi = std::numeric_limits<T>::max();
        return T(x < lo ? lo : x > hi ? hi : x);
    };
    const int k = interval(t, double(v));
    if (k < 0) return {T(v)};
    if (interp == kroInterNearest) return {sat(t.val[k])};
    const int j = interp == kroInterCubic ? cubicStart(t, k) : -1;
    if (j >= 0) {
        double x[4], y[4];
        for (int i = 0; i < 4; ++i) x[i] = t.lv[j + i], y[i] = t.val[j + i];
        const long double r = lagrange(x, y, double(v));
        const long double f = std::floor(r);
        if (std::fabs(r - f - 0.5L) < 1e-6L) return {sat(f), sat(f + 1)};
        return {sat(std::nearbyint(r))};
    }
    // V[k] + dv * (v - L[k]) / d, rounded to nearest, ties to even, with 128-bit integers.
    const __int128 d = __int128(t.lv[k + 1]) - t.lv[k], dv = __int128(t.val[k + 1]) - t.val[k];
    const __int128 num = dv * (v - t.lv[k]);
    __int128 q = num / d, r = num % d;
    if (r < 0) q -= 1, r += d;
    q += t.val[k];  // the tie goes to the even total
    if (2 * r > d || (2 * r == d && (q % 2 != 0))) q += 1;
    return {sat((long double)q)};
}

float ref32f(const Table<Kro32f>& t, int interp, float v, bool* loose)
{
    *loose = false;
    const int k = interval(t, v);
    if (k < 0) return v;
    if (interp == kroInterNearest) return t.val[k];
    const int j = interp == kroInterCubic ? cubicStart(t, k) : -1;
    if (j >= 0) {
        double x[4], y[4];
        for (int i = 0; i < 4; ++i) x[i] = t.lv[j + i], y[i] = t.val[j + i];
        *loose = true;
        return float(lagrange(x, y, v));
    }
    const double a = t.lv[k], b = t.lv[k + 1];
    return float(double(t.val[k]) + (double(t.val[k + 1]) - double(t.val[k])) * ((double(v) - a) / (b - a)));
}

// ---- random tables -------------------------------------------------------------------------

// Ascending levels over a little more than the type's range (so that some lie outside), or
// levels in any order with repeats; two levels now and then.
template <class T>
Table<typename Forms<T>::Elem> randomTable(kt::Rng& rng, bool ordered)
{
    using E = typename Forms<T>::Elem;
    const int n = kt::uniform<int>(rng, 0, 3) == 0 ? 2 : kt::uniform<int>(rng, 3, 12);
    double lo, hi;
    if constexpr (std::is_floating_point_v<T>) lo = -100, hi = 100;
    else lo = double(std::numeric_limits<T>::min()), hi = double(std::numeric_limits<T>::max());
    const double span = hi - lo;
    Table<E> t;
    for (int i = 0; i < n; ++i) {
        const double x = kt::uniform<int>(rng, -100, 1100) / 1000.0;
        t.lv.push_back(E(std::floor(lo + x * span)));
        const double y = kt::uniform<int>(rng, -200, 1200) / 1000.0;
        t.val.push_back(std::is_floating_point_v<E> ? E(lo + y * span) : E(std::floor(lo + y * span)));
    }
    if (ordered) std::sort(t.lv.begin(), t.lv.end());
    return t;
}

// A specification in its own guarded block of exactly the queried size.
template <class T>
struct Spec {
    std::unique_ptr<kt::Guarded<Kro8u>> block;
    KroiLUTSpec* get() { return reinterpret_cast<KroiLUTSpec*>(block->ptr()); }
};

template <class T>
Spec<T> makeSpec(int interp, int li, const std::vector<Table<typename Forms<T>::Elem>>& tabs, int offset = 0)
{
    using E = typename Forms<T>::Elem;
    int n[4] = {2, 2, 2, 2};
    const E* lv[4] = {};
    const E* val[4] = {};
    for (int c = 0; c < kTables[li]; ++c)
        n[c] = int(tabs[c].lv.size()), lv[c] = tabs[c].lv.data(), val[c] = tabs[c].val.data();
    int size = -1;
    EXPECT_EQ(kroiLUT_GetSize(interp, Forms<T>::type, kLayout[li], {1, 1}, n, &size), kroStsOk);
    kt::Shape s{size, 1};
    s.guard = offset ? kt::Guard::Before : kt::Guard::After;
    s.offset = offset;
    Spec<T> spec{std::make_unique<kt::Guarded<Kro8u>>(s)};
    EXPECT_EQ(Forms<T>::init(interp, kLayout[li], {1, 1}, val, lv, n, spec.get()), kroStsOk);
    return spec;
}

// Image elements: every value of the integer type in turn (all 65536 for the 16-bit types),
// random values and specials for 32f.
template <class T>
T sample(kt::Rng& rng, long i)
{
    if constexpr (std::is_floating_point_v<T>) {
        if (i % 17 == 0) return kt::specialValues<T>()[std::size_t(i / 17) % kt::specialValues<T>().size()];
        return T(kt::uniform<int>(rng, -1300000, 1300000) / 10000.0);
    } else {
        return T(std::numeric_limits<T>::min() + i % (long(std::numeric_limits<T>::max()) - std::numeric_limits<T>::min() + 1));
    }
}

template <class T>
class Lut : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32f>;
TYPED_TEST_SUITE(Lut, Types);

TYPED_TEST(Lut, EveryValueMatchesTheIntervalRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    const int w = sizeof(T) == 1 ? 64 : 256;
    for (int li = 0; li < 4; ++li)
        for (int interp : kInterp)
            for (int round = 0; round < (sizeof(T) == 2 ? 2 : 6); ++round) {
                std::vector<Table<typename Forms<T>::Elem>> tabs;
                for (int c = 0; c < kTables[li]; ++c) tabs.push_back(randomTable<T>(rng, round % 2 == 0));
                auto spec = makeSpec<T>(interp, li, tabs, round % 3 == 2 ? 20 : 0);
                const int h = sizeof(T) == 2 ? 256 : 8;
                const int placement = round % 2;  // steps must be positive: no bottom-up rows
                kt::Guarded<T> src(lt::placed(w, h, kChannels[li], placement));
                kt::Guarded<T> dst(lt::placed(w, h, kChannels[li], 1 - placement));
                const long start = kt::uniform<int>(rng, 0, 1000);
                src.forEach([&](int x, int y, int c, T& e) { e = sample<T>(rng, start + long(y) * w + x + 37 * c); });
                dst.fillBytes(0x5A);
                const auto before = dst.snapshot();
                const KroiSize roi{w, h};
                ASSERT_EQ(Forms<T>::map[li](src.ptr(), src.step(), dst.ptr(), dst.step(), roi, spec.get()), kroStsOk);
                EXPECT_TRUE(dst.restUnchangedSince(before, kTables[li]));
                long bad = 0;
                dst.forEach([&](int x, int y, int c, T& got) {
                    if (c >= kTables[li]) return;
                    const T v = src.at(x, y, c);
                    if constexpr (std::is_floating_point_v<T>) {
                        bool loose;
                        const float want = ref32f(tabs[c], interp, v, &loose);
                        const bool ok = loose ? std::fabs(got - want) <= 1e-5f * std::max(1.f, std::fabs(want))
                                              : (std::memcmp(&got, &want, 4) == 0 || (got != got && want != want));
                        if (!ok && bad++ == 0) ADD_FAILURE() << "v " << v << " got " << got << " want " << want;
                    } else {
                        const auto want = refInt<T>(tabs[c], interp, v);
                        if (std::find(want.begin(), want.end(), got) == want.end() && bad++ == 0)
                            ADD_FAILURE() << "layout " << li << " interp " << interp << " v " << +v << " got " << +got
                                          << " want " << +want[0];
                    }
                });
                ASSERT_EQ(bad, 0);
                // In place gives the same, alpha kept.
                kt::Guarded<T> io(lt::placed(w, h, kChannels[li], placement));
                io.forEach([&](int x, int y, int c, T& e) { e = src.at(x, y, c); });
                ASSERT_EQ(Forms<T>::mapI[li](io.ptr(), io.step(), roi, spec.get()), kroStsOk);
                ASSERT_IMAGE_EQ(io, [&](int x, int y, int c) { return c < kTables[li] ? dst.at(x, y, c) : src.at(x, y, c); });
            }
}

// A specification keeps working after a byte copy to a block of another alignment.
TYPED_TEST(Lut, CopiedSpecification)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    const std::vector<Table<typename Forms<T>::Elem>> tabs{randomTable<T>(rng, true)};
    auto spec = makeSpec<T>(kroInterLinear, 0, tabs);
    const std::size_t bytes = spec.block->rowBytes();
    std::vector<unsigned char> other(bytes + 64);
    KroiLUTSpec* moved = reinterpret_cast<KroiLUTSpec*>(other.data() + 24);
    std::memcpy(moved, spec.get(), bytes);
    std::vector<T> src(300), a(300), b(300);
    for (long i = 0; i < 300; ++i) src[i] = sample<T>(rng, i * 211);
    const int step = int(300 * sizeof(T));
    ASSERT_EQ(Forms<T>::map[0](src.data(), step, a.data(), step, {300, 1}, spec.get()), kroStsOk);
    ASSERT_EQ(Forms<T>::map[0](src.data(), step, b.data(), step, {300, 1}, moved), kroStsOk);
    EXPECT_EQ(std::memcmp(a.data(), b.data(), a.size() * sizeof(T)), 0);
}

// Mapping checks: pointers, steps before the size, then the kind; nothing written.
TYPED_TEST(Lut, MappingChecksAndKinds)
{
    using T = TypeParam;
    using E = typename Forms<T>::Elem;
    const std::vector<Table<E>> tabs(4, Table<E>{{E(0), E(10)}, {E(1), E(2)}});
    kt::Guarded<T> a(4, 2, 4), d(4, 2, 4);
    d.fillBytes(0x5A);
    const auto before = d.snapshot();
    const int s = a.step();
    for (int li = 0; li < 4; ++li) {
        auto spec = makeSpec<T>(kroInterNearest, li, tabs);
        const auto f = Forms<T>::map[li];
        const auto fi = Forms<T>::mapI[li];
        EXPECT_EQ(f(nullptr, 0, d.ptr(), 0, {0, 0}, spec.get()), kroStsNullPointerErr);
        EXPECT_EQ(f(a.ptr(), s, nullptr, s, {4, 2}, spec.get()), kroStsNullPointerErr);
        EXPECT_EQ(f(a.ptr(), s, d.ptr(), s, {4, 2}, nullptr), kroStsNullPointerErr);
        EXPECT_EQ(f(a.ptr(), 0, d.ptr(), s, {0, 0}, spec.get()), kroStsBadStepErr);
        EXPECT_EQ(f(a.ptr(), s, d.ptr(), -s, {0, 2}, spec.get()), kroStsBadStepErr);
        EXPECT_EQ(f(a.ptr(), s, d.ptr(), s, {0, 2}, spec.get()), kroStsBadSizeErr);
        EXPECT_EQ(f(a.ptr(), s, d.ptr(), s, {4, -1}, spec.get()), kroStsBadSizeErr);
        EXPECT_EQ(fi(nullptr, s, {4, 2}, spec.get()), kroStsNullPointerErr);
        EXPECT_EQ(fi(d.ptr(), 0, {0, 2}, spec.get()), kroStsBadStepErr);
        EXPECT_EQ(fi(d.ptr(), s, {0, 2}, spec.get()), kroStsBadSizeErr);
        // A specification of another layout (C3 and AC4 included) or another type: -5.
        for (int other = 0; other < 4; ++other) {
            if (other == li) continue;
            EXPECT_EQ(Forms<T>::map[other](a.ptr(), s, d.ptr(), s, {1, 2}, spec.get()), kroStsBadArgumentErr);
            EXPECT_EQ(Forms<T>::mapI[other](d.ptr(), s, {1, 2}, spec.get()), kroStsBadArgumentErr);
        }
        const KroiLUTSpec* foreign = spec.get();
        if constexpr (!std::is_same_v<T, Kro16u>)
            EXPECT_EQ(Forms<Kro16u>::map[li](reinterpret_cast<const Kro16u*>(a.ptr()), s,
                                              reinterpret_cast<Kro16u*>(d.ptr()), s, {1, 2}, foreign),
                      kroStsBadArgumentErr);
        else
            EXPECT_EQ(Forms<Kro16s>::map[li](reinterpret_cast<const Kro16s*>(a.ptr()), s,
                                              reinterpret_cast<Kro16s*>(d.ptr()), s, {1, 2}, foreign),
                      kroStsBadArgumentErr);
    }
    std::vector<unsigned char> zeros(600000);
    EXPECT_EQ(Forms<T>::map[0](a.ptr(), s, d.ptr(), s, {1, 1}, reinterpret_cast<KroiLUTSpec*>(zeros.data())),
              kroStsBadArgumentErr);
    EXPECT_TRUE(d.unchangedSince(before));
}

TEST(LutSize, SizesOfEveryKind)
{
    const int n[4] = {5, 7, 11, 13};
    auto r64 = [](int v) { return (v + 63) / 64 * 64; };
    struct Row {
        int type, layout, size;
    } rows[] = {
        {kro8u, kroC1, 544},
        {kro8u, kroC3, 768 + 288},
        {kro8u, kroAC4, 768 + 288},
        {kro8u, kroC4, 1024 + 288},
        {kro16u, kroC1, 8 * 5 + 131360},
        {kro16s, kroC1, 8 * 5 + 131360},
        {kro16u, kroC3, r64(8 * 23) + 0x60000 + 288},
        {kro16s, kroC3, r64(8 * 23) + 0x60000 + 288},
        {kro16u, kroAC4, 0x60000 + 288},
        {kro16s, kroC4, 0x80000 + 288},
        {kro32f, kroC1, 8 * 5 + 288},
        {kro32f, kroC3, r64(8 * 23) + 288},
        {kro32f, kroAC4, r64(8 * 23) + 288},
        {kro32f, kroC4, r64(8 * 36) + 288},
    };
    for (const auto& r : rows)
        for (int interp : kInterp) {
            int size = 0;
            EXPECT_EQ(kroiLUT_GetSize(interp, r.type, r.layout, {3, 3}, n, &size), kroStsOk);
            EXPECT_EQ(size, r.size) << r.type << " " << r.layout << " " << interp;
        }
}

// Query: -8, -6, -106 (the fourth count of C4 first), -47, -59, -23.
TEST(LutSize, CheckOrder)
{
    int size = 7;
    const int ok[4] = {2, 2, 2, 2}, few3[4] = {2, 2, 2, 1}, few0[4] = {1, 2, 2, 2};
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 5, {0, 0}, nullptr, &size), kroStsNullPointerErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 5, {0, 0}, ok, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 5, {0, 1}, ok, &size), kroStsBadSizeErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 1, {1, 1}, few0, &size), kroStsFewLutLevelsErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 4, {1, 1}, few3, &size), kroStsFewLutLevelsErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 3, {1, 1}, few3, &size), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 99, 2, {1, 1}, few0, &size), kroStsBadChannelErr);
    EXPECT_EQ(kroiLUT_GetSize(9, 19, 9, {1, 1}, ok, &size), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiLUT_GetSize(9, kro8u, 9, {1, 1}, ok, &size), kroStsBadInterpolationErr);
    EXPECT_EQ(size, 7);
}

// Initialisers: -8 (arrays, then the layout's channel arrays), -6, -106, -47, -23; the block
// untouched on error.
TYPED_TEST(Lut, InitCheckOrder)
{
    using T = TypeParam;
    using E = typename Forms<T>::Elem;
    const E lv[2] = {E(0), E(5)}, val[2] = {E(1), E(2)};
    const E* L[4] = {lv, lv, lv, lv};
    const E* V[4] = {val, val, val, nullptr};
    const int ok[4] = {2, 2, 2, 2}, few3[4] = {2, 2, 2, 1};
    std::vector<unsigned char> block(600000, 0x5A);
    const auto before = block;
    auto* spec = reinterpret_cast<KroiLUTSpec*>(block.data());
    const auto init = Forms<T>::init;
    EXPECT_EQ(init(1, 1, {1, 1}, nullptr, L, ok, spec), kroStsNullPointerErr);
    EXPECT_EQ(init(1, 1, {1, 1}, V, nullptr, ok, spec), kroStsNullPointerErr);
    EXPECT_EQ(init(1, 1, {1, 1}, V, L, nullptr, spec), kroStsNullPointerErr);
    EXPECT_EQ(init(1, 1, {1, 1}, V, L, ok, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(init(9, 4, {0, 0}, V, L, few3, spec), kroStsNullPointerErr);
    EXPECT_EQ(init(9, 3, {0, 1}, V, L, few3, spec), kroStsBadSizeErr);
    EXPECT_EQ(init(9, 9, {1, 1}, V, L, few3, spec), kroStsBadInterpolationErr);
    EXPECT_EQ(init(9, 4, {1, 1}, V, L, ok, spec), kroStsNullPointerErr);
    V[3] = val;
    EXPECT_EQ(init(9, 4, {1, 1}, V, L, few3, spec), kroStsFewLutLevelsErr);
    EXPECT_EQ(init(9, 7, {1, 1}, V, L, few3, spec), kroStsBadChannelErr);
    EXPECT_EQ(init(9, 4, {1, 1}, V, L, ok, spec), kroStsBadInterpolationErr);
    EXPECT_TRUE(block == before);
}

// The worked example: levels 0, 128, 256 with values 10, 200, 0.
TEST(LutExample, NearestHalves)
{
    const Kro32s lv[3] = {0, 128, 256}, val[3] = {10, 200, 0};
    const Kro32s* L[1] = {lv};
    const Kro32s* V[1] = {val};
    const int n[1] = {3};
    int size = 0;
    ASSERT_EQ(kroiLUT_GetSize(kroInterNearest, kro8u, kroC1, {256, 1}, n, &size), kroStsOk);
    std::vector<unsigned char> block(size);
    auto* spec = reinterpret_cast<KroiLUTSpec*>(block.data());
    ASSERT_EQ(kroiLUT_Init_8u(kroInterNearest, kroC1, {256, 1}, V, L, n, spec), kroStsOk);
    EXPECT_EQ(*reinterpret_cast<const uint32_t*>(block.data()), 0x1234567u);
    Kro8u img[256];
    for (int i = 0; i < 256; ++i) img[i] = Kro8u(i);
    ASSERT_EQ(kroiLUT_8u_C1IR(img, 256, {256, 1}, spec), kroStsOk);
    for (int i = 0; i < 256; ++i) ASSERT_EQ(img[i], i < 128 ? 10 : 200) << i;
}

// Large 8u images with one map for every channel take the word-wise path.
TEST(LutExample, LargeImagesOneMap)
{
    auto rng = kt::rngForTest();
    for (int li : {0, 1, 2}) {
        const std::vector<Table<Kro32s>> tabs(kTables[li], randomTable<Kro8u>(rng, true));
        auto spec = makeSpec<Kro8u>(kroInterLinear, li, tabs);
        const int w = 203, h = 90;
        kt::Guarded<Kro8u> src(lt::placed(w, h, kChannels[li], 1)), dst(w, h, kChannels[li]);
        src.forEach([&](int, int, int, Kro8u& e) { e = Kro8u(rng()); });
        ASSERT_EQ(Forms<Kro8u>::map[li](src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, spec.get()), kroStsOk);
        ASSERT_IMAGE_EQ(dst, [&](int x, int y, int c) { return refInt<Kro8u>(tabs[c], kroInterLinear, src.at(x, y, c))[0]; });
    }
}

}  // namespace
