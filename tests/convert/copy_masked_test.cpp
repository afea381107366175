// Masked Copy and Set: every member against the rule with masks of mixed zero and non-zero
// bytes (and all zero, all set), odd widths around the vector lengths, unaligned starts,
// guard pages, and the check order with canaries.
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"
#include "support/guarded.hpp"

namespace {

using kt::Guard;
using kt::Guarded;
using kt::Shape;

template <class T>
struct MaskedCopy {
    const char* name;
    KroStatus (*fn)(const T*, int, T*, int, KroiSize, const Kro8u*, int);
    int channels, written;
};
template <class T>
struct MaskedSet {
    const char* name;
    KroStatus (*fn)(const T*, T*, int, KroiSize, const Kro8u*, int);
    int channels, written;
};
template <class T, KroStatus (*F)(T, T*, int, KroiSize, const Kro8u*, int)>
KroStatus setOne(const T* v, T* d, int step, KroiSize roi, const Kro8u* m, int ms) { return F(v[0], d, step, roi, m, ms); }

#define KT_MC(fn, channels, written) MaskedCopy<T>{#fn, fn, channels, written}
#define KT_MS(fn, channels, written) MaskedSet<T>{#fn, fn, channels, written}
#define KT_MS1(fn) MaskedSet<T>{#fn, setOne<T, fn>, 1, 1}

template <class T> std::vector<MaskedCopy<T>> maskedCopies();
template <class T> std::vector<MaskedSet<T>> maskedSets();
template <> std::vector<MaskedCopy<Kro8u>> maskedCopies()
{
    using T = Kro8u;
    return {KT_MC(kroiCopy_8u_C1MR, 1, 1), KT_MC(kroiCopy_8u_C3MR, 3, 3), KT_MC(kroiCopy_8u_C4MR, 4, 4),
            KT_MC(kroiCopy_8u_AC4MR, 4, 3)};
}
template <> std::vector<MaskedSet<Kro8u>> maskedSets()
{
    using T = Kro8u;
    return {KT_MS1(kroiSet_8u_C1MR), KT_MS(kroiSet_8u_C3MR, 3, 3), KT_MS(kroiSet_8u_C4MR, 4, 4),
            KT_MS(kroiSet_8u_AC4MR, 4, 3)};
}
template <> std::vector<MaskedCopy<Kro16u>> maskedCopies()
{
    using T = Kro16u;
    return {KT_MC(kroiCopy_16u_C1MR, 1, 1), KT_MC(kroiCopy_16u_C3MR, 3, 3), KT_MC(kroiCopy_16u_C4MR, 4, 4),
            KT_MC(kroiCopy_16u_AC4MR, 4, 3)};
}
template <> std::vector<MaskedSet<Kro16u>> maskedSets()
{
    using T = Kro16u;
    return {KT_MS1(kroiSet_16u_C1MR), KT_MS(kroiSet_16u_C3MR, 3, 3), KT_MS(kroiSet_16u_C4MR, 4, 4),
            KT_MS(kroiSet_16u_AC4MR, 4, 3)};
}
template <> std::vector<MaskedCopy<Kro16s>> maskedCopies()
{
    using T = Kro16s;
    return {KT_MC(kroiCopy_16s_C1MR, 1, 1), KT_MC(kroiCopy_16s_C3MR, 3, 3), KT_MC(kroiCopy_16s_C4MR, 4, 4),
            KT_MC(kroiCopy_16s_AC4MR, 4, 3)};
}
template <> std::vector<MaskedSet<Kro16s>> maskedSets()
{
    using T = Kro16s;
    return {KT_MS1(kroiSet_16s_C1MR), KT_MS(kroiSet_16s_C3MR, 3, 3), KT_MS(kroiSet_16s_C4MR, 4, 4),
            KT_MS(kroiSet_16s_AC4MR, 4, 3)};
}
template <> std::vector<MaskedCopy<Kro32s>> maskedCopies()
{
    using T = Kro32s;
    return {KT_MC(kroiCopy_32s_C1MR, 1, 1), KT_MC(kroiCopy_32s_C3MR, 3, 3), KT_MC(kroiCopy_32s_C4MR, 4, 4),
            KT_MC(kroiCopy_32s_AC4MR, 4, 3)};
}
template <> std::vector<MaskedSet<Kro32s>> maskedSets()
{
    using T = Kro32s;
    return {KT_MS1(kroiSet_32s_C1MR), KT_MS(kroiSet_32s_C3MR, 3, 3), KT_MS(kroiSet_32s_C4MR, 4, 4),
            KT_MS(kroiSet_32s_AC4MR, 4, 3)};
}
template <> std::vector<MaskedCopy<Kro32f>> maskedCopies()
{
    using T = Kro32f;
    return {KT_MC(kroiCopy_32f_C1MR, 1, 1), KT_MC(kroiCopy_32f_C3MR, 3, 3), KT_MC(kroiCopy_32f_C4MR, 4, 4),
            KT_MC(kroiCopy_32f_AC4MR, 4, 3)};
}
template <> std::vector<MaskedSet<Kro32f>> maskedSets()
{
    using T = Kro32f;
    return {KT_MS1(kroiSet_32f_C1MR), KT_MS(kroiSet_32f_C3MR, 3, 3), KT_MS(kroiSet_32f_C4MR, 4, 4),
            KT_MS(kroiSet_32f_AC4MR, 4, 3)};
}

// Mask kinds: random with about half zeros, all zero, all non-zero (any value, not only 1).
enum class MaskKind { Mixed, None, All };

void fillMask(Guarded<Kro8u>& m, kt::Rng& rng, MaskKind kind)
{
    m.forEach([&](int, int, int, Kro8u& v) {
        const Kro8u any = kt::uniform<Kro8u>(rng, 1, 255);
        v = kind == MaskKind::None ? 0 : kind == MaskKind::All ? any : (rng() & 1 ? any : 0);
    });
}

struct Case {
    Shape dst;
    MaskKind kind;
};
std::vector<Case> cases(int channels)
{
    std::vector<Case> v;
    for (int w : {1, 2, 3, 4, 5, 7, 15, 16, 17, 33, 63})
        for (int pad : {0, 9}) v.push_back({Shape{w, 3, channels, pad, Guard::After}, MaskKind::Mixed});
    for (int off = 0; off < 16; ++off) v.push_back({Shape{37, 2, channels, 3, Guard::Before, off}, MaskKind::Mixed});
    v.push_back({Shape{40, 2, channels, 0, Guard::After, 0, true}, MaskKind::Mixed});
    v.push_back({Shape{40, 2, channels}, MaskKind::None});
    v.push_back({Shape{40, 2, channels}, MaskKind::All});
    return v;
}

template <class T>
class Masked : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(Masked, Types);

TYPED_TEST(Masked, CopyMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : maskedCopies<T>())
        for (const Case& k : cases(m.channels)) {
            const Shape& sh = k.dst;
            Guarded<T> src(kt::typed<T>(Shape{sh.width, sh.height, m.channels, 5, Guard::Before, sh.offset ^ 7}));
            Guarded<T> dst(kt::typed<T>(sh));
            Guarded<Kro8u> mask(Shape{sh.width, sh.height, 1, 3, Guard::After});
            kt::fillRandom(src, rng);
            kt::fillRandom(dst, rng);
            fillMask(mask, rng, k.kind);
            Guarded<T> old(Shape{sh.width, sh.height, m.channels});
            old.forEach([&](int x, int y, int c, T& e) { e = dst.at(x, y, c); });
            const auto before = dst.snapshot();
            ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {sh.width, sh.height}, mask.ptr(), mask.step()),
                      kroStsOk);
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) {
                return mask.at(x, y) && c < m.written ? src.at(x, y, c) : old.at(x, y, c);
            }) << m.name << " width " << sh.width << " offset " << sh.offset;
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written)) << m.name;
            if (k.kind == MaskKind::None) {
                EXPECT_TRUE(dst.unchangedSince(before)) << m.name;
            }
        }
}

