// Fixed thresholds: every member of every type and layout, out of place and in place, against
// its rule on data where elements equal to the thresholds are common (and, for 32f, NaN and
// both zeros); the check orders with their deliberate difference; nothing written on error.
#include <gtest/gtest.h>

#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

enum Family { Plain, LT, GT, Val, LTVal, GTVal, Both };
const char* const kFamilyNames[] = {"", "_LT", "_GT", "_Val", "_LTVal", "_GTVal", "_LTValGTVal"};

// A member with uniform calling shapes: parameters as arrays k[j] (threshold, value, and for
// the two-sided form the upper pair), the operation ignored by forms that take none.
template <class T>
struct Member {
    Family family;
    int channels, written;
    std::function<KroStatus(const T*, int, T*, int, KroiSize, const T* const*, KroCompareOp)> r;
    std::function<KroStatus(T*, int, KroiSize, const T* const*, KroCompareOp)> ir;
};

template <class T, class A>
auto pick(const T* const* k, std::size_t j, KroCompareOp op)
{
    if constexpr (std::is_same_v<A, KroCompareOp> && !std::is_same_v<T, KroCompareOp>) return (void)k, (void)j, op;
    else if constexpr (std::is_same_v<A, T>) return (void)op, *k[j];
    else return (void)op, k[j];
}

template <class T, class... A>
auto wrapR(KroStatus (*f)(const T*, int, T*, int, KroiSize, A...))
{
    return [f](const T* s, int ss, T* d, int ds, KroiSize roi, const T* const* k, KroCompareOp op) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return f(s, ss, d, ds, roi, pick<T, A>(k, I, op)...);
        }(std::index_sequence_for<A...>{});
    };
}
template <class T, class... A>
auto wrapI(KroStatus (*f)(T*, int, KroiSize, A...))
{
    return [f](T* p, int st, KroiSize roi, const T* const* k, KroCompareOp op) {
        return [&]<std::size_t... I>(std::index_sequence<I...>) {
            return f(p, st, roi, pick<T, A>(k, I, op)...);
        }(std::index_sequence_for<A...>{});
    };
}

#define M(fam, c, w, r, ir) Member<T>{fam, c, w, wrapR(r), wrapI(ir)}

