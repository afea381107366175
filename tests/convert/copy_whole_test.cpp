// Whole-image Copy and Set: every member against the rule on random images, with padded
// steps, unaligned starts, guard pages on either side, bottom-up rows, the merged and the
// streaming paths, and the check order with canaries.
#include <cstring>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

using kt::Guard;
using kt::Guarded;
using kt::Shape;

template <class T>
struct CopyMember {
    const char* name;
    KroStatus (*fn)(const T*, int, T*, int, KroiSize);
    int channels, written;
};
// Set takes one value (C1) or an array; both are called through an array here.
template <class T>
struct SetMember {
    const char* name;
    KroStatus (*fn)(const T*, T*, int, KroiSize);
    int channels, written;
};
template <class T, KroStatus (*F)(T, T*, int, KroiSize)>
KroStatus setOne(const T* v, T* d, int step, KroiSize roi) { return F(v[0], d, step, roi); }

#define KT_COPY(fn, channels, written) CopyMember<T>{#fn, fn, channels, written}
#define KT_SET(fn, channels, written) SetMember<T>{#fn, fn, channels, written}
#define KT_SET1(fn) SetMember<T>{#fn, setOne<T, fn>, 1, 1}

template <class T> std::vector<CopyMember<T>> copies();
template <class T> std::vector<SetMember<T>> sets();
template <> std::vector<CopyMember<Kro8u>> copies()
{
    using T = Kro8u;
    return {KT_COPY(kroiCopy_8u_C1R, 1, 1), KT_COPY(kroiCopy_8u_C3R, 3, 3), KT_COPY(kroiCopy_8u_C4R, 4, 4),
            KT_COPY(kroiCopy_8u_AC4R, 4, 3)};
}
template <> std::vector<SetMember<Kro8u>> sets()
{
    using T = Kro8u;
    return {KT_SET1(kroiSet_8u_C1R), KT_SET(kroiSet_8u_C3R, 3, 3), KT_SET(kroiSet_8u_C4R, 4, 4),
            KT_SET(kroiSet_8u_AC4R, 4, 3)};
}
template <> std::vector<CopyMember<Kro16u>> copies()
{
    using T = Kro16u;
    return {KT_COPY(kroiCopy_16u_C1R, 1, 1), KT_COPY(kroiCopy_16u_C3R, 3, 3), KT_COPY(kroiCopy_16u_C4R, 4, 4),
            KT_COPY(kroiCopy_16u_AC4R, 4, 3)};
}
template <> std::vector<SetMember<Kro16u>> sets()
{
    using T = Kro16u;
    return {KT_SET1(kroiSet_16u_C1R), KT_SET(kroiSet_16u_C3R, 3, 3), KT_SET(kroiSet_16u_C4R, 4, 4),
            KT_SET(kroiSet_16u_AC4R, 4, 3)};
}
template <> std::vector<CopyMember<Kro16s>> copies()
{
    using T = Kro16s;
    return {KT_COPY(kroiCopy_16s_C1R, 1, 1), KT_COPY(kroiCopy_16s_C3R, 3, 3), KT_COPY(kroiCopy_16s_C4R, 4, 4),
            KT_COPY(kroiCopy_16s_AC4R, 4, 3)};
}
template <> std::vector<SetMember<Kro16s>> sets()
{
    using T = Kro16s;
    return {KT_SET1(kroiSet_16s_C1R), KT_SET(kroiSet_16s_C3R, 3, 3), KT_SET(kroiSet_16s_C4R, 4, 4),
            KT_SET(kroiSet_16s_AC4R, 4, 3)};
}
template <> std::vector<CopyMember<Kro32s>> copies()
{
    using T = Kro32s;
    return {KT_COPY(kroiCopy_32s_C1R, 1, 1), KT_COPY(kroiCopy_32s_C3R, 3, 3), KT_COPY(kroiCopy_32s_C4R, 4, 4),
            KT_COPY(kroiCopy_32s_AC4R, 4, 3)};
}
template <> std::vector<SetMember<Kro32s>> sets()
{
    using T = Kro32s;
    return {KT_SET1(kroiSet_32s_C1R), KT_SET(kroiSet_32s_C3R, 3, 3), KT_SET(kroiSet_32s_C4R, 4, 4),
            KT_SET(kroiSet_32s_AC4R, 4, 3)};
}
template <> std::vector<CopyMember<Kro32f>> copies()
{
    using T = Kro32f;
    return {KT_COPY(kroiCopy_32f_C1R, 1, 1), KT_COPY(kroiCopy_32f_C3R, 3, 3), KT_COPY(kroiCopy_32f_C4R, 4, 4),
            KT_COPY(kroiCopy_32f_AC4R, 4, 3)};
}
template <> std::vector<SetMember<Kro32f>> sets()
{
    using T = Kro32f;
    return {KT_SET1(kroiSet_32f_C1R), KT_SET(kroiSet_32f_C3R, 3, 3), KT_SET(kroiSet_32f_C4R, 4, 4),
            KT_SET(kroiSet_32f_AC4R, 4, 3)};
}

