// The median filters' check orders and buffer query: each failing argument in turn, with
// every earlier argument good and every later one bad too, and nothing written.
#include <vector>

#include <gtest/gtest.h>

#include "filter/window_reference.hpp"
#include "kroi.h"

namespace {

template <class T>
using FilterFn = KroStatus (*)(const T*, int, T*, int, KroiSize, KroiSize, KroiBorderMode, const T*, Kro8u*);

// Arguments that pass, and the expected status when the first bad one is argument `bad`
// (every later one bad too, so that the order is what is checked).
template <class T>
void checkOrder(FilterFn<T> fn, const char* name, int C)
{
    kt::Guarded<T> src(8, 6, C), dst(8, 6, C);
    dst.fillBytes(0x3C);
    const auto canary = dst.snapshot();
    std::vector<Kro8u> buf(1 << 16);
    const T value[4] = {};
    // 0 pSrc, 1 pDst, 2 pBuffer, 3 srcStep, 4 dstStep, 5 width, 6 height, 7 mask width,
    // 8 mask height, 9 border code, 10 value.
    const KroStatus want[] = {kroStsNullPointerErr, kroStsNullPointerErr, kroStsNullPointerErr, kroStsBadStepErr,
                              kroStsBadStepErr, kroStsBadSizeErr, kroStsBadSizeErr, kroStsBadMaskErr,
                              kroStsBadMaskErr, kroStsBadBorderErr, kroStsNullPointerErr};
    for (int bad = 0; bad < 11; ++bad) {
        auto on = [&](int i) { return i >= bad; };
        const KroiBorderMode code = on(9) ? KroiBorderMode(bad == 9 ? 0x17 : 0x102) : KroiBorderMode(kroBorderConstant);
        const KroStatus st =
            fn(on(0) && bad == 0 ? nullptr : src.ptr(), on(3) ? (bad == 3 ? 0 : -1) : src.step(),
               on(1) && bad <= 1 ? nullptr : dst.ptr(), on(4) ? -5 : dst.step(),
               KroiSize{on(5) ? 0 : 8, on(6) ? -1 : 6}, KroiSize{on(7) ? 0 : 3, on(8) ? -2 : 3}, code,
               on(10) ? nullptr : value, on(2) && bad <= 2 ? nullptr : buf.data());
        EXPECT_EQ(st, want[bad]) << name << " first bad argument " << bad;
        EXPECT_TRUE(dst.unchangedSince(canary)) << name;
    }
    // A null value is not needed outside the constant mode, nor with every side in memory.
    EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, {3, 3}, kroBorderMirror, nullptr, buf.data()),
              kroStsOk);
    // The replicate-alternative and transparent codes, wrap, and 0 are refused.
    for (unsigned c : {0u, 2u, 4u, 5u, 7u, 0x101u, 0x32u}) {
        EXPECT_EQ(fn(src.ptr(), src.step(), dst.ptr(), dst.step(), {8, 6}, {3, 3}, KroiBorderMode(c), value, buf.data()),
                  kroStsBadBorderErr)
            << name << " code " << c;
    }
}