template <class T>
std::vector<Member<T>> members();
template <>
std::vector<Member<Kro8u>> members()
{
    using T = Kro8u;
    return {
        M(Plain, 1, 1, kroiThreshold_8u_C1R, kroiThreshold_8u_C1IR),
        M(Plain, 3, 3, kroiThreshold_8u_C3R, kroiThreshold_8u_C3IR),
        M(Plain, 4, 3, kroiThreshold_8u_AC4R, kroiThreshold_8u_AC4IR),
        M(LT, 1, 1, kroiThreshold_LT_8u_C1R, kroiThreshold_LT_8u_C1IR),
        M(LT, 3, 3, kroiThreshold_LT_8u_C3R, kroiThreshold_LT_8u_C3IR),
        M(LT, 4, 3, kroiThreshold_LT_8u_AC4R, kroiThreshold_LT_8u_AC4IR),
        M(GT, 1, 1, kroiThreshold_GT_8u_C1R, kroiThreshold_GT_8u_C1IR),
        M(GT, 3, 3, kroiThreshold_GT_8u_C3R, kroiThreshold_GT_8u_C3IR),
        M(GT, 4, 3, kroiThreshold_GT_8u_AC4R, kroiThreshold_GT_8u_AC4IR),
        M(Val, 1, 1, kroiThreshold_Val_8u_C1R, kroiThreshold_Val_8u_C1IR),
        M(Val, 3, 3, kroiThreshold_Val_8u_C3R, kroiThreshold_Val_8u_C3IR),
        M(Val, 4, 3, kroiThreshold_Val_8u_AC4R, kroiThreshold_Val_8u_AC4IR),
        M(LTVal, 1, 1, kroiThreshold_LTVal_8u_C1R, kroiThreshold_LTVal_8u_C1IR),
        M(LTVal, 3, 3, kroiThreshold_LTVal_8u_C3R, kroiThreshold_LTVal_8u_C3IR),
        M(LTVal, 4, 4, kroiThreshold_LTVal_8u_C4R, kroiThreshold_LTVal_8u_C4IR),
        M(LTVal, 4, 3, kroiThreshold_LTVal_8u_AC4R, kroiThreshold_LTVal_8u_AC4IR),
        M(GTVal, 1, 1, kroiThreshold_GTVal_8u_C1R, kroiThreshold_GTVal_8u_C1IR),
        M(GTVal, 3, 3, kroiThreshold_GTVal_8u_C3R, kroiThreshold_GTVal_8u_C3IR),
        M(GTVal, 4, 4, kroiThreshold_GTVal_8u_C4R, kroiThreshold_GTVal_8u_C4IR),
        M(GTVal, 4, 3, kroiThreshold_GTVal_8u_AC4R, kroiThreshold_GTVal_8u_AC4IR),
        M(Both, 1, 1, kroiThreshold_LTValGTVal_8u_C1R, kroiThreshold_LTValGTVal_8u_C1IR),
        M(Both, 3, 3, kroiThreshold_LTValGTVal_8u_C3R, kroiThreshold_LTValGTVal_8u_C3IR),
        M(Both, 4, 3, kroiThreshold_LTValGTVal_8u_AC4R, kroiThreshold_LTValGTVal_8u_AC4IR),
    };
}
template <>
std::vector<Member<Kro16u>> members()
{
    using T = Kro16u;
    return {
        M(Plain, 1, 1, kroiThreshold_16u_C1R, kroiThreshold_16u_C1IR),
        M(Plain, 3, 3, kroiThreshold_16u_C3R, kroiThreshold_16u_C3IR),
        M(Plain, 4, 3, kroiThreshold_16u_AC4R, kroiThreshold_16u_AC4IR),
        M(LT, 1, 1, kroiThreshold_LT_16u_C1R, kroiThreshold_LT_16u_C1IR),
        M(LT, 3, 3, kroiThreshold_LT_16u_C3R, kroiThreshold_LT_16u_C3IR),
        M(LT, 4, 3, kroiThreshold_LT_16u_AC4R, kroiThreshold_LT_16u_AC4IR),
        M(GT, 1, 1, kroiThreshold_GT_16u_C1R, kroiThreshold_GT_16u_C1IR),
        M(GT, 3, 3, kroiThreshold_GT_16u_C3R, kroiThreshold_GT_16u_C3IR),
        M(GT, 4, 3, kroiThreshold_GT_16u_AC4R, kroiThreshold_GT_16u_AC4IR),
        M(Val, 1, 1, kroiThreshold_Val_16u_C1R, kroiThreshold_Val_16u_C1IR),
        M(Val, 3, 3, kroiThreshold_Val_16u_C3R, kroiThreshold_Val_16u_C3IR),
        M(Val, 4, 3, kroiThreshold_Val_16u_AC4R, kroiThreshold_Val_16u_AC4IR),
        M(LTVal, 1, 1, kroiThreshold_LTVal_16u_C1R, kroiThreshold_LTVal_16u_C1IR),
        M(LTVal, 3, 3, kroiThreshold_LTVal_16u_C3R, kroiThreshold_LTVal_16u_C3IR),
        M(LTVal, 4, 4, kroiThreshold_LTVal_16u_C4R, kroiThreshold_LTVal_16u_C4IR),
        M(LTVal, 4, 3, kroiThreshold_LTVal_16u_AC4R, kroiThreshold_LTVal_16u_AC4IR),
        M(GTVal, 1, 1, kroiThreshold_GTVal_16u_C1R, kroiThreshold_GTVal_16u_C1IR),
        M(GTVal, 3, 3, kroiThreshold_GTVal_16u_C3R, kroiThreshold_GTVal_16u_C3IR),
        M(GTVal, 4, 4, kroiThreshold_GTVal_16u_C4R, kroiThreshold_GTVal_16u_C4IR),
        M(GTVal, 4, 3, kroiThreshold_GTVal_16u_AC4R, kroiThreshold_GTVal_16u_AC4IR),
        M(Both, 1, 1, kroiThreshold_LTValGTVal_16u_C1R, kroiThreshold_LTValGTVal_16u_C1IR),
        M(Both, 3, 3, kroiThreshold_LTValGTVal_16u_C3R, kroiThreshold_LTValGTVal_16u_C3IR),
        M(Both, 4, 3, kroiThreshold_LTValGTVal_16u_AC4R, kroiThreshold_LTValGTVal_16u_AC4IR),
    };
}
template <>
std::vector<Member<Kro16s>> members()
{
    using T = Kro16s;
    return {
        M(Plain, 1, 1, kroiThreshold_16s_C1R, kroiThreshold_16s_C1IR),
        M(Plain, 3, 3, kroiThreshold_16s_C3R, kroiThreshold_16s_C3IR),
        M(Plain, 4, 3, kroiThreshold_16s_AC4R, kroiThreshold_16s_AC4IR),
        M(LT, 1, 1, kroiThreshold_LT_16s_C1R, kroiThreshold_LT_16s_C1IR),
        M(LT, 3, 3, kroiThreshold_LT_16s_C3R, kroiThreshold_LT_16s_C3IR),
        M(LT, 4, 3, kroiThreshold_LT_16s_AC4R, kroiThreshold_LT_16s_AC4IR),
        M(GT, 1, 1, kroiThreshold_GT_16s_C1R, kroiThreshold_GT_16s_C1IR),
        M(GT, 3, 3, kroiThreshold_GT_16s_C3R, kroiThreshold_GT_16s_C3IR),
        M(GT, 4, 3, kroiThreshold_GT_16s_AC4R, kroiThreshold_GT_16s_AC4IR),
        M(Val, 1, 1, kroiThreshold_Val_16s_C1R, kroiThreshold_Val_16s_C1IR),
        M(Val, 3, 3, kroiThreshold_Val_16s_C3R, kroiThreshold_Val_16s_C3IR),
        M(Val, 4, 3, kroiThreshold_Val_16s_AC4R, kroiThreshold_Val_16s_AC4IR),
        M(LTVal, 1, 1, kroiThreshold_LTVal_16s_C1R, kroiThreshold_LTVal_16s_C1IR),
        M(LTVal, 3, 3, kroiThreshold_LTVal_16s_C3R, kroiThreshold_LTVal_16s_C3IR),
        M(LTVal, 4, 4, kroiThreshold_LTVal_16s_C4R, kroiThreshold_LTVal_16s_C4IR),
        M(LTVal, 4, 3, kroiThreshold_LTVal_16s_AC4R, kroiThreshold_LTVal_16s_AC4IR),
        M(GTVal, 1, 1, kroiThreshold_GTVal_16s_C1R, kroiThreshold_GTVal_16s_C1IR),
        M(GTVal, 3, 3, kroiThreshold_GTVal_16s_C3R, kroiThreshold_GTVal_16s_C3IR),
        M(GTVal, 4, 4, kroiThreshold_GTVal_16s_C4R, kroiThreshold_GTVal_16s_C4IR),
        M(GTVal, 4, 3, kroiThreshold_GTVal_16s_AC4R, kroiThreshold_GTVal_16s_AC4IR),
        M(Both, 1, 1, kroiThreshold_LTValGTVal_16s_C1R, kroiThreshold_LTValGTVal_16s_C1IR),
        M(Both, 3, 3, kroiThreshold_LTValGTVal_16s_C3R, kroiThreshold_LTValGTVal_16s_C3IR),
        M(Both, 4, 3, kroiThreshold_LTValGTVal_16s_AC4R, kroiThreshold_LTValGTVal_16s_AC4IR),
    };
}
template <>
std::vector<Member<Kro32f>> members()
{
    using T = Kro32f;
    return {
        M(Plain, 1, 1, kroiThreshold_32f_C1R, kroiThreshold_32f_C1IR),
        M(Plain, 3, 3, kroiThreshold_32f_C3R, kroiThreshold_32f_C3IR),
        M(Plain, 4, 3, kroiThreshold_32f_AC4R, kroiThreshold_32f_AC4IR),
        M(LT, 1, 1, kroiThreshold_LT_32f_C1R, kroiThreshold_LT_32f_C1IR),
        M(LT, 3, 3, kroiThreshold_LT_32f_C3R, kroiThreshold_LT_32f_C3IR),
        M(LT, 4, 3, kroiThreshold_LT_32f_AC4R, kroiThreshold_LT_32f_AC4IR),
        M(GT, 1, 1, kroiThreshold_GT_32f_C1R, kroiThreshold_GT_32f_C1IR),
        M(GT, 3, 3, kroiThreshold_GT_32f_C3R, kroiThreshold_GT_32f_C3IR),
        M(GT, 4, 3, kroiThreshold_GT_32f_AC4R, kroiThreshold_GT_32f_AC4IR),
        M(Val, 1, 1, kroiThreshold_Val_32f_C1R, kroiThreshold_Val_32f_C1IR),
        M(Val, 3, 3, kroiThreshold_Val_32f_C3R, kroiThreshold_Val_32f_C3IR),
        M(Val, 4, 3, kroiThreshold_Val_32f_AC4R, kroiThreshold_Val_32f_AC4IR),
        M(LTVal, 1, 1, kroiThreshold_LTVal_32f_C1R, kroiThreshold_LTVal_32f_C1IR),
        M(LTVal, 3, 3, kroiThreshold_LTVal_32f_C3R, kroiThreshold_LTVal_32f_C3IR),
        M(LTVal, 4, 4, kroiThreshold_LTVal_32f_C4R, kroiThreshold_LTVal_32f_C4IR),
        M(LTVal, 4, 3, kroiThreshold_LTVal_32f_AC4R, kroiThreshold_LTVal_32f_AC4IR),
        M(GTVal, 1, 1, kroiThreshold_GTVal_32f_C1R, kroiThreshold_GTVal_32f_C1IR),
        M(GTVal, 3, 3, kroiThreshold_GTVal_32f_C3R, kroiThreshold_GTVal_32f_C3IR),
        M(GTVal, 4, 4, kroiThreshold_GTVal_32f_C4R, kroiThreshold_GTVal_32f_C4IR),
        M(GTVal, 4, 3, kroiThreshold_GTVal_32f_AC4R, kroiThreshold_GTVal_32f_AC4IR),
        M(Both, 1, 1, kroiThreshold_LTValGTVal_32f_C1R, kroiThreshold_LTValGTVal_32f_C1IR),
        M(Both, 3, 3, kroiThreshold_LTValGTVal_32f_C3R, kroiThreshold_LTValGTVal_32f_C3IR),
        M(Both, 4, 3, kroiThreshold_LTValGTVal_32f_AC4R, kroiThreshold_LTValGTVal_32f_AC4IR),
    };
}
#undef M

