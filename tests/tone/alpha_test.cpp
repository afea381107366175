// Alpha composition with constant and per-pixel alphas: every member, type and layout
// against the written-out rules (8u bit-exact over every pair of constant alphas), planes,
// in-place forms equal to the out-of-place result, untouched fourth channels, the check
// order and nothing written on error; images against guard pages.
#include <gtest/gtest.h>

#include <algorithm>
#include <cstring>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"
#include "tone/alpha_reference.hpp"
#include "tone/alpha_rule.hpp"

namespace {

template <class T>
using CompC = KroStatus (*)(const T*, int, T, const T*, int, T, T*, int, KroiSize, KroiAlphaOp);
template <class T>
using CompCI = KroStatus (*)(const T*, int, T, T*, int, T, KroiSize, KroiAlphaOp);
template <class T>
using CompCP = KroStatus (*)(const T* const*, int, T, const T* const*, int, T, T* const*, int, KroiSize, KroiAlphaOp);
template <class T>
using CompCIP = KroStatus (*)(const T* const*, int, T, T* const*, int, T, KroiSize, KroiAlphaOp);
template <class T>
using Comp = KroStatus (*)(const T*, int, const T*, int, T*, int, KroiSize, KroiAlphaOp);
template <class T>
using CompI = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiAlphaOp);
template <class T>
using CompP = KroStatus (*)(const T* const*, int, const T* const*, int, T* const*, int, KroiSize, KroiAlphaOp);

// An interleaved member: C elements per pixel, the first W composed.
template <class T>
struct ConstForm {
    int C, W;
    CompC<T> f;
    CompCI<T> fi;
};
template <class T>
struct PixelForm {
    int C;  // 1: AC1, 4: AC4
    Comp<T> f;
    CompI<T> fi;  // may be null
};

template <class T>
struct Members {
    std::vector<ConstForm<T>> constForms;
    CompCP<T> constP4 = nullptr;
    CompCIP<T> constIP4 = nullptr;
    std::vector<PixelForm<T>> pixelForms;
    CompP<T> pixelP4 = nullptr;
};

Members<Kro8u> members(Kro8u)
{
    return {{{1, 1, kroiAlphaCompC_8u_C1R, kroiAlphaCompC_8u_C1IR},
             {3, 3, kroiAlphaCompC_8u_C3R, kroiAlphaCompC_8u_C3IR},
             {4, 4, kroiAlphaCompC_8u_C4R, kroiAlphaCompC_8u_C4IR},
             {4, 3, kroiAlphaCompC_8u_AC4R, kroiAlphaCompC_8u_AC4IR}},
            kroiAlphaCompC_8u_AP4R,
            kroiAlphaCompC_8u_AP4IR,
            {{1, kroiAlphaComp_8u_AC1R, kroiAlphaComp_8u_AC1IR}, {4, kroiAlphaComp_8u_AC4R, kroiAlphaComp_8u_AC4IR}},
            kroiAlphaComp_8u_AP4R};
}
Members<Kro16u> members(Kro16u)
{
    return {{{1, 1, kroiAlphaCompC_16u_C1R, kroiAlphaCompC_16u_C1IR},
             {3, 3, kroiAlphaCompC_16u_C3R, kroiAlphaCompC_16u_C3IR},
             {4, 4, kroiAlphaCompC_16u_C4R, kroiAlphaCompC_16u_C4IR},
             {4, 3, kroiAlphaCompC_16u_AC4R, kroiAlphaCompC_16u_AC4IR}},
            kroiAlphaCompC_16u_AP4R,
            kroiAlphaCompC_16u_AP4IR,
            {{1, kroiAlphaComp_16u_AC1R, kroiAlphaComp_16u_AC1IR}, {4, kroiAlphaComp_16u_AC4R, kroiAlphaComp_16u_AC4IR}},
            kroiAlphaComp_16u_AP4R};
}
Members<Kro16s> members(Kro16s)
{
    return {{{1, 1, kroiAlphaCompC_16s_C1R, kroiAlphaCompC_16s_C1IR}}, nullptr, nullptr,
            {{1, kroiAlphaComp_16s_AC1R, nullptr}, {4, kroiAlphaComp_16s_AC4R, kroiAlphaComp_16s_AC4IR}}, nullptr};
}
Members<Kro32s> members(Kro32s)
{
    return {{{1, 1, kroiAlphaCompC_32s_C1R, kroiAlphaCompC_32s_C1IR}}, nullptr, nullptr,
            {{1, kroiAlphaComp_32s_AC1R, nullptr}, {4, kroiAlphaComp_32s_AC4R, kroiAlphaComp_32s_AC4IR}}, nullptr};
}
Members<Kro32u> members(Kro32u)
{
    return {{{1, 1, kroiAlphaCompC_32u_C1R, kroiAlphaCompC_32u_C1IR}}, nullptr, nullptr,
            {{1, kroiAlphaComp_32u_AC1R, nullptr}, {4, kroiAlphaComp_32u_AC4R, kroiAlphaComp_32u_AC4IR}}, nullptr};
}
Members<Kro32f> members(Kro32f)
{
    return {{{1, 1, kroiAlphaCompC_32f_C1R, kroiAlphaCompC_32f_C1IR}}, nullptr, nullptr,
            {{1, kroiAlphaComp_32f_AC1R, nullptr}, {4, kroiAlphaComp_32f_AC4R, kroiAlphaComp_32f_AC4IR}}, nullptr};
}

