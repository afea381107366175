// The box filter and the window sums against a reference written from the rules: border
// pixels from the index rules over the image widened by its in-memory sides, sums by the
// stated single-precision sequence, the stated rounding per type.
#include <cmath>
#include <cstring>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

int64_t refIndex(int mode, int64_t x, int64_t n)
{
    if (mode == 1) return x < 0 ? 0 : (x >= n ? n - 1 : x);
    if (mode == 3) {
        if (n == 1) return 0;
        while (x < 0 || x >= n) x = x < 0 ? -x : 2 * (n - 1) - x;
        return x;
    }
    return (x >= 0 && x < n) ? x : -1;
}

struct Mask {
    int w, h;
};

// The source a filter sees: memory around the ROI on the flagged sides, the mode's rule over
// that widened extent elsewhere.
template <class T>
struct Virtual {
    const kt::Guarded<T>& img; // the widened image
    int ox, oy;                // ROI origin inside it
    int W, H, C;
    unsigned code;
    const T* value;
    bool all() const { return code == 0xF0 || (code & 0xF0) == 0xF0; }
    double at(int64_t x, int64_t y, int c) const
    {
        const int64_t fx = map(x, ox, img.width()), fy = map(y, oy, img.height());
        if (fx < 0 || fy < 0) return double(value[c]);
        return double(img.at(int(fx), int(fy), c));
    }
    // Column or row coordinate v (ROI based) to a coordinate of the widened image, or -1.
    int64_t map(int64_t v, int o, int n) const
    {
        const int64_t u = v + o;
        if (u >= 0 && u < n) return u;
        return refIndex(int(code & 15), u, n);
    }
};

// Window sums by the sequence, as doubles holding floats exactly.
template <class T>
std::vector<float> referenceSums(const Virtual<T>& v, Mask m)
{
    const int ax = (m.w - 1) / 2, ay = (m.h - 1) / 2, wb = v.W + m.w - 1;
    std::vector<float> out(std::size_t(v.W) * v.H * v.C), col(std::size_t(wb) * v.C, 0.0f);
    auto px = [&](int x, int y, int c) { return float(v.at(x, y, c)); };
    for (int k = 0; k < m.h; ++k)
        for (int x = 0; x < wb; ++x)
            for (int c = 0; c < v.C; ++c) col[x * v.C + c] = col[x * v.C + c] + px(x - ax, k - ay, c);
    for (int y = 0; y < v.H; ++y) {
        for (int c = 0; c < v.C; ++c) {
            float s = 0.0f;
            for (int k = 0; k < m.w; ++k) s = s + col[k * v.C + c];
            out[(std::size_t(y) * v.W) * v.C + c] = s;
            for (int x = 1; x < v.W; ++x) {
                s = s + (col[(x + m.w - 1) * v.C + c] - col[(x - 1) * v.C + c]);
                out[(std::size_t(y) * v.W + x) * v.C + c] = s;
            }
        }
        if (y + 1 < v.H)
            for (int x = 0; x < wb; ++x)
                for (int c = 0; c < v.C; ++c)
                    col[x * v.C + c] = col[x * v.C + c] + (px(x - ax, y - ay + m.h, c) - px(x - ax, y - ay, c));
    }
    return out;
}

template <class Out>
Out refMean(float sum, Mask m)
{
    const float r = 1.0f / float(m.w * m.h);
    const float f = sum * r;
    if constexpr (std::is_same_v<Out, float>)
        return f;
    else if constexpr (std::is_same_v<Out, Kro16s>)
        return Out(std::trunc(sum < 0 ? f - 0.5f : f + 0.5f));
    else
        return Out(std::trunc(f + 0.5f));
}

// A member of either family behind one shape.
template <class T, class Out>
struct Member {
    const char* name;
    KroStatus (*fn)(const T*, int, Out*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);
    int C, WC;
    bool borderFirst;
    bool sum; // window sum instead of mean
};

KroDataType typeCode(std::size_t size, bool isFloat)
{
    return isFloat ? kro32f : size == 1 ? kro8u : kro16u;
}

template <class T, class Out>
int bufferFor(const Member<T, Out>& m, KroiSize roi, Mask mask)
{
    int size = -1;
    const KroDataType dt = typeCode(sizeof(T), std::is_floating_point_v<T>);
    const KroStatus st = m.sum ? kroiSumWindowGetBufferSize(roi, {mask.w, mask.h}, dt, m.C, &size)
                               : kroiFilterBoxBorderGetBufferSize(roi, {mask.w, mask.h}, dt, m.C, &size);
    EXPECT_EQ(st, kroStsOk);
    return size;
}

struct Geometry {
    int W, H;
    Mask m;
};

