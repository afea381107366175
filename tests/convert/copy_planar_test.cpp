// Interleaved to planar and back: every member against the rule, planes with their own
// alignments and guards, the one-row path of contiguous images, the streaming path of large
// merges, and the check order (a null plane counts as a null pointer).
#include <memory>
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

// One of split (interleaved to planes) or merge is set.
template <class T>
struct PlanarMember {
    const char* name;
    KroStatus (*split)(const T*, int, T* const*, int, KroiSize);
    KroStatus (*merge)(const T* const*, int, T*, int, KroiSize);
    int C;
};

template <class T> std::vector<PlanarMember<T>> planars();
template <> std::vector<PlanarMember<Kro8u>> planars()
{
    return {{"kroiCopy_8u_C3P3R", kroiCopy_8u_C3P3R, nullptr, 3}, {"kroiCopy_8u_C4P4R", kroiCopy_8u_C4P4R, nullptr, 4},
            {"kroiCopy_8u_P3C3R", nullptr, kroiCopy_8u_P3C3R, 3}, {"kroiCopy_8u_P4C4R", nullptr, kroiCopy_8u_P4C4R, 4}};
}
template <> std::vector<PlanarMember<Kro16u>> planars()
{
    return {{"kroiCopy_16u_C3P3R", kroiCopy_16u_C3P3R, nullptr, 3}, {"kroiCopy_16u_C4P4R", kroiCopy_16u_C4P4R, nullptr, 4},
            {"kroiCopy_16u_P3C3R", nullptr, kroiCopy_16u_P3C3R, 3}, {"kroiCopy_16u_P4C4R", nullptr, kroiCopy_16u_P4C4R, 4}};
}
template <> std::vector<PlanarMember<Kro16s>> planars()
{
    return {{"kroiCopy_16s_C3P3R", kroiCopy_16s_C3P3R, nullptr, 3}, {"kroiCopy_16s_C4P4R", kroiCopy_16s_C4P4R, nullptr, 4},
            {"kroiCopy_16s_P3C3R", nullptr, kroiCopy_16s_P3C3R, 3}, {"kroiCopy_16s_P4C4R", nullptr, kroiCopy_16s_P4C4R, 4}};
}
template <> std::vector<PlanarMember<Kro32s>> planars()
{
    return {{"kroiCopy_32s_C3P3R", kroiCopy_32s_C3P3R, nullptr, 3}, {"kroiCopy_32s_C4P4R", kroiCopy_32s_C4P4R, nullptr, 4},
            {"kroiCopy_32s_P3C3R", nullptr, kroiCopy_32s_P3C3R, 3}, {"kroiCopy_32s_P4C4R", nullptr, kroiCopy_32s_P4C4R, 4}};
}
template <> std::vector<PlanarMember<Kro32f>> planars()
{
    return {{"kroiCopy_32f_C3P3R", kroiCopy_32f_C3P3R, nullptr, 3}, {"kroiCopy_32f_C4P4R", kroiCopy_32f_C4P4R, nullptr, 4},
            {"kroiCopy_32f_P3C3R", nullptr, kroiCopy_32f_P3C3R, 3}, {"kroiCopy_32f_P4C4R", nullptr, kroiCopy_32f_P4C4R, 4}};
}

template <class T>
class Planar : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(Planar, Types);