// Colours over the whole range of the type (32f: -2..2); alphas mostly within 0..alpha 1,
// with the ends often, and for the signed types now and then below 0.
template <class T>
T colour(kt::Rng& rng)
{
    if constexpr (std::is_floating_point_v<T>) return T(kt::uniform<int>(rng, -20000, 20000) / 10000.0);
    else return kt::uniform<T>(rng, std::numeric_limits<T>::min(), std::numeric_limits<T>::max());
}
template <class T>
T alphaValue(kt::Rng& rng)
{
    const int pick = kt::uniform<int>(rng, 0, 9);
    if constexpr (std::is_floating_point_v<T>) {
        return pick == 0 ? T(0) : pick == 1 ? T(1) : T(kt::uniform<int>(rng, 0, 1 << 20) / double(1 << 20));
    } else {
        constexpr T one = std::numeric_limits<T>::max();
        if (pick == 0) return T(0);
        if (pick == 1) return one;
        if (pick == 2 && std::is_signed_v<T>) return kt::uniform<T>(rng, std::numeric_limits<T>::min(), T(0));
        return kt::uniform<T>(rng, T(0), one);
    }
}

template <class T>
bool accepted(const std::vector<T>& want, T got)
{
    for (T w : want)
        if (std::memcmp(&w, &got, sizeof(T)) == 0) return true;
    return false;
}

template <class T>
class Alpha : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32u, Kro32f>;
TYPED_TEST_SUITE(Alpha, Types);

const int kW = 37, kH = 3;

