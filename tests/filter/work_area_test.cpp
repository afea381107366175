// Calls whose work area cannot be described in 32 bits: the buffer queries keep their stated
// results, and the operations refuse such a call with -6 before reading or writing anything
// (a buffer sized from the query would otherwise be overrun).
#include <gtest/gtest.h>

#include <vector>

#include "kroi.h"
#include "support/guarded.hpp"

namespace {

// ROI 65536 x 5 of 16u C4 with a 1 x 32768 mask: a bordered copy of the image needs about
// 17 GB, while the min/max query's unsigned 32-bit formula wraps to about 2 MB.
TEST(WorkArea, MinMaxRefusesWhatItsQueryCannotDescribe)
{
    const KroiSize roi{65536, 5}, mask{1, 32768};
    int size = 0;
    ASSERT_EQ(kroiFilterMaxBorderGetBufferSize(roi, mask, kro16u, 4, &size), kroStsOk);
    EXPECT_EQ(size, 2097216) << "the query keeps its stated formula";
    kt::Guarded<Kro16u> src(roi.width, roi.height, 4), dst(roi.width, roi.height, 4);
    kt::Guarded<Kro8u> buffer(size, 1, 1);
    dst.fillBytes(0x6B), buffer.fillBytes(0x6C);
    const auto dstBefore = dst.snapshot(), bufBefore = buffer.snapshot();
    EXPECT_EQ(kroiFilterMaxBorder_16u_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, mask, kroBorderReplicate,
                                          nullptr, buffer.ptr()),
              kroStsBadSizeErr);
    EXPECT_EQ(kroiFilterMinBorder_16u_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, mask, kroBorderMirror,
                                          nullptr, buffer.ptr()),
              kroStsBadSizeErr);
    EXPECT_TRUE(dst.unchangedSince(dstBefore));
    EXPECT_TRUE(buffer.unchangedSince(bufBefore));
    // The check comes last: a bad border value is still reported as such.
    EXPECT_EQ(kroiFilterMaxBorder_16u_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, mask, kroBorderConstant,
                                          nullptr, buffer.ptr()),
              kroStsNullPointerErr);
    // Just below the limit the call runs (a 16 x 16 image, mask 1 x 3).
    kt::Guarded<Kro16u> s2(16, 16, 4), d2(16, 16, 4);
    ASSERT_EQ(kroiFilterMaxBorderGetBufferSize({16, 16}, {1, 3}, kro16u, 4, &size), kroStsOk);
    std::vector<Kro8u> b2(std::size_t(size) + 64);
    EXPECT_EQ(kroiFilterMaxBorder_16u_C4R(s2.ptr(), s2.step(), d2.ptr(), d2.step(), {16, 16}, {1, 3}, kroBorderReplicate,
                                          nullptr, b2.data()),
              kroStsOk);
}

// The box filter's query already refuses such sizes (-232); its operations refuse them too.
TEST(WorkArea, BoxRefusesWhatNoQueryDescribes)
{
    const KroiSize roi{65536, 5}, mask{1, 32768};
    int size = 0;
    EXPECT_EQ(kroiFilterBoxBorderGetBufferSize(roi, mask, kro16u, 4, &size), kroStsSizeLimitErr);
    kt::Guarded<Kro16u> src(roi.width, roi.height, 4), dst(roi.width, roi.height, 4);
    kt::Guarded<Kro8u> buffer(4096, 1, 1);
    dst.fillBytes(0x6B), buffer.fillBytes(0x6C);
    const auto dstBefore = dst.snapshot(), bufBefore = buffer.snapshot();
    EXPECT_EQ(kroiFilterBoxBorder_16u_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, mask, kroBorderReplicate,
                                          nullptr, buffer.ptr()),
              kroStsBadSizeErr);
    EXPECT_TRUE(dst.unchangedSince(dstBefore));
    EXPECT_TRUE(buffer.unchangedSince(bufBefore));
}

// The median, Gaussian and fixed-kernel filters share one frame; the median stands for it.
TEST(WorkArea, WindowFiltersRefuseWhatNoQueryDescribes)
{
    const KroiSize roi{65536, 5}, mask{1, 32768};
    int size = 0;
    EXPECT_EQ(kroiFilterMedianBorderGetBufferSize(roi, mask, kro16u, 4, &size), kroStsSizeLimitErr);
    kt::Guarded<Kro16u> src(roi.width, roi.height, 4), dst(roi.width, roi.height, 4);
    kt::Guarded<Kro8u> buffer(4096, 1, 1);
    dst.fillBytes(0x6B), buffer.fillBytes(0x6C);
    const auto dstBefore = dst.snapshot(), bufBefore = buffer.snapshot();
    EXPECT_EQ(kroiFilterMedianBorder_16u_C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), roi, mask, kroBorderReplicate,
                                             nullptr, buffer.ptr()),
              kroStsBadSizeErr);
    EXPECT_TRUE(dst.unchangedSince(dstBefore));
    EXPECT_TRUE(buffer.unchangedSince(bufBefore));
}

}  // namespace
