// The border rules and the border copies, against references written from the rules: the
// mirror bounces step by step instead of taking a modulo, so a wrong period shows.
#include <cstring>
#include <functional>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "filter/border_rules.hpp"
#include "filter/border_stage.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

namespace border = tier::border;

enum class M { Replicate, Mirror, Wrap, Constant };

int64_t refIndex(M m, int64_t x, int64_t n)
{
    switch (m) {
    case M::Replicate: return x < 0 ? 0 : (x >= n ? n - 1 : x);
    case M::Wrap:
        while (x < 0) x += n;
        while (x >= n) x -= n;
        return x;
    case M::Mirror:
        if (n == 1) return 0;
        while (x < 0 || x >= n) x = x < 0 ? -x : 2 * (n - 1) - x; // bounce off either edge
        return x;
    default: return (x >= 0 && x < n) ? x : -1;
    }
}

TEST(BorderRules, IndexRulesMatchReference)
{
    for (int64_t n = 1; n <= 7; ++n)
        for (int64_t x = -30; x < 40; ++x) {
            EXPECT_EQ(border::replicateIndex(x, n), refIndex(M::Replicate, x, n)) << x << " " << n;
            EXPECT_EQ(border::mirrorIndex(x, n), refIndex(M::Mirror, x, n)) << x << " " << n;
            EXPECT_EQ(border::wrapIndex(x, n), refIndex(M::Wrap, x, n)) << x << " " << n;
            EXPECT_EQ(border::sourceIndex(border::Mode::Constant, x, n), refIndex(M::Constant, x, n));
        }
    // A row of 3 with a left border of 5 and a right border of 3 bounces.
    const int64_t left[] = {1, 0, 1, 2, 1}, right[] = {1, 0, 1};
    for (int k = 0; k < 5; ++k) EXPECT_EQ(border::mirrorIndex(k - 5, 3), left[k]);
    for (int k = 0; k < 3; ++k) EXPECT_EQ(border::mirrorIndex(3 + k, 3), right[k]);
}

TEST(BorderRules, FilterModeValidity)
{
    for (unsigned code = 0; code < 600; ++code) {
        const unsigned low = code & 15;
        const bool ok = code <= 255 && (code == 0xF0 || low == 1 || low == 3 || low == 6);
        EXPECT_EQ(border::checkFilterMode(code), ok ? kroStsOk : kroStsBadBorderErr) << code;
    }
    EXPECT_EQ(border::checkFilterMode(0xFFFFFFF1u), kroStsBadBorderErr);
    const auto f = border::frame(0x16, KroiSize{4, 5});
    EXPECT_TRUE(f.memTop && !f.memBottom && !f.memLeft && !f.memRight);
    EXPECT_EQ(f.mode, border::Mode::Constant);
    EXPECT_EQ(f.left, 1); EXPECT_EQ(f.right, 2); EXPECT_EQ(f.top, 2); EXPECT_EQ(f.bottom, 2);
}