TYPED_TEST(Alpha, ConstantAlphasEveryForm)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    const auto m = members(T{});
    for (int op = 0; op < 12; ++op)
        for (int round = 0; round < 3; ++round) {
            const T a1 = alphaValue<T>(rng), a2 = alphaValue<T>(rng);
            for (const auto& f : m.constForms) {
                kt::Guarded<T> s1(lt::placed(kW, kH, f.C, round)), s2(lt::placed(kW, kH, f.C, (round + 1) % 3));
                kt::Guarded<T> d(lt::placed(kW, kH, f.C, (round + 2) % 3));
                s1.forEach([&](int, int, int, T& e) { e = colour<T>(rng); });
                s2.forEach([&](int, int, int, T& e) { e = colour<T>(rng); });
                d.fillBytes(0x5A);
                const auto before = d.snapshot();
                ASSERT_EQ(f.f(s1.ptr(), s1.step(), a1, s2.ptr(), s2.step(), a2, d.ptr(), d.step(), {kW, kH}, op), kroStsOk);
                EXPECT_TRUE(d.restUnchangedSince(before, f.W));
                d.forEach([&](int x, int y, int c, T& got) {
                    if (c < f.W) {
                        ASSERT_TRUE(accepted(ar::comp<T>(op, s1.at(x, y, c), s2.at(x, y, c), a1, a2), got))
                            << "op " << op << " C " << f.C << " at " << x << "," << y << "," << c;
                    }
                });
                // In place: the second source becomes the result; its fourth channel stays.
                ASSERT_EQ(f.fi(s1.ptr(), s1.step(), a1, s2.ptr(), s2.step(), a2, {kW, kH}, op), kroStsOk);
                s2.forEach([&](int x, int y, int c, T& got) {
                    if (c < f.W) {
                        ASSERT_EQ(std::memcmp(&got, &d.at(x, y, c), sizeof(T)), 0);
                    }
                });
            }
            if (m.constP4) {
                // Four planes per image; planes of one image share a step, so all are placed alike.
                std::vector<std::unique_ptr<kt::Guarded<T>>> same;
                for (int i = 0; i < 12; ++i) same.push_back(std::make_unique<kt::Guarded<T>>(lt::placed(kW, kH, 1, round)));
                for (int i = 0; i < 12; ++i) {
                    if (i < 8) same[i]->forEach([&](int, int, int, T& e) { e = colour<T>(rng); });
                    else same[i]->fillBytes(0x5A);
                }
                const T* p1[4];
                const T* p2[4];
                T* pd[4];
                T* pio[4];
                for (int c = 0; c < 4; ++c)
                    p1[c] = same[c]->ptr(), p2[c] = same[4 + c]->ptr(), pd[c] = same[8 + c]->ptr(), pio[c] = same[4 + c]->ptr();
                const int st = same[0]->step();
                const auto alphaBefore = same[11]->snapshot();
                ASSERT_EQ(m.constP4(p1, st, a1, p2, st, a2, pd, st, {kW, kH}, op), kroStsOk);
                EXPECT_TRUE(same[11]->unchangedSince(alphaBefore));
                for (int c = 0; c < 3; ++c)
                    same[8 + c]->forEach([&](int x, int y, int, T& got) {
                        ASSERT_TRUE(accepted(ar::comp<T>(op, same[c]->at(x, y), same[4 + c]->at(x, y), a1, a2), got));
                    });
                ASSERT_EQ(m.constIP4(p1, st, a1, pio, st, a2, {kW, kH}, op), kroStsOk);
                for (int c = 0; c < 3; ++c) ASSERT_IMAGE_EQ(*same[4 + c], std::as_const(*same[8 + c]));
            }
        }
}