// Runs a member on an interleaved image and C planes of one shape each, and checks the rule
// on whichever side was written, and that nothing else changed.
template <class T>
void expectPlanarRule(const PlanarMember<T>& m, kt::Rng& rng, const Shape& inter, const Shape& plane)
{
    Guarded<T> im(kt::typed<T>(inter));
    std::vector<std::unique_ptr<Guarded<T>>> planes;
    for (int c = 0; c < m.C; ++c) planes.push_back(std::make_unique<Guarded<T>>(kt::typed<T>(plane)));
    kt::fillRandom(im, rng);
    for (auto& p : planes) kt::fillRandom(*p, rng);
    T* ptrs[4];
    for (int c = 0; c < m.C; ++c) ptrs[c] = planes[c]->ptr();
    const KroiSize roi{inter.width, inter.height};
    if (m.split) {
        const auto before = im.snapshot();
        ASSERT_EQ(m.split(im.ptr(), im.step(), ptrs, planes[0]->step(), roi), kroStsOk);
        for (int c = 0; c < m.C; ++c)
            EXPECT_IMAGE_EQ(*planes[c], [&](int x, int y, int) { return std::as_const(im).at(x, y, c); })
                << m.name << " plane " << c << " width " << roi.width << " x " << roi.height;
        EXPECT_TRUE(im.unchangedSince(before));
    } else {
        const T* cptrs[4] = {ptrs[0], ptrs[1], ptrs[2], ptrs[3]};
        const auto before = im.snapshot();
        ASSERT_EQ(m.merge(cptrs, planes[0]->step(), im.ptr(), im.step(), roi), kroStsOk);
        EXPECT_IMAGE_EQ(im, [&](int x, int y, int c) { return std::as_const(*planes[c]).at(x, y); })
            << m.name << " width " << roi.width << " x " << roi.height;
        EXPECT_TRUE(im.restUnchangedSince(before, m.C));
    }
}

TYPED_TEST(Planar, MatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : planars<T>()) {
        for (int w : {1, 2, 15, 16, 17, 31, 32, 33, 47, 65})
            for (int off = 0; off < 16; off += 5) {
                expectPlanarRule(m, rng, Shape{w, 3, m.C, 6, Guard::Before, off}, Shape{w, 3, 1, 2, Guard::After});
                expectPlanarRule(m, rng, Shape{w, 2, m.C, 0, Guard::After, 0, true}, Shape{w, 2, 1, 0, Guard::Before, off});
            }
        // Contiguous images, handled as one row.
        expectPlanarRule(m, rng, Shape{33, 5, m.C}, Shape{33, 5, 1});
    }
}

// Merges of more than 1 MiB stream through a buffer; cut points at every chunk boundary.
TEST(PlanarPaths, LargeMergesAndSplits)
{
    auto rng = kt::rngForTest();
    for (const auto& m : planars<Kro8u>()) expectPlanarRule(m, rng, Shape{1500, 300, m.C, 0, Guard::Before, 3}, Shape{1500, 300, 1, 1});
    for (const auto& m : planars<Kro32f>()) expectPlanarRule(m, rng, Shape{701, 131, m.C, 4}, Shape{701, 131, 1});
}

TYPED_TEST(Planar, CheckOrder)
{
    using T = TypeParam;
    Guarded<T> im(4, 2, 4), p0(4, 2), p1(4, 2), p2(4, 2), p3(4, 2);
    im.fillBytes(0x11);
    p2.fillBytes(0x22);
    const auto imBefore = im.snapshot(), planeBefore = p2.snapshot();
    for (const auto& m : planars<T>())
        for (int nul = 0; nul < 2 + m.C; ++nul)
            for (KroiSize roi : {KroiSize{4, 2}, KroiSize{0, 2}, KroiSize{4, -2}}) {
                T* ptrs[4] = {p0.ptr(), p1.ptr(), p2.ptr(), p3.ptr()};
                if (nul >= 2) ptrs[nul - 2] = nullptr;
                T* const* planes = nul == 1 ? nullptr : ptrs;
                T* image = nul == 0 && roi.height == 2 && roi.width == 4 ? nullptr : im.ptr();
                const bool badSize = roi.width < 1 || roi.height < 1;
                const KroStatus want = nul || image == nullptr ? kroStsNullPointerErr : badSize ? kroStsBadSizeErr : kroStsOk;
                if (want == kroStsOk) continue;
                if (m.split)
                    EXPECT_EQ(m.split(image, im.step(), planes, p0.step(), roi), want) << m.name << " " << nul;
                else
                    EXPECT_EQ(m.merge(reinterpret_cast<const T* const*>(planes), p0.step(), image, im.step(), roi), want)
                        << m.name << " " << nul;
                EXPECT_TRUE(im.unchangedSince(imBefore));
                EXPECT_TRUE(p2.unchangedSince(planeBefore));
            }
}

}  // namespace
