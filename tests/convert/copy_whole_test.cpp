// Whole-image Copy and Set: every member against the rule on random images, with padded
// steps, unaligned starts, guard pages on either side, bottom-up rows, the merged and the
// streaming paths, and the check order with canaries.
#include <sys/mman.h>

#include <cstring>
#include <string>
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


// The 64-bit copies, each beside its 32-bit form.
template <class T>
struct LongMember {
    const char* name;
    KroStatus (*fn)(const T*, int64_t, T*, int64_t, KroiSizeL);
    KroStatus (*narrow)(const T*, int, T*, int, KroiSize);
    int channels;
};
#define KT_LONG(fn, narrow, channels) LongMember<T>{#fn, fn, narrow, channels}
template <class T> std::vector<LongMember<T>> longs();
template <> std::vector<LongMember<Kro8u>> longs()
{
    using T = Kro8u;
    return {KT_LONG(kroiCopy_8u_C1R_L, kroiCopy_8u_C1R, 1), KT_LONG(kroiCopy_8u_C3R_L, kroiCopy_8u_C3R, 3),
            KT_LONG(kroiCopy_8u_C4R_L, kroiCopy_8u_C4R, 4), KT_LONG(kroiCopy_8u_AC4R_L, kroiCopy_8u_AC4R, 4)};
}
template <> std::vector<LongMember<Kro16u>> longs()
{
    using T = Kro16u;
    return {KT_LONG(kroiCopy_16u_C1R_L, kroiCopy_16u_C1R, 1), KT_LONG(kroiCopy_16u_C3R_L, kroiCopy_16u_C3R, 3),
            KT_LONG(kroiCopy_16u_C4R_L, kroiCopy_16u_C4R, 4), KT_LONG(kroiCopy_16u_AC4R_L, kroiCopy_16u_AC4R, 4)};
}
template <> std::vector<LongMember<Kro16s>> longs()
{
    using T = Kro16s;
    return {KT_LONG(kroiCopy_16s_C1R_L, kroiCopy_16s_C1R, 1), KT_LONG(kroiCopy_16s_C3R_L, kroiCopy_16s_C3R, 3),
            KT_LONG(kroiCopy_16s_C4R_L, kroiCopy_16s_C4R, 4), KT_LONG(kroiCopy_16s_AC4R_L, kroiCopy_16s_AC4R, 4)};
}
template <> std::vector<LongMember<Kro32s>> longs()
{
    using T = Kro32s;
    return {KT_LONG(kroiCopy_32s_C1R_L, kroiCopy_32s_C1R, 1), KT_LONG(kroiCopy_32s_C3R_L, kroiCopy_32s_C3R, 3),
            KT_LONG(kroiCopy_32s_C4R_L, kroiCopy_32s_C4R, 4), KT_LONG(kroiCopy_32s_AC4R_L, kroiCopy_32s_AC4R, 4)};
}
template <> std::vector<LongMember<Kro32f>> longs()
{
    using T = Kro32f;
    return {KT_LONG(kroiCopy_32f_C1R_L, kroiCopy_32f_C1R, 1), KT_LONG(kroiCopy_32f_C3R_L, kroiCopy_32f_C3R, 3),
            KT_LONG(kroiCopy_32f_C4R_L, kroiCopy_32f_C4R, 4), KT_LONG(kroiCopy_32f_AC4R_L, kroiCopy_32f_AC4R, 4)};
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
            Guarded<T> src(kt::typed<T>(srcShape)), dst(kt::typed<T>(sh));
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
            Guarded<T> dst(kt::typed<T>(sh));
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
            Guarded<Kro32f> s3(kt::typed<Kro32f>(Shape{roi.width / 3, roi.height, 3, 4, Guard::Before, off})), d3(roi.width / 3, roi.height, 3);
            kt::fillRandom(s3, rng);
            ASSERT_EQ(kroiCopy_32f_C3R(s3.ptr(), s3.step(), d3.ptr(), d3.step(), {roi.width / 3, roi.height}), kroStsOk);
            EXPECT_IMAGE_EQ(d3, std::as_const(s3));
        }
}