// Every mode with every flag combination, in place and out of place, on one geometry; the
// source image holds exactly the memory the flags declare, between guard pages.
template <class T, class Out>
void runGeometry(const Member<T, Out>& m, const Geometry& g, const std::vector<unsigned>& codes, kt::Rng& rng,
                 const kt::FloatMix& mix)
{
    const int ax = (g.m.w - 1) / 2, ay = (g.m.h - 1) / 2, right = g.m.w - 1 - ax, bottom = g.m.h - 1 - ay;
    for (unsigned code : codes) {
        const bool all = code == 0xF0;
        const bool ft = all || (code & 0x10), fb = all || (code & 0x20), fl = all || (code & 0x40),
                   fr = all || (code & 0x80);
        const int ox = fl ? ax : 0, oy = ft ? ay : 0;
        const int iw = g.W + ox + (fr ? right : 0), ih = g.H + oy + (fb ? bottom : 0);
        kt::Shape shape{iw, ih, m.C, 0, (code & 1) ? kt::Guard::After : kt::Guard::Before, 4};
        kt::Guarded<T> src(shape);
        kt::fillRandom(src, rng, mix);
        T value[4];
        for (auto& v : value) v = kt::randomValue<T>(rng, mix);
        const Virtual<T> v{src, ox, oy, g.W, g.H, m.C, code, value};
        const std::vector<float> sums = referenceSums(v, g.m);
        auto expected = [&](int x, int y, int c) -> Out {
            const float s = sums[(std::size_t(y) * g.W + x) * m.C + c];
            if (m.sum) return std::is_same_v<Out, float> ? Out(s) : Out(int64_t(s));
            if (std::is_same_v<Out, float> && g.m.w == 1 && g.m.h == 1) return Out(v.at(x, y, c)); // a copy
            return refMean<Out>(s, g.m);
        };
        std::vector<Kro8u> buffer(std::size_t(bufferFor(m, {g.W, g.H}, g.m)));
        const KroiSize roi{g.W, g.H};
        const std::string what = std::string(m.name) + " " + std::to_string(g.W) + "x" + std::to_string(g.H) +
                                 " mask " + std::to_string(g.m.w) + "x" + std::to_string(g.m.h) + " code " +
                                 std::to_string(code);
        {
            kt::Guarded<Out> dst(kt::Shape{g.W, g.H, m.C, 8});
            dst.fillBytes(0xA5);
            const auto before = dst.snapshot();
            // The buffer may sit anywhere: start it off alignment.
            std::vector<Kro8u> shifted(buffer.size() + 3);
            ASSERT_EQ(m.fn(&src.at(ox, oy), src.step(), dst.ptr(), dst.step(), roi, {g.m.w, g.m.h}, code, value,
                           shifted.data() + 3),
                      kroStsOk)
                << what;
            ASSERT_IMAGE_EQ(dst, [&](int x, int y, int c) -> Out {
                if (c >= m.WC) {
                    Out t;
                    std::memset(&t, 0xA5, sizeof t);
                    return t;
                }
                return expected(x, y, c);
            }) << what;
            ASSERT_TRUE(dst.restUnchangedSince(before, m.WC)) << what;
        }
        if constexpr (std::is_same_v<T, Out>) { // in place, on a copy of the source
            kt::Guarded<T> io(shape);
            std::memcpy(io.lowest(), src.lowest(), src.spanBytes());
            ASSERT_EQ(m.fn(&io.at(ox, oy), io.step(), &io.at(ox, oy), io.step(), roi, {g.m.w, g.m.h}, code, value,
                           buffer.data()),
                      kroStsOk)
                << what;
            for (int y = 0; y < ih; ++y)
                for (int x = 0; x < iw; ++x)
                    for (int c = 0; c < m.C; ++c) {
                        const bool inRoi = x >= ox && x < ox + g.W && y >= oy && y < oy + g.H && c < m.WC;
                        const T want = inRoi ? expected(x - ox, y - oy, c) : src.at(x, y, c);
                        if (!kt::sameValue(io.at(x, y, c), want)) {
                            ADD_FAILURE() << what << " in place at " << x - ox << "," << y - oy << "," << c
                                          << ": got " << kt::show(io.at(x, y, c)) << ", expected " << kt::show(want);
                            return;
                        }
                    }
        }
    }
}

std::vector<unsigned> everyCode()
{
    std::vector<unsigned> codes{0xF0};
    for (unsigned mode : {1u, 3u, 6u})
        for (unsigned flags = 0; flags < 16; ++flags) codes.push_back(mode | flags << 4);
    return codes;
}

template <class T, class Out>
void runMembers(const std::vector<Member<T, Out>>& members)
{
    auto rng = kt::rngForTest();
    const kt::FloatMix mix{-1000.0, 1000.0, 0.0};
    // Odd and even masks; masks as large as the image and larger (staging); one-pixel images.
    const Geometry small[] = {{9, 7, {3, 3}}, {9, 7, {2, 2}}, {8, 6, {4, 3}}, {7, 6, {1, 5}}, {7, 5, {6, 1}},
                              {3, 2, {5, 4}}, {4, 4, {4, 4}}, {1, 1, {3, 2}}, {17, 6, {1, 1}}};
    const std::vector<unsigned> codes = everyCode();
    for (const auto& m : members)
        for (const Geometry& g : small) runGeometry(m, g, codes, rng, mix);
    // Masks wide enough for the float path of 16-bit sums and the long running sums.
    const std::vector<unsigned> few{1, 3, 6, 0x31, 0xC6, 0xF0};
    for (const auto& m : members)
        for (const Geometry& g : {Geometry{40, 35, {17, 17}}, Geometry{37, 20, {31, 3}}})
            runGeometry(m, g, few, rng, mix);
}