// The rule, element by element, with the channel's parameters p[0..3].
template <class T>
T rule(Family f, KroCompareOp op, T s, const T* p)
{
    const bool less = f == LT || f == LTVal || ((f == Plain || f == Val) && op == kroCompareLess);
    switch (f) {
    case Plain:
    case LT:
    case GT:
        if (less) return s < p[0] ? p[0] : s;
        return s > p[0] ? p[0] : s;
    case Both:
        if (s < p[0]) return p[1];
        if (s > p[2]) return p[3];
        return s;
    default:
        if (less) return s < p[0] ? p[1] : s;
        return s > p[0] ? p[1] : s;
    }
}

// A small pool of values, so that elements meet their thresholds often.
template <class T>
std::vector<T> pool()
{
    using L = std::numeric_limits<T>;
    if constexpr (std::is_floating_point_v<T>)
        return {T(-1), T(0), -T(0), T(1), T(2.5), T(7), L::infinity(), -L::infinity(), L::quiet_NaN()};
    else
        return {L::lowest(), T(0), T(1), T(2), T(7), T(L::max() - 1), L::max()};
}

template <class T>
class Fixed : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32f>;
TYPED_TEST_SUITE(Fixed, Types);

TYPED_TEST(Fixed, EveryMemberFollowsItsRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    const auto vals = pool<T>();
    auto draw = [&] { return vals[kt::uniform<std::size_t>(rng, 0, vals.size() - 1)]; };
    for (const auto& m : members<T>())
        for (KroCompareOp op : {kroCompareLess, kroCompareGreater}) {
            if (op == kroCompareGreater && m.family != Plain && m.family != Val) continue;
            for (int w : {1, 3, 16, 17, 33, 300})
                for (int pl = 0; pl < 2; ++pl) {
                    // Parameters per channel; the two-sided form needs lower <= upper, which a
                    // NaN satisfies as well.
                    T k[4][4];
                    for (auto& a : k)
                        for (auto& e : a) e = draw();
                    // Half the runs give every channel the same parameters, which lets
                    // three-channel images run as one-channel rows.
                    if (pl == 1)
                        for (auto& a : k) a[1] = a[2] = a[3] = a[0];
                    if (m.family == Both)
                        for (int c = 0; c < 4; ++c)
                            if (k[2][c] < k[0][c]) std::swap(k[0][c], k[2][c]);
                    const T* kp[4] = {k[0], k[1], k[2], k[3]};
                    auto expected = [&](const kt::Guarded<T>& src, const kt::Guarded<T>& dst) {
                        return [&](int x, int y, int c) {
                            if (c >= m.written) return dst.at(x, y, c);
                            const T p[4] = {k[0][c], k[1][c], k[2][c], k[3][c]};
                            return rule<T>(m.family, op, src.at(x, y, c), p);
                        };
                    };
                    const std::string what = std::string(kFamilyNames[m.family]) + " C" +
                                             std::to_string(m.channels) + "/" + std::to_string(m.written) +
                                             " op " + std::to_string(op) + " w " + std::to_string(w) +
                                             " placement " + std::to_string(pl);
                    kt::Guarded<T> src(lt::placed(w, 5, m.channels, pl)), dst(lt::placed(w, 5, m.channels, 1 - pl));
                    src.forEach([&](int, int, int, T& e) { e = draw(); });
                    dst.fillBytes(0xA5);
                    const auto before = dst.snapshot(), srcBefore = src.snapshot();
                    ASSERT_EQ(m.r(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 5}, kp, op), kroStsOk) << what;
                    ASSERT_IMAGE_EQ(dst, expected(src, dst)) << what;
                    EXPECT_TRUE(dst.restUnchangedSince(before, m.written)) << what;
                    EXPECT_TRUE(src.unchangedSince(srcBefore)) << what;

                    // In place: the same result, the fourth channel of AC4 kept.
                    kt::Guarded<T> img(lt::placed(w, 5, m.channels, pl));
                    std::memcpy(img.lowest(), src.lowest(), src.spanBytes());
                    ASSERT_EQ(m.ir(img.ptr(), img.step(), {w, 5}, kp, op), kroStsOk) << what;
                    ASSERT_IMAGE_EQ(img, expected(src, src)) << what << " in place";
                    EXPECT_TRUE(img.restUnchangedSince(srcBefore, m.written)) << what << " in place";
                }
        }
}