TYPED_TEST(Alpha, PixelAlphasEveryForm)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    const auto m = members(T{});
    for (int op = 0; op < 12; ++op)
        for (int round = 0; round < 3; ++round) {
            for (const auto& f : m.pixelForms) {
                kt::Guarded<T> s1(lt::placed(kW, kH, f.C, round)), s2(lt::placed(kW, kH, f.C, (round + 1) % 3));
                kt::Guarded<T> d(lt::placed(kW, kH, f.C, (round + 2) % 3));
                s1.forEach([&](int, int, int c, T& e) { e = c == f.C - 1 ? alphaValue<T>(rng) : colour<T>(rng); });
                s2.forEach([&](int, int, int c, T& e) { e = c == f.C - 1 ? alphaValue<T>(rng) : colour<T>(rng); });
                d.fillBytes(0x5A);
                ASSERT_EQ(f.f(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), {kW, kH}, op), kroStsOk);
                d.forEach([&](int x, int y, int c, T& got) {
                    const T a1 = s1.at(x, y, f.C - 1), a2 = s2.at(x, y, f.C - 1);
                    const auto want = c == f.C - 1 ? ar::comp<T>(ar::alphaOp(op), a1, a2, a1, a2)
                                                   : ar::comp<T>(op, s1.at(x, y, c), s2.at(x, y, c), a1, a2);
                    ASSERT_TRUE(accepted(want, got)) << "op " << op << " C " << f.C << " at " << x << "," << y << "," << c;
                });
                if (f.fi) {
                    ASSERT_EQ(f.fi(s1.ptr(), s1.step(), s2.ptr(), s2.step(), {kW, kH}, op), kroStsOk);
                    ASSERT_IMAGE_EQ(s2, std::as_const(d));
                }
            }
            if (m.pixelP4) {
                std::vector<std::unique_ptr<kt::Guarded<T>>> im;
                for (int i = 0; i < 12; ++i) im.push_back(std::make_unique<kt::Guarded<T>>(lt::placed(kW, kH, 1, round)));
                const T* p1[4];
                const T* p2[4];
                T* pd[4];
                for (int c = 0; c < 4; ++c) {
                    im[c]->forEach([&](int, int, int, T& e) { e = c == 3 ? alphaValue<T>(rng) : colour<T>(rng); });
                    im[4 + c]->forEach([&](int, int, int, T& e) { e = c == 3 ? alphaValue<T>(rng) : colour<T>(rng); });
                    im[8 + c]->fillBytes(0x5A);
                    p1[c] = im[c]->ptr(), p2[c] = im[4 + c]->ptr(), pd[c] = im[8 + c]->ptr();
                }
                const int st = im[0]->step();
                ASSERT_EQ(m.pixelP4(p1, st, p2, st, pd, st, {kW, kH}, op), kroStsOk);
                for (int c = 0; c < 4; ++c)
                    im[8 + c]->forEach([&](int x, int y, int, T& got) {
                        const T a1 = im[3]->at(x, y), a2 = im[7]->at(x, y);
                        const auto want = c == 3 ? ar::comp<T>(ar::alphaOp(op), a1, a2, a1, a2)
                                                 : ar::comp<T>(op, im[c]->at(x, y), im[4 + c]->at(x, y), a1, a2);
                        ASSERT_TRUE(accepted(want, got)) << "AP4 op " << op << " plane " << c;
                    });
            }
        }
}