// The shapes every member runs on: widths around the 16- and 48-byte periods, tight and
// padded steps, starts at every offset 0..15 against a guard page before the image, and
// images ending at a guard page, top-down and bottom-up.
std::vector<Shape> shapes(int channels)
{
    std::vector<Shape> v;
    const int widths[] = {1, 2, 3, 4, 5, 7, 8, 15, 16, 17, 31, 33, 47, 49, 64, 65, 97};
    for (int w : widths)
        for (int pad : {0, 13}) {
            v.push_back(Shape{w, 3, channels, pad, Guard::After});
            v.push_back(Shape{w, 2, channels, pad, Guard::After, 0, true});
        }
    for (int off = 0; off < 16; ++off)
        for (int w : {1, 13, 50}) v.push_back(Shape{w, 2, channels, 5, Guard::Before, off});
    return v;
}

template <class T>
class CopySet : public testing::Test {};
using Types = testing::Types<Kro8u, Kro16u, Kro16s, Kro32s, Kro32f>;
TYPED_TEST_SUITE(CopySet, Types);

TYPED_TEST(CopySet, CopyMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : copies<T>())
        for (const Shape& sh : shapes(m.channels)) {
            Shape srcShape = sh;
            srcShape.guard = sh.guard == Guard::After ? Guard::Before : Guard::After;  // guards on both sides
            srcShape.padBytes = sh.padBytes ? 7 : 0;
            Guarded<T> src(srcShape), dst(sh);
            kt::fillRandom(src, rng);
            kt::fillRandom(dst, rng);
            const auto before = dst.snapshot();
            ASSERT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {sh.width, sh.height}), kroStsOk) << m.name;
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c < m.written ? src.at(x, y, c) : dst.at(x, y, c); })
                << m.name << " width " << sh.width << " offset " << sh.offset;
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written)) << m.name;
        }
}

TYPED_TEST(CopySet, SetMatchesRule)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : sets<T>())
        for (const Shape& sh : shapes(m.channels)) {
            Guarded<T> dst(sh);
            kt::fillRandom(dst, rng);
            const auto before = dst.snapshot();
            T value[4];
            for (T& v : value) v = kt::randomValue<T>(rng);
            ASSERT_EQ(m.fn(value, dst.ptr(), dst.step(), {sh.width, sh.height}), kroStsOk) << m.name;
            EXPECT_IMAGE_EQ(dst, [&](int x, int y, int c) { return c < m.written ? value[c] : dst.at(x, y, c); })
                << m.name << " width " << sh.width << " offset " << sh.offset;
            EXPECT_TRUE(dst.restUnchangedSince(before, m.written)) << m.name;
        }
}