// The first failing check decides, and nothing is written on any failure.
TYPED_TEST(Fixed, ChecksInOrderWriteNothing)
{
    using T = TypeParam;
    const T lo[4] = {T(5), T(5), T(5), T(5)}, hi[4] = {T(9), T(9), T(9), T(9)};
    const T* ok[4] = {lo, lo, hi, hi};
    const T* swapped[4] = {hi, hi, lo, lo};
    const T* null[4] = {nullptr, nullptr, nullptr, nullptr};
    for (const auto& m : members<T>()) {
        kt::Guarded<T> src(4, 3, m.channels), dst(4, 3, m.channels);
        dst.fillBytes(0x3C);
        const auto before = dst.snapshot();
        const bool hasOp = m.family == Plain || m.family == Val;
        const std::string what = std::string(kFamilyNames[m.family]) + " C" + std::to_string(m.channels);
        auto r = [&](const T* s, T* d, KroiSize roi, int ss, int ds, const T* const* k, KroCompareOp op) {
            return m.r(s, ss, d, ds, roi, k, op);
        };
        const int st = src.step();
        const KroCompareOp bad = hasOp ? 2 : kroCompareLess;
        // The operation goes first in the _Val forms only, last in the plain form.
        const KroStatus first = m.family == Val ? kroStsUnsupportedModeErr : kroStsNullPointerErr;
        EXPECT_EQ(r(nullptr, dst.ptr(), {4, 3}, 0, 0, ok, bad), first) << what;
        EXPECT_EQ(m.ir(nullptr, 0, {0, 3}, ok, bad), first) << what;
        if (m.channels > 1) {
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, 3}, st, st, null, kroCompareLess), kroStsNullPointerErr) << what;
        }
        if (m.family != Val) {
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {0, 3}, 0, 0, ok, bad), kroStsBadSizeErr) << what;
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, -1}, 0, 0, ok, bad), kroStsBadSizeErr) << what;
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, 3}, st, 0, ok, bad), kroStsBadStepErr) << what;
            EXPECT_EQ(m.ir(dst.ptr(), -st, {4, 3}, ok, bad), kroStsBadStepErr) << what;
        }
        if (hasOp) {
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, 3}, st, st, ok, 1), kroStsUnsupportedModeErr) << what;
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, 3}, st, st, ok, -1), kroStsUnsupportedModeErr) << what;
            EXPECT_EQ(m.ir(dst.ptr(), st, {4, 3}, ok, 3), kroStsUnsupportedModeErr) << what;
        }
        if (m.family == Both) {
            EXPECT_EQ(r(src.ptr(), dst.ptr(), {4, 3}, st, st, swapped, 0), kroStsThresholdOrderErr) << what;
            EXPECT_EQ(m.ir(dst.ptr(), st, {4, 3}, swapped, 0), kroStsThresholdOrderErr) << what;
            // Equal thresholds are accepted; a channel beyond the compared ones is not looked at.
            const T* equal[4] = {lo, lo, lo, lo};
            kt::Guarded<T> d2(4, 3, m.channels);
            EXPECT_EQ(r(src.ptr(), d2.ptr(), {4, 3}, st, d2.step(), equal, 0), kroStsOk) << what;
            if (m.written == 3 && m.channels == 4) {
                const T oddAlpha[4] = {T(9), T(9), T(9), T(0)};
                const T* k[4] = {lo, lo, oddAlpha, oddAlpha};
                EXPECT_EQ(r(src.ptr(), d2.ptr(), {4, 3}, st, d2.step(), k, 0), kroStsOk) << what;
            }
        }
        EXPECT_TRUE(dst.unchangedSince(before)) << what;
    }
}

}  // namespace