TEST(BoxFilter, MatchesReference8u)
{
    runMembers<Kro8u, Kro8u>({{"kroiFilterBoxBorder_8u_C1R", kroiFilterBoxBorder_8u_C1R, 1, 1, false, false},
                              {"kroiFilterBoxBorder_8u_C3R", kroiFilterBoxBorder_8u_C3R, 3, 3, true, false},
                              {"kroiFilterBoxBorder_8u_C4R", kroiFilterBoxBorder_8u_C4R, 4, 4, true, false},
                              {"kroiFilterBoxBorder_8u_AC4R", kroiFilterBoxBorder_8u_AC4R, 4, 3, false, false}});
}
TEST(BoxFilter, MatchesReference16u)
{
    runMembers<Kro16u, Kro16u>({{"kroiFilterBoxBorder_16u_C1R", kroiFilterBoxBorder_16u_C1R, 1, 1, true, false},
                                {"kroiFilterBoxBorder_16u_C3R", kroiFilterBoxBorder_16u_C3R, 3, 3, true, false},
                                {"kroiFilterBoxBorder_16u_C4R", kroiFilterBoxBorder_16u_C4R, 4, 4, true, false},
                                {"kroiFilterBoxBorder_16u_AC4R", kroiFilterBoxBorder_16u_AC4R, 4, 3, false, false}});
}
TEST(BoxFilter, MatchesReference16s)
{
    runMembers<Kro16s, Kro16s>({{"kroiFilterBoxBorder_16s_C1R", kroiFilterBoxBorder_16s_C1R, 1, 1, true, false},
                                {"kroiFilterBoxBorder_16s_C3R", kroiFilterBoxBorder_16s_C3R, 3, 3, true, false},
                                {"kroiFilterBoxBorder_16s_C4R", kroiFilterBoxBorder_16s_C4R, 4, 4, true, false},
                                {"kroiFilterBoxBorder_16s_AC4R", kroiFilterBoxBorder_16s_AC4R, 4, 3, true, false}});
}
TEST(BoxFilter, MatchesReference32f)
{
    runMembers<Kro32f, Kro32f>({{"kroiFilterBoxBorder_32f_C1R", kroiFilterBoxBorder_32f_C1R, 1, 1, false, false},
                                {"kroiFilterBoxBorder_32f_C3R", kroiFilterBoxBorder_32f_C3R, 3, 3, true, false},
                                {"kroiFilterBoxBorder_32f_C4R", kroiFilterBoxBorder_32f_C4R, 4, 4, true, false},
                                {"kroiFilterBoxBorder_32f_AC4R", kroiFilterBoxBorder_32f_AC4R, 4, 3, true, false}});
}
TEST(SumWindow, MatchesReference)
{
    runMembers<Kro8u, Kro32s>({{"kroiSumWindow_8u32s_C1R", kroiSumWindow_8u32s_C1R, 1, 1, false, true},
                               {"kroiSumWindow_8u32s_C3R", kroiSumWindow_8u32s_C3R, 3, 3, false, true},
                               {"kroiSumWindow_8u32s_C4R", kroiSumWindow_8u32s_C4R, 4, 4, false, true},
                               {"kroiSumWindow_8u32s_AC4R", kroiSumWindow_8u32s_AC4R, 4, 3, false, true}});
    runMembers<Kro16u, Kro32f>({{"kroiSumWindow_16u32f_C1R", kroiSumWindow_16u32f_C1R, 1, 1, false, true},
                                {"kroiSumWindow_16u32f_C3R", kroiSumWindow_16u32f_C3R, 3, 3, false, true},
                                {"kroiSumWindow_16u32f_C4R", kroiSumWindow_16u32f_C4R, 4, 4, false, true},
                                {"kroiSumWindow_16u32f_AC4R", kroiSumWindow_16u32f_AC4R, 4, 3, false, true}});
    runMembers<Kro16s, Kro32f>({{"kroiSumWindow_16s32f_C1R", kroiSumWindow_16s32f_C1R, 1, 1, false, true},
                                {"kroiSumWindow_16s32f_C3R", kroiSumWindow_16s32f_C3R, 3, 3, false, true},
                                {"kroiSumWindow_16s32f_C4R", kroiSumWindow_16s32f_C4R, 4, 4, false, true},
                                {"kroiSumWindow_16s32f_AC4R", kroiSumWindow_16s32f_AC4R, 4, 3, false, true}});
    runMembers<Kro32f, Kro32f>({{"kroiSumWindow_32f_C1R", kroiSumWindow_32f_C1R, 1, 1, false, true},
                                {"kroiSumWindow_32f_C3R", kroiSumWindow_32f_C3R, 3, 3, false, true},
                                {"kroiSumWindow_32f_C4R", kroiSumWindow_32f_C4R, 4, 4, false, true},
                                {"kroiSumWindow_32f_AC4R", kroiSumWindow_32f_AC4R, 4, 3, false, true}});
}

}  // namespace
