// The median filters against a sort of each window, the window built from the border rule:
// every type and layout, network, histogram and sorted-window masks, even masks, masks
// larger than the image, every border code with its flags, ties and NaN.
#include <algorithm>
#include <cmath>
#include <cstring>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "filter/window_reference.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

template <class T>
using FilterFn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);

template <class T>
struct Member {
    const char* name;
    FilterFn<T> fn;
    int C;
    bool alpha;
};

#define MEMBERS(t)                                                                          \
    {"kroiFilterMedianBorder_" #t "_C1R", kroiFilterMedianBorder_##t##_C1R, 1, false},     \
        {"kroiFilterMedianBorder_" #t "_C3R", kroiFilterMedianBorder_##t##_C3R, 3, false}, \
        {"kroiFilterMedianBorder_" #t "_C4R", kroiFilterMedianBorder_##t##_C4R, 4, false}, \
        {"kroiFilterMedianBorder_" #t "_AC4R", kroiFilterMedianBorder_##t##_AC4R, 4, true}
// The names, for the coverage test: kroiFilterMedianBorder_8u_C1R kroiFilterMedianBorder_8u_C3R
// kroiFilterMedianBorder_8u_C4R kroiFilterMedianBorder_8u_AC4R kroiFilterMedianBorder_16u_C1R
// kroiFilterMedianBorder_16u_C3R kroiFilterMedianBorder_16u_C4R kroiFilterMedianBorder_16u_AC4R
// kroiFilterMedianBorder_16s_C1R kroiFilterMedianBorder_16s_C3R kroiFilterMedianBorder_16s_C4R
// kroiFilterMedianBorder_16s_AC4R kroiFilterMedianBorder_32f_C1R kroiFilterMedianBorder_32f_C3R
// kroiFilterMedianBorder_32f_C4R kroiFilterMedianBorder_32f_AC4R

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

// The order of the rule: numbers by value, -0 before +0, every NaN after +inf.
template <class T>
bool before(T a, T b)
{
    if constexpr (std::is_same_v<T, float>) {
        if (std::isnan(a) || std::isnan(b)) return !std::isnan(a) && std::isnan(b);
        if (a == b) return std::signbit(a) && !std::signbit(b);
    }
    return a < b;
}

template <class T>
T lowerMedian(std::vector<T> v)
{
    std::sort(v.begin(), v.end(), before<T>);
    T m = v[(v.size() - 1) / 2];
    if constexpr (std::is_same_v<T, float>)
        if (std::isnan(m)) {
            const uint32_t q = 0x7FC00000;
            std::memcpy(&m, &q, 4);
        }
    return m;
}

// Random data drawn from few values, so that windows have ties, or from the whole range.
template <class T>
void fill(kt::Guarded<T>& img, kt::Rng& rng, bool ties, const kt::FloatMix& mix)
{
    img.forEach([&](int, int, int, T& e) {
        e = ties ? T(kt::uniform<int>(rng, 0, 3) * 7) : kt::randomValue<T>(rng, mix);
    });
}

template <class T>
void expectRule(const Member<T>& m, const kt::WindowCase& k, kt::Rng& rng, bool ties = false, const kt::FloatMix& mix = {})
{
    const int C = m.C, WC = m.alpha ? 3 : C;
    kt::Guarded<T> src(kt::Shape{k.W + 2 * k.margin, k.H + 2 * k.margin, C, 3 * int(sizeof(T)), kt::Guard::After});
    fill(src, rng, ties, mix);
    kt::Guarded<T> dst(kt::typed<T>(kt::Shape{k.W, k.H, C, 5 * int(sizeof(T)), kt::Guard::Before, 6}));
    dst.fillBytes(0xA5);
    const auto canary = dst.snapshot();
    int size = 0;
    ASSERT_EQ(kroiFilterMedianBorderGetBufferSize({k.W, k.H}, {k.mw, k.mh}, kt::typeCode<T>(), C, &size), kroStsOk);
    kt::Guarded<Kro8u> buffer(kt::Shape{size, 1, 1, 0, kt::Guard::After});
    T value[4];
    for (T& v : value) v = ties ? T(7) : kt::randomValue<T>(rng, mix);
    const std::string what = std::string(m.name) + " " + k.name();
    ASSERT_EQ(m.fn(&src.at(k.margin, k.margin), src.step(), dst.ptr(), dst.step(), {k.W, k.H}, {k.mw, k.mh}, k.code,
                   value, buffer.ptr()),
              kroStsOk)
        << what;
    int bad = 0;
    std::vector<T> win;
    for (int y = 0; y < k.H && bad < 5; ++y)
        for (int x = 0; x < k.W && bad < 5; ++x)
            for (int c = 0; c < WC; ++c) {
                win.clear();
                for (int j = 0; j < k.mh; ++j)
                    for (int i = 0; i < k.mw; ++i) win.push_back(kt::windowAt(src, k, value, x, y, i, j, c));
                const T want = lowerMedian(win), got = dst.at(x, y, c);
                if (std::memcmp(&got, &want, sizeof(T)) != 0) {
                    ADD_FAILURE() << what << " at (" << x << "," << y << "," << c << "): " << kt::show(got) << " want "
                                  << kt::show(want);
                    ++bad;
                }
            }
    EXPECT_TRUE(dst.restUnchangedSince(canary, WC)) << what;
}

template <class T>
void sweepMasks(kt::Rng& rng)
{
    // Network masks, histogram or sorted masks, even and one-row masks, masks as large as or
    // larger than the image (staged), with rows that end inside and outside a vector.
    const KroiSize masks[] = {{3, 3}, {5, 5}, {1, 1}, {2, 2}, {4, 3}, {1, 7}, {6, 1}, {7, 7}, {15, 15}, {12, 5}, {19, 14}};
    const KroiBorderMode codes[] = {kroBorderReplicate, kroBorderMirror, kroBorderConstant};
    int i = 0;
    for (const auto& m : members<T>())
        for (const KroiSize mk : masks) {
            for (int W : {37, 3}) {
                expectRule(m, {W, 13, mk.width, mk.height, codes[i++ % 3], 0}, rng, i % 4 == 0);
                if (::testing::Test::HasFailure()) return;
            }
        }
}

TEST(MedianFilter, EveryMaskMatchesSortedWindows)
{
    auto rng = kt::rngForTest();
    sweepMasks<Kro8u>(rng);
    sweepMasks<Kro16u>(rng);
    sweepMasks<Kro16s>(rng);
    sweepMasks<Kro32f>(rng);
}

template <class T>
void sweepCodes(kt::Rng& rng)
{
    const kt::WindowCase shapes[] = {{21, 7, 3, 3, 0, 0}, {13, 6, 5, 5, 0, 0}, {13, 6, 4, 2, 0, 0}, {6, 4, 3, 7, 0, 0}};
    for (const auto& m : members<T>())
        for (kt::WindowCase k : shapes) {
            k.margin = std::max(k.mw, k.mh);
            for (unsigned flags = 0; flags < 16; flags += (m.C == 1 ? 1 : 5))
                for (unsigned mode : {1u, 3u, 6u}) {
                    k.code = (flags << 4) | mode;
                    expectRule(m, k, rng);
                }
            k.code = kroBorderInMem;
            expectRule(m, k, rng);
            if (::testing::Test::HasFailure()) return;
        }
}

TEST(MedianFilter, EveryBorderCodeMatchesRule)
{
    auto rng = kt::rngForTest();
    sweepCodes<Kro8u>(rng);
    sweepCodes<Kro16u>(rng);
    sweepCodes<Kro16s>(rng);
    sweepCodes<Kro32f>(rng);
}

// Full-range values including the type's ends, and 32f with infinities, zeros of both signs
// and NaNs among the numbers.
TEST(MedianFilter, ExtremesZerosAndNaN)
{
    auto rng = kt::rngForTest();
    kt::FloatMix specials{-5, 5, 0.3};
    for (const auto& m : members<Kro32f>())
        for (KroiSize mk : {KroiSize{3, 3}, KroiSize{5, 5}, KroiSize{4, 4}, KroiSize{9, 3}})
            expectRule(m, {29, 9, mk.width, mk.height, kroBorderMirror, 0}, rng, false, specials);
    for (const auto& m : members<Kro16s>())
        for (KroiSize mk : {KroiSize{3, 3}, KroiSize{5, 5}, KroiSize{6, 3}}) expectRule(m, {40, 6, mk.width, mk.height, kroBorderReplicate, 0}, rng);
}

// Long rows: the vector loops and their overlapping tail.
TEST(MedianFilter, LongRows)
{
    auto rng = kt::rngForTest();
    for (int W : {16, 17, 31, 70, 257})
        for (KroiSize mk : {KroiSize{3, 3}, KroiSize{5, 5}, KroiSize{8, 8}}) {
            expectRule(members<Kro8u>()[0], {W, 6, mk.width, mk.height, kroBorderMirror | kroBorderInMemRight, 4}, rng);
            expectRule(members<Kro16u>()[1], {W, 5, mk.width, mk.height, kroBorderReplicate, 0}, rng);
            expectRule(members<Kro32f>()[0], {W, 5, mk.width, mk.height, kroBorderConstant, 0}, rng);
        }
}

// The weighted centre: the centre counted `weight` times among its eight neighbours.
TEST(MedianFilter, WeightedCenter3x3)
{
    auto rng = kt::rngForTest();
    for (int weight : {1, 2, 3, 4, 8, 9, 1000})
        for (KroiBorderMode code : {KroiBorderMode(kroBorderReplicate), KroiBorderMode(kroBorderMirror), KroiBorderMode(kroBorderConstant), KroiBorderMode(kroBorderInMem)}) {
            const kt::WindowCase k{23, 9, 3, 3, code, 1};
            kt::Guarded<Kro8u> src(k.W + 2, k.H + 2, 1, 3);
            fill(src, rng, weight == 3, {});
            kt::Guarded<Kro8u> dst(kt::Shape{k.W, k.H, 1, 4, kt::Guard::After});
            int size = 0;
            ASSERT_EQ(kroiFilterMedianBorderGetBufferSize({k.W, k.H}, {3, 3}, kro8u, 1, &size), kroStsOk);
            kt::Guarded<Kro8u> buf(kt::Shape{size, 1, 1, 0, kt::Guard::After});
            const Kro8u value = 200;
            ASSERT_EQ(kroiFilterMedianWeightedCenter3x3Border_8u_C1R(&src.at(1, 1), src.step(), dst.ptr(), dst.step(),
                                                                     {k.W, k.H}, weight, code, &value, buf.ptr()),
                      kroStsOk);
            for (int y = 0; y < k.H; ++y)
                for (int x = 0; x < k.W; ++x) {
                    std::vector<Kro8u> win;
                    for (int j = 0; j < 3; ++j)
                        for (int i = 0; i < 3; ++i) {
                            const Kro8u v = kt::windowAt(src, k, &value, x, y, i, j, 0);
                            for (int r = 0; r < (i == 1 && j == 1 ? weight : 1); ++r) win.push_back(v);
                        }
                    ASSERT_EQ(dst.at(x, y), lowerMedian(win)) << "weight " << weight << " at " << x << "," << y;
                }
        }
}

}  // namespace