TYPED_TEST(Masked, SetMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : maskedSets<T>())
        for (const Case& k : cases(m.channels)) {
            const Shape& sh = k.dst;
            Guarded<T> dst(kt::typed<T>(sh));
            Guarded<Kro8u> mask(Shape{sh.width, sh.height, 1, 0, Guard::Before, sh.offset});
            kt::fillRandom(dst, rng);
            fillMask(mask, rng, k.kind);
            T value[4];
            for (T& v : value) v = kt::randomValue<T>(rng);
            Guarded<T> old(Shape{sh.width, sh.height, m.channels});
            old.forEach([&](int x, int y, int c, T& e) { e = dst.at(x, y, c); });
            const auto before = dst.snapshot();
            ASSERT_EQ(m.fn(value, dst.ptr(), dst.step(), {sh.width, sh.height}, mask.ptr(), mask.step()), kroStsOk);
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) {
                return mask.at(x, y) && c < m.written ? value[c] : old.at(x, y, c);
            }) << m.name << " width " << sh.width;
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written)) << m.name;
        }
}

// Pointers first (the source, destination or mask, null with a zero size: -8), then the
// size; nothing written either way.
TYPED_TEST(Masked, CheckOrder)
{
    using T = TypeParam;
    Guarded<T> src(4, 2, 4), dst(4, 2, 4);
    Guarded<Kro8u> mask(4, 2);
    mask.fillBytes(1);
    dst.fillBytes(0x3C);
    const auto before = dst.snapshot();
    const T value[4] = {};
    for (int nul = 0; nul < 4; ++nul)
        for (KroiSize roi : {KroiSize{4, 2}, KroiSize{0, 2}, KroiSize{4, 0}}) {
            const T* s = nul == 1 ? nullptr : src.ptr();
            T* d = nul == 2 ? nullptr : dst.ptr();
            const Kro8u* mk = nul == 3 ? nullptr : mask.ptr();
            const KroStatus bad = roi.width < 1 || roi.height < 1 ? kroStsBadSizeErr : kroStsOk;
            for (const auto& m : maskedCopies<T>())
                if (nul || bad) {
                    EXPECT_EQ(m.fn(s, src.step(), d, dst.step(), roi, mk, mask.step()), nul ? kroStsNullPointerErr : bad)
                        << m.name;
                }
            for (const auto& m : maskedSets<T>()) {
                const bool nullValue = nul == 1 && m.channels > 1;  // the value array stands in for the source
                const KroStatus want = nullValue || nul > 1 ? kroStsNullPointerErr : bad;
                if (want) {
                    EXPECT_EQ(m.fn(nullValue ? nullptr : value, d, dst.step(), roi, mk, mask.step()), want) << m.name;
                }
            }
            EXPECT_TRUE(dst.unchangedSince(before));
        }
}

}  // namespace