// Nulls, width, then height (-6), then the operation code (-50); steps are not checked.
TYPED_TEST(Alpha, CheckOrder)
{
    using T = TypeParam;
    const auto m = members(T{});
    kt::Guarded<T> a(4, 2, 4), d(4, 2, 4);
    d.fillBytes(0x5A);
    const auto before = d.snapshot();
    const int s = a.step();
    for (const auto& f : m.constForms) {
        EXPECT_EQ(f.f(nullptr, s, T(1), a.ptr(), s, T(1), d.ptr(), s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(f.f(a.ptr(), s, T(1), nullptr, s, T(1), d.ptr(), s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(f.f(a.ptr(), s, T(1), a.ptr(), s, T(1), nullptr, s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(f.f(a.ptr(), s, T(1), a.ptr(), s, T(1), d.ptr(), s, {0, 1}, 12), kroStsBadSizeErr);
        EXPECT_EQ(f.f(a.ptr(), s, T(1), a.ptr(), s, T(1), d.ptr(), s, {1, 0}, 12), kroStsBadSizeErr);
        for (int op : {12, -1, 1000})
            EXPECT_EQ(f.f(a.ptr(), 0, T(1), a.ptr(), -5, T(1), d.ptr(), s, {1, 1}, op), kroStsBadAlphaOpErr);
        EXPECT_EQ(f.fi(nullptr, s, T(1), d.ptr(), s, T(1), {1, 1}, 0), kroStsNullPointerErr);
        EXPECT_EQ(f.fi(a.ptr(), s, T(1), d.ptr(), s, T(1), {-1, 1}, 0), kroStsBadSizeErr);
        EXPECT_EQ(f.fi(a.ptr(), s, T(1), d.ptr(), s, T(1), {1, 1}, 12), kroStsBadAlphaOpErr);
    }
    for (const auto& f : m.pixelForms) {
        EXPECT_EQ(f.f(a.ptr(), s, nullptr, s, d.ptr(), s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(f.f(a.ptr(), s, a.ptr(), s, d.ptr(), s, {0, 5}, 12), kroStsBadSizeErr);
        EXPECT_EQ(f.f(a.ptr(), s, a.ptr(), s, d.ptr(), s, {5, -5}, 12), kroStsBadSizeErr);
        EXPECT_EQ(f.f(a.ptr(), 0, a.ptr(), 0, d.ptr(), s, {1, 1}, 12), kroStsBadAlphaOpErr);
        if (f.fi) {
            EXPECT_EQ(f.fi(a.ptr(), s, nullptr, s, {1, 1}, 12), kroStsNullPointerErr);
            EXPECT_EQ(f.fi(a.ptr(), s, d.ptr(), s, {1, 1}, 12), kroStsBadAlphaOpErr);
        }
    }
    if (m.constP4) {
        const T* p[4] = {a.ptr(), a.ptr(), a.ptr(), a.ptr()};
        const T* pn[4] = {a.ptr(), a.ptr(), a.ptr(), nullptr};
        T* pd[4] = {d.ptr(), d.ptr(), d.ptr(), d.ptr()};
        T* pdn[4] = {d.ptr(), nullptr, d.ptr(), d.ptr()};
        EXPECT_EQ(m.constP4(pn, s, T(1), p, s, T(1), pd, s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(m.constP4(p, s, T(1), p, s, T(1), pdn, s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(m.constP4(p, s, T(1), p, s, T(1), pd, s, {0, 0}, 12), kroStsBadSizeErr);
        EXPECT_EQ(m.constP4(p, s, T(1), p, s, T(1), pd, s, {1, 1}, 12), kroStsBadAlphaOpErr);
        EXPECT_EQ(m.constIP4(p, s, T(1), pdn, s, T(1), {1, 1}, 12), kroStsNullPointerErr);
        EXPECT_EQ(m.constIP4(p, s, T(1), pd, s, T(1), {1, 1}, 12), kroStsBadAlphaOpErr);
        EXPECT_EQ(m.pixelP4(p, s, pn, s, pd, s, {0, 0}, 12), kroStsNullPointerErr);
        EXPECT_EQ(m.pixelP4(p, s, p, s, pd, s, {1, 0}, 12), kroStsBadSizeErr);
        EXPECT_EQ(m.pixelP4(p, s, p, s, pd, s, {1, 1}, 12), kroStsBadAlphaOpErr);
    }
    EXPECT_TRUE(d.unchangedSince(before));
}

// 8u constant alphas, every pair of alphas and every operation, on fixed pixels that
// include the ends and the middle of the range.
TEST(Alpha8u, EveryAlphaPairBitExact)
{
    auto rng = kt::rngForTest();
    const int n = 40;
    std::vector<Kro8u> s1(n), s2(n), d(n);
    const Kro8u fixed[] = {0, 1, 2, 127, 128, 129, 200, 254, 255};
    for (int i = 0; i < n; ++i) {
        s1[i] = i < 9 ? fixed[i] : i < 18 ? fixed[i - 9] : Kro8u(rng());
        s2[i] = i < 9 ? fixed[8 - i] : i < 18 ? fixed[i - 9] : Kro8u(rng());
    }
    for (int op = 0; op < 12; ++op)
        for (int a1 = 0; a1< 256; ++a1)
            for (int a2 = 0; a2 < 256; ++a2) {
                ASSERT_EQ(kroiAlphaCompC_8u_C1R(s1.data(), n, Kro8u(a1), s2.data(), n, Kro8u(a2), d.data(), n, {n, 1}, op),
                          kroStsOk);
                for (int i = 0; i < n; ++i)
                    ASSERT_EQ(d[i], ar::comp8u(op, s1[i], s2[i], a1, a2))
                        << "op " << op << " A1 " << a1 << " A2 " << a2 << " S1 " << +s1[i] << " S2 " << +s2[i];
            }
}

// The stated corner values.
TEST(Alpha8u, Corners)
{
    Kro8u s1 = 200, s2 = 200, d = 0;
    ASSERT_EQ(kroiAlphaCompC_8u_C1R(&s1, 1, 0, &s2, 1, 0, &d, 1, {1, 1}, kroAlphaOverPremul), kroStsOk);
    EXPECT_EQ(d, 255);
    s1 = 77, s2 = 13;
    ASSERT_EQ(kroiAlphaCompC_8u_C1R(&s1, 1, 255, &s2, 1, 9, &d, 1, {1, 1}, kroAlphaOver), kroStsOk);
    EXPECT_EQ(d, 77);
    ASSERT_EQ(kroiAlphaCompC_8u_C1R(&s1, 1, 0, &s2, 1, 255, &d, 1, {1, 1}, kroAlphaOver), kroStsOk);
    EXPECT_EQ(d, 13);
    ASSERT_EQ(kroiAlphaCompC_8u_C1R(&s1, 1, 255, &s2, 1, 255, &d, 1, {1, 1}, kroAlphaIn), kroStsOk);
    EXPECT_EQ(d, 77);
}

// The library's own integer division by 255 over its whole domain.
TEST(Alpha8u, Div255Exhaustive)
{
    for (int x = 0; x <= 65025; ++x) ASSERT_EQ(t3::tone::alpha::div255(x), ar::div255(x)) << x;
    EXPECT_EQ(t3::tone::alpha::div255(127), 0);
    EXPECT_EQ(t3::tone::alpha::div255(128), 1);
}

// The key colour picks the second source's pixel; the others are composed per pixel.
TEST(Alpha8u, ColorKeyComposition)
{
    auto rng = kt::rngForTest();
    const Kro8u key[3] = {10, 20, 30};
    for (int op = 0; op < 12; ++op) {
        kt::Guarded<Kro8u> s1(lt::placed(kW, kH, 4, op % 2)), s2(lt::placed(kW, kH, 4, 1 - op % 2)), d(kW, kH, 4);
        s1.forEach([&](int x, int, int c, Kro8u& e) { e = x % 3 == 0 && c < 3 ? key[c] : Kro8u(rng()); });
        s2.forEach([&](int, int, int, Kro8u& e) { e = Kro8u(rng()); });
        ASSERT_EQ(kroiAlphaCompColorKey_8u_AC4R(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), {kW, kH}, key, op),
                  kroStsOk);
        d.forEach([&](int x, int y, int c, Kro8u& got) {
            const bool hit = s1.at(x, y, 0) == 10 && s1.at(x, y, 1) == 20 && s1.at(x, y, 2) == 30;
            const int a1 = s1.at(x, y, 3), a2 = s2.at(x, y, 3);
            const int want = hit ? s2.at(x, y, c)
                             : c == 3 ? ar::comp8u(ar::alphaOp(op), a1, a2, a1, a2)
                                      : ar::comp8u(op, s1.at(x, y, c), s2.at(x, y, c), a1, a2);
            ASSERT_EQ(got, want) << op << " " << x << " " << c;
        });
    }
    kt::Guarded<Kro8u> a(2, 2, 4), d(2, 2, 4);
    d.fillBytes(0x5A);
    const auto before = d.snapshot();
    const int s = a.step();
    EXPECT_EQ(kroiAlphaCompColorKey_8u_AC4R(a.ptr(), s, a.ptr(), s, d.ptr(), s, {0, 0}, nullptr, 12), kroStsNullPointerErr);
    EXPECT_EQ(kroiAlphaCompColorKey_8u_AC4R(a.ptr(), 0, a.ptr(), s, d.ptr(), s, {0, 2}, key, 12), kroStsBadSizeErr);
    EXPECT_EQ(kroiAlphaCompColorKey_8u_AC4R(a.ptr(), 0, a.ptr(), s, d.ptr(), s, {2, 2}, key, 12), kroStsBadStepErr);
    EXPECT_EQ(kroiAlphaCompColorKey_8u_AC4R(a.ptr(), s, a.ptr(), s, d.ptr(), s, {2, 2}, key, 12), kroStsBadAlphaOpErr);
    EXPECT_TRUE(d.unchangedSince(before));
}

}  // namespace
