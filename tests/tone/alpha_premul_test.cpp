// Premultiplication by the pixel's alpha and by a constant, and composition by a key colour:
// every member against the rules, planes, in-place forms, untouched alpha channels, check
// orders and nothing written on error; images against guard pages.
#include <gtest/gtest.h>

#include <cmath>
#include <limits>
#include <memory>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

// s * a / alpha 1, rounded to nearest (alpha 1 is odd, so there is no tie).
template <class T>
T premulRef(T s, T a)
{
    const double one = std::numeric_limits<T>::max();
    return T(std::lround(double(s) * a / one));
}

template <class T>
struct Premul {
    KroStatus (*ac4)(const T*, int, T*, int, KroiSize);
    KroStatus (*ac4i)(T*, int, KroiSize);
    KroStatus (*ap4)(const T* const*, int, T* const*, int, KroiSize);
    KroStatus (*ap4i)(T* const*, int, KroiSize);
    struct C {
        int channels, written;
        KroStatus (*f)(const T*, int, T, T*, int, KroiSize);
        KroStatus (*fi)(T, T*, int, KroiSize);
    } c[4];
    KroStatus (*cp4)(const T* const*, int, T, T* const*, int, KroiSize);
    KroStatus (*cip4)(T, T* const*, int, KroiSize);
};

const Premul<Kro8u> k8u = {kroiAlphaPremul_8u_AC4R, kroiAlphaPremul_8u_AC4IR, kroiAlphaPremul_8u_AP4R, kroiAlphaPremul_8u_AP4IR,
                           {{1, 1, kroiAlphaPremulC_8u_C1R, kroiAlphaPremulC_8u_C1IR},
                            {3, 3, kroiAlphaPremulC_8u_C3R, kroiAlphaPremulC_8u_C3IR},
                            {4, 4, kroiAlphaPremulC_8u_C4R, kroiAlphaPremulC_8u_C4IR},
                            {4, 3, kroiAlphaPremulC_8u_AC4R, kroiAlphaPremulC_8u_AC4IR}},
                           kroiAlphaPremulC_8u_AP4R, kroiAlphaPremulC_8u_AP4IR};
const Premul<Kro16u> k16u = {kroiAlphaPremul_16u_AC4R, kroiAlphaPremul_16u_AC4IR, kroiAlphaPremul_16u_AP4R, kroiAlphaPremul_16u_AP4IR,
                             {{1, 1, kroiAlphaPremulC_16u_C1R, kroiAlphaPremulC_16u_C1IR},
                              {3, 3, kroiAlphaPremulC_16u_C3R, kroiAlphaPremulC_16u_C3IR},
                              {4, 4, kroiAlphaPremulC_16u_C4R, kroiAlphaPremulC_16u_C4IR},
                              {4, 3, kroiAlphaPremulC_16u_AC4R, kroiAlphaPremulC_16u_AC4IR}},
                             kroiAlphaPremulC_16u_AP4R, kroiAlphaPremulC_16u_AP4IR};