// Long rows are filled a piece at a time (rows of 30000 and 60000 bytes), padded or
// contiguous, at odd starts.
TEST(SetPaths, LongRows)
{
    for (int pad : {0, 24}) {
        Guarded<Kro16s> dst(Shape{5000, 3, 3, pad, Guard::Before, 2});
        dst.fillBytes(0);
        const Kro16s v[3] = {-7, 300, 5};
        ASSERT_EQ(kroiSet_16s_C3R(v, dst.ptr(), dst.step(), {5000, 3}), kroStsOk);
        EXPECT_IMAGE_EQ(dst, [&](int, int, int c) { return v[c]; });
        EXPECT_TRUE(dst.restUnchangedSince(std::vector<unsigned char>(dst.spanBytes(), 0), 3));
        Guarded<Kro32f> f(Shape{15000, 2, 1, pad, Guard::After});
        ASSERT_EQ(kroiSet_32f_C1R(1.5f, f.ptr(), f.step(), {15000, 2}), kroStsOk);
        EXPECT_IMAGE_EQ(f, [](int, int, int) { return 1.5f; });
    }
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

// The 64-bit copies give the 32-bit copies' result (alpha kept, padding untouched), on
// padded, bottom-up and unaligned images.
TYPED_TEST(CopySet, LongFormMatchesNarrow)
{
    using T = TypeParam;
    auto rng = kt::rngForTest();
    for (const auto& m : longs<T>())
        for (const Shape& sh : {Shape{1, 1, m.channels}, Shape{37, 3, m.channels, 5, Guard::Before, 3},
                                Shape{64, 2, m.channels, 0, Guard::After, 0, true}}) {
            Guarded<T> src(kt::typed<T>(sh)), a(kt::typed<T>(sh)), b(kt::typed<T>(sh));
            kt::fillRandom(src, rng);
            kt::fillRandom(a, rng);
            std::memcpy(b.lowest(), a.lowest(), a.spanBytes());
            ASSERT_EQ(m.fn(src.ptr(), src.step(), a.ptr(), a.step(), {sh.width, sh.height}), kroStsOk) << m.name;
            ASSERT_EQ(m.narrow(src.ptr(), src.step(), b.ptr(), b.step(), {sh.width, sh.height}), kroStsOk);
            EXPECT_TRUE(a.unchangedSince(b.snapshot())) << m.name;
        }
}

// No forwarding test: the checks come first whatever the steps, and a zero size is -6.
TYPED_TEST(CopySet, LongFormCheckOrder)
{
    using T = TypeParam;
    Guarded<T> src(3, 2, 4), dst(3, 2, 4);
    dst.fillBytes(0x42);
    const auto before = dst.snapshot();
    const int64_t huge = int64_t{1} << 40;
    for (const auto& m : longs<T>()) {
        EXPECT_EQ(m.fn(nullptr, huge, dst.ptr(), huge, {0, 0}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), src.step(), nullptr, dst.step(), {3, 2}), kroStsNullPointerErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), huge, dst.ptr(), huge, {3, 0}), kroStsBadSizeErr) << m.name;
        EXPECT_EQ(m.fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {-1, 2}), kroStsBadSizeErr) << m.name;
    }
    EXPECT_TRUE(dst.unchangedSince(before));
}

// Steps beyond 32 bits: two rows 4 GiB apart in a reserved, mostly untouched mapping.
TEST(CopyPaths, LongStepsBeyond32Bits)
{
    const int64_t step = (int64_t{1} << 32) + 64, bytes = 2 * step + 4096;
    void* map = mmap(nullptr, bytes, PROT_READ | PROT_WRITE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
    if (map == MAP_FAILED) GTEST_SKIP() << "no 8 GiB of address space";
    auto* base = static_cast<Kro8u*>(map);
    for (int i = 0; i < 300; ++i) base[i] = Kro8u(i * 7), base[step + i] = Kro8u(i * 13);
    Kro8u* dst = base + 2 * step;  // rows at 2 step and 3 step would be far; use a negative step
    EXPECT_EQ(kroiCopy_8u_C3R_L(base, step, dst + 1000, -step, {100, 2}), kroStsOk);
    for (int i = 0; i < 300; ++i) {
        EXPECT_EQ(dst[1000 + i], Kro8u(i * 7)) << i;
        EXPECT_EQ(dst[1000 - step + i], Kro8u(i * 13)) << i;
    }
    munmap(map, bytes);
}

// The managed copy: each flag choice, merged and row by row, small and above 1 MiB.
TEST(CopyPaths, ManagedStores)
{
    auto rng = kt::rngForTest();
    for (int flags : {0, 1, 2, 3, -1})
        for (const Shape& sh : {Shape{33, 3, 1, 0, Guard::Before, 5}, Shape{33, 3, 1, 11}, Shape{1300, 900, 1, 0, Guard::Before, 9},
                                Shape{1299, 901, 1, 3, Guard::After, 0, true}}) {
            Guarded<Kro8u> src(sh), dst(Shape{sh.width, sh.height, 1, sh.padBytes, Guard::After});
            kt::fillRandom(src, rng);
            dst.fillBytes(0xEE);
            const auto before = dst.snapshot();
            ASSERT_EQ(kroiCopyManaged_8u_C1R(src.ptr(), src.step(), dst.ptr(), dst.step(), {sh.width, sh.height}, flags),
                      kroStsOk);
            EXPECT_IMAGE_EQ(dst, std::as_const(src)) << "flags " << flags << " width " << sh.width;
            EXPECT_TRUE(dst.restUnchangedSince(before, 1));
        }
    Guarded<Kro8u> src(4, 2), dst(4, 2);
    dst.fillBytes(1);
    const auto before = dst.snapshot();
    EXPECT_EQ(kroiCopyManaged_8u_C1R(src.ptr(), 4, nullptr, 4, {0, 2}, 1), kroStsNullPointerErr);
    EXPECT_EQ(kroiCopyManaged_8u_C1R(src.ptr(), 4, dst.ptr(), 4, {4, 0}, 1), kroStsBadSizeErr);
    EXPECT_TRUE(dst.unchangedSince(before));
}

}  // namespace