// Nothing is written on error, and a null pointer is reported before a bad size.
TYPED_TEST(CopySet, CheckOrder)
{
    using T = TypeParam;
    Guarded<T> src(4, 2, 4), dst(4, 2, 4);
    dst.fillBytes(0x5A);
    const auto before = dst.snapshot();
    const T value[4] = {};
    struct Case { bool nullSrc, nullDst; KroiSize roi; KroStatus want; };
    const Case cases[] = {{true, false, {0, 0}, kroStsNullPointerErr}, {false, true, {4, 2}, kroStsNullPointerErr},
                          {false, false, {0, 2}, kroStsBadSizeErr},    {false, false, {4, -1}, kroStsBadSizeErr},
                          {false, false, {INT32_MIN, 2}, kroStsBadSizeErr}};
    for (const Case& k : cases) {
        const T* s = k.nullSrc ? nullptr : src.ptr();
        T* d = k.nullDst ? nullptr : dst.ptr();
        for (const auto& m : copies<T>()) EXPECT_EQ(m.fn(s, src.step(), d, dst.step(), k.roi), k.want) << m.name;
        // Set has no source: the null source stands for a null value array (C1 takes a value).
        for (const auto& m : sets<T>()) {
            const KroStatus want = k.nullSrc && m.channels == 1 ? kroStsBadSizeErr : k.want;
            EXPECT_EQ(m.fn(k.nullSrc ? (m.channels == 1 ? value : nullptr) : value, d, dst.step(), k.roi), want)
                << m.name;
        }
        EXPECT_TRUE(dst.unchangedSince(before));
    }
}

// Contiguous 8u images are copied as one row only below 32768 on both sides; 40000 x 2
// goes row by row, 30000 x 2 merged, and both give the copy.  The sizes above 1 MiB take
// the streaming path.
TEST(CopyPaths, MergedRowAndStreaming)
{
    auto rng = kt::rngForTest();
    const KroiSize sizes[] = {{40000, 2}, {30000, 2}, {1500, 800}, {1021, 1031}};
    for (KroiSize roi : sizes)
        for (int off : {0, 3}) {
            Guarded<Kro8u> src(Shape{roi.width, roi.height, 1, 0, Guard::Before, off});
            Guarded<Kro8u> dst(roi.width, roi.height);
            kt::fillRandom(src, rng);
            dst.fillBytes(0);
            ASSERT_EQ(kroiCopy_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi), kroStsOk);
            EXPECT_IMAGE_EQ(dst, std::as_const(src)) << roi.width << " x " << roi.height;
            Guarded<Kro32f> s3(Shape{roi.width / 3, roi.height, 3, 4, Guard::Before, off}), d3(roi.width / 3, roi.height, 3);
            kt::fillRandom(s3, rng);
            ASSERT_EQ(kroiCopy_32f_C3R(s3.ptr(), s3.step(), d3.ptr(), d3.step(), {roi.width / 3, roi.height}), kroStsOk);
            EXPECT_IMAGE_EQ(d3, std::as_const(s3));
        }
}

// A fill at least as large as the largest cache streams; check it at an odd start.
TEST(SetPaths, StreamingFill)
{
    int cache = 0;
    if (kroGetMaxCacheSizeB(&cache) != kroStsOk || cache > (64 << 20)) GTEST_SKIP() << "no usable cache size";
    const int w = 4099, h = cache / (3 * w) + 2;
    Guarded<Kro8u> dst(Shape{w, h, 3, 0, Guard::Before, 5});
    const Kro8u v[3] = {1, 2, 3};
    ASSERT_EQ(kroiSet_8u_C3R(v, dst.ptr(), dst.step(), {w, h}), kroStsOk);
    EXPECT_IMAGE_EQ(dst, [&](int, int, int c) { return v[c]; });
    Guarded<Kro32f> f(Shape{w, h / 4 * 3, 1, 12, Guard::After});
    f.fillBytes(0);
    ASSERT_EQ(kroiSet_32f_C1R(-2.5f, f.ptr(), f.step(), {w, h / 4 * 3}), kroStsOk);
    EXPECT_IMAGE_EQ(f, [](int, int, int) { return -2.5f; });
    EXPECT_TRUE(f.restUnchangedSince(std::vector<unsigned char>(f.spanBytes(), 0), 1));
}

// A destination step of 0 writes the same row every time.
TEST(SetPaths, ZeroStep)
{
    Guarded<Kro8u> row(37, 1, 3);
    row.fillBytes(0);
    const Kro8u v[3] = {9, 8, 7};
    ASSERT_EQ(kroiSet_8u_C3R(v, row.ptr(), 0, {37, 3}), kroStsOk);
    EXPECT_IMAGE_EQ(row, [&](int, int, int c) { return v[c]; });
    ASSERT_EQ(kroiSet_8u_C1R(200, row.ptr(), 0, {111, 3}), kroStsOk);
    EXPECT_IMAGE_EQ(row, [&](int, int, int) { return 200; });
}

}  // namespace