template <class T>
void premulForms(const Premul<T>& m)
{
    auto rng = kt::rngForTest();
    const int w = 41, h = 3;
    auto rnd = [&](int, int, int, T& e) { e = kt::uniform<T>(rng, 0, std::numeric_limits<T>::max()); };
    for (int pl = 0; pl < 3; ++pl) {
        // Per-pixel alpha, interleaved.
        kt::Guarded<T> s(lt::placed(w, h, 4, pl)), d(lt::placed(w, h, 4, (pl + 1) % 3));
        s.forEach(rnd);
        d.fillBytes(0x5A);
        const auto before = d.snapshot();
        ASSERT_EQ(m.ac4(s.ptr(), s.step(), d.ptr(), d.step(), {w, h}), kroStsOk);
        EXPECT_TRUE(d.restUnchangedSince(before, 3));
        ASSERT_IMAGE_EQ(d, [&](int x, int y, int c) { return c < 3 ? premulRef(s.at(x, y, c), s.at(x, y, 3)) : d.at(x, y, 3); });
        ASSERT_EQ(m.ac4i(s.ptr(), s.step(), {w, h}), kroStsOk);
        ASSERT_IMAGE_EQ(s, [&](int x, int y, int c) { return c < 3 ? d.at(x, y, c) : s.at(x, y, 3); });
        // Per-pixel alpha, planes; the destination's alpha plane is left.
        std::vector<std::unique_ptr<kt::Guarded<T>>> p;
        for (int i = 0; i < 8; ++i) p.push_back(std::make_unique<kt::Guarded<T>>(lt::placed(w, h, 1, pl)));
        const T* sp[4];
        T* dp[4];
        T* io[4];
        for (int c = 0; c < 4; ++c) {
            p[c]->forEach(rnd);
            p[4 + c]->fillBytes(0x5A);
            sp[c] = p[c]->ptr(), dp[c] = p[4 + c]->ptr(), io[c] = p[c]->ptr();
        }
        const auto alphaBefore = p[7]->snapshot();
        ASSERT_EQ(m.ap4(sp, p[0]->step(), dp, p[4]->step(), {w, h}), kroStsOk);
        EXPECT_TRUE(p[7]->unchangedSince(alphaBefore));
        for (int c = 0; c < 3; ++c)
            ASSERT_IMAGE_EQ(*p[4 + c], [&](int x, int y, int) { return premulRef(p[c]->at(x, y), p[3]->at(x, y)); });
        ASSERT_EQ(m.ap4i(io, p[0]->step(), {w, h}), kroStsOk);
        for (int c = 0; c < 3; ++c) ASSERT_IMAGE_EQ(*p[c], std::as_const(*p[4 + c]));
        // Constant alpha.
        for (const T alpha : {T(0), T(1), T(std::numeric_limits<T>::max() / 2), std::numeric_limits<T>::max(),
                              kt::uniform<T>(rng, 0, std::numeric_limits<T>::max())}) {
            for (const auto& f : m.c) {
                kt::Guarded<T> cs(lt::placed(w, h, f.channels, pl)), cd(lt::placed(w, h, f.channels, (pl + 2) % 3));
                cs.forEach(rnd);
                cd.fillBytes(0x5A);
                const auto cb = cd.snapshot();
                ASSERT_EQ(f.f(cs.ptr(), cs.step(), alpha, cd.ptr(), cd.step(), {w, h}), kroStsOk);
                EXPECT_TRUE(cd.restUnchangedSince(cb, f.written));
                ASSERT_IMAGE_EQ(cd, [&](int x, int y, int c) { return c < f.written ? premulRef(cs.at(x, y, c), alpha) : cd.at(x, y, c); });
                ASSERT_EQ(f.fi(alpha, cs.ptr(), cs.step(), {w, h}), kroStsOk);
                ASSERT_IMAGE_EQ(cs, [&](int x, int y, int c) { return c < f.written ? cd.at(x, y, c) : cs.at(x, y, c); });
            }
            for (int c = 0; c < 4; ++c) p[c]->forEach(rnd), p[4 + c]->fillBytes(0x5A);
            ASSERT_EQ(m.cp4(sp, p[0]->step(), alpha, dp, p[4]->step(), {w, h}), kroStsOk);
            EXPECT_TRUE(p[7]->unchangedSince(alphaBefore));
            for (int c = 0; c < 3; ++c)
                ASSERT_IMAGE_EQ(*p[4 + c], [&](int x, int y, int) { return premulRef(p[c]->at(x, y), alpha); });
            ASSERT_EQ(m.cip4(alpha, io, p[0]->step(), {w, h}), kroStsOk);
            for (int c = 0; c < 3; ++c) ASSERT_IMAGE_EQ(*p[c], std::as_const(*p[4 + c]));
        }
    }
    // Checks: pointers (planes included), then size; steps are not checked.
    kt::Guarded<T> a(2, 2, 4), d(2, 2, 4);
    d.fillBytes(0x5A);
    const auto before = d.snapshot();
    const int s = a.step();
    const T* pa[4] = {a.ptr(), a.ptr(), nullptr, a.ptr()};
    T* pd[4] = {d.ptr(), d.ptr(), d.ptr(), d.ptr()};
    EXPECT_EQ(m.ac4(nullptr, s, d.ptr(), s, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(m.ac4(a.ptr(), s, d.ptr(), s, {0, 1}), kroStsBadSizeErr);
    EXPECT_EQ(m.ac4i(nullptr, s, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(m.ac4i(d.ptr(), s, {1, -1}), kroStsBadSizeErr);
    EXPECT_EQ(m.ap4(pa, s, pd, s, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(m.ap4(nullptr, s, pd, s, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(m.ap4i(pd, s, {0, 1}), kroStsBadSizeErr);
    EXPECT_EQ(m.cp4(pa, s, T(1), pd, s, {0, 0}), kroStsNullPointerErr);
    EXPECT_EQ(m.cip4(T(1), pd, s, {1, 0}), kroStsBadSizeErr);
    for (const auto& f : m.c) {
        EXPECT_EQ(f.f(a.ptr(), s, T(1), nullptr, s, {0, 0}), kroStsNullPointerErr);
        EXPECT_EQ(f.f(a.ptr(), s, T(1), d.ptr(), s, {0, 1}), kroStsBadSizeErr);
        EXPECT_EQ(f.fi(T(1), nullptr, s, {0, 1}), kroStsNullPointerErr);
        EXPECT_EQ(f.fi(T(1), d.ptr(), s, {1, 0}), kroStsBadSizeErr);
    }
    EXPECT_TRUE(d.unchangedSince(before));
}

TEST(AlphaPremul, Forms8u) { premulForms(k8u); }
TEST(AlphaPremul, Forms16u) { premulForms(k16u); }

template <class T>
struct KeyForms {
    KroStatus (*c1)(const T*, int, const T*, int, T*, int, KroiSize, T);
    KroStatus (*c3)(const T*, int, const T*, int, T*, int, KroiSize, const T*);
    KroStatus (*c4)(const T*, int, const T*, int, T*, int, KroiSize, const T*);
};

template <class T>
void keyForms(const KeyForms<T>& m)
{
    auto rng = kt::rngForTest();
    const int w = 23, h = 3;
    const T key[4] = {T(0), T(7), T(0), T(7)};
    for (int ch : {1, 3, 4})
        for (int pl = 0; pl < 2; ++pl) {
            kt::Guarded<T> s1(lt::placed(w, h, ch, pl)), s2(lt::placed(w, h, ch, 1 - pl)), d(lt::placed(w, h, ch, pl));
            // Pixels equal to the key, pixels that differ in one channel only, and others.
            s1.forEach([&](int x, int, int c, T& e) { e = x % 3 == 0 ? key[c] : x % 3 == 1 ? T(key[c] + (c == ch - 1)) : T(rng()); });
            s2.forEach([&](int, int, int, T& e) { e = T(rng()); });
            d.fillBytes(0x5A);
            const auto before = d.snapshot();
            const KroiSize roi{w, h};
            const KroStatus st = ch == 1 ? m.c1(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), roi, key[0])
                                 : ch == 3 ? m.c3(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), roi, key)
                                           : m.c4(s1.ptr(), s1.step(), s2.ptr(), s2.step(), d.ptr(), d.step(), roi, key);
            ASSERT_EQ(st, kroStsOk);
            EXPECT_TRUE(d.restUnchangedSince(before, ch));
            ASSERT_IMAGE_EQ(d, [&](int x, int y, int c) {
                bool hit = true;
                for (int k = 0; k < ch; ++k) hit = hit && s1.at(x, y, k) == key[k];
                return hit ? s2.at(x, y, c) : s1.at(x, y, c);
            });
        }
    // A key that no pixel holds copies the first source.
    std::vector<T> a(8, T(1)), b(8, T(2)), d(8, T(9));
    const int st = int(4 * sizeof(T));
    ASSERT_EQ(m.c1(a.data(), st, b.data(), st, d.data(), st, {4, 2}, T(0)), kroStsOk);
    EXPECT_EQ(d, a);
    // Pointers, size, steps.
    std::fill(d.begin(), d.end(), T(9));
    EXPECT_EQ(m.c3(a.data(), 0, b.data(), 0, d.data(), 0, {0, 0}, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(m.c1(a.data(), 0, nullptr, 0, d.data(), 0, {0, 0}, T(0)), kroStsNullPointerErr);
    EXPECT_EQ(m.c1(a.data(), 0, b.data(), 0, d.data(), 0, {0, 1}, T(0)), kroStsBadSizeErr);
    EXPECT_EQ(m.c4(a.data(), st, b.data(), st, d.data(), 0, {1, 1}, key), kroStsBadStepErr);
    EXPECT_EQ(m.c1(a.data(), -st, b.data(), st, d.data(), st, {1, 1}, T(0)), kroStsBadStepErr);
    EXPECT_EQ(d, std::vector<T>(8, T(9)));
}

TEST(CompColorKey, Forms8u) { keyForms(KeyForms<Kro8u>{kroiCompColorKey_8u_C1R, kroiCompColorKey_8u_C3R, kroiCompColorKey_8u_C4R}); }
TEST(CompColorKey, Forms16u) { keyForms(KeyForms<Kro16u>{kroiCompColorKey_16u_C1R, kroiCompColorKey_16u_C3R, kroiCompColorKey_16u_C4R}); }
TEST(CompColorKey, Forms16s) { keyForms(KeyForms<Kro16s>{kroiCompColorKey_16s_C1R, kroiCompColorKey_16s_C3R, kroiCompColorKey_16s_C4R}); }

}  // namespace
