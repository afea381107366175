// Palette lookups: every form at every allowed bit size on sources over the whole range of
// their type (so that the mask matters), one bit size beyond on each side, the check order
// and nothing written on error; images against guard pages.
#include <gtest/gtest.h>

#include <cstring>
#include <vector>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

// A form: source type S, destination element of E bytes (E = 3 for 24u), C elements per
// pixel, W of them looked up, and a caller that takes the tables as bytes.
template <class S>
struct Form {
    const char* name;
    int destBytes, channels, written;
    KroStatus (*call)(const S*, int, void*, int, KroiSize, const void* const*, int);
};

#define ONE(fn, D) [](const auto* s, int ss, void* d, int ds, KroiSize r, const void* const* t, int b) { \
    return fn(s, ss, static_cast<D*>(d), ds, r, static_cast<const D*>(t[0]), b); }
#define MANY(fn, D) [](const auto* s, int ss, void* d, int ds, KroiSize r, const void* const* t, int b) { \
    return fn(s, ss, static_cast<D*>(d), ds, r, reinterpret_cast<const D* const*>(t), b); }

const Form<Kro8u> k8u[] = {
    {"8u_C1", 1, 1, 1, ONE(kroiLUTPalette_8u_C1R, Kro8u)},
    {"8u_C3", 1, 3, 3, MANY(kroiLUTPalette_8u_C3R, Kro8u)},
    {"8u_C4", 1, 4, 4, MANY(kroiLUTPalette_8u_C4R, Kro8u)},
    {"8u_AC4", 1, 4, 3, MANY(kroiLUTPalette_8u_AC4R, Kro8u)},
    {"8u24u", 3, 1, 1, ONE(kroiLUTPalette_8u24u_C1R, Kro8u)},
    {"8u32u", 4, 1, 1, ONE(kroiLUTPalette_8u32u_C1R, Kro32u)},
};
const Form<Kro16u> k16u[] = {
    {"16u_C1", 2, 1, 1, ONE(kroiLUTPalette_16u_C1R, Kro16u)},
    {"16u_C3", 2, 3, 3, MANY(kroiLUTPalette_16u_C3R, Kro16u)},
    {"16u_C4", 2, 4, 4, MANY(kroiLUTPalette_16u_C4R, Kro16u)},
    {"16u_AC4", 2, 4, 3, MANY(kroiLUTPalette_16u_AC4R, Kro16u)},
    {"16u8u", 1, 1, 1, ONE(kroiLUTPalette_16u8u_C1R, Kro8u)},
    {"16u24u", 3, 1, 1, ONE(kroiLUTPalette_16u24u_C1R, Kro8u)},
    {"16u32u", 4, 1, 1, ONE(kroiLUTPalette_16u32u_C1R, Kro32u)},
};
#undef ONE
#undef MANY

template <class S, std::size_t N>
void everyForm(const Form<S> (&forms)[N])
{
    auto rng = kt::rngForTest();
    constexpr int kMaxBits = 8 * sizeof(S);
    for (const auto& f : forms)
        for (int bits = 1; bits <= kMaxBits; ++bits) {
            const std::size_t entries = std::size_t(1) << bits;
            std::vector<std::vector<unsigned char>> tabs(f.written);
            std::vector<const void*> tp;
            for (auto& t : tabs) {
                t.resize(entries * f.destBytes);
                for (auto& b : t) b = kt::uniform<int>(rng, 0, 255);
                tp.push_back(t.data());
            }
            const int w = 37, h = 3;
            const int pl = bits % 2;
            kt::Guarded<S> src(lt::placed(w, h, f.channels, pl));
            // The destination as bytes: C elements of destBytes each per pixel.
            kt::Shape ds = lt::placed(w * f.channels * f.destBytes, h, 1, 1 - pl);
            kt::Guarded<Kro8u> dst(ds);
            src.forEach([&](int, int, int, S& e) { e = kt::uniform<S>(rng, 0, S(~S(0))); });
            dst.fillBytes(0x5A);
            const auto before = dst.snapshot();
            ASSERT_EQ(f.call(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, h}, tp.data(), bits), kroStsOk);
            for (int y = 0; y < h; ++y)
                for (int x = 0; x < w; ++x)
                    for (int c = 0; c < f.channels; ++c) {
                        const Kro8u* got = dst.row(y) + (std::size_t(x) * f.channels + c) * f.destBytes;
                        const Kro8u* was = before.data() + (dst.row(y) - dst.lowest()) +
                                           (std::size_t(x) * f.channels + c) * f.destBytes;
                        const unsigned char* want =
                            c < f.written ? tabs[c].data() + (src.at(x, y, c) & (entries - 1)) * f.destBytes : was;
                        ASSERT_EQ(std::memcmp(got, want, f.destBytes), 0) << f.name << " bits " << bits << " x " << x;
                    }
            EXPECT_TRUE(dst.restUnchangedSince(before, 1)) << f.name;  // row padding
        }
    // Checks: pointers, steps, size, then the bit size; nothing written.
    for (const auto& f : forms) {
        std::vector<unsigned char> tab(std::size_t(4) << kMaxBits);
        const void* tp[4] = {tab.data(), tab.data(), tab.data(), tab.data()};
        const void* tnull[4] = {tab.data(), tab.data(), tab.data(), nullptr};
        S src[8] = {};
        std::vector<Kro8u> dst(64, 0x5A);
        const auto before = dst;
        const int ss = int(sizeof src), dsb = 64;
        EXPECT_EQ(f.call(nullptr, ss, dst.data(), dsb, {0, 0}, tp, 0), kroStsNullPointerErr);
        EXPECT_EQ(f.call(src, ss, nullptr, dsb, {1, 1}, tp, 1), kroStsNullPointerErr);
        if (f.written == 4) {
            EXPECT_EQ(f.call(src, ss, dst.data(), dsb, {1, 1}, tnull, 1), kroStsNullPointerErr);
        }
        EXPECT_EQ(f.call(src, 0, dst.data(), dsb, {0, 0}, tp, 0), kroStsBadStepErr);
        EXPECT_EQ(f.call(src, ss, dst.data(), -1, {0, 0}, tp, 0), kroStsBadStepErr);
        EXPECT_EQ(f.call(src, ss, dst.data(), dsb, {1, 0}, tp, 0), kroStsBadSizeErr);
        EXPECT_EQ(f.call(src, ss, dst.data(), dsb, {1, 1}, tp, 0), kroStsOutsideRangeErr);
        EXPECT_EQ(f.call(src, ss, dst.data(), dsb, {1, 1}, tp, kMaxBits + 1), kroStsOutsideRangeErr);
        EXPECT_EQ(f.call(src, ss, dst.data(), dsb, {1, 1}, tp, -3), kroStsOutsideRangeErr);
        EXPECT_TRUE(dst == before) << f.name;
    }
}

TEST(Palette, Sources8u) { everyForm(k8u); }
TEST(Palette, Sources16u) { everyForm(k16u); }

}  // namespace
