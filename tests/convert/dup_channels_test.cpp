// kroiDup: every destination channel holds the source value; null and size checks.
#include <gtest/gtest.h>

#include "convert/layout_util.hpp"
#include "kroi.h"
#include "support/compare.hpp"
#include "support/random.hpp"

namespace {

TEST(Dup, MatchesRuleAndChecks)
{
    auto rng = kt::rngForTest();
    for (int c : {3, 4})
        for (int w : {1, 15, 16, 17, 33, 70})
            for (int pl = 0; pl < lt::kPlacements; ++pl) {
                kt::Guarded<Kro8u> src(lt::placed(w, 3, 1, pl)), dst(lt::placed(w, 3, c, 2 - pl));
                kt::fillRandom(src, rng);
                dst.fillBytes(0x77);
                const auto before = dst.snapshot();
                const KroStatus st = c == 3 ? kroiDup_8u_C1C3R(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 3})
                                            : kroiDup_8u_C1C4R(src.ptr(), src.step(), dst.ptr(), dst.step(), {w, 3});
                ASSERT_EQ(st, kroStsOk);
                ASSERT_IMAGE_EQ(dst, [&](int x, int y, int) { return src.at(x, y); });
                EXPECT_TRUE(dst.restUnchangedSince(before, c));
            }
    Kro8u px = 1, out[4] = {};
    EXPECT_EQ(kroiDup_8u_C1C3R(nullptr, 1, out, 3, {0, 1}), kroStsNullPointerErr);
    EXPECT_EQ(kroiDup_8u_C1C4R(&px, 1, nullptr, 4, {1, 1}), kroStsNullPointerErr);
    EXPECT_EQ(kroiDup_8u_C1C3R(&px, 1, out, 3, {1, 0}), kroStsBadSizeErr);
    EXPECT_EQ(kroiDup_8u_C1C4R(&px, 1, out, 4, {-1, 1}), kroStsBadSizeErr);
    EXPECT_EQ(out[0], 0);
}

}  // namespace