// Row fetching and staging, the pieces a second filter builds on: every widened row and the
// staged image hold the pixels of the rules, reading memory only on the flagged sides.
TEST(BorderRules, FetchedRowsAndStagingFollowTheRules)
{
    auto rng = kt::rngForTest();
    const KroiSize mask{5, 4};
    const int W = 6, H = 3, ax = 2, ay = 1, right = 2, bottom = 2;
    for (unsigned code : {0x01u, 0x03u, 0x06u, 0x53u, 0xA1u, 0xF6u, 0x96u}) {
        const auto f = border::frame(code, mask);
        const int ox = f.memLeft ? ax : 0, oy = f.memTop ? ay : 0;
        const int iw = W + ox + (f.memRight ? right : 0), ih = H + oy + (f.memBottom ? bottom : 0);
        kt::Guarded<Kro16u> img(kt::Shape{iw, ih, 3, 0, code & 2 ? kt::Guard::Before : kt::Guard::After});
        kt::fillRandom(img, rng);
        const Kro16u value[3] = {11, 22, 33};
        auto want = [&](int x, int y, int c) -> Kro16u { // over the image widened by its memory
            const M m = (code & 15) == 1 ? M::Replicate : (code & 15) == 3 ? M::Mirror : M::Constant;
            const int64_t fx = refIndex(m, x + ox, iw), fy = refIndex(m, y + oy, ih);
            return (fx < 0 || fy < 0) ? value[c] : img.at(int(fx), int(fy), c);
        };
        const border::Rows<Kro16u, 3> rows{&img.at(ox, oy), img.step(), W, H, f, value};
        std::vector<Kro16u> out(std::size_t(f.widened(W)) * 3);
        for (int y = -ay; y < H + bottom; ++y) {
            rows.fetchRow(y, out.data());
            for (int x = -ax; x < W + right; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_EQ(out[std::size_t(x + ax) * 3 + c], want(x, y, c)) << code << " " << x << "," << y;
        }
        std::vector<Kro16u> staged(std::size_t(f.widened(W)) * (H + ay + bottom) * 3);
        const auto s = border::stage<Kro16u, 3>(&img.at(ox, oy), img.step(), {W, H}, f, value, staged.data());
        for (int y = -ay; y < H + bottom; ++y)
            for (int x = -ax; x < W + right; ++x)
                for (int c = 0; c < 3; ++c)
                    ASSERT_EQ(border::rowAt(s.roi, s.step, y)[x * 3 + c], want(x, y, c)) << code << " staged";
    }
}

// ---- the exported copies -----------------------------------------------------------------

// Every form of one member behind one shape: (src, step, srcSize, dst, step, dstSize, top,
// left, value); the in-place forms get dst = the destination's first pixel.
template <class T>
struct Forms {
    using R = std::function<KroStatus(const T*, int, KroiSize, T*, int, KroiSize, int, int, const T*)>;
    using IR = std::function<KroStatus(T*, int, KroiSize, KroiSize, int, int, const T*)>;
    R r, rl;
    IR ir, irl;
};

KroiSizeL wideL(KroiSize s) { return {s.width, s.height}; }

template <class T, class F>
typename Forms<T>::R adaptR(F f)
{
    return [f](const T* s, int ss, KroiSize sr, T* d, int ds, KroiSize dr, int t, int l, const T* v) -> KroStatus {
        if constexpr (std::is_invocable_v<F, const T*, int, KroiSize, T*, int, KroiSize, int, int>)
            return f(s, ss, sr, d, ds, dr, t, l);
        else if constexpr (std::is_invocable_v<F, const T*, int64_t, KroiSizeL, T*, int64_t, KroiSizeL, int64_t,
                                               int64_t>)
            return f(s, ss, wideL(sr), d, ds, wideL(dr), t, l);
        else if constexpr (std::is_invocable_v<F, const T*, int, KroiSize, T*, int, KroiSize, int, int, const T*>)
            return f(s, ss, sr, d, ds, dr, t, l, v);
        else if constexpr (std::is_invocable_v<F, const T*, int64_t, KroiSizeL, T*, int64_t, KroiSizeL, int64_t,
                                               int64_t, const T*>)
            return f(s, ss, wideL(sr), d, ds, wideL(dr), t, l, v);
        else if constexpr (std::is_invocable_v<F, const T*, int, KroiSize, T*, int, KroiSize, int, int, T>)
            return f(s, ss, sr, d, ds, dr, t, l, *v);
        else
            return f(s, ss, wideL(sr), d, ds, wideL(dr), t, l, *v);
    };
}
template <class T, class F>
typename Forms<T>::IR adaptIR(F f)
{
    return [f](T* p, int st, KroiSize sr, KroiSize dr, int t, int l, const T* v) -> KroStatus {
        if constexpr (std::is_invocable_v<F, T*, int, KroiSize, KroiSize, int, int>)
            return f(p, st, sr, dr, t, l);
        else if constexpr (std::is_invocable_v<F, T*, int64_t, KroiSizeL, KroiSizeL, int64_t, int64_t>)
            return f(p, st, wideL(sr), wideL(dr), t, l);
        else if constexpr (std::is_invocable_v<F, T*, int, KroiSize, KroiSize, int, int, const T*>)
            return f(p, st, sr, dr, t, l, v);
        else if constexpr (std::is_invocable_v<F, T*, int64_t, KroiSizeL, KroiSizeL, int64_t, int64_t, const T*>)
            return f(p, st, wideL(sr), wideL(dr), t, l, v);
        else if constexpr (std::is_invocable_v<F, T*, int, KroiSize, KroiSize, int, int, T>)
            return f(p, st, sr, dr, t, l, *v);
        else
            return f(p, st, wideL(sr), wideL(dr), t, l, *v);
    };
}

template <class T>
struct Member {
    const char* name;
    M mode;
    int C, WC;
    Forms<T> f;
};

template <class T, class R, class RL, class IR, class IRL>
Member<T> member(const char* name, M m, int C, int WC, R r, RL rl, IR ir, IRL irl)
{
    return {name, m, C, WC, {adaptR<T>(r), adaptR<T>(rl), adaptIR<T>(ir), adaptIR<T>(irl)}};
}

template <class T>
std::vector<Member<T>> members();

template <>
std::vector<Member<Kro8u>> members()
{
    return {member<Kro8u>("kroiCopyConstBorder_8u_C1", M::Constant, 1, 1, kroiCopyConstBorder_8u_C1R, kroiCopyConstBorder_8u_C1R_L,
                       kroiCopyConstBorder_8u_C1IR, kroiCopyConstBorder_8u_C1IR_L), member<Kro8u>("kroiCopyConstBorder_8u_C3", M::Constant, 3, 3, kroiCopyConstBorder_8u_C3R, kroiCopyConstBorder_8u_C3R_L,
                       kroiCopyConstBorder_8u_C3IR, kroiCopyConstBorder_8u_C3IR_L),
            member<Kro8u>("kroiCopyConstBorder_8u_C4", M::Constant, 4, 4, kroiCopyConstBorder_8u_C4R, kroiCopyConstBorder_8u_C4R_L,
                       kroiCopyConstBorder_8u_C4IR, kroiCopyConstBorder_8u_C4IR_L), member<Kro8u>("kroiCopyConstBorder_8u_AC4", M::Constant, 4, 3, kroiCopyConstBorder_8u_AC4R, kroiCopyConstBorder_8u_AC4R_L,
                       kroiCopyConstBorder_8u_AC4IR, kroiCopyConstBorder_8u_AC4IR_L),
            member<Kro8u>("kroiCopyReplicateBorder_8u_C1", M::Replicate, 1, 1, kroiCopyReplicateBorder_8u_C1R, kroiCopyReplicateBorder_8u_C1R_L,
                       kroiCopyReplicateBorder_8u_C1IR, kroiCopyReplicateBorder_8u_C1IR_L), member<Kro8u>("kroiCopyReplicateBorder_8u_C3", M::Replicate, 3, 3, kroiCopyReplicateBorder_8u_C3R, kroiCopyReplicateBorder_8u_C3R_L,
                       kroiCopyReplicateBorder_8u_C3IR, kroiCopyReplicateBorder_8u_C3IR_L),
            member<Kro8u>("kroiCopyReplicateBorder_8u_C4", M::Replicate, 4, 4, kroiCopyReplicateBorder_8u_C4R, kroiCopyReplicateBorder_8u_C4R_L,
                       kroiCopyReplicateBorder_8u_C4IR, kroiCopyReplicateBorder_8u_C4IR_L), member<Kro8u>("kroiCopyReplicateBorder_8u_AC4", M::Replicate, 4, 3, kroiCopyReplicateBorder_8u_AC4R, kroiCopyReplicateBorder_8u_AC4R_L,
                       kroiCopyReplicateBorder_8u_AC4IR, kroiCopyReplicateBorder_8u_AC4IR_L),
            member<Kro8u>("kroiCopyMirrorBorder_8u_C1", M::Mirror, 1, 1, kroiCopyMirrorBorder_8u_C1R, kroiCopyMirrorBorder_8u_C1R_L,
                       kroiCopyMirrorBorder_8u_C1IR, kroiCopyMirrorBorder_8u_C1IR_L), member<Kro8u>("kroiCopyMirrorBorder_8u_C3", M::Mirror, 3, 3, kroiCopyMirrorBorder_8u_C3R, kroiCopyMirrorBorder_8u_C3R_L,
                       kroiCopyMirrorBorder_8u_C3IR, kroiCopyMirrorBorder_8u_C3IR_L),
            member<Kro8u>("kroiCopyMirrorBorder_8u_C4", M::Mirror, 4, 4, kroiCopyMirrorBorder_8u_C4R, kroiCopyMirrorBorder_8u_C4R_L,
                       kroiCopyMirrorBorder_8u_C4IR, kroiCopyMirrorBorder_8u_C4IR_L)};
}
template <>
std::vector<Member<Kro16u>> members()
{
    return {member<Kro16u>("kroiCopyConstBorder_16u_C1", M::Constant, 1, 1, kroiCopyConstBorder_16u_C1R, kroiCopyConstBorder_16u_C1R_L,
                       kroiCopyConstBorder_16u_C1IR, kroiCopyConstBorder_16u_C1IR_L), member<Kro16u>("kroiCopyConstBorder_16u_C3", M::Constant, 3, 3, kroiCopyConstBorder_16u_C3R, kroiCopyConstBorder_16u_C3R_L,
                       kroiCopyConstBorder_16u_C3IR, kroiCopyConstBorder_16u_C3IR_L),
            member<Kro16u>("kroiCopyConstBorder_16u_C4", M::Constant, 4, 4, kroiCopyConstBorder_16u_C4R, kroiCopyConstBorder_16u_C4R_L,
                       kroiCopyConstBorder_16u_C4IR, kroiCopyConstBorder_16u_C4IR_L), member<Kro16u>("kroiCopyConstBorder_16u_AC4", M::Constant, 4, 3, kroiCopyConstBorder_16u_AC4R, kroiCopyConstBorder_16u_AC4R_L,
                       kroiCopyConstBorder_16u_AC4IR, kroiCopyConstBorder_16u_AC4IR_L),
            member<Kro16u>("kroiCopyReplicateBorder_16u_C1", M::Replicate, 1, 1, kroiCopyReplicateBorder_16u_C1R, kroiCopyReplicateBorder_16u_C1R_L,
                       kroiCopyReplicateBorder_16u_C1IR, kroiCopyReplicateBorder_16u_C1IR_L), member<Kro16u>("kroiCopyReplicateBorder_16u_C3", M::Replicate, 3, 3, kroiCopyReplicateBorder_16u_C3R, kroiCopyReplicateBorder_16u_C3R_L,
                       kroiCopyReplicateBorder_16u_C3IR, kroiCopyReplicateBorder_16u_C3IR_L),
            member<Kro16u>("kroiCopyReplicateBorder_16u_C4", M::Replicate, 4, 4, kroiCopyReplicateBorder_16u_C4R, kroiCopyReplicateBorder_16u_C4R_L,
                       kroiCopyReplicateBorder_16u_C4IR, kroiCopyReplicateBorder_16u_C4IR_L), member<Kro16u>("kroiCopyReplicateBorder_16u_AC4", M::Replicate, 4, 3, kroiCopyReplicateBorder_16u_AC4R, kroiCopyReplicateBorder_16u_AC4R_L,
                       kroiCopyReplicateBorder_16u_AC4IR, kroiCopyReplicateBorder_16u_AC4IR_L),
            member<Kro16u>("kroiCopyMirrorBorder_16u_C1", M::Mirror, 1, 1, kroiCopyMirrorBorder_16u_C1R, kroiCopyMirrorBorder_16u_C1R_L,
                       kroiCopyMirrorBorder_16u_C1IR, kroiCopyMirrorBorder_16u_C1IR_L), member<Kro16u>("kroiCopyMirrorBorder_16u_C3", M::Mirror, 3, 3, kroiCopyMirrorBorder_16u_C3R, kroiCopyMirrorBorder_16u_C3R_L,
                       kroiCopyMirrorBorder_16u_C3IR, kroiCopyMirrorBorder_16u_C3IR_L),
            member<Kro16u>("kroiCopyMirrorBorder_16u_C4", M::Mirror, 4, 4, kroiCopyMirrorBorder_16u_C4R, kroiCopyMirrorBorder_16u_C4R_L,
                       kroiCopyMirrorBorder_16u_C4IR, kroiCopyMirrorBorder_16u_C4IR_L)};
}
template <>
std::vector<Member<Kro16s>> members()
{
    return {member<Kro16s>("kroiCopyConstBorder_16s_C1", M::Constant, 1, 1, kroiCopyConstBorder_16s_C1R, kroiCopyConstBorder_16s_C1R_L,
                       kroiCopyConstBorder_16s_C1IR, kroiCopyConstBorder_16s_C1IR_L), member<Kro16s>("kroiCopyConstBorder_16s_C3", M::Constant, 3, 3, kroiCopyConstBorder_16s_C3R, kroiCopyConstBorder_16s_C3R_L,
                       kroiCopyConstBorder_16s_C3IR, kroiCopyConstBorder_16s_C3IR_L),
            member<Kro16s>("kroiCopyConstBorder_16s_C4", M::Constant, 4, 4, kroiCopyConstBorder_16s_C4R, kroiCopyConstBorder_16s_C4R_L,
                       kroiCopyConstBorder_16s_C4IR, kroiCopyConstBorder_16s_C4IR_L), member<Kro16s>("kroiCopyConstBorder_16s_AC4", M::Constant, 4, 3, kroiCopyConstBorder_16s_AC4R, kroiCopyConstBorder_16s_AC4R_L,
                       kroiCopyConstBorder_16s_AC4IR, kroiCopyConstBorder_16s_AC4IR_L),
            member<Kro16s>("kroiCopyReplicateBorder_16s_C1", M::Replicate, 1, 1, kroiCopyReplicateBorder_16s_C1R, kroiCopyReplicateBorder_16s_C1R_L,
                       kroiCopyReplicateBorder_16s_C1IR, kroiCopyReplicateBorder_16s_C1IR_L), member<Kro16s>("kroiCopyReplicateBorder_16s_C3", M::Replicate, 3, 3, kroiCopyReplicateBorder_16s_C3R, kroiCopyReplicateBorder_16s_C3R_L,
                       kroiCopyReplicateBorder_16s_C3IR, kroiCopyReplicateBorder_16s_C3IR_L),
            member<Kro16s>("kroiCopyReplicateBorder_16s_C4", M::Replicate, 4, 4, kroiCopyReplicateBorder_16s_C4R, kroiCopyReplicateBorder_16s_C4R_L,
                       kroiCopyReplicateBorder_16s_C4IR, kroiCopyReplicateBorder_16s_C4IR_L), member<Kro16s>("kroiCopyReplicateBorder_16s_AC4", M::Replicate, 4, 3, kroiCopyReplicateBorder_16s_AC4R, kroiCopyReplicateBorder_16s_AC4R_L,
                       kroiCopyReplicateBorder_16s_AC4IR, kroiCopyReplicateBorder_16s_AC4IR_L),
            member<Kro16s>("kroiCopyMirrorBorder_16s_C1", M::Mirror, 1, 1, kroiCopyMirrorBorder_16s_C1R, kroiCopyMirrorBorder_16s_C1R_L,
                       kroiCopyMirrorBorder_16s_C1IR, kroiCopyMirrorBorder_16s_C1IR_L), member<Kro16s>("kroiCopyMirrorBorder_16s_C3", M::Mirror, 3, 3, kroiCopyMirrorBorder_16s_C3R, kroiCopyMirrorBorder_16s_C3R_L,
                       kroiCopyMirrorBorder_16s_C3IR, kroiCopyMirrorBorder_16s_C3IR_L),
            member<Kro16s>("kroiCopyMirrorBorder_16s_C4", M::Mirror, 4, 4, kroiCopyMirrorBorder_16s_C4R, kroiCopyMirrorBorder_16s_C4R_L,
                       kroiCopyMirrorBorder_16s_C4IR, kroiCopyMirrorBorder_16s_C4IR_L)};
}
template <>
std::vector<Member<Kro32s>> members()
{
    return {member<Kro32s>("kroiCopyConstBorder_32s_C1", M::Constant, 1, 1, kroiCopyConstBorder_32s_C1R, kroiCopyConstBorder_32s_C1R_L,
                       kroiCopyConstBorder_32s_C1IR, kroiCopyConstBorder_32s_C1IR_L), member<Kro32s>("kroiCopyConstBorder_32s_C3", M::Constant, 3, 3, kroiCopyConstBorder_32s_C3R, kroiCopyConstBorder_32s_C3R_L,
                       kroiCopyConstBorder_32s_C3IR, kroiCopyConstBorder_32s_C3IR_L),
            member<Kro32s>("kroiCopyConstBorder_32s_C4", M::Constant, 4, 4, kroiCopyConstBorder_32s_C4R, kroiCopyConstBorder_32s_C4R_L,
                       kroiCopyConstBorder_32s_C4IR, kroiCopyConstBorder_32s_C4IR_L), member<Kro32s>("kroiCopyConstBorder_32s_AC4", M::Constant, 4, 3, kroiCopyConstBorder_32s_AC4R, kroiCopyConstBorder_32s_AC4R_L,
                       kroiCopyConstBorder_32s_AC4IR, kroiCopyConstBorder_32s_AC4IR_L),
            member<Kro32s>("kroiCopyReplicateBorder_32s_C1", M::Replicate, 1, 1, kroiCopyReplicateBorder_32s_C1R, kroiCopyReplicateBorder_32s_C1R_L,
                       kroiCopyReplicateBorder_32s_C1IR, kroiCopyReplicateBorder_32s_C1IR_L), member<Kro32s>("kroiCopyReplicateBorder_32s_C3", M::Replicate, 3, 3, kroiCopyReplicateBorder_32s_C3R, kroiCopyReplicateBorder_32s_C3R_L,
                       kroiCopyReplicateBorder_32s_C3IR, kroiCopyReplicateBorder_32s_C3IR_L),
            member<Kro32s>("kroiCopyReplicateBorder_32s_C4", M::Replicate, 4, 4, kroiCopyReplicateBorder_32s_C4R, kroiCopyReplicateBorder_32s_C4R_L,
                       kroiCopyReplicateBorder_32s_C4IR, kroiCopyReplicateBorder_32s_C4IR_L), member<Kro32s>("kroiCopyReplicateBorder_32s_AC4", M::Replicate, 4, 3, kroiCopyReplicateBorder_32s_AC4R, kroiCopyReplicateBorder_32s_AC4R_L,
                       kroiCopyReplicateBorder_32s_AC4IR, kroiCopyReplicateBorder_32s_AC4IR_L),
            member<Kro32s>("kroiCopyMirrorBorder_32s_C1", M::Mirror, 1, 1, kroiCopyMirrorBorder_32s_C1R, kroiCopyMirrorBorder_32s_C1R_L,
                       kroiCopyMirrorBorder_32s_C1IR, kroiCopyMirrorBorder_32s_C1IR_L), member<Kro32s>("kroiCopyMirrorBorder_32s_C3", M::Mirror, 3, 3, kroiCopyMirrorBorder_32s_C3R, kroiCopyMirrorBorder_32s_C3R_L,
                       kroiCopyMirrorBorder_32s_C3IR, kroiCopyMirrorBorder_32s_C3IR_L),
            member<Kro32s>("kroiCopyMirrorBorder_32s_C4", M::Mirror, 4, 4, kroiCopyMirrorBorder_32s_C4R, kroiCopyMirrorBorder_32s_C4R_L,
                       kroiCopyMirrorBorder_32s_C4IR, kroiCopyMirrorBorder_32s_C4IR_L), member<Kro32s>("kroiCopyWrapBorder_32s_C1", M::Wrap, 1, 1, kroiCopyWrapBorder_32s_C1R, kroiCopyWrapBorder_32s_C1R_L,
                       kroiCopyWrapBorder_32s_C1IR, kroiCopyWrapBorder_32s_C1IR_L)};
}
template <>
std::vector<Member<Kro32f>> members()
{
    return {member<Kro32f>("kroiCopyConstBorder_32f_C1", M::Constant, 1, 1, kroiCopyConstBorder_32f_C1R, kroiCopyConstBorder_32f_C1R_L,
                       kroiCopyConstBorder_32f_C1IR, kroiCopyConstBorder_32f_C1IR_L), member<Kro32f>("kroiCopyConstBorder_32f_C3", M::Constant, 3, 3, kroiCopyConstBorder_32f_C3R, kroiCopyConstBorder_32f_C3R_L,
                       kroiCopyConstBorder_32f_C3IR, kroiCopyConstBorder_32f_C3IR_L),
            member<Kro32f>("kroiCopyConstBorder_32f_C4", M::Constant, 4, 4, kroiCopyConstBorder_32f_C4R, kroiCopyConstBorder_32f_C4R_L,
                       kroiCopyConstBorder_32f_C4IR, kroiCopyConstBorder_32f_C4IR_L), member<Kro32f>("kroiCopyConstBorder_32f_AC4", M::Constant, 4, 3, kroiCopyConstBorder_32f_AC4R, kroiCopyConstBorder_32f_AC4R_L,
                       kroiCopyConstBorder_32f_AC4IR, kroiCopyConstBorder_32f_AC4IR_L),
            member<Kro32f>("kroiCopyReplicateBorder_32f_C1", M::Replicate, 1, 1, kroiCopyReplicateBorder_32f_C1R, kroiCopyReplicateBorder_32f_C1R_L,
                       kroiCopyReplicateBorder_32f_C1IR, kroiCopyReplicateBorder_32f_C1IR_L), member<Kro32f>("kroiCopyReplicateBorder_32f_C3", M::Replicate, 3, 3, kroiCopyReplicateBorder_32f_C3R, kroiCopyReplicateBorder_32f_C3R_L,
                       kroiCopyReplicateBorder_32f_C3IR, kroiCopyReplicateBorder_32f_C3IR_L),
            member<Kro32f>("kroiCopyReplicateBorder_32f_C4", M::Replicate, 4, 4, kroiCopyReplicateBorder_32f_C4R, kroiCopyReplicateBorder_32f_C4R_L,
                       kroiCopyReplicateBorder_32f_C4IR, kroiCopyReplicateBorder_32f_C4IR_L), member<Kro32f>("kroiCopyReplicateBorder_32f_AC4", M::Replicate, 4, 3, kroiCopyReplicateBorder_32f_AC4R, kroiCopyReplicateBorder_32f_AC4R_L,
                       kroiCopyReplicateBorder_32f_AC4IR, kroiCopyReplicateBorder_32f_AC4IR_L),
            member<Kro32f>("kroiCopyMirrorBorder_32f_C1", M::Mirror, 1, 1, kroiCopyMirrorBorder_32f_C1R, kroiCopyMirrorBorder_32f_C1R_L,
                       kroiCopyMirrorBorder_32f_C1IR, kroiCopyMirrorBorder_32f_C1IR_L), member<Kro32f>("kroiCopyMirrorBorder_32f_C3", M::Mirror, 3, 3, kroiCopyMirrorBorder_32f_C3R, kroiCopyMirrorBorder_32f_C3R_L,
                       kroiCopyMirrorBorder_32f_C3IR, kroiCopyMirrorBorder_32f_C3IR_L),
            member<Kro32f>("kroiCopyMirrorBorder_32f_C4", M::Mirror, 4, 4, kroiCopyMirrorBorder_32f_C4R, kroiCopyMirrorBorder_32f_C4R_L,
                       kroiCopyMirrorBorder_32f_C4IR, kroiCopyMirrorBorder_32f_C4IR_L), member<Kro32f>("kroiCopyWrapBorder_32f_C1", M::Wrap, 1, 1, kroiCopyWrapBorder_32f_C1R, kroiCopyWrapBorder_32f_C1R_L,
                       kroiCopyWrapBorder_32f_C1IR, kroiCopyWrapBorder_32f_C1IR_L)};
}

struct Case {
    int sw, sh, top, left, bottom, right;
};
// Plain borders, zero borders, one-pixel sources, and borders wider than the source.
constexpr Case kCases[] = {{5, 4, 0, 0, 0, 0}, {1, 1, 3, 2, 1, 4}, {6, 5, 2, 1, 3, 2},
                           {3, 2, 5, 5, 4, 3}, {1, 4, 2, 3, 0, 2}, {19, 3, 1, 17, 2, 21}};

// The reference copy: every destination pixel from the rule; AC4 alpha keeps its canary.
template <class T>
void expectFramed(const Member<T>& m, const kt::Guarded<T>& src, const kt::Guarded<T>& dst, const Case& c,
                  const T* value, const std::vector<unsigned char>& before, const char* form)
{
    EXPECT_IMAGE_EQ(dst, [&](int x, int y, int ch) -> T {
        const int64_t sx = refIndex(m.mode, x - c.left, c.sw), sy = refIndex(m.mode, y - c.top, c.sh);
        if (ch >= m.WC) { // untouched: the canary byte pattern
            T t;
            std::memset(&t, 0xA5, sizeof t);
            return t;
        }
        if (sx < 0 || sy < 0) return value[ch];
        return src.at(int(sx), int(sy), ch);
    }) << m.name << " " << form << " " << c.sw << "x" << c.sh << " t" << c.top << " l" << c.left << " b" << c.bottom
       << " r" << c.right;
    EXPECT_TRUE(dst.restUnchangedSince(before, m.WC)) << m.name << " " << form;
}

template <class T>
void runCopies()
{
    auto rng = kt::rngForTest();
    for (const auto& m : members<T>())
        for (const Case& c : kCases) {
            const int dw = c.sw + c.left + c.right, dh = c.sh + c.top + c.bottom;
            const KroiSize sr{c.sw, c.sh}, dr{dw, dh};
            T value[4];
            for (auto& v : value) v = kt::randomValue<T>(rng);
            kt::Guarded<T> src(kt::Shape{c.sw, c.sh, m.C, 3});
            kt::fillRandom(src, rng);
            for (int form = 0; form < 2; ++form) { // R and R_L
                kt::Guarded<T> dst(kt::Shape{dw, dh, m.C, 5, kt::Guard::Before, 3});
                dst.fillBytes(0xA5);
                const auto before = dst.snapshot();
                const auto& f = form ? m.f.rl : m.f.r;
                ASSERT_EQ(f(src.ptr(), src.step(), sr, dst.ptr(), dst.step(), dr, c.top, c.left, value), kroStsOk);
                expectFramed(m, src, dst, c, value, before, form ? "R_L" : "R");
            }
            for (int form = 0; form < 3; ++form) { // IR, IR_L, and R with pSrc == pDst
                kt::Guarded<T> dst(kt::Shape{dw, dh, m.C, 7});
                dst.fillBytes(0xA5);
                const auto before = dst.snapshot();
                for (int y = 0; y < c.sh; ++y)
                    for (int x = 0; x < c.sw; ++x)
                        for (int ch = 0; ch < m.WC; ++ch) dst.at(x + c.left, y + c.top, ch) = src.at(x, y, ch);
                T* p = &dst.at(c.left, c.top);
                KroStatus st;
                if (form < 2)
                    st = (form ? m.f.irl : m.f.ir)(p, dst.step(), sr, dr, c.top, c.left, value);
                else if (m.mode == M::Constant)
                    continue; // the constant copy does not hand over
                else
                    st = m.f.r(p, 12345, sr, p, dst.step(), dr, c.top, c.left, value);
                ASSERT_EQ(st, kroStsOk) << m.name << " in place " << form;
                expectFramed(m, src, dst, c, value, before, form == 0 ? "IR" : form == 1 ? "IR_L" : "R==");
            }
        }
}

TEST(BorderCopy, MatchesRules8u) { runCopies<Kro8u>(); }
TEST(BorderCopy, MatchesRules16u) { runCopies<Kro16u>(); }
TEST(BorderCopy, MatchesRules16s) { runCopies<Kro16s>(); }
TEST(BorderCopy, MatchesRules32s) { runCopies<Kro32s>(); }
TEST(BorderCopy, MatchesRules32f) { runCopies<Kro32f>(); }

TEST(BorderCopy, FloatConstantTravelsAsBits)
{
    const uint32_t nanBits = 0x7FC12345u;
    float nan;
    std::memcpy(&nan, &nanBits, 4);
    kt::Guarded<Kro32f> src(2, 2), dst(4, 3);
    src.fillBytes(0);
    ASSERT_EQ(kroiCopyConstBorder_32f_C1R(src.ptr(), src.step(), {2, 2}, dst.ptr(), dst.step(), {4, 3}, 1, 1, nan),
              kroStsOk);
    uint32_t got;
    std::memcpy(&got, &dst.at(0, 0), 4);
    EXPECT_EQ(got, nanBits);
    const float v3[3] = {-0.0f, nan, 1.0f};
    kt::Guarded<Kro32f> src3(1, 1, 3), dst3(2, 1, 3);
    src3.fillBytes(0);
    ASSERT_EQ(kroiCopyConstBorder_32f_C3R(src3.ptr(), src3.step(), {1, 1}, dst3.ptr(), dst3.step(), {2, 1}, 0, 1, v3),
              kroStsOk);
    EXPECT_EQ(std::memcmp(&dst3.at(0, 0), v3, 12), 0);
}

// Check order: each row breaks the arguments from some point on and expects the first
// failing check's status; nothing is written on an error.
template <class T>
void runCheckOrder()
{
    for (const auto& m : members<T>()) {
        kt::Guarded<T> src(kt::Shape{3, 3, m.C}), dst(kt::Shape{6, 6, m.C});
        src.fillBytes(1);
        dst.fillBytes(0x5A);
        const auto before = dst.snapshot();
        const T value[4] = {};
        const T* s = src.ptr();
        T* d = dst.ptr();
        const int ss = src.step(), ds = dst.step();
        const bool multiConst = m.mode == M::Constant && m.C > 1;
        struct Row {
            const T* s; int ss; KroiSize sr; T* d; int ds; KroiSize dr; int top, left; const T* v;
            KroStatus want;
        };
        std::vector<Row> rows = {
            {nullptr, 0, {0, 3}, d, ds, {6, 6}, 1, 1, value, kroStsNullPointerErr},
            {s, ss, {0, 3}, nullptr, 0, {6, 6}, 1, 1, value, kroStsNullPointerErr},
            {s, 0, {0, 3}, d, ds, {6, 6}, 1, 1, nullptr, kroStsBadStepErr},
            {s, ss, {3, 0}, d, -4, {6, 6}, 1, 1, nullptr, kroStsBadStepErr},
            {s, ss, {0, 3}, d, ds, {6, 6}, 1, 1, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 0}, 1, 1, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 6}, -1, 1, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 6}, 1, -1, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 6}, 1, 4, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 6}, 4, 1, nullptr, kroStsBadSizeErr},
            {s, ss, {3, 3}, d, ds, {6, 6}, 1, 1, nullptr, multiConst ? kroStsNullPointerErr : kroStsOk},
        };
        // Equal pointers: replicate and mirror hand over before checking srcStep; wrap checks
        // it first.
        if (m.mode == M::Replicate || m.mode == M::Mirror)
            rows.push_back({d, 0, {3, 3}, d, ds, {2, 2}, 1, 1, nullptr, kroStsBadSizeErr});
        if (m.mode == M::Wrap) rows.push_back({d, 0, {3, 3}, d, ds, {2, 2}, 1, 1, nullptr, kroStsBadStepErr});
        for (std::size_t i = 0; i < rows.size(); ++i) {
            const Row& r = rows[i];
            if (r.want == kroStsOk) continue;
            const T* v = (m.mode == M::Constant && m.C == 1) ? value : r.v;
            for (const auto* f : {&m.f.r, &m.f.rl})
                EXPECT_EQ((*f)(r.s, r.ss, r.sr, r.d, r.ds, r.dr, r.top, r.left, v), r.want) << m.name << " row " << i;
            if (r.s == nullptr) continue;
            T* p = r.d ? r.d + (r.left * m.C) : nullptr;
            if (p) p = reinterpret_cast<T*>(reinterpret_cast<char*>(p) + std::ptrdiff_t(r.top) * ds);
            if (r.d == d && r.s == s && r.ss == ss) {
                for (const auto* f : {&m.f.ir, &m.f.irl})
                    EXPECT_EQ((*f)(p, r.ds, r.sr, r.dr, r.top, r.left, v), r.want) << m.name << " IR row " << i;
            }
            EXPECT_TRUE(dst.unchangedSince(before)) << m.name << " row " << i;
        }
        // Equal pointers with a bad srcStep: the in-place hand-over ignores it.
        if (m.mode == M::Replicate || m.mode == M::Mirror) {
            T* p = &dst.at(1, 1);
            EXPECT_EQ(m.f.r(p, 0, {3, 3}, p, ds, {6, 6}, 1, 1, nullptr), kroStsOk) << m.name;
        }
    }
}

TEST(BorderCopy, CheckOrder)
{
    runCheckOrder<Kro8u>();
    runCheckOrder<Kro16u>();
    runCheckOrder<Kro16s>();
    runCheckOrder<Kro32s>();
    runCheckOrder<Kro32f>();
}

}  // namespace