TEST(MedianChecks, OrderOfEveryMember)
{
    checkOrder<Kro8u>(kroiFilterMedianBorder_8u_C1R, "8u_C1R", 1);
    checkOrder<Kro8u>(kroiFilterMedianBorder_8u_C3R, "8u_C3R", 3);
    checkOrder<Kro8u>(kroiFilterMedianBorder_8u_C4R, "8u_C4R", 4);
    checkOrder<Kro8u>(kroiFilterMedianBorder_8u_AC4R, "8u_AC4R", 4);
    checkOrder<Kro16u>(kroiFilterMedianBorder_16u_C1R, "16u_C1R", 1);
    checkOrder<Kro16u>(kroiFilterMedianBorder_16u_C3R, "16u_C3R", 3);
    checkOrder<Kro16u>(kroiFilterMedianBorder_16u_C4R, "16u_C4R", 4);
    checkOrder<Kro16u>(kroiFilterMedianBorder_16u_AC4R, "16u_AC4R", 4);
    checkOrder<Kro16s>(kroiFilterMedianBorder_16s_C1R, "16s_C1R", 1);
    checkOrder<Kro16s>(kroiFilterMedianBorder_16s_C3R, "16s_C3R", 3);
    checkOrder<Kro16s>(kroiFilterMedianBorder_16s_C4R, "16s_C4R", 4);
    checkOrder<Kro16s>(kroiFilterMedianBorder_16s_AC4R, "16s_AC4R", 4);
    checkOrder<Kro32f>(kroiFilterMedianBorder_32f_C1R, "32f_C1R", 1);
    checkOrder<Kro32f>(kroiFilterMedianBorder_32f_C3R, "32f_C3R", 3);
    checkOrder<Kro32f>(kroiFilterMedianBorder_32f_C4R, "32f_C4R", 4);
    checkOrder<Kro32f>(kroiFilterMedianBorder_32f_AC4R, "32f_AC4R", 4);
}

TEST(MedianChecks, WeightedCenterOrder)
{
    kt::Guarded<Kro8u> src(8, 6), dst(8, 6);
    dst.fillBytes(0x3C);
    const auto canary = dst.snapshot();
    std::vector<Kro8u> buf(4096);
    const Kro8u v = 1;
    auto call = [&](const Kro8u* s, int ss, int ds, KroiSize roi, int w, KroiBorderMode c, const Kro8u* val) {
        return kroiFilterMedianWeightedCenter3x3Border_8u_C1R(s, ss, dst.ptr(), ds, roi, w, c, val, buf.data());
    };
    EXPECT_EQ(call(nullptr, 0, 0, {0, 0}, 0, 0x100, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(call(src.ptr(), 0, 8, {0, 0}, 0, 0x100, nullptr), kroStsBadStepErr);
    EXPECT_EQ(call(src.ptr(), 8, 8, {0, 6}, 0, 0x100, nullptr), kroStsBadSizeErr);
    EXPECT_EQ(call(src.ptr(), 8, 8, {8, 6}, 0, 0x100, nullptr), kroStsBadWeightErr);
    EXPECT_EQ(call(src.ptr(), 8, 8, {8, 6}, -3, 0x100, nullptr), kroStsBadWeightErr);
    EXPECT_EQ(call(src.ptr(), 8, 8, {8, 6}, 1, 0x100, nullptr), kroStsBadBorderErr);
    EXPECT_EQ(call(src.ptr(), 8, 8, {8, 6}, 1, kroBorderConstant, nullptr), kroStsNullPointerErr);
    EXPECT_TRUE(dst.unchangedSince(canary));
    EXPECT_EQ(call(src.ptr(), src.step(), dst.step(), {8, 6}, 1, kroBorderConstant, &v), kroStsOk);
}

TEST(MedianChecks, BufferQuery)
{
    int size = -1;
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({0, 0}, {0, 0}, KroDataType(2), 2, nullptr), kroStsNullPointerErr);
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({0, 4}, {0, 0}, KroDataType(2), 2, &size), kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({4, 4}, {3, 0}, KroDataType(2), 2, &size), kroStsBadMaskErr);
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({4, 4}, {3, 3}, KroDataType(2), 2, &size), kroStsBadDataTypeErr);
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({4, 4}, {3, 3}, kro16s, 2, &size), kroStsBadChannelCountErr);
    EXPECT_EQ(size, -1);
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize({20000, 20000}, {20001, 3}, kro32f, 4, &size), kroStsSizeLimitErr);
    EXPECT_EQ(size, -1);
    // Larger images and masks never need less.
    int a = 0, b = 0;
    ASSERT_EQ(kroiFilterMedianBorderGetBufferSize({100, 50}, {5, 5}, kro8u, 3, &a), kroStsOk);
    ASSERT_EQ(kroiFilterMedianBorderGetBufferSize({100, 50}, {5, 5}, kro32f, 3, &b), kroStsOk);
    EXPECT_LT(a, b);
}

}  // namespace
